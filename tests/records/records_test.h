// records_test.h: what the tests of the records share: a game directory of their own, and the bytes
// of the files put together field after field, apart from the program's own tables.
#pragma once

#include "frame/elements.h"
#include "frame/files.h"
#include "records/records.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

inline std::vector<std::string> Troubles; // what the player was told
inline DateTime Today = {2026, 1, 2, 3, 4, 5};

inline bool MemoryDiskStands()
{
    return std::filesystem::is_directory("/dev/shm");
}

// A fresh game in an empty directory.
struct RecordsTest : testing::Test {
    // In memory where that can be, for each save waits for its disk.
    explicit RecordsTest(bool InMemory = MemoryDiskStands())
    {
        std::string Name = InMemory ? "/dev/shm" : "/tmp";
        Name += "/pagodas-records-XXXXXX";
        if (mkdtemp(Name.data()) == nullptr) FatalError("cannot make " + Name);
        GameDirectory = Name;
        FreshState();
        InitElements();
        BuildTables();
        Troubles.clear();
        Today = {2026, 1, 2, 3, 4, 5};
        Platform.ReportTrouble = [](const std::string& Text) { Troubles.push_back(Text); };
        Platform.Now = [] { return Today; };
    }
    ~RecordsTest() override
    {
        std::error_code Ignored;
        std::filesystem::remove_all(GameDirectory, Ignored);
        GameDirectory = ".";
        FreshState();
    }
    // As after the scan of the packs 1 and 4.
    static void InstallPacks()
    {
        GameState.LayoutListCount = 5;
        GameState.TileSetCount = 120;
        const int Lists[] = {0, 1, 2, 3, 6};
        for (int I = 1; I <= 5; ++I) GameState.LayoutSets(I) = Lists[I - 1];
    }
    static void FreshState()
    {
        static const GameStateRecord Zero; // too large for a stack
        GameState = Zero;
    }
};

// --- bytes ---

struct FileBytes {
    std::string Bytes;

    FileBytes& Number(int Value, int Width = 2)
    {
        const auto Bits = static_cast<unsigned>(Value);
        for (int Shift = 0; Shift < 8 * Width; Shift += 8)
            Bytes += static_cast<char>((Bits >> Shift) & 255);
        return *this;
    }
    // Right-aligned in blanks; a longer text loses its head.
    FileBytes& Text(std::string Value, std::size_t Width)
    {
        while (Value.size() < Width) Value.insert(Value.begin(), ' ');
        Bytes += Value.substr(Value.size() - Width);
        return *this;
    }
};

inline std::string Place(const std::string& File)
{
    return GameDirectory + "/" + File;
}
inline std::string FileContent(const std::string& File)
{
    std::ifstream In(Place(File), std::ios::binary | std::ios::ate);
    std::string Content(In ? static_cast<std::size_t>(In.tellg()) : 0, '\0');
    In.seekg(0).read(Content.data(), static_cast<std::streamsize>(Content.size()));
    return Content;
}
inline void PutFile(const std::string& File, const std::string& Content)
{
    std::filesystem::create_directories(std::filesystem::path(Place(File)).parent_path());
    std::ofstream(Place(File), std::ios::binary) << Content;
}
// A picture as far as its size is looked at.
inline void PutPicture(const std::string& File, int Width, int Height)
{
    std::string Png = "\x89PNG\r\n\x1a\n";
    Png += std::string("\0\0\0\x0dIHDR", 8);
    for (int Size : {Width, Height})
        for (int Shift = 24; Shift >= 0; Shift -= 8) Png += static_cast<char>(Size >> Shift);
    Png += std::string("\x08\x02\0\0\0crc.", 9) + std::string("\0\0\0\0IENDcrc.", 12);
    PutFile(File, Png);
}
// Says where two files differ, or "".
inline std::string FirstDifference(const std::string& Got, const std::string& Wanted)
{
    if (Got.size() != Wanted.size())
        return std::to_string(Got.size()) + " bytes instead of " + std::to_string(Wanted.size());
    for (std::size_t I = 0; I < Got.size(); ++I)
        if (Got[I] != Wanted[I]) return "byte " + std::to_string(I);
    return "";
}
