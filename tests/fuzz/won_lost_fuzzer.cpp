// \Won-Lost.dat of any content.
#include "tests/fuzz/fuzzing.h"
#include "tests/records/usable_state.h"

constexpr const char* File = "\\Won-Lost.dat";
constexpr std::size_t Size = 12000;

std::vector<std::string> Seeds()
{
    std::vector<std::string> Made = {"", std::string(9, '\xff')};
    LoadWonLost();
    for (int Index : {1, 2, 3, 3000}) {
        GameState.LayoutWon(Index) = 300 * Index % 32768;
        GameState.LayoutLost(Index) = Index;
        SaveWonLost();
        Made.push_back(FileContent(File).substr(0, 16));
    }
    Made.push_back(FileContent(File));
    return Made;
}

void PlayRound(const std::string& Input)
{
    PutFile(File, Input);
    LoadWonLost();
    Require(UnusableCount().empty(), UnusableCount());
    Require(FileContent(File) == Input, "reading changes the file");
    const bool Full = GameState.LayoutWon(1) == 32767;
    Require(IsFatal([] { ++GameState.LayoutWon(1); }) == Full, "a count runs over");
    RequireLasting(File, Size, LoadWonLost, SaveWonLost);
}
