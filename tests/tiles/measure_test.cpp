// The made tile sheets, measured: are they whole, and can a player tell their tiles apart?
#include "art.h"
#include "lab.h"

#include <QGuiApplication>
#include <QImage>
#include <QRect>
#include <gtest/gtest.h>

#include <cstdlib>
#include <map>

namespace
{

constexpr int Columns = 12, FaceCount = 36, SetCount = 72;
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

QImage Tile(const QImage& From, int Face, TileState S) // faces from 1
{
    const int Cell = Face - 1 + FaceCount * S;
    return From.copy(Cell % Columns * TileSize, Cell / Columns * TileSize, TileSize, TileSize);
}

int Apart(QRgb A, QRgb B)
{
    return std::max({std::abs(qRed(A) - qRed(B)), std::abs(qGreen(A) - qGreen(B)),
                     std::abs(qBlue(A) - qBlue(B))});
}

// The bare tile that the faces of a set are drawn on.
QImage Blank(int Number)
{
    const QImage One = Tile(Sheet(Number), 1, TileNormal);
    QImage Best;
    int Least = 0;
    for (const BodyTint* Tint : {&IvoryBody, &JadeBody, &SlateBody, &WoodBody, &SandBody}) {
        constexpr int Finer = 4; // as the tiles are drawn
        QImage Body = NewImage(TileSize * Finer, TileSize * Finer);
        QPainter P(&Body);
        P.scale(Finer, Finer);
        DrawTileBody(P, TileNormal, *Tint);
        P.end();
        Body = Scaled(Body, TileSize, TileSize).convertToFormat(QImage::Format_ARGB32);
        int Off = 0; // on the left wall, where no picture comes
        for (int Y = 10; Y < 50; ++Y) Off += Apart(Body.pixel(3, Y), One.pixel(3, Y));
        if (Best.isNull() || Off < Least) {
            Best = Body;
            Least = Off;
        }
    }
    return Best;
}

// Where a picture is: the pixels that are clearly not the bare tile.
struct Drawn {
    QRect Box;
    double Share = 0; // of the field
};

Drawn DrawnOn(const QImage& One, const QImage& Bare)
{
    Drawn D;
    int Count = 0;
    for (int Y = 1; Y < 52; ++Y)
        for (int X = 8; X < 59; ++X)
            if (Apart(One.pixel(X, Y), Bare.pixel(X, Y)) >= 32) {
                D.Box |= QRect(X, Y, 1, 1);
                ++Count;
            }
    D.Share = static_cast<double>(Count) / (Art.width() * Art.height());
    return D;
}

// What is seen of a tile at a glance: its field in Lab, softened over 3 by 3 pixels.
std::vector<Lab> Glance(const QImage& One, bool RedGreenBlind)
{
    std::vector<Lab> Seen;
    for (int Y = Art.top(); Y <= Art.bottom(); ++Y)
        for (int X = Art.left(); X <= Art.right(); ++X) {
            LinearRgb Sum{};
            for (const int DY : {-1, 0, 1})
                for (const int DX : {-1, 0, 1}) {
                    const LinearRgb C = LinearOf(One.pixel(X + DX, Y + DY));
                    for (std::size_t I = 0; I < 3; ++I) Sum[I] += C[I] / 9;
                }
            Seen.push_back(LabOf(RedGreenBlind ? Deuteranope(Sum) : Sum));
        }
    return Seen;
}

// The mean distance of two glances; a few very different pixels don't outweigh all others.
double Apart(const std::vector<Lab>& A, const std::vector<Lab>& B)
{
    constexpr double Most = 40;
    double Sum = 0;
    for (std::size_t I = 0; I < A.size(); ++I) Sum += std::min(Most, Distance(A[I], B[I]));
    return Sum / static_cast<double>(A.size());
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
            for (const TileState Each : {TileNormal, TileLit, TileMarked}) {
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
                Found = Shown == Tile(Set, Face, TileNormal);
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
            EXPECT_EQ(Tile(S, A, TileNormal) == Tile(S, B, TileNormal), Same) << A << ' ' << B;
        }
}

// Nearest are the threes and fives of Classic's characters and the tubes of Colors.
TEST(TileSheets, AllFacesOfASetDifferAtAGlanceAlsoWithoutRedAndGreen)
{
    constexpr double Least = 3.9;
    for (int Number = 1; Number <= SetCount; ++Number)
        for (const bool RedGreenBlind : {false, true}) {
            std::vector<std::vector<Lab>> Seen;
            for (int Face = 1; Face <= FaceCount; ++Face)
                Seen.push_back(Glance(Tile(Sheet(Number), Face, TileNormal), RedGreenBlind));
            for (std::size_t A = 0; A < Seen.size(); ++A)
                for (std::size_t B = A + 1; B < Seen.size(); ++B)
                    EXPECT_GE(Apart(Seen[A], Seen[B]), Least)
                        << "set " << Number << " faces " << A + 1 << ' ' << B + 1
                        << (RedGreenBlind ? " without red and green" : "");
        }
}

TEST(TileSheets, PicturesFillTheFieldAndKeepAMargin)
{
    for (int Number = 1; Number <= SetCount; ++Number) {
        const QImage Bare = Blank(Number);
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const Drawn D = DrawnOn(Tile(Sheet(Number), Face, TileNormal), Bare);
            EXPECT_GE(std::max(D.Box.width(), D.Box.height()), 36)
                << "set " << Number << " face " << Face;
            EXPECT_TRUE(QRect(9, 2, 49, 49).contains(D.Box))
                << "set " << Number << " face " << Face;
        }
    }
}

// The heaviest face of a set is no wall beside the lightest.
TEST(TileSheets, FacesOfASetWeighAlike)
{
    for (int Number = 1; Number <= SetCount; ++Number) {
        const QImage Bare = Blank(Number);
        double Least = 1, Most = 0;
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const double Share = DrawnOn(Tile(Sheet(Number), Face, TileNormal), Bare).Share;
            Least = std::min(Least, Share);
            Most = std::max(Most, Share);
        }
        EXPECT_GE(Least, .13) << "set " << Number;
        EXPECT_LE(Most / Least, 6.5) << "set " << Number;
    }
}

TEST(TileSheets, LettersAreLarge)
{
    const QImage Bare = Blank(0);
    for (int Face = 1; Face <= FaceCount; ++Face)
        EXPECT_GE(DrawnOn(Tile(Sheet(0), Face, TileNormal), Bare).Box.height(), 30) << Face;
}

// Measured in grey, so that it holds for every eye: the frames of the three states are far apart.
TEST(TileSheets, StatesDifferInGreyToo)
{
    for (int Number = 0; Number <= SetCount; ++Number)
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const QImage& S = Sheet(Number);
            const double N = FrameGrey(Tile(S, Face, TileNormal)),
                         L = FrameGrey(Tile(S, Face, TileLit)),
                         M = FrameGrey(Tile(S, Face, TileMarked));
            EXPECT_GT(std::abs(N - L), 12) << "set " << Number << " face " << Face;
            EXPECT_GT(std::abs(N - M), 12) << "set " << Number << " face " << Face;
            EXPECT_GT(std::abs(L - M), 12) << "set " << Number << " face " << Face;
        }
}

// Over the whole tile the states are as far from each other as two colours of one box of paints.
TEST(TileSheets, StatesDifferWithoutRedAndGreen)
{
    for (int Number = 0; Number <= SetCount; ++Number)
        for (int Face = 1; Face <= FaceCount; ++Face) {
            double Sum[3] = {};
            int Count = 0;
            for (int Y = 1; Y < 52; ++Y)
                for (int X = 8; X < 59; X += X == 10 && Y > 3 && Y < 49 ? 46 : 1) {
                    Lab Seen[3];
                    for (const TileState S : {TileNormal, TileLit, TileMarked})
                        Seen[S] =
                            LabOf(Deuteranope(LinearOf(Tile(Sheet(Number), Face, S).pixel(X, Y))));
                    Sum[0] += Distance(Seen[TileNormal], Seen[TileLit]);
                    Sum[1] += Distance(Seen[TileNormal], Seen[TileMarked]);
                    Sum[2] += Distance(Seen[TileLit], Seen[TileMarked]);
                    ++Count;
                }
            for (const double Apart : Sum)
                EXPECT_GT(Apart / Count, 20) << "set " << Number << " face " << Face;
        }
}

// A lit or marked tile shows the same picture: what is drawn stays, only the ivory changes.
TEST(TileSheets, StatesLeaveTheFaceUnharmed)
{
    for (int Number = 0; Number <= SetCount; ++Number)
        for (int Face = 1; Face <= FaceCount; ++Face) {
            const QImage& S = Sheet(Number);
            const QImage N = Tile(S, Face, TileNormal);
            int Drawn = 0, Harmed = 0;
            for (int Y = Art.top(); Y <= Art.bottom(); ++Y)
                for (int X = Art.left(); X <= Art.right(); ++X) {
                    if (qGray(N.pixel(X, Y)) > 90) continue; // dark: surely drawn, not ivory
                    ++Drawn;
                    for (const TileState Each : {TileLit, TileMarked})
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
