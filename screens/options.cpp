// options.cpp: the player's settings. Every change is made on a pending copy and shows at once;
// only imgButOptionsAccept makes it real. Music alone reacts at once.
#include "board/board.h"
#include "frame/files.h"
#include "media/media.h"
#include "screens/screens.h"
#include "words/word_play.h"

constexpr int CellSize = 60, SheetColumns = 12;
constexpr int SetsOfGroup = 24, BackdropsOfGroup = 36;
constexpr int SheetWidth = 720, TileSheetHeight = 120, BackdropSheetHeight = 180;
constexpr float FrameInset = 3;
constexpr const char* TypeRefused = "You must end your current game before changing game types";

static Picture OnOff(bool On)
{
    return StockPicture(imgOption(On ? 1 : 0));
}

// --- the frame around the chosen cell ---

// The holder of the frame lies over one of the two sheets; the frame stands in it.
static void FrameCell(const Element& Sheet, int Cell)
{
    SetPlace(picFrameHolder, Sheet.Left, Sheet.Top);
    SetPlace(imgSingleTile, static_cast<float>(Cell % SheetColumns * CellSize) + FrameInset,
             static_cast<float>(Cell / SheetColumns * CellSize) + FrameInset);
}

static bool TilesFixed()
{
    return GameState.OptTileCycle == 0 && GameState.OptTileRandom == 0;
}
static bool BackdropFixed()
{
    return GameState.OptBackdropCycle == 0 && GameState.OptBackdropRandom == 0;
}

static void FrameTileSet()
{
    const int Number = GameState.OptTileSet;
    const bool OnSheet = Number >= 1 && (Number - 1) / SetsOfGroup == GameState.TileGroupShown;
    if (OnSheet) FrameCell(lblOptionsTileSet, (Number - 1) % SetsOfGroup);
    SetVisible(imgSingleTile, OnSheet && TilesFixed() && GameState.OptGameType != Wisdom);
}

static void FrameBackdrop()
{
    const int Number = GameState.OptBackdrop;
    const bool OnSheet =
        Number >= 1 && (Number - 1) / BackdropsOfGroup == GameState.BackdropGroupShown;
    if (OnSheet) FrameCell(imgTileSetSample, (Number - 1) % BackdropsOfGroup);
    SetVisible(imgSingleTile, OnSheet && BackdropFixed());
}

// --- what the pending values look like ---

static void LoadTileSheet()
{
    LoadPicture(lblOptionsTileSet, "TS", 9000 + GameState.TileGroupShown, SheetWidth,
                TileSheetHeight);
    SetCaption(Label1, LayoutSetName(GameState.TileGroupShown));
}

static void LoadBackdropSheet()
{
    LoadPicture(imgTileSetSample, "BD", 9000 + GameState.BackdropGroupShown, SheetWidth,
                BackdropSheetHeight);
}

static void ShowTileChoice()
{
    const bool Cycle = GameState.OptTileCycle > 0, Random = GameState.OptTileRandom > 0;
    ShowChoice(imgOptTileSet, Random ? 2 : Cycle ? 1 : 0);
    if (Random)
        SetCaption(lblTileSet, "(Random)");
    else if (Cycle)
        SetCaption(lblTileSet, "(Cycle)");
    else
        SetCaption(lblTileSet, GameState.TileSetNames(std::max(1, +GameState.OptTileSet) - 1));
    const Element* Groups[] = {&imgTileSetGroup0, &imgTileSetGroup1, &imgTileSetGroup2};
    for (int I = 0; I < 3; ++I)
        SetPicture(*Groups[I], OnOff(TilesFixed() && I == GameState.TileGroupShown));
    FrameTileSet();
}

static void ShowBackdropChoice()
{
    const bool Cycle = GameState.OptBackdropCycle > 0, Random = GameState.OptBackdropRandom > 0;
    ShowChoice(imgOptBackground, Random ? 2 : Cycle ? 1 : 0);
    if (Random)
        SetCaption(lblBackDrop, "(Random)");
    else if (Cycle)
        SetCaption(lblBackDrop, "(Cycle)");
    else
        SetCaption(lblBackDrop, GameState.BackdropNames(std::max(1, +GameState.OptBackdrop) - 1));
    SetPicture(imgBackDropGroup0, OnOff(BackdropFixed() && GameState.BackdropGroupShown == 0));
    SetPicture(imgBackDropGroup1, OnOff(BackdropFixed() && GameState.BackdropGroupShown == 1));
}

// Wisdom always plays with the letter tiles: its sample takes the place of the choice.
static void ShowGameType()
{
    for (int I = 0; I < 3; ++I)
        SetPicture(imgGameType(I),
                   StockPicture(imgOptGame(I + 1 == GameState.OptGameType ? 1 : 0)));
    const bool Letters = GameState.OptGameType == Wisdom;
    if (Letters) LoadTileSet(picWisdomSample, 0);
    SetVisible(picWisdomSample, Letters);
    SetVisible(picTileSetPage, !Letters);
    SetVisible(lblTileSet, !Letters);
    for (int I = 0; I < 3; ++I) {
        SetVisible(imgOptTileSet(I), !Letters);
        SetVisible(lblOptTileSet(I), !Letters);
    }
    FrameTileSet();
}

static void HidePreviews()
{
    Hide(picBackSample);
    Hide(picSample1);
    GameState.SampleShown = 1;
}

// The sheet of a content pack that was taken away may have gone with it.
static void LeaveMissingGroup()
{
    const int Group = GameState.TileGroupShown;
    if (GameState.LayoutSets(GameState.TilePageCursor) == Group) return; // installed
    if (FileExists(DataFile("TS", 9000 + Group))) return;
    GameState.TileGroupShown = 0;
    GameState.TilePageCursor = 1;
}

void OpenOptions()
{
    LeaveMissingGroup();
    GameState.OptGameType = GameState.GameType;
    GameState.OptMusicOn = GameState.MusicOn;
    GameState.OptSoundLevel = GameState.SoundLevel;
    GameState.OptTileSet = GameState.TileSetFixed;
    GameState.OptTileCycle = GameState.TileSetRotate;
    GameState.OptTileRandom = GameState.TileSetRandom;
    GameState.OptBackdrop = GameState.BackdropFixed;
    GameState.OptBackdropCycle = GameState.BackdropRotate;
    GameState.OptBackdropRandom = GameState.BackdropRandom;
    GameState.OptHelpBalloons = GameState.HelpBalloons;
    GameState.TileGroupKept = GameState.TileGroupShown;
    GameState.BackdropGroupKept = GameState.BackdropGroupShown;
    LoadTileSheet();
    LoadBackdropSheet();
    HidePreviews();
    Hide(imgGameDesc);
    SetCaption(lblOptionsNote, "");
    ShowBackdropChoice();
    ShowTileChoice();
    ShowGameType();
    SetPicture(imgOptMusic, OnOff(GameState.OptMusicOn == 1));
    SetPicture(imgOptSoundFX, OnOff(GameState.OptSoundLevel == 2));
    SetPicture(imgHelpBalloons, OnOff(GameState.OptHelpBalloons == 1));
    OpenFromMenu(picOptions);
}

// --- the options ---

static void imgGameType_Action(int I)
{
    if (GameState.GameRunning == 1) {
        SetCaption(lblOptionsNote, TypeRefused);
        return;
    }
    GameState.OptGameType = I + 1;
    ShowGameType();
    Hide(imgGameDesc);
    Show(imgGameDesc(I));
    ChangedOption();
}

static void imgOptTileSet_Action(int I)
{
    GameState.OptTileCycle = I == 1 ? 1 : 0;
    GameState.OptTileRandom = I == 2 ? 1 : 0;
    if (I == 0 && GameState.OptTileSet == 0) GameState.OptTileSet = 1;
    ShowTileChoice();
    ChangedOption();
}

static void imgOptBackground_Action(int I)
{
    GameState.OptBackdropCycle = I == 1 ? 1 : 0;
    GameState.OptBackdropRandom = I == 2 ? 1 : 0;
    if (I == 0 && GameState.OptBackdrop == 0) GameState.OptBackdrop = 1;
    ShowBackdropChoice();
    FrameBackdrop();
    ChangedOption();
}

static void ShowTileGroup(int Group)
{
    GameState.TileGroupShown = Group;
    LoadTileSheet();
    ShowTileChoice();
}

static void PageCursorTo(int Group)
{
    for (int I = 1; I <= GameState.TileSetCount / SetsOfGroup; ++I)
        if (GameState.LayoutSets(I) == Group) GameState.TilePageCursor = I;
}

static void ShowTileGroupAndPage(int Group)
{
    PageCursorTo(Group);
    ShowTileGroup(Group);
}

static void imgTileSetGroup0_Action(int)
{
    ShowTileGroupAndPage(0);
}
static void imgTileSetGroup1_Action(int)
{
    ShowTileGroupAndPage(1);
}
static void imgTileSetGroup2_Action(int)
{
    ShowTileGroupAndPage(2);
}
static void lblOptTileGroup_Click(int)
{
    ShowTileGroupAndPage(GameState.TileGroupShown >= 2 ? 0 : GameState.TileGroupShown + 1);
}

static void lblTS_PageL_Click(int)
{
    --GameState.TilePageCursor;
    if (GameState.TilePageCursor < 1)
        GameState.TilePageCursor = GameState.TileSetCount / SetsOfGroup;
    ShowTileGroup(GameState.LayoutSets(GameState.TilePageCursor));
}

static void lblTS_PageR_Click(int)
{
    constexpr int LastEntry = 101;
    ++GameState.TilePageCursor;
    if (GameState.TilePageCursor > LastEntry || GameState.LayoutSets(GameState.TilePageCursor) == 0)
        GameState.TilePageCursor = 1;
    ShowTileGroup(GameState.LayoutSets(GameState.TilePageCursor));
}

static void ShowBackdropGroup(int Group)
{
    GameState.BackdropGroupShown = Group;
    LoadBackdropSheet();
    HidePreviews();
    ShowBackdropChoice();
    FrameBackdrop();
}

static void imgBackDropGroup0_Action(int)
{
    ShowBackdropGroup(0);
}
static void imgBackDropGroup1_Action(int)
{
    ShowBackdropGroup(1);
}
static void lblOptBackGroup_Click(int)
{
    ShowBackdropGroup(1 - GameState.BackdropGroupShown);
}

// --- presses on the sample sheets ---

static int CellAt(int X, int Y)
{
    return Y / CellSize * SheetColumns + X / CellSize;
}

static void lblOptionsTileSet_MouseDown(int, MouseButton, int X, int Y)
{
    GameState.OptTileSet = GameState.TileGroupShown * SetsOfGroup + CellAt(X, Y) + 1;
    GameState.OptTileCycle = GameState.OptTileRandom = 0;
    ShowTileChoice();
    LoadTileSet(picSample1, GameState.OptTileSet);
    SetPlace(picSample1, lblOptionsTileSet.Left, lblOptionsTileSet.Top);
    Show(picSample1);
    GameState.SampleShown = 0;
    ChangedOption();
}

static void imgTileSetSample_MouseDown(int, MouseButton, int X, int Y)
{
    GameState.OptBackdrop = GameState.BackdropGroupShown * BackdropsOfGroup + CellAt(X, Y) + 1;
    GameState.OptBackdropCycle = GameState.OptBackdropRandom = 0;
    ShowBackdropChoice();
    FrameBackdrop();
    LoadBackdrop(picBackSample, GameState.OptBackdrop);
    Show(picBackSample);
    // Some tiles of the chosen set on the chosen backdrop.
    const int Set = GameState.OptGameType == Wisdom ? 0 : std::max(1, +GameState.OptTileSet);
    LoadTileSet(picSample1, Set);
    SetPlace(picSample1, imgTileSetSample.Left, imgTileSetSample.Top + CellSize / 2);
    Show(picSample1);
    Hide(imgSingleTile);
    GameState.SampleShown = 0;
    ChangedOption();
}

// The next move of the mouse takes descriptions, notes and previews away.
static void picOptions_MouseMove(int, MouseButton, int, int)
{
    Hide(imgGameDesc);
    SetCaption(lblOptionsNote, "");
    if (GameState.SampleShown == 1) return;
    const bool BackdropPreview = picBackSample.Visible;
    LoadBackdropSheet();
    HidePreviews();
    if (BackdropPreview)
        FrameBackdrop();
    else
        FrameTileSet();
}

// --- music, sound, balloons ---

static void imgOptMusic_Action(int)
{
    GameState.OptMusicOn = GameState.OptMusicOn == 1 ? 0 : 1;
    if (GameState.OptMusicOn == 1)
        StartMusic();
    else
        StopMusic();
    SetPicture(imgOptMusic, OnOff(GameState.OptMusicOn == 1));
    ChangedOption();
}

static void imgOptSoundFX_Action(int)
{
    GameState.OptSoundLevel = GameState.OptSoundLevel == 1 ? 2 : 1;
    SetPicture(imgOptSoundFX, OnOff(GameState.OptSoundLevel == 2));
    ChangedOption();
}

static void imgHelpBalloons_Action(int)
{
    GameState.OptHelpBalloons = GameState.OptHelpBalloons == 1 ? 0 : 1;
    SetHelpBalloons(GameState.OptHelpBalloons == 1);
    SetPicture(imgHelpBalloons, OnOff(GameState.OptHelpBalloons == 1));
    ChangedOption();
}

// --- accept and cancel ---

static void CloseOptions()
{
    CloseFullScreen(picOptions);
    for (const Element* Sheet :
         {&lblOptionsTileSet, &imgTileSetSample, &picWisdomSample, &picBackSample, &picSample1})
        SetPicture(*Sheet, NoPicture());
}

static void GiveTilesTheirFaces()
{
    for (int Tile = 1; Tile <= TileCount; ++Tile) {
        if (!imgTile(Tile).Visible) continue;
        const bool Selected = GameState.TileSelected == 1 && Tile == GameState.SelectedTile;
        SetTileState(Tile, Selected ? 1 : IsInWord(Tile) ? 2 : 0);
    }
}

static void imgButOptionsAccept_Action(int)
{
    if (TilesFixed() && GameState.OptTileSet == 0) GameState.OptTileSet = 1;
    if (BackdropFixed() && GameState.OptBackdrop == 0) GameState.OptBackdrop = 1;
    if (GameState.OptGameType != Wisdom && TilesFixed()) LoadNamedTileSet(GameState.OptTileSet);
    if (GameState.GameRunning == 1 && TilesFixed()) GiveTilesTheirFaces();
    if (GameState.OptBackdrop != GameState.BackdropFixed) LoadNamedBackdrop(GameState.OptBackdrop);
    GameState.GameType = GameState.OptGameType;
    GameState.MusicOn = GameState.OptMusicOn;
    GameState.SoundLevel = GameState.OptSoundLevel;
    GameState.TileSetFixed = GameState.OptTileSet;
    GameState.TileSetRotate = GameState.OptTileCycle;
    GameState.TileSetRandom = GameState.OptTileRandom;
    GameState.BackdropFixed = GameState.OptBackdrop;
    GameState.BackdropRotate = GameState.OptBackdropCycle;
    GameState.BackdropRandom = GameState.OptBackdropRandom;
    GameState.HelpBalloons = GameState.OptHelpBalloons;
    if (GameState.GameRunning != 1) {
        ShowGamePanel();
        RefreshPanel();
    }
    CloseOptions();
    if (GameState.GameType == Wisdom) LoadNamedTileSet(0);
}

static void BringMusicIntoLine()
{
    if (GameState.MusicOn != 1 && GameState.MusicPlaying == 1) StopMusic();
    if (GameState.MusicOn == 1 && GameState.MusicPlaying == 0) StartMusic();
}

static void imgButOptionsCancel_Action(int)
{
    GameState.TileGroupShown = GameState.TileGroupKept;
    PageCursorTo(GameState.TileGroupShown);
    GameState.BackdropGroupShown = GameState.BackdropGroupKept;
    GameState.OptTileSet = GameState.TileSetFixed;
    if (GameState.GameType == Wisdom)
        LoadNamedTileSet(0);
    else if (GameState.TileSetRotate == 0 && GameState.TileSetRandom == 0)
        LoadNamedTileSet(GameState.TileSetFixed);
    SetHelpBalloons(GameState.HelpBalloons == 1);
    CloseOptions();
    BringMusicIntoLine();
}

// The image buttons of the screen and the labels that do the same.
struct OptionRow {
    const Element& Picture;
    IndexHandler Action;
};
static const OptionRow OptionButtons[] = {
    {imgTileSetGroup0, imgTileSetGroup0_Action},
    {imgTileSetGroup1, imgTileSetGroup1_Action},
    {imgTileSetGroup2, imgTileSetGroup2_Action},
    {imgBackDropGroup0, imgBackDropGroup0_Action},
    {imgBackDropGroup1, imgBackDropGroup1_Action},
    {imgOptMusic, imgOptMusic_Action},
    {imgOptSoundFX, imgOptSoundFX_Action},
    {imgHelpBalloons, imgHelpBalloons_Action},
    {imgButOptionsAccept, imgButOptionsAccept_Action},
    {imgButOptionsCancel, imgButOptionsCancel_Action},
};

void SetOptionsHandlers()
{
    for (const OptionRow& Row : OptionButtons) SetHandlers(Row.Picture, {.Action = Row.Action});
    SetHandlers(imgGameType, {.Action = imgGameType_Action});
    SetHandlers(imgOptTileSet, {.Action = imgOptTileSet_Action});
    SetHandlers(imgOptBackground, {.Action = imgOptBackground_Action});

    const auto Label = [](auto& E, IndexHandler Click) {
        SetHandlers(E, {.MouseMove = picOptions_MouseMove, .Click = Click});
    };
    Label(lblGameType, imgGameType_Action);
    Label(lblOptTileSet, imgOptTileSet_Action);
    Label(lblOptBackground, imgOptBackground_Action);
    Label(lblOptMusic, imgOptMusic_Action);
    Label(lblOptSoundFX, imgOptSoundFX_Action);
    Label(lblHelpBalloons, imgHelpBalloons_Action);
    Label(lblOptTileGroup, lblOptTileGroup_Click);
    Label(lblOptBackGroup, lblOptBackGroup_Click);
    Label(lblTS_PageL, lblTS_PageL_Click);
    Label(lblTS_PageR, lblTS_PageR_Click);

    for (const Element* Panel : {&picOptions, &picBackSample, &picSample1, &picWisdomSample})
        SetHandlers(*Panel, {.MouseMove = picOptions_MouseMove});
    SetHandlers(lblOptionsTileSet,
                {.MouseDown = lblOptionsTileSet_MouseDown, .MouseMove = picOptions_MouseMove});
    SetHandlers(imgTileSetSample,
                {.MouseDown = imgTileSetSample_MouseDown, .MouseMove = picOptions_MouseMove});
}
