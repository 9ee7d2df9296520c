#include "score.h"

namespace
{

constexpr int LetterSemitones[] = {0, 2, 4, 5, 7, 9, 11}; // C D E F G A B

// Each tone of a scale: letters above the tonic's letter, semitones above the tonic.
struct ScaleRow {
    const char* Name;
    std::vector<std::pair<int, int>> Tones;
};

const ScaleRow ScaleTable[] = {
    {"major", {{0, 0}, {1, 2}, {2, 4}, {3, 5}, {4, 7}, {5, 9}, {6, 11}}},
    {"minor", {{0, 0}, {1, 2}, {2, 3}, {3, 5}, {4, 7}, {5, 8}, {6, 10}}},
    {"harmonic-minor", {{0, 0}, {1, 2}, {2, 3}, {3, 5}, {4, 7}, {5, 8}, {6, 11}}},
    {"melodic-minor", {{0, 0}, {1, 2}, {2, 3}, {3, 5}, {4, 7}, {5, 9}, {6, 11}}},
    {"dorian", {{0, 0}, {1, 2}, {2, 3}, {3, 5}, {4, 7}, {5, 9}, {6, 10}}},
    {"phrygian", {{0, 0}, {1, 1}, {2, 3}, {3, 5}, {4, 7}, {5, 8}, {6, 10}}},
    {"phrygian-dominant", {{0, 0}, {1, 1}, {2, 4}, {3, 5}, {4, 7}, {5, 8}, {6, 10}}},
    {"lydian", {{0, 0}, {1, 2}, {2, 4}, {3, 6}, {4, 7}, {5, 9}, {6, 11}}},
    {"mixolydian", {{0, 0}, {1, 2}, {2, 4}, {3, 5}, {4, 7}, {5, 9}, {6, 10}}},
    {"lydian-dominant", {{0, 0}, {1, 2}, {2, 4}, {3, 6}, {4, 7}, {5, 9}, {6, 10}}},
    {"hungarian-minor", {{0, 0}, {1, 2}, {2, 3}, {3, 6}, {4, 7}, {5, 8}, {6, 11}}},
    {"pentatonic", {{0, 0}, {1, 2}, {2, 4}, {4, 7}, {5, 9}}},
    {"minor-pentatonic", {{0, 0}, {2, 3}, {3, 5}, {4, 7}, {6, 10}}},
    {"yo", {{0, 0}, {1, 2}, {3, 5}, {4, 7}, {5, 9}}},
    {"hirajoshi", {{0, 0}, {1, 2}, {2, 3}, {4, 7}, {5, 8}}},
    {"kumoi", {{0, 0}, {1, 2}, {2, 3}, {4, 7}, {5, 9}}},
    {"in-sen", {{0, 0}, {1, 1}, {3, 5}, {4, 7}, {6, 10}}},
    {"miyako-bushi", {{0, 0}, {1, 1}, {3, 5}, {4, 7}, {5, 8}}},
    {"pelog", {{0, 0}, {1, 1}, {2, 3}, {4, 7}, {5, 8}}},
    {"whole-tone", {{0, 0}, {1, 2}, {2, 4}, {3, 6}, {4, 8}, {5, 10}}},
};

struct ChordRow {
    const char* Name;
    std::vector<int> Tones; // semitones above the root; the second is the third, if there is one
    bool HasThird;
};

const ChordRow ChordTable[] = {
    {"", {0, 4, 7}, true},
    {"m", {0, 3, 7}, true},
    {"7", {0, 4, 7, 10}, true},
    {"m7", {0, 3, 7, 10}, true},
    {"maj7", {0, 4, 7, 11}, true},
    {"mmaj7", {0, 3, 7, 11}, true},
    {"6", {0, 4, 7, 9}, true},
    {"m6", {0, 3, 7, 9}, true},
    {"add9", {0, 4, 7, 2}, true},
    {"madd9", {0, 3, 7, 2}, true},
    {"9", {0, 4, 10, 2}, true},
    {"m9", {0, 3, 10, 2}, true},
    {"maj9", {0, 4, 11, 2}, true},
    {"69", {0, 4, 9, 2}, true},
    {"dim", {0, 3, 6}, true},
    {"dim7", {0, 3, 6, 9}, true},
    {"m7b5", {0, 3, 6, 10}, true},
    {"aug", {0, 4, 8}, true},
    {"7#5", {0, 4, 8, 10}, true},
    {"7#11", {0, 4, 6, 10}, true},
    {"maj7#11", {0, 4, 6, 11}, true},
    {"7b9", {0, 4, 10, 1}, true},
    {"sus2", {0, 2, 7}, false},
    {"sus4", {0, 5, 7}, false},
    {"7sus4", {0, 5, 7, 10}, false},
    {"5", {0, 7}, false},
    {"susb2", {0, 1, 7}, false},
    {"q", {0, 5, 10}, false},
    {"madd4", {0, 3, 5, 7}, true},
    {"mb6", {0, 3, 7, 8}, true},
};

// Reads a letter and its signs, # or b; returns the pitch class, or -1.
int ReadPitchClass(const char*& At)
{
    const auto Letter = std::string("CDEFGAB").find(*At);
    if (*At == 0 || Letter == std::string::npos) return -1;
    ++At;
    int Tone = LetterSemitones[Letter];
    for (; *At == '#' || *At == 'b'; ++At) Tone += *At == '#' ? 1 : -1;
    return (Tone + 12) % 12;
}

} // namespace

bool ReadScale(const std::string& Tonic, const std::string& Name, Scale& Result)
{
    const char* At = Tonic.c_str();
    Result.Tonic = ReadPitchClass(At);
    if (Result.Tonic < 0 || *At != 0) return false;
    const int TonicLetter = static_cast<int>(std::string("CDEFGAB").find(Tonic[0]));
    for (int& Sign : Result.Sign) Sign = NotInScale;
    for (const ScaleRow& Row : ScaleTable) {
        if (Name != Row.Name) continue;
        for (const auto& [Letters, Semitones] : Row.Tones) {
            const int Letter = (TonicLetter + Letters) % 7;
            const int Tone = (Result.Tonic + Semitones) % 12;
            Result.Sign[Letter] = (Tone - LetterSemitones[Letter] + 18) % 12 - 6;
            Result.Steps.push_back(Semitones);
        }
        Result.Name = Tonic + " " + Name;
        return true;
    }
    return false;
}

bool ReadChord(const std::string& Name, Chord& Result)
{
    Result.Name = Name;
    if (Name == "-") return true;
    const char* At = Name.c_str();
    Result.Root = Result.Bass = ReadPitchClass(At);
    if (Result.Root < 0) return false;
    std::string Kind = At;
    if (const auto Slash = Kind.find('/'); Slash != std::string::npos) {
        const char* BassAt = At + Slash + 1;
        Result.Bass = ReadPitchClass(BassAt);
        if (Result.Bass < 0 || *BassAt != 0) return false;
        Kind.resize(Slash);
    }
    for (const ChordRow& Row : ChordTable) {
        if (Kind != Row.Name) continue;
        for (int Tone : Row.Tones) Result.Tones.push_back((Result.Root + Tone) % 12);
        if (Row.HasThird) Result.Third = Result.Tones[1];
        return true;
    }
    return false;
}

int ReadKey(const std::string& Name)
{
    const char* At = Name.c_str();
    const int Tone = ReadPitchClass(At);
    if (Tone < 0 || *At < '0' || *At > '8' || At[1] != 0) return -1;
    return 12 * (*At - '0' + 1) + Tone;
}

int ScaleStepBelow(const Scale& Key, int Tone, int Steps)
{
    const int Direction = Steps < 0 ? 1 : -1;
    int Left = Steps < 0 ? -Steps : Steps;
    while (Left > 0) {
        Tone += Direction;
        for (int Step : Key.Steps)
            if ((Key.Tonic + Step) % 12 == Tone % 12) --Left;
    }
    return Tone;
}
