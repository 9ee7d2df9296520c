#include "sound.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace
{

constexpr double Pi = std::numbers::pi;

struct Biquad {
    double B0, B1, B2, A1, A2;
    double Z1 = 0, Z2 = 0;
};

double Filter(Biquad& F, double In)
{
    const double Out = F.B0 * In + F.Z1;
    F.Z1 = F.B1 * In - F.A1 * Out + F.Z2;
    F.Z2 = F.B2 * In - F.A2 * Out;
    return Out;
}

// The two filters of the loudness weighting, in the analogue form of BS.1770 brought to our rate.
Biquad HeadShelf()
{
    constexpr double Frequency = 1681.974450955533, Gain = 3.999843853973347,
                     Q = 0.7071752369554196;
    const double K = std::tan(Pi * Frequency / SampleRate);
    const double Vh = std::pow(10.0, Gain / 20), Vb = std::pow(Vh, 0.4996667741545416);
    const double A0 = 1 + K / Q + K * K;
    return {(Vh + Vb * K / Q + K * K) / A0, 2 * (K * K - Vh) / A0, (Vh - Vb * K / Q + K * K) / A0,
            2 * (K * K - 1) / A0, (1 - K / Q + K * K) / A0};
}

Biquad LowCut()
{
    constexpr double Frequency = 38.13547087602444, Q = 0.5003270373238773;
    const double K = std::tan(Pi * Frequency / SampleRate);
    const double A0 = 1 + K / Q + K * K;
    return {1, -2, 1, 2 * (K * K - 1) / A0, (1 - K / Q + K * K) / A0};
}

// Mean squares of the weighted sound in steps of 100 ms, both channels added.
std::vector<double> WeightedSteps(const Stereo& Sound)
{
    constexpr std::size_t Step = SampleRate / 10;
    std::vector<double> Result((Sound.Left.size() + Step - 1) / Step);
    for (const auto* Channel : {&Sound.Left, &Sound.Right}) {
        Biquad Shelf = HeadShelf(), Cut = LowCut();
        for (std::size_t I = 0; I < Channel->size(); ++I) {
            const double Weighted = Filter(Cut, Filter(Shelf, (*Channel)[I]));
            Result[I / Step] += Weighted * Weighted / Step;
        }
    }
    return Result;
}

// Blocks of 400 ms that overlap by three quarters
std::vector<double> WeightedBlocks(const Stereo& Sound, std::size_t PadSteps)
{
    std::vector<double> Steps = WeightedSteps(Sound), Result;
    Steps.resize(Steps.size() + PadSteps);
    for (std::size_t I = 0; I + 4 <= Steps.size(); ++I)
        Result.push_back((Steps[I] + Steps[I + 1] + Steps[I + 2] + Steps[I + 3]) / 4);
    return Result;
}

double InLufs(double Square)
{
    return Square > 0 ? -0.691 + 10 * std::log10(Square) : -120;
}

double MeanAbove(const std::vector<double>& Blocks, double Gate)
{
    double Sum = 0;
    int Count = 0;
    for (double Block : Blocks)
        if (InLufs(Block) > Gate) Sum += Block, ++Count;
    return Count ? Sum / Count : 0;
}

// Windowed sinc for the three places between two samples
constexpr int TapsPerPhase = 16;
using PhaseTaps = std::array<std::array<double, TapsPerPhase>, 4>;

PhaseTaps MakeTaps()
{
    PhaseTaps Taps{};
    for (int Phase = 0; Phase < 4; ++Phase)
        for (int I = 0; I < TapsPerPhase; ++I) {
            const double X = I - TapsPerPhase / 2 + 1 - Phase / 4.0;
            const double Window = 0.5 + 0.5 * std::cos(Pi * X / (TapsPerPhase / 2 + 0.5));
            Taps[Phase][I] = (X == 0 ? 1 : std::sin(Pi * X) / (Pi * X)) * Window;
        }
    return Taps;
}

// The peak in and after each sample. Quiet stretches are passed over: no peak between samples lies
// far above those around it.
std::vector<float> Peaks(const std::vector<float>& Channel, float QuietBelow)
{
    static const PhaseTaps Taps = MakeTaps();
    std::vector<float> Result(Channel.size());
    for (std::size_t I = 0; I < Channel.size(); ++I) {
        Result[I] = std::fabs(Channel[I]);
        if (I < TapsPerPhase || I + TapsPerPhase >= Channel.size()) continue;
        if (std::max(Result[I], std::fabs(Channel[I + 1])) < QuietBelow) continue;
        for (int Phase = 1; Phase < 4; ++Phase) {
            double Sum = 0;
            for (int T = 0; T < TapsPerPhase; ++T)
                Sum += Taps[Phase][T] * Channel[I + T + 1 - TapsPerPhase / 2];
            Result[I] = std::max(Result[I], static_cast<float>(std::fabs(Sum)));
        }
    }
    return Result;
}

} // namespace

double Roll(Dice& From)
{
    From.State += 0x9e3779b97f4a7c15ULL;
    unsigned long long Z = From.State;
    Z = (Z ^ (Z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    Z = (Z ^ (Z >> 27)) * 0x94d049bb133111ebULL;
    return static_cast<double>((Z ^ (Z >> 31)) >> 11) / 9007199254740992.0;
}

double RollAround(Dice& From)
{
    double Sum = 0;
    for (int I = 0; I < 6; ++I) Sum += Roll(From);
    return (Sum - 3) * std::sqrt(2.0);
}

double Loudness(const Stereo& Sound)
{
    const std::vector<double> Blocks = WeightedBlocks(Sound, 0);
    const double Rough = InLufs(MeanAbove(Blocks, -70));
    return InLufs(MeanAbove(Blocks, std::max(-70.0, Rough - 10)));
}

double LoudestMoment(const Stereo& Sound)
{
    double Loudest = 0;
    for (double Block : WeightedBlocks(Sound, 4)) Loudest = std::max(Loudest, Block);
    return InLufs(Loudest);
}

double TruePeak(const Stereo& Sound)
{
    float Top = 0;
    for (const auto* Channel : {&Sound.Left, &Sound.Right})
        for (float Sample : *Channel) Top = std::max(Top, std::fabs(Sample));
    for (const auto* Channel : {&Sound.Left, &Sound.Right})
        for (float Peak : Peaks(*Channel, Top / 2)) Top = std::max(Top, Peak);
    return Top > 0 ? 20 * std::log10(Top) : -120;
}

void Amplify(Stereo& Sound, double Decibels)
{
    const float Factor = static_cast<float>(std::pow(10.0, Decibels / 20));
    for (auto* Channel : {&Sound.Left, &Sound.Right})
        for (float& Sample : *Channel) Sample *= Factor;
}

void Limit(Stereo& Sound, double Ceiling)
{
    const float Top = static_cast<float>(std::pow(10.0, Ceiling / 20));
    const std::vector<float> Left = Peaks(Sound.Left, Top / 2), Right = Peaks(Sound.Right, Top / 2);
    // A peak asks for its gain 3 ms ahead and lets go over about 150 ms.
    constexpr std::size_t Ahead = SampleRate * 3 / 1000;
    const double LetGo = std::exp(-1.0 / (0.15 * SampleRate));
    std::vector<float> Gain(Left.size(), 1);
    for (std::size_t I = 0; I < Left.size(); ++I) {
        const float Peak = std::max(Left[I], Right[I]);
        if (Peak <= Top) continue;
        for (std::size_t J = I > Ahead ? I - Ahead : 0; J < std::min(I + 2, Gain.size()); ++J) {
            const float Near =
                J + Ahead < I + 1 ? 0 : std::min(1.0f, (J + Ahead - I) / float(Ahead));
            Gain[J] = std::min(Gain[J], 1 + (Top / Peak - 1) * Near);
        }
    }
    double Held = 1;
    for (std::size_t I = 0; I < Gain.size(); ++I) {
        Held = std::min<double>(Gain[I], 1 - (1 - Held) * LetGo);
        Sound.Left[I] *= static_cast<float>(Held);
        Sound.Right[I] *= static_cast<float>(Held);
    }
}

void Fade(Stereo& Sound, double InSeconds, double OutSeconds)
{
    const std::size_t Length = Sound.Left.size();
    const auto Weigh = [&](std::size_t I, double Part) {
        const float Factor = static_cast<float>(0.5 - 0.5 * std::cos(Pi * Part));
        Sound.Left[I] *= Factor;
        Sound.Right[I] *= Factor;
    };
    const auto In = std::min(Length, static_cast<std::size_t>(InSeconds * SampleRate));
    const auto Out = std::min(Length, static_cast<std::size_t>(OutSeconds * SampleRate));
    for (std::size_t I = 0; I < In; ++I) Weigh(I, double(I) / In);
    for (std::size_t I = 0; I < Out; ++I) Weigh(Length - 1 - I, double(I) / Out);
}
