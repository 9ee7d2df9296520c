#include "arrange.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

namespace
{

struct Voicing {
    int Bass;
    std::vector<int> Voices;
    int OwnCost;      // how good it is by itself
    int BestCost = 0; // of the cheapest way to here
    int From = -1;    // the voicing before on that way
};

bool Holds(const std::vector<int>& Tones, int Key)
{
    return std::find(Tones.begin(), Tones.end(), Key % 12) != Tones.end();
}

int CostAlone(const Score& S, const Chord& C, const Voicing& V, int Floor)
{
    int Cost = 0;
    if (C.Third >= 0) {
        const auto Thirds = std::count_if(V.Voices.begin(), V.Voices.end(),
                                          [&](int Key) { return Key % 12 == C.Third; });
        if (Thirds == 0 && C.Bass != C.Third) Cost += 12;
        if (Thirds > 1) Cost += 4;
    }
    for (std::size_t I = 0; I < C.Tones.size(); ++I) {
        const bool Heard = V.Bass % 12 == C.Tones[I] ||
                           std::any_of(V.Voices.begin(), V.Voices.end(),
                                       [&](int Key) { return Key % 12 == C.Tones[I]; });
        if (!Heard) Cost += I == 2 ? 2 : 6; // the fifth is missed least
    }
    for (std::size_t I = 1; I < V.Voices.size(); ++I) {
        const int Gap = V.Voices[I] - V.Voices[I - 1];
        if (Gap > 12) Cost += 6;
        if (Gap < 3) Cost += Gap == 1 ? 4 : 1;
        if (V.Voices[I - 1] < 48 && Gap < 7) Cost += 4; // low and close is muddy
    }
    if (V.Voices.front() - V.Bass < 3) Cost += 8;
    if (V.Voices.front() < V.Bass) Cost += 60;
    if (V.Voices.back() > Floor) Cost += 20;
    if (V.Voices.back() == Floor) Cost += 3;
    const int Middle = (V.Voices.front() + V.Voices.back()) / 2;
    Cost += std::abs(Middle - (S.VoicesLowest + S.VoicesHighest) / 2) / 2;
    Cost += std::abs(V.Bass - (S.BassLowest + 7)) / 4;
    return Cost;
}

std::vector<Voicing> PossibleVoicings(const Score& S, const PlacedChord& P, int Floor)
{
    const Chord& C = P.Symbol;
    std::vector<int> Keys;
    for (int Key = S.VoicesLowest; Key <= S.VoicesHighest; ++Key)
        if (Holds(C.Tones, Key)) Keys.push_back(Key);
    const int Count = std::min(S.Voices, static_cast<int>(Keys.size()));
    if (Count == 0)
        throw std::runtime_error(S.File + ": no tone of " + C.Name + " is in the voicing");
    std::vector<Voicing> Result;
    std::vector<bool> Chosen(Keys.size());
    std::fill(Chosen.begin(), Chosen.begin() + Count, true);
    do {
        Voicing V;
        for (std::size_t I = 0; I < Keys.size(); ++I)
            if (Chosen[I]) V.Voices.push_back(Keys[I]);
        for (V.Bass = S.BassLowest; V.Bass <= S.BassLowest + 17; ++V.Bass) {
            if (V.Bass % 12 != C.Bass) continue;
            V.OwnCost = CostAlone(S, C, V, Floor);
            Result.push_back(V);
        }
    } while (std::prev_permutation(Chosen.begin(), Chosen.end()));
    return Result;
}

int CostOfMove(const Voicing& From, int MelodyFrom, const Voicing& To, int MelodyTo)
{
    int Cost = std::abs(To.Bass - From.Bass) / 3;
    std::vector<int> Before = From.Voices, After = To.Voices;
    for (std::size_t I = 0; I < std::min(Before.size(), After.size()); ++I) {
        const int Way = std::abs(After[I] - Before[I]);
        Cost += Way + (Way > 5 ? 4 : 0);
    }
    Before.insert(Before.begin(), From.Bass);
    After.insert(After.begin(), To.Bass);
    if (Before.size() != After.size()) return Cost;
    if (MelodyFrom > 0 && MelodyTo > 0) {
        Before.push_back(MelodyFrom);
        After.push_back(MelodyTo);
    }
    for (std::size_t Low = 0; Low < Before.size(); ++Low)
        for (std::size_t High = Low + 1; High < Before.size(); ++High)
            if (IsParallel(Before[Low], Before[High], After[Low], After[High])) Cost += 30;
    return Cost;
}

} // namespace

bool IsParallel(int LowFrom, int HighFrom, int LowTo, int HighTo)
{
    const int Interval = std::abs(HighFrom - LowFrom) % 12;
    if (Interval != 7 && Interval != 0) return false;
    if (std::abs(HighTo - LowTo) % 12 != Interval) return false;
    // Against each other is no parallel, and a leap of an octave is the same tone again.
    return (LowTo - LowFrom) * (HighTo - HighFrom) > 0 && (LowTo - LowFrom) % 12 != 0;
}

void VoiceChords(const Score& From, Arrangement& Result, const std::vector<int>& MelodyFloor)
{
    // The cheapest way through all chords of the piece, as a musician would look for it.
    std::vector<PlacedChord*> Sounding;
    for (PlacedChord& P : Result.Chords)
        if (!P.Symbol.Tones.empty()) Sounding.push_back(&P);
    std::vector<std::vector<Voicing>> Ways;
    for (std::size_t I = 0; I < Sounding.size(); ++I) {
        const PlacedChord& P = *Sounding[I];
        Ways.push_back(
            PossibleVoicings(From, P, LowestMelody(MelodyFloor, P.Symbol.Start, P.Symbol.Ticks)));
        for (Voicing& To : Ways[I]) {
            if (I == 0) {
                To.BestCost = To.OwnCost;
                continue;
            }
            for (std::size_t J = 0; J < Ways[I - 1].size(); ++J) {
                const Voicing& Before = Ways[I - 1][J];
                const int Cost =
                    Before.BestCost + To.OwnCost +
                    CostOfMove(Before, Sounding[I - 1]->MelodyAtStart, To, P.MelodyAtStart);
                if (To.From >= 0 && Cost >= To.BestCost) continue;
                To.BestCost = Cost;
                To.From = static_cast<int>(J);
            }
        }
    }
    if (Ways.empty()) return;
    const auto Cheaper = [](const Voicing& A, const Voicing& B) { return A.BestCost < B.BestCost; };
    auto At =
        std::min_element(Ways.back().begin(), Ways.back().end(), Cheaper) - Ways.back().begin();
    for (std::size_t I = Ways.size(); I-- > 0; At = Ways[I][At].From) {
        Sounding[I]->Bass = Ways[I][At].Bass;
        Sounding[I]->Voices = Ways[I][At].Voices;
    }
}
