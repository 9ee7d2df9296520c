#include "perform.h"

#include <fluidsynth.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>
#include <stdexcept>

namespace
{

constexpr double LeadIn = 0.05; // seconds before the first note
constexpr double RingOut = 6.0; // seconds after the last one, faded
constexpr int GridTicks = 60;   // the tempo is held for so long

// At the same time notes end first, then controls turn, then notes begin.
enum class Kind { Off, Control, On };

struct Event {
    double Time;
    Kind What;
    int Channel;
    int First, Second; // key and velocity, or controller and value
};

// Where each grid step of the piece begins, in seconds
std::vector<double> TempoMap(const Score& From, const Arrangement& Music)
{
    std::vector<double> Result{LeadIn};
    const double SecondsPerTick = 60 / From.BeatsPerMinute / From.BeatTicks;
    std::size_t S = 0, Phrase = 0;
    int PhraseStart = 0;
    for (int Tick = 0; Tick <= Music.Ticks; Tick += GridTicks) {
        while (S + 1 < Music.Sections.size() && Music.Sections[S + 1].Start <= Tick) ++S;
        while (Phrase < Music.PhraseEnds.size() && Music.PhraseEnds[Phrase] <= Tick)
            PhraseStart = Music.PhraseEnds[Phrase++];
        const PlacedSection& At = Music.Sections[S];
        double Speed = At.TempoPercent / 100.0;
        // A phrase presses on a little and takes its time at the end.
        if (Phrase < Music.PhraseEnds.size()) {
            const double Place =
                double(Tick - PhraseStart) / (Music.PhraseEnds[Phrase] - PhraseStart);
            Speed *= 1 + 0.02 * std::sin(std::numbers::pi * Place);
            if (Place > 0.88) Speed *= 1 - 0.5 * (Place - 0.88);
        }
        const int Left = At.Start + At.Ticks - Tick;
        const bool Last = S + 1 == Music.Sections.size();
        const int SlowOver = From.BarTicks * (Last ? 2 : 1);
        if ((At.Rit || Last) && Left < SlowOver) Speed *= 1 - 0.32 * (SlowOver - Left) / SlowOver;
        Result.push_back(Result.back() + GridTicks * SecondsPerTick / Speed);
    }
    return Result;
}

double TimeOf(const Score& From, const std::vector<double>& Map, int Tick)
{
    // Swing moves the middle of the beat.
    if (From.Swing != 50) {
        const int Beat = From.BeatTicks, InBeat = Tick % Beat, Half = Beat / 2;
        const int Middle = Beat * From.Swing / 100;
        Tick += (InBeat < Half ? InBeat * Middle / Half
                               : Middle + (InBeat - Half) * (Beat - Middle) / Half) -
                InBeat;
    }
    const std::size_t Step = std::min<std::size_t>(Tick / GridTicks, Map.size() - 2);
    const double Part = (Tick - int(Step) * GridTicks) / double(GridTicks);
    return Map[Step] + (Map[Step + 1] - Map[Step]) * Part;
}

int VelocityOf(const Score& From, const Arrangement& Music, const ArrangedNote& Note, Dice& Human)
{
    double Velocity = Note.Loudness == "pp"   ? 50
                      : Note.Loudness == "p"  ? 60
                      : Note.Loudness == "mp" ? 70
                      : Note.Loudness == "mf" ? 80
                                              : 91;
    Velocity += Note.As == Role::Melody ? 10 : Note.As == Role::Counter ? 1 : -10;
    const int InBar = Note.Start % From.BarTicks;
    if (InBar == 0)
        Velocity += 5;
    else if (std::find(From.Accents.begin(), From.Accents.end(), InBar) != From.Accents.end())
        Velocity += 3;
    else if (InBar % From.BeatTicks != 0)
        Velocity -= 3;
    // The arch of the phrase: towards its middle and away from it.
    const auto End = std::upper_bound(Music.PhraseEnds.begin(), Music.PhraseEnds.end(), Note.Start);
    if (End != Music.PhraseEnds.end()) {
        const int Start = End == Music.PhraseEnds.begin() ? 0 : *(End - 1);
        Velocity +=
            7 * std::sin(std::numbers::pi * (Note.Start - Start) / double(*End - Start)) - 3;
    }
    if (Note.EndsPhrase) Velocity -= 4;
    if (Note.Grace) Velocity -= 12;
    Velocity += 2.2 * RollAround(Human);
    return std::clamp(static_cast<int>(std::lround(Velocity)), 20, 118);
}

// A held tone of a wind or string swells and settles; a long one begins to vibrate.
void Swell(std::vector<Event>& Events, int Channel, double On, double Off, bool Leads)
{
    const double Length = Off - On;
    for (double Time = 0; Time < Length; Time += 0.03) {
        const double Place = Time / Length;
        double Level = 112;
        if (Length > 0.7)
            Level = 100 + 20 * std::sin(std::numbers::pi * std::min(1.0, Place * 1.25)) -
                    (Place > 0.8 ? 60 * (Place - 0.8) : 0);
        Events.push_back({On + Time, Kind::Control, Channel, 11, static_cast<int>(Level)});
        const double Vibrato = Leads && Time > 0.35 ? std::min(18.0, 40 * (Time - 0.35)) : 0;
        Events.push_back({On + Time, Kind::Control, Channel, 1, static_cast<int>(Vibrato)});
    }
}

std::vector<Event> MakeEvents(const Score& From, const Arrangement& Music)
{
    const std::vector<double> Map = TempoMap(From, Music);
    Dice Human{static_cast<unsigned long long>(From.Track)};
    std::vector<Event> Events;
    const auto& Notes = Music.Notes;
    for (std::size_t I = 0; I < Notes.size(); ++I) {
        const ArrangedNote& Note = Notes[I];
        const Part& P = From.Parts[Note.Part];
        double On = TimeOf(From, Map, Note.Start);
        double Off = TimeOf(From, Map, Note.Start + Note.Ticks);
        if (Note.Grace) Off = On + 0.02, On = std::max(0.0, On - 0.09);
        // A chord on strings that are plucked or hammered is spread a little, from below.
        int Below = 0;
        for (std::size_t J = I; J-- > 0 && Notes[J].Start == Note.Start;)
            if (Notes[J].Part == Note.Part && !Notes[J].Grace) ++Below;
        if (P.Plays->Rings) On += 0.016 * Below;
        const double Stray = 0.005 * RollAround(Human);
        On = std::max(0.0, On + Stray);
        Off += Stray;
        if (P.Plays->Rings && Note.As != Role::Melody)
            Off = std::max(Off, TimeOf(From, Map, Note.ChordEnd) - 0.02);
        else if (Note.EndsPhrase && P.Plays->Sustained)
            Off -= 0.12 * (Off - On); // a breath
        else if (P.Plays->Sustained)
            Off += Note.As == Role::Melody ? 0.015 : -0.01;
        if (P.Plays->Rings && Note.EndsPhrase) Off += 0.4;
        Off = std::max(Off, On + 0.05);
        const int Velocity = VelocityOf(From, Music, Note, Human);
        Events.push_back({On, Kind::On, Note.Part, Note.Key, Velocity});
        Events.push_back({Off, Kind::Off, Note.Part, Note.Key, 0});
        if (P.Plays->Sustained && Below == 0)
            Swell(Events, Note.Part, On, Off, Note.As != Role::Figure);
    }
    std::stable_sort(Events.begin(), Events.end(), [](const Event& A, const Event& B) {
        return A.Time != B.Time ? A.Time < B.Time : A.What < B.What;
    });
    return Events;
}

template <auto Delete> struct Deleter {
    template <typename T> void operator()(T* Thing) const { Delete(Thing); }
};
using Settings = std::unique_ptr<fluid_settings_t, Deleter<delete_fluid_settings>>;
using Synth = std::unique_ptr<fluid_synth_t, Deleter<delete_fluid_synth>>;

// Channel 9 is the drums' by default; here any channel may hold either.
void SeatPart(fluid_synth_t* Player, int Font, int Channel, const Score& From)
{
    const Part& P = From.Parts[Channel];
    fluid_synth_set_channel_type(Player, Channel,
                                 P.Plays->Bank == 128 ? CHANNEL_TYPE_DRUM : CHANNEL_TYPE_MELODIC);
    if (fluid_synth_program_select(Player, Channel, Font, P.Plays->Bank, P.Plays->Program) !=
        FLUID_OK)
        throw std::runtime_error(std::string("the sound font has no ") + P.Plays->Name);
    // Controller 7 weighs 40 dB a decade.
    const double Level = P.Level + P.Plays->Trim - 12;
    const double Volume = 127 * std::pow(10.0, Level / 40);
    fluid_synth_cc(Player, Channel, 7, std::clamp(static_cast<int>(std::lround(Volume)), 0, 127));
    fluid_synth_cc(Player, Channel, 10, 64 + P.Pan);
    fluid_synth_cc(Player, Channel, 11, 112);
    fluid_synth_cc(Player, Channel, 91, From.Hall);
}

} // namespace

Stereo Perform(const Score& From, const Arrangement& Music, const std::string& SoundFont)
{
    fluid_set_log_function(FLUID_INFO, nullptr, nullptr);
    fluid_set_log_function(FLUID_WARN, nullptr, nullptr);
    const Settings Set{new_fluid_settings()};
    fluid_settings_setnum(Set.get(), "synth.sample-rate", SampleRate);
    fluid_settings_setnum(Set.get(), "synth.gain", 1.0);
    fluid_settings_setint(Set.get(), "synth.polyphony", 256);
    fluid_settings_setint(Set.get(), "synth.chorus.active", 0);
    fluid_settings_setint(Set.get(), "synth.reverb.active", 1);
    fluid_settings_setnum(Set.get(), "synth.reverb.room-size", 0.72);
    fluid_settings_setnum(Set.get(), "synth.reverb.damp", 0.35);
    fluid_settings_setnum(Set.get(), "synth.reverb.width", 0.9);
    fluid_settings_setnum(Set.get(), "synth.reverb.level", 0.7);
    fluid_settings_setint(Set.get(), "synth.dynamic-sample-loading", 1);
    const Synth Player{new_fluid_synth(Set.get())};
    const int Font = fluid_synth_sfload(Player.get(), SoundFont.c_str(), 0);
    if (Font == FLUID_FAILED) throw std::runtime_error("cannot read the sound font " + SoundFont);
    for (std::size_t P = 0; P < From.Parts.size(); ++P)
        SeatPart(Player.get(), Font, static_cast<int>(P), From);

    const std::vector<Event> Events = MakeEvents(From, Music);
    const auto Length = static_cast<std::size_t>((Events.back().Time + RingOut) * SampleRate);
    Stereo Result{std::vector<float>(Length), std::vector<float>(Length)};
    std::size_t Now = 0;
    const auto PlayUntil = [&](std::size_t Until) {
        if (Until <= Now) return;
        fluid_synth_write_float(Player.get(), static_cast<int>(Until - Now), Result.Left.data(),
                                static_cast<int>(Now), 1, Result.Right.data(),
                                static_cast<int>(Now), 1);
        Now = Until;
    };
    // How many notes hold a key down: only the last one lets it go.
    std::vector<int> Held(16 * 128);
    for (const Event& E : Events) {
        PlayUntil(std::min(Length, static_cast<std::size_t>(E.Time * SampleRate)));
        int& Count = Held[E.Channel * 128 + E.First];
        switch (E.What) {
        case Kind::On:
            ++Count;
            fluid_synth_noteon(Player.get(), E.Channel, E.First, E.Second);
            break;
        case Kind::Off:
            if (--Count == 0) fluid_synth_noteoff(Player.get(), E.Channel, E.First);
            break;
        case Kind::Control:
            fluid_synth_cc(Player.get(), E.Channel, E.First, E.Second);
            break;
        }
    }
    PlayUntil(Length);
    return Result;
}
