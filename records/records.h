// records.h: all that is saved between runs, and the players, who are nothing but the names in the
// score tables.
//
// Reading never fails: a file that is missing, short or unreadable reads as zeros and blanks from
// there on, and a value that no rule can use reads as 0 too. Nothing is written back before the
// player's own next save. A save replaces the whole file or leaves the old one; a failed save tells
// the player in one sentence and keeps the values in memory for the next try.
#pragma once

#include "frame/game_state.h"

// settings.cpp: \Settings.dat, 508 bytes
void LoadDisplaySettings(); // the splash: DisplayMode and the window's place only
void LoadSettings();        // run after the scan of the content packs, which it asks for lists
void RepairSettings();      // start-up's defaults, each only where the file gave nothing
void SaveSettings();        // takes the window's place, keeps the tail of a longer file

// scores.cpp: \SCOR\Scores-A, -B, -C, -01 ..., 129600 bytes each: the current layout list in memory
std::string ScoresFile(); // of the current layout list
void LoadScores();
void SaveScores();
void ScoreRankFor(int Score); // sets ScoreRank: 1..10, or 0 for no place
// Enters Score under LastName. NewHighRank takes ScoreRank; ScoreRank and TypedEntry go back to 0.
void InsertScore();
// "Jan" to "Dec"; "" for 0, the month of an entry without a date.
std::string MonthText(int Month);

// history.cpp: \History.dat, 9828 bytes, and \Won-Lost.dat, 12000 bytes
constexpr int OutcomeNoPlace = 2, OutcomeNewHigh = 3;
void LoadHistory();
void SaveHistory();
// A score of 0 leaves no trace. Other outcomes than these two go into list 1 alone. A layout
// whose index is above 3000 is fatal.
void RecordGame(int Outcome, const std::string& Name, const std::string& Place, int LayoutNumber,
                int Score);
void LoadWonLost();
void SaveWonLost();

// end_panels.cpp: the panels of a finished game and the name that a high score asks for
void ShowCongratulations(); // no place in the table
void ShowNewHigh();         // a place: asks for the name
std::string TypedName();    // of txtName, trimmed, in lower case
void SetRecordHandlers();   // of the name box and of the players' boxes

// players.cpp: the players of the profile. The tables are those of ProfileGameType in the current
// layout list; Box is that of cboPlayerList: 1..10 stand on the graph, 11 and 12 are compared.
void BuildPlayerList();   // fills the boxes and selects the stored players again
void ShowPlayers();       // graph, Master Scores and statistics of the players selected
void SaveChosenPlayers(); // on leaving the profile or changing its game type
void CopyChosenPlayers(); // as the profile opens, for the way back
void PutChosenPlayersBack();
// Sets MasterScore and draws the player's entries on the graph in PlayerColour(Colour).
void MasterScoreFor(const std::string& Name, int Colour);
void SortPlayers();                                       // the leaders' scores turn yellow
void ComputeStatistics(const std::string& Name, int Box); // the column of box 11 or 12
// The layout on which the player's lowest score stands, among those of the size class; also into
// the column, its number in the Tag of the row. "" for none.
std::string LowScoreLayout(const std::string& Name, int Box);
void ShowSizeClass(); // imgOptLowScore
void SetPlayerHandlers();
// The graph: the colour of each entry by layout and place, 0 for the background.
extern Table<I16, Span<1, 120>, Span<1, 10>> GraphColour;
