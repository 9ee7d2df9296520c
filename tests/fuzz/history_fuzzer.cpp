// \History.dat of any content, its pages on the screen, and a new game in it.
#include "screens/screens.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/records/usable_state.h"

constexpr const char* File = "\\History.dat";
constexpr std::size_t Size = 9828;

static void RecordOneGame(const std::string& Name, int Type, int Outcome)
{
    GameState.GameType = Type;
    GameState.LayoutGroup = Type - 1;
    RecordGame(Outcome, Name, Name == "-" ? "-" : "10", 40 * Type, 1000 + Type);
}

std::vector<std::string> Seeds()
{
    std::vector<std::string> Made = {"", std::string(52, '\xff')};
    LoadHistory();
    for (int I = 0; I < 6; ++I) {
        RecordOneGame(I % 2 ? "-" : "ann", 1 + I % 3, I % 2 ? OutcomeNoPlace : OutcomeNewHigh);
        Made.push_back(FileContent(File).substr(0, 26 * 4));
    }
    Made.push_back(FileContent(File));
    return Made;
}

static void LookAtPages()
{
    for (int Type : {Finesse, Agility, Wisdom})
        for (int View = 1; View <= 3; ++View)
            for (int Page = 1; Page <= 3; ++Page) {
                GameState.HistoryGameType = Type;
                GameState.HistoryView = View;
                GameState.HistoryPage = Page;
                ShowHistoryPage();
            }
}

void PlayRound(const std::string& Input)
{
    PutFile(File, Input);
    LoadHistory();
    Require(UnusableHistory().empty(), UnusableHistory());
    Require(FileContent(File) == Input, "reading changes the file");
    LookAtPages();
    RecordOneGame("ann", Finesse, OutcomeNewHigh);
    RequireLasting(File, Size, LoadHistory, SaveHistory);
    LookAtPages();
}
