// life.cpp: birds, beasts, people and what they fly.

#include "scene.h"

#include <cmath>

static Rgb Dark(const Scene& P, float Far)
{
    return Lit(P, Hex(0x30302f), 0.25f, Far);
}

static void Touch(Scene& P, const Line& Way, float From, float To, Rgb Colour)
{
    Stroke(P.C, Curve(Way, 5), From, To, Colour, 1);
}

// A flying crane seen from the side: long neck and legs, wings up or down.
static void FlyingCrane(Scene& P, float X, float Y, float S, float Hand)
{
    const Rgb White = Lit(P, Hex(0xfcfaf4), 0.95f, 0.25f),
              Shade = Lit(P, Hex(0xd0d4dc), 0.5f, 0.25f), Black = Dark(P, 0.3f);
    const float Beat = Any(P.C, -0.3f, 1.0f);
    const auto Wing = [&](float Root, float Rise, Rgb Colour) {
        const float WX = X + Hand * S * Root, TipX = X + Hand * S * (Root - 0.12f),
                    TipY = Y - S * Rise;
        for (int I = 0; I < 7; ++I) {
            const float T = float(I) / 6;
            Touch(
                P,
                {{WX - Hand * S * 0.16f * T, Y},
                 {Lerp(WX, TipX, 0.6f) - Hand * S * 0.2f * T, Lerp(Y, TipY, 0.62f) + S * 0.05f * T},
                 {TipX - Hand * S * 0.34f * T, TipY + S * 0.20f * T * (Rise > 0 ? 1.0f : -1.0f)}},
                S * 0.035f, 0.4f, I < 4 ? Colour : Mix(Colour, Black, 0.75f));
        }
    };
    Wing(0.10f, 0.45f * Beat + 0.12f, Shade);
    Touch(P, {{X - Hand * S * 0.16f, Y + S * 0.02f}, {X - Hand * S * 0.62f, Y + S * 0.09f}},
          S * 0.014f + 0.2f, 0.4f, Black);
    Dab(P.C, X, Y, S * 0.42f, S * 0.13f, 0.05f * Hand, White, 1);
    Touch(P,
          {{X + Hand * S * 0.16f, Y},
           {X + Hand * S * 0.34f, Y - S * 0.05f},
           {X + Hand * S * 0.52f, Y - S * 0.06f}},
          S * 0.035f, S * 0.018f + 0.2f, White);
    Touch(P, {{X + Hand * S * 0.50f, Y - S * 0.06f}, {X + Hand * S * 0.64f, Y - S * 0.05f}},
          S * 0.016f + 0.2f, 0.3f, Black);
    Dab(P.C, X + Hand * S * 0.50f, Y - S * 0.08f, S * 0.05f + 0.6f, S * 0.03f + 0.5f, 0,
        Lit(P, Hex(0xd83020), 0.8f, 0), 1);
    Wing(0.04f, 0.55f * Beat + 0.20f, White);
}

static void StandingCrane(Scene& P, float X, float Y, float S, float Hand)
{
    const Rgb White = Lit(P, Hex(0xfcfaf4), 0.9f, 0.15f),
              Shade = Lit(P, Hex(0xc0c8d4), 0.4f, 0.15f), Black = Dark(P, 0.15f);
    const bool Feeding = Any(P.C) < 0.4f;
    for (float Leg : {-0.04f, 0.04f})
        Touch(P,
              {{X + Leg * S, Y - S * 0.42f}, {X + Leg * S * 1.6f, Y - S * 0.2f}, {X + Leg * S, Y}},
              S * 0.012f + 0.2f, 0.4f, Black);
    Dab(P.C, X, Y - S * 0.50f, S * 0.42f, S * 0.19f, Hand * -0.35f, Shade, 1);
    Dab(P.C, X, Y - S * 0.53f, S * 0.38f, S * 0.14f, Hand * -0.35f, White, 1);
    for (int I = 0; I < 4; ++I)
        Touch(P,
              {{X - Hand * S * 0.12f, Y - S * 0.48f},
               {X - Hand * S * (0.26f + 0.02f * float(I)), Y - S * (0.42f - 0.04f * float(I))}},
              S * 0.03f, 0.5f, Black);
    const Point Head = Feeding ? Point{X + Hand * S * 0.36f, Y - S * 0.20f}
                               : Point{X + Hand * S * 0.20f, Y - S * 0.98f};
    const Line Neck = Feeding ? Line{{X + Hand * S * 0.15f, Y - S * 0.56f},
                                     {X + Hand * S * 0.30f, Y - S * 0.52f},
                                     Head}
                              : Line{{X + Hand * S * 0.15f, Y - S * 0.58f},
                                     {X + Hand * S * 0.24f, Y - S * 0.74f},
                                     {X + Hand * S * 0.14f, Y - S * 0.88f},
                                     Head};
    Touch(P, Neck, S * 0.040f, S * 0.022f + 0.2f, White);
    Touch(P,
          {{Lerp(Neck[1].X, Head.X, 0.1f), Lerp(Neck[1].Y, Head.Y, 0.1f)},
           {Lerp(Neck[1].X, Head.X, 0.7f), Lerp(Neck[1].Y, Head.Y, 0.7f)}},
          S * 0.02f, S * 0.014f, Black);
    Touch(P, {Head, {Head.X + Hand * S * 0.15f, Head.Y + S * (Feeding ? 0.12f : 0.02f)}},
          S * 0.016f + 0.2f, 0.3f, Black);
    Dab(P.C, Head.X, Head.Y - S * 0.02f, S * 0.06f + 0.6f, S * 0.035f + 0.5f, 0,
        Lit(P, Hex(0xd83020), 0.8f, 0), 1);
}

static void FarBirds(Scene& P, float X, float Y, int Count, bool Vee)
{
    for (int I = 0; I < Count; ++I) {
        const float Arm = float((I + 1) / 2) * (I % 2 ? 1.0f : -0.6f);
        const float BX = Vee ? X + std::fabs(Arm) * 15 : X + AnyBell(P.C) * 80,
                    BY = Vee ? Y + Arm * 8 : Y + AnyBell(P.C) * 30;
        const float S = Any(P.C, 4, 7.5f), Flap = Any(P.C, 0.2f, 0.9f);
        const Rgb Colour = Dark(P, 0.6f);
        Touch(P, {{BX - S, BY - S * Flap * 0.5f}, {BX - S * 0.4f, BY - S * Flap * 0.7f}, {BX, BY}},
              0.4f, 0.9f, Colour);
        Touch(P, {{BX, BY}, {BX + S * 0.4f, BY - S * Flap * 0.7f}, {BX + S, BY - S * Flap * 0.5f}},
              0.9f, 0.4f, Colour);
    }
}

// Beasts stand in units of their length, x forward and y up from the ground.
struct BeastLook {
    Line Body; // back, neck, head and belly in one outline, from the root of the tail
    Line Legs[4], Tail;
    float Thigh, Shank; // half breadths of a leg
};

static const BeastLook Horse{{{-0.40f, 0.57f}, {-0.30f, 0.65f}, {-0.08f, 0.61f}, {0.12f, 0.62f},
                              {0.22f, 0.68f},  {0.34f, 0.86f},  {0.41f, 0.97f},  {0.45f, 1.03f},
                              {0.49f, 0.96f},  {0.58f, 0.84f},  {0.63f, 0.77f},  {0.58f, 0.73f},
                              {0.49f, 0.80f},  {0.43f, 0.79f},  {0.38f, 0.66f},  {0.35f, 0.53f},
                              {0.26f, 0.43f},  {0.04f, 0.40f},  {-0.20f, 0.44f}, {-0.34f, 0.44f}},
                             {{{-0.30f, 0.46f}, {-0.25f, 0.26f}, {-0.31f, 0.0f}},
                              {{0.30f, 0.48f}, {0.35f, 0.27f}, {0.32f, 0.03f}},
                              {{-0.36f, 0.50f}, {-0.38f, 0.25f}, {-0.39f, 0.0f}},
                              {{0.25f, 0.46f}, {0.26f, 0.24f}, {0.24f, 0.0f}}},
                             {{-0.40f, 0.57f}, {-0.49f, 0.44f}, {-0.46f, 0.20f}},
                             0.062f,
                             0.020f};
static const BeastLook Grazing{{{-0.40f, 0.57f},
                                {-0.30f, 0.65f},
                                {-0.08f, 0.60f},
                                {0.12f, 0.61f},
                                {0.24f, 0.62f},
                                {0.38f, 0.50f},
                                {0.47f, 0.34f},
                                {0.54f, 0.24f},
                                {0.57f, 0.12f},
                                {0.58f, 0.05f},
                                {0.52f, 0.03f},
                                {0.45f, 0.13f},
                                {0.40f, 0.24f},
                                {0.34f, 0.36f},
                                {0.28f, 0.42f},
                                {0.04f, 0.40f},
                                {-0.20f, 0.44f},
                                {-0.34f, 0.44f}},
                               {{{-0.30f, 0.46f}, {-0.25f, 0.26f}, {-0.31f, 0.0f}},
                                {{0.29f, 0.46f}, {0.36f, 0.25f}, {0.35f, 0.0f}},
                                {{-0.36f, 0.50f}, {-0.38f, 0.25f}, {-0.39f, 0.0f}},
                                {{0.23f, 0.46f}, {0.24f, 0.24f}, {0.21f, 0.0f}}},
                               {{-0.40f, 0.57f}, {-0.48f, 0.44f}, {-0.46f, 0.20f}},
                               0.062f,
                               0.020f};
static const BeastLook Deer{{{-0.34f, 0.62f},
                             {-0.25f, 0.68f},
                             {-0.04f, 0.65f},
                             {0.15f, 0.67f},
                             {0.23f, 0.76f},
                             {0.27f, 0.92f},
                             {0.20f, 1.02f},
                             {0.30f, 1.00f},
                             {0.39f, 0.96f},
                             {0.45f, 0.91f},
                             {0.41f, 0.88f},
                             {0.34f, 0.88f},
                             {0.33f, 0.77f},
                             {0.31f, 0.64f},
                             {0.25f, 0.53f},
                             {0.04f, 0.49f},
                             {-0.16f, 0.52f},
                             {-0.30f, 0.50f}},
                            {{{-0.24f, 0.54f}, {-0.19f, 0.30f}, {-0.24f, 0.0f}},
                             {{0.27f, 0.56f}, {0.31f, 0.28f}, {0.30f, 0.0f}},
                             {{-0.29f, 0.58f}, {-0.33f, 0.30f}, {-0.32f, 0.0f}},
                             {{0.22f, 0.55f}, {0.22f, 0.28f}, {0.21f, 0.0f}}},
                            {{-0.34f, 0.62f}, {-0.39f, 0.58f}, {-0.38f, 0.53f}},
                            0.045f,
                            0.014f};
static const BeastLook Camel{{{-0.42f, 0.60f}, {-0.34f, 0.67f}, {-0.25f, 0.69f}, {-0.17f, 0.86f},
                              {-0.06f, 0.73f}, {0.02f, 0.73f},  {0.10f, 0.88f},  {0.19f, 0.73f},
                              {0.28f, 0.66f},  {0.38f, 0.59f},  {0.46f, 0.66f},  {0.50f, 0.84f},
                              {0.52f, 0.96f},  {0.60f, 1.01f},  {0.72f, 0.94f},  {0.71f, 0.89f},
                              {0.61f, 0.89f},  {0.58f, 0.74f},  {0.54f, 0.56f},  {0.42f, 0.47f},
                              {0.28f, 0.46f},  {0.04f, 0.44f},  {-0.20f, 0.47f}, {-0.36f, 0.46f}},
                             {{{-0.28f, 0.50f}, {-0.22f, 0.26f}, {-0.27f, 0.0f}},
                              {{0.32f, 0.50f}, {0.36f, 0.26f}, {0.36f, 0.0f}},
                              {{-0.36f, 0.52f}, {-0.37f, 0.26f}, {-0.38f, 0.0f}},
                              {{0.25f, 0.50f}, {0.25f, 0.26f}, {0.23f, 0.0f}}},
                             {{-0.42f, 0.60f}, {-0.46f, 0.48f}, {-0.44f, 0.36f}},
                             0.058f,
                             0.022f};

static void Beast(Scene& P, const std::string& Kind, float X, float Y, float S, float Hand,
                  float Far)
{
    static constexpr std::uint32_t Coats[] = {0x6c4430, 0xe8e0d4, 0x3c302c, 0xa87850};
    const bool IsDeer = Kind == "deer", IsCamel = Kind == "camels";
    const BeastLook& Look = IsCamel ? Camel : IsDeer ? Deer : Any(P.C) < 0.4f ? Grazing : Horse;
    const Rgb Local = IsCamel ? Hex(0xb88c58) : IsDeer ? Hex(0xa4683c) : Hex(Coats[AnyOf(P.C, 4)]);
    const Rgb Body = Lit(P, Local, 0.8f, Far), Shade = Lit(P, Times(Local, 0.7f), 0.2f, Far);
    const auto Placed = [&](Line Way) {
        for (Point& K : Way) K = {X + Hand * K.X * S, Y - K.Y * S};
        return Curve(Way, 5);
    };
    SoftDab(P.C, X, Y, S * 0.6f, S * 0.08f, Lit(P, Hex(0x303028), 0.1f, Far), 0.6f);
    for (int I = 0; I < 4; ++I) // the two far legs first
        Stroke(P.C, Placed(Look.Legs[I]), Look.Thigh * S, Look.Shank * S + 0.2f,
               I < 2 ? Times(Shade, 0.8f) : Mix(Shade, Body, 0.4f));
    Line Outline = Look.Body;
    Outline.push_back(Outline.front());
    Draw(P.C, [&](QPainter& Q) {
        QPainterPath Path;
        const Line Way = Placed(Outline);
        for (std::size_t I = 0; I < Way.size(); ++I)
            I == 0 ? Path.moveTo(Way[I].X, Way[I].Y) : Path.lineTo(Way[I].X, Way[I].Y);
        QLinearGradient G(0, Y - S, 0, Y - S * 0.38f);
        G.setColorAt(0, ToQColor(Body)), G.setColorAt(0.5, ToQColor(Body));
        G.setColorAt(1, ToQColor(Shade));
        Q.fillPath(Path, G);
    });
    Stroke(P.C, Placed(Look.Tail), 0.035f * S, 0.4f, Shade);
    if (IsDeer)
        for (float A : {0.0f, 0.10f})
            Stroke(P.C, Placed({{0.28f, 1.0f}, {0.22f - A, 1.12f}, {0.30f - A, 1.30f}}),
                   S * 0.016f + 0.2f, 0.4f, Shade);
    if (IsCamel) // its load
        Dab(P.C, X - Hand * S * 0.03f, Y - S * 0.68f, S * 0.13f, S * 0.20f, 0,
            Lit(P, Hex(0xb03c34), 0.6f, Far), 1);
    if (!IsDeer && !IsCamel && &Look == &Horse)
        Stroke(P.C, Placed({{0.18f, 0.68f}, {0.29f, 0.84f}, {0.40f, 0.99f}}), S * 0.035f, S * 0.02f,
               Times(Shade, 0.7f));
}

static void Walker(Scene& P, float X, float Y, float S, bool Umbrella, int Robe)
{
    static constexpr std::uint32_t Robes[] = {0xb03830, 0x304c78, 0xd88830, 0x3c6450, 0x6c4474};
    const Rgb Cloth = Lit(P, Hex(Robes[Robe % 5]), 0.6f, 0.2f),
              Shade = Lit(P, Times(Hex(Robes[Robe % 5]), 0.6f), 0.2f, 0.2f);
    Touch(P, {{X, Y - S * 0.78f}, {X - S * 0.02f, Y - S * 0.4f}, {X, Y}}, S * 0.09f, S * 0.17f,
          Shade);
    Touch(P, {{X + S * 0.03f, Y - S * 0.76f}, {X + S * 0.03f, Y - S * 0.05f}}, S * 0.06f, S * 0.10f,
          Cloth);
    Dab(P.C, X, Y - S * 0.88f, S * 0.17f, S * 0.19f, 0, Lit(P, Hex(0xc89878), 0.6f, 0.2f), 1);
    if (!Umbrella) {
        Dab(P.C, X, Y - S * 0.96f, S * 0.42f, S * 0.13f, 0, Lit(P, Hex(0xc8a868), 0.7f, 0.2f), 1,
            true);
        return;
    }
    const Rgb Paper = Lit(P, Hex(Robe % 2 ? 0xd04030 : 0xe8c888), 0.75f, 0.1f);
    Touch(P, {{X + S * 0.1f, Y - S * 0.6f}, {X + S * 0.08f, Y - S * 1.2f}}, 0.5f, 0.5f,
          Dark(P, 0.2f));
    for (int I = -4; I <= 4; ++I)
        Touch(P,
              {{X + S * 0.08f, Y - S * 1.30f},
               {X + S * (0.08f + 0.07f * float(I)), Y - S * 1.22f},
               {X + S * (0.08f + 0.115f * float(I)), Y - S * 1.04f}},
              S * 0.035f, S * 0.05f, Times(Paper, 0.85f + 0.15f * float(I & 1) + 0.02f * float(I)));
}

static void Balloon(Scene& P, float X, float Y, float S, int Kind)
{
    static constexpr std::uint32_t Pairs[][2] = {
        {0xd84030, 0xf8e0b0}, {0x2870b0, 0xf8c840}, {0xe89020, 0x803060}, {0x30906c, 0xf4f0e0}};
    const float Side = SunSide(P, X);
    for (int PY = int(Y - S); PY < int(Y + S * 1.2f); ++PY)
        for (int PX = int(X - S); PX < int(X + S); ++PX) {
            const float V = (float(PY) - Y) / S,
                        Round = V < 0 ? std::sqrt(std::max(0.0f, 1 - V * V))
                                      : std::max(0.0f, 1 - V * V * 0.9f) * 0.98f;
            const float Half = std::max(Round, 0.0f) * S * 0.86f,
                        U = (float(PX) - X) / (Half + 0.01f);
            if (std::fabs(U) > 1 || V > 0.98f) continue;
            const int Stripe = int(std::floor(std::asin(Clamp(U, -1, 1)) / Pi * 8 + 20));
            Blend(P.C, PX, PY,
                  Lit(P, Hex(Pairs[Kind % 4][Stripe & 1]),
                      Clamp(0.55f + 0.4f * U * Side - 0.25f * V), 0.3f),
                  Clamp((1 - std::fabs(U)) * Half + 0.3f));
        }
    Touch(P, {{X - S * 0.10f, Y + S * 0.96f}, {X - S * 0.07f, Y + S * 1.22f}}, 0.3f, 0.3f,
          Dark(P, 0.3f));
    Touch(P, {{X + S * 0.10f, Y + S * 0.96f}, {X + S * 0.07f, Y + S * 1.22f}}, 0.3f, 0.3f,
          Dark(P, 0.3f));
    Dab(P.C, X, Y + S * 1.28f, S * 0.20f, S * 0.18f, 0, Lit(P, Hex(0x7c5430), 0.5f, 0.3f), 1);
}

constexpr const char* Lives[] = {"none",     "cranes", "geese",  "swallows",    "heron",
                                 "deer",     "camels", "horses", "walker",      "umbrellas",
                                 "balloons", "kites",  "sheep",  "butterflies", "skylanterns"};

bool KnownLife(const std::string& Name)
{
    for (const char* Life : Lives)
        if (Name == Life) return true;
    return false;
}

void PaintLife(Scene& P, float Ground)
{
    const std::string& Life = P.Plan.Life;
    const float Hand = Any(P.C) < 0.5f ? 1.0f : -1.0f, X = Any(P.C, 150, 560),
                SkyY = std::max(40.0f, P.Horizon * Any(P.C, 0.25f, 0.6f));
    if (Life == "cranes")
        for (int I = 0; I < 3 + AnyOf(P.C, 4); ++I)
            FlyingCrane(P, X + Hand * float(I) * Any(P.C, -62, -40),
                        SkyY + AnyBell(P.C) * 42 + float(I) * 6, Any(P.C, 30, 54), Hand);
    if (Life == "geese") FarBirds(P, X, SkyY, 11, true);
    if (Life == "swallows") FarBirds(P, X, SkyY, 8, false);
    if (Life == "heron")
        for (int I = 0; I < 2 + AnyOf(P.C, 2); ++I)
            StandingCrane(P, X + float(I) * Any(P.C, 40, 80) * Hand, Ground + Any(P.C, -4, 12),
                          Any(P.C, 54, 84), I % 2 ? Hand : -Hand);
    if (Life == "deer" || Life == "horses" || Life == "camels") {
        const int Count = Life == "camels" ? 5 : 2 + AnyOf(P.C, 2);
        for (int I = 0; I < Count; ++I) {
            const float S = Life == "camels" ? Any(P.C, 34, 38) : Any(P.C, 32, 44);
            Beast(P, Life, X + float(I - Count / 2) * S * (Life == "camels" ? 1.7f : 1.9f),
                  Ground + AnyBell(P.C) * (Life == "camels" ? 2 : 8), S, Hand, 0.25f);
        }
    }
    if (Life == "walker") Walker(P, X, Ground, 34, false, int(P.Seed));
    if (Life == "umbrellas")
        for (int I = 0; I < 2 + AnyOf(P.C, 2); ++I)
            Walker(P, X + float(I) * Any(P.C, 26, 60), Ground + AnyBell(P.C) * 8, Any(P.C, 34, 42),
                   true, int(P.Seed) + I);
    if (Life == "balloons")
        for (int I = 0; I < 4; ++I)
            Balloon(P, Any(P.C, 60, 660), SkyY * Any(P.C, 0.5f, 1.5f),
                    I == 0 ? 34 : Any(P.C, 8, 20), I + int(P.Seed));
    if (Life == "kites")
        for (int I = 0; I < 4; ++I) {
            const float KX = X + AnyBell(P.C) * 200, KY = SkyY * Any(P.C, 0.5f, 1.3f),
                        S = Any(P.C, 8, 15);
            static constexpr std::uint32_t Papers[] = {0xe04030, 0xf0c030, 0x3080c0, 0xf0f0e8};
            const Rgb Paper = Lit(P, Hex(Papers[I]), 0.9f, 0.2f);
            Dab(P.C, KX, KY, S * 2, S * 1.5f, 0.9f * Hand, Paper, 1, true);
            Touch(P,
                  {{KX - S, KY + S}, {KX - S * 2, KY + S * 2.4f}, {KX - S * 1.4f, KY + S * 3.6f}},
                  1.0f, 0.5f, Paper);
            Touch(P, {{KX, KY}, {KX + 40 * Hand, KY + 90}, {KX + 70 * Hand, Ground - 20}}, 0.3f,
                  0.3f, Dark(P, 1));
        }
    if (Life == "sheep")
        for (int I = 0; I < 14; ++I) {
            const float SX = X + AnyBell(P.C) * 170, SY = Ground + AnyBell(P.C) * 20,
                        S = 8 + (SY - Ground + 20) * 0.10f;
            Dab(P.C, SX, SY - S * 0.4f, S * 1.5f, S * 0.9f, 0, Lit(P, Hex(0xe8e4da), 0.35f, 0.2f),
                1);
            Dab(P.C, SX, SY - S * 0.52f, S * 1.3f, S * 0.6f, 0, Lit(P, Hex(0xfcf8f0), 0.85f, 0.2f),
                1);
            Dab(P.C, SX + Hand * S * 0.75f, SY - S * 0.5f, S * 0.42f, S * 0.36f, 0.4f,
                Dark(P, 0.2f), 1);
        }
    if (Life == "butterflies")
        for (int I = 0; I < 9; ++I) {
            const float BX = Any(P.C, 60, 660), BY = Lerp(P.Horizon, Height - 30, Any(P.C)),
                        S = Any(P.C, 5, 10), A = Any(P.C, -0.6f, 0.6f);
            const Rgb Wing = Lit(P, Mix(Hex(0xf8d048), Hex(0xf0f4ff), Any(P.C)), 0.95f, 0);
            Dab(P.C, BX - S * 0.4f, BY, S, S * 0.7f, A + 0.7f, Wing, 1);
            Dab(P.C, BX + S * 0.4f, BY, S, S * 0.7f, A - 0.7f, Times(Wing, 0.88f), 1);
        }
    if (Life == "skylanterns")
        for (int I = 0; I < 26; ++I) {
            const float T = Any(P.C), LX = Any(P.C, 20, 700),
                        LY = Any(P.C, 12, std::max(P.Horizon, 190.0f)), S = 2.5f + 8 * T * T;
            SoftDab(P.C, LX, LY, S * 3.2f, S * 3.2f, Hex(0xff9830), 0.42f);
            Dab(P.C, LX, LY, S * 1.5f, S * 1.15f, Pi / 2, Hex(0xf08830), 1);
            Dab(P.C, LX, LY + S * 0.25f, S * 0.8f, S * 0.8f, 0, Hex(0xffe8a0), 0.9f);
        }
}
