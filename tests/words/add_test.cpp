#include "tests/words/dictionary_files.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

static std::vector<std::string> BlocksOf(const std::string& Path)
{
    const std::string All = ReadFile(Path);
    EXPECT_EQ(All.size() % 128, 0u);
    std::vector<std::string> Texts;
    for (std::size_t At = 0; At < All.size(); At += 128) {
        std::string Text = All.substr(At, 128);
        Texts.push_back(Text.substr(0, Text.find_last_not_of(' ') + 1));
    }
    return Texts;
}

using Texts = std::vector<std::string>;

static Texts Add(const Texts& Before, const std::string& Word, std::int16_t Code, int Answer = -1)
{
    EXPECT_EQ(Open("added", Blocks(Before)), -1);
    EXPECT_EQ(Ask(Word, Code), Answer);
    const Texts After = BlocksOf(TestFile("added"));
    EXPECT_EQ(DictionaryState.BlockCount, static_cast<int>(After.size()));
    return After;
}

TEST(AddWord, GoesToItsSortedPlaceInUpperCase)
{
    for (const std::int16_t Code : {AddInMiddle, AddAtOverflow}) {
        EXPECT_EQ(Add({"BEE,CAT"}, "ant", Code), (Texts{"ANT,BEE,CAT"}));
        EXPECT_EQ(Add({"BEE,CAT"}, "Bug", Code), (Texts{"BEE,\\UG,CAT"}));
        EXPECT_EQ(Add({"BEE,CAT"}, "COW", Code), (Texts{"BEE,CAT,\\OW"}));
        EXPECT_EQ(Add({""}, "COW", Code), (Texts{"COW"}));
        EXPECT_EQ(Add({"COW"}, "BEE", Code), (Texts{"BEE,COW"}));
        EXPECT_EQ(Add({"BEE,CAT", "HEN,OWL"}, "HARE", Code), (Texts{"BEE,CAT,HARE", "HEN,OWL"}));
        EXPECT_EQ(Add({"BEE,CAT", "HEN,OWL"}, "HOG", Code), (Texts{"BEE,CAT", "HEN,\\OG,OWL"}));
    }
    EXPECT_EQ(Ask("HOG", CheckWord), -1);
}

TEST(AddWord, AWordThatStandsChangesNothing)
{
    EXPECT_EQ(Add({"BEE,CAT"}, "CAT", AddInMiddle), (Texts{"BEE,CAT"}));
    EXPECT_EQ(Add({"ABOUT,^VE,\\CE"}, "ABOVE", AddAtOverflow), (Texts{"ABOUT,^VE,\\CE"}));
}

// Twelve words of ten letters that share nothing: 131 characters, so the last but one is full.
static std::string Full(char From, int Count)
{
    std::string Text;
    for (int I = 0; I < Count; ++I)
        Text += (I ? "," : "") + std::string(10, static_cast<char>(From + I));
    return Text;
}

TEST(AddWord, AFullBlockIsSplitInTheMiddle)
{
    const std::string Eleven = Full('B', 11); // B..L, 120 characters
    const Texts After = Add({Eleven, "XENON,YAK"}, "AAAAAAAAAA", AddInMiddle);
    EXPECT_EQ(After, (Texts{Full('A', 6), Full('G', 6), "XENON,YAK"}));
    // An odd number: five and six.
    EXPECT_EQ(Add({Full('B', 10), "XENON"}, "A" + std::string(20, 'Z'), AddInMiddle),
              (Texts{"A" + std::string(20, 'Z') + "," + Full('B', 4), Full('F', 6), "XENON"}));
}

TEST(AddWord, AFullBlockIsSplitAtTheWordThatOverflowed)
{
    const std::string Eleven = Full('B', 11);
    EXPECT_EQ(Add({Eleven, "XENON,YAK"}, "AAAAAAAAAA", AddAtOverflow),
              (Texts{Full('A', 11), "LLLLLLLLLL", "XENON,YAK"}));
    EXPECT_EQ(Add({Eleven, "XENON,YAK"}, "MMMMMMMMMM", AddAtOverflow),
              (Texts{Eleven, "MMMMMMMMMM", "XENON,YAK"}));
}

TEST(AddWord, ExactlyFullIsNotSplit)
{
    // 120 characters, a comma and six letters.
    EXPECT_EQ(Add({Full('B', 11)}, "MMMMMM", AddInMiddle), (Texts{Full('B', 11) + ",MMMMMM"}));
    EXPECT_EQ(Add({Full('B', 11)}, "MMMMMMM", AddInMiddle).size(), 2u);
}

TEST(AddWord, AWordAsLongAsABlockTakesOneForItself)
{
    const std::string Long(127, 'G');
    for (const std::int16_t Code : {AddInMiddle, AddAtOverflow}) {
        Add({Full('B', 11), "XENON,YAK"}, Long, Code);
        for (char Letter = 'B'; Letter <= 'L'; ++Letter)
            EXPECT_EQ(Ask(std::string(10, Letter), CheckWord), -1) << Letter;
        EXPECT_EQ(Ask(Long, CheckWord), -1);
        EXPECT_EQ(Ask("YAK", CheckWord), -1);
    }
}

TEST(AddWord, RefusesWhatAFileCannotHold)
{
    const Texts Before = {"BEE,CAT"};
    for (const std::string& Word :
         {std::string(), std::string("A,B"), std::string("A B"), std::string("[AB"),
          std::string("4TH"), std::string(128, 'A'), std::string("A\nB"), std::string("\xC4GE")})
        EXPECT_EQ(Add(Before, Word, AddInMiddle, 0), Before) << Word;
}

TEST(AddWord, LeavesAFileWithAHeaderAlone)
{
    const std::string File = Headed({2}, {"ACE,AGE"}, {IndexBlock({{2000, {{1, 1}, {1, 2}}}})});
    Open("main", File);
    EXPECT_EQ(Ask("AXE", AddInMiddle), 0);
    EXPECT_EQ(Ask("AXE", AddAtOverflow), 0);
    EXPECT_EQ(ReadFile(TestFile("main")), File);
}

TEST(AddWord, AWordOfOneLetterIsStoredLikeAnyOther)
{
    for (const std::int16_t Code : {AddInMiddle, AddAtOverflow}) {
        EXPECT_EQ(Add({"BEE,CAT"}, "c", Code), (Texts{"BEE,C,\\AT"}));
        EXPECT_EQ(Add({"A,BEE"}, "A", Code), (Texts{"A,BEE"}));
        // Where it cannot be stored it is good all the same.
        const std::string File = Headed({2}, {"ACE,AGE"}, {IndexBlock({{2000, {{1, 1}}}})});
        Open("main", File);
        EXPECT_EQ(Ask("A", Code), -1);
        EXPECT_EQ(ReadFile(TestFile("main")), File);
    }
}

TEST(AddWord, ABlockOfTooManyWordsStaysAsItIs)
{
    std::string Block = "A";
    while (Block.size() + 2 <= 127) Block += ",B";
    EXPECT_EQ(Add({Block}, "AB", AddInMiddle, 0), (Texts{Block}));
}

// Many words, in several orders, until the file is longer than one run of 4096 bytes.
TEST(AddWord, AListBuiltWordByWordHoldsThemAllInOrder)
{
    for (const std::int16_t Code : {AddInMiddle, AddAtOverflow}) {
        for (const int Order : {0, 1, 2}) { // ascending, descending, shuffled
            std::vector<std::string> Words;
            std::mt19937 Random(7);
            std::set<std::string> Unique;
            while (Unique.size() < 1500) {
                std::string Word;
                for (unsigned I = 0, Length = 2 + Random() % 9; I < Length; ++I)
                    Word += static_cast<char>('A' + Random() % (I < 2 ? 5 : 26));
                Unique.insert(Word);
            }
            Words.assign(Unique.begin(), Unique.end());
            if (Order == 1) std::reverse(Words.begin(), Words.end());
            if (Order == 2) std::shuffle(Words.begin(), Words.end(), Random);
            ASSERT_EQ(Open("built", Blocks({""})), -1);
            for (const std::string& Word : Words) ASSERT_EQ(Ask(Word, Code), -1) << Word;
            EXPECT_GT(DictionaryState.BlockCount, 32);
            EXPECT_EQ(std::filesystem::file_size(TestFile("built")),
                      static_cast<std::uintmax_t>(DictionaryState.BlockCount) * 128);
            std::vector<std::string> Held;
            for (int Block = 0; Block < DictionaryState.BlockCount; ++Block)
                for (int Ordinal = 1;; ++Ordinal) {
                    const std::string Word = WordAt(Block, Ordinal);
                    if (Word.empty()) break;
                    Held.push_back(Word);
                }
            EXPECT_EQ(Held, (std::vector<std::string>{Unique.begin(), Unique.end()}));
            for (const std::string& Word : Words) ASSERT_EQ(Ask(Word, CheckWord), -1) << Word;
            EXPECT_EQ(Ask("ZZZZ", CheckWord), 0);
        }
    }
}
