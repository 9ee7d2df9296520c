// paintings_test.cpp: the 360 pictures of won games, as made, and the plan behind them.

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <sstream>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

constexpr int PictureCount = 360;
constexpr float EmptySpread = 2.5f;               // of values 0 to 255
constexpr int MostEmpty = 10, MostEmptyBelow = 8; // of 84 parts, and of the 36 lower ones
constexpr int ThumbWidth = 36, ThumbHeight = 21;

static std::string PictureName(int Number)
{
    char Name[16];
    std::snprintf(Name, sizeof Name, "PH%04d", Number);
    return Name;
}

static std::string FileBytes(const std::string& Path)
{
    std::ifstream File(Path, std::ios::binary);
    return {std::istreambuf_iterator<char>(File), {}};
}

// A picture made small: its colours, and its values freed of their mean and contrast, so that
// the same layout in another light is still found.
struct Thumb {
    std::array<float, ThumbWidth * ThumbHeight * 3> Colour{};
    std::array<float, ThumbWidth * ThumbHeight> Form{};
};

static Thumb ThumbOf(const QImage& Image)
{
    Thumb T;
    const QImage Small =
        Image.scaled(ThumbWidth, ThumbHeight, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    float Sum = 0, Squares = 0;
    for (int I = 0; I < ThumbWidth * ThumbHeight; ++I) {
        const QRgb Px = Small.pixel(I % ThumbWidth, I / ThumbWidth);
        const float Channels[] = {float(qRed(Px)), float(qGreen(Px)), float(qBlue(Px))};
        std::copy(std::begin(Channels), std::end(Channels), T.Colour.begin() + I * 3);
        const float Value = 0.3f * Channels[0] + 0.59f * Channels[1] + 0.11f * Channels[2];
        T.Form[std::size_t(I)] = Value;
        Sum += Value, Squares += Value * Value;
    }
    const float Mean = Sum / float(T.Form.size());
    const float Spread = std::sqrt(std::max(1.0f, Squares / float(T.Form.size()) - Mean * Mean));
    for (float& Value : T.Form) Value = (Value - Mean) / Spread;
    return T;
}

static const std::vector<Thumb>& Thumbs() // of all pictures, made once
{
    static const std::vector<Thumb> All = [] {
        std::vector<Thumb> Made;
        for (int Number = 1; Number <= PictureCount; ++Number)
            Made.push_back(
                ThumbOf(QImage(QString::fromStdString(PHOT "/" + PictureName(Number)), "JPG")
                            .convertToFormat(QImage::Format_RGB32)));
        return Made;
    }();
    return All;
}

static float ColourDistance(const Thumb& A,
                            const Thumb& B) // mean difference of a channel, 0 to 255
{
    float Sum = 0;
    for (std::size_t I = 0; I < A.Colour.size(); ++I) Sum += std::fabs(A.Colour[I] - B.Colour[I]);
    return Sum / float(A.Colour.size());
}

static float FormLikeness(const Thumb& A, const Thumb& B, bool Mirrored) // correlation, 1 if equal
{
    float Sum = 0;
    for (int Y = 0; Y < ThumbHeight; ++Y)
        for (int X = 0; X < ThumbWidth; ++X)
            Sum += A.Form[std::size_t(Y * ThumbWidth + X)] *
                   B.Form[std::size_t(Y * ThumbWidth + (Mirrored ? ThumbWidth - 1 - X : X))];
    return Sum / float(A.Form.size());
}

TEST(Paintings, EachIsAJpegOfTheFrameSize)
{
    for (int Number = 1; Number <= PictureCount; ++Number) {
        const std::string Path = PHOT "/" + PictureName(Number);
        ASSERT_TRUE(std::filesystem::exists(Path)) << Path;
        EXPECT_EQ(FileBytes(Path).substr(0, 3), "\xFF\xD8\xFF") << Path;
        EXPECT_EQ(QImage(QString::fromStdString(Path), "JPG").size(), QSize(720, 420)) << Path;
    }
}

TEST(Paintings, TogetherStayUnderFortyMegabytes)
{
    std::uintmax_t Bytes = 0;
    for (int Number = 1; Number <= PictureCount; ++Number)
        Bytes += std::filesystem::file_size(PHOT "/" + PictureName(Number));
    EXPECT_LT(Bytes, 40'000'000u);
}

TEST(Paintings, NoneIsFlatOrHasHoles)
{
    for (int Number = 1; Number <= PictureCount; ++Number) {
        const QImage Image(QString::fromStdString(PHOT "/" + PictureName(Number)), "JPG");
        ASSERT_FALSE(Image.isNull()) << PictureName(Number);
        int Black = 0, Lowest = 255, Highest = 0;
        for (int Y = 0; Y < Image.height(); Y += 2)
            for (int X = 0; X < Image.width(); X += 2) {
                const int Value = qGray(Image.pixel(X, Y));
                Black += Value == 0;
                Lowest = std::min(Lowest, Value), Highest = std::max(Highest, Value);
            }
        EXPECT_LT(Black, 360 * 210 / 50) << PictureName(Number);
        EXPECT_GT(Highest - Lowest, 110) << PictureName(Number);
    }
}

// A part of a small picture, in which the touch of single brushes no longer counts, where nothing
// is painted: its values hardly differ from each other.
static bool IsEmpty(const QImage& Image, const QRect& Part)
{
    float Sum = 0, Squares = 0, Count = 0;
    for (int Y = Part.top(); Y <= Part.bottom(); ++Y)
        for (int X = Part.left(); X <= Part.right(); ++X) {
            const float Value = float(qGray(Image.pixel(X, Y)));
            Sum += Value, Squares += Value * Value, ++Count;
        }
    const float Mean = Sum / Count;
    return Squares / Count - Mean * Mean < EmptySpread * EmptySpread;
}

TEST(Paintings, NoneIsMostlyEmpty)
{
    constexpr int Columns = 12, Rows = 7, Side = 8;
    for (int Number = 1; Number <= PictureCount; ++Number) {
        const QImage Image = QImage(QString::fromStdString(PHOT "/" + PictureName(Number)), "JPG")
                                 .scaled(Columns * Side, Rows * Side, Qt::IgnoreAspectRatio,
                                         Qt::SmoothTransformation);
        int Empty = 0, EmptyBelow = 0; // an empty sky is a sky; empty ground is a hole
        for (int I = 0; I < Columns * Rows; ++I)
            if (IsEmpty(Image, QRect(I % Columns * Side, I / Columns * Side, Side, Side)))
                ++Empty, EmptyBelow += I / Columns >= 4;
        EXPECT_LE(Empty, MostEmpty) << PictureName(Number);
        EXPECT_LE(EmptyBelow, MostEmptyBelow) << PictureName(Number);
    }
}

TEST(Paintings, NoTwoLookLikeSiblings)
{
    for (int A = 0; A < PictureCount; ++A)
        for (int B = A + 1; B < PictureCount; ++B) {
            const Thumb &First = Thumbs()[std::size_t(A)], &Second = Thumbs()[std::size_t(B)];
            const float Colour = ColourDistance(First, Second);
            EXPECT_GT(Colour, 9) << PictureName(A + 1) << " and " << PictureName(B + 1);
            // what lies where differs; if it is alike, they are at least far apart in colour
            const float Form =
                std::max(FormLikeness(First, Second, false), FormLikeness(First, Second, true));
            EXPECT_LT(Form, 0.93f) << PictureName(A + 1) << " and " << PictureName(B + 1);
            EXPECT_FALSE(Form > 0.90f && Colour < 24)
                << PictureName(A + 1) << " and " << PictureName(B + 1);
        }
}

TEST(Paintings, NeighboursDifferStrongly)
{
    for (int A = 0; A + 1 < PictureCount; ++A) {
        const Thumb &First = Thumbs()[std::size_t(A)], &Second = Thumbs()[std::size_t(A + 1)];
        EXPECT_GT(ColourDistance(First, Second), 20) << PictureName(A + 1) << " and the next";
        EXPECT_LT(FormLikeness(First, Second, false), 0.92f)
            << PictureName(A + 1) << " and the next";
    }
}

#ifdef NDEBUG
TEST(Paintings, AllArePaintedInUnderFourMinutesOnTwoCores)
{
    const std::filesystem::path Out =
        std::filesystem::temp_directory_path() / ("paintings-time-" + std::to_string(getpid()));
    rusage Before{}, After{};
    getrusage(RUSAGE_CHILDREN, &Before);
    int Painted = 0;
    for (int Number = 16; Number <= PictureCount; Number += 31, ++Painted)
        ASSERT_EQ(std::system(("QT_QPA_PLATFORM=offscreen '" MAKER "' '" + Out.string() + "' " +
                               std::to_string(Number) + " " + std::to_string(Number))
                                  .c_str()),
                  0);
    getrusage(RUSAGE_CHILDREN, &After);
    // seconds of computing, whatever else the machine does
    const auto Seconds = [](const rusage& Use) {
        return double(Use.ru_utime.tv_sec + Use.ru_stime.tv_sec) +
               double(Use.ru_utime.tv_usec + Use.ru_stime.tv_usec) / 1e6;
    };
    EXPECT_LT((Seconds(After) - Seconds(Before)) / Painted * PictureCount, 2 * 240);
    std::filesystem::remove_all(Out);
}
#endif

TEST(Paintings, AreMadeTheSameAgain)
{
    const std::filesystem::path Out =
        std::filesystem::temp_directory_path() / ("paintings-" + std::to_string(getpid()));
    for (const int Number : {5, 222}) {
        const std::string Command = "QT_QPA_PLATFORM=offscreen '" MAKER "' '" + Out.string() +
                                    "' " + std::to_string(Number) + " " + std::to_string(Number);
        ASSERT_EQ(std::system(Command.c_str()), 0);
        EXPECT_TRUE(FileBytes(Out.string() + "/PHOT/" + PictureName(Number)) ==
                    FileBytes(PHOT "/" + PictureName(Number)))
            << PictureName(Number);
    }
    std::filesystem::remove_all(Out);
}

TEST(Paintings, ABadPlanIsRefusedByLine)
{
    const std::filesystem::path Out =
        std::filesystem::temp_directory_path() / ("paintings-bad-" + std::to_string(getpid()));
    std::filesystem::create_directories(Out);
    const std::string Plan = Out.string() + "/plan.tsv", Said = Out.string() + "/said";
    std::ofstream(Plan) << "# a comment\n1 lake noon summer clear fair pagoda none\n2 lake noon "
                           "monsoon clear fair pagoda none\n";
    const std::string Command = "QT_QPA_PLATFORM=offscreen '" MAKER "' '" + Out.string() +
                                "' 1 1 '" + Plan + "' 2>'" + Said + "'";
    EXPECT_NE(std::system(Command.c_str()), 0);
    EXPECT_NE(FileBytes(Said).find("plan.tsv:3: no season monsoon"), std::string::npos)
        << FileBytes(Said);
    EXPECT_FALSE(std::filesystem::exists(Out / "PHOT"));
    std::filesystem::remove_all(Out);
}

struct Row {
    int Number = 0;
    std::string Composition, Light, Season;
};

static std::vector<Row> PlanRows()
{
    std::ifstream File(PLAN);
    std::vector<Row> Rows;
    for (std::string Text; std::getline(File, Text);) {
        if (Text.empty() || Text[0] == '#') continue;
        std::istringstream Fields(Text);
        Row R;
        Fields >> R.Number >> R.Composition >> R.Light >> R.Season;
        Rows.push_back(R);
    }
    return Rows;
}

TEST(PaintingsPlan, HasARowForEachLayoutInOrder)
{
    const std::vector<Row> Rows = PlanRows();
    ASSERT_EQ(Rows.size(), std::size_t(PictureCount));
    for (std::size_t I = 0; I < Rows.size(); ++I) EXPECT_EQ(Rows[I].Number, int(I) + 1);
}

TEST(PaintingsPlan, NeighboursHaveAnotherCompositionAndLight)
{
    const std::vector<Row> Rows = PlanRows();
    for (std::size_t I = 0; I + 1 < Rows.size(); ++I) {
        EXPECT_NE(Rows[I].Composition, Rows[I + 1].Composition) << Rows[I].Number;
        EXPECT_NE(Rows[I].Light, Rows[I + 1].Light) << Rows[I].Number;
    }
}

TEST(PaintingsPlan, NoCompositionMeetsALightTwice)
{
    std::map<std::pair<std::string, std::string>, int> Seen;
    for (const Row& R : PlanRows())
        EXPECT_EQ(Seen.emplace(std::pair(R.Composition, R.Light), R.Number).second, true)
            << R.Number;
    std::map<std::string, int> Uses;
    for (const Row& R : PlanRows()) ++Uses[R.Composition];
    for (const auto& [Name, Count] : Uses) EXPECT_LE(Count, 5) << Name;
}
