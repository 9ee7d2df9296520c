#include "tests/words/dictionary_files.h"

#include <gtest/gtest.h>

using Words = std::vector<std::string>;

TEST(SoundCode, RunsCountOnceAndVowelsBreakThem)
{
    EXPECT_EQ(SoundCode(""), 0);
    EXPECT_EQ(SoundCode("AEIOUHWY'"), 0);
    EXPECT_EQ(SoundCode("BFPV"), 1000);
    EXPECT_EQ(SoundCode("CGJKQSXZ"), 2000);
    EXPECT_EQ(SoundCode("DT"), 3000);
    EXPECT_EQ(SoundCode("L"), 4000);
    EXPECT_EQ(SoundCode("MN"), 5000);
    EXPECT_EQ(SoundCode("R"), 6000);
    EXPECT_EQ(SoundCode("ROBERT"), 6163);
    EXPECT_EQ(SoundCode("robert"), 6163);
    EXPECT_EQ(SoundCode("TATTOO"), 3300);
    EXPECT_EQ(SoundCode("BWB"), 1100);
    EXPECT_EQ(SoundCode("RARERIRORURYR"), 6666);
    EXPECT_EQ(SoundCode("ABANDONED"), 1535);
}

TEST(WordAt, CountsBlocksFrom0AndPlacesFrom1)
{
    Open("places", Blocks({"ABOUT,^VE,\\CE", "HORSE", "MOUSE,"}));
    EXPECT_EQ(WordAt(0, 1), "ABOUT");
    EXPECT_EQ(WordAt(0, 2), "ABOVE");
    EXPECT_EQ(WordAt(0, 3), "ACE");
    EXPECT_EQ(WordAt(1, 1), "HORSE");
    EXPECT_EQ(WordAt(2, 1), "MOUSE");
    for (const int Ordinal : {-1, 0, 4, 200, 30000}) EXPECT_EQ(WordAt(0, Ordinal), "") << Ordinal;
    for (const int Ordinal : {2, 3, 255}) {
        EXPECT_EQ(WordAt(1, Ordinal), "");
        EXPECT_EQ(WordAt(2, Ordinal), "");
    }
    for (const std::int32_t Block : {-1, 3, 2147483647, -2147483647 - 1})
        EXPECT_EQ(WordAt(Block, 1), "") << Block;
}

// Words of sound 2000 (CASE 2200, so not those), 6000 and none at all.
static Words Suggest(const std::string& Word, const std::vector<std::string>& IndexBlocks,
                     std::int16_t Code = SuggestAll)
{
    EXPECT_EQ(Open("sounds", Headed({2}, {"ACE,AGE,AXE,OAR,RAY,ROE"}, IndexBlocks)), -1);
    const int Result = Ask(Word, Code);
    EXPECT_EQ(Result, DictionaryState.Suggestions.empty() ? 0 : -1);
    return DictionaryState.Suggestions;
}

TEST(FindSuggestions, AKeyInsideABlockAndAtItsFront)
{
    const auto Index = IndexBlock({{2000, {{1, 1}, {1, 3}}}, {6000, {{1, 4}, {1, 6}}}});
    EXPECT_EQ(Suggest("ICE", {Index}), (Words{"ACE", "AXE"}));
    EXPECT_EQ(Suggest("AIR", {Index}), (Words{"OAR", "ROE"}));
    EXPECT_EQ(Suggest("AIRS", {Index}), Words{});
    EXPECT_EQ(Suggest("TOO", {Index}), Words{}); // 3000, between the two
    EXPECT_EQ(Suggest("BEE", {Index}), Words{}); // 1000, below the first
}

TEST(FindSuggestions, TheIndexIsWalkedToItsZeroEntry)
{
    std::string Index = IndexBlock({{2000, {{1, 1}}}, {0, {}}, {6000, {{1, 4}}}});
    EXPECT_EQ(Suggest("AIR", {Index}), Words{});
    // A key of 0 with words is an entry like any other.
    Index = IndexBlock({{0, {{1, 5}}}, {6000, {{1, 4}}}});
    EXPECT_EQ(Suggest("AYE", {Index}), (Words{"RAY"}));
    EXPECT_EQ(Suggest("AIR", {Index}), (Words{"OAR"}));
}

TEST(FindSuggestions, AKeyMayGoOnOverBlocks)
{
    const auto One = IndexBlock({{1000, {{1, 1}}}});
    const auto Two = IndexBlock({{2000, {{1, 1}}}});
    const auto Three = IndexBlock({{2000, {{1, 2}}}});
    const auto Four = IndexBlock({{2000, {{1, 3}}}, {6000, {{1, 4}}}});
    const auto Five = IndexBlock({{6000, {{1, 5}}}});
    EXPECT_EQ(Suggest("ICE", {One, Two, Three, Four, Five}), (Words{"ACE", "AGE", "AXE"}));
    EXPECT_EQ(Suggest("ICE", {Two, Three, Four, Five}), (Words{"ACE", "AGE", "AXE"}));
    EXPECT_EQ(Suggest("ICE", {Two, Three}), (Words{"ACE", "AGE"}));
    // It begins inside block four and goes on at the front of block five.
    EXPECT_EQ(Suggest("AIR", {One, Two, Three, Four, Five}), (Words{"OAR", "RAY"}));
}

TEST(FindSuggestions, ReferencesThatLeadNowhereAreLeftOut)
{
    const auto Index =
        IndexBlock({{2000, {{1, 200}, {77, 1}, {0x80000000, 1}, {0xFFFFFFFF, 1}, {1, 0}, {1, 2}}}});
    EXPECT_EQ(Suggest("ICE", {Index}), (Words{"AGE"}));
}

TEST(FindSuggestions, ACountThatLiesStaysInItsBlock)
{
    std::string Index = IndexBlock({{2000, {{1, 1}}}});
    Index[2] = '\xFF';
    const Words Found = Suggest("ICE", {Index, IndexBlock({{6000, {{1, 4}}}})});
    ASSERT_FALSE(Found.empty());
    EXPECT_EQ(Found[0], "ACE");
    EXPECT_LE(Found.size(), 25u);
}

// The key of a word without sounding letters is that of the zero entry.
TEST(FindSuggestions, AnIndexBlockOfZerosHasNoEntryOfKeyZero)
{
    EXPECT_EQ(Suggest("AYE", {IndexBlock({})}), Words{});
    EXPECT_EQ(Suggest("AYE", {IndexBlock({{0, {{1, 1}}}})}), Words{"ACE"});
}

TEST(FindSuggestions, AFileWithoutHeaderHasNone)
{
    Open("headerless", Blocks({"ACE,AGE"}));
    EXPECT_EQ(Ask("ACE", SuggestAll), 0);
    EXPECT_EQ(Ask("ACE", 0), 0);
}

TEST(FindSuggestions, TheListIsThatOfTheLastCommand)
{
    const auto Index = IndexBlock({{2000, {{1, 1}}}});
    EXPECT_EQ(Suggest("ICE", {Index}), (Words{"ACE"}));
    EXPECT_EQ(DictionaryState.IsSuggesting, -1);
    EXPECT_EQ(DictionaryState.AllSuggestions, -1);
    Ask("ACE", CheckWord);
    EXPECT_TRUE(DictionaryState.Suggestions.empty());
    EXPECT_EQ(DictionaryState.IsSuggesting, 0);
    Ask("ICE", 6);
    EXPECT_EQ(DictionaryState.IsSuggesting, -1);
    EXPECT_EQ(DictionaryState.AllSuggestions, 0);
}

TEST(FindSuggestions, CalledByItselfItStartsAnEmptyList)
{
    Open("alone", Headed({2}, {"ACE,AGE"}, {IndexBlock({{2000, {{1, 1}}}})}));
    for (int Time = 1; Time <= 2; ++Time) {
        std::int16_t Result = 5;
        FindSuggestions("ice", Result, true);
        EXPECT_EQ(Result, -1) << Time;
        EXPECT_EQ(DictionaryState.Suggestions, Words{"ACE"});
    }
    std::int16_t Result = 5;
    FindSuggestions("BEE", Result, true);
    EXPECT_EQ(Result, 0);
    EXPECT_TRUE(DictionaryState.Suggestions.empty());
}

// The filter. All stand under the sound 2200, whatever they sound like.
static Words Filter(const std::string& Target, const std::string& Block)
{
    std::vector<std::pair<unsigned, unsigned>> References;
    const auto Count = static_cast<unsigned>(std::count(Block.begin(), Block.end(), ',')) + 1;
    for (unsigned Ordinal = 1; Ordinal <= Count; ++Ordinal) References.push_back({1, Ordinal});
    EXPECT_EQ(SoundCode(Target), 2200);
    EXPECT_EQ(Open("filter", Headed({2}, {Block}, {IndexBlock({{2200, References}})})), -1);
    Ask(Target, 0);
    return DictionaryState.Suggestions;
}

TEST(FilterSuggestions, LettersMustMatchAndLengthsBeNear)
{
    EXPECT_EQ(Filter("CASE", "CASE"), (Words{"CASE"}));
    EXPECT_EQ(Filter("CASE", "CAS"), (Words{"CAS"}));
    EXPECT_EQ(Filter("CASE", "CASES"), (Words{"CASES"})); // 2 of 3 consonants
    EXPECT_EQ(Filter("CASE", "CASTLE"), Words{});         // two letters longer
    EXPECT_EQ(Filter("CASE", "CS"), Words{});
    EXPECT_EQ(Filter("CASE", "CAKE"), Words{});         // 1 of 2 consonants
    EXPECT_EQ(Filter("CASE", "COSI"), Words{});         // no vowel of 2
    EXPECT_EQ(Filter("CASE", "COSE"), (Words{"COSE"})); // 1 of 2 vowels
    EXPECT_EQ(Filter("CASE", "CSS"), (Words{"CSS"}));   // no vowels count as all matched
}

TEST(FilterSuggestions, ALetterOfTheTargetMatchesOnce)
{
    EXPECT_EQ(Filter("CASE", "CCCS"), Words{}); // 2 of 4
    EXPECT_EQ(Filter("CASE", "CASS"), (Words{"CASS"}));
}

TEST(FilterSuggestions, OnceOneHasPassedAllOthersDo)
{
    EXPECT_EQ(Filter("CASE", "CASE,EXTRAORDINARY,QQQQ"), (Words{"CASE", "EXTRAORDINARY", "QQQQ"}));
    EXPECT_EQ(Filter("CASE", "ABACUS,CASE,QQ"), (Words{"CASE", "QQ"}));
}

TEST(FilterSuggestions, CountersGoOnFromOneCandidateToTheNext)
{
    // KEGS: 1 of 3 and 1 of 1. After it CASE stands at 3 of 5 consonants, below 0.66.
    EXPECT_EQ(Filter("CASE", "KEGS,CASE"), Words{});
    // Twice CASE after it reach 5 of 7, and then the second passes.
    EXPECT_EQ(Filter("CASE", "KEGS,CASE,CASE"), (Words{"CASE"}));
    // An unfit length is not counted at all.
    EXPECT_EQ(Filter("CASE", "KNOCKOUT,CASE"), (Words{"CASE"}));
}
