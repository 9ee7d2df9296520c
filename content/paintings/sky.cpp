// sky.cpp: the sky, its clouds and lights, and the weather in front of everything.

#include "scene.h"

#include <algorithm>
#include <cmath>

struct Puff {
    float X, Y, R; // Y up from the horizon
};

// The round heads of a heaped cloud, broad below and small on top.
static std::vector<Puff> TowerOf(const Scene& P)
{
    const std::uint32_t Seed = P.Seed + 900;
    const float Middle = 360 + (float(P.Seed % 7) - 3) * 50;
    std::vector<Puff> Tower;
    for (int K = 0; K < 26; ++K) {
        const float T = float(K) / 25, FK = float(K) * 3.7f;
        Tower.push_back({Middle + (Noise(FK, 1, Seed) - 0.5f) * (390 - 270 * T),
                         22 + 215 * T * (0.5f + 0.7f * Noise(FK, 5, Seed)),
                         (62 - 26 * T) * (0.6f + 0.8f * Noise(FK, 9, Seed))});
    }
    return Tower;
}

// How thick a cloud is at a point of the sky, 0 to 1. Up is the height over the horizon, 0 to 1.
static float CloudAt(const Scene& P, const std::vector<Puff>& Tower, float X, float Y, float Up)
{
    const std::string& Kind = P.Plan.Sky;
    const std::uint32_t Seed = P.Seed + 900;
    // towards the horizon clouds grow small and flat
    const float Z = 1 / (0.28f + Up * 0.9f), U = (X - 360) * Z / 100;
    if (Kind == "cirrus") {
        const float Bent = Fbm(U * 0.35f, Up * 3, 2, Seed) * 2.2f;
        const float Threads = Fbm(U * 0.8f + Bent, (Up * 9 + U * 0.5f + Bent), 5, Seed + 1);
        return 0.62f * Smooth(0.46f, 0.78f, Threads) *
               Smooth(0.38f, 0.6f, Fbm(U * 0.5f, Up * 2, 2, Seed + 2));
    }
    if (Kind == "cumulus") {
        const float Warp = Fbm(U * 1.5f, Z * 2.5f, 2, Seed + 4) * 0.5f;
        const float D = 0.70f * Fbm(U * 0.55f + Warp, Z * 1.7f + Warp, 3, Seed) +
                        0.30f * (1 - Ridged(U * 1.5f, Z * 5 + U, 3, Seed + 7));
        return Smooth(0.52f, 0.60f, D) * Smooth(0.0f, 0.1f, Up);
    }
    if (Kind == "heaped") { // one great tower of round heads on a flat base
        float Head = -1;
        for (const Puff& Round : Tower) {
            const float DX = (X - Round.X) / Round.R, DY = (Up * 270 - Round.Y) / Round.R;
            Head = std::max(Head, 1 - std::sqrt(DX * DX + DY * DY));
        }
        Head += 0.5f * (Fbm(X / 26, Y / 22, 4, Seed + 2) - 0.5f);
        return Smooth(0.0f, 0.10f, Head) * (0.72f + 0.28f * Smooth(0.0f, 0.5f, Head)) *
               Smooth(0.03f, 0.09f, Up);
    }
    if (Kind == "stratus") {
        const float Bent = Fbm(X / 300, Up * 2, 2, Seed + 3) * 0.5f;
        return 0.8f * Smooth(0.48f, 0.66f, Fbm(X / 260 + Bent, Up * 8 + Bent * 3, 4, Seed));
    }
    if (Kind == "bars") { // long dark bars that catch fire at their edges
        const float Bent = Fbm(X / 420, Up * 2, 2, Seed + 3);
        const float D = Fbm(X / 330 + Bent, Up * 11 + Bent * 2.2f, 4, Seed);
        return 0.9f * Smooth(0.5f, 0.62f, D) * Smooth(0.95f, 0.5f, Up);
    }
    if (Kind == "mackerel") {
        const float Bent = Fbm(U * 0.7f, Z * 0.7f, 3, Seed + 5) * 4;
        const float Rows = std::sin(Z * 14 + U * 2.2f + Bent) * 0.5f + 0.5f;
        const float Lumps = Noise(U * 4.5f + Bent, Z * 6, Seed + 6);
        return 0.85f * Smooth(0.42f, 0.75f, 0.55f * Rows + 0.45f * Lumps) *
               Smooth(0.4f, 0.62f, Fbm(U * 0.5f + 3, Z, 2, Seed + 8));
    }
    if (Kind == "storm") {
        const float Warp = Fbm(U * 0.5f, Z * 0.8f, 3, Seed + 4) * 2;
        return Smooth(0.30f, 0.62f, Fbm(U * 0.55f + Warp, Z * 0.9f + Warp, 5, Seed)) *
               Smooth(0.02f, 0.30f, Up + 0.16f * (Noise(X / 90, 0, Seed + 9) - 0.5f));
    }
    if (Kind == "swirl") {
        const float A = Fbm(X / 240, Y / 150, 2, Seed + 1) * 6.3f;
        const float D = Fbm((X + std::cos(A) * 90) / 150, (Y + std::sin(A) * 60) / 70, 3, Seed);
        return 0.75f * Smooth(0.15f, 0.85f, std::sin(D * 26) * 0.5f + 0.5f) *
               Smooth(0.42f, 0.62f, Fbm(X / 260, Y / 170, 2, Seed + 3));
    }
    return 0;
}

// The band of the Milky Way across the sky.
struct StarBand {
    float Middle, Tilt; // x at half the height of the sky, and how far it leans
};

static float BandX(const StarBand& Band, float Y, float Horizon)
{
    return Band.Middle + (Horizon / 2 - Y) * Band.Tilt;
}

static void PaintStarBand(Scene& P, const StarBand& Band, float Horizon)
{
    for (int Y = 0; Y < int(Horizon); ++Y)
        for (int X = 0; X < Width; ++X) {
            const float Off =
                (float(X) - BandX(Band, float(Y), Horizon)) / (1 + std::fabs(Band.Tilt)) / 62;
            const float Cloudy = Fbm(float(X) / 50, float(Y) / 50, 4, P.Seed + 77);
            const float Rift = Smooth(0.3f, 0.0f, std::fabs(Off + (Cloudy - 0.5f) * 1.4f)) * 0.55f;
            const float Shine = std::exp(-Off * Off) * (Cloudy - Rift) * 0.6f;
            Blend(P.C, X, Y, Mix(Hex(0xc8d4f4), Hex(0xf4d8d0), Cloudy), Clamp(Shine));
        }
}

static void PaintStars(Scene& P, const StarBand& Band, bool Banded, float Horizon)
{
    for (int I = 0; I < 380; ++I) {
        const float Y = Any(P.C) * Horizon * 0.97f, Far = Any(P.C);
        float X = Any(P.C, 0, Width);
        if (Banded && I % 2) X = BandX(Band, Y, Horizon) + AnyBell(P.C) * 90;
        const Rgb Behind = At(P.C, int(X), int(Y));
        // clouds hide the stars
        if (Brightness(Behind) > Brightness(Sky(P, 1 - Y / Horizon)) + 0.07f && !(Banded && I % 2))
            continue;
        const float Size = Far > 0.985f ? 2.1f : Far > 0.9f ? 1.4f : 1.0f;
        const Rgb Colour = Mix(Hex(0xbcd0ff), Hex(0xffe8c4), Any(P.C));
        const float Alpha = (0.2f + 0.8f * Far * Far) * Smooth(1.0f, 0.7f, Y / Horizon);
        if (Size > 2) SoftDab(P.C, X, Y, 6, 6, Colour, 0.4f);
        Dab(P.C, X, Y, Size, Size, 0, Colour, Alpha);
    }
}

static void PaintAurora(Scene& P, float Horizon)
{
    const bool Pink = P.L->Zenith == 0x0a0622;
    const Rgb Low = Pink ? Hex(0xb0f0c0) : Hex(0x6cf4a4),
              Middle = Pink ? Hex(0xf070c0) : Hex(0x3cd4b0),
              High = Pink ? Hex(0x7848d8) : Hex(0x7a5cd8);
    const int Curtains = 2 + AnyOf(P.C, 3);
    for (int K = 0; K < Curtains; ++K) {
        const float Base = Horizon * Any(P.C, 0.45f, 0.85f), Bend = Any(P.C, 30, 80),
                    Slope = Any(P.C, -0.25f, 0.25f);
        const std::uint32_t Seed = P.Seed + 300 + std::uint32_t(K) * 17;
        const float Strong = Any(P.C, 0.5f, 0.9f), Tall = Horizon * Any(P.C, 0.45f, 0.8f);
        for (int X = 0; X < Width; ++X) {
            const float Fold = Fbm(float(X) / 190, 0.5f, 3, Seed) - 0.5f;
            const float Foot = Base + Fold * Bend * 2.4f + Slope * (float(X) - 360);
            const float Pleat = Noise(float(X) / 9 + Fold * 18, 2, Seed + 3) * 0.6f +
                                Noise(float(X) / 3.5f, 7, Seed + 4) * 0.4f;
            const float Share = Smooth(0.25f, 0.75f, Noise(float(X) / 120, 9, Seed + 5));
            const float Up = Tall * (0.5f + 0.8f * Pleat);
            for (int Y = std::max(0, int(Foot - Up)); Y < int(Foot + 14) && Y < int(Horizon); ++Y) {
                const float T = (Foot - float(Y)) / Up;
                const float A =
                    T < 0 ? Smooth(-14 / Up, 0, T) : std::pow(std::max(0.0f, 1 - T), 1.6f);
                const Rgb Colour =
                    T < 0.3f ? Mix(Low, Middle, T / 0.3f) : Mix(Middle, High, (T - 0.3f) / 0.7f);
                Blend(P.C, X, Y, Colour, Strong * A * Share * (0.45f + 0.55f * Pleat));
            }
        }
    }
}

static void PaintOrb(Scene& P)
{
    const float R = P.L->OrbSize;
    if (R <= 0) return;
    const Rgb Orb = Hex(P.L->Orb);
    const bool Moon = P.Night;
    if (P.Ink) {
        Dab(P.C, P.SunX, P.SunY, 2 * R, 2 * R, 0, Orb, 0.88f);
        return;
    }
    SoftDab(P.C, P.SunX, P.SunY, R * 2.6f, R * 2.6f, Orb, Moon ? 0.4f : 0.75f);
    Dab(P.C, P.SunX, P.SunY, 2 * R, 2 * R, 0, Orb, 1);
    if (!Moon) return;
    for (int I = 0; I < 9; ++I) { // the seas of the moon
        const float A = Any(P.C, 0, 2 * Pi), D = Any(P.C, 0, 0.6f) * R;
        SoftDab(P.C, P.SunX + std::cos(A) * D, P.SunY + std::sin(A) * D, R * 0.36f, R * 0.3f,
                Mix(Orb, Hex(P.L->Upper), 0.5f), 0.5f);
    }
}

void PaintMist(Scene& P, float Y, float Thickness, float Strength, float Unrest)
{
    const std::uint32_t Seed = P.Seed + 500 + std::uint32_t(Y);
    const Rgb Veil = Hex(P.L->Haze);
    for (int PY = std::max(0, int(Y - Thickness * 1.5f));
         PY < std::min(Height, int(Y + Thickness * 1.5f)); ++PY) {
        for (int X = 0; X < Width; ++X) {
            const float Wave = (Fbm(float(X) / 170, float(PY) / 46, 4, Seed) - 0.5f) * 2 * Unrest;
            const float D = (float(PY) - Y) / Thickness + Wave * 0.55f;
            const float A = std::exp(-D * D * 2.4f) * (0.75f + 0.5f * Wave);
            Blend(P.C, X, PY, Veil, Clamp(A) * Strength);
        }
    }
}

void PaintCloudSea(Scene& P, float Horizon, float To)
{
    Mask Covered(Width * Height, 0.0f);
    const Rgb Bright = Hex(P.L->CloudLit), Dark = Mix(Hex(P.L->CloudDark), Hex(P.L->Haze), 0.4f);
    const std::uint32_t Seed = P.Seed + 640 + std::uint32_t(Horizon);
    for (int Y = std::max(0, int(Horizon - 12)); Y < Height && float(Y) < To; ++Y) {
        const float Z = 60 / (float(Y) - Horizon + 22),
                    Close = Clamp((float(Y) - Horizon) / (Height - Horizon));
        for (int X = 0; X < Width; ++X) {
            const float U = (float(X) - 360) * Z / 60, V = Z * 6;
            const auto Billow = [&](float A, float B) {
                return 0.65f * (1 - Ridged(A * 0.9f, B * 0.9f, 3, Seed)) +
                       0.35f * Fbm(A * 2.4f, B * 2.4f, 3, Seed + 1);
            };
            const float H = Billow(U, V),
                        Toward = Billow(U + 0.06f * (P.SunX > float(X) ? 1.0f : -1.0f), V + 0.07f);
            const float Shade = Clamp(0.34f + 0.7f * H + 2.2f * (H - Toward));
            Rgb Colour = Mix(Dark, Bright, Shade);
            Colour = Mix(Colour, Hex(P.L->Horizon), 0.55f * (1 - Close) * (1 - Close));
            const float Edge = Clamp((float(Y) - Horizon + 12 * (H - 0.4f) * 2) / 9);
            Blend(P.C, X, Y, Colour, Edge * Clamp((To - float(Y)) / 30));
            Covered[std::size_t(Y * Width + X)] = 1;
            P.C.Flow[std::size_t(Y * Width + X)] = (H - 0.5f) * 2;
        }
    }
    Repaint(P.C, &Covered, {{6, 5, -1, 0.03f}, {3, 5, 0.06f, 0.02f}});
}

// Shafts of light, nearly parallel since the sun is far, soft at their edges and broken by the air.
void PaintRays(Scene& P, float Strength)
{
    const Rgb Shine = Mix(Hex(P.L->Horizon), Hex(P.L->OrbSize > 0 ? P.L->Orb : 0xffffff), 0.5f);
    const float Away = 300, Sway = (360 - P.SunX) * 0.5f; // the source lies beyond the canvas
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) {
            const float DX = float(X) - P.SunX + Sway, DY = float(Y) - P.SunY + Away;
            const float Angle = std::atan2(DX, DY), Off = (float(X) - P.SunX) / 300;
            const float Beam = 0.7f * Smooth(0.45f, 0.85f, Noise(Angle * 17, 0.5f, P.Seed + 70)) +
                               0.3f * Smooth(0.4f, 0.8f, Noise(Angle * 47, 0.5f, P.Seed + 71));
            const float Air = 0.55f + 0.6f * Fbm(float(X) / 110, float(Y) / 130, 3, P.Seed + 72);
            const float A = Strength * Beam * Air * std::exp(-Off * Off) *
                            Smooth(Height + 40.0f, 150, float(Y)) *
                            Smooth(-60, 60, float(Y) - P.SunY);
            Rgb& Px = At(P.C, X, Y);
            Px = Mix(Plus(Px, Times(Shine, A * 0.38f)), Shine, A * 0.22f);
        }
}

static void PaintRain(Scene& P)
{
    const Rgb Colour = Mix(Hex(P.L->Horizon), Hex(0xffffff), 0.3f);
    const float Slant = Any(P.C, -0.25f, 0.25f);
    for (int I = 0; I < 1500; ++I) {
        const float Near = Any(P.C), X = Any(P.C, -40, Width + 40), Y = Any(P.C, -20, Height);
        const float Long = 8 + 24 * Near * Near;
        Dab(P.C, X, Y, Long, 0.8f, Pi / 2 + Slant, Colour, 0.10f + 0.22f * Near * Any(P.C), true);
    }
}

static void PaintSnowfall(Scene& P)
{
    const Rgb Colour = Mix(Hex(0xffffff), Hex(P.L->Horizon), P.Night ? 0.35f : 0.1f);
    for (int I = 0; I < 560; ++I) {
        const float Near = Any(P.C), X = Any(P.C, 0, Width), Y = Any(P.C, 0, Height);
        const float Size = 1 + 2.4f * Near * Near * Near;
        if (Near > 0.985f)
            SoftDab(P.C, X, Y, 5.5f, 5, Colour, 0.55f);
        else
            Dab(P.C, X, Y, Size * 1.15f, Size, Any(P.C, 0, 3), Colour, 0.35f + 0.5f * Any(P.C));
    }
}

static void PaintDrifting(Scene& P, bool Petals)
{
    const int Count = Petals ? 110 : 75;
    const float Way = Any(P.C, -0.4f, 0.4f);
    for (int I = 0; I < Count; ++I) {
        const float Near = Any(P.C), X = Any(P.C, 0, Width), Y = Any(P.C, 0, Height);
        const Rgb Local = Petals ? Mix(Hex(0xf8c0d0), Hex(0xfff0f4), Any(P.C))
                                 : Mix(Hex(P.S->LeafMid), Hex(P.S->LeafLight), Any(P.C));
        Dab(P.C, X, Y, 2.4f + 3.6f * Near * Near, 1.4f + 1.8f * Near * Near, Way + AnyBell(P.C),
            Lit(P, Local, 0.9f, 0.2f), 0.85f, !Petals);
    }
}

static void PaintSparks(Scene& P) // fireflies, or motes of dust in the sun
{
    const Rgb Colour = P.Night ? Hex(0xe8f47c) : Hex(0xfff6cc);
    for (int I = 0; I < 70; ++I) {
        const float X = Any(P.C, 0, Width), Y = Lerp(P.Horizon, Height, Any(P.C)) - 20;
        const float Size = Any(P.C, 0.8f, 2.0f);
        SoftDab(P.C, X, Y, Size * 5, Size * 5, Colour, P.Night ? 0.30f : 0.14f);
        Dab(P.C, X, Y, Size, Size, 0, Mix(Colour, Hex(0xffffff), 0.4f), 0.85f);
    }
}

static void PaintRainbow(Scene& P)
{
    const float Middle = P.SunX < 360 ? Any(P.C, 420, 620) : Any(P.C, 100, 300),
                R = Any(P.C, 190, 290);
    constexpr std::uint32_t Bow[] = {0x7040b0, 0x3068d0, 0x30b070, 0xf0e050, 0xf09030, 0xe04040};
    for (int Y = 0; Y < std::min(Height, int(P.Horizon) + 30); ++Y) {
        for (int X = 0; X < Width; ++X) {
            const float DX = float(X) - Middle, DY = float(Y) - P.Horizon - 40;
            const float Off = (std::sqrt(DX * DX + DY * DY) - R) / 26;
            if (Off < 0 || Off >= 1) continue;
            const float Place = Off * 5;
            const int Band = std::min(4, int(Place));
            const Rgb Colour = Mix(Hex(Bow[Band]), Hex(Bow[Band + 1]), Place - float(Band));
            const float A = std::sin(Off * Pi) * 0.42f *
                            (0.6f + 0.4f * Fbm(float(X) / 40, float(Y) / 40, 2, P.Seed));
            Rgb& Px = At(P.C, X, Y);
            Px = Mix(Px, Plus(Times(Px, 0.72f), Times(Colour, 0.42f)),
                     A * 1.7f * Smooth(P.Horizon + 30, P.Horizon - 30, float(Y)));
        }
    }
}

static void PaintMeteors(Scene& P)
{
    for (int I = 0; I < 4; ++I) {
        const float X = Any(P.C, 80, 640), Y = Any(P.C, 20, P.Horizon * 0.6f),
                    Long = Any(P.C, 40, 110);
        for (int K = 0; K < int(Long); ++K) {
            const float T = float(K) / Long;
            Dab(P.C, X - T * Long, Y + T * Long * 0.42f, 1.6f * T + 0.5f, 1.6f * T + 0.5f, 0,
                Hex(0xfff8e8), 0.5f * T * T);
        }
    }
}

static void PaintClouds(Scene& P, float Horizon)
{
    const Light& L = *P.L;
    const std::vector<Puff> Tower = TowerOf(P);
    const Rgb Bright = Hex(L.CloudLit), Dark = Hex(L.CloudDark);
    const float SX = P.SunX, SY = std::min(P.SunY, Horizon * 0.9f);
    for (int Y = 0; Y < std::min(int(Horizon) + 2, Height); ++Y) {
        const float Up = 1 - float(Y) / Horizon;
        for (int X = 0; X < Width; ++X) {
            const float D = CloudAt(P, Tower, float(X), float(Y), Up);
            if (D <= 0.01f) continue;
            // thinner towards the light than away from it: a lit edge
            const float LX = SX - float(X), LY = SY - float(Y) - 30,
                        N = 7 / (std::sqrt(LX * LX + LY * LY) + 20);
            const float D2 = CloudAt(P, Tower, float(X) + LX * N, float(Y) + LY * N,
                                     1 - (float(Y) + LY * N) / Horizon);
            const float Near = std::exp(-std::sqrt(LX * LX + LY * LY) / 210);
            const float Shade =
                Clamp(0.62f + (D - D2) * 1.3f - 0.40f * D * D + 0.35f * Near +
                      0.25f * (Fbm(float(X) / 34, float(Y) / 24, 2, P.Seed + 40) - 0.5f));
            Rgb Colour = Mix(Dark, Bright, Shade);
            Colour = Mix(Colour, Hex(L.Horizon), 0.45f * Smooth(0.3f, 0, Up));
            Blend(P.C, X, Y, Colour, D * 0.95f);
        }
    }
}

void PaintSky(Scene& P, float Horizon)
{
    P.Horizon = Horizon;
    const Light& L = *P.L;
    P.SunX = Width * (Any(P.C) < 0.5f ? Any(P.C, 0.12f, 0.40f) : Any(P.C, 0.58f, 0.88f));
    P.SunY = Horizon * (1 - L.OrbHeight * Any(P.C, 0.85f, 1.1f));
    P.SunY = std::max(P.SunY, L.OrbSize + 14);
    const Rgb Orb = L.OrbSize > 0 ? Hex(L.Orb) : Plus(Hex(L.Horizon), Rgb{0.1f, 0.1f, 0.08f});
    const float Tilt = Any(P.C, -0.25f, 0.25f);
    for (int Y = 0; Y < Height; ++Y) {
        for (int X = 0; X < Width; ++X) {
            const float Sway = Fbm(float(X) / 210, float(Y) / 90, 3, P.Seed) - 0.5f;
            const float Up = 1 - float(Y) / Horizon;
            Rgb Colour = Sky(P, Up + 0.16f * Sway);
            const float DX = (float(X) - P.SunX) * 0.72f, DY = float(Y) - P.SunY;
            const float Near = std::sqrt(DX * DX + DY * DY);
            const float Shine =
                L.Glow * (0.62f * std::exp(-Near / 44) + 0.40f * std::exp(-Near / 170));
            if (!P.Ink) Colour = Mix(Colour, Orb, Clamp(Shine * (P.Night ? 0.45f : 0.8f)));
            At(P.C, X, Y) = Colour;
            P.C.Flow[std::size_t(Y * Width + X)] = Tilt + Sway * 2.2f;
        }
    }
    const StarBand Band{Any(P.C, 160, 560), Any(P.C, 0.3f, 1.2f) * (AnyOf(P.C, 2) ? 1.0f : -1.0f)};
    const bool Banded =
        P.Night && L.OrbSize == 0 && (P.Plan.Sky == "clear" || P.Plan.Sky == "cirrus");
    if (Banded) PaintStarBand(P, Band, Horizon);
    if (P.Plan.Sky == "aurora") PaintAurora(P, Horizon);
    const bool Clouded = P.Plan.Sky != "clear" && P.Plan.Sky != "aurora";
    // Stars and moon come after the strokes of the sky: they would be lost in them.
    if (!P.Night) PaintOrb(P);
    if (Clouded) PaintClouds(P, Horizon);
    Mask Above(Width * Height, 0.0f); // what is sky, and a little of what the mist of hills shows
    std::fill_n(Above.begin(), std::min(Height, int(Horizon) + 24) * Width, 1.0f);
    Repaint(
        P.C, &Above,
        {{11, 7, -1, 0.035f}, {5.5f, 7, P.Night ? 0.05f : 0.06f, 0.03f}, {2.6f, 6, 0.09f, 0.02f}});
    if (P.Night) {
        if (P.Plan.Sky != "storm" && P.Plan.Sky != "stratus") PaintStars(P, Band, Banded, Horizon);
        PaintOrb(P);
    }
    if (P.Plan.Weather == "rainbow") PaintRainbow(P);
    if (P.Plan.Weather == "meteors") PaintMeteors(P);
}

void PaintWeather(Scene& P)
{
    const std::string& W = P.Plan.Weather;
    if (W == "rain") PaintRain(P);
    if (W == "snow") PaintSnowfall(P);
    if (W == "petals") PaintDrifting(P, true);
    if (W == "leaves") PaintDrifting(P, false);
    if (W == "sparks") PaintSparks(P);
    if (W == "rays") PaintRays(P, 0.5f);
    if (W == "mist") PaintMist(P, std::min(P.Horizon + 50, 330.0f), 60, 0.42f);
}
