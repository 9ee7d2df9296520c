#include "board/board.h"

// The number that the digits of a Tag at a place read as; a Tag that is too short reads as 0.
static int TagNumber(int Tile, std::size_t Place, std::size_t Digits)
{
    const std::string& Tag = imgTile(Tile).Tag;
    int Number = 0;
    for (std::size_t I = Place; I < Place + Digits && I < Tag.size(); ++I)
        Number = Number * 10 + (Tag[I] - '0');
    return Number;
}

int TileFace(int Tile)
{
    return TagNumber(Tile, 0, 2);
}
int TileX(int Tile)
{
    return TagNumber(Tile, 2, 2);
}
int TileY(int Tile)
{
    return TagNumber(Tile, 4, 2);
}
int TileZ(int Tile)
{
    return TagNumber(Tile, 6, 1);
}

std::string TwoDigits(int Number)
{
    const std::string Digits = "00" + std::to_string(Number);
    return Digits.substr(Digits.size() - 2);
}
