// backgrounds.cpp: DATA/EN0001 .. EN0005, the grounds of the full-size screens. What is always on
// show is painted here: frames, headings and hollows, each where the table puts its labels.

#include "forms.h"

static const QColor Heading("#f0cf78");
static const QColor Celadon("#5c7e6a"); // black and yellow rows both stand out on it

static QRectF Grown(const QRectF& Box, double X, double Y)
{
    return Box.adjusted(-X, -Y, X, Y);
}

static void DrawHeading(QPainter& P, const QRectF& Box, const QString& Text,
                        Qt::Alignment Place = Qt::AlignLeft)
{
    DrawText(
        P, Box, Text,
        {.Size = 15, .Kind = Weight::Bold, .Colour = Heading, .Place = Place | Qt::AlignVCenter});
}

static void DrawEmblemTitle(QPainter& P, const QRectF& Box, const QString& Text, double Size)
{
    const QRectF Mark(Box.x(), Box.center().y() - 20, 38, 38);
    const QPainterPath Pagoda = Fitted(PagodaPath(3), Mark);
    P.fillPath(Pagoda.translated(-1, 1.4), Alpha("#04100a", .8));
    P.fillPath(Pagoda, Linear(Mark.right(), Mark.top(), Mark.left(), Mark.bottom(),
                              {"#fff3bf", "#e9c25a", "#b88220"}));
    DrawTitle(P, Box.adjusted(52, 0, 0, 0), Text, Size, Qt::AlignLeft);
}

// The ground that all have in common: jade with a gold frame, and a hollow for every button.
static void DrawGround(QPainter& P, const QString& Panel)
{
    QPainterPath Whole;
    Whole.addRect(QRectF(0, 0, 1024, 768));
    FillJade(P, Whole, "#245647", PanelDark);
    DrawGoldLine(P, Scalloped(QRectF(6, 6, 1012, 756), 12), 2);
    P.strokePath(Scalloped(QRectF(11, 11, 1002, 746), 11), Line(Alpha(Gold, .45), .8));
    for (const Place& E : PlacesOn(Panel)) {
        if (E.Name == "imgSet" || E.Name == "imgRandomOk") continue;
        const bool Button = E.Drawn && E.Box.height() > 30 && E.Box.height() < 60 &&
                            E.Base.startsWith("img") && !E.Base.endsWith("DIS") &&
                            E.Base != "imgSingleTile" && E.Base != "imgGameDesc";
        if (Button) DrawSocket(P, E.Box);
    }
}

static void DrawSheetFrame(QPainter& P, const QRectF& Box)
{
    P.fillRect(Grown(Box, 3, 3), QColor(PlateDark));
    DrawGoldLine(P, Rounded(Box.x() - 3, Box.y() - 3, Box.width() + 6, Box.height() + 6, 2), 1.6);
}

static void DrawOptions(QPainter& P)
{
    DrawGround(P, "picOptions");
    DrawEmblemTitle(P, QRectF(40, 16, 400, 52), "Options", 32);

    const double Left = 30, Width = 964;
    const auto Band = [&](double Top, double Bottom) {
        const QRectF Box(Left, Top, Width, Bottom - Top);
        DrawInset(P, Box, 6);
        return Box;
    };
    Band(72, 166);
    const QRectF Desc = BoxOf("imgGameDesc(0)");
    P.strokePath(Rounded(Desc.x(), Desc.y(), Desc.width(), Desc.height(), 4),
                 Line(Alpha(Gold, .35), .8));
    DrawParagraph(P, Grown(Desc, -16, -16),
                  "Choose a game: its description shows here. A running game must end first.",
                  {.Size = 13, .Colour = QColor(QuietText), .Place = Qt::AlignCenter});
    Band(174, 342);
    Band(346, 574);
    DrawSheetFrame(P, BoxOf("lblOptionsTileSet"));
    DrawSheetFrame(P, BoxOf("imgTileSetSample"));
    for (const char* Name : {"lblTileSet", "lblBackDrop"}) {
        const QRectF Label = BoxOf(Name);
        DrawPlate(P, QRectF(Label.x() - 10, Label.y() - 3, Label.width() + 6, Label.height() + 6));
        DrawHeading(P, QRectF(44, Label.y(), 100, Label.height()),
                    QString(Name) == "lblTileSet" ? "Tile set" : "Backdrop");
    }
    const SignInk Ivory{.Main = QColor("#d8cda6"),
                        .Accent = QColor("#e08a5a"),
                        .Gold = QColor("#e8bd4e"),
                        .Ground = QColor("#14301f")};
    DrawSign(P, Sign::Pair, QRectF(62, 240, 62, 62), Ivory);
    const QRectF Picture(60, 440, 66, 50);
    P.fillRect(Picture, Linear(0, Picture.top(), 0, Picture.bottom(), {"#f0b25a", "#f4dca0"}));
    P.fillPath(Circle(106, 456, 7), QColor("#fff6d8"));
    P.fillPath(
        Polygon({{60, 490}, {60, 474}, {80, 458}, {98, 478}, {110, 468}, {126, 482}, {126, 490}}),
        QColor("#24564a"));
    DrawGoldLine(P, Rounded(Picture.x(), Picture.y(), Picture.width(), Picture.height(), 2), 1.6);

    Band(590, 646);
    DrawPlate(P, BoxOf("lblOptionsNote").adjusted(-10, -5, 0, 5));
}

static void DrawChooser(QPainter& P)
{
    DrawGround(P, "picLayouts");
    for (const char* Name : {"imgButChooseLayout", "imgButRandomLayout"})
        DrawSocket(P, BoxOf(Name));
    for (int I = 0; I < 10; ++I) DrawSocket(P, BoxOf(QString("imgButGroups(%1)").arg(I)));
    DrawTitle(P, QRectF(456, 20, 196, 44), "Layouts", 28);
    const QRectF Field = BoxOf("picThumbs");
    DrawInset(P, QRectF(Field.x() - 8, Field.y() - 2, Field.width() + 16, Field.height() + 6), 6);
}

static const char* const ScoreHeads[] = {"lblScrRank",  "Place", "lblScrName", "Name",
                                         "lblScrScore", "Score", "lblScrDay",  "Date"};

static void DrawScores(QPainter& P)
{
    DrawGround(P, "picScores");
    DrawEmblemTitle(P, QRectF(40, 14, 460, 52), "High scores", 32);
    for (int I = 0; I < 10; ++I) DrawSocket(P, BoxOf(QString("imgButGrpScr(%1)").arg(I)));
    DrawInset(P, QRectF(28, 122, 296, 548), 6);
    for (int I = 1; I < 12; ++I) P.fillRect(QRectF(40, 130 + 44 * I, 272, 1), Alpha(Gold, .18));
    DrawInset(P, QRectF(332, 122, 662, 104), 6);
    const QRectF Set = BoxOf("lblScoreSet");
    DrawHeading(P, QRectF(Set.x() - 60, Set.y(), 60, Set.height()), "Set", Qt::AlignRight);
    DrawPlate(P, Set.adjusted(8, -3, -2, 3));

    const QRectF Table(332, 234, 662, 436);
    P.fillRect(Table, Celadon);
    FillJade(P, Rounded(Table.x(), Table.y(), Table.width(), Table.height(), 6),
             Light(Celadon, .02), Dark(Celadon, .02));
    P.fillRect(Table, Alpha(Celadon, .9)); // calm the stone under the rows
    P.fillPath(Rounded(Table.x(), Table.y(), Table.width(), 24, 4), QColor("#10291d"));
    for (int I = 0; I < 8; I += 2) {
        QRectF Column = BoxOf(QString(ScoreHeads[I]) + "(1)");
        const bool Right = QString(ScoreHeads[I]) == "lblScrScore" || I == 0;
        if (I == 0) Column.adjust(-12, 0, 6, 0);
        if (I == 6) Column = QRectF(Column.x() + 12, Column.y(), 120, 20);
        DrawText(P, QRectF(Column.x(), Table.y(), Column.width(), 24), ScoreHeads[I + 1],
                 {.Size = 13,
                  .Kind = Weight::Bold,
                  .Colour = Heading,
                  .Place = (Right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter});
    }
    for (int I = 2; I <= 10; ++I)
        P.fillRect(QRectF(Table.x() + 12, BoxOf(QString("lblScrRank(%1)").arg(I)).y() - 8,
                          Table.width() - 24, 1),
                   Alpha("#16301f", .35));
    DrawGoldLine(P, Rounded(Table.x(), Table.y(), Table.width(), Table.height(), 6), 1.6);
}

struct HistoryHead {
    const char* Label;
    const char* Text;
    double Widen;
    Qt::AlignmentFlag Place;
};
static const HistoryHead HistoryHeads[] = {
    {"lblHisName(0)", "Player", 0, Qt::AlignLeft},
    {"lblHisRank(0)", "Place", 6, Qt::AlignHCenter},
    {"lblHisLayout(0)", "Layout", 0, Qt::AlignLeft},
    {"lblHisScore(0)", "Score", 0, Qt::AlignRight},
    {"lblHisMonth(0)", "Date", 0, Qt::AlignLeft},
};

static void DrawHistory(QPainter& P)
{
    DrawGround(P, "picHistory");
    DrawEmblemTitle(P, QRectF(40, 16, 400, 52), "History", 32);
    DrawInset(P, QRectF(30, 72, 964, 92), 6);
    P.fillRect(QRectF(44, 118.5, 560, 1), Alpha(Gold, .25));
    const QRectF Table(30, 174, 964, 494);
    DrawParchment(P, Table, 5);
    P.fillPath(Rounded(Table.x(), Table.y(), Table.width(), 30, 5), QColor("#173a2b"));
    for (const HistoryHead& Head : HistoryHeads) {
        const QRectF Column = Grown(BoxOf(Head.Label), Head.Widen, 0);
        DrawText(P, QRectF(Column.x(), Table.y(), Column.width(), 30), Head.Text,
                 {.Size = 14,
                  .Kind = Weight::Bold,
                  .Colour = Heading,
                  .Place = Head.Place | Qt::AlignVCenter});
    }
    for (int I = 0; I < 14; I += 2) {
        const QRectF Row = BoxOf(QString("lblHisName(%1)").arg(I));
        P.fillRect(QRectF(Table.x() + 6, Row.y() - 4, Table.width() - 12, 32),
                   Alpha("#8a6a2a", .11));
    }
    DrawGoldLine(P, Rounded(Table.x(), Table.y(), Table.width(), Table.height(), 5), 1.6);
}

static const char* const StatisticNames[] = {
    "Average place",    "Entries in the tables", "First places",      "Entries per layout",
    "Points, 72 tiles", "Points, 144 tiles",     "Points, 216 tiles", "Points, 288 tiles",
    "Lowest score",     "Closest rival",
};

static void DrawProfile(QPainter& P)
{
    DrawGround(P, "picProfile");
    DrawEmblemTitle(P, QRectF(40, 16, 460, 52), "Player profile", 32);
    const QRectF Set = BoxOf("lblSetProfile");
    DrawHeading(P, QRectF(Set.x() - 62, Set.y(), 60, Set.height()), "Set", Qt::AlignRight);
    DrawPlate(P, Set.adjusted(12, -4, -12, 4));

    const QRectF Graph = BoxOf("picGraph");
    DrawInset(P, QRectF(30, 112, 964, 178), 6);
    P.fillRect(Graph, PlayerInk(0));
    DrawGoldLine(P, Rounded(Graph.x() - 2, Graph.y() - 2, Graph.width() + 4, Graph.height() + 4, 2),
                 1.6);

    DrawInset(P, QRectF(30, 294, 336, 388), 6);
    DrawInset(P, QRectF(374, 294, 620, 388), 6);
    for (int I = 1; I <= 10; ++I) {
        const QRectF Box = BoxOf(QString("cboPlayerList(%1)").arg(I));
        const QRectF Swatch(Box.x() - 30, Box.y() + 5, 18, 18);
        P.fillRect(Swatch, PlayerInk(I));
        P.strokePath(Rounded(Swatch.x(), Swatch.y(), 18, 18, 2), Line(Alpha("#04100a", .9), 1.4));
        P.strokePath(Rounded(Swatch.x() - 1, Swatch.y() - 1, 20, 20, 2), Line(Alpha(Gold, .8), 1));
        const QRectF Score = BoxOf(QString("lblProScore(%1)").arg(I));
        DrawPlate(P, QRectF(Score.x() + 6, Score.y() - 2, Score.width() - 1, 26), 3);
    }
    const QRectF A = BoxOf("cboPlayerList(11)");
    DrawHeading(P, QRectF(390, A.y(), A.x() - 402, A.height()), "Two players compared");
    for (int I = 1; I <= 10; ++I) {
        const QRectF Row = BoxOf(QString("lblStatA(%1)").arg(I));
        if (I % 2) P.fillRect(QRectF(382, Row.y() - 5, 604, 30), Alpha("#ffffff", .045));
        DrawText(P, QRectF(390, Row.y(), 216, Row.height()), StatisticNames[I - 1],
                 {.Size = 14, .Place = Qt::AlignLeft | Qt::AlignVCenter});
    }
    for (const char* Box : {"cboPlayerList(11)", "cboPlayerList(12)"}) {
        const double X = BoxOf(Box).x() - 5;
        P.fillRect(QRectF(X, A.y() + 4, 1, 338), Alpha(Gold, .25));
    }
    const QRectF Low = BoxOf("imgOptLowScore(0)");
    P.fillRect(QRectF(386, Low.y() - 5, 596, 1), Alpha(Gold, .3));
    DrawText(P, QRectF(390, Low.y(), Low.x() - 394, Low.height()), "Lowest on",
             {.Size = 14, .Place = Qt::AlignLeft | Qt::AlignVCenter});
}

void WriteBackgrounds(const QString& Folder)
{
    const std::pair<const char*, void (*)(QPainter&)> Screens[] = {
        {"EN0001", DrawOptions}, {"EN0002", DrawHistory}, {"EN0003", DrawScores},
        {"EN0004", DrawProfile}, {"EN0005", DrawChooser},
    };
    for (const auto& [Name, Draw] : Screens) {
        QImage Image(1024, 768, QImage::Format_RGB32);
        Image.fill(Qt::black);
        QPainter P(&Image);
        P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        Draw(P);
        P.end();
        SavePng(Image, Folder + "/DATA/" + Name);
    }
}
