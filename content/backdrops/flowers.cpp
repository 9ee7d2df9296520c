#include "families.h"
#include "noise.h"
#include "scene.h"

#include <numbers>
#include <sstream>
#include <stdexcept>

constexpr float Pi = std::numbers::pi_v<float>;

enum class Heart { Disc, Stamens, Eye, Bud };

// How a bloom is built: rings of petals, each ring shorter than the one below it.
struct FlowerKind {
    const char* Name;
    int Petals, Rings;
    float Shrink; // length of a ring as a share of the one below
    float Wide;   // half width of a petal as a share of its length
    float Belly;  // where a petal is widest, 0 root to 1 tip
    float Blunt;  // how full the tip is: small = round, 1 = pointed
    float Notch;  // depth of the notch in the tip
    float Frill;  // waves along the edge
    float Cup;    // how far the tips rise
    Heart Centre;
    float CentreSize; // as a share of the flower's radius
};
constexpr FlowerKind FlowerTable[] = {
    {"daisy", 15, 2, 0.92F, 0.115F, 0.62F, 0.35F, 0.05F, 0.00F, 0.10F, Heart::Disc, 0.24F},
    {"sunflower", 19, 2, 0.90F, 0.105F, 0.50F, 0.80F, 0.00F, 0.00F, 0.12F, Heart::Disc, 0.36F},
    {"aster", 22, 3, 0.80F, 0.075F, 0.60F, 0.45F, 0.00F, 0.00F, 0.16F, Heart::Disc, 0.17F},
    {"dahlia", 12, 6, 0.82F, 0.170F, 0.55F, 0.70F, 0.00F, 0.00F, 0.26F, Heart::Bud, 0.08F},
    {"mum", 18, 6, 0.81F, 0.100F, 0.66F, 0.32F, 0.00F, 0.00F, 0.28F, Heart::Bud, 0.08F},
    {"carnation", 10, 5, 0.79F, 0.270F, 0.78F, 0.30F, 0.03F, 0.07F, 0.26F, Heart::Bud, 0.06F},
    {"rose", 5, 6, 0.76F, 0.560F, 0.66F, 0.30F, 0.00F, 0.02F, 0.42F, Heart::Bud, 0.07F},
    {"poppy", 4, 1, 1.00F, 0.640F, 0.62F, 0.30F, 0.00F, 0.04F, 0.20F, Heart::Stamens, 0.20F},
    {"hibiscus", 5, 1, 1.00F, 0.470F, 0.64F, 0.30F, 0.00F, 0.04F, 0.16F, Heart::Stamens, 0.18F},
    {"blossom", 5, 1, 1.00F, 0.400F, 0.62F, 0.34F, 0.12F, 0.00F, 0.14F, Heart::Stamens, 0.16F},
    {"violet", 5, 1, 1.00F, 0.390F, 0.66F, 0.30F, 0.07F, 0.00F, 0.12F, Heart::Eye, 0.20F},
    {"star", 6, 1, 1.00F, 0.240F, 0.42F, 0.90F, 0.00F, 0.00F, 0.18F, Heart::Eye, 0.18F},
    {"bell", 5, 1, 1.00F, 0.420F, 0.60F, 0.45F, 0.00F, 0.00F, 0.16F, Heart::Eye, 0.22F},
};

struct Bloom {
    const FlowerKind* Kind;
    Colour Root, Tip, Centre;
};

// "daisy:#aaaaaa:#ffffff:#ffcc00,rose:..." : kind, petal at the root, petal at the tip, heart.
static std::vector<Bloom> Blooms(const Recipe& R)
{
    std::vector<Bloom> Result;
    std::istringstream List(Word(R, "blooms", ""));
    for (std::string Entry; std::getline(List, Entry, ',');) {
        std::istringstream Parts(Entry);
        std::string Kind, Root, Tip, Centre;
        std::getline(Parts, Kind, ':');
        std::getline(Parts, Root, ':');
        std::getline(Parts, Tip, ':');
        std::getline(Parts, Centre, ':');
        const auto* Found = std::find_if(std::begin(FlowerTable), std::end(FlowerTable),
                                         [&](const FlowerKind& K) { return Kind == K.Name; });
        if (Found == std::end(FlowerTable)) throw std::runtime_error("no flower is called " + Kind);
        Result.push_back({Found, ColourOf(Root), ColourOf(Tip), ColourOf(Centre)});
    }
    if (Result.empty()) throw std::runtime_error("the key blooms is missing");
    return Result;
}

// Half the width of a petal at S (0 root, 1 tip), as a share of its greatest.
static float PetalWidth(const FlowerKind& K, float S)
{
    if (S <= 0 || S >= 1) return 0;
    if (S < K.Belly) return 0.16F + 0.84F * std::sin(S / K.Belly * Pi / 2);
    const float T = (S - K.Belly) / (1 - K.Belly);
    return std::pow(1 - T * T, 0.25F + 0.75F * K.Blunt);
}

static void StampPetal(Scene& S, Place At, float Turn, float Length, float Base, float Rise,
                       const Bloom& B, float Tone, float Shadow, unsigned Own)
{
    const FlowerKind& K = *B.Kind;
    const float Half = Length * K.Wide;
    // The petal's own coordinates begin in its middle.
    const Place Middle{At.X + std::cos(Turn) * Length / 2, At.Y + std::sin(Turn) * Length / 2};
    Stamp(S, Middle, Turn, Length / 2, Half * (1 + K.Frill), Shadow, [&, Half](float U, float V) {
        const float Side = V / Half;
        const float Wave =
            K.Frill > 0 ? K.Frill * Noise(U / Length * 7, V / Length * 7, Own) * 2 : 0;
        const float Along =
            (U / Length + 0.5F) * (1 + Wave) + K.Notch * std::exp(-Side * Side * 14);
        const float Wide = PetalWidth(K, Along) * (1 + Wave);
        float Off = (std::abs(Side) - Wide) * Half * 0.9F;
        if (Along > 1) Off = std::max(Off, (Along - 1) * Length);
        if (Along < 0) Off = std::max(Off, -Along * Length);
        if (Off > Outside) return Mark{Off, 0, {}};
        const float Across = std::clamp(Side / (Wide + 0.001F), -1.0F, 1.0F);
        const float Vein = Noise(Across * 5, Along * 1.5F, Own + 1) +
                           0.6F * Noise(Across * 11, Along * 2, Own + 2);
        const float Edge = Step(-0.12F * Half, 0, Off);
        Colour C = Mix(B.Root, B.Tip, Step(0.05F, 0.85F, Along));
        C = Scaled(C, Tone * (0.72F + 0.28F * Step(0, 0.5F, Along)) * (1 + 0.06F * Vein) +
                          0.07F * Edge);
        const float Curve = Half * (0.34F * (1 - Across * Across) + 0.10F * Across);
        const float Up = Rise * Length * (Along * Along * 0.9F - 0.15F * Step(0.8F, 1, Along));
        return Mark{Off, Base + Curve + Up + 0.02F * Half * Vein, C};
    });
}

static void StampHeart(Scene& S, Place At, float Radius, float Base, const Bloom& B, unsigned Own)
{
    const FlowerKind& K = *B.Kind;
    const float Size = Radius * K.CentreSize;
    if (K.Centre == Heart::Disc) {
        Stamp(S, At, 0, Size, Size, 0.35F, [&](float U, float V) {
            const float Off = std::hypot(U, V) - Size;
            const float In = std::clamp(1 + Off / Size, 0.0F, 1.0F);
            // Florets: small cells, darker towards the middle.
            const Cell Floret = CellAt(U + 500, V + 500, std::max(2.4F, Size * 0.14F), Own, 0.8F);
            const Colour C = Scaled(B.Centre, (0.68F + 0.42F * In) * (1.1F - 0.45F * Floret.Near));
            return Mark{Off,
                        Base + Size * 0.55F * std::sqrt(1 - 0.96F * In * In) +
                            Size * 0.10F * (1 - Floret.Near),
                        C};
        });
        return;
    }
    if (K.Centre == Heart::Stamens) {
        Stamp(S, At, 0, Size * 0.55F, Size * 0.55F, 0.3F, [&](float U, float V) {
            const float Off = std::hypot(U, V) - Size * 0.5F;
            return Mark{Off, Base + 0.5F * Size, Scaled(Mix(B.Centre, B.Root, 0.35F), 0.9F)};
        });
        const int Stamens = 17;
        for (int I = 0; I < Stamens; ++I) {
            const float Turn =
                2 * Pi * (static_cast<float>(I) + 0.6F * HashUnit(I, 1, Own)) / Stamens;
            const float Far = Size * (0.75F + 0.45F * HashUnit(I, 2, Own));
            const float Dot = std::max(1.3F, Size * 0.11F);
            Stamp(S, {At.X + Far * std::cos(Turn), At.Y + Far * std::sin(Turn)}, Turn, Dot + Far,
                  Dot, 0.15F, [&](float U, float V) {
                      const float Thread =
                          std::max(std::abs(V) - Dot * 0.22F, std::max(U, -Far - U));
                      const float Off = std::min(std::hypot(U, V) - Dot, Thread);
                      return Mark{Off,
                                  Base + Size * 0.7F +
                                      std::sqrt(std::max(0.0F, Dot * Dot - U * U - V * V)),
                                  B.Centre};
                  });
        }
        return;
    }
    const bool Eye = K.Centre == Heart::Eye;
    Stamp(S, At, 0, Size, Size, 0.3F, [&](float U, float V) {
        const float Off = std::hypot(U, V) - Size * (Eye ? 0.75F : 1.0F);
        const float In = std::clamp(1 + Off / Size, 0.0F, 1.0F);
        return Mark{Off, Base + Size * 0.5F * std::sqrt(1 - 0.96F * In * In),
                    Scaled(B.Centre, Eye ? 1.05F - 0.25F * (1 - In) : 0.8F + 0.2F * In)};
    });
}

static void StampFlower(Scene& S, Place At, float Radius, float Base, const Bloom& B, unsigned Own)
{
    const FlowerKind& K = *B.Kind;
    float Length = Radius, Turn = 2 * Pi * HashUnit(1, 1, Own), Lift = Base;
    for (int Ring = 0; Ring < K.Rings; ++Ring) {
        for (int I = 0; I < K.Petals; ++I) {
            // In every second place first, so that petals lie alternately above and below.
            const int Place = K.Petals % 2 == 0 ? (2 * I + (2 * I >= K.Petals ? 1 : 0)) % K.Petals
                                                : 2 * I % K.Petals;
            const unsigned Petal = Hash(Ring, Place, Own);
            const float Angle =
                Turn + 2 * Pi *
                           (static_cast<float>(Place) + 0.14F * (HashUnit(2, 2, Petal) - 0.5F)) /
                           static_cast<float>(K.Petals);
            const float Long = Length * (0.95F + 0.08F * HashUnit(3, 3, Petal));
            const float Tone =
                (0.92F + 0.12F * HashUnit(4, 4, Petal)) * (1 - 0.025F * static_cast<float>(Ring));
            StampPetal(S, At, Angle, Long, Lift, K.Cup * (1 + 0.25F * static_cast<float>(Ring)), B,
                       Tone, Ring == 0 ? 0.30F : 0.26F, Petal);
        }
        // A ring's petals lie over the gaps of the ring below, not quite in the middle.
        Turn += 2 * Pi / static_cast<float>(K.Petals) * 0.58F;
        Lift += Radius * 0.035F;
        Length *= K.Shrink;
    }
    StampHeart(S, At, Radius, Lift, B, Own + 1);
}

static void StampLeaf(Scene& S, Place At, float Turn, float Length, const Palette& Leaf,
                      unsigned Own)
{
    const float Half = Length * (0.20F + 0.10F * HashUnit(1, 1, Own)), Tone = HashUnit(2, 2, Own);
    const float Bend = (HashUnit(3, 3, Own) - 0.5F) * 0.5F / Length;
    Stamp(S, At, Turn, Length / 2, Half + 8, 0.34F, [&](float U, float V) {
        const float T = U / Length + 0.5F, Y = V - Bend * U * U;
        const float Wide =
            T > 0 && T < 1 ? Half * std::sin(Pi * std::pow(T, 0.8F)) * (1 - 0.25F * T) : 0;
        const float Off = std::max((std::abs(Y) - Wide) * 0.9F, std::max(-T, T - 1) * Length);
        if (Off > Outside) return Mark{Off, 0, {}};
        const float Rib = std::exp(-Y * Y / 1.8F);
        const float Branch = std::pow(
            0.5F + 0.5F * std::cos((U - std::abs(Y) * 0.9F) * 6.28F / (Length * 0.11F)), 6.0F);
        return Mark{Off,
                    0.35F * Half * (1 - std::abs(Y) / (Wide + 0.5F)) - 0.8F * Rib - 0.5F * Branch,
                    Shade(Leaf, 0.2F + 0.5F * Tone + 0.25F * Rib + 0.10F * Branch + 0.15F * T)};
    });
}

// Flowers and leaves strewn over a ground. Keys: blooms, size (diameter), apart (distance as a
// share of the size), leaf (colours), leaves (per flower), tone (colours: the whole in shades of
// these), cloth (1: woven into cloth), gloss, soft (share of the relief).
Picture DrawFlowers(const Recipe& R)
{
    const unsigned Seed = SeedOf(R);
    const Palette Ground = Colours(R, "ground");
    const std::vector<Bloom> Kinds = Blooms(R);
    const float Size = Number(R, "size", 150), Apart = Number(R, "apart", 0.62F);
    const float Leaves = Number(R, "leaves", 2), Vary = Number(R, "vary", 0.22F);
    const float Soft = Number(R, "soft", 1), Gloss = Number(R, "gloss", 0.05F);
    const float GroundScale = Number(R, "groundscale", 120);
    const Palette Leaf = Leaves > 0 ? Colours(R, "leaf") : Ground;
    const bool Cloth = Number(R, "cloth", 0) > 0;
    Scene S{PictureOf([&](float X, float Y) {
                return Shade(Ground, 0.5F + 0.45F * Fractal(X, Y, GroundScale, 6, Seed, 0.6F));
            }),
            Field(Width * Height, 0.0F)};
    Dice D{Seed};
    const std::vector<Place> Places = Scatter(D, Size * Apart, Size / 2);
    for (std::size_t I = 0; I < Places.size(); ++I) {
        const float Start = Throw(D, 0, 2 * Pi);
        for (float L = 0; L < Leaves; ++L) {
            const float Turn = Start + 2 * Pi * L / Leaves + Throw(D, -0.5F, 0.5F);
            const float Length = Size * Throw(D, 0.5F, 0.75F), Far = Size * 0.42F;
            StampLeaf(S, {Places[I].X + Far * std::cos(Turn), Places[I].Y + Far * std::sin(Turn)},
                      Turn, Length, Leaf, Hash(static_cast<int>(I), static_cast<int>(L), Seed + 1));
        }
    }
    for (std::size_t I = 0; I < Places.size(); ++I) {
        const Bloom& B = Kinds[(I + static_cast<std::size_t>(ThrowInt(D, 2))) % Kinds.size()];
        StampFlower(S, Places[I], Size / 2 * (1 - Vary + 2 * Vary * Throw(D, 0, 1)), Throw(D, 3, 9),
                    B, Hash(static_cast<int>(I), 9, Seed + 2));
    }
    for (float& H : S.Relief) H *= Soft;
    if (Has(R, "tone")) {
        const Palette Tone = Colours(R, "tone");
        for (Colour& C : S.Tint) C = Shade(Tone, Luma(C));
    }
    if (Cloth) {
        // A fine twill over all: the picture is woven, not laid on.
        for (int Y = 0; Y < Height; ++Y) {
            for (int X = 0; X < Width; ++X) {
                const float Thread = std::sin(static_cast<float>(X + Y) * 6.2832F / 5) *
                                     std::sin(static_cast<float>(X) * 6.2832F / 10);
                const float Uneven =
                    Fractal(static_cast<float>(X), static_cast<float>(Y) / 12, 3, 2, Seed + 5);
                S.Relief[Y * Width + X] += 0.75F * Thread + 0.4F * Uneven;
                Colour& C = S.Tint[Y * Width + X];
                C = Scaled(C, 0.95F + 0.08F * Thread + 0.05F * Uneven);
            }
        }
    }
    Light(S.Tint, S.Relief, Gloss, 12);
    return S.Tint;
}
