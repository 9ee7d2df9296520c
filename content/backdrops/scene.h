// scene.h: things strewn over a ground, painted one over the other as colour and relief.
#pragma once
#include "canvas.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

struct Scene {
    Picture Tint;
    Field Relief;
};

// What a thing is at one place of its own coordinates.
struct Mark {
    float Off;    // pixels outside the outline; negative inside
    float Height; // pixels
    Colour Tint;
};

// Where Off is above this only Off counts: a Look may leave the rest empty and save its noise.
constexpr float Outside = 0.5F;

// Paints a thing that lies turned by Turn (radians) around At and fits into 2 * HalfLong by
// 2 * HalfWide pixels of its own coordinates. Look(U, V) gives its Mark. It throws a shadow of the
// strength Shadow (0 to 1) on what lies there already.
template <class Function>
void Stamp(Scene& S, Place At, float Turn, float HalfLong, float HalfWide, float Shadow,
           Function Look)
{
    constexpr float ShadowX = -2.5F, ShadowY = 3.5F, Blur = 5;
    const float C = std::cos(Turn), N = std::sin(Turn);
    const float A = HalfLong + Blur + 4, B = HalfWide + Blur + 4;
    const float Tall = std::abs(A * N) + std::abs(B * C);
    const int Y0 = std::max(0, static_cast<int>(At.Y - Tall));
    const int Y1 = std::min(Height - 1, static_cast<int>(At.Y + Tall));
    for (int Y = Y0; Y <= Y1; ++Y) {
        const float DY = static_cast<float>(Y) - At.Y;
        // Where this row runs through the turned rectangle.
        float Left = -1e6F, Right = 1e6F;
        const auto Cut = [&Left, &Right](float Slope, float Start, float Half) {
            if (std::abs(Slope) < 1e-4F) {
                if (std::abs(Start) > Half) Right = -1e6F;
                return;
            }
            const float P = (-Half - Start) / Slope, Q = (Half - Start) / Slope;
            Left = std::max(Left, std::min(P, Q));
            Right = std::min(Right, std::max(P, Q));
        };
        Cut(C, DY * N, A);
        Cut(-N, DY * C, B);
        const int X0 = std::max(0, static_cast<int>(std::ceil(At.X + Left)));
        const int X1 = std::min(Width - 1, static_cast<int>(std::floor(At.X + Right)));
        for (int X = X0; X <= X1; ++X) {
            const float DX = static_cast<float>(X) - At.X;
            const std::size_t I = static_cast<std::size_t>(Y * Width + X);
            const Mark Here = Look(DX * C + DY * N, DY * C - DX * N);
            const float Cover = std::clamp(0.5F - Here.Off, 0.0F, 1.0F);
            if (Cover < 1 && Shadow > 0) {
                const float SX = DX - ShadowX, SY = DY - ShadowY;
                const float Off = Look(SX * C + SY * N, SY * C - SX * N).Off;
                S.Tint[I] = Scaled(S.Tint[I], 1 - Shadow * Step(Blur, -Blur, Off));
            }
            if (Cover <= 0) continue;
            S.Tint[I] = Mix(S.Tint[I], Here.Tint, Cover);
            S.Relief[I] += (Here.Height - S.Relief[I]) * Cover;
        }
    }
}

// Places all over the picture and Margin pixels beyond, none closer than Apart to another.
std::vector<Place> Scatter(Dice& D, float Apart, float Margin);
