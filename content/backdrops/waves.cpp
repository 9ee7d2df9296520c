#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// Rings that run out from a few sources and cross each other.
Picture DrawEcho(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Length = Number(R, "scale", 62), Depth = Number(R, "relief", 5);
    struct Source {
        float X, Y, Strength;
    };
    const Source Sources[] = {{CentreX, CentreY, 1.0F}, {150, 640, 0.5F}, {930, 90, 0.5F}};
    Field Wave(Width * Height);
    for (std::size_t I = 0; I < Wave.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 320, 26, Seed, 2);
        for (const Source& S : Sources) {
            const float Off = std::hypot(W.X - S.X, W.Y - S.Y);
            Wave[I] += S.Strength * std::sin(6.28F * Off / Length) / (1 + Off / 520);
        }
    }
    Picture P = PictureOf([&](float X, float Y) {
        const float Off = std::hypot(X - CentreX, Y - CentreY) / 640;
        return Shade(Ground, 0.62F - 0.36F * Off + 0.16F * Wave[Pixel(X, Y)] +
                                 0.10F * Fractal(X, Y, 260, 4, Seed + 1));
    });
    Field Relief = Wave;
    for (float& H : Relief) H *= Depth;
    Light(P, Relief, 0.25F, 12);
    return P;
}

// A carved panel: rosettes in a net of crossing grooves, cut with a flat chisel.
Picture DrawCarved(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 132), Depth = Number(R, "relief", 9);
    Field Relief(Width * Height);
    for (std::size_t I = 0; I < Relief.size(); ++I) {
        const float X = static_cast<float>(I % Width) - CentreX,
                    Y = static_cast<float>(I / Width) - CentreY;
        const float U = X / Scale, V = Y / Scale;
        const float FU = U - std::round(U), FV = V - std::round(V);
        const float Radius = std::hypot(FU, FV), Angle = std::atan2(FV, FU);
        // Interlaced circles around every corner and centre.
        const float CU = FU - std::copysign(0.5F, FU), CV = FV - std::copysign(0.5F, FV);
        const float Corner = std::hypot(CU, CV);
        const auto Groove = [](float Off, float Half) { return Step(Half, 0, std::abs(Off)); };
        const float Petal = 0.25F * std::abs(std::cos(4 * Angle)) + 0.06F;
        float H =
            0.9F * Step(0.03F, -0.05F, Radius - Petal) * (0.6F + 0.4F * Step(0, 0.3F, Radius));
        H += 0.6F * Step(0.055F, 0.02F, Radius);
        H -= 0.75F * Groove(Radius - 0.385F, 0.035F) + 0.75F * Groove(Corner - 0.385F, 0.035F);
        H += 0.8F * Step(0.16F, 0.02F, Corner);
        H -= 0.5F * Groove(Corner - 0.21F, 0.025F);
        const float Chisel = Fractal(X / 3, Y, 10, 3, Seed + 1, 0.6F);
        Relief[I] = Depth * H + 0.7F * Chisel;
    }
    Relief = Blurred(Relief, 1);
    Picture P = PictureOf([&](float X, float Y) {
        const float H = Relief[Pixel(X, Y)] / Depth;
        return Shade(Ground, 0.46F + 0.14F * H + 0.26F * Fractal(X / 5, Y, 40, 5, Seed + 2) +
                                 0.1F * Fractal(X, Y, 300, 3, Seed + 3));
    });
    Occlude(P, Relief, 9, 0.10F);
    Light(P, Relief, 0.14F, 16);
    return P;
}

// Bits of coloured glass between mirrors.
Picture DrawKaleidoscope(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Glass = Colours(R, "ground");
    const float Mirrors = Number(R, "mirrors", 6), Scale = Number(R, "scale", 92);
    const float Wedge = 3.14159265F / Mirrors;
    const auto Folded = [&](float X, float Y) {
        const float DX = X - CentreX, DY = Y - CentreY, Radius = std::hypot(DX, DY);
        float Angle = std::atan2(DY, DX) + 0.26F;
        Angle = std::abs(Angle - 2 * Wedge * std::round(Angle / (2 * Wedge)));
        // A mirrored triangle: beyond the rim the picture folds back.
        const float U = Radius * std::cos(Angle), V = Radius * std::sin(Angle), Rim = 330;
        return Warp(std::abs(U - 2 * Rim * std::round(U / (2 * Rim))) + 900, V + 300, 130, 34, Seed,
                    2);
    };
    const auto Bit = [&](float X, float Y) {
        const Place W = Folded(X, Y);
        const Cell Piece = CellAt(W.X, W.Y, Scale, Seed + 1);
        const Cell Small = CellAt(W.X, W.Y, Scale * 0.45F, Seed + 2);
        const std::size_t Tone = Piece.Id % Glass.size();
        // Each piece is cut in facets, and light falls through it from one side.
        const float Slant = 6.2832F * CellUnit(Piece, 3);
        const float Through =
            ((W.X - Piece.X) * std::cos(Slant) + (W.Y - Piece.Y) * std::sin(Slant)) / Scale;
        const float Shine = 0.92F + 0.55F * Through + 0.42F * (CellUnit(Small, 2) - 0.5F);
        const Colour C = Mix(Scaled(Glass[Tone], Shine), {1, 0.96F, 0.88F},
                             0.16F * std::max(0.0F, Through) + 0.10F * CellUnit(Small, 5));
        const float Lead = std::exp(-Piece.Border * Scale / 1.3F),
                    Fine = 0.22F * std::exp(-Small.Border * Scale / 1.6F);
        return Mix(C, Colour{0.10F, 0.05F, 0.12F}, std::max(0.8F * Lead, Fine));
    };
    // Four samples a pixel: the mirrored edges are sharp.
    return PictureOf([&](float X, float Y) {
        const Colour A = Mix(Bit(X - 0.25F, Y - 0.25F), Bit(X + 0.25F, Y - 0.25F), 0.5F);
        return Mix(A, Mix(Bit(X - 0.25F, Y + 0.25F), Bit(X + 0.25F, Y + 0.25F), 0.5F), 0.5F);
    });
}

// Spirals struck into rock in the old way, worn off in places: only the light shows them.
Picture DrawEmboss(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Pitch = Number(R, "scale", 150), Depth = Number(R, "relief", 4);
    const float Radius = Pitch * 0.40F, Turns = 3;
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 70, 5, Seed + 5, 3);
        const int Row = static_cast<int>(std::floor(W.Y / (Pitch * 0.86F)));
        const float Shift = Row % 2 == 0 ? 0 : 0.5F;
        const int Column = static_cast<int>(std::floor(W.X / Pitch - Shift));
        const float DX = W.X - (static_cast<float>(Column) + Shift + 0.5F) * Pitch;
        const float DY = W.Y - (static_cast<float>(Row) + 0.5F) * Pitch * 0.86F;
        const float Hand = (Row + Column) % 2 == 0 ? 1.0F : -1.0F;
        const float Off = std::hypot(DX, DY), Angle = Hand * std::atan2(DY, DX) / 6.2832F;
        const float Arm = Off / Radius * Turns - Angle;
        const float Groove =
            std::cos(6.2832F * Arm) * Step(Radius, Radius * 0.93F, Off) * Step(1, 7, Off);
        const float Ring = Step(3.5F, 1, std::abs(Off - Radius * 1.07F));
        const Place Bent = Warp(X, Y, 120, 40, Seed);
        const float Rock = Fractal(Bent.X, Bent.Y, 90, 7, Seed + 1, 0.6F);
        const float Left = 0.25F + 0.75F * Step(-0.45F, 0.15F, Fractal(X, Y, 190, 4, Seed + 2));
        Relief[I] = Depth * Left * (std::tanh(2 * Groove) * 0.6F + Ring) + 6 * Rock;
        P[I] = Shade(Ground, 0.5F + 0.36F * Rock + 0.05F * Left * (Groove + Ring));
    }
    Occlude(P, Relief, 6, 0.10F);
    Light(P, Relief);
    return P;
}
