#include "screens/screens.h"
#include "tests/records/records_test.h"

namespace
{

struct History : RecordsTest {
    History() { GameState.GameType = Finesse; }
    static HistoryRow& Row(int List, int I)
    {
        return GameState.History(GameState.GameType, List, I);
    }
    static std::string Scores(int List)
    {
        std::string Text;
        for (int I = 1; I <= 42 && Row(List, I).Score != 0; ++I)
            Text += std::to_string(Row(List, I).Score) + " ";
        return Text;
    }
};

using WonLost = History;

// A whole file, every row with contents of its own.
std::string FullFile()
{
    FileBytes Out;
    int N = 0;
    for (int Type = 1; Type <= 3; ++Type)
        for (int List = 1; List <= 3; ++List)
            for (int I = 1; I <= 42; ++I, ++N)
                Out.Text(N % 3 ? "p" + std::to_string(N) : "-", 12)
                    .Text(N % 3 ? std::to_string(N % 10 + 1) : "-", 2)
                    .Number(3000 - N)
                    .Number(100 * N - 5000)
                    .Text(std::to_string(10 + N % 20) + std::to_string(10 + N % 3) +
                              std::to_string(1990 + N % 50),
                          8);
    return Out.Bytes;
}

} // namespace

TEST_F(History, EveryRowIsReadFromItsPlace)
{
    const std::string File = FullFile();
    ASSERT_EQ(File.size(), 9828U);
    PutFile("History.dat", File);
    LoadHistory();
    const HistoryRow& Row = GameState.History(2, 3, 5);
    const int N = (1 * 3 + 2) * 42 + 4;
    EXPECT_EQ(Row.Name, "p" + std::to_string(N));
    EXPECT_EQ(Row.Place, std::to_string(N % 10 + 1));
    EXPECT_EQ(Row.LayoutIndex, 3000 - N);
    EXPECT_EQ(Row.Score, 100 * N - 5000);
    EXPECT_EQ(Row.Date, std::to_string(10 + N % 20) + std::to_string(10 + N % 3) +
                            std::to_string(1990 + N % 50));
    EXPECT_EQ(GameState.History(1, 1, 1).Name, "-");
    EXPECT_EQ(GameState.History(1, 1, 43).Name, "");
    EXPECT_EQ(GameState.History(1, 1, 0).Name, "");
    EXPECT_EQ(GameState.History(0, 1, 1).Name, "");
}

TEST_F(History, TheWrittenFileIsTheReadOneToTheLastByte)
{
    PutFile("History.dat", FullFile());
    LoadHistory();
    std::filesystem::remove(Place("History.dat"));
    SaveHistory();
    EXPECT_EQ(FirstDifference(FileContent("History.dat"), FullFile()), "");
}

TEST_F(History, TextsAreFiledTrimmed)
{
    GameState.History(1, 1, 1) = {" ann ", "7 ", 19, 300, "02012026"};
    SaveHistory();
    EXPECT_EQ(FileContent("History.dat").substr(0, 26), std::string("         ann 7\x13\0\x2c\x01"
                                                                    "02012026",
                                                                    26));
}

TEST_F(History, AGameGoesIntoTheListOfAllAndIntoThatOfItsOutcome)
{
    Today = {2026, 3, 9, 0, 0, 0};
    GameState.LayoutGroup = 2;
    RecordGame(OutcomeNoPlace, "-", "-", 19, 120);
    RecordGame(OutcomeNewHigh, " Ann ", " 7", 120, 300);
    RecordGame(1, "-", "-", 1, 50);
    EXPECT_EQ(Scores(1), "50 300 120 ");
    EXPECT_EQ(Scores(2), "120 ");
    EXPECT_EQ(Scores(3), "300 ");
    EXPECT_EQ(Row(3, 1).Name, "ann");
    EXPECT_EQ(Row(3, 1).Place, "7");
    EXPECT_EQ(Row(3, 1).LayoutIndex, 360);
    EXPECT_EQ(Row(3, 1).Date, "09032026");
    EXPECT_EQ(Row(2, 1).Name, "-");
    EXPECT_EQ(Row(2, 1).Place, "-");
    EXPECT_EQ(Row(2, 1).LayoutIndex, 259);
}

TEST_F(History, GameTypesAreKeptApart)
{
    RecordGame(OutcomeNoPlace, "-", "-", 19, 10);
    GameState.GameType = Wisdom;
    RecordGame(OutcomeNoPlace, "-", "-", 19, 20);
    EXPECT_EQ(Scores(1), "20 ");
    GameState.GameType = Finesse;
    EXPECT_EQ(Scores(1), "10 ");
}

TEST_F(History, TheFortyThirdGamePushesTheFirstOutOfItsList)
{
    RecordGame(OutcomeNewHigh, "first", "1", 19, 1);
    for (int Score = 2; Score <= 43; ++Score) RecordGame(OutcomeNoPlace, "-", "-", 19, Score);
    EXPECT_EQ(Row(1, 1).Score, 43);
    EXPECT_EQ(Row(1, 42).Score, 2);
    EXPECT_EQ(Row(2, 42).Score, 2);
    EXPECT_EQ(Row(1, 43).Score, 1); // the spill row, which is not filed
    EXPECT_EQ(Row(3, 1).Score, 1);  // it was recorded there too
    LoadHistory();
    EXPECT_EQ(Row(1, 42).Score, 2);
    EXPECT_EQ(Row(1, 43).Score, 0);
}

TEST_F(History, AScoreOfZeroLeavesNoTrace)
{
    RecordGame(OutcomeNoPlace, "-", "-", 19, 0);
    EXPECT_EQ(Scores(1), "");
    EXPECT_FALSE(std::filesystem::exists(Place("History.dat")));
}

TEST_F(History, AScoreBelowZeroIsRecorded)
{
    RecordGame(OutcomeNoPlace, "-", "-", 19, -4);
    LoadHistory();
    EXPECT_EQ(Row(1, 1).Score, -4);
}

TEST_F(History, ThreeThousandIsTheLastIndex)
{
    GameState.LayoutGroup = 24;
    RecordGame(OutcomeNoPlace, "-", "-", 120, 5);
    LoadHistory();
    EXPECT_EQ(Row(1, 1).LayoutIndex, 3000);
    GameState.LayoutGroup = 25;
    EXPECT_EXIT(RecordGame(OutcomeNoPlace, "-", "-", 1, 5), testing::ExitedWithCode(1),
                "LayoutIndex 3001 is above 3000");
}

// A row shows as far as its date can be read: a month that does not exist has no name, and a row
// without a year is an empty one.
TEST_F(History, ADateOfAnyBytesIsKeptAndShownAsFarAsItCanBeRead)
{
    const struct {
        const char *Date, *Day, *Month, *Year;
    } Rows[] = {{"01772026", "1", "", "2026"},     {"01002026", "1", "", "2026"},
                {"11122026", "11", "Dec", "2026"}, {"1122026", "11", "", "2026"},
                {"0112202x", "1", "Dec", "202x"},  {"2026", "20", "", "2026"}};
    const char* const Empty[] = {"", "126", "01120000", "0112x026", "abcdefgh"};
    FileBytes File;
    for (const auto& R : Rows)
        File.Text("ann", 12).Text("1", 2).Number(19).Number(5).Text(R.Date, 8);
    for (const char* Date : Empty)
        File.Text("ann", 12).Text("1", 2).Number(19).Number(5).Text(Date, 8);
    PutFile("History.dat", File.Bytes);
    LoadHistory();
    GameState.GameType = Finesse;
    GameState.HistoryView = 1;
    ShowHistory();
    for (int I = 0; I < 6; ++I) {
        EXPECT_EQ(Row(1, I + 1).Date, Rows[I].Date);
        EXPECT_TRUE(lblHisDay(I).Visible) << I;
        EXPECT_EQ(lblHisDay(I).Caption, Rows[I].Day);
        EXPECT_EQ(lblHisMonth(I).Caption, Rows[I].Month);
        EXPECT_EQ(lblHisYear(I).Caption, Rows[I].Year);
    }
    for (int I = 6; I < 11; ++I) EXPECT_FALSE(lblHisDay(I).Visible) << Empty[I - 6];
    SaveHistory();
    EXPECT_EQ(FileContent("History.dat").substr(0, File.Bytes.size()), File.Bytes);
}

TEST_F(History, ADamagedLayoutIndexReadsAsZero)
{
    for (int Index : {-1, 3001, 20000, -32768}) {
        PutFile("History.dat", FileBytes()
                                   .Text("a", 12)
                                   .Text("1", 2)
                                   .Number(Index)
                                   .Number(5)
                                   .Text("01122026", 8)
                                   .Bytes);
        LoadHistory();
        EXPECT_EQ(Row(1, 1).LayoutIndex, 0);
        EXPECT_EQ(Row(1, 1).Date, "01122026");
    }
}

TEST_F(History, CutAtEveryLengthTheRowsBeforeTheCutStand)
{
    const std::string File = FullFile();
    for (std::size_t Length = 0; Length <= File.size(); Length += Length < 100 ? 1 : 97) {
        PutFile("History.dat", File.substr(0, Length));
        LoadHistory();
        SaveHistory();
        const std::string Saved = FileContent("History.dat");
        ASSERT_EQ(Saved.size(), 9828U);
        const std::size_t Whole = Length / 26 * 26;
        ASSERT_EQ(FirstDifference(Saved.substr(0, Whole), File.substr(0, Whole)), "") << Length;
        const std::string Empty = std::string(14, ' ') + std::string(4, '\0') + std::string(8, ' ');
        for (std::size_t Offset = Whole + 26; Offset < Saved.size(); Offset += 26)
            ASSERT_EQ(Saved.substr(Offset, 26), Empty);
    }
}

TEST_F(WonLost, CountsAreFiledByIndex)
{
    FileBytes Wanted;
    for (int Index = 1; Index <= 3000; ++Index) {
        GameState.LayoutWon(Index) = Index;
        GameState.LayoutLost(Index) = 32767 - Index;
        Wanted.Number(Index).Number(32767 - Index);
    }
    GameState.LayoutWon(0) = 99;
    SaveWonLost();
    EXPECT_EQ(Wanted.Bytes.size(), 12000U);
    EXPECT_EQ(FirstDifference(FileContent("Won-Lost.dat"), Wanted.Bytes), "");
    FreshState();
    LoadWonLost();
    for (int Index = 1; Index <= 3000; ++Index) {
        ASSERT_EQ(GameState.LayoutWon(Index), Index);
        ASSERT_EQ(GameState.LayoutLost(Index), 32767 - Index);
    }
    EXPECT_EQ(GameState.LayoutWon(0), 0);
}

TEST_F(WonLost, CountsBelowZeroReadAsZero)
{
    PutFile("Won-Lost.dat", FileBytes().Number(5).Number(-5).Number(-32768).Number(7).Bytes);
    LoadWonLost();
    EXPECT_EQ(GameState.LayoutWon(1), 5);
    EXPECT_EQ(GameState.LayoutLost(1), 0);
    EXPECT_EQ(GameState.LayoutWon(2), 0);
    EXPECT_EQ(GameState.LayoutLost(2), 7);
}

TEST_F(WonLost, TheGameAfterTheLastCountIsFatal)
{
    PutFile("Won-Lost.dat", FileBytes().Number(32767).Number(0).Bytes);
    LoadWonLost();
    EXPECT_EXIT(++GameState.LayoutWon(1), testing::ExitedWithCode(1),
                "32768 does not fit in 16 bits");
}

TEST_F(WonLost, CutAtEveryLengthTheRestIsZero)
{
    std::string File;
    for (int I = 0; I < 12000; ++I) File += static_cast<char>(I % 2 ? I % 128 : I % 256);
    for (std::size_t Length = 0; Length <= File.size(); Length += Length < 20 ? 1 : 331) {
        PutFile("Won-Lost.dat", File.substr(0, Length));
        LoadWonLost();
        SaveWonLost();
        ASSERT_EQ(FirstDifference(FileContent("Won-Lost.dat"),
                                  File.substr(0, Length) + std::string(12000 - Length, '\0')),
                  "");
    }
}
