// \Settings.dat of any content.
#include "tests/fuzz/fuzzing.h"
#include "tests/records/usable_state.h"

constexpr const char* File = "\\Settings.dat";
constexpr std::size_t Size = 508;

// As after the scan of the packs 1 and 4.
static void InstallPacks()
{
    const int Lists[] = {0, 1, 2, 3, 6};
    for (int I = 1; I <= 5; ++I) GameState.LayoutSets(I) = Lists[I - 1];
    GameState.LayoutListCount = 5;
    GameState.TileSetCount = 120;
}

static void Load()
{
    LoadDisplaySettings();
    LoadSettings();
    RepairSettings();
}

std::vector<std::string> Seeds()
{
    InstallPacks();
    std::vector<std::string> Made = {"", std::string(Size + 30, '\x01')};
    for (int Type : {Finesse, Agility, Wisdom}) {
        PutFile(File, "");
        Load();
        GameState.GameType = Type;
        GameState.LayoutGroup = GameState.TileGroupShown = GameState.LayoutSets(Type + 2);
        GameState.LayoutNumber = 40 * Type;
        GameState.RandomLayoutMode = 2 * Type;
        GameState.TileSetRotate = 30 * Type;
        GameState.BackdropRandom = GameState.MusicOn = GameState.DisplayMode = 1;
        GameState.ProfileSizeClass(Type) = 4;
        for (int Place = 1; Place <= 12; ++Place)
            GameState.PlayerNames(Type, Place) = "Zo\u00eb " + std::to_string(Place);
        SaveSettings();
        Made.push_back(FileContent(File));
    }
    return Made;
}

void PlayRound(const std::string& Input)
{
    InstallPacks();
    PutFile(File, Input);
    Load();
    Require(UnusableSetting().empty(), UnusableSetting());
    Require(FileContent(File) == Input, "reading changes the file");
    RequireLasting(File, Size, Load, SaveSettings);
    if (Input.size() > Size)
        Require(FileContent(File).substr(Size) == Input.substr(Size), "the tail is lost");
}
