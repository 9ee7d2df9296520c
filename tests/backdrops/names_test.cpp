// The recipes bear the names that the game shows. A program of its own: the maker's pictures and
// the game's are different things under one name.
#include "frame/game_state.h"
#include "media/media.h"

#include <gtest/gtest.h>

#include <cctype>
#include <fstream>

TEST(BackdropNames, TheRecipesBearTheNamesOfTheGame)
{
    FillCatalogueNames();
    std::ifstream Table(BACKDROP_TABLE);
    int Number = 0;
    for (std::string Line; std::getline(Table, Line);) {
        if (Line.empty() || Line[0] == '#' || Number++ == 0) continue; // 0 is the plain one
        const auto First = Line.find('|') + 2, Next = Line.find('|', First);
        std::string Name = Line.substr(First, Next - First);
        while (!Name.empty() && std::isspace(static_cast<unsigned char>(Name.back())))
            Name.pop_back();
        EXPECT_EQ(Name + " (" + std::to_string(Number - 1) + ")",
                  std::string(GameState.BackdropNames(Number - 2)));
    }
    EXPECT_EQ(Number, 73);
}
