// The readable form of the layouts, the rules the maker holds them to, and the files it made.
#include "board/run_layouts.h"
#include "content/layouts/layout_files.h"
#include "content/layouts/layout_rules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <unistd.h>

namespace
{

struct ReadResult {
    std::vector<Layout> Layouts;
    std::vector<std::string> Faults;
};

ReadResult ReadText(const std::string& Text)
{
    // A folder of its own: the tests run at the same time.
    const std::string Folder = testing::TempDir() + "layouts-" + std::to_string(getpid());
    std::filesystem::create_directory(Folder);
    const std::string File = Folder + "/layout_source.txt";
    std::ofstream(File) << Text;
    ReadResult Result;
    ReadLayouts(File, 1, Result.Layouts, Result.Faults);
    std::filesystem::remove_all(Folder);
    for (std::string& Fault : Result.Faults)
        Fault.erase(0, Fault.rfind('/') == std::string::npos ? 0 : Fault.rfind('/') + 1);
    return Result;
}

// The places as "x,y,z" from the left upper corner, sorted by the placing order.
std::string PlacesOf(const std::string& Text)
{
    const ReadResult Result = ReadText("layout 1 Test\n" + Text);
    if (!Result.Faults.empty()) return Result.Faults[0];
    if (Result.Layouts.size() != 1) return "no layout";
    int LowX = 99, LowY = 99;
    for (const LayoutTile& T : Result.Layouts[0].Tiles) {
        LowX = std::min(LowX, T.X);
        LowY = std::min(LowY, T.Y);
    }
    std::string Places;
    for (const LayoutTile& T : Result.Layouts[0].Tiles)
        Places += std::to_string(T.X - LowX) + "," + std::to_string(T.Y - LowY) + "," +
                  std::to_string(T.Z) + " ";
    return Places;
}

std::string FaultOf(const std::string& Text)
{
    const ReadResult Result = ReadText(Text);
    return Result.Faults.empty() ? "none" : Result.Faults[0];
}

// A layout of 72 tiles that breaks no rule.
Layout Good()
{
    Layout L = PlainStack(1, 1);
    L.File = "good.txt";
    L.Line = 7;
    return L;
}

std::string RuleFault(const Layout& L)
{
    std::vector<std::string> Faults;
    CheckLayout(L, Faults);
    return Faults.empty() ? "none" : Faults[0];
}

std::string ReadBytes(const std::string& Path)
{
    std::ifstream Stream(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
}

const std::string GameData = std::string(PAGODAS_GAME_DIR) + "/DATA/";

// The 360 as the game will read them.
std::vector<Layout> MadeLayouts()
{
    std::istringstream Names(ReadBytes(GameData + "LY0000"));
    std::vector<Layout> Layouts;
    for (int List = 0; List < ListCount; ++List) {
        const std::string Bytes = ReadBytes(GameData + "LY900" + std::to_string(List));
        size_t Cursor = 0;
        const auto Next = [&] {
            const int Value = static_cast<unsigned char>(Bytes.at(Cursor)) +
                              256 * static_cast<signed char>(Bytes.at(Cursor + 1));
            Cursor += 2;
            return Value;
        };
        for (int Number = 1; Number <= LayoutsInList; ++Number) {
            Layout L;
            L.List = List;
            L.Number = Number;
            std::string Line;
            std::getline(Names, Line);
            L.Offset = Line.substr(0, 4);
            L.Name = Line.substr(4);
            for (int I = 0; I < TilesOfNumber(Number); ++I) {
                const int X = Next(), Y = Next(), Z = Next();
                L.Tiles.push_back(PlaceTile(X, Y, Z));
            }
            Layouts.push_back(L);
        }
        EXPECT_EQ(Cursor, Bytes.size());
    }
    return Layouts;
}

} // namespace

TEST(LayoutSource, ADigitWrittenTwiceIsAStackAndACharacterHalfAStep)
{
    EXPECT_EQ(PlacesOf("map\n|22 11\n"), "0,0,1 3,0,1 0,0,2 ");
}

TEST(LayoutSource, ABarIsAWholeStepAndAColonHalfAStepBelow)
{
    EXPECT_EQ(PlacesOf("map\n|11\n|11\n:  11\n"), "0,0,1 0,2,1 2,3,1 ");
}

TEST(LayoutSource, MirrorXTakesASingleDigitAtTheAxisForATileOnTheAxis)
{
    EXPECT_EQ(PlacesOf("mirror x\nmap\n|11 1\n"), "0,0,1 3,0,1 6,0,1 ");
    EXPECT_EQ(PlacesOf("mirror x\nmap\n|11.\n"), "0,0,1 4,0,1 ");
}

TEST(LayoutSource, MirrorYRepeatsAllButAMiddleRow)
{
    EXPECT_EQ(PlacesOf("mirror y\nmap\n|11\n"), "0,0,1 0,2,1 ");
    EXPECT_EQ(PlacesOf("mirror y\nmap\n|11\n=  11\n"), "0,0,1 2,2,1 0,4,1 ");
}

TEST(LayoutSource, MirrorTurnIsHalfACircle)
{
    EXPECT_EQ(PlacesOf("mirror turn\nmap\n|11\n| 11\n"), "0,0,1 1,2,1 0,4,1 1,6,1 ");
}

TEST(LayoutSource, ALaterMapStandsOnTheHighestTileItTouches)
{
    EXPECT_EQ(PlacesOf("map\n|1122\nover\n| 11\n"), "0,0,1 2,0,1 2,0,2 1,0,3 ");
    EXPECT_EQ(PlacesOf("map\n|11\nover\n|  11\n"), "0,0,1 2,0,1 ");
}

TEST(LayoutSource, OrderColumnsChangesTheOrderWithinALayer)
{
    EXPECT_EQ(PlacesOf("map\n|1111\n|11\n"), "0,0,1 2,0,1 0,2,1 ");
    EXPECT_EQ(PlacesOf("order columns\nmap\n|1111\n|11\n"), "0,0,1 0,2,1 2,0,1 ");
}

TEST(LayoutSource, FaultsNameFileLineAndRule)
{
    EXPECT_EQ(FaultOf("layout 1 A\nmap\n|1 1\n"),
              "layout_source.txt:3: a stack is its height written twice: column 1 stands alone");
    EXPECT_EQ(FaultOf("layout 1 A\nmap\n|xx\n"),
              "layout_source.txt:3: a map holds heights 1 to 9, not 'x'");
    EXPECT_EQ(FaultOf("layout 1 A\nmap\n|11\n: 11\n"),
              "layout_source.txt:4: two stacks of a map overlap at column 2 (the other is on line "
              "3)");
    EXPECT_EQ(FaultOf("layout 1 A\nmap\n|11\nroof\n"),
              "layout_source.txt:4: this line is neither a map line nor a known word: roof");
    EXPECT_EQ(FaultOf("layout 1 A\n|11\n"),
              "layout_source.txt:2: a line of a map stands before the word map");
    EXPECT_EQ(FaultOf("layout 121 A\n"), "layout_source.txt:1: a layout's number is 1 to 120");
    EXPECT_EQ(FaultOf("layout 1 A\n"), "layout_source.txt:1: the layout has no map");
    EXPECT_EQ(FaultOf("layout 1 A\nmap\n|  .\n"), "layout_source.txt:1: the layout has no stack");
    EXPECT_EQ(FaultOf("layout 1 A\nover\n|11\n"),
              "layout_source.txt:2: the first map is called map, a later one over");
    EXPECT_EQ(FaultOf("layout 1 A\nruns\n"),
              "layout_source.txt:1: the program has no runs for this number");
    EXPECT_EQ(FaultOf("layout 1 A\nmirror z\n"),
              "layout_source.txt:2: mirror takes x, y or turn, not z");
}

TEST(LayoutRules, APlainStackBreaksNone)
{
    EXPECT_EQ(RuleFault(Good()), "none");
}

TEST(LayoutRules, EachRuleHasItsFault)
{
    const std::string Head = "good.txt:7: layout 1 \"Stack 121\": ";
    Layout L = Good();
    L.Tiles.pop_back();
    EXPECT_EQ(RuleFault(L), Head + "has 71 tiles, the number asks for 72");
    L = Good();
    L.Tiles[71].Z = 10;
    EXPECT_NE(RuleFault(L).find("lies outside columns 1..38"), std::string::npos);
    L = Good();
    L.Tiles[71].X -= 1;
    EXPECT_NE(RuleFault(L).find("overlap"), std::string::npos);
    L = Good();
    L.Tiles[71].Z = 3;
    EXPECT_NE(RuleFault(L).find("has no tile below it"), std::string::npos);
    L = Good();
    L.Tiles[0].Z = 2;
    L.Tiles[0].X = L.Tiles[1].X;
    EXPECT_NE(RuleFault(L).find("is placed after a higher layer"), std::string::npos);
    L = Good();
    L.Offset = "9999";
    EXPECT_NE(RuleFault(L).find("is not centred by its offset code 9999"), std::string::npos);
    L = Good();
    for (LayoutTile& Tile : L.Tiles) Tile = PlaceTile(Tile.X, Tile.Y + 8, Tile.Z);
    EXPECT_NE(RuleFault(L).find("leaves the board's area"), std::string::npos);
    L = Good();
    L.Name = "A name of more letters than fit";
    EXPECT_NE(RuleFault(L).find("the name is longer than 24 letters"), std::string::npos);
}

TEST(LayoutRules, ACopyIsFoundThoughShiftedAndMirrored)
{
    const std::string Shape = "|33 33 33\n|33\n|33 33\n|33\n|3333 3333\n|3333 3333\n|33\n";
    const std::string Mirrored =
        "|    33 33 33\n|          33\n|       33 33\n|          33\n| 3333   3333\n|   3333 3333\n"
        "|          33\n";
    const ReadResult Result =
        ReadText("layout 1 One\nmap\n" + Shape + "layout 2 Two\nmap\n" + Mirrored);
    ASSERT_EQ(Result.Layouts.size(), 2u);
    std::vector<std::string> Faults;
    CheckDistinct(Result.Layouts, Faults);
    ASSERT_EQ(Faults.size(), 1u);
    EXPECT_NE(Faults[0].find("the footprint is that of \"One\""), std::string::npos);
}

TEST(LayoutRules, NamesAndNumbersAreTheirOwn)
{
    std::vector<std::string> Faults;
    CheckDistinct({Good(), Good()}, Faults);
    ASSERT_EQ(Faults.size(), 3u);
    EXPECT_NE(Faults[0].find("the name stands also at good.txt:7"), std::string::npos);
    EXPECT_NE(Faults[1].find("the number stands also at good.txt:7"), std::string::npos);
}

TEST(LayoutFiles, TheMadeFilesHoldTheWrittenForm)
{
    EXPECT_EQ(ReadBytes(GameData + "LY9000").size(), 124416u);
    const std::string Names = ReadBytes(GameData + "LY0000");
    EXPECT_EQ(std::count(Names.begin(), Names.end(), '\n'), 360);
    const std::vector<Layout> Layouts = MadeLayouts();
    EXPECT_EQ(NameListBytes(Layouts), Names);
    for (int List = 0; List < ListCount; ++List)
        EXPECT_EQ(GeometryBytes(Layouts, List),
                  ReadBytes(GameData + "LY900" + std::to_string(List)));
}

TEST(LayoutFiles, EveryMadeLayoutKeepsTheRules)
{
    std::vector<std::string> Faults;
    for (Layout& L : MadeLayouts()) {
        const RunLayout* Table = L.List == 0 ? FindRunLayout(L.Number) : nullptr;
        size_t I = 0;
        // The pictures of a run stand 60 pixels apart and so a little nearer.
        if (Table)
            for (const TileRun& Run : Table->Runs)
                for (int Step = 0; Step < Run.Count; ++Step, ++I) {
                    EXPECT_EQ(L.Tiles[I].X, Run.X + 2 * Step) << L.Name;
                    EXPECT_EQ(L.Tiles[I].Y, Run.Y) << L.Name;
                    EXPECT_EQ(L.Tiles[I].Z, Run.Z) << L.Name;
                    L.Tiles[I].Left = PlaceTile(Run.X, Run.Y, Run.Z).Left + TilePixels * Step;
                }
        CheckLayout(L, Faults);
    }
    EXPECT_EQ(Faults.size(), 0u) << Faults[0];
}

TEST(LayoutFiles, ThirtySheetsOf960By600WithAlpha)
{
    for (int Sheet = 1; Sheet <= 30; ++Sheet) {
        char Name[8];
        std::snprintf(Name, sizeof Name, "LY%04d", Sheet);
        const std::string Bytes = ReadBytes(GameData + Name);
        ASSERT_GT(Bytes.size(), 26u) << Name;
        EXPECT_EQ(Bytes.substr(1, 3), "PNG") << Name;
        EXPECT_EQ(Bytes.substr(16, 8), std::string("\0\0\3\xC0\0\0\2\x58", 8)) << Name;
        EXPECT_EQ(Bytes[25], 6) << Name; // colour type: red, green, blue, alpha
    }
}
