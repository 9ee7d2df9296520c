// score.h: a piece of music as it is written in scores/*.txt.
//
// A score is read from top to bottom; a line that begins with # is a comment.
//
//   title    The Ferry at First Light
//   tempo    3/8=54                      beats a minute; the beat is the written note value
//   metre    6/8                         7/8 2+2+3 tells where the accents fall
//   scale    D dorian                    letters without a sign take the sign of the scale
//   unit     1/8                         the length of a note without a number
//   swing    62                          per cent of the beat that its first half takes (50)
//   hall     40                          reverb, per cent
//   bass     E2                          lowest tone of the bass; it keeps within an octave and a
//   half voicing  3 E3 C5                     how many voices lie over the bass, and in which range
//
//   part harp harp pan 30 level -4 plays rolling
//                                        name, instrument, place (-64..63), decibels, default
//                                        content
//   figure rolling  b 1 2 3 2 1          an accompaniment, repeated bar by bar:
//                                        b bass, B and o its lower and higher octave, f the fifth
//                                        over it, 1 2 3.. the voices from below (4 is 1 an octave
//                                        higher when there are three), x a stroke of a drum, z a
//                                        rest, [b13] together; a length as b:3 or b/2
//   section A
//     chords  Dm | C . G . | ...         the chords of a bar share it evenly, . holds the last one
//     on melody  D2 F A2 d | z c6 || ...    || ends a phrase; capital C is the middle C, c the
//     octave
//                                        above, c' the next, C, the one below; ^ sharp, _ flat,
//                                        = natural for this note; (3abc a triplet, a- a tie, [ac]
//                                        both together, {b}a a grace note, a length 3, 3/2, /2
//     counter ...                        any other written line
//     harp    plucked                    what a part plays here, if not its default
//   form
//     A p                                sections in their order; a word of loudness pp p mp mf f,
//     A  flute=- harp=melody+12          "rit" for a slowing end, PART=CONTENT to vary the parts,
//     B  up=2 tempo=96 chords=late       up (semitones), tempo (per cent), other chords
//
// CONTENT is a figure or a written line, or - for silence, followed by any of
//   +12 -12 (semitones), ~ (ornamented), /3 (a harmony below the line).
//
// Lengths are counted in ticks. A broken rule of the notation throws std::runtime_error with the
// file, the line and the rule.
#pragma once

#include <map>
#include <string>
#include <vector>

constexpr int TicksPerQuarter = 480;
constexpr int TicksPerWhole = 4 * TicksPerQuarter;

struct Instrument {
    const char* Name;
    int Bank, Program;   // of the sound font
    int Lowest, Highest; // playable range as MIDI keys; one key for a drum
    bool Sustained;      // can swell; else it is struck or plucked
    bool Rings;          // sounds on until its chord ends, as with a pedal
    double Trim;         // decibels that make it as loud as the others
};

struct Scale {
    int Tonic = 0;          // pitch class
    int Sign[7];            // of the letters C D E F G A B: -1, 0, 1; or NotInScale
    std::vector<int> Steps; // semitones above the tonic, ascending
    std::string Name;       // "D dorian"
};
constexpr int NotInScale = 99;

struct Chord {
    int Root = 0, Bass = 0; // pitch classes
    std::vector<int> Tones; // pitch classes, root first; empty is silence
    int Third = -1;         // pitch class of the third, or -1
    std::string Name;
    int Start = 0, Ticks = 0; // within the section
};

struct WrittenNote {
    int Key;            // MIDI key
    int Start, Ticks;   // within the section
    bool Grace = false; // a short note before the beat of the next one
    bool EndsPhrase = false;
};

struct Line {
    std::vector<WrittenNote> Notes;
    std::vector<int> PhraseEnds; // ticks
    int Ticks = 0;
    int SourceLine = 0;
};

struct FigureTone {
    char Voice; // b B o f x or 1..9
    int Start, Ticks;
};

struct Figure {
    std::vector<FigureTone> Tones;
    int Ticks = 0; // whole bars
};

struct Part {
    std::string Name;
    const Instrument* Plays;
    int Pan = 0;
    double Level = 0;
    std::string Content = "-";
};

struct Section {
    std::map<std::string, std::vector<Chord>> Chords; // "chords" and lines that begin so
    std::map<std::string, Line> Lines;
    std::map<std::string, std::string> Contents; // by part
    int Ticks = 0;
};

struct FormEntry {
    std::string SectionName;
    std::map<std::string, std::string> Contents; // by part
    std::string Chords = "chords";
    int Up = 0, TempoPercent = 100;
    std::string Loudness = "mp";
    bool Rit = false;
    int SourceLine = 0;
};

struct Score {
    std::string File;
    int Track = 0; // from the file's name: 07-title.txt
    std::string Title;
    double BeatsPerMinute = 0;
    int BeatTicks = TicksPerQuarter;
    int BarTicks = 0;
    std::vector<int> Accents; // ticks of the groups within a bar
    Scale Key;
    int UnitTicks = 240;
    int Swing = 50;
    int Hall = 40;
    int BassLowest = 40;
    int Voices = 3, VoicesLowest = 52, VoicesHighest = 72;
    std::vector<Part> Parts;
    std::map<std::string, Figure> Figures;
    std::map<std::string, Section> Sections;
    std::vector<FormEntry> Form;
};

// instruments.cpp
const Instrument* FindInstrument(const std::string& Name); // null if there is none

// scale.cpp: names of tones, scales and chords
bool ReadScale(const std::string& Tonic, const std::string& Name, Scale& Result);
bool ReadChord(const std::string& Name, Chord& Result);
int ReadKey(const std::string& Name);                      // "F#3" is 54; -1 if it is no tone
int ScaleStepBelow(const Scale& Key, int Tone, int Steps); // both are keys; negative goes up

// score.cpp
Score ReadScore(const std::string& Path);
