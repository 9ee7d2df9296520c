// records_fuzzer ROUNDS [SEED]: starts the game in each round on one damaged record file, plays and
// saves, and expects usable values and files that the next start finds again. Same seed, same
// rounds. The first byte of an input says which file the rest is.
//
// Built by clang with -fsanitize=fuzzer -DLIBFUZZER it has libFuzzer's main and searches by
// coverage.
#include "tests/records/usable_state.h"

#include "frame/files.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <vector>

struct RecordFormat {
    const char* File;
    std::size_t Size;
};
constexpr RecordFormat Formats[] = {{"Settings.dat", 508},
                                    {"SCOR/Scores-A", 129600},
                                    {"History.dat", 9828},
                                    {"Won-Lost.dat", 12000}};

static std::string Content(const RecordFormat& Format)
{
    std::ifstream In(GameDirectory + "/" + Format.File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

static void Require(bool Holds, const std::string& What)
{
    if (Holds) return;
    std::cerr << "records_fuzzer: " << What << std::endl;
    std::abort();
}

static void MakeGameDirectory()
{
    std::string Name = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
    Name += "/pagodas-fuzzer-XXXXXX";
    Require(mkdtemp(Name.data()) != nullptr, "cannot make " + Name);
    GameDirectory = Name;
    std::filesystem::create_directory(Name + "/SCOR");
    std::atexit([] { std::filesystem::remove_all(GameDirectory); });
    Platform.ReportTrouble = [](const std::string& Text) { Require(false, Text); };
}

// As after the scan of the packs 1 and 4.
static void StartAnew()
{
    static const GameStateRecord Zero;
    GameState = Zero;
    BuildTables();
    const int Lists[] = {0, 1, 2, 3, 6};
    for (int I = 1; I <= 5; ++I) GameState.LayoutSets(I) = Lists[I - 1];
    GameState.LayoutListCount = 5;
    GameState.TileSetCount = 120;
    LoadAllRecords();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    static const bool Made = (MakeGameDirectory(), true);
    if (!Made || Size == 0) return 0;
    for (const RecordFormat& Format : Formats)
        std::filesystem::remove(GameDirectory + "/" + Format.File);
    const RecordFormat& Damaged = Formats[Data[0] % std::size(Formats)];
    std::ofstream(GameDirectory + "/" + Damaged.File, std::ios::binary)
        .write(reinterpret_cast<const char*>(Data + 1), static_cast<std::streamsize>(Size - 1));

    StartAnew();
    const std::string Unusable = UnusableNumber();
    Require(Unusable.empty(), Damaged.File + std::string(" breaks ") + Unusable);
    PlayOneGame();
    std::vector<std::string> Saved;
    for (const RecordFormat& Format : Formats) {
        Saved.push_back(Content(Format));
        // Scores of another list stand in a file of their own, which is not looked at.
        const bool Other = &Format == &Formats[1] && GameState.LayoutGroup != 0;
        const bool Longer = &Format == &Formats[0] && Saved.back().size() >= Format.Size;
        Require(Saved.back().size() == Format.Size || Other || Longer,
                Format.File + std::string(" has ") + std::to_string(Saved.back().size()) +
                    " bytes");
    }
    StartAnew();
    SaveAllRecords();
    for (std::size_t I = 0; I < Saved.size(); ++I)
        Require(Content(Formats[I]) == Saved[I],
                Formats[I].File + std::string(" changes with a second save"));
    return 0;
}

#ifndef LIBFUZZER

static std::mt19937 Random;

static std::size_t Below(std::size_t Count)
{
    return Count == 0 ? 0 : Random() % Count;
}

// A file with something in every field, saved by the game itself.
static std::string SoundFile(std::size_t Which)
{
    StartAnew();
    for (int I = 1; I <= 12; ++I) {
        GameState.PlayerNames(I % 3 + 1, I) = "player " + std::to_string(I);
        GameState.GameType = I % 3 + 1;
        GameState.LayoutNumber = 10 * I;
        PlayOneGame();
    }
    return Content(Formats[Which]);
}

static void Damage(std::string& File)
{
    constexpr int Telling[] = {0, 1, 2, 7, 32, 77, 127, 128, 200, 255};
    const std::size_t At =
        Below(Random() % 2 ? File.size() : std::min<std::size_t>(File.size(), 600));
    switch (File.empty() ? 3 : Below(7)) {
    case 0:
        File[At] = static_cast<char>(Random());
        break;
    case 1:
        File[At] = static_cast<char>(Telling[Below(std::size(Telling))]);
        break;
    case 2:
        File[At] = static_cast<char>(File[At] ^ (1 << Below(8)));
        break;
    case 3:
        File.insert(At, std::string(1 + Below(30), static_cast<char>(Random())));
        break;
    case 4:
        File.erase(At, 1 + Below(30));
        break;
    case 5:
        if (Below(4) == 0) File.resize(At);
        break;
    default:
        for (std::size_t I = At; I < std::min(At + 1 + Below(64), File.size()); ++I)
            File[I] = static_cast<char>(Random());
        break;
    }
}

int main(int Count, char** Values)
{
    if (Count < 2) {
        std::cerr << "usage: records_fuzzer ROUNDS [SEED]" << std::endl;
        return 2;
    }
    Random.seed(Count > 2 ? static_cast<unsigned>(std::atol(Values[2])) : 1U);
    const std::uint8_t First = 0;
    LLVMFuzzerTestOneInput(&First, 1); // makes the directory
    std::string Sound[std::size(Formats)];
    for (std::size_t I = 0; I < std::size(Formats); ++I) Sound[I] = SoundFile(I);
    const long Rounds = std::atol(Values[1]);
    for (long Round = 0; Round < Rounds; ++Round) {
        const std::size_t Which = Below(std::size(Formats));
        std::string Input = Sound[Which];
        for (std::size_t Hits = 1 + Below(40); Hits > 0; --Hits) Damage(Input);
        Input.insert(Input.begin(), static_cast<char>(Which));
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(Input.data()), Input.size());
    }
    std::cout << Rounds << " rounds" << std::endl;
    return 0;
}

#endif
