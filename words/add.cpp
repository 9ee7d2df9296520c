#include "frame/files.h"
#include "words/blocks.h"

#include <algorithm>

constexpr int MostCharacters = 127;            // of tokens in a block
constexpr int MoveRun = 4096;                  // bytes
constexpr int RunBlocks = MoveRun / BlockSize; // blocks of a run
constexpr int MostBlocks = 32767;

// A word that the file can hold: its first character tells it from a front code, and a comma or
// blank inside would end it.
static bool CanBeStored(const std::string& Word)
{
    if (Word.empty() || Word.size() > MostCharacters) return false;
    if ((Word[0] < 'A' || Word[0] > 'Z') && Word[0] != '\'') return false;
    return std::all_of(Word.begin(), Word.end(),
                       [](char C) { return C > ' ' && C <= '~' && C != ','; });
}

// Takes the words of the block into WordList, from 1; false when it holds more than a sound block
// can.
static bool ListWords(int& Count)
{
    auto& List = DictionaryState.WordList;
    int Position = FirstWord();
    Count = 0;
    bool More = true;
    while (true) {
        if (!DictionaryState.Current.empty()) {
            if (Count == List.Last[0]) return false;
            List(++Count) = DictionaryState.Current;
        }
        if (!More) return true;
        NextWord(Position);
        More = !EndsAt(Position);
    }
}

// The place of Target in WordList; makes room for it unless it stands there.
static bool InsertTarget(int& Count)
{
    auto& List = DictionaryState.WordList;
    int Place = 1;
    while (Place <= Count && List(Place) < DictionaryState.Target) ++Place;
    if (Place <= Count && List(Place) == DictionaryState.Target) return false;
    ++Count;
    for (int I = Count; I > Place; --I) List(I) = List(I - 1);
    List(Place) = DictionaryState.Target;
    return true;
}

static std::string Token(const std::string& Word, const std::string& Before)
{
    const auto Shared = static_cast<std::size_t>(
        std::mismatch(Word.begin(), Word.end(), Before.begin(), Before.end()).first - Word.begin());
    if (Shared == 0) return Word;
    return static_cast<char>(FrontCode + Shared) + Word.substr(Shared);
}

// Codes the words First to Last as blocks. Where they need more than one they are cut in two,
// in the middle or before the first word that overflowed, until each part fits.
static void ShareOut(int First, int Last, bool SplitAtOverflow, std::vector<std::string>& Blocks)
{
    auto& List = DictionaryState.WordList;
    std::string Text = List(First);
    int Overflow = 0;
    for (int I = First + 1; I <= Last && Overflow == 0; ++I) {
        const std::string Next = "," + Token(List(I), List(I - 1));
        if (Text.size() + Next.size() > MostCharacters)
            Overflow = I;
        else
            Text += Next;
    }
    if (Overflow == 0) {
        Text.resize(BlockSize, ' ');
        Blocks.push_back(Text);
        return;
    }
    const int Cut = SplitAtOverflow ? Overflow : First + (Last - First + 1) / 2;
    ShareOut(First, Cut - 1, SplitAtOverflow, Blocks);
    ShareOut(Cut, Last, SplitAtOverflow, Blocks);
}

static bool MoveBlocks(int Handle, int From, int Count, int Up)
{
    char Run[MoveRun];
    const long long Offset = static_cast<long long>(From - 1) * BlockSize;
    const int Size = Count * BlockSize;
    return ReadAt(Handle, Offset, Run, Size) == Size &&
           WriteAt(Handle, Offset + static_cast<long long>(Up) * BlockSize, Run, Size);
}

// Writes the blocks in the place of the block Middle; those behind it move up, the last first, so
// that a full disk stops the work while all words still stand.
static bool WriteBlocks(const std::vector<std::string>& Blocks)
{
    const int Handle = OpenForWriting(DictionaryState.FileName);
    if (Handle == 0) return false;
    const int Up = static_cast<int>(Blocks.size()) - 1;
    int Last = DictionaryState.BlockCount;
    bool Done = true;
    if (Up > 0) {
        for (; Done && Last - DictionaryState.Middle >= RunBlocks; Last -= RunBlocks)
            Done = MoveBlocks(Handle, Last - RunBlocks + 1, RunBlocks, Up);
        for (; Done && Last > DictionaryState.Middle; --Last)
            Done = MoveBlocks(Handle, Last, 1, Up);
    }
    // The later block first: until the earlier one is written, none of its words is lost.
    for (int I = Up; Done && I >= 0; --I)
        Done = WriteAt(Handle, (DictionaryState.Middle - 1LL + I) * BlockSize, Blocks[I].data(),
                       BlockSize);
    CloseFile(Handle);
    if (!Done) return false;
    DictionaryState.BlockCount += Up;
    return MapBlocks();
}

// Only a file without a header takes words: moved blocks would leave its tables wrong.
std::int16_t AddWord(bool SplitAtOverflow)
{
    if (!CanBeStored(DictionaryState.Target)) return 0;
    if (!ReadBlock(1) || HasHeader() || !LocateBlock()) return 0;
    int Count;
    if (!ListWords(Count) || Count == DictionaryState.WordList.Last[0]) return 0;
    if (!InsertTarget(Count)) return -1;
    std::vector<std::string> Blocks;
    ShareOut(1, Count, SplitAtOverflow, Blocks);
    if (DictionaryState.BlockCount + static_cast<int>(Blocks.size()) - 1 > MostBlocks) return 0;
    return WriteBlocks(Blocks) ? -1 : 0;
}
