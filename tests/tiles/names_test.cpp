// The set files bear the names that the game shows.
#include "frame/game_state.h"
#include "media/media.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

TEST(TileSetFiles, BearTheNamesOfTheGame)
{
    FillCatalogueNames();
    std::map<int, std::string> Names;
    for (const auto& Entry : std::filesystem::directory_iterator(TILE_SETS)) {
        std::string Name;
        std::ifstream File(Entry.path());
        std::getline(File, Name);
        const int Number = std::stoi(Entry.path().filename().string());
        EXPECT_TRUE(Names.emplace(Number, Name).second) << "two files for set " << Number;
    }
    ASSERT_EQ(Names.size(), 72U);
    for (const auto& [Number, Name] : Names) EXPECT_EQ(Name, GameState.TileSetNames(Number - 1));
}
