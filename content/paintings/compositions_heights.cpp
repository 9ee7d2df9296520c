// compositions_heights.cpp: more pictures of mountains, rocks and deserts.

#include "compositions.h"

#include <algorithm>
#include <cmath>

static float CrestAtX(const std::vector<float>& Crest, float X)
{
    return Crest[std::size_t(std::clamp(int(X), 0, Width - 1))];
}

// A rock cut out along Path, lit from the side of the sun.
static void CutRock(Scene& P, const QPainterPath& Path, float X, float Half, Rgb Local, float Far,
                    float HazeFrom, float HazeTo)
{
    const Mask Area = MaskOf(Path);
    for (int Y = 0; Y < Height; ++Y)
        for (int PX = 0; PX < Width; ++PX) {
            const std::size_t I = std::size_t(Y * Width + PX);
            if (Area[I] <= 0) continue;
            const float R = Ridged(float(PX) / 34, float(Y) / 80, 3, P.Seed + std::uint32_t(X)),
                        Layer = Noise(float(PX) / 120, float(Y) / 5, P.Seed + 3);
            const float Side = SunSide(P, X) * (float(PX) - X) / Half;
            Rgb Colour = Lit(P, Times(Local, 0.75f + 0.35f * R + 0.15f * Layer),
                             Clamp(0.45f + 0.38f * Side + 0.5f * (R - 0.45f)), Far);
            Colour = Mix(Colour, Hex(P.L->Haze), 0.8f * Smooth(HazeFrom, HazeTo, float(Y)));
            Blend(P.C, PX, Y, Colour, Area[I]);
            P.C.Flow[I] = Pi / 2 + 0.8f * (R - 0.5f);
        }
    Repaint(P.C, &Area, {{Clamp(Half / 10, 2.2f, 5), 5, -1, 0.05f}, {1.7f, 4, 0.09f, 0.04f}});
}

void PaintSummit(Scene& P)
{
    const float H = Vary(P, 300, 350);
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
    PaintMotif(P, P.Plan.Motif, 200, CrestAtX(Crest, 200) + 10, 66, 0.25f);
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
        QPainterPath Path(QPointF(X - Half * 1.5f, Foot));
        for (int K = 1; K < 14; ++K)
            Path.lineTo(X - Half * (1.4f - 1.15f * std::pow(float(K) / 14, 0.8f)) +
                            Half * 0.7f * (Noise(float(K) * 0.7f, T * 9, P.Seed) - 0.5f),
                        Foot - Tall * float(K) / 14);
        Path.lineTo(X, Foot - Tall);
        for (int K = 13; K > 0; --K)
            Path.lineTo(X + Half * (1.4f - 1.15f * std::pow(float(K) / 14, 0.8f)) +
                            Half * 0.7f * (Noise(float(K) * 0.7f, T * 9 + 4, P.Seed) - 0.5f),
                        Foot - Tall * float(K) / 14);
        Path.lineTo(X + Half * 1.5f, Foot);
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
    const float H = Vary(P, 215, 250);
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
    const Mask Bank = Below({{-20, 392}, {150, 356}, {330, 372}, {520, 352}, {740, 384}});
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
    const float H = Vary(P, 270, 320);
    PaintSky(P, H);
    const Rgb Red = P.Seed % 2 ? Hex(0xd07850) : Hex(0xc4684c);
    const Rgb Sand = P.Snow ? Hex(0xe8e8ee) : Mix(Red, Hex(0xf0d0a0), 0.4f);
    Ranges(P, Hill::Mesa, 1, 50, H + 2, 0, 0);
    PaintMeadow(P, nullptr, H, Mix(Sand, Red, 0.5f), Sand, 0.6f);
    const float Xs[] = {560, 390, 150};
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
    const float H = Vary(P, 80, 120);
    PaintSky(P, H);
    const Rgb Red = P.Seed % 2 ? Hex(0xcc7c54) : Hex(0xb8846c);
    Ranges(P, Hill::Mesa, 2, 50, H + 10, P.Snow ? 0.5f : 0, 0);
    PaintMeadow(P, nullptr, H + 8, Mix(Red, Hex(0xe0c090), 0.3f), Red, 0.5f);
    const Mask Bed = Along(
        {{420, H + 26}, {330, H + 80}, {450, H + 150}, {370, H + 230}, {400, Height + 30}}, 5, 60);
    PaintWater(P, &Bed, H + 24, 0.5f, 0.35f);
    for (int I = 0; I < 6; ++I) { // walls step down to the river from both sides
        const float T = float(I) / 5;
        for (int Side = -1; Side <= 1; Side += 2) {
            const float In = 380 + float(Side) * (40 + 70 * T + Any(P.C, 0, 60)),
                        Top = H + 14 + 66 * T * Any(P.C, 0.7f, 1.1f), Foot = H + 60 + 290 * T * T;
            QPainterPath Path(QPointF(360 + Side * 420, Top - 10));
            Path.lineTo(In + float(Side) * 90 * (0.5f + T), Top);
            for (int K = 0; K <= 8; ++K)
                Path.lineTo(In + float(Side) * (90 * (0.5f + T) * (1 - float(K) / 8) *
                                                    (K % 2 ? 1.0f : 0.82f) +
                                                16 * Noise(float(K), T * 9, P.Seed)),
                            Lerp(Top, Foot, float(K) / 8));
            Path.lineTo(360 + Side * 420, Foot + 30);
            CutRock(P, Path, In + float(Side) * 150, 190, Times(Red, 1 - 0.12f * T),
                    0.9f * (1 - T) + 0.08f, Foot - 30, Foot + 60);
        }
    }
    PaintMotif(P, P.Plan.Motif, 590, 306, 100, 0.1f);
    for (int I = 0; I < 12; ++I)
        Bush(P, I % 2 ? Any(P.C, -10, 170) : Any(P.C, 560, 730), Any(P.C, 330, 425),
             Any(P.C, 8, 24), 0.05f);
    for (int I = 0; I < 3; ++I)
        PaintTree(P, P.Snow ? Tree::Fir : Tree::Pine, I % 2 ? Any(P.C, 620, 720) : Any(P.C, 0, 90),
                  Any(P.C, 330, 400), Any(P.C, 80, 150), 0.03f);
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
        for (const Point& K : Crest)
            if (K.Y <= float(Y)) CrestX = K.X;
        for (int X = 0; X < Width; ++X) {
            const std::size_t I = std::size_t(Y * Width + X);
            if (Body[I] <= 0) continue;
            const float Off = (float(X) - CrestX) * (P.SunX > PeakX ? 1.0f : -1.0f);
            const float Ripple = std::sin(float(Y) * 0.55f + float(X) * 0.12f +
                                          7 * Fbm(float(X) / 90, float(Y) / 60, 3, P.Seed));
            const float Shade =
                Off > 0 ? 0.92f - Clamp(Off / 900) : 0.16f + Clamp(-Off / 420) * 0.5f;
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
    const float Deck = Vary(P, 150, 205, 3), Foot = 350;
    const Rgb Brick = P.Seed % 2 ? Hex(0xb8a48c) : Hex(0xa87860);
    const int Arches = 7;
    Draw(P.C, [&](QPainter& Q) {
        QPainterPath Body;
        Body.addRect(QRectF(-10, Deck, 740, Foot - Deck));
        for (int I = 0; I < Arches; ++I) {
            const double X = -20 + 110 * I, W = 86, Bottom = Foot + 10;
            QPainterPath Arch(QPointF(X, Bottom));
            Arch.lineTo(X, Deck + 56);
            Arch.arcTo(QRectF(X, Deck + 13, W, 86), 180, -180);
            Arch.lineTo(X + W, Bottom);
            Arch.closeSubpath();
            Body -= Arch;
        }
        Q.fillPath(Body, ToQColor(Lit(P, Brick, 0.5f, 0.25f)));
        for (int I = 0; I < Arches; ++I) { // the inner sides of the piers
            const double X = -20 + 110 * I;
            Q.fillRect(QRectF(P.SunX > 360 ? X + 78 : X, Deck + 56, 8, Foot - Deck - 56),
                       ToQColor(Lit(P, Times(Brick, 0.6f), 0.15f, 0.25f)));
        }
        Q.fillRect(QRectF(-10, Deck - 5, 740, 8),
                   ToQColor(Lit(P, P.Snow ? Hex(0xf0f4fa) : Times(Brick, 1.15f), 0.8f, 0.25f)));
        Q.fillRect(QRectF(-10, Deck + 3, 740, 3),
                   ToQColor(Lit(P, Times(Brick, 0.5f), 0.1f, 0.25f)));
    });
    Mask Area(Width * Height, 0.0f);
    for (int Y = int(Deck) - 6; Y < 350; ++Y)
        for (int X = 0; X < Width; ++X)
            Area[std::size_t(Y * Width + X)] = 1, P.C.Flow[std::size_t(Y * Width + X)] = 0.1f;
    const std::vector<Rgb> Exact = P.C.Px;
    Repaint(P.C, &Area, {{2, 4, -1, 0.07f}});
    for (std::size_t I = 0; I < Exact.size(); ++I) P.C.Px[I] = Mix(P.C.Px[I], Exact[I], 0.4f);
    PaintMist(P, 320, 22, 0.5f);
    const Mask Bank = Below({{-20, 320}, {180, 352}, {360, 366}, {560, 344}, {740, 310}});
    PaintMeadow(P, &Bank, 280, GroundColour(P), GroundColour(P), 1);
    const Mask Bed = Along({{330, 356}, {420, 376}, {360, Height + 30}}, 30, 150);
    PaintWater(P, &Bed, 350, 0.6f, 0.3f);
    PaintMotif(P, P.Plan.Motif, P.Seed % 2 ? 600 : 130, 362, 96, 0.1f);
    for (int I = 0; I < 12; ++I)
        PaintTree(P, SeasonTree(P), I % 2 ? Any(P.C, -10, 240) : Any(P.C, 500, 730),
                  Any(P.C, 350, 420), Any(P.C, 50, 130), 0.05f);
    PaintLife(P, Deck - 6);
}

void PaintSunDisc(Scene& P)
{
    const float H = Vary(P, 300, 340);
    PaintSkyWithoutOrb(P, H);
    const float X = Vary(P, 250, 420, 3), Y = Any(P.C, 170, 220), R = Any(P.C, 96, 132);
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
    Near.Foot = 440, Near.Top = 270, Near.Grain = 400, Near.Far = 0.05f,
    Near.Local = Times(WoodColour(P), 0.6f), Near.Trees = 0.8f, Near.Mist = 0, Near.Centre = X + 30,
    Near.Spread = 380;
    const std::vector<float> Crest = PaintHill(P, Near);
    PaintMotif(P, P.Plan.Motif, X + Any(P.C, -30, 30), CrestAtX(Crest, X) + 12, 150, 0.05f);
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
    Ranges(P, Hill::Karst, 1, 110, H + 6, 0, 0.4f);
    PaintMist(P, H, 34, 0.7f);
    const float X = Vary(P, 240, 460, 3), Top = Any(P.C, 180, 215), Half = Any(P.C, 70, 100);
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
    const float H = Vary(P, 90, 150);
    PaintSky(P, H);
    Ranges(P, Hill::Soft, 3, 80, H + 6, P.Snow ? 0.6f : 0, 0.6f);
    PaintMist(P, H + 6, 20, 0.6f);
    const Rgb Crop = P.Plan.Season == "autumn" ? Hex(0xa89c3c)
                     : P.Snow                  ? Hex(0x98acb4)
                                               : Hex(0x6ca440);
    for (int I = 0; I < 7; ++I) { // round hills combed by rows of bushes
        const float T = float(I) / 6, Y = H + 30 + 200 * T * T + 50 * T,
                    X = I % 2 ? Any(P.C, 470, 650) : Any(P.C, 70, 250), W = 260 + 190 * T,
                    Tall = 50 + 70 * T;
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
        if (I < 4) PaintMist(P, Y + Tall * 0.5f, 10, 0.3f);
    }
    PaintLife(P, 396);
}
