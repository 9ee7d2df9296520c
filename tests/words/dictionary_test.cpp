#include "tests/words/dictionary_files.h"

#include <gtest/gtest.h>

// Opening

TEST(OpenDictionary, AMissingFileGives53AndTellsWhy)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(TestFile("missing"), OpenFile), NoDictionary);
    const std::string Told = testing::internal::GetCapturedStderr();
    EXPECT_NE(Told.find(TestFile("missing") + ": cannot be opened"), std::string::npos) << Told;
    EXPECT_EQ(std::count(Told.begin(), Told.end(), '\n'), 1);
    EXPECT_FALSE(std::filesystem::exists(TestFile("missing")));
    EXPECT_EQ(DictionaryState.IsOpen, -1);
    EXPECT_EQ(DictionaryState.BlockCount, 0);
    EXPECT_EQ(Ask("THERE", CheckWord), -1);
    EXPECT_EQ(Ask("HOUSE", CheckWord), 0);
    EXPECT_EQ(Ask("HOUSE", SuggestAll), 0);
    EXPECT_EQ(Ask("HOUSE", AddInMiddle), 0);
    EXPECT_EQ(WordAt(1, 1), "");
}

TEST(OpenDictionary, AFileWithoutBlocksIsDeleted)
{
    for (const int Length : {0, 1, 127}) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(Open("short", std::string(static_cast<std::size_t>(Length), 'A')), NoDictionary);
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
        EXPECT_FALSE(std::filesystem::exists(TestFile("short")));
        EXPECT_EQ(Ask("HOUSE", CheckWord), 0);
    }
}

TEST(OpenDictionary, AFolderStays)
{
    std::filesystem::create_directory(TestFile("folder"));
    testing::internal::CaptureStderr();
    EXPECT_EQ(Ask(TestFile("folder"), OpenFile), NoDictionary);
    testing::internal::GetCapturedStderr();
    EXPECT_TRUE(std::filesystem::exists(TestFile("folder")));
}

TEST(OpenDictionary, APartBlockIsIgnored)
{
    EXPECT_EQ(Open("part", Blocks({"HORSE,HOUSE"}) + "MOUSE,NOSE"), -1);
    EXPECT_EQ(DictionaryState.BlockCount, 1);
    EXPECT_EQ(Ask("HOUSE", CheckWord), -1);
    EXPECT_EQ(Ask("MOUSE", CheckWord), 0);
}

TEST(OpenDictionary, TheFirstCommandOpensTheDefaultFile)
{
    const auto Folder = std::filesystem::current_path();
    WriteFile("SMGW.NDX", Blocks({"HORSE,HOUSE"}));
    std::filesystem::current_path(std::filesystem::path(TestFile("SMGW.NDX")).parent_path());
    DictionaryState.IsOpen = 0;
    EXPECT_EQ(Ask("HORSE", CheckWord), -1);
    EXPECT_EQ(DictionaryState.FileName, "SMGW.NDX");
    EXPECT_EQ(DictionaryState.IsOpen, -1);
    std::filesystem::current_path(Folder);
}

TEST(OpenDictionary, AClosedOneFindsNothingAndIsNotOpenedAgain)
{
    Open("closed", Blocks({"HORSE,HOUSE"}));
    EXPECT_EQ(Ask("HORSE", CheckWord), -1);
    EXPECT_EQ(Ask("", CloseFileCode), 0);
    EXPECT_EQ(DictionaryState.IsOpen, -1);
    EXPECT_EQ(Ask("HORSE", CheckWord), 0);
    EXPECT_EQ(Ask("THE", CheckWord), -1);
}

TEST(OpenDictionary, ASecondOpenTakesTheOtherFile)
{
    Open("one", Blocks({"HORSE,HOUSE"}));
    Open("two", Blocks({"MOUSE,NOSE"}));
    EXPECT_EQ(Ask("HORSE", CheckWord), 0);
    EXPECT_EQ(Ask("NOSE", CheckWord), -1);
}

TEST(OpenDictionary, TellsOfADamagedHeader)
{
    for (const std::string& File :
         {Headed({2, 9}, {"ACE,BEE"}, {IndexBlock({})}), Headed({2, 1}, {"ACE,BEE"}),
          std::string("SMG") + std::string(125, '\xFF'), std::string(128, '\0')}) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(Open("damaged", File), -1);
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
        EXPECT_EQ(Ask("BEE", CheckWord), 0);
        EXPECT_EQ(Ask("ZEBRA", CheckWord), 0);
        EXPECT_EQ(Ask("BEE", SuggestAll), 0);
        EXPECT_EQ(Ask("THE", CheckWord), -1);
    }
}

TEST(OpenDictionary, NumbersOfTheHeaderMayBeAsLargeAsTheyGet)
{
    for (const unsigned Large : {0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu, 0u}) {
        std::string File = Headed({Large}, {"ACE,BEE"}, {IndexBlock({{2000, {{1, 1}}}})});
        File.replace(124, 4, Number(Large, 4));
        testing::internal::CaptureStderr();
        Open("large", File);
        EXPECT_NE(testing::internal::GetCapturedStderr(), "");
        for (const char* Word : {"ACE", "BEE", "ZOO"}) {
            EXPECT_EQ(Ask(Word, CheckWord), 0);
            EXPECT_EQ(Ask(Word, SuggestAll), 0);
        }
    }
}

TEST(OpenDictionary, AFileCutWhileOpenLosesWordsOnly)
{
    Open("cut", Blocks({"AARON,ACE", "BAKE,BEE", "CAKE,CRY"}));
    EXPECT_EQ(Ask("CRY", CheckWord), -1);
    std::filesystem::resize_file(TestFile("cut"), 128 + 5);
    EXPECT_EQ(Ask("CRY", CheckWord), 0);
    EXPECT_EQ(Ask("ACE", CheckWord), -1);
    EXPECT_EQ(WordAt(2, 1), "");
    std::filesystem::resize_file(TestFile("cut"), 0);
    EXPECT_EQ(Ask("ACE", CheckWord), 0);
}

// Words that need no file

TEST(CommonWords, AreGoodWithoutARead)
{
    Open("common", Blocks({"HORSE,HOUSE"}));
    const std::uint32_t Before = DictionaryState.BlocksRead;
    for (const char* Word : {"THE", "the", "AM", "UP", "I'M", "YOU", "ALSO", "YOUR", "DON'T",
                             "THERE", "WRITE", "ABOUT", "IT'S"})
        EXPECT_EQ(Ask(Word, CheckWord), -1) << Word;
    EXPECT_EQ(DictionaryState.BlocksRead, Before);
    EXPECT_EQ(Ask("WROTE", CheckWord), 0);
}

TEST(CommonWords, AreComparedWhole)
{
    EXPECT_TRUE(IsCommonWord("Q"));
    EXPECT_FALSE(IsCommonWord(""));
    EXPECT_FALSE(IsCommonWord("OTHERS"));
    for (const char* Word : {"M ", " A", "M AN", "LL A", "SO B", "T AFT", "the", "UP ", "LSO "})
        EXPECT_FALSE(IsCommonWord(Word)) << Word;
}

TEST(CheckWord, AWordOfOneLetterIsGoodForCheckAndSuggest)
{
    Open("one-letter", Blocks({"HORSE,HOUSE"}));
    for (const std::int16_t Code : {CheckWord, SuggestAll, std::int16_t{0}, std::int16_t{3}}) {
        EXPECT_EQ(Ask("X", Code), -1);
        EXPECT_EQ(Ask("", Code), -1);
    }
}

TEST(CheckWord, DigitsAndSkipListPassOnlyWhenTheCallerAsks)
{
    Open("digits", Blocks({"HORSE,HOUSE"}));
    std::int16_t Code = CheckWord;
    DictionaryState.IgnoreDigits = -1;
    RunDictionary("R2D2", Code);
    EXPECT_EQ(Code, -1);
    Code = CheckWord;
    DictionaryState.SkipList = {"QUUX"};
    RunDictionary("quux", Code);
    EXPECT_EQ(Code, -1);
    EXPECT_EQ(Ask("R2D2", CheckWord), 0);
    EXPECT_EQ(DictionaryState.IgnoreDigits, 0);
    EXPECT_TRUE(DictionaryState.SkipList.empty());
    EXPECT_EQ(Ask("QUUX", CheckWord), 0);
}

// The search for the block

TEST(LocateBlock, FindsFirstMiddleAndLastWordsOfEveryBlock)
{
    std::vector<std::string> Texts;
    for (char First = 'A'; First <= 'Z'; ++First)
        for (char Second = 'A'; Second <= 'Y'; Second += 3) {
            const std::string Word{First, Second};
            Texts.push_back(Word + "XA," + Word + "XC," + Word + "XE");
        }
    for (std::size_t Count = 1; Count <= Texts.size(); Count += 13) {
        Open("many", Blocks({Texts.begin(), Texts.begin() + static_cast<std::ptrdiff_t>(Count)}));
        for (std::size_t I = 0; I < Texts.size(); ++I)
            for (const char End : {'A', 'B', 'C', 'D', 'E', 'F'}) {
                const bool Stands = I < Count && (End == 'A' || End == 'C' || End == 'E');
                const std::string Word = Texts[I].substr(0, 3) + End;
                EXPECT_EQ(Ask(Word, CheckWord), Stands ? -1 : 0) << Word << " of " << Count;
            }
    }
}

// The letters share blocks: B begins in the middle of block 2, C and D have no words.
static void OpenHeaded()
{
    ASSERT_EQ(Open("headed", Headed({2, 2, 3, 3, 3, 4},
                                    {"ABOUND,ACE,BAKE", "BEE,EACH'S,EARN", "FAKE,ZEBRA,ZOO"},
                                    {IndexBlock({{1000, {{2, 1}}}})})),
              -1);
}

TEST(LocateBlock, ALetterMayBeginInsideABlock)
{
    OpenHeaded();
    for (const char* Word : {"ABOUND", "ACE", "BAKE", "BEE", "EACH'S", "EARN", "FAKE", "ZEBRA"})
        EXPECT_EQ(Ask(Word, CheckWord), -1) << Word;
    for (const char* Word : {"AARON", "BACK'", "CAKE", "DOG", "EASE", "FAKER", "AB", "BAKED"})
        EXPECT_EQ(Ask(Word, CheckWord), 0) << Word;
}

TEST(LocateBlock, ZSearchesUpToTheSoundIndex)
{
    OpenHeaded();
    EXPECT_EQ(Ask("ZOO", CheckWord), -1);
    EXPECT_EQ(DictionaryState.High, 4);
    EXPECT_EQ(Ask("ZZZ", CheckWord), 0);
}

TEST(LocateBlock, AWordBetweenTwoBlocksIsNotFound)
{
    OpenHeaded();
    EXPECT_EQ(Ask("BALL", CheckWord), 0); // behind BAKE, before BEE
    EXPECT_EQ(DictionaryState.Middle, 2);
    EXPECT_EQ(DictionaryState.Current, "BAKE");
}

TEST(LocateBlock, AFirstCharacterThatIsNoLetterIsNotFoundInAHeadedFile)
{
    OpenHeaded();
    for (const char* Word : {"'TIS", "4TH", "@X", "[X", "~~", "\xC4\xD6"}) {
        EXPECT_EQ(Ask(Word, CheckWord), 0) << Word;
        EXPECT_EQ(Ask(Word, SuggestAll), 0) << Word;
    }
}

TEST(LocateBlock, ReadsNoMoreBlocksThanASearchNeeds)
{
    std::vector<std::string> Texts;
    for (int I = 0; I < 1000; ++I) Texts.push_back("A" + std::to_string(1000 + I) + "A,ZZ");
    Open("thousand", Blocks(Texts));
    for (int I = 0; I < 1000; ++I) {
        const std::uint32_t Before = DictionaryState.BlocksRead;
        EXPECT_EQ(Ask("A" + std::to_string(1000 + I) + "A", CheckWord), -1);
        EXPECT_LE(DictionaryState.BlocksRead - Before, 2u + 9u + 1u); // 2^9 < 1000
    }
}

// The walk through the block

static int Walk(const std::string& Block, const std::string& Word)
{
    EXPECT_EQ(Open("walk", Blocks({Block})), -1);
    return Ask(Word, CheckWord);
}

TEST(CheckInBlock, FrontCodesTakeFromTheWordBefore)
{
    const std::string Block = "ABOUT,^VE,\\CE"; // ABOUT itself is common
    EXPECT_EQ(Walk(Block, "ABOVE"), -1);
    EXPECT_EQ(Walk(Block, "ACE"), -1);
    EXPECT_EQ(Walk(Block, "ABCE"), 0);
    EXPECT_EQ(Walk(Block, "VE"), 0);
}

TEST(CheckInBlock, AFrontCodeOfZeroIsLegal)
{
    EXPECT_EQ(Walk("HORSE,[HOUSE,[MOUSE", "HOUSE"), -1);
    EXPECT_EQ(Walk("HORSE,[HOUSE,[MOUSE", "MOUSE"), -1);
}

TEST(CheckInBlock, AFrontCodeLongerThanTheWordBeforeTakesAllOfIt)
{
    EXPECT_EQ(Walk("HO,\xFFUSE", "HOUSE"), -1);
    EXPECT_EQ(Walk("HO,\xFFUSE", "HOUSES"), 0);
}

TEST(CheckInBlock, ATokenMayEndAtPosition127Or128)
{
    for (const std::size_t Length : {127u, 128u}) {
        const std::string Last = "HOUSE" + std::string(Length - 11, 'X');
        const std::string Block = "HORSE," + Last;
        ASSERT_EQ(Block.size(), Length);
        EXPECT_EQ(Walk(Block, Last), -1);
        EXPECT_EQ(Walk(Block, Last + "X"), 0);
        EXPECT_EQ(Walk(Block, "HORSES"), 0);
    }
}

TEST(CheckInBlock, ACommaMayStandBehindTheLastToken)
{
    EXPECT_EQ(Walk("HORSE,HOUSE,", "HOUSE"), -1);
    EXPECT_EQ(Walk("HORSE,HOUSE,", "HOUSES"), 0);
    EXPECT_EQ(Walk("HORSE,", "HORSE"), -1);
    EXPECT_EQ(Walk("HORSE,", "HOUSE"), 0);
}

TEST(CheckInBlock, ABlockMayHoldASingleWord)
{
    EXPECT_EQ(Walk("HORSE", "HORSE"), -1);
    EXPECT_EQ(Walk("HORSE", "HOUSE"), 0);
    EXPECT_EQ(Walk("HORSE", "HEN"), 0);
    EXPECT_EQ(Walk(std::string(128, 'H'), std::string(128, 'H')), -1);
    EXPECT_EQ(Walk(std::string(128, 'H'), std::string(128, 'H') + "I"), 0);
}

TEST(CheckInBlock, ATokenBelowTheCommaEndsTheWalk)
{
    // The second token is still read; the stop is looked for behind it.
    EXPECT_EQ(Walk("'EM,'TIS,'TWAS", "'TIS"), -1);
    EXPECT_EQ(Walk("'EM,'TIS,'TWAS", "'TWAS"), 0);
    EXPECT_EQ(Walk("'EM,\\TIS,\\TWAS", "'TWAS"), -1);
}

TEST(CheckInBlock, LongWordsOnEitherSide)
{
    EXPECT_EQ(Walk("HORSE,HOUSE", std::string(5000, 'H')), 0);
    // Each token takes all before it and one more letter: the longest word a block can make.
    std::string Block = "A" + std::string(60, 'B');
    std::string Word = Block;
    while (Block.size() + 3 <= 127) {
        Block += std::string(",") + static_cast<char>(91 + Word.size()) + "C";
        Word += "C";
    }
    EXPECT_EQ(Walk(Block, Word), -1);
    EXPECT_EQ(Walk(Block, Word + "C"), 0);
}

TEST(CheckInBlock, LowerCaseIsTakenForUpper)
{
    EXPECT_EQ(Walk("HORSE,HOUSE", "hoUse"), -1);
    EXPECT_EQ(DictionaryState.Target, "HOUSE");
}

TEST(CheckInBlock, EmptyAndBinaryBlocksFindNothing)
{
    testing::internal::CaptureStderr();
    EXPECT_EQ(Walk(std::string(128, ','), "HOUSE"), 0);
    EXPECT_EQ(Walk(std::string(128, '\0'), "HOUSE"), 0);
    EXPECT_EQ(Walk(std::string(128, '\xFF'), "HOUSE"), 0);
    EXPECT_EQ(Walk("", "HOUSE"), 0);
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
}
