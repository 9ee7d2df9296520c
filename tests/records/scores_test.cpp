#include "tests/records/records_test.h"

namespace
{

struct Scores : RecordsTest {
    Scores()
    {
        GameState.GameType = Agility;
        GameState.LayoutNumber = 19;
    }
    static ScoreEntry& Entry(int I)
    {
        return GameState.ScoreTable(GameState.GameType, GameState.LayoutNumber, I);
    }
    static void Fill(std::initializer_list<int> Values)
    {
        int I = 0;
        for (int Value : Values) {
            ++I;
            Entry(I) = {"old " + std::to_string(I), Value, I, 2, 2000 + I};
        }
    }
    static void Insert(const std::string& Name, int Score)
    {
        GameState.LastName = Name;
        GameState.Score = Score;
        ScoreRankFor(Score);
        InsertScore();
    }
    static std::string ValuesOfTheTable()
    {
        std::string Text;
        for (int I = 1; I <= 10; ++I) Text += std::to_string(Entry(I).Score) + " ";
        return Text;
    }
};

// A whole file, every record with contents of its own.
std::string FullFile()
{
    FileBytes Out;
    int N = 0;
    for (int Type = 1; Type <= 6; ++Type)
        for (int Layout = 1; Layout <= 120; ++Layout)
            for (int I = 1; I <= 10; ++I, ++N)
                Out.Text("p" + std::to_string(N), 12)
                    .Number(32767 - N)
                    .Number(N % 31 + 1, 1)
                    .Number(N % 12 + 1, 1)
                    .Number(1990 + N % 100);
    return Out.Bytes;
}

} // namespace

TEST_F(Scores, EveryRecordIsReadFromItsPlace)
{
    const std::string File = FullFile();
    ASSERT_EQ(File.size(), 129600U);
    PutFile("SCOR/Scores-A", File);
    LoadScores();
    int N = 0;
    for (int Type = 1; Type <= 6; ++Type)
        for (int Layout = 1; Layout <= 120; ++Layout)
            for (int I = 1; I <= 10; ++I, ++N) {
                const ScoreEntry& Entry = GameState.ScoreTable(Type, Layout, I);
                ASSERT_EQ(Entry.Name, "p" + std::to_string(N));
                ASSERT_EQ(Entry.Score, 32767 - N);
                ASSERT_EQ(Entry.Day, N % 31 + 1);
                ASSERT_EQ(Entry.Month, N % 12 + 1);
                ASSERT_EQ(Entry.Year, 1990 + N % 100);
            }
}

TEST_F(Scores, TheWrittenFileIsTheReadOneToTheLastByte)
{
    const std::string File = FullFile();
    PutFile("SCOR/Scores-A", File);
    LoadScores();
    std::filesystem::remove_all(Place("SCOR"));
    SaveScores(); // makes the folder
    EXPECT_EQ(FirstDifference(FileContent("SCOR/Scores-A"), File), "");
}

TEST_F(Scores, TheRecordOfATypeLayoutAndPlaceHasItsByte)
{
    GameState.ScoreTable(3, 120, 10) = {"zoe", 258, 31, 12, 2026};
    SaveScores();
    const std::string File = FileContent("SCOR/Scores-A");
    EXPECT_EQ(File.size(), 129600U);
    EXPECT_EQ(File.substr(((3 - 1) * 1200 + (120 - 1) * 10 + (10 - 1)) * 18, 18),
              std::string("         zoe\x02\x01\x1f\x0c\xea\x07", 18));
}

TEST_F(Scores, TheFileFollowsTheList)
{
    const std::pair<int, const char*> Names[] = {
        {0, "\\SCOR\\Scores-A"},  {1, "\\SCOR\\Scores-B"},   {2, "\\SCOR\\Scores-C"},
        {3, "\\SCOR\\Scores-01"}, {12, "\\SCOR\\Scores-10"}, {24, "\\SCOR\\Scores-22"}};
    for (const auto& [List, Name] : Names) {
        GameState.LayoutGroup = List;
        EXPECT_EQ(ScoresFile(), Name);
    }
}

TEST_F(Scores, AChangeOfListReplacesTheWholeTable)
{
    PutFile("SCOR/Scores-A", FullFile());
    LoadScores();
    Insert("ann", 32767);
    GameState.LayoutGroup = 3;
    LoadScores();
    for (const ScoreEntry& Entry : GameState.ScoreTable.Cells) {
        ASSERT_EQ(Entry.Name, "");
        ASSERT_EQ(Entry.Score, 0);
    }
    EXPECT_EQ(FileContent("SCOR/Scores-01"), ""); // made, empty
}

TEST_F(Scores, AMissingFileIsMadeOnlyWhereItsFolderStands)
{
    LoadScores();
    EXPECT_FALSE(std::filesystem::exists(Place("SCOR")));
    std::filesystem::create_directory(Place("SCOR"));
    LoadScores();
    EXPECT_TRUE(std::filesystem::exists(Place("SCOR/Scores-A")));
    EXPECT_TRUE(Troubles.empty());
}

TEST_F(Scores, NamesAreReadInLowerCase)
{
    PutFile("SCOR/Scores-A", FileBytes().Text("Ann \xc9\xd7\xde ", 12).Bytes);
    LoadScores();
    EXPECT_EQ(GameState.ScoreTable(1, 1, 1).Name, "ann \u00e9\u00d7\u00fe");
}

TEST_F(Scores, ALongNameIsCutFromTheFront)
{
    Insert("bartholomew iii", 5);
    EXPECT_EQ(Entry(1).Name, "bartholomew iii");
    SaveScores();
    LoadScores();
    EXPECT_EQ(Entry(1).Name, "tholomew iii");
}

TEST_F(Scores, AScoreMustBeatATableEntry)
{
    Fill({100, 100, 100, 100, 100, 100, 100, 100, 100, 100});
    ScoreRankFor(100);
    EXPECT_EQ(GameState.ScoreRank, 0);
    ScoreRankFor(101);
    EXPECT_EQ(GameState.ScoreRank, 1);
}

TEST_F(Scores, AnEqualScoreGoesBelow)
{
    Fill({300, 200, 200, 100});
    ScoreRankFor(200);
    EXPECT_EQ(GameState.ScoreRank, 4);
    ScoreRankFor(99);
    EXPECT_EQ(GameState.ScoreRank, 5);
    Insert("new", 200);
    EXPECT_EQ(ValuesOfTheTable(), "300 200 200 200 100 0 0 0 0 0 ");
    EXPECT_EQ(Entry(4).Name, "new");
}

TEST_F(Scores, AFirstScoreOfOneTakesPlaceOneAndZeroNone)
{
    ScoreRankFor(0);
    EXPECT_EQ(GameState.ScoreRank, 0);
    ScoreRankFor(-3);
    EXPECT_EQ(GameState.ScoreRank, 0);
    ScoreRankFor(1);
    EXPECT_EQ(GameState.ScoreRank, 1);
}

TEST_F(Scores, AnInsertionShiftsAllFieldsAndTheTenthFallsToTheSpillRow)
{
    Fill({100, 90, 80, 70, 60, 50, 40, 30, 20, 10});
    GameState.TypedEntry = 1;
    Today = {2026, 11, 21, 23, 59, 59};
    Insert("new", 65);
    EXPECT_EQ(ValuesOfTheTable(), "100 90 80 70 65 60 50 40 30 20 ");
    EXPECT_EQ(Entry(5).Name, "new");
    EXPECT_EQ(Entry(5).Day, 21);
    EXPECT_EQ(Entry(5).Month, 11);
    EXPECT_EQ(Entry(5).Year, 2026);
    EXPECT_EQ(Entry(6).Name, "old 5");
    EXPECT_EQ(Entry(6).Day, 5);
    EXPECT_EQ(Entry(6).Month, 2);
    EXPECT_EQ(Entry(6).Year, 2005);
    EXPECT_EQ(Entry(11).Name, "old 10");
    EXPECT_EQ(GameState.NewHighRank, 5);
    EXPECT_EQ(GameState.ScoreRank, 0);
    EXPECT_EQ(GameState.TypedEntry, 0);
}

TEST_F(Scores, TheSpillRowIsNotFiled)
{
    Fill({100, 90, 80, 70, 60, 50, 40, 30, 20, 10});
    Insert("new", 65);
    SaveScores();
    GameState.ScoreTable.Clear();
    LoadScores();
    EXPECT_EQ(ValuesOfTheTable(), "100 90 80 70 65 60 50 40 30 20 ");
    EXPECT_EQ(Entry(11).Score, 0);
}

TEST_F(Scores, GameTypesOfOneLayoutNeverMix)
{
    Insert("ann", 50);
    GameState.GameType = Finesse;
    ScoreRankFor(1);
    EXPECT_EQ(GameState.ScoreRank, 1);
    EXPECT_EQ(Entry(1).Score, 0);
}

TEST_F(Scores, AShortFileGivesZerosFromTheCutOn)
{
    const std::string File = FullFile();
    // Every length within the first records, and some further on.
    std::vector<std::size_t> Lengths = {1799, 1800, 21600, 21613, 129599};
    for (std::size_t Length = 0; Length <= 3 * 18; ++Length) Lengths.push_back(Length);
    for (std::size_t Length : Lengths) {
        PutFile("SCOR/Scores-A", File.substr(0, Length));
        LoadScores();
        std::size_t Offset = 0;
        int N = 0;
        for (int Type = 1; Type <= 6; ++Type)
            for (int Layout = 1; Layout <= 120; ++Layout)
                for (int I = 1; I <= 10; ++I, ++N, Offset += 18) {
                    const ScoreEntry& Entry = GameState.ScoreTable(Type, Layout, I);
                    const int Whole = 32767 - N;
                    const int Score = Length >= Offset + 14   ? Whole
                                      : Length == Offset + 13 ? Whole & 255
                                                              : 0;
                    ASSERT_EQ(Entry.Score, Score) << "length " << Length << ", record " << N;
                    ASSERT_EQ(Entry.Day, Length >= Offset + 15 ? N % 31 + 1 : 0);
                    ASSERT_EQ(Entry.Month, Length >= Offset + 16 ? N % 12 + 1 : 0);
                }
    }
}

TEST_F(Scores, ALongerFileIsReadFromItsStartAndItsTailIsDropped)
{
    PutFile("SCOR/Scores-A", FullFile() + "tail");
    LoadScores();
    EXPECT_EQ(GameState.ScoreTable(6, 120, 10).Score, 32767 - 7199);
    SaveScores();
    EXPECT_EQ(FirstDifference(FileContent("SCOR/Scores-A"), FullFile()), "");
}

TEST_F(Scores, DayAndMonthAreBytesWithoutASign)
{
    const std::string Record =
        FileBytes().Text("ann", 12).Number(5).Number(200, 1).Number(255, 1).Number(-1).Bytes;
    PutFile("SCOR/Scores-A", Record);
    LoadScores();
    const ScoreEntry& Entry = GameState.ScoreTable(1, 1, 1);
    EXPECT_EQ(Entry.Day, 200);
    EXPECT_EQ(Entry.Month, 255);
    EXPECT_EQ(Entry.Year, -1);
    EXPECT_EQ(MonthText(Entry.Month), "");
    EXPECT_EQ(MonthText(12), "Dec");
    SaveScores();
    EXPECT_EQ(FileContent("SCOR/Scores-A").substr(0, 18), Record);
}

TEST_F(Scores, AScoreBelowZeroReadsAsZeroSoThatZeroNeverRanks)
{
    PutFile("SCOR/Scores-A", FileBytes().Text("ann", 12).Number(-5).Bytes);
    LoadScores();
    EXPECT_EQ(GameState.ScoreTable(1, 1, 1).Name, "ann");
    EXPECT_EQ(GameState.ScoreTable(1, 1, 1).Score, 0);
    GameState.GameType = Finesse;
    GameState.LayoutNumber = 1;
    ScoreRankFor(0);
    EXPECT_EQ(GameState.ScoreRank, 0);
}
