// kit_buttons.cpp: buttons, lamps and option balls

#include "kit.h"

#include <cmath>

struct ButtonInk {
    QColor FaceLight, FaceDark, WallLeft, WallFoot, EdgeLeft, EdgeFoot, Text;
    SignInk Drawn;
};

static ButtonInk InkOf(ButtonState State)
{
    switch (State) {
    case ButtonState::Lit:
        return {"#fffbd4", "#f7cf57",
                "#e2bd58", "#c4982f",
                JadeEdge,  JadeFoot,
                "#3a2404", {.Main = "#14482f", .Gold = "#9a6408", .Ground = "#fff8cf"}};
    case ButtonState::Disabled:
        return {
            "#364f43", "#2a4034", "#24382d",    "#1d2f25",
            "#1a2c22", "#152219", DisabledText, {"#aebbac", "#8b9b8a", "#8b9b8a", DisabledFace}};
    case ButtonState::Rest:
        break;
    }
    return {IvoryLight, IvoryDark, "#d8c8a0", "#b9a678", JadeEdge, JadeFoot, "#173124", {}};
}

// A button is a low tile: the same ivory over jade, with the same light.
static void DrawBody(QPainter& P, const QRectF& Box, const ButtonInk& C, double Depth,
                     ButtonState State)
{
    const double Radius = 5;
    const QRectF Face = Box.adjusted(Depth + .5, .5, -.5, -Depth - .5);
    const QPainterPath FacePath = Rounded(Face.x(), Face.y(), Face.width(), Face.height(), Radius);
    QPainterPath Body = FacePath, Upper = FacePath;
    for (int I = 1; I <= 8; ++I) {
        Body = Body.united(FacePath.translated(-Depth * I / 8, Depth * I / 8));
        if (I <= 4) Upper = Upper.united(FacePath.translated(-Depth * I / 8, Depth * I / 8));
    }
    const auto Walls = [&](const QColor& Left, const QColor& Foot) {
        return Linear(Box.left(), Box.bottom() - 14, Box.left() + 9, Box.bottom(), {Left, Foot});
    };
    P.fillPath(Body, Walls(C.EdgeLeft, C.EdgeFoot));
    P.fillPath(Upper, Walls(C.WallLeft, C.WallFoot));
    P.strokePath(Body, Line(Alpha("#1c1608", .85), .9));
    P.fillPath(FacePath,
               Linear(Face.right(), Face.top(), Face.left() + Face.width() * .35, Face.bottom(),
                      {C.FaceLight, Mix(C.FaceLight, C.FaceDark, .5), C.FaceDark}));
    P.strokePath(FacePath, Line(Alpha(Outline1, .7), .7));
    const double Shine = State == ButtonState::Disabled ? .16 : .95;
    QPainterPath Bright(QPointF(Face.left() + 4, Face.top() + 1.1));
    Bright.lineTo(Face.right() - 5, Face.top() + 1.1);
    Bright.quadTo(Face.right() - 1.1, Face.top() + 1.1, Face.right() - 1.1, Face.top() + 5);
    Bright.lineTo(Face.right() - 1.1, Face.bottom() - 5);
    P.strokePath(Bright, Line(Alpha("#ffffff", Shine), 1.1));
    QPainterPath Shade(QPointF(Face.left() + 1.1, Face.top() + 5));
    Shade.lineTo(Face.left() + 1.1, Face.bottom() - 5);
    Shade.quadTo(Face.left() + 1.1, Face.bottom() - 1.1, Face.left() + 5, Face.bottom() - 1.1);
    Shade.lineTo(Face.right() - 5, Face.bottom() - 1.1);
    P.strokePath(Shade, Line(Alpha("#6a5830", .4), 1.1));
    if (State == ButtonState::Lit)
        P.strokePath(
            Rounded(Face.x() + 2.6, Face.y() + 2.6, Face.width() - 5.2, Face.height() - 5.2, 3.4),
            Line(Alpha(LitFrame, .8), 1.3));
}

static double CaptionSize(const QRectF& Face)
{
    if (Face.height() > 90) return 19;
    if (Face.height() > 64) return 14;
    if (Face.height() > 48 && Face.width() < 90) return 13;
    return Face.height() > 38 ? 15.5 : 14;
}

void DrawButton(QPainter& P, const QRectF& Box, Sign Which, const QString& Caption,
                ButtonState State, ButtonPlace Where)
{
    const double Depth = Box.height() < 30   ? 2.5
                         : Box.height() < 46 ? 3.5
                         : Box.height() > 90 ? 6
                                             : 4.5;
    const ButtonInk C = InkOf(State);
    DrawBody(P, Box, C, Depth, State);
    const QRectF Face = Box.adjusted(Depth, 0, 0, -Depth);
    const TextStyle Style{.Size = CaptionSize(Face),
                          .Kind = Weight::Bold,
                          .Colour = C.Text,
                          .Shadow = State == ButtonState::Disabled};
    if (Caption.isEmpty()) {
        const double Size = std::min(Face.width(), Face.height()) * .62;
        DrawSign(P, Which,
                 QRectF(Face.center().x() - Size / 2, Face.center().y() - Size / 2, Size, Size),
                 C.Drawn);
        return;
    }
    if (Which == Sign::None) {
        DrawText(P, Face.adjusted(4, 0, -4, 0), Caption, Style);
        return;
    }
    const bool Upright = Face.height() > 48 && Face.width() < Face.height() * 1.75;
    if (Upright) { // the sign over the caption
        const double Row = Style.Size * 1.55,
                     Size = std::min(Face.height() - Row - 9, Face.width() * .62);
        DrawSign(P, Which,
                 QRectF(Face.center().x() - Size / 2,
                        Face.top() + 6 + (Face.height() - Row - 9 - Size) / 2, Size, Size),
                 C.Drawn);
        DrawText(P, QRectF(Face.left() + 3, Face.bottom() - Row - 1, Face.width() - 6, Row),
                 Caption, Style);
        return;
    }
    const bool Column = Where == ButtonPlace::Column, Wide = Face.width() > 180;
    const double Size = Column ? 25 : std::min(Face.height() * .58, 32.0);
    const double Gap = Column ? (Wide ? 16 : 7) : 8;
    const double Whole = Size + Gap + TextWidth(Caption, Style);
    const double Margin = Column ? (Wide ? 18 : 10) : std::max(5.0, (Face.width() - Whole) / 2);
    const QRectF SignBox(Face.left() + Margin, Face.center().y() - Size / 2, Size, Size);
    DrawSign(P, Which, SignBox, C.Drawn);
    TextStyle AfterSign = Style;
    AfterSign.Place = Qt::AlignLeft | Qt::AlignVCenter;
    const double TextLeft = SignBox.right() + Gap;
    DrawText(P, QRectF(TextLeft, Face.top(), Face.right() - 5 - TextLeft, Face.height()), Caption,
             AfterSign);
}

// A glass ball in a gold ring. Middle and Rim are the glass's colours.
static void DrawBall(QPainter& P, const QRectF& Box, const QColor& Shine, const QColor& Middle,
                     const QColor& Rim, bool Glow)
{
    const QPointF M = Box.center();
    const double R = std::min(Box.width(), Box.height()) / 2 - 2.5;
    if (Glow)
        P.fillPath(Circle(M.x(), M.y(), R + 2.4),
                   Radial(M.x(), M.y(), R + 2.4,
                          {Alpha(Middle, .9), Alpha(Middle, .6), Alpha(Middle, 0)}));
    P.fillPath(Circle(M.x(), M.y(), R),
               Linear(M.x() + R, M.y() - R, M.x() - R, M.y() + R, {GoldLight, Gold, GoldDark}));
    P.strokePath(Circle(M.x(), M.y(), R), Line(Alpha("#140c02", .8), .8));
    const double Glass = R * .74;
    P.fillPath(Circle(M.x(), M.y(), Glass + .8), QColor("#140c02"));
    QRadialGradient Body(M + QPointF(Glass * .25, -Glass * .3), Glass * 1.35);
    Body.setColorAt(0, Shine);
    Body.setColorAt(.45, Middle);
    Body.setColorAt(1, Rim);
    P.fillPath(Circle(M.x(), M.y(), Glass), Body);
    P.fillPath(Ellipse(M.x() + Glass * .28, M.y() - Glass * .42, Glass * .42, Glass * .26, 38),
               Alpha("#ffffff", Glow ? .75 : .28));
    P.fillPath(Ellipse(M.x() - Glass * .3, M.y() + Glass * .52, Glass * .4, Glass * .16, 38),
               Alpha("#ffffff", Glow ? .3 : .08));
}

void DrawLamp(QPainter& P, const QRectF& Box, bool On)
{
    if (On)
        DrawBall(P, Box, "#d8ffe2", LampGreen, "#0a7a36", true);
    else
        DrawBall(P, Box, "#4a6a58", "#1c3a2a", "#0a1a12", false);
}

void DrawOptionBall(QPainter& P, const QRectF& Box, bool On)
{
    if (On)
        DrawBall(P, Box.adjusted(1, 1, -1, -1), "#fff6c8", "#ffb62e", "#a85c04", true);
    else
        DrawBall(P, Box.adjusted(1, 1, -1, -1), "#3c5a4a", "#142c20", "#07140d", false);
}
