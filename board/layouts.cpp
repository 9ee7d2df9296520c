#include "board/board.h"
#include "board/run_layouts.h"
#include "frame/files.h"

#include <array>
#include <span>
#include <string>

constexpr int NameLines = 360; // three built-in lists of 120
constexpr int LayoutsInList = 120;
constexpr int TriplesOfPackRecord = 216, PackRecordSize = 666;

// From the grid to pixels. A tile inside a run stands 60 pixels from the one before it, while two
// runs that continue one another stand 60.98 apart: the layouts are drawn for the seam.
constexpr double GridStep = 30.49;
constexpr int TileWidth = 60;
constexpr int LayerStep = 7;
constexpr int BuiltInOriginX = 105, BuiltInOriginY = 85;
constexpr int PackOriginX = 56, PackOriginY = 23;

// --- the name list ---

static bool IsOffsetCode(const std::string& Text)
{
    return Text.size() == 4 && Text.find_first_not_of("0123456789") == std::string::npos;
}

void LoadLayoutNames()
{
    const std::string File = DataFile("LY", 0);
    Bytes Content;
    if (!ReadFileStart(File, Content, MostText)) FatalError(File + " is missing or cannot be read");
    std::string_view Text(reinterpret_cast<const char*>(Content.data()), Content.size());
    std::string Line;
    for (int Index = 1; Index <= NameLines; ++Index) {
        const std::string Where = File + " line " + std::to_string(Index);
        if (!TakeLine(Text, Line)) FatalError(Where + " is missing: the file is cut short");
        const std::string Offset = Line.substr(0, 4);
        if (!IsOffsetCode(Offset)) FatalError(Where + " does not begin with four digits");
        GameState.LayoutOffset(Index) = Offset;
        GameState.LayoutName(Index) = Line.substr(4);
    }
}

// --- the geometry files ---

template <typename Numbers> static void TakeWords(Numbers& Into, const std::uint8_t*& At)
{
    for (I16& Number : Into.Cells) {
        Number = static_cast<std::int16_t>(At[0] | At[1] << 8);
        At += 2;
    }
}

static std::string GeometryFile()
{
    return DataFile("LY", 9000 + GameState.LayoutGroup);
}

void LoadLayoutGeometry()
{
    const bool Pack = GameState.LayoutGroup > 2;
    const std::size_t Size =
        Pack ? GameState.LayoutPackData.Size
             : 2 * (GameState.LayoutData72.Size + GameState.LayoutData144.Size +
                    GameState.LayoutData216.Size + GameState.LayoutData288.Size);
    const std::string File = GeometryFile();
    Bytes Content;
    if (!ReadFileStart(File, Content, Size)) FatalError(File + " is missing or cannot be read");
    if (Content.size() < Size)
        FatalError(File + " has " + std::to_string(Content.size()) + " bytes and should have " +
                   std::to_string(Size));
    const std::uint8_t* At = Content.data();
    if (Pack) {
        for (std::uint8_t& Cell : GameState.LayoutPackData.Cells) Cell = *At++;
        return;
    }
    TakeWords(GameState.LayoutData72, At);
    TakeWords(GameState.LayoutData144, At);
    TakeWords(GameState.LayoutData216, At);
    TakeWords(GameState.LayoutData288, At);
}

// --- placing ---

static int OffsetDigits(std::size_t Place)
{
    const std::string& Offset = GameState.LayoutOffset(LayoutIndex());
    return Offset.size() == 4 ? (Offset[Place] - '0') * 10 + (Offset[Place + 1] - '0') : 0;
}

void PlaceTileRun(I16& X, int Y, int Z, int Count)
{
    const bool Pack = GameState.LayoutGroup > 2;
    const int OriginX = Pack ? PackOriginX : BuiltInOriginX + OffsetDigits(0);
    const int OriginY = Pack ? PackOriginY : BuiltInOriginY + OffsetDigits(2);
    double RunLeft = OriginX + GridStep * X - 30;
    const double RunTop = OriginY + GridStep * Y - 30;
    const int LayerShift = LayerStep * Z - LayerStep;
    for (int I = 0; I < Count; ++I) {
        if (GameState.PlaceCursor < 0 || GameState.PlaceCursor > TileCount)
            FatalError("PlaceCursor " + std::to_string(GameState.PlaceCursor) +
                       " is outside 0..288");
        const int Tile = GameState.TileOrder(GameState.PlaceCursor);
        // Entry 0 is spare: a cursor of 0 takes the scratch picture.
        if (Tile == 0 && GameState.PlaceCursor > 0)
            FatalError("TileOrder(" + std::to_string(GameState.PlaceCursor) +
                       ") is 0 and should be 1..288");
        const Element& E = imgTile(Tile);
        SetPlace(E, static_cast<float>(RunLeft + LayerShift),
                 static_cast<float>(RunTop - LayerShift));
        std::string Tag = E.Tag.substr(0, 2);
        Tag += TwoDigits(X) + TwoDigits(Y) + std::to_string(Z).back();
        SetTag(E, Tag);
        GameState.BoardMap(X, Y, Z) = 1;
        BringToFront(E);
        RunLeft += TileWidth;
        X += TileStep;
        ++GameState.PlaceCursor;
        ++GameState.TilesLeft;
    }
}

// Stops at a place that the Tag and the free-tile rule could not hold.
static void CheckPlace(int X, int Y, int Z)
{
    if (X >= 1 && X <= 38 && Y >= 0 && Y <= 39 && Z >= 1 && Z <= 9) return;
    FatalError(GeometryFile() + " layout " + std::to_string(GameState.LayoutNumber) + ": place " +
               std::to_string(X) + "," + std::to_string(Y) + "," + std::to_string(Z) +
               " is outside the board");
}

template <typename Number> static void PlaceTriples(std::span<const Number> Triples)
{
    for (std::size_t I = 0; I + 2 < Triples.size(); I += 3) {
        CheckPlace(Triples[I], Triples[I + 1], Triples[I + 2]);
        I16 X = Triples[I];
        PlaceTileRun(X, Triples[I + 1], Triples[I + 2], 1);
    }
}

// The triples of a layout that is the Nth of its table, counted from 1.
template <typename Numbers> static void PlaceFromTable(const Numbers& Data, int Nth, int Tiles)
{
    const int First = (Nth - 1) * Tiles * 3;
    if (Nth < 1 || First + Tiles * 3 > Data.Size)
        FatalError("LayoutNumber " + std::to_string(GameState.LayoutNumber) + " is outside 1..120");
    PlaceTriples(std::span<const I16>(Data.Cells).subspan(First, Tiles * 3));
}

static void PlacePackLayout()
{
    const int Number = GameState.LayoutNumber;
    if (Number < 1 || Number > LayoutsInList)
        FatalError("LayoutNumber " + std::to_string(Number) + " is outside 1..120");
    PlaceTriples(std::span<const std::uint8_t>(GameState.LayoutPackData.Cells)
                     .subspan((Number - 1) * PackRecordSize, TriplesOfPackRecord * 3));
}

void PlaceLayout()
{
    const int Number = GameState.LayoutNumber;
    GameState.TilesLeft = 0;
    if (GameState.LayoutGroup > 2) {
        PlacePackLayout();
        return;
    }
    if (const RunLayout* Layout = GameState.LayoutGroup == 0 ? FindRunLayout(Number) : nullptr) {
        for (const TileRun& Run : Layout->Runs) {
            I16 X = Run.X;
            PlaceTileRun(X, Run.Y, Run.Z, Run.Count);
        }
        return;
    }
    const int Block = LayoutBlock(Number);
    if (Block == 0)
        PlaceFromTable(GameState.LayoutData72, Number, 72);
    else if (Block <= 5)
        PlaceFromTable(GameState.LayoutData144, Number - 12, 144);
    else if (Block <= 8)
        PlaceFromTable(GameState.LayoutData216, Number - 72, 216);
    else
        PlaceFromTable(GameState.LayoutData288, Number - 108, 288);
}

// --- the draw ---

// The numbers that modes 1 to 5 draw from.
struct RandomRange {
    int Low, High;
};
constexpr std::array<RandomRange, 5> RandomRanges = {
    {{1, 120}, {1, 12}, {13, 72}, {73, 108}, {109, 120}}};
constexpr int ChosenBlocksMode = 6;

static int DrawChosenBlock()
{
    std::array<int, 10> Chosen{};
    int Length = 0;
    for (int Block = 0; Block <= 9; ++Block)
        if (GameState.RandomBlockChosen(Block) == 1) Chosen[Length++] = Block;
    // With no block chosen the draw is made all the same, and block 0 is taken.
    const int Entry = RandomBetween(0, Length - 1);
    return Length == 0 ? 0 : Chosen[Entry];
}

void DrawRandomLayoutNumber()
{
    const int Mode = GameState.RandomLayoutMode;
    if (Mode >= 1 && Mode < ChosenBlocksMode) {
        const RandomRange& Range = RandomRanges[Mode - 1];
        GameState.LayoutNumber = RandomBetween(Range.Low, Range.High);
    } else if (Mode == ChosenBlocksMode) {
        const int Block = DrawChosenBlock();
        GameState.LayoutNumber = RandomBetween(12 * Block + 1, 12 * Block + 12);
    }
}
