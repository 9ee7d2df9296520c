// layout_rules.h: what every layout satisfies, and what the whole of the 360 does.
#pragma once

#include "layout_source.h"

// Checks one layout: name, tile count, bounds, overlap, support, order and place on the screen. The
// first broken rule adds a line "file:line: what is wrong". That a layout can be cleared follows:
// the leftmost tile of the highest layer is always free.
void CheckLayout(const Layout& Checked, std::vector<std::string>& Faults);

// Checks that no two layouts share a number or a name, and that any two differ in footprint and in
// heights by a tenth of their tiles, however shifted or mirrored.
void CheckDistinct(const std::vector<Layout>& Layouts, std::vector<std::string>& Faults);
