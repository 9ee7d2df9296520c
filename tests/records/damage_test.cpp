// Record files of any content, length and kind.
#include "tests/records/records_test.h"
#include "tests/records/usable_state.h"

#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct RecordFormat {
    const char* File;
    std::size_t Size;
};
constexpr RecordFormat Formats[] = {{"Settings.dat", 508},
                                    {"SCOR/Scores-A", 129600},
                                    {"History.dat", 9828},
                                    {"Won-Lost.dat", 12000}};

struct Damage : RecordsTest {
    Damage()
    {
        InstallPacks();
        std::filesystem::create_directory(Place("SCOR"));
    }
    static void StartAnew()
    {
        FreshState();
        BuildTables();
        InstallPacks();
        LoadAllRecords();
    }
    // After a start on whatever stands on the disk: the game is playable, and what a first game
    // saves is what the next start finds.
    static void ExpectPlayable(const std::string& What)
    {
        StartAnew();
        ASSERT_EQ(UnusableNumber(), "") << What;
        PlayOneGame();
        ASSERT_TRUE(Troubles.empty()) << What << ": " << Troubles[0];
        std::vector<std::string> Saved;
        for (const RecordFormat& Format : Formats) Saved.push_back(FileContent(Format.File));
        StartAnew();
        SaveAllRecords();
        for (std::size_t I = 0; I < Saved.size(); ++I)
            ASSERT_EQ(FirstDifference(FileContent(Formats[I].File), Saved[I]), "") << What;
    }
    static void ExpectFirstRun()
    {
        StartAnew();
        EXPECT_EQ(GameState.LayoutNumber, 19);
        EXPECT_EQ(GameState.TileSetFixed, 1);
        EXPECT_EQ(GameState.ScoreTable(1, 19, 1).Score, 0);
        EXPECT_EQ(GameState.History(1, 1, 1).Name, "");
        EXPECT_EQ(UnusableNumber(), "");
    }
};

// Runs the test's body as an ordinary user, to whom permissions apply. Its failures are told on
// standard error and by the answer.
template <typename Body> bool PassesAsPlayer(Body Run)
{
    const pid_t Child = fork();
    if (Child == 0) {
        constexpr uid_t Nobody = 65534;
        if (geteuid() == 0) {
            for (const char* Folder : {"", "/SCOR"})
                if (chown((GameDirectory + Folder).c_str(), Nobody, Nobody) != 0) _exit(2);
            for (const RecordFormat& Format : Formats)
                if (chown(Place(Format.File).c_str(), Nobody, Nobody) != 0) _exit(3);
            if (setuid(Nobody) != 0) _exit(4);
        }
        Run();
        _exit(testing::Test::HasFailure() ? 1 : 0);
    }
    int Status = 0;
    waitpid(Child, &Status, 0);
    return Status == 0;
}

} // namespace

TEST_F(Damage, MissingFilesAreAFirstRun)
{
    ExpectFirstRun();
    ExpectPlayable("missing files");
}

TEST_F(Damage, EmptyFilesAreAFirstRun)
{
    for (const RecordFormat& Format : Formats) PutFile(Format.File, "");
    ExpectFirstRun();
    ExpectPlayable("empty files");
}

TEST_F(Damage, FoldersInPlaceOfTheFilesAreAFirstRunThatCannotBeSaved)
{
    for (const RecordFormat& Format : Formats)
        std::filesystem::create_directory(Place(Format.File));
    ExpectFirstRun();
    SaveAllRecords();
    EXPECT_EQ(Troubles.size(), 4U);
    for (const RecordFormat& Format : Formats)
        EXPECT_TRUE(std::filesystem::is_directory(Place(Format.File)));
}

TEST_F(Damage, PipesLinksAndDevicesAreAFirstRun)
{
    ASSERT_EQ(mkfifo(Place("Settings.dat").c_str(), 0600), 0);
    std::filesystem::create_symlink("nowhere", Place("History.dat"));
    std::filesystem::create_symlink("Won-Lost.dat", Place("Won-Lost.dat"));
    std::filesystem::create_symlink("/dev/zero", Place("SCOR/Scores-A"));
    ExpectFirstRun();
    ExpectPlayable("pipes and links");
}

TEST_F(Damage, AFileInPlaceOfTheFolderCannotBeSavedInto)
{
    std::filesystem::remove(Place("SCOR"));
    PutFile("SCOR", "a file");
    ExpectFirstRun();
    SaveScores();
    ASSERT_EQ(Troubles.size(), 1U);
    EXPECT_EQ(Troubles[0], "The high scores could not be saved: Not a directory.");
    EXPECT_EQ(FileContent("SCOR"), "a file");
}

TEST_F(Damage, UnreadableFilesAreAFirstRunAndAreNotReplaced)
{
    for (const RecordFormat& Format : Formats) {
        PutFile(Format.File, "years of scores");
        chmod(Place(Format.File).c_str(), 0);
    }
    EXPECT_TRUE(PassesAsPlayer([] {
        ExpectFirstRun();
        PlayOneGame();
        EXPECT_EQ(Troubles.size(), 5U); // the history was saved by RecordGame too
        EXPECT_EQ(
            Troubles.back(),
            "The counts of won and lost games could not be saved: the old file cannot be read.");
        // Mended by hand meanwhile: the values in memory are saved after all.
        for (const RecordFormat& Format : Formats) chmod(Place(Format.File).c_str(), 0644);
        for (const RecordFormat& Format : Formats)
            EXPECT_EQ(FileContent(Format.File), "years of scores");
        SaveAllRecords();
        EXPECT_EQ(Troubles.size(), 5U);
        LoadAllRecords();
        EXPECT_EQ(GameState.ScoreTable(1, 19, 1).Name, "ann");
    }));
}

TEST_F(Damage, AReadOnlyFolderKeepsTheOldFilesAndTheNewValuesInMemory)
{
    StartAnew();
    PlayOneGame();
    EXPECT_TRUE(PassesAsPlayer([] {
        std::vector<std::string> Old;
        for (const RecordFormat& Format : Formats) Old.push_back(FileContent(Format.File));
        for (const char* Folder : {"", "SCOR"}) chmod(Place(Folder).c_str(), 0555);
        StartAnew();
        GameState.MusicOn = 1;
        PlayOneGame();
        EXPECT_EQ(Troubles.size(), 5U);
        EXPECT_EQ(Troubles[0], "The history could not be saved: Permission denied.");
        for (std::size_t I = 0; I < Old.size(); ++I)
            EXPECT_EQ(FirstDifference(FileContent(Formats[I].File), Old[I]), "");
        for (const char* Folder : {"", "SCOR"}) chmod(Place(Folder).c_str(), 0755);
        SaveAllRecords();
        EXPECT_EQ(Troubles.size(), 5U);
        StartAnew();
        EXPECT_EQ(GameState.MusicOn, 1);
        EXPECT_EQ(GameState.ScoreTable(1, 19, 2).Score, 12345);
        EXPECT_EQ(GameState.LayoutWon(19), 2);
    }));
}

TEST_F(Damage, ScoresThatCouldNotBeSavedOutliveATurnOfTheList)
{
    StartAnew();
    PlayOneGame();
    EXPECT_TRUE(PassesAsPlayer([] {
        StartAnew();
        chmod(Place("SCOR").c_str(), 0555);
        PlayOneGame();
        GameState.LayoutGroup = 1;
        LoadScores();
        EXPECT_EQ(GameState.ScoreTable(1, 19, 2).Score, 0);
        GameState.LayoutGroup = 0;
        LoadScores();
        EXPECT_EQ(GameState.ScoreTable(1, 19, 2).Score, 12345);
        GameState.LayoutGroup = 1;
        LoadScores();
        chmod(Place("SCOR").c_str(), 0755);
        SaveSettings(); // another try for the scores as well
        StartAnew();
        GameState.LayoutGroup = 0;
        LoadScores();
        EXPECT_EQ(GameState.ScoreTable(1, 19, 2).Score, 12345);
    }));
}

TEST_F(Damage, RandomBytesOfRandomLength)
{
    std::mt19937 Chance(1);
    for (int Round = 0; Round < 60; ++Round) {
        for (const RecordFormat& Format : Formats) {
            std::string Content(Chance() % (Format.Size + Format.Size / 4), '\0');
            for (char& Byte : Content) Byte = static_cast<char>(Chance());
            PutFile(Format.File, Content);
        }
        ExpectPlayable("round " + std::to_string(Round));
    }
}

TEST_F(Damage, MutationsOfGoodFiles)
{
    StartAnew();
    for (int I = 1; I <= 12; ++I) PlayOneGame();
    std::vector<std::string> Good;
    for (const RecordFormat& Format : Formats) Good.push_back(FileContent(Format.File));
    std::mt19937 Chance(2);
    constexpr int Telling[] = {0, 1, 2, 7, 77, 127, 128, 200, 254, 255};
    for (int Round = 0; Round < 100; ++Round) {
        for (std::size_t I = 0; I < Good.size(); ++I) {
            std::string Content = Good[I];
            for (std::size_t N = Chance() % 40; N > 0; --N) {
                // Half of the hits go to the first kilobyte, where the fields differ most.
                const std::size_t Reach =
                    Chance() % 2 ? Content.size() : std::min<std::size_t>(Content.size(), 1024);
                Content[Chance() % Reach] =
                    static_cast<char>(Telling[Chance() % std::size(Telling)]);
            }
            PutFile(Formats[I].File, Content);
        }
        ExpectPlayable("round " + std::to_string(Round));
    }
}

TEST_F(Damage, EveryNumberOfTheSettingsWithEveryTellingValue)
{
    for (std::size_t Offset = 0; Offset < 76; Offset += 2)
        for (int Value : {-32768, -1, 1,   2,   3,   4,   5,   7,   13,   25,    31,
                          73,     77, 101, 121, 200, 256, 601, 900, 3001, 20000, 32767}) {
            std::string Content(508, '\0');
            Content.replace(Offset, 2, FileBytes().Number(Value).Bytes);
            PutFile("Settings.dat", Content);
            StartAnew();
            ASSERT_EQ(UnusableNumber(), "") << "offset " << Offset << ", value " << Value;
        }
}

TEST_F(Damage, NothingIsWrittenBeforeThePlayersOwnSave)
{
    std::mt19937 Chance(3);
    std::vector<std::string> Damaged;
    for (const RecordFormat& Format : Formats) {
        std::string Content(Format.Size, '\0');
        for (char& Byte : Content) Byte = static_cast<char>(Chance());
        PutFile(Format.File, Content);
        Damaged.push_back(Content);
    }
    StartAnew();
    for (std::size_t I = 0; I < Damaged.size(); ++I)
        EXPECT_EQ(FirstDifference(FileContent(Formats[I].File), Damaged[I]), "");
}
