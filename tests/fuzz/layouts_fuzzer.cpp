// \DATA\LY9nnn of any content: each of its layouts is placed and searched, or refused. The first
// byte is the list and whether the file is cut, the second the layout; the others are written over
// the places of that layout in a sound file.
#include "board/board.h"
#include "tests/fuzz/fuzzing.h"

// Where a layout begins in the file of a built-in list, and its tiles.
struct TableRow {
    int LastLayout, Before, Tiles, Offset;
};
constexpr TableRow Tables[] = {
    {12, 0, 72, 0}, {72, 12, 144, 5184}, {108, 72, 216, 57024}, {120, 108, 288, 103680}};
constexpr int PackRecord = 666, PackTiles = 216;

struct Place {
    std::size_t At; // its first byte in the file
    int Tiles;
};

static Place PlaceOf(int List, int Layout)
{
    if (List > 2) return {static_cast<std::size_t>((Layout - 1) * PackRecord), PackTiles};
    const TableRow* Row = Tables;
    while (Layout > Row->LastLayout) ++Row;
    const int At = Row->Offset + (Layout - Row->Before - 1) * Row->Tiles * 6;
    return {static_cast<std::size_t>(At), Row->Tiles};
}

// Every layout a wall of rows of nineteen tiles.
static std::string SoundFile(int List)
{
    std::string File(List > 2 ? 79920 : 124416, '\0');
    for (int Layout = 1; Layout <= 120; ++Layout) {
        const auto [Start, Tiles] = PlaceOf(List, Layout);
        std::size_t At = Start;
        for (int Tile = 0; Tile < Tiles; ++Tile)
            for (int Number : {1 + Tile % 19 * 2, Tile / 19 * 2, 1}) {
                File[At] = static_cast<char>(Number);
                At += List > 2 ? 1 : 2;
            }
    }
    return File;
}

std::vector<std::string> Seeds()
{
    const std::string Tower("\x05\0\x05\0\x01\0\x05\0\x05\0\x02\0\x05\0\x06\0\x03\0", 18);
    std::vector<std::string> Made;
    for (char List = 0; List <= 3; ++List)
        for (char Layout : {0, 12, 18, 72, 119}) Made.push_back({List, Layout});
    for (std::string& Seed : Made) Seed += Tower;
    Made.push_back({4, 0}); // a file that is cut
    return Made;
}

static void Deal()
{
    GameState.BoardMap.Clear();
    GameState.PlaceCursor = 1;
    InitTiles();
    PlaceLayout();
}

void PlayRound(const std::string& Input)
{
    if (Input.size() < 2) return;
    const int First = static_cast<unsigned char>(Input[0]);
    GameState.LayoutGroup = First % 4;
    GameState.LayoutNumber = static_cast<unsigned char>(Input[1]) % 120 + 1;
    const auto [At, Tiles] = PlaceOf(GameState.LayoutGroup, GameState.LayoutNumber);
    static const std::string Sound[] = {SoundFile(0), SoundFile(3)};
    std::string Content = Sound[GameState.LayoutGroup > 2 ? 1 : 0];
    const std::size_t Size = Content.size();
    Content.replace(At, Input.size() - 2, Input, 2, Input.npos);
    const bool Cut = First / 4 % 8 == 1;
    Content.resize(Cut ? Size - 1 - First / 32 * 17000 % Size : Size);
    PutFile(DataFile("LY", 9000 + GameState.LayoutGroup), Content);

    Require(IsFatal(LoadLayoutGeometry) == Cut, "a file is wrongly taken or refused");
    if (Cut || IsFatal(Deal)) return;
    Require(GameState.TilesLeft == Tiles, "TilesLeft " + std::to_string(GameState.TilesLeft));
    ShowDealtTiles();
    ScanOpenPairs();
    for (int Tile = 1; Tile <= Tiles; ++Tile) {
        Require(imgTile(Tile).Tag.size() == 7, "Tag " + imgTile(Tile).Tag);
        IsBlocked(TileX(Tile), TileY(Tile), TileZ(Tile));
    }
    HideAllTiles();
}
