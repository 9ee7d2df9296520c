// The made files, measured: ffmpeg decodes them and tells their loudness, so nothing here trusts
// what the maker measured itself.
#include "sound.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <numeric>
#include <sstream>

namespace
{

constexpr int WindowFrames = SampleRate / 20; // 50 ms

struct Measured {
    std::vector<float> Samples;  // left, right, left ...
    std::vector<double> Windows; // loudness of every 50 ms in dB of full scale
    std::string Report;          // what ffmpeg said
    double Seconds = 0, Lufs = 0, Peak = 0;
};

std::string FileOf(const char* Kind, int Number)
{
    char Name[16];
    std::snprintf(Name, sizeof Name, "%s%04d", Kind, Number);
    return std::string(DATA) + "/" + Name;
}

// The number after the last Label of ffmpeg's summary
double Summed(const std::string& Report, const std::string& Label)
{
    const auto At = Report.rfind(Label);
    return At == std::string::npos ? std::nan("") : std::atof(Report.c_str() + At + Label.size());
}

Measured Measure(const std::string& Path)
{
    Measured Result;
    const auto ReportPath =
        std::filesystem::temp_directory_path() / ("pagodas-" + std::to_string(getpid()) + "-" +
                                                  std::filesystem::path(Path).filename().string());
    const std::string Command =
        "ffmpeg -hide_banner -nostats -i '" + Path +
        "' -af ebur128=peak=true:framelog=verbose,aresample=44100 -ac 2 -f f32le - 2>'" +
        ReportPath.string() + "'";
    FILE* Pipe = popen(Command.c_str(), "r");
    std::array<float, 8192> Buffer;
    while (const std::size_t Got = std::fread(Buffer.data(), sizeof(float), Buffer.size(), Pipe))
        Result.Samples.insert(Result.Samples.end(), Buffer.begin(), Buffer.begin() + Got);
    EXPECT_EQ(pclose(Pipe), 0) << Command;
    std::ostringstream Text;
    Text << std::ifstream(ReportPath).rdbuf();
    Result.Report = Text.str();
    std::filesystem::remove(ReportPath);
    Result.Seconds = Result.Samples.size() / 2.0 / SampleRate;
    Result.Lufs = Summed(Result.Report, "I:");
    Result.Peak = Summed(Result.Report, "Peak:");
    for (std::size_t I = 0; I + 2 * WindowFrames <= Result.Samples.size(); I += 2 * WindowFrames) {
        double Sum = 1e-12;
        for (std::size_t J = I; J < I + 2 * WindowFrames; ++J)
            Sum += Result.Samples[J] * Result.Samples[J];
        Result.Windows.push_back(10 * std::log10(Sum / (2 * WindowFrames)));
    }
    return Result;
}

class Track : public testing::TestWithParam<int>
{
};
class EffectFile : public testing::TestWithParam<int>
{
};

std::string ReadWhole(const std::string& Path)
{
    std::ostringstream Text;
    Text << std::ifstream(Path, std::ios::binary).rdbuf();
    return Text.str();
}

} // namespace

TEST_P(Track, IsAsLoudAsTheOthersAndEndsCleanly)
{
    const std::string Path = FileOf("MS", GetParam());
    const std::string Bytes = ReadWhole(Path);
    ASSERT_TRUE(Bytes.starts_with("ID3")) << Path << " is no tagged MP3";
    const Measured M = Measure(Path);
    ASSERT_FALSE(M.Windows.empty()) << M.Report;
    EXPECT_NEAR(M.Lufs, -18, 1);
    EXPECT_LT(M.Peak, -1);
    EXPECT_GE(M.Seconds, 120);
    EXPECT_LE(M.Seconds, 240);
    EXPECT_NE(M.Report.find("stereo"), std::string::npos);
    EXPECT_NEAR(Bytes.size() * 8 / M.Seconds / 1000, 128, 13);
    for (const char* Tag : {"title  ", "album  ", "track  "})
        EXPECT_NE(M.Report.find(Tag), std::string::npos) << Tag;

    const auto Sounds = [](double Window) { return Window > -50; };
    const auto First = std::find_if(M.Windows.begin(), M.Windows.end(), Sounds);
    EXPECT_LE(First - M.Windows.begin(), 10) << "it starts later than 0.5 s";
    const auto Last = std::find_if(M.Windows.rbegin(), M.Windows.rend(), Sounds).base();
    int Silent = 0, Longest = 0;
    for (auto At = First; At != Last; ++At) {
        Silent = *At > -60 ? 0 : Silent + 1;
        Longest = std::max(Longest, Silent);
    }
    EXPECT_LE(Longest, 40) << "50 ms each: a silence of more than 2 s inside";

    // The fade: seconds that grow quieter, down to nothing.
    const std::size_t End = M.Windows.size();
    const auto Around = [&](double SecondsToEnd) {
        const auto At = End - static_cast<std::size_t>(SecondsToEnd * 20);
        return std::accumulate(M.Windows.begin() + At, M.Windows.begin() + At + 10, 0.0) / 10;
    };
    EXPECT_LT(M.Windows.back(), -60);
    EXPECT_LT(Around(1), Around(2));
    EXPECT_LT(Around(2), Around(3));
    EXPECT_LT(Around(3), Around(5) + 3);
}
INSTANTIATE_TEST_SUITE_P(Music, Track, testing::Range(1, TRACKS + 1));

// The rise and fall of the first minute, compared piece by piece.
TEST(Music, NoTwoTracksSoundAlike)
{
    std::vector<std::vector<double>> Shapes;
    for (int Number = 1; Number <= TRACKS; ++Number) {
        const std::string Command =
            "ffmpeg -v error -t 60 -i '" + FileOf("MS", Number) + "' -ac 1 -ar 4000 -f s16le -";
        FILE* Pipe = popen(Command.c_str(), "r");
        std::array<short, 400> Step; // 0.1 s
        std::vector<double> Shape;
        while (std::fread(Step.data(), sizeof(short), Step.size(), Pipe) == Step.size()) {
            double Sum = 1;
            for (short Sample : Step) Sum += double(Sample) * Sample;
            Shape.push_back(std::log10(Sum));
        }
        ASSERT_EQ(pclose(Pipe), 0) << Command;
        ASSERT_GE(Shape.size(), 590u);
        Shape.resize(590);
        const double Mean = std::accumulate(Shape.begin(), Shape.end(), 0.0) / Shape.size();
        double Square = 0;
        for (double& Value : Shape) Value -= Mean, Square += Value * Value;
        for (double& Value : Shape) Value /= std::sqrt(Square);
        for (std::size_t Other = 0; Other < Shapes.size(); ++Other)
            EXPECT_LT(std::inner_product(Shape.begin(), Shape.end(), Shapes[Other].begin(), 0.0),
                      0.8)
                << Number << " and " << Other + 1;
        Shapes.push_back(Shape);
    }
}

TEST_P(EffectFile, IsAShortBalancedWave)
{
    const std::string Path = FileOf("FX", GetParam());
    const std::string Bytes = ReadWhole(Path);
    ASSERT_GT(Bytes.size(), 44u) << Path;
    EXPECT_EQ(Bytes.substr(0, 4) + Bytes.substr(8, 8), "RIFFWAVEfmt ");
    std::uint16_t Bits = 0;
    std::memcpy(&Bits, Bytes.data() + 34, 2);
    EXPECT_EQ(Bits, 16);
    const Measured M = Measure(Path);
    EXPECT_GE(M.Seconds, 0.05);
    EXPECT_LE(M.Seconds, 2.0);
    EXPECT_LT(M.Peak, -1);
    EXPECT_LT(std::fabs(M.Samples[M.Samples.size() - 1]), 0.001) << "it ends with a click";
    // It starts at once: its loudest tenth of a second is near, except for the long ones.
    const auto Start = std::find_if(M.Samples.begin(), M.Samples.end(),
                                    [](float Sample) { return std::fabs(Sample) > 0.003; });
    EXPECT_LT((Start - M.Samples.begin()) / 2, SampleRate / 10);
    // Neither louder than the music's loud moments nor lost under it.
    Stereo Sound;
    for (std::size_t I = 0; I + 1 < M.Samples.size(); I += 2) {
        Sound.Left.push_back(M.Samples[I]);
        Sound.Right.push_back(M.Samples[I + 1]);
    }
    EXPECT_NEAR(LoudestMoment(Sound), -21, 3.5);
}
INSTANTIATE_TEST_SUITE_P(Effects, EffectFile, testing::Range(1, 11));
