#include "families.h"
#include "noise.h"

#include <cmath>

// Polished stone of interlocking crystals: a mass of small grains, larger pale crystals in it, dark
// flecks over both.
Picture DrawGranite(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Mass = Colours(R, "ground"), Crystal = Colours(R, "crystal");
    const Palette Fleck = Colours(R, "fleck");
    const float Scale = Number(R, "scale", 9);
    const float Crystals = Number(R, "crystals", 0.3F), Flecks = Number(R, "flecks", 0.16F);
    Picture P = PictureOf([&](float X, float Y) {
        // Crystal borders are ragged, never straight.
        const Place Ragged = Warp(X, Y, Scale * 0.9F, Scale * 0.30F, Seed, 2);
        const Cell Grain = CellAt(Ragged.X, Ragged.Y, Scale, Seed + 1);
        const float Cluster = 0.5F + 0.5F * Fractal(Grain.X, Grain.Y, Scale * 9, 3, Seed + 2);
        Colour C = Shade(Mass, 0.55F * CellUnit(Grain, 1) + 0.45F * Cluster);
        const Cell Large = CellAt(Ragged.X + 500, Ragged.Y, Scale * 2.3F, Seed + 3);
        const float Inside = Step(0.02F, 0.10F, Large.Border);
        if (CellUnit(Large, 2) < Crystals * (0.5F + Cluster)) {
            // Cleavage: faint parallel bands in a direction of the crystal's own.
            const float Turn = 6.28F * CellUnit(Large, 3);
            const float Band = std::sin((X * std::cos(Turn) + Y * std::sin(Turn)) * 1.1F);
            const Colour Face = Shade(Crystal, CellUnit(Large, 4) + 0.10F * Band);
            C = Mix(C, Face, 0.85F * Inside);
        }
        const Cell Dark = CellAt(Ragged.X, Ragged.Y + 900, Scale * 1.25F, Seed + 4);
        if (CellUnit(Dark, 5) < Flecks * (0.4F + 1.2F * Cluster))
            C = Mix(C, Shade(Fleck, CellUnit(Dark, 6)), 0.9F * Step(0.0F, 0.12F, Dark.Border));
        const float Fine = HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 9) - 0.5F;
        return Scaled(C, 1 + 0.10F * Fine + 0.05F * Fractal(X, Y, 420, 2, Seed + 8));
    });
    return P;
}
