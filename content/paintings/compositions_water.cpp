// compositions_water.cpp: lakes, seas, rivers and ponds.

#include "compositions.h"

#include <algorithm>
#include <cmath>

// A tongue of land that runs out from the left edge; its crest is returned for what stands on it.
static float Tongue(Scene& P, float Reach, float Shore, float Tall)
{
    const float Rise = Any(P.C, 0.5f, 1.0f) * Tall;
    const Line Edge{{-30, Shore - Rise},
                    {Reach * 0.35f, Shore - Rise * 0.9f},
                    {Reach * 0.72f, Shore - Rise * 0.4f},
                    {Reach, Shore + 1},
                    {Reach + 4, Shore + 60}};
    Mask Land = Below(Edge);
    for (int Y = int(Shore) + 3; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) Land[std::size_t(Y * Width + X)] = 0;
    PaintMeadow(P, &Land, Shore - Tall - 30, GroundColour(P), GroundColour(P), 1);
    for (int I = 0; I < 7; ++I) Rock(P, Any(P.C, 0, Reach), Shore + 2, Any(P.C, 4, 11), 0.4f);
    return Shore - Rise * 0.8f;
}

static void NearBank(Scene& P, float From, float To, float Tall)
{
    const Mask Land = Below({{From, Height + 4},
                             {Lerp(From, To, 0.3f), Height - Tall * 0.55f},
                             {Lerp(From, To, 0.7f), Height - Tall},
                             {To, Height - Tall * 1.1f}});
    PaintMeadow(P, &Land, Height - Tall * 1.6f, Times(GroundColour(P), 0.55f),
                Times(GroundColour(P), 0.7f), 0.8f);
    if (!P.Snow)
        Grasses(P, std::min(From, To), std::max(From, To), Height - Tall * 0.3f, 34, 130,
                Times(GroundColour(P), 0.7f), 0);
}

void PaintLake(Scene& P)
{
    const float H = Vary(P, 131, 269);
    PaintSky(P, H);
    const Hill Kind = P.Seed % 3 == 0 ? Hill::Alpine : P.Seed % 3 == 1 ? Hill::Soft : Hill::Cliff;
    Ranges(P, Kind, 3 + AnyOf(P.C, 2), Any(P.C, 90, 170), H, P.Snow ? 0.9f : 0.35f, 0.6f);
    PaintMist(P, H - 6, 14, 0.5f);
    const float Reach = Any(P.C, 190, 330), Ground = Tongue(P, Reach, H + 6, 26);
    for (int I = 0; I < 8; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, Reach * 0.9f), Ground + Any(P.C, 4, 12),
                  Any(P.C, 26, 50), 0.6f);
    PaintMotif(P, P.Plan.Motif, Reach * Any(P.C, 0.45f, 0.6f), Ground + 10, Any(P.C, 66, 92), 0.5f);
    for (int I = 0; I < 4; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, Reach * 0.8f), Ground + 16, Any(P.C, 18, 30), 0.5f);
    PaintWater(P, nullptr, H + 8, Any(P.C, 0.3f, 0.9f), 0.35f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 14, Height, 0.6f);
    Boat(P, P.Seed % 2 ? "row" : "sail", Any(P.C, 380, 600), Lerp(H, Height, Any(P.C, 0.25f, 0.5f)),
         Any(P.C, 34, 60), 0.2f);
    PaintLife(P, H + 20);
    if (P.Seed % 5 < 3) {
        NearBank(P, 400, 760, Any(P.C, 26, 60));
        PaintTree(P, SeasonTree(P), Any(P.C, 610, 690), Height - 30, Any(P.C, 210, 330), 0);
    } else {
        Reeds(P, 0, 720, Height + 12, 70, 90, 0);
    }
}

void PaintOpenSea(Scene& P)
{
    const float H = P.Seed % 2 ? Any(P.C, 126, 176) : Any(P.C, 210, 290);
    PaintSky(P, H);
    if (P.Seed % 3 == 0) Ranges(P, Hill::Soft, 2, 46, H + 1, 0, 0);
    PaintSea(P, H, Any(P.C, 0.5f, 1.3f), P.Seed % 2 ? Hex(0x285878) : Hex(0x246868));
    PaintGlitter(P, H + 2, Height, P.L->OrbSize > 0 ? 0.75f : 0.25f);
    const float X = Any(P.C, 130, 300);
    if (P.Plan.Motif != "none") { // on a rock in the sea
        const float Y = H + Any(P.C, 26, 60);
        PaintMotif(P, P.Plan.Motif, X, Y - 20, 105, 0.35f);
        for (int I = 0; I < 6; ++I)
            Rock(P, X + Any(P.C, -70, 70), Y + Any(P.C, -4, 6), Any(P.C, 22, 46), 0.3f);
        PaintSurf(P, {{X - 110, Y + 6}, {X, Y + 10}, {X + 110, Y + 5}}, 10);
    } else {
        for (int I = 0; I < 9; ++I) {
            const float T = float(I) / 9, RX = X + AnyBell(P.C) * 190,
                        RY = Lerp(H + 30, Height + 20, T);
            Rock(P, RX, RY, Any(P.C, 14, 30) * (0.6f + 1.8f * T), 0.5f * (1 - T));
            PaintSurf(
                P, {{RX - 60 * (0.4f + T), RY + 3}, {RX, RY + 6}, {RX + 60 * (0.4f + T), RY + 2}},
                2.5f);
        }
    }
    Boat(P, P.Seed % 3 == 0 ? "junk" : "sail", Any(P.C, 440, 620), H + Any(P.C, 30, 80),
         Any(P.C, 50, 110), 0.3f);
    Boat(P, "sail", Any(P.C, 350, 700), H + 8, 16, 1);
    PaintLife(P, Height - 30);
}

void PaintCoast(Scene& P)
{
    const float H = Vary(P, 103, 209);
    PaintSky(P, H);
    PaintSea(P, H, 0.9f, P.Seed % 2 ? Hex(0x205070) : Hex(0x307878));
    PaintGlitter(P, H + 2, Height, 0.6f);
    for (int I = 0; I < 3; ++I) { // headlands, one before the other
        HillLook Look;
        Look.Kind = Hill::Cliff;
        Look.Foot = H + 8 + 48 * float(I);
        Look.Top = H - Any(P.C, 80, 140) + 6 * float(I);
        Look.Grain = 170;
        Look.Far = 1.2f - 0.5f * float(I);
        Look.Local = Mix(RockColour(P), Hex(0xc8b8a0), 0.3f);
        Look.Centre = -40;
        Look.Spread = 470 - 120 * float(I);
        Look.Mist = 0.3f;
        const float End = Look.Centre + Look.Spread * 1.15f;
        // the sea stands before the foot of each headland
        const std::vector<float> Crest = PaintHillWhere(P, Look, [&](float X, float Y, float) {
            const float Shore = Look.Foot + 5 * (Noise(X / 25, float(I), P.Seed) - 0.5f);
            return Y > Shore || X > End + 12 * Noise(Y / 9, float(I), P.Seed) ? 0.0f : 1.0f;
        });
        Wood(P, Crest, 0, Look.Spread * 0.7f, 9 + 4 * float(I), Look.Far, P.Snow ? 0.2f : 0.6f);
        if (I == 1)
            PaintMotif(P, P.Plan.Motif, Any(P.C, 120, 200), std::max(Crest[160] + 8, 108.0f), 88,
                       0.5f);
        PaintSurf(P,
                  {{-10, Look.Foot + 2}, {Look.Spread * 0.5f, Look.Foot + 5}, {End, Look.Foot + 2}},
                  6 + 4 * float(I));
        for (int K = 0; K < 4; ++K)
            Rock(P, Any(P.C, 0, End + 30), Look.Foot + Any(P.C, 2, 10), Any(P.C, 6, 20), Look.Far);
    }
    if (P.Seed % 2) {
        const Mask Sand = Below({{-10, 392}, {200, 372}, {460, 392}, {730, 430}});
        PaintMeadow(P, &Sand, 340, Hex(0xdcc8a0), Hex(0xe8d8b4), 0.2f);
        PaintSurf(P, {{-10, 388}, {200, 368}, {460, 388}, {730, 424}}, 22);
    }
    Boat(P, "sail", Any(P.C, 480, 640), H + Any(P.C, 20, 70), 42, 0.4f);
    PaintLife(P, 380);
}

void PaintHarbour(Scene& P)
{
    const float H = Vary(P, 152, 241);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 2, Any(P.C, 70, 120), H, P.Snow ? 0.8f : 0,
           0.6f);
    PaintMist(P, H - 8, 14, 0.4f);
    Village(P, -20, 440, H + 6, 30, 16, 0.6f);
    PaintMotif(P, P.Plan.Motif, Vary(P, 80, 460, 2), H + 4, Vary(P, 80, 140, 5), 0.6f);
    Village(P, -20, 520, H + 16, 34, 14, 0.35f);
    Draw(P.C, [&](QPainter& Q) {
        Q.fillRect(QRectF(-5, H + 14, 560, 9), ToQColor(Lit(P, Hex(0x8c8478), 0.3f, 0.4f)));
    });
    PaintWater(P, nullptr, H + 22, 0.8f, 0.3f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 24, Height, 0.6f);
    for (int I = 0; I < 7; ++I) {
        const float T = float(I) / 6;
        Boat(P,
             I % 3 == 0   ? "junk"
             : I % 3 == 1 ? "row"
                          : "sail",
             Any(P.C, 60, 680), H + 34 + 130 * T * T + 6 * T,
             30 + 105 * T * (I % 3 == 1 ? 0.6f : 1.0f), 0.5f * (1 - T));
    }
    PaintLife(P, H + 20);
}

void PaintRiver(Scene& P)
{
    const float H = Vary(P, 80, 201);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, Any(P.C, 70, 130), H + 4,
           P.Snow ? 0.9f : 0.2f, 0.6f);
    PaintMist(P, H + 2, 16, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), Mix(GroundColour(P), WoodColour(P), 0.5f), 1);
    const float Swing = Any(P.C, 120, 240), Out = Any(P.C, 240, 520);
    for (int I = 0; I < 26; ++I) {
        const float T = Any(P.C);
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + 10 + 50 * T, 12 + 26 * T,
                  1.1f - 0.6f * T);
    }
    const Mask Bed = Along({{Out, H + 6},
                            {360 + Swing, H + 26},
                            {360 - Swing * 0.9f, H + 70},
                            {360 + Swing * 0.5f, H + 140},
                            {330, Height + 30}},
                           3, 150);
    PaintWater(P, &Bed, H + 6, 0.5f, 0.35f);
    PaintMotif(P, P.Plan.Motif, 360 + Swing * (P.Seed % 2 ? 0.9f : -1.0f), H + 66, 84, 0.5f);
    Village(P, 380, 620, H + 50, 17, 7, 0.7f);
    if (P.Seed % 3 == 0) Bridge(P, 250, 420, H + 92, 20, 0.3f, true);
    for (int I = 0; I < 10; ++I) {
        const float T = Any(P.C, 0.4f, 1),
                    Left = Any(P.C) < 0.5f ? Any(P.C, -20, 150) : Any(P.C, 560, 740);
        PaintTree(P, SeasonTree(P), Left, Lerp(H + 60, Height - 10, T), 40 + 80 * T,
                  0.4f * (1 - T));
    }
    Boat(P, "raft", Any(P.C, 300, 380), Height - 70, 54, 0);
    PaintLife(P, Height - 60);
    Grasses(P, 0, 190, Height + 4, 40, 110, GroundColour(P), 0);
    Grasses(P, 560, 720, Height + 4, 40, 90, GroundColour(P), 0);
}

void PaintFalls(Scene& P)
{
    const float H = Vary(P, 83, 189), X = Any(P.C, 280, 440);
    PaintSky(P, H);
    const float Lip = Any(P.C, 90, 140), Foot = Any(P.C, 285, 325), Breadth = Any(P.C, 26, 90);
    Ranges(P, Hill::Alpine, 1, 110, std::max(H + 30, Lip + 60), P.Snow ? 0.8f : 0.3f, 0);
    HillLook Back;
    Back.Kind = Hill::Cliff;
    Back.Top = Lip - 60, Back.Foot = Foot;
    Back.Grain = 240, Back.Far = 0.8f, Back.Local = RockColour(P), Back.Trees = 0.35f,
    Back.Mist = 0.5f;
    PaintHill(P, Back);
    PaintFall(P, X, Lip, Foot, Breadth, 0.5f);
    if (P.Seed % 3 == 0)
        PaintFall(P, X + Any(P.C, 110, 170), Lip + 20, Foot - 20, Breadth * 0.35f, 0.6f);
    PaintMist(P, Foot, 26, 0.7f);
    for (int Side = -1; Side <= 1; Side += 2) {
        HillLook Wall;
        Wall.Kind = Hill::Cliff;
        Wall.Top = Any(P.C, -40, 80), Wall.Foot = 390;
        Wall.Grain = 120, Wall.Far = 0.25f, Wall.Local = Times(RockColour(P), 0.8f),
        Wall.Mist = 0.25f;
        Wall.Centre = 360 + float(Side) * 430, Wall.Spread = Any(P.C, 170, 260);
        const std::vector<float> Crest = PaintHill(P, Wall);
        for (int I = 0; I < 6; ++I) {
            const int TX = std::clamp(360 + Side * int(Any(P.C, 190, 350)), 0, Width - 1);
            PaintTree(P,
                      P.Snow  ? Tree::Fir
                      : I % 2 ? Tree::Pine
                              : SeasonTree(P),
                      float(TX), Crest[std::size_t(TX)] + 6, Any(P.C, 40, 84), 0.3f);
        }
    }
    PaintMotif(P, P.Plan.Motif, X < 360 ? 560 : 160, Lip + 62, 70, 0.45f);
    const Mask Pool =
        Below({{-10, 380}, {X - 160, Foot + 24}, {X, Foot - 4}, {X + 160, Foot + 20}, {730, 372}});
    PaintWater(P, &Pool, Foot - 6, 1.0f, 0.4f);
    PaintMist(P, Foot + 4, 14, 0.55f);
    for (int I = 0; I < 14; ++I) {
        const float T = Any(P.C);
        Rock(P, Any(P.C, 0, 720), Foot + 20 + 90 * T, 10 + 34 * T * Any(P.C), 0.3f * (1 - T));
    }
    if (P.Seed % 2) Bridge(P, X - 130, X + 130, Foot + 20, 24, 0.2f, false);
    PaintLife(P, 384);
    if (P.Seed % 5 < 2)
        Overhang(P,
                 P.Snow                      ? Tree::Pine
                 : P.Plan.Season == "autumn" ? Tree::Maple
                                             : Tree::Cherry,
                 280);
}

void PaintLagoon(Scene& P)
{
    const float H = Vary(P, 116, 254);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Karst : Hill::Soft, 2, Any(P.C, 50, 110), H + 1, 0, 0.7f);
    PaintSea(P, H, 0.35f, Hex(0x30a0a0));
    PaintGlitter(P, H + 2, H + 110, 0.5f);
    Boat(P, P.Seed % 2 ? "sail" : "junk", Any(P.C, 380, 600), H + 40, 64, 0.4f);
    const float Y = Any(P.C, 320, 372);
    const Line Shore{{-20, Y - 60}, {160, Y - 34}, {330, Y + 10}, {520, Y + 36}, {740, Height - 8}};
    const Mask Sand = Below(Shore);
    PaintMeadow(P, &Sand, Y - 90, Hex(0xe8d0a0), Hex(0xf4e4c0), 0.25f);
    PaintSurf(P, Shore, 20);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 60, 130), Y - 30, 74, 0.3f);
    for (int I = 0; I < 4; ++I)
        Bush(P, Any(P.C, -10, 150), Y - 20 + 10 * float(I), Any(P.C, 20, 38), 0.2f);
    Boat(P, "row", Any(P.C, 300, 420), Y + 42, 84, 0);
    for (int I = 0; I < 5; ++I)
        PaintTree(P, Tree::Palm, Any(P.C, 10, 230), Y - 30 + 26 * float(I), Any(P.C, 130, 260),
                  0.25f - 0.05f * float(I));
    PaintLife(P, Y + 30);
}

void PaintStillness(Scene& P)
{
    const float H = P.Seed % 2 ? Any(P.C, 130, 170) : Any(P.C, 220, 280);
    PaintSky(P, H);
    if (P.Seed % 3) Ranges(P, Hill::Soft, 2, Any(P.C, 30, 80), H + 2, P.Snow ? 0.6f : 0, 0);
    PaintMist(P, H, 20, 0.7f);
    const float X = Vary(P, 150, 430, 2), Y = H + Any(P.C, 26, 54);
    PaintMotif(P, P.Plan.Motif, X, Y, Vary(P, 80, 190, 5), 0.12f);
    // all above the foot of the motif mirrors there; the far water is filled in first
    PaintWater(P, nullptr, Y - 1, 0.42f, 0.22f);
    if (P.L->OrbSize > 0) PaintGlitter(P, Y, Height, 0.5f);
    for (int I = 0; I < 4; ++I)
        Rock(P, X + Any(P.C, -90, 90), Y + Any(P.C, 4, 12), Any(P.C, 5, 14), 0.2f);
    Boat(P, P.Seed % 2 ? "raft" : "row", Any(P.C, 440, 620), Lerp(Y, Height, Any(P.C, 0.3f, 0.6f)),
         Any(P.C, 40, 70), 0.1f);
    PaintLife(P, Y + 60);
    if (P.Seed % 4 == 0) Overhang(P, FestiveTree(P, Tree::Pine), 250);
}

void PaintMarsh(Scene& P)
{
    const float H = Vary(P, 213, 319);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, Any(P.C, 24, 60), H + 1, P.Snow ? 0.5f : 0, 0.5f);
    PaintMist(P, H - 2, 12, 0.7f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + 3, Any(P.C, 14, 34), 1.1f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 90, 260), H + 4, 62, 0.8f);
    PaintWater(P, nullptr, H + 4, 0.5f, 0.2f);
    PaintGlitter(P, H + 6, Height, P.L->OrbSize > 0 ? 0.6f : 0.2f);
    for (int I = 0; I < 9; ++I) { // islands of sedge
        const float T = Any(P.C), X = Any(P.C, -30, 720), Y = Lerp(H + 10, Height, T * T),
                    R = 30 + 110 * T;
        const Mask Tuft = MaskOf([&] {
            QPainterPath E;
            E.addEllipse(QPointF(X, Y), R, 3 + 8 * T);
            return E;
        }());
        PaintMeadow(P, &Tuft, Y - 30, Times(GroundColour(P), 0.7f), Times(GroundColour(P), 0.8f),
                    0.8f);
        Reeds(P, X - R * 0.9f, X + R * 0.9f, Y + 2, 20 + 60 * T, int(20 + 30 * T), 0.7f * (1 - T));
    }
    PaintLife(P, Height - 70);
    Reeds(P, -10, Any(P.C, 120, 260), Height + 20, Any(P.C, 130, 220), 60, 0);
    Reeds(P, Any(P.C, 560, 640), 730, Height + 20, Any(P.C, 90, 170), 40, 0);
}

void PaintPond(Scene& P)
{
    const float H = Vary(P, 86, 176);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, Any(P.C, 50, 90), H + 10, P.Snow ? 0.6f : 0, 0.7f);
    PaintMist(P, H + 6, 16, 0.4f);
    const float Shore = H + Any(P.C, 46, 80);
    PaintMeadow(P, nullptr, H - 8, GroundColour(P), GroundColour(P), 0.7f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, -10, 730), H + Any(P.C, 8, 34), Any(P.C, 46, 96),
                  0.75f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 110, 240), Shore - 8, Any(P.C, 100, 130), 0.4f);
    for (int I = 0; I < 9; ++I) Bush(P, Any(P.C, 0, 720), Shore - 2, Any(P.C, 10, 26), 0.35f);
    for (int I = 0; I < 4; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 300, 720), Shore - Any(P.C, 2, 12), Any(P.C, 70, 120),
                  0.35f);
    if (P.Seed % 4 != 3)
        Bridge(P, Any(P.C, 300, 380), Any(P.C, 540, 640), Shore + 4, Any(P.C, 26, 52), 0.2f,
               P.Seed % 2);
    Lantern(P, Any(P.C, 250, 300), Shore + 2, 34, 0.25f);
    const Mask Water = Below({{-20, Shore + 30},
                              {70, Shore + 4},
                              {250, Shore + 8},
                              {400, Shore},
                              {640, Shore + 6},
                              {740, Shore + 24}});
    PaintWater(P, &Water, Shore, 0.35f, 0.35f);
    for (int I = 0; I < 16; ++I)
        Rock(P, Any(P.C, 0, 720), Shore + Any(P.C, 2, 12), Any(P.C, 5, 14), 0.25f);
    const Rgb Pad = P.Snow ? Hex(0xd8e4ec) : Hex(0x6c9c54);
    for (int I = 0; I < 95; ++I) { // lily pads in drifts
        const float T = std::sqrt(Any(P.C)), X = Any(P.C, 0, 720),
                    Y = Lerp(Shore + 26, Height + 6, T);
        if (Noise(X / 90, Y / 30, P.Seed) < 0.53f) continue;
        const float S = 5 + 24 * T;
        Dab(P.C, X, Y, S, S * 0.36f, 0, Lit(P, Times(Pad, 0.6f), 0.2f, 0.2f), 0.9f);
        Dab(P.C, X, Y - 0.8f, S * 0.95f, S * 0.30f, 0,
            Lit(P, Times(Pad, Any(P.C, 0.85f, 1.2f)), Any(P.C, 0.4f, 1), 0.2f), 0.95f);
        if (I % 4 == 0 && !P.Snow)
            for (int K = -2; K <= 2; ++K)
                Dab(P.C, X + float(K) * S * 0.1f, Y - S * 0.17f, S * 0.34f, S * 0.13f,
                    Pi / 2 + 0.4f * float(K),
                    Lit(P, Mix(Hex(0xf0a0b8), Hex(0xfff4f0), Any(P.C)), 0.95f, 0.1f), 1, true);
    }
    PaintLife(P, Shore + 30);
    if (P.Seed % 3)
        Overhang(P,
                 P.Seed % 3 == 1             ? Tree::Willow
                 : P.Plan.Season == "autumn" ? Tree::Maple
                                             : Tree::Pine,
                 Any(P.C, 180, 300));
    else
        Lantern(P, Any(P.C, 600, 660), Height - 14, 140, 0);
}

void PaintIce(Scene& P)
{
    const float H = Vary(P, 163, 269);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, Any(P.C, 70, 130), H, 1.2f, 0.5f);
    for (int I = 0; I < 40; ++I)
        PaintTree(P, Tree::Fir, Any(P.C, 0, 720), H + Any(P.C, 0, 7), Any(P.C, 16, 42), 0.7f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 150, 300), H + 12, 78, 0.5f);
    Village(P, 330, 520, H + 12, 20, 4, 0.5f);
    PaintWater(P, nullptr, H + 12, 0.12f, 0.18f);
    const Rgb Frost = Lit(P, Hex(0xeaf2fa), 0.8f, 0.2f);
    for (int I = 0; I < 60; ++I) { // drifts of snow and cracks over the ice
        const float T = Any(P.C), Y = Lerp(H + 16, Height, T), X = Any(P.C, 0, 720),
                    Long = (20 + 150 * T) * Any(P.C, 0.5f, 1.1f);
        if (I % 3)
            Stroke(P.C, {{X - Long, Y}, {X, Y + AnyBell(P.C) * 3}, {X + Long, Y}},
                   0.8f + 3.5f * T * Any(P.C), 0.5f, Frost, 0.6f);
        else
            Stroke(P.C,
                   Curve({{X - Long * 0.6f, Y - 10 * T},
                          {X, Y + AnyBell(P.C) * 9},
                          {X + Long * 0.5f, Y + 12 * T}},
                         3),
                   0.6f, 0.4f, Mix(Frost, Sky(P, 0.8f), 0.3f), 0.7f);
    }
    PaintLife(P, H + 70);
    const Mask Bank = Below({{-10, 350}, {150, 372}, {330, 404}, {480, 440}});
    PaintMeadow(P, &Bank, 320, Hex(0xe4ecf6), Hex(0xe4ecf6), 0.3f);
    for (int I = 0; I < 4; ++I)
        PaintTree(P, P.Seed % 2 ? Tree::Fir : Tree::Bare, Any(P.C, 0, 210), Any(P.C, 375, 410),
                  Any(P.C, 140, 290), 0.05f);
}

void PaintFjord(Scene& P)
{
    const float H = Vary(P, 153, 259);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 1, 110, H, 0.8f, 0);
    for (int I = 0; I < 4; ++I) {
        HillLook Wall;
        Wall.Kind = I % 2 ? Hill::Cliff : Hill::Alpine;
        const float Side = (I + int(P.Seed % 2)) % 2 ? 1.0f : -1.0f;
        Wall.Foot = H + 3 + 7 * float(I), Wall.Top = Any(P.C, -10, 70) - 14 * float(I);
        Wall.Centre = 360 + Side * (390 + 30 * float(I)),
        Wall.Spread = Any(P.C, 250, 310) - 20 * float(I);
        Wall.Grain = 130, Wall.Far = 1.3f - 0.32f * float(I),
        Wall.Local = Mix(RockColour(P), WoodColour(P), 0.4f);
        Wall.Snow = P.Snow ? 0.8f : 0.2f, Wall.Trees = 0.6f, Wall.Mist = 0.35f;
        PaintHill(P, Wall);
        if (I == 1) PaintMist(P, H - 30, 18, 0.5f);
        if (I == 2 && P.Seed % 2) PaintFall(P, 360 + Side * 230, 90, H + 14, 12, 0.6f);
    }
    Village(P, 60, 230, H + 22, 17, 6, 0.5f);
    PaintMotif(P, P.Plan.Motif, 250, H + 24, 56, 0.5f);
    PaintWater(P, nullptr, H + 24, Any(P.C, 0.2f, 0.6f), 0.35f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 26, Height, 0.5f);
    Boat(P, P.Seed % 2 ? "junk" : "sail", Any(P.C, 330, 470), Any(P.C, 310, 360), Any(P.C, 56, 110),
         0.1f);
    PaintLife(P, 350);
}

void PaintAfloat(Scene& P)
{
    const float H = Vary(P, 103, 209);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, Any(P.C, 50, 100), H + 6, P.Snow ? 0.6f : 0, 0.5f);
    Village(P, -10, 730, H + 14, 32, 22, 0.5f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 180, 520), H + 14, 110, 0.4f);
    for (int I = 0; I < 7; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + 18, Any(P.C, 40, 80), 0.3f);
    if (P.Seed % 2) Bridge(P, 360 - 150, 360 + 150, H + 34, 36, 0.25f, true);
    PaintWater(P, nullptr, H + 22, 0.6f, 0.3f);
    static constexpr std::uint32_t Papers[] = {0xffb040, 0xff7848, 0xffd878, 0xf8889c};
    std::vector<Point> Places;
    for (int I = 0; I < 70; ++I) {
        const float T = std::pow(Any(P.C), 1.6f);
        Places.push_back({360 + AnyBell(P.C) * (90 + 430 * T), Lerp(H + 34, Height - 4, T)});
    }
    std::sort(Places.begin(), Places.end(), [](Point A, Point B) { return A.Y < B.Y; });
    for (std::size_t I = 0; I < Places.size(); ++I) {
        const Point K = Places[I];
        const float S = 3 + 17 * (K.Y - H) / (Height - H);
        const Rgb Paper = Hex(Papers[I % 4]);
        SoftDab(P.C, K.X, K.Y - S * 0.4f, S * 2.8f, S * 2.4f, Paper, 0.4f);
        for (int R = 0; R < 5; ++R)
            Dab(P.C, K.X + AnyBell(P.C) * S * 0.4f, K.Y + S * (0.35f + 0.4f * float(R)),
                S * (1.1f - 0.15f * float(R)), 0.9f + S * 0.06f, 0, Paper, 0.5f - 0.08f * float(R),
                true);
        Draw(P.C, [&](QPainter& Q) {
            QLinearGradient G(0, K.Y - S, 0, K.Y + S * 0.2f);
            G.setColorAt(0, ToQColor(Times(Paper, 0.8f)));
            G.setColorAt(0.7, ToQColor(Mix(Paper, Hex(0xfff8d8), 0.75f)));
            G.setColorAt(1, ToQColor(Times(Paper, 0.6f)));
            Q.setBrush(G);
            Q.drawPolygon(QPolygonF({{K.X - S * 0.42f, K.Y},
                                     {K.X - S * 0.5f, K.Y - S},
                                     {K.X + S * 0.5f, K.Y - S},
                                     {K.X + S * 0.42f, K.Y}}));
        });
    }
    Boat(P, "row", Any(P.C, 150, 280), Any(P.C, 320, 360), 96, 0);
    PaintLife(P, Height - 40);
    if (P.Seed % 3 == 0) Overhang(P, Tree::Willow, 240);
}

void PaintIslets(Scene& P)
{
    const float H = Vary(P, 86, 224);
    PaintSky(P, H);
    PaintSea(P, H, 0.25f, Hex(0x2c7470));
    for (int Row = 0; Row < 4; ++Row) {
        const float T = float(Row) / 3, Foot = H + 4 + 70 * T * T + 22 * T;
        for (int I = 0; I < 4 - Row; ++I) {
            HillLook Islet;
            Islet.Kind = Hill::Karst;
            Islet.Grain = Any(P.C, 60, 100) * (0.8f + 0.8f * T);
            Islet.Foot = Foot, Islet.Top = Foot - Any(P.C, 60, 120) * (0.7f + 1.1f * T);
            Islet.Centre = Any(P.C, 40, 680), Islet.Spread = Islet.Grain * 0.9f;
            Islet.Far = 1.6f - 1.25f * T, Islet.Local = Mix(RockColour(P), WoodColour(P), 0.45f);
            Islet.Trees = 0.7f, Islet.Mist = 0.3f;
            PaintHillWhere(P, Islet, [&](float X, float Y, float) {
                return Y > Foot || std::fabs(X - Islet.Centre) >
                                       Islet.Grain * 1.15f + 8 * Noise(Y / 8, Islet.Centre, P.Seed)
                           ? 0.0f
                           : 1.0f;
            });
            for (int K = 0; K < 26; ++K) // its broken reflection
                Dab(P.C, Islet.Centre + AnyBell(P.C) * Islet.Grain, Foot + Any(P.C) * (10 + 40 * T),
                    Any(P.C, 10, 50), 1.4f + 1.5f * T, 0,
                    Lit(P, Times(Islet.Local, 0.5f), 0.2f, Islet.Far), 0.45f, true);
            PaintSurf(P,
                      {{Islet.Centre - Islet.Grain, Foot + 1},
                       {Islet.Centre, Foot + 2},
                       {Islet.Centre + Islet.Grain, Foot + 1}},
                      1.5f);
        }
        if (Row < 3) PaintMist(P, Foot - 2, 12, 0.35f);
    }
    PaintGlitter(P, H + 4, Height, P.L->OrbSize > 0 ? 0.55f : 0.2f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 150, 560), H + 50, 54, 0.5f);
    Boat(P, "junk", Any(P.C, 160, 330), Any(P.C, 320, 370), Any(P.C, 90, 140), 0.05f);
    Boat(P, "junk", Any(P.C, 420, 600), H + Any(P.C, 50, 90), 44, 0.5f);
    PaintLife(P, Height - 40);
}
