#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// Fair-weather clouds. Their lit side is where less cloud stands towards the sun.
Picture DrawSky(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Sky = Colours(R, "ground"), Cloud = Colours(R, "cloud");
    const float Scale = Number(R, "scale", 300), Share = Number(R, "share", 0.5F);
    const auto Density = [&](float X, float Y) {
        const Place W = Warp(X, Y, 130, 34, Seed, 4);
        return 0.5F + 0.5F * Fractal(W.X, W.Y * 1.5F, Scale, 7, Seed + 1, 0.52F);
    };
    return PictureOf([&](float X, float Y) {
        const float Here = Density(X, Y);
        const float Sunward = Density(X + 16, Y - 22);
        const float Cover = Step(1 - Share, 1.28F - Share, Here);
        const float Lit = std::clamp(0.62F + 3.2F * (Here - Sunward), 0.0F, 1.0F);
        const Colour Air = Shade(Sky, Y / Height + 0.08F * Fractal(X, Y, 400, 2, Seed + 2));
        return Mix(Air, Shade(Cloud, Lit * (0.75F + 0.25F * Cover)), 0.9F * Cover);
    });
}

// Glowing gas: warped turbulence, bright where it is thick. Keys: ground, scale, power, warp.
Picture DrawGas(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 330), Drag = Number(R, "warp", 210);
    const float Power = Number(R, "power", 1.4F), Wisps = Number(R, "wisps", 0.4F);
    Field Gas = FieldOf([&](float X, float Y) {
        const Place First = Warp(X, Y, Scale * 1.2F, Drag * 0.6F, Seed, 3);
        const Place W = Warp(First.X, First.Y, Scale * 0.6F, Drag * 0.5F, Seed + 1, 4);
        const float Body = 0.5F + 0.5F * Fractal(W.X, W.Y, Scale, 6, Seed + 2);
        const float Wisp = Ridges(W.X, W.Y, Scale * 0.8F, 5, Seed + 3);
        return Body * (1 - Wisps) + Wisps * Wisp * (0.3F + Body);
    });
    Gas = Levelled(Gas);
    return PictureOf(
        [&](float X, float Y) { return Shade(Ground, std::pow(Gas[Pixel(X, Y)], Power)); });
}

// Velvet: soft folds whose pile is brightest where it is seen from the side.
Picture DrawVelvet(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 300);
    const auto Fold = [&](float X, float Y) {
        const Place W = Warp(X, Y, Scale * 1.3F, Scale * 0.55F, Seed, 2);
        return Fractal(W.X, W.Y * 0.55F, Scale, 2, Seed + 1, 0.35F);
    };
    return PictureOf([&](float X, float Y) {
        const float Here = Fold(X, Y);
        const float SX = (Fold(X + 4, Y) - Here) * Scale * 0.09F;
        const float SY = (Fold(X, Y + 4) - Here) * Scale * 0.09F;
        const float Side = std::sqrt(SX * SX + SY * SY) / std::sqrt(1 + SX * SX + SY * SY);
        const float Towards = 0.5F * (SY - SX) / std::sqrt(1 + SX * SX + SY * SY);
        const float Pile =
            0.6F * Fractal(X, Y, 3.5F, 2, Seed + 5) +
            0.4F * (HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 6) - 0.5F);
        return Shade(Ground, 0.16F + 0.62F * Side - 0.28F * Towards + 0.09F * Pile);
    });
}

// A field of stars with the faint band of a galaxy.
Picture DrawStars(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Space = Colours(R, "ground"), Nebula = Colours(R, "nebula"),
                  Star = Colours(R, "star");
    const auto Band = [&](float X, float Y) {
        const float Across = (Y - 330 + 0.45F * (X - 512)) / 240;
        return std::exp(-Across * Across);
    };
    Picture P = PictureOf([&](float X, float Y) {
        const Place W = Warp(X, Y, 240, 120, Seed, 4);
        const float Thick = 0.5F + 0.5F * Fractal(W.X, W.Y, 260, 6, Seed + 1, 0.55F);
        const float Dust = Step(0.35F, 0.75F, 0.5F + 0.5F * Fractal(W.X, W.Y, 120, 5, Seed + 2));
        const float Glow = Band(X, Y) * (0.35F + 0.65F * Dust) * Thick + 0.18F * Thick;
        const Colour Cloud = Shade(Nebula, 0.5F + 0.6F * Fractal(W.X, W.Y, 420, 3, Seed + 3));
        return Mix(Shade(Space, 0.5F * Thick + 0.5F * Band(X, Y)), Cloud,
                   0.75F * Glow * Glow * 1.6F);
    });
    Dice D{Seed + 4};
    const int Stars = Count(R, "stars", 2600);
    for (int I = 0; I < Stars; ++I) {
        const float SX = Throw(D, 0, Width), SY = Throw(D, 0, Height);
        const float Luck = Throw(D, 0, 1), Pick = Throw(D, 0, 1), Stay = Throw(D, 0, 1);
        if (Stay > 0.35F + 0.65F * Band(SX, SY)) continue;
        // Few are bright: brightness falls as a power.
        const float Bright = 0.16F + 0.9F * std::pow(Luck, 14.0F);
        const float Size = 0.7F + 1.0F * std::pow(Luck, 30.0F);
        const int Reach = Luck > 0.975F ? 16 : 3;
        const Colour C = Shade(Star, Pick);
        for (int Y = std::max(0, static_cast<int>(SY) - Reach);
             Y < std::min(Height, static_cast<int>(SY) + Reach + 1); ++Y) {
            for (int X = std::max(0, static_cast<int>(SX) - Reach);
                 X < std::min(Width, static_cast<int>(SX) + Reach + 1); ++X) {
                const float DX = static_cast<float>(X) - SX, DY = static_cast<float>(Y) - SY;
                const float Off = std::hypot(DX, DY);
                float L = Bright * std::exp(-Off * Off / (Size * Size));
                if (Reach > 3) {
                    const float Ray = std::exp(-std::min(std::abs(DX), std::abs(DY)) * 1.4F) *
                                      std::exp(-Off / 3.2F);
                    L += Bright * (0.25F * Ray + 0.16F * std::exp(-Off / 4));
                }
                Colour& Pixel = P[Y * Width + X];
                Pixel = {Pixel.R + C.R * L, Pixel.G + C.G * L, Pixel.B + C.B * L};
            }
        }
    }
    return P;
}
