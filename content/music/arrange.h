// arrange.h: from the written score to the notes of every part.
//
// The form is laid out, lines are varied as the form says, every chord gets a bass and voices that
// lead smoothly from the one before, and figures are filled with these voices. Times are ticks from
// the start of the piece, at the score's own tempo.
#pragma once

#include "score.h"

enum class Role { Melody, Counter, Figure };

struct ArrangedNote {
    int Part;
    int Key;
    int Start, Ticks;
    Role As;
    std::string Loudness;
    bool Grace = false, EndsPhrase = false;
    int ChordEnd; // where the pedal is lifted
};

struct PlacedChord {
    Chord Symbol;            // Start counts from the start of the piece
    int Bass = 0;            // key
    std::vector<int> Voices; // keys, ascending
    int MelodyAtStart = 0;   // key, 0 if the melody rests
};

struct PlacedSection {
    int Start, Ticks;
    int TempoPercent;
    bool Rit;
};

struct Arrangement {
    std::vector<ArrangedNote> Notes; // by time, then part, then key
    std::vector<PlacedChord> Chords;
    std::vector<PlacedSection> Sections;
    std::vector<int> PhraseEnds; // of the melody, ascending
    int Ticks = 0;
};

Arrangement Arrange(const Score& From);

// Parallel fifths, octaves and primes between two tones that move to two others.
bool IsParallel(int LowFrom, int HighFrom, int LowTo, int HighTo);

// voicing.cpp: gives every chord its bass and voices.
void VoiceChords(const Score& From, Arrangement& Result, const std::vector<int>& MelodyFloor);

// The melody's lowest key while it sounds, one entry for each of these ticks; SilentMelody if it
// rests.
constexpr int FloorTicks = 20;
constexpr int SilentMelody = 127;
int LowestMelody(const std::vector<int>& MelodyFloor, int Start, int Ticks);
