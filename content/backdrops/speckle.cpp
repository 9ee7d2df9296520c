#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

static float WhiteNoise(float X, float Y, unsigned Seed)
{
    return HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed) - 0.5F;
}

// Polished stone of interlocking crystals: a mass of small grains, larger pale crystals in it, dark
// flecks over both.
Picture DrawGranite(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Mass = Colours(R, "ground"), Crystal = Colours(R, "crystal");
    const Palette Fleck = Colours(R, "fleck");
    const float Scale = Number(R, "scale", 9);
    const float Crystals = Number(R, "crystals", 0.3F), Flecks = Number(R, "flecks", 0.16F);
    return PictureOf([&](float X, float Y) {
        // Crystal borders are ragged, never straight.
        const Place Ragged = Warp(X, Y, Scale * 0.9F, Scale * 0.30F, Seed, 2);
        const Cell Grain = CellAt(Ragged.X, Ragged.Y, Scale, Seed + 1);
        const float Cluster = 0.5F + 0.5F * Fractal(Grain.X, Grain.Y, Scale * 9, 3, Seed + 2);
        Colour C = Shade(Mass, 0.55F * CellUnit(Grain, 1) + 0.45F * Cluster);
        const Cell Large = CellAt(Ragged.X + 500, Ragged.Y, Scale * 2.3F, Seed + 3);
        if (CellUnit(Large, 2) < Crystals * (0.5F + Cluster)) {
            // Cleavage: faint parallel bands in a direction of the crystal's own.
            const float Turn = 6.28F * CellUnit(Large, 3);
            const float Band = std::sin((X * std::cos(Turn) + Y * std::sin(Turn)) * 1.1F);
            const Colour Face = Shade(Crystal, CellUnit(Large, 4) + 0.10F * Band);
            C = Mix(C, Face, 0.85F * Step(0.02F, 0.10F, Large.Border));
        }
        const Cell Dark = CellAt(Ragged.X, Ragged.Y + 900, Scale * 1.25F, Seed + 4);
        if (CellUnit(Dark, 5) < Flecks * (0.4F + 1.2F * Cluster))
            C = Mix(C, Shade(Fleck, CellUnit(Dark, 6)), 0.9F * Step(0.0F, 0.12F, Dark.Border));
        return Scaled(C, 1 + 0.10F * WhiteNoise(X, Y, Seed + 9) +
                             0.05F * Fractal(X, Y, 420, 2, Seed + 8));
    });
}

// Grains of sand in the long shallow ripples that wind leaves.
Picture DrawSand(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Odd = Colours(R, "odd");
    const float Scale = Number(R, "scale", 3.2F), Ripple = Number(R, "ripple", 58);
    const Field Dune = FieldOf([&](float X, float Y) {
        const Place W = Warp(X, Y, 300, 70, Seed, 2);
        const float Phase = (W.Y + 0.22F * W.X) / Ripple + 0.25F * Fractal(X, Y, 90, 2, Seed + 4);
        const float T = Phase - std::floor(Phase);
        // The lee side is steep, the windward side long.
        const float Crest = T < 0.7F ? Step(0, 1, T / 0.7F) : Step(0, 1, (1 - T) / 0.3F);
        return Crest * Ripple * 0.12F * (0.7F + 0.5F * Fractal(X, Y, 200, 2, Seed + 5));
    });
    Picture P(Width * Height);
    Field Relief(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Cell Grain = CellAt(X, Y, Scale, Seed + 1);
        const float Tone = CellUnit(Grain, 1);
        const float Slow = Fractal(X, Y, 260, 3, Seed + 2);
        P[I] = Shade(Ground, 0.5F + 0.55F * (Tone - 0.5F) + 0.16F * Slow + 0.02F * Dune[I]);
        if (CellUnit(Grain, 2) < 0.05F) P[I] = Mix(P[I], Shade(Odd, Tone), 0.6F);
        const float Dome = std::sqrt(std::max(0.0F, 1 - Grain.Near * Grain.Near));
        Relief[I] = Dune[I] + 0.33F * Scale * Dome * (0.6F + 0.6F * CellUnit(Grain, 3));
    }
    Light(P, Relief, 0.05F, 12);
    return P;
}

// A skin as under the microscope: one winding fold, everywhere equally wide.
Picture DrawMicro(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 7);
    const Field Fold = FieldOf([&](float X, float Y) {
        const Place W = Warp(X, Y, Scale * 3, Scale * 0.6F, Seed, 1);
        // The difference of a noise and its coarser self keeps one width only.
        return std::tanh(3.2F * (Noise(W.X / Scale, W.Y / Scale, Seed) -
                                 0.5F * Noise(W.X / Scale / 2, W.Y / Scale / 2, Seed + 1)));
    });
    Picture P = PictureOf([&](float X, float Y) {
        const float Slow = Fractal(X, Y, 260, 4, Seed + 5);
        return Shade(Ground, 0.5F + 0.22F * Fold[Pixel(X, Y)] + 0.2F * Slow +
                                 0.06F * WhiteNoise(X, Y, Seed + 6));
    });
    Field Relief = Fold;
    for (float& H : Relief) H *= Scale * 0.13F;
    Light(P, Relief, 0.12F, 18);
    return P;
}

// Scratches that a hard edge left, most of them in one direction: a groove with a bright burr.
static void Scratch(Picture& P, Field& Relief, int Scratches, unsigned Seed)
{
    Dice D{Seed};
    for (int I = 0; I < Scratches; ++I) {
        const float X0 = Throw(D, -60, Width), Y0 = Throw(D, -60, Height);
        const float Turn = Throw(D, 0, 1) < 0.75F ? Throw(D, -1.0F, -0.5F) : Throw(D, 0, 3.1F);
        const float Length = Throw(D, 0, 1) * Throw(D, 20, 300), Bend = Throw(D, -0.0012F, 0.0012F);
        const float Depth = Throw(D, 0.4F, 2.0F), Half = Throw(D, 0.7F, 1.5F);
        for (float T = 0; T < Length; T += 0.5F) {
            const float Angle = Turn + Bend * T;
            const float X = X0 + T * std::cos(Angle), Y = Y0 + T * std::sin(Angle);
            const float Deep = Depth * Step(0, 0.15F, T / Length) * Step(0, 0.3F, 1 - T / Length);
            for (int DY = -2; DY <= 2; ++DY) {
                for (int DX = -2; DX <= 2; ++DX) {
                    const int PX = static_cast<int>(X) + DX, PY = static_cast<int>(Y) + DY;
                    if (PX < 0 || PY < 0 || PX >= Width || PY >= Height) continue;
                    const float Off =
                        std::hypot(static_cast<float>(PX) - X, static_cast<float>(PY) - Y);
                    const float Cut = Deep * std::max(0.0F, 1 - Off / (Half + 0.5F));
                    float& H = Relief[PY * Width + PX];
                    if (-Cut < H) {
                        H = -Cut;
                        Colour& C = P[PY * Width + PX];
                        C = Mix(C, Scaled(C, 1.4F), std::min(1.0F, 0.6F * Cut));
                    }
                }
            }
        }
    }
}

Picture DrawScratched(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 130), Rough = Number(R, "rough", 1.6F);
    Picture P = PictureOf([&](float X, float Y) {
        const Place W = Warp(X, Y, Scale, Scale * 0.4F, Seed);
        const float Tone = Fractal(W.X, W.Y, Scale, 6, Seed + 1, 0.6F);
        return Shade(Ground, 0.5F + 0.4F * Tone + 0.16F * WhiteNoise(X, Y, Seed + 2));
    });
    Field Relief(Width * Height, 0.0F);
    Scratch(P, Relief, Count(R, "scratches", 420), Seed + 3);
    for (std::size_t I = 0; I < Relief.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        Relief[I] += Rough * Fractal(X, Y, 14, 4, Seed + 4, 0.6F);
    }
    Light(P, Relief, 0.06F);
    return P;
}
