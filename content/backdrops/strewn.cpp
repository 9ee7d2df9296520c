#include "families.h"
#include "noise.h"
#include "scene.h"

#include <numbers>

constexpr float Pi = std::numbers::pi_v<float>;

std::vector<Place> Scatter(Dice& D, float Apart, float Margin)
{
    std::vector<Place> Places;
    for (int Misses = 0; Misses < 3000;) {
        const Place New{Throw(D, -Margin, Width + Margin), Throw(D, -Margin, Height + Margin)};
        const bool Free = std::none_of(Places.begin(), Places.end(), [&](const Place& P) {
            return std::hypot(P.X - New.X, P.Y - New.Y) < Apart;
        });
        if (Free) Places.push_back(New);
        Misses = Free ? 0 : Misses + 1;
    }
    return Places;
}

static Scene GroundScene(const Recipe& R, float Scale)
{
    const unsigned Seed = SeedOf(R) + 900;
    const Palette Ground = Colours(R, "ground");
    return {PictureOf([&](float X, float Y) {
                const float Fine = HashUnit(static_cast<int>(X), static_cast<int>(Y), Seed) - 0.5F;
                return Shade(Ground,
                             0.5F + 0.4F * Fractal(X, Y, Scale, 6, Seed, 0.6F) + 0.08F * Fine);
            }),
            Field(Width * Height, 0.0F)};
}

// Straws thrown down, most of them lying roughly level.
Picture DrawStraw(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Stalk = Colours(R, "stalk");
    Scene S = GroundScene(R, 60);
    Dice D{Seed};
    const int Stalks = Count(R, "stalks", 2300);
    for (int I = 0; I < Stalks; ++I) {
        const Place At{Throw(D, -80, Width + 80), Throw(D, -40, Height + 40)};
        const float Long = Throw(D, 40, 130), Half = Throw(D, 1.7F, 3.8F),
                    Bend = Throw(D, -0.0007F, 0.0007F);
        const float Turn = (Throw(D, -1, 1) + Throw(D, -1, 1)) * 0.75F, Tone = Throw(D, 0, 1);
        const unsigned Own = Hash(I, 3, Seed);
        Stamp(S, At, Turn, Long, Half + 8, 0.34F, [&](float U, float V) {
            const float Across = (V - Bend * U * U) / Half;
            const float End = std::abs(U) - Long;
            const float Off = std::max((std::abs(Across) - 1) * Half, End);
            if (Off > Outside) return Mark{Off, 0, {}};
            const float Round = std::sqrt(std::max(0.0F, 1 - Across * Across));
            const float Node = std::exp(-std::pow((U - Long * 0.3F) / 2.0F, 2.0F));
            const float Fibre = Noise(U / 40, V * 0.8F, Own);
            return Mark{Off, Half * Round * 0.9F,
                        Shade(Stalk, 0.15F + 0.62F * Tone + 0.16F * Fibre - 0.22F * Node)};
        });
    }
    Light(S.Tint, S.Relief, 0.10F, 10);
    return S.Tint;
}

// Flakes of wood pressed into a board.
Picture DrawChips(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Chip = Colours(R, "chip");
    Scene S = GroundScene(R, 40);
    Dice D{Seed};
    const int Chips = Count(R, "chips", 2600);
    for (int I = 0; I < Chips; ++I) {
        const Place At{Throw(D, -30, Width + 30), Throw(D, -30, Height + 30)};
        const float Long = Throw(D, 14, 62), Half = Throw(D, 5, 16), Turn = Throw(D, 0, Pi),
                    Tone = Throw(D, 0, 1);
        const float Slant = Throw(D, -0.5F, 0.5F), Tilt = Throw(D, -0.05F, 0.05F);
        const unsigned Own = Hash(I, 3, Seed);
        Stamp(S, At, Turn, Long + 4, Half + 4, 0.30F, [&](float U, float V) {
            const float Ragged =
                2.2F * Noise(V / 2.5F, 0.5F, Own) + 1.6F * Noise(U / 14, 7.5F, Own);
            const float Off = std::max(std::abs(V) - Half + 1.2F * Noise(U / 18, 3.5F, Own),
                                       std::abs(U + Slant * V) - Long + Ragged);
            if (Off > Outside) return Mark{Off, 0, {}};
            const float Fibre =
                Fractal(U / 16, V, 2.4F, 2, Own + 1) + 0.6F * Noise(U / 50, V / 5, Own + 2);
            return Mark{Off, 1.2F + Tilt * V + 0.35F * Fibre,
                        Shade(Chip, 0.14F + 0.6F * Tone + 0.2F * Fibre)};
        });
    }
    Light(S.Tint, S.Relief, 0.03F, 12);
    return S.Tint;
}

// Bright colours spill over into their surroundings.
static void Glow(Picture& P)
{
    for (float Colour::*Part : {&Colour::R, &Colour::G, &Colour::B}) {
        Field Bright(P.size());
        for (std::size_t I = 0; I < P.size(); ++I) Bright[I] = P[I].*Part * P[I].*Part;
        const Field Near = Blurred(Blurred(Bright, 3), 3), Far = Blurred(Blurred(Bright, 14), 14);
        for (std::size_t I = 0; I < P.size(); ++I) P[I].*Part += 0.55F * Near[I] + 0.5F * Far[I];
    }
}

// Blades of grass that glow from inside, the near ones in front.
Picture DrawGrass(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Blade = Colours(R, "blade"), Odd = Colours(R, "odd");
    Scene S = GroundScene(R, 200);
    Dice D{Seed};
    const int Blades = Count(R, "blades", 2600);
    for (int I = 0; I < Blades; ++I) {
        const float Nearness = static_cast<float>(I) / static_cast<float>(Blades);
        const Place At{Throw(D, -30, Width + 30), Nearness * (Height + 190) - 60};
        const float Long = Throw(D, 40, 90), Half = Throw(D, 1.6F, 3.6F);
        const float Lean = -Pi / 2 + Throw(D, -0.35F, 0.35F), Bend = Throw(D, -0.005F, 0.005F);
        const float Tone = Throw(D, 0, 1);
        const bool IsOdd = Throw(D, 0, 1) < 0.10F;
        Stamp(S, At, Lean, Long, 36, 0.16F, [&](float U, float V) {
            const float T = std::clamp((U + Long) / (2 * Long), 0.0F, 1.0F); // 0 root, 1 tip
            const float Axis = V - Bend * (U + Long) * (U + Long) * 0.5F;
            const float Wide = Half * (0.35F + 0.65F * Step(0, 0.3F, T)) * (1 - T * T * T);
            const float Off = std::max(std::abs(Axis) - Wide, std::abs(U) - Long);
            if (Off > Outside) return Mark{Off, 0, {}};
            const float Rib = std::exp(-Axis * Axis * 1.4F);
            Colour C = Shade(IsOdd ? Odd : Blade,
                             0.08F + 0.62F * T * (0.5F + 0.7F * Tone) + 0.22F * Rib * T);
            return Mark{Off, Half * (1 - 0.7F * std::abs(Axis) / (Wide + 0.1F)), C};
        });
    }
    Glow(S.Tint);
    return S.Tint;
}

// Jelly beans, a layer of them under a second one.
Picture DrawBeans(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Flavour = Colours(R, "flavour");
    Scene S = GroundScene(R, 90);
    Dice D{Seed};
    for (int Layer = 0; Layer < 2; ++Layer) {
        for (const Place& At : Scatter(D, Layer == 0 ? 34 : 43, 40)) {
            const float Half = Throw(D, 14, 17), Long = Throw(D, 9, 14), Turn = Throw(D, 0, 2 * Pi);
            const float Bend = Throw(D, 0.006F, 0.013F);
            const Colour Skin =
                Flavour[static_cast<std::size_t>(ThrowInt(D, static_cast<int>(Flavour.size())))];
            const unsigned Own = Hash(static_cast<int>(At.X), static_cast<int>(At.Y), Seed);
            const bool Speckled = Throw(D, 0, 1) < 0.22F;
            const float Lift = Layer == 0 ? 0.0F : 5.0F;
            Stamp(S, At, Turn, Long + Half + 2, Half + 8, 0.42F, [&](float U, float V) {
                const float Y = V - Bend * U * U + Bend * 160;
                const float Off = std::hypot(std::max(std::abs(U) - Long, 0.0F), Y) - Half;
                const float In = std::clamp(1 + Off / Half, 0.0F, 1.0F); // 0 axis, 1 rim
                Colour C = Scaled(Skin, 1.06F - 0.22F * In * In);
                if (Speckled && Noise(U / 2.6F, V / 2.6F, Own) > 0.52F)
                    C = Mix(C, Scaled(Skin, 0.55F), 0.8F);
                return Mark{Off, Lift + 0.85F * Half * std::sqrt(1 - 0.97F * In * In), C};
            });
        }
    }
    Light(S.Tint, S.Relief, 0.55F, 30);
    return S.Tint;
}

// Stars of sugar in rows.
Picture DrawCandy(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Sugar = Colours(R, "sugar");
    Scene S = GroundScene(R, 300);
    Dice D{Seed};
    const float Pitch = Number(R, "scale", 104);
    for (int Row = -1; static_cast<float>(Row) * Pitch * 0.8F < Height + Pitch; ++Row) {
        for (int Column = -1; static_cast<float>(Column) * Pitch < Width + Pitch; ++Column) {
            const Place At{(static_cast<float>(Column) + (Row % 2 == 0 ? 0.25F : 0.75F)) * Pitch +
                               Throw(D, -5, 5),
                           (static_cast<float>(Row) + 0.5F) * Pitch * 0.8F + Throw(D, -5, 5)};
            const Colour Skin =
                Sugar[static_cast<std::size_t>(((Row * 2 + Column * 3) % 5 + 5) % 5) %
                      Sugar.size()];
            const float Size = Throw(D, 34, 38), Turn = Throw(D, 0, 2 * Pi);
            const unsigned Own = Hash(Row, Column, Seed);
            Stamp(S, At, Turn, Size + 3, Size + 3, 0.42F, [&](float U, float V) {
                // Distance to a five-pointed star, folded into half a point; rounded by 5 pixels.
                float Angle = std::atan2(V, U);
                Angle = std::abs(Angle - 2 * Pi / 5 * std::round(Angle / (2 * Pi / 5)));
                const float Radius = std::hypot(U, V), Tip = Size - 5, Notch = Tip * 0.50F;
                const float PX = Radius * std::cos(Angle), PY = Radius * std::sin(Angle);
                const float NX = Notch * std::cos(Pi / 5), NY = Notch * std::sin(Pi / 5);
                const float EX = NX - Tip, EY = NY;
                const float T =
                    std::clamp(((PX - Tip) * EX + PY * EY) / (EX * EX + EY * EY), 0.0F, 1.0F);
                const float To = std::hypot(PX - Tip - T * EX, PY - T * EY);
                const bool Inside = EX * PY - EY * (PX - Tip) > 0;
                const float Off = (Inside ? -To : To) - 5;
                const float In = std::clamp(1 + Off / 14, 0.0F, 1.0F);
                const float Grain = 0.5F * Noise(U / 1.8F, V / 1.8F, Own);
                // Five creases run from the middle to the notches.
                const float Crease =
                    std::exp(-std::pow(Radius * std::sin(Pi / 5 - Angle) / 2.2F, 2.0F)) *
                    Step(Notch + 6, 4, Radius);
                return Mark{Off, 9 * std::sqrt(1 - 0.96F * In * In) - 1.0F * Crease + 0.6F * Grain,
                            Scaled(Skin, 1.05F - 0.14F * In + 0.05F * Grain)};
            });
        }
    }
    Light(S.Tint, S.Relief, 0.16F, 12);
    return S.Tint;
}

// Cars seen from above, parked in slanting rows on asphalt.
static float RoundBox(float U, float V, float HalfLong, float HalfWide, float Round)
{
    const float X = std::abs(U) - HalfLong + Round, Y = std::abs(V) - HalfWide + Round;
    return std::hypot(std::max(X, 0.0F), std::max(Y, 0.0F)) + std::min(std::max(X, Y), 0.0F) -
           Round;
}

static Mark CarAt(float U, float V, Colour Paint, bool Van)
{
    const Colour Glass{0.10F, 0.13F, 0.17F}, Tyre{0.06F, 0.06F, 0.06F};
    // The bonnet (right end) is a little narrower than the tail.
    const float Long = 46, Half = 20 - 1.6F * Step(10, Long, U);
    const float Body = RoundBox(U, V, Long, Half, 10);
    const float Wheel =
        std::min(RoundBox(std::abs(U) - 27, std::abs(V) - 18.5F, 8.5F, 3.4F, 2), Body);
    if (Wheel < Body && Body > 0) return {Wheel, 2, Tyre};
    const float Mirror = RoundBox(U - 13, std::abs(V) - 22, 2.4F, 3.2F, 1.6F);
    if (Mirror < Body && Body > 0) return {std::min(Mirror, Wheel), 6, Scaled(Paint, 0.8F)};
    const float CabinFront = 15, CabinBack = Van ? -40.0F : -32.0F;
    const float Middle = (CabinFront + CabinBack) / 2, CabinLong = (CabinFront - CabinBack) / 2;
    const float Cabin = RoundBox(U - Middle, V, CabinLong, 16.5F, 8);
    const float Roof =
        RoundBox(U - Middle + (Van ? 4.0F : 2.0F), V, CabinLong - (Van ? 10.0F : 13.0F), 12.6F, 5);
    Colour C = Paint;
    // Seams of bonnet and boot.
    if (Cabin > 0)
        C = Scaled(C, 1 - 0.25F * std::exp(-std::pow((U - 42.5F + 0.006F * V * V) / 0.9F, 2.0F)) -
                          0.2F * std::exp(-std::pow((std::abs(V) - 13.5F) / 0.8F, 2.0F)) *
                              Step(14, 18, U));
    C = Mix(C, Glass, Step(0.7F, -0.7F, Cabin));
    C = Mix(C, Mix(Paint, {1, 1, 1}, 0.10F), Step(0.7F, -0.7F, Roof));
    if (U > 41 && std::abs(std::abs(V) - 12.5F) < 4) C = Mix(C, {0.95F, 0.92F, 0.78F}, 0.8F);
    if (U < -43 && std::abs(std::abs(V) - 13) < 4.5F) C = Mix(C, {0.62F, 0.08F, 0.06F}, 0.85F);
    const float Top = 7 * std::sqrt(std::clamp(-Body / 7, 0.0F, 1.0F)) + 5 * Step(0, -9, Cabin);
    return {Wheel, Top, C};
}

Picture DrawCars(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Paint = Colours(R, "paint"), Line = Colours(R, "line");
    Scene S = GroundScene(R, 220);
    for (std::size_t I = 0; I < S.Relief.size(); ++I) {
        const float X = static_cast<float>(I % Width), Y = static_cast<float>(I / Width);
        S.Relief[I] = 0.55F * Fractal(X, Y, 3.4F, 2, Seed + 1, 0.7F);
    }
    Dice D{Seed};
    constexpr float RowHeight = 154, Bay = 76, Slant = 1.05F; // Slant: radians to the row
    for (int Row = -1; Row < 6; ++Row) {
        const float Way = Row % 2 == 0 ? 1.0F : -1.0F;
        for (int Column = -2; Column < 17; ++Column) {
            const Place At{static_cast<float>(Column) * Bay + (Row % 2 == 0 ? 20.0F : 48.0F),
                           static_cast<float>(Row) * RowHeight + 80};
            const float Turn = -Way * Slant;
            const Place Edge{At.X + Bay / 2, At.Y};
            Stamp(S, Edge, Turn, 58, 2, 0, [&](float U, float V) {
                const float Wear = Noise((U + At.X) / 7, (V + At.Y) / 7, Seed + 2);
                return Mark{std::max(std::abs(U) - 57, std::abs(V) - 1.5F) +
                                0.9F * Step(0.1F, 0.6F, Wear),
                            0.4F, Line.front()};
            });
            const bool Empty = Throw(D, 0, 1) < 0.22F, Van = Throw(D, 0, 1) < 0.25F,
                       Backwards = Throw(D, 0, 1) < 0.3F;
            const Colour Skin =
                Paint[static_cast<std::size_t>(ThrowInt(D, static_cast<int>(Paint.size())))];
            const float Park = Turn + Throw(D, -0.03F, 0.03F) + (Backwards ? Pi : 0);
            if (Empty) continue;
            Stamp(S, At, Park, 48, 26, 0.5F,
                  [&](float U, float V) { return CarAt(U, V, Skin, Van); });
        }
    }
    Light(S.Tint, S.Relief, 0.22F, 14);
    return S.Tint;
}
