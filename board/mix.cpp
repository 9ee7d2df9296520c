#include "board/board.h"
#include "media/media.h"
#include "words/word_play.h"

static void SwapPictures(int TileA, int TileB)
{
    const Element& Scratch = imgTile(0);
    SetPicture(Scratch, imgTile(TileA).Shows);
    SetPicture(imgTile(TileA), imgTile(TileB).Shows);
    SetPicture(imgTile(TileB), Scratch.Shows);
}

static void SwapFaces(int TileA, int TileB)
{
    const std::string TagA = imgTile(TileA).Tag, TagB = imgTile(TileB).Tag;
    SetTag(imgTile(TileA), TagB.substr(0, 2) + TagA.substr(2));
    SetTag(imgTile(TileB), TagA.substr(0, 2) + TagB.substr(2));
    SwapPictures(TileA, TileB);
}

static int CollectVisibleTiles()
{
    int Count = 0;
    GameState.MixList.Clear();
    for (int Tile = 1; Tile <= TileCount; ++Tile)
        if (imgTile(Tile).Visible) GameState.MixList(++Count) = Tile;
    return Count;
}

void MixTiles()
{
    Randomize();
    if (GameState.MixCount == 0) return;
    if (GameState.GameType == Wisdom) DropWord();
    Hide(picPeek);
    if (GameState.PairMark > 0) TakeMarksAway();
    --GameState.MixCount;
    RefreshLights();
    for (int I = 1; I <= GameState.PairMarked(0); ++I) SetTileState(GameState.PairMarked(I), 0);
    DropSelection();

    // One pass with one forced partner for each place: deliberately not a uniform shuffle, and
    // without a promise of a free pair.
    const int Count = CollectVisibleTiles();
    for (int I = 1; I <= Count && Count >= 2; ++I) {
        int R;
        do R = RandomBetween(1, Count);
        while (R == I);
        SwapFaces(GameState.MixList(I), GameState.MixList(R));
    }
    ScanOpenPairs();
    RefreshPanel();
    if (GameState.MoveCount == 0 && GameState.GameType != Wisdom) ShowNoMoves();
    PlaySound("MIX");
}

void ShowNoMoves()
{
    SetClock(2);
    DisablePanel(0);
    Show(picBlack);
    if (GameState.MixCount >= 1) {
        Show(picNoMovesMix);
        return;
    }
    GameState.GameRunning = 0;
    ShowLostGame();
}

void imgNoMovesMixOK_Action(int)
{
    RefreshPanel();
    Hide(picNoMovesMix);
    Hide(picBlack);
    SetClock(1);
}
