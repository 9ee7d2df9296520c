// The table of recipes is complete, and strict about mistakes.
#include "recipe.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace
{

std::string ErrorOf(const std::string& Table)
{
    const auto Path = std::filesystem::temp_directory_path() /
                      ("backdrop-recipes-" + std::to_string(getpid()) + ".txt");
    std::ofstream(Path) << Table;
    try {
        ReadRecipes(Path.string());
    } catch (const std::exception& Error) {
        return Error.what();
    }
    return "no error";
}

} // namespace

TEST(BackdropRecipes, AreOneForEachBackdropAndThePlainOne)
{
    EXPECT_EQ(ReadRecipes(BACKDROP_TABLE).size(), 73U);
}

TEST(BackdropRecipes, AMistakeIsNamedWithItsLine)
{
    const std::string Good = "0 | Plain | felt | ground=#000000\n";
    EXPECT_EQ(ErrorOf("# comment\n" + Good), "no error");
    EXPECT_NE(ErrorOf(Good + "2 | Sand | sand | ground=#000000\n").find(":2: numbers must run"),
              std::string::npos);
    EXPECT_NE(ErrorOf("zero | Plain | felt |\n").find(":1: no number: zero"), std::string::npos);
    EXPECT_NE(ErrorOf("0 | Plain\n").find(":1: a line is:"), std::string::npos);
    EXPECT_NE(ErrorOf("0 | Plain | felt | ground\n").find(":1: no key=value: ground"),
              std::string::npos);
    EXPECT_NE(ErrorOf("0 | Plain | felt | a=1 a=2\n").find(":1: key given twice: a=2"),
              std::string::npos);
}

TEST(BackdropRecipes, AKeyThatIsNoNumberOrColourIsRefused)
{
    Recipe R;
    R.Keys = {{"scale", "12px"}, {"ground", "#12345"}, {"sclae", "3"}};
    EXPECT_THROW(Number(R, "scale", 1), std::runtime_error);
    EXPECT_THROW(Colours(R, "ground"), std::runtime_error);
    EXPECT_THROW(Colours(R, "missing"), std::runtime_error);
    EXPECT_THROW(CheckAllKeysRead(R), std::runtime_error); // nobody asks for "sclae"
}
