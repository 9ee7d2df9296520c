#include "arrange.h"

#include <algorithm>
#include <stdexcept>
#include <tuple>

namespace
{

struct Placing {
    const Score& S;
    Arrangement Result;
    std::vector<int> MelodyFloor;
};

std::string ContentOf(const Score& S, const FormEntry& Entry, const Part& P)
{
    if (const auto Own = Entry.Contents.find(P.Name); Own != Entry.Contents.end())
        return Own->second;
    const Section& At = S.Sections.at(Entry.SectionName);
    if (const auto Own = At.Contents.find(P.Name); Own != At.Contents.end()) return Own->second;
    return P.Content;
}

const PlacedChord& ChordAt(const Arrangement& In, int Tick)
{
    std::size_t I = 0;
    while (I + 1 < In.Chords.size() && In.Chords[I + 1].Symbol.Start <= Tick) ++I;
    return In.Chords[I];
}

bool InChord(const Chord& C, int Key)
{
    return std::find(C.Tones.begin(), C.Tones.end(), Key % 12) != C.Tones.end();
}

// "~": a long tone turns to its upper neighbour and back, a third is filled by the tone between.
std::vector<WrittenNote> Ornament(const Score& S, const std::vector<WrittenNote>& Notes)
{
    std::vector<WrittenNote> Result;
    const int Beat = S.BeatTicks;
    for (std::size_t I = 0; I < Notes.size(); ++I) {
        const WrittenNote& Note = Notes[I];
        const bool Next = I + 1 < Notes.size() && Notes[I + 1].Start == Note.Start + Note.Ticks;
        const int Leap = Next ? Notes[I + 1].Key - Note.Key : 0;
        const int Small = std::min(Beat / 2, Note.Ticks / 2);
        if (Note.Grace || Note.EndsPhrase || Note.Ticks < Beat || Small % 2 != 0) {
            Result.push_back(Note);
        } else if (std::abs(Leap) == 3 || std::abs(Leap) == 4) {
            const int Between = ScaleStepBelow(S.Key, Note.Key, Leap < 0 ? 1 : -1);
            const int Way = (Between - Note.Key) * (Leap < 0 ? -1 : 1);
            if (Way <= 0 || Way >= std::abs(Leap)) {
                Result.push_back(Note);
                continue;
            }
            Result.push_back({Note.Key, Note.Start, Note.Ticks - Small});
            Result.push_back({Between, Note.Start + Note.Ticks - Small, Small});
        } else if (Note.Ticks >= 2 * Beat) {
            const int Upper = ScaleStepBelow(S.Key, Note.Key, -1);
            const int TurnAt = Note.Ticks - 2 * Small;
            Result.push_back({Note.Key, Note.Start, TurnAt});
            Result.push_back({Upper, Note.Start + TurnAt, Small / 2});
            Result.push_back({Note.Key, Note.Start + TurnAt + Small / 2, Small + Small / 2});
        } else {
            Result.push_back(Note);
        }
    }
    return Result;
}

// "/3": a third below where that belongs to the chord or passes quickly, else the next chord tone.
int HarmonyBelow(const Scale& Key, const Chord& C, int Note, bool Quick)
{
    const int Third = ScaleStepBelow(Key, Note, Key.Steps.size() < 6 ? 1 : 2);
    const int Gap = Note - Third;
    if (Gap >= 3 && Gap <= 5 && (InChord(C, Third) || Quick)) return Third;
    for (int Lower = Note - 3; Lower > Note - 10; --Lower)
        if (InChord(C, Lower)) return Lower;
    return Third;
}

void PlaceLine(Placing& In, int PartIndex, const FormEntry& Entry, int Start,
               const std::string& Content)
{
    const auto NameEnd = Content.find_first_of("+~/-");
    const std::string Name = Content.substr(0, NameEnd);
    std::vector<WrittenNote> Notes = In.S.Sections.at(Entry.SectionName).Lines.at(Name).Notes;
    int Up = Entry.Up;
    bool Below = false;
    Scale Key = In.S.Key;
    Key.Tonic = (Key.Tonic + Entry.Up + 12) % 12;
    for (auto At = NameEnd; At != std::string::npos && At < Content.size();
         At = Content.find_first_of("+~/-", At + 1)) {
        if (Content[At] == '~')
            Notes = Ornament(In.S, Notes);
        else if (Content.compare(At, 2, "/3") == 0)
            Below = true;
        else
            Up += std::stoi(Content.substr(At));
    }
    for (WrittenNote Note : Notes) {
        const PlacedChord& C = ChordAt(In.Result, Start + Note.Start);
        if (Below)
            Note.Key =
                HarmonyBelow(Key, C.Symbol, Note.Key + Entry.Up, Note.Ticks <= In.S.UnitTicks) -
                Entry.Up;
        const Role As = !Name.starts_with("melody") || Below ? Role::Counter : Role::Melody;
        In.Result.Notes.push_back({PartIndex, Note.Key + Up, Start + Note.Start, Note.Ticks, As,
                                   Entry.Loudness, Note.Grace, Note.EndsPhrase,
                                   C.Symbol.Start + C.Symbol.Ticks});
    }
}

int FigureKey(const PlacedChord& C, char Voice)
{
    if (Voice == 'b') return C.Bass;
    if (Voice == 'B') return C.Bass - 12;
    if (Voice == 'o') return C.Bass + 12;
    if (Voice == 'f') {
        for (int Above : {7, 8, 6, 9, 5})
            if (InChord(C.Symbol, C.Bass + Above)) return C.Bass + Above;
        return C.Bass + 12;
    }
    const int Index = Voice - '1', Count = static_cast<int>(C.Voices.size());
    return C.Voices[Index % Count] + 12 * (Index / Count);
}

// A tone held over a change of chord moves on with its voice, or stays if the voice does.
void PlaceTone(Placing& In, int PartIndex, const FormEntry& Entry, const FigureTone& Tone,
               int Start, int Up)
{
    const Instrument& Plays = *In.S.Parts[PartIndex].Plays;
    int Now = Start, Left = Tone.Ticks;
    int Last = -1;
    while (Left > 0) {
        const PlacedChord& C = ChordAt(In.Result, Now);
        const int ChordEnd = C.Symbol.Start + C.Symbol.Ticks;
        const int Ticks = Tone.Voice == 'x' ? Left : std::min(Left, ChordEnd - Now);
        if (Ticks <= 0) return;
        int Key = Plays.Lowest;
        bool Silent = false;
        if (Tone.Voice != 'x') {
            Silent = C.Symbol.Tones.empty();
            if (!Silent) Key = FigureKey(C, Tone.Voice) + Up;
            // A figure stays under the melody.
            const int Floor = LowestMelody(In.MelodyFloor, Now, Ticks);
            while (!Silent && Key > Floor) Key -= 12;
            while (!Silent && Key < Plays.Lowest && Key + 12 <= Floor) Key += 12;
            Silent = Silent || Key < Plays.Lowest || Key > Plays.Highest;
        }
        if (!Silent && Last >= 0 && In.Result.Notes[Last].Key == Key) {
            In.Result.Notes[Last].Ticks += Ticks;
            In.Result.Notes[Last].ChordEnd = ChordEnd;
        } else if (!Silent) {
            Last = static_cast<int>(In.Result.Notes.size());
            In.Result.Notes.push_back(
                {PartIndex, Key, Now, Ticks, Role::Figure, Entry.Loudness, false, false, ChordEnd});
        }
        Now += Ticks;
        Left -= Ticks;
    }
}

void PlaceFigure(Placing& In, int PartIndex, const FormEntry& Entry, int Start, int End,
                 const std::string& Content)
{
    const auto NameEnd = Content.find_first_of("+-");
    const Figure& F = In.S.Figures.at(Content.substr(0, NameEnd));
    const int Up = NameEnd == std::string::npos ? 0 : std::stoi(Content.substr(NameEnd));
    for (int Round = Start; Round < End; Round += F.Ticks)
        for (FigureTone Tone : F.Tones) {
            if (Round + Tone.Start >= End) break;
            Tone.Ticks = std::min(Tone.Ticks, End - Round - Tone.Start);
            PlaceTone(In, PartIndex, Entry, Tone, Round + Tone.Start, Up);
        }
}

void PlaceChords(Placing& In)
{
    for (const FormEntry& Entry : In.S.Form) {
        const Section& At = In.S.Sections.at(Entry.SectionName);
        for (Chord C : At.Chords.at(Entry.Chords)) {
            for (int& Tone : C.Tones) Tone = (Tone + Entry.Up + 12) % 12;
            C.Root = (C.Root + Entry.Up + 12) % 12;
            C.Bass = (C.Bass + Entry.Up + 12) % 12;
            if (C.Third >= 0) C.Third = (C.Third + Entry.Up + 12) % 12;
            C.Start += In.Result.Ticks;
            In.Result.Chords.push_back({C, 0, {}, 0});
        }
        In.Result.Sections.push_back({In.Result.Ticks, At.Ticks, Entry.TempoPercent, Entry.Rit});
        In.Result.Ticks += At.Ticks;
    }
}

template <typename Place> void ForEachContent(const Placing& In, Place&& Call)
{
    for (std::size_t I = 0; I < In.S.Form.size(); ++I) {
        const FormEntry& Entry = In.S.Form[I];
        const PlacedSection& At = In.Result.Sections[I];
        for (std::size_t P = 0; P < In.S.Parts.size(); ++P) {
            const std::string Content = ContentOf(In.S, Entry, In.S.Parts[P]);
            const std::string Name = Content.substr(0, Content.find_first_of("+~/-"));
            const bool IsLine = In.S.Sections.at(Entry.SectionName).Lines.contains(Name);
            if (Content != "-") Call(static_cast<int>(P), Entry, At, Content, IsLine);
        }
    }
}

void NoteMelody(Placing& In)
{
    Arrangement& Result = In.Result;
    In.MelodyFloor.assign(Result.Ticks / FloorTicks + 1, SilentMelody);
    // Where the melody is doubled, its upper line counts.
    std::vector<int> Top(In.MelodyFloor.size(), 0);
    for (const ArrangedNote& Note : Result.Notes) {
        if (Note.As != Role::Melody || Note.Grace) continue;
        for (int I = Note.Start / FloorTicks; I < (Note.Start + Note.Ticks) / FloorTicks; ++I)
            Top[I] = std::max(Top[I], Note.Key);
        if (Note.EndsPhrase) Result.PhraseEnds.push_back(Note.Start + Note.Ticks);
    }
    for (std::size_t I = 0; I < Top.size(); ++I)
        if (Top[I] > 0) In.MelodyFloor[I] = Top[I];
    for (PlacedChord& C : Result.Chords) C.MelodyAtStart = Top[C.Symbol.Start / FloorTicks];
    std::sort(Result.PhraseEnds.begin(), Result.PhraseEnds.end());
    Result.PhraseEnds.erase(std::unique(Result.PhraseEnds.begin(), Result.PhraseEnds.end()),
                            Result.PhraseEnds.end());
}

} // namespace

int LowestMelody(const std::vector<int>& MelodyFloor, int Start, int Ticks)
{
    int Lowest = SilentMelody;
    for (int I = Start / FloorTicks; I < (Start + Ticks) / FloorTicks; ++I)
        Lowest = std::min(Lowest, MelodyFloor[I]);
    return Lowest;
}

Arrangement Arrange(const Score& From)
{
    Placing In{From, {}, {}};
    PlaceChords(In);
    ForEachContent(In, [&](int Part, const FormEntry& Entry, const PlacedSection& At,
                           const std::string& Content, bool IsLine) {
        if (IsLine) PlaceLine(In, Part, Entry, At.Start, Content);
    });
    NoteMelody(In);
    VoiceChords(From, In.Result, In.MelodyFloor);
    ForEachContent(In, [&](int Part, const FormEntry& Entry, const PlacedSection& At,
                           const std::string& Content, bool IsLine) {
        if (!IsLine) PlaceFigure(In, Part, Entry, At.Start, At.Start + At.Ticks, Content);
    });
    std::sort(In.Result.Notes.begin(), In.Result.Notes.end(),
              [](const ArrangedNote& A, const ArrangedNote& B) {
                  return std::tie(A.Start, B.Grace, A.Part, A.Key, A.Ticks) <
                         std::tie(B.Start, A.Grace, B.Part, B.Key, B.Ticks);
              });
    return In.Result;
}
