// layout_source.h: the readable form of the layouts and the tiles they make.
//
// A source file holds layouts of one list:
//
//     layout 14 Turtle        a number of the list and the name
//     mirror x                only the left half is drawn
//     map
//     |  11 22                a line of the map: a whole step below the line before
//     |1133 44
//     :  22  2                a line that begins with a colon: half a step below the line before
//     over                    a further map: its stacks stand on what lies below them
//     |      2
//
// A tile is two characters wide, so a stack is its height written twice: "33" is a stack of three
// tiles, "3322" a stack of three and a neighbour of two. One character is half a step. Blanks and
// dots are empty. A stack of the first map stands on the board, one of a later map on the highest
// tile that it touches from above.
//
//     mirror x       the axis is the right end of the widest line of the first map; a stack that
//                    stands on the axis is drawn by its left half, as a single digit
//     mirror y       the axis is the lower end of the first map; a line that begins with an equals
//                    sign in place of the bar is a middle row and lies on the axis
//     mirror turn    the lower half is the upper half, turned by half a circle; = as above
//     order columns  within a layer the tiles are placed column by column and not row by row
//     offset XXYY    the offset code; without this line it is worked out
//     runs           the geometry is that of the program's table of runs
//
// mirror takes several words; a hash sign begins a comment line.
#pragma once

#include <string>
#include <vector>

// The place of a tile, columns and rows in half steps, layers from 1, and its picture's place in
// screen pixels with the offset code left out.
struct LayoutTile {
    int X, Y, Z;
    double Left, Top;
};

struct Layout {
    int List = 0;   // 0..2
    int Number = 0; // 1..120
    std::string Name;
    std::string Offset; // four digits XXYY
    std::string File;   // where it was read, empty for a filled-in stack
    int Line = 0;
    std::vector<LayoutTile> Tiles; // in placing order
};

constexpr int ListCount = 3;
constexpr int LayoutsInList = 120;
constexpr double TilePixels = 60;
// The middle of the board's area, screen pixels.
constexpr double CentreX = 512, CentreY = 316;

// The number of tiles that a layout of this number must have: 72, 144, 216 or 288.
int TilesOfNumber(int Number);

// The pixel place of a tile outside a run, offset code 0000.
LayoutTile PlaceTile(int X, int Y, int Z);

// Reads one source file into Layouts. Each fault adds a line "file:line: what is wrong".
void ReadLayouts(const std::string& File, int List, std::vector<Layout>& Layouts,
                 std::vector<std::string>& Faults);

// A plain stack for a number that no source draws.
Layout PlainStack(int List, int Number);
