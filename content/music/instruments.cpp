#include "score.h"

namespace
{

// Ranges are those a player of the real instrument is at ease in. The trims were measured: each
// instrument's middle octave at one velocity, brought to one loudness.
constexpr bool Sustained = true, Struck = false, Rings = true, Stops = false;
constexpr Instrument InstrumentTable[] = {
    // name           bank prog  low high
    {"piano", 0, 0, 28, 98, Struck, Rings, 3},
    {"epiano", 0, 4, 28, 98, Struck, Rings, -3},
    {"harpsichord", 0, 6, 29, 89, Struck, Stops, 0},
    {"celesta", 0, 8, 60, 108, Struck, Rings, 2},
    {"glockenspiel", 0, 9, 72, 108, Struck, Rings, 4},
    {"musicbox", 0, 10, 55, 103, Struck, Rings, 1},
    {"vibraphone", 0, 11, 53, 89, Struck, Rings, 5},
    {"marimba", 0, 12, 36, 96, Struck, Rings, 1},
    {"xylophone", 0, 13, 65, 108, Struck, Stops, 8},
    {"bells", 0, 14, 55, 84, Struck, Rings, -1},
    {"dulcimer", 0, 15, 43, 88, Struck, Rings, 7},
    {"reedorgan", 0, 20, 36, 84, Sustained, Stops, -2},
    {"accordion", 0, 21, 41, 89, Sustained, Stops, 2},
    {"harmonica", 0, 22, 55, 93, Sustained, Stops, -1},
    {"guitar", 0, 24, 38, 84, Struck, Rings, 0},
    {"steelguitar", 0, 25, 38, 84, Struck, Rings, 1},
    {"jazzguitar", 0, 26, 40, 84, Struck, Rings, 2},
    {"contrabass", 0, 32, 28, 60, Struck, Stops, 0},
    {"fretless", 0, 35, 28, 62, Struck, Stops, -3},
    {"violin", 0, 40, 55, 98, Sustained, Stops, -3},
    {"viola", 0, 41, 48, 84, Sustained, Stops, -2},
    {"cello", 0, 42, 36, 76, Sustained, Stops, -1},
    {"bowedbass", 0, 43, 28, 60, Sustained, Stops, 2},
    {"pizzicato", 0, 45, 36, 93, Struck, Stops, 1},
    {"harp", 0, 46, 24, 103, Struck, Rings, 2},
    {"strings", 0, 48, 36, 96, Sustained, Stops, -1},
    {"choir", 0, 52, 43, 81, Sustained, Stops, 0},
    {"horn", 0, 60, 41, 77, Sustained, Stops, -4},
    {"soprano-sax", 0, 64, 56, 87, Sustained, Stops, -4},
    {"oboe", 0, 68, 58, 89, Sustained, Stops, -5},
    {"englishhorn", 0, 69, 52, 81, Sustained, Stops, 0},
    {"bassoon", 0, 70, 34, 72, Sustained, Stops, -3},
    {"clarinet", 0, 71, 50, 89, Sustained, Stops, -7},
    {"piccolo", 0, 72, 74, 108, Sustained, Stops, -7},
    {"flute", 0, 73, 60, 96, Sustained, Stops, -6},
    {"recorder", 0, 74, 60, 91, Sustained, Stops, -4},
    {"panflute", 0, 75, 55, 91, Sustained, Stops, -4},
    {"shakuhachi", 0, 77, 55, 91, Sustained, Stops, -4},
    {"ocarina", 0, 79, 60, 89, Sustained, Stops, -5},
    {"warmpad", 0, 89, 36, 84, Sustained, Stops, 0},
    {"sitar", 0, 104, 48, 84, Struck, Rings, 2},
    {"banjo", 0, 105, 48, 86, Struck, Stops, 3},
    {"shamisen", 0, 106, 50, 84, Struck, Stops, 7},
    {"koto", 0, 107, 43, 88, Struck, Rings, 4},
    {"kalimba", 0, 108, 48, 89, Struck, Rings, 5},
    {"steeldrums", 0, 114, 48, 88, Struck, Rings, 3},
    // drums: the key is the instrument
    {"shaker", 128, 0, 70, 70, Struck, Stops, 0},
    {"claves", 128, 0, 75, 75, Struck, Stops, 0},
    {"woodblock", 128, 0, 77, 77, Struck, Stops, 0},
    {"triangle", 128, 0, 81, 81, Struck, Stops, 0},
    {"lowconga", 128, 0, 64, 64, Struck, Stops, 0},
    {"highconga", 128, 0, 63, 63, Struck, Stops, 0},
    {"brush", 128, 40, 38, 38, Struck, Stops, 0},
    {"ride", 128, 40, 51, 51, Struck, Stops, 0},
    {"tambourine", 128, 0, 54, 54, Struck, Stops, 0},
    {"taiko", 0, 116, 48, 48, Struck, Stops, 0},
};

} // namespace

const Instrument* FindInstrument(const std::string& Name)
{
    for (const Instrument& Row : InstrumentTable)
        if (Name == Row.Name) return &Row;
    return nullptr;
}
