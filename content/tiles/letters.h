// letters.h: the letter tiles
#pragma once

#include "tiles.h"

void DrawLetterTile(QPainter& P, int FaceNumber); // 1..36, in units of 0..100
