#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// Polished marble: a clouded ground, broad soft veins, thin sharp ones that come and go. Keys:
// ground, vein (colour of the veins), scale, warp, veins (strength), width.
Picture DrawMarble(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Vein = Colours(R, "vein");
    const float Scale = Number(R, "scale", 260), Drag = Number(R, "warp", 110);
    const float Veins = Number(R, "veins", 0.8F), Thick = Number(R, "width", 1);
    const float Turn = Number(R, "turn", 0.6F), Stretch = Number(R, "stretch", 1.7F);
    return PictureOf([&](float X, float Y) {
        const Place W = Warp(X, Y, Scale * 0.9F, Drag, Seed, 4);
        // Veins run in one main direction.
        const float U = (W.X * std::cos(Turn) + W.Y * std::sin(Turn)) / Stretch;
        const float V = W.Y * std::cos(Turn) - W.X * std::sin(Turn);
        const float Cloud = Fractal(U, V, Scale * 0.7F, 6, Seed + 1, 0.55F);
        Colour C = Shade(Ground, 0.5F + 0.75F * Cloud);
        for (int I = 0; I < 4; ++I) {
            const unsigned Own = Seed + 20U + 7U * static_cast<unsigned>(I);
            const float Size = Scale * std::pow(0.62F, static_cast<float>(I));
            const auto Sheet = [&](float A, float B) { return Fractal(A, B, Size, 3, Own, 0.4F); };
            const float Here = Sheet(U, V);
            // The slope turns the noise's value into a distance in pixels.
            const float Slope =
                std::hypot(Sheet(U + 1.5F, V) - Here, Sheet(U, V + 1.5F) - Here) / 1.5F;
            const float Off = std::abs(Here) / (Slope + 0.25F / Size);
            const float Comes = Step(-0.4F, 0.45F, Fractal(X, Y, Scale * 0.7F, 3, Own + 3));
            const float Wide = Thick *
                               (I == 0   ? 4.5F
                                : I == 1 ? 2.4F
                                         : 1.3F) *
                               (0.25F + 1.2F * Comes);
            const float Line = std::exp(-Off / Wide) + 0.22F * std::exp(-Off / (Wide * 7));
            C = Mix(C, Shade(Vein, I % 2 == 0 ? 1 : 0.85F - 0.6F * Comes),
                    std::min(0.9F, Veins * Comes * Line));
        }
        const float Speck = HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 9) - 0.5F;
        return Scaled(C, 1 + 0.035F * Speck);
    });
}

// Light in a clear mass: crests of noise glow and fade into depth. Keys: ground (depth to light),
// scale, power (the higher, the thinner), warp, relief and gloss of the surface, threads (thin
// glowing lines), glow.
Picture DrawVeins(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 190), Drag = Number(R, "warp", 130);
    const float Power = Number(R, "power", 3), Fine = Number(R, "fine", 0.5F);
    const float Cloudy = Number(R, "cloudy", 0.3F), Depth = Number(R, "relief", 0);
    const float Gloss = Number(R, "gloss", 0), Shine = Number(R, "shine", 30);
    const int Octaves = Count(R, "octaves", 5);
    Field Crest = FieldOf([&](float X, float Y) {
        const Place W = Warp(X, Y, Scale * 1.1F, Drag, Seed, 4);
        const float Main = std::pow(Ridges(W.X, W.Y, Scale, Octaves, Seed + 1, Fine), Power);
        const float Small = std::pow(Ridges(W.X, W.Y, Scale * 0.35F, 3, Seed + 2), Power * 1.6F);
        const float Cloud = 0.5F + 0.5F * Fractal(X, Y, Scale * 1.6F, 5, Seed + 3);
        return Main * (1 - Cloudy) + Cloudy * Cloud + 0.35F * Small * Cloud;
    });
    Crest = Levelled(Crest);
    Picture P = PictureOf([&](float X, float Y) { return Shade(Ground, Crest[Pixel(X, Y)]); });
    if (Depth > 0) {
        Field Relief = Crest;
        for (float& H : Relief) H *= Depth;
        Light(P, Relief, Gloss, Shine);
    }
    return P;
}

// Thin threads of light that drift through the dark, each with its halo. Keys: ground, thread
// (colours), scale, count.
Picture DrawThreads(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Thread = Colours(R, "thread");
    const float Scale = Number(R, "scale", 330);
    const int Sheets = Count(R, "sheets", 5);
    return PictureOf([&](float X, float Y) {
        const float Mist = 0.5F + 0.5F * Fractal(X, Y, 340, 5, Seed);
        Colour C = Shade(Ground, Mist);
        for (int I = 0; I < Sheets; ++I) {
            const unsigned Own = Seed + 40U * static_cast<unsigned>(I) + 40U;
            const Place W = Warp(X, Y, Scale * 0.8F, Scale * 0.45F, Own, 3);
            // The slope turns the noise's value into a distance in pixels.
            const float Here = Noise(W.X / Scale, W.Y / Scale, Own);
            const float SX = Noise((W.X + 2) / Scale, W.Y / Scale, Own) - Here;
            const float SY = Noise(W.X / Scale, (W.Y + 2) / Scale, Own) - Here;
            const float Off = std::abs(Here) / (std::hypot(SX, SY) / 2 + 0.0012F);
            const float Comes = Step(-0.3F, 0.5F, Fractal(X, Y, Scale * 0.8F, 2, Own + 5));
            const Colour Light =
                Shade(Thread, static_cast<float>(I) / static_cast<float>(std::max(1, Sheets - 1)));
            const float Glow = Comes * (0.75F * std::exp(-Off * Off / 3) +
                                        0.32F * std::exp(-Off / 9) + 0.12F * std::exp(-Off / 40));
            C = {C.R + Light.R * Glow, C.G + Light.G * Glow, C.B + Light.B * Glow};
        }
        return C;
    });
}
