// compositions_land.cpp: meadows, fields, woods, gardens and streets.

#include "compositions.h"

#include <algorithm>
#include <cmath>

void PaintWideSky(Scene& P)
{
    const float H = Vary(P, 295, 369);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, Any(P.C, 18, 40), H + 1, P.Snow ? 0.6f : 0, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    for (int I = 0; I < 22; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + Any(P.C, 2, 8), Any(P.C, 10, 22), 0.8f);
    Village(P, 380, 560, H + 8, 12, 6, 0.7f);
    const float X = Any(P.C, 150, 290);
    PaintMotif(P, P.Plan.Motif, X, H + 16, Any(P.C, 64, 90), 0.3f);
    for (int I = 0; I < 5; ++I)
        PaintTree(P, SeasonTree(P), X + Any(P.C, -80, 80), H + 18, Any(P.C, 22, 44), 0.3f);
    if (P.Seed % 2) {
        const Mask Bed =
            Along({{460, H + 5}, {380, H + 16}, {520, H + 34}, {420, Height + 20}}, 2, 56);
        PaintWater(P, &Bed, H + 5, 0.3f, 0.15f);
    }
    PaintLife(P, H + 36);
    Grasses(P, 0, 720, Height + 6, 30, 320, GroundColour(P), 0);
    if (!P.Snow) Flowers(P, 0, 720, H + 20, Height, 700, Hex(P.S->Blossom));
}

void PaintOneTree(Scene& P)
{
    const float H = Vary(P, 203, 309);
    PaintSky(P, H);
    Ranges(P, P.Seed % 3 ? Hill::Soft : Hill::Alpine, 2, Any(P.C, 50, 110), H + 4,
           P.Snow ? 0.8f : 0.2f, 0.4f);
    PaintMist(P, H, 14, 0.4f);
    const float X = Vary(P, 170, 400, 2), Rise = Any(P.C, 10, 60);
    const Mask Hillock = Below(
        {{-20, H + 50}, {X - 130, H + 20}, {X, H + 50 - Rise}, {X + 170, H + 30}, {740, H + 64}});
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    PaintMeadow(P, &Hillock, H - 20, GroundColour(P),
                Mix(GroundColour(P), Hex(P.S->GrassDry), 0.4f), 1);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 520, 630), H + 40, 66, 0.5f);
    const Tree Kind = P.Plan.Season == "spring"   ? Tree::Cherry
                      : P.Plan.Season == "autumn" ? (P.Seed % 2 ? Tree::Maple : Tree::Birch)
                      : P.Plan.Season == "winter" ? (P.Seed % 2 ? Tree::Bare : Tree::Pine)
                      : P.Seed % 3 == 0           ? Tree::Willow
                      : P.Seed % 3 == 1           ? Tree::Round
                                                  : Tree::Pine;
    const float Y = H + 62 - Rise;
    SoftDab(P.C, X - 60 * SunSide(P, X), Y + 14, 150, 18,
            Lit(P, Times(GroundColour(P), 0.4f), 0.1f, 0), 0.6f);
    PaintTree(P, Kind, X, Y, Vary(P, 180, 330, 7), 0.08f);
    if (!P.Snow) {
        Flowers(P, 0, 720, H + 50, Height, 1700,
                P.Seed % 3 == 0   ? Hex(0xe04838)
                : P.Seed % 3 == 1 ? Hex(0xf4d858)
                                  : Hex(0x8c7cd8));
        Grasses(P, 0, 720, Height + 4, 32, 260, GroundColour(P), 0);
    } else {
        Grasses(P, 0, 720, Height + 4, 26, 60, Hex(0xa89878), 0);
    }
    PaintLife(P, H + 110);
}

void PaintFields(Scene& P)
{
    const float H = Vary(P, 92, 246);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 3, Any(P.C, 50, 100), H + 4, P.Snow ? 0.6f : 0, 0.6f);
    PaintMist(P, H, 12, 0.4f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 0.8f);
    static constexpr std::uint32_t Crops[] = {0x8c6cc8, 0xf0d040, 0x5c9848,
                                              0xe05870, 0xd8a848, 0xe87838};
    const Rgb Crop = P.Snow ? Hex(0xe8eef6) : Hex(Crops[P.Seed % 6]);
    const Rgb Soil = P.Snow ? Hex(0x9ca8bc) : P.Seed % 2 ? Hex(0x607838) : Hex(0xa07850);
    const float Y = H + Any(P.C, 24, 50), VanishX = Any(P.C, 60, 660);
    const Mask Area = Below({{-20, Y + 10}, {240, Y}, {480, Y + 4}, {740, Y - 6}});
    PaintRows(P, &Area, H - 14, VanishX, Any(P.C, 0.16f, 0.30f), Crop, Soil);
    for (int I = 0; I < 14; ++I)
        PaintTree(P, I % 2 ? SeasonTree(P) : Tree::Cypress, Any(P.C, 0, 720), Y + Any(P.C, -14, 2),
                  Any(P.C, 26, 60), 0.6f);
    PaintMotif(P, P.Plan.Motif, VanishX < 360 ? Any(P.C, 440, 580) : Any(P.C, 140, 280), Y + 8,
               Any(P.C, 70, 110), 0.4f);
    Village(P, VanishX - 80, VanishX + 80, Y + 2, 22, 4, 0.5f);
    PaintLife(P, H + 120);
    if (P.Seed % 3 == 0) PaintTree(P, SeasonTree(P), Any(P.C, 600, 680), 405, 260, 0);
    Flowers(P, 0, 720, Height - 70, Height + 4, 500, Crop);
}

void PaintHollow(Scene& P)
{
    const float H = Vary(P, 63, 169);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, Any(P.C, 60, 110), H + 14,
           P.Snow ? 1.0f : 0.2f, 0.7f);
    PaintMeadow(P, nullptr, H + 4, GroundColour(P), Mix(GroundColour(P), WoodColour(P), 0.4f), 1);
    PaintMist(P, H + 20, 16, 0.4f);
    const float Bend = Any(P.C, 80, 200);
    PathWay(P, {{420, H + 24}, {360 - Bend, H + 70}, {360 + Bend, H + 140}, {300, Height + 20}}, 3,
            34, P.Snow ? Hex(0xc8d4e4) : Hex(0xd0b888));
    for (int Row = 0; Row < 6; ++Row) {
        const float T = float(Row) / 5, Y = H + 42 + 180 * T;
        for (int I = 0; I < 7; ++I)
            PaintTree(P, Any(P.C) < 0.4f ? Tree::Fir : SeasonTree(P), Any(P.C, -10, 730),
                      Y - Any(P.C, 4, 20), 20 + 56 * T, 0.9f - 0.8f * T);
        if (Row == 2) PaintMotif(P, P.Plan.Motif, Any(P.C, 240, 480), Y, 92, 0.5f);
        const float Middle = 360 + AnyBell(P.C) * 160;
        Village(P, Middle - 190 + 60 * T, Middle + 190 - 60 * T, Y, 16 + 30 * T, 7 - Row / 2,
                0.9f - 0.8f * T);
    }
    for (int I = 0; I < 8; ++I) { // smoke of the evening fires
        const float X = Any(P.C, 180, 540), Y = Any(P.C, H + 40, H + 150);
        for (int K = 0; K < 12; ++K)
            SoftDab(P.C, X + float(K * K) * 0.32f, Y - 24 - float(K) * 6, 3 + float(K) * 1.0f,
                    4 + float(K) * 0.7f, Mix(Hex(P.L->Haze), Hex(P.L->CloudLit), 0.5f), 0.22f);
    }
    for (int I = 0; I < 5; ++I)
        PaintTree(P, P.Snow ? Tree::Fir : SeasonTree(P),
                  I % 2 ? Any(P.C, 610, 740) : Any(P.C, -20, 100), Any(P.C, 396, 430),
                  Any(P.C, 120, 240), 0);
    PaintLife(P, 392);
}

void PaintForest(Scene& P)
{
    const float H = Vary(P, 206, 296), X0 = Vary(P, 220, 500, 2);
    PaintSky(P, H);
    P.SunX = X0 + Any(P.C, -110, 110), P.SunY = Any(P.C, 60, 130);
    // deep green air between the trunks
    const Rgb Air = Mix(Hex(P.L->Haze), Lit(P, WoodColour(P), 0.6f, 0.3f), 0.5f);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) {
            const float DX = float(X) - P.SunX, DY = (float(Y) - P.SunY - 60) * 0.9f;
            const float Shine = std::exp(-std::sqrt(DX * DX + DY * DY) / 150);
            Blend(P.C, X, Y, Air, 0.85f - 0.75f * Shine);
        }
    PaintMeadow(P, nullptr, H, Times(GroundColour(P), 0.75f), GroundColour(P), 1);
    for (int Layer = 0; Layer < 4; ++Layer) {
        const float T = float(Layer) / 3, Far = 1.5f * (1 - T) * (1 - T) + 0.05f;
        const int Count = 13 - 3 * Layer;
        const Rgb Dark = Hex(P.S->LeafDark), Middle = Hex(P.S->LeafMid),
                  Bright = P.Snow ? Hex(0xeef4fa) : Hex(P.S->LeafLight);
        for (int I = 0; I < 16 - 3 * Layer; ++I)
            LeafMass(P, Any(P.C, -20, 740), Any(P.C, -20, 90 - 40 * T), 50 + 60 * T, 26 + 30 * T,
                     3.4f + 3 * T, 60, Dark, Middle, Bright, Far + 0.15f);
        for (int I = 0; I < Count; ++I) {
            float X = Any(P.C, -10, 730);
            if (Layer > 1 && std::fabs(X - X0) < 100 + 50 * T) X += X < X0 ? -170 : 170;
            const float Half = 3 + 17 * T * T * Any(P.C, 0.6f, 1.2f),
                        Y = H + 4 + 130 * T * T + Any(P.C, 0, 10);
            Trunk(P, X, Y, -10, Half, false, Far);
            if (Layer > 1) Bush(P, X + Any(P.C, -30, 30), Y + 6, 14 + 20 * T, Far);
        }
        if (Layer == 1) PaintMotif(P, P.Plan.Motif, X0 + Any(P.C, -50, 50), H + 22, 90, 0.5f);
        if (Layer < 3) PaintMist(P, H + 10 + 40 * T, 40, 0.30f);
    }
    PathWay(P, {{X0, H + 14}, {X0 - 35, H + 50}, {X0 + 30, H + 100}, {X0 - 20, Height + 30}}, 6,
            110, P.Snow ? Hex(0xd4dce8) : Hex(0xc0a478));
    if (P.Seed % 3 == 0) {
        const Mask Brook = Along(
            {{X0 + 95, H + 16}, {X0 + 170, H + 60}, {X0 + 70, H + 110}, {X0 + 190, Height + 30}}, 3,
            50);
        PaintWater(P, &Brook, H + 14, 0.8f, 0.3f);
    }
    PaintLife(P, H + 70);
    for (int I = 0; I < 26; ++I) { // ferns or drifts
        const float X = I % 2 ? Any(P.C, -10, 210) : Any(P.C, 520, 730),
                    Y = Any(P.C, H + 90, Height + 10);
        Grasses(P, X - 24, X + 24, Y, 26, 16, P.Snow ? Hex(0xc0ccd8) : Hex(P.S->LeafMid), 0);
    }
    for (int I = 0; I < 160; ++I) { // spots of sun on the ground
        const float T = Any(P.C), X = 360 + AnyBell(P.C) * 320, Y = Lerp(H + 16, Height, T);
        Dab(P.C, X, Y, 4 + 26 * T * Any(P.C), 1.4f + 4 * T * Any(P.C), 0,
            Mix(Hex(P.L->Horizon), Lit(P, GroundColour(P), 1.2f, 0), 0.5f),
            P.Night ? 0.12f : 0.35f);
    }
    PaintRays(P, P.Night ? 0.3f : 0.7f);
}

void PaintBirches(Scene& P)
{
    const float H = Vary(P, 190, 311);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 3, Any(P.C, 60, 130), H, P.Snow ? 0.9f : 0.3f,
           0.7f);
    PaintMist(P, H - 6, 18, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    if (P.Seed % 2) {
        const Mask Lake = Below({{-10, H + 12}, {720, H + 10}});
        PaintWater(P, &Lake, H + 10, 0.4f, 0.2f);
        const Mask Bank = Below({{-10, H + 66}, {250, H + 84}, {500, H + 70}, {740, H + 50}});
        PaintMeadow(P, &Bank, H + 30, GroundColour(P), GroundColour(P), 1);
    }
    PaintMotif(P, P.Plan.Motif, Any(P.C, 280, 440), H + 16, 74, 0.6f);
    const bool Gold = P.Plan.Season == "autumn";
    const Rgb Dark = Gold ? Hex(0xb06c18) : Hex(P.S->LeafDark),
              Middle = Gold ? Hex(0xe8a828) : Hex(P.S->LeafMid),
              Bright = Gold ? Hex(0xfce070) : Hex(P.S->LeafLight);
    for (int Layer = 0; Layer < 3; ++Layer) {
        const float T = float(Layer) / 2;
        for (int I = 0; I < 9 - 2 * Layer; ++I) {
            float X = Any(P.C, -10, 730);
            if (Layer == 2 && std::fabs(X - 360) < 90) X += X < 360 ? -130 : 130;
            const float Half = 3 + 11 * T * Any(P.C, 0.7f, 1.3f),
                        Y = H + 20 + 110 * T + Any(P.C, -6, 20), Far = 0.6f * (1 - T);
            Trunk(P, X, Y, -10, Half, true, Far);
            for (int B = 0; B < 3; ++B) {
                const float BY = Any(P.C, 10, 190), Hand = Any(P.C) < 0.5f ? -1.0f : 1.0f,
                            L = 40 + 50 * T;
                Stroke(P.C,
                       Curve({{X, BY},
                              {X + Hand * L * 0.5f, BY - L * 0.35f},
                              {X + Hand * L, BY - L * 0.3f}},
                             5),
                       Half * 0.22f, 0.5f, Lit(P, Hex(0x50483f), 0.3f, Far), 1);
                if (!P.Snow)
                    LeafMass(P, X + Hand * L * 0.7f, BY - L * 0.2f, 30 + 26 * T, 16 + 14 * T,
                             3.2f + 1.6f * T, 46, Dark, Middle, Bright, Far);
            }
        }
        if (!P.Snow)
            for (int I = 0; I < 12; ++I)
                LeafMass(P, Any(P.C, -10, 730), Any(P.C, -20, 60), 60, 26, 3.5f + 1.5f * T, 60,
                         Dark, Middle, Bright, 0.5f * (1 - T));
    }
    PaintLife(P, H + 90);
    Grasses(P, 0, 720, Height + 4, 38, P.Snow ? 70 : 240, P.Snow ? Hex(0xb0a488) : GroundColour(P),
            0);
    if (!P.Snow)
        Flowers(P, 0, 720, H + 80, Height, Gold ? 1200 : 700,
                Gold ? Hex(0xf0b030) : Hex(P.S->Blossom));
}

void PaintGrove(Scene& P)
{
    const float H = Vary(P, 210, 340), X0 = Vary(P, 210, 510, 2), Stout = Vary(P, 0.8f, 1.9f, 5);
    PaintSky(P, H);
    P.SunX = X0 + Any(P.C, -120, 120), P.SunY = 90;
    const Rgb Air = Mix(Hex(P.L->Haze), Lit(P, Hex(0x88b058), 0.7f, 0.2f), 0.45f);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            Blend(P.C, X, Y, Air, 0.55f + 0.35f * std::fabs(float(X) - P.SunX) / 400);
    PaintMeadow(P, nullptr, H, Times(GroundColour(P), 0.6f), Times(GroundColour(P), 0.85f), 0.9f);
    PathWay(P,
            {{X0, H + 4}, {X0 - 30, H + 30}, {X0 + 40, H + 70}, {Lerp(X0, 360, 0.5f), Height + 30}},
            10, 130, P.Snow ? Hex(0xe0e8f0) : Hex(0xccb488));
    for (int Layer = 0; Layer < 4; ++Layer) {
        const float T = float(Layer) / 3;
        for (int I = 0; I < int((24 - 5 * Layer) / Stout) + 1; ++I) {
            float X = Any(P.C, -20, 740);
            const float Clear = 26 + 110 * T;
            if (std::fabs(X - X0) < Clear) X += X < X0 ? -Clear * 1.4f : Clear * 1.4f;
            PaintTree(P, Tree::Bamboo, X, H + 6 + 110 * T * T + Any(P.C, 0, 10),
                      300 + 330 * T * Stout, 1.5f * (1 - T) * (1 - T) + 0.05f);
        }
        if (Layer == 0) PaintMotif(P, P.Plan.Motif, X0, H + 14, 84, 0.5f);
        if (Layer < 2) PaintMist(P, H - 10, 60, 0.35f);
    }
    Lantern(P, X0 - Any(P.C, 130, 180), H + 74, 92, 0.05f);
    Lantern(P, X0 + Any(P.C, 90, 120), H + 26, 44, 0.4f);
    for (int I = 0; I < 7; ++I)
        Rock(P, I % 2 ? Any(P.C, 0, 200) : Any(P.C, 540, 720), Any(P.C, H + 50, Height),
             Any(P.C, 14, 34), 0.1f);
    PaintLife(P, H + 56);
    PaintRays(P, P.Night ? 0.2f : 0.5f);
}

void PaintAvenue(Scene& P)
{
    const float H = Vary(P, 150, 270), X = Vary(P, 210, 510, 2);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, Any(P.C, 40, 80), H + 2, P.Snow ? 0.6f : 0, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    const bool Canal = P.Seed % 4 == 0;
    PaintMotif(P, P.Plan.Motif, X, H + 10, 96, 0.6f);
    if (Canal) {
        const Mask Bed = Along({{X, H + 8}, {X, H + 60}, {X, Height + 40}}, 14, 190);
        PaintWater(P, &Bed, H + 8, 0.4f, 0.25f);
        Boat(P, "row", X + 20, 350, 80, 0);
    } else {
        PathWay(P,
                {{X, H + 8}, {X + Any(P.C, -10, 10), H + 60}, {X + Any(P.C, -40, 40), Height + 40}},
                14, 170, P.Snow ? Hex(0xdce4ee) : Hex(0xd4b88c));
    }
    static constexpr Tree Kinds[] = {Tree::Round, Tree::Cypress, Tree::Birch, Tree::Pine,
                                     Tree::Palm};
    const Tree Kind = P.Plan.Season == "spring"   ? Tree::Cherry
                      : P.Plan.Season == "autumn" ? (P.Seed % 2 ? Tree::Maple : Tree::Birch)
                      : P.Plan.Season == "winter" ? (P.Seed % 2 ? Tree::Bare : Tree::Fir)
                                                  : Kinds[P.Seed % 5];
    for (int I = 0; I < 8; ++I) {
        const float T = float(I) / 6, Depth = 0.07f + 0.93f * T * T;
        for (int Side = -1; Side <= 1; Side += 2) {
            const float TX = X + float(Side) * (24 + 330 * Depth), Y = H + 8 + 165 * Depth;
            PaintTree(P, Kind, TX + AnyBell(P.C) * 6, Y, 50 + 330 * Depth, 0.9f * Clamp(1 - T));
            if (P.Seed % 3 == 0 && I > 1 && I < 6)
                Lantern(P, TX - float(Side) * (20 + 44 * Depth), Y + 4, 14 + 70 * Depth,
                        0.7f * (1 - T));
        }
        if (I == 3 && P.Plan.Life != "none") PaintLife(P, H + 70);
    }
    if (!P.Snow) Flowers(P, 0, 720, H + 40, Height, 700, Hex(P.S->Blossom));
    for (int I = 0; I < 120 && !Canal; ++I) { // shade of the trees over the road
        const float T = Any(P.C), Y = Lerp(H + 20, Height, T);
        Dab(P.C, X + AnyBell(P.C) * (30 + 190 * T), Y, 20 + 90 * T * Any(P.C), 1.5f + 5 * T, 0,
            Lit(P, Times(Hex(P.S->Ground), 0.45f), 0.1f, 0.3f * (1 - T)), 0.25f);
    }
}

void PaintStairs(Scene& P)
{
    const float H = Vary(P, 96, 206), X = Vary(P, 240, 480, 5);
    PaintSky(P, H);
    P.SunX = X + Any(P.C, -60, 60);
    Ranges(P, Hill::Soft, 2, 70, H + 30, P.Snow ? 0.7f : 0, 0.6f);
    PaintMist(P, H + 20, 40, 0.7f);
    const Mask Slope =
        Below({{-20, H - 10}, {X - 120, H + 40}, {X, H + 52}, {X + 120, H + 40}, {740, H - 10}});
    PaintMeadow(P, &Slope, H - 20, Times(GroundColour(P), 0.7f),
                Mix(GroundColour(P), WoodColour(P), 0.4f), 1);
    for (int I = 0; I < 8; ++I)
        PaintTree(P, SeasonTree(P), I % 2 ? X - Any(P.C, 90, 240) : X + Any(P.C, 90, 240), H + 52,
                  Any(P.C, 60, 130), 0.6f);
    const std::string Gate = P.Plan.Motif == "none" ? "torii" : P.Plan.Motif;
    PaintMotif(P, Gate, X, H + 56, Any(P.C, 100, 130), 0.4f);
    const float Bend = Vary(P, -70, 70, 2); // it turns on its way down
    StoneSteps(P, {{X, H + 54}, {X + Bend, Lerp(H, Height, 0.45f)}, {X - Bend * 0.4f, Height + 30}},
               22, 150, 30, Hex(0xb4aca0));
    for (int I = 0; I < 5; ++I) {
        const float T = float(I + 1) / 5;
        for (int Side = -1; Side <= 1; Side += 2) {
            const float TX = X + float(Side) * (56 + 230 * T), Y = H + 60 + 190 * T;
            if (P.Seed % 2)
                Trunk(P, TX + float(Side) * 26 * T, Y, -10, 4 + 20 * T, false, 0.5f * (1 - T));
            else
                PaintTree(P, SeasonTree(P), TX + float(Side) * 20, Y, 80 + 180 * T, 0.5f * (1 - T));
            if (I % 2 == 0)
                Lantern(P, TX - float(Side) * (14 + 12 * T), Y + 6, 22 + 66 * T, 0.4f * (1 - T));
            Bush(P, TX + float(Side) * 40, Y + 8, 16 + 26 * T, 0.4f * (1 - T));
        }
    }
    if (P.Seed % 2)
        for (int I = 0; I < 12; ++I)
            LeafMass(P, Any(P.C, 0, 720), Any(P.C, -30, 50), 80, 34, 5, 80, Hex(P.S->LeafDark),
                     Hex(P.S->LeafMid), P.Snow ? Hex(0xeef4fa) : Hex(P.S->LeafLight), 0.1f);
    PaintLife(P, H + 150);
}

void PaintBranch(Scene& P)
{
    const float H = Vary(P, 240, 350);
    const bool Disc = P.L->OrbSize == 0 || P.Seed % 2; // a great one behind the branch
    Disc ? PaintSkyWithoutOrb(P, H) : PaintSky(P, H);
    static constexpr Hill Kinds[] = {Hill::Soft, Hill::Karst, Hill::Alpine};
    Ranges(P, Kinds[P.Variant % 3], 3, Vary(P, 80, 170, 5), H, P.Snow ? 0.7f : 0.2f, 0.5f);
    PaintMist(P, H - 10, 40, 0.8f);
    if (Disc) {
        const float R = Any(P.C, 50, 84), MX = Any(P.C, 380, 560), MY = Any(P.C, 100, 170);
        const Rgb Paint = P.Ink     ? Hex(P.L->Orb)
                          : P.Night ? Hex(0xf6f0dc)
                                    : Mix(Hex(P.L->Horizon), Hex(0xfff8e8), 0.6f);
        SoftDab(P.C, MX, MY, R * 2, R * 2, Paint, 0.35f);
        Dab(P.C, MX, MY, R * 2, R * 2, 0, Paint, 0.92f);
    }
    const float Spot = Vary(P, 400, 640, 2);
    Village(P, Spot - 130, Spot + 110, H + 6, 17, 7, 0.9f);
    PaintMotif(P, P.Plan.Motif, Spot, H + 4, Vary(P, 76, 120, 7), 0.7f);
    if (P.Variant % 2) {
        PaintWater(P, nullptr, H + 8, 0.5f, 0.25f);
        if (P.L->OrbSize > 0 || Disc) PaintGlitter(P, H + 10, Height, 0.5f);
        Boat(P, "raft", Any(P.C, 250, 420), Lerp(H, Height, 0.45f), 66, 0.15f);
    } else {
        PaintMeadow(P, nullptr, H + 2, GroundColour(P), WoodColour(P), 1);
        for (int I = 0; I < 24; ++I) {
            const float T = Any(P.C);
            PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), Lerp(H + 8, Height, T * T), 24 + 60 * T,
                      0.9f * (1 - T));
        }
        PaintMist(P, Lerp(H, Height, 0.4f), 24, 0.5f, 1.5f);
    }
    PaintLife(P, 380);
    const Tree Kind = P.Plan.Season == "spring"   ? Tree::Cherry
                      : P.Plan.Season == "autumn" ? Tree::Maple
                      : P.Plan.Season == "summer" ? (P.Seed % 3 == 0 ? Tree::Willow : Tree::Bamboo)
                                                  : (P.Seed % 2 ? Tree::Pine : Tree::Bare);
    Overhang(P, Kind, Any(P.C, 420, 600));
    if (P.Seed % 2) Overhang(P, Kind, 260);
    if (Kind != Tree::Bare) return;
    for (int I = 0; I < 120; ++I) { // plum blossom on bare wood
        const float X = 30 + 430 * Any(P.C) * Any(P.C), Y = 20 + X * 0.22f + AnyBell(P.C) * 60,
                    S = Any(P.C, 2.5f, 5);
        for (int K = 0; K < 5; ++K)
            Dab(P.C, X + std::cos(float(K) * 1.26f) * S * 0.6f,
                Y + std::sin(float(K) * 1.26f) * S * 0.6f, S, S * 0.9f, 0,
                Lit(P, Mix(Hex(0xd84060), Hex(0xf8a0b0), Any(P.C)), 0.9f, 0), 0.95f);
        Dab(P.C, X, Y, S * 0.5f, S * 0.5f, 0, Hex(0xf8e088), 0.9f);
    }
}

void PaintMoonGate(Scene& P)
{
    const float H = Vary(P, 143, 249);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Karst, 2, Any(P.C, 60, 110), H, P.Snow ? 0.6f : 0,
           0.6f);
    PaintMist(P, H - 4, 18, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 0.9f);
    const float X = Vary(P, 230, 490, 2), Y = Vary(P, 195, 225, 5), R = Vary(P, 162, 190, 7);
    for (int I = 0; I < 8; ++I)
        PaintTree(P, SeasonTree(P), X + Any(P.C, -170, 170), H + Any(P.C, 6, 24), Any(P.C, 40, 84),
                  0.6f);
    PaintMotif(P, P.Plan.Motif, X + Any(P.C, -70, 70), H + 34, 110, 0.35f);
    if (P.Seed % 3) {
        const Mask Pond = Below({{-10, H + 46}, {240, H + 40}, {480, H + 44}, {740, H + 50}});
        PaintWater(P, &Pond, H + 38, 0.35f, 0.3f);
        Bridge(P, X - 20, X + 130, H + 58, 24, 0.2f, P.Seed % 2);
    } else {
        PathWay(P, {{X, H + 34}, {X + 50, H + 70}, {X - 30, Height}}, 6, 60, Hex(0xd0bc98));
    }
    for (int I = 0; I < 5; ++I)
        Rock(P, X + Any(P.C, -170, 170), H + Any(P.C, 70, 120), Any(P.C, 10, 28), 0.15f);
    PaintTree(P, SeasonTree(P), X + (P.Seed % 2 ? -120.0f : 120.0f), H + 104, 170, 0.1f);
    PaintLife(P, H + 90);
    static constexpr std::uint32_t Walls[] = {0xf0e8dc, 0xc8553c, 0xe8d4a8, 0x9cacb0, 0xd8dcd0};
    const Rgb Wall = Hex(Walls[P.Seed % 5]);
    Mask Area(Width * Height, 0.0f);
    const float Floor = Height - 34;
    for (int PY = 0; PY < Height; ++PY)
        for (int PX = 0; PX < Width; ++PX) {
            const float DX = float(PX) - X, DY = float(PY) - Y, D = std::sqrt(DX * DX + DY * DY);
            const float A = Clamp(D - R);
            if (A <= 0) continue;
            const std::size_t I = std::size_t(PY * Width + PX);
            const float Stain = Fbm(float(PX) / 90, float(PY) / 60, 4, P.Seed + 3);
            Rgb Local = Times(Wall, 0.82f + 0.3f * Stain);
            float Shade = 0.26f + 0.3f * Stain + 0.10f * SunSide(P, float(PX));
            if (D < R + 17)
                Local =
                    Times(Hex(0xa8a498), 0.8f + 0.3f * Noise(std::atan2(DY, DX) * 12, 1, P.Seed)),
                Shade = 0.35f + 0.3f * Clamp((DX * SunSide(P, X) + DY) / R);
            if (D < R + 17 && D > R + 13) Shade = 0.1f;
            if (float(PY) > Floor) Local = Times(Hex(0x8c8478), 0.8f + 0.3f * Stain), Shade = 0.3f;
            Blend(P.C, PX, PY, Lit(P, Local, Shade, 0), A);
            Area[I] = A;
            P.C.Flow[I] = D < R + 17 ? std::atan2(DX, -DY) : 0.5f * (Stain - 0.5f) + 0.2f;
        }
    Repaint(P.C, &Area, {{6, 5, -1, 0.035f}, {2.5f, 5, 0.07f, 0.03f}});
    Draw(P.C, [&](QPainter& Q) { // a ridge of tiles along the wall
        const Rgb Tile = P.Snow ? Hex(0xe8eef6) : Hex(0x50585c);
        for (int I = 0; I < 38; ++I) {
            Q.setBrush(ToQColor(Lit(P, Times(Tile, I % 2 ? 0.9f : 1.1f), 0.45f, 0)));
            Q.drawRoundedRect(QRectF(I * 20 - 10, -12, 18, 36), 9, 9);
        }
        Q.setBrush(ToQColor(Lit(P, Times(Tile, 0.5f), 0.2f, 0)));
        Q.drawRect(QRectF(0, -2, Width, 6));
    });
    if (P.Seed % 2) Overhang(P, FestiveTree(P, Tree::Bamboo), 170);
    for (int I = 0; I < 5; ++I)
        Bush(P, P.Seed % 2 ? Any(P.C, 590, 730) : Any(P.C, -10, 120), Height - 10, Any(P.C, 24, 44),
             0);
    Rock(P, P.Seed % 2 ? 100 : 630, Height - 8, 46, 0);
}

void PaintStreet(Scene& P)
{
    const float H = Vary(P, 150, 250), X = Vary(P, 220, 500, 2);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 2, Any(P.C, 70, 110), H, P.Snow ? 0.9f : 0.2f,
           0.5f);
    PaintMotif(P, P.Plan.Motif, X, H + 12, 130, 0.5f);
    PaintMist(P, H, 20, 0.5f);
    PaintMeadow(P, nullptr, H + 8, Hex(0xa49884), Hex(0xb4a890), 0.3f);
    const auto Depth = [](int I) { return 0.055f + 0.945f * std::pow(float(I) / 7, 1.9f); };
    for (int I = 0; I < 10; ++I) {
        for (int Side = -1; Side <= 1; Side += 2) {
            const Wall Front{[&, Side](float D, float Up) {
                                 return QPointF(X + float(Side) * (20 + 330 * D),
                                                H + 8 + 190 * D - Up * D);
                             },
                             Depth(I), Depth(I + 1), Any(P.C, 190, 280), Side};
            PaintFacade(P, Front, std::uint32_t(I * 2 + Side + 1), 0.75f * Clamp(1 - float(I) / 6),
                        X);
        }
        if (I == 3 && P.Seed % 3 == 0) Bridge(P, X - 80, X + 80, H + 40, 18, 0.4f, false);
    }
    const bool Wetness = P.Plan.Weather == "rain" || P.Seed % 4 == 0;
    const Mask Road = MaskOf([&] {
        QPainterPath Path;
        Path.addPolygon(QPolygonF({{X - 38.0, H + 20.0},
                                   {X + 38.0, H + 20.0},
                                   {X + 370.0, Height + 5.0},
                                   {X - 370.0, Height + 5.0}}));
        return Path;
    }());
    if (Wetness) {
        const std::vector<Rgb> Dry = P.C.Px;
        PaintWater(P, &Road, H + 20, 0.9f, 0.2f);
        for (std::size_t I = 0; I < Dry.size(); ++I)
            P.C.Px[I] = Mix(P.C.Px[I], Dry[I], 0.35f * Road[I]);
    } else {
        for (int I = 0; I < 500; ++I) { // paving
            const float T = std::sqrt(Any(P.C)), Y = Lerp(H + 20, Height, T),
                        PX = X + Any(P.C, -1, 1) * Lerp(38, 370, T);
            Dab(P.C, PX, Y, 6 + 34 * T, 2 + 7 * T, 0,
                Lit(P, Times(P.Snow ? Hex(0xdce4ee) : Hex(0xa89c8c), Any(P.C, 0.75f, 1.15f)),
                    Any(P.C, 0.2f, 0.8f), 0.5f * (1 - T)),
                0.6f);
        }
    }
    PaintLife(P, H + 120);
}

void PaintOasis(Scene& P)
{
    const float H = Vary(P, 130, 250), X = Vary(P, 260, 460, 2);
    PaintSky(P, H);
    const Rgb Sand = P.Seed % 2 ? Hex(0xf0cc94) : Hex(0xe8b880);
    for (int I = 0; I < 3; ++I) {
        HillLook Dune;
        Dune.Kind = Hill::Dune;
        Dune.Foot = H + 20 + 14 * float(I), Dune.Top = H - Any(P.C, 50, 80) + 24 * float(I),
        Dune.Grain = Any(P.C, 220, 360), Dune.Far = 1.2f - 0.4f * float(I), Dune.Local = Sand,
        Dune.Mist = 0.3f;
        PaintHill(P, Dune);
    }
    PaintMeadow(P, nullptr, H + 26, Times(Sand, 0.9f), Sand, 0.3f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, Tree::Palm, Any(P.C, 60, 660), H + Any(P.C, 34, 50), Any(P.C, 60, 110), 0.4f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 200, 460), H + 52, 120, 0.3f);
    Village(P, 60, 260, H + 52, 22, 4, 0.35f);
    for (int I = 0; I < 16; ++I)
        Bush(P, Any(P.C, 40, 680), H + Any(P.C, 54, 62), Any(P.C, 8, 20), 0.3f);
    const Mask Pool = MaskOf([&] {
        QPainterPath E;
        E.addEllipse(QPointF(X, H + 112), Vary(P, 170, 340, 5), Any(P.C, 40, 60));
        return E;
    }());
    PaintWater(P, &Pool, H + 56, 0.3f, 0.3f);
    Reeds(P, 90, 240, H + 148, 40, 50, 0.1f);
    Reeds(P, 480, 650, H + 140, 40, 50, 0.1f);
    for (int I = 0; I < 4; ++I)
        PaintTree(P, Tree::Palm, I % 2 ? Any(P.C, 590, 700) : Any(P.C, 20, 130), Any(P.C, 370, 415),
                  Any(P.C, 200, 300), 0.05f);
    PaintLife(P, H + 186 > 400 ? 400 : H + 186);
}

void PaintSteppe(Scene& P)
{
    const float H = Vary(P, 160, 281);
    PaintSky(P, H);
    HillLook Wall;
    Wall.Kind = Hill::Alpine;
    Wall.Foot = H, Wall.Top = H - Vary(P, 70, 190, 7), Wall.Grain = Vary(P, 130, 300, 2),
    Wall.Far = 1.1f, Wall.Local = RockColour(P), Wall.Snow = P.Snow ? 1.2f : 0.6f, Wall.Mist = 0.6f;
    Wall.Centre = Vary(P, 80, 640, 5), Wall.Spread = 420;
    PaintHill(P, Wall);
    PaintMist(P, H - 6, 16, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), Mix(GroundColour(P), Hex(P.S->GrassDry), 0.6f), 1);
    for (int I = 0; I < 3; ++I) { // long swells of the ground
        const float Y = H + 26 + 50 * float(I);
        const Mask Swell = Below({{-20, Y + Any(P.C, -14, 14)},
                                  {200, Y + Any(P.C, -16, 16)},
                                  {460, Y + Any(P.C, -16, 16)},
                                  {740, Y + Any(P.C, -14, 14)}});
        PaintMeadow(P, &Swell, Y - 20, Times(GroundColour(P), 1.05f - 0.12f * float(I)),
                    Mix(GroundColour(P), Hex(P.S->GrassDry), 0.7f), 1);
        if (I == 0) PaintMotif(P, P.Plan.Motif, Any(P.C, 150, 300), Y + 10, 100, 0.4f);
    }
    if (P.Seed % 2) {
        const Mask Bed =
            Along({{560, H + 12}, {380, H + 40}, {560, H + 84}, {330, Height + 30}}, 2, 70);
        PaintWater(P, &Bed, H + 10, 0.4f, 0.2f);
    }
    PaintLife(P, H + 90);
    Grasses(P, 0, 720, Height + 6, 52, 480,
            P.Snow ? Hex(0xc8b894) : Mix(GroundColour(P), Hex(P.S->GrassDry), 0.5f), 0);
    if (!P.Snow) Flowers(P, 0, 720, H + 70, Height, 900, Hex(P.S->Blossom));
}
