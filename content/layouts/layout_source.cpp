#include "layout_source.h"

#include "board/run_layouts.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace
{

// The origin of a layout with offset code 0000.
constexpr double OriginX = 105;
constexpr double OriginY = 85;
constexpr double HalfStep = 30.49;
constexpr double LayerShift = 7;

struct Stack {
    int X, Y, Height, Line;
};

struct MapLine {
    int Y, Line;
    std::string Text;
};

// A layout as it is written, before its tiles are made.
struct Drawing {
    std::vector<std::vector<MapLine>> Maps;
    bool MirrorX = false, MirrorY = false, Turn = false;
    bool MiddleRow = false;
    bool ByColumns = false, Runs = false;
};

struct Reader {
    std::string File;
    std::vector<std::string>& Faults;

    void Fault(int Line, const std::string& What) const
    {
        Faults.push_back(File + ":" + std::to_string(Line) + ": " + What);
    }
};

// The stacks of one line. A single digit counts only at the axis of a mirrored drawing.
std::vector<Stack> StacksOfLine(const Reader& In, const MapLine& Line, int AxisX)
{
    std::vector<Stack> Stacks;
    for (int X = 0; X < static_cast<int>(Line.Text.size());) {
        const char Digit = Line.Text[X];
        if (Digit == ' ' || Digit == '.') {
            ++X;
            continue;
        }
        if (Digit < '1' || Digit > '9') {
            In.Fault(Line.Line, std::string("a map holds heights 1 to 9, not '") + Digit + "'");
            return Stacks;
        }
        const bool Whole = X + 1 < static_cast<int>(Line.Text.size()) && Line.Text[X + 1] == Digit;
        if (!Whole && X + 1 != AxisX) {
            In.Fault(Line.Line, "a stack is its height written twice: column " +
                                    std::to_string(X + 1) + " stands alone");
            return Stacks;
        }
        Stacks.push_back({X, Line.Y, Digit - '0', Line.Line});
        X += 2;
    }
    return Stacks;
}

bool Touch(int X, int Y, int OtherX, int OtherY)
{
    return std::abs(X - OtherX) < 2 && std::abs(Y - OtherY) < 2;
}

// A mirror: the image of x is SumX - x, that of y SumY - y; a sum of Straight leaves it as it is.
constexpr int Straight = -1;

// Adds the mirror images of Stacks. A stack that is its own image stays one.
void AddImages(std::vector<Stack>& Stacks, int SumX, int SumY)
{
    const size_t Drawn = Stacks.size();
    for (size_t I = 0; I < Drawn; ++I) {
        Stack Image = Stacks[I];
        if (SumX != Straight) Image.X = SumX - Image.X;
        if (SumY != Straight) Image.Y = SumY - Image.Y;
        const bool Own = std::any_of(Stacks.begin(), Stacks.end(), [&](const Stack& S) {
            return S.X == Image.X && S.Y == Image.Y && S.Height == Image.Height;
        });
        if (!Own) Stacks.push_back(Image);
    }
}

// Puts the stacks of one map on the tiles of the maps before it.
void Build(const Reader& In, const std::vector<Stack>& Stacks, std::vector<LayoutTile>& Tiles)
{
    const size_t Below = Tiles.size();
    for (size_t I = 0; I < Stacks.size(); ++I) {
        const Stack& New = Stacks[I];
        for (size_t J = 0; J < I; ++J)
            if (Touch(New.X, New.Y, Stacks[J].X, Stacks[J].Y)) {
                In.Fault(New.Line, "two stacks of a map overlap at column " +
                                       std::to_string(New.X + 1) + " (the other is on line " +
                                       std::to_string(Stacks[J].Line) + ")");
                return;
            }
        int Z = 0;
        for (size_t T = 0; T < Below; ++T)
            if (Touch(New.X, New.Y, Tiles[T].X, Tiles[T].Y)) Z = std::max(Z, Tiles[T].Z);
        for (int Height = 0; Height < New.Height; ++Height)
            Tiles.push_back({New.X, New.Y, ++Z, 0, 0});
    }
}

struct Extent {
    double Low, High;
    double Middle() const { return (Low + High) / 2; }
};

Extent ExtentOf(const std::vector<LayoutTile>& Tiles, double LayoutTile::*Side)
{
    Extent E = {1e9, -1e9};
    for (const LayoutTile& Tile : Tiles) {
        E.Low = std::min(E.Low, Tile.*Side);
        E.High = std::max(E.High, Tile.*Side + TilePixels);
    }
    return E;
}

// The two digits that bring Middle to Centre as nearly as they can.
int OffsetDigits(double Middle, double Centre)
{
    return std::clamp(static_cast<int>(std::lround(Centre - Middle)), 0, 99);
}

std::string TwoDigits(int Value)
{
    return {static_cast<char>('0' + Value / 10), static_cast<char>('0' + Value % 10)};
}

// Moves the drawing by whole columns and rows towards the centre of the board; what is missing, 0
// to 30 pixels, is left to the offset code. A code given by the source is met as nearly as may be.
void Centre(Layout& New)
{
    int LowX = 99, LowY = 99;
    for (const LayoutTile& Tile : New.Tiles) {
        LowX = std::min(LowX, Tile.X);
        LowY = std::min(LowY, Tile.Y);
    }
    for (LayoutTile& Tile : New.Tiles) Tile = PlaceTile(Tile.X - LowX + 1, Tile.Y - LowY, Tile.Z);

    double GapX = CentreX - ExtentOf(New.Tiles, &LayoutTile::Left).Middle();
    double GapY = CentreY - ExtentOf(New.Tiles, &LayoutTile::Top).Middle();
    int ShiftX = static_cast<int>(std::floor((GapX + 0.5) / HalfStep));
    int ShiftY = static_cast<int>(std::floor((GapY + 0.5) / HalfStep));
    if (!New.Offset.empty()) {
        ShiftX = static_cast<int>(
            std::lround((GapX - std::atoi(New.Offset.substr(0, 2).c_str())) / HalfStep));
        ShiftY = static_cast<int>(
            std::lround((GapY - std::atoi(New.Offset.substr(2).c_str())) / HalfStep));
    }
    for (LayoutTile& Tile : New.Tiles)
        Tile = PlaceTile(Tile.X + std::max(ShiftX, 0), Tile.Y + std::max(ShiftY, 0), Tile.Z);
}

void WorkOutOffset(Layout& New)
{
    if (!New.Offset.empty()) return;
    New.Offset = TwoDigits(OffsetDigits(ExtentOf(New.Tiles, &LayoutTile::Left).Middle(), CentreX)) +
                 TwoDigits(OffsetDigits(ExtentOf(New.Tiles, &LayoutTile::Top).Middle(), CentreY));
}

void MakeRunTiles(const Reader& In, Layout& New)
{
    const RunLayout* Table = New.List == 0 ? FindRunLayout(New.Number) : nullptr;
    if (!Table) {
        In.Fault(New.Line, "the program has no runs for this number");
        return;
    }
    for (const TileRun& Run : Table->Runs)
        for (int I = 0; I < Run.Count; ++I) {
            LayoutTile Tile = PlaceTile(Run.X, Run.Y, Run.Z);
            Tile.X += 2 * I;
            Tile.Left += TilePixels * I;
            New.Tiles.push_back(Tile);
        }
}

void MakeTiles(const Reader& In, const Drawing& Drawn, Layout& New)
{
    if (New.List == 0 && FindRunLayout(New.Number) && !Drawn.Runs) {
        In.Fault(New.Line, "the program holds this layout as runs: write runs and no map");
        return;
    }
    if (Drawn.Runs) {
        MakeRunTiles(In, New);
        return;
    }
    if (Drawn.Maps.empty() || Drawn.Maps[0].empty()) {
        In.Fault(New.Line, "the layout has no map");
        return;
    }
    int AxisX = 0;
    for (const MapLine& Line : Drawn.Maps[0])
        AxisX = std::max(AxisX, static_cast<int>(Line.Text.size()));
    const int AxisY = Drawn.Maps[0].back().Y + (Drawn.MiddleRow ? 1 : 2);

    for (const std::vector<MapLine>& Map : Drawn.Maps) {
        std::vector<Stack> Stacks;
        for (const MapLine& Line : Map) {
            if (Drawn.MirrorX && static_cast<int>(Line.Text.size()) > AxisX)
                In.Fault(Line.Line, "a line of a later map passes the axis");
            const std::vector<Stack> OfLine = StacksOfLine(In, Line, Drawn.MirrorX ? AxisX : -1);
            Stacks.insert(Stacks.end(), OfLine.begin(), OfLine.end());
        }
        if (Drawn.MirrorX) AddImages(Stacks, 2 * AxisX - 2, Straight);
        if (Drawn.MirrorY) AddImages(Stacks, Straight, 2 * AxisY - 2);
        if (Drawn.Turn) AddImages(Stacks, AxisX - 2, 2 * AxisY - 2);
        Build(In, Stacks, New.Tiles);
    }
    std::stable_sort(New.Tiles.begin(), New.Tiles.end(),
                     [&](const LayoutTile& A, const LayoutTile& B) {
                         if (A.Z != B.Z) return A.Z < B.Z;
                         if (Drawn.ByColumns) return A.X != B.X ? A.X < B.X : A.Y < B.Y;
                         return A.Y != B.Y ? A.Y < B.Y : A.X < B.X;
                     });
    if (New.Tiles.empty()) {
        In.Fault(New.Line, "the layout has no stack");
        return;
    }
    Centre(New);
}

// A line of a map, with its first character still before it.
void ReadMapLine(const Reader& In, int Line, const std::string& Text, Drawing& Drawn)
{
    if (Drawn.Maps.empty()) {
        In.Fault(Line, "a line of a map stands before the word map");
        return;
    }
    std::vector<MapLine>& Map = Drawn.Maps.back();
    const int Y = Map.empty() ? 0 : Map.back().Y + (Text[0] == ':' ? 1 : 2);
    if (Text[0] == '=' && Drawn.Maps.size() == 1) Drawn.MiddleRow = true;
    Map.push_back({Y, Line, Text.substr(1)});
}

void ReadMirrors(const Reader& In, int Line, std::istringstream& Words, Drawing& Drawn)
{
    for (std::string Value; Words >> Value;) {
        if (Value == "x")
            Drawn.MirrorX = true;
        else if (Value == "y")
            Drawn.MirrorY = true;
        else if (Value == "turn")
            Drawn.Turn = true;
        else
            In.Fault(Line, "mirror takes x, y or turn, not " + Value);
    }
}

bool IsOffset(const std::string& Value)
{
    return Value.size() == 4 && Value.find_first_not_of("0123456789") == std::string::npos;
}

// A line of a layout that is not part of a map.
void ReadWords(const Reader& In, int Line, const std::string& Text, Layout& New, Drawing& Drawn)
{
    std::istringstream Words(Text);
    std::string Word, Value;
    Words >> Word;
    if (Word == "map" || Word == "over") {
        if (Drawn.Maps.empty() != (Word == "map"))
            In.Fault(Line, "the first map is called map, a later one over");
        Drawn.Maps.emplace_back();
    } else if (Word == "mirror") {
        ReadMirrors(In, Line, Words, Drawn);
    } else if (Word == "order" && Words >> Value && (Value == "rows" || Value == "columns")) {
        Drawn.ByColumns = Value == "columns";
    } else if (Word == "offset" && Words >> Value && IsOffset(Value)) {
        New.Offset = Value;
    } else if (Word == "runs") {
        Drawn.Runs = true;
    } else {
        In.Fault(Line, "this line is neither a map line nor a known word: " + Text);
    }
}

// The line that begins a layout; Number stays 0 when it is no number of a list.
Layout BeginLayout(const Reader& In, int Line, const std::string& Text, int List)
{
    Layout New;
    New.List = List;
    New.File = In.File;
    New.Line = Line;
    std::istringstream Words(Text);
    std::string Word;
    Words >> Word >> New.Number >> std::ws;
    std::getline(Words, New.Name);
    if (New.Number < 1 || New.Number > LayoutsInList) {
        In.Fault(Line, "a layout's number is 1 to 120");
        New.Number = 0;
    }
    return New;
}

} // namespace

int TilesOfNumber(int Number)
{
    if (Number <= 12) return 72;
    if (Number <= 72) return 144;
    return Number <= 108 ? 216 : 288;
}

LayoutTile PlaceTile(int X, int Y, int Z)
{
    return {X, Y, Z, OriginX + HalfStep * X - 30 + LayerShift * (Z - 1),
            OriginY + HalfStep * Y - 30 - LayerShift * (Z - 1)};
}

void ReadLayouts(const std::string& File, int List, std::vector<Layout>& Layouts,
                 std::vector<std::string>& Faults)
{
    const Reader In = {File, Faults};
    std::ifstream Stream(File);
    if (!Stream) {
        In.Fault(0, "cannot be read");
        return;
    }
    Layout New;
    Drawing Drawn;
    const auto Finish = [&] {
        if (New.Number == 0) return;
        const size_t Before = Faults.size();
        MakeTiles(In, Drawn, New);
        if (Faults.size() > Before) return;
        WorkOutOffset(New);
        Layouts.push_back(New);
    };
    std::string Text;
    for (int Line = 1; std::getline(Stream, Text); ++Line) {
        if (!Text.empty() && Text.back() == '\r') Text.pop_back();
        if (Text.empty() || Text[0] == '#') continue;
        if (Text[0] == '|' || Text[0] == ':' || Text[0] == '=') {
            ReadMapLine(In, Line, Text, Drawn);
        } else if (Text.starts_with("layout ")) {
            Finish();
            New = BeginLayout(In, Line, Text, List);
            Drawn = Drawing{};
        } else {
            ReadWords(In, Line, Text, New, Drawn);
        }
    }
    Finish();
}

Layout PlainStack(int List, int Number)
{
    Layout New;
    New.List = List;
    New.Number = Number;
    New.Name = "Stack " + std::to_string(List * LayoutsInList + Number);
    const int Layers = TilesOfNumber(Number) / 72;
    for (int Z = 1; Z <= Layers; ++Z)
        for (int Y = 0; Y < 6; ++Y)
            for (int X = 0; X < 12; ++X) New.Tiles.push_back(PlaceTile(2 * X, 2 * Y, Z));
    Centre(New);
    WorkOutOffset(New);
    return New;
}
