#include "board/board.h"
#include "media/media.h"

#include <utility>

constexpr int PowerUses = 2;
constexpr int Exchanges = 576;

static void ResetCounters()
{
    GameState.RecentFaces.Clear();
    Hide(picPeek);
    GameState.MixCount = GameState.UndoCount = GameState.PairCount = PowerUses;
    GameState.PeekCount = GameState.PauseCount = GameState.PushCount = PowerUses;
    GameState.SpareCount = 4;
    GameState.PlaceCursor = 1;
    GameState.TileSelected = 0;
    GameState.BoardMap.Clear();
    for (auto* Stack :
         {&GameState.UndoTileA, &GameState.UndoAX, &GameState.UndoAY, &GameState.UndoAZ,
          &GameState.UndoTileB, &GameState.UndoBX, &GameState.UndoBY, &GameState.UndoBZ})
        Stack->Clear();
    GameState.UndoDepth = 0;
    SetCaption(lblScore, GameState.GameType == Agility ? "" : "Score");
    GameState.Score = 0;
    Show(imgFinesseGreen);
    Show(imgAgilityGreen);
    Show(imgWisdomGreen);
    RefreshPanel();
    GameState.AgilityTime = FullTime;
    ShowClock(GameState.AgilityTime);
    Hide(imgPauseBar);
    SetCaption(lblWord, "");
    GameState.WordTiles.Clear();
}

static void WaitForTheStartButton()
{
    GameState.WaitForStart = 0;
    Show(imgbutStart);
    Hide(imgbutEnd);
    if (GameState.RandomLayoutMode > 0) SetCaption(lblLayoutMain, "Random");
}

void NewGame()
{
    Randomize();
    ResetCounters();
    if (GameState.WaitForStart == 1) {
        WaitForTheStartButton();
        return;
    }
    SetCaption(lblScore, "0");
    Hide(imgbutStart);
    Show(imgbutEnd);
    BringToFront(imgbutEnd);
    GameState.GameRunning = 1;
    if (GameState.RandomLayoutMode > 0) {
        DrawRandomLayoutNumber();
        SetCaption(lblLayoutMain, GameState.LayoutName(LayoutIndex()));
    }
    ChooseTileSet();
    ChooseBackdrop();
    InitTiles();
    ShuffleTiles();
    PlaceLayout();
    if (GameState.GameType == Agility) SetCaption(lblScore, "");
    if (GameState.GameType == Wisdom) {
        ShowNote(NoteWordRest);
        SetCaption(lblBonus, " 0");
        Show(lblBonus);
    }
}

void InitTiles()
{
    for (int Tile = 1; Tile <= TileCount; ++Tile) {
        const int Face = (Tile - 1) % FaceCount + 1;
        SetPicture(imgTile(Tile), CellPicture(clpTileSet, Face - 1));
        SetTag(imgTile(Tile), TwoDigits(Face) + "00000");
        GameState.TileOrder(Tile) = Tile;
    }
}

void ShuffleTiles()
{
    Randomize();
    const int N = LayoutTileCount();
    for (int Round = 1; Round <= Exchanges; ++Round) {
        const int A = static_cast<int>(N * Rnd()) + 1;
        const int B = static_cast<int>(N * Rnd()) + 1;
        std::swap(GameState.TileOrder(A), GameState.TileOrder(B));
    }
}

void ShowDealtTiles()
{
    // Element numbers, not places: the first N entries of TileOrder are a permutation of 1 to N.
    const int N = LayoutTileCount();
    for (int Tile = 1; Tile <= N; ++Tile) {
        Show(imgTile(Tile));
        GameState.StartTileTags(Tile) = imgTile(Tile).Tag;
    }
}

void HideAllTiles()
{
    for (int Tile = 1; Tile <= TileCount; ++Tile) Hide(imgTile(Tile));
}

void imgbutStart_Action(int)
{
    NewGame();
    ShowDealtTiles();
    ScanOpenPairs();
    RefreshPanel();
    GameState.AgilityTime = FullTime;
    ShowClock(GameState.AgilityTime);
    GameState.GameRunning = 1;
    if (GameState.GameType == Agility) EnableTimer(tmrAgility);
}
