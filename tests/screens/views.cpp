#include "tests/screens/views.h"

#include "board/board.h"
#include "desktop/desktop.h"
#include "media/media.h"
#include "records/records.h"
#include "screens/screens.h"
#include "tests/common/game_dir.h"
#include "words/word_play.h"

#include <QFontDatabase>
#include <QPainter>

// --- records to look at ---

static const char* const Players[] = {"Wwwwwwwwwwww", "anna maria", "li",    "peter",
                                      "mathilda",     "xu",         "bianca"};
constexpr int FullTableLayouts[] = {19, 1, 5, 14, 40, 77, 100, 109, 120};

static void FillRecords()
{
    int Score = 32000;
    for (const int Layout : FullTableLayouts)
        for (int Rank = 1; Rank <= 10; ++Rank) {
            Score -= 311;
            GameState.LayoutNumber = Layout;
            GameState.Score = Score;
            GameState.LastName = Players[(Layout + Rank) % std::size(Players)];
            ScoreRankFor(Score);
            RecordGame(3, GameState.LastName, std::to_string(Rank), Layout, Score);
            InsertScore();
        }
    GameState.LayoutNumber = 19;
    GameState.Score = 0;
    GameState.LayoutWon(19) = 32000;
    GameState.LayoutLost(19) = 700;
    for (int Layout = 20; Layout < 32; ++Layout) GameState.LayoutWon(Layout) = Layout * 7 % 40;
}

// --- ways ---

static void Deal()
{
    PressAt(imgbutStart);
    SendMouseMove(3, 300);
}

static void DealGame(int Type)
{
    GameState.GameType = Type;
    ShowGamePanel();
    LoadNamedTileSet(Type == Wisdom ? 0 : 1);
    RefreshPanel();
    Deal();
}

static void OpenMenuEntry(const Element& Entry)
{
    PressAt(imgButMenu);
    PressAt(Entry);
    SendMouseMove(3, 300);
}

static void PressDown(const Element& E)
{
    const Point Place = ScreenPlace(E);
    SendMouseMove(Place.X + E.Width / 2, Place.Y + E.Height / 2);
    SendMouseDown(MouseButton::Left, Place.X + E.Width / 2, Place.Y + E.Height / 2);
}

static void PressTile(int Tile)
{
    imgTile_MouseDown(Tile, MouseButton::Left, 0, 0);
}

static void SpellWord(int Letters)
{
    DealGame(Wisdom);
    for (int I = 1; I <= Letters; ++I) PressTile(GameState.FreeTiles(I));
}

static void StandNote(int Note, const char* Number)
{
    Deal();
    ShowNote(Note);
    SetCaption(lblBonus, Number);
}

static void TurnHelpTo(int Page)
{
    OpenMenuEntry(imgMenuHelp);
    PressAt(imgHelpBut(Page));
    SendMouseMove(3, 300);
}

static void OpenChooserFilled()
{
    FillRecords();
    PressAt(imgButLayout);
    SendMouseMove(3, 300);
}

static void ChooseGameInOptions(int Type)
{
    OpenMenuEntry(imgMenuOptions);
    PressAt(imgGameType(Type - 1));
}

static void OpenFullProfile()
{
    FillRecords();
    OpenMenuEntry(imgMenuProfile);
    for (int Box = 1; Box <= 12; ++Box) {
        SendDropDown(cboPlayerList(Box));
        const auto& Items = cboPlayerList(Box).Items;
        SendChoice(cboPlayerList(Box), Items[static_cast<std::size_t>(Box) % Items.size()]);
    }
}

static void OpenRecords(const Element& Entry)
{
    FillRecords();
    OpenMenuEntry(Entry);
}

static void Win(int Score)
{
    DealGame(Wisdom); // no bonus is added there
    GameState.Score = Score;
    HideAllTiles();
    EndWonGame();
}

static void ShowBoard(int Layout, int TileSet, int Backdrop)
{
    GameState.LayoutNumber = Layout;
    GameState.TileSetFixed = TileSet;
    GameState.BackdropFixed = Backdrop;
    LoadNamedTileSet(TileSet);
    LoadNamedBackdrop(Backdrop);
    ShowLayoutName();
    Deal();
}

// --- the views ---

static const std::vector<View> Views = {
    {"idle", [] { SendMouseMove(3, 300); }},
    {"start-pressed", [] { PressDown(imgbutStart); }},
    {"board", Deal},
    {"board-1", [] { ShowBoard(1, 9, 9); }},
    {"board-40", [] { ShowBoard(40, 53, 24); }},
    {"board-13", [] { ShowBoard(13, 1, 28); }},
    {"board-77", [] { ShowBoard(77, 29, 43); }},
    {"board-109", [] { ShowBoard(109, 70, 55); }},
    {"board-120", [] { ShowBoard(120, 14, 35); }},
    {"hover",
     [] {
         Deal();
         imgTile_MouseMove(GameState.FreeTiles(2), MouseButton::Left, 0, 0);
     }},
    {"note-0", [] { StandNote(0, ""); }},
    {"note-1", [] { StandNote(1, ""); }},
    {"note-2", [] { StandNote(2, ""); }},
    {"note-3", [] { StandNote(3, ""); }},
    {"note-5", [] { StandNote(5, ""); }},
    {"note-7", [] { StandNote(7, "22+"); }},
    {"note-8", [] { StandNote(8, "78"); }},
    {"note-9", [] { StandNote(9, ""); }},
    {"note-10", [] { StandNote(10, ""); }},
    {"note-11", [] { StandNote(11, "144 "); }},
    {"note-12", [] { StandNote(12, ""); }},
    {"mix-pressed",
     [] {
         Deal();
         PressDown(imgMixFinesse);
     }},
    {"pair",
     [] {
         Deal();
         PressAt(imgPair);
     }},
    {"peek",
     [] {
         Deal();
         PressAt(imgPeek);
         PressTile(60);
     }},
    {"spent",
     [] {
         Deal();
         GameState.MixCount = GameState.UndoCount = GameState.PeekCount = 0;
         GameState.PairCount = 1;
         RefreshPanel();
         RefreshLights();
     }},
    {"agility-idle",
     [] {
         GameState.GameType = Agility;
         ShowGamePanel();
         RefreshPanel();
     }},
    {"agility", [] { DealGame(Agility); }},
    {"pause",
     [] {
         DealGame(Agility);
         PressAt(imgPause);
         tmrPause_Tick(0);
     }},
    {"wisdom", [] { DealGame(Wisdom); }},
    {"wisdom-word", [] { SpellWord(7); }},
    {"wisdom-refused",
     [] {
         SpellWord(5);
         PressAt(imgAcceptWord);
     }},
    {"wisdom-push",
     [] {
         DealGame(Wisdom);
         PressAt(imgPush);
     }},
    {"text-note",
     [] {
         Deal();
         SetWindowMode(0);
     }},
    {"text-note-long",
     [] {
         Deal();
         ShowTextNote("Your desktop display setting must be higher then 1024x768 to switch to "
                      "Window Mode");
     }},
    {"menu",
     [] {
         Deal();
         PressAt(imgButMenu);
     }},
    {"menu-pressed",
     [] {
         Deal();
         PressAt(imgButMenu);
         PressDown(imgMenuHistory);
     }},
    {"packs",
     [] {
         Deal();
         PressAt(imgButMenu);
         PressDown(imgExpansionPacks);
     }},
    {"leave",
     [] {
         Deal();
         OpenMenuEntry(imgExit);
     }},
    {"end",
     [] {
         Deal();
         PressAt(imgbutEnd);
     }},
    {"no-moves",
     [] {
         Deal();
         Show(picBlack);
         Show(picNoMoves);
         DisablePanel(0);
     }},
    {"no-moves-mix",
     [] {
         Deal();
         Show(picBlack);
         Show(picNoMovesMix);
         DisablePanel(0);
     }},
    {"congratulations",
     [] {
         for (int Rank = 1; Rank <= 10; ++Rank) GameState.ScoreTable(Wisdom, 19, Rank).Score = 2;
         Win(1);
     }},
    {"high-score",
     [] {
         Win(28000);
         SendText(txtName, "anna maria");
     }},
    {"high-score-empty",
     [] {
         Win(28000);
         SendText(txtName, "");
     }},
    {"options", [] { OpenMenuEntry(imgMenuOptions); }},
    {"options-refused",
     [] {
         Deal();
         ChooseGameInOptions(Agility);
     }},
    {"options-finesse",
     [] {
         ChooseGameInOptions(Agility);
         PressAt(imgGameType(0));
     }},
    {"options-agility", [] { ChooseGameInOptions(Agility); }},
    {"options-wisdom", [] { ChooseGameInOptions(Wisdom); }},
    {"options-cycle",
     [] {
         OpenMenuEntry(imgMenuOptions);
         PressAt(imgOptTileSet(1));
         PressAt(imgOptBackground(2));
         SendMouseMove(3, 300);
     }},
    {"options-page",
     [] {
         OpenMenuEntry(imgMenuOptions);
         PressAt(lblTS_PageR);
         PressAt(imgBackDropGroup1);
         SendMouseMove(3, 300);
     }},
    {"options-tile-preview",
     [] {
         OpenMenuEntry(imgMenuOptions);
         PressAt(lblOptionsTileSet);
     }},
    {"options-backdrop-preview",
     [] {
         OpenMenuEntry(imgMenuOptions);
         PressAt(imgTileSetSample);
     }},
    {"chooser", OpenChooserFilled},
    {"chooser-hover",
     [] {
         OpenChooserFilled();
         SendMouseMove(500, 400);
     }},
    {"chooser-72",
     [] {
         OpenChooserFilled();
         PressAt(imgButGroups(0));
     }},
    {"chooser-216",
     [] {
         OpenChooserFilled();
         PressAt(imgButGroups(7));
     }},
    {"chooser-288",
     [] {
         OpenChooserFilled();
         PressAt(imgLaySetUP);
         PressAt(imgButGroups(9));
     }},
    {"random",
     [] {
         OpenChooserFilled();
         PressAt(imgButRandomLayout);
     }},
    {"random-marks",
     [] {
         OpenChooserFilled();
         PressAt(imgButRandomLayout);
         PressAt(imgOptRandomLayout(5));
         for (const int Group : {0, 3, 8}) PressAt(imgButGroups(Group));
     }},
    {"scores", [] { OpenRecords(imgMenuScores); }},
    {"scores-empty", [] { OpenMenuEntry(imgMenuScores); }},
    {"scores-in-game",
     [] {
         FillRecords();
         Deal();
         OpenMenuEntry(imgMenuScores);
     }},
    {"scores-new",
     [] {
         FillRecords();
         Win(31650);
         SendKeyPress(txtName, 13);
     }},
    {"history", [] { OpenRecords(imgMenuHistory); }},
    {"history-page",
     [] {
         OpenRecords(imgMenuHistory);
         PressAt(imgHisPage(1));
     }},
    {"history-empty", [] { OpenMenuEntry(imgMenuHistory); }},
    {"profile", [] { OpenFullProfile(); }},
    {"profile-hover",
     [] {
         OpenFullProfile();
         SendMouseMove(164, 130);
     }},
    {"profile-empty", [] { OpenMenuEntry(imgMenuProfile); }},
    {"help-1", [] { OpenMenuEntry(imgMenuHelp); }},
    {"help-2", [] { TurnHelpTo(2); }},
    {"help-3", [] { TurnHelpTo(3); }},
    {"help-4", [] { TurnHelpTo(4); }},
    {"help-5", [] { TurnHelpTo(5); }},
};

const std::vector<View>& AllViews()
{
    return Views;
}

void Enter(const View& Which)
{
    BootGame();
    Which.BringAbout();
}

QImage PaintedScreen(double Ratio)
{
    const QSize Size = QSize(1024, 768) * Ratio;
    QImage Image(Size, QImage::Format_RGB32);
    QPainter Painter(&Image);
    PaintScreen(Painter, {.Screen = &frmMain, .Scale = Ratio, .Ratio = Ratio}, Image.rect());
    return Image;
}

void LoadScreenFonts()
{
    for (const char* Font : {"DejaVuSans", "DejaVuSans-Bold", "DejaVuSerif", "DejaVuSerif-Bold"})
        QFontDatabase::addApplicationFont(
            QString("/usr/share/fonts/truetype/dejavu/%1.ttf").arg(Font));
}
