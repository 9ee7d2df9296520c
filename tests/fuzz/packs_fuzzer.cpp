// The index file of a content pack of any number and content: 144 lines, or a fatal error. The
// first byte is the pack's number.
#include "media/media.h"
#include "tests/fuzz/fuzzing.h"

constexpr std::size_t Lines = 24 + 120;

static std::string Index(int Pack, int Count, const std::string& End)
{
    std::string Text(1, static_cast<char>(Pack));
    for (int I = 1; I <= Count; ++I) Text += (I % 10 ? std::to_string(I) : "") + End;
    return Text;
}

std::vector<std::string> Seeds()
{
    return {Index(1, 144, "\n"), Index(22, 144, "\r\n"), Index(23, 144, "\n"),
            Index(100, 200, "\n"), Index(2, 143, "\n")};
}

// As the text itself says it, apart from the game's reader.
static std::vector<std::string> LinesOf(const std::string& Text)
{
    std::vector<std::string> Found(1);
    for (char C : Text) {
        if (C != '\n') {
            Found.back() += C;
            continue;
        }
        if (Found.back().ends_with('\r')) Found.back().pop_back();
        Found.emplace_back();
    }
    if (Found.back().empty()) Found.pop_back();
    if (!Found.empty() && Found.back().ends_with('\r')) Found.back().pop_back();
    return Found;
}

void PlayRound(const std::string& Input)
{
    if (Input.empty()) return;
    const int Pack = static_cast<unsigned char>(Input[0]) % 100 + 1, List = Pack + 2;
    const std::string File = DataFile("XP", Pack);
    PutFile(File, Input.substr(1));
    const bool Refused = IsFatal(ScanContentPacks);
    RemoveGameFile(File);
    const std::vector<std::string> Names = LinesOf(Input.substr(1));
    Require(Refused == (Pack > 22 || Names.size() < Lines), "refused or taken, but wrongly");
    if (Refused) return;
    for (int I = 0; I < 24; ++I)
        Require(GameState.TileSetNames(List * 24 + I) == Names[I], "tile set " + std::to_string(I));
    for (int I = 1; I <= 120; ++I)
        Require(GameState.LayoutName(List * 120 + I) == Names[23 + I],
                "layout" + std::to_string(I));
    Require(GameState.TileSetCount == 96 && GameState.LayoutListCount == 4, "counts");
}
