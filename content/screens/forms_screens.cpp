// forms_screens.cpp: pictures of the full-size screens that are no buttons

#include "forms.h"

struct DescRow {
    Sign Drawn;
    const char* Text;
};
static const DescRow Descriptions[] = {
    {Sign::Finesse,
     "Finesse: take equal pairs, with time to think. Runs of one face earn a bonus."},
    {Sign::Agility, "Agility: take equal pairs against the clock. The time left is your score."},
    {Sign::Wisdom, "Wisdom: spell words from free letter tiles. Long words score most."},
    {Sign::Layout, "Three games on the same boards. End a running game to choose another."},
};

static void DrawDescription(QPainter& P, const QRectF& Box, const DescRow& Row)
{
    DrawParchment(P, Box.adjusted(1, 1, -1, -1), 4);
    P.strokePath(Scalloped(Box.adjusted(5, 5, -5, -5), 5), Line(Alpha("#9a6a20", .55), .9));
    SignInk Colours;
    Colours.Ground = QColor("#fbf2d8");
    DrawSign(P, Row.Drawn, QRectF(16, 19, 46, 46), Colours);
    DrawParagraph(P, QRectF(76, 10, Box.width() - 92, Box.height() - 20), Row.Text,
                  {.Size = 14,
                   .Kind = Weight::Bold,
                   .Colour = QColor(Ink),
                   .Place = Qt::AlignLeft | Qt::AlignVCenter,
                   .Shadow = false},
                  1.35);
}

static void DrawSingleTile(QPainter& P, const QRectF& Box) // the frame round the chosen sample
{
    const QPainterPath Frame = Rounded(1.6, 1.6, Box.width() - 3.2, Box.height() - 3.2, 5);
    for (const double Width : {7.0, 5.0}) P.strokePath(Frame, Line(Alpha("#ffb020", .22), Width));
    P.strokePath(Frame, Line(Alpha("#2a1402", .9), 3.6));
    P.strokePath(Frame, Line("#ffc23a", 2.2));
}

static void DrawThumbFrame(QPainter& P, const QRectF& Box)
{
    const QPainterPath Frame = Rounded(1.8, 1.8, Box.width() - 3.6, Box.height() - 3.6, 5);
    for (const double Width : {8.0, 5.5}) P.strokePath(Frame, Line(Alpha("#ffb020", .2), Width));
    DrawGoldLine(P, Frame, 2.4);
}

static void DrawSet(QPainter& P, const QRectF& Box)
{
    DrawPlate(P, Box.adjusted(1, 1, -1, -1), 5);
    const double Right = BoxOf("lblSet").left() - BoxOf("imgSet").left();
    DrawText(P, QRectF(12, 0, Right - 14, Box.height()), "Set",
             {.Size = 16, .Kind = Weight::Bold, .Place = Qt::AlignCenter});
}

static void DrawRandomCover(QPainter& P, const QRectF& Box)
{
    DrawInset(P, Box, 6);
    const QPointF Here = BoxOf("imgRandomCover").topLeft();
    const QRectF List =
        SpanOf("imgOptRandomLayout").united(SpanOf("lblOptRandom")).translated(-Here);
    DrawSign(P, Sign::Dice, QRectF(Box.center().x() - 26, 22, 52, 52),
             {.Main = QColor(IvoryDark), .Ground = QColor("#7a1f14")});
    DrawTitle(P, QRectF(0, 78, Box.width(), 44), "A layout by chance", 27);
    P.save();
    DrawPlate(P, List.adjusted(-26, -18, -20, 18), 8);
    P.restore();
    DrawText(P, QRectF(0, List.bottom() + 32, Box.width(), 24),
             "Every new game draws its layout from the groups marked above.", {.Size = 15});
    DrawSocket(P, BoxOf("imgRandomOk").translated(-Here));
}

static void DrawWisdomTile(QPainter& P, const QRectF& Box, bool On)
{
    DrawTileBody(P, On ? TileLit : TileNormal);
    const QPainterPath Letter =
        Fitted(TextPath(FontFile::SerifBold, "W", 100), TileArt.adjusted(7, 8, -7, -8));
    P.fillPath(Letter, QColor(Ink));
    (void)Box;
}

void AddScreens(FormPictures& To)
{
    for (int I = 0; I < 4; ++I)
        AddForm(To, QString("imgGameDesc(%1)").arg(I), BoxSheet,
                [&](QPainter& P, const QRectF& Box) { DrawDescription(P, Box, Descriptions[I]); });
    for (const bool On : {false, true})
        AddForm(To, On ? "imgWisdomTile(1)" : "imgWisdomTile(0)", BoxSheet,
                [&](QPainter& P, const QRectF& Box) { DrawWisdomTile(P, Box, On); });
    AddForm(To, "imgSingleTile", BoxSheet, DrawSingleTile);
    AddForm(To, "imgThumbFrame", BoxSheet, DrawThumbFrame);
    AddForm(To, "imgSet", BoxSheet, DrawSet);
    AddForm(To, "imgRandomCover", BoxSheet, DrawRandomCover);
}
