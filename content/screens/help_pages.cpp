// help_pages.cpp: DATA/HP0001 .. HP0005, pages that teach the game with real tiles

#include "forms.h"

#include <QFile>

static const QColor Heading(SignJade);
static const QColor InkText("#2e2415");

// A tile set as the game has it, made before the pages.
struct TileSheet {
    QImage Cells; // 12 by 9 cells of 60 by 60
};

static TileSheet ReadTiles(const QString& GameFolder, int Number)
{
    const QString Path = GameFolder + QString("/DATA/TS%1").arg(Number, 4, 10, QChar('0'));
    TileSheet Sheet{QImage(Path)};
    if (Sheet.Cells.size() != QSize(720, 540)) FatalError("cannot read the tile set " + Path);
    return Sheet;
}

// Face from 1; the layers shift as on the board.
static void DrawTile(QPainter& P, const TileSheet& Set, int Face, double X, double Y, int Layer = 1,
                     TileState State = TileNormal)
{
    const int Cell = Face - 1 + 36 * State;
    const double Shift = LayerShift * (Layer - 1);
    P.drawImage(QPointF(X + Shift, Y - Shift), Set.Cells,
                QRectF(Cell % 12 * 60, Cell / 12 * 60, 60, 60));
}

enum class Badge { Free, Blocked };

static void DrawBadge(QPainter& P, double X, double Y, Badge Which)
{
    const QColor Colour(Which == Badge::Free ? "#1e8a4c" : "#b3261a");
    P.fillPath(Circle(X - .8, Y + 1.2, 10.5), Alpha("#000000", .35));
    P.fillPath(Circle(X, Y, 10.5), QColor("#ffffff"));
    P.fillPath(Circle(X, Y, 8.8), Colour);
    if (Which == Badge::Free) {
        P.strokePath(Polyline({{X - 4.2, Y + .4}, {X - 1, Y + 3.8}, {X + 4.4, Y - 3.4}}),
                     Line("#ffffff", 2.4));
    } else {
        P.strokePath(Polyline({{X - 3.4, Y - 3.4}, {X + 3.4, Y + 3.4}}), Line("#ffffff", 2.4));
        P.strokePath(Polyline({{X + 3.4, Y - 3.4}, {X - 3.4, Y + 3.4}}), Line("#ffffff", 2.4));
    }
}

static void DrawPage(QPainter& P, const QString& Title, int Page)
{
    QPainterPath Whole;
    Whole.addRect(QRectF(0, 0, 1024, 768));
    FillJade(P, Whole, "#245647", PanelDark);
    DrawGoldLine(P, Scalloped(QRectF(6, 6, 1012, 756), 12), 2);
    P.strokePath(Scalloped(QRectF(11, 11, 1002, 746), 11), Line(Alpha(Gold, .45), .8));
    DrawEmblem(P, QRectF(40, 20, 38, 38));
    DrawTitle(P, QRectF(92, 14, 700, 52), Title, 31, Qt::AlignLeft);
    const QRectF Paper(26, 70, 972, 622);
    DrawParchment(P, Paper, 5);
    DrawGoldLine(P, Rounded(Paper.x(), Paper.y(), Paper.width(), Paper.height(), 5), 1.8);
    P.strokePath(Scalloped(Paper.adjusted(7, 7, -7, -7), 9), Line(Alpha("#9a6a20", .55), 1));
    for (int I = 1; I <= 5; ++I) {
        const QRectF Button = BoxOf(QString("imgHelpBut(%1)").arg(I));
        DrawSocket(P, Button);
        if (I == Page) { // a golden socket marks the page on show
            for (const double Glow : {7.0, 5.0, 3.0})
                P.strokePath(Rounded(Button.x() - 2.5, Button.y() - 2.5, Button.width() + 5,
                                     Button.height() + 5, 7),
                             Line(Alpha(LitFrame, .16), Glow));
            DrawGoldLine(P,
                         Rounded(Button.x() - 2.5, Button.y() - 2.5, Button.width() + 5,
                                 Button.height() + 5, 7),
                         2.2);
        }
    }
    DrawSocket(P, BoxOf("imgBackToGame"));
}

static void Head(QPainter& P, double X, double Y, double Width, const QString& Text,
                 double Size = 19)
{
    DrawText(P, QRectF(X, Y, Width, Size * 1.5), Text,
             {.Size = Size,
              .Kind = Weight::Serif,
              .Colour = Heading,
              .Place = Qt::AlignLeft | Qt::AlignVCenter,
              .Shadow = false});
}

// Answers the y below the text.
static double Words(QPainter& P, double X, double Y, double Width, const QString& Text,
                    double Size = 15, Qt::Alignment Place = Qt::AlignLeft)
{
    return Y +
           DrawParagraph(
               P, QRectF(X, Y, Width, 600), Text,
               {.Size = Size, .Colour = InkText, .Place = Place | Qt::AlignTop, .Shadow = false},
               1.38);
}

static double Points1(QPainter& P, double X, double Y, double Width, const QStringList& Items,
                      double Size = 15)
{
    for (const QString& Item : Items) {
        const double M = Y + 10;
        P.fillPath(Polygon({{X, M}, {X + 4.5, M - 4.5}, {X + 9, M}, {X + 4.5, M + 4.5}}),
                   QColor("#a8701a"));
        Y = Words(P, X + 17, Y, Width - 17, Item, Size) + 7;
    }
    return Y;
}

static void Figure(QPainter& P, const QRectF& Box)
{
    DrawInset(P, Box, 5);
    DrawGoldLine(P, Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 5), 1.4);
}

static void DrawGames(QPainter& P, const TileSheet& Faces, const TileSheet& Letters)
{
    DrawPage(P, "The three games", 1);
    struct Game {
        Sign Drawn;
        const char* Name;
        QStringList Text;
    };
    const Game Games[] = {
        {Sign::Finesse,
         "Finesse",
         {"Take pairs of equal tiles until the board is empty. Only free tiles can be taken.",
          "A pair earns 2 points.",
          "Taking pairs of one face in a row is a streak: 1 to 3 more points for the second pair, "
          "5 to 9 "
          "for the third, 14 to 22 for each further one.",
          "An empty board earns a bonus.", "Powers: MIX, UNDO, PAIR, PEEK."}},
        {Sign::Agility,
         "Agility",
         {"Take pairs as in Finesse, but against the clock: 750 seconds, counted in tenths.",
          "The clock starts with the START button and rests while a menu or a box is open.",
          "The time left when the board is empty is your score.",
          "At 0 you may play on, but earn no points.", "Powers: MIX, PAUSE."}},
        {Sign::Wisdom,
         "Wisdom",
         {"Press free letter tiles one after the other to spell an English word of three letters "
          "or more.",
          "ACCEPT takes the word from the board, ERASE takes back a letter.",
          "A tile of the word stays in its place until the word is accepted.",
          "Long words earn most. One or two tiles left over lose the game.", "Powers: MIX, PUSH."}},
    };
    const SignInk Colours{.Ground = QColor("#fbf2d8")};
    for (int I = 0; I < 3; ++I) {
        const double X = 52 + 312 * I, Width = 296;
        if (I > 0) P.fillRect(QRectF(X - 14, 100, 1, 490), Alpha("#9a6a20", .45));
        DrawSign(P, Games[I].Drawn, QRectF(X, 90, 38, 38), Colours);
        Head(P, X + 50, 92, Width - 50, Games[I].Name, 23);
        Figure(P, QRectF(X, 138, Width, 110));
        if (I == 0) {
            DrawTile(P, Faces, 27, X + 56, 163, 1, TileLit);
            DrawTile(P, Faces, 27, X + 182, 163, 1, TileLit);
            DrawSign(P, Sign::Star, QRectF(X + 135, 177, 28, 28), {.Gold = QColor("#f0c040")});
        } else if (I == 1) {
            const int Digits[] = {6, 2, 8, 5};
            for (int K = 0; K < 4; ++K)
                DrawLedDigit(P, QRectF(X + 70 + 40 * K, 162, 38, 62), Digits[K] + 1);
        } else {
            const char* Word = "JADE";
            for (int K = 0; K < 4; ++K)
                DrawTile(P, Letters, Word[K] - 'A' + 1, X + 28 + 61 * K, 164, 1, TileMarked);
        }
        Points1(P, X, 268, Width - 4, Games[I].Text, 16);
    }
    P.fillRect(QRectF(52, 612, 920, 1), Alpha("#9a6a20", .45));
    Words(P, 52, 622, 920,
          "Choose a layout, press START, and play. A pair: press one free tile, then its twin. A "
          "second press "
          "on the same tile lets it go. END gives a game up. Options choose the game, tiles and "
          "backdrop.",
          14.5);
}

static void DrawFreeTiles(QPainter& P, const TileSheet& Faces)
{
    DrawPage(P, "Which tiles are free?", 2);
    Words(P, 52, 88, 920,
          "A tile is free when nothing lies on it, not even a part of another tile, and when its "
          "left or its "
          "right side is open. Free tiles light up under the pointer.",
          15.5);
    const auto Mark = [&](double X, double Y, Badge Which) { DrawBadge(P, X + 12, Y + 46, Which); };
    struct Box {
        double X, Y;
        const char* Head;
        const char* Text;
    };
    const Box Boxes[] = {
        {52, 142, "In a row",
         "Both ends are free. Each tile between them has neighbours on both sides."},
        {520, 142, "Under another tile",
         "The tile on top is free. All that it covers, even by a corner, are blocked."},
        {52, 414, "Half a step up or down",
         "A neighbour that stands half a tile higher or lower still closes the side."},
        {520, 414, "Pairs",
         "Two free tiles of the same face are a pair. The note shows how many pairs are open."},
    };
    for (const Box& B : Boxes) {
        Figure(P, QRectF(B.X, B.Y, 452, 176));
        Head(P, B.X, B.Y + 180, 452, B.Head, 18);
        Words(P, B.X, B.Y + 208, 452, B.Text);
    }
    { // a row of five
        const int Row[] = {4, 29, 13, 22, 8};
        for (int I = 0; I < 5; ++I) {
            const double X = 124 + 61 * I, Y = 200;
            DrawTile(P, Faces, Row[I], X, Y);
            Mark(X, Y, I == 0 || I == 4 ? Badge::Free : Badge::Blocked);
        }
    }
    { // two by three with one on top, off by half a tile
        const int Low[] = {2, 16, 31, 25, 11, 19};
        for (int I = 0; I < 6; ++I) DrawTile(P, Faces, Low[I], 656 + I % 3 * 61, 172 + I / 3 * 61);
        DrawTile(P, Faces, 33, 656 + 30.5, 172 + 30.5, 2);
        Mark(656 + 37.5, 172 + 23.5, Badge::Free);
        Mark(656, 172 + 61, Badge::Blocked);
        Mark(656 + 122, 172 + 61, Badge::Free);
        Mark(656 + 122, 172, Badge::Free);
        Mark(656, 172 - 34, Badge::Blocked);
        DrawBadge(P, 656 + 61 + 50, 172 + 61 + 46, Badge::Blocked);
        DrawBadge(P, 656 + 61 + 50, 172 + 12, Badge::Blocked);
    }
    { // half steps
        DrawTile(P, Faces, 6, 186, 438);
        DrawTile(P, Faces, 28, 186, 499);
        DrawTile(P, Faces, 17, 247, 468.5);
        DrawTile(P, Faces, 30, 308, 438);
        DrawTile(P, Faces, 9, 308, 499);
        Mark(247, 468.5, Badge::Blocked);
        Mark(186, 438, Badge::Free);
        Mark(186, 499, Badge::Free);
        Mark(308, 438, Badge::Free);
        Mark(308, 499, Badge::Free);
    }
    { // a pair, one free and blocked twins, and the note
        DrawTile(P, Faces, 36, 556, 470, 1, TileLit);
        DrawTile(P, Faces, 36, 700, 470, 1, TileLit);
        P.strokePath(Curve({{618, 492}, {656, 474}, {696, 488}}), Line("#f0c040", 3));
        P.save();
        P.translate(784, 462);
        DrawNoteCell(P, QRectF(0, 0, 176, 80), 6);
        DrawText(P, QRectF(0, 46, 176, 22), "14",
                 {.Size = 18, .Kind = Weight::Bold, .Colour = QColor(DigitBlue), .Shadow = false});
        P.restore();
    }
}

static void DrawPowers(QPainter& P)
{
    DrawPage(P, "Powers", 3);
    Words(P, 52, 86, 920,
          "Powers help when you are stuck. Each can be used twice a game; the lamps below a button "
          "tell how "
          "often it is still there. When both are out, the button is covered. A power costs no "
          "points.");
    struct Power {
        Sign Drawn;
        const char* Name;
        const char* Games;
        const char* Text;
    };
    const Power Powers[] = {
        {Sign::Mix, "MIX", "all games",
         "Exchanges the faces of all tiles that are left. The stack keeps its shape. Use it when "
         "no pair is open."},
        {Sign::Undo, "UNDO", "Finesse",
         "Puts the last pair back on the board. The points stay yours, but a streak ends."},
        {Sign::Pair, "PAIR", "Finesse",
         "Press it, then any tile: all tiles of that face are marked in blue, blocked ones too."},
        {Sign::Peek, "PEEK", "Finesse",
         "Press it, then any tile, even one that is nearly hidden: its face is shown in full at "
         "the upper left."},
        {Sign::Pause, "PAUSE", "Agility",
         "Stops the clock for ten seconds. Tiles rest too, so look around: a bar shows the time "
         "that passes."},
        {Sign::Push, "PUSH", "Wisdom",
         "Press it, then a tile: its letter becomes the next one of the alphabet. Z becomes A."},
    };
    for (int I = 0; I < 6; ++I) {
        const double X = I % 2 ? 520 : 52, Y = 160 + I / 2 * 150;
        DrawSocket(P, QRectF(X + 4, Y, 86, 76));
        DrawButton(P, QRectF(X + 4, Y, 86, 76), Powers[I].Drawn, Powers[I].Name, ButtonState::Rest);
        DrawLamp(P, QRectF(X + 20, Y + 84, 22, 22), true);
        DrawLamp(P, QRectF(X + 52, Y + 84, 22, 22), I % 3 != 1);
        Head(P, X + 112, Y - 6, 330, Powers[I].Name, 18);
        DrawText(P, QRectF(X + 260, Y - 4, 184, 24), Powers[I].Games,
                 {.Size = 13.5,
                  .Kind = Weight::Bold,
                  .Colour = QColor("#8a4a10"),
                  .Place = Qt::AlignRight | Qt::AlignVCenter,
                  .Shadow = false});
        Words(P, X + 112, Y + 26, 336, Powers[I].Text);
    }
    P.fillRect(QRectF(52, 604, 920, 1), Alpha("#9a6a20", .45));
    Words(P, 52, 614, 920,
          "No pair open in Finesse or Agility? While a MIX is left, a box tells you and you may "
          "mix. Without "
          "one the game is lost; its points can still enter the table. A Wisdom game does not stop "
          "by itself.");
}

static void DrawTableLine(QPainter& P, double X, double Y, double Width, const QString& Left1,
                          const QString& Right1, bool Shade)
{
    if (Shade) P.fillRect(QRectF(X - 6, Y, Width + 12, 25), Alpha("#8a6a2a", .14));
    const TextStyle Style{.Size = 14.5,
                          .Colour = InkText,
                          .Place = Qt::AlignLeft | Qt::AlignVCenter,
                          .Shadow = false};
    TextStyle Bold = Style;
    Bold.Kind = Weight::Bold;
    Bold.Place = Qt::AlignRight | Qt::AlignVCenter;
    DrawText(P, QRectF(X, Y, Width, 25), Left1, Style);
    DrawText(P, QRectF(X + Width - 130, Y, 130, 25), Right1, Bold);
}

static void DrawScoring(QPainter& P)
{
    DrawPage(P, "Scores and records", 4);
    const std::pair<const char*, const char*> Finesse1[] = {
        {"A pair", "2"},
        {"Second pair of a face in a row", "+ 1 to 3"},
        {"Third pair in a row", "+ 5 to 9"},
        {"Each further one", "+ 14 to 22"}};
    const std::pair<const char*, const char*> Cleared[] = {{"72 tiles", "5 to 78"},
                                                           {"144 tiles", "8 to 16"},
                                                           {"216 tiles", "21 to 39"},
                                                           {"288 tiles", "41 to 79"}};
    const std::pair<const char*, const char*> Letters[] = {
        {"3 letters", "2"}, {"4 letters", "3"},  {"5 letters", "5"},  {"6 letters", "7"},
        {"7 letters", "9"}, {"8 letters", "12"}, {"9 and more", "15"}};
    const std::pair<const char*, const char*> ClearedWords[] = {{"72 tiles", "10 to 20"},
                                                                {"144 tiles", "25 to 35"},
                                                                {"216 tiles", "40 to 50"},
                                                                {"288 tiles", "55 to 65"}};
    const auto Table = [&](double X, double Y, double Width, const char* Title, const auto& Rows) {
        Head(P, X, Y, Width, Title, 17);
        Y += 28;
        bool Shade = true;
        for (const auto& [Left1, Right1] : Rows) {
            DrawTableLine(P, X, Y, Width, Left1, Right1, Shade);
            Shade = !Shade;
            Y += 25;
        }
    };
    Table(58, 86, 380, "Finesse", Finesse1);
    Table(58, 226, 180, "Board cleared", Cleared);
    Table(258, 226, 180, "Wisdom, cleared", ClearedWords);
    Table(58, 366, 180, "Wisdom, a word", Letters);
    Head(P, 258, 366, 180, "Agility", 17);
    Words(P, 258, 396, 184,
          "The tenths of a second left on the clock when the board is empty. A full clock "
          "is 7500.");
    P.fillRect(QRectF(470, 96, 1, 500), Alpha("#9a6a20", .45));

    double Y = 86;
    const auto Record = [&](Sign Drawn, const char* Title, const char* Text) {
        DrawSign(P, Drawn, QRectF(492, Y + 4, 36, 36), {.Ground = QColor("#fbf2d8")});
        Head(P, 542, Y, 420, Title, 17);
        Y = Words(P, 542, Y + 28, 424, Text) + 12;
    };
    Record(Sign::Scores, "High scores",
           "Every layout keeps ten places for each of the three games. A lost game can enter the "
           "table with "
           "the points it has; a game given up cannot. \"Play this\" chooses the layout on show.");
    Record(Sign::History, "History",
           "The last 42 games of each kind: all games, games without a place, and high scores. "
           "\"Clear list\" "
           "takes effect with OK.");
    Record(Sign::Profile, "Player profile",
           "A player is a name in the tables. The graph shows all high scores of a set of layouts: "
           "a column "
           "for a layout, a row for a place, the player's colour. A Master Score adds up points "
           "for every "
           "place held: a first place counts most, and large layouts count more than small ones.");
    Record(Sign::Layout, "Played and won",
           "Below each layout of the chooser stand the games played and the share of them that was "
           "won.");

    const QRectF Credits = BoxOf("lblCreditMusic").united(BoxOf("lblCreditMaker"));
    P.fillRect(QRectF(52, Credits.y() - 22, 920, 1), Alpha("#9a6a20", .45));
    for (const char* Name : {"lblCreditMusic", "lblCreditMaker"}) {
        const QRectF Box = BoxOf(Name).adjusted(-2, -5, 2, 5);
        P.fillPath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 5), QColor("#fbf3da"));
        P.strokePath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 5),
                     Line(Alpha("#9a6a20", .8), 1));
    }
}

// The picture of a layout of list 0, cut from the chooser's sheet of its group.
static QImage ReadThumbnail(const QString& GameFolder, int Layout)
{
    const int Group = (Layout - 1) / 12;
    const QString Path = GameFolder + QString("/DATA/LY%1").arg(Group + 1, 4, 10, QChar('0'));
    const QImage Sheet(Path);
    const QSize Size = BoxOf("picThumbs").size().toSize();
    if (Sheet.size() != Size) FatalError("cannot read the sheet of layouts " + Path);
    const QRectF Place = BoxOf(QString("lblThumbs(%1)").arg((Layout - 1) % 12));
    return Sheet.copy(Place.toRect());
}

static void DrawBoards(QPainter& P, const TileSheet& Faces, const QString& GameFolder)
{
    DrawPage(P, "Boards, packs and the window", 5);
    Head(P, 52, 86, 440, "Layouts");
    Words(P, 52, 116, 440,
          "360 layouts come with the game, in three sets A, B and C of 120. The arrows in the "
          "chooser turn to "
          "the next set.");
    struct SizeRow {
        const char* Tiles;
        const char* Numbers;
        int Sample; // a layout of that size
    };
    const SizeRow Sizes[] = {{"72 tiles", "1 to 12", 7},
                             {"144 tiles", "13 to 72", 13},
                             {"216 tiles", "73 to 108", 84},
                             {"288 tiles", "109 to 120", 110}};
    double X = 52;
    for (const SizeRow& Row : Sizes) {
        const QRectF Frame(X, 186, 104, 84);
        Figure(P, Frame);
        const QImage Thumb = ReadThumbnail(GameFolder, Row.Sample);
        DrawFitted(P, CropToInk(Thumb), Frame.adjusted(6, 6, -6, -6));
        Words(P, X, 274, 104, QString("%1\n%2").arg(Row.Tiles, Row.Numbers), 13.5,
              Qt::AlignHCenter);
        X += 112;
    }
    Head(P, 52, 328, 440, "Random layouts");
    Words(P, 52, 358, 440,
          "\"Random layout\" draws a new layout for every game: from all groups, from one size, or "
          "from the "
          "groups that you mark yourself.");
    Head(P, 52, 436, 440, "Tiles and backdrops");
    Words(P, 52, 466, 440,
          "Options offer 72 tile sets and 72 backdrops. Press a sample to see it large. \"Cycle\" "
          "takes the "
          "next one for every game, \"Random\" any. Wisdom always plays with its letter tiles.");
    for (int I = 0; I < 7; ++I) DrawTile(P, Faces, 3 + 5 * I, 56 + 61 * I, 576);

    P.fillRect(QRectF(508, 96, 1, 560), Alpha("#9a6a20", .45));
    DrawSign(P, Sign::Packs, QRectF(528, 88, 38, 38), {.Ground = QColor("#fbf2d8")});
    Head(P, 580, 90, 390, "Content packs");
    Points1(
        P, 530, 134, 440,
        {"A pack adds 24 tile sets and a set of 120 layouts.",
         "Put its files into the folder DATA of the game and start the game anew: packs are found "
         "by "
         "themselves.",
         "Its tile sets follow group C in the options, its layouts follow set C in the chooser.",
         "\"Content packs\" in the menu tells which packs are there and opens the guide to making "
         "your own."});
    DrawSign(P, Sign::Window, QRectF(530, 352, 34, 34), {.Ground = QColor("#fbf2d8")});
    Head(P, 580, 354, 390, "The window");
    Points1(P, 530, 398, 440,
            {"The three signs at the upper right change between window and full screen, put the "
             "game away, and "
             "leave it.",
             "SHIFT with an arrow key moves the window.",
             "In Agility the clock rests while the game is put away."});
    DrawSign(P, Sign::Start, QRectF(530, 534, 34, 34), {.Ground = QColor("#fbf2d8")});
    Head(P, 580, 536, 390, "Music");
    Points1(P, 530, 580, 440,
            {"30 pieces follow one another. The arrows at the track number skip to the next one "
             "and turn "
             "music on."});
}

void WriteHelpPages(const QString& Folder, const QString& GameFolder)
{
    const TileSheet Faces = ReadTiles(GameFolder, 1), Letters = ReadTiles(GameFolder, 0);
    const std::function<void(QPainter&)> Pages[] = {
        [&](QPainter& P) { DrawGames(P, Faces, Letters); },
        [&](QPainter& P) { DrawFreeTiles(P, Faces); },
        [&](QPainter& P) { DrawPowers(P); },
        [&](QPainter& P) { DrawScoring(P); },
        [&](QPainter& P) { DrawBoards(P, Faces, GameFolder); },
    };
    int Page = 0;
    for (const auto& Draw : Pages)
        WriteFullScreen(Folder + QString("/DATA/HP%1").arg(++Page, 4, 10, QChar('0')), Draw);
}
