#include "families.h"
#include "noise.h"

#include <cmath>

// Short fibres in all directions under a slow change of shade.
Picture DrawFelt(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 3);
    const Field Nap = FieldOf([&](float X, float Y) {
        // The fibres' direction turns slowly from place to place.
        const float Angle = 3.1F * Fractal(X, Y, 60, 2, Seed);
        const float Along = X * std::cos(Angle) + Y * std::sin(Angle);
        const float Across = Y * std::cos(Angle) - X * std::sin(Angle);
        return 0.55F * Fractal(Along / 5, Across, Scale, 2, Seed + 3);
    });
    Picture P = PictureOf([&](float X, float Y) {
        const float Slow = 0.5F + 0.5F * Fractal(X, Y, 340, 3, Seed + 5);
        const float Fibre = Nap[static_cast<int>(Y) * Width + static_cast<int>(X)];
        return Shade(Ground, 0.15F + 0.6F * Slow + 0.35F * Fibre);
    });
    Light(P, Nap);
    return P;
}
