// make-layouts OUTDIR SOURCES: writes OUTDIR/DATA/LY0000, LY0001..LY0030 and LY9000..LY9002 from
// the layout sources of the folder SOURCES. With a fault in a source it names them all and writes
// nothing.
#include "layout_files.h"
#include "layout_rules.h"

#include <QGuiApplication>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

namespace
{

constexpr char ListLetters[] = {'a', 'b', 'c'};
constexpr int TileCounts[] = {72, 144, 216, 288};
constexpr int SheetCount = 30;

// The 360 in order; a number that no source draws is a plain stack.
std::vector<Layout> FillUp(const std::vector<Layout>& Authored)
{
    std::map<int, const Layout*> ByIndex;
    for (const Layout& L : Authored) ByIndex[L.List * LayoutsInList + L.Number] = &L;
    std::vector<Layout> All;
    for (int List = 0; List < ListCount; ++List)
        for (int Number = 1; Number <= LayoutsInList; ++Number) {
            const auto Found = ByIndex.find(List * LayoutsInList + Number);
            All.push_back(Found != ByIndex.end() ? *Found->second : PlainStack(List, Number));
        }
    return All;
}

bool WriteFile(const std::filesystem::path& Path, const std::string& Bytes)
{
    std::ofstream Stream(Path, std::ios::binary);
    Stream << Bytes;
    return static_cast<bool>(Stream.flush());
}

int Report(const std::vector<std::string>& Faults)
{
    for (const std::string& Fault : Faults) std::fprintf(stderr, "%s\n", Fault.c_str());
    std::fprintf(stderr, "make-layouts: %zu faults, nothing written\n", Faults.size());
    return 1;
}

} // namespace

int main(int Count, char** Words)
{
    if (Count != 3) {
        std::fprintf(stderr, "make-layouts OUTDIR SOURCES\n");
        return 1;
    }
    QGuiApplication App(Count, Words);
    const std::filesystem::path Out = Words[1], Sources = Words[2];

    std::vector<Layout> Authored;
    std::vector<std::string> Faults;
    for (int List = 0; List < ListCount; ++List)
        for (const int Tiles : TileCounts) {
            char Name[32];
            std::snprintf(Name, sizeof Name, "list_%c_%03d.txt", ListLetters[List], Tiles);
            ReadLayouts((Sources / Name).string(), List, Authored, Faults);
        }
    for (const Layout& L : Authored) CheckLayout(L, Faults);
    CheckDistinct(Authored, Faults);
    if (!Faults.empty()) return Report(Faults);

    const std::vector<Layout> All = FillUp(Authored);
    for (const Layout& L : All) CheckLayout(L, Faults);

    std::map<std::string, std::string> Files = {{"LY0000", NameListBytes(All)}};
    for (int List = 0; List < ListCount; ++List)
        Files["LY900" + std::to_string(List)] = GeometryBytes(All, List);
    for (int Sheet = 0; Sheet < SheetCount; ++Sheet) {
        char Name[8];
        std::snprintf(Name, sizeof Name, "LY%04d", Sheet + 1);
        std::string Fault;
        Files[Name] = ThumbnailSheetBytes(All, Sheet, Fault);
        if (!Fault.empty()) Faults.push_back(Fault);
    }
    if (!Faults.empty()) return Report(Faults);

    std::filesystem::create_directories(Out / "DATA");
    for (const auto& [Name, Bytes] : Files)
        if (!WriteFile(Out / "DATA" / Name, Bytes)) return Report({"cannot write " + Name});
    std::printf("layouts: %zu of %zu are authored\n", Authored.size(), All.size());
    return 0;
}
