#include "board/board.h"
#include "words/word_play.h"

// Left of the units on the note panel: beside the tens, or alone in the middle.
constexpr float UnitsBesideTens = 88, UnitsAlone = 82;

void SetTileState(int Tile, int State)
{
    if (Tile == 0) return;
    SetPicture(imgTile(Tile), CellPicture(clpTileSet, TileFace(Tile) - 1 + FaceCount * State));
}

void ShowNote(int Note)
{
    if (Note < 3) GameState.NoteShowing = 1;
    Hide(imgBlueDigitA);
    Hide(imgBlueDigitB);
    const bool HasBonus = Note == NoteStreak || Note == NoteWinBonus || Note == NoteWordRest;
    SetVisible(lblBonus(0), HasBonus);
    SetVisible(lblBonus(1), HasBonus);
    SetPicture(picNote, CellPicture(clpNotes, Note));
    SetTag(picNote, std::to_string(Note));
}

void ShowOpenPairCount()
{
    ShowNote(NoteOpenPairs);
    const int Tens = GameState.MoveCount / 10 % 10, Units = GameState.MoveCount % 10;
    SetPicture(imgBlueDigitB, CellPicture(clpBlueDigitsB, Units));
    Show(imgBlueDigitB);
    SetPicture(imgBlueDigitA, CellPicture(clpBlueDigitsA, Tens));
    SetVisible(imgBlueDigitA, Tens != 0);
    SetPlace(imgBlueDigitB, GameState.MoveCount >= 10 ? UnitsBesideTens : UnitsAlone,
             imgBlueDigitB.Top);
}

void ShowClock(I16& Value)
{
    if (Value < 0) Value = 0;
    int Place[4] = {Value / 1000 % 10, Value / 100 % 10, Value / 10 % 10, Value % 10};
    for (int& Cell : Place) Cell += 1;
    if (Value < 1000) Place[0] = 0;
    if (Value < 100) Place[1] = 0;
    if (Value < 10) Place[2] = 0;
    for (int I = 0; I < 4; ++I) SetPicture(imgLED(I), CellPicture(clpDigits, Place[I]));
}

void ShowGamePanel()
{
    for (int Type = Finesse; Type <= Wisdom; ++Type)
        SetVisible(picGamePanel(Type), Type == GameState.GameType);
}

void ClearHover()
{
    const int Tile = GameState.HoverTile;
    if (GameState.TileSelected == 1 && Tile == GameState.SelectedTile) return;
    if (IsInWord(Tile) || GameState.PairMark != 0) return;
    SetTileState(Tile, 0);
}
