#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// A rough surface in the light: rock, clay, ash, metal. Keys: scale (of the largest shapes), relief
// (their height in pixels), octaves, rough (how much the small shapes keep of the height), warp
// (how far shapes are dragged), crest (0 rounded, 1 sharp crests, -1 billows), band (height of
// layers, 0 none), grain, gloss; a second material in patches: patch (colours), patchscale,
// patchshare, patchedge (softness), patchrise (height in pixels).
Picture DrawRock(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 120), Depth = Number(R, "relief", 20);
    const int Octaves = Count(R, "octaves", 7);
    const float Rough = Number(R, "rough", 0.5F), Drag = Number(R, "warp", 40);
    const float DragScale = Number(R, "warpscale", 160);
    const float Crest = Number(R, "crest", 0), Band = Number(R, "band", 0);
    const float Grain = Number(R, "grain", 0.08F), Mottle = Number(R, "mottle", 0.35F);
    const float Gloss = Number(R, "gloss", 0), Shine = Number(R, "shine", 20);
    const bool Patchy = Has(R, "patch");
    const Palette Patch = Patchy ? Colours(R, "patch") : Ground;
    const float PatchScale = Number(R, "patchscale", 200), Share = Number(R, "patchshare", 0.4F);
    const float Edge = Number(R, "patchedge", 0.04F), Rise = Number(R, "patchrise", 0);

    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, DragScale, Drag, Seed);
        float H = Fractal(W.X, W.Y, Scale, Octaves, Seed + 1, Rough);
        if (Crest != 0) {
            const float Sharp = 2 * Ridges(W.X, W.Y, Scale, Octaves, Seed + 2, Rough) - 1;
            H += (Crest * Sharp - H) * std::abs(Crest);
        }
        float Tone = 0.5F + 0.42F * H;
        if (Band > 0) {
            // Layers of unequal thickness and shade, seen edge-on.
            const float Layer = (W.Y + 26 * H) / Band;
            const float Noisy =
                Noise(0.5F, Layer * 1.7F, Seed + 5) + 0.5F * Noise(3.5F, Layer * 4.1F, Seed + 6);
            Tone = 0.5F + 0.2F * H + 0.45F * Noisy;
            H += 0.25F * Noisy;
        }
        Tone += Mottle * 0.5F * Fractal(X, Y, Scale * 1.7F, 5, Seed + 3, 0.6F);
        Tone += Grain * (HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 4) - 0.5F);
        Colour C = Shade(Ground, Tone);
        Relief[I] = H * Depth;
        if (Patchy) {
            const float Where =
                0.5F + 0.5F * Fractal(W.X + 333, W.Y, PatchScale, 7, Seed + 7, 0.58F) + 0.10F * H;
            const float Cover = Step(1 - Share - Edge, 1 - Share + Edge, Where);
            const float PatchTone = 0.5F + 0.5F * Fractal(X, Y, 50, 6, Seed + 8, 0.65F);
            C = Mix(C, Shade(Patch, PatchTone), Cover);
            Relief[I] = Relief[I] * (1 - 0.4F * Cover * (Rise != 0 ? 1.0F : 0.0F)) + Rise * Cover;
        }
        P[I] = C;
    }
    Occlude(P, Relief, 12, 0.05F);
    Light(P, Relief, Gloss, Shine);
    return P;
}

// Crumbs of many sizes heaped over each other: soil, gravel, dust. Keys: scale (of the largest
// crumbs), relief, ground, odd (colours of single stones), odds (their share).
Picture DrawCrumbs(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Odd = Colours(R, "odd");
    const float Scale = Number(R, "scale", 34), Depth = Number(R, "relief", 0.35F);
    const float Odds = Number(R, "odds", 0.06F), Clods = Number(R, "clods", 14);
    const int Sizes = Count(R, "sizes", 5);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const float Broad = Fractal(X, Y, 230, 4, Seed);
        float Top = Clods * Broad - 40, Tone = 0.3F;
        float Size = Scale;
        for (int S = 0; S < Sizes; ++S, Size *= 0.58F) {
            const Place W = Warp(X, Y, Size * 0.8F, Size * 0.22F, Seed + 10U * S, 2);
            const Cell Crumb = CellAt(W.X, W.Y, Size, Seed + 10U * S + 1);
            const float Round = 0.30F + 0.30F * CellUnit(Crumb, 1); // radius, in cell sizes
            if (S + 1 < Sizes && CellUnit(Crumb, 2) > 0.62F) continue;
            const float Off = Crumb.Near / Round;
            const float Dome = Off < 1 ? std::sqrt(1 - Off * Off) : -Off;
            const float H =
                Clods * Broad + Size * Depth * (Dome * 1.6F + CellUnit(Crumb, 3) - 0.8F);
            if (H <= Top) continue;
            Top = H;
            Tone = 0.25F + 0.55F * CellUnit(Crumb, 4) + 0.15F * Broad;
            P[I] = CellUnit(Crumb, 5) < Odds ? Shade(Odd, CellUnit(Crumb, 6)) : Shade(Ground, Tone);
        }
        Relief[I] = Top + 0.9F * Fractal(X, Y, 7, 3, Seed + 90, 0.7F);
    }
    Occlude(P, Relief, 7, 0.09F);
    Light(P, Relief);
    return P;
}

// The plain between the craters of a body without air.
Picture DrawMoon(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    Field Relief = FieldOf([&](float X, float Y) {
        return 16 * Fractal(X, Y, 260, 6, Seed, 0.5F) + 3 * Fractal(X, Y, 24, 4, Seed + 1, 0.6F);
    });
    Dice D{Seed + 2};
    const int Craters = Count(R, "craters", 300);
    for (int I = 0; I < Craters; ++I) {
        // The later, the smaller: small craters lie in large ones.
        const float Age = static_cast<float>(I) / static_cast<float>(Craters);
        const float Radius = 92 * std::pow(0.035F, std::sqrt(Age)) * Throw(D, 0.75F, 1.2F);
        const float CX = Throw(D, -40, Width + 40), CY = Throw(D, -40, Height + 40);
        const float Deep = Radius * Throw(D, 0.16F, 0.30F);
        const int Reach = static_cast<int>(Radius * 1.9F) + 1;
        for (int Y = std::max(0, static_cast<int>(CY) - Reach);
             Y < std::min(Height, static_cast<int>(CY) + Reach); ++Y) {
            for (int X = std::max(0, static_cast<int>(CX) - Reach);
                 X < std::min(Width, static_cast<int>(CX) + Reach); ++X) {
                const float PX = static_cast<float>(X), PY = static_cast<float>(Y);
                const float Ragged = 1 + 0.09F * Fractal(PX, PY, Radius * 0.7F + 4, 3, Seed + 3);
                const float Off = std::hypot(PX - CX, PY - CY) / Radius * Ragged;
                float& H = Relief[Y * Width + X];
                if (Off < 1)
                    H += Deep * (0.35F - 1.35F * (1 - Off * Off)) * (1 - 0.25F * (1 - Off));
                else if (Off < 1.9F)
                    H += Deep * 0.35F * std::pow((1.9F - Off) / 0.9F, 2.5F);
            }
        }
    }
    Picture P = PictureOf([&](float X, float Y) {
        const float Tone = Fractal(X, Y, 330, 5, Seed + 4) + 0.4F * Fractal(X, Y, 18, 3, Seed + 5);
        const float Dust = HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed + 6) - 0.5F;
        return Shade(Ground, 0.5F + 0.4F * Tone + 0.1F * Dust);
    });
    Occlude(P, Relief, 10, 0.03F);
    Light(P, Relief);
    return P;
}
