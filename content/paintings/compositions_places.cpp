// compositions_places.cpp: more pictures of gardens, villages and roads.

#include "compositions.h"

#include <algorithm>
#include <cmath>

void PaintPatchwork(Scene& P)
{
    const float H = Vary(P, 90, 220);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 2, 60, H + 4, P.Snow ? 0.6f : 0, 0.6f);
    static constexpr std::uint32_t Crops[] = {0xe8cc50, 0x7cac48, 0xa884c8,
                                              0xc8a058, 0x5c9c50, 0xd87060};
    for (int I = 0; I < 7; ++I) { // hill over hill, each under another crop
        const float T = float(I) / 6, Y = H + 14 + 60 * T + 170 * T * T, Swing = 16 + 30 * T,
                    Tilt = (I % 2 ? 1.0f : -1.0f) * (16 + 50 * T);
        const Mask Area = Below({{-20, Y + Tilt + Any(P.C, -Swing, Swing)},
                                 {200, Y + Tilt * 0.4f - Swing * 0.5f},
                                 {460, Y - Tilt * 0.4f + Any(P.C, -Swing, Swing)},
                                 {740, Y - Tilt}});
        const Rgb Crop = P.Snow ? Mix(Hex(0xeef2f8), Hex(0xc0d0e0), 0.3f * float(I % 3))
                                : Hex(Crops[(std::size_t(I) * 5 + P.Seed) % 6]);
        if (I % 3 == 2)
            PaintMeadow(P, &Area, H - 30, Crop, Mix(Crop, GroundColour(P), 0.4f), 0.6f);
        else
            PaintRows(P, &Area, Y - 60 - 60 * T, Any(P.C, -200, 920), Any(P.C, 0.13f, 0.24f), Crop,
                      P.Snow ? Hex(0xb0bccc) : Times(Crop, 0.6f));
        for (int K = 0; K < 9 - I; ++K)
            PaintTree(P, K % 3 == 0 ? Tree::Cypress : SeasonTree(P), Any(P.C, 0, 720),
                      Y + Any(P.C, 0, Swing), (16 + 50 * T) * Any(P.C, 0.7f, 1.2f), 0.9f * (1 - T));
        if (I == 3)
            PaintMotif(P, P.Plan.Motif, Any(P.C, 200, 520), Y + 4, 88, 0.35f),
                Village(P, 130, 330, Y + 10, 22, 3, 0.4f);
    }
    PaintLife(P, 396);
}

void PaintClearing(Scene& P)
{
    const float H = Vary(P, 160, 250), X0 = Vary(P, 240, 480, 2);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 1, 90, H, P.Snow ? 1.0f : 0.4f, 0);
    PaintMist(P, H - 10, 24, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    for (int Row = 0; Row < 4; ++Row) {
        const float T = float(Row) / 3, Gap = 60 + 130 * T;
        for (int I = 0; I < 13; ++I) {
            const float Side = I % 2 ? 1.0f : -1.0f;
            PaintTree(P, (I + Row) % 4 ? Tree::Fir : SeasonTree(P),
                      X0 + Side * (Gap + Any(P.C, 0, 300)), H + 6 + 110 * T * T + Any(P.C, 0, 12),
                      90 + 190 * T * Any(P.C, 0.8f, 1.2f), 0.8f * (1 - T));
        }
        if (Row == 0)
            PaintMotif(P, P.Plan.Motif == "none" ? "teahouse" : P.Plan.Motif,
                       X0 + Any(P.C, -40, 40), H + 40, 110, 0.3f);
    }
    if (P.Seed % 2) {
        const Mask Pool = MaskOf([&] {
            QPainterPath E;
            E.addEllipse(QPointF(X0, H + 100), 150, 26);
            return E;
        }());
        PaintWater(P, &Pool, H + 74, 0.3f, 0.3f);
    } else {
        PathWay(P, {{X0, H + 44}, {X0 + 40, H + 90}, {X0 - 30, Height + 20}}, 5, 50,
                P.Snow ? Hex(0xd0dae8) : Hex(0xc8ac7c));
    }
    if (!P.Snow) Flowers(P, 100, 620, H + 50, Height, 1500, Hex(P.S->Blossom));
    PaintLife(P, H + 150);
    Grasses(P, 0, 720, Height + 6, 34, 160, GroundColour(P), 0);
}

void PaintPoplars(Scene& P)
{
    const float H = Vary(P, 200, 290), Swing = Vary(P, 40, 150, 2), Start = Vary(P, 200, 400, 5);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 1, 36, H, P.Snow ? 0.6f : 0, 0.4f);
    PaintMotif(P, P.Plan.Motif, Any(P.C, 90, 240), H + 4, 70, 0.8f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
    const int Count = 9;
    for (int I = 0; I < Count; ++I) { // a row that comes towards us in a curve
        const float T = float(I) / (Count - 1),
                    X = Start + Swing * std::sin(T * 3.6f) + (660 - Start) * T * T,
                    Tall = 60 + Vary(P, 150, 300, 7) * T;
        const Tree Kind = P.Plan.Season == "autumn" ? Tree::Birch
                          : P.Snow && P.Seed % 2    ? Tree::Bare
                                                    : Tree::Cypress;
        PaintTree(P, Kind, X, H + 6 + 16 * T, Tall, 0.8f * (1 - T));
    }
    PaintWater(P, nullptr, H + 24, 0.55f, 0.25f);
    const Mask Bank = Below({{-20, 340}, {120, 372}, {260, 412}, {330, 440}});
    PaintMeadow(P, &Bank, 310, GroundColour(P), GroundColour(P), 1);
    Boat(P, "row", 240, 366, 96, 0.05f);
    Reeds(P, 0, 200, Height + 10, 90, 60, 0);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 26, Height, 0.5f);
    PaintLife(P, 388);
}

void PaintCulms(Scene& P)
{
    const float H = Vary(P, 180, 320), X0 = Vary(P, 300, 520, 2);
    const int Left = 2 + P.Variant % 4; // culms on the left, the rest on the right
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Karst : Hill::Soft, 3, 130, H, P.Snow ? 0.6f : 0, 0.6f);
    PaintMist(P, H - 20, 40, 0.7f);
    PaintMotif(P, P.Plan.Motif, X0, H + 4, Vary(P, 60, 130, 5), 0.6f);
    PaintWater(P, nullptr, H + 6, 0.35f, 0.2f);
    Boat(P, P.Variant % 2 ? "raft" : "row", X0 + Any(P.C, -110, 60), H + Any(P.C, 36, 80),
         Any(P.C, 50, 90), 0.15f);
    for (int I = 0; I < 7; ++I) {
        const float X =
            (I < Left ? -10 + 46 * float(I) : 740 - 50 * float(I - Left)) + Any(P.C, -14, 14);
        PaintTree(P, Tree::Bamboo, X, Height + 40, 460 + Any(P.C, 0, 380), 0);
    }
    Overhang(P, Tree::Bamboo, Vary(P, 180, 420, 7));
    for (int I = 0; I < 4; ++I)
        Bush(P, I % 2 ? Any(P.C, -10, 150) : Any(P.C, 600, 730), Height + 4, Any(P.C, 24, 44), 0);
    PaintLife(P, H + 50);
}

void PaintBlossomHill(Scene& P)
{
    const float H = Vary(P, 330, 370);
    PaintSky(P, H);
    const Tree Kind = FestiveTree(P, P.Snow ? Tree::Pine : Tree::Round);
    const float Top = Vary(P, 100, 210, 2), X = Vary(P, 170, 550, 5), Wide = Vary(P, 0.7f, 1.5f, 7);
    Ranges(P, Hill::Soft, 1, 130, H, P.Snow ? 0.6f : 0, 0.3f);
    PaintMist(P, H - 80, 50, 0.5f);
    const Mask Hillock = Below({{std::min(-40.0f, X - 520 * Wide), Top + 250},
                                {X - 200 * Wide, Top + 70},
                                {X, Top + 10},
                                {X + 200 * Wide, Top + 70},
                                {std::max(760.0f, X + 520 * Wide), Top + 250}});
    PaintMeadow(P, &Hillock, Top - 30, GroundColour(P), GroundColour(P), 1);
    PaintMotif(P, P.Plan.Motif == "none" ? "pagoda" : P.Plan.Motif, X, Top + 30, 120, 0.35f);
    for (int Row = 0; Row < 6; ++Row) { // a whole hill of crowns
        const float T = float(Row) / 5, Y = Top + 40 + 250 * T;
        for (int I = 0; I < 9 - Row; ++I) {
            const float TX =
                X + (float(I) / float(8 - Row) - 0.5f) * (300 + 560 * T) * Wide + Any(P.C, -30, 30);
            if (Row > 1 && std::fabs(TX - X - 26 * std::sin(T * 7)) < 34 + 30 * T) continue;
            PaintTree(P, (I + Row) % 5 == 0 ? SeasonTree(P) : Kind, TX,
                      Y + Any(P.C, -8, 8) + 0.0008f / (Wide * Wide) * (TX - X) * (TX - X),
                      56 + 90 * T, 0.5f * (1 - T));
        }
    }
    Line Middle; // the steps between them
    for (int I = 0; I <= 8; ++I)
        Middle.push_back({X + 26 * std::sin(float(I) / 8 * 5.4f),
                          Top + 60 + (Height - Top - 30) * float(I) / 8});
    StoneSteps(P, Middle, 7, 40, 26, Hex(0xc0b4a0));
    PaintLife(P, 396);
}

void PaintVeranda(Scene& P)
{
    const float H = Vary(P, 130, 230);
    const float View = Vary(P, 200, 540, 2),
                Sill = Vary(P, 330, 388, 7); // where the garden opens, and the floor before it
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 3, 90, H, P.Snow ? 0.8f : 0.2f, 0.6f);
    PaintMist(P, H - 4, 18, 0.5f);
    PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 0.9f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 60, 660), H + Any(P.C, 8, 40), Any(P.C, 50, 120),
                  0.4f);
    PaintMotif(P, P.Plan.Motif, View, H + 50, Vary(P, 80, 150, 5), 0.4f);
    const Mask Pond = Below({{-10, H + 110},
                             {View - 190, H + 66},
                             {View, H + 56},
                             {View + 210, H + 70},
                             {740, H + 100}});
    PaintWater(P, &Pond, H + 56, 0.35f, 0.3f);
    for (int I = 0; I < 12; ++I)
        Rock(P, Any(P.C, 80, 640), H + Any(P.C, 66, 90), Any(P.C, 5, 16), 0.2f);
    PaintTree(P, SeasonTree(P), View > 360 ? Any(P.C, 90, 170) : Any(P.C, 560, 640), Sill + 10,
              Vary(P, 90, 250, 4), 0.1f);
    PaintLife(P, H + 90);
    // the dark room before it all: floor, posts, eave
    const Rgb Wood = Hex(0x6c4c34);
    const Rgb Bright = Mix(Lit(P, Hex(0xb08858), 0.6f, 0), Sky(P, 0.1f), 0.25f);
    for (int I = 0; I < 24; ++I) {
        const float Y = Sill + float(I) * 3.2f;
        Stroke(P.C, {{-10, Y}, {360, Y + AnyBell(P.C)}, {730, Y}}, 2.4f, 2.4f,
               Mix(Bright, Lit(P, Times(Wood, 0.5f), 0.1f, 0), float(I) / 23), 1);
        if (I % 5 == 0)
            Stroke(P.C, {{-10, Y}, {730, Y}}, 0.6f, 0.6f, Lit(P, Times(Wood, 0.3f), 0.1f, 0), 0.8f);
    }
    const float Posts[] = {26, View > 360 ? Any(P.C, 130, 240) : Any(P.C, 480, 590), 694};
    for (const float X : Posts) {
        for (int I = 0; I < 60; ++I)
            Stroke(P.C, {{X + Any(P.C, -13, 13), -10}, {X + Any(P.C, -13, 13), Sill + 10}}, 2.5f,
                   2.5f, Lit(P, Times(Wood, Any(P.C, 0.35f, 0.6f)), 0.15f, 0), 0.8f);
        Stroke(P.C, {{X + 12 * SunSide(P, X), -10}, {X + 12 * SunSide(P, X), Sill}}, 1.4f, 1.4f,
               Lit(P, Wood, 0.9f, 0), 0.8f);
    }
    for (int I = 0; I < 70; ++I) {
        const float Y = Any(P.C, -6, 40);
        Stroke(P.C, {{-10, Y}, {730, Y + AnyBell(P.C) * 2}}, 3, 3,
               Lit(P, Times(Wood, Any(P.C, 0.28f, 0.5f)), 0.1f, 0), 0.7f);
    }
    Stroke(P.C, {{-10, 44}, {730, 44}}, 2, 2, Lit(P, Times(Wood, 0.9f), 0.5f, 0), 0.9f);
    for (int I = 0; I < 2 + int(P.Seed % 2); ++I) { // lamps under the eave
        const float X = 120 + 240 * float(I), S = 26;
        const bool Lamp = P.Night || P.L->Kind == 'e';
        Stroke(P.C, {{X, 40}, {X, 62}}, 0.7f, 0.7f, Lit(P, Wood, 0.2f, 0), 1);
        if (Lamp) SoftDab(P.C, X, 86, 70, 70, Hex(0xffb048), 0.5f);
        Dab(P.C, X, 86, S * 1.9f, S * 1.5f, Pi / 2,
            Lamp ? Hex(0xf07838) : Lit(P, Hex(0xd84030), 0.7f, 0), 1);
        if (Lamp) Dab(P.C, X, 88, S * 1.2f, S * 0.9f, Pi / 2, Hex(0xffd890), 0.85f);
        for (int K = -2; K <= 2; ++K)
            Stroke(P.C, {{X - 17, 86 + 7 * float(K)}, {X + 17, 86 + 7 * float(K)}}, 0.5f, 0.5f,
                   Lit(P, Hex(0x602018), 0.4f, 0), 0.5f);
    }
}

// A town that comes down a hill, house before house, from the height From to To.
static void HillTown(Scene& P, float From, float To, float Largest)
{
    for (int Row = 0; Row < 11; ++Row) {
        const float T = float(Row) / 10, Y = Lerp(From, To, 0.4f * T + 0.6f * T * T),
                    Size = Largest * (0.24f + 0.76f * T), Far = 1.0f * (1 - T) * (1 - T);
        for (float X = Any(P.C, -1, 0) * Size; X < Width + Size;
             X += Size * Any(P.C, 1.15f, 1.75f)) {
            const float HillY = Y + 26 * (Noise(X / 150, T * 3, P.Seed) - 0.5f) * (1 + T) +
                                Any(P.C, -0.2f, 0.2f) * Size;
            if (Any(P.C) < 0.22f)
                PaintTree(P, SeasonTree(P), X + Size * 0.7f, HillY, Size * Any(P.C, 1.1f, 1.7f),
                          Far);
            Cottage(P, X, HillY, Size * Any(P.C, 0.85f, 1.35f), Far, AnyOf(P.C, 12));
            if ((P.Night || P.L->Kind == 'e') && Any(P.C) < 0.3f)
                PaperLamp(P, X + Size * 0.6f, HillY - Size * 0.3f, 1 + 3 * T,
                          Hex(Any(P.C) < 0.5f ? 0xffb048 : 0xe84830), Far);
        }
        if (Row == 3) PaintMist(P, Y + 10, 14, 0.35f);
    }
}

void PaintAlley(Scene& P)
{
    const float H = Vary(P, 84, 150), X = Vary(P, 250, 470, 2);
    PaintSky(P, H + 60);
    Ranges(P, Hill::Soft, 2, 60, H + 40, P.Snow ? 0.6f : 0, 0.5f);
    PaintMotif(P, P.Plan.Motif, X, H + 34, 130, 0.6f);
    PaintMist(P, H + 36, 26, 0.5f);
    PaintMeadow(P, nullptr, H + 30, Hex(0x948878), Hex(0xa89c88), 0.2f);
    HillTown(P, H + 50, Height - 20, 84);
    const float Bend = Vary(P, -60, 60, 5); // the stair swings up to the gate
    const auto Way = [&](float D) { return X + Bend * std::sin(D * 2.6f); };
    const auto GroundY = [&](float D) { return H + 34 + 370 * std::pow(D, 1.2f); };
    StoneSteps(P,
               {{Way(0), GroundY(0)},
                {Way(0.3f), GroundY(0.3f)},
                {Way(0.65f), GroundY(0.65f)},
                {Way(1), GroundY(1) + 20}},
               20, 230, 34, Hex(0xb8ac9c));
    const auto Depth = [](int I) { return 0.05f + 1.1f * std::pow(float(I) / 6, 1.8f); };
    for (int I = 0; I < 6; ++I) { // house over house up the stair
        const float Near = Depth(I + 1), Off = Depth(I), Far = 0.6f * (1 - float(I) / 5);
        for (int Side = -1; Side <= 1; Side += 2) {
            const Wall Front{[&, Side](float D, float Up) {
                                 return QPointF(Way(D) + float(Side) * (19 + 225 * D),
                                                GroundY(D) - Up * (0.14f + 0.86f * D));
                             },
                             Off, Near, Any(P.C, 170, 300), Side};
            PaintFacade(P, Front, std::uint32_t(I * 2 + Side + 1), Far, X);
        }
        if (I > 0 && I < 5) // a line of lamps across
            for (int K = 1; K < 8; ++K) {
                const float U = float(K) / 4 - 1;
                PaperLamp(P, Way(Near) + U * (19 + 225 * Near),
                          GroundY(Near) - (175 - 34 * (1 - U * U)) * (0.14f + 0.86f * Near),
                          1.5f + 7 * Near, Hex(K % 3 ? 0xffb048 : 0xe84830), Far);
            }
    }
    const std::vector<Rgb> Exact = P.C.Px; // plain walls want the touch of a brush
    for (float& Flow : P.C.Flow) Flow = 0.25f * AnyBell(P.C);
    Repaint(P.C, nullptr, {{2.4f, 4, -1, 0.07f}});
    for (std::size_t I = 0; I < Exact.size(); ++I) P.C.Px[I] = Mix(P.C.Px[I], Exact[I], 0.45f);
    PaintLife(P, H + 200);
}

void PaintGreatBridge(Scene& P)
{
    const float H = Vary(P, 200, 240);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 2, 90, H, P.Snow ? 0.8f : 0.1f, 0.6f);
    PaintMist(P, H - 6, 16, 0.5f);
    Village(P, -10, 300, H + 8, 28, 9, 0.6f);
    Village(P, 480, 740, H + 8, 28, 8, 0.6f);
    PaintMotif(P, P.Plan.Motif, Vary(P, 150, 570, 5), H + 6, 110, 0.6f);
    for (int I = 0; I < 9; ++I)
        PaintTree(P, SeasonTree(P), Any(P.C, 0, 720), H + 10, Any(P.C, 40, 80), 0.45f);
    Bridge(P, Vary(P, 20, 90, 3), Any(P.C, 620, 690), H + 60, Any(P.C, 64, 110), 0.1f,
           P.Seed % 2 == 0);
    PaintWater(P, nullptr, H + 62, 0.5f, 0.3f);
    if (P.L->OrbSize > 0) PaintGlitter(P, H + 64, Height, 0.5f);
    Boat(P, P.Seed % 2 ? "row" : "raft", 350, H + 92, 84, 0.05f);
    PaintLife(P, H + 130);
    if (P.Seed % 3 == 0) Overhang(P, Tree::Willow, 210);
    if (P.Seed % 3 == 1) Overhang(P, FestiveTree(P, Tree::Pine), 260);
}

void PaintCamp(Scene& P)
{
    const float H = Vary(P, 225, 315);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 120, H, P.Snow ? 1.2f : 0.4f, 0.2f);
    PaintMist(P, H - 6, 14, 0.4f);
    PaintMeadow(P, nullptr, H, Times(GroundColour(P), 0.8f), GroundColour(P), 1);
    const float X = Vary(P, 250, 520, 2), Y = H + Vary(P, 40, 84, 5);
    PaintMotif(P, "yurts", X - 190, H + 44, 130, 0.1f);
    PaintMotif(P, P.Plan.Motif, 620, H + 16, 60, 0.6f);
    for (int I = 0; I < 8; ++I)
        PaintTree(P, P.Snow || I % 2 ? Tree::Fir : SeasonTree(P),
                  I % 2 ? Any(P.C, 540, 730) : Any(P.C, -10, 60), H + Any(P.C, 10, 60),
                  Any(P.C, 60, 130), 0.15f);
    SoftDab(P.C, X, Y, 330, 110, Hex(0xff9838), P.Night ? 0.5f : 0.22f);
    SoftDab(P.C, X, Y - 10, 90, 70, Hex(0xffc060), 0.6f);
    for (int I = 0; I < 60; ++I) { // the fire
        const float U = AnyBell(P.C), T = Any(P.C),
                    L = Any(P.C, 10, 30) * (1 - 0.6f * std::fabs(U));
        Dab(P.C, X + U * 13, Y - T * 30 * (1 - std::fabs(U)) - L * 0.3f, L, 5 * (1 - 0.5f * T),
            Pi / 2 + U * 0.3f, Mix(Hex(0xfff0a0), Hex(0xf05018), Clamp(T + std::fabs(U) * 0.5f)),
            0.85f, true);
    }
    for (int I = 0; I < 5; ++I)
        Stroke(P.C, {{X - 18 + 8 * float(I), Y + 4}, {X + 14 - 7 * float(I), Y - 4}}, 2, 2,
               Hex(0x3c2418), 1);
    for (int I = 0; I < 60; ++I)
        Dab(P.C, X + AnyBell(P.C) * 60, Y - Any(P.C) * Any(P.C) * 190, 1.4f, 1.4f, 0, Hex(0xffb850),
            Any(P.C, 0.4f, 0.9f));
    for (int I = 0; I < 4; ++I) { // people around it
        const float PX = X + (I % 2 ? 1.0f : -1.0f) * (34 + 20 * float(I / 2)),
                    PY = Y + 6 + 4 * float(I);
        const Rgb Cloak = Lit(P, I % 2 ? Hex(0x904030) : Hex(0x405878), 0.5f, 0);
        const float In = PX < X ? 1.0f : -1.0f; // towards the fire
        Stroke(P.C, {{PX + In * 2, PY - 22}, {PX, PY - 10}, {PX - In, PY}}, 4, 11, Cloak, 1);
        Stroke(P.C, {{PX + In * 5, PY - 20}, {PX + In * 8, PY - 4}}, 1.5f, 3.5f,
               Mix(Cloak, Hex(0xffa850), 0.6f), 0.8f);
        Stroke(P.C, {{PX + In * 3, PY - 14}, {PX + In * 13, PY - 9}}, 2.2f, 1.5f, Cloak, 1);
        Dab(P.C, PX + In * 3, PY - 26, 8, 9, 0, Lit(P, Hex(0x503828), 0.5f, 0), 1);
        Dab(P.C, PX + In * 5, PY - 26, 4, 6, 0, Mix(Hex(0xc88858), Hex(0xffb060), 0.4f), 0.9f);
    }
    PaintLife(P, H + 96);
    Grasses(P, 0, 720, Height + 6, 36, 240, P.Snow ? Hex(0xb8b0a0) : GroundColour(P), 0);
}

void PaintRooftops(Scene& P)
{
    const float H = Vary(P, 110, 160);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, 90, H + 8, P.Snow ? 0.9f : 0.2f, 0.6f);
    PaintMist(P, H + 10, 26, 0.6f);
    PaintMeadow(P, nullptr, H + 6, Hex(0x70786c), Hex(0x80887c), 0.4f);
    PaintMotif(P, P.Plan.Motif, Vary(P, 130, 590, 4), H + 64, 150, 0.45f);
    HillTown(P, H + 44, Height - 62, 70);
    // the ridge of the nearest roof, and who sits on it
    const float Hand = P.Seed % 2 ? 1.0f : -1.0f;
    const auto RidgeY = [&](float X) {
        const float U = (X - 360) * Hand / 360;
        return Height - 30 - 44 * U * std::fabs(U) + 16 * U;
    };
    for (int I = 0; I < 60; ++I) { // courses of tiles that fall away on this side
        const float X = -10 + 12.6f * float(I);
        Stroke(
            P.C, {{X, RidgeY(X) + 4}, {X - 14 * Hand, Height + 20}}, 5, 7,
            Lit(P, Times(P.Snow ? Hex(0xe4ecf6) : Hex(0x4c545c), Any(P.C, 0.8f, 1.15f)), 0.3f, 0),
            1);
    }
    Line Ridge;
    for (int I = 0; I <= 24; ++I)
        Ridge.push_back({-10 + 31 * float(I), RidgeY(-10 + 31 * float(I))});
    Stroke(P.C, Ridge, 6, 6, Lit(P, P.Snow ? Hex(0xf4f8ff) : Hex(0x6c747c), 0.6f, 0), 1);
    const float CatX = 360 + Hand * Any(P.C, 120, 230), CatY = RidgeY(CatX) - 4;
    const Rgb Fur = Lit(P, Hex(0x241c1c), 0.2f, 0);
    Dab(P.C, CatX, CatY - 10, 26, 17, Pi / 2, Fur, 1);
    Dab(P.C, CatX + 2 * Hand, CatY - 25, 13, 12, 0, Fur, 1);
    for (const float Ear : {-4.0f, 4.0f})
        Dab(P.C, CatX + 2 * Hand + Ear, CatY - 31, 7, 4, Pi / 2, Fur, 1, true);
    Stroke(
        P.C,
        Curve(
            {{CatX - 6 * Hand, CatY}, {CatX - 20 * Hand, CatY + 4}, {CatX - 26 * Hand, CatY + 18}},
            5),
        2.4f, 1.5f, Fur, 1);
    for (int I = 0; I < 6; ++I) {
        const float X = Any(P.C, 60, 660), Y = Any(P.C, H + 60, 300);
        for (int K = 0; K < 10; ++K)
            SoftDab(P.C, X + float(K * K) * 0.4f, Y - float(K) * 6, 3 + float(K),
                    4 + float(K) * 0.7f, Mix(Hex(P.L->Haze), Hex(P.L->CloudLit), 0.5f), 0.2f);
    }
    PaintLife(P, H + 40);
}

void PaintGateFrame(Scene& P)
{
    const float H = Vary(P, 180, 280), X = Vary(P, 230, 490, 2);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Karst, 2, 130, H, P.Snow ? 0.9f : 0.2f, 0.5f);
    PaintMist(P, H - 6, 24, 0.6f);
    if (P.Seed % 2) {
        PaintMotif(P, P.Plan.Motif, X + Any(P.C, -50, 50), H + 4, 96, 0.6f);
        PaintWater(P, nullptr, H + 6, 0.4f, 0.25f);
        if (P.L->OrbSize > 0) PaintGlitter(P, H + 8, Height, 0.5f);
        Boat(P, "row", X - 40, H + 64, 66, 0.15f);
    } else {
        PaintMeadow(P, nullptr, H, GroundColour(P), GroundColour(P), 1);
        PaintMotif(P, P.Plan.Motif, X + Any(P.C, -50, 50), H + 20, 110, 0.5f);
        for (int I = 0; I < 14; ++I)
            PaintTree(P, SeasonTree(P), I % 2 ? X - Any(P.C, 90, 340) : X + Any(P.C, 90, 340),
                      H + Any(P.C, 10, 70), Any(P.C, 50, 110), 0.4f);
        PathWay(P, {{X, H + 22}, {X + 20, H + 60}, {X, Height + 20}}, 6, 110,
                P.Snow ? Hex(0xdce4ee) : Hex(0xccb48c));
    }
    PaintMotif(P, "torii", X, Height + 24, Vary(P, 380, 560, 5),
               0.02f); // the gate stands so near that it frames the view
    for (int I = 0; I < 4; ++I)
        Bush(P, I % 2 ? Any(P.C, -10, 90) : Any(P.C, 640, 730), Height + 2, Any(P.C, 24, 50), 0);
    PaintLife(P, H + 120);
}

void PaintFrostField(Scene& P)
{
    const float H = Vary(P, 180, 270);
    P.Seed % 2 ? PaintSkyWithoutOrb(P, H) : PaintSky(P, H);
    if (P.Seed % 2) {
        const float R = Any(P.C, 54, 80), X = Any(P.C, 420, 560), Y = H - R * 0.7f;
        const Rgb Disc =
            Mix(P.L->OrbSize > 0 ? Hex(P.L->Orb) : Hex(P.L->Horizon), Hex(0xfff4e0), 0.3f);
        SoftDab(P.C, X, Y, R * 2, R * 2, Disc, 0.4f);
        Dab(P.C, X, Y, R * 2, R * 2, 0, Disc, 0.92f);
    }
    Ranges(P, Hill::Soft, 2, 30, H + 1, 0.9f, 0.6f);
    PaintMeadow(P, nullptr, H, Hex(0xe8eef6), Hex(0xe0e8f2), 0.5f);
    for (int I = 0; I < 40; ++I) { // blue shadows of the drifts
        const float T = Any(P.C), X = Any(P.C, 0, 720), Y = Lerp(H + 10, Height, T),
                    L = 30 + 150 * T;
        Stroke(P.C, Curve({{X - L, Y}, {X, Y - 3 - 6 * T}, {X + L, Y + 2}}, 5),
               1 + 5 * T * Any(P.C), 0.5f, Lit(P, Hex(0xb0c4e4), 0.3f, 0.5f * (1 - T)), 0.45f);
    }
    const float X = Vary(P, 130, 420, 2);
    PaintMotif(P, P.Plan.Motif == "none" ? "teahouse" : P.Plan.Motif, X, H + 50, 100, 0.2f);
    for (int I = 0; I < 3; ++I)
        PaintTree(P, I ? Tree::Fir : Tree::Bare, X + Any(P.C, -120, 120), H + 52, Any(P.C, 70, 130),
                  0.15f);
    for (int I = 0; I < 22; ++I) { // a fence that leads to it, and footprints
        const float T = float(I) / 21, FX = Lerp(X + 70, 700, T), FY = H + 56 + 110 * T * T;
        Stroke(P.C, {{FX, FY}, {FX + 1, FY - 9 - 26 * T}}, 0.8f + 2 * T, 0.8f + 2 * T,
               Lit(P, Hex(0x5c4c40), 0.3f, 0.2f * (1 - T)), 1);
        Dab(P.C, FX, FY - 9 - 27 * T, 3 + 6 * T, 1.5f + 3 * T, 0, Lit(P, Hex(0xf4f8fc), 0.9f, 0),
            1);
        Dab(P.C, X + 20 + 130 * T + 9 * float(I % 2) * T, H + 60 + 150 * T, 3 + 9 * T, 1.2f + 4 * T,
            0.3f, Lit(P, Hex(0x98acd0), 0.2f, 0.1f), 0.6f);
    }
    PaintTree(P, P.Variant % 3 == 1 ? Tree::Pine : Tree::Bare, Vary(P, 520, 660, 5), 400,
              Vary(P, 120, 320, 7), 0);
    Grasses(P, 0, 720, Height + 2, 26, 50, Hex(0xb0a080), 0);
    PaintLife(P, H + 110);
}
