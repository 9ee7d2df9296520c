// Do tiles stand out from every backdrop? Measured on the made files, in CIE Lab: L runs from 0
// black to 100 white, a distance of 2 is just seen side by side.
#include "art.h"
#include "lab.h"
#include "recipe.h"

#include <QFileInfo>
#include <QImageReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace
{

constexpr int LastBackdrop = 72;
constexpr int WindowStep = 20; // from one measured window to the next

const QRgb Face = QColor(IvoryBody.FaceDark).rgb();

QString PathOf(int Number)
{
    return QStringLiteral(DATA "/BD%1").arg(Number, 4, 10, QLatin1Char('0'));
}

QImage Read(const QString& Path)
{
    QImageReader Reader(Path);
    Reader.setDecideFormatFromContent(true);
    return Reader.read().convertToFormat(QImage::Format_RGB32);
}

// One place of the board, as large as a tile.
struct Window {
    Lab Mean;
    double Unrest; // standard deviation of L
};

struct Measured {
    std::vector<Window> Windows;
    std::vector<Lab> Map;          // 16 by 12 mean colours of the whole picture
    std::array<double, 3> Grain{}; // mean change of L over 1, 4 and 16 pixels
    int LongestRun = 0;            // of equal pixels in a row
};

Measured Measure(const QImage& Image)
{
    std::vector<Lab> P;
    P.reserve(Width * Height);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) P.push_back(LabOf(Image.pixel(X, Y)));
    Measured M;
    for (int Top = 0; Top + TileSize <= BoardHeight; Top += WindowStep) {
        for (int Left = 0; Left + TileSize <= Width; Left += WindowStep) {
            Lab Sum{0, 0, 0};
            double Squares = 0;
            for (int Y = Top; Y < Top + TileSize; ++Y) {
                for (int X = Left; X < Left + TileSize; ++X) {
                    const Lab& C = P[static_cast<std::size_t>(Y * Width + X)];
                    Sum = {Sum.L + C.L, Sum.A + C.A, Sum.B + C.B};
                    Squares += C.L * C.L;
                }
            }
            constexpr double N = TileSize * TileSize;
            const Lab Mean{Sum.L / N, Sum.A / N, Sum.B / N};
            M.Windows.push_back({Mean, std::sqrt(std::max(0.0, Squares / N - Mean.L * Mean.L))});
        }
    }
    for (int Row = 0; Row < 12; ++Row) {
        for (int Column = 0; Column < 16; ++Column) {
            Lab Sum{0, 0, 0};
            for (int Y = Row * 64; Y < Row * 64 + 64; ++Y) {
                for (int X = Column * 64; X < Column * 64 + 64; ++X) {
                    const Lab& C = P[static_cast<std::size_t>(Y * Width + X)];
                    Sum = {Sum.L + C.L / 4096, Sum.A + C.A / 4096, Sum.B + C.B / 4096};
                }
            }
            M.Map.push_back(Sum);
        }
    }
    for (std::size_t I = 0; I < 3; ++I) {
        const int Over = I == 0 ? 1 : I == 1 ? 4 : 16;
        for (int Y = 0; Y < Height; Y += 3)
            for (int X = 0; X + Over < Width; ++X)
                M.Grain[I] += std::abs(P[static_cast<std::size_t>(Y * Width + X + Over)].L -
                                       P[static_cast<std::size_t>(Y * Width + X)].L);
        M.Grain[I] /= Width * (Height / 3.0);
    }
    for (int Y = 0; Y < Height; ++Y) {
        int Run = 1;
        for (int X = 1; X < Width; ++X) {
            // Black on black is no band.
            const bool Same = Image.pixel(X, Y) == Image.pixel(X - 1, Y);
            Run = Same && qGray(Image.pixel(X, Y)) > 2 ? Run + 1 : 1;
            M.LongestRun = std::max(M.LongestRun, Run);
        }
    }
    return M;
}

const Measured& Backdrop(int Number)
{
    static std::map<int, Measured> Known;
    const auto Found = Known.find(Number);
    if (Found != Known.end()) return Found->second;
    return Known[Number] = Measure(Read(PathOf(Number)));
}

double Percentile(std::vector<double> Values, double Share)
{
    std::sort(Values.begin(), Values.end());
    return Values[static_cast<std::size_t>(Share * static_cast<double>(Values.size() - 1))];
}

// How far the best of the colours at a tile's edge is from the ground: the rim and both halves of a
// wall.
double EdgeDistance(const Lab& Ground, std::initializer_list<const char*> Edge)
{
    double Best = 0;
    for (const char* Name : Edge)
        Best = std::max(Best, Distance(Ground, LabOf(QColor(Name).rgb())));
    return Best;
}

} // namespace

TEST(Backdrops, EveryFileHoldsAPictureOfTheScreensSize)
{
    qint64 Bytes = 0;
    for (int I = 0; I <= LastBackdrop; ++I) {
        ASSERT_TRUE(QFileInfo::exists(PathOf(I))) << PathOf(I).toStdString();
        EXPECT_EQ(Read(PathOf(I)).size(), QSize(Width, Height)) << "backdrop " << I;
        Bytes += QFileInfo(PathOf(I)).size();
    }
    EXPECT_LT(Bytes, 25'000'000);
}

TEST(Backdrops, ATilesFaceIsFarLighterThanTheGround)
{
    for (int I = 0; I <= LastBackdrop; ++I) {
        double Lightest = 0, WeakestSignal = 1e9;
        for (const Window& W : Backdrop(I).Windows) {
            Lightest = std::max(Lightest, W.Mean.L);
            WeakestSignal = std::min(WeakestSignal, (LabOf(Face).L - W.Mean.L) / W.Unrest);
        }
        EXPECT_LT(Lightest, LabOf(Face).L - 18) << "backdrop " << I;
        // The step to the face is well above the ground's own ups and downs.
        EXPECT_GT(WeakestSignal, 2.0) << "backdrop " << I;
    }
}

TEST(Backdrops, TheWallsOfEveryBodyStandOutFromTheGround)
{
    for (int I = 0; I <= LastBackdrop; ++I)
        for (const BodyTint* Tint : {&IvoryBody, &JadeBody, &SlateBody, &WoodBody, &SandBody}) {
            double Least = 1e9;
            for (const Window& W : Backdrop(I).Windows)
                Least = std::min({Least,
                                  EdgeDistance(W.Mean, {TileRim, Tint->WallLeft, Tint->EdgeLeft}),
                                  EdgeDistance(W.Mean, {TileRim, Tint->WallFoot, Tint->EdgeFoot})});
            EXPECT_GT(Least, 20) << "backdrop " << I << ", body " << Tint->Name;
        }
}

// A tile's face, by lightness alone, so that it holds for every eye.
TEST(Backdrops, TheFaceOfEveryBodyIsLighterThanTheGround)
{
    for (int I = 0; I <= LastBackdrop; ++I)
        for (const BodyTint* Tint : {&IvoryBody, &JadeBody, &SlateBody, &WoodBody, &SandBody}) {
            const double Light =
                (LabOf(QColor(Tint->FaceDark).rgb()).L + LabOf(QColor(Tint->FaceLight).rgb()).L) /
                2;
            for (const Window& W : Backdrop(I).Windows)
                ASSERT_GT(Light - W.Mean.L, 12) << "backdrop " << I << ", body " << Tint->Name;
        }
}

TEST(Backdrops, TheGroundIsCalmWithinATilesSize)
{
    for (int I = 0; I <= LastBackdrop; ++I) {
        std::vector<double> Unrest;
        for (const Window& W : Backdrop(I).Windows) Unrest.push_back(W.Unrest);
        EXPECT_LT(Percentile(Unrest, 0.95), 13) << "backdrop " << I;
        EXPECT_LT(Percentile(Unrest, 1), 16) << "backdrop " << I;
    }
}

TEST(Backdrops, NoneIsEmptyOrShowsBands)
{
    for (int I = 0; I <= LastBackdrop; ++I) {
        const Measured& M = Backdrop(I);
        EXPECT_GT(M.Grain[2], 0.5) << "backdrop " << I; // something is there to see
        // A band of a gradient is a wide stretch of one and the same colour.
        EXPECT_LT(M.LongestRun, 64) << "backdrop " << I;
    }
}

TEST(Backdrops, NoTwoLookAlike)
{
    for (int I = 0; I <= LastBackdrop; ++I) {
        for (int J = I + 1; J <= LastBackdrop; ++J) {
            const Measured &P = Backdrop(I), &Q = Backdrop(J);
            double Apart = 0;
            for (std::size_t K = 0; K < P.Map.size(); ++K)
                Apart += Distance(P.Map[K], Q.Map[K]) / static_cast<double>(P.Map.size());
            // Of one colour, they may still differ in the grain of their texture.
            for (std::size_t K = 0; K < P.Grain.size(); ++K)
                Apart += 2 * std::abs(P.Grain[K] - Q.Grain[K]);
            EXPECT_GT(Apart, 6) << "backdrops " << I << " and " << J;
        }
    }
}

TEST(SampleSheets, EveryCellShowsItsBackdrop)
{
    const std::vector<Recipe> Recipes = ReadRecipes(BACKDROP_TABLE);
    for (int Group = 0; Group < 2; ++Group) {
        const QImage Sheet = Read(PathOf(9000 + Group));
        ASSERT_EQ(Sheet.size(), QSize(12 * TileSize, 3 * TileSize));
        for (int Cell = 0; Cell < 36; ++Cell) {
            const int Number = Group * 36 + Cell + 1;
            const QRect Inner(Cell % 12 * TileSize + 4, Cell / 12 * TileSize + 4, TileSize - 8,
                              TileSize - 8);
            const int Side = Count(Recipes[static_cast<std::size_t>(Number)], "sample", 300);
            const QRect Piece(512 - Side / 2, 308 - Side / 2, Side, Side);
            const auto Mean = [](const QImage& Image, const QRect& Part) {
                return LabOf(Image.copy(Part)
                                 .scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                 .pixel(0, 0));
            };
            EXPECT_LT(Distance(Mean(Sheet, Inner), Mean(Read(PathOf(Number)), Piece)), 6)
                << "backdrop " << Number;
        }
    }
}
