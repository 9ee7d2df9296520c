// The rules of good setting, asked of every score.
#include "arrange.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace
{

struct Piece {
    Score Written;
    Arrangement Played;
};

const std::vector<Piece>& AllPieces()
{
    static const std::vector<Piece> Pieces = [] {
        std::vector<std::string> Paths;
        for (const auto& Entry : std::filesystem::directory_iterator(SCORES))
            Paths.push_back(Entry.path().string());
        std::sort(Paths.begin(), Paths.end());
        std::vector<Piece> Result;
        for (const std::string& Path : Paths) {
            Score Written = ReadScore(Path);
            Arrangement Played = Arrange(Written);
            Result.push_back({Written, Played});
        }
        return Result;
    }();
    return Pieces;
}

bool IsDrum(const Instrument& Plays)
{
    return Plays.Lowest == Plays.Highest;
}

std::string Place(const Piece& P, const ArrangedNote& Note)
{
    return P.Written.File + ": " + P.Written.Parts[Note.Part].Name + " in bar " +
           std::to_string(Note.Start / P.Written.BarTicks + 1) + ", key " +
           std::to_string(Note.Key);
}

const PlacedChord& ChordAt(const Piece& P, int Tick)
{
    std::size_t I = 0;
    while (I + 1 < P.Played.Chords.size() && P.Played.Chords[I + 1].Symbol.Start <= Tick) ++I;
    return P.Played.Chords[I];
}

// Where the melody is doubled, its upper line is the melody.
std::vector<ArrangedNote> UpperMelody(const Piece& P)
{
    std::vector<ArrangedNote> Result;
    for (const ArrangedNote& Note : P.Played.Notes) {
        if (Note.As != Role::Melody || Note.Grace) continue;
        if (!Result.empty() && Result.back().Start == Note.Start) {
            if (Note.Key > Result.back().Key) Result.back() = Note;
        } else {
            Result.push_back(Note);
        }
    }
    return Result;
}

// Steps and lengths, so that a transposed melody is still the same one.
std::vector<std::pair<int, int>> MelodyShape(const Piece& P)
{
    const std::vector<ArrangedNote> Notes = UpperMelody(P);
    std::vector<std::pair<int, int>> Result;
    for (std::size_t I = 1; I < Notes.size(); ++I)
        Result.push_back({Notes[I].Key - Notes[I - 1].Key,
                          100 * (Notes[I].Start - Notes[I - 1].Start) / P.Written.BeatTicks});
    return Result;
}

} // namespace

TEST(Scores, EveryPartStaysInTheRangeOfItsInstrument)
{
    for (const Piece& P : AllPieces())
        for (const ArrangedNote& Note : P.Played.Notes) {
            const Instrument& Plays = *P.Written.Parts[Note.Part].Plays;
            EXPECT_TRUE(Note.Key >= Plays.Lowest && Note.Key <= Plays.Highest) << Place(P, Note);
        }
}

TEST(Scores, NoVoiceCrossesTheMelody)
{
    for (const Piece& P : AllPieces()) {
        const std::vector<ArrangedNote> Melody = UpperMelody(P);
        for (const ArrangedNote& Note : P.Played.Notes) {
            if (Note.As == Role::Melody || Note.Grace) continue;
            if (IsDrum(*P.Written.Parts[Note.Part].Plays)) continue;
            for (const ArrangedNote& Above : Melody) {
                if (Above.Start >= Note.Start + Note.Ticks) break;
                if (Above.Start + Above.Ticks <= Note.Start) continue;
                EXPECT_LE(Note.Key, Above.Key) << Place(P, Note);
            }
        }
    }
}

TEST(Scores, TheBassLiesUnderTheVoices)
{
    for (const Piece& P : AllPieces())
        for (const PlacedChord& C : P.Played.Chords)
            EXPECT_TRUE(C.Voices.empty() || C.Bass <= C.Voices.front())
                << P.Written.File << ": " << C.Symbol.Name << " in bar "
                << C.Symbol.Start / P.Written.BarTicks + 1;
}

TEST(Scores, PhrasesEndOnTonesOfTheirChord)
{
    for (const Piece& P : AllPieces())
        for (const ArrangedNote& Note : P.Played.Notes) {
            if (Note.As != Role::Melody || !Note.EndsPhrase) continue;
            const Chord& Under = ChordAt(P, Note.Start + Note.Ticks - 1).Symbol;
            EXPECT_TRUE(std::count(Under.Tones.begin(), Under.Tones.end(), Note.Key % 12))
                << Place(P, Note) << " over " << Under.Name;
        }
}

TEST(Scores, PiecesCloseAtHome)
{
    for (const Piece& P : AllPieces()) {
        const Chord& Last = P.Played.Chords.back().Symbol;
        EXPECT_EQ(Last.Root, P.Written.Key.Tonic) << P.Written.File;
        const std::vector<ArrangedNote> Melody = UpperMelody(P);
        ASSERT_FALSE(Melody.empty()) << P.Written.File;
        const int Above = (Melody.back().Key - Last.Root + 144) % 12;
        EXPECT_TRUE(Above == 0 || Above == 3 || Above == 4 || Above == 7) << P.Written.File;
    }
}

// Two outer voices that move in step lose one of them. A few are heard as colour.
TEST(Scores, ParallelFifthsAndOctavesAreRare)
{
    for (const Piece& P : AllPieces()) {
        int Parallels = 0, Changes = 0;
        std::string Places;
        for (std::size_t I = 1; I < P.Played.Chords.size(); ++I) {
            const PlacedChord &From = P.Played.Chords[I - 1], &To = P.Played.Chords[I];
            std::vector<int> Before = From.Voices, After = To.Voices;
            if (Before.size() != After.size() || Before.empty()) continue;
            Before.push_back(From.Bass);
            After.push_back(To.Bass);
            if (From.MelodyAtStart > 0 && To.MelodyAtStart > 0) {
                Before.push_back(From.MelodyAtStart);
                After.push_back(To.MelodyAtStart);
            }
            ++Changes;
            for (std::size_t Low = 0; Low < Before.size(); ++Low)
                for (std::size_t High = Low + 1; High < Before.size(); ++High) {
                    if (!IsParallel(Before[Low], Before[High], After[Low], After[High])) continue;
                    ++Parallels;
                    Places += "\nbar " + std::to_string(To.Symbol.Start / P.Written.BarTicks + 1) +
                              " " + From.Symbol.Name + " - " + To.Symbol.Name + ": " +
                              std::to_string(Before[Low]) + " " + std::to_string(Before[High]) +
                              " to " + std::to_string(After[Low]) + " " +
                              std::to_string(After[High]);
                }
        }
        RecordProperty("parallels_" + std::to_string(P.Written.Track), Parallels);
        EXPECT_LE(Parallels, 1 + Changes / 25)
            << P.Written.File << ": in " << Changes << " changes" << Places;
    }
}

TEST(Scores, ASectionReturnsAfterAContrast)
{
    for (const Piece& P : AllPieces()) {
        std::map<std::string, int> LastSeen;
        bool Returns = false;
        for (int I = 0; I < static_cast<int>(P.Written.Form.size()); ++I) {
            const std::string& Name = P.Written.Form[I].SectionName;
            if (LastSeen.contains(Name) && I - LastSeen[Name] > 1) Returns = true;
            LastSeen[Name] = I;
        }
        EXPECT_TRUE(Returns) << P.Written.File;
    }
}

TEST(Scores, NoTwoShareAMelody)
{
    constexpr std::size_t TooLong = 9; // tones in a row; less is common stock
    std::map<std::vector<std::pair<int, int>>, std::string> Seen;
    for (const Piece& P : AllPieces()) {
        const auto Shape = MelodyShape(P);
        std::map<std::vector<std::pair<int, int>>, std::string> Own;
        for (std::size_t I = 0; I + TooLong <= Shape.size(); ++I) {
            const std::vector<std::pair<int, int>> Run(Shape.begin() + I,
                                                       Shape.begin() + I + TooLong);
            EXPECT_FALSE(Seen.contains(Run)) << P.Written.File << " and " << Seen[Run];
            Own.emplace(Run, P.Written.File);
        }
        Seen.merge(Own);
    }
}

TEST(Scores, NoTwoShareEnsembleAndKey)
{
    std::map<std::pair<std::set<std::string>, std::string>, std::string> Seen;
    for (const Piece& P : AllPieces()) {
        std::set<std::string> Ensemble;
        for (const Part& Q : P.Written.Parts) Ensemble.insert(Q.Plays->Name);
        const auto [Other, New] =
            Seen.emplace(std::pair{Ensemble, P.Written.Key.Name}, P.Written.File);
        EXPECT_TRUE(New) << P.Written.File << " and " << Other->second;
    }
}

TEST(Scores, ThirtyTracksAreNumberedWithoutGapsAndTitled)
{
    std::set<std::string> Titles;
    int Track = 0;
    for (const Piece& P : AllPieces()) {
        EXPECT_EQ(P.Written.Track, ++Track);
        EXPECT_TRUE(Titles.insert(P.Written.Title).second) << P.Written.Title;
    }
    EXPECT_EQ(Track, 30);
}

TEST(Scores, CharactersAreManifold)
{
    std::set<std::string> Scales, Instruments;
    std::set<int> Beats;
    double Slowest = 999, Fastest = 0;
    for (const Piece& P : AllPieces()) {
        const std::string& Key = P.Written.Key.Name;
        Scales.insert(Key.substr(Key.find(' ') + 1));
        for (const Part& Q : P.Written.Parts) Instruments.insert(Q.Plays->Name);
        // Bars of eighths are counted in eighths.
        const bool Eighths =
            P.Written.BeatTicks != TicksPerQuarter || P.Written.BarTicks % TicksPerQuarter != 0;
        Beats.insert(P.Written.BarTicks / (Eighths ? TicksPerQuarter / 2 : TicksPerQuarter));
        Slowest = std::min(Slowest, P.Written.BeatsPerMinute);
        Fastest = std::max(Fastest, P.Written.BeatsPerMinute);
    }
    EXPECT_EQ(Beats, (std::set<int>{3, 4, 5, 6, 7}));
    EXPECT_GE(Scales.size(), 12u);
    EXPECT_GE(Instruments.size(), 30u);
    EXPECT_GE(Slowest, 50);
    EXPECT_LE(Slowest, 55);
    EXPECT_GE(Fastest, 120);
    EXPECT_LE(Fastest, 130);
}
