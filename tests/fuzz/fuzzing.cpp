#include "tests/fuzz/fuzzing.h"

#include "frame/elements.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

struct Fatal {
};
static bool MayBeFatal = false;

void Require(bool Holds, const std::string& What)
{
    if (Holds) return;
    std::fprintf(stderr, "FOUND: %s\n", What.c_str());
    std::abort();
}

bool IsFatal(const std::function<void()>& Body)
{
    MayBeFatal = true;
    bool Ended = false;
    try {
        Body();
    } catch (const Fatal&) {
        Ended = true;
    }
    MayBeFatal = false;
    return Ended;
}

void PutFile(const std::string& File, const std::string& Content)
{
    std::ofstream(HostPath(File), std::ios::binary) << Content;
}

void RemoveGameFile(const std::string& File)
{
    RemoveFile(HostPath(File));
}

std::string FileContent(const std::string& File)
{
    std::ifstream In(HostPath(File), std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

void RequireLasting(const std::string& File, std::size_t Size, void (*Load)(), void (*Save)())
{
    Save();
    const std::string First = FileContent(File);
    Require(First.size() >= Size, File + " has " + std::to_string(First.size()) + " bytes");
    Load();
    Save();
    Require(FileContent(File) == First, File + " changes with a second save");
}

// In memory where that can be, for each save waits for its disk.
static void MakeGameDirectory()
{
    std::string Name = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
    Name += "/pagodas-fuzzer-XXXXXX";
    Require(mkdtemp(Name.data()) != nullptr, "cannot make " + Name);
    GameDirectory = Name;
    for (const char* Folder : {"/DATA", "/SCOR"}) std::filesystem::create_directory(Name + Folder);
    std::atexit([] { std::filesystem::remove_all(GameDirectory); });
}

// libFuzzer calls it before it reads the corpus, so the seeds stand in its folders by then.
extern "C" int LLVMFuzzerInitialize(int* Count, char*** Arguments)
{
    MakeGameDirectory();
    std::cerr.setstate(std::ios::failbit); // the readers tell of every damage
    Platform.ReportFatal = [](const std::string& Text) {
        Require(MayBeFatal, "fatal: " + Text);
        throw Fatal();
    };
    Platform.ReportTrouble = [](const std::string& Text) { Require(false, Text); };
    InitElements();
    BuildTables();
    for (int I = 1; I < *Count; ++I) {
        const std::filesystem::path Corpus = (*Arguments)[I];
        if (!std::filesystem::is_directory(Corpus)) continue;
        int Number = 0;
        for (const std::string& Seed : Seeds())
            std::ofstream(Corpus / ("seed" + std::to_string(++Number)), std::ios::binary) << Seed;
        break;
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size)
{
    PlayRound(std::string(reinterpret_cast<const char*>(Data), Size));
    return 0;
}
