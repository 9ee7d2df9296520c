// compositions_shores.cpp: more pictures of water, from above, from near and from the shore.

#include "compositions.h"

#include <algorithm>
#include <cmath>

static Mask Oval(float X, float Y, float RX, float RY, std::uint32_t Seed)
{
    QPainterPath Path;
    for (int I = 0; I < 48; ++I) {
        const float A = float(I) / 48 * 2 * Pi,
                    R = 0.75f + 0.5f * Noise(std::cos(A) * 1.7f + 5, std::sin(A) * 1.7f + 5, Seed);
        const QPointF Q(X + std::cos(A) * RX * R, Y + std::sin(A) * RY * R);
        I == 0 ? Path.moveTo(Q) : Path.lineTo(Q);
    }
    return MaskOf(Path);
}

// An island that floats in what was painted before, with its trees and perhaps a building.
static void Island(Scene& P, float X, float Y, float RX, const std::string& Motif, float Tall,
                   float Far)
{
    const Mask Land = Oval(X, Y, RX, RX * 0.16f, P.Seed + std::uint32_t(X));
    for (int I = 0; I < 30; ++I)
        Dab(P.C, X + AnyBell(P.C) * RX, Y + RX * (0.1f + 0.2f * Any(P.C)),
            RX * Any(P.C, 0.1f, 0.5f), 2, 0, Lit(P, Times(WoodColour(P), 0.4f), 0.1f, Far), 0.4f,
            true);
    PaintMeadow(P, &Land, Y - RX * 0.5f, GroundColour(P), GroundColour(P), 1);
    for (int I = 0; I < 7; ++I)
        Rock(P, X + AnyBell(P.C) * RX, Y + RX * 0.12f, RX * Any(P.C, 0.04f, 0.12f), Far);
    for (int I = 0; I < 5; ++I)
        PaintTree(P, SeasonTree(P), X + AnyBell(P.C) * RX * 0.8f, Y - RX * 0.02f,
                  Tall * Any(P.C, 0.5f, 0.9f), Far);
    PaintMotif(P, Motif, X, Y + RX * 0.04f, Tall, Far);
    for (int I = 0; I < 4; ++I)
        PaintTree(P, SeasonTree(P), X + AnyBell(P.C) * RX * 0.85f, Y + RX * 0.08f,
                  Tall * Any(P.C, 0.3f, 0.5f), Far);
}

void PaintLakeView(Scene& P)
{
    const float H = Vary(P, 64, 118);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, 74, H + 6, P.Snow ? 0.9f : 0.3f, 0.7f);
    PaintMist(P, H + 4, 16, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), Mix(GroundColour(P), WoodColour(P), 0.6f), 1);
    for (int I = 0; I < 40; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + Any(P.C, 10, 30), Any(P.C, 10, 22), 1);
    const Mask Lake =
        Oval(Any(P.C, 340, 420), H + 110, Any(P.C, 300, 380), Any(P.C, 84, 110), P.Seed);
    PaintWater(P, &Lake, H + 14, 0.4f, 0.3f);
    for (int Y = int(H); Y < Height; ++Y) // seen from above it shows more of the sky than its banks
        for (int X = 0; X < Width; ++X)
            Blend(P.C, X, Y,
                  Times(Sky(P, Clamp((float(Y) - H) / 300) +
                                   0.2f * Noise(float(X) / 60, float(Y) / 7, P.Seed)),
                        0.9f),
                  0.55f * Lake[std::size_t(Y * Width + X)]);
    Island(P, Any(P.C, 250, 360), H + 92, 92, P.Plan.Motif, 84, 0.5f);
    Island(P, Any(P.C, 470, 590), H + 60, 44, "none", 40, 0.8f);
    Boat(P, "sail", Any(P.C, 400, 520), H + 140, 34, 0.2f);
    Boat(P, "sail", Any(P.C, 200, 320), H + 56, 16, 0.6f);
    const Mask Slope = Below({{-20, Any(P.C, 250, 330)},
                              {160, Any(P.C, 330, 370)},
                              {360, Any(P.C, 375, 400)},
                              {560, Any(P.C, 350, 400)},
                              {740, Any(P.C, 280, 370)}});
    PaintMeadow(P, &Slope, 250, Times(GroundColour(P), 0.75f), GroundColour(P), 1);
    for (int I = 0; I < 18; ++I) {
        const float X = Any(P.C) < 0.5f ? Any(P.C, -20, 210) : Any(P.C, 520, 740);
        PaintTree(P, SeasonTree(P), X, Any(P.C, 350, 420), Any(P.C, 60, 130), 0.1f);
    }
    PaintLife(P, 396);
}

void PaintMirror(Scene& P)
{
    const float H = Vary(P, 170, 250);
    PaintSky(P, H);
    HillLook Peak;
    Peak.Kind = P.Seed % 3 == 2 ? Hill::Karst : Hill::Alpine;
    Peak.Foot = H, Peak.Top = Any(P.C, 20, 60), Peak.Grain = Peak.Kind == Hill::Karst ? 90 : 190,
    Peak.Far = 0.9f, Peak.Local = RockColour(P);
    Peak.Snow = P.Snow ? 1.2f : 0.45f, Peak.Mist = 0.5f, Peak.Centre = Vary(P, 180, 540, 2),
    Peak.Spread = 250;
    PaintHill(P, Peak);
    for (int Side = -1; Side <= 1; Side += 2) {
        HillLook Flank;
        Flank.Foot = H + 3, Flank.Top = H - Any(P.C, 50, 100), Flank.Grain = 210, Flank.Far = 0.45f,
        Flank.Local = WoodColour(P);
        Flank.Trees = 0.9f, Flank.Snow = P.Snow ? 0.4f : 0, Flank.Mist = 0.3f,
        Flank.Centre = 360 + float(Side) * 400, Flank.Spread = 280;
        PaintHill(P, Flank);
    }
    for (int I = 0; I < 34; ++I)
        PaintTree(P, I % 3 ? Tree::Fir : SeasonTree(P),
                  Any(P.C) < 0.5f ? Any(P.C, -10, 210) : Any(P.C, 510, 730), H + 6,
                  Any(P.C, 26, 66), 0.35f);
    PaintMotif(P, P.Plan.Motif, Vary(P, 150, 570, 5), H + 6, Vary(P, 44, 80, 7), 0.6f);
    PaintMist(P, H, 12, 0.5f);
    PaintWater(P, nullptr, H + 5, 0.22f, 0.22f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 10, Height, 0.4f);
    for (int I = 0; I < 22; ++I) { // stones under and over the near water
        const float T = Any(P.C);
        Rock(P, Any(P.C, -10, 730), Lerp(350, 425, T), Any(P.C, 8, 20) * (0.5f + 1.6f * T), 0.05f);
    }
    PaintLife(P, 372);
}

void PaintStacks(Scene& P)
{
    const float H = Vary(P, 215, 275);
    PaintSky(P, H);
    PaintSea(P, H, 0.7f, Hex(0x3c8494));
    PaintGlitter(P, H + 2, 350, P.L->OrbSize > 0 ? 0.7f : 0.25f);
    for (int I = 0; I < 5; ++I) {
        const float T = float(I) / 4, Foot = H + 6 + 70 * T,
                    X = I == 4 ? Any(P.C, 90, 180) : Any(P.C, 150, 640),
                    Half = (18 + 50 * T) * Any(P.C, 0.8f, 1.2f),
                    Tall = (60 + 150 * T) * Any(P.C, 0.7f, 1.2f);
        QPainterPath Rocky(QPointF(X - Half * 1.25f, Foot));
        for (int K = 1; K < 12; ++K) {
            const float S = float(K) / 12,
                        Lean = Half * (0.4f * (Noise(S * 5, float(I), P.Seed) - 0.5f));
            Rocky.lineTo(X - Half * (1.2f - 0.65f * S) + Lean, Foot - Tall * S);
        }
        Rocky.lineTo(X + Half * 0.1f, Foot - Tall * 1.04f);
        for (int K = 11; K > 0; --K) {
            const float S = float(K) / 12,
                        Lean = Half * (0.4f * (Noise(S * 5 + 9, float(I), P.Seed) - 0.5f));
            Rocky.lineTo(X + Half * (1.15f - 0.6f * S) + Lean, Foot - Tall * S);
        }
        Rocky.lineTo(X + Half * 1.25f, Foot);
        if (I == 4 || I == 2) { // an arch
            QPainterPath Door;
            Door.addEllipse(QPointF(X + Half * 0.1f, Foot), Half * 0.42f, Tall * 0.42f);
            Rocky -= Door;
        }
        const Mask Area = MaskOf(Rocky);
        const float Far = 0.9f * (1 - T) + 0.1f;
        for (int Y = 0; Y < Height; ++Y)
            for (int PX = 0; PX < Width; ++PX) {
                const std::size_t K = std::size_t(Y * Width + PX);
                if (Area[K] <= 0) continue;
                const float R = Ridged(float(PX) / 26, float(Y) / 60, 3, P.Seed + std::uint32_t(I)),
                            Up = (Foot - float(Y)) / Tall;
                const float Side = SunSide(P, X) * (float(PX) - X) / Half;
                const Rgb Local = Mix(Times(RockColour(P), 0.7f + 0.5f * R), WoodColour(P),
                                      Smooth(0.82f, 0.95f, Up + 0.2f * (R - 0.5f)));
                Blend(P.C, PX, Y,
                      Lit(P, Local, Clamp(0.42f + 0.4f * Side + 0.5f * (R - 0.45f)), Far), Area[K]);
                P.C.Flow[K] = Pi / 2 + (R - 0.5f);
            }
        Repaint(P.C, &Area, {{3.6f, 5, -1, 0.05f}, {1.8f, 4, 0.09f, 0.04f}});
        PaintSurf(P, {{X - Half * 1.7f, Foot + 2}, {X, Foot + 4}, {X + Half * 1.7f, Foot + 1}},
                  5 + 6 * T);
        if (I == 3) PaintMotif(P, P.Plan.Motif, X, Foot - Tall * 0.98f, 54, Far);
    }
    const float Y = Any(P.C, 345, 372);
    const Line Shore{{-20, Y + 8}, {180, Y - 8}, {420, Y + 10}, {740, Y - 16}};
    const Mask Sand = Below(Shore);
    PaintMeadow(P, &Sand, Y - 50, Hex(0xc8b48c), Hex(0xdccaa4), 0.3f);
    PaintSurf(P, Shore, 20);
    for (int I = 0; I < 5; ++I)
        Rock(P, Any(P.C, 0, 720), Any(P.C, Y + 10, 420), Any(P.C, 8, 26), 0);
    PaintLife(P, 396);
}

void PaintBay(Scene& P)
{
    const float H = Vary(P, 66, 150), Shift = Vary(P, -120, 130, 2);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 44, H + 2, 0, 0.5f);
    PaintSea(P, H, 0.3f, P.Seed % 2 ? Hex(0x2c9098) : Hex(0x2c6c94));
    PaintGlitter(P, H + 2, 260, 0.4f);
    HillLook Cape;
    Cape.Kind = Hill::Soft, Cape.Foot = H + 46, Cape.Top = H - 34, Cape.Centre = 700,
    Cape.Spread = 200, Cape.Grain = 220, Cape.Far = 0.8f, Cape.Local = WoodColour(P),
    Cape.Trees = 0.6f, Cape.Mist = 0.3f;
    PaintHillWhere(P, Cape, [&](float X, float Y, float) {
        return Y > Cape.Foot - 0.00045f * (Width - X) * (Width - X) || X < 420 ? 0.0f : 1.0f;
    });
    // the beach swings from far right to near left
    const Line Shore{
        {740, H + 52},          {600 + Shift * 0.5f, H + 66},  {450 + Shift, H + 108},
        {350 + Shift, H + 170}, {330 + Shift * 0.8f, H + 240}, {400 + Shift * 0.3f, Height + 20}};
    QPainterPath Land(QPointF(760, H + 50));
    const Line Bow = Curve(Shore, 12);
    for (const Point& K : Bow) Land.lineTo(K.X, K.Y);
    Land.lineTo(760, Height + 30);
    const Mask Area = MaskOf(Land);
    PaintMeadow(P, &Area, H + 10, GroundColour(P), GroundColour(P), 1);
    for (int I = 0; I < 4; ++I) { // the sand along it, drawn with a brush that broadens
        Line Sand = Bow;
        for (Point& K : Sand) K.X += (2 + 24 * (K.Y - H) / (Height - H)) * (0.5f + 0.3f * float(I));
        Stroke(P.C, Sand, 2, 17,
               Lit(P, Times(Hex(0xecd8ac), 1.04f - 0.05f * float(I)), 0.75f, 0.15f), 0.7f);
    }
    PaintSurf(P,
              {{600 + Shift * 0.5f, H + 66},
               {450 + Shift, H + 108},
               {350 + Shift, H + 170},
               {330 + Shift * 0.8f, H + 240}},
              12);
    Village(P, 500, 720, H + 92, 20, 9, 0.5f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 560, 650), H + 128, 90, 0.3f);
    Village(P, 470, 730, H + 150, 32, 8, 0.25f);
    for (int I = 0; I < 14; ++I)
        PaintTree(P, P.Seed % 2 ? Tree::Palm : SeasonTree(P), Any(P.C, 470, 740),
                  H + Any(P.C, 160, 320), Any(P.C, 60, 130), 0.1f);
    for (int I = 0; I < 7; ++I) {
        const float T = Any(P.C);
        Boat(P, I % 2 ? "sail" : "junk", Any(P.C, 30, 300), H + 20 + 220 * T * T, 14 + 70 * T * T,
             0.8f * (1 - T));
    }
    PaintLife(P, 380);
}

void PaintQuay(Scene& P)
{
    const float H = Vary(P, 215, 300), Near = Vary(P, 170, 420, 2);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 60, H, P.Snow ? 0.6f : 0, 0.5f);
    Village(P, 330, 740, H + 4, 24, 12, 0.8f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 480, 640), H + 2, 96, 0.7f);
    PaintWater(P, nullptr, H + 5, 0.8f, 0.25f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 8, Height, 0.6f);
    Boat(P, "sail", 500, H + 34, 60, 0.4f);
    Boat(P, "row", Any(P.C, 560, 640), H + 74, 66, 0.1f);
    Boat(P, "junk", Near + Any(P.C, 170, 230), H + 50, Vary(P, 90, 170, 5), 0.25f);
    Boat(P, P.Variant % 3 == 2 ? "sail" : "junk", Near, H + 96, Vary(P, 200, 330, 7), 0);
    const Rgb Wood = Hex(0x70543c);
    for (int I = 0; I < 16; ++I) { // a jetty in front
        const float X = -30 + 34 * float(I);
        Stroke(P.C, {{X, 430}, {X + 4, 396 - 0.02f * X}}, 4, 4, Lit(P, Times(Wood, 0.6f), 0.2f, 0),
               1);
        Stroke(P.C, {{X - 4, 404 - 0.02f * X}, {X + 36, 402 - 0.02f * X}}, 5, 5,
               Lit(P, Times(P.Snow ? Hex(0xe8eef4) : Wood, Any(P.C, 0.85f, 1.2f)), 0.6f, 0), 1);
    }
    PaintLife(P, 398);
}

void PaintBrook(Scene& P)
{
    const float H = Vary(P, 120, 170);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 3, 80, H + 20, P.Snow ? 0.6f : 0, 0.9f);
    PaintMist(P, H + 16, 26, 0.5f);
    PaintMeadow(P, nullptr, H + 10, Times(GroundColour(P), 0.8f), WoodColour(P), 1);
    for (int Row = 0; Row < 4; ++Row) {
        const float T = float(Row) / 3;
        for (int I = 0; I < 8; ++I) {
            const float Side = I % 2 ? 1.0f : -1.0f;
            PaintTree(P, P.Seed % 2 ? SeasonTree(P) : (I % 3 ? SeasonTree(P) : Tree::Fir),
                      360 + Side * Any(P.C, 60 + 90 * T, 370), H + 24 + 70 * T, 60 + 90 * T,
                      0.9f * (1 - T));
        }
        if (Row == 1) PaintMotif(P, P.Plan.Motif, Any(P.C, 300, 420), H + 44, 84, 0.55f);
    }
    const Mask Bed =
        Along({{350, H + 44}, {420, H + 80}, {320, H + 130}, {430, H + 190}, {340, Height + 30}},
              12, 210);
    PaintWater(P, &Bed, H + 42, 1.1f, 0.35f);
    const Rgb White = Lit(P, Hex(0xf4faff), 0.9f, 0.1f);
    for (int Step = 0; Step < 4; ++Step) { // small falls between the stones
        const float T = float(Step + 1) / 4.6f, Y = H + 50 + (Height - H - 50) * T,
                    X = 360 + 50 * std::sin(float(Step) * 2.3f), W = 30 + 150 * T;
        for (int I = 0; I < 140; ++I) {
            const float U = AnyBell(P.C), L = (5 + 22 * T) * Any(P.C, 0.4f, 1);
            Stroke(P.C,
                   Curve({{X + U * W, Y - L * 0.3f},
                          {X + U * W + 1, Y + L * 0.3f},
                          {X + U * W * 1.05f, Y + L}},
                         3),
                   0.8f + 1.6f * T, 0.5f,
                   Mix(White, Lit(P, Hex(0x80a8b8), 0.4f, 0.1f), 0.6f * Any(P.C)), 0.6f);
        }
        for (int I = 0; I < 9; ++I)
            Rock(P, X + (I % 2 ? 1.0f : -1.0f) * Any(P.C, W * 0.3f, W * 1.25f),
                 Y + Any(P.C, 0, 16 * T + 6), (6 + 30 * T) * Any(P.C, 0.5f, 1.1f), 0.3f * (1 - T));
    }
    for (int I = 0; I < 5; ++I)
        Bush(P, I % 2 ? Any(P.C, -10, 130) : Any(P.C, 600, 730), Any(P.C, 380, 425),
             Any(P.C, 26, 50), 0);
    if (P.Seed % 3 == 1) Overhang(P, FestiveTree(P, Tree::Round), 300);
    PaintLife(P, H + 110);
}

void PaintCascade(Scene& P)
{
    const float H = Vary(P, 60, 110);
    PaintSky(P, H + 80);
    HillLook Back;
    Back.Kind = Hill::Alpine, Back.Top = H - 40, Back.Foot = H + 120, Back.Grain = 200,
    Back.Far = 1.1f, Back.Local = RockColour(P), Back.Snow = P.Snow ? 1.0f : 0.3f,
    Back.Centre = 420, Back.Spread = 330;
    PaintHill(P, Back);
    float X = Any(P.C, 430, 500);
    for (int Step = 0; Step < 4; ++Step) { // each ledge lower, nearer and further left
        const float T = float(Step) / 3, Lip = H + 36 + 74 * float(Step), Foot = Lip + 66 + 16 * T;
        HillLook Ledge;
        Ledge.Kind = Hill::Cliff, Ledge.Top = Lip - 34, Ledge.Foot = Foot + 10, Ledge.Grain = 150,
        Ledge.Far = 0.85f - 0.75f * T;
        Ledge.Local = Times(RockColour(P), 1 - 0.15f * T), Ledge.Trees = 0.5f, Ledge.Mist = 0.3f,
        Ledge.Snow = P.Snow ? 0.3f : 0;
        Ledge.Centre = Step % 2 ? 60 : 660, Ledge.Spread = 620;
        PaintHill(P, Ledge);
        for (int I = 0; I < 6; ++I)
            PaintTree(P, I % 2 ? (P.Snow ? Tree::Fir : Tree::Pine) : SeasonTree(P),
                      I % 2 ? X - Any(P.C, 90, 360) : X + Any(P.C, 90, 360), Lip + Any(P.C, -6, 20),
                      34 + 50 * T, Ledge.Far);
        if (Step == 1) PaintMotif(P, P.Plan.Motif, X - Any(P.C, 150, 220), Lip + 10, 66, 0.5f);
        PaintFall(P, X, Lip - 4, Foot, 16 + 46 * T, Ledge.Far);
        PaintMist(P, Foot, 10, 0.35f);
        X -= Any(P.C, 30, 80);
    }
    const Mask Pool = Below({{-10, 392}, {200, 372}, {400, 366}, {740, 396}});
    PaintWater(P, &Pool, 366, 0.9f, 0.4f);
    for (int I = 0; I < 14; ++I)
        Rock(P, Any(P.C, 0, 720), Any(P.C, 374, 424), Any(P.C, 8, 28), 0.05f);
    PaintLife(P, 392);
}

void PaintHorseshoe(Scene& P)
{
    const float H = Vary(P, 90, 180), Middle = Vary(P, 230, 490, 2), Bow = Vary(P, 20, 90, 5);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 60, H, P.Snow ? 0.6f : 0, 0.8f);
    PaintMeadow(P, nullptr, H, GroundColour(P), WoodColour(P), 1);
    const Mask Upper = Along({{400, H + 4}, {300, H + 16}, {380, H + 40}}, 20, 300);
    PaintWater(P, &Upper, H + 4, 0.7f, 0.3f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 60, 140), H + 40, 80, 0.5f);
    for (int I = 0; I < 18; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C) < 0.5f ? Any(P.C, 0, 170) : Any(P.C, 580, 720),
                  H + Any(P.C, 20, 44), Any(P.C, 30, 60), 0.5f);
    HillLook Wall;
    Wall.Kind = Hill::Cliff, Wall.Top = H + 22, Wall.Foot = 330, Wall.Grain = 260, Wall.Far = 0.5f,
    Wall.Local = Times(RockColour(P), 0.8f), Wall.Mist = 0.4f;
    // the rim bends towards us at both ends, and water falls all along it
    for (int I = 0; I < 25; ++I) {
        const float U = float(I) / 12 - 1, X = Middle + U * 560, Lip = H + 42 + Bow * U * U,
                    Foot = 300 + 46 * U * U, Near = U * U;
        for (int K = 0; K < 40; ++K)
            Stroke(P.C,
                   {{X + Any(P.C, -26, 26), Lip + Any(P.C, 0, 20)}, {X + Any(P.C, -26, 26), Foot}},
                   5, 6,
                   Lit(P, Times(RockColour(P), Any(P.C, 0.5f, 0.9f)), 0.3f, 0.5f - 0.3f * Near),
                   0.6f);
    }
    for (int I = 0; I < 100; ++I) { // curtains and threads, with dark rock between
        const float U = float(I) / 49.5f - 1 + 0.01f * AnyBell(P.C);
        const float Water = Noise(U * 4.5f + 9, 4, P.Seed);
        if (Water < 0.34f) continue;
        PaintFall(P, Middle + U * 570, H + 40 + Bow * U * U + 8 * Noise(U * 13, 1, P.Seed),
                  300 + 46 * U * U, (4 + 26 * (Water - 0.40f)) * (1 + 0.9f * U * U),
                  0.5f - 0.35f * U * U);
    }
    PaintMist(P, 318, 46, 0.75f);
    const Mask Pool = Below({{-20, 384}, {160, 344}, {360, 322}, {560, 344}, {740, 384}});
    PaintWater(P, &Pool, 322, 1.0f, 0.4f);
    PaintMist(P, 330, 26, 0.5f);
    for (int I = 0; I < 9; ++I) Rock(P, Any(P.C, 0, 720), Any(P.C, 376, 424), Any(P.C, 10, 40), 0);
    PaintLife(P, 350);
}

void PaintAtoll(Scene& P)
{
    const float H = Vary(P, 200, 262);
    PaintSky(P, H);
    PaintSea(P, H, 0.4f, P.Seed % 2 ? Hex(0x38b0a8) : Hex(0x3c98b0));
    PaintGlitter(P, H + 2, Height, P.L->OrbSize > 0 ? 0.6f : 0.2f);
    const float X = Vary(P, 170, 500, 2), Y = Lerp(H, Height, Vary(P, 0.25f, 0.62f, 5)),
                R = Clamp((Y - H) * Vary(P, 1.6f, 3.2f, 7), 120,
                          340);   // half the length of the island
    for (int I = 0; I < 160; ++I) // shallows glow around the sand
        Dab(P.C, X + AnyBell(P.C) * R * 1.7f, Y + R * (0.06f + 0.15f * AnyBell(P.C)),
            Any(P.C, 0.15f, 0.6f) * R, Any(P.C, 3, 8), 0, Lit(P, Hex(0xa8f0dc), 0.8f, 0.1f), 0.16f);
    const Mask Sand = Oval(X, Y, R, R * 0.14f, P.Seed);
    PaintMeadow(P, &Sand, Y - 60, Hex(0xf4dcac), Hex(0xf4e4c0), 0.2f);
    PaintSurf(P,
              {{X - R, Y + R * 0.07f},
               {X - R * 0.3f, Y + R * 0.13f},
               {X + R * 0.4f, Y + R * 0.13f},
               {X + R, Y + R * 0.06f}},
              5);
    for (int I = 0; I < 10; ++I)
        Bush(P, X + AnyBell(P.C) * R * 0.6f, Y - 2, R * Any(P.C, 0.06f, 0.14f), 0.2f);
    PaintMotif(P, P.Plan.Motif, X + R * 0.16f, Y, R * 0.4f, 0.2f);
    const int Palms = 3 + int(Vary(P, 0, 9, 5));
    for (int I = 0; I < Palms; ++I)
        PaintTree(P, Tree::Palm, X + AnyBell(P.C) * R * 0.65f, Y + Any(P.C, -6, 12),
                  std::min(R, 220.0f) * Any(P.C, 0.5f, 1.0f), 0.15f);
    Boat(P, "row", X + R * (X > 360 ? -1.0f : 1.0f), Y + R * 0.2f, R * 0.36f, 0.05f);
    Boat(P, P.Seed % 2 ? "sail" : "junk", X > 360 ? Any(P.C, 60, 180) : Any(P.C, 560, 660),
         H + Any(P.C, 14, 50), Any(P.C, 30, 70), 0.4f);
    PaintLife(P, Y + 14);
}

void PaintJetty(Scene& P)
{
    const float H = Vary(P, 160, 230), X = Vary(P, 230, 520, 2), Foot = Vary(P, 180, 520, 5);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, Any(P.C, 60, 110), H, P.Snow ? 0.9f : 0.2f,
           0.7f);
    PaintMist(P, H - 2, 14, 0.6f);
    PaintMotif(P, P.Plan.Motif, X < 390 ? 580 : 160, H + 4, 62, 0.8f);
    PaintWater(P, nullptr, H + 3, 0.45f, 0.25f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 6, Height, 0.6f);
    const float End = H + Any(P.C, 40, 66);
    const Rgb Wood = P.Snow ? Hex(0xdce4ee) : Hex(0x94785c);
    for (int I = 0; I < 46; ++I) { // planks from far to near
        const float T = std::pow(float(I) / 45, 1.7f), Y = Lerp(End, Height + 6, T),
                    Half = Lerp(16, 150, T), Mid = Lerp(X, Foot, T);
        if (I % 7 == 0)
            for (int Side = -1; Side <= 1; Side += 2) {
                Stroke(P.C,
                       {{Mid + float(Side) * Half, Y - 10 - 40 * T},
                        {Mid + float(Side) * Half, Y + 8 + 44 * T}},
                       2 + 6 * T, 2 + 6 * T,
                       Lit(P, Times(Hex(0x70583f), 0.7f), 0.35f, 0.3f * (1 - T)), 1);
            }
        const float Thick = 0.8f + 4.6f * T;
        Stroke(
            P.C, {{Mid - Half, Y}, {Mid, Y + AnyBell(P.C) * 0.6f}, {Mid + Half, Y}}, Thick, Thick,
            Lit(P, Times(Wood, Any(P.C, 0.75f, 1.1f)), Any(P.C, 0.4f, 0.75f), 0.4f * (1 - T)), 1);
        Stroke(P.C, {{Mid - Half, Y + Thick}, {Mid + Half, Y + Thick}}, 0.5f, 0.5f + 0.4f * T,
               Lit(P, Times(Wood, 0.35f), 0.1f, 0.3f * (1 - T)), 0.8f);
    }
    Lantern(P, X + 20, End + 4, 26, 0.3f);
    Boat(P, "row", X + (P.Seed % 2 ? 130.0f : -150.0f), Lerp(End, Height, 0.45f), 96, 0.05f);
    PaintLife(P, End + 60);
    if (P.Seed % 3 == 0) Overhang(P, Tree::Willow, 200);
    if (P.Seed % 3 == 1) Reeds(P, 500, 730, Height + 16, 150, 60, 0);
}

void PaintRiverTown(Scene& P)
{
    const float H = Vary(P, 76, 160), Turn = Vary(P, -1, 1.4f, 2); // how the river winds
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 60, H + 4, P.Snow ? 0.6f : 0, 0.6f);
    PaintMeadow(P, nullptr, H, Times(GroundColour(P), 0.8f), WoodColour(P), 1);
    const Line Middle{{400 + 70 * Turn, H + 12},  {390 + 170 * Turn, H + 40},
                      {370 - 40 * Turn, H + 88},  {370 - 150 * Turn, H + 150},
                      {390 + 30 * Turn, H + 240}, {400 + 70 * Turn, Height + 60}};
    for (int Row = 0; Row < 6; ++Row) {
        const float T = float(Row) / 5, Y = H + 24 + 150 * T;
        Village(P, -10, 180 - 20 * T, Y + 20, 16 + 26 * T, 5, 0.8f - 0.6f * T);
        Village(P, 520 + 30 * T, 740, Y + 10, 16 + 26 * T, 5, 0.8f - 0.6f * T);
        if (Row == 2) PaintMotif(P, P.Plan.Motif, Any(P.C, 560, 640), Y, 110, 0.4f);
    }
    const Mask Bed = Along(Middle, 6, 190);
    PaintWater(P, &Bed, H + 12, 0.5f, 0.35f);
    const Line Way = Curve(Middle, 12);
    for (std::size_t I = 4; I < Way.size(); ++I) { // lights drift down the bends
        const float T = float(I) / float(Way.size()), Half = Lerp(6, 190, T * T) * 0.8f;
        for (int K = 0; K < 2; ++K) {
            const float X = Way[I].X + AnyBell(P.C) * Half, Y = Way[I].Y + AnyBell(P.C) * 6,
                        S = 1.6f + 9 * T * T;
            SoftDab(P.C, X, Y, S * 4, S * 3, Hex(0xffa840), 0.4f);
            Dab(P.C, X, Y, S, S * 1.1f, 0, Hex(0xffe0a0), 1);
            Dab(P.C, X, Y + S * 1.4f, S * 0.9f, S * 0.6f, 0, Hex(0xffb860), 0.5f, true);
        }
    }
    Bridge(P, 255 - 65 * Turn, 485 - 65 * Turn, H + 120, 34, 0.3f, P.Seed % 2);
    Boat(P, "row", 380, Height - 66, 90, 0);
    for (int I = 0; I < 6; ++I)
        PaintTree(P, SeasonTree(P), I % 2 ? Any(P.C, -10, 120) : Any(P.C, 620, 730),
                  Any(P.C, 380, 425), Any(P.C, 90, 190), 0.05f);
    PaintLife(P, Height - 40);
}

void PaintFloes(Scene& P)
{
    const float H = Vary(P, 150, 220);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 120, H, 1.3f, 0);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 120, 240), H + 6, 56, 0.8f);
    PaintWater(P, nullptr, H + 3, 0.4f, 0.4f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 4, Height, 0.5f);
    const auto Berg = [&](float X, float Y, float S, float Far) {
        QPainterPath Path(QPointF(X - S, Y));
        Path.lineTo(X - S * 0.72f, Y - S * Any(P.C, 0.3f, 0.6f));
        Path.lineTo(X - S * 0.3f, Y - S * Any(P.C, 0.6f, 1.0f));
        Path.lineTo(X + S * Any(P.C, -0.1f, 0.2f), Y - S * Any(P.C, 0.5f, 0.9f));
        Path.lineTo(X + S * 0.5f, Y - S * Any(P.C, 0.25f, 0.5f));
        Path.lineTo(X + S, Y);
        const Mask Area = MaskOf(Path);
        for (int PY = std::max(0, int(Y - S * 1.2f)); PY < std::min(Height, int(Y + 2)); ++PY)
            for (int PX = std::max(0, int(X - S)); PX < std::min(Width, int(X + S + 1)); ++PX) {
                const std::size_t I = std::size_t(PY * Width + PX);
                const float R = Ridged(float(PX) / (S * 0.5f), float(PY) / (S * 0.35f), 2,
                                       P.Seed + std::uint32_t(S));
                const float Up = (Y - float(PY)) / S;
                Blend(P.C, PX, PY,
                      Lit(P, Mix(Hex(0x80b8d4), Hex(0xf8fcff), Clamp(Up * 1.3f + R * 0.5f)),
                          Clamp(0.35f + 0.5f * R + 0.4f * SunSide(P, X) * (float(PX) - X) / S),
                          Far),
                      Area[I]);
                P.C.Flow[I] = 0.8f + R;
            }
        Repaint(P.C, &Area, {{Clamp(S / 12, 1.6f, 5), 4, -1, 0.04f}});
        for (int I = 0; I < 14; ++I)
            Dab(P.C, X + AnyBell(P.C) * S, Y + Any(P.C) * S * 0.6f, S * Any(P.C, 0.2f, 0.7f),
                1.2f + S / 60, 0, Lit(P, Hex(0xc8e4f0), 0.7f, Far), 0.4f, true);
    };
    for (int I = 0; I < 5; ++I)
        Berg(Any(P.C, 0, 720), H + 12 + 16 * float(I), 24 + 12 * float(I), 0.9f - 0.15f * float(I));
    Berg(Any(P.C, 430, 560), H + 110, Any(P.C, 90, 140), 0.15f);
    struct Floe {
        float X, Y, Size;
    };
    std::vector<Floe> Floes; // flat ones, the nearer the larger, none upon another
    for (int I = 0; I < 150 && Floes.size() < 44; ++I) {
        const float T = Any(P.C);
        const Floe New{Any(P.C, -20, 740), Lerp(H + 16, Height + 8, T),
                       (5 + 62 * T) * Any(P.C, 0.35f, 1)};
        if (std::none_of(Floes.begin(), Floes.end(), [&](const Floe& Other) {
                return std::fabs(New.X - Other.X) < New.Size + Other.Size &&
                       std::fabs(New.Y - Other.Y) < (New.Size + Other.Size) * 0.3f;
            }))
            Floes.push_back(New);
    }
    std::sort(Floes.begin(), Floes.end(), [](const Floe& A, const Floe& B) { return A.Y < B.Y; });
    Draw(P.C, [&](QPainter& Q) {
        for (const Floe& F : Floes) {
            const float T = (F.Y - H) / (Height - H), Far = 0.5f * (1 - T);
            QPolygonF Top;
            for (int K = 0; K < 9; ++K) {
                const float A = (float(K) + Any(P.C, -0.3f, 0.3f)) / 9 * 2 * Pi,
                            R = F.Size * Any(P.C, 0.7f, 1.1f);
                Top << QPointF(F.X + std::cos(A) * R, F.Y + std::sin(A) * R * 0.24f);
            }
            Q.setBrush(ToQColor(Lit(P, Hex(0x6ca4c0), 0.25f, Far)));
            Q.drawPolygon(Top.translated(0, 1 + 5 * T));
            Q.setBrush(ToQColor(Lit(P, Hex(0xf4f8fc), Any(P.C, 0.5f, 0.95f), Far)));
            Q.drawPolygon(Top);
        }
    });
    Mask Sheet(Width * Height, 0.0f);
    for (int Y = int(H) + 16; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            Sheet[std::size_t(Y * Width + X)] = 1, P.C.Flow[std::size_t(Y * Width + X)] = 0;
    Repaint(P.C, &Sheet, {{1.6f, 4, -1, 0.05f}});
    if (P.Seed % 2) Boat(P, "sail", 200, H + 96, 74, 0.15f);
    PaintLife(P, H + 120);
}

void PaintHighView(Scene& P)
{
    const float H = Vary(P, 70, 165), Rise = Vary(P, -40, 50, 2);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 90, H + 4, P.Snow ? 1.0f : 0.4f, 0);
    PaintWater(P, nullptr, H + 20, 0.3f, 0.3f);
    for (int I = 0; I < 5; ++I) { // spurs from both sides reach into the fjord below
        const float Side = (I + int(P.Seed)) % 2 ? 1.0f : -1.0f, Foot = H + 36 + 40 * float(I);
        HillLook Spur;
        Spur.Kind = I % 2 ? Hill::Cliff : Hill::Soft;
        Spur.Foot = Foot, Spur.Top = Foot - 130 - 10 * float(I), Spur.Centre = 360 + Side * 420,
        Spur.Spread = Any(P.C, 250, 330), Spur.Grain = 160;
        Spur.Far = 1.2f - 0.24f * float(I), Spur.Local = Mix(RockColour(P), WoodColour(P), 0.6f),
        Spur.Trees = 0.7f, Spur.Snow = P.Snow ? 0.6f : 0.1f, Spur.Mist = 0.25f;
        PaintHillWhere(P, Spur, [&](float, float Y, float Top) {
            const float Rest = Spur.Foot - Top;
            return Rest < 12 || Y > Spur.Foot - 10 + 0.25f * Rest ? 0.0f : 1.0f;
        });
    }
    PaintGlitter(P, H + 24, 340, P.L->OrbSize > 0 ? 0.5f : 0.15f);
    for (int I = 0; I < 3; ++I)
        Boat(P, I ? "sail" : "junk", Any(P.C, 280, 440), H + 60 + 56 * float(I), 16 + 12 * float(I),
             0.6f - 0.2f * float(I));
    const Mask Ledge = Below({{-20, 292 - Rise},
                              {110, 306 - Rise * 0.8f},
                              {210 + Rise, 350},
                              {290 + Rise, 400},
                              {330 + Rise, 440}});
    PaintMeadow(P, &Ledge, 250, Times(GroundColour(P), 0.7f), GroundColour(P), 1);
    for (int I = 0; I < 5; ++I) Rock(P, Any(P.C, 40, 290), Any(P.C, 350, 420), Any(P.C, 14, 34), 0);
    PaintMotif(P, P.Plan.Motif, 110, 322 - Rise * 0.8f, Vary(P, 90, 150, 5), 0.05f);
    for (int I = 0; I < 3; ++I)
        PaintTree(P,
                  P.Snow ? Tree::Fir
                  : I    ? Tree::Pine
                         : SeasonTree(P),
                  Any(P.C, -10, 220), Any(P.C, 330, 380), Any(P.C, 80, 150), 0);
    PaintLife(P, 360);
}

void PaintStoneGarden(Scene& P)
{
    const float H = Vary(P, 90, 190);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 70, H + 4, P.Snow ? 0.6f : 0, 0.6f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 460, 600), H + 26, 130, 0.6f);
    for (int I = 0; I < 16; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, -10, 730), H + Any(P.C, 16, 30), Any(P.C, 60, 120),
                  0.5f);
    const float Wall = H + Any(P.C, 40, 60);
    Draw(P.C, [&](QPainter& Q) {
        Q.fillRect(QRectF(-5, Wall - 26, 730, 34), ToQColor(Lit(P, Hex(0xd8b078), 0.5f, 0.3f)));
        Q.fillRect(QRectF(-5, Wall - 36, 730, 12),
                   ToQColor(Lit(P, P.Snow ? Hex(0xf0f4fa) : Hex(0x50545c), 0.5f, 0.3f)));
        for (int I = 0; I < 60; ++I)
            Q.fillRect(QRectF(I * 12.5, -1 + Wall - 36, 2, 13),
                       ToQColor(Lit(P, Hex(0x34383c), 0.3f, 0.3f)));
    });
    PaintMeadow(P, nullptr, Wall + 8, Hex(0xdcd4c4), Hex(0xe8e2d4), 0.15f);
    struct Stone {
        float X, Y, S;
    };
    std::vector<Stone> Stones;
    for (int I = 0; I < 5; ++I)
        Stones.push_back({90 + 135 * float(I) + Any(P.C, -40, 40), Any(P.C, Wall + 46, Height - 50),
                          Any(P.C, 18, 50)});
    for (float Y = Wall + 14; Y < Height + 10;
         Y += 4 + 9 * (Y - Wall) / (Height - Wall)) { // raked lines that flow around the stones
        Line Way;
        for (float X = -10; X <= Width + 10; X += 12) {
            float Bent = Y;
            for (const Stone& S : Stones) {
                const float DX = (X - S.X) / (S.S * 2.2f), DY = (Y - S.Y) / (S.S * 1.1f),
                            D = std::exp(-(DX * DX + DY * DY));
                Bent += D * S.S * 0.55f * (Y < S.Y ? -1.0f : 1.0f);
            }
            Way.push_back({X, Bent});
        }
        const float Half = 0.8f + 1.6f * (Y - Wall) / (Height - Wall);
        Stroke(P.C, Way, Half, Half, Lit(P, Hex(0xa49c8c), 0.2f, 0.1f), 0.55f);
        for (Point& K : Way) K.Y -= Half * 1.6f;
        Stroke(P.C, Way, Half * 0.7f, Half * 0.7f, Lit(P, Hex(0xfcf8ec), 0.9f, 0.1f), 0.5f);
    }
    std::sort(Stones.begin(), Stones.end(),
              [](const Stone& A, const Stone& B) { return A.Y < B.Y; });
    for (const Stone& S : Stones) {
        SoftDab(P.C, S.X, S.Y + 2, S.S * 1.5f, S.S * 0.35f, Lit(P, Hex(0x586840), 0.2f, 0.1f),
                0.9f);
        Rock(P, S.X, S.Y, S.S, 0.1f);
        Rock(P, S.X + S.S * 0.8f, S.Y + 3, S.S * 0.5f, 0.1f);
    }
    Lantern(P, Vary(P, 60, 280, 5), Wall + 30, Vary(P, 60, 120, 7), 0.15f);
    PaintTree(P, FestiveTree(P, Tree::Pine), Vary(P, 330, 660, 2), Wall + 16, Any(P.C, 140, 190),
              0.1f);
    PaintLife(P, Wall + 70);
}

void PaintLotus(Scene& P)
{
    const float H = Vary(P, 64, 170);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 1, 60, H + 4, 0, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    for (int I = 0; I < 14; ++I)
        PaintTree(P, I % 3 ? SeasonTree(P) : Tree::Willow, Any(P.C, 0, 720), H + Any(P.C, 16, 26),
                  Any(P.C, 50, 90), 0.6f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 160, 560), H + 30, 96, 0.5f);
    PaintWater(P, nullptr, H + 30, 0.3f, 0.3f);
    // great leaves and flowers close before us
    for (int I = 0; I < 64; ++I) {
        const float T = std::pow(float(I) / 63, 0.8f), X = Any(P.C, -30, 750),
                    Y = Lerp(H + 70, Height + 50, T), S = 8 + 66 * T;
        if (I % 4 != 3) {
            const float Lift = S * Any(P.C, 0, 0.7f);
            if (Lift > 8)
                Stroke(P.C, Curve({{X, Y + S * 0.5f}, {X + 3, Y}, {X, Y - Lift}}, 4), 1 + 1.5f * T,
                       1 + T, Lit(P, Hex(0x5c8048), 0.4f, 0.4f * (1 - T)), 1);
            const float LY = Y - Lift, Turn = AnyBell(P.C) * 0.25f;
            Dab(P.C, X, LY + S * 0.06f, S * 1.7f, S * 0.62f, Turn,
                Lit(P, Hex(0x2c5438), 0.15f, 0.5f * (1 - T)), 0.95f);
            Dab(P.C, X, LY, S * 1.65f, S * 0.55f, Turn,
                Lit(P, P.Snow ? Hex(0xc0d0d8) : Hex(0x5c9858), 0.6f, 0.5f * (1 - T)), 1);
            for (int K = 0; K < 11; ++K) {
                const float A = float(K) / 11 * 2 * Pi;
                Stroke(P.C, {{X, LY}, {X + std::cos(A) * S * 0.74f, LY + std::sin(A) * S * 0.23f}},
                       0.5f + T, 0.4f, Lit(P, Hex(0x9cc880), 0.9f, 0.5f * (1 - T)), 0.5f);
            }
        } else {
            const float FY = Y - S * Any(P.C, 0.6f, 1.1f), F = S * 0.34f;
            Stroke(P.C, Curve({{X, Y + S * 0.4f}, {X + 2, Lerp(Y, FY, 0.5f)}, {X, FY}}, 4),
                   1 + 1.2f * T, 1 + T, Lit(P, Hex(0x6c9050), 0.5f, 0.3f * (1 - T)), 1);
            for (int Ring = 0; Ring < 3; ++Ring)
                for (int K = -3; K <= 3; ++K) {
                    const float A = Pi / 2 + float(K) * (0.42f - 0.1f * float(Ring)),
                                L = F * (1.9f - 0.3f * float(Ring));
                    Dab(P.C, X + std::cos(A) * L * 0.5f, FY - std::sin(A) * L * 0.5f, L, F * 0.62f,
                        -A,
                        Lit(P,
                            Mix(Hex(0xe86c94), Hex(0xfff0f0),
                                0.25f + 0.22f * float(Ring) + 0.2f * Any(P.C)),
                            0.7f + 0.1f * float(Ring), 0.3f * (1 - T)),
                        1, true);
                }
        }
    }
    PaintLife(P, H + 120);
}
