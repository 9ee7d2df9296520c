// hills.cpp: ridges, peaks, pillars, mesas and dunes, each a crest with a lit and a shaded side.

#include "scene.h"

#include <algorithm>
#include <cmath>

Rgb RockColour(const Scene& P)
{
    static constexpr std::uint32_t Rocks[] = {0x8c8478, 0x7c8088, 0x9c8068, 0x888c78, 0x94847c};
    return Hex(Rocks[P.Seed % 5]);
}

Rgb WoodColour(const Scene& P)
{
    if (P.Snow) return Hex(0xa8b8c4);
    return Mix(Hex(P.S->LeafMid), Hex(P.S->Grass), 0.4f);
}

// Share of the height, 0 to 1, that the crest reaches at X.
static float CrestAt(const HillLook& Look, float X, std::uint32_t Seed)
{
    const float U = X / Look.Grain;
    switch (Look.Kind) {
    case Hill::Soft:
        return 0.15f + 0.85f * Fbm(U * 0.8f, 0.3f, 4, Seed);
    case Hill::Karst: {
        const float Cell = std::floor(U), In = U - Cell;
        const float Tall = 0.3f + 0.7f * Noise(Cell * 1.7f + 0.5f, 3.3f, Seed);
        const float Off = (In - 0.5f) / (0.30f + 0.2f * Noise(Cell, 8.1f, Seed));
        const float Body = std::pow(std::max(0.0f, 1 - std::pow(std::fabs(Off), 2.6f)), 0.5f);
        return std::max(0.08f, Tall * Body) + 0.07f * (Fbm(U * 6, 1, 4, Seed + 3) - 0.5f);
    }
    case Hill::Mesa: {
        const float F = Fbm(U * 0.9f, 0.2f, 3, Seed);
        const float Step = Smooth(0.44f, 0.48f, F) * 0.55f + Smooth(0.55f, 0.575f, F) * 0.35f;
        return 0.08f + Step + 0.05f * Fbm(U * 7, 3, 3, Seed + 1);
    }
    case Hill::Cone: {
        const float Off = std::fabs(X - Look.Centre) / Look.Grain;
        const float Slope = std::exp(-Off * 1.55f);
        return std::min(Slope, 0.86f + 0.03f * Noise(X / 7, 2, Seed)) / 0.88f +
               0.035f * (Fbm(X / 40, 2, 4, Seed) - 0.5f);
    }
    case Hill::Cliff: {
        const float F = Fbm(U * 0.7f, 0.4f, 3, Seed);
        return 0.35f + 0.5f * Smooth(0.35f, 0.6f, F) + 0.1f * Fbm(U * 5, 1, 4, Seed + 1);
    }
    default: // painted from a terrain
        return 0;
    }
}

// Terrain: mountains and dunes are true landscapes, worked out from the front to the back, so that
// ridges run down from the summits, hide each other and have a sunny and a shaded side.
// Height of the ground, about 0 to 1; U in summits to the side, V 0 at the foot to 1 at the back.
static float MountainAt(float U, float V, std::uint32_t Seed)
{
    const float Bent = 0.8f * Fbm(U * 0.8f, V * 1.6f, 2, Seed + 1);
    const float Rise = Smooth(-0.25f, 0.75f, V) * (1 - 0.6f * Smooth(0.8f, 1.15f, V));
    const float Massif =
        0.25f + 0.75f * Smooth(0.1f, 0.9f, Noise(U * 1.1f + 7, V * 1.1f, Seed + 2));
    return Rise * Massif * (0.16f + 0.84f * Ridged(U * 0.95f + Bent, V * 1.5f + Bent, 5, Seed));
}

static float DuneAt(float U, float V, std::uint32_t Seed)
{
    const float Bent =
        1.3f * Noise(U * 0.7f, V * 1.3f, Seed) + 0.16f * Noise(U * 2.1f, V * 4, Seed);
    const float Place = U * 0.6f + V * 1.3f + Bent, In = Place - std::floor(Place);
    const float Tall = 0.4f + 0.6f * Noise(U * 0.7f + 3, std::floor(Place) + 0.5f, Seed + 1);
    // a long hollow windward slope up to an edge, and a short slip beyond it
    const float Shape = In < 0.72f ? std::pow(In / 0.72f, 1.7f) : Smooth(1, 0.70f, In);
    return 0.2f * V + 0.8f * Tall * Shape * Smooth(-0.02f, 0.3f, V);
}

static std::vector<float> PaintTerrain(Scene& P, const HillLook& Look, std::uint32_t Seed)
{
    constexpr int Depth = 150; // steps from the foot to the back
    const bool Dune = Look.Kind == Hill::Dune;
    const float Rise = Look.Foot - Look.Top, Lay = Dune ? 0.42f : 0.18f; // how we look down on it
    std::vector<float> Heights(std::size_t(Width + 1) * (Depth + 1));
    const auto Ground = [&](int X, int Z) -> float& {
        return Heights[std::size_t(Z * (Width + 1) + X)];
    };
    float Highest = 0.05f;
    for (int Z = 0; Z <= Depth; ++Z)
        for (int X = 0; X <= Width; ++X) {
            const float U = (float(X) + 2000) / Look.Grain, V = float(Z) / Depth;
            const float Off = (float(X) - Look.Centre) / Look.Spread;
            Ground(X, Z) = ((Dune ? DuneAt(U, V, Seed) : MountainAt(U, V, Seed)) + V * Lay) *
                           std::exp(-Off * Off);
            Highest = std::max(Highest, Ground(X, Z));
        }
    const float Scale = Rise / Highest; // the highest summit stands at Top, wherever chance put it
    const Rgb Haze = Hex(P.L->Haze), White = Hex(0xf4f8ff), Woods = WoodColour(P);
    std::vector<float> Crest(Width, Look.Foot);
    Mask Covered(Width * Height, 0.0f);
    const Rgb Below = Mix(Lit(P, Look.Local, 0.45f, Look.Far), Haze, Look.Mist * 0.85f);
    const float Side = P.SunX > 360 ? -1.0f : 1.0f; // slopes that fall towards the sun are lit
    for (int X = 0; X < Width; ++X) {
        for (int Y = std::max(0, int(Look.Foot)); Y < Height; ++Y) At(P.C, X, Y) = Below;
        float& Top = Crest[std::size_t(X)];
        for (int Z = 0; Z < Depth; ++Z) {
            const float V = float(Z) / Depth, Here = Ground(X, Z);
            const float Y = Look.Foot - Here * Scale;
            if (Y >= Top) continue;
            // the fall of the ground to the side and towards us
            const int Left = std::max(X - 3, 0), Right = std::min(X + 3, Width);
            float Fall = (Ground(Right, Z) - Ground(Left, Z)) * Rise / float(Right - Left) *
                         (Dune ? 2.4f : 1.3f);
            const float Back = (Ground(X, std::min(Z + 3, Depth)) - Ground(X, std::max(Z - 3, 0))) *
                               (Dune ? 5 : 3.5f);
            if (Back < 0 && Dune) Fall *= Smooth(-0.6f, 0, Back); // we see the edge of it only
            const float Norm = std::sqrt(1 + Fall * Fall + Back * Back);
            const float Sun = (Side * Fall * 0.9f - std::max(Back, 0.0f) * 0.16f + 0.40f) / Norm;
            float Shade = Clamp(0.26f + 0.85f * Sun);
            const float FX = float(X), Flat = 1 / Norm, High = Here * Scale / Rise;
            const float Mottle = Fbm(FX / 9, V * 60, 3, Seed + 3);
            Rgb Local = Times(Look.Local, 0.84f + 0.32f * Mottle);
            if (Look.Trees > 0) {
                const float Wooded = Smooth(0.75f, 0.55f, High + 0.5f * (Mottle - 0.5f)) *
                                     Smooth(0.25f, 0.5f, Flat + 0.3f * Look.Trees);
                Local = Mix(Local, Times(Woods, 0.5f + 0.5f * Mottle), 0.85f * Wooded);
            }
            if (Look.Snow > 0) { // it slides off what is steep
                const float Cover = Smooth(-0.10f, 0.10f,
                                           High - (1 - Look.Snow) * 0.95f + 0.9f * (Flat - 0.66f) +
                                               0.35f * (Mottle - 0.5f));
                Local = Mix(Local, White, 0.94f * Cover);
                Shade = Lerp(Shade, Clamp(0.16f + 0.95f * Shade), Cover);
            }
            Rgb Colour = Lit(P, Local, Shade, Look.Far + 0.35f * Look.Mist * V);
            for (int PY = std::max(0, int(Y)); PY < int(Top) + 1 && PY < Height; ++PY) {
                const float Low = Smooth(0.55f, -0.05f, (Look.Foot - float(PY)) / Rise);
                const std::size_t I = std::size_t(PY * Width + X);
                Blend(P.C, X, PY, Mix(Colour, Haze, Look.Mist * 0.85f * Low),
                      Clamp(float(PY) + 1 - Y));
                Covered[I] = 1;
                P.C.Flow[I] = Dune ? 0.12f : Pi / 2 + Clamp(Fall, -1.2f, 1.2f) * 0.8f;
            }
            Top = Y;
        }
    }
    const float Broad = Clamp(4.2f - 1.1f * Look.Far, 2.0f, 4.5f);
    Repaint(P.C, &Covered, {{Broad, 4, -1, 0.04f}, {Broad * 0.5f, 4, 0.06f, 0.03f}});
    return Crest;
}

std::vector<float> PaintHill(Scene& P, const HillLook& Look)
{
    const std::uint32_t Seed = P.Seed + std::uint32_t(Look.Foot * 7 + Look.Top * 3);
    if (Look.Kind == Hill::Alpine || Look.Kind == Hill::Dune) {
        const std::vector<float> Crest = PaintTerrain(P, Look, Seed);
        if (Look.Trees > 0 && Look.Kind == Hill::Alpine && Look.Far < 1)
            Wood(P, std::vector<float>(Width, Look.Foot - 2), 0, Width, 11 - 4 * Look.Far, Look.Far,
                 Look.Trees);
        return Crest;
    }
    const float Rise = Look.Foot - Look.Top;
    std::vector<float> Crest(Width);
    float Highest = 0.05f;
    for (int X = 0; X < Width; ++X) {
        float Share = CrestAt(Look, float(X) + 2000, Seed);
        if (Look.Kind == Hill::Cone) Share = CrestAt(Look, float(X), Seed);
        const float Off = (float(X) - Look.Centre) / Look.Spread;
        if (Look.Kind != Hill::Cone) Share *= std::exp(-Off * Off);
        Crest[std::size_t(X)] = Share;
        Highest = std::max(Highest, Share);
    }
    // the highest crest stands at Top, wherever chance has put it
    const float Stretch = Look.Kind == Hill::Karst ? 1 / Highest : 1;
    for (float& Y : Crest) Y = Look.Foot - Rise * Y * Stretch;
    const bool Steep =
        Look.Kind == Hill::Cone || Look.Kind == Hill::Karst || Look.Kind == Hill::Cliff;
    Mask Covered(Width * Height, 0.0f);
    const Rgb Below = Mix(Lit(P, Look.Local, 0.45f, Look.Far), Hex(P.L->Haze), Look.Mist * 0.85f);
    const Rgb White = Hex(0xf4f8ff), Woods = WoodColour(P);
    for (int X = 0; X < Width; ++X) {
        const float Top = Crest[std::size_t(X)];
        const float Side = SunSide(P, float(X));
        for (int Y = std::max(0, int(Top)); Y < Height; ++Y) {
            if (float(Y) > Look.Foot + 40 && Y > 0) { // nearer things will cover it
                At(P.C, X, Y) = Below;
                continue;
            }
            const float Down = float(Y) - Top, FX = float(X), FY = float(Y);
            // the facets: noise drawn out down the slope, lit by its rise towards the sun
            const float G = Look.Grain * (Steep ? 0.32f : 0.55f);
            const float Bent = FX + Down * 0.5f * (Noise(FX / G, 9, Seed) - 0.5f);
            const auto Height2 = [&](float Offset) {
                return Steep ? Ridged((Bent + Offset) / G, FY / (G * 2.4f), 3, Seed + 5)
                             : Fbm((Bent + Offset) / G, FY / (G * 0.6f), 3, Seed + 5);
            };
            const float Slope = (Height2(-3) - Height2(3)) * (Steep ? 1.6f : 2.4f);
            float Shade = 0.50f + Side * -Slope - 0.10f * Clamp(Down / (Rise + 1));
            if (Look.Kind == Hill::Mesa) // layers of stone
                Shade += 0.22f * (Noise(FX / 160, FY / 3.2f, Seed + 9) - 0.5f) -
                         0.18f * Smooth(4, 0, Down);
            if (Look.Kind == Hill::Cone) {
                const float Rib = (FX - Look.Centre) / (10 + 0.5f * Down) +
                                  1.6f * (Fbm(FX / 30, FY / 40, 3, Seed + 7) - 0.5f);
                Shade =
                    0.5f + 0.34f * Clamp(P.SunX > Look.Centre ? Rib : -Rib, -1, 1) - Slope * 0.5f;
            }
            Rgb Local = Times(Look.Local, 0.88f + 0.24f * Fbm(FX / 26, FY / 14, 3, Seed + 2));
            if (Look.Trees > 0) {
                const float Wooded = Smooth(0.62f - 0.4f * Look.Trees, 0.72f - 0.4f * Look.Trees,
                                            Fbm(FX / 46, FY / 22, 4, Seed + 3));
                const float Tips = Noise(FX / 3.2f, FY / 5.5f, Seed + 8);
                Local = Mix(Local, Times(Woods, 0.55f + 0.4f * Tips), Wooded * 0.9f);
            }
            if (Look.Snow > 0) {
                const float Reach =
                    Rise * Look.Snow *
                    (0.55f + 0.9f * Fbm(FX / (G * 0.8f), FY / (G * 2), 4, Seed + 4));
                const float SnowLine = Look.Top + Rise * 0.15f + Reach;
                const float Cover = Smooth(7, -7, FY - SnowLine + 26 * (Height2(0) - 0.5f));
                Local = Mix(Local, White, Cover * 0.94f);
                Shade = Lerp(Shade, Clamp(0.28f + Shade * 0.72f), Cover);
            }
            Rgb Colour = Lit(P, Local, Clamp(Shade), Look.Far);
            const float Foot = Smooth(0.15f, 1.05f, Down / (Rise + 1));
            Colour = Mix(Colour, Hex(P.L->Haze), Look.Mist * Foot * 0.85f);
            Blend(P.C, X, Y, Colour, Clamp(FY + 1 - Top));
            const std::size_t I = std::size_t(Y * Width + X);
            Covered[I] = FY < Look.Foot + 40 ? 1.0f : 0.0f;
            P.C.Flow[I] = Steep ? Pi / 2 + 1.7f * (Noise(FX / G, FY / G, Seed + 6) - 0.5f)
                                : 0.8f * (Noise(FX / 90, FY / 60, Seed + 6) - 0.5f);
        }
    }
    const float Broad = Clamp(6 - 1.8f * Look.Far, 2.6f, 6);
    Repaint(P.C, &Covered, {{Broad, 5, -1, 0.05f}, {Broad * 0.5f, 5, 0.07f, 0.04f}});
    if (Look.Trees > 0)
        Wood(P, Crest, 0, Width, Clamp(11 - 4 * Look.Far, 2.5f, 12), Look.Far, Look.Trees);
    return Crest;
}
