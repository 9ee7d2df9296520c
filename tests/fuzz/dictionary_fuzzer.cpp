// dictionary_fuzzer ROUNDS [SEED]: damages a sound dictionary in each round, asks it all that can
// be asked, and expects answers: no crash, no endless loop, few reads. Same seed, same rounds.
#include "content/words/dictionary_file.h"
#include "tests/words/dictionary_files.h"

#include <algorithm>
#include <iostream>
#include <random>
#include <set>
#include <unistd.h>

static std::mt19937 Random;
constexpr unsigned SecondsPerRound = 20;

static unsigned Below(std::size_t Count)
{
    return Count == 0 ? 0 : static_cast<unsigned>(Random() % Count);
}

static std::string RandomWord()
{
    std::string Word;
    for (unsigned Length = 1 + Below(9); Word.size() < Length;)
        Word += static_cast<char>('A' + Below(Word.size() < 2 ? 6 : 26));
    return Word;
}

static std::string RandomBytes(std::size_t Count)
{
    std::string Text;
    while (Text.size() < Count) Text += static_cast<char>(Random());
    return Text;
}

// With a header, or only the word blocks of it.
static std::string SoundFile(std::vector<std::string>& Words)
{
    std::set<std::string> Unique;
    while (Unique.size() < 400) Unique.insert(RandomWord() + "A");
    Words.assign(Unique.begin(), Unique.end());
    DictionarySize Size;
    std::string Why;
    const Bytes File = BuildDictionary(Words, Size, Why);
    std::string Text(File.begin(), File.end());
    if (Below(3) == 0) Text = Text.substr(128, static_cast<std::size_t>(Size.WordBlocks) * 128);
    return Text;
}

static void Damage(std::string& File)
{
    const std::size_t Blocks = File.size() / 128;
    const std::size_t At = Below(File.size()), Block = Below(Blocks) * 128UL;
    switch (Below(12)) {
    case 0:
        File[At] = static_cast<char>(Random());
        break;
    case 1:
        File[At] = static_cast<char>(File[At] ^ (1 << Below(8)));
        break;
    case 2:
        File.resize(At);
        break;
    case 3:
        File.replace(Block, 128, RandomBytes(128));
        break;
    case 4:
        std::swap_ranges(&File[Block], &File[Block] + 128, &File[Below(Blocks) * 128UL]);
        break;
    case 5:
        File.erase(Block, 128);
        break;
    case 6:
        File.insert(Block, std::string(128, " ,\0\xFFSA["[Below(7)]));
        break;
    case 7: // a number of the header
        File.replace(20 + 4UL * Below(27), 4,
                     Below(2) ? Number(Below(Blocks + 3), 4) : RandomBytes(4));
        break;
    case 8: // a number of the sound index, or a token
        File.replace(Block + Below(120), 3, RandomBytes(3));
        break;
    case 9:
        File = RandomBytes(File.size());
        break;
    default:
        File.replace(0, 3, Below(2) ? "SMG" : "ABC");
    }
}

static void Fail(const std::string& What)
{
    std::cout << "dictionary-fuzzer: " << What << std::endl;
    std::abort();
}

static void AskAll(const std::vector<std::string>& Words)
{
    for (int I = 0; I < 60; ++I) {
        std::string Word = Below(2) ? Words[Below(Words.size())] : RandomWord();
        if (Below(20) == 0) Word = RandomBytes(Below(400));
        if (Below(400) == 0) { // another program cuts the open file
            const auto Size = std::filesystem::file_size(TestFile("fuzzed"));
            std::filesystem::resize_file(TestFile("fuzzed"), Below(Size));
        }
        const std::uint32_t Before = DictionaryState.BlocksRead;
        const int Answer = Ask(Word, CheckWord);
        if (Answer != 0 && Answer != -1) Fail("a check answers " + std::to_string(Answer));
        if (DictionaryState.BlocksRead - Before > 18) Fail("a check reads too much for " + Word);
    }
    for (int I = 0; I < 40; ++I) {
        const std::string Word = Words[Below(Words.size())];
        const int Answer = Ask(Word, I % 2 ? SuggestAll : std::int16_t{0});
        if ((Answer == -1) == DictionaryState.Suggestions.empty() && Word.size() > 1)
            Fail("a suggestion's answer does not fit its list");
        WordAt(static_cast<std::int32_t>(Random()), static_cast<int>(Below(300)));
        WordAt(static_cast<std::int32_t>(Below(60)), static_cast<int>(Below(300)));
    }
    for (int I = 0; I < 20; ++I) {
        const std::string Word = Below(10) ? RandomWord() : RandomBytes(Below(140));
        Ask(Word, Below(2) ? AddInMiddle : AddAtOverflow);
        if (std::filesystem::file_size(TestFile("fuzzed")) / 128 !=
            static_cast<std::uintmax_t>(DictionaryState.BlockCount))
            Fail("the file and BlockCount differ");
    }
}

int main(int Count, char** Arguments)
{
    const int Rounds = Count > 1 ? std::stoi(Arguments[1]) : 400;
    const unsigned Seed = Count > 2 ? static_cast<unsigned>(std::stoul(Arguments[2])) : 1;
    std::cerr.setstate(std::ios::failbit); // the reader tells of every damage
    int Told = 0;
    for (int Round = 0; Round < Rounds; ++Round) {
        Random.seed(Seed + static_cast<unsigned>(Round));
        alarm(SecondsPerRound); // an endless loop ends the program
        std::vector<std::string> Words;
        std::string File = SoundFile(Words);
        for (unsigned Damages = Below(6); Damages > 0 && File.size() >= 256; --Damages)
            Damage(File);
        if (Open("fuzzed", File) != -1) continue;
        ++Told;
        AskAll(Words);
    }
    std::cout << Rounds << " damaged dictionaries, " << Told << " of them opened" << std::endl;
}
