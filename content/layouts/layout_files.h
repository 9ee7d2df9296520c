// layout_files.h: the game's files that are made from the layouts.
//
// All take the 360 layouts in the order of list and number and a folder that exists.
#pragma once

#include "layout_source.h"

// \DATA\LY0000: 360 lines, the offset code and the name.
std::string NameListBytes(const std::vector<Layout>& Layouts);

// \DATA\LY9000 to LY9002: x, y, z of each tile in placing order as little-endian 16-bit numbers,
// one layout after the other. 124416 bytes.
std::string GeometryBytes(const std::vector<Layout>& Layouts, int List);

// \DATA\LY0001 to LY0030: twelve thumbnails each, a PNG as bytes. Sheet counts from 0. An empty
// text when the font is missing or a name is too wide; Fault then says which.
std::string ThumbnailSheetBytes(const std::vector<Layout>& Layouts, int Sheet, std::string& Fault);
