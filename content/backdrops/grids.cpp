#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// A rectangle with worn edges: height 0 in the joint to 1 on top.
static float Worn(float Border, float Round)
{
    const float T = std::clamp(Border / Round, 0.0F, 1.0F);
    return std::sqrt(1 - (1 - T) * (1 - T));
}

// A floor of polished tiles, light and dark by turns, each cut from another piece of stone.
Picture DrawFloor(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Pale = Colours(R, "ground"), Dark = Colours(R, "dark"),
                  Joint = Colours(R, "joint");
    const float Size = Number(R, "scale", 128);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const int Column = static_cast<int>(X / Size), Row = static_cast<int>(Y / Size);
        const unsigned Own = Hash(Column, Row, Seed);
        const float U = X - Size * static_cast<float>(Column),
                    V = Y - Size * static_cast<float>(Row);
        const float Border = std::min({U, Size - U, V, Size - V}) - 1.6F;
        const Place W = Warp(X, Y, 90, 46, Own, 4);
        const float Cloud = Fractal(W.X, W.Y, 110, 6, Own + 1, 0.55F);
        const float Line = std::abs(Fractal(W.X, W.Y, 130, 4, Own + 2, 0.45F));
        const float Vein =
            std::exp(-Line / 0.05F) * Step(-0.3F, 0.5F, Fractal(X, Y, 80, 2, Own + 3));
        const bool IsDark = (Column + Row) % 2 != 0;
        const float Tone = 0.5F + 0.4F * Cloud + (IsDark ? 0.45F : -0.45F) * Vein +
                           0.2F * (HashUnit(9, 9, Own) - 0.5F);
        P[I] =
            Mix(Shade(Joint, 0.5F), Shade(IsDark ? Dark : Pale, Tone), Step(-0.8F, 0.8F, Border));
        Relief[I] = 2.2F * Worn(Border, 4);
    }
    Light(P, Relief, 0.12F, 20);
    return P;
}

// A slab of chocolate: raised pieces with sloping sides and a sunken field.
Picture DrawChocolate(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Wide = Number(R, "scale", 128), High = Number(R, "height", 96);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 160, 2.0F, Seed, 2);
        const float U = W.X + 64 - Wide * std::floor((W.X + 64) / Wide),
                    V = W.Y + 20 - High * std::floor((W.Y + 20) / High);
        const float Border = std::min({U, Wide - U, V, High - V});
        const float Side = Step(2, 15, Border), Sunken = Step(22, 27, Border);
        const float Melt = Fractal(X, Y, 70, 4, Seed + 1);
        Relief[I] = 13 * Side - 3.0F * Sunken + 1.6F * Melt + 0.25F * Fractal(X, Y, 6, 3, Seed + 2);
        const float Bloom = Fractal(X, Y, 150, 6, Seed + 3, 0.6F);
        P[I] = Shade(Ground, 0.40F + 0.14F * Side + 0.22F * Bloom + 0.08F * Melt);
    }
    Relief = Blurred(Relief, 1);
    Occlude(P, Relief, 10, 0.05F);
    Light(P, Relief, 0.30F, 14);
    return P;
}

// A brick wall in running bond; every brick has its own shade and chips.
Picture DrawBricks(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Mortar = Colours(R, "joint");
    const float Wide = Number(R, "scale", 128), High = Number(R, "height", 56);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 46, 2.6F, Seed, 3);
        const int Row = static_cast<int>(std::floor(W.Y / High));
        const float Along = W.X + (Row % 2 == 0 ? 0 : Wide / 2);
        const int Column = static_cast<int>(std::floor(Along / Wide));
        const unsigned Own = Hash(Column, Row, Seed);
        const float U = Along - Wide * static_cast<float>(Column),
                    V = W.Y - High * static_cast<float>(Row);
        const float Chip = 3.2F * std::max(0.0F, Fractal(X, Y, 30, 4, Seed + 5, 0.6F) - 0.15F);
        const float Border = std::min({U, Wide - U, V, High - V}) - 4.2F - Chip;
        const float Inside = Step(-0.9F, 0.9F, Border);
        const float Face = Fractal(X, Y, 22, 6, Own, 0.62F),
                    Sandy = Fractal(X, Y, 5, 3, Seed + 2, 0.7F);
        const float Tone = 0.5F + 0.55F * (HashUnit(1, 1, Own) - 0.5F) + 0.24F * Face +
                           0.07F * Sandy + 0.14F * Fractal(X, Y, 260, 3, Seed + 3);
        P[I] = Mix(Shade(Mortar, 0.5F + 0.4F * Fractal(X, Y, 18, 5, Seed + 4, 0.7F)),
                   Shade(Ground, Tone), Inside);
        Relief[I] = 5 * Worn(Border, 6) + 2.0F * Face + 0.7F * Sandy +
                    1.5F * (HashUnit(2, 2, Own) - 0.5F) * Inside;
    }
    Occlude(P, Relief, 6, 0.08F);
    Light(P, Relief);
    return P;
}

// Overlapping scales, each rooted under the row above.
Picture DrawScales(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Size = Number(R, "scale", 60), RowHeight = Size * 0.42F;
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 260, 26, Seed, 2);
        // The upper rows lie on top: look from the highest row that can reach here downwards.
        const int First = static_cast<int>(std::floor(W.Y / RowHeight)) - 2;
        for (int Row = First;; ++Row) {
            const float Shift = Row % 2 == 0 ? 0 : 0.5F;
            const int Column = static_cast<int>(std::round(W.X / Size - Shift));
            const float DX = W.X / Size - Shift - static_cast<float>(Column);
            const float DY = (W.Y - RowHeight * static_cast<float>(Row)) / Size;
            const float Off = std::hypot(DX * 1.06F, DY * 0.92F); // 0 at the root, 0.58 at the rim
            if (Off > 0.58F && Row < First + 4) continue;
            const float Rim = std::clamp((0.58F - Off) * Size, 0.0F, 99.0F);
            const float Rib = std::cos(std::atan2(DX, DY + 0.35F) * 42) * Step(0.1F, 0.4F, Off);
            const unsigned Own = Hash(Column, Row, Seed);
            const float Tone = 0.30F + 0.55F * Off + 0.30F * (HashUnit(1, 1, Own) - 0.5F) +
                               0.06F * Rib + 0.30F * Fractal(X, Y, 280, 3, Seed + 2);
            P[I] = Scaled(Shade(Ground, Tone), 0.6F + 0.4F * Step(0, 3, Rim));
            Relief[I] = 9 * Off + 2.2F * Worn(Rim, 5) - 5 * DX * DX + 0.3F * Rib;
            break;
        }
    }
    Occlude(P, Relief, 5, 0.12F);
    Light(P, Relief, 0.28F, 16);
    return P;
}
