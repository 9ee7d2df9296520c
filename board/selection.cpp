#include "board/board.h"
#include "media/media.h"
#include "words/word_play.h"

static bool IsSelected(int Tile)
{
    return GameState.TileSelected == 1 && Tile == GameState.SelectedTile;
}

static void PutCountBack()
{
    if (GameState.GameType == Wisdom) {
        ShowNote(NoteWordRest);
        ShowWordScore();
        GameState.NoteShowing = 0;
    } else {
        ScanOpenPairs();
    }
}

static bool IsPeekedTile(int Tile)
{
    return imgPeekTile.Tag == std::to_string(Tile);
}

static void RemoveMatch(int Tile)
{
    const int First = GameState.SelectedTile;
    const int Face = TileFace(Tile);
    const int X = TileX(Tile), Y = TileY(Tile), Z = TileZ(Tile);
    ++GameState.UndoDepth;
    const int Top = GameState.UndoDepth;
    GameState.UndoTileA(Top) = Tile;
    GameState.UndoAX(Top) = X;
    GameState.UndoAY(Top) = Y;
    GameState.UndoAZ(Top) = Z;
    PlaySound("Pair");
    if (picPeek.Visible && (IsPeekedTile(Tile) || IsPeekedTile(First))) Hide(picPeek);
    Hide(imgTile(Tile));
    SetTileState(First, 0);
    Hide(imgTile(First));
    GameState.BoardMap(X, Y, Z) = 0;
    const int FirstX = TileX(First), FirstY = TileY(First), FirstZ = TileZ(First);
    GameState.UndoTileB(Top) = First;
    GameState.UndoBX(Top) = FirstX;
    GameState.UndoBY(Top) = FirstY;
    GameState.UndoBZ(Top) = FirstZ;
    GameState.BoardMap(FirstX, FirstY, FirstZ) = 0;
    GameState.TilesLeft -= 2;
    GameState.TileSelected = 0;
    ScanOpenPairs();
    if (GameState.GameType == Finesse) ScoreMatch(Face);
    if (GameState.MoveCount == 0 && GameState.TilesLeft >= 1) ShowNoMoves();
    if (GameState.TilesLeft == 0) EndWonGame();
}

void imgTile_MouseDown(int Tile, MouseButton, int, int)
{
    HideTextNote();
    if (lblWord.Tag == NotAccepted) ClearWord();
    if (GameState.GameType == Wisdom && IsInWord(Tile)) return;
    if (GameState.GameType == Agility && tmrPause.Enabled) return;
    if (picNote.Tag == "3") return; // the game is over
    if (GameState.PeekMode == 1) {
        PeekStep(Tile); // takes blocked tiles too, as do PAIR and PUSH
        return;
    }
    if (GameState.PairMark == PairArmed) {
        PairStep(Tile);
        return;
    }
    if (GameState.PushMode == 1) {
        PushStep(Tile);
        return;
    }
    if (GameState.PairMark > 0) TakeMarksAway();
    if (GameState.NoteShowing == 1) PutCountBack();
    if (IsSelected(Tile)) {
        SetTileState(Tile, 0);
        GameState.TileSelected = 0;
        return;
    }
    const int Face = TileFace(Tile);
    const bool Blocked = IsBlocked(TileX(Tile), TileY(Tile), TileZ(Tile));
    if (GameState.GameType == Wisdom) {
        AddLetter(Tile);
        return;
    }
    if (Blocked) {
        ShowNote(NoteBlocked);
        return; // the selection stays
    }
    if (GameState.TileSelected == 0) {
        SetTileState(Tile, 1);
        GameState.TileSelected = 1;
        GameState.SelectedTile = Tile;
        GameState.SelectedFace = Face;
        return;
    }
    if (Face != GameState.SelectedFace) {
        ShowNote(NoteMismatch);
        return; // the first tile stays selected
    }
    RemoveMatch(Tile);
}

// True when the hover may put that tile back to its normal state.
static bool MayDim(int Tile)
{
    return !IsSelected(Tile) && !IsInWord(Tile);
}

void imgTile_MouseMove(int Tile, MouseButton, int, int)
{
    if (GameState.GameType == Agility && tmrPause.Enabled) return;
    if (GameState.PushMode == 1 || GameState.PairMark > 0 || GameState.PeekMode == 1) return;
    if (picNote.Tag == "3") return;
    const int Former = GameState.HoverTile;
    if (IsBlocked(TileX(Tile), TileY(Tile), TileZ(Tile))) {
        if (MayDim(Former)) SetTileState(Former, 0);
        return; // HoverTile keeps its value
    }
    if (!IsSelected(Tile)) {
        if (!IsInWord(Tile)) SetTileState(Tile, 1);
        if (Former != Tile && MayDim(Former)) SetTileState(Former, 0);
        GameState.HoverTile = Tile;
        return;
    }
    if (Former != Tile && !IsInWord(Former)) SetTileState(Former, 0);
}

void picBoard_MouseMove(int, MouseButton, int, int)
{
    ClearHover();
}

void picBoard_MouseDown(int, MouseButton, int, int)
{
    HideTextNote();
    if (GameState.PeekMode != 1 && GameState.PairMark < 1) ScanOpenPairs();
}
