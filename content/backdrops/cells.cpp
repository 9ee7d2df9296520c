#include "families.h"
#include "noise.h"

#include <algorithm>
#include <cmath>

// Grained hide: cushions between creases, pores, long soft wrinkles.
Picture DrawLeather(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 20), Depth = Number(R, "relief", 3);
    const float Gloss = Number(R, "gloss", 0.25F), Stretch = Number(R, "stretch", 1.25F);
    const float Stone = Number(R, "stone", 0); // 0 soft as hide, 1 rough as rock
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, Scale * 2.2F, Scale * 0.5F, Seed, 3);
        const Cell Large = CellAt(W.X / Stretch, W.Y, Scale, Seed + 1, 0.95F);
        const Cell Small = CellAt(W.X / Stretch, W.Y, Scale * 0.45F, Seed + 2);
        const float Cushion = 1 - std::exp(-Large.Border * 7),
                    Grain = 1 - std::exp(-Small.Border * 6);
        const float Wrinkle = Ridges(W.X, W.Y * 1.6F, Scale * 9, 3, Seed + 3);
        const float Rough = Fractal(X, Y, Scale * 0.6F, 5, Seed + 4, 0.65F);
        const float Tilt = Stone * (CellUnit(Large, 1) - 0.5F);
        const float H = Cushion + 0.22F * Grain * Cushion - 0.35F * std::pow(Wrinkle, 6.0F) +
                        (0.05F + 0.35F * Stone) * Rough + 0.7F * Tilt;
        Relief[I] = Depth * H;
        const float Slow = Fractal(X, Y, 280, 4, Seed + 5);
        P[I] = Shade(Ground, 0.12F + 0.48F * Cushion + 0.08F * Grain + 0.22F * Slow + 0.25F * Tilt +
                                 (0.04F + 0.12F * Stone) * Rough);
    }
    Occlude(P, Relief, 4, 0.12F);
    Light(P, Relief, Gloss, 14);
    return P;
}

// Stones or plates side by side. Keys: scale, joint (its colour), width (of the joints, pixels),
// round (how far the edges are worn, pixels), relief (height of a stone), tilt (of single stones),
// rough and roughscale (of the faces), warp (how crooked the borders), vary (shade from stone to
// stone), curl (edges bent up), gloss.
Picture DrawPaving(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground"), Joint = Colours(R, "joint");
    const float Scale = Number(R, "scale", 120), Wide = Number(R, "width", 3);
    const float Round = Number(R, "round", 8), Depth = Number(R, "relief", 8);
    const float Tilt = Number(R, "tilt", 0.05F), Rough = Number(R, "rough", 2);
    const float RoughScale = Number(R, "roughscale", 26), Crooked = Number(R, "warp", 8);
    const float Vary = Number(R, "vary", 0.5F), Curl = Number(R, "curl", 0);
    const float Gloss = Number(R, "gloss", 0), Shine = Number(R, "shine", 24);
    const float Dome = Number(R, "dome", 0), Cracks = Number(R, "cracks", 0);
    Field Relief(Width * Height);
    Picture P(Width * Height);
    for (std::size_t I = 0; I < P.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        const Place W = Warp(X, Y, Scale * 0.4F, Crooked, Seed, 4);
        const Cell Stone = CellAt(W.X, W.Y, Scale, Seed + 1, 0.9F);
        const float Border =
            Stone.Border * Scale - Wide * (0.7F + 0.4F * Fractal(X, Y, 40, 2, Seed + 2));
        const float Worn = std::clamp(Border / Round, 0.0F, 1.0F);
        const float Inside = Step(-0.8F, 0.8F, Border);
        const float Face = Fractal(X + 400 * CellUnit(Stone, 9), Y, RoughScale, 6, Seed + 3, 0.58F);
        float H = Depth * std::sqrt(1 - (1 - Worn) * (1 - Worn)) + Rough * Face * Worn;
        H += Tilt * Worn *
             ((X - Stone.X) * (CellUnit(Stone, 1) - 0.5F) +
              (Y - Stone.Y) * (CellUnit(Stone, 2) - 0.5F));
        H -= Dome * Scale * Stone.Near * Stone.Near * Worn;
        H += Curl * std::exp(-std::max(0.0F, Border) / (Round * 1.6F)) * Inside;
        float Crack = 0;
        if (Cracks > 0) {
            const Place V = Warp(X, Y, 30, 10, Seed + 20, 3);
            const Cell Hair = CellAt(V.X, V.Y, Scale * 0.42F, Seed + 21);
            Crack = Cracks * std::exp(-Hair.Border * Scale * 0.42F / 0.9F) *
                    Step(-0.1F, 0.35F, Fractal(X, Y, Scale * 0.8F, 2, Seed + 22));
            H -= 2.2F * Crack;
        }
        Relief[I] = H;
        const float Tone = 0.5F + Vary * (CellUnit(Stone, 3) - 0.5F) + 0.22F * Face +
                           0.10F * Fractal(X, Y, 8, 3, Seed + 4, 0.6F);
        P[I] = Mix(Shade(Joint, 0.5F + 0.5F * Fractal(X, Y, 12, 3, Seed + 5)),
                   Scaled(Shade(Ground, Tone), 1 - 0.5F * Crack), Inside);
    }
    Occlude(P, Relief, 6, 0.06F);
    Light(P, Relief, Gloss, Shine);
    return P;
}

// Crystals: each cell is broken into flat facets that look in different directions, with light
// inside.
Picture DrawCrystal(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 110);
    return PictureOf([&](float X, float Y) {
        float Tone = 0, Edge = 0;
        float Size = Scale;
        for (unsigned I = 0; I < 3; ++I, Size *= 0.55F) {
            const Cell Facet = CellAt(X, Y, Size, Seed + I, 1);
            const float Turn = 6.28F * CellUnit(Facet, 1);
            const float Along =
                ((X - Facet.X) * std::cos(Turn) + (Y - Facet.Y) * std::sin(Turn)) / Size;
            const float Weight = I == 0 ? 0.5F : I == 1 ? 0.32F : 0.16F;
            // A facet that looks to the upper left is bright.
            Tone += Weight *
                    (0.5F - 0.42F * std::cos(Turn - 0.8F) * (0.4F + 0.9F * CellUnit(Facet, 2)) +
                     0.45F * Along);
            const float Line = std::exp(-Facet.Border * Size / (I == 0 ? 1.5F : 0.9F));
            Edge = std::max(Edge, Line * (I == 0 ? 0.42F : I == 1 ? 0.26F : 0.14F));
        }
        Tone += 0.10F * Fractal(X, Y, 300, 4, Seed + 9) + 0.04F * Fractal(X, Y, 20, 4, Seed + 8);
        return Mix(Shade(Ground, Tone), Ground.back(), Edge);
    });
}

// A frozen lake from above: depth, drowned clouds of frost, cracks of several ages, bubbles.
Picture DrawIce(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const float Scale = Number(R, "scale", 230);
    return PictureOf([&](float X, float Y) {
        const Place W = Warp(X, Y, 200, 60, Seed, 4);
        const float Deep = 0.5F + 0.5F * Fractal(W.X, W.Y, 320, 6, Seed + 1, 0.55F);
        float White =
            0.10F * Step(0.5F, 0.9F, 0.5F + 0.5F * Fractal(W.X, W.Y, 90, 6, Seed + 2, 0.6F));
        float Size = Scale, Shift = 0;
        for (unsigned I = 0; I < 4; ++I, Size *= 0.6F) {
            const Place V = Warp(X, Y, Size * 0.5F, Size * 0.12F, Seed + 30 + I, 5);
            const Cell Plate = CellAt(V.X, V.Y, Size, Seed + 10 + I);
            const float Off = Plate.Border * Size;
            const float Comes = Step(-0.4F, 0.4F, Fractal(X, Y, Size * 1.3F, 2, Seed + 20 + I));
            const float Sharp = std::exp(-Off / (I == 0 ? 1.7F : 1.0F));
            const float Sheet = std::exp(-Off / (Size * 0.10F)); // the crack goes down aslant
            White += (I == 0 ? 0.55F : 0.40F) * Comes * (Sharp + 0.30F * Sheet) /
                     (1 + 0.35F * static_cast<float>(I));
            Shift += (CellUnit(Plate, 1) - 0.5F) * (I == 0 ? 0.26F : 0.08F);
        }
        const Cell Bubble = CellAt(X, Y, 34, Seed + 50);
        const float Radius = 0.03F + 0.10F * CellUnit(Bubble, 2);
        if (CellUnit(Bubble, 1) < 0.35F)
            White +=
                0.30F * Step(Radius, Radius * 0.6F, Bubble.Near) * (0.4F + Bubble.Near / Radius);
        return Shade(Ground, 0.12F + 0.55F * Deep + Shift * 0.7F + 0.62F * White +
                                 0.02F * Fractal(X, Y, 5, 2, Seed + 60));
    });
}
