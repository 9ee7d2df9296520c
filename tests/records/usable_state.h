// usable_state.h: what the rules rely on after any record file was read.
#pragma once

#include "records/records.h"

#include <string>

#define MUST(Condition)                                                                            \
    if (!(Condition)) return #Condition

inline bool Between(int Value, int Low, int High)
{
    return Value >= Low && Value <= High;
}

inline bool IsInstalledList(int List)
{
    if (List >= 0 && List <= 2) return true;
    for (int I = 4; I <= GameState.LayoutListCount; ++I)
        if (GameState.LayoutSets(I) == List) return true;
    return false;
}

// Each names the first number that would leave a table, or "".
inline std::string UnusableSetting()
{
    MUST(Between(GameState.DisplayMode, 0, 1));
    MUST(Between(GameState.GameType, 1, 3));
    MUST(Between(GameState.MusicOn, 0, 1));
    MUST(Between(GameState.SoundLevel, 1, 2));
    MUST(Between(GameState.HelpBalloons, 0, 1));
    MUST(Between(GameState.TileSetFixed, 0, 600));
    MUST(IsInstalledList((GameState.TileSetFixed - 1) / 24));
    MUST(Between(GameState.TileSetRotate, 0, GameState.TileSetCount));
    MUST(Between(GameState.TileSetRandom, 0, 1));
    MUST(GameState.TileSetFixed + GameState.TileSetRotate + GameState.TileSetRandom > 0);
    MUST(Between(GameState.BackdropFixed, 0, 72));
    MUST(Between(GameState.BackdropRotate, 0, 72));
    MUST(Between(GameState.BackdropRandom, 0, 1));
    MUST(GameState.BackdropFixed + GameState.BackdropRotate + GameState.BackdropRandom > 0);
    MUST(Between(GameState.CurrentTrack, 0, 30));
    MUST(Between(GameState.TileGroupShown, 0, 24));
    MUST(Between(GameState.TilePageCursor, 1, 100));
    MUST(Between(GameState.BackdropGroupShown, 0, 1));
    MUST(IsInstalledList(GameState.LayoutGroup));
    MUST(GameState.LayoutSets(GameState.LayoutSetCursor) == GameState.LayoutGroup);
    MUST(Between(GameState.RandomLayoutMode, 0, 6));
    MUST(Between(GameState.LayoutNumber, GameState.RandomLayoutMode == 0 ? 1 : 0, 120));
    for (int Block = 0; Block <= 9; ++Block)
        MUST(Between(GameState.RandomBlockChosen(Block), 0, 1));
    MUST(Between(GameState.HistoryView, 1, 3));
    MUST(Between(GameState.GraphType, 1, 2));
    for (int Type = 1; Type <= 3; ++Type) MUST(Between(GameState.ProfileSizeClass(Type), 0, 4));
    return "";
}

inline std::string UnusableScore()
{
    for (const ScoreEntry& Entry : GameState.ScoreTable.Cells) MUST(Entry.Score >= 0);
    return "";
}

inline std::string UnusableHistory()
{
    for (const HistoryRow& Row : GameState.History.Cells) MUST(Between(Row.LayoutIndex, 0, 3000));
    return "";
}

inline std::string UnusableCount()
{
    for (int Index = 1; Index <= 3000; ++Index)
        MUST(GameState.LayoutWon(Index) >= 0 && GameState.LayoutLost(Index) >= 0);
    return "";
}
#undef MUST

inline std::string UnusableNumber()
{
    return UnusableSetting() + UnusableScore() + UnusableHistory() + UnusableCount();
}

// The start of the game, as far as it reads records.
inline void LoadAllRecords()
{
    LoadDisplaySettings();
    LoadHistory();
    LoadWonLost();
    LoadSettings();
    LoadScores();
    RepairSettings();
}

inline void SaveAllRecords()
{
    SaveSettings();
    SaveScores();
    SaveHistory();
    SaveWonLost();
}

// A game that enters every record.
inline void PlayOneGame()
{
    if (GameState.LayoutNumber == 0) GameState.LayoutNumber = 7; // drawn by the deal
    GameState.Score = 12345;
    GameState.LastName = "ann";
    ScoreRankFor(GameState.Score);
    RecordGame(GameState.ScoreRank > 0 ? OutcomeNewHigh : OutcomeNoPlace, "ann",
               std::to_string(GameState.ScoreRank), GameState.LayoutNumber, GameState.Score);
    InsertScore();
    if (GameState.LayoutWon(LayoutIndex()) < 32767) ++GameState.LayoutWon(LayoutIndex());
    SaveAllRecords();
}
