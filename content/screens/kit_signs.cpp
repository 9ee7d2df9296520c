// kit_signs.cpp: the drawn signs of buttons and notes, in units of 100 by 100

#include "kit.h"

#include <cmath>

// A stroke as an outline, so that every sign is one kind of shape.
static QPainterPath Stroke(const QPainterPath& Path, double Width,
                           Qt::PenCapStyle Cap = Qt::RoundCap)
{
    QPainterPathStroker Stroker(QPen(Qt::black, Width, Qt::SolidLine, Cap, Qt::RoundJoin));
    return Stroker.createStroke(Path);
}

static QPainterPath Arc(double X, double Y, double Radius, double From, double Sweep)
{
    const QRectF Box(X - Radius, Y - Radius, 2 * Radius, 2 * Radius);
    QPainterPath Path;
    Path.arcMoveTo(Box, From);
    Path.arcTo(Box, From, Sweep);
    return Path;
}

static QPainterPath ArrowHead(double X, double Y, double Size, double Turn)
{
    return Moved(Polygon({{-Size * .5, -Size * .62}, {Size * .62, 0}, {-Size * .5, Size * .62}}), X,
                 Y, Turn);
}

static QPainterPath LetterPath(const QString& Text, const QRectF& Box)
{
    return Fitted(TextPath(FontFile::SerifBold, Text, 100), Box);
}

// Flat ink with a fine light at its foot, as if cut into the ivory.
static void Cut(QPainter& P, const QPainterPath& Shape, const QColor& Colour)
{
    P.fillPath(Shape.translated(-1.2, 1.8), Alpha("#ffffff", Colour.lightness() > 120 ? .08 : .75));
    P.fillPath(Shape, Colour);
}

// A small tile seen as those of the board.
static void SmallTile(QPainter& P, double X, double Y, double Size, const SignInk& C,
                      const QString& Mark = {}, const QColor& MarkColour = {})
{
    const double Depth = Size * .16;
    const QPainterPath Face = Rounded(X + Depth, Y, Size - Depth, Size - Depth, Size * .1);
    QPainterPath Body = Face;
    for (int I = 1; I <= 8; ++I) Body = Body.united(Face.translated(-Depth * I / 8, Depth * I / 8));
    P.fillPath(Body, C.Main);
    P.strokePath(Body, Line(Dark(C.Main, .35), Size * .03));
    P.fillPath(Face, C.Ground);
    P.strokePath(Face, Line(C.Main, Size * .045));
    if (!Mark.isEmpty())
        P.fillPath(LetterPath(Mark, Face.boundingRect().adjusted(Size * .17, Size * .17,
                                                                 -Size * .17, -Size * .17)),
                   MarkColour);
}

static QPainterPath Roof(double Middle, double Foot, double Half, double Height, double Neck)
{
    const double L = Middle - Half, R = Middle + Half, Tip = Foot - Height * .42;
    QPainterPath Path(QPointF(L, Tip));
    Path.cubicTo(L + Half * .16, Foot - Height * .05, Middle - Half * .5, Foot, Middle, Foot);
    Path.cubicTo(Middle + Half * .5, Foot, R - Half * .16, Foot - Height * .05, R, Tip);
    Path.cubicTo(R - Half * .2, Foot - Height * .28, Middle + Neck + Half * .1, Foot - Height * .5,
                 Middle + Neck, Foot - Height);
    Path.lineTo(Middle - Neck, Foot - Height);
    Path.cubicTo(Middle - Neck - Half * .1, Foot - Height * .5, L + Half * .2, Foot - Height * .28,
                 L, Tip);
    return Path;
}

QPainterPath PagodaPath(int Tiers, double Width, double Height)
{
    // Drawn 100 wide, with the roofs growing towards the foot.
    QPainterPath Path;
    Path.setFillRule(Qt::WindingFill);
    const double Step = 68.0 / Tiers;
    for (int I = 0; I < Tiers; ++I) {
        const double Half = 20 + 27.0 * I / std::max(1, Tiers - 1), Top = 20 + I * Step;
        const double Neck = Half * .42, Wall = Half * .62;
        Path.addPath(Roof(50, Top + Step * .6, Half, Step * .6, Neck * .9));
        Path.addRect(QRectF(50 - Wall, Top + Step * .5, 2 * Wall, Step * .55));
    }
    Path.addRect(QRectF(14, 88, 72, 5));
    Path.addRect(QRectF(7, 94.5, 86, 5.5));
    Path.addRect(QRectF(48.6, 1, 2.8, 21)); // the spire with its rings
    for (int I = 0; I < 3; ++I) Path.addEllipse(QPointF(50, 8 + 4.5 * I), 3 + I, 1.4);
    QPainterPath Whole = Path.simplified();
    QPainterPath Doors; // openings let the ground shine through
    for (int I = 1; I < Tiers; ++I) {
        const double Half = 20 + 27.0 * I / (Tiers - 1), Top = 20 + I * Step + Step * .68;
        const int Count = 1 + 2 * (I > Tiers / 2);
        for (int K = 0; K < Count; ++K) {
            const double X = 50 + (K - (Count - 1) / 2.0) * Half * .38;
            Doors.addRect(QRectF(X - Half * .085, Top, Half * .17, Step * .31));
        }
    }
    Whole = Whole.subtracted(Doors);
    return Moved(Whole, 0, 0, 0, Width / 100, Height / 100);
}

static void DrawFigure(QPainter& P, const SignInk& C) // a player's bust
{
    Cut(P, Circle(50, 31, 19), C.Main);
    QPainterPath Body(QPointF(12, 90));
    Body.cubicTo(12, 56, 32, 54, 50, 54);
    Body.cubicTo(68, 54, 88, 56, 88, 90);
    Body.closeSubpath();
    Cut(P, Body, C.Main);
    P.fillPath(Polygon({{41, 55}, {59, 55}, {50, 72}}), C.Ground);
    P.fillPath(Polygon({{46, 56}, {54, 56}, {57, 78}, {50, 85}, {43, 78}}), C.Accent);
}

static void DrawTrophy(QPainter& P, const SignInk& C)
{
    QPainterPath Handles = Stroke(Arc(24, 32, 13, 60, 240), 7, Qt::FlatCap);
    Handles.addPath(Mirrored(Handles));
    Cut(P, Handles, C.Gold);
    QPainterPath Cup(QPointF(24, 10));
    Cup.lineTo(76, 10);
    Cup.cubicTo(76, 44, 66, 56, 50, 58);
    Cup.cubicTo(34, 56, 24, 44, 24, 10);
    Cut(P, Cup, C.Gold);
    P.fillRect(QRectF(45, 56, 10, 20), C.Gold);
    Cut(P, Rounded(32, 74, 36, 8, 2), C.Main);
    Cut(P, Rounded(24, 83, 52, 9, 2), C.Main);
    P.fillPath(Star(50, 30, 13), C.Ground);
}

static void DrawClockSign(QPainter& P, const SignInk& C)
{
    Cut(P, Rounded(42, 2, 16, 12, 3), C.Main);
    Cut(P, Moved(Rounded(-5, -6, 10, 12, 2), 80, 20, 42), C.Main);
    Cut(P, Circle(50, 55, 39), C.Main);
    P.fillPath(Circle(50, 55, 30), C.Ground);
    P.strokePath(Polyline({{50, 36}, {50, 55}, {63, 62}}), Line(C.Accent, 7));
    P.fillPath(Circle(50, 55, 5), C.Main);
}

static void DrawHistorySign(QPainter& P, const SignInk& C)
{
    Cut(P, Stroke(Arc(53, 50, 36, 150, -300), 10, Qt::FlatCap), C.Main);
    Cut(P, ArrowHead(20, 34, 34, 115), C.Main);
    Cut(P, Stroke(Polyline({{53, 28}, {53, 52}, {69, 60}}), 9), C.Accent);
}

static void DrawBookSign(QPainter& P, const SignInk& C)
{
    QPainterPath Left(QPointF(50, 26));
    Left.cubicTo(38, 14, 20, 14, 7, 20);
    Left.lineTo(7, 82);
    Left.cubicTo(20, 76, 38, 76, 50, 88);
    Left.closeSubpath();
    Cut(P, Left, C.Main);
    Cut(P, Mirrored(Left), C.Main);
    for (int I = 0; I < 3; ++I) {
        const double Y = 34 + I * 13;
        const QPainterPath Row = Curve({{15, Y - 3}, {29, Y - 4}, {42, Y + 3}});
        P.strokePath(Row, Line(C.Ground, 5));
        P.strokePath(Mirrored(Row), Line(C.Ground, 5));
    }
}

static void DrawFlameSign(QPainter& P, const SignInk& C)
{
    QPainterPath Outer(QPointF(52, 3));
    Outer.cubicTo(56, 24, 84, 38, 82, 66);
    Outer.cubicTo(80, 86, 66, 96, 50, 96);
    Outer.cubicTo(34, 96, 19, 86, 18, 66);
    Outer.cubicTo(17, 50, 28, 44, 31, 30);
    Outer.cubicTo(38, 36, 41, 42, 41, 48);
    Outer.cubicTo(50, 38, 54, 22, 52, 3);
    Cut(P, Outer, C.Accent);
    QPainterPath Inner(QPointF(52, 44));
    Inner.cubicTo(56, 58, 68, 62, 66, 76);
    Inner.cubicTo(64, 88, 57, 91, 50, 91);
    Inner.cubicTo(41, 91, 34, 86, 34, 75);
    Inner.cubicTo(34, 66, 40, 64, 42, 58);
    Inner.cubicTo(47, 60, 51, 54, 52, 44);
    P.fillPath(Inner, Light(C.Gold, .35));
}

static void DrawHandSign(QPainter& P, const SignInk& C) // a pointing finger
{
    QPainterPath Hand(QPointF(38, 54));
    Hand.lineTo(38, 14);
    Hand.cubicTo(38, 3, 53, 3, 53, 14);
    Hand.lineTo(53, 42);
    Hand.cubicTo(56, 34, 67, 36, 67, 45);
    Hand.cubicTo(70, 38, 80, 41, 80, 50);
    Hand.cubicTo(84, 46, 91, 49, 91, 57);
    Hand.lineTo(91, 70);
    Hand.cubicTo(91, 86, 80, 96, 64, 96);
    Hand.cubicTo(48, 96, 42, 88, 34, 78);
    Hand.lineTo(18, 58);
    Hand.cubicTo(14, 50, 24, 44, 30, 50);
    Hand.closeSubpath();
    Cut(P, Hand, C.Main);
    P.strokePath(Polyline({{54, 44}, {54, 58}}), Line(C.Ground, 3));
    P.strokePath(Polyline({{67.5, 48}, {67.5, 60}}), Line(C.Ground, 3));
    P.strokePath(Polyline({{80, 53}, {80, 62}}), Line(C.Ground, 3));
}

static void DrawEyeSign(QPainter& P, const SignInk& C)
{
    QPainterPath Eye(QPointF(3, 50));
    Eye.cubicTo(24, 14, 76, 14, 97, 50);
    Eye.cubicTo(76, 86, 24, 86, 3, 50);
    Cut(P, Eye, C.Main);
    QPainterPath White(QPointF(14, 50));
    White.cubicTo(32, 25, 68, 25, 86, 50);
    White.cubicTo(68, 75, 32, 75, 14, 50);
    P.fillPath(White, C.Ground);
    P.fillPath(Circle(50, 50, 20), C.Main);
    P.fillPath(Circle(50, 50, 10), Dark(C.Main, .6));
    P.fillPath(Circle(57, 42, 6), C.Ground);
}

static void DrawLanternSign(QPainter& P, const SignInk& C) // unlit: the game is over
{
    P.strokePath(Polyline({{50, 2}, {50, 16}}), Line(C.Main, 4));
    Cut(P, Rounded(34, 14, 32, 9, 2), C.Main);
    Cut(P, Ellipse(50, 48, 35, 27), C.Accent);
    for (const double Half : {12.0, 24.0})
        P.strokePath(Ellipse(50, 48, Half, 26.5), Line(Alpha("#000000", .3), 2.4));
    Cut(P, Rounded(34, 72, 32, 9, 2), C.Main);
    P.strokePath(Polyline({{50, 81}, {50, 98}}), Line(C.Gold, 7));
}

static void DrawLayoutSign(QPainter& P, const SignInk& C) // a stack of tiles
{
    const auto Row = [&](int Count, double Y) {
        for (int I = 0; I < Count; ++I) SmallTile(P, 50 - Count * 14.5 + I * 29 - 1, Y, 30, C);
    };
    Row(3, 66);
    Row(2, 37);
    Row(1, 8);
}

static void DrawGate(QPainter& P, const SignInk& C) // the way out
{
    Cut(P, Rounded(8, 8, 54, 84, 3), C.Main);
    P.fillPath(Rounded(18, 18, 34, 74, 2), C.Ground);
    P.fillPath(Polygon({{18, 18}, {40, 28}, {40, 98}, {18, 92}}), Light(C.Main, .25));
    P.fillPath(Circle(35, 60, 3), C.Gold);
    Cut(P, Rounded(52, 46, 26, 10, 2), C.Accent);
    Cut(P, ArrowHead(82, 51, 30, 0), C.Accent);
}

static void DrawCrate(QPainter& P, const SignInk& C)
{
    Cut(P, Polygon({{50, 4}, {94, 25}, {50, 46}, {6, 25}}), Light(C.Gold, .25));
    Cut(P, Polygon({{6, 30}, {47, 50}, {47, 97}, {6, 76}}), C.Main);
    Cut(P, Polygon({{94, 30}, {53, 50}, {53, 97}, {94, 76}}), Light(C.Main, .15));
    P.fillPath(Polygon({{68, 12.5}, {78, 17.5}, {34, 38.5}, {24, 33.5}}), C.Accent);
}

static void DrawDice(QPainter& P, const SignInk& C)
{
    Cut(P, Moved(Rounded(-38, -38, 76, 76, 12), 50, 50, -9), C.Main);
    for (const QPointF Spot :
         {QPointF(-20, -20), QPointF(20, -20), QPointF(0, 0), QPointF(-20, 20), QPointF(20, 20)})
        P.fillPath(Moved(Circle(Spot.x(), Spot.y(), 8.5), 50, 50, -9), C.Ground);
}

static void DrawShuffle(QPainter& P, const SignInk& C)
{
    QPainterPath Under(QPointF(4, 74));
    Under.cubicTo(42, 74, 44, 28, 76, 28);
    QPainterPath Over(QPointF(4, 28));
    Over.cubicTo(42, 28, 44, 74, 76, 74);
    Cut(P, Stroke(Under, 11, Qt::FlatCap), C.Accent);
    Cut(P, ArrowHead(82, 28, 32, 0), C.Accent);
    P.fillPath(Stroke(Over, 17, Qt::FlatCap), C.Ground);
    Cut(P, Stroke(Over, 11, Qt::FlatCap), C.Main);
    Cut(P, ArrowHead(82, 74, 32, 0), C.Main);
}

static void DrawUndo(QPainter& P, const SignInk& C)
{
    QPainterPath Bow(QPointF(28, 38));
    Bow.lineTo(56, 38);
    Bow.cubicTo(100, 38, 100, 88, 56, 88);
    Bow.lineTo(30, 88);
    Cut(P, Stroke(Bow, 12, Qt::FlatCap), C.Main);
    Cut(P, Polygon({{4, 38}, {38, 10}, {38, 66}}), C.Main);
}

static void DrawErase(QPainter& P, const SignInk& C)
{
    Cut(P, Polygon({{4, 50}, {32, 18}, {96, 18}, {96, 82}, {32, 82}}), C.Main);
    const QPainterPath Cross = Polyline({{48, 36}, {76, 64}});
    P.strokePath(Cross, Line(C.Ground, 9));
    P.strokePath(Mirrored(Cross, 62), Line(C.Ground, 9));
}

static void DrawFlag(QPainter& P, const SignInk& C)
{
    Cut(P, Rounded(16, 4, 9, 94, 3), C.Main);
    QPainterPath Cloth(QPointF(25, 10));
    Cloth.cubicTo(45, 0, 60, 26, 90, 12);
    Cloth.lineTo(90, 54);
    Cloth.cubicTo(60, 68, 45, 42, 25, 52);
    Cloth.closeSubpath();
    Cut(P, Cloth, C.Accent);
}

static void DrawWindowSign(QPainter& P, const SignInk& C, bool Full)
{
    const QRectF Box = Full ? QRectF(4, 10, 92, 80) : QRectF(24, 10, 72, 58);
    if (!Full) {
        P.strokePath(Rounded(4, 34, 68, 56, 5), Line(C.Main, 9));
        P.fillPath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 5), C.Ground);
    }
    P.strokePath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 5), Line(C.Main, 9));
    P.fillRect(QRectF(Box.x(), Box.y(), Box.width(), 17), C.Main);
}

static void DrawSliders(QPainter& P, const SignInk& C)
{
    const double Knob[] = {66, 32, 58};
    for (int I = 0; I < 3; ++I) {
        const double Y = 20 + 30 * I;
        Cut(P, Rounded(4, Y - 4.5, 92, 9, 4.5), C.Main);
        P.fillPath(Circle(Knob[I], Y, 14.5), C.Ground);
        Cut(P, Circle(Knob[I], Y, 11), I == 1 ? C.Accent : C.Gold);
    }
}

static void DrawQuill(QPainter& P, const SignInk& C)
{
    QPainterPath Feather(QPointF(92, 4));
    Feather.cubicTo(50, 8, 26, 36, 24, 70);
    Feather.cubicTo(56, 70, 88, 50, 92, 4);
    Cut(P, Feather, C.Main);
    P.strokePath(Curve({{84, 14}, {52, 42}, {14, 94}}), Line(C.Ground, 4));
    P.strokePath(Curve({{26, 76}, {20, 84}, {12, 96}}), Line(C.Main, 6));
    Cut(P, Rounded(34, 88, 60, 7, 3), C.Gold);
}

static void DrawLock(QPainter& P, const SignInk& C)
{
    QPainterPath Bow(QPointF(28, 48));
    Bow.lineTo(28, 34);
    Bow.cubicTo(28, 2, 72, 2, 72, 34);
    Bow.lineTo(72, 48);
    Cut(P, Stroke(Bow, 12, Qt::FlatCap), C.Main);
    Cut(P, Rounded(14, 44, 72, 52, 8), C.Gold);
    P.fillPath(Circle(50, 65, 8), Dark(C.Main, .4));
    P.fillRect(QRectF(46, 66, 8, 18), Dark(C.Main, .4));
}

static void DrawStartSign(QPainter& P, const SignInk& C)
{
    Cut(P, Circle(50, 50, 47), C.Main);
    P.strokePath(Circle(50, 50, 40), Line(Alpha(C.Ground, .55), 2.5));
    P.fillPath(ClosedCurve({{38, 26}, {41, 26}, {76, 48}, {76, 52}, {41, 74}, {38, 74}}, .2),
               C.Ground);
}

void DrawSign(QPainter& P, Sign Which, const QRectF& Box, const SignInk& C)
{
    const double K = std::min(Box.width(), Box.height()) / 100;
    P.save();
    P.translate(Box.center().x() - 50 * K, Box.center().y() - 50 * K);
    P.scale(K, K);
    const QPainterPath Bar = Rounded(20, 10, 22, 80, 5);
    const QPainterPath Cross = Stroke(Polyline({{18, 18}, {82, 82}}), 15);
    switch (Which) {
    case Sign::None:
        break;
    case Sign::Mix:
        DrawShuffle(P, C);
        break;
    case Sign::Undo:
    case Sign::Back:
        DrawUndo(P, C);
        break;
    case Sign::Pair:
        SmallTile(P, 40, 2, 60, C, "8", C.Accent);
        SmallTile(P, 0, 36, 60, C, "8", C.Accent);
        break;
    case Sign::Finesse:
        SmallTile(P, 42, 4, 56, C, "7", C.Accent);
        SmallTile(P, 2, 38, 56, C, "7", C.Accent);
        break;
    case Sign::Peek:
        DrawEyeSign(P, C);
        break;
    case Sign::Pause:
        Cut(P, Bar, C.Main);
        Cut(P, Mirrored(Bar), C.Main);
        break;
    case Sign::Push:
        SmallTile(P, 0, 6, 54, C, "A", C.Accent);
        SmallTile(P, 46, 44, 54, C, "B", C.Main);
        Cut(P, Stroke(Arc(52, 44, 36, 75, -55), 7, Qt::FlatCap), C.Gold);
        Cut(P, ArrowHead(86, 36, 20, 75), C.Gold);
        break;
    case Sign::Accept:
    case Sign::Yes:
        Cut(P, Stroke(Polyline({{12, 54}, {38, 80}, {88, 20}}), 16), C.Main);
        break;
    case Sign::Erase:
        DrawErase(P, C);
        break;
    case Sign::Start:
    case Sign::Play:
        DrawStartSign(P, C);
        break;
    case Sign::End:
        DrawFlag(P, C);
        break;
    case Sign::Menu:
        for (int I = 0; I < 3; ++I)
            Cut(P, Rounded(8, 14 + 29 * I, 84, 13, 5), I == 1 ? C.Accent : C.Main);
        break;
    case Sign::Layout:
        DrawLayoutSign(P, C);
        break;
    case Sign::Options:
        DrawSliders(P, C);
        break;
    case Sign::Scores:
        DrawTrophy(P, C);
        break;
    case Sign::History:
        DrawHistorySign(P, C);
        break;
    case Sign::Profile:
        DrawFigure(P, C);
        break;
    case Sign::Help:
        Cut(P, Circle(50, 50, 46), C.Main);
        P.fillPath(LetterPath("?", QRectF(22, 22, 56, 56)), C.Ground);
        break;
    case Sign::Packs:
        DrawCrate(P, C);
        break;
    case Sign::Exit:
        DrawGate(P, C);
        break;
    case Sign::No:
        Cut(P, Cross.united(Mirrored(Cross)), C.Accent);
        break;
    case Sign::Clear:
        Cut(P, Rounded(22, 30, 56, 66, 6), C.Main);
        Cut(P, Rounded(12, 14, 76, 11, 4), C.Main);
        Cut(P, Rounded(38, 4, 24, 12, 4), C.Main);
        for (const double X : {36.0, 50.0, 64.0})
            P.strokePath(Polyline({{X, 42}, {X, 84}}), Line(C.Ground, 5));
        break;
    case Sign::Lock:
        DrawLock(P, C);
        break;
    case Sign::Differ:
        SmallTile(P, 0, 26, 52, C, "3", C.Main);
        SmallTile(P, 48, 26, 52, C, "8", C.Accent);
        break;
    case Sign::Sleep:
        DrawLanternSign(P, C);
        break;
    case Sign::Point:
    case Sign::Hand:
        DrawHandSign(P, C);
        break;
    case Sign::Flame:
        DrawFlameSign(P, C);
        break;
    case Sign::Star:
        Cut(P, Star(50, 53, 48, 5, .42), C.Gold);
        P.fillPath(Star(50, 53, 30, 5, .42), Light(C.Gold, .4));
        break;
    case Sign::Short:
        SmallTile(P, 0, 26, 52, C, "A", C.Accent);
        P.strokePath(Rounded(56, 28, 40, 42, 5), QPen(QColor(C.Main), 4, Qt::DashLine));
        break;
    case Sign::Book:
        DrawBookSign(P, C);
        break;
    case Sign::Quill:
    case Sign::Wisdom:
        DrawQuill(P, C);
        break;
    case Sign::Clock:
    case Sign::Agility:
        DrawClockSign(P, C);
        break;
    case Sign::Window:
        DrawWindowSign(P, C, false);
        break;
    case Sign::FullScreen:
        DrawWindowSign(P, C, true);
        break;
    case Sign::Up:
        Cut(P, Polygon({{50, 16}, {92, 78}, {8, 78}}), C.Main);
        break;
    case Sign::Down:
        Cut(P, Polygon({{50, 84}, {92, 22}, {8, 22}}), C.Main);
        break;
    case Sign::Dice:
        DrawDice(P, C);
        break;
    }
    P.restore();
}
