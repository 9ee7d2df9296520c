#include "words/word_play.h"

#include "board/board.h"
#include "frame/files.h"
#include "media/media.h"
#include "words/words.h"

#include <algorithm>

constexpr Colour WordAtRest = {192, 192, 192}, WordRefused = {255, 0, 0};
constexpr int ShortestWord = 3;
constexpr int LongestPaid = 9; // longer words earn no more

// The bonus for clearing the board, by the block of the layout.
struct CompletionBonusRow {
    int FirstBlock, LastBlock, Low, High;
};
constexpr CompletionBonusRow CompletionBonusTable[] = {
    {0, 0, 10, 20}, {1, 5, 25, 35}, {6, 8, 40, 50}, {9, 9, 55, 65}};

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
    AddToCaption(lblWord, GameState.FaceLetter(TileFace(Tile)));
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

// --- the word is handed in ---

static bool IsGoodWord()
{
    std::int16_t Code = CheckWord;
    DictionaryCommand(lblWord.Caption, Code);
    return Code != 0 && lblWord.Caption != GameState.BannedWords(1) &&
           lblWord.Caption != GameState.BannedWords(2);
}

static void RefuseWord()
{
    SetInk(lblWord, WordRefused);
    SetTag(lblWord, NotAccepted); // the word stays, so that the player sees what was refused
    for (int I = 1; I <= GameState.WordTiles(0); ++I) SetTileState(GameState.WordTiles(I), 0);
    GameState.WordTiles.Clear();
    ShowNote(NoteNotFound);
    GameState.NoteShowing = 1;
}

static void TakeWord()
{
    const int Length = static_cast<int>(lblWord.Caption.size());
    GameState.TilesLeft -= Length;
    GameState.WordScore = GameState.WordPoints(std::min(Length, LongestPaid));
    GameState.Score += GameState.WordScore;
    SetCaption(lblScore, std::to_string(GameState.Score));
    SetCaption(lblWord, "");
    for (int I = 1; I <= GameState.WordTiles(0); ++I) {
        const int Tile = GameState.WordTiles(I);
        Hide(imgTile(Tile));
        GameState.BoardMap(TileX(Tile), TileY(Tile), TileZ(Tile)) = 0;
        GameState.TileSelected = 0;
        Platform.Yield();
    }
    PlaySound("pair");
    GameState.WordTiles.Clear();
}

// One or two tiles make no word.
static void LoseGame()
{
    DisablePanel(0);
    Show(picBlack);
    GameState.GameRunning = 0;
    ShowNote(NoteGameOver);
    ShowLostGame();
}

static int CompletionBonus()
{
    const int Block = LayoutBlock(GameState.LayoutNumber);
    for (const CompletionBonusRow& Row : CompletionBonusTable)
        if (Block >= Row.FirstBlock && Block <= Row.LastBlock)
            return RandomBetween(Row.Low, Row.High);
    return 0;
}

static void ClearBoard()
{
    GameState.GameRunning = 0;
    DisablePanel(0);
    const int Bonus = CompletionBonus();
    GameState.Score += Bonus;
    SetCaption(lblScore, std::to_string(GameState.Score));
    SetCaption(lblBonus, std::to_string(Bonus));
    ShowNote(NoteWinBonus);
    CongratulateOrAskName(GameState.LastName);
}

void imgAcceptWord_Action(int)
{
    if (lblWord.Caption.size() < ShortestWord) {
        ShowNote(NoteTooShort);
        GameState.NoteShowing = 1;
        return; // the word and its tiles stay
    }
    if (!IsGoodWord()) {
        RefuseWord();
        return;
    }
    TakeWord();
    if (GameState.TilesLeft >= ShortestWord) {
        ShowNote(NoteWordRest);
        ShowWordScore();
    } else if (GameState.TilesLeft >= 1) {
        LoseGame();
    } else if (GameState.TilesLeft == 0) {
        ClearBoard();
    }
}

void imgUndoWisdom_Action(int)
{
    if (lblWord.Tag == NotAccepted) {
        ClearWord();
        return;
    }
    if (lblWord.Caption.empty()) return;
    const int Count = GameState.WordTiles(0);
    if (Count > 0) {
        SetTileState(GameState.WordTiles(Count), 0);
        GameState.WordTiles(0) = Count - 1;
    }
    SetCaption(lblWord, lblWord.Caption.substr(0, lblWord.Caption.size() - 1));
}

// --- start-up ---

void OpenDictionary()
{
    std::int16_t Code = OpenFile;
    DictionaryCommand(HostPath("\\DATA\\AS0001"), Code);
}
