#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// One fir as a dark shape with ragged whorls of branches.
static void PaintFir(Picture& P, float CX, float Top, float Tall, Colour Tint, float Mist,
                     unsigned Own)
{
    const float Spread = Tall * (0.15F + 0.05F * HashUnit(1, 1, Own));
    const float WhorlHeight = Tall * (0.050F + 0.012F * HashUnit(2, 2, Own));
    const int X0 = std::max(0, static_cast<int>(CX - Spread - 3)),
              X1 = std::min(Width - 1, static_cast<int>(CX + Spread + 3));
    for (int Y = std::max(0, static_cast<int>(Top)); Y < Height; ++Y) {
        const float Down = (static_cast<float>(Y) - Top) / Tall;
        if (Down > 1.15F) break;
        for (int X = X0; X <= X1; ++X) {
            const float DX = static_cast<float>(X) - CX, Side = DX < 0 ? 1.0F : 2.0F;
            // Branches hang: further out the whorl's edge lies lower.
            const float Hang =
                Down * Tall - std::abs(DX) * 0.42F + 3 * Noise(DX / 5, Side + 0.5F, Own);
            const float Turn = Hang / WhorlHeight, Whorl = Turn - std::floor(Turn);
            const float Branch =
                0.62F + 0.38F * Whorl +
                0.45F * (HashUnit(static_cast<int>(Turn), static_cast<int>(Side), Own) - 0.5F);
            const float Half =
                Spread * std::pow(std::max(0.0F, Down), 0.86F) * Branch + 0.6F +
                1.4F * Noise(static_cast<float>(X) / 2.2F, static_cast<float>(Y) / 2.2F, Own + 4);
            const float Cover = std::clamp(Half - std::abs(DX) + 0.5F, 0.0F, 1.0F);
            if (Cover <= 0) continue;
            // Lit from the upper left, darker below each whorl.
            const float Lit =
                1.0F + 0.16F * (Whorl - 0.5F) - 0.10F * DX / Spread +
                0.12F * Noise(static_cast<float>(X) / 3, static_cast<float>(Y) / 2, Own + 5);
            // The foot of a tree is lost in the mist.
            const float Fade = std::clamp(1 - Mist * Down, 0.0F, 1.0F) * Step(1.15F, 0.95F, Down);
            Colour& C = P[Y * Width + X];
            C = Mix(C, Scaled(Tint, Lit), Cover * Fade);
        }
    }
}

// Rows of firs, one behind the other, each row paler and deeper in the mist.
Picture DrawForest(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Sky = Colours(R, "ground"), Fir = Colours(R, "fir");
    Picture P = PictureOf([&](float X, float Y) {
        return Shade(Sky, Y / 520 + 0.10F * Fractal(X / 2.5F, Y, 170, 5, Seed));
    });
    const int Rows = Count(R, "rows", 6);
    Dice D{Seed + 1};
    for (int Row = 0; Row < Rows; ++Row) {
        const float T = static_cast<float>(Row) / static_cast<float>(Rows - 1);
        const float Ground = 250 + 540 * std::pow(T, 1.15F), Tall = 90 + 270 * T;
        const float Gap = Tall * 0.17F;
        for (float X = -Gap * 2; X < Width + Gap * 2; X += Gap * Throw(D, 0.55F, 1.5F)) {
            const float Hill = 55 * Fractal(X, static_cast<float>(Row) * 900, 420, 2, Seed + 2);
            const float High = Tall * Throw(D, 0.68F, 1.08F);
            PaintFir(P, X, Ground + Hill - High, High, Shade(Fir, T + Throw(D, -0.03F, 0.03F)),
                     0.95F - 0.85F * T, Hash(Row, static_cast<int>(X), Seed));
        }
        // Mist lies between the rows.
        if (Row + 1 == Rows) break;
        for (int Y = 0; Y < Height; ++Y) {
            for (int X = 0; X < Width; ++X) {
                const float FX = static_cast<float>(X), FY = static_cast<float>(Y);
                const float Drift =
                    60 * Fractal(FX / 2.6F, FY, 130, 4, Seed + 20U + static_cast<unsigned>(Row));
                const float Thick =
                    Step(Ground - 130, Ground + 40, FY + Drift) * 0.62F * (1 - 0.45F * T);
                Colour& C = P[Y * Width + X];
                C = Mix(C, Scaled(Sky.back(), 1 - 0.42F * T), Thick);
            }
        }
    }
    return P;
}
