#include "layout_rules.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>

namespace
{

// The board's area without its margins. The control bar begins at 616.
constexpr double AreaLeft = 8, AreaRight = 1016, AreaTop = 26, AreaBottom = 608;
// The offset code is in whole pixels.
constexpr double CentreTolerance = 0.51;
constexpr size_t LongestName = 24;

void Fault(const Layout& Of, std::vector<std::string>& Faults, const std::string& What)
{
    const std::string Place =
        Of.File.empty() ? "(filled in)" : Of.File + ":" + std::to_string(Of.Line);
    Faults.push_back(Place + ": layout " + std::to_string(Of.Number) + " \"" + Of.Name +
                     "\": " + What);
}

std::string PlaceText(const LayoutTile& Tile)
{
    return std::to_string(Tile.X) + "," + std::to_string(Tile.Y) + "," + std::to_string(Tile.Z);
}

bool Touch(const LayoutTile& A, const LayoutTile& B)
{
    return std::abs(A.X - B.X) < 2 && std::abs(A.Y - B.Y) < 2;
}

std::string CheckName(const Layout& L)
{
    if (L.Name.empty()) return "has no name";
    if (L.Name.size() > LongestName)
        return "the name is longer than " + std::to_string(LongestName) + " letters";
    for (const char C : L.Name)
        if (C < ' ' || C > '~') return "the name holds other characters than plain letters";
    return "";
}

std::string CheckCount(const Layout& L)
{
    const int Wanted = TilesOfNumber(L.Number);
    if (static_cast<int>(L.Tiles.size()) == Wanted) return "";
    return "has " + std::to_string(L.Tiles.size()) + " tiles, the number asks for " +
           std::to_string(Wanted);
}

std::string CheckBounds(const Layout& L)
{
    for (const LayoutTile& T : L.Tiles)
        if (T.X < 1 || T.X > 38 || T.Y < 0 || T.Y > 39 || T.Z < 1 || T.Z > 9)
            return "tile " + PlaceText(T) + " lies outside columns 1..38, rows 0..39, layers 1..9";
    return "";
}

std::string CheckOverlap(const Layout& L)
{
    for (size_t I = 0; I < L.Tiles.size(); ++I)
        for (size_t J = 0; J < I; ++J)
            if (L.Tiles[I].Z == L.Tiles[J].Z && Touch(L.Tiles[I], L.Tiles[J]))
                return "tiles " + PlaceText(L.Tiles[J]) + " and " + PlaceText(L.Tiles[I]) +
                       " overlap";
    return "";
}

std::string CheckSupport(const Layout& L)
{
    for (const LayoutTile& T : L.Tiles)
        if (T.Z > 1 && std::none_of(L.Tiles.begin(), L.Tiles.end(), [&](const LayoutTile& Below) {
                return Below.Z == T.Z - 1 && Touch(Below, T);
            }))
            return "tile " + PlaceText(T) + " has no tile below it";
    return "";
}

std::string CheckOrder(const Layout& L)
{
    for (size_t I = 1; I < L.Tiles.size(); ++I)
        if (L.Tiles[I].Z < L.Tiles[I - 1].Z)
            return "tile " + PlaceText(L.Tiles[I]) + " is placed after a higher layer";
    return "";
}

std::string CheckArea(const Layout& L)
{
    const int ShiftX = std::atoi(L.Offset.substr(0, 2).c_str());
    const int ShiftY = std::atoi(L.Offset.substr(2).c_str());
    double Left = 1e9, Right = -1e9, Top = 1e9, Bottom = -1e9;
    for (const LayoutTile& T : L.Tiles) {
        Left = std::min(Left, T.Left + ShiftX);
        Right = std::max(Right, T.Left + ShiftX + TilePixels);
        Top = std::min(Top, T.Top + ShiftY);
        Bottom = std::max(Bottom, T.Top + ShiftY + TilePixels);
    }
    const auto Whole = [](double Value) { return std::to_string(std::lround(Value)); };
    if (Left < AreaLeft || Right > AreaRight || Top < AreaTop || Bottom > AreaBottom)
        return "leaves the board's area: " + Whole(Left) + ".." + Whole(Right) + " by " +
               Whole(Top) + ".." + Whole(Bottom);
    if (std::fabs((Left + Right) / 2 - CentreX) > CentreTolerance ||
        std::fabs((Top + Bottom) / 2 - CentreY) > CentreTolerance)
        return "is not centred by its offset code " + L.Offset + ": the middle is " +
               Whole((Left + Right) / 2) + "," + Whole((Top + Bottom) / 2);
    return "";
}

// Heights over the half steps as bit rows: Planes[z - 1] holds a bit for each cell whose stack has
// at least z tiles. Planes[0] is the footprint.
constexpr int MaskRows = 18;
using Plane = std::array<std::uint64_t, MaskRows>;

struct Relief {
    std::array<Plane, 9> Planes{};
    int Columns = 0, Rows = 0, Layers = 0;
};

Relief ReliefOf(const Layout& L, bool FlipX, bool FlipY)
{
    int LowX = 99, LowY = 99, HighX = 0, HighY = 0;
    for (const LayoutTile& T : L.Tiles) {
        LowX = std::min(LowX, T.X);
        LowY = std::min(LowY, T.Y);
        HighX = std::max(HighX, T.X + 1);
        HighY = std::max(HighY, T.Y + 1);
    }
    Relief R;
    R.Columns = HighX - LowX + 1;
    R.Rows = std::min(HighY - LowY + 1, MaskRows);
    std::map<std::pair<int, int>, int> Heights;
    for (const LayoutTile& T : L.Tiles)
        for (int X = T.X; X < T.X + 2; ++X)
            for (int Y = T.Y; Y < T.Y + 2; ++Y)
                ++Heights[{FlipX ? HighX - X : X - LowX, FlipY ? HighY - Y : Y - LowY}];
    for (const auto& [Cell, Height] : Heights)
        for (int Z = 0; Z < Height && Cell.second < MaskRows; ++Z) {
            R.Planes[Z][Cell.second] |= std::uint64_t(1) << Cell.first;
            R.Layers = std::max(R.Layers, Z + 1);
        }
    return R;
}

int Cells(const Plane& P)
{
    int Count = 0;
    for (const std::uint64_t Row : P) Count += std::popcount(Row);
    return Count;
}

int CellsThatDiffer(const Plane& A, const Plane& B, int ShiftX, int ShiftY)
{
    int Count = 0;
    for (int Y = -4; Y < MaskRows + 4; ++Y) {
        const std::uint64_t RowA = Y >= 0 && Y < MaskRows ? A[Y] << 8 : 0;
        const int YB = Y - ShiftY;
        const std::uint64_t RowB = YB >= 0 && YB < MaskRows ? B[YB] << (8 + ShiftX) : 0;
        Count += std::popcount(RowA ^ RowB);
    }
    return Count;
}

// The least share of tiles in which the two differ, over small shifts about equal middles:
// of the footprint, and of the heights where the footprints are near each other.
struct Difference {
    double Footprint = 1, Heights = 1;
};

Difference LeastDifference(const Relief& A, const Relief& B)
{
    constexpr int Reach = 2;
    Difference Least;
    const int CellsA = Cells(A.Planes[0]), CellsB = Cells(B.Planes[0]);
    const int Larger = std::max(CellsA, CellsB);
    if (10 * std::abs(CellsA - CellsB) >= Larger) return Least;
    const int MidX = (A.Columns - B.Columns) / 2, MidY = (A.Rows - B.Rows) / 2;
    int Volume = 0;
    for (const Plane& P : A.Planes) Volume += Cells(P);
    for (int ShiftY = std::max(MidY - Reach, -4); ShiftY <= std::min(MidY + Reach, 4); ++ShiftY)
        for (int ShiftX = std::max(MidX - Reach, -8); ShiftX <= std::min(MidX + Reach, 8);
             ++ShiftX) {
            // A tile that only stands elsewhere differs in two places and counts once.
            const int Base = CellsThatDiffer(A.Planes[0], B.Planes[0], ShiftX, ShiftY);
            Least.Footprint =
                std::min(Least.Footprint, (Base + std::abs(CellsA - CellsB)) / (2.0 * Larger));
            if (Base >= Larger) continue;
            int Sum = Base;
            for (int Z = 1; Z < std::max(A.Layers, B.Layers); ++Z)
                Sum += CellsThatDiffer(A.Planes[Z], B.Planes[Z], ShiftX, ShiftY);
            Least.Heights = std::min(Least.Heights, Sum / (2.0 * Volume));
        }
    return Least;
}

} // namespace

void CheckLayout(const Layout& L, std::vector<std::string>& Faults)
{
    // Later rules rest on the former ones.
    for (const auto Rule :
         {CheckName, CheckCount, CheckBounds, CheckOverlap, CheckSupport, CheckOrder, CheckArea}) {
        const std::string What = Rule(L);
        if (What.empty()) continue;
        Fault(L, Faults, What);
        return;
    }
}

void CheckDistinct(const std::vector<Layout>& Layouts, std::vector<std::string>& Faults)
{
    std::map<std::string, const Layout*> Names;
    std::map<int, const Layout*> Numbers;
    for (const Layout& L : Layouts) {
        const auto Where = [](const Layout& Other) {
            return Other.File + ":" + std::to_string(Other.Line);
        };
        const auto [SameName, NewName] = Names.insert({L.Name, &L});
        if (!NewName) Fault(L, Faults, "the name stands also at " + Where(*SameName->second));
        const auto [SameNumber, NewNumber] =
            Numbers.insert({L.List * LayoutsInList + L.Number, &L});
        if (!NewNumber) Fault(L, Faults, "the number stands also at " + Where(*SameNumber->second));
    }

    std::vector<std::array<Relief, 4>> Images;
    for (const Layout& L : Layouts)
        Images.push_back({ReliefOf(L, false, false), ReliefOf(L, true, false),
                          ReliefOf(L, false, true), ReliefOf(L, true, true)});
    for (size_t I = 0; I < Layouts.size(); ++I)
        for (size_t J = 0; J < I; ++J) {
            Difference Least;
            for (const Relief& Image : Images[I]) {
                const Difference D = LeastDifference(Images[J][0], Image);
                Least.Footprint = std::min(Least.Footprint, D.Footprint);
                Least.Heights = std::min(Least.Heights, D.Heights);
            }
            const bool SameCount = Layouts[I].Tiles.size() == Layouts[J].Tiles.size();
            if (Least.Footprint >= 0.1 && (Least.Heights >= 0.1 || !SameCount)) continue;
            const bool Flat = Least.Footprint < 0.1;
            Fault(Layouts[I], Faults,
                  std::string(Flat ? "the footprint" : "the relief") + " is that of \"" +
                      Layouts[J].Name + "\" (" + Layouts[J].File + ":" +
                      std::to_string(Layouts[J].Line) + ") but for " +
                      std::to_string(std::lround(100 * (Flat ? Least.Footprint : Least.Heights))) +
                      " % of its tiles");
        }
}
