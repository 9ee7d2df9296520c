#include "words/blocks.h"

#include <string_view>

constexpr std::string_view SoundLetters = "BFPVCGJKQSXZDTLMNR";
constexpr std::string_view SoundDigits = "111122222222334556";

constexpr int EntryHead = 2 + 1;     // key and count of an entry of the sound index
constexpr int ReferenceSize = 4 + 1; // block and place of a word
constexpr double LeastConsonants = 0.66, LeastVowels = 0.5;

std::int16_t SoundCode(const std::string& Word)
{
    std::string Letters = Word;
    UpperCase(Letters);
    std::string Code = "0000";
    std::size_t Out = 0;
    char Last = '0';
    for (const char Letter : Letters) {
        const std::size_t Place = SoundLetters.find(Letter);
        if (Place == SoundLetters.npos) { // H, W, Y and the vowels all break a run
            Last = '0';
            continue;
        }
        const char Digit = SoundDigits[Place];
        if (Digit == Last) continue;
        Code[Out++] = Last = Digit;
        if (Out == Code.size()) break;
    }
    return static_cast<std::int16_t>(std::stoi(Code));
}

std::string WordAt(std::int32_t Block, int Ordinal)
{
    NoticeCut();
    if (Ordinal < 1 || !ReadBlock(Block + 1LL)) return "";
    int Position = FirstWord();
    for (int Place = 2; Place <= Ordinal; ++Place) {
        if (Place > 2 && EndsAt(Position)) return "";
        NextWord(Position);
    }
    return DictionaryState.Current;
}

// The sound index. Offsets are those of entries in the block last read.

static int KeyAt(int Offset)
{
    const auto& Block = DictionaryState.Block;
    return static_cast<std::int16_t>(static_cast<std::uint8_t>(Block[Offset]) |
                                     static_cast<std::uint8_t>(Block[Offset + 1]) << 8);
}

static int CountAt(int Offset)
{
    return static_cast<std::uint8_t>(DictionaryState.Block[Offset + 2]);
}

static bool EntryStandsAt(int Offset)
{
    return Offset + EntryHead <= BlockSize && (KeyAt(Offset) != 0 || CountAt(Offset) != 0);
}

static int NextEntry(int Offset)
{
    return Offset + EntryHead + ReferenceSize * CountAt(Offset);
}

// The first entry of the key in the block; -1 when the block has none.
static int FindEntry(int Key)
{
    for (int Offset = 0; EntryStandsAt(Offset); Offset = NextEntry(Offset))
        if (KeyAt(Offset) == Key) return Offset;
    return -1;
}

// The block in which the entries of the key begin, read; 0 when there are none.
static long long FindIndexBlock(int Key, long long IndexStart)
{
    long long Low = IndexStart, High = DictionaryState.BlockCount;
    while (Low <= High) {
        const long long Middle = (Low + High) / 2;
        if (!ReadBlock(Middle)) return 0;
        if (KeyAt(0) < Key) {
            Low = Middle + 1;
        } else if (KeyAt(0) > Key) {
            High = Middle - 1;
        } else {
            // Back to the last block that starts with a smaller key; High is it either way.
            High = Middle;
            while (High >= IndexStart && ReadBlock(High) && KeyAt(0) >= Key) --High;
            break;
        }
    }
    if (High >= IndexStart && ReadBlock(High) && FindEntry(Key) >= 0) return High;
    return High + 1 >= IndexStart && ReadBlock(High + 1) && FindEntry(Key) == 0 ? High + 1 : 0;
}

// Whether a candidate is near enough to the target. All but the target's copy is kept from one
// candidate to the next: once one has passed, every later one of the search does.
struct NearnessCount {
    int Vowels = 0, Consonants = 0, MatchedVowels = 0, MatchedConsonants = 0;
    bool Passed = false;
};

static double Share(int Matched, int All)
{
    return All == 0 ? 1.0 : static_cast<double>(Matched) / All;
}

static bool IsNear(const std::string& Candidate, std::string Target, NearnessCount& Count)
{
    const auto Longer = static_cast<long>(Candidate.size()) - static_cast<long>(Target.size());
    if (Longer < -1 || Longer > 1) return Count.Passed;
    for (const char Letter : Candidate) {
        const bool IsVowel = std::string_view("AEIOU").find(Letter) != std::string_view::npos;
        ++(IsVowel ? Count.Vowels : Count.Consonants);
        const std::size_t Place = Target.find(Letter);
        if (Place == Target.npos) continue;
        Target.erase(Place, 1);
        ++(IsVowel ? Count.MatchedVowels : Count.MatchedConsonants);
    }
    if (Share(Count.MatchedConsonants, Count.Consonants) >= LeastConsonants &&
        Share(Count.MatchedVowels, Count.Vowels) >= LeastVowels)
        Count.Passed = true;
    return Count.Passed;
}

void FindSuggestions(const std::string& Word, std::int16_t& Result, bool All)
{
    NoticeCut();
    DictionaryState.Suggestions.clear();
    Result = 0;
    if (!ReadBlock(1) || !HasHeader()) return;
    const long long IndexStart = Long(IndexStartOffset);
    std::string Target = Word;
    UpperCase(Target);
    const int Key = SoundCode(Target);
    long long Number = FindIndexBlock(Key, IndexStart);
    if (Number == 0) return;
    NearnessCount Count;
    int Offset = FindEntry(Key);
    do {
        const auto Index = DictionaryState.Block; // WordAt reads others
        for (; EntryStandsAt(Offset) && KeyAt(Offset) == Key; Offset = NextEntry(Offset)) {
            for (int Reference = 0; Reference < CountAt(Offset); ++Reference) {
                const int Place = Offset + EntryHead + ReferenceSize * Reference;
                if (Place + ReferenceSize > BlockSize) break; // a count that lies
                const std::string Candidate =
                    WordAt(Long(Place), static_cast<std::uint8_t>(Index[Place + 4]));
                DictionaryState.Block = Index;
                if (Candidate.empty()) continue;
                if (All || IsNear(Candidate, Target, Count))
                    DictionaryState.Suggestions.push_back(Candidate);
            }
        }
        Offset = 0;
    } while (ReadBlock(++Number) && KeyAt(0) == Key);
    if (!DictionaryState.Suggestions.empty()) Result = -1;
}
