// packs.cpp: content packs. The index file \DATA\XPnnnn has 144 lines: the names of 24 tile sets,
// then those of 120 layouts.
#include "frame/files.h"
#include "media/media.h"

#include <string_view>

constexpr int HighestPack = 100;
constexpr int SetsOfPack = 24, LayoutsOfPack = 120;
constexpr int BuiltInLists = 3, BuiltInSets = 72;
constexpr int ListedPacks = 25; // packs that the menu names

static int PackNumber(const std::string& File)
{
    return std::stoi(File.substr(File.size() - 4));
}

static void FindPacks()
{
    for (int List = 0; List < BuiltInLists; ++List) GameState.LayoutSets(List + 1) = List;
    int Packs = 0;
    for (int Number = 1; Number <= HighestPack; ++Number) {
        const std::string File = DataFile("XP", Number);
        if (!FileExists(File)) continue;
        ++Packs;
        GameState.PackFiles(Packs) = "XP" + FourDigits(Number);
        GameState.LayoutSets(Packs + BuiltInLists) = Number + 2;
    }
    GameState.TileSetCount = BuiltInSets + SetsOfPack * Packs;
    GameState.LayoutListCount = BuiltInLists + Packs;
}

// Line Number of the index, counted from 1.
static std::string IndexLine(std::string_view& Text, const std::string& File, int Number)
{
    std::string Line;
    if (!TakeLine(Text, Line))
        FatalError(File + " line " + std::to_string(Number) + " is missing: a content pack has " +
                   std::to_string(SetsOfPack + LayoutsOfPack) + " lines");
    return Line;
}

static void ReadPack(const std::string& Name)
{
    const std::string File = "\\DATA\\" + Name;
    const int List = PackNumber(Name) + 2;
    if (List * LayoutsOfPack + LayoutsOfPack > LastLayoutIndex)
        FatalError(File + ": the highest number of a content pack is 22");
    Bytes Content;
    if (!ReadFileStart(File, Content, MostText)) FatalError(File + " cannot be read");
    std::string_view Text(reinterpret_cast<const char*>(Content.data()), Content.size());
    int Line = 0;
    for (int I = 0; I < SetsOfPack; ++I)
        GameState.TileSetNames(List * SetsOfPack + I) = IndexLine(Text, File, ++Line);
    for (int I = 1; I <= LayoutsOfPack; ++I)
        GameState.LayoutName(List * LayoutsOfPack + I) = IndexLine(Text, File, ++Line);
}

static std::string InstalledPacks()
{
    std::string List;
    for (int I = 1; I <= ListedPacks; ++I) {
        const std::string& File = GameState.PackFiles(I);
        if (File.empty()) continue;
        // The last three digits, not four: wanted.
        List +=
            (List.empty() ? "" : ", ") + std::to_string(std::stoi(File.substr(File.size() - 3)));
    }
    return List.empty() ? "None" : List;
}

void ScanContentPacks()
{
    FindPacks();
    for (int Pack = 1; Pack <= GameState.LayoutListCount - BuiltInLists; ++Pack)
        ReadPack(GameState.PackFiles(Pack));
    SetCaption(lblxpack_Installed, InstalledPacks());
}

void imgExpansionPacks_Press(int)
{
    Show(lblxpack_Title);
    Show(lblxpack_Installed);
    Show(lblXpack_Notice);
}

void imgExpansionPacks_Action(int)
{
    Platform.OpenAddress("\\DATA\\packs.html");
}

void HidePackLabels()
{
    Hide(lblxpack_Title);
    Hide(lblxpack_Installed);
    Hide(lblXpack_Notice);
}
