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

// The summit that rules at U, one to a unit: how high its flank is, and how far to the side we are.
struct Summit {
    float Share, Offset;
};

static Summit SummitAt(float U, std::uint32_t Seed)
{
    Summit Best{0, 0};
    for (int I = -2; I <= 2; ++I) {
        const float Cell = std::floor(U) + float(I),
                    Apex = Cell + 0.15f + 0.7f * Noise(Cell + 0.5f, 1.5f, Seed);
        const float Tall = 0.35f + 0.65f * Noise(Cell + 0.5f, 7.5f, Seed), Off = U - Apex;
        const float Steepness = (Off < 0 ? 0.7f : 1.0f) + 0.5f * Noise(Cell + 0.5f, 4.5f, Seed);
        const float Share = Tall - std::fabs(Off) * Steepness * (1 - 0.25f * Clamp(std::fabs(Off)));
        if (Share > Best.Share) Best = {Share, Off};
    }
    return Best;
}

// Share of the height, 0 to 1, that the crest reaches at X.
static float CrestAt(const Scene& P, const HillLook& Look, float X, std::uint32_t Seed)
{
    const float U = X / Look.Grain;
    switch (Look.Kind) {
    case Hill::Soft:
        return 0.15f + 0.85f * Fbm(U * 0.8f, 0.3f, 4, Seed);
    case Hill::Alpine:
        return 0.06f + 0.78f * SummitAt(U, Seed).Share +
               0.20f * (Fbm(U * 4.2f, 2, 5, Seed + 1) - 0.35f);
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
    case Hill::Dune: {
        const float Bent = U + 0.35f * Noise(U * 0.6f, 3, Seed), In = Bent - std::floor(Bent);
        const float Tall = 0.35f + 0.65f * Noise(std::floor(Bent) + 0.5f, 5.5f, Seed);
        // a long windward slope and a short lee one, both hollow
        const float Shape =
            In < 0.66f ? std::pow(In / 0.66f, 1.5f) : std::pow((1 - In) / 0.34f, 1.25f);
        return 0.1f + 0.85f * Tall * Shape + 0.25f * Noise(U * 0.8f, 9, Seed);
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
    }
    return P.Horizon; // not reached
}

std::vector<float> PaintHill(Scene& P, const HillLook& Look)
{
    const std::uint32_t Seed = P.Seed + std::uint32_t(Look.Foot * 7 + Look.Top * 3);
    const float Rise = Look.Foot - Look.Top;
    std::vector<float> Crest(Width), Offsets(Width);
    float Highest = 0.05f;
    for (int X = 0; X < Width; ++X) {
        float Share = CrestAt(P, Look, float(X) + 2000, Seed);
        if (Look.Kind == Hill::Cone) Share = CrestAt(P, Look, float(X), Seed);
        if (Look.Kind == Hill::Alpine)
            Offsets[std::size_t(X)] = SummitAt((float(X) + 2000) / Look.Grain, Seed).Offset;
        const float Off = (float(X) - Look.Centre) / Look.Spread;
        if (Look.Kind != Hill::Cone) Share *= std::exp(-Off * Off);
        Crest[std::size_t(X)] = Share;
        Highest = std::max(Highest, Share);
    }
    // the highest crest stands at Top, wherever chance has put it
    const float Stretch = Look.Kind == Hill::Alpine || Look.Kind == Hill::Karst ? 1 / Highest : 1;
    for (float& Y : Crest) Y = Look.Foot - Rise * Y * Stretch;
    const bool Steep = Look.Kind == Hill::Alpine || Look.Kind == Hill::Cone ||
                       Look.Kind == Hill::Karst || Look.Kind == Hill::Cliff;
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
            if (Look.Kind ==
                Hill::Dune) { // the crest winds down the slope, light on one side of it
                const float Wind =
                    0.75f * Down + 22 * (Noise(Down / 36, FX / 400, Seed + 7) - 0.5f);
                const auto CrestNear = [&](float Offset) {
                    return Crest[std::size_t(std::clamp(int(FX + Wind + Offset), 0, Width - 1))];
                };
                const float Rise2 = (CrestNear(7) - CrestNear(-7)) / 13;
                Shade = 0.58f +
                        Clamp(Side * Rise2 * 1.2f, -0.46f, 0.42f) * Smooth(Rise * 1.4f, 0, Down) +
                        0.05f * std::sin(Down * 0.8f + 6 * Noise(FX / 60, FY / 30, Seed));
            }
            if (Look.Kind == Hill::Mesa) // layers of stone
                Shade += 0.22f * (Noise(FX / 160, FY / 3.2f, Seed + 9) - 0.5f) -
                         0.18f * Smooth(4, 0, Down);
            if (Look.Kind == Hill::Cone) {
                const float Rib = (FX - Look.Centre) / (10 + 0.5f * Down) +
                                  1.6f * (Fbm(FX / 30, FY / 40, 3, Seed + 7) - 0.5f);
                Shade =
                    0.5f + 0.34f * Clamp(P.SunX > Look.Centre ? Rib : -Rib, -1, 1) - Slope * 0.5f;
            }
            if (Look.Kind == Hill::Alpine) { // lit and shaded flanks of each summit
                const float Rib = Offsets[std::size_t(X)] +
                                  (0.10f + 0.0016f * Down) * 2.4f *
                                      (Fbm(FX / (Look.Grain * 0.22f), FY / 34, 3, Seed + 7) - 0.5f);
                Shade = 0.52f + 0.34f * Clamp(Rib * (P.SunX > FX ? 16.0f : -16.0f), -1, 1) -
                        Side * Slope * 0.7f;
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
