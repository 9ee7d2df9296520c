// run_layouts.h: the twelve layouts of list 0 that the program holds as runs.
//
// They take the place of what \DATA\LY9000 has under the same numbers. The tiles of a run stand
// exactly 60 pixels apart on the screen, two runs that continue one another a little more, so where
// a row is cut into runs belongs to the design.
#pragma once

#include <cstdint>
#include <span>

// Count tiles side by side in row Y of layer Z, from column X in steps of 2.
struct TileRun {
    std::int16_t X, Y, Z, Count;
};

struct RunLayout {
    int Number;
    std::span<const TileRun> Runs; // in placing order, the lowest layer first
};

// The runs of a layout of list 0, nullptr when the number has none.
const RunLayout* FindRunLayout(int Number);
