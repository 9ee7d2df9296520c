// backgrounds.cpp: DATA/EN0001 .. EN0005, the grounds of the full-size screens. What is always on
// show is painted here: frames, headings and hollows, each where the table puts its labels.

#include "forms.h"

static const QColor Heading("#f0cf78");

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
    DrawEmblem(P, QRectF(Box.x(), Box.center().y() - 20, 38, 38));
    DrawTitle(P, Box.adjusted(52, 0, 0, 0), Text, Size, Qt::AlignLeft);
}

static void DrawQuiet(QPainter& P, const QRectF& Box, const QString& Text,
                      Qt::Alignment Place = Qt::AlignLeft | Qt::AlignVCenter)
{
    DrawParagraph(P, Box, Text, {.Size = 13, .Colour = QColor(QuietText), .Place = Place}, 1.35);
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

static void DrawSmallLandscape(QPainter& P, const QRectF& Box)
{
    const auto At = [&](double X, double Y) {
        return QPointF(Box.x() + X * Box.width(), Box.y() + Y * Box.height());
    };
    P.save();
    P.setClipRect(Box);
    P.fillRect(Box, Linear(0, Box.top(), 0, Box.bottom(), {"#2c6a70", "#e8a85a", "#f8dca0"}));
    P.fillPath(Circle(At(.68, .4).x(), At(.68, .4).y(), 8), QColor("#fff4cc"));
    P.fillPath(ClosedCurve({At(-.1, 1.2), At(-.1, .7), At(.2, .42), At(.5, .74), At(.8, .6),
                            At(1.1, .78), At(1.1, 1.2)}),
               QColor("#4a7f6c"));
    P.fillPath(Moved(PagodaPath(3), At(.14, 0).x(), At(0, .28).y(), 0, .26, .32),
               QColor("#173a2d"));
    P.fillPath(ClosedCurve({At(-.1, 1.2), At(-.1, .9), At(.3, .84), At(.7, .96), At(1.1, .86),
                            At(1.1, 1.2)}),
               QColor("#12301f"));
    P.restore();
    DrawGoldLine(P, Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 2), 1.8);
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
    DrawQuiet(P, Grown(Desc, -16, -16),
              "Choose a game: its description shows here. A running game must end first.",
              Qt::AlignCenter);
    Band(174, 342);
    Band(350, 578);
    Band(586, 642);
    DrawSheetFrame(P, BoxOf("lblOptionsTileSet"));
    DrawSheetFrame(P, BoxOf("imgTileSetSample"));
    // Names stand on the stone itself: in Wisdom there is none, and a plate would stand empty.
    const std::pair<const char*, const char*> Names[] = {{"lblTileSet", "Tile set"},
                                                         {"lblBackDrop", "Backdrop"}};
    for (const auto& [Label, Text] : Names)
        DrawHeading(P, QRectF(44, BoxOf(Label).y(), 104, BoxOf(Label).height()), Text);
    for (const int Layer : {1, 2})
        DrawEmblemTile(P, QRectF(57 + 8 * Layer, 252 - 8 * Layer, 60, 60), 3);
    DrawSmallLandscape(P, QRectF(60, 448, 66, 50));
    DrawQuiet(P, QRectF(690, 586, 290, 56), "Music changes at once,\nall else with Accept.");
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
    DrawQuiet(P, QRectF(Field.x(), 726, Field.width(), 20),
              "Under each layout: games completed, and the share that was won", Qt::AlignCenter);
}

static const char* const ScoreHeads[] = {"lblScrRank",  "Place", "lblScrName", "Name",
                                         "lblScrScore", "Score", "lblScrDay",  "Date"};

// Gold, silver and bronze before the first three places.
static void DrawMedal(QPainter& P, QPointF M, int Place)
{
    static const QColor Metals[3][3] = {{"#fff3b8", "#e0a92c", "#7a5208"},
                                        {"#ffffff", "#b9c2c4", "#5d686c"},
                                        {"#ffd9b0", "#c47a3c", "#6a3612"}};
    const auto& [Shine, Metal, Rim] = Metals[Place - 1];
    for (const double Side : {-1.0, 1.0})
        P.fillPath(Polygon({{M.x() + Side * 1, M.y()},
                            {M.x() + Side * 7.5, M.y() + 3},
                            {M.x() + Side * 6.5, M.y() + 14},
                            {M.x() + Side * 3.8, M.y() + 11.5},
                            {M.x() + Side * 1, M.y() + 13}}),
                   QColor(Side < 0 ? "#8f1d14" : SignRed));
    P.fillPath(Circle(M.x() - .6, M.y() - 1.2, 9.2), Alpha("#000000", .4));
    P.fillPath(Circle(M.x(), M.y() - 2, 9),
               Linear(M.x() + 7, M.y() - 9, M.x() - 7, M.y() + 5, {Shine, Metal, Rim}));
    P.fillPath(Circle(M.x(), M.y() - 2, 6.6),
               Linear(M.x() + 5, M.y() - 7, M.x() - 5, M.y() + 4, {Metal, Shine, Metal}));
    P.fillPath(Star(M.x(), M.y() - 2, 4.6), Rim);
}

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
    DrawParchment(P, Table, 5); // for black rows; the newest brings a dark strip of its own
    P.fillPath(Rounded(Table.x(), Table.y(), Table.width(), 24, 4), QColor("#10291d"));
    for (int Place = 1; Place <= 3; ++Place)
        DrawMedal(P, QPointF(354, BoxOf(QString("lblScrRank(%1)").arg(Place)).center().y()), Place);
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
                   Alpha("#6a4a10", .35));
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

// Where the layouts of a size begin on the graph.
struct SizeRow {
    int First; // layout
    const char* Tiles;
};
static const SizeRow SizeRows[] = {
    {1, "72 tiles"}, {13, "144 tiles"}, {73, "216 tiles"}, {109, "288 tiles"}};

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
    for (const SizeRow& Size : SizeRows) { // the note in the middle stays clear of them
        const double X = Graph.x() + 6 * (Size.First - 1);
        P.fillRect(QRectF(X, Graph.bottom() + 2, 1, 6), Alpha(Gold, .9));
        DrawText(
            P, QRectF(X + 10, Graph.bottom() + 6, 62, 20), Size.Tiles,
            {.Size = 13, .Colour = QColor(QuietText), .Place = Qt::AlignLeft | Qt::AlignVCenter});
    }
    DrawQuiet(P, QRectF(780, Graph.bottom() + 6, 210, 20), "Point at a block to read it");

    DrawInset(P, QRectF(30, 294, 336, 388), 6);
    DrawInset(P, QRectF(374, 294, 620, 388), 6);
    for (int I = 1; I <= 10; ++I) {
        const QRectF Box = BoxOf(QString("cboPlayerList(%1)").arg(I));
        const QRectF Swatch(Box.x() - 30, Box.y() + 5, 18, 18);
        P.fillRect(Swatch, PlayerInk(I));
        P.fillPath(Polygon({Swatch.topLeft(), Swatch.topRight(), Swatch.bottomRight()}),
                   Alpha("#ffffff", .16));
        P.strokePath(Rounded(Swatch.x(), Swatch.y(), 18, 18, 2), Line(Alpha("#04100a", .9), 1.4));
        P.strokePath(Rounded(Swatch.x() - 1, Swatch.y() - 1, 20, 20, 2), Line(Alpha(Gold, .8), 1));
        if (I < 10) P.fillRect(QRectF(42, Box.bottom() + 3.5, 312, 1), Alpha(Gold, .16));
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
    for (const auto& [Name, Draw] : Screens) WriteFullScreen(Folder + "/DATA/" + Name, Draw);
}

void WriteFullScreen(const QString& File, const std::function<void(QPainter&)>& Draw)
{
    for (const int Scale : {1, Sharpness}) {
        QImage Image(1024 * Scale, 768 * Scale, QImage::Format_RGB32);
        Image.fill(Qt::black);
        QPainter P(&Image);
        P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        P.scale(Scale, Scale);
        Draw(P);
        P.end();
        // A screen must stand at once: a BMP is read in a seventh of a PNG's time. At twice the
        // size it would be nine million bytes, and there a JPEG's coarse colour is not seen.
        if (Scale == 1)
            SavePicture(Image, File, "BMP");
        else
            SavePicture(Image, File + "@2", "JPG", 97);
    }
}
