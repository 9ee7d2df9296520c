// Saves that are cut off: by a kill, a full disk or another game in the same directory.
#include "tests/records/records_test.h"
#include "tests/records/usable_state.h"

#include <csignal>
#include <poll.h>
#include <sched.h>
#include <sys/inotify.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr const char* Files[] = {"Settings.dat", "SCOR/Scores-A", "History.dat", "Won-Lost.dat"};

// Two states of the records that differ in every file, from the first byte to the last.
void PutState(int Which)
{
    const int Number = Which == 0 ? 11111 : 22222;
    const std::string Name(12, Which == 0 ? 'a' : 'b');
    GameState.DisplayMode = Which;
    for (int Type = 1; Type <= 3; ++Type)
        for (int I = 1; I <= 12; ++I) GameState.PlayerNames(Type, I) = Name;
    for (ScoreEntry& Entry : GameState.ScoreTable.Cells) Entry = {Name, Number, 1, 1, Number};
    for (HistoryRow& Row : GameState.History.Cells) Row = {Name, "10", 19, Number, "0101" + Name};
    for (I16& Count : GameState.LayoutWon.Cells) Count = Number;
    for (I16& Count : GameState.LayoutLost.Cells) Count = Number;
}

struct Durability : RecordsTest {
    std::string Whole[2][std::size(Files)];

    explicit Durability(bool InMemory = MemoryDiskStands()) : RecordsTest(InMemory)
    {
        for (int Which : {1, 0}) {
            PutState(Which);
            SaveAllRecords();
            for (std::size_t I = 0; I < std::size(Files); ++I)
                Whole[Which][I] = FileContent(Files[I]);
        }
    }
    // Each file is one of the two, whole.
    void ExpectWhole(const std::string& When) const
    {
        for (std::size_t I = 0; I < std::size(Files); ++I) {
            const std::string Content = FileContent(Files[I]);
            ASSERT_TRUE(Content == Whole[0][I] || Content == Whole[1][I])
                << Files[I] << " has " << Content.size() << " bytes, " << When;
        }
    }
    static int FilesBeside()
    {
        int Count = 0;
        for (const auto& Entry : std::filesystem::recursive_directory_iterator(GameDirectory))
            Count += Entry.path().string().find(".new") != std::string::npos;
        return Count;
    }
};

// Where saving takes its time, kills hit it at more places.
struct DurabilityOnDisk : Durability {
    DurabilityOnDisk() : Durability(false) {}
};

[[noreturn]] void SaveForEver()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL); // not longer than the test
    for (int Which = 1;; Which = 1 - Which) {
        PutState(Which);
        SaveAllRecords();
    }
}

// Tells of every file that is made in the game directory.
int WatchFolders()
{
    const int Watch = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    for (const char* Folder : {"", "SCOR"})
        inotify_add_watch(Watch, Place(Folder).c_str(), IN_CREATE);
    return Watch;
}

// A process that saves for ever and has just made a file beside the old one.
pid_t StartSaves(int Watch)
{
    char Earlier[4096];
    while (read(Watch, Earlier, sizeof Earlier) > 0) {
    }
    const pid_t Child = fork();
    if (Child == 0) SaveForEver();
    pollfd Made = {Watch, POLLIN, 0};
    constexpr int Longest = 10000; // ms
    poll(&Made, 1, Longest);
    return Child;
}

} // namespace

TEST_F(DurabilityOnDisk, AKillAtAnyTimeLeavesTheOldFileOrTheNewOne)
{
    const int Watch = WatchFolders();
    int KilledInASave = 0;
    for (int Round = 0; Round < 250; ++Round) {
        const pid_t Child = StartSaves(Watch);
        if (Round % 2) usleep(static_cast<useconds_t>(Round * 37 % 8000));
        kill(Child, SIGKILL);
        waitpid(Child, nullptr, 0);
        ExpectWhole("after kill " + std::to_string(Round));
        KilledInASave += FilesBeside();
        SaveAllRecords(); // the next save takes away what the killed one left
        ASSERT_EQ(FilesBeside(), 0);
    }
    close(Watch);
    EXPECT_GT(KilledInASave, 20); // or the test would hit nothing
}

// Every system call is a place where the disk can be between two states.
TEST_F(Durability, AKillAtEverySystemCallLeavesTheOldFileOrTheNewOne)
{
    int Calls = 0;
    for (bool Finished = false; !Finished; ++Calls) {
        PutState(0);
        SaveAllRecords();
        const pid_t Child = fork();
        if (Child == 0) {
            if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) _exit(2);
            raise(SIGSTOP);
            PutState(1);
            SaveAllRecords();
            _exit(0);
        }
        int Status = 0;
        waitpid(Child, &Status, 0);
        if (!WIFSTOPPED(Status)) GTEST_SKIP() << "processes cannot be traced here";
        for (int Stop = 0; Stop <= Calls && !Finished; ++Stop) {
            ptrace(PTRACE_SYSCALL, Child, nullptr, nullptr);
            waitpid(Child, &Status, 0);
            Finished = WIFEXITED(Status);
        }
        if (!Finished) {
            kill(Child, SIGKILL);
            waitpid(Child, nullptr, 0);
        }
        ExpectWhole("after stop " + std::to_string(Calls));
    }
    EXPECT_GT(Calls, 80);
    EXPECT_LT(Calls, 2000);
}

TEST_F(Durability, OnlyTheLeftoversOfProcessesThatAreGoneAreRemoved)
{
    const pid_t Child = fork();
    if (Child == 0) _exit(0);
    waitpid(Child, nullptr, 0);
    const std::string Gone = ".new" + std::to_string(Child), Alive = ".new1";
    const std::string Others[] = {"Settings.dat" + Alive,
                                  "Settings.dat" + Gone + "x",
                                  "Settings.dat.newer",
                                  "Settings.dat.new",
                                  "Settings.dat.new-1",
                                  "Settings.data" + Gone,
                                  "Settings.dat.new99999999999999999999"};
    for (const std::string& Name : Others) PutFile(Name, "of somebody else");
    for (const char* File : Files) PutFile(File + Gone, "half a fi");
    SaveAllRecords();
    for (const char* File : Files) EXPECT_FALSE(std::filesystem::exists(Place(File + Gone)));
    for (const std::string& Name : Others) EXPECT_EQ(FileContent(Name), "of somebody else");
    ExpectWhole("after the save");
}

TEST_F(Durability, TwoGamesInOneDirectoryLeaveWholeFiles)
{
    pid_t Games[2];
    for (pid_t& Game : Games) {
        Game = fork();
        if (Game == 0) SaveForEver();
    }
    for (int Round = 0; Round < 200; ++Round) {
        ExpectWhole("in round " + std::to_string(Round));
        usleep(1000);
    }
    for (pid_t Game : Games) {
        kill(Game, SIGKILL);
        waitpid(Game, nullptr, 0);
    }
    ExpectWhole("at the end");
}

TEST_F(Durability, AWriteThatIsCutShortLeavesTheOldFile)
{
    for (std::size_t Limit :
         {0U, 1U, 507U, 508U, 9827U, 9828U, 11999U, 12000U, 65536U, 129599U, 129600U}) {
        PutState(0);
        SaveAllRecords();
        const pid_t Child = fork();
        if (Child == 0) {
            signal(SIGXFSZ, SIG_IGN);
            const rlimit Limits = {Limit, Limit};
            setrlimit(RLIMIT_FSIZE, &Limits);
            PutState(1);
            SaveAllRecords();
            int Expected = 0;
            for (const std::string& Content : Whole[1]) Expected += Content.size() > Limit;
            if (static_cast<int>(Troubles.size()) != Expected) _exit(1);
            for (const std::string& Text : Troubles)
                if (Text.find("could not be saved: File too large.") == std::string::npos) _exit(2);
            _exit(0);
        }
        int Status = 0;
        waitpid(Child, &Status, 0);
        EXPECT_EQ(Status, 0) << Limit;
        for (std::size_t I = 0; I < std::size(Files); ++I) {
            const bool Fits = Whole[1][I].size() <= Limit;
            ASSERT_EQ(FirstDifference(FileContent(Files[I]), Whole[Fits ? 1 : 0][I]), "");
        }
        EXPECT_EQ(FilesBeside(), 0);
    }
}

// A small file system of its own, filled to the last block.
TEST_F(Durability, AFullDiskLeavesTheOldFileAndSavesAgainWhenThereIsRoom)
{
    const pid_t Child = fork();
    if (Child == 0) {
        const bool Mounted = unshare(CLONE_NEWNS | (geteuid() == 0 ? 0 : CLONE_NEWUSER)) == 0 &&
                             mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                             mount("none", GameDirectory.c_str(), "tmpfs", 0, "size=320k") == 0;
        if (!Mounted) _exit(77);
        PutState(0);
        SaveAllRecords();
        if (!Troubles.empty()) _exit(1);
        {
            std::ofstream Filler(Place("filler"), std::ios::binary);
            while (Filler) Filler.write(Whole[0][0].data(), 508).flush();
        }
        PutState(1);
        SaveAllRecords();
        if (Troubles.size() != std::size(Files)) _exit(2);
        for (const std::string& Text : Troubles)
            if (Text.find("could not be saved: No space left on device.") == std::string::npos)
                _exit(3);
        for (std::size_t I = 0; I < std::size(Files); ++I)
            if (FileContent(Files[I]) != Whole[0][I]) _exit(4);
        if (FilesBeside() != 0) _exit(5);
        std::filesystem::remove(Place("filler"));
        SaveAllRecords(); // what was kept in memory
        if (Troubles.size() != std::size(Files)) _exit(6);
        for (std::size_t I = 0; I < std::size(Files); ++I)
            if (FileContent(Files[I]) != Whole[1][I]) _exit(7);
        _exit(0);
    }
    int Status = 0;
    waitpid(Child, &Status, 0);
    ASSERT_TRUE(WIFEXITED(Status));
    if (WEXITSTATUS(Status) == 77) GTEST_SKIP() << "no file system can be mounted here";
    EXPECT_EQ(WEXITSTATUS(Status), 0);
}
