// \History.dat: the latest games of each game type in three lists. \Won-Lost.dat: games won and
// lost on each layout.
#include "records/fields.h"
#include "records/records.h"

constexpr const char* HistoryFile = "\\History.dat";
constexpr int GameTypes = 3, Lists = 3, Rows = 42; // the newest is row 1; row 43 is a spill row
constexpr int AllGames = 1;                        // the list of every recorded game
constexpr int RowSize = 12 + 2 + 2 + 2 + 8;
constexpr int HistorySize = GameTypes * Lists * Rows * RowSize;
static_assert(HistorySize == 9828);

constexpr const char* WonLostFile = "\\Won-Lost.dat";
constexpr int WonLostSize = LastLayoutIndex * (2 + 2);
static_assert(WonLostSize == 12000);

static void WalkRow(RecordFile& File, int Offset, HistoryRow& Row)
{
    FieldText(File, Offset, Row.Name, 12);
    FieldText(File, Offset + 12, Row.Place, 2);
    Field16(File, Offset + 14, Row.LayoutIndex, {1, LastLayoutIndex});
    Field16(File, Offset + 16, Row.Score);
    FieldText(File, Offset + 18, Row.Date, 8);
}

static void WalkHistory(RecordFile& File)
{
    int Offset = 0;
    for (int Type = 1; Type <= GameTypes; ++Type)
        for (int List = 1; List <= Lists; ++List)
            for (int Row = 1; Row <= Rows; ++Row) {
                WalkRow(File, Offset, GameState.History(Type, List, Row));
                Offset += RowSize;
            }
}

static void WalkWonLost(RecordFile& File)
{
    // Below 0 no count can be; two counts must not cancel out, for screens divide by their sum.
    constexpr Legal Count = {0, 32767};
    for (int Index = 1; Index <= LastLayoutIndex; ++Index) {
        Field16(File, 4 * (Index - 1), GameState.LayoutWon(Index), Count);
        Field16(File, 4 * (Index - 1) + 2, GameState.LayoutLost(Index), Count);
    }
}

void LoadHistory()
{
    RecordFile File = ReadRecordFile(HistoryFile, HistorySize);
    GameState.History.Clear();
    WalkHistory(File);
}

void SaveHistory()
{
    for (HistoryRow& Row : GameState.History.Cells)
        for (std::string* Text : {&Row.Name, &Row.Place, &Row.Date}) *Text = Trimmed(*Text);
    RecordFile File = NewRecordFile(HistorySize);
    WalkHistory(File);
    SaveRecordFile(HistoryFile, File, "history");
}

static std::string TwoDigits(int Number)
{
    const std::string Digits = "0" + std::to_string(Number);
    return Digits.substr(Digits.size() - 2);
}

static void EnterRow(int List, const HistoryRow& New)
{
    const auto Row = [List](int I) -> HistoryRow& {
        return GameState.History(GameState.GameType, List, I);
    };
    for (int I = Rows + 1; I >= 1; --I) Row(I) = Row(I - 1);
    Row(1) = New;
}

void RecordGame(int Outcome, const std::string& Name, const std::string& Place, int LayoutNumber,
                int Score)
{
    const int Index = GameState.LayoutGroup * 120 + LayoutNumber;
    if (Index > LastLayoutIndex)
        FatalError("LayoutIndex " + std::to_string(Index) + " is above " +
                   std::to_string(LastLayoutIndex));
    if (Score == 0) return; // a game given up at once
    const DateTime Now = Platform.Now();
    const HistoryRow New = {Trimmed(LowerCase(Name)), Trimmed(Place), Index, Score,
                            TwoDigits(Now.Day) + TwoDigits(Now.Month) + std::to_string(Now.Year)};
    EnterRow(AllGames, New);
    if (Outcome == OutcomeNoPlace || Outcome == OutcomeNewHigh) EnterRow(Outcome, New);
    SaveHistory();
}

void LoadWonLost()
{
    RecordFile File = ReadRecordFile(WonLostFile, WonLostSize);
    WalkWonLost(File);
}

void SaveWonLost()
{
    RecordFile File = NewRecordFile(WonLostSize);
    WalkWonLost(File);
    SaveRecordFile(WonLostFile, File, "counts of won and lost games");
}
