// make-music OUTDIR SCORE...: performs each score and writes OUTDIR/DATA/MSnnnn, an MP3.
#include "perform.h"

#include <lame/lame.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

namespace
{

constexpr const char* SoundFont = "/usr/share/sounds/sf2/FluidR3_GM.sf2";
constexpr double Target = -18;   // LUFS
constexpr double Ceiling = -2.5; // dB; the encoder may add a little
constexpr double FadeOut = 4.5;  // seconds
constexpr double Shortest = 120, Longest = 240;

// All pieces are as loud as one another. Limiting costs loudness, so it is measured again.
void Master(Stereo& Sound)
{
    Fade(Sound, 0.01, FadeOut);
    for (int Round = 0; Round < 3; ++Round) {
        const double Missing = Target - Loudness(Sound);
        if (Round > 0 && std::fabs(Missing) < 0.1) break;
        Amplify(Sound, Missing);
        Limit(Sound, Ceiling);
    }
}

struct CloseLame {
    void operator()(lame_global_flags* Encoder) const { lame_close(Encoder); }
};

std::vector<unsigned char> Encode(const Score& From, const Stereo& Sound)
{
    const std::unique_ptr<lame_global_flags, CloseLame> Encoder{lame_init()};
    lame_set_in_samplerate(Encoder.get(), SampleRate);
    lame_set_num_channels(Encoder.get(), 2);
    lame_set_mode(Encoder.get(), JOINT_STEREO);
    lame_set_brate(Encoder.get(), 128);
    lame_set_scale(Encoder.get(), 1 / 0.95f); // at this rate LAME turns down to 0.95 by itself
    lame_set_quality(Encoder.get(), 5);
    id3tag_init(Encoder.get());
    id3tag_v2_only(Encoder.get());
    lame_set_write_id3tag_automatic(Encoder.get(), 1);
    id3tag_set_title(Encoder.get(), From.Title.c_str());
    id3tag_set_artist(Encoder.get(), "Pagodas");
    id3tag_set_album(Encoder.get(), "Music for Pagodas");
    id3tag_set_track(Encoder.get(), std::to_string(From.Track).c_str());
    if (lame_init_params(Encoder.get()) < 0) throw std::runtime_error("LAME refuses the settings");

    std::vector<unsigned char> Result(Sound.Left.size() * 5 / 4 + 16384);
    const int Body = lame_encode_buffer_ieee_float(
        Encoder.get(), Sound.Left.data(), Sound.Right.data(), static_cast<int>(Sound.Left.size()),
        Result.data(), static_cast<int>(Result.size()));
    if (Body < 0) throw std::runtime_error("LAME fails to encode " + From.Title);
    const int Tail = lame_encode_flush(Encoder.get(), Result.data() + Body,
                                       static_cast<int>(Result.size()) - Body);
    Result.resize(Body + Tail);
    // The first frame after the tag was kept free for the table that players seek by.
    const std::size_t TagSize = lame_get_id3v2_tag(Encoder.get(), nullptr, 0);
    std::vector<unsigned char> Frame(lame_get_lametag_frame(Encoder.get(), nullptr, 0));
    lame_get_lametag_frame(Encoder.get(), Frame.data(), Frame.size());
    std::copy(Frame.begin(), Frame.end(), Result.begin() + TagSize);
    return Result;
}

void Make(const std::string& ScorePath, const std::filesystem::path& OutDir)
{
    const Score S = ReadScore(ScorePath);
    Stereo Sound = Perform(S, Arrange(S), SoundFont);
    const double Seconds = double(Sound.Left.size()) / SampleRate;
    if (Seconds < Shortest || Seconds > Longest)
        throw std::runtime_error(ScorePath + ": lasts " + std::to_string(Seconds) +
                                 " seconds; a piece lasts 2 to 4 minutes");
    Master(Sound);
    const std::vector<unsigned char> Bytes = Encode(S, Sound);
    char Name[16];
    std::snprintf(Name, sizeof Name, "MS%04d", S.Track);
    std::filesystem::create_directories(OutDir / "DATA");
    std::ofstream File(OutDir / "DATA" / Name, std::ios::binary);
    File.write(reinterpret_cast<const char*>(Bytes.data()),
               static_cast<std::streamsize>(Bytes.size()));
    if (!File.flush())
        throw std::runtime_error("cannot write " + (OutDir / "DATA" / Name).string());
    std::printf("%s %-32s %d:%02d %6.1f LUFS %5.1f dB peak\n", Name, S.Title.c_str(),
                int(Seconds) / 60, int(Seconds) % 60, Loudness(Sound), TruePeak(Sound));
}

} // namespace

int main(int Count, char** Arguments)
{
    if (Count < 3) {
        std::fprintf(stderr, "make-music OUTDIR SCORE...\n");
        return 1;
    }
    try {
        for (int I = 2; I < Count; ++I) Make(Arguments[I], Arguments[1]);
    } catch (const std::exception& Error) {
        std::fprintf(stderr, "make-music: %s\n", Error.what());
        return 1;
    }
}
