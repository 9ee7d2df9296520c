// pictures.cpp: references to pictures, and the check of a picture file without decoding it.
#include "frame/elements.h"
#include "frame/files.h"

#include <cctype>
#include <cstdlib>
#include <cstring>

Picture NoPicture()
{
    return {};
}

Picture FilePicture(std::string_view Prefix, int Number)
{
    Picture P{.Kind = PictureKind::File, .Number = Number};
    Prefix.copy(P.Prefix, 2);
    return P;
}

Picture CellPicture(const Element& Store, int Cell)
{
    const int Last = Store.Columns * Store.Rows - 1;
    if (Cell < 0 || Cell > Last)
        FatalError(std::string(Store.Name) + "(" + std::to_string(Cell) + ") is outside 0.." +
                   std::to_string(Last));
    return {.Kind = PictureKind::Cell, .Number = Cell, .Owner = Store.Id};
}

Picture StockPicture(const Element& Stock)
{
    return {.Kind = PictureKind::Stock, .Owner = Stock.Id};
}

Picture FormPicture(const Element& E)
{
    return {.Kind = PictureKind::Form, .Owner = E.Id};
}

std::string PictureFile(const Picture& P)
{
    if (std::string_view(P.Prefix) == "PH") return "\\PHOT\\PH" + FourDigits(P.Number);
    return DataFile(P.Prefix, P.Number);
}

std::string PictureName(const Picture& P)
{
    switch (P.Kind) {
    case PictureKind::None:
        return "";
    case PictureKind::File:
        return PictureFile(P);
    case PictureKind::Cell:
        return ElementText(Elements[P.Owner]) + "(" + std::to_string(P.Number) + ")";
    case PictureKind::Stock:
        return ElementText(Elements[P.Owner]);
    case PictureKind::Form:
        return "form:" + ElementText(Elements[P.Owner]);
    }
    return "";
}

void LoadPicture(const Element& E, std::string_view Prefix, int Number, int Width, int Height)
{
    const Picture New = FilePicture(Prefix, Number);
    const std::string File = PictureFile(New);
    const std::string Trouble = PictureFileTrouble(File, Width, Height);
    if (!Trouble.empty()) FatalError(File + " " + Trouble);
    SetPicture(E, New);
}

// --- the headers of picture files ---

struct PictureHeader {
    bool Whole = false;
    long long Width = 0, Height = 0;
};

static std::uint32_t BigEndian(const std::uint8_t* At, int Count)
{
    std::uint32_t Value = 0;
    for (int I = 0; I < Count; ++I) Value = Value << 8 | At[I];
    return Value;
}

static std::uint32_t LittleEndian(const std::uint8_t* At, int Count)
{
    std::uint32_t Value = 0;
    for (int I = Count - 1; I >= 0; --I) Value = Value << 8 | At[I];
    return Value;
}

// PNG: a signature of 8 bytes, then chunks of length, type, data and check sum; the first holds the
// size, the last is IEND. A type of other bytes than letters ends the walk: a file of empty chunks
// would take one of millions of steps.
static PictureHeader PngHeader(int Handle, long long Length)
{
    PictureHeader Header;
    std::uint8_t Chunk[16] = {};
    for (long long At = 8; At + 12 <= Length;) {
        if (ReadAt(Handle, At, Chunk, 16) < 12 || !std::isalpha(Chunk[4])) return Header;
        const long long Data = BigEndian(Chunk, 4);
        if (At + 12 + Data > Length) return Header;
        if (At == 8) {
            Header.Width = BigEndian(Chunk + 8, 4);
            Header.Height = BigEndian(Chunk + 12, 4);
        } else if (std::memcmp(Chunk + 4, "IEND", 4) == 0) {
            Header.Whole = true;
            return Header;
        }
        At += 12 + Data;
    }
    return Header;
}

// JPEG: segments of FF, a type and a length; a frame segment holds the size, the file ends in FFD9.
static PictureHeader JpegHeader(int Handle, long long Length)
{
    PictureHeader Header;
    std::uint8_t Segment[9], End[2];
    for (long long At = 2; ReadAt(Handle, At, Segment, 9) == 9 && Segment[0] == 0xFF;) {
        const int Type = Segment[1];
        if (Type == 0xFF) { // a marker may have any number of these before it
            ++At;
            continue;
        }
        const bool Frame =
            Type >= 0xC0 && Type <= 0xCF && Type != 0xC4 && Type != 0xC8 && Type != 0xCC;
        if (Frame) {
            Header.Height = BigEndian(Segment + 5, 2);
            Header.Width = BigEndian(Segment + 7, 2);
            Header.Whole =
                ReadAt(Handle, Length - 2, End, 2) == 2 && End[0] == 0xFF && End[1] == 0xD9;
            return Header;
        }
        At += 2 + BigEndian(Segment + 2, 2);
    }
    return Header;
}

static PictureHeader BmpHeader(int Handle, long long Length)
{
    PictureHeader Header;
    std::uint8_t Start[26];
    if (ReadAt(Handle, 0, Start, 26) < 26) return Header;
    Header.Width = LittleEndian(Start + 18, 4);
    Header.Height = std::llabs(static_cast<std::int32_t>(LittleEndian(Start + 22, 4)));
    Header.Whole = LittleEndian(Start + 2, 4) <= Length;
    return Header;
}

std::string PictureFileTrouble(const std::string& Path, int Width, int Height)
{
    const int Handle = OpenForReading(HostPath(Path));
    if (Handle == 0) return "is missing or cannot be read";
    const long long Length = FileLength(Handle);
    std::uint8_t Start[8] = {};
    ReadAt(Handle, 0, Start, 8);
    PictureHeader Header;
    const bool Png = std::memcmp(Start, "\x89PNG\r\n\x1a\n", 8) == 0;
    const bool Jpeg = Start[0] == 0xFF && Start[1] == 0xD8;
    const bool Bmp = Start[0] == 'B' && Start[1] == 'M';
    if (Png) Header = PngHeader(Handle, Length);
    if (Jpeg) Header = JpegHeader(Handle, Length);
    if (Bmp) Header = BmpHeader(Handle, Length);
    CloseFile(Handle);
    if (!Png && !Jpeg && !Bmp) return "is no picture (PNG, JPEG or BMP)";
    if (!Header.Whole) return "is cut short";
    if (Width != 0 && (Header.Width != Width || Header.Height != Height))
        return "is " + std::to_string(Header.Width) + " by " + std::to_string(Header.Height) +
               " pixels and should be " + std::to_string(Width) + " by " + std::to_string(Height);
    return "";
}
