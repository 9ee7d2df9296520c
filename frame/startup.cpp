// startup.cpp: from the first instant to the idle main screen. The steps stand in their order.
#include "board/board.h"
#include "frame/frame.h"
#include "media/media.h"
#include "records/records.h"
#include "screens/screens.h"
#include "words/word_play.h"

constexpr float LogoLeft = 80;
constexpr int StandardDots = 96; // per inch
constexpr int BuiltInBackdrops = 72, BuiltInTracks = 30;

// The desktop as the front end measured it, pixels and dots per inch.
int DesktopWidth = 1920, DesktopHeight = 1080, DesktopDots = 96;

// A yield of StartGame can let the title's timer in, but the title stands until StartGame is done.
static bool StartGameDone, TitleTimeOver;

static void EndTitle();

void SplashLoad()
{
    StartGameDone = TitleTimeOver = false;
    SetPlace(imgLogo, LogoLeft, imgLogo.Top);
    GameState.StandardDpi = DesktopDots == StandardDots ? 1 : 0;
    LoadDisplaySettings();
    if (GameState.DisplayMode == 0) Platform.ModeSet(FullWidth, FullHeight);
    Platform.Yield();
    if (GameState.DisplayMode == 0)
        SetPlace(frmSplash, 0, 0);
    else
        CentreScreen(frmSplash, DesktopWidth, DesktopHeight);
    Show(frmSplash);
    EnableTimer(tmrLogo);
    Platform.Yield();
}

void tmrLogo_Tick(int)
{
    GameState.ScreenWidth = DesktopWidth;
    GameState.ScreenHeight = DesktopHeight;
    Hide(imgLogo);
    Show(imgTitle);
    DisableTimer(tmrLogo);
    EnableTimer(tmrTitle);
    Platform.Yield();
    StartGame();
    StartGameDone = true;
    if (TitleTimeOver) EndTitle();
}

static int AdvanceMusic()
{
    const int Track = GameState.CurrentTrack == 0 ? 1 : static_cast<int>(GameState.CurrentTrack);
    GameState.CurrentTrack = Track + 1;
    if (GameState.CurrentTrack > GameState.MusicCount) GameState.CurrentTrack = 1;
    return Track;
}

void StartGame()
{
    Platform.Yield();
    Randomize();
    GameState.MusicReady = 1;
    FillCatalogueNames();
    ScanContentPacks();
    GameState.BackdropCount = BuiltInBackdrops;
    GameState.MusicCount = BuiltInTracks;
    LoadHistory();
    LoadWonLost();
    GameState.AgilityTime = FullTime;
    ShowClock(GameState.AgilityTime);
    LoadSettings();
    LoadScores();
    RepairSettings();
    const int Track = AdvanceMusic();
    LoadLayoutNames();
    LoadLayoutGeometry();
    BuildTables();
    LoadNamedTileSet(GameState.TileSetFixed);
    InitTiles();
    ShowNote(NoteWaiting);
    DisablePanel(1);
    SetCaption(lblLayoutMain,
               GameState.RandomLayoutMode > 0 ? "Random" : GameState.LayoutName(LayoutIndex()));
    GameState.ScoresGameType = GameState.ProfileGameType = GameState.HistoryGameType =
        GameState.GameType;
    ShowGamePanel();
    SetCaption(lblScore, GameState.GameType == Agility ? "" : "Score");
    LoadNamedBackdrop(GameState.BackdropFixed);
    if (GameState.GameType == Wisdom) LoadNamedTileSet(0);
    OpenDictionary();
    GameState.MusicPlaying = 0;
    if (GameState.MusicOn == 1) {
        SetTrack(Track);
        Platform.Yield();
        Platform.MusicPlay();
        GameState.MusicPlaying = 1;
    }
    SetCaption(lblCurrentTrack, TwoDigits(Track));
    ShowWindowModeButton();
    SetHelpBalloons(GameState.HelpBalloons != 0);
}

void tmrTitle_Tick(int)
{
    TitleTimeOver = true;
    DisableTimer(tmrTitle);
    if (StartGameDone) EndTitle();
}

static void EndTitle()
{
    if (GameState.DisplayMode == 0)
        SetPlace(frmMain, 0, 0);
    else
        CentreScreen(frmMain, GameState.ScreenWidth, GameState.ScreenHeight);
    Show(frmMain);
    Hide(frmSplash);
    Platform.Yield();
}
