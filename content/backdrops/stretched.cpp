#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// Weathered boards, laid lengthwise: grain that flows around knots, gaps, nails.
Picture DrawPlanks(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Board = Number(R, "scale", 96), Length = Number(R, "length", 760);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const int Row = static_cast<int>(Y / Board);
        const float Shift = Length * HashUnit(Row, 1, Seed);
        const int Column = static_cast<int>((X + Shift) / Length);
        const unsigned Own = Hash(Row, Column, Seed);
        const float In = Y - static_cast<float>(Row) * Board;
        const float Along = X + Shift - static_cast<float>(Column) * Length;
        const float Edge = std::min({In, Board - In, Along, Length - Along});
        // Knots push the grain lines apart.
        float GrainY = Y, Knot = 0;
        for (int K = 0; K < 2; ++K) {
            const float KX = Length * (0.1F + 0.8F * HashUnit(K, 2, Own));
            const float KY = Board * (0.22F + 0.56F * HashUnit(K, 3, Own));
            const float Size = 5 + 7 * HashUnit(K, 4, Own);
            if (HashUnit(K, 5, Own) < 0.45F) continue;
            const float DX = (Along - KX) / (Size * 3.2F), DY = (In - KY) / Size;
            const float Near = std::exp(-(DX * DX + DY * DY * 0.35F));
            GrainY -= (In - KY) * 0.75F * Near;
            Knot = std::max(
                Knot,
                std::exp(-1.2F * ((Along - KX) * (Along - KX) / 2.2F + (In - KY) * (In - KY)) /
                         (Size * Size)));
        }
        const float Wave = 7 * Fractal(X, Y, 260, 2, Own);
        const float Ring = Fractal((X + 3 * Wave) / 26, GrainY + Wave, 15, 3, Own + 1, 0.6F);
        const float Fibre = Fractal(X / 22, GrainY + Wave, 3.4F, 3, Own + 2, 0.6F);
        const float Stain = Fractal(X / 3, Y, 90, 4, Seed + 3);
        const float Gap = Step(0.6F, 2.6F, Edge);
        float Tone = 0.5F + 0.34F * (HashUnit(7, 7, Own) - 0.5F) + 0.24F * Ring + 0.16F * Fibre +
                     0.16F * Stain - 0.55F * Knot;
        // Two nails at each end of a board.
        const float NX = std::min(Along, Length - Along) - 16;
        const float NY = std::min(In, Board - In) - Board * 0.2F;
        const float Nail = std::hypot(NX, NY);
        if (Nail < 6) Tone -= 0.5F * Step(6, 3, Nail);
        P[I] = Scaled(Shade(Ground, Tone), 0.22F + 0.78F * Gap);
        Relief[I] = 1.3F * Ring + 1.1F * Fibre + 2.6F * Step(0, 5, Edge) +
                    (Nail < 4 ? 1.2F * Step(4, 1, Nail) : 0);
    }
    Light(P, Relief, 0.04F);
    return P;
}

// Noise drawn out in one direction. Keys: scale (thickness), stretch (length to thickness), upright
// (1: streaks run up and down), relief, warp, mottle, fine (share of thin streaks), gloss.
Picture DrawStreaks(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 30), Stretch = Number(R, "stretch", 8);
    const bool Upright = Number(R, "upright", 0) > 0;
    const float Depth = Number(R, "relief", 4), Drag = Number(R, "warp", 20);
    const float Mottle = Number(R, "mottle", 0.3F), Gloss = Number(R, "gloss", 0);
    const float Rough = Number(R, "rough", 0.5F), Terrace = Number(R, "terrace", 0);
    const int Octaves = Count(R, "octaves", 5);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 220, Drag, Seed, 3);
        const float Along = (Upright ? W.Y : W.X) / Stretch, Across = Upright ? W.X : W.Y;
        float H = Fractal(Along, Across, Scale, Octaves, Seed + 1, Rough);
        float Tone = 0.5F + 0.45F * H;
        if (Terrace > 0) {
            // Split layers: flat treads, steep broken edges.
            const float Level = H * Terrace + 0.35F * Fractal(X, Y, 60, 5, Seed + 4, 0.6F);
            const float Tread = std::floor(Level), In = Level - Tread;
            H = (Tread + Step(0.72F, 1, In)) / Terrace +
                0.06F * Fractal(X / 2, Y, 9, 4, Seed + 5, 0.6F);
            Tone = 0.5F + 0.22F * H + 0.18F * (HashUnit(static_cast<int>(Tread), 3, Seed) - 0.5F);
        }
        Tone += Mottle * 0.5F * Fractal(X, Y, 260, 4, Seed + 2) +
                0.05F * (HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 3) - 0.5F);
        P[I] = Shade(Ground, Tone);
        Relief[I] = Depth * H;
    }
    Occlude(P, Relief, 8, 0.05F);
    Light(P, Relief, Gloss);
    return P;
}

// Dry reeds bound side by side: round stems of unequal thickness, with nodes and cracks.
Picture DrawReeds(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 22);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        // Stems lean a little and are unequal: the row of them is stretched by slow noise.
        const float Lean = 9 * Noise(X / 150, Y / 420, Seed) + 7 * Noise(X / 60, 0.5F, Seed + 1);
        const float At = (X + Lean) / Scale;
        const int Stem = static_cast<int>(std::floor(At));
        const unsigned Own = Hash(Stem, 5, Seed);
        const float Off = (At - static_cast<float>(Stem) - 0.5F) * 2;
        const float Node = 130 + 90 * HashUnit(1, 1, Own);
        const float Run = Y + Node * HashUnit(2, 2, Own);
        const float ToNode = std::abs(Run - Node * std::round(Run / Node));
        const float Joint = std::exp(-ToNode * ToNode / 18);
        const float Fibre = Fractal(X, Y / 18, 3.2F, 3, Own + 1, 0.6F);
        const float Patch = Fractal(X, Y / 3, 60, 4, Own + 2);
        const float Round = std::sqrt(std::max(0.0F, 1 - 0.94F * Off * Off));
        Relief[I] = Scale * 0.30F * Round + 0.5F * Fibre + 1.3F * Joint -
                    2.2F * std::exp(-(ToNode - 5) * (ToNode - 5) / 2);
        const float Tone = 0.52F + 0.36F * (HashUnit(3, 3, Own) - 0.5F) + 0.16F * Fibre +
                           0.2F * Patch - 0.18F * Joint;
        P[I] = Scaled(Shade(Ground, Tone), 0.42F + 0.58F * Step(0, 0.45F, Round));
    }
    Light(P, Relief, 0.06F, 14);
    return P;
}

// Old silk: gathered folds, slubs in the weft, a woven figure that has nearly gone.
Picture DrawSilk(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 260), Depth = Number(R, "relief", 60);
    const float Slub = Number(R, "slub", 0.5F), Figure = Number(R, "figure", 0);
    const float Gloss = Number(R, "gloss", 0.3F), Turn = Number(R, "turn", -0.5F);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, Scale * 1.4F, Scale * 0.55F, Seed, 2);
        const float Across = (W.X * std::cos(Turn) + W.Y * std::sin(Turn)) / Scale;
        const float Swell = 0.5F + 0.5F * Fractal(X, Y, Scale * 1.5F, 2, Seed + 1);
        const float Fold =
            std::sin(6.28F * Across) + 0.45F * std::sin(6.28F * 2.3F * Across + 3 * Swell);
        const float Thread = Slub * (Fractal(X / 26, Y, 2.6F, 3, Seed + 2, 0.7F) +
                                     0.4F * Fractal(X, Y / 20, 2.6F, 2, Seed + 3));
        float Woven = 0;
        if (Figure > 0) {
            // Lozenges with a flower of eight petals, as damask has them.
            const float U = (X + 0.05F * Depth * Fold) / 92, V = Y / 92;
            const float A = U + V, B = U - V;
            const float FA = A - std::floor(A) - 0.5F, FB = B - std::floor(B) - 0.5F;
            const float Radius = std::hypot(FA, FB),
                        Petal = 0.25F + 0.07F * std::cos(8 * std::atan2(FB, FA));
            const float Frame = std::max(std::abs(FA), std::abs(FB));
            Woven = Step(0.015F, -0.015F, Radius - Petal) -
                    2 * Step(0.015F, -0.015F, Radius - 0.07F) + Step(0.44F, 0.455F, Frame) -
                    Step(0.475F, 0.49F, Frame);
            Woven *= Figure * Step(-0.5F, 0.5F, Fractal(X, Y, 170, 5, Seed + 6, 0.6F));
        }
        Relief[I] = Depth * 0.5F * Swell * Fold + 0.9F * Thread + 0.25F * Woven;
        P[I] = Shade(Ground, 0.5F + 0.12F * Fold * Swell + 0.13F * Thread + 0.16F * Woven +
                                 0.12F * Fractal(X, Y, 300, 4, Seed + 5));
    }
    Light(P, Relief, Gloss, 9);
    return P;
}
