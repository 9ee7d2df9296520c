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

// The frame round the chosen sample. It stands 3 px below its cell's top and stays inside the cell.
static void DrawSingleTile(QPainter& P, const QRectF& Box)
{
    const QPainterPath Frame = Rounded(2, 1, Box.width() - 4, Box.height() - 6, 4);
    P.strokePath(Frame, Line(Alpha("#2a1402", .9), 4));
    P.strokePath(Frame, Line("#ffb61e", 2.4));
    P.strokePath(Frame, Line(Alpha("#fff2c0", .8), .8));
}

// The plate of the page of tile sets, with its two arrows; in Wisdom it goes with its panel.
static void DrawPagePlate(QPainter& P, const QRectF&)
{
    const QRectF Left = BoxOf("lblTS_PageL"), Right = BoxOf("lblTS_PageR");
    DrawPlate(P, Left.united(Right).adjusted(0, 1, 0, -1));
    for (const double X : {Left.right() - .5, Right.left() - .5})
        P.fillRect(QRectF(X, Left.top() + 7, 1, Left.height() - 14), Alpha(Gold, .5));
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
    DrawPanel(P, Box.adjusted(.5, .5, -.5, -.5), 11);
    const QPointF Here = BoxOf("imgRandomCover").topLeft();
    const QRectF List =
        SpanOf("imgOptRandomLayout").united(SpanOf("lblOptRandom")).translated(-Here);
    const SignInk Light1{.Main = QColor(IvoryDark), .Ground = QColor("#163527")};
    DrawSign(P, Sign::Dice, QRectF(70, 32, 50, 50), Light1);
    DrawTitle(P, QRectF(128, 36, Box.width() - 190, 44), "A layout by chance", 27, Qt::AlignLeft);
    DrawPlate(P, List.adjusted(-26, -16, 8, 16), 6);
    DrawText(P, QRectF(20, List.bottom() + 26, Box.width() - 40, 24),
             "Every new game draws from the groups that are lit above.", {.Size = 14});
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
        AddForm(To, QString("imgGameDesc(%1)").arg(I), OptionsSheet,
                [&](QPainter& P, const QRectF& Box) { DrawDescription(P, Box, Descriptions[I]); });
    for (const bool On : {false, true})
        AddForm(To, On ? "imgWisdomTile(1)" : "imgWisdomTile(0)", OptionsSheet,
                [&](QPainter& P, const QRectF& Box) { DrawWisdomTile(P, Box, On); });
    AddForm(To, "picTileSetPage", OptionsSheet, DrawPagePlate);
    AddForm(To, "imgSingleTile", OptionsSheet, DrawSingleTile);
    AddForm(To, "imgThumbFrame", ChooserSheet, DrawThumbFrame);
    AddForm(To, "imgSet", ChooserSheet, DrawSet);
    AddForm(To, "imgRandomCover", ChooserSheet, DrawRandomCover);
}
