// The notation of the scores: what it means and what it refuses.
#include "arrange.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace
{

const std::string Head = "title Test\n"                   // line 1
                         "tempo 1/4=60\n"                 // 2
                         "metre 4/4\n"                    // 3
                         "scale D dorian\n"               // 4
                         "part lead flute plays melody\n" // 5
                         "part low harp plays roll\n"     // 6
                         "figure roll b:2 1:2 2:2 3:2\n"; // 7

Score Read(const std::string& Text)
{
    // Tests run side by side: each has a folder of its own.
    const auto Folder =
        std::filesystem::temp_directory_path() / ("pagodas-notation-" + std::to_string(getpid()));
    std::filesystem::create_directories(Folder);
    const auto Path = Folder / "07-notation-test.txt";
    std::ofstream(Path) << Text;
    try {
        Score Result = ReadScore(Path.string());
        std::filesystem::remove_all(Folder);
        return Result;
    } catch (...) {
        std::filesystem::remove_all(Folder);
        throw;
    }
}

std::string ErrorOf(const std::string& Text)
{
    try {
        Read(Text);
    } catch (const std::exception& Error) {
        return Error.what();
    }
    return "no error";
}

} // namespace

TEST(Notation, LettersTakeTheSignOfTheScale)
{
    const Score S = Read(Head + "section A\nchords Dm\nmelody d2 b2 _b2 c'2\nform\nA\n");
    const auto& Notes = S.Sections.at("A").Lines.at("melody").Notes;
    EXPECT_EQ(S.Track, 7);
    EXPECT_EQ(Notes[0].Key, 74);
    EXPECT_EQ(Notes[1].Key, 83);
    EXPECT_EQ(Notes[2].Key, 82);
    EXPECT_EQ(Notes[3].Key, 84);
}

TEST(Notation, TiesTripletsAndPhrases)
{
    const Score S = Read(Head + "section A\nchords Dm | Dm\nmelody (3def a6-|| a4 f4\nform\nA\n");
    const auto& Line = S.Sections.at("A").Lines.at("melody");
    ASSERT_EQ(Line.Notes.size(), 5u);
    EXPECT_EQ(Line.Notes[1].Start, 160);
    EXPECT_EQ(Line.Notes[3].Ticks, 240 * 10);
    EXPECT_TRUE(Line.Notes[4].EndsPhrase);
}

TEST(Notation, ErrorsNameFileLineAndRule)
{
    EXPECT_NE(ErrorOf(Head + "section A\nchords Dm\nmelody d2 b2 c'2\nform\nA\n")
                  .find("07-notation-test.txt:10: bar 1 of melody is 2 units too short"),
              std::string::npos);
    EXPECT_NE(ErrorOf(Head + "section A\nchords Hm\n form\nA\n").find(":9: there is no chord Hm"),
              std::string::npos);
    EXPECT_NE(ErrorOf(Head + "part x gong\n").find(":8: there is no instrument gong"),
              std::string::npos);
    EXPECT_NE(ErrorOf(Head + "section A\nchords Dm\nmelody d8\nform\nA low=waltz\n")
                  .find(":12: neither a figure nor a line is called waltz"),
              std::string::npos);
    EXPECT_NE(
        ErrorOf(Head + "section A\nchords Dm\nmelody d8\nform\nA lead=melody?12\n").find(":12:"),
        std::string::npos);
    EXPECT_NE(ErrorOf(Head + "section A\nchords Dm\nmelody d8\nform\nA lead=melody+octave\n")
                  .find(":12: 'octave' must be a number"),
              std::string::npos);
    EXPECT_NE(ErrorOf(Head + "section A\nchords Dm\nmelody d8\nform\nA low=roll~\n")
                  .find(":12: roll cannot be varied by ~"),
              std::string::npos);
}

TEST(Notation, AToneOutsideTheScaleNeedsASign)
{
    const std::string Text = "title Test\ntempo 1/4=60\nmetre 4/4\nscale D hirajoshi\n"
                             "part lead flute plays melody\nsection A\nchords Dm\n";
    EXPECT_NE(ErrorOf(Text + "melody d4 g4\nform\nA\n").find("g is not in the scale D hirajoshi"),
              std::string::npos);
    EXPECT_EQ(ErrorOf(Text + "melody d4 =g4\nform\nA\n"), "no error");
}

TEST(Notation, FiguresStayUnderTheMelody)
{
    const Score S =
        Read(Head + "section A\nchords Dm | Gm7 | Am | Dm\nmelody D8 | D8 | E8 | D8\nform\nA\n");
    for (const ArrangedNote& Note : Arrange(S).Notes)
        EXPECT_TRUE(Note.As == Role::Melody || Note.Key <= 64) << Note.Start;
}

TEST(Notation, ParallelsAreFoundInSimilarMotionOnly)
{
    EXPECT_TRUE(IsParallel(48, 55, 50, 57));
    EXPECT_TRUE(IsParallel(48, 60, 50, 62));
    EXPECT_FALSE(IsParallel(48, 55, 48, 55));
    EXPECT_FALSE(IsParallel(48, 55, 50, 58));
    EXPECT_FALSE(IsParallel(48, 67, 60, 67));
}
