// score.h: a piece of music as it is written in scores/*.txt, in the way that NOTATION tells.
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
