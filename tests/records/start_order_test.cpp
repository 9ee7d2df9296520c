// The order in which the start opens the record files, as the system sees it.
#include "frame/frame.h"
#include "tests/records/records_test.h"

#include <sys/inotify.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

struct StartOrder : RecordsTest {
    // Names of the files that Run opens in the directory and in SCOR, repeats left out.
    template <typename Procedure> static std::vector<std::string> OpenedBy(Procedure Run)
    {
        const int Watch = inotify_init1(IN_NONBLOCK);
        inotify_add_watch(Watch, GameDirectory.c_str(), IN_OPEN);
        inotify_add_watch(Watch, Place("SCOR").c_str(), IN_OPEN);
        const pid_t Child = fork();
        if (Child == 0) {
            Platform.ReportFatal = [](const std::string&) {}; // there is no \DATA here
            Run();
            _exit(0);
        }
        waitpid(Child, nullptr, 0);
        std::vector<std::string> Opened;
        alignas(inotify_event) char Buffer[4096];
        for (ssize_t Size; (Size = read(Watch, Buffer, sizeof Buffer)) > 0;)
            for (ssize_t At = 0; At < Size;) {
                const auto* Event = reinterpret_cast<const inotify_event*>(Buffer + At);
                const std::string Name = Event->len > 0 ? Event->name : "";
                if (!Name.empty() && (Opened.empty() || Opened.back() != Name))
                    Opened.push_back(Name);
                At += static_cast<ssize_t>(sizeof(inotify_event) + Event->len);
            }
        close(Watch);
        return Opened;
    }
};

} // namespace

TEST_F(StartOrder, HistoryAndCountsThenSettingsThenTheScoresOfTheListThatTheyName)
{
    std::string Settings(508, '\0');
    Settings[36] = 1;
    PutFile("Settings.dat", Settings);
    PutFile("History.dat", "");
    PutFile("Won-Lost.dat", "");
    PutFile("SCOR/Scores-A", "");
    PutFile("SCOR/Scores-B", "");
    EXPECT_EQ(OpenedBy(StartGame), (std::vector<std::string>{"History.dat", "Won-Lost.dat",
                                                             "Settings.dat", "Scores-B"}));
}

TEST_F(StartOrder, TheSplashOpensTheSettingsAlone)
{
    PutFile("Settings.dat", "");
    PutFile("SCOR/Scores-A", "");
    EXPECT_EQ(OpenedBy(SplashLoad), std::vector<std::string>{"Settings.dat"});
}
