// compositions_hills.cpp: mountains, rocks, sand.

#include "compositions.h"

#include <algorithm>
#include <cmath>

static float CrestAtX(const std::vector<float>& Crest, float X)
{
    return Crest[std::size_t(std::clamp(int(X), 0, Width - 1))];
}

void PaintCloudPeaks(Scene& P)
{
    const float H = Vary(P, 109, 279);
    PaintSky(P, H);
    PaintCloudSea(P, H, Height);
    for (int I = 0; I < 4; ++I) {
        HillLook Peak;
        Peak.Kind = Hill::Alpine;
        Peak.Foot = H + 20 + 52 * float(I);
        Peak.Top = Peak.Foot - Any(P.C, 150, 230) - 14 * float(I);
        Peak.Centre = Any(P.C, 0, 720), Peak.Spread = Any(P.C, 90, 170) + 24 * float(I);
        Peak.Grain = Any(P.C, 90, 170), Peak.Far = 1.5f - 0.4f * float(I);
        Peak.Local = RockColour(P), Peak.Snow = P.Snow ? 1.0f : 0.35f,
        Peak.Trees = P.Variant % 2 ? 0.6f : 0, Peak.Mist = 0.5f;
        // its foot drowns in cloud again
        const auto Seen = [&](float X, float Y, float Top) {
            const float Edge =
                Peak.Foot - 14 + 40 * (Fbm(X / 55, Y / 22, 3, P.Seed + std::uint32_t(I)) - 0.5f);
            return 1 - std::max(Smooth(Edge - 34, Edge, Y), Smooth(14, 0, Peak.Foot - Top));
        };
        const std::vector<float> Crest = PaintHillWhere(P, Peak, Seen);
        if (I == 2) {
            PaintMotif(P, P.Plan.Motif, Peak.Centre,
                       std::max(CrestAtX(Crest, Peak.Centre) + 10, 92.0f), 74, 0.4f);
            for (int K = 0; K < 5; ++K) {
                const float X = Peak.Centre + AnyBell(P.C) * 70;
                PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, X, CrestAtX(Crest, X) + 8,
                          Any(P.C, 24, 46), 0.5f);
            }
        }
    }
    if (P.Seed % 3 == 1) { // a ledge to stand on
        const Mask Ledge = Below({{-10, 320}, {90, 336}, {180, 380}, {230, 440}});
        PaintMeadow(P, &Ledge, 290, Times(RockColour(P), 0.6f), Times(RockColour(P), 0.8f), 0.4f);
        PaintTree(P, Tree::Pine, 96, 344, 190, 0);
    }
    PaintLife(P, 370);
}

void PaintPillars(Scene& P)
{
    const float H = Vary(P, 189, 359);
    PaintSky(P, H);
    for (int I = 0; I < 4; ++I) {
        const float T = float(I) / 3;
        HillLook Row;
        Row.Kind = Hill::Karst;
        Row.Foot = H + 10 + 50 * T, Row.Top = Any(P.C, 30, 100) - 40 * T;
        Row.Grain = 70 + 60 * T, Row.Far = 1.8f - 1.2f * T,
        Row.Local = Mix(RockColour(P), WoodColour(P), 0.35f);
        Row.Trees = 0.6f, Row.Mist = 0.75f, Row.Centre = Any(P.C, 80, 640),
        Row.Spread = I == 3 ? 170 : 420;
        const std::vector<float> Crest = PaintHill(P, Row);
        PaintMist(P, Row.Foot - 40, 40, 0.62f);
        if (I == 2)
            PaintMotif(P, P.Plan.Motif, Row.Centre,
                       std::max(CrestAtX(Crest, Row.Centre) + 8, 86.0f), 66, 0.5f);
        for (int K = 0; K < 5 && I > 1; ++K) {
            const float X = Any(P.C, 20, 700);
            if (CrestAtX(Crest, X) < Row.Foot - 60)
                PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, X, CrestAtX(Crest, X) + 9,
                          30 + 24 * T, Row.Far);
        }
    }
    if (P.Seed % 2) {
        PaintWater(P, nullptr, H + 66, 0.4f, 0.25f);
        Boat(P, "raft", Any(P.C, 300, 480), H + 84, 58, 0.1f);
    } else {
        for (int I = 0; I < 3; ++I) { // wooded feet that rise out of the mist
            HillLook Foot;
            Foot.Foot = 390 + 40 * float(I), Foot.Top = Foot.Foot - Any(P.C, 50, 90);
            Foot.Grain = Any(P.C, 120, 240), Foot.Far = 0.9f - 0.35f * float(I);
            Foot.Local = WoodColour(P), Foot.Trees = 0.9f, Foot.Mist = 0.6f,
            Foot.Snow = P.Snow ? 0.5f : 0;
            PaintHill(P, Foot);
            PaintMist(P, Foot.Foot - 20, 14, 0.5f, 1.5f);
        }
    }
    const Mask Crag = Below({{-10, 300}, {70, 318}, {150, 366}, {200, 430}});
    PaintMeadow(P, &Crag, 270, Times(RockColour(P), 0.55f), Times(RockColour(P), 0.7f), 0.4f);
    PaintTree(P, Tree::Pine, Any(P.C, 60, 120), 334, Any(P.C, 170, 260), 0);
    Rock(P, 40, 420, 60, 0);
    PaintLife(P, 384);
}

void PaintCone(Scene& P)
{
    const float H = Vary(P, 170, 291);
    PaintSky(P, H);
    HillLook Cone;
    Cone.Kind = Hill::Cone;
    Cone.Foot = H, Cone.Top = Any(P.C, 34, 90), Cone.Centre = Any(P.C, 220, 500),
    Cone.Grain = Any(P.C, 150, 230);
    Cone.Far = 0.9f, Cone.Local = Mix(RockColour(P), Hex(0x5c6c98), 0.5f);
    Cone.Snow = P.Snow ? 1.0f : P.Plan.Season == "summer" ? 0.12f : 0.4f, Cone.Mist = 0.9f;
    PaintHill(P, Cone);
    PaintMist(P, H - 26, 26, 0.6f);
    Ranges(P, Hill::Soft, 2, 44, H + 4, 0, 0.7f);
    PaintMeadow(P, nullptr, H - 4, GroundColour(P), GroundColour(P), 0.9f);
    Village(P, 80, 600, H + 22, 20, 10, 0.6f);
    PaintMotif(P, P.Plan.Motif, Cone.Centre < 360 ? 560 : 170, H + 40, 120, 0.3f);
    if (P.Seed % 2) {
        const Mask Lake = Below({{-20, H + 60}, {200, H + 44}, {480, H + 48}, {740, H + 66}});
        PaintWater(P, &Lake, H + 42, 0.5f, 0.25f);
        Boat(P, "sail", Any(P.C, 250, 470), H + 76, 40, 0.3f);
        Reeds(P, 0, 720, Height + 10, 60, 70, 0);
    } else {
        PathWay(P, {{400, H + 30}, {330, H + 70}, {420, H + 120}, {340, Height + 20}}, 3, 46,
                Hex(0xd0b890));
        Flowers(P, 0, 720, H + 40, Height, 1300, Hex(P.S->Blossom));
    }
    for (int I = 0; I < 7; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C) < 0.5f ? Any(P.C, -10, 170) : Any(P.C, 560, 730),
                  H + Any(P.C, 40, 100), Any(P.C, 60, 120), 0.2f);
    PaintLife(P, H + 100);
    if (P.Seed % 4 < 2) Overhang(P, FestiveTree(P, Tree::Pine), Any(P.C, 240, 380));
}

void PaintAlps(Scene& P)
{
    const float H = Vary(P, 183, 289);
    PaintSky(P, H);
    HillLook Wall;
    Wall.Kind = Hill::Alpine;
    Wall.Foot = H + 6, Wall.Top = Any(P.C, 10, 60), Wall.Grain = Any(P.C, 150, 300),
    Wall.Far = 1.0f;
    Wall.Local = RockColour(P), Wall.Snow = P.Snow ? 1.2f : 0.55f, Wall.Mist = 0.6f,
    Wall.Centre = Any(P.C, 120, 600), Wall.Spread = 520;
    PaintHill(P, Wall);
    Ranges(P, Hill::Soft, 2, 70, H + 14, P.Snow ? 0.8f : 0, 0.85f);
    PaintMist(P, H, 16, 0.45f);
    const Line Slope{{-20, H + Any(P.C, -10, 40)},
                     {200, H + Any(P.C, 10, 50)},
                     {450, H + Any(P.C, 6, 40)},
                     {740, H + Any(P.C, -30, 30)}};
    const Mask Meadow = Below(Slope);
    PaintMeadow(P, &Meadow, H - 10, GroundColour(P), Mix(GroundColour(P), WoodColour(P), 0.3f), 1);
    for (int I = 0; I < 26; ++I)
        PaintTree(P, Tree::Fir, Any(P.C) < 0.5f ? Any(P.C, 0, 230) : Any(P.C, 480, 720),
                  H + Any(P.C, 30, 76), Any(P.C, 34, 76), 0.45f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 290, 430), H + 62, 84, 0.3f);
    Village(P, 240, 520, H + 72, 25, 5, 0.3f);
    if (P.Seed % 2) {
        const Mask Brook =
            Along({{430, H + 60}, {330, H + 90}, {430, H + 130}, {300, Height + 20}}, 2, 48);
        PaintWater(P, &Brook, H + 58, 0.8f, 0.35f);
        for (int I = 0; I < 14; ++I)
            Rock(P, Any(P.C, 250, 480), Any(P.C, H + 90, Height), Any(P.C, 5, 18), 0.1f);
    }
    if (!P.Snow)
        Flowers(P, 0, 720, H + 60, Height, 1500, P.Seed % 3 ? Hex(0xf0d858) : Hex(0xc080d0));
    PaintLife(P, H + 110);
    for (int I = 0; I < 3; ++I)
        PaintTree(P, Tree::Fir, P.Seed % 2 ? Any(P.C, 600, 730) : Any(P.C, -10, 110),
                  Any(P.C, 400, 425), Any(P.C, 180, 320), 0);
}

void PaintCrown(Scene& P)
{
    const float H = Vary(P, 233, 339);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 3, Any(P.C, 90, 170), H, P.Snow ? 0.8f : 0.2f,
           0.5f);
    PaintMist(P, H - 20, 34, 0.6f);
    HillLook Hillock;
    Hillock.Kind = Hill::Soft;
    Hillock.Foot = 400, Hillock.Top = Any(P.C, 130, 200), Hillock.Centre = Any(P.C, 200, 300),
    Hillock.Spread = Any(P.C, 190, 280);
    Hillock.Grain = 420, Hillock.Far = 0.35f, Hillock.Local = WoodColour(P), Hillock.Trees = 0.8f,
    Hillock.Mist = 0.25f;
    const std::vector<float> Crest = PaintHill(P, Hillock);
    const float X = Hillock.Centre, Y = CrestAtX(Crest, X) + 12;
    for (int I = 0; I < 9; ++I) {
        const float TX = X + AnyBell(P.C) * 190;
        PaintTree(P, SeasonTree(P), TX, CrestAtX(Crest, TX) + 10, Any(P.C, 50, 84), 0.35f);
    }
    PaintMotif(P, P.Plan.Motif, X, Y, Any(P.C, 130, 170), 0.18f);
    for (int I = 0; I < 22; ++I) {
        const float TX = X + AnyBell(P.C) * 330, TY = CrestAtX(Crest, TX) + Any(P.C, 24, 90);
        PaintTree(P, SeasonTree(P), TX, TY, Any(P.C, 40, 84), 0.25f);
    }
    PaintMist(P, 340, 26, 0.45f);
    const Mask Front = Below({{-20, 400}, {240, 384}, {480, 398}, {740, 360}});
    PaintMeadow(P, &Front, 340, Times(GroundColour(P), 0.6f), GroundColour(P), 0.8f);
    for (int I = 0; I < 10; ++I)
        PaintTree(P, P.Seed % 2 ? SeasonTree(P) : Tree::Pine, Any(P.C, 440, 740),
                  Any(P.C, 392, 430), Any(P.C, 80, 190), 0.05f);
    PaintLife(P, 396);
}

void PaintGorge(Scene& P)
{
    const float H = Vary(P, 173, 279);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 130, H + 30, P.Snow ? 0.9f : 0.25f, 0.4f);
    PaintMist(P, H + 50, 60, 0.8f);
    const float Deck = Any(P.C, 180, 230);
    for (int I = 0; I < 4; ++I) // walls behind each other into the depth, a fall of light between
        for (int Side = -1; Side <= 1; Side += 2) {
            const float T = float(I) / 3,
                        In = 360 + float(Side) * (26 + 46 * T) + Any(P.C, -10, 10),
                        Top = H - 6 + (Deck - H + 30) * T + Any(P.C, -12, 12);
            QPainterPath Path(QPointF(In + float(Side) * 420, Height));
            Path.lineTo(In + float(Side) * 420, Top - 40);
            for (int K = 0; K <= 10; ++K)
                Path.lineTo(In + float(Side) * (70 * std::pow(1 - float(K) / 10, 2.0f) +
                                                14 * Noise(float(K) * 0.9f, T * 9, P.Seed)),
                            Lerp(Top, 400.0f, float(K) / 10));
            CutRock(P, Path, In + float(Side) * 90, 120, Mix(RockColour(P), WoodColour(P), 0.35f),
                    1.5f - 1.05f * T, 280 + 30 * T, 410 + 40 * T);
            for (int K = 0; K < 3; ++K)
                PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, In + float(Side) * Any(P.C, 60, 150),
                          Top + Any(P.C, -14, 6), 16 + 22 * T, 1.4f - T);
        }
    const Mask Stream = Along({{366, 300}, {340, 340}, {384, 380}, {350, Height + 20}}, 4, 44);
    PaintWater(P, &Stream, 296, 0.9f, 0.2f);
    PaintMist(P, 330, 40, 0.35f, 1.5f);
    float Ends[2] = {};
    for (int K = 0; K < 2; ++K) {
        const float Side = K ? 1 : -1;
        const float Reach = Any(P.C, 130, 240), In = 360 + Side * (360 - Reach);
        Ends[K] = In;
        QPainterPath Cliff(QPointF(360 + Side * 380, Deck - Any(P.C, 20, 80)));
        Cliff.lineTo(In + Side * Reach * 0.5f, Deck - 16);
        Cliff.lineTo(In, Deck + 2);
        for (int I = 1; I <= 12; ++I)
            Cliff.lineTo(In + Side * (float(I) * 5 + 26 * Noise(float(I) * 0.8f, Side, P.Seed)),
                         Deck + float(I) * 20);
        Cliff.lineTo(360 + Side * 380, 460);
        const Mask Area = MaskOf(Cliff);
        for (int Y = 0; Y < Height; ++Y)
            for (int X = 0; X < Width; ++X) {
                const std::size_t I = std::size_t(Y * Width + X);
                if (Area[I] <= 0) continue;
                const float R = Ridged(float(X) / 50, float(Y) / 120, 3, P.Seed + 60),
                            Down = (float(Y) - Deck) / 220;
                const float Top = Smooth(10, -4, float(Y) - Deck + 12 * R);
                const Rgb Local =
                    Mix(Times(RockColour(P), 0.7f + 0.5f * R), GroundColour(P), Top * 0.9f);
                Rgb Colour = Lit(P, Local,
                                 Clamp(0.35f + 0.5f * (R - 0.4f) +
                                       (Side * (P.SunX > 360 ? -1.0f : 1.0f)) * 0.16f + 0.3f * Top),
                                 0.25f);
                Colour =
                    Mix(Colour, Hex(P.L->Haze),
                        0.8f * Smooth(0.2f, 1,
                                      Down + 0.3f * (Fbm(float(X) / 90, float(Y) / 40, 3, P.Seed) -
                                                     0.5f)));
                Blend(P.C, X, Y, Colour, Area[I]);
                P.C.Flow[I] = Pi / 2 + R - 0.5f;
            }
        Repaint(P.C, &Area, {{5, 5, -1, 0.05f}, {2.4f, 5, 0.08f, 0.04f}});
        for (int I = 0; I < 8; ++I)
            PaintTree(P, P.Seed % 3 ? SeasonTree(P) : Tree::Pine, 360 + Side * Any(P.C, 230, 370),
                      Deck - Any(P.C, 8, 24), Any(P.C, 50, 110), 0.2f);
        if (K == int(P.Seed % 2))
            PaintMotif(P, P.Plan.Motif, 360 + Side * 275, Deck - 14, 100, 0.25f);
        if (K == int(P.Seed % 2)) PaintFall(P, 360 + Side * 225, Deck + 16, Height + 10, 16, 0.35f);
    }
    Bridge(P, Ends[0] - 8, Ends[1] + 8, Deck + 2, Any(P.C, 10, 54), 0.15f, P.Seed % 3 == 0);
    PaintMist(P, Height - 4, 40, 0.5f);
    P.Horizon = Deck;
    PaintLife(P, Deck - 20);
    if (P.Seed % 4 == 1) Overhang(P, P.Plan.Season == "autumn" ? Tree::Maple : Tree::Pine, 220);
}

void PaintWall(Scene& P)
{
    const float H = Vary(P, 163, 269);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 110, H, P.Snow ? 0.8f : 0.1f, 0.4f);
    PaintMist(P, H - 10, 22, 0.5f);
    const Rgb Brick = Hex(0xc4b090);
    for (int I = 0; I < 3; ++I) {
        const float T = float(I) / 2;
        HillLook Ridge;
        Ridge.Kind = Hill::Soft;
        Ridge.Foot = Lerp(H + 40, Height + 10.0f, T),
        Ridge.Top = H - 70 + 100 * T - Any(P.C, 0, 40), Ridge.Grain = Any(P.C, 180, 280);
        Ridge.Far = 1.1f - 0.9f * T, Ridge.Local = WoodColour(P), Ridge.Trees = 0.75f,
        Ridge.Snow = P.Snow ? 0.6f : 0, Ridge.Mist = 0.45f;
        Ridge.Centre = I % 2 ? 560 : 160, Ridge.Spread = 560;
        const std::vector<float> Crest = PaintHill(P, Ridge);
        const float Thick = 4 + 13 * T;
        Line Way;
        for (int X = -10; X <= Width + 10; X += 12)
            Way.push_back({float(X), CrestAtX(Crest, float(X)) - Thick * 0.3f});
        Line Smoothed;
        for (std::size_t K = 2; K + 2 < Way.size(); ++K)
            Smoothed.push_back(
                {Way[K].X,
                 (Way[K - 2].Y + Way[K - 1].Y + Way[K].Y + Way[K + 1].Y + Way[K + 2].Y) / 5});
        Stroke(P.C, Smoothed, Thick * 0.6f, Thick * 0.6f,
               Lit(P, Times(Brick, 0.8f), 0.35f, Ridge.Far), 1);
        for (Point& K : Smoothed) K.Y -= Thick * 0.45f;
        Stroke(P.C, Smoothed, Thick * 0.2f, Thick * 0.2f,
               Lit(P, P.Snow ? Hex(0xf0f4fa) : Brick, 0.85f, Ridge.Far), 1);
        for (std::size_t K = 0; K + 1 < Smoothed.size(); ++K)
            for (float S = 0; S < 1; S += 2.0f / (2 + Thick))
                Dab(P.C, Lerp(Smoothed[K].X, Smoothed[K + 1].X, S),
                    Lerp(Smoothed[K].Y, Smoothed[K + 1].Y, S) - Thick * 0.28f, Thick * 0.2f,
                    Thick * 0.26f, 0, Lit(P, Brick, 0.7f, Ridge.Far), 1);
        for (int K = 0; K < 3; ++K) {
            const float X = 90 + 250 * float(K) + Any(P.C, -50, 50);
            PaintMotif(P, "watchtower", X, CrestAtX(Crest, X) + 4, 24 + 44 * T, Ridge.Far);
        }
        PaintMist(P, Ridge.Foot - 20, 20, 0.35f);
        for (int K = 0; K < 6; ++K) {
            const float X = Any(P.C, 0, 720);
            PaintTree(P, SeasonTree(P), X, CrestAtX(Crest, X) + 16 + 34 * T, 18 + 42 * T,
                      Ridge.Far);
        }
    }
    for (int I = 0; I < 6; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C) < 0.6f ? Any(P.C, -20, 200) : Any(P.C, 600, 730),
                  Any(P.C, 400, 430), Any(P.C, 70, 150), 0);
    PaintLife(P, 390);
}

void PaintCliffside(Scene& P)
{
    const float H = Vary(P, 223, 329);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 3, 150, H, P.Snow ? 1.1f : 0.5f, 0.3f);
    PaintMist(P, H, 30, 0.6f);
    PaintMeadow(P, nullptr, H + 4, GroundColour(P), WoodColour(P), 1);
    const Mask River =
        Along({{520, H + 10}, {640, H + 30}, {480, H + 70}, {600, Height + 20}}, 2, 40);
    PaintWater(P, &River, H + 8, 0.4f, 0.2f);
    for (int I = 0; I < 30; ++I)
        PaintTree(P, I % 2 ? Tree::Fir : SeasonTree(P), Any(P.C, 330, 730), H + Any(P.C, 14, 120),
                  Any(P.C, 14, 34), 0.7f);
    HillLook Rocks;
    Rocks.Kind = Hill::Cliff;
    Rocks.Foot = 440, Rocks.Top = Any(P.C, -60, 10), Rocks.Centre = -10,
    Rocks.Spread = Any(P.C, 330, 430), Rocks.Grain = 150;
    Rocks.Far = 0.25f, Rocks.Local = Mix(RockColour(P), Hex(0xb09070), 0.4f), Rocks.Trees = 0.2f,
    Rocks.Mist = 0.4f, Rocks.Snow = P.Snow ? 0.5f : 0;
    const std::vector<float> Crest = PaintHill(P, Rocks);
    const float X = Any(P.C, 190, 250), Y = std::max(CrestAtX(Crest, X) + 60, Any(P.C, 200, 250));
    for (int I = 0; I < 7; ++I)
        PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, X + AnyBell(P.C) * 150, Y + Any(P.C, -8, 14),
                  Any(P.C, 40, 70), 0.25f);
    PaintMotif(P, P.Plan.Motif == "none" ? "monastery" : P.Plan.Motif, X, Y, 130, 0.15f);
    Stroke(P.C, Curve({{X - 100, Y + 2}, {X, Y + 3}, {X + 100, Y + 1}}, 8), 4, 3,
           Lit(P, Times(RockColour(P), 0.7f), 0.6f, 0.2f), 1);
    Line Steps; // a stair in turns down the rock
    for (int I = 0; I < 7; ++I)
        Steps.push_back(
            {X + 60 + (I % 2 ? -70.0f : 40.0f) + 12 * float(I), Y + 12 + 26 * float(I)});
    Stroke(P.C, Steps, 1.5f, 4.5f, Lit(P, Hex(0xd8ccb4), 0.75f, 0.15f), 0.9f);
    for (int I = 0; I < 9; ++I)
        Bush(P, Any(P.C, 0, 330), Any(P.C, Y + 20, 410), Any(P.C, 12, 30), 0.15f);
    const Line Ropes{{X + 60, Y - 90}, {(X + 720) / 2, Y + 30}, {730, Any(P.C, 90, 190)}};
    if (P.Seed % 2) { // flags on a line across the valley
        const Line Way = Curve(Ropes, 16);
        Stroke(P.C, Way, 0.5f, 0.5f, Lit(P, Hex(0x383030), 0.3f, 0.3f), 0.9f);
        static constexpr std::uint32_t Flags[] = {0x3060b8, 0xf4f0e8, 0xd04038, 0x389050, 0xf0c040};
        for (std::size_t I = 2; I < Way.size(); ++I)
            Dab(P.C, Way[I].X, Way[I].Y + 6, 10, 8, Any(P.C, 1.2f, 1.9f),
                Lit(P, Hex(Flags[I % 5]), 0.75f, 0.25f), 1);
    }
    PaintMist(P, Height - 10, 56, 0.75f);
    P.Horizon = 220;
    PaintLife(P, 400);
}

void PaintTerraces(Scene& P)
{
    const float H = Vary(P, 63, 169);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 3, Any(P.C, 60, 110), H + 8, P.Snow ? 0.6f : 0, 0.7f);
    PaintMist(P, H + 4, 20, 0.5f);
    const Rgb Crop = P.Plan.Season == "autumn"   ? Hex(0xd8b040)
                     : P.Plan.Season == "summer" ? Hex(0x74b040)
                                                 : GroundColour(P);
    const bool Flooded = P.Plan.Season != "autumn" && P.Seed % 3 != 0;
    const int Steps = 13;
    for (int I = 0; I < Steps; ++I) { // each terrace: a bank, then its field with a bent edge
        const float T = float(I) / Steps, Y = H + 10 + (Height - H) * std::pow(T, 1.35f),
                    Swing = 16 + 40 * T;
        Line Edge;
        for (int K = 0; K <= 8; ++K)
            Edge.push_back(
                {-20 + 95 * float(K),
                 Y + Swing * 2 *
                         (Fbm(float(K) * 0.42f + T * 0.9f, T * 1.3f, 2, P.Seed + 4) - 0.5f)});
        const Mask Area = Below(Edge);
        const Line Way = Curve(Edge, 16);
        for (int X = 0; X < Width; ++X) {
            const Point K =
                Way[std::size_t(Clamp((float(X) + 20) / 95 * 16, 0, float(Way.size() - 1)))];
            for (int PY = std::max(0, int(K.Y)); PY < Height; ++PY) {
                const std::size_t At0 = std::size_t(PY * Width + X);
                const float Down = float(PY) - K.Y, Bank = 2 + 8 * T;
                const float Shine = Fbm(float(X) / 70, float(PY) / 9, 3, P.Seed + std::uint32_t(I));
                Rgb Colour;
                if (Down < Bank)
                    Colour = Lit(P,
                                 Times(Mix(Hex(P.S->Ground), GroundColour(P), 0.7f),
                                       Down < 2 ? 1.15f : 0.6f),
                                 Down < 2 ? 0.9f : 0.25f, 0.9f * (1 - T));
                else if (Flooded)
                    Colour = Fade(P,
                                  Mix(Times(Sky(P, Clamp(0.15f + 0.5f * T + 0.25f * Shine)), 0.96f),
                                      Lit(P, Crop, 0.4f, 0), 0.14f),
                                  0.5f * (1 - T));
                else
                    Colour = Lit(P, Times(Crop, 0.8f + 0.35f * Shine), Clamp(0.3f + 0.7f * Shine),
                                 0.9f * (1 - T));
                Blend(P.C, X, PY, Colour, Area[At0]);
                P.C.Flow[At0] = 0.1f * (Shine - 0.5f);
            }
        }
        if (Flooded && I > 2)
            for (int K = 0; K < 26; ++K) { // seedlings in rows
                const float
                    X = Any(P.C, 0, 720),
                    PY = Way[std::size_t(Clamp((X + 20) / 95 * 16, 0, float(Way.size() - 1)))].Y +
                         (4 + 10 * T) + Any(P.C) * 22 * T;
                Dab(P.C, X, PY, 2 + 6 * T, 0.8f + T, Pi / 2,
                    Lit(P, Hex(0x80b848), 0.6f, 0.5f * (1 - T)), 0.85f, true);
            }
    }
    Mask Lower(Width * Height, 0.0f);
    for (int Y = int(H) + 10; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) Lower[std::size_t(Y * Width + X)] = 1;
    Repaint(P.C, &Lower, {{3, 6, -1, 0.04f}, {1.5f, 6, 0.08f, 0.03f}});
    Village(P, 90, 330, H + 50, 18, 6, 0.6f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 440, 600), H + 70, 80, 0.4f);
    for (int I = 0; I < 16; ++I) {
        const float T = Any(P.C);
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + 20 + 100 * T, 22 + 50 * T,
                  0.8f - 0.6f * T);
    }
    PaintMist(P, H + 100, 16, 0.35f);
    for (int I = 0; I < 3; ++I)
        PaintTree(P, P.Seed % 2 ? Tree::Palm : SeasonTree(P),
                  P.Seed % 2 ? Any(P.C, 610, 720) : Any(P.C, -10, 90), Any(P.C, 370, 420),
                  Any(P.C, 150, 240), 0);
    PaintLife(P, Height - 40);
}

void PaintCanyon(Scene& P)
{
    const float H = Vary(P, 150, 271);
    PaintSky(P, H);
    static constexpr std::uint32_t Reds[] = {0xc8704c, 0xd89060, 0xb86454, 0xd0a070};
    const Rgb Red = Hex(Reds[P.Seed % 4]);
    for (int I = 0; I < 3; ++I) {
        const float T = float(I) / 2;
        HillLook Mesa;
        Mesa.Kind = Hill::Mesa;
        Mesa.Foot = H + 6 + 40 * T, Mesa.Top = H - Any(P.C, 60, 110) - 50 * T,
        Mesa.Grain = Any(P.C, 130, 220);
        Mesa.Far = 1.3f - 1.0f * T, Mesa.Local = Times(Red, 1 - 0.1f * T), Mesa.Mist = 0.45f,
        Mesa.Snow = P.Snow ? 0.35f : 0;
        Mesa.Centre = P.Seed % 2 ? 640 - 480 * T : 100 + 480 * T, Mesa.Spread = 330 - 60 * T;
        PaintHill(P, Mesa);
    }
    const Rgb Sand = P.Snow ? Hex(0xe4e4ec) : Mix(Red, Hex(0xf0d8a8), 0.55f);
    PaintMeadow(P, nullptr, H + 14, Mix(Sand, Red, 0.4f), Sand, 0.5f);
    if (P.Seed % 2) {
        const Mask Bed =
            Along({{520, H + 26}, {300, H + 50}, {460, H + 96}, {240, Height + 30}}, 2, 90);
        PaintWater(P, &Bed, H + 24, 0.4f, 0.3f);
    }
    PaintMotif(P, P.Plan.Motif, Any(P.C, 150, 280), H + 52, 84, 0.35f);
    for (int I = 0; I < 16; ++I) {
        const float Y = Any(P.C, H + 40, Height + 10);
        Rock(P, Any(P.C, 0, 720), Y, 4 + 26 * (Y - H) / (Height - H) * Any(P.C, 0.3f, 1), 0.2f);
    }
    for (int I = 0; I < 40; ++I) { // dry brush, and here and there a cactus
        const float T = Any(P.C), X = Any(P.C, 0, 720), Y = Lerp(H + 30, Height, T);
        if (I % 7 == 0 && P.Seed % 2 == 0) {
            const Rgb Green = Lit(P, Hex(0x64804c), 0.55f, 0.6f * (1 - T)),
                      Shade = Times(Green, 0.7f);
            const float S = 14 + 70 * T;
            Stroke(P.C, {{X, Y}, {X, Y - S}}, S * 0.07f, S * 0.06f, Green, 1);
            Stroke(P.C, {{X + S * 0.04f, Y}, {X + S * 0.04f, Y - S * 0.95f}}, S * 0.03f, S * 0.025f,
                   Shade, 0.8f);
            Stroke(P.C,
                   Curve({{X, Y - S * 0.4f},
                          {X - S * 0.22f, Y - S * 0.42f},
                          {X - S * 0.24f, Y - S * 0.72f}},
                         5),
                   S * 0.045f, S * 0.04f, Green, 1);
            Stroke(P.C,
                   Curve({{X, Y - S * 0.5f},
                          {X + S * 0.2f, Y - S * 0.54f},
                          {X + S * 0.21f, Y - S * 0.8f}},
                         5),
                   S * 0.04f, S * 0.035f, Shade, 1);
        } else {
            Grasses(P, X - 8 - 10 * T, X + 8 + 10 * T, Y, 6 + 18 * T, 12, Hex(0xa89858),
                    0.6f * (1 - T));
        }
    }
    PaintLife(P, H + 100);
}

void PaintDunes(Scene& P)
{
    const float H = Vary(P, 96, 234);
    PaintSky(P, H);
    static constexpr std::uint32_t Sands[] = {0xf0c890, 0xf4d8b0, 0xe8a870, 0xf0dcc0};
    const Rgb Sand = Hex(Sands[P.Seed % 4]);
    if (P.Seed % 3 == 0) Ranges(P, Hill::Alpine, 1, 60, H + 2, 0, 0);
    const float Hand = P.Seed % 2 ? 1.0f : -1.0f;
    for (int I = 0; I < 4; ++I) { // they come in from left and right in turn
        const float T = float(I) / 3;
        HillLook Dune;
        Dune.Kind = Hill::Dune;
        Dune.Foot = H + 26 + (Height - H) * std::pow(T, 1.3f),
        Dune.Top = H - 22 + 0.36f * (Height - H) * T - 30 * T * Any(P.C);
        Dune.Grain = (180 + 300 * T) * Any(P.C, 0.8f, 1.3f), Dune.Far = 1.2f * (1 - T) + 0.05f,
        Dune.Local = Sand, Dune.Mist = 0.4f * (1 - T);
        if (I) Dune.Centre = 360 + Hand * (I % 2 ? 300.0f : -300.0f), Dune.Spread = 420;
        const std::vector<float> Crest = PaintHill(P, Dune);
        if (I == 1) {
            const float X = 360 - Hand * Any(P.C, 120, 220);
            PaintMotif(P, P.Plan.Motif, X, CrestAtX(Crest, X) + 10, 74, 0.5f);
        }
        if (I == 2 && P.Plan.Life == "camels") PaintLife(P, CrestAtX(Crest, 360) + 8);
    }
    if (P.Plan.Life != "camels") PaintLife(P, 370);
    Grasses(P, 30, 120, 408, 40, 40, Hex(0xa8a060), 0);
}

void PaintVolcano(Scene& P)
{
    const float H = Vary(P, 203, 309);
    PaintSky(P, H);
    HillLook Cone;
    Cone.Kind = Hill::Cone;
    Cone.Foot = H, Cone.Top = Any(P.C, 70, 120), Cone.Centre = Any(P.C, 240, 480),
    Cone.Grain = Any(P.C, 120, 180);
    Cone.Far = 0.6f, Cone.Local = Hex(0x6c5c5c), Cone.Mist = 0.5f, Cone.Snow = P.Snow ? 0.5f : 0;
    const float Mouth = Cone.Top + 4, X = Cone.Centre;
    const float Blow = Any(P.C, -90, 90);
    for (int I = 0; I < 90; ++I) { // smoke, lit from below
        const float T = Any(P.C), SX = X + Blow * T * T * 1.7f + AnyBell(P.C) * (10 + 80 * T),
                    SY = Mouth - T * (Mouth + 30) + AnyBell(P.C) * 12;
        const Rgb Colour = Mix(Mix(Hex(P.L->CloudDark), Hex(0xff7030), 0.6f * (1 - T) * (1 - T)),
                               Hex(P.L->CloudLit), 0.5f * Any(P.C) * T);
        SoftDab(P.C, SX, SY, 14 + 40 * T, 12 + 26 * T, Colour, 0.5f);
    }
    SoftDab(P.C, X, Mouth, 130, 90, Hex(0xff6828), 0.5f);
    for (int I = 0; I < 90; ++I) { // sparks in arcs
        const float A = Any(P.C, 0.8f, 2.3f), L = Any(P.C, 14, 90), SX = X + std::cos(A) * L,
                    SY = Mouth - std::sin(A) * L * 0.95f;
        Dab(P.C, SX, SY, Any(P.C, 1.5f, 5), 1.3f, -A, Mix(Hex(0xffe070), Hex(0xff5020), L / 90),
            0.95f, true);
    }
    PaintHill(P, Cone);
    for (int I = 0; I < 5; ++I) { // streams of fire
        Line Way{{X + AnyBell(P.C) * 16, Mouth + 2}};
        for (int K = 0; K < 7; ++K)
            Way.push_back({Way.back().X + (Way.back().X - X) * 0.35f + AnyBell(P.C) * 12,
                           Way.back().Y + Any(P.C, 10, 24)});
        Stroke(P.C, Curve(Way, 5), 2.6f, 0.8f, Hex(0xe84818), 0.8f);
        Stroke(P.C, Curve(Way, 5), 1.1f, 0.4f, Hex(0xffd860), 0.9f);
    }
    PaintMist(P, H - 6, 20, 0.4f);
    Ranges(P, Hill::Soft, 2, 40, H + 8, 0, 0.7f);
    if (P.Seed % 2) {
        PaintWater(P, nullptr, H + 8, 0.8f, 0.35f);
        Boat(P, "junk", Any(P.C, 140, 300), 340, 100, 0.05f);
        Boat(P, "row", Any(P.C, 430, 560), 370, 66, 0);
    } else {
        PaintMeadow(P, nullptr, H + 4, Times(GroundColour(P), 0.7f), GroundColour(P), 0.9f);
        Village(P, 80, 560, H + 50, 24, 10, 0.3f);
        for (int I = 0; I < 12; ++I)
            PaintTree(P, P.Seed % 3 ? Tree::Palm : SeasonTree(P),
                      Any(P.C) < 0.5f ? Any(P.C, 0, 180) : Any(P.C, 520, 720),
                      H + Any(P.C, 50, 120), Any(P.C, 70, 150), 0.15f);
    }
    PaintMotif(P, P.Plan.Motif, X < 360 ? 590 : 130, H + 24, 90, 0.3f);
    PaintLife(P, Height - 40);
}
