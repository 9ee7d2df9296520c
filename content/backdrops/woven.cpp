#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

struct Strand {
    float Height;     // 0 to 1
    float Along, Off; // along the strand in pixels; across it -1 to 1
    unsigned Own;     // random bits that name the strand
    bool Upright;
};

// Which strand lies on top at a place: over Over strands, under as many, each row one further
// (Over 1: plain weave; 2: twill).
static Strand StrandAt(float X, float Y, float Size, int Over, unsigned Seed)
{
    const int Column = static_cast<int>(std::floor(X / Size)),
              Row = static_cast<int>(std::floor(Y / Size));
    const float U = X / Size - static_cast<float>(Column), V = Y / Size - static_cast<float>(Row);
    const int Period = 2 * Over;
    const int Place = ((Column - Row) % Period + Period) % Period;
    const bool Upright = Place < Over;
    // How far into the run over the others: a strand bends down at the run's two ends.
    const float Run = Upright
                          ? (static_cast<float>(Over - 1 - Place) + V) / static_cast<float>(Over)
                          : (static_cast<float>(Place - Over) + U) / static_cast<float>(Over);
    const float Off = 2 * (Upright ? U : V) - 1;
    const float Bow = std::sin(3.14159F * std::clamp(Run, 0.0F, 1.0F));
    const float Round = std::sqrt(std::max(0.0F, 1 - Off * Off * 0.92F));
    return {(0.25F + 0.75F * std::sqrt(Bow)) * Round, Upright ? Y : X, Off,
            Hash(Upright ? Column : Row, Upright ? 1 : 2, Seed), Upright};
}

// Wicker or cloth. Keys: ground, scale (width of a strand), over (strands run over at once),
// relief, splits (visible fibres), vary (from strand to strand), check (1: warp and weft differ).
Picture DrawWoven(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Size = Number(R, "scale", 40), Depth = Number(R, "relief", 7);
    const int Over = Count(R, "over", 1);
    const float Splits = Number(R, "splits", 0.3F), Vary = Number(R, "vary", 0.3F);
    const float Check = Number(R, "check", 0), Sway = Number(R, "warp", 3);
    const float Gloss = Number(R, "gloss", 0.05F);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, 140, Sway, Seed, 2);
        const Strand S = StrandAt(W.X, W.Y, Size, Over, Seed + 1);
        const float Fibre = Fractal(S.Along / 14, S.Off * Size * 0.5F, std::max(1.6F, Size * 0.07F),
                                    3, S.Own, 0.65F);
        Relief[I] = Depth * S.Height + Splits * Size * 0.03F * Fibre;
        const float Tone =
            0.5F + Vary * (HashUnit(1, 1, S.Own) - 0.5F) + 0.6F * Splits * Fibre +
            Check * (S.Upright ? -0.16F : 0.16F) + 0.16F * Fractal(X, Y, 240, 4, Seed + 2) +
            0.10F * (HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 3) - 0.5F);
        P[I] = Scaled(Shade(Ground, Tone), 0.45F + 0.55F * Step(0.0F, 0.55F, S.Height));
    }
    Occlude(P, Relief, static_cast<int>(Size / 5) + 1, 0.08F);
    Light(P, Relief, Gloss, 12);
    return P;
}
