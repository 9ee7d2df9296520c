// A year of games against a plain model of the tables: sorted lists that know nothing of places,
// shifts or files.
#include "tests/records/records_test.h"

#include <algorithm>
#include <deque>
#include <map>
#include <random>

namespace
{

struct ModelEntry {
    std::string Name;
    int Score, Day, Month, Year;
};
struct ModelGame {
    std::string Name, Place;
    int Index, Score;
    std::string Date;
};
using Key = std::array<int, 3>;

struct Model {
    std::map<Key, std::vector<ModelEntry>> Tables;              // list, type, layout
    std::map<std::pair<int, int>, std::deque<ModelGame>> Games; // type, list
    std::map<int, std::pair<int, int>> WonLost;

    int Rank(const Key& Table, int Score)
    {
        const auto& Entries = Tables[Table];
        const auto Better = std::count_if(Entries.begin(), Entries.end(),
                                          [&](const ModelEntry& E) { return E.Score >= Score; });
        return Score > 0 && Better < 10 ? static_cast<int>(Better) + 1 : 0;
    }
    void Enter(const Key& Table, const ModelEntry& New)
    {
        auto& Entries = Tables[Table];
        Entries.push_back(New);
        std::stable_sort(Entries.begin(), Entries.end(),
                         [](const auto& A, const auto& B) { return A.Score > B.Score; });
        if (Entries.size() > 10) Entries.resize(10);
    }
    void Record(int Type, int List, const ModelGame& New)
    {
        auto& Rows = Games[{Type, List}];
        Rows.push_front(New);
        if (Rows.size() > 42) Rows.pop_back();
    }
};

struct Year : RecordsTest {
    Model Expected;

    void CompareTables(int List)
    {
        for (int Type = 1; Type <= 6; ++Type)
            for (int Layout = 1; Layout <= 120; ++Layout) {
                const auto& Entries = Expected.Tables[{List, Type, Layout}];
                for (int I = 1; I <= 10; ++I) {
                    const ScoreEntry& Got = GameState.ScoreTable(Type, Layout, I);
                    const auto Wanted = I <= static_cast<int>(Entries.size())
                                            ? Entries[static_cast<std::size_t>(I - 1)]
                                            : ModelEntry{"", 0, 0, 0, 0};
                    ASSERT_EQ(Got.Name, Wanted.Name);
                    ASSERT_EQ(Got.Score, Wanted.Score);
                    ASSERT_EQ(Got.Day, Wanted.Day);
                    ASSERT_EQ(Got.Month, Wanted.Month);
                    ASSERT_EQ(Got.Year, Wanted.Year);
                }
            }
    }
    void CompareHistory()
    {
        for (int Type = 1; Type <= 3; ++Type)
            for (int List = 1; List <= 3; ++List) {
                const auto& Rows = Expected.Games[{Type, List}];
                for (int I = 1; I <= 42; ++I) {
                    const HistoryRow& Got = GameState.History(Type, List, I);
                    const auto Wanted = I <= static_cast<int>(Rows.size())
                                            ? Rows[static_cast<std::size_t>(I - 1)]
                                            : ModelGame{"", "", 0, 0, ""};
                    ASSERT_EQ(Got.Name, Wanted.Name);
                    ASSERT_EQ(Got.Place, Wanted.Place);
                    ASSERT_EQ(Got.LayoutIndex, Wanted.Index);
                    ASSERT_EQ(Got.Score, Wanted.Score);
                    ASSERT_EQ(Got.Date, Wanted.Date);
                }
            }
        for (int Index = 1; Index <= 3000; ++Index) {
            ASSERT_EQ(GameState.LayoutWon(Index), Expected.WonLost[Index].first);
            ASSERT_EQ(GameState.LayoutLost(Index), Expected.WonLost[Index].second);
        }
    }
};

} // namespace

TEST_F(Year, EveryTableAgreesWithThePlainModel)
{
    std::mt19937 Chance(2026);
    const auto Draw = [&](int Low, int High) {
        return Low + static_cast<int>(Chance() % static_cast<unsigned>(High - Low + 1));
    };
    const char* const Players[] = {"ann", "bert", "carl augustus", "dora"};
    constexpr int DaysOfMonth[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    InstallPacks();
    for (int Month = 1; Month <= 12; ++Month)
        for (int Day = 1; Day <= DaysOfMonth[Month - 1]; ++Day) {
            // Each day is a run of the game of its own.
            FreshState();
            BuildTables();
            InstallPacks();
            LoadHistory();
            LoadWonLost();
            LoadSettings();
            Today = {2026, Month, Day, 12, 0, 0};
            const int List = GameState.LayoutSets(Draw(1, 5));
            GameState.LayoutGroup = List;
            LoadScores();
            for (int Game = Draw(0, 8); Game > 0; --Game) {
                const int Type = Draw(1, 3);
                const int Layout = Draw(0, 3) == 0 ? Draw(1, 120) : 19; // a favourite
                const int Score = Draw(0, 60);
                GameState.GameType = Type;
                GameState.LayoutNumber = Layout;
                GameState.Score = Score;
                const int Index = List * 120 + Layout;
                const int Ending = Draw(1, 3); // 1 won, 2 lost, 3 given up
                const Key Table = {List, Type, Layout};
                const int Rank = Ending == 3 ? 0 : Expected.Rank(Table, Score);
                std::string Date = std::to_string(1000000 * Day + 10000 * Month + 2026);
                if (Date.size() < 8) Date = "0" + Date;

                ScoreRankFor(Score);
                if (Ending != 3) {
                    ASSERT_EQ(GameState.ScoreRank, Rank);
                }
                if (Rank > 0) {
                    const std::string Name = Players[Draw(0, 3)];
                    GameState.LastName = Name;
                    RecordGame(OutcomeNewHigh, Name, std::to_string(GameState.ScoreRank), Layout,
                               Score);
                    InsertScore();
                    SaveScores();
                    const std::string Filed = Name == "carl augustus" ? "arl augustus" : Name;
                    Expected.Enter(Table, {Filed, Score, Day, Month, 2026});
                    for (int Rows : {1, 3})
                        Expected.Record(Type, Rows,
                                        {Filed, std::to_string(Rank), Index, Score, Date});
                } else {
                    RecordGame(OutcomeNoPlace, "-", "-", Layout, Score);
                    if (Score != 0)
                        for (int Rows : {1, 2})
                            Expected.Record(Type, Rows, {"-", "-", Index, Score, Date});
                }
                if (Ending == 1) {
                    ++GameState.LayoutWon(Index);
                    ++Expected.WonLost[Index].first;
                    SaveWonLost();
                }
                if (Ending == 2) {
                    ++GameState.LayoutLost(Index);
                    ++Expected.WonLost[Index].second;
                    SaveWonLost();
                }
            }
            SaveSettings();
        }
    FreshState();
    LoadHistory();
    LoadWonLost();
    CompareHistory();
    for (int List : {0, 1, 2, 3, 6}) {
        GameState.LayoutGroup = List;
        LoadScores();
        CompareTables(List);
    }
    EXPECT_TRUE(Troubles.empty());
}
