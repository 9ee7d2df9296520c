// bots.cpp: plays whole games through the handlers and checks the board after every event by other
// means than the rules use. "bots GAMES [SEED]" plays as fast as it can; "bots HOURS N [SEED]"
// plays at a player's pace on a virtual clock, and the memory of the process must not grow.
#include "media/media.h"
#include "tests/common/game_dir.h"
#include "words/words.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <random>

static std::mt19937 Chance;
static long long Events = 0;
static long long Now = 0; // the virtual clock, ms
static int Pace = 0;      // ms between two presses
static int LastScore = 0;

[[noreturn]] static void Fail(const std::string& What)
{
    std::cerr << "bots: after event " << Events << ", layout " << LayoutIndex() << ", type "
              << GameState.GameType << ": " << What << std::endl;
    std::exit(1);
}

static void Demand(bool Holds, const char* What)
{
    if (!Holds) Fail(What);
}

struct Place {
    int X, Y, Z, Face, Tile;
};

// The four quarters that every tile covers. A tile is free when no quarter of the layer above lies
// over it and one of its sides touches no quarter: another way than the anchors of BoardMap.
static std::uint8_t Covered[12][44][44]; // layer, row, column; moved by 2 to have a rim

static std::uint8_t& Quarter(int X, int Y, int Z)
{
    return Covered[Z][Y + 2][X + 2];
}

static bool IsFree(const Place& P)
{
    const int X = P.X, Y = P.Y, Z = P.Z;
    if (Quarter(X, Y, Z + 1) || Quarter(X + 1, Y, Z + 1) || Quarter(X, Y + 1, Z + 1) ||
        Quarter(X + 1, Y + 1, Z + 1))
        return false;
    const bool Left = Quarter(X - 1, Y, Z) || Quarter(X - 1, Y + 1, Z);
    const bool Right = Quarter(X + 2, Y, Z) || Quarter(X + 2, Y + 1, Z);
    return !(Left && Right);
}

static void Cover(const std::vector<Place>& All)
{
    std::memset(Covered, 0, sizeof Covered);
    for (const Place& P : All)
        for (int DY = 0; DY < 2; ++DY)
            for (int DX = 0; DX < 2; ++DX) Quarter(P.X + DX, P.Y + DY, P.Z) = 1;
}

static int CountPairs(const std::vector<Place>& All)
{
    Cover(All);
    int FreeOfFace[FaceCount + 1] = {};
    for (const Place& P : All) FreeOfFace[P.Face] += IsFree(P);
    int Pairs = 0;
    for (int Free : FreeOfFace) Pairs += Free / 2;
    return Pairs;
}

static const std::vector<Place>& VisibleTiles()
{
    static std::vector<Place> All;
    All.clear();
    for (int Tile = 1; Tile <= TileCount; ++Tile) {
        if (!imgTile(Tile).Visible) continue;
        const std::string& Tag = imgTile(Tile).Tag;
        const auto Two = [&](int At) { return (Tag[At] - '0') * 10 + (Tag[At + 1] - '0'); };
        All.push_back({Two(2), Two(4), Tag[6] - '0', Two(0), Tile});
    }
    return All;
}

static int OccupiedCells()
{
    int Count = 0;
    for (const I16& Cell : GameState.BoardMap.Cells) Count += Cell.Value != 0;
    return Count;
}

static void CheckBoard()
{
    ++Events;
    if (GameState.GameRunning != 1) return;
    const std::vector<Place>& All = VisibleTiles();
    int Faces[FaceCount + 1] = {};
    for (const Place& P : All) {
        ++Faces[P.Face];
        Demand(GameState.BoardMap(P.X, P.Y, P.Z) == 1, "a visible tile has no cell in BoardMap");
    }
    Demand(static_cast<int>(All.size()) == GameState.TilesLeft,
           "TilesLeft is not the visible tiles");
    Demand(OccupiedCells() == GameState.TilesLeft, "BoardMap holds cells without a tile");
    if (GameState.GameType != Wisdom) {
        for (int Face = 1; Face <= FaceCount; ++Face)
            Demand(Faces[Face] % 2 == 0, "a face is not in pairs");
        Demand(CountPairs(All) == GameState.MoveCount,
               "MoveCount differs from the pairs on the board");
    }
    for (int Count : {+GameState.MixCount, +GameState.UndoCount, +GameState.PairCount,
                      +GameState.PeekCount, +GameState.PauseCount})
        Demand(Count >= 0 && Count <= 2, "a power's count is outside 0..2");
    Demand(GameState.Score >= LastScore, "the score went down");
    LastScore = GameState.Score;
}

static int Draw(int Count)
{
    return static_cast<int>(Chance() % static_cast<unsigned>(Count));
}

// Time between two presses: the clocks tick and tracks come to their ends.
static void PassTime()
{
    constexpr long long TrackLength = 150000;
    if (Now / TrackLength != (Now + Pace) / TrackLength) ActiveMP31_StateChange(3);
    Now += Pace;
    if (RunDueTimers(Now)) CheckBoard();
    StaleRectangles().clear();
}

static void Press(const Element& E)
{
    if (Pace) PassTime();
    PressAt(E);
    CheckBoard();
}

static void PressTile(int Tile)
{
    if (Pace) PassTime();
    if (GameState.GameRunning != 1) return; // the time was up
    imgTile_MouseMove(Tile, MouseButton::Left, 0, 0);
    CheckBoard();
    imgTile_MouseDown(Tile, MouseButton::Left, 0, 0);
    CheckBoard();
}

// Now and then a power, a blocked tile, a press on the empty board.
static void Dabble()
{
    const int AnyTile = 1 + Draw(TileCount);
    switch (Draw(12)) {
    case 0:
        Press(imgUndo);
        break;
    case 1:
        if (imgTile(AnyTile).Visible && GameState.PeekCount > 0 && GameState.GameType == Finesse) {
            Press(imgPeek);
            PressTile(AnyTile);
        }
        break;
    case 2:
        if (imgTile(AnyTile).Visible && GameState.PairCount > 0 && GameState.GameType == Finesse) {
            Press(imgPair);
            PressTile(AnyTile);
        }
        break;
    case 3:
        if (imgTile(AnyTile).Visible && !tmrPause.Enabled) PressTile(AnyTile);
        break;
    case 4:
        picBoard_MouseDown(0, MouseButton::Left, 0, 0);
        break;
    case 5:
        Press(GameState.GameType == Agility ? imgMixAgility : imgMixFinesse);
        break;
    default:
        break;
    }
    CheckBoard();
}

static void AnswerBoxes()
{
    if (picNoMovesMix.Visible) {
        Press(imgNoMovesMixOK);
        Press(GameState.GameType == Agility ? imgMixAgility : imgMixFinesse);
    }
    if (picNoMoves.Visible) Press(imgNoMovesOK);
    if (picGameWon.Visible && picCongrats.Visible) Press(imgCongratsOK);
    if (picGameWon.Visible && picNewHigh.Visible) {
        SendText(txtName, "Bot " + std::to_string(Draw(20)));
        Press(imgNewHighOK);
        Press(imgOKScores);
    }
}

static void PlayPairs()
{
    const Element& Mix = GameState.GameType == Agility ? imgMixAgility : imgMixFinesse;
    for (int Move = 0; Move < 2000 && GameState.GameRunning == 1; ++Move) {
        if (Draw(20) == 0) Dabble();
        AnswerBoxes();
        if (GameState.GameRunning != 1 || GameState.MoveCount == 0) {
            if (GameState.GameRunning == 1 && GameState.MixCount == 0) break;
            if (GameState.GameRunning == 1) Press(Mix);
            AnswerBoxes();
            continue;
        }
        const int Pair = 1 + Draw(GameState.MoveCount);
        const int First = GameState.OpenPairA(Pair), Second = GameState.OpenPairB(Pair);
        if (GameState.TileSelected == 1) PressTile(GameState.SelectedTile);
        PressTile(First);
        if (imgTile(First).Visible && imgTile(Second).Visible && GameState.TileSelected == 1)
            PressTile(Second);
        AnswerBoxes();
    }
}

// --- words ---

static bool IsWord(const std::string& Letters)
{
    std::int16_t Code = CheckWord;
    DictionaryCommand(Letters, Code);
    return Code != 0 && Letters != GameState.BannedWords(1) && Letters != GameState.BannedWords(2);
}

// Tiles that lie free now and spell a word; none when many draws have found none.
static std::vector<int> FindWord(std::string& Letters)
{
    constexpr int Tries = 5000, Shortest = 3, Lengths = 4;
    std::vector<Place> Free = VisibleTiles();
    Cover(Free);
    std::erase_if(Free, [](const Place& P) { return !IsFree(P); });
    for (int Try = 0; Try < Tries; ++Try) {
        const int Length = Shortest + Draw(1 + Draw(Lengths));
        if (Length > static_cast<int>(Free.size())) continue;
        std::vector<int> Tiles;
        Letters.clear();
        for (int I = 0; I < Length; ++I) {
            std::swap(Free[I], Free[I + Draw(static_cast<int>(Free.size()) - I)]);
            Tiles.push_back(Free[I].Tile);
            Letters += GameState.FaceLetter(Free[I].Face);
        }
        if (IsWord(Letters)) return Tiles;
    }
    return {};
}

// Now and then a power, a letter taken back, a word too short or wrong.
static void DabbleWithWords()
{
    const int AnyTile = 1 + Draw(TileCount);
    switch (Draw(5)) {
    case 0:
        Press(imgMixWisdom);
        break;
    case 1:
        if (imgTile(AnyTile).Visible) { // an armed power waits for a tile
            Press(imgPush);
            PressTile(AnyTile);
        }
        break;
    case 2:
        Press(imgUndoWisdom);
        break;
    case 3:
        Press(imgAcceptWord);
        break;
    default:
        if (imgTile(AnyTile).Visible) PressTile(AnyTile);
        break;
    }
}

static void PlayWords()
{
    constexpr int Points[] = {0, 0, 0, 2, 3, 5, 7}; // by the length of the word
    while (GameState.GameRunning == 1) {
        if (Draw(10) == 0) DabbleWithWords();
        while (!lblWord.Caption.empty()) Press(imgUndoWisdom);
        std::string Letters;
        const std::vector<int> Tiles = FindWord(Letters);
        if (Tiles.empty()) {
            if (GameState.MixCount == 0) return;
            Press(imgMixWisdom);
            continue;
        }
        for (int Tile : Tiles) PressTile(Tile);
        Demand(lblWord.Caption == Letters, "the word does not stand in the panel");
        const int Left = GameState.TilesLeft - static_cast<int>(Tiles.size());
        const int Score = GameState.Score + Points[Tiles.size()];
        Press(imgAcceptWord);
        Demand(GameState.TilesLeft == Left, "a good word did not take its tiles");
        Demand(Left == 0 ? GameState.Score >= Score + 10 : GameState.Score == Score,
               "a good word scored something else");
        Demand((GameState.GameRunning == 1) == (Left >= 3), "the game ended at another time");
        AnswerBoxes();
    }
}

static void PlayGame(int Type, int Group, int Number)
{
    GameState.GameType = Type;
    ShowGamePanel();
    if (GameState.LayoutGroup != Group) {
        GameState.LayoutGroup = Group;
        LoadLayoutGeometry();
    }
    GameState.LayoutNumber = Number;
    LastScore = 0;
    Press(imgbutStart);
    Demand(GameState.GameRunning == 1, "imgbutStart started no game");
    if (Type == Wisdom)
        PlayWords();
    else
        PlayPairs();
    AnswerBoxes();
    if (imgbutEnd.Visible) {
        Press(imgbutEnd);
        if (picEnd.Visible) Press(imgEndYES);
    }
    Demand(imgbutStart.Visible && !imgbutEnd.Visible,
           "the panel does not wait for the start button");
    Demand(!picBlack.Visible && !picContainer.Visible, "a panel stayed up after the game");
}

static int GamesOf[4]; // by the game's type
static double SecondsOf[4];

static void PlayTimed(int Type, int Group, int Number)
{
    const auto Start = std::chrono::steady_clock::now();
    PlayGame(Type, Group, Number);
    SecondsOf[Type] +=
        std::chrono::duration<double>(std::chrono::steady_clock::now() - Start).count();
    ++GamesOf[Type];
}

static void PrintSum()
{
    int Won = 0, Lost = 0;
    for (int Index = 1; Index <= 360; ++Index) {
        Won += GameState.LayoutWon(Index);
        Lost += GameState.LayoutLost(Index);
    }
    std::cout << Events << " events, " << Won << " won, " << Lost << " lost" << std::endl;
    constexpr const char* Names[] = {"", "Finesse", "Agility", "Wisdom"};
    for (int Type = Finesse; Type <= Wisdom; ++Type) {
        if (GamesOf[Type] == 0) continue;
        std::cout << Names[Type] << ": " << GamesOf[Type] << " games, "
                  << static_cast<int>(GamesOf[Type] / SecondsOf[Type] * 60) << " a minute"
                  << std::endl;
    }
}

static int MemoryNow() // KiB
{
    std::ifstream Status("/proc/self/status");
    for (std::string Word; Status >> Word;)
        if (Word == "VmRSS:") break;
    int Size = 0;
    Status >> Size;
    return Size;
}

// The first hour may fill what is kept for good; after it the memory stands still.
static void PlayHours(int Hours)
{
    constexpr long long Hour = 3600 * 1000;
    constexpr int Slack = 256; // KiB: pages of the heap that are touched late
    int Games = 0, AfterFirst = 0;
    std::cout << "at the start " << MemoryNow() << " KiB" << std::endl;
    const long long Start = Now;
    for (int Past = 1; Past <= Hours; ++Past) {
        for (; Now < Start + Past * Hour; ++Games) PlayTimed(1 + Draw(3), Draw(3), 1 + Draw(120));
        const int Memory = MemoryNow();
        std::cout << "after hour " << Past << ", " << Games << " games, " << Events
                  << " events: " << Memory << " KiB" << std::endl;
        if (Past == 1) AfterFirst = Memory;
        Demand(Memory <= AfterFirst + Slack, "the memory grows");
    }
}

int main(int Count, char** Arguments)
{
    const bool ByHours = Count > 2 && std::string(Arguments[1]) == "HOURS";
    const int Games = Count > 1 ? std::atoi(Arguments[1]) : 500;
    const int Seed = ByHours + 2;
    Chance.seed(Count > Seed ? static_cast<unsigned>(std::atoi(Arguments[Seed])) : 1);
    BootGame();
    Now = 6100;
    Platform.Milliseconds = [] { return Now; };
    Demand(frmMain.Visible, "the game did not come up");
    if (ByHours) {
        Pace = 1500;
        PlayHours(std::atoi(Arguments[2]));
    }
    for (int Played = 0; !ByHours && Played < Games; ++Played)
        PlayTimed(1 + Draw(3), Played * 3 / Games, 1 + Draw(120));
    PrintSum();
    std::filesystem::remove_all(GameDirectory);
    return 0;
}
