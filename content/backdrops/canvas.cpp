#include "canvas.h"

#include "noise.h"

#include <QColor>
#include <algorithm>
#include <cmath>
#include <stdexcept>

constexpr int TileSize = 60;

Colour ColourOf(const std::string& Name)
{
    const QColor C(QString::fromStdString(Name));
    if (!C.isValid() || Name.size() != 7) throw std::runtime_error("no colour: " + Name);
    return {static_cast<float>(C.redF()), static_cast<float>(C.greenF()),
            static_cast<float>(C.blueF())};
}

Colour Mix(Colour A, Colour B, float T)
{
    return {A.R + (B.R - A.R) * T, A.G + (B.G - A.G) * T, A.B + (B.B - A.B) * T};
}

Colour Scaled(Colour C, float Factor)
{
    return {C.R * Factor, C.G * Factor, C.B * Factor};
}

Colour Shade(const Palette& P, float T)
{
    const float At = std::clamp(T, 0.0F, 1.0F) * static_cast<float>(P.size() - 1);
    const std::size_t Left = std::min(static_cast<std::size_t>(At), P.size() - 1);
    const std::size_t Right = std::min(Left + 1, P.size() - 1);
    return Mix(P[Left], P[Right], At - static_cast<float>(Left));
}

float Luma(Colour C)
{
    return 0.299F * C.R + 0.587F * C.G + 0.114F * C.B;
}

// Sums over all pixels above and to the left, one row and column larger than the picture.
static std::vector<double> Sums(const Field& F)
{
    std::vector<double> S((Width + 1) * (Height + 1), 0.0);
    for (int Y = 0; Y < Height; ++Y) {
        double Row = 0;
        for (int X = 0; X < Width; ++X) {
            Row += F[Y * Width + X];
            S[(Y + 1) * (Width + 1) + X + 1] = S[Y * (Width + 1) + X + 1] + Row;
        }
    }
    return S;
}

Field Blurred(const Field& F, int Radius)
{
    const std::vector<double> S = Sums(F);
    Field Result(F.size());
    for (int Y = 0; Y < Height; ++Y) {
        const int Y0 = std::max(0, Y - Radius), Y1 = std::min(Height, Y + Radius + 1);
        for (int X = 0; X < Width; ++X) {
            const int X0 = std::max(0, X - Radius), X1 = std::min(Width, X + Radius + 1);
            const double Sum = S[Y1 * (Width + 1) + X1] - S[Y0 * (Width + 1) + X1] -
                               S[Y1 * (Width + 1) + X0] + S[Y0 * (Width + 1) + X0];
            Result[Y * Width + X] = static_cast<float>(Sum / ((X1 - X0) * (Y1 - Y0)));
        }
    }
    return Result;
}

Field Levelled(const Field& F)
{
    Field Sorted = F;
    const auto Percentile = [&Sorted](double Share) {
        const auto At = Sorted.begin() +
                        static_cast<std::ptrdiff_t>(Share * static_cast<double>(Sorted.size() - 1));
        std::nth_element(Sorted.begin(), At, Sorted.end());
        return *At;
    };
    const float Low = Percentile(0.01), High = Percentile(0.99);
    Field Result = F;
    for (float& V : Result) V = std::clamp((V - Low) / (High - Low + 1e-9F), 0.0F, 1.0F);
    return Result;
}

void Light(Picture& P, const Field& Relief, float Gloss, float Shine)
{
    constexpr float LX = 0.48F, LY = -0.56F, LZ = 0.675F; // towards the light, length 1
    // Half-way between the light and the eye, which looks straight down.
    const float HalfLength = std::sqrt(LX * LX + LY * LY + (LZ + 1) * (LZ + 1));
    const float HX = LX / HalfLength, HY = LY / HalfLength, HZ = (LZ + 1) / HalfLength;
    const float FlatGlint = std::pow(HZ, Shine);
    for (int Y = 0; Y < Height; ++Y) {
        const int Up = std::max(0, Y - 1) * Width, Down = std::min(Height - 1, Y + 1) * Width;
        for (int X = 0; X < Width; ++X) {
            const int Left = std::max(0, X - 1), Right = std::min(Width - 1, X + 1);
            const float SX = (Relief[Y * Width + Right] - Relief[Y * Width + Left]) * 0.5F;
            const float SY = (Relief[Down + X] - Relief[Up + X]) * 0.5F;
            const float Length = std::sqrt(SX * SX + SY * SY + 1);
            const float Lambert = std::max(0.0F, (LZ - SX * LX - SY * LY) / Length) / LZ;
            Colour& C = P[Y * Width + X];
            C = Scaled(C, 0.30F + 0.70F * Lambert);
            if (Gloss > 0) {
                const float Facing = std::max(0.0F, (HZ - SX * HX - SY * HY) / Length);
                const float Glint = Gloss * (std::pow(Facing, Shine) - FlatGlint);
                C = {C.R + Glint, C.G + Glint, C.B + Glint};
            }
        }
    }
}

void Occlude(Picture& P, const Field& Relief, int Radius, float Strength)
{
    const Field Around = Blurred(Relief, Radius);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float Depth = std::max(0.0F, Around[I] - Relief[I]);
        P[I] = Scaled(P[I], 1 / (1 + Strength * Depth));
    }
}

void Calm(Picture& P, float Limit)
{
    Field Value(P.size()), Square(P.size()), R(P.size()), G(P.size()), B(P.size());
    for (std::size_t I = 0; I < P.size(); ++I) {
        P[I] = {std::clamp(P[I].R, 0.0F, 1.0F), std::clamp(P[I].G, 0.0F, 1.0F),
                std::clamp(P[I].B, 0.0F, 1.0F)};
        Value[I] = Luma(P[I]);
        Square[I] = Value[I] * Value[I];
        R[I] = P[I].R;
        G[I] = P[I].G;
        B[I] = P[I].B;
    }
    constexpr int Radius = TileSize / 2;
    const Field Mean = Blurred(Value, Radius), MeanSquare = Blurred(Square, Radius);
    Field Keep(P.size()); // the share of the deviation that stays
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float Deviation = std::sqrt(std::max(0.0F, MeanSquare[I] - Mean[I] * Mean[I]));
        Keep[I] = Deviation > Limit ? Limit / Deviation : 1;
    }
    Keep = Blurred(Keep, Radius / 2);
    R = Blurred(R, Radius);
    G = Blurred(G, Radius);
    B = Blurred(B, Radius);
    // Two thirds of it by drawing colours together, which alone would look like fog, the rest by
    // dimming.
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float Dim = std::cbrt(Keep[I]);
        P[I] = Scaled(Mix({R[I], G[I], B[I]}, P[I], Dim * Dim), Dim);
    }
}

void Vignette(Picture& P, float Strength)
{
    for (int Y = 0; Y < Height; ++Y) {
        for (int X = 0; X < Width; ++X) {
            const float DX = (static_cast<float>(X) - CentreX) / CentreX;
            const float DY = (static_cast<float>(Y) - CentreY) / (Height - CentreY);
            Colour& C = P[Y * Width + X];
            C = Scaled(C, 1 - Strength * std::min(2.0F, DX * DX + DY * DY));
        }
    }
}

QImage ToImage(const Picture& P)
{
    QImage Image(Width, Height, QImage::Format_RGB32);
    for (int Y = 0; Y < Height; ++Y) {
        QRgb* Line = reinterpret_cast<QRgb*>(Image.scanLine(Y));
        for (int X = 0; X < Width; ++X) {
            const Colour C = P[Y * Width + X];
            // Two throws give a triangle of one step to either side: no band edge survives it.
            const float Shift = HashUnit(X, Y, 11) + HashUnit(X, Y, 12) - 0.5F;
            const auto Byte = [Shift](float V) {
                return std::clamp(static_cast<int>(std::floor(V * 255 + Shift)), 0, 255);
            };
            Line[X] = qRgb(Byte(C.R), Byte(C.G), Byte(C.B));
        }
    }
    return Image;
}

Picture ToPicture(const QImage& Image)
{
    Picture P;
    P.reserve(Width * Height);
    for (int Y = 0; Y < Height; ++Y) {
        for (int X = 0; X < Width; ++X) {
            const QRgb C = Image.pixel(X, Y);
            P.push_back({static_cast<float>(qRed(C)) / 255, static_cast<float>(qGreen(C)) / 255,
                         static_cast<float>(qBlue(C)) / 255});
        }
    }
    return P;
}
