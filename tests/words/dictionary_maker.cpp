#include "content/words/dictionary_file.h"
#include "tests/words/dictionary_files.h"

#include <gtest/gtest.h>

static WordLists Read(const std::string& Lines)
{
    WordLists Lists;
    EXPECT_TRUE(ReadWordList(WriteFile("words.txt", Lines), Lists));
    SortWords(Lists);
    return Lists;
}

using Words = std::vector<std::string>;

TEST(ReadWordLists, AccentsAreFoldedAndWordsSortedOnce)
{
    EXPECT_EQ(Read("façade\nhouse\nzoo\nézé\nhouse\n").Words,
              (Words{"EZE", "FACADE", "HOUSE", "ZOO"}));
}

TEST(ReadWordLists, ALineThatIsNoWordIsNamedAndLeftOut)
{
    const WordLists Lists = Read("house\nLondon\nkHz\nx-ray\n\n'tis\nzoo\nr2d2\nпривет\n");
    EXPECT_EQ(Lists.Words, (Words{"HOUSE", "ZOO"}));
    ASSERT_EQ(Lists.LeftOut.size(), 7u);
    EXPECT_EQ(Lists.LeftOut[0],
              TestFile("words.txt") + ":2: \"London\" is no word in lower case, left out");
}

TEST(ReadWordLists, PossessivesAndSingleLettersAreLeftOut)
{
    const WordLists Lists = Read("house\nhouse's\na\nfo'c'sle\n");
    EXPECT_EQ(Lists.Words, (Words{"FO'C'SLE", "HOUSE"}));
    EXPECT_EQ(Lists.Possessives, 1);
    EXPECT_EQ(Lists.SingleLetters, 1);
    EXPECT_TRUE(Lists.LeftOut.empty());
}

TEST(ReadWordLists, AMissingListIsNamed)
{
    WordLists Lists;
    std::string Why;
    EXPECT_FALSE(ReadWordLists(TestFile("nowhere"), Lists, Why));
    EXPECT_NE(Why.find("nowhere/english-words.10"), std::string::npos) << Why;
}

static std::string Build(const Words& List)
{
    DictionarySize Size;
    std::string Why;
    const Bytes File = BuildDictionary(List, Size, Why);
    EXPECT_EQ(Why, "");
    EXPECT_EQ(static_cast<std::size_t>(1 + Size.WordBlocks + Size.IndexBlocks) * 128, File.size());
    EXPECT_EQ(CheckDictionary(File).Faults, Words{});
    EXPECT_EQ(CheckDictionary(File).Words, List);
    return {File.begin(), File.end()};
}

TEST(BuildDictionary, BytesOfASmallList)
{
    const std::string File = Build({"ABOUT", "ABOVE", "ACE", "BEE", "ZOO"});
    EXPECT_EQ(File.substr(0, 20), "SMG                 ");
    for (std::size_t Letter = 0; Letter < 26; ++Letter)
        EXPECT_EQ(File.substr(20 + 4 * Letter, 4), Number(2, 4));
    EXPECT_EQ(File.substr(124, 4), Number(3, 4));
    EXPECT_EQ(File.substr(128, 128), Blocks({"ABOUT,^VE,ACE,BEE,ZOO"}));
    EXPECT_EQ(
        File.substr(256),
        IndexBlock(
            {{1000, {{1, 4}}}, {1100, {{1, 2}}}, {1300, {{1, 1}}}, {2000, {{1, 3}, {1, 5}}}}));
}

TEST(BuildDictionary, LettersWithoutWordsPointAtTheNextWord)
{
    Words List;
    for (int I = 0; I < 40; ++I) // two blocks, of B and of D
        List.push_back(std::string(1, I < 20 ? 'B' : 'D') + static_cast<char>('A' + I % 20) + "EE");
    const std::string File = Build(List);
    const std::string First[] = {Number(2, 4), Number(3, 4)};
    EXPECT_EQ(File.substr(20, 4), First[0]);           // A
    EXPECT_EQ(File.substr(24, 4), First[0]);           // B
    EXPECT_EQ(File.substr(28, 4), File.substr(32, 4)); // C as D
    EXPECT_EQ(File.substr(36, 4), First[1]);           // E: behind all words
    EXPECT_EQ(File.substr(120, 4), First[1]);          // Z
    EXPECT_EQ(Open("letters", File), -1);
    for (const std::string& Word : List) EXPECT_EQ(Ask(Word, CheckWord), -1) << Word;
}

TEST(BuildDictionary, NoBlockHoldsASingleWord)
{
    Words List;
    for (char Letter = 'A'; Letter < 'L'; ++Letter) List.push_back(std::string(10, Letter));
    List.push_back("LLLLLLLLLL"); // does not fit the first block
    const std::string File = Build(List);
    EXPECT_EQ(File.substr(256, 21), "KKKKKKKKKK,LLLLLLLLLL");
}

TEST(BuildDictionary, ASoundOfManyWordsStartsOnANewBlock)
{
    Words List = {"AB"};
    for (int I = 0; I < 60; ++I) // all of one sound
        List.push_back(std::string("C") + "AEIOUHWY"[I / 8] + "AEIOUHWY"[I % 8]);
    List.push_back("LO");
    std::sort(List.begin(), List.end());
    const std::string File = Build(List);
    EXPECT_EQ(Open("sounds", File), -1);
    EXPECT_EQ(Ask("COO", SuggestAll), -1);
    EXPECT_EQ(DictionaryState.Suggestions.size(), 60u);
    EXPECT_EQ(Ask("EL", SuggestAll), -1);
    EXPECT_EQ(DictionaryState.Suggestions, Words{"LO"});
}

TEST(BuildDictionary, NamesTheRuleThatBreaks)
{
    DictionarySize Size;
    std::string Why;
    EXPECT_TRUE(BuildDictionary({"LONELY"}, Size, Why).empty());
    EXPECT_NE(Why.find("two words"), std::string::npos);
    Words Many; // nothing shared, so a word fills a quarter of a block
    for (int I = 0; I < 26 * 26 * 26 * 8; ++I) {
        std::string Word;
        for (int Rest = I; Word.size() < 4; Rest /= 26)
            Word.insert(0, 1, static_cast<char>('A' + Rest % 26));
        Many.push_back(Word + std::string(40, static_cast<char>('A' + I % 26)));
    }
    EXPECT_TRUE(BuildDictionary(Many, Size, Why).empty());
    EXPECT_NE(Why.find("more than 32767"), std::string::npos) << Why;
}

static bool Faulty(std::string File, const std::string& Fault)
{
    const DictionaryReport Report = CheckDictionary(Bytes(File.begin(), File.end()));
    for (const std::string& Line : Report.Faults)
        if (Line.find(Fault) != std::string::npos) return true;
    for (const std::string& Line : Report.Faults) ADD_FAILURE() << Line;
    return false;
}

TEST(CheckDictionary, NamesEachFault)
{
    const auto WithWords = [](const std::string& Block) { return Blocks({Block}); };
    EXPECT_TRUE(Faulty("SMG", "a part block"));
    EXPECT_TRUE(Faulty(WithWords("BEE,ACE"), "ACE does not stand behind BEE"));
    EXPECT_TRUE(Faulty(WithWords("BEE,BEE"), "BEE does not stand behind BEE"));
    EXPECT_TRUE(Faulty(WithWords("BEE,COW,"), "a comma stands behind"));
    EXPECT_TRUE(Faulty(WithWords("BEE"), "a single word"));
    EXPECT_TRUE(Faulty(WithWords("\\EE,COW"), "first token is front-coded"));
    EXPECT_TRUE(Faulty(WithWords("BEE,cS"), "takes 8 characters of BEE"));
    EXPECT_TRUE(Faulty(WithWords("BEE,C1W"), "\"C1W\" is no word"));
    EXPECT_TRUE(Faulty(WithWords("BEE," + std::string(124, 'C')), "more than 127"));

    const std::string Good = Build({"ABOUT", "ABOVE", "ACE", "BEE", "ZOO"});
    const auto With = [&](std::size_t Offset, char Byte) {
        std::string File = Good;
        File[Offset] = Byte;
        return File;
    };
    EXPECT_TRUE(Faulty(With(20, 1), "letter A starts at block 1, not 2"));
    EXPECT_TRUE(Faulty(With(124, 9), "index starts at block 9 of 3"));
    EXPECT_TRUE(Faulty(With(5, 'x'), "Id is not filled"));
    EXPECT_TRUE(Faulty(With(256, 0), "does not sound as 768"));
    EXPECT_TRUE(Faulty(With(259, 2), "no word stands at 2/4"));
    EXPECT_TRUE(Faulty(With(263, 1), "ABOUT does not sound as 1000"));
    EXPECT_TRUE(Faulty(With(258, 99), "goes beyond the block"));
    EXPECT_TRUE(Faulty(With(258, 0), "has no words"));
    EXPECT_TRUE(Faulty(With(383, 1), "is not zero"));
    EXPECT_TRUE(Faulty(Good + std::string(128, '\0'), "index block is empty"));
}

TEST(MakeWords, TheGameFileIsWhatTheListsGive)
{
    WordLists Lists;
    std::string Why;
    ASSERT_TRUE(ReadWordLists(WORD_LISTS, Lists, Why)) << Why;
    EXPECT_EQ(Build(Lists.Words), ReadFile(PAGODAS_GAME_DIR "/DATA/AS0001"));
}
