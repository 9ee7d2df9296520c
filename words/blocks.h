// blocks.h: what the files of the dictionary's engine share among themselves.
#pragma once

#include "words/words.h"

#include <string_view>

constexpr int LastTokenStart = 127; // no token starts beyond this position
constexpr int FrontCode = 91;       // code of the first character of a front-coded token with k = 0
constexpr int IndexStartOffset = 124;

// The number is counted from 1. False outside the file or when none is open; then Block is blank.
bool ReadBlock(long long Number);
void NoticeCut(); // each operation begins with it: the file may have been cut since the last
bool MapBlocks(); // anew after a change of BlockCount
bool HasHeader(); // of the block last read
std::int32_t Long(int Offset); // a number of the block last read
void UpperCase(std::string& Text);

// Finds the block that holds Target or would hold it, reads it and leaves its number in Middle.
bool LocateBlock();

// The walk over the words of the block last read. Position is that of the comma behind Current,
// counted from 1.
int FirstWord();
void NextWord(int& Position);
bool EndsAt(int Position);

// add.cpp
std::int16_t AddWord(bool SplitAtOverflow);
