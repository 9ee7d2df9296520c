#include "words/word_play.h"

#include "board/board.h"
#include "frame/files.h"
#include "words/words.h"

constexpr Colour WordAtRest = {192, 192, 192};

bool IsInWord(int Tile)
{
    if (GameState.GameType != Wisdom) return false;
    for (int I = 1; I <= GameState.WordTiles(0); ++I)
        if (GameState.WordTiles(I) == Tile) return true;
    return false;
}

void AddLetter(int Tile)
{
    if (IsBlocked(TileX(Tile), TileY(Tile), TileZ(Tile))) {
        ShowNote(NoteBlocked);
        return;
    }
    SetTileState(Tile, 2);
    ++GameState.WordTiles(0);
    GameState.WordTiles(GameState.WordTiles(0)) = Tile;
    SetCaption(lblWord, lblWord.Caption + GameState.FaceLetter(TileFace(Tile)));
}

void ShowWordScore()
{
    SetCaption(lblBonus, std::to_string(GameState.WordScore) + " ");
}

void ClearWord()
{
    SetTag(lblWord, "");
    SetCaption(lblWord, "");
    SetInk(lblWord, WordAtRest);
    ShowNote(NoteWordRest);
    ShowWordScore();
}

void DropWord()
{
    for (int I = 1; I <= GameState.WordTiles(0); ++I) SetTileState(GameState.WordTiles(I), 0);
    // Tag and colour of a refused word stay, so that the next press on a tile still clears it.
    SetCaption(lblWord, "");
    GameState.WordTiles.Clear();
}

void imgAcceptWord_Action(int) {} // comes with the dictionary

void imgUndoWisdom_Action(int)
{
    if (lblWord.Tag == NotAccepted) {
        ClearWord();
        return;
    }
    if (lblWord.Caption.empty()) return;
    const int Count = GameState.WordTiles(0);
    SetTileState(GameState.WordTiles(Count), 0);
    GameState.WordTiles(0) = Count - 1;
    SetCaption(lblWord, lblWord.Caption.substr(0, lblWord.Caption.size() - 1));
}

void OpenDictionary()
{
    std::int16_t Code = OpenFile;
    DictionaryCommand(HostPath("\\DATA\\AS0001"), Code);
}
