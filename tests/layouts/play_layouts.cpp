// play-layouts GAMEDIR TABLE DEALS: plays every built-in layout on random deals and writes what
// came of it into the file TABLE. It fails when a layout plays badly; the limits stand below.
//
// The player uses no powers. Of all open pairs it takes the one that frees most tiles, from the
// highest stacks first, and a pair that is the last of its face at once.
#include "content/layouts/layout_source.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace
{

constexpr int FaceCount = 36;
constexpr int ExchangeCount = 576;
constexpr double LeastCleared = 0.40;   // share of tiles, on average
constexpr int TilesThatNeedAWin = 144;  // layouts of up to this many tiles must be won at times
constexpr double MostDeadStarts = 0.01; // share of deals without any open pair

struct Place {
    int X, Y, Z;
};

// Which tiles stand against which. All lists hold tile numbers.
struct Neighbours {
    std::vector<int> Left, Right, Above, Below;
};

struct Board {
    std::vector<Place> Places;
    std::vector<Neighbours> Near;
};

struct Tally {
    double Cleared = 0; // share of tiles, summed over the deals
    int Wins = 0;
    int DeadStarts = 0;
};

Board MakeBoard(const std::vector<Place>& Places)
{
    Board New = {Places, std::vector<Neighbours>(Places.size())};
    for (size_t I = 0; I < Places.size(); ++I)
        for (size_t J = 0; J < Places.size(); ++J) {
            const int X = Places[J].X - Places[I].X, Y = Places[J].Y - Places[I].Y;
            const int Z = Places[J].Z - Places[I].Z;
            if (std::abs(Y) > 1) continue;
            if (Z == 0 && X == -2) New.Near[I].Left.push_back(static_cast<int>(J));
            if (Z == 0 && X == 2) New.Near[I].Right.push_back(static_cast<int>(J));
            if (Z == 1 && std::abs(X) < 2) New.Near[I].Above.push_back(static_cast<int>(J));
            if (Z == -1 && std::abs(X) < 2) New.Near[I].Below.push_back(static_cast<int>(J));
        }
    return New;
}

// A game under way: how many tiles still stand at each side of a tile and on it.
struct Game {
    const Board& On;
    std::vector<int> Left, Right, Above, Face;
    std::vector<char> Stands;
    std::vector<int> Free;
    std::array<int, FaceCount> FacesLeft{};

    explicit Game(const Board& B) : On(B), Face(B.Places.size())
    {
        for (const Neighbours& Near : B.Near) {
            Left.push_back(static_cast<int>(Near.Left.size()));
            Right.push_back(static_cast<int>(Near.Right.size()));
            Above.push_back(static_cast<int>(Near.Above.size()));
        }
        Stands.assign(B.Places.size(), 1);
        for (size_t I = 0; I < B.Places.size(); ++I)
            if (IsFree(static_cast<int>(I))) Free.push_back(static_cast<int>(I));
    }

    bool IsFree(int Tile) const
    {
        return Above[Tile] == 0 && (Left[Tile] == 0 || Right[Tile] == 0);
    }
};

void Remove(Game& G, int Tile)
{
    G.Stands[Tile] = 0;
    std::erase(G.Free, Tile);
    --G.FacesLeft[G.Face[Tile]];
    const auto Release = [&](const std::vector<int>& Near, std::vector<int>& Count) {
        for (const int Other : Near) {
            const bool Before = G.IsFree(Other);
            --Count[Other];
            if (G.Stands[Other] && !Before && G.IsFree(Other)) G.Free.push_back(Other);
        }
    };
    Release(G.On.Near[Tile].Left, G.Right);
    Release(G.On.Near[Tile].Right, G.Left);
    Release(G.On.Near[Tile].Below, G.Above);
}

// How much the removal of Tile opens: tiles set free count most, then tiles with one hindrance
// less, then height.
int WorthOf(const Game& G, int Tile)
{
    int Worth = 4 * G.On.Places[Tile].Z;
    for (const int Other : G.On.Near[Tile].Below) {
        const bool Sides = G.Left[Other] == 0 || G.Right[Other] == 0;
        Worth += G.Above[Other] == 1 && Sides ? 12 : 4;
    }
    const auto AddSide = [&](const std::vector<int>& Near, const std::vector<int>& ThisSide,
                             const std::vector<int>& FarSide) {
        for (const int Other : Near)
            if (G.Stands[Other] && FarSide[Other] > 0)
                Worth += ThisSide[Other] == 1 && G.Above[Other] == 0 ? 12 : 4;
    };
    AddSide(G.On.Near[Tile].Left, G.Right, G.Left);
    AddSide(G.On.Near[Tile].Right, G.Left, G.Right);
    return Worth;
}

// Takes the best open pair; false when there is none.
bool PlayPair(Game& G)
{
    struct Candidate {
        int Tile = -1, Worth = -1;
    };
    std::array<std::array<Candidate, 2>, FaceCount> Best{};
    std::array<int, FaceCount> FreeOfFace{};
    for (const int Tile : G.Free) {
        const Candidate New = {Tile, WorthOf(G, Tile)};
        std::array<Candidate, 2>& Pair = Best[G.Face[Tile]];
        ++FreeOfFace[G.Face[Tile]];
        if (New.Worth > Pair[0].Worth) {
            Pair[1] = Pair[0];
            Pair[0] = New;
        } else if (New.Worth > Pair[1].Worth) {
            Pair[1] = New;
        }
    }
    int BestFace = -1, BestWorth = -1;
    for (int Face = 0; Face < FaceCount; ++Face) {
        if (Best[Face][1].Tile < 0) continue;
        // A face of which every tile is free can wait no better than go.
        const int Whole = FreeOfFace[Face] == G.FacesLeft[Face] ? 1000 : 0;
        const int Worth = Best[Face][0].Worth + Best[Face][1].Worth + Whole;
        if (Worth <= BestWorth) continue;
        BestWorth = Worth;
        BestFace = Face;
    }
    if (BestFace < 0) return false;
    Remove(G, Best[BestFace][0].Tile);
    Remove(G, Best[BestFace][1].Tile);
    return true;
}

// Faces 1 to 36 in turn over the elements, then 576 exchanges: the deal of the game.
void Deal(Game& G, const Game& Start, std::mt19937& Random)
{
    const int Tiles = static_cast<int>(Start.Face.size());
    G.Left = Start.Left;
    G.Right = Start.Right;
    G.Above = Start.Above;
    G.Stands = Start.Stands;
    G.Free = Start.Free;
    for (int I = 0; I < Tiles; ++I) G.Face[I] = I % FaceCount;
    const auto Draw = [&] { return static_cast<int>((std::uint64_t(Random()) * Tiles) >> 32); };
    for (int I = 0; I < ExchangeCount; ++I) {
        const int A = Draw(), B = Draw();
        std::swap(G.Face[A], G.Face[B]);
    }
    G.FacesLeft.fill(Tiles / FaceCount);
}

Tally PlayDeals(const Board& B, int Deals, std::uint32_t Seed)
{
    std::mt19937 Random(Seed);
    const Game Start(B);
    Game G(B);
    Tally Sum;
    const int Tiles = static_cast<int>(B.Places.size());
    for (int I = 0; I < Deals; ++I) {
        Deal(G, Start, Random);
        int Left = Tiles;
        while (PlayPair(G)) Left -= 2;
        Sum.Cleared += 1.0 - double(Left) / Tiles;
        Sum.Wins += Left == 0;
        Sum.DeadStarts += Left == Tiles;
    }
    return Sum;
}

// Whether the tiles can be taken off one by one, whatever the faces.
bool CanBePeeled(const Board& B)
{
    Game G(B);
    G.FacesLeft.fill(static_cast<int>(B.Places.size()));
    size_t Left = B.Places.size();
    for (; !G.Free.empty(); --Left) Remove(G, G.Free.front());
    return Left == 0;
}

struct LayoutFile {
    std::string Bytes;
    size_t Cursor = 0;
};

std::string ReadBytes(const std::string& Path)
{
    std::ifstream Stream(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(Stream), {}};
}

std::vector<Place> NextLayout(LayoutFile& File, int Tiles)
{
    const auto Next = [&File] {
        const int Low = static_cast<unsigned char>(File.Bytes[File.Cursor]);
        const int High = static_cast<signed char>(File.Bytes[File.Cursor + 1]);
        File.Cursor += 2;
        return Low + 256 * High;
    };
    std::vector<Place> Places;
    for (int I = 0; I < Tiles; ++I) {
        const int X = Next(), Y = Next(), Z = Next();
        Places.push_back({X, Y, Z});
    }
    return Places;
}

// What is wrong with a layout's figures, empty when nothing is.
std::string FaultOf(const Tally& Sum, int Tiles, int Deals, bool Peels)
{
    std::string Fault;
    if (!Peels) Fault += " cannot-be-cleared";
    if (Sum.Cleared / Deals < LeastCleared) Fault += " too-little-cleared";
    if (Tiles <= TilesThatNeedAWin && Sum.Wins == 0) Fault += " never-won";
    if (Sum.DeadStarts > MostDeadStarts * Deals) Fault += " dead-starts";
    return Fault;
}

} // namespace

int main(int Count, char** Words)
{
    if (Count != 4) {
        std::fprintf(stderr, "play-layouts GAMEDIR TABLE DEALS\n");
        return 1;
    }
    const std::string Data = std::string(Words[1]) + "/DATA/";
    const int Deals = std::atoi(Words[3]);
    std::ifstream Names(Data + "LY0000");
    std::FILE* Table = std::fopen(Words[2], "w");
    if (!Names || !Table || Deals < 1) {
        std::fprintf(stderr, "play-layouts: no %sLY0000, no place for %s, or no deals\n",
                     Data.c_str(), Words[2]);
        return 1;
    }
    std::fprintf(Table, "layout tiles free cleared wins dead-starts  name\n");
    int Faults = 0;
    double Sums[5] = {}, Wins[5] = {};
    int Layouts[5] = {};
    for (int List = 0; List < 3; ++List) {
        LayoutFile File = {ReadBytes(Data + "LY900" + std::to_string(List))};
        if (File.Bytes.size() != 124416) {
            std::fprintf(stderr, "LY900%d has %zu bytes\n", List, File.Bytes.size());
            return 1;
        }
        for (int Number = 1; Number <= 120; ++Number) {
            std::string Name;
            std::getline(Names, Name);
            const int Tiles = TilesOfNumber(Number);
            const Board B = MakeBoard(NextLayout(File, Tiles));
            const Tally Sum = PlayDeals(B, Deals, static_cast<std::uint32_t>(1000 * List + Number));
            const std::string Fault = FaultOf(Sum, Tiles, Deals, CanBePeeled(B));
            std::fprintf(Table, "%c %3d  %5d %4zu  %5.1f%% %4.1f%% %9.1f%%  %s%s%s\n", 'A' + List,
                         Number, Tiles, Game(B).Free.size(), 100 * Sum.Cleared / Deals,
                         100.0 * Sum.Wins / Deals, 100.0 * Sum.DeadStarts / Deals,
                         Name.substr(std::min<size_t>(4, Name.size())).c_str(),
                         Fault.empty() ? "" : " !", Fault.c_str());
            if (!Fault.empty()) {
                ++Faults;
                std::printf("%c %d %s:%s\n", 'A' + List, Number, Name.c_str(), Fault.c_str());
            }
            const int Size = Tiles / 72;
            ++Layouts[Size];
            Sums[Size] += Sum.Cleared / Deals;
            Wins[Size] += double(Sum.Wins) / Deals;
        }
    }
    for (int Size = 1; Size <= 4; ++Size) {
        char Line[120];
        std::snprintf(Line, sizeof Line, "%d layouts of %d tiles: %.1f%% cleared, %.1f%% won",
                      Layouts[Size], 72 * Size, 100 * Sums[Size] / Layouts[Size],
                      100 * Wins[Size] / Layouts[Size]);
        std::fprintf(Table, "%s\n", Line);
        std::printf("%s\n", Line);
    }
    std::fclose(Table);
    std::printf("%d layouts play badly\n", Faults);
    return Faults ? 1 : 0;
}
