// forms_bar.cpp: the control bar with its game panels, and what stands over the board

#include "forms.h"

#include <cmath>

static QRectF Grown(const QRectF& Box, double By)
{
    return Box.adjusted(-By, -By, By, By);
}

static void DrawSmallCaption(QPainter& P, const QRectF& Box, const QString& Text)
{
    DrawText(P, Box, Text,
             {.Size = 12, .Kind = Weight::Bold, .Colour = QColor("#d9c48c"), .Spacing = 1.4});
}

static void DrawNotes(QPainter& P, double X, double Y) // two quavers
{
    const QColor Gold1("#e8c66a");
    for (const double Dx : {0.0, 11.0}) {
        P.fillPath(Ellipse(X + Dx, Y + 16, 4, 3, -20), Gold1);
        P.fillRect(QRectF(X + Dx + 2.6, Y, 1.6, 16), Gold1);
    }
    P.fillPath(Polygon({{X + 2.6, Y}, {X + 15.2, Y}, {X + 15.2, Y + 4}, {X + 2.6, Y + 4}}), Gold1);
}

// Two branches of laurel that meet below the score, faint enough to lie behind it.
static void DrawLaurel(QPainter& P, const QRectF& Box)
{
    QPainterPath Leaves;
    for (int I = 0; I < 7; ++I) {
        const double Turn = (96 + 24.0 * I) * 3.14159265 / 180, Size = 9.5 - I * .5;
        const QPointF At(Box.center().x() + Box.width() / 2 * std::cos(Turn),
                         Box.center().y() + Box.height() / 2 * std::sin(Turn));
        for (const double Side : {-38.0, 38.0})
            Leaves.addPath(Moved(Ellipse(Size * .7, 0, Size * .75, Size * .27), At.x(), At.y(),
                                 Turn * 180 / 3.14159265 + 90 + Side));
    }
    Leaves.addPath(Mirrored(Leaves, Box.center().x()));
    Leaves.setFillRule(Qt::WindingFill);
    P.fillPath(Leaves, Alpha(Gold, .3));
}

static void DrawBar(QPainter& P, const QRectF& Box)
{
    QPainterPath Whole;
    Whole.addRect(Box);
    FillJade(P, Whole, "#26594a", "#11301f");
    // The bar's upper edge, where the board ends.
    P.fillRect(QRectF(0, 0, Box.width(), 1), QColor("#04100a"));
    P.fillRect(
        QRectF(0, 1, Box.width(), 2.4),
        Linear(Box.width(), 0, 0, 0, {GoldLight, "#e2bc58", Gold, "#d8b050", Gold, GoldDark}));
    P.fillRect(QRectF(0, 3.4, Box.width(), 1), QColor("#1a0f02"));
    P.strokePath(Scalloped(Box.adjusted(5, 8.5, -5, -5), 7), Line(Alpha(Gold, .5), .9));

    for (const char* Button : {"imgButMenu", "imgButLayout", "imgbutStart"})
        DrawSocket(P, BoxOf(Button));
    DrawInset(P, Grown(BoxOf("picGamePanel(1)"), 2), 7);
    P.fillPath(Rounded(BoxOf("picNote").x() - 3, BoxOf("picNote").y() - 3, 182, 86, 5),
               QColor("#07140d"));

    const QRectF Note = BoxOf("picNote");
    DrawGoldLine(P, Rounded(Note.x() - 3, Note.y() - 3, Note.width() + 6, Note.height() + 6, 5),
                 1.2);
    const QRectF Name = BoxOf("lblLayoutMain(0)");
    const double Foot = BoxOf("imgbutStart").bottom(); // all plates of the lower row end there
    DrawPlate(P, QRectF(Note.x() - 2, Name.y() - 4, Note.width() + 4, Foot + 1 - Name.y() + 4));

    const QRectF Score = BoxOf("lblScore(0)"), Skip = BoxOf("lblSkipTrack");
    const double Left = Score.x() - 4, Width = Score.width() + 8;
    DrawPlate(P, QRectF(Left, Note.y() - 2, Width, Note.height() + 4));
    DrawLaurel(P, QRectF(Left + 14, Note.y() + 16, Width - 28, Note.height() - 24));
    // No word here: while no game runs, the label itself says "Score".
    const QRectF Cup(Left + Width / 2 - 12, Note.y() + 5, 24, 24);
    DrawSign(P, Sign::Scores, Cup,
             {.Main = QColor("#c89a2c"), .Gold = QColor("#e8bd4e"), .Ground = QColor("#fff0b0")});
    const QRectF Track(Left, Name.y() - 4, Width, Foot + 1 - Name.y() + 4);
    DrawPlate(P, Track);
    DrawNotes(P, Track.x() + 17, Track.center().y() - 10);
    P.fillRect(QRectF(Skip.x() - 2, Track.y() + 8, 1, Track.height() - 16), Alpha(Gold, .5));
}

// The ground of a game panel with the hollows of its buttons and lamps.
static void DrawGamePanel(QPainter& P, const QRectF& Box, const QString& Panel)
{
    DrawInset(P, Box, 6);
    for (const Place& E : PlacesOn(Panel)) {
        if (E.Base.endsWith("Green")) {
            const QPointF M = E.Box.center();
            P.fillPath(Circle(M.x(), M.y(), 9.5), QColor("#07140d"));
            P.strokePath(Circle(M.x(), M.y(), 9.5), Line(Alpha(Gold, .55), .9));
        } else if (E.Drawn && E.Base.startsWith("img") && !E.Base.endsWith("DIS")) {
            DrawSocket(P, E.Box);
        }
    }
}

static void DrawAgilityPanel(QPainter& P, const QRectF& Box)
{
    DrawGamePanel(P, Box, "picGamePanel(2)");
    const QRectF Digits = Grown(SpanOf("imgLED"), 6);
    P.fillPath(Rounded(Digits.x(), Digits.y(), Digits.width(), Digits.height(), 5),
               QColor("#0c0704"));
    DrawGoldLine(P, Rounded(Digits.x(), Digits.y(), Digits.width(), Digits.height(), 5), 1.6);
    DrawSmallCaption(P, QRectF(Digits.x(), Digits.bottom() + 9, Digits.width(), 18), "TIME LEFT");
}

static void DrawWisdomPanel(QPainter& P, const QRectF& Box)
{
    DrawGamePanel(P, Box, "picGamePanel(3)");
    DrawPlate(P, BoxOf("lblWord").adjusted(-4, -6, 4, 6));
}

static void DrawPauseTube(QPainter& P, const QRectF& Box)
{
    const QRectF Tube = Box.adjusted(.6, .6, -.6, -.6);
    P.fillPath(Rounded(Tube.x(), Tube.y(), Tube.width(), Tube.height(), 6),
               Linear(Tube.left(), 0, Tube.right(), 0, {"#16261e", "#050c08", "#16261e"}));
    DrawGoldLine(P, Rounded(Tube.x(), Tube.y(), Tube.width(), Tube.height(), 6), 1);
    for (int I = 1; I < 10; ++I)
        P.fillRect(QRectF(Box.width() - 6, I * Box.height() / 10, 3.5, 1), Alpha(GoldLight, .55));
}

static void DrawPauseBar(QPainter& P, const QRectF& Box)
{
    const QRectF Bar = Box.adjusted(2.5, 2, -2.5, -2);
    const QPainterPath Shape = Rounded(Bar.x(), Bar.y(), Bar.width(), Bar.height(), 4);
    P.fillPath(Shape, Linear(Bar.right(), 0, Bar.left(), 0, {"#ffe7a0", "#ffb02a", "#b4690a"}));
    P.strokePath(Shape, Line(Alpha("#2a1402", .8), .9));
    P.fillRect(QRectF(Bar.right() - 4, Bar.y() + 3, 1.5, Bar.height() - 6), Alpha("#ffffff", .7));
}

static void DrawPeekPanel(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(.5, .5, -.5, -.5), 8);
    DrawPlate(P, Grown(BoxOf("imgPeekTile"), 4).adjusted(0, 0, 0, 0), 5);
    DrawSmallCaption(P, QRectF(8, 83, Box.width() - 16, 20), "PEEK");
}

static void DrawNoteStrip(QPainter& P, const QRectF& Box)
{
    const QRectF In = Box.adjusted(1.5, 1.5, -1.5, -1.5);
    const QPainterPath Shape = Scalloped(In, 6);
    P.fillPath(Shape, Linear(In.right(), 0, In.left(), In.height(), {"#0c2015", "#081710"}));
    DrawGoldLine(P, Shape, 1.4);
}

// One plate for the three window controls, with the signs of the two labels that lie over it.
static void DrawWindowPlate(QPainter& P, const QRectF& Box)
{
    const QPainterPath Shape = Rounded(1, 1, Box.width() - 2, Box.height() - 2, 6);
    P.fillPath(Shape, Linear(Box.right(), 0, Box.left(), Box.bottom(),
                             {Alpha("#173a2d", .94), Alpha("#0b1f15", .94)}));
    DrawGoldLine(P, Shape, 1.1);
    const QPointF Here = BoxOf("imgWindowPlate").topLeft();
    const QRectF Least = BoxOf("lblMinimize").translated(-Here),
                 Close = BoxOf("lblCloseGame").translated(-Here);
    for (const QRectF& Next : {Least, Close})
        P.fillRect(QRectF(Next.left() - 1, 6, 1, Box.height() - 12), Alpha(Gold, .5));
    const QPointF L = Least.center(), C = Close.center();
    P.strokePath(Polyline({{L.x() - 6, L.y() + 4.5}, {L.x() + 6, L.y() + 4.5}}),
                 Line(IvoryText, 2.2));
    P.strokePath(Polyline({{C.x() - 5, C.y() - 5}, {C.x() + 5, C.y() + 5}}), Line(IvoryText, 2.2));
    P.strokePath(Polyline({{C.x() + 5, C.y() - 5}, {C.x() - 5, C.y() + 5}}), Line(IvoryText, 2.2));
}

// The picture of the mode that the window control leads to.
static void DrawWindowMode(QPainter& P, const QRectF& Box, Sign Mode)
{
    SignInk Colours;
    Colours.Main = Colours.Accent = QColor(IvoryText);
    Colours.Ground = QColor("#10291d");
    DrawSign(P, Mode, QRectF(Box.center().x() - 7.5, Box.center().y() - 7.5, 15, 15), Colours);
}

void AddBar(FormPictures& To)
{
    AddForm(To, "picBevelRight", MainSheet, DrawBar);
    AddForm(To, "picGamePanel(1)", MainSheet,
            [](QPainter& P, const QRectF& Box) { DrawGamePanel(P, Box, "picGamePanel(1)"); });
    AddForm(To, "picGamePanel(2)", MainSheet, DrawAgilityPanel);
    AddForm(To, "picGamePanel(3)", MainSheet, DrawWisdomPanel);
    AddForm(To, "picPause", MainSheet, DrawPauseTube);
    AddForm(To, "imgPauseBar", MainSheet, DrawPauseBar);
    AddForm(To, "picPeek", MainSheet, DrawPeekPanel);
    AddForm(To, "imgNote", MainSheet, DrawNoteStrip);
    AddForm(To, "imgWindowPlate", MainSheet, DrawWindowPlate);
    AddForm(To, "imgWindowMode(0)", MainSheet,
            [](QPainter& P, const QRectF& Box) { DrawWindowMode(P, Box, Sign::Window); });
    AddForm(To, "imgWindowMode(1)", MainSheet,
            [](QPainter& P, const QRectF& Box) { DrawWindowMode(P, Box, Sign::FullScreen); });
}
