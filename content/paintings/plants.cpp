// plants.cpp: trees, woods, bushes and reeds, built of many touches from the dark to the light.

#include "scene.h"

#include <algorithm>
#include <cmath>

struct Foliage {
    Rgb Dark, Middle, Light;
};

static Foliage FoliageOf(const Scene& P, Tree Kind)
{
    switch (Kind) {
    case Tree::Cherry:
        if (P.Plan.Season == "spring") return {Hex(0xb0708c), Hex(0xf0aabf), Hex(0xffe6ec)};
        break;
    case Tree::Maple:
        if (P.Plan.Season == "autumn") return {Hex(0x74161c), Hex(0xcc3820), Hex(0xf89038)};
        break;
    case Tree::Pine:
        return {Hex(0x1c3c34), Hex(0x3a6a4c), Hex(0x7ca060)};
    case Tree::Fir:
        return {Hex(0x183430), Hex(0x2e5a4c), Hex(0x5c8c68)};
    case Tree::Cypress:
        return {Hex(0x1c3828), Hex(0x34583c), Hex(0x64844c)};
    case Tree::Willow:
        if (P.Plan.Season != "autumn") return {Hex(0x4c6c30), Hex(0x88a84c), Hex(0xc0d078)};
        break;
    case Tree::Birch:
        if (P.Plan.Season == "autumn") return {Hex(0xa86c18), Hex(0xe8a82c), Hex(0xfce070)};
        break;
    case Tree::Palm:
    case Tree::Bamboo:
        return {Hex(0x2c5828), Hex(0x5c9040), Hex(0xa8c860)};
    default:
        break;
    }
    return {Hex(P.S->LeafDark), Hex(P.S->LeafMid), Hex(P.S->LeafLight)};
}

void LeafMass(Scene& P, float X, float Y, float RX, float RY, float Touch, int Count, Rgb Dark,
              Rgb Middle, Rgb Light, float Far)
{
    const float Side = SunSide(P, X);
    for (int Pass = 0; Pass < 3; ++Pass) {
        const int Touches = Pass == 0 ? Count / 2 : Pass == 1 ? Count : Count * 2 / 3;
        for (int I = 0; I < Touches; ++I) {
            const float A = Any(P.C, 0, 2 * Pi),
                        D = std::sqrt(Any(P.C)) * (1 + 0.12f * AnyBell(P.C));
            const float U = std::cos(A) * D, V = std::sin(A) * D;
            const float Shade = 0.5f + 0.34f * U * Side - 0.48f * V + 0.22f * AnyBell(P.C);
            if (Pass == 1 && Shade < 0.32f) continue;
            if (Pass == 2 && Shade < 0.66f) continue;
            const Rgb Local = Pass == 0   ? Dark
                              : Pass == 1 ? Mix(Dark, Middle, Clamp(0.4f + Shade))
                                          : Mix(Middle, Light, Clamp(Shade));
            const Rgb Paint = Times(Local, 1 + 0.14f * AnyBell(P.C));
            const float Size = Touch *
                               (Pass == 0   ? 1.5f
                                : Pass == 1 ? 1.1f
                                            : 0.8f) *
                               Any(P.C, 0.7f, 1.3f);
            Dab(P.C, X + U * RX, Y + V * RY, Size * 1.5f, Size * 0.85f, A + Pi / 2 + AnyBell(P.C),
                Lit(P, Paint, Clamp(0.15f + 0.85f * Shade), Far), 0.92f);
        }
    }
}

static Rgb BarkOf(const Scene& P, Tree Kind)
{
    if (Kind == Tree::Birch) return Hex(0xe8e4dc);
    if (Kind == Tree::Pine) return Hex(0x84543c);
    if (Kind == Tree::Palm) return Hex(0x9c8060);
    return P.Snow ? Hex(0x5c5450) : Hex(0x6c5040);
}

// A limb in the round: its own colour, a shaded and a lit edge.
static void Limb(Scene& P, const Line& Way, float From, float To, Rgb Bark, float Far)
{
    const float Side = SunSide(P, Way[0].X);
    Stroke(P.C, Way, From, To, Lit(P, Bark, 0.25f, Far), 1);
    if (From < 1.2f) return;
    Line Edge = Way;
    for (Point& K : Edge) K.X += Side * From * 0.35f;
    Stroke(P.C, Edge, From * 0.42f, To * 0.4f, Lit(P, Times(Bark, 1.15f), 0.8f, Far), 0.75f);
}

void Trunk(Scene& P, float X, float Y, float Top, float Half, bool White, float Far)
{
    const Rgb Bark = White ? Hex(0xece8e0) : P.Seed % 2 ? Hex(0x70503c) : Hex(0x5c5448);
    const float Lean = AnyBell(P.C) * Half * 1.5f, Side = SunSide(P, X);
    const Line Way = Curve({{X, Y}, {X + Lean * 0.4f, (Y + Top) / 2}, {X + Lean, Top}}, 8);
    Stroke(P.C, Way, Half, Half * 0.72f, Lit(P, Bark, 0.35f, Far), 1);
    const int Furrows = int(Clamp(Half * 9, 6, 130));
    for (int I = 0; I < Furrows; ++I) {
        const float U = Any(P.C, -0.92f, 0.92f), T = Any(P.C), Long = Any(P.C, 8, 40);
        const float FX = X + Lean * T + U * Half * Lerp(1, 0.72f, T), FY = Lerp(Y, Top, T);
        const float Shade = Clamp(0.42f + 0.45f * U * Side + 0.2f * AnyBell(P.C));
        Stroke(P.C, {{FX, FY}, {FX + AnyBell(P.C) * 1.5f, FY - Long}},
               Clamp(Half * 0.14f, 0.5f, 2.2f), 0.4f,
               Lit(P, Times(Bark, Any(P.C, 0.75f, 1.15f)), Shade, Far), 0.8f);
    }
    if (!White) return;
    for (int I = 0; I < int((Y - Top) / 9); ++I) // the dark marks of a birch
        Dab(P.C, X + Lean * 0.5f + Any(P.C, -0.7f, 0.7f) * Half, Lerp(Y, Top, Any(P.C)),
            Half * Any(P.C, 0.4f, 1.3f), 1 + Half * 0.22f * Any(P.C), AnyBell(P.C) * 0.2f,
            Lit(P, Hex(0x34302c), 0.3f, Far), 0.85f, true);
}

struct Tip {
    float X, Y, Angle;
};

static void Branch(Scene& P, float X, float Y, float Angle, float Long, float Half, int Forks,
                   float Spread, float Lift, Rgb Bark, float Far, std::vector<Tip>& Tips)
{
    const float Bend = AnyBell(P.C) * 0.35f;
    const float MX = X + std::cos(Angle + Bend) * Long * 0.5f,
                MY = Y - std::sin(Angle + Bend) * Long * 0.5f;
    const float EX = X + std::cos(Angle) * Long, EY = Y - std::sin(Angle) * Long;
    Limb(P, Curve({{X, Y}, {MX, MY}, {EX, EY}}, 5), Half, Half * 0.62f, Bark, Far);
    if (Forks == 0) {
        Tips.push_back({EX, EY, Angle});
        return;
    }
    const int Count = 2 + (Any(P.C) < 0.4f ? 1 : 0);
    for (int I = 0; I < Count; ++I) {
        const float Turn = Spread * (Count == 1 ? 0 : (float(I) / float(Count - 1) * 2 - 1)) +
                           0.25f * AnyBell(P.C);
        const float Next = Lerp(Angle + Turn, Pi / 2, Lift);
        Branch(P, EX, EY, Next, Long * Any(P.C, 0.62f, 0.85f), Half * 0.6f, Forks - 1, Spread, Lift,
               Bark, Far, Tips);
    }
    if (Any(P.C) < 0.5f) Tips.push_back({MX, MY, Angle});
}

static void Crowned(Scene& P, Tree Kind, float X, float Y, float Tall, float Far)
{
    const Rgb Bark = BarkOf(P, Kind);
    const bool Small = Tall < 50;
    const bool Leafless = P.Snow;
    std::vector<Tip> Tips;
    const float Wide = Kind == Tree::Cherry  ? 0.75f
                       : Kind == Tree::Maple ? 0.68f
                       : Kind == Tree::Birch ? 0.36f
                                             : 0.55f;
    const float Trunk = Tall * (Kind == Tree::Birch ? 0.42f : Kind == Tree::Cherry ? 0.24f : 0.30f);
    const float Half = std::max(0.7f, Tall * (Kind == Tree::Birch ? 0.016f : 0.032f));
    const int Forks = Leafless || Kind == Tree::Bare ? (Small ? 3 : 5) : (Small ? 2 : 3);
    Branch(P, X, Y, Pi / 2 + 0.16f * AnyBell(P.C), Trunk, Half, Forks, Wide, 0.08f, Bark, Far,
           Tips);
    if (Leafless || Kind == Tree::Bare) {
        if (P.Snow)
            for (const Tip& T : Tips)
                if (Any(P.C) < 0.5f)
                    Dab(P.C, T.X, T.Y, Tall * 0.035f + 1, 1.4f, -T.Angle,
                        Lit(P, Hex(0xf4f8ff), 0.8f, Far), 0.8f);
        return;
    }
    const Foliage F = FoliageOf(P, Kind);
    const float R = Tall * (Kind == Tree::Birch ? 0.11f : 0.15f);
    std::sort(Tips.begin(), Tips.end(), [](const Tip& A, const Tip& B) { return A.Y < B.Y; });
    const float Touch = Clamp(Tall / 42, 1.5f, 4.2f);
    const int Count = int(Clamp(R * R / (Touch * Touch) * 1.7f, 14, 260));
    for (const Tip& T : Tips)
        LeafMass(P, T.X + AnyBell(P.C) * R * 0.4f, T.Y - R * 0.2f, R * Any(P.C, 0.8f, 1.3f),
                 R * Any(P.C, 0.55f, 0.85f), Touch, Count, F.Dark, F.Middle, F.Light, Far);
    if (Kind == Tree::Cherry) return;
    for (int I = 0; I < int(Tips.size()) * 6; ++I) { // loose leaves at the edge
        const Tip& T = Tips[std::size_t(AnyOf(P.C, int(Tips.size())))];
        Dab(P.C, T.X + AnyBell(P.C) * R * 1.9f, T.Y + AnyBell(P.C) * R * 1.4f, Touch * 1.2f,
            Touch * 0.7f, Any(P.C, 0, 3), Lit(P, Mix(F.Middle, F.Light, Any(P.C)), 0.8f, Far),
            0.85f);
    }
}

static void Pine(Scene& P, float X, float Y, float Tall, float Far)
{
    const Foliage F = FoliageOf(P, Tree::Pine);
    const Rgb Bark = BarkOf(P, Tree::Pine);
    const float Lean = Any(P.C, -0.4f, 0.4f), Crook = Any(P.C, -0.16f, 0.16f);
    Line Knots;
    for (int I = 0; I <= 5; ++I) {
        const float T = float(I) / 5;
        Knots.push_back({X + Tall * (Lean * T * T + Crook * std::sin(T * 7)), Y - Tall * T * 0.9f});
    }
    const Line Trunk = Curve(Knots, 6);
    Limb(P, Trunk, std::max(0.8f, Tall * 0.032f), 0.8f, Bark, Far);
    const int Pads = Tall < 45 ? 5 : 9;
    const float Touch = Clamp(Tall / 40, 1.5f, 4.5f);
    float Hand = Any(P.C) < 0.5f ? 1.0f : -1.0f;
    for (int I = 0; I < Pads; ++I) {
        const float T = 0.34f + 0.66f * float(I) / float(Pads - 1);
        const Point At0 = Trunk[std::size_t(T * float(Trunk.size() - 1))];
        const float Reach =
            Tall * (I == Pads - 1 ? 0 : Any(P.C, 0.10f, 0.34f) * (1.25f - T)) * Hand;
        const float PX = At0.X + Reach, PY = At0.Y - std::fabs(Reach) * 0.12f;
        if (std::fabs(Reach) > 3)
            Limb(P, Curve({At0, {At0.X + Reach * 0.5f, At0.Y + 1}, {PX, PY}}, 4),
                 std::max(0.6f, Tall * 0.010f), 0.5f, Bark, Far);
        const float RX = Tall * Any(P.C, 0.13f, 0.21f) * (1.3f - 0.5f * T), RY = RX * 0.34f;
        const int Count = int(Clamp(RX * RY / (Touch * Touch) * 4, 12, 220));
        LeafMass(P, PX, PY - RY * 0.5f, RX, RY, Touch, Count, F.Dark, F.Middle, F.Light, Far);
        for (int K = 0; K < Count / 2; ++K) { // needles stand up along the upper edge
            const float U = Any(P.C, -1, 1), NX = PX + U * RX,
                        NY = PY - RY * (0.5f + std::sqrt(1 - U * U) * 0.9f);
            Dab(P.C, NX, NY, Touch * 2.2f, 0.8f, Pi / 2 + U * 0.9f,
                Lit(P, P.Snow && K % 2 ? Hex(0xf4f8ff) : Mix(F.Middle, F.Light, Any(P.C)), 0.8f,
                    Far),
                0.8f);
        }
        if (P.Snow)
            for (int K = 0; K < Count / 2; ++K) {
                const float U = Any(P.C, -0.9f, 0.9f);
                Dab(P.C, PX + U * RX,
                    PY - RY * (0.5f + std::sqrt(1 - U * U) * Any(P.C, 0.5f, 1.0f)), Touch * 1.7f,
                    Touch * 0.9f, 0, Lit(P, Hex(0xf2f6ff), Any(P.C, 0.5f, 1), Far), 0.9f);
            }
        Hand = Any(P.C) < 0.8f ? -Hand : Hand;
    }
}

static void Fir(Scene& P, float X, float Y, float Tall, float Far, bool Slim)
{
    const Foliage F = FoliageOf(P, Slim ? Tree::Cypress : Tree::Fir);
    const float Side = SunSide(P, X), Wide = Tall * (Slim ? 0.11f : Any(P.C, 0.20f, 0.27f));
    Stroke(P.C, {{X, Y}, {X, Y - Tall * 0.9f}}, std::max(0.6f, Tall * 0.018f), 0.5f,
           Lit(P, Hex(0x4c3c34), 0.3f, Far), 1);
    const int Tiers = int(Clamp(Tall / (Slim ? 3.0f : 4.6f), 7, 44));
    for (int I = 0; I < Tiers; ++I) {
        const float T = float(Tiers - I) / float(Tiers),
                    TY = Y - Tall * (1 - T) - Tall * 0.04f; // T 1 at the foot
        const float Span =
            Slim ? Wide *
                       std::pow(std::sin(Clamp(1 - T * 0.86f, 0.05f, 1) * Pi * 0.95f + 0.1f), 0.7f)
                 : Wide * (0.06f + std::pow(T, 0.85f)) * Any(P.C, 0.78f, 1.08f);
        const int Boughs = int(Clamp(Span * 0.75f, 3, 26));
        for (int K = 0; K < Boughs; ++K) {
            const float U = Any(P.C, -1, 1), Long = Span * Any(P.C, 0.3f, 0.62f) + 1.5f;
            const float Shade = Clamp(0.42f + 0.42f * U * Side + 0.25f * AnyBell(P.C));
            Rgb Local = Mix(F.Dark, Shade > 0.5f ? F.Light : F.Middle, Shade);
            float PaintShade = Shade;
            if (P.Snow && Any(P.C) < 0.42f && I > 1)
                Local = Hex(0xf2f6ff), PaintShade = 0.35f + 0.6f * Shade;
            const float BX = X + U * Span * 0.62f;
            Dab(P.C, BX, TY + std::fabs(U) * Span * 0.28f, Long, Clamp(Tall / 34, 1.2f, 4.5f),
                Slim ? Pi / 2 - 0.3f * U
                     : (U < 0 ? -0.5f : 0.5f) * (0.5f + std::fabs(U)) * (U == 0 ? 0 : 1),
                Lit(P, Local, PaintShade, Far), 0.95f, true);
        }
    }
}

// Boughs rise in arcs from the trunk, and from each hangs a curtain with gaps beside it.
static void Willow(Scene& P, float X, float Y, float Tall, float Far)
{
    const Foliage F = FoliageOf(P, Tree::Willow);
    const Rgb Bark = BarkOf(P, Tree::Willow);
    const float Wind = Any(P.C, -0.12f, 0.12f), Lean = AnyBell(P.C) * 0.06f * Tall;
    const Point Fork{X + Lean, Y - Tall * 0.42f};
    Limb(P, Curve({{X, Y}, {X - Lean * 0.5f, Y - Tall * 0.2f}, Fork}, 5),
         std::max(0.8f, Tall * 0.042f), std::max(0.6f, Tall * 0.028f), Bark, Far);
    const int Boughs = Tall < 60 ? 6 : 10;
    for (int B = 0; B < Boughs; ++B) {
        const float A = Pi * (0.06f + 0.88f * (float(B * 7 % Boughs) + Any(P.C)) / float(Boughs)),
                    R = Tall * Any(P.C, 0.30f, 0.50f), Front = float(B) / float(Boughs);
        const Line Bough = Curve(
            {Fork,
             {Fork.X + std::cos(A) * R * 0.55f, Fork.Y - Tall * (0.10f + 0.30f * std::sin(A))},
             {Fork.X + std::cos(A) * R * 1.15f, Fork.Y - Tall * (0.02f + 0.30f * std::sin(A))}},
            7);
        Limb(P, Bough, std::max(0.6f, Tall * 0.016f), 0.5f, Bark, Far);
        const int Strands = int(Clamp(Tall * 0.20f, 7, 34));
        for (int I = 0; I < Strands; ++I) {
            const float T = 0.25f + 0.75f * Any(P.C);
            const Point From = Bough[std::size_t(T * float(Bough.size() - 1))];
            const float Long = std::min(Tall * Any(P.C, 0.10f, 0.40f) * (0.6f + T),
                                        (Y - From.Y) * Any(P.C, 0.8f, 0.98f));
            const float Shade = Clamp(0.18f + 0.4f * Front + 0.35f * std::cos(A) * SunSide(P, X) +
                                      0.25f * std::sin(A) + 0.3f * AnyBell(P.C));
            const Rgb Paint =
                Lit(P, Mix(F.Dark, Shade > 0.55f ? F.Light : F.Middle, Shade), Shade, Far);
            const float SX = From.X + AnyBell(P.C) * Tall * 0.05f,
                        Out = std::cos(A) * Tall * 0.03f + (Wind + 0.06f * AnyBell(P.C)) * Long;
            Stroke(P.C,
                   Curve({{SX, From.Y},
                          {SX + Out * 0.5f, From.Y + Long * 0.4f},
                          {SX + Out, From.Y + Long}},
                         3),
                   Clamp(Tall / 150, 0.5f, 1.5f), 0.4f, Paint, 0.8f);
            for (float D = 0.1f; D < 1 && Tall > 60; D += 7 / std::max(Long, 8.0f))
                Dab(P.C, SX + Out * D + AnyBell(P.C) * 1.6f, From.Y + Long * D, 6, 1.7f,
                    Pi / 2 + AnyBell(P.C) * 0.5f, Times(Paint, Any(P.C, 0.85f, 1.2f)), 0.8f, true);
        }
    }
}

static void Palm(Scene& P, float X, float Y, float Tall, float Far)
{
    const Foliage F = FoliageOf(P, Tree::Palm);
    const float Lean = Any(P.C, -0.35f, 0.35f) * Tall;
    const Line Trunk =
        Curve({{X, Y}, {X + Lean * 0.25f, Y - Tall * 0.5f}, {X + Lean, Y - Tall * 0.9f}}, 8);
    Limb(P, Trunk, std::max(0.8f, Tall * 0.026f), std::max(0.6f, Tall * 0.016f),
         BarkOf(P, Tree::Palm), Far);
    const Point Top = Trunk.back();
    for (int I = 0; I < 15; ++I) {
        const float A = Pi * (-0.12f + 1.24f * (float(I * 7 % 15) + Any(P.C)) / 15),
                    Long = Tall * Any(P.C, 0.30f, 0.44f);
        const float EX = std::cos(A) * Long, EY = -std::sin(A) * Long * 0.7f + Long * 0.42f;
        const Line Rib = Curve(
            {Top, {Top.X + EX * 0.5f, Top.Y + EY * 0.2f - Long * 0.22f}, {Top.X + EX, Top.Y + EY}},
            8);
        const float Shade = Clamp(0.45f + 0.3f * std::sin(A) + 0.3f * std::cos(A) * SunSide(P, X) +
                                  0.2f * AnyBell(P.C));
        const Rgb Paint = Lit(P, Mix(F.Dark, Shade > 0.6f ? F.Light : F.Middle, Shade), Shade, Far);
        Stroke(P.C, Rib, 0.7f + Tall / 180, 0.4f, Paint, 1);
        for (std::size_t K = 1; K < Rib.size(); ++K)
            for (int S = -1; S <= 1; S += 2)
                Dab(P.C, Rib[K].X + float(S) * Tall * 0.015f, Rib[K].Y + Tall * 0.028f,
                    Tall * 0.09f, 0.6f + Tall / 110, Pi / 2 - float(S) * 0.5f - 0.4f * std::cos(A),
                    Times(Paint, Any(P.C, 0.85f, 1.2f)), 0.9f, true);
    }
}

static void Bamboo(Scene& P, float X, float Y, float Tall, float Far)
{
    const Foliage F = FoliageOf(P, Tree::Bamboo);
    const float Lean = AnyBell(P.C) * 0.10f * Tall, Half = std::max(0.8f, Tall * 0.011f);
    const Rgb Culm = P.Snow ? Hex(0x7c9c6c) : Mix(F.Middle, Hex(0xc8c060), Any(P.C, 0, 0.5f));
    const auto AtHeight = [&](float T) { return Point{X + Lean * T * T, Y - Tall * T}; };
    Line Way;
    for (int I = 0; I <= 10; ++I) Way.push_back(AtHeight(float(I) / 10));
    Limb(P, Way, Half, Half * 0.6f, Culm, Far);
    const int Nodes = int(Clamp(Tall / (Half * 13), 4, 16));
    for (int I = 1; I < Nodes; ++I) {
        const Point N = AtHeight(float(I) / float(Nodes));
        Dab(P.C, N.X, N.Y, Half * 2.5f, 1.1f + Half * 0.2f, 0,
            Lit(P, Times(Culm, 0.55f), 0.3f, Far), 0.85f);
        Dab(P.C, N.X, N.Y - 1.2f - Half * 0.15f, Half * 2.2f, 0.9f, 0,
            Lit(P, Times(Culm, 1.3f), 0.9f, Far), 0.7f);
        if (float(I) / float(Nodes) < 0.42f) continue;
        const float Hand = I % 2 ? 1.0f : -1.0f, Long = Tall * Any(P.C, 0.07f, 0.14f);
        const Point E{N.X + Hand * Long, N.Y - Long * 0.7f};
        Stroke(P.C, {N, E}, 0.6f, 0.4f, Lit(P, Culm, 0.4f, Far), 1);
        for (int K = 0; K < 13; ++K) {
            const float T = Any(P.C, 0.2f, 1.1f), LX = Lerp(N.X, E.X, T), LY = Lerp(N.Y, E.Y, T),
                        Size = Tall * Any(P.C, 0.04f, 0.07f);
            const float A = Pi / 2 - Hand * Any(P.C, 0.1f, 0.9f), Shade = Any(P.C);
            Dab(P.C, LX + std::cos(A) * Size * 0.5f, LY + std::sin(A) * Size * 0.5f, Size + 2,
                Clamp(Size * 0.17f, 1, 4), A,
                Lit(P,
                    P.Snow && K % 3 == 0 ? Hex(0xf4f8ff)
                                         : Mix(F.Dark, Shade > 0.6f ? F.Light : F.Middle, Shade),
                    Shade, Far),
                0.92f, true);
        }
    }
}

void PaintTree(Scene& P, Tree Kind, float X, float Y, float Tall, float Far)
{
    switch (Kind) {
    case Tree::Pine:
        Pine(P, X, Y, Tall, Far);
        return;
    case Tree::Fir:
        Fir(P, X, Y, Tall, Far, false);
        return;
    case Tree::Cypress:
        Fir(P, X, Y, Tall, Far, true);
        return;
    case Tree::Palm:
        Palm(P, X, Y, Tall, Far);
        return;
    case Tree::Bamboo:
        Bamboo(P, X, Y, Tall, Far);
        return;
    case Tree::Willow:
        Willow(P, X, Y, Tall, Far);
        return;
    default:
        Crowned(P, Kind, X, Y, Tall, Far);
    }
    if (Kind != Tree::Birch || Tall < 60) return;
    for (int I = 0; I < int(Tall / 4); ++I) // the dark marks of the bark
        Dab(P.C, X + AnyBell(P.C) * Tall * 0.012f, Y - Tall * 0.4f * Any(P.C), Tall * 0.016f, 1.1f,
            0, Lit(P, Hex(0x38342f), 0.3f, Far), 0.7f);
}

Tree SeasonTree(Scene& P)
{
    const float Pick = Any(P.C);
    if (P.Plan.Season == "spring")
        return Pick < 0.5f ? Tree::Cherry : Pick < 0.75f ? Tree::Round : Tree::Willow;
    if (P.Plan.Season == "summer")
        return Pick < 0.5f ? Tree::Round : Pick < 0.75f ? Tree::Pine : Tree::Willow;
    if (P.Plan.Season == "autumn")
        return Pick < 0.6f ? Tree::Maple : Pick < 0.8f ? Tree::Round : Tree::Birch;
    return Pick < 0.4f ? Tree::Bare : Pick < 0.75f ? Tree::Fir : Tree::Pine;
}

Tree FestiveTree(const Scene& P, Tree Otherwise)
{
    return P.Plan.Season == "spring"   ? Tree::Cherry
           : P.Plan.Season == "autumn" ? Tree::Maple
                                       : Otherwise;
}

void Wood(Scene& P, const std::vector<float>& Crest, float X0, float X1, float Tall, float Far,
          float Density)
{
    const bool Firs = P.Snow || P.Seed % 3 != 0;
    const Foliage F = FoliageOf(P, Firs ? Tree::Fir : Tree::Round);
    for (float X = X0; X < X1; X += Tall * 0.34f) {
        const int Column = std::clamp(int(X), 0, Width - 1);
        if (Noise(X / 38, Far * 9, P.Seed + 14) > 0.30f + 0.6f * Density) continue;
        const float Y = Crest[std::size_t(Column)] + Any(P.C) * Tall * 0.7f,
                    H = Tall * Any(P.C, 0.6f, 1.25f);
        const float Shade = Any(P.C);
        const Rgb Paint = Lit(P, Mix(F.Dark, F.Middle, Shade), 0.25f + 0.5f * Shade, Far);
        if (Firs) {
            for (int K = 0; K < 4; ++K) {
                const float T = float(K) / 3;
                Dab(P.C, X, Y - H * (1 - T * 0.85f), H * (0.10f + 0.42f * T), H * 0.34f, 0,
                    Mix(Paint, Lit(P, Hex(0xf0f4fc), 0.7f, Far), P.Snow && K % 2 ? 0.5f : 0.0f),
                    0.85f);
            }
            Dab(P.C, X, Y - H * 0.5f, H, H * 0.2f, Pi / 2, Paint, 0.9f, true);
        } else {
            for (int K = 0; K < 4; ++K)
                Dab(P.C, X + AnyBell(P.C) * H * 0.3f, Y - H * Any(P.C, 0.2f, 0.6f), H * 0.62f,
                    H * 0.5f, Any(P.C, 0, 3), Times(Paint, 0.85f + 0.12f * float(K)), 0.85f);
        }
    }
}

// What a bough of an overhanging tree bears at one of its points.
static void BareTwig(Scene& P, Point K, std::size_t I, Rgb Bark)
{
    if (I % 3 == 0)
        Stroke(P.C, {K, {K.X + Any(P.C, 5, 40), K.Y + Any(P.C, -30, 34)}}, 1.2f, 0.4f,
               Lit(P, Bark, 0.3f, 0), 1);
    if (P.Snow) Dab(P.C, K.X, K.Y - 3, 12, 3.4f, 0.3f, Lit(P, Hex(0xf4f8ff), 0.8f, 0), 0.95f);
}

static void BambooLeaves(Scene& P, Point K, const Foliage& F)
{
    for (int L = 0; L < 3; ++L) {
        const float A = Any(P.C, 0.4f, 2.2f), S = Any(P.C, 26, 50), Shade = Any(P.C);
        Dab(P.C, K.X + std::cos(A) * S / 2, K.Y + std::sin(A) * S / 2, S, 6, A,
            Lit(P, Mix(F.Dark, F.Light, Shade), Shade, 0), 0.95f, true);
    }
}

static void WillowTwigs(Scene& P, Point K, const Foliage& F)
{
    for (int L = 0; L < 3; ++L) {
        const float S = Any(P.C, 40, 170), Shade = Any(P.C), WX = K.X + AnyBell(P.C) * 10;
        Stroke(P.C, Curve({{WX, K.Y}, {WX + 5, K.Y + S * 0.5f}, {WX - 3, K.Y + S}}, 5), 1.0f, 0.4f,
               Lit(P, Mix(F.Dark, F.Light, Shade), Shade, 0), 0.9f);
        for (float T = 0; T < S; T += 7)
            Dab(P.C, WX + AnyBell(P.C) * 4, K.Y + T, 7, 2, Any(P.C, 1.0f, 2.1f),
                Lit(P, Mix(F.Middle, F.Light, Any(P.C)), Shade, 0), 0.85f, true);
    }
}

static void PineTufts(Scene& P, Point K, const Foliage& F)
{
    for (int L = 0; L < 2; ++L) {
        const float CX = K.X + AnyBell(P.C) * 20, CY = K.Y + AnyBell(P.C) * 12;
        for (int N = 0; N < 22; ++N) {
            const float A = Any(P.C, 0, 2 * Pi), S = Any(P.C, 9, 17),
                        Shade = Clamp(0.5f - 0.5f * std::sin(A) + 0.2f * AnyBell(P.C));
            Dab(P.C, CX + std::cos(A) * S / 2, CY + std::sin(A) * S / 2 * 0.7f, S, 1.3f,
                std::atan2(std::sin(A) * 0.7f, std::cos(A)),
                Lit(P, Mix(F.Dark, F.Light, Shade), Shade, 0), 0.95f, true);
        }
    }
}

void Overhang(Scene& P, Tree Kind, float Reach)
{
    const Foliage F = FoliageOf(P, Kind);
    const Rgb Bark = BarkOf(P, Kind);
    const bool Evergreen = Kind == Tree::Pine || Kind == Tree::Fir || Kind == Tree::Bamboo;
    const int Boughs = 3 + AnyOf(P.C, 2);
    for (int B = 0; B < Boughs; ++B) {
        const float Y0 = Any(P.C, -30, 50), EX = Reach * Any(P.C, 0.55f, 1.1f),
                    EY = Y0 + Any(P.C, 20, 130);
        const Line Way = Curve({{-20, Y0},
                                {EX * 0.4f, Lerp(Y0, EY, 0.25f) + AnyBell(P.C) * 14},
                                {EX * 0.75f, Lerp(Y0, EY, 0.7f)},
                                {EX, EY}},
                               10);
        Limb(P, Way, 6 - float(B), 1, Bark, 0);
        for (std::size_t I = 3; I < Way.size(); ++I) {
            const Point K = Way[I];
            if (Kind == Tree::Bare || (P.Snow && !Evergreen))
                BareTwig(P, K, I, Bark);
            else if (Kind == Tree::Bamboo)
                BambooLeaves(P, K, F);
            else if (Kind == Tree::Willow)
                WillowTwigs(P, K, F);
            else if (Kind == Tree::Pine)
                PineTufts(P, K, F);
            else
                LeafMass(P, K.X + AnyBell(P.C) * 18, K.Y + AnyBell(P.C) * 12, Any(P.C, 12, 26),
                         Any(P.C, 8, 16), 4.6f, 26, F.Dark, F.Middle, F.Light, 0);
        }
    }
}

void Bush(Scene& P, float X, float Y, float Size, float Far)
{
    const Foliage F = FoliageOf(P, Tree::Round);
    const float Touch = Clamp(Size / 8, 1.3f, 4);
    for (int I = 0; I < 3; ++I)
        LeafMass(P, X + AnyBell(P.C) * Size * 0.6f, Y - Size * Any(P.C, 0.25f, 0.45f),
                 Size * Any(P.C, 0.4f, 0.7f), Size * Any(P.C, 0.3f, 0.45f), Touch,
                 int(Clamp(Size * 1.6f, 10, 90)), F.Dark, F.Middle,
                 P.Snow ? Hex(0xf2f6fc) : F.Light, Far);
}

void Reeds(Scene& P, float X0, float X1, float Y, float Tall, int Count, float Far)
{
    const Rgb Stem = P.Snow                      ? Hex(0xb8a07c)
                     : P.Plan.Season == "autumn" ? Hex(0xc89c4c)
                                                 : Hex(0x80984c);
    const float Wind = Any(P.C, -0.3f, 0.3f);
    for (int I = 0; I < Count; ++I) {
        const float X = Any(P.C, X0, X1), Long = Tall * Any(P.C, 0.55f, 1.1f),
                    Lean = (Wind + 0.25f * AnyBell(P.C)) * Long;
        const float Foot = Y + Any(P.C, -3, 10), Shade = Any(P.C);
        const Point Top{X + Lean, Foot - Long};
        Stroke(P.C, Curve({{X, Foot}, {X + Lean * 0.35f, Foot - Long * 0.6f}, Top}, 4),
               0.6f + Tall / 110, 0.4f, Lit(P, Times(Stem, 0.6f + 0.5f * Shade), Shade, Far),
               0.95f);
        if (I % 3 == 0) { // a plume or a cat-tail
            const Rgb Head = P.Seed % 2 ? Hex(0x6c4428) : Hex(0xe8d8b4);
            Dab(P.C, Top.X, Top.Y, Tall * 0.15f, Tall * 0.035f + 1,
                Pi / 2 + Lean / Long * (Head.R > 0.7f ? 1.6f : 1.0f),
                Lit(P, Head, 0.4f + 0.6f * Shade, Far), 0.95f, true);
        } else if (I % 3 == 1) {
            const float Hand = Any(P.C) < 0.5f ? -1.0f : 1.0f;
            Stroke(P.C,
                   Curve({{X + Lean * 0.3f, Foot - Long * 0.5f},
                          {X + Lean * 0.5f + Hand * Tall * 0.10f, Foot - Long * 0.8f},
                          {X + Lean * 0.5f + Hand * Tall * 0.26f, Foot - Long * 0.7f}},
                         4),
                   0.9f, 0.4f, Lit(P, Stem, Shade, Far), 0.9f);
        }
    }
}
