#include "board/board.h"

constexpr int PointsOfPair = 2;

// A streak of one face: so many matches in a row draw from this range.
struct StreakRow {
    int Matches, Low, High;
};
constexpr StreakRow StreakTable[] = {{4, 14, 22}, {3, 5, 9}, {2, 1, 3}};

// The bonus for clearing the board, by the block of the layout.
struct WinBonusRow {
    int FirstBlock, LastBlock, Low, High;
};
constexpr WinBonusRow WinBonusTable[] = {
    {0, 0, 5, 78}, {1, 5, 8, 16}, {6, 8, 21, 39}, {9, 9, 41, 79}};

// A power of the panel: its counter, the picture that covers its button, its first lamp.
struct PowerRow {
    int GameType;
    I16 GameStateRecord::*Count;
    const Element& Cover;
    const ElementArray& Lamps;
    int FirstLamp;
};
static const PowerRow Powers[] = {
    {Finesse, &GameStateRecord::MixCount, imgMixFinesseDIS, imgFinesseGreen, 0},
    {Finesse, &GameStateRecord::UndoCount, imgUndoDIS, imgFinesseGreen, 2},
    {Finesse, &GameStateRecord::PairCount, imgPairDIS, imgFinesseGreen, 4},
    {Finesse, &GameStateRecord::PeekCount, imgPeekDIS, imgFinesseGreen, 6},
    {Agility, &GameStateRecord::MixCount, imgMixAgilityDIS, imgAgilityGreen, 0},
    {Agility, &GameStateRecord::PauseCount, imgPauseDIS, imgAgilityGreen, 2},
    {Wisdom, &GameStateRecord::MixCount, imgMixWisdomDIS, imgWisdomGreen, 0},
    {Wisdom, &GameStateRecord::PushCount, imgPushDIS, imgWisdomGreen, 2},
};

static void Cover(const Element& Disabled)
{
    Show(Disabled);
    BringToFront(Disabled);
}

static bool LastMatchesWere(int Face, int Matches)
{
    for (int Slot = 1; Slot <= Matches; ++Slot)
        if (GameState.RecentFaces(Slot) != Face) return false;
    return true;
}

int StreakBonus(int Face)
{
    for (int Slot = 4; Slot >= 2; --Slot)
        GameState.RecentFaces(Slot) = GameState.RecentFaces(Slot - 1);
    GameState.RecentFaces(1) = Face;
    for (const StreakRow& Row : StreakTable) {
        if (!LastMatchesWere(Face, Row.Matches)) continue;
        const int Bonus = RandomBetween(Row.Low, Row.High);
        return Bonus == 20 ? 21 : Bonus; // never a round 20
    }
    return 0;
}

void ScoreMatch(int Face)
{
    const int Bonus = StreakBonus(Face);
    if (Bonus > 0) {
        SetCaption(lblBonus, std::to_string(Bonus) + "+");
        ShowNote(NoteStreak);
    }
    GameState.Score += PointsOfPair + Bonus;
    SetCaption(lblScore, std::to_string(GameState.Score));
}

static int WinBonus()
{
    const int Block = LayoutBlock(GameState.LayoutNumber);
    for (const WinBonusRow& Row : WinBonusTable) {
        if (Block < Row.FirstBlock || Block > Row.LastBlock) continue;
        const int Bonus = RandomBetween(Row.Low, Row.High);
        return Bonus % 10 == 0 ? Bonus + 1 : Bonus; // never a round number
    }
    return 0;
}

void AddWinBonus()
{
    const int Bonus = WinBonus();
    GameState.Score += Bonus;
    SetCaption(lblScore, std::to_string(GameState.Score));
    SetCaption(lblBonus, std::to_string(Bonus));
    ShowNote(NoteWinBonus);
}

// --- the panel ---

static void SetLamps(const Picture& Light)
{
    for (const ElementArray* Lamps : {&imgFinesseGreen, &imgAgilityGreen, &imgWisdomGreen})
        for (int I = 0; I < Lamps->Count; ++I) SetPicture((*Lamps)(I), Light);
}

void RefreshPanel()
{
    for (const Element* Disabled :
         {&imgButMenuDIS, &imgButLayoutDIS, &imgbutStartDIS, &imgEndDIS, &imgMixAgilityDIS,
          &imgPeekDIS, &imgAcceptWordDIS, &imgUndoWisdomDIS})
        Hide(*Disabled);
    const bool Running = GameState.GameRunning != 0;
    for (const PowerRow& Power : Powers) {
        if (Power.GameType != GameState.GameType) continue;
        if (GameState.*Power.Count == 0 || !Running)
            Cover(Power.Cover);
        else
            Hide(Power.Cover);
    }
    if (GameState.GameType == Wisdom && !Running) {
        Cover(imgAcceptWordDIS);
        Cover(imgUndoWisdomDIS);
    }
    SetLamps(StockPicture(imgGreenLight(GameState.GameRunning == 1 ? 1 : 0)));
}

void DisablePanel(int Mode)
{
    for (const PowerRow& Power : Powers) Cover(Power.Cover);
    Cover(imgAcceptWordDIS);
    Cover(imgUndoWisdomDIS);
    SetLamps(StockPicture(imgGreenLight(0)));
    if (Mode == 1) return;
    Cover(imgButMenuDIS);
    Cover(imgButLayoutDIS);
    Cover(GameState.GameRunning == 1 ? imgEndDIS : imgbutStartDIS);
}

void RefreshLights()
{
    for (const PowerRow& Power : Powers) {
        if (Power.GameType != GameState.GameType) continue;
        const int Count = GameState.*Power.Count;
        if (Count >= 0 && Count <= 2) {
            SetVisible(Power.Lamps(Power.FirstLamp), Count >= 1);
            SetVisible(Power.Lamps(Power.FirstLamp + 1), Count == 2);
        }
        // In Finesse the next RefreshPanel covers the button.
        if (Count == 0 && Power.GameType != Finesse) Cover(Power.Cover);
    }
}
