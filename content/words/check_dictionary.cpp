#include "content/words/dictionary_file.h"
#include "words/words.h"

#include <algorithm>
#include <string_view>

// What the check has gathered on its way through the file.
struct Check {
    const Bytes& File;
    DictionaryReport Report;
    std::vector<int> WordsOfBlock; // by block, counted from 0
    std::vector<int> FirstOfBlock; // number of its first word in Report.Words
    std::vector<bool> Referred;    // by word
};

static void Fault(Check& C, std::size_t Block, const std::string& What)
{
    C.Report.Faults.push_back("block " + std::to_string(Block + 1) + ": " + What);
}

static std::int32_t Number(const Check& C, std::size_t Offset, int Width)
{
    std::uint32_t Value = 0;
    for (int Byte = Width - 1; Byte >= 0; --Byte)
        Value = Value << 8 | C.File[Offset + static_cast<std::size_t>(Byte)];
    return static_cast<std::int32_t>(Value);
}

static bool IsWord(std::string_view Word)
{
    return Word.size() >= 2 && Word[0] != '\'' && std::all_of(Word.begin(), Word.end(), [](char C) {
               return (C >= 'A' && C <= 'Z') || C == '\'';
           });
}

static void CheckToken(Check& C, std::size_t Block, std::string_view Token)
{
    std::vector<std::string>& Words = C.Report.Words;
    const bool IsFirst = C.WordsOfBlock[Block]++ == 0;
    if (IsFirst) C.FirstOfBlock[Block] = static_cast<int>(Words.size());
    const std::string Before = Words.empty() ? "" : Words.back();
    std::string Word(Token);
    const bool IsCoded = !Token.empty() && static_cast<std::uint8_t>(Token[0]) >= FrontCode;
    if (IsCoded) {
        const auto Shared = static_cast<std::size_t>(static_cast<std::uint8_t>(Token[0])) -
                            static_cast<std::size_t>(FrontCode);
        if (IsFirst) Fault(C, Block, "the first token is front-coded");
        if (Shared > Before.size())
            Fault(C, Block, "a token takes " + std::to_string(Shared) + " characters of " + Before);
        Word = Before.substr(0, Shared) + Word.substr(1);
    }
    if (!IsWord(Word)) Fault(C, Block, "\"" + Word + "\" is no word");
    if (Word <= Before) Fault(C, Block, Word + " does not stand behind " + Before);
    Words.push_back(Word);
}

static void CheckWordBlock(Check& C, std::size_t Block)
{
    std::string_view Text(reinterpret_cast<const char*>(&C.File[Block * BlockSize]), BlockSize);
    if (Text.back() != ' ') Fault(C, Block, "tokens fill more than 127 characters");
    Text = Text.substr(0, Text.find_last_not_of(' ') + 1);
    if (Text.ends_with(',')) Fault(C, Block, "a comma stands behind the last token");
    while (true) {
        const std::size_t Comma = Text.find(',');
        CheckToken(C, Block, Text.substr(0, Comma));
        if (Comma == Text.npos) break;
        Text = Text.substr(Comma + 1);
    }
    if (C.WordsOfBlock[Block] < 2) Fault(C, Block, "holds a single word");
}

static void CheckHeader(Check& C, std::size_t IndexStart)
{
    const std::string_view Id(reinterpret_cast<const char*>(C.File.data()), 20);
    if (Id.substr(3).find_first_not_of(' ') != Id.npos)
        Fault(C, 0, "the Id is not filled with blanks");
    const std::vector<std::string>& Words = C.Report.Words;
    for (char Letter = 'A'; Letter <= 'Z'; ++Letter) {
        // The block of the first word that is not before the letter, or the last one.
        std::size_t Expected = IndexStart - 1;
        for (std::size_t Block = 1; Block < IndexStart; ++Block) {
            const auto Last =
                static_cast<std::size_t>(C.FirstOfBlock[Block] + C.WordsOfBlock[Block] - 1);
            if (Words[Last][0] >= Letter) {
                Expected = Block;
                break;
            }
        }
        const std::int32_t Found = Number(C, 20 + 4 * static_cast<std::size_t>(Letter - 'A'), 4);
        if (Found != static_cast<std::int32_t>(Expected + 1))
            Fault(C, 0,
                  std::string("letter ") + Letter + " starts at block " + std::to_string(Found) +
                      ", not " + std::to_string(Expected + 1));
    }
}

static void CheckReference(Check& C, std::size_t Block, int Key, std::size_t Offset)
{
    const std::int32_t WordBlock = Number(C, Offset, 4);
    const int Ordinal = C.File[Offset + 4];
    const std::string Place = std::to_string(WordBlock) + "/" + std::to_string(Ordinal);
    if (WordBlock < 1 || WordBlock > C.Report.Size.WordBlocks || Ordinal < 1 ||
        Ordinal > C.WordsOfBlock[static_cast<std::size_t>(WordBlock)]) {
        Fault(C, Block, "no word stands at " + Place);
        return;
    }
    const auto Word =
        static_cast<std::size_t>(C.FirstOfBlock[static_cast<std::size_t>(WordBlock)] + Ordinal - 1);
    if (SoundCode(C.Report.Words[Word]) != Key)
        Fault(C, Block, C.Report.Words[Word] + " does not sound as " + std::to_string(Key));
    if (C.Referred[Word]) Fault(C, Block, C.Report.Words[Word] + " stands twice in the index");
    C.Referred[Word] = true;
}

static void CheckIndexBlock(Check& C, std::size_t Block, int& LastKey)
{
    const std::size_t End = (Block + 1) * BlockSize;
    std::size_t Offset = Block * BlockSize;
    const std::size_t Start = Offset;
    while (Offset + 3 <= End) {
        const int Key = static_cast<std::int16_t>(Number(C, Offset, 2));
        const std::size_t Count = C.File[Offset + 2];
        if (Key == 0 && Count == 0) break;
        const std::size_t Next = Offset + 3 + 5 * Count;
        if (Count == 0) Fault(C, Block, "sound " + std::to_string(Key) + " has no words");
        if (Key < LastKey || (Key == LastKey && Offset != Start))
            Fault(C, Block,
                  "sound " + std::to_string(Key) + " does not stand behind " +
                      std::to_string(LastKey));
        // Else the search, which looks at first keys, would miss the entry in the block before.
        if (Key == LastKey && Number(C, Start - BlockSize, 2) != Key)
            Fault(C, Block, "sound " + std::to_string(Key) + " began inside the block before");
        if (Next > End) {
            Fault(C, Block, "sound " + std::to_string(Key) + " goes beyond the block");
            return;
        }
        for (std::size_t R = Offset + 3; R < Next; R += 5) CheckReference(C, Block, Key, R);
        LastKey = Key;
        Offset = Next;
    }
    if (Offset == Start) Fault(C, Block, "the index block is empty");
    if (std::any_of(C.File.begin() + static_cast<std::ptrdiff_t>(Offset),
                    C.File.begin() + static_cast<std::ptrdiff_t>(End),
                    [](std::uint8_t Byte) { return Byte != 0; }))
        Fault(C, Block, "the rest of the index block is not zero");
}

DictionaryReport CheckDictionary(const Bytes& File)
{
    Check C{File, {}, {}, {}, {}};
    const std::size_t Blocks = File.size() / BlockSize;
    if (File.size() % BlockSize != 0) Fault(C, Blocks, "a part block ends the file");
    if (Blocks == 0 || Blocks > MostBlocks) {
        Fault(C, 0, std::to_string(Blocks) + " blocks are not 1 to " + std::to_string(MostBlocks));
        return C.Report;
    }
    C.WordsOfBlock.resize(Blocks);
    C.FirstOfBlock.resize(Blocks);
    const bool HasHeader = File[0] == 'S' && File[1] == 'M' && File[2] == 'G';
    std::size_t FirstBlock = 0, IndexStart = Blocks; // a file without header is words only
    if (HasHeader) {
        const std::int32_t Start = Number(C, 124, 4);
        if (Start < 3 || Start > static_cast<std::int32_t>(Blocks)) {
            Fault(C, 0,
                  "the sound index starts at block " + std::to_string(Start) + " of " +
                      std::to_string(Blocks));
            return C.Report;
        }
        FirstBlock = 1;
        IndexStart = static_cast<std::size_t>(Start) - 1;
    }
    for (std::size_t Block = FirstBlock; Block < IndexStart; ++Block) CheckWordBlock(C, Block);
    C.Report.Size = {static_cast<int>(C.Report.Words.size()),
                     static_cast<int>(IndexStart - FirstBlock),
                     static_cast<int>(Blocks - IndexStart)};
    if (!HasHeader) return C.Report;

    CheckHeader(C, IndexStart);
    C.Referred.resize(C.Report.Words.size());
    int LastKey = -1;
    for (std::size_t Block = IndexStart; Block < Blocks; ++Block)
        CheckIndexBlock(C, Block, LastKey);
    for (std::size_t Word = 0; Word < C.Referred.size(); ++Word)
        if (!C.Referred[Word])
            C.Report.Faults.push_back(C.Report.Words[Word] + " does not stand in the sound index");
    return C.Report;
}
