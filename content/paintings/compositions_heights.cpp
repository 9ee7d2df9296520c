// compositions_heights.cpp: more pictures of mountains, rocks and deserts.

#include "compositions.h"

#include <algorithm>
#include <cmath>

static float CrestAtX(const std::vector<float>& Crest, float X)
{
    return Crest[std::size_t(std::clamp(int(X), 0, Width - 1))];
}

void PaintSummit(Scene& P)
{
    const float H = Vary(P, 270, 350);
    PaintSky(P, H);
    HillLook Peak;
    Peak.Kind = Hill::Alpine, Peak.Foot = H + 10, Peak.Top = Any(P.C, 10, 40), Peak.Grain = 300,
    Peak.Far = 0.7f, Peak.Local = RockColour(P);
    Peak.Snow = P.Snow ? 1.3f : 0.6f, Peak.Mist = 0.8f, Peak.Centre = Vary(P, 230, 500, 3),
    Peak.Spread = 300;
    PaintHill(P, Peak);
    for (int I = 0; I < 3; ++I) PaintMist(P, H - 40 - 56 * float(I), 18, 0.5f, 1.6f);
    Ranges(P, Hill::Alpine, 2, 60, H + 30, P.Snow ? 0.8f : 0, 0.8f);
    PaintMist(P, H + 20, 24, 0.7f);
    HillLook Near;
    Near.Foot = 440, Near.Top = 330, Near.Grain = 300, Near.Far = 0.1f, Near.Local = WoodColour(P),
    Near.Trees = 0.9f, Near.Snow = P.Snow ? 0.5f : 0, Near.Mist = 0.1f;
    const std::vector<float> Crest = PaintHill(P, Near);
    const float Spot = Vary(P, 120, 600, 5);
    PaintMotif(P, P.Plan.Motif, Spot, CrestAtX(Crest, Spot) + 10, Vary(P, 50, 100, 7), 0.25f);
    for (int I = 0; I < 14; ++I) {
        const float X = Any(P.C, 0, 720);
        PaintTree(P, P.Snow || I % 2 ? Tree::Fir : SeasonTree(P), X, CrestAtX(Crest, X) + 20,
                  Any(P.C, 40, 90), 0.1f);
    }
    PaintLife(P, 400);
}

void PaintSpires(Scene& P)
{
    const float H = Vary(P, 260, 310);
    PaintSky(P, H);
    Ranges(P, Hill::Alpine, 2, 80, H, P.Snow ? 0.8f : 0.1f, 0);
    PaintMist(P, H - 10, 40, 0.7f);
    const Rgb Stone = Mix(RockColour(P), Hex(0xc8a080), 0.4f);
    for (int I = 0; I < 11; ++I) {
        const float T = float(I) / 10,
                    X = std::fmod(float(I) * 271 + float(P.Seed % 97), 760.0f) - 20,
                    Half = (13 + 30 * T) * Any(P.C, 0.7f, 1.2f),
                    Tall = Any(P.C, 150, 280) * (0.7f + 0.5f * T), Foot = H + 20 + 110 * T;
        if (I > 7 && std::fabs(X - 360) < 140) continue;
        QPainterPath Path;
        for (int K = 0; K <= 40; ++K) { // up the left side, down the right one
            const float Side = K <= 20 ? -1.0f : 1.0f, Up = float(K <= 20 ? K : 40 - K) / 20;
            const float Out = 0.62f + 0.75f * std::pow(1 - Up, 5.0f) - 0.30f * Up * Up +
                              0.50f * (Noise(Up * 7 + Side * 9, T * 31, P.Seed) - 0.5f);
            const QPointF Q(X + Side * Half * Out * (Up > 0.99f ? 0.6f : 1.0f) +
                                Half * 0.6f * (Noise(Up * 3, T * 17, P.Seed + 1) - 0.5f),
                            Foot - Tall * Up);
            K == 0 ? Path.moveTo(Q) : Path.lineTo(Q);
        }
        const float Far = 1.2f * (1 - T) + 0.15f;
        CutRock(P, Path, X, Half, Stone, Far, Foot - 90, Foot + 10);
        for (int K = 0; K < 4; ++K)
            PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, X + AnyBell(P.C) * Half * 0.8f,
                      Foot - Tall * Any(P.C, 0.35f, 0.99f), 14 + 26 * T, Far);
        if (I == 6) PaintMotif(P, P.Plan.Motif, X, Foot - Tall + 12, 56, Far);
        if (I % 3 == 2) PaintMist(P, Foot - 20, 34, 0.5f);
    }
    PaintMist(P, Height - 10, 60, 0.85f);
    PaintLife(P, 390);
}

void PaintFogValleys(Scene& P)
{
    const float H = Vary(P, 80, 150);
    PaintSky(P, H + 30);
    const int Count = 7;
    std::vector<float> Crest;
    for (int I = 0; I < Count; ++I) { // ridge behind ridge, a lake of fog between each
        const float T = float(I) / (Count - 1);
        HillLook Ridge;
        Ridge.Kind = Hill::Soft, Ridge.Foot = H + 50 + 330 * T * T + 40 * T,
        Ridge.Top = Ridge.Foot - Any(P.C, 70, 120) - 50 * T, Ridge.Grain = Any(P.C, 140, 330);
        Ridge.Far = 1.5f * (1 - T) * (1 - T) + 0.06f,
        Ridge.Local = Times(WoodColour(P), 0.9f - 0.3f * T), Ridge.Trees = 0.9f,
        Ridge.Mist = 0.9f * (1 - 0.5f * T), Ridge.Snow = P.Snow ? 0.5f : 0;
        Ridge.Centre = I % 2 ? 40 : 680, Ridge.Spread = Any(P.C, 360, 620);
        Crest = PaintHill(P, Ridge);
        if (I < Count - 1) PaintMist(P, Ridge.Foot - 12, 16 + 16 * T, 0.7f, 1.4f);
        if (I == 4) {
            const float X = I % 2 ? 150.0f : 560.0f;
            PaintMotif(P, P.Plan.Motif, X, CrestAtX(Crest, X) + 6, 58, Ridge.Far);
        }
    }
    for (int I = 0; I < 9; ++I) {
        const float X = Any(P.C, 0, 720);
        PaintTree(P, P.Seed % 3 == 0 ? SeasonTree(P) : Tree::Fir, X, CrestAtX(Crest, X) + 16,
                  Any(P.C, 50, 120), 0.02f);
    }
    PaintLife(P, 400);
}

void PaintSlope(Scene& P)
{
    const float H = Vary(P, 200, 250);
    PaintSky(P, H);
    HillLook Peak;
    Peak.Kind = Hill::Alpine, Peak.Foot = H + 60, Peak.Top = 20, Peak.Grain = 170, Peak.Far = 1.0f,
    Peak.Local = RockColour(P), Peak.Snow = P.Snow ? 1.2f : 0.6f, Peak.Mist = 0.6f,
    Peak.Centre = 600, Peak.Spread = 300;
    PaintHill(P, Peak);
    PaintMist(P, H + 40, 30, 0.6f);
    const float Y0 = Any(P.C, 70, 130), Y1 = Any(P.C, 350, 390);
    const Line Edge{{-20, Y0}, {180, Lerp(Y0, Y1, 0.22f)}, {400, Lerp(Y0, Y1, 0.62f)}, {740, Y1}};
    const Mask Slope = Below(Edge);
    const auto EdgeY = [&](float X) { return Lerp(Y0, Y1, Clamp(std::pow(X / 740, 1.1f))); };
    PaintMeadow(P, &Slope, Y0 - 20, GroundColour(P), Mix(GroundColour(P), WoodColour(P), 0.3f), 1);
    for (int I = 0; I < 22; ++I) {
        const float X = Any(P.C, 0, 700);
        PaintTree(P, I % 3 ? Tree::Fir : SeasonTree(P), X, EdgeY(X) + 14, Any(P.C, 26, 60), 0.4f);
    }
    PathWay(P, {{40, Y0 + 50}, {230, Y0 + 130}, {150, Y0 + 190}, {420, Height + 10}}, 2, 22,
            P.Snow ? Hex(0xc8d4e4) : Hex(0xd8c090));
    PaintMotif(P, P.Plan.Motif, Any(P.C, 250, 330), EdgeY(290) + 34, 110, 0.2f);
    for (int I = 0; I < 4; ++I)
        Cottage(P, Any(P.C, 60, 520), EdgeY(300) + Any(P.C, 40, 110), Any(P.C, 26, 40), 0.15f, I);
    for (int I = 0; I < 16; ++I) {
        const float X = Any(P.C, -10, 600);
        PaintTree(P, I % 2 ? Tree::Fir : SeasonTree(P), X,
                  std::max(EdgeY(X) + 60, Any(P.C, 300, 425)), Any(P.C, 60, 130), 0.08f);
    }
    if (!P.Snow) Flowers(P, 0, 720, 260, Height, 1500, Hex(P.S->Blossom));
    PaintLife(P, 390);
}

void PaintTarn(Scene& P)
{
    const float H = Vary(P, 180, 265);
    PaintSky(P, H);
    HillLook Wall;
    Wall.Kind = Hill::Alpine, Wall.Foot = H, Wall.Top = Any(P.C, 14, 50),
    Wall.Grain = Any(P.C, 110, 170), Wall.Far = 0.95f, Wall.Local = RockColour(P),
    Wall.Snow = P.Snow ? 1.3f : 0.5f, Wall.Mist = 0.4f, Wall.Centre = P.Seed % 2 ? 180 : 540,
    Wall.Spread = 430;
    PaintHill(P, Wall);
    HillLook Scree;
    Scree.Foot = H + 3, Scree.Top = H - 46, Scree.Grain = 120, Scree.Far = 0.6f,
    Scree.Local = Mix(RockColour(P), WoodColour(P), 0.5f), Scree.Trees = 0.5f,
    Scree.Snow = P.Snow ? 0.8f : 0, Scree.Mist = 0.2f, Scree.Centre = P.Seed % 2 ? 600 : 120,
    Scree.Spread = 260;
    PaintHill(P, Scree);
    for (int I = 0; I < 16; ++I)
        PaintTree(P, Tree::Fir, Scree.Centre + AnyBell(P.C) * 170, H + 4, Any(P.C, 26, 56), 0.5f);
    PaintMotif(P, P.Plan.Motif, Scree.Centre + (P.Seed % 2 ? -110.0f : 110.0f), H + 5, 58, 0.5f);
    PaintWater(P, nullptr, H + 4, 0.3f, 0.3f);
    const Mask Bank = Below({{-20, Any(P.C, 340, 410)},
                             {150, Any(P.C, 340, 400)},
                             {330, Any(P.C, 356, 410)},
                             {520, Any(P.C, 340, 400)},
                             {740, Any(P.C, 330, 410)}});
    PaintMeadow(P, &Bank, 320, Times(GroundColour(P), 0.85f), GroundColour(P), 1);
    for (int I = 0; I < 12; ++I)
        Rock(P, Any(P.C, 0, 720), Any(P.C, 366, 420), Any(P.C, 10, 34), 0.03f);
    if (!P.Snow) Flowers(P, 0, 720, 366, Height, 1600, P.Seed % 2 ? Hex(0x7c70d8) : Hex(0xe85c70));
    for (int I = 0; I < 2; ++I)
        PaintTree(P, Tree::Fir, P.Seed % 2 ? Any(P.C, 20, 90) : Any(P.C, 640, 700), 400,
                  Any(P.C, 200, 290), 0);
    PaintLife(P, 384);
}

void PaintButtes(Scene& P)
{
    const float H = Vary(P, 230, 330);
    PaintSky(P, H);
    const Rgb Red = P.Seed % 2 ? Hex(0xd07850) : Hex(0xc4684c);
    const Rgb Sand = P.Snow ? Hex(0xe8e8ee) : Mix(Red, Hex(0xf0d0a0), 0.4f);
    Ranges(P, Hill::Mesa, 1, 50, H + 2, 0, 0);
    PaintMeadow(P, nullptr, H, Mix(Sand, Red, 0.5f), Sand, 0.6f);
    const float Xs[] = {Vary(P, 430, 640, 2), Vary(P, 250, 480, 5), Vary(P, 60, 330, 7)};
    for (int I = 0; I < 3; ++I) {
        const float T = float(I) / 2, X = Xs[I] + Any(P.C, -50, 50), Foot = H + 8 + 40 * T,
                    Half = 30 + 52 * T * Any(P.C, 0.8f, 1.2f),
                    Tall = 110 + 110 * T * Any(P.C, 0.8f, 1.2f);
        QPainterPath Path(QPointF(X - Half * 2.1f, Foot));
        Path.lineTo(X - Half * 1.15f, Foot - Tall * 0.34f);
        for (int K = 0; K <= 8; ++K)
            Path.lineTo(X - Half * (0.98f - 0.06f * Noise(float(K) * 1.3f, T, P.Seed)) +
                            Half * 0.16f * Noise(float(K), T * 3, P.Seed + 1),
                        Foot - Tall * (0.34f + 0.64f * float(K) / 8));
        for (int K = 0; K <= 8; ++K)
            Path.lineTo(X + Half * (float(K) / 4 - 1) * 0.9f,
                        Foot - Tall * (0.98f + 0.06f * Noise(float(K) * 0.9f, T * 5, P.Seed)));
        for (int K = 8; K >= 0; --K)
            Path.lineTo(X + Half * 0.95f - Half * 0.14f * Noise(float(K), T * 7, P.Seed + 2),
                        Foot - Tall * (0.34f + 0.64f * float(K) / 8));
        Path.lineTo(X + Half * 1.2f, Foot - Tall * 0.34f);
        Path.lineTo(X + Half * 2.2f, Foot);
        CutRock(P, Path, X, Half * 1.3f, Red, 0.9f * (1 - T) + 0.12f, Foot - 10, Foot + 40);
    }
    PathWay(P, {{420, H + 14}, {380, H + 40}, {440, H + 70}, {360, Height + 20}}, 2, 60,
            Mix(Sand, Hex(0xfff0d0), 0.4f));
    PaintMotif(P, P.Plan.Motif, Any(P.C, 560, 640), H + 50, 72, 0.25f);
    for (int I = 0; I < 50; ++I) {
        const float T = Any(P.C);
        Grasses(P, Any(P.C, 0, 700), Any(P.C, 0, 720), Lerp(H + 20, Height, T), 4 + 14 * T, 1,
                Hex(0xa89c60), 0.5f * (1 - T));
        if (I % 4 == 0)
            Bush(P, Any(P.C, 0, 720), Lerp(H + 20, Height, T), 4 + 14 * T, 0.5f * (1 - T));
    }
    PaintLife(P, H + 70);
}

void PaintChasm(Scene& P)
{
    const float H = Vary(P, 90, 150), Middle = Vary(P, 300, 420, 2);
    PaintSky(P, H);
    static constexpr std::uint32_t Stones[] = {0xd08a5c, 0xc4a07c, 0xb87860, 0xc89c64};
    const Rgb Red = Hex(Stones[P.Seed % 4]);
    Ranges(P, Hill::Mesa, 2, 44, H + 10, P.Snow ? 0.5f : 0, 0);
    PaintMeadow(P, nullptr, H + 8, Mix(Red, Hex(0xe0c090), 0.3f), Red, 0.5f);
    const auto RiverX = [&](float Y) { return Middle + 46 * std::sin((Y - H) / 52); };
    const int Layers = 7;
    for (int I = 0; I < Layers; ++I) { // walls step down to the river from both sides
        const float T = float(I) / (Layers - 1), Foot = H + 40 + 300 * std::pow(T, 1.5f),
                    Top = H + 6 + 96 * T * T, Gap = 10 + 64 * T,
                    Far = 1.7f * (1 - T) * (1 - T) + 0.08f;
        for (int Side = -1; Side <= 1; Side += 2) {
            const float In = RiverX(Foot) + float(Side) * Gap;
            QPainterPath Path(QPointF(360 + Side * 460, Foot + 60));
            Path.lineTo(360 + Side * 460, Top - 14 - Any(P.C, 0, 24) * T);
            float Out = (70 + 130 * T) * Any(P.C, 0.8f, 1.3f), Y = Top;
            Path.lineTo(In + float(Side) * (Out + 60), Top - 4);
            for (int Step = 0; Step < 4; ++Step) { // a ledge, then a sheer face
                Path.lineTo(In + float(Side) * Out, Y + 2);
                const float Next = Lerp(Top, Foot, float(Step + 1) / 4);
                for (int K = 0; K < 3; ++K) {
                    Y = Lerp(Y, Next, float(K + 1) / 3);
                    Path.lineTo(In + float(Side) * (Out - 7 * T * Noise(Y / 6, T * 9, P.Seed)), Y);
                }
                Out *= Any(P.C, 0.35f, 0.65f);
            }
            Path.lineTo(In, Foot + 60);
            CutRock(P, Path, In + float(Side) * 120, 170, Times(Red, 1.08f - 0.10f * float(I % 2)),
                    Far, Foot - 40, Foot + 130);
        }
        PaintMist(P, Foot - 4, 8 + 10 * T, 0.38f * (1 - 0.6f * T), 1.4f);
    }
    Line Bends;
    for (int I = 0; I <= 8; ++I) {
        const float Y = H + 40 + (Height - H) * float(I) / 8;
        Bends.push_back({RiverX(Y), Y});
    }
    const Mask Bed = Along(Bends, 3, 56);
    PaintWater(P, &Bed, H + 40, 0.3f, 0.1f);
    for (int Y = int(H) + 40; Y < Height; ++Y) // it lies deep, and still holds the sky
        for (int X = 0; X < Width; ++X)
            Blend(P.C, X, Y, Sky(P, 0.10f + 0.4f * Noise(float(X) / 30, float(Y) / 26, P.Seed)),
                  0.75f * Bed[std::size_t(Y * Width + X)]);
    const float Rim = Middle > 360 ? -1.0f : 1.0f;
    const Mask Ledge = Below(Rim > 0 ? Line{{400, 460}, {490, 372}, {580, 318}, {740, 300}}
                                     : Line{{-20, 300}, {140, 318}, {230, 372}, {320, 460}});
    PaintMeadow(P, &Ledge, 270, Times(Red, 0.75f), Red, 0.5f);
    PaintMotif(P, P.Plan.Motif, 360 + Rim * 250, 326, 104, 0.08f);
    for (int I = 0; I < 9; ++I)
        Bush(P, 360 + Rim * Any(P.C, 180, 370), Any(P.C, 345, 425), Any(P.C, 8, 24), 0.05f);
    for (int I = 0; I < 3; ++I)
        PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, 360 + Rim * Any(P.C, 200, 370),
                  Any(P.C, 340, 410), Any(P.C, 80, 150), 0.03f);
    PaintLife(P, 350);
}

void PaintGreatDune(Scene& P)
{
    const float H = Vary(P, 200, 260);
    PaintSky(P, H);
    const Rgb Sand = P.Seed % 2 ? Hex(0xf4c888) : Hex(0xecb080);
    Ranges(P, Hill::Dune, 2, 44, H + 6, 0, 0);
    const float PeakX = Vary(P, 300, 480, 3), PeakY = Any(P.C, 70, 120);
    const Line Crest = Curve({{PeakX, PeakY},
                              {PeakX + 70, PeakY + 90},
                              {PeakX - 30, PeakY + 170},
                              {PeakX + 60, PeakY + 250},
                              {PeakX - 60, Height + 10}},
                             16);
    const Mask Body = Below({{-20, H + 50},
                             {PeakX * 0.4f, H - 10},
                             {PeakX - 90, PeakY + 50},
                             {PeakX, PeakY},
                             {PeakX + 110, PeakY + 70},
                             {640, H + 10},
                             {740, H + 40}});
    for (int Y = 0; Y < Height; ++Y) { // the crest winds down to us; one side has the light
        float CrestX = PeakX;
        for (std::size_t K = 1; K < Crest.size(); ++K)
            if (Crest[K - 1].Y <= float(Y) && float(Y) < Crest[K].Y)
                CrestX = Lerp(Crest[K - 1].X, Crest[K].X,
                              (float(Y) - Crest[K - 1].Y) / (Crest[K].Y - Crest[K - 1].Y));
        for (int X = 0; X < Width; ++X) {
            const std::size_t I = std::size_t(Y * Width + X);
            if (Body[I] <= 0) continue;
            const float Off = (float(X) - CrestX) * (P.SunX > PeakX ? 1.0f : -1.0f);
            const float Ripple = std::sin(float(Y) * 0.55f + float(X) * 0.12f +
                                          7 * Fbm(float(X) / 90, float(Y) / 60, 3, P.Seed));
            const float Shade = Lerp(0.16f + Clamp(-Off / 420) * 0.5f, 0.92f - Clamp(Off / 900),
                                     Smooth(-2, 2, Off));
            const float Near = Clamp((float(Y) - PeakY) / 330);
            Blend(P.C, X, Y,
                  Lit(P, Times(Sand, 1 + 0.05f * Ripple * Near),
                      Clamp(Shade + 0.05f * Ripple * Near), 0.6f * (1 - Near)),
                  Body[I]);
            P.C.Flow[I] = Off > 0 ? 0.5f : -0.5f;
        }
    }
    Repaint(P.C, &Body, {{5, 6, -1, 0.03f}, {2.2f, 6, 0.06f, 0.02f}});
    PaintMotif(P, P.Plan.Motif, PeakX > 390 ? 130 : 600, H + 60, 70, 0.4f);
    Grasses(P, 500, 600, 410, 34, 30, Hex(0xa89c60), 0);
    PaintLife(P, H + 84);
}

void PaintViaduct(Scene& P)
{
    const float H = Vary(P, 180, 240);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Alpine : Hill::Soft, 3, 110, H + 10, P.Snow ? 0.9f : 0.2f, 0.7f);
    PaintMist(P, H + 10, 26, 0.6f);
    PaintMeadow(P, nullptr, H + 6, GroundColour(P), WoodColour(P), 1);
    for (int I = 0; I < 30; ++I)
        PaintTree(P, I % 2 ? Tree::Fir : SeasonTree(P), Any(P.C, 0, 720), H + Any(P.C, 14, 60),
                  Any(P.C, 24, 50), 0.7f);
    // it swings out of the distance towards us, each arch wider than the last
    const Rgb Brick = P.Seed % 2 ? Hex(0xc0ac90) : Hex(0xb08468);
    struct Pier {
        float X, Deck, Size;
    };
    const float FarX = Vary(P, 40, 260, 2), Lift = Vary(P, 120, 190, 3);
    const auto At0 = [&](float T) {
        const float Size = 0.16f + 0.84f * T * T;
        return Pier{FarX + 720 * std::pow(T, 1.7f), H + 26 - Lift * Size, Size};
    };
    const int Arches = 10;
    for (int I = 0; I < Arches; ++I) {
        const Pier A = At0(float(I) / Arches), B = At0(float(I + 1) / Arches);
        const float Far = 0.9f * (1 - B.Size), Foot = H + 26 + 150 * B.Size;
        Draw(P.C, [&](QPainter& Q) {
            const float Half = 12 * B.Size, Turn = P.SunX < B.X ? 0.2f : -0.15f;
            QPolygonF Span({{double(A.X), double(A.Deck)}, {double(B.X), double(B.Deck)}});
            for (int K = 12; K >= 0; --K) {
                const float U = float(K) / 12, Off = 2 * U - 1, Size = Lerp(A.Size, B.Size, U);
                Span << QPointF(Lerp(A.X, B.X, U),
                                Lerp(A.Deck, B.Deck, U) +
                                    Size *
                                        (16 + 62 * (1 - std::sqrt(std::max(0.0f, 1 - Off * Off)))));
            }
            Q.setBrush(ToQColor(Lit(P, Brick, 0.5f + Turn, Far)));
            Q.drawPolygon(Span);
            Q.setBrush(ToQColor(Lit(P, Times(Brick, 0.7f), 0.22f, Far))); // the inner face
            Q.drawRect(QRectF(B.X - Half - 7 * B.Size, B.Deck + 60 * B.Size, 9 * B.Size,
                              Foot - B.Deck - 60 * B.Size));
            Q.setBrush(ToQColor(Lit(P, Brick, 0.52f + Turn, Far)));
            Q.drawPolygon(QPolygonF({{B.X - Half, B.Deck + 20 * B.Size},
                                     {B.X + Half, B.Deck + 20 * B.Size},
                                     {B.X + Half * 1.35f, Foot},
                                     {B.X - Half * 1.35f, Foot}}));
            const Rgb Rail = P.Snow ? Hex(0xf0f4fa) : Times(Brick, 1.15f);
            Q.setPen(QPen(ToQColor(Lit(P, Rail, 0.9f, Far)), 1 + 6 * B.Size));
            Q.drawLine(QPointF(A.X, A.Deck), QPointF(B.X, B.Deck));
            Q.setPen(QPen(ToQColor(Lit(P, Times(Brick, 0.5f), 0.1f, Far)), 0.6 + 2 * B.Size));
            Q.drawLine(QPointF(A.X, A.Deck + 6 * A.Size), QPointF(B.X, B.Deck + 6 * B.Size));
        });
    }
    Mask Area(Width * Height, 0.0f);
    for (int Y = std::max(0, int(H - Lift)); Y < 350; ++Y)
        for (int X = 0; X < Width; ++X)
            Area[std::size_t(Y * Width + X)] = 1, P.C.Flow[std::size_t(Y * Width + X)] = 0.1f;
    const std::vector<Rgb> Exact = P.C.Px;
    Repaint(P.C, &Area, {{2, 4, -1, 0.07f}});
    for (std::size_t I = 0; I < Exact.size(); ++I) P.C.Px[I] = Mix(P.C.Px[I], Exact[I], 0.4f);
    if (P.Plan.Life != "walker") // a train under its smoke
        for (int I = 0; I < 26; ++I) {
            const float T = 0.46f + 0.016f * float(I % 13);
            const Pier K = At0(T), L = At0(T + 0.013f);
            if (I < 13) {
                const bool Engine = I == 12;
                Stroke(P.C, {{K.X, K.Deck - 9 * K.Size}, {L.X, L.Deck - 9 * L.Size}},
                       (Engine ? 11 : 9) * K.Size, (Engine ? 12 : 9) * K.Size,
                       Lit(P, Engine ? Hex(0x2c3430) : Hex(0x8c3028), 0.5f, 0.4f), 1);
                Dab(P.C, (K.X + L.X) / 2, K.Deck - 12 * K.Size, 9 * K.Size, 6 * K.Size, 0,
                    P.Night || P.L->Kind == 'e' ? Hex(0xffd070) : Lit(P, Hex(0xe8dcc0), 0.6f, 0.4f),
                    Engine ? 0.0f : 0.95f);
            } else {
                const Pier End = At0(0.66f);
                const float Back = float(I - 13) / 12;
                SoftDab(P.C, End.X - 170 * Back, End.Deck - 26 - 50 * std::sqrt(Back),
                        9 + 26 * Back, 7 + 15 * Back, Mix(Hex(P.L->CloudLit), Hex(P.L->Haze), Back),
                        0.65f);
            }
        }
    PaintMist(P, 320, 22, 0.5f);
    const Mask Bank = Below({{-20, 320}, {180, 352}, {360, 366}, {560, 344}, {740, 310}});
    PaintMeadow(P, &Bank, 280, GroundColour(P), GroundColour(P), 1);
    const Mask Bed = Along({{330, 356}, {420, 376}, {360, Height + 30}}, 30, 150);
    PaintWater(P, &Bed, 350, 0.6f, 0.3f);
    PaintMotif(P, P.Plan.Motif, P.Seed % 2 ? 600 : 130, 362, 96, 0.1f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, SeasonTree(P), I % 2 ? Any(P.C, -10, 240) : Any(P.C, 500, 730),
                  Any(P.C, 350, 420), Any(P.C, 50, 130), 0.05f);
    PaintLife(P, 396);
}

void PaintSunDisc(Scene& P)
{
    const float H = Vary(P, 280, 350);
    PaintSkyWithoutOrb(P, H);
    const float X = Vary(P, 190, 530, 2), Y = Vary(P, 130, 230, 5), R = Vary(P, 76, 150, 7);
    const Rgb Disc = P.Ink     ? Hex(P.L->Orb)
                     : P.Night ? Hex(0xf4ecd8)
                               : Mix(Hex(P.L->Orb), Hex(P.L->Horizon), 0.3f);
    SoftDab(P.C, X, Y, R * 2, R * 2, Disc, 0.5f);
    Dab(P.C, X, Y, R * 2, R * 2, 0, Disc, 0.95f);
    P.SunX = X, P.SunY = Y;
    for (int I = 0; I < 14; ++I) { // strips of cloud across it
        const float CY = Y + Any(P.C, -0.1f, 1.0f) * R, CX = X + AnyBell(P.C) * R * 1.6f,
                    L = Any(P.C, 60, 190);
        Stroke(
            P.C,
            Curve({{CX - L, CY}, {CX, CY + AnyBell(P.C) * 5}, {CX + L, CY + AnyBell(P.C) * 4}}, 5),
            Any(P.C, 2, 5), 1, Mix(Hex(P.L->CloudDark), Hex(P.L->CloudLit), Any(P.C)), 0.6f);
    }
    Ranges(P, Hill::Soft, 2, 60, H, P.Snow ? 0.5f : 0, 0.5f);
    PaintMist(P, H - 10, 20, 0.5f);
    HillLook Near;
    Near.Foot = 440, Near.Top = Y + R * 0.75f, Near.Grain = 400, Near.Far = 0.05f,
    Near.Local = Times(WoodColour(P), 0.6f), Near.Trees = 0.8f, Near.Mist = 0, Near.Centre = X + 30,
    Near.Spread = 380;
    const std::vector<float> Crest = PaintHill(P, Near);
    PaintMotif(P, P.Plan.Motif, X + Any(P.C, -30, 30), CrestAtX(Crest, X) + 12, R * 1.25f, 0.05f);
    for (int I = 0; I < 16; ++I) {
        const float TX = I < 6 ? X + (I % 2 ? 1.0f : -1.0f) * Any(P.C, 90, 180) : Any(P.C, 0, 720);
        PaintTree(P, I % 3 ? SeasonTree(P) : Tree::Pine, TX, CrestAtX(Crest, TX) + Any(P.C, 8, 50),
                  Any(P.C, 50, 100), 0.03f);
    }
    PaintLife(P, 400);
}

void PaintPerch(Scene& P)
{
    const float H = Vary(P, 270, 340);
    PaintSky(P, H);
    PaintCloudSea(P, H, Height);
    Ranges(P, P.Variant % 2 ? Hill::Karst : Hill::Alpine, 3, Vary(P, 70, 150, 4), H + 6,
           P.Snow ? 0.8f : 0.2f, 0.4f);
    PaintMist(P, H, 34, 0.7f);
    const float X = Vary(P, 180, 540, 2), Top = Vary(P, 160, 270, 5), Half = Vary(P, 60, 130, 7);
    QPainterPath Path(QPointF(X - Half * 1.3f, 440));
    for (int K = 0; K <= 16; ++K)
        Path.lineTo(X - Half * (1.25f - 0.4f * std::pow(float(K) / 16, 2)) +
                        30 * (Noise(float(K) * 0.6f, 2, P.Seed) - 0.5f),
                    430 - (430 - Top) * float(K) / 16);
    for (int K = 16; K >= 0; --K)
        Path.lineTo(X + Half * (1.25f - 0.4f * std::pow(float(K) / 16, 2)) +
                        30 * (Noise(float(K) * 0.6f, 7, P.Seed) - 0.5f),
                    430 - (430 - Top) * float(K) / 16);
    CutRock(P, Path, X, Half, RockColour(P), 0.2f, 330, 430);
    for (int I = 0; I < 6; ++I)
        PaintTree(P,
                  P.Snow  ? Tree::Fir
                  : I % 2 ? SeasonTree(P)
                          : Tree::Pine,
                  X + AnyBell(P.C) * Half * 1.1f, Top + 6, Any(P.C, 50, 90), 0.2f);
    PaintMotif(P, P.Plan.Motif == "none" ? "monastery" : P.Plan.Motif, X, Top + 10, 140, 0.12f);
    for (int I = 0; I < 8; ++I)
        PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, X + AnyBell(P.C) * Half * 1.2f,
                  Top + Any(P.C, 16, 150), Any(P.C, 24, 46), 0.2f);
    Line Steps; // a path in turns, hardly more than a scratch in the rock
    for (int I = 0; I < 7; ++I)
        Steps.push_back({X - Half * 0.25f + (I % 2 ? -0.35f : 0.3f) * Half * Any(P.C, 0.6f, 1.0f),
                         Top + 14 + 20 * float(I) + Any(P.C, -6, 6)});
    Stroke(P.C, Curve(Steps, 6), 0.8f, 1.8f, Lit(P, Times(RockColour(P), 1.25f), 0.7f, 0.15f),
           0.6f);
    PaintFall(P, X + Half * 0.5f, Top + 30, 400, 13, 0.25f);
    PaintMist(P, 400, 46, 0.85f, 1.4f);
    P.Horizon = 220;
    PaintLife(P, 400);
}

void PaintTeaHills(Scene& P)
{
    const float H = Vary(P, 80, 190), Spread = Vary(P, 0.8f, 1.5f, 2);
    PaintSky(P, H);
    Ranges(P, P.Seed % 2 ? Hill::Soft : Hill::Alpine, 3, Vary(P, 60, 120, 5), H + 6,
           P.Snow ? 0.6f : 0.1f, 0.6f);
    PaintMist(P, H + 6, 20, 0.6f);
    const Rgb Crop = P.Plan.Season == "autumn" ? Hex(0xa89c3c)
                     : P.Snow                  ? Hex(0x98acb4)
                                               : Hex(0x6ca440);
    for (int I = 0; I < 7; ++I) { // round hills combed by rows of bushes
        const float T = float(I) / 6, Y = H + 30 + 200 * T * T + 50 * T,
                    X = I % 2 ? Any(P.C, 440, 690) : Any(P.C, 30, 280),
                    W = (170 + 190 * T) * Spread, Tall = (80 + 100 * T) * Any(P.C, 0.7f, 1.2f);
        const Mask Hillock = Below({{X - W * 1.6f, Y + Tall * 0.7f},
                                    {X - W * 0.6f, Y + Tall * 0.1f},
                                    {X, Y - Tall * 0.25f},
                                    {X + W * 0.6f, Y + Tall * 0.1f},
                                    {X + W * 1.6f, Y + Tall * 0.7f}});
        PaintMeadow(P, &Hillock, Y - Tall, Times(Crop, 0.45f), Times(Crop, 0.5f), 0.4f);
        const float Far = 1.0f * (1 - T) * (1 - T);
        for (float Row = 0; Row < 16; ++Row) { // rows follow the round of the hill
            const float Down = Row * (6 + 9 * T);
            for (float S = -1.5f; S < 1.5f; S += (4 + 5 * T) / W) {
                const float PX = X + S * W, PY = Y - Tall * 0.2f + Down +
                                                 Tall * 0.42f * S * S * (1 + Row * 0.05f) +
                                                 AnyBell(P.C) * 1.2f;
                if (PX < -10 || PX > 730 || PY > Height + 10) continue;
                if (Hillock[std::size_t(std::clamp(int(PY), 0, Height - 1) * Width +
                                        std::clamp(int(PX), 0, Width - 1))] < 0.5f)
                    continue;
                const float Shade = Clamp(0.5f + 0.3f * AnyBell(P.C) + 0.3f * S * SunSide(P, X));
                Dab(P.C, PX, PY, 6 + 8 * T, 3.4f + 5 * T, 0, Lit(P, Times(Crop, 0.6f), 0.2f, Far),
                    0.9f);
                Dab(P.C, PX, PY - 1 - 1.6f * T, 5 + 7 * T, 2.2f + 3 * T, 0,
                    Lit(P, P.Snow ? Hex(0xeef4fa) : Mix(Crop, Hex(0xc8dc70), Any(P.C, 0, 0.5f)),
                        Shade + 0.2f, Far),
                    0.9f);
            }
        }
        if (I == 3) PaintMotif(P, P.Plan.Motif, X, Y - Tall * 0.1f, 84, 0.35f);
        if (I < 6)
            for (int K = 0; K < 3; ++K)
                PaintTree(P, SeasonTree(P), X + Any(P.C, -0.5f, 0.5f) * W, Y - Tall * 0.15f,
                          26 + 44 * T, Far);
        if (I < 5) PaintMist(P, Y + Tall * 0.45f, 14, 0.5f);
    }
    PaintLife(P, 396);
}
