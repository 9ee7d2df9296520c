// make-effects OUTDIR RECIPES: synthesises the effects and writes OUTDIR/DATA/FXnnnn, 16-bit WAV.
// The form of the recipes is told at their head.
#include "sound.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <numbers>
#include <sstream>
#include <stdexcept>
#include <string>

namespace
{

constexpr double Pi = std::numbers::pi;
constexpr double Ceiling = -1.5;               // dB
constexpr double Shortest = 0.05, Longest = 2; // seconds

struct Mode {
    double Ratio, Gain, Decay;
};

struct Material {
    std::vector<Mode> Modes;
    double KnockGain = 0, KnockDecay = 0, KnockBand = 0;
};

struct Effect {
    int Number = 0;
    std::string Word;
    double Seconds = 0, Level = 0;
    Stereo Sound;
    Dice Chance{};
};

struct Recipes {
    std::map<std::string, Material> Materials;
    std::vector<Effect> Effects;
};

// A band of noise: a resonator that lets pass what is near its frequency
struct Band {
    double Y1 = 0, Y2 = 0;
};

double PassBand(Band& B, double In, double Frequency, double Width)
{
    const double R = std::exp(-Pi * Width / SampleRate);
    const double Out =
        (1 - R) * In + 2 * R * std::cos(2 * Pi * Frequency / SampleRate) * B.Y1 - R * R * B.Y2;
    B.Y2 = B.Y1;
    B.Y1 = Out;
    return Out;
}

void Add(Stereo& Sound, std::size_t At, double Sample, double Pan)
{
    if (At >= Sound.Left.size()) return;
    Sound.Left[At] += static_cast<float>(Sample * std::cos((Pan + 1) * Pi / 4));
    Sound.Right[At] += static_cast<float>(Sample * std::sin((Pan + 1) * Pi / 4));
}

void Strike(Effect& Into, const Material& What, double At, double Pitch, double Gain, double Pan)
{
    const auto Start = static_cast<std::size_t>(At * SampleRate);
    for (const Mode& M : What.Modes) {
        const double Frequency = Pitch * M.Ratio;
        if (Frequency > 16000) continue;
        // A blow has a width: it takes half a millisecond until the tone is there.
        const double Phase = 2 * Pi * Roll(Into.Chance);
        for (std::size_t I = 0; I < Into.Sound.Left.size() - Start; ++I) {
            const double Time = double(I) / SampleRate;
            const double Level = std::exp(-6.9 * Time / M.Decay) * (1 - std::exp(-Time / 0.0005));
            if (Time > M.Decay * 1.5) break;
            Add(Into.Sound, Start + I,
                Gain * M.Gain * Level * std::sin(2 * Pi * Frequency * Time + Phase), Pan);
        }
    }
    Band Noise;
    for (std::size_t I = 0; I < What.KnockDecay * 2 * SampleRate; ++I) {
        const double Level = std::exp(-6.9 * (double(I) / SampleRate) / What.KnockDecay);
        const double Blow =
            PassBand(Noise, RollAround(Into.Chance), What.KnockBand, What.KnockBand);
        Add(Into.Sound, Start + I, 4 * Gain * What.KnockGain * Level * Blow, Pan);
    }
}

void Brush(Effect& Into, double From, double To, double BandFrom, double BandTo, double Gain)
{
    Band Left, Right;
    const auto Count = static_cast<std::size_t>((To - From) * SampleRate);
    for (std::size_t I = 0; I < Count; ++I) {
        const double Place = double(I) / Count, Middle = BandFrom + (BandTo - BandFrom) * Place;
        const double Level = 6 * Gain * std::pow(std::sin(Pi * std::pow(Place, 0.8)), 2);
        const auto At = static_cast<std::size_t>(From * SampleRate) + I;
        Add(Into.Sound, At, Level * PassBand(Left, RollAround(Into.Chance), Middle, Middle / 2),
            -0.6);
        Add(Into.Sound, At, Level * PassBand(Right, RollAround(Into.Chance), Middle, Middle / 2),
            0.6);
    }
}

// One line of a recipe, taken word by word
struct Row {
    std::string Where;
    std::istringstream Rest;
};

[[noreturn]] void Fail(const Row& In, const std::string& Rule)
{
    throw std::runtime_error(In.Where + ": " + Rule);
}

double Number(Row& In, const std::string& Label)
{
    std::string Word;
    double Value = 0;
    if (!Label.empty() && (!(In.Rest >> Word) || Word != Label))
        Fail(In, "expected the word " + Label);
    if (!(In.Rest >> Value))
        Fail(In, "expected a number after " + (Label.empty() ? "the word" : Label));
    return Value;
}

const Material& NamedMaterial(Row& In, const Recipes& All)
{
    std::string Name;
    In.Rest >> Name;
    const auto Found = All.Materials.find(Name);
    if (Found == All.Materials.end()) Fail(In, "there is no material " + Name);
    return Found->second;
}

void ReadScatter(Row& In, const Recipes& All, Effect& Into)
{
    const Material& What = NamedMaterial(In, All);
    const double From = Number(In, "from"), To = Number(In, "to");
    const int Count = static_cast<int>(Number(In, "count"));
    const double PitchFrom = Number(In, "pitch"), PitchTo = Number(In, "to");
    const double GainFrom = Number(In, "gain"), GainTo = Number(In, "to");
    for (int I = 0; I < Count; ++I) {
        const double Place = Roll(Into.Chance);
        const double Pitch = PitchFrom * std::pow(PitchTo / PitchFrom, Roll(Into.Chance));
        const double Gain = GainFrom + (GainTo - GainFrom) * std::pow(Roll(Into.Chance), 2);
        Strike(Into, What, From + (To - From) * std::pow(Place, 1.2), Pitch, Gain,
               1.4 * Roll(Into.Chance) - 0.7);
    }
}

void ReadEffectRow(Row& In, const std::string& Kind, const Recipes& All, Effect& Into)
{
    if (Kind == "seconds") {
        Into.Seconds = Number(In, "");
        if (Into.Seconds < Shortest || Into.Seconds > Longest)
            Fail(In, "an effect lasts 0.05 to 2 s");
        Into.Sound.Left.resize(static_cast<std::size_t>(Into.Seconds * SampleRate));
        Into.Sound.Right = Into.Sound.Left;
    } else if (Kind == "level") {
        Into.Level = Number(In, "");
    } else if (Into.Seconds == 0) {
        Fail(In, "the seconds of an effect come first");
    } else if (Kind == "strike") {
        const Material& What = NamedMaterial(In, All);
        const double At = Number(In, "at"), Pitch = Number(In, "pitch"), Gain = Number(In, "gain");
        if (At >= Into.Seconds) Fail(In, "the strike comes after the end");
        Strike(Into, What, At, Pitch, Gain, Number(In, "pan"));
    } else if (Kind == "scatter") {
        ReadScatter(In, All, Into);
    } else if (Kind == "brush") {
        const double From = Number(In, "from"), To = Number(In, "to");
        const double BandFrom = Number(In, "band"), BandTo = Number(In, "to");
        Brush(Into, From, To, BandFrom, BandTo, Number(In, "gain"));
    } else {
        Fail(In, "an effect has no line " + Kind);
    }
}

void ReadMaterialRow(Row& In, const std::string& Kind, Material& Into)
{
    if (Kind == "mode") {
        const double Ratio = Number(In, ""), Gain = Number(In, ""), Decay = Number(In, "");
        Into.Modes.push_back({Ratio, Gain, Decay});
    } else if (Kind == "knock") {
        Into.KnockGain = Number(In, "");
        Into.KnockDecay = Number(In, "");
        Into.KnockBand = Number(In, "");
    } else {
        Fail(In, "a material has no line " + Kind);
    }
}

Recipes ReadRecipes(const std::string& Path)
{
    std::ifstream File(Path);
    if (!File) throw std::runtime_error("cannot read " + Path);
    Recipes All;
    Material* Stuff = nullptr;
    int LineNumber = 0;
    for (std::string Text; std::getline(File, Text);) {
        Row In{Path + ":" + std::to_string(++LineNumber), std::istringstream(Text)};
        std::string Kind, Name;
        if (!(In.Rest >> Kind) || Kind[0] == '#') continue;
        if (Kind == "material") {
            In.Rest >> Name;
            Stuff = &All.Materials[Name];
        } else if (Kind == "effect") {
            Stuff = nullptr;
            Effect Next;
            Next.Number = static_cast<int>(Number(In, ""));
            Next.Chance.State = static_cast<unsigned long long>(Next.Number);
            In.Rest >> Next.Word;
            All.Effects.push_back(Next);
        } else if (Stuff) {
            ReadMaterialRow(In, Kind, *Stuff);
        } else if (!All.Effects.empty()) {
            ReadEffectRow(In, Kind, All, All.Effects.back());
        } else {
            Fail(In, "a recipe begins with material or effect");
        }
    }
    return All;
}

void AppendNumber(std::string& Bytes, std::uint32_t Value, int Size)
{
    for (int I = 0; I < Size; ++I) Bytes += static_cast<char>(Value >> (8 * I) & 255);
}

std::string WavBytes(const Stereo& Sound)
{
    const auto DataSize = static_cast<std::uint32_t>(Sound.Left.size() * 4);
    std::string Bytes = "RIFF";
    AppendNumber(Bytes, 36 + DataSize, 4);
    Bytes += "WAVEfmt ";
    AppendNumber(Bytes, 16, 4); // size of this part
    AppendNumber(Bytes, 1, 2);  // plain samples
    AppendNumber(Bytes, 2, 2);  // channels
    AppendNumber(Bytes, SampleRate, 4);
    AppendNumber(Bytes, SampleRate * 4, 4); // bytes a second
    AppendNumber(Bytes, 4, 2);              // bytes a sample of both channels
    AppendNumber(Bytes, 16, 2);             // bits
    Bytes += "data";
    AppendNumber(Bytes, DataSize, 4);
    for (std::size_t I = 0; I < Sound.Left.size(); ++I)
        for (float Sample : {Sound.Left[I], Sound.Right[I]})
            AppendNumber(Bytes, static_cast<std::uint32_t>(std::lround(Sample * 32767)), 2);
    return Bytes;
}

void Write(Effect& E, const std::filesystem::path& OutDir)
{
    Fade(E.Sound, 0.0005, std::min(0.25, E.Seconds / 3));
    for (int Round = 0; Round < 3; ++Round) {
        Amplify(E.Sound, E.Level - LoudestMoment(E.Sound));
        Limit(E.Sound, Ceiling);
    }
    char Name[16];
    std::snprintf(Name, sizeof Name, "FX%04d", E.Number);
    std::filesystem::create_directories(OutDir / "DATA");
    std::ofstream File(OutDir / "DATA" / Name, std::ios::binary);
    if (!(File << WavBytes(E.Sound)).flush())
        throw std::runtime_error("cannot write " + (OutDir / "DATA" / Name).string());
    std::printf("%s %-8s %4.2f s %6.1f LUFS at the loudest %5.1f dB peak\n", Name, E.Word.c_str(),
                E.Seconds, LoudestMoment(E.Sound), TruePeak(E.Sound));
}

} // namespace

int main(int Count, char** Arguments)
{
    if (Count != 3) {
        std::fprintf(stderr, "make-effects OUTDIR RECIPES\n");
        return 1;
    }
    try {
        Recipes All = ReadRecipes(Arguments[2]);
        for (Effect& E : All.Effects) Write(E, Arguments[1]);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "make-effects: %s\n", Error.what());
        return 1;
    }
}
