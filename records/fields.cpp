#include "records/fields.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <utility>

static std::span<std::uint8_t> BytesAt(RecordFile& File, int Offset, int Width)
{
    if (Offset < 0 || Offset + Width > static_cast<int>(File.Content.size()))
        FatalError("field offset " + std::to_string(Offset) + " is outside a record file of " +
                   std::to_string(File.Content.size()) + " bytes");
    return std::span(File.Content)
        .subspan(static_cast<std::size_t>(Offset), static_cast<std::size_t>(Width));
}

static void PutNumber(RecordFile& File, int Offset, int Width, int Value)
{
    auto Bits = static_cast<std::uint32_t>(Value);
    for (std::uint8_t& Byte : BytesAt(File, Offset, Width)) {
        Byte = static_cast<std::uint8_t>(Bits);
        Bits >>= 8;
    }
}

static std::uint32_t TakeNumber(RecordFile& File, int Offset, int Width)
{
    std::uint32_t Value = 0;
    int Shift = 0;
    for (const std::uint8_t Byte : BytesAt(File, Offset, Width)) {
        Value |= static_cast<std::uint32_t>(Byte) << Shift;
        Shift += 8;
    }
    return Value;
}

static int LegalOrZero(int Value, Legal Values)
{
    return Value >= Values.Low && Value <= Values.High ? Value : 0;
}

void FieldByte(RecordFile& File, int Offset, U8& Value)
{
    if (File.Writing)
        PutNumber(File, Offset, 1, Value);
    else
        Value = static_cast<int>(TakeNumber(File, Offset, 1));
}

void Field16(RecordFile& File, int Offset, I16& Value, Legal Values)
{
    if (File.Writing)
        PutNumber(File, Offset, 2, Value);
    else
        Value = LegalOrZero(static_cast<std::int16_t>(TakeNumber(File, Offset, 2)), Values);
}

void Field32(RecordFile& File, int Offset, I32& Value, Legal Values)
{
    if (File.Writing)
        PutNumber(File, Offset, 4, Value);
    else
        Value = LegalOrZero(static_cast<std::int32_t>(TakeNumber(File, Offset, 4)), Values);
}

// --- texts ---

// How many bytes the character at I has; 1 for a byte that begins none.
static std::size_t CharacterLength(const std::string& Text, std::size_t I)
{
    const auto Byte = static_cast<std::uint8_t>(Text[I]);
    const std::size_t Length = Byte < 0xC0 ? 1 : Byte < 0xE0 ? 2 : Byte < 0xF0 ? 3 : 4;
    for (std::size_t J = I + 1; J < I + Length; ++J)
        if (J >= Text.size() || (static_cast<std::uint8_t>(Text[J]) & 0xC0) != 0x80) return 1;
    return Length;
}

// A text on disk has one byte for a character, Windows-1252: Latin-1, but for these characters at
// 0x80 to 0x9F. Five of those stand for none.
constexpr std::string_view HighCharacters[32] = {
    "€", "",  "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š", "‹", "Œ", "", "Ž", "",
    "",  "‘", "’", "“", "”", "•", "–", "—", "˜", "™", "š", "›", "œ", "", "ž", "Ÿ",
};

constexpr std::pair<std::string_view, std::string_view> HighCapitals[] = {
    {"Š", "š"}, {"Œ", "œ"}, {"Ž", "ž"}, {"Ÿ", "ÿ"}};

// The byte of a character of two bytes or more; "?" where there is none.
static char SingleByte(std::string_view Character)
{
    const int Byte = static_cast<std::uint8_t>(Character[0]);
    if (Byte == 0xC2 || Byte == 0xC3) return static_cast<char>(Byte << 6 | (Character[1] & 0x3F));
    const auto* Found = std::find(std::begin(HighCharacters), std::end(HighCharacters), Character);
    return Found == std::end(HighCharacters)
               ? '?'
               : static_cast<char>(0x80 + (Found - std::begin(HighCharacters)));
}

// From UTF-8; a byte that is no UTF-8 is a character of its own already.
static std::string SingleBytes(const std::string& Text)
{
    std::string Result;
    for (std::size_t I = 0, Length; I < Text.size(); I += Length) {
        Length = CharacterLength(Text, I);
        Result += Length == 1 ? Text[I] : SingleByte(std::string_view(Text).substr(I, Length));
    }
    return Result;
}

static bool IsVisible(std::uint8_t Byte)
{
    if (Byte >= 0x80 && Byte <= 0x9F) return !HighCharacters[Byte - 0x80].empty();
    return Byte > ' ' && Byte != 0x7F;
}

static void AppendUtf8(std::string& Text, std::uint8_t Byte)
{
    if (!IsVisible(Byte)) {
        Text += ' ';
    } else if (Byte < 0x80) {
        Text += static_cast<char>(Byte);
    } else if (Byte <= 0x9F) {
        Text += HighCharacters[Byte - 0x80];
    } else {
        Text += static_cast<char>(0xC0 | (Byte >> 6));
        Text += static_cast<char>(0x80 | (Byte & 0x3F));
    }
}

std::string Trimmed(const std::string& Text)
{
    const std::size_t First = Text.find_first_not_of(' ');
    if (First == std::string::npos) return "";
    return Text.substr(First, Text.find_last_not_of(' ') - First + 1);
}

std::string LowerCase(const std::string& Text)
{
    std::string Result = Text;
    for (const auto& [Capital, Small] : HighCapitals)
        for (std::size_t I = 0; (I = Result.find(Capital, I)) != std::string::npos;)
            Result.replace(I, Capital.size(), Small);
    for (std::size_t I = 0; I < Result.size(); ++I) {
        const auto Byte = static_cast<std::uint8_t>(Result[I]);
        if (Byte >= 'A' && Byte <= 'Z') Result[I] = static_cast<char>(Byte + 0x20);
        // U+00C0 to U+00DE, but for the sign of multiplication
        const bool AfterC3 = I > 0 && static_cast<std::uint8_t>(Result[I - 1]) == 0xC3;
        if (AfterC3 && Byte >= 0x80 && Byte <= 0x9E && Byte != 0x97)
            Result[I] = static_cast<char>(Byte + 0x20);
    }
    return Result;
}

void FieldText(RecordFile& File, int Offset, std::string& Text, int Width)
{
    std::span<std::uint8_t> Field = BytesAt(File, Offset, Width);
    if (File.Writing) {
        const std::string Aligned = std::string(Field.size(), ' ') + SingleBytes(Text);
        std::copy_n(Aligned.end() - Width, Width, Field.begin());
        return;
    }
    while (!Field.empty() && !IsVisible(Field.front())) Field = Field.subspan(1);
    while (!Field.empty() && !IsVisible(Field.back())) Field = Field.first(Field.size() - 1);
    Text.clear();
    for (const std::uint8_t Byte : Field) AppendUtf8(Text, Byte);
}

// --- whole files ---

RecordFile NewRecordFile(int Size)
{
    return {true, Bytes(static_cast<std::size_t>(Size))};
}

// Opened to append, it is made if it is missing and otherwise stays as it is: a second game may
// have saved it a moment ago.
static void MakeMissingFile(const std::string& Host)
{
    std::error_code Ignored;
    if (!std::filesystem::exists(std::filesystem::symlink_status(Host, Ignored)))
        std::ofstream(Host, std::ios::app);
}

RecordFile ReadRecordFile(const std::string& Path, int Size)
{
    RecordFile File{false, Bytes(static_cast<std::size_t>(Size))};
    const std::string Host = HostPath(Path);
    if (const auto Kept = GameState.NotSaved.find(Path); Kept != GameState.NotSaved.end()) {
        File.Content = Kept->second;
        File.Content.resize(static_cast<std::size_t>(Size));
        return File;
    }
    const int Handle = OpenForReading(Host);
    if (Handle == 0) {
        MakeMissingFile(Host);
        return File;
    }
    ReadAt(Handle, 0, File.Content.data(), Size);
    CloseFile(Handle);
    return File;
}

// What is longer is no record file of ours.
constexpr long long LongestFile = 1 << 26;

// Appends what the file on disk has beyond the content.
static bool AppendTail(const std::string& Path, Bytes& Content)
{
    const int Handle = OpenForReading(HostPath(Path));
    if (Handle == 0) return true;
    const long long Length = FileLength(Handle);
    const auto Size = static_cast<long long>(Content.size());
    bool Whole = Length <= LongestFile;
    if (Whole && Length > Size) {
        const int Count = static_cast<int>(Length - Size);
        Content.resize(static_cast<std::size_t>(Length));
        Whole = ReadAt(Handle, Size, Content.data() + Size, Count) == Count;
    }
    CloseFile(Handle);
    return Whole;
}

// A file that stands there and refuses to be read was taken as empty. It may hold years of scores,
// so it is not replaced.
static bool IsUnreadable(const std::string& Path)
{
    const int Handle = OpenForReading(HostPath(Path));
    if (Handle != 0) CloseFile(Handle);
    return Handle == 0 && FileExists(Path);
}

// Where one save succeeds, those that failed before get another try.
static void SaveWhatWasKept()
{
    std::string Why;
    std::erase_if(GameState.NotSaved,
                  [&](const auto& Kept) { return WriteWholeFile(Kept.first, Kept.second, Why); });
}

void SaveRecordFile(const std::string& Path, RecordFile& File, const std::string& What,
                    bool KeepTail)
{
    std::string Why;
    if (IsUnreadable(Path) || (KeepTail && !AppendTail(Path, File.Content))) {
        Why = "the old file cannot be read";
    } else if (WriteWholeFile(Path, File.Content, Why)) {
        GameState.NotSaved.erase(Path);
        SaveWhatWasKept();
        return;
    } else {
        GameState.NotSaved[Path] = File.Content;
    }
    Platform.ReportTrouble("The " + What + " could not be saved: " + Why + ".");
}
