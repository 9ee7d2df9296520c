#include "board/board.h"
#include "media/media.h"

static void SetHintedPairNormal()
{
    SetTileState(GameState.OpenPairA(GameState.HintCursor), 0);
    SetTileState(GameState.OpenPairB(GameState.HintCursor), 0);
}

void DropSelection()
{
    SetHintedPairNormal();
    SetTileState(GameState.SelectedTile, 0);
    GameState.TileSelected = 0;
}

void TakeMarksAway()
{
    for (int Tile = 1; Tile <= TileCount; ++Tile)
        if (imgTile(Tile).Visible && TileFace(Tile) == GameState.PairMark) SetTileState(Tile, 0);
    GameState.PairMark = 0;
}

void imgUndo_Action(int)
{
    if (GameState.UndoCount == 0) return;
    if (GameState.UndoDepth == 0) {
        ShowNote(NoteNothingToUndo);
        return;
    }
    if (GameState.PairMark > 0) TakeMarksAway();
    --GameState.UndoCount;
    RefreshLights();
    PlaySound("undo");
    GameState.RecentFaces.Clear(); // an undo breaks a streak
    SetHintedPairNormal();
    const int Top = GameState.UndoDepth;
    GameState.BoardMap(GameState.UndoAX(Top), GameState.UndoAY(Top), GameState.UndoAZ(Top)) = 1;
    GameState.BoardMap(GameState.UndoBX(Top), GameState.UndoBY(Top), GameState.UndoBZ(Top)) = 1;
    Show(imgTile(GameState.UndoTileA(Top)));
    Show(imgTile(GameState.UndoTileB(Top)));
    --GameState.UndoDepth;
    GameState.TilesLeft += 2;
    // The points of the pair stay, and clearing it again earns them a second time: wanted.
    SetTileState(GameState.SelectedTile, 0);
    GameState.TileSelected = 0;
    ScanOpenPairs();
    RefreshPanel();
}

void imgPeek_Action(int)
{
    if (GameState.PeekCount == 0) return;
    if (GameState.PairMark > 0) TakeMarksAway();
    GameState.PeekMode = 1;
    ShowNote(NotePickTile);
    DisablePanel(0);
}

void PeekStep(int Tile)
{
    --GameState.PeekCount;
    RefreshLights();
    SetPicture(imgPeekTile, CellPicture(clpTileSet, TileFace(Tile) - 1));
    SetTag(imgPeekTile, std::to_string(Tile));
    GameState.PeekMode = 0;
    Show(picPeek);
    RefreshPanel();
    ScanOpenPairs();
    RefreshPanel();
    PlaySound("PEEK");
}

void picPeek_Click(int)
{
    Hide(picPeek);
}

void imgPair_Action(int)
{
    if (GameState.PairCount == 0) return;
    if (GameState.PairMark > 0) TakeMarksAway();
    ShowNote(NotePickTile);
    DisablePanel(0);
    GameState.PairMark = PairArmed;
}

void PairStep(int Tile)
{
    DropSelection();
    --GameState.PairCount;
    RefreshLights();
    GameState.PairMark = TileFace(Tile);
    GameState.PairMarked.Clear();
    int Marked = 0;
    for (int Other = 1; Other <= TileCount; ++Other) {
        if (!imgTile(Other).Visible || TileFace(Other) != GameState.PairMark) continue;
        SetTileState(Other, 2);
        GameState.PairMarked(++Marked) = Other;
    }
    GameState.PairMarked(0) = Marked;
    RefreshPanel();
    ScanOpenPairs();
    PlaySound("PEEK"); // PAIR has the sound of PEEK; "Pair" is that of a match
}

void imgPush_Action(int)
{
    if (GameState.PushCount == 0) return;
    GameState.PushMode = 1;
    ShowNote(NotePickTile);
    DisablePanel(0);
}

void PushStep(int Tile)
{
    --GameState.PushCount;
    RefreshLights();
    const int Face = GameState.PushFace(TileFace(Tile));
    SetTag(imgTile(Tile), TwoDigits(Face) + imgTile(Tile).Tag.substr(2));
    SetTileState(Tile, 0);
    RefreshPanel();
    GameState.PushMode = 0;
    PlaySound("PUSH");
}
