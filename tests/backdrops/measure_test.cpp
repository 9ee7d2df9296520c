// Do tiles stand out from every backdrop? Measured on the made files, in CIE Lab: L runs from 0 black
// to 100 white, a distance of 2 is just seen side by side.
#include "recipe.h"

#include <QFileInfo>
#include <QImageReader>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace
{

constexpr int LastBackdrop = 72, TileSize = 60;
constexpr int WindowStep = 20;  // from one measured window to the next

struct Lab {
    double L, A, B;
};

// What a tile shows at its edges: the face, the walls to the left and below, the outline.
constexpr QRgb Face = 0xffeee3c6, LeftWall = 0xff3f8f63, LowerWall = 0xff27694a,
               Outline = 0xff5b4a28;

Lab LabOf(QRgb C)
{
    static const auto Linear = [] {
        std::array<double, 256> Table{};
        for (int I = 0; I < 256; ++I) {
            const double V = I / 255.0;
            Table[static_cast<std::size_t>(I)] =
                V <= 0.04045 ? V / 12.92 : std::pow((V + 0.055) / 1.055, 2.4);
        }
        return Table;
    }();
    const auto Part = [](int V) { return Linear[static_cast<std::size_t>(V)]; };
    const double R = Part(qRed(C)), G = Part(qGreen(C)), B = Part(qBlue(C));
    const auto Root = [](double T) {
        return T > 0.008856 ? std::cbrt(T) : 7.787 * T + 16.0 / 116;
    };
    const double X = Root((0.4124 * R + 0.3576 * G + 0.1805 * B) / 0.9505);
    const double Y = Root(0.2126 * R + 0.7152 * G + 0.0722 * B);
    const double Z = Root((0.0193 * R + 0.1192 * G + 0.9505 * B) / 1.089);
    return {116 * Y - 16, 500 * (X - Y), 200 * (Y - Z)};
}

double Distance(const Lab& P, const Lab& Q)
{
    return std::sqrt((P.L - Q.L) * (P.L - Q.L) + (P.A - Q.A) * (P.A - Q.A) +
                     (P.B - Q.B) * (P.B - Q.B));
}

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
    double Unrest;  // standard deviation of L
};

struct Measured {
    std::vector<Window> Windows;
    std::vector<Lab> Map;  // 16 by 12 mean colours of the whole picture
    std::array<double, 3> Grain{};  // mean change of L over 1, 4 and 16 pixels
    int LongestRun = 0;    // of equal pixels in a row that is part of a slow gradient
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
            M.Windows.push_back(
                {Mean, std::sqrt(std::max(0.0, Squares / N - Mean.L * Mean.L))});
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
            Run = Image.pixel(X, Y) == Image.pixel(X - 1, Y) ? Run + 1 : 1;
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

// How far the better of the two colours at a tile's edge is from the ground.
double EdgeDistance(const Lab& Ground, QRgb Inner)
{
    return std::max(Distance(Ground, LabOf(Inner)), Distance(Ground, LabOf(Outline)));
}

} // namespace

TEST(Backdrops, TableOfFigures)
{
    for (int I = 0; I <= LastBackdrop; ++I) {
        const Measured& M = Backdrop(I);
        std::vector<double> L, U, W, N;
        for (const Window& X : M.Windows) {
            L.push_back(X.Mean.L);
            U.push_back(X.Unrest);
            W.push_back(std::min(EdgeDistance(X.Mean, LeftWall), EdgeDistance(X.Mean, LowerWall)));
            N.push_back((LabOf(Face).L - X.Mean.L) / X.Unrest);
        }
        std::printf("%2d L %5.1f..%5.1f unrest %5.1f max %5.1f edge %5.1f signal %5.1f run %d grain %.2f %.2f %.2f\n", I,
                    Percentile(L, 0), Percentile(L, 1), Percentile(U, 0.95), Percentile(U, 1), Percentile(W, 0), Percentile(N, 0), M.LongestRun, M.Grain[0], M.Grain[1], M.Grain[2]);
    }
}
