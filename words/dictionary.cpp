#include "frame/files.h"
#include "words/blocks.h"

#include <algorithm>
#include <iostream>

DictionaryRecord DictionaryState;
static int Handle = 0; // of the open file; 0 none
// Its blocks as they lie in the page cache: a search of ten calls of the system would take most of
// its time in those.
static const char* Map = nullptr;
static long long MapLength = 0;

constexpr const char* DefaultFile = "SMGW.NDX";
constexpr int MostBlocks = 32767;
// Room for the longest word that 127 characters and a front code can make, so that no look-up
// ever takes memory.
constexpr int LongestWord = 300;

// Words that every player tries, by length from 2 to 5. They are good without the file.
constexpr std::string_view CommonWords[] = {
    "AM AN AS AT BE BY DO HE HI IF IS IT IN ME MY OF ON OR SO TO UP",
    "ALL AND ANY ARE BUT CAN END FOR HAD HAS HER HIM HIS HOW I'M LED LET NEW NOT NOW ONE OUR OUT "
    "RUN SEE SHE THE TOO TRY USE WAS WHO YET YOU",
    "ALSO BACK BEEN CALL DOES DONE DOWN EACH FIND FROM HAVE INTO IT'S KNOW LIKE LOOK MANY MORE "
    "MOVE MUCH MUST NAME NEED NEXT ONLY OVER SAME SURE THAT THEM THEN THEY THIS TIME USER WELL "
    "WHEN WILL WITH WORK YOUR",
    "ABOUT AFTER AGAIN AHEAD ALONG BEGAN BEING CHOSE COULD DON'T MEANS OFTEN OTHER PLACE SINCE "
    "SORRY STILL TAKEN THERE THANK THEIR THERE THESE THOSE WHERE WHICH WHILE WOULD WRITE",
};

static std::string_view BlockText()
{
    return {DictionaryState.Block.data(), DictionaryState.Block.size()};
}

static std::string_view WithoutTrailingBlanks(std::string_view Text)
{
    return Text.substr(0, Text.find_last_not_of(' ') + 1);
}

bool ReadBlock(long long Number)
{
    ++DictionaryState.BlocksRead;
    const bool Stands = Map != nullptr && Number >= 1 && Number <= DictionaryState.BlockCount;
    if (Stands)
        std::copy_n(Map + (Number - 1) * BlockSize, BlockSize, DictionaryState.Block.begin());
    else
        DictionaryState.Block.fill(' ');
    return Stands;
}

void NoticeCut()
{
    if (Handle == 0) return;
    const long long Blocks = FileLength(Handle) / BlockSize;
    if (Blocks < DictionaryState.BlockCount) DictionaryState.BlockCount = Blocks;
}

bool MapBlocks()
{
    if (Map != nullptr) UnmapFile(Map, MapLength);
    MapLength = static_cast<long long>(DictionaryState.BlockCount) * BlockSize;
    Map = MapFile(Handle, MapLength);
    return Map != nullptr;
}

bool HasHeader()
{
    return BlockText().starts_with("SMG");
}

std::int32_t Long(int Offset)
{
    std::uint32_t Value = 0;
    for (int Byte = 3; Byte >= 0; --Byte)
        Value = Value << 8 | static_cast<std::uint8_t>(DictionaryState.Block[Offset + Byte]);
    return static_cast<std::int32_t>(Value);
}

void UpperCase(std::string& Text)
{
    for (char& Letter : Text)
        if (Letter >= 'a' && Letter <= 'z') Letter = static_cast<char>(Letter - 'a' + 'A');
}

static std::int32_t FirstBlock(int Letter) // 1..26
{
    return Long(20 + 4 * (Letter - 1));
}

// Opening

static void Complain(const std::string& Why)
{
    std::cerr << "pagodas: dictionary " << DictionaryState.FileName << ": " << Why << std::endl;
}

// What is plainly wrong with the file; empty when nothing is. A damaged file stays open: each
// look-up guards itself, and this only tells why words are refused.
static std::string Damage()
{
    if (!MapBlocks() || !ReadBlock(1)) return "cannot be read";
    if (!HasHeader()) {
        const char First = DictionaryState.Block[0];
        const bool IsWord = (First >= 'A' && First <= 'Z') || First == '\'' || First == ' ';
        return IsWord ? "" : "is no dictionary";
    }
    const std::int32_t IndexStart = Long(IndexStartOffset);
    if (IndexStart < 2 || IndexStart > DictionaryState.BlockCount + 1)
        return "is damaged: its sound index starts at block " + std::to_string(IndexStart) +
               " of " + std::to_string(DictionaryState.BlockCount);
    for (int Letter = 1; Letter <= 26; ++Letter) {
        const std::int32_t Lowest = Letter == 1 ? 2 : FirstBlock(Letter - 1);
        if (FirstBlock(Letter) < Lowest || FirstBlock(Letter) >= IndexStart)
            return std::string("is damaged: letter ") + static_cast<char>('A' + Letter - 1) +
                   " starts at block " + std::to_string(FirstBlock(Letter));
    }
    return "";
}

static void CloseDictionary()
{
    if (Map != nullptr) UnmapFile(Map, MapLength);
    Map = nullptr;
    if (Handle != 0) CloseFile(Handle);
    Handle = 0;
}

static std::int16_t OpenStep(const std::string& File)
{
    for (std::string* Text :
         {&DictionaryState.Target, &DictionaryState.Current, &DictionaryState.Previous})
        Text->reserve(LongestWord);
    DictionaryState.WordList.Clear();
    DictionaryState.BlockCount = 0;
    DictionaryState.IsOpen = -1;
    CloseDictionary();
    DictionaryState.FileName = File;
    Handle = OpenForReading(File);
    if (Handle == 0) {
        Complain("cannot be opened; only the most common words are good");
        return NoDictionary;
    }
    const long long Blocks = FileLength(Handle) / BlockSize;
    if (Blocks < 1) {
        CloseDictionary();
        RemoveFile(File);
        Complain("was shorter than one block and is deleted; only the most common words are good");
        return NoDictionary;
    }
    DictionaryState.BlockCount = static_cast<int>(std::min<long long>(Blocks, MostBlocks));
    DictionaryState.Current.clear();
    DictionaryState.Previous.clear();
    const std::string Wrong = Damage();
    if (!Wrong.empty()) Complain(Wrong);
    return -1;
}

// Looking up

bool IsCommonWord(const std::string& Word)
{
    if (Word.size() == 1) return true;
    if (Word.size() < 2 || Word.size() > 5) return false;
    const std::string_view List = CommonWords[Word.size() - 2];
    for (std::size_t Start = 0; Start < List.size(); Start += Word.size() + 1)
        if (List.substr(Start, Word.size()) == Word) return true;
    return false;
}

// The tests that need no file; Target stands already.
static bool PassesUnread(const std::string& Word, int Command)
{
    if (Word.size() < 2) return true;
    DictionaryState.IsSuggesting = DictionaryState.AllSuggestions = 0;
    if (Command == CheckWord) {
        if (IsCommonWord(DictionaryState.Target)) return true;
    } else {
        DictionaryState.Suggestions.clear();
        DictionaryState.IsSuggesting = -1;
        DictionaryState.AllSuggestions = Command == SuggestAll ? -1 : 0;
    }
    if (DictionaryState.IgnoreDigits != 0 && Word.find_first_of("0123456789") != std::string::npos)
        return true;
    return std::find(DictionaryState.SkipList.begin(), DictionaryState.SkipList.end(),
                     DictionaryState.Target) != DictionaryState.SkipList.end();
}

bool LocateBlock()
{
    DictionaryRecord& D = DictionaryState;
    if (!ReadBlock(1)) return false;
    if (HasHeader()) {
        const int Letter = static_cast<std::uint8_t>(D.Target[0]) - 64;
        if (Letter < 1 || Letter > 26) return false;
        // A block is not broken at a change of letter: the next letter's first block counts too.
        D.Low = FirstBlock(Letter);
        D.High = Letter < 26 ? FirstBlock(Letter + 1) : std::max(Long(IndexStartOffset), 1) - 1;
    } else {
        D.Low = 1;
        D.High = static_cast<int>(D.BlockCount);
    }
    do {
        D.Middle = (static_cast<long long>(D.High) + D.Low + 1) / 2;
        if (!ReadBlock(D.Middle)) return false; // a damaged header leads outside
        FirstWord();
        const int Order = D.Current.compare(D.Target);
        if (Order < 0)
            D.Low = D.Middle;
        else if (Order > 0)
            D.High = D.Middle - 1;
        else
            D.High = D.Low = D.Middle;
    } while (D.Low < D.High);
    if (D.Low < D.Middle) D.Middle = D.Low;
    if (!ReadBlock(D.Middle)) return false;
    FirstWord();
    return true;
}

int FirstWord()
{
    const std::string_view Text = BlockText();
    const std::size_t Comma = Text.find(',');
    DictionaryState.Current.assign(Comma == Text.npos ? WithoutTrailingBlanks(Text)
                                                      : Text.substr(0, Comma));
    DictionaryState.Previous = DictionaryState.Current;
    return static_cast<int>(DictionaryState.Current.size()) + 1;
}

void NextWord(int& Position)
{
    DictionaryRecord& D = DictionaryState;
    std::string_view Token = BlockText().substr(std::min(Position, BlockSize));
    const std::size_t Comma = Token.find(',');
    Token = Comma == Token.npos ? WithoutTrailingBlanks(Token) : Token.substr(0, Comma);
    Position += static_cast<int>(Token.size()) + 1;
    if (!Token.empty() && static_cast<std::uint8_t>(Token[0]) >= FrontCode) {
        const std::size_t Shared = static_cast<std::uint8_t>(Token[0]) - FrontCode;
        D.Current.assign(D.Previous, 0, Shared).append(Token.substr(1));
    } else {
        D.Current.assign(Token);
    }
    D.Previous = D.Current;
}

// Blanks end a block; the test takes an apostrophe for one too, so no word behind the first may
// begin with it.
bool EndsAt(int Position)
{
    return Position > LastTokenStart ||
           static_cast<std::uint8_t>(DictionaryState.Block[Position]) < ',';
}

static bool IsInBlock()
{
    int Position = FirstWord();
    while (DictionaryState.Current < DictionaryState.Target) {
        NextWord(Position);
        if (EndsAt(Position)) break;
    }
    return DictionaryState.Current == DictionaryState.Target;
}

// The commands

void DictionaryCommand(const std::string& Word, std::int16_t& Code)
{
    DictionaryState.IgnoreDigits = 0;
    DictionaryState.SkipList.clear();
    DictionaryState.Suggestions.clear();
    RunDictionary(Word, Code);
}

void RunDictionary(const std::string& Word, std::int16_t& Code)
{
    const std::int16_t Command = Code;
    if (Command == OpenFile || DictionaryState.IsOpen == 0) {
        Code = OpenStep(Command == OpenFile ? Word : DefaultFile);
        if (Command == OpenFile || Code == NoDictionary) return;
    }
    NoticeCut();
    Code = 0;
    if (Command == CloseFileCode) {
        CloseDictionary();
        return;
    }
    DictionaryState.Target = Word;
    UpperCase(DictionaryState.Target);
    if (Command == AddInMiddle || Command == AddAtOverflow) {
        Code = AddWord(Command == AddAtOverflow);
        // A word of one letter is good for every command, also where it cannot be stored.
        if (Word.size() == 1) Code = -1;
        return;
    }
    if (PassesUnread(Word, Command)) {
        Code = -1;
        return;
    }
    if (!LocateBlock()) return;
    if (Command == CheckWord)
        Code = IsInBlock() ? -1 : 0;
    else
        FindSuggestions(DictionaryState.Target, Code, Command == SuggestAll);
}
