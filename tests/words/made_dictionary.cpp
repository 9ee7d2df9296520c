// The dictionary that the game is played with, against a plain list of its words: the file is
// decoded here from its first word block to its last, without the reader's search.
#include "tests/common/count_allocations.h"
#include "tests/words/dictionary_files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <map>
#include <random>
#include <unordered_set>

struct PlainDictionary {
    std::vector<std::string> Words;
    std::unordered_set<std::string> Set;
    std::map<char, int> BlocksOfLetter; // also those that the letter shares
};

static const std::string Path = PAGODAS_GAME_DIR "/DATA/AS0001";

static const PlainDictionary& Plain()
{
    static const PlainDictionary Read = [] {
        PlainDictionary P;
        const std::string File = ReadFile(Path);
        if (File.size() < 128) return P;
        std::uint32_t IndexStart = 0;
        for (int I = 3; I >= 0; --I)
            IndexStart = IndexStart << 8 |
                         static_cast<std::uint8_t>(File[124 + static_cast<std::size_t>(I)]);
        for (std::size_t Block = 1; Block + 1 < IndexStart; ++Block) {
            const std::size_t Start = P.Words.size();
            std::string Text = File.substr(Block * 128, 128) + ",";
            std::string Token;
            for (const char C : Text) {
                if (C == ' ') continue;
                if (C != ',') {
                    Token += C;
                    continue;
                }
                const int First = static_cast<std::uint8_t>(Token[0]);
                P.Words.push_back(
                    First < 91 ? Token
                               : P.Words.back().substr(0, static_cast<std::size_t>(First - 91)) +
                                     Token.substr(1));
                Token.clear();
            }
            for (char L = P.Words[Start][0]; L <= P.Words.back()[0]; ++L) ++P.BlocksOfLetter[L];
        }
        P.Set.insert(P.Words.begin(), P.Words.end());
        return P;
    }();
    return Read;
}

class MadeDictionary : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(std::filesystem::exists(Path)) << Path << " is not made yet";
        ASSERT_EQ(Ask(Path, OpenFile), -1);
    }
};

TEST_F(MadeDictionary, IsLargeAndInOrder)
{
    EXPECT_GE(Plain().Words.size(), 240000u);
    EXPECT_EQ(Plain().Set.size(), Plain().Words.size());
    EXPECT_TRUE(std::is_sorted(Plain().Words.begin(), Plain().Words.end()));
    for (const char* Word : {"COLOUR", "COLOR", "REALISE", "REALIZE", "FACADE", "GREY", "GRAY",
                             "QI", "ZAX", "CWM", "PHARAOH", "QUIXOTRY", "CONNEXION"})
        EXPECT_EQ(Ask(Word, CheckWord), -1) << Word;
    for (const char* Word : {"LONDON", "NATO", "KHZ", "HOUSE'S", "XQZJ"})
        EXPECT_EQ(Ask(Word, CheckWord), 0) << Word;
}

// Checks the word and the reader's promises: few reads, no memory.
static void ExpectCheck(const std::string& Word, bool Stands)
{
    const std::uint32_t Reads = DictionaryState.BlocksRead;
    const std::size_t Before = Allocations;
    std::int16_t Code = CheckWord;
    DictionaryCommand(Word, Code);
    ASSERT_EQ(Allocations, Before) << Word;
    ASSERT_EQ(Code, Stands ? -1 : 0) << Word;
    const auto Letter = Plain().BlocksOfLetter.find(Word[0]);
    const int Blocks = Letter == Plain().BlocksOfLetter.end() ? 1 : Letter->second + 1;
    const int Logarithm = std::bit_width(static_cast<unsigned>(Blocks)) - 1;
    ASSERT_LE(DictionaryState.BlocksRead - Reads, static_cast<unsigned>(2 + Logarithm + 1)) << Word;
}

TEST_F(MadeDictionary, FindsEveryWordOfIt)
{
    for (const std::string& Word : Plain().Words) ExpectCheck(Word, true);
}

TEST_F(MadeDictionary, RefusesTwoHundredThousandOtherWords)
{
    std::mt19937 Random(3);
    const auto& Words = Plain().Words;
    int Refused = 0;
    while (Refused < 200000) {
        std::string Word = Words[Random() % Words.size()];
        const auto Letter = static_cast<char>('A' + Random() % 26);
        const std::size_t Place = Random() % Word.size();
        switch (Random() % 6) {
        case 0:
            Word[Place] = Letter;
            break;
        case 1:
            Word.insert(Place, 1, Letter);
            break;
        case 2:
            Word += Letter;
            break;
        case 3:
            Word.erase(Place, 1);
            break;
        case 4:
            std::swap(Word[Place], Word.back());
            break;
        default:
            for (char& C : Word) C = static_cast<char>('A' + Random() % 26);
        }
        if (Word.size() < 2 || Plain().Set.contains(Word) || IsCommonWord(Word)) continue;
        ASSERT_NO_FATAL_FAILURE(ExpectCheck(Word, false));
        ++Refused;
    }
}

TEST_F(MadeDictionary, PacksItsBlocksFull)
{
    // No first word of a block would have fitted behind the last of the block before.
    const std::string File = ReadFile(Path);
    int Roomy = 0;
    std::size_t Word = 0;
    for (std::size_t Block = 1; Word < Plain().Words.size(); ++Block) {
        const std::string Text = File.substr(Block * 128, 128);
        const std::size_t Used = Text.find_last_not_of(' ') + 1;
        ASSERT_LE(Used, 127u);
        Word += static_cast<std::size_t>(std::count(Text.begin(), Text.end(), ',')) + 1;
        if (Word == Plain().Words.size()) break;
        const std::string &Last = Plain().Words[Word - 1], &Next = Plain().Words[Word];
        const auto Shared = static_cast<std::size_t>(
            std::mismatch(Last.begin(), Last.end(), Next.begin(), Next.end()).first - Last.begin());
        if (Used + 1 + std::min(Next.size(), Next.size() - Shared + 1) <= 127) ++Roomy;
    }
    EXPECT_EQ(Roomy, 0);
}

// A second writing of the sound rule, as a table by letter.
static int PlainSound(const std::string& Word)
{
    //                            ABCDEFGHIJKLMNOPQRSTUVWXYZ
    const std::string Digits = "01230120022455012623010202";
    std::string Code;
    char Last = '0';
    for (const char C : Word) {
        const char Digit = C >= 'A' && C <= 'Z' ? Digits[static_cast<std::size_t>(C - 'A')] : '0';
        if (Digit != Last && Digit != '0') Code += Digit;
        Last = Digit;
    }
    return std::stoi((Code + "0000").substr(0, 4));
}

TEST_F(MadeDictionary, SuggestsAllWordsOfTheSameSound)
{
    std::map<int, std::vector<std::string>> BySound;
    for (const std::string& Word : Plain().Words) BySound[PlainSound(Word)].push_back(Word);
    int Asked = 0;
    for (const auto& [Sound, Words] : BySound) {
        EXPECT_EQ(Ask(Words.back(), SuggestAll), -1);
        ASSERT_EQ(DictionaryState.Suggestions, Words) << Sound;
        ++Asked;
    }
    EXPECT_GT(Asked, 1000);
    for (const char* Word : {"RRORRORR", "VEVEVEVEV"})
        EXPECT_EQ(Ask(Word, SuggestAll), BySound.contains(PlainSound(Word)) ? -1 : 0) << Word;
}

// The filter over the whole list, written as it is told.
static std::vector<std::string> PlainFilter(const std::string& Target,
                                            const std::vector<std::string>& Candidates)
{
    std::vector<std::string> Taken;
    double Vowels = 0, Consonants = 0, VowelsMatched = 0, ConsonantsMatched = 0;
    bool Passed = false;
    for (const std::string& Candidate : Candidates) {
        if (std::abs(static_cast<int>(Candidate.size()) - static_cast<int>(Target.size())) <= 1) {
            std::string Copy = Target;
            for (const char C : Candidate) {
                const bool Vowel = C == 'A' || C == 'E' || C == 'I' || C == 'O' || C == 'U';
                const bool Matched = Copy.find(C) != std::string::npos;
                if (Matched) Copy.erase(Copy.find(C), 1);
                (Vowel ? Vowels : Consonants) += 1;
                if (Matched) (Vowel ? VowelsMatched : ConsonantsMatched) += 1;
            }
            const double C = Consonants > 0 ? ConsonantsMatched / Consonants : 1.0;
            const double V = Vowels > 0 ? VowelsMatched / Vowels : 1.0;
            Passed = Passed || (C >= 0.66 && V >= 0.5);
        }
        if (Passed) Taken.push_back(Candidate);
    }
    return Taken;
}

TEST_F(MadeDictionary, SuggestsNearWords)
{
    std::mt19937 Random(5);
    std::map<int, std::vector<std::string>> BySound;
    for (const std::string& Word : Plain().Words) BySound[PlainSound(Word)].push_back(Word);
    int Some = 0;
    for (int I = 0; I < 1000; ++I) {
        std::string Target = Plain().Words[Random() % Plain().Words.size()];
        Target[Random() % Target.size()] = "AEIOUHWY"[Random() % 8];
        Ask(Target, 0);
        const auto Expected = PlainFilter(Target, BySound[PlainSound(Target)]);
        ASSERT_EQ(DictionaryState.Suggestions, Expected) << Target;
        Some += !Expected.empty();
    }
    EXPECT_GT(Some, 100);
}
