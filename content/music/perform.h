// perform.h: plays an arrangement as people would, on the instruments of a sound font.
#pragma once

#include "arrange.h"
#include "sound.h"

// SoundFont is the path of a General MIDI sound font. Throws std::runtime_error if it can't be
// read.
Stereo Perform(const Score& From, const Arrangement& Music, const std::string& SoundFont);
