// The made tile sheets, measured: are they whole, and can a player tell their tiles apart?
#include <QGuiApplication>
#include <QImage>
#include <QRect>
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <tuple>

namespace
{

constexpr int TileSize = 60, Columns = 12, FaceCount = 36, SetCount = 72;
enum State { Normal, Lit, Marked };
const QRect Art(11, 4, 46, 46); // where the picture is, inside a cell

QImage ReadSheet(int Number)
{
    const QString Path = QString("%1/TS%2").arg(DATA).arg(Number, 4, 10, QChar('0'));
    return QImage(Path).convertToFormat(QImage::Format_ARGB32);
}

const QImage& Sheet(int Number)
{
    static std::map<int, QImage> Read;
    QImage& Image = Read[Number];
    if (Image.isNull()) Image = ReadSheet(Number);
    return Image;
}

QImage Tile(const QImage& From, int Face, State S) // faces from 1
{
    const int Cell = Face - 1 + FaceCount * S;
    return From.copy(Cell % Columns * TileSize, Cell / Columns * TileSize, TileSize, TileSize);
}

int Apart(QRgb A, QRgb B)
{
    return std::max({std::abs(qRed(A) - qRed(B)), std::abs(qGreen(A) - qGreen(B)),
                     std::abs(qBlue(A) - qBlue(B))});
}

// The share of the area whose pixels are clearly different.
double ShareApart(const QImage& A, const QImage& B, const QRect& Area, int Clearly)
{
    int Count = 0;
    for (int Y = Area.top(); Y <= Area.bottom(); ++Y)
        for (int X = Area.left(); X <= Area.right(); ++X)
            if (Apart(A.pixel(X, Y), B.pixel(X, Y)) >= Clearly) ++Count;
    return static_cast<double>(Count) / (Area.width() * Area.height());
}

// The mean grey of the ring just inside the face's edge, where the states have their frames.
double FrameGrey(const QImage& One)
{
    double Sum = 0;
    int Count = 0;
    for (int Y = 1; Y < 52; ++Y)
        for (int X = 8; X < 59; ++X)
            if (X == 9 || X == 57 || Y == 2 || Y == 50) {
                Sum += qGray(One.pixel(X, Y));
                ++Count;
            }
    return Sum / Count;
}

} // namespace

TEST(TileSheets, AreTwelveByNineCellsWithAlpha)
{
    for (int Number = 0; Number <= SetCount; ++Number) {
        SCOPED_TRACE(Number);
        const QImage& S = Sheet(Number);
        ASSERT_FALSE(S.isNull());
        EXPECT_EQ(S.size(), QSize(720, 540));
        for (int Face = 1; Face <= FaceCount; ++Face)
            for (const State Each : {Normal, Lit, Marked}) {
                const QImage One = Tile(S, Face, Each);
                EXPECT_EQ(qAlpha(One.pixel(0, 0)), 0) << Face;     // beside the slanted wall
                EXPECT_EQ(qAlpha(One.pixel(59, 59)), 0) << Face;   // below it
                EXPECT_EQ(qAlpha(One.pixel(33, 26)), 255) << Face; // the face
                EXPECT_EQ(qAlpha(One.pixel(3, 30)), 255) << Face;  // the left wall
                EXPECT_EQ(qAlpha(One.pixel(30, 56)), 255) << Face; // the wall below
            }
    }
}

TEST(TileSheets, SampleSheetsAreTwelveByTwoCells)
{
    for (const int Number : {9000, 9001, 9002}) {
        EXPECT_EQ(Sheet(Number).size(), QSize(720, 120)) << Number;
        // Each cell shows a tile of its own set.
        for (int I = 0; I < 24; ++I) {
            const QImage& Set = Sheet((Number - 9000) * 24 + I + 1);
            const QImage Shown =
                Sheet(Number).copy(I % Columns * TileSize, I / Columns * TileSize, 60, 60);
            bool Found = false;
            for (int Face = 1; Face <= FaceCount && !Found; ++Face)
                Found = Shown == Tile(Set, Face, Normal);
            EXPECT_TRUE(Found) << Number << " cell " << I;
        }
    }
}

// The letters hold ten faces twice, as words need them.
TEST(TileSheets, TheLettersRepeatTheirLastTen)
{
    const QImage& S = Sheet(0);
    const std::string Letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZAEIOUAEIST";
    for (int A = 1; A <= FaceCount; ++A)
        for (int B = A + 1; B <= FaceCount; ++B) {
            const bool Same = Letters[static_cast<std::size_t>(A - 1)] ==
                              Letters[static_cast<std::size_t>(B - 1)];
            EXPECT_EQ(Tile(S, A, Normal) == Tile(S, B, Normal), Same) << A << ' ' << B;
        }
}

// Five pixels in a hundred must be clearly other ones. The nearest pair is Syria and Yemen, whose
// stars and letters alone differ.
TEST(TileSheets, AllFacesOfASetDifferClearly)
{
    constexpr double LeastShare = .05;
    for (int Number = 1; Number <= SetCount; ++Number)
        for (int A = 1; A <= FaceCount; ++A)
            for (int B = A + 1; B <= FaceCount; ++B) {
                const double Share = ShareApart(Tile(Sheet(Number), A, Normal),
                                                Tile(Sheet(Number), B, Normal), Art, 40);
                EXPECT_GE(Share, LeastShare) << "set " << Number << " faces " << A << ' ' << B;
            }
}

// Measured in grey, so that it holds for every eye: the frames of the three states are far apart.
TEST(TileSheets, StatesDifferInGreyToo)
{
    for (int Number = 0; Number <= SetCount; ++Number)
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const QImage& S = Sheet(Number);
            const double N = FrameGrey(Tile(S, Face, Normal)), L = FrameGrey(Tile(S, Face, Lit)),
                         M = FrameGrey(Tile(S, Face, Marked));
            EXPECT_GT(std::abs(N - L), 12) << "set " << Number << " face " << Face;
            EXPECT_GT(std::abs(N - M), 12) << "set " << Number << " face " << Face;
            EXPECT_GT(std::abs(L - M), 12) << "set " << Number << " face " << Face;
        }
}

// A lit or marked tile shows the same picture: what is drawn stays, only the ivory changes.
TEST(TileSheets, StatesLeaveTheFaceUnharmed)
{
    for (int Number = 0; Number <= SetCount; ++Number)
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const QImage& S = Sheet(Number);
            const QImage N = Tile(S, Face, Normal);
            int Drawn = 0, Harmed = 0;
            for (int Y = Art.top(); Y <= Art.bottom(); ++Y)
                for (int X = Art.left(); X <= Art.right(); ++X) {
                    if (qGray(N.pixel(X, Y)) > 90) continue; // dark: surely drawn, not ivory
                    ++Drawn;
                    for (const State Each : {Lit, Marked})
                        if (Apart(N.pixel(X, Y), Tile(S, Face, Each).pixel(X, Y)) > 90) ++Harmed;
                }
            EXPECT_LE(Harmed, Drawn / 20 + 2) << "set " << Number << " face " << Face;
        }
}

int main(int Count, char** Values)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication App(Count, Values);
    testing::InitGoogleTest(&Count, Values);
    return RUN_ALL_TESTS();
}
