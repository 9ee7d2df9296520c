// A dictionary of any content: it answers, reads little, and an added word leaves whole blocks. The
// first bytes are four questions, a command and a word each; the others are the file.
#include "content/words/dictionary_file.h"
#include "tests/fuzz/fuzzing.h"
#include "words/words.h"

#include <filesystem>

constexpr std::size_t Questions = 4, QuestionSize = 16;
constexpr std::size_t FileStart = Questions * QuestionSize;
constexpr int WordOfBlock = 6, CutFile = 7; // beside the commands of the dictionary
constexpr std::uint32_t MostReads = 18;     // header, 15 halvings of 32767 blocks, the last one

static std::string Question(int Command, std::string Word)
{
    Word.resize(QuestionSize - 1, '\0');
    return static_cast<char>(Command) + Word;
}

std::vector<std::string> Seeds()
{
    std::vector<std::string> Words;
    for (const char* Stem :
         {"ABOUT", "ABOVE", "BRIDGE", "HOUSE", "PAGODA", "STONE", "TILE", "ZONE"})
        for (const char* End : {"", "D", "R", "RS", "S", "X"})
            Words.push_back(std::string(Stem) + End);
    DictionarySize Size;
    std::string Why;
    const Bytes Built = BuildDictionary(Words, Size, Why);
    Require(Why.empty(), Why);
    const std::string Headed(Built.begin(), Built.end());
    const std::string Plain = Headed.substr(128, static_cast<std::size_t>(Size.WordBlocks) * 128);
    const std::string Look = Question(CheckWord, "pagodas") + Question(SuggestAll, "HOUSES") +
                             Question(0, "STONER") + Question(WordOfBlock, "\x01");
    const std::string Add = Question(AddInMiddle, "ZEBRA") + Question(AddAtOverflow, "ABBEY") +
                            Question(CutFile, "\x80") + Question(CheckWord, "ABBEY");
    // The first entry of the index, that of ABOVE, says that it has 255 references.
    std::string Lying = Question(SuggestAll, "ABOVE") + Look.substr(QuestionSize) + Headed;
    Lying[FileStart + (1 + static_cast<std::size_t>(Size.WordBlocks)) * 128 + 2] = '\xff';
    return {Look + Headed, Add + Headed, Look + Plain, Add + Plain, Lying};
}

static int Ask(const std::string& Word, int Command)
{
    auto Code = static_cast<std::int16_t>(Command);
    DictionaryCommand(Word, Code);
    return Code;
}

// Another program cuts the open file.
static void Cut(const std::string& Path, int Share)
{
    std::filesystem::resize_file(Path, std::filesystem::file_size(Path) * Share / 256);
}

static void AskOne(const std::string& Path, int Command, const std::string& Bytes)
{
    const std::string Word = Bytes.substr(0, Bytes.find('\0'));
    const std::uint32_t Before = DictionaryState.BlocksRead;
    switch (Command) {
    case WordOfBlock:
        WordAt(static_cast<signed char>(Bytes[0]) * (1 + Bytes[1] * 65536), Bytes[2]);
        return;
    case CutFile:
        Cut(Path, static_cast<unsigned char>(Bytes[0]));
        return;
    case AddInMiddle:
    case AddAtOverflow:
        Ask(Word, Command);
        Require(std::filesystem::file_size(Path) / 128 ==
                    static_cast<std::uintmax_t>(DictionaryState.BlockCount),
                "the file and BlockCount differ");
        return;
    default:
        const int Answer = Ask(Word, Command);
        Require(Answer == 0 || Answer == -1, "an answer of " + std::to_string(Answer));
        if (Command == CheckWord)
            Require(DictionaryState.BlocksRead - Before <= MostReads, "a check reads too much");
        else if (Word.size() > 1)
            Require((Answer == -1) != DictionaryState.Suggestions.empty(), "not as the list says");
    }
}

void PlayRound(const std::string& Input)
{
    if (Input.size() < FileStart) return;
    PutFile("\\DATA\\AS0001", Input.substr(FileStart));
    const std::string Path = HostPath("\\DATA\\AS0001");
    const int Opened = Ask(Path, OpenFile);
    Require(Opened == (Input.size() < FileStart + 128 ? NoDictionary : -1), "opened or refused");
    if (Opened == -1)
        for (std::size_t I = 0; I < Questions; ++I)
            AskOne(Path, static_cast<unsigned char>(Input[I * QuestionSize]) % 8,
                   Input.substr(I * QuestionSize + 1, QuestionSize - 1));
    Ask("", CloseFileCode);
}
