// \DATA\LY0000 of any content: 360 lines of an offset code and a name, or a fatal error.
#include "board/board.h"
#include "tests/fuzz/fuzzing.h"

constexpr const char* File = "\\DATA\\LY0000";

std::vector<std::string> Seeds()
{
    std::string Lines, Ends;
    for (int I = 0; I < 360; ++I) {
        Lines += "0000" + std::string(I % 3, 'a') + "\n";
        Ends += "9999\r\n";
    }
    return {Lines, Ends, Lines.substr(0, Lines.size() - 1), "0000Bridges\n"};
}

void PlayRound(const std::string& Input)
{
    PutFile(File, Input);
    if (IsFatal(LoadLayoutNames)) return;
    Require(std::count(Input.begin(), Input.end(), '\n') >= 359, "a cut file is taken");
    std::size_t At = 0;
    for (int Index = 1; Index <= 360; ++Index) {
        const std::string Line = GameState.LayoutOffset(Index) + GameState.LayoutName(Index);
        Require(GameState.LayoutOffset(Index).size() == 4, "an offset code is cut");
        Require(Input.compare(At, Line.size(), Line) == 0, "line " + std::to_string(Index));
        At = Input.find('\n', At) + 1;
    }
}
