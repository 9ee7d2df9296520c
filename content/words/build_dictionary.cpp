#include "content/words/dictionary_file.h"
#include "words/words.h"

#include <algorithm>
#include <map>

// Where a word stands: its block, counted from 0 in the whole file, and its place from 1.
struct Reference {
    std::int32_t Block;
    int Ordinal;
};

constexpr int EntryHead = 2 + 1;
constexpr int ReferenceSize = 4 + 1;
constexpr int MostReferences = (BlockSize - EntryHead) / ReferenceSize;
static_assert(EntryHead + MostReferences * ReferenceSize == BlockSize);

static void AddNumber(Bytes& Out, std::uint32_t Value, int Width)
{
    for (int Byte = 0; Byte < Width; ++Byte)
        Out.push_back(static_cast<std::uint8_t>(Value >> (8 * Byte)));
}

static void FillBlock(Bytes& Out, std::uint8_t Filler)
{
    while (Out.size() % BlockSize != 0) Out.push_back(Filler);
}

// Front-coded where that is shorter.
static std::string Token(const std::string& Word, const std::string& Before)
{
    const auto Shared = static_cast<std::size_t>(
        std::mismatch(Word.begin(), Word.end(), Before.begin(), Before.end()).first - Word.begin());
    return Shared < 2 ? Word : static_cast<char>(FrontCode + Shared) + Word.substr(Shared);
}

// The numbers of the words that begin a block, each block as full as it can be.
static std::vector<std::size_t> PackBlocks(const std::vector<std::string>& Words)
{
    std::vector<std::size_t> Starts;
    std::size_t Used = 0;
    for (std::size_t I = 0; I < Words.size(); ++I) {
        const std::size_t More = I == 0 ? 0 : 1 + Token(Words[I], Words[I - 1]).size();
        if (I == 0 || Used + More > MostTokenCharacters) {
            Starts.push_back(I);
            Used = Words[I].size();
        } else {
            Used += More;
        }
    }
    // No block holds a single word: the reader of such a block has no comma to stop at.
    if (Starts.size() > 1 && Starts.back() == Words.size() - 1) --Starts.back();
    return Starts;
}

static Bytes Header(const std::vector<std::string>& Words, const std::vector<std::size_t>& Starts)
{
    Bytes Out(HeaderId, HeaderId + 3);
    Out.resize(20, ' ');
    for (char Letter = 'A'; Letter <= 'Z'; ++Letter) {
        // The first word of the letter, or of a later one, or the last word.
        auto First = static_cast<std::size_t>(
            std::lower_bound(Words.begin(), Words.end(), std::string(1, Letter)) - Words.begin());
        First = std::min(First, Words.size() - 1);
        const auto Block = std::upper_bound(Starts.begin(), Starts.end(), First) - Starts.begin();
        AddNumber(Out, static_cast<std::uint32_t>(Block + 1), 4);
    }
    AddNumber(Out, static_cast<std::uint32_t>(Starts.size() + 2), 4);
    return Out;
}

static void AddWordBlocks(Bytes& Out, const std::vector<std::string>& Words,
                          const std::vector<std::size_t>& Starts)
{
    std::size_t Block = 0;
    for (std::size_t I = 0; I < Words.size(); ++I) {
        const bool Begins = Block < Starts.size() && Starts[Block] == I;
        if (Begins) {
            FillBlock(Out, ' ');
            ++Block;
        }
        const std::string Text = Begins ? Words[I] : "," + Token(Words[I], Words[I - 1]);
        Out.insert(Out.end(), Text.begin(), Text.end());
    }
    FillBlock(Out, ' ');
}

static void AddEntry(Bytes& Out, int Key, const Reference* First, int Count)
{
    AddNumber(Out, static_cast<std::uint32_t>(Key), 2);
    AddNumber(Out, static_cast<std::uint32_t>(Count), 1);
    for (const Reference* R = First; R != First + Count; ++R) {
        AddNumber(Out, static_cast<std::uint32_t>(R->Block), 4);
        AddNumber(Out, static_cast<std::uint32_t>(R->Ordinal), 1);
    }
}

static void AddSoundIndex(Bytes& Out, const std::vector<std::string>& Words,
                          const std::vector<std::size_t>& Starts)
{
    std::map<int, std::vector<Reference>> BySound;
    std::size_t Block = 0; // as the header is block 0, the words' first one is 1
    for (std::size_t I = 0; I < Words.size(); ++I) {
        if (Block < Starts.size() && Starts[Block] == I) ++Block;
        BySound[SoundCode(Words[I])].push_back(
            {static_cast<std::int32_t>(Block), static_cast<int>(I - Starts[Block - 1]) + 1});
    }
    for (const auto& [Key, References] : BySound) {
        const int Count = static_cast<int>(References.size());
        const int Used = static_cast<int>(Out.size() % BlockSize);
        // A sound of several blocks starts on a new one, so that the search finds all its blocks by
        // their first key; each full entry takes a whole block.
        if (Used != 0 && Used + EntryHead + Count * ReferenceSize > BlockSize) FillBlock(Out, 0);
        for (int Done = 0; Done < Count; Done += MostReferences)
            AddEntry(Out, Key, &References[static_cast<std::size_t>(Done)],
                     std::min(MostReferences, Count - Done));
    }
    FillBlock(Out, 0);
}

Bytes BuildDictionary(const std::vector<std::string>& Words, DictionarySize& Size, std::string& Why)
{
    if (Words.size() < 2) {
        Why = "a dictionary needs two words at least";
        return {};
    }
    const std::vector<std::size_t> Starts = PackBlocks(Words);
    Bytes Out = Header(Words, Starts);
    AddWordBlocks(Out, Words, Starts);
    AddSoundIndex(Out, Words, Starts);
    const std::size_t Blocks = Out.size() / BlockSize;
    if (Blocks > MostBlocks) {
        Why = std::to_string(Blocks) + " blocks are more than " + std::to_string(MostBlocks);
        return {};
    }
    Size.Words = static_cast<int>(Words.size());
    Size.WordBlocks = static_cast<int>(Starts.size());
    Size.IndexBlocks = static_cast<int>(Blocks) - 1 - Size.WordBlocks;
    return Out;
}
