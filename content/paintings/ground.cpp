// ground.cpp: what lies flat - water, sea, meadows, fields, paths - and what grows low on it.

#include "scene.h"

#include <algorithm>
#include <cmath>

static bool Inside(const Mask* Area, int X, int Y)
{
    return !Area || (*Area)[std::size_t(Y * Width + X)] > 0.02f;
}

static float Cover(const Mask* Area, int X, int Y)
{
    return Area ? (*Area)[std::size_t(Y * Width + X)] : 1.0f;
}

// Still water: what stands above Shore, upside down, broken by ripples that grow towards us. In an
// Area each column is mirrored where the water begins, though not above Shore.
void PaintWater(Scene& P, const Mask* Area, float Shore, float Ripple, float Depth)
{
    const std::vector<Rgb> Above = P.C.Px;
    const std::uint32_t Seed = P.Seed + 700;
    Mask Covered(Width * Height, 0.0f);
    const Rgb Deep = Fade(P, Times(Mix(Sky(P, 0.9f), Hex(P.L->Ambient), 0.5f), 0.75f), 0.2f);
    for (int X = 0; X < Width; ++X) {
        float Edge = -1;
        for (int Y = int(Shore); Y < Height; ++Y) {
            if (!Inside(Area, X, Y)) continue;
            if (Edge < 0) Edge = std::max(float(Y), Shore);
            const float Near = (float(Y) - Shore) / (float(Height) - Shore + 1);
            const float Fine = 3.2f + 16 * Near;
            const float Wave =
                Noise(float(X) / (Fine * 7), float(Y) / Fine, Seed) +
                0.5f * Noise(float(X) / (Fine * 2.6f), float(Y) / (Fine * 0.45f), Seed + 1) - 0.75f;
            const float SX = float(X) + Wave * Ripple * (3 + 16 * Near);
            const float SY = 2 * Edge - float(Y) - 1 + Wave * Ripple * (5 + 46 * Near);
            // what would lie above the picture is like the sky at its upper edge
            const float Row = SY < 0 ? std::min(-0.3f * SY, 0.25f * Edge) : SY;
            const Rgb Mirror = Above[std::size_t(std::clamp(int(Row), 0, Height - 1) * Width +
                                                 std::clamp(int(SX), 0, Width - 1))];
            const float Clear = Depth * (0.25f + 0.75f * Near);
            Rgb Colour = Mix(Times(Mirror, 0.93f), Deep, Clamp(Clear + 0.12f * Wave));
            if (Wave > 0.42f) Colour = Mix(Colour, Sky(P, 0.5f), 0.25f * Ripple);
            const std::size_t I = std::size_t(Y * Width + X);
            Blend(P.C, X, Y, Colour, Cover(Area, X, Y));
            Covered[I] = Cover(Area, X, Y);
            P.C.Flow[I] = 0.10f * Wave;
        }
    }
    Repaint(P.C, &Covered, {{4.0f, 6, -1, 0.03f}, {1.9f, 7, 0.08f, 0.02f}});
    // the thin light line where water meets the shore
    for (int I = 0; I < 240; ++I) {
        const float X = Any(P.C, 0, Width), Far = Any(P.C),
                    Y = Lerp(Shore, Height, Far * Far * Far);
        if (!Inside(Area, std::clamp(int(X), 0, Width - 1), std::clamp(int(Y), 0, Height - 1)))
            continue;
        const float Long = (10 + 60 * Far * Far) * Any(P.C, 0.4f, 1.2f);
        const Rgb Here = At(P.C, int(X), int(Y));
        const Rgb Other = Any(P.C) < 0.6f ? Mix(Here, Sky(P, 0.15f), 0.4f) : Times(Here, 0.8f);
        Stroke(P.C, {{X - Long / 2, Y}, {X, Y + Any(P.C, -0.6f, 0.6f)}, {X + Long / 2, Y}}, 0.4f,
               0.5f + Far * Far, Other, 0.5f);
    }
}

// Open sea in perspective: swell that shows the sky on its backs and its own depth in front.
void PaintSea(Scene& P, float Horizon, float Swell, Rgb Deep)
{
    const std::uint32_t Seed = P.Seed + 720;
    const std::vector<Rgb> Above = P.C.Px;
    Mask Covered(Width * Height, 0.0f);
    const Rgb Dark = Lit(P, Deep, 0.45f, 0.1f),
              Bright = Lit(P, Mix(Deep, Hex(0x78c8b8), 0.5f), 0.8f, 0.05f);
    for (int Y = int(Horizon); Y < Height; ++Y) {
        const float Z = 60 / (float(Y) - Horizon + 3),
                    Near = (float(Y) - Horizon) / (float(Height) - Horizon);
        for (int X = 0; X < Width; ++X) {
            const float U = (float(X) - 360) * Z / 60, V = Z * 7.5f;
            const float Bent = Fbm(U * 0.35f, V * 0.3f, 2, Seed) * 2.4f;
            const float Crest = Ridged(U * 0.42f + Bent * 0.3f, V * 0.62f + Bent, 3, Seed + 1);
            const float Small = Fbm(U * 2.3f, V * 3.2f, 3, Seed + 2);
            const float H = (0.7f * Crest + 0.3f * Small);
            // the sky as it stands there, sunset or aurora, thrown about by the waves
            const int MirrorX = int(float(X) + (Small - 0.5f) * 60 * Near),
                      MirrorY = int(Horizon * (1 - 0.9f * Near) - (H - 0.6f) * 80 * Near);
            const Rgb Shown = Mix(Sky(P, Clamp(0.06f + 0.5f * Near + 0.5f * (H - 0.5f))),
                                  Above[std::size_t(std::clamp(MirrorY, 0, int(Horizon)) * Width +
                                                    std::clamp(MirrorX, 0, Width - 1))],
                                  0.65f * Clamp(float(MirrorY) / 40));
            Rgb Colour = Mix(Dark, Bright, Smooth(0.35f, 0.95f, H));
            Colour =
                Mix(Colour, Shown, Clamp(0.80f - 0.62f * Near * Swell + 0.5f * (Small - 0.5f)));
            Colour = Mix(Colour, Fade(P, Colour, 1.2f), Smooth(0.25f, 0, Near));
            const float Foam =
                Smooth(0.80f, 0.93f, H + 0.10f * Swell - 0.06f) * Smooth(0.04f, 0.3f, Near) * Swell;
            Colour = Mix(Colour, Lit(P, Hex(0xf4fbff), 0.85f, 0.1f), Clamp(Foam) * 0.85f);
            const std::size_t I = std::size_t(Y * Width + X);
            Blend(P.C, X, Y, Colour, 1);
            Covered[I] = 1;
            P.C.Flow[I] = 0.5f * (Bent - 1.2f) * Near * 0.5f;
        }
    }
    Repaint(P.C, &Covered,
            {{4.5f, 6, -1, 0.05f}, {2.2f, 7, 0.09f, 0.03f}, {1.2f, 6, 0.16f, 0.02f}});
    for (int I = 0; I < 420; ++I) { // the backs of single waves catch the light, their hollows none
        const float T = std::sqrt(Any(P.C)), X = Any(P.C, 0, Width),
                    Y = Lerp(Horizon + 3, Height, T);
        const Rgb Here = At(P.C, int(X), int(Y));
        Dab(P.C, X, Y, (4 + 34 * T) * Any(P.C, 0.4f, 1.3f), 0.8f + 2.2f * T, 0.06f * AnyBell(P.C),
            I % 2 ? Mix(Here, Sky(P, 0.12f), P.Night ? 0.45f : 0.3f) : Times(Here, 0.72f), 0.55f,
            true);
    }
}

void PaintGlitter(Scene& P, float From, float To, float Strength)
{
    const Rgb Shine =
        P.L->OrbSize > 0 ? Mix(Hex(P.L->Orb), Hex(P.L->Horizon), 0.2f) : Hex(P.L->Horizon);
    for (int I = 0; I < 340; ++I) {
        const float T = Any(P.C), Y = Lerp(From, To, T * T);
        const float X = P.SunX + AnyBell(P.C) * (14 + 85 * T * T) * 0.8f;
        const float Long = (3 + 26 * T) * Any(P.C, 0.3f, 1.1f);
        Dab(P.C, X, Y, Long, 0.9f + 1.8f * T, Any(P.C, -0.06f, 0.06f), Shine,
            Strength * Any(P.C, 0.25f, 0.95f), true);
    }
}

// Blades of grass, or drifted snow: what tells how near the ground is.
static void Turf(Scene& P, const Mask& Area, float Horizon)
{
    for (int I = 0; I < 2600; ++I) {
        const float T = std::sqrt(Any(P.C)), X = Any(P.C, 0, Width),
                    Y = Lerp(Horizon + 6, Height, T);
        const std::size_t Place = std::size_t(std::clamp(int(Y), 0, Height - 1) * Width + int(X));
        if (Area[Place] < 0.5f || Noise(X / (16 + 60 * T), Y / (5 + 22 * T), P.Seed + 745) < 0.4f)
            continue;
        const float Value = Any(P.C, 0.72f, 1.3f), Lean = AnyBell(P.C) * 0.5f;
        const Rgb Here = P.C.Px[Place];
        if (P.Snow)
            Dab(P.C, X, Y, 5 + 36 * T * Any(P.C), 0.8f + 2 * T, Lean * 0.1f,
                Value > 1 ? Mix(Here, Lit(P, Hex(0xfaf8ff), 1, 0.1f), 0.35f)
                          : Mix(Here, Lit(P, Hex(0x8ca4cc), 0.3f, 0.2f), 0.35f),
                0.6f, true);
        else
            Dab(P.C, X, Y, (2 + 11 * T) * Any(P.C, 0.6f, 1.2f), 0.7f + 1.5f * T, Pi / 2 + Lean,
                Times(Here, Value), 0.75f, true);
    }
}

void PaintMeadow(Scene& P, const Mask* Area, float Horizon, Rgb Near, Rgb Distant, float Patches)
{
    const std::uint32_t Seed = P.Seed + 740;
    Mask Covered(Width * Height, 0.0f);
    for (int Y = std::max(0, int(Horizon)); Y < Height; ++Y) {
        const float Z = 60 / (float(Y) - Horizon + 8),
                    Close = Clamp((float(Y) - Horizon) / (float(Height) - Horizon));
        for (int X = 0; X < Width; ++X) {
            if (!Inside(Area, X, Y)) continue;
            const float U = (float(X) - 360) * Z / 60, V = Z * 5;
            const float Large = Fbm(U * 0.8f, V * 0.9f, 3, Seed),
                        Small = Fbm(U * 5, V * 4, 3, Seed + 1);
            // shadows of clouds lie long and flat over it
            const float Drift =
                Fbm(float(X) / 330 + 0.5f * Large, float(Y) / (14 + 60 * Close), 2, Seed + 2);
            Rgb Local = Mix(Distant, Near, Clamp(Close + 0.5f * (Large - 0.5f) * Patches));
            Local = Mix(Local, P.Snow ? Hex(0xa8bad4) : Hex(P.S->GrassDry),
                        Clamp(Patches * (Large - 0.42f) * 1.6f));
            Local = Times(Local, 0.88f + 0.24f * Small);
            const float Shade = Clamp(0.42f + 0.30f * Smooth(0.40f, 0.56f, Drift) +
                                      0.3f * (Small - 0.5f) + 0.08f * SunSide(P, float(X)));
            const std::size_t I = std::size_t(Y * Width + X);
            Blend(P.C, X, Y, Lit(P, Local, Shade, 0.85f * (1 - Close) * (1 - Close)),
                  Cover(Area, X, Y));
            Covered[I] = Cover(Area, X, Y);
            P.C.Flow[I] = (Drift - 0.5f) * 0.8f;
        }
    }
    Repaint(P.C, &Covered, {{5, 5, -1, 0.06f}, {2.4f, 5, 0.08f, 0.05f}});
    if (Patches > 0.65f) Turf(P, Covered, Horizon);
}

void PaintRows(Scene& P, const Mask* Area, float Horizon, float VanishX, float Spacing, Rgb Crop,
               Rgb Soil)
{
    const std::uint32_t Seed = P.Seed + 760;
    Mask Covered(Width * Height, 0.0f);
    for (int Y = std::max(0, int(Horizon)); Y < Height; ++Y) {
        const float Depth = float(Y) - Horizon + 4,
                    Close = Clamp(Depth / (float(Height) - Horizon));
        for (int X = 0; X < Width; ++X) {
            if (!Inside(Area, X, Y)) continue;
            const float U = (float(X) - VanishX) / Depth / Spacing +
                            0.35f * Noise(float(X) / 120, float(Y) / 50, Seed + 3);
            const float In = U - std::floor(U), Row = 1 - std::fabs(2 * In - 1);
            const float Ragged =
                Noise(float(X) / (2 + 7 * Close), float(Y) / (2 + 5 * Close), Seed) - 0.5f;
            const float Crown = Smooth(0.26f, 0.50f, Row + 0.5f * Ragged);
            const float Shade = Clamp(0.5f + 0.5f * (Row - 0.4f) + 0.35f * Ragged +
                                      (P.SunX > VanishX ? 0.25f : -0.25f) * (In - 0.5f) * 2);
            const Rgb Local = Mix(
                Soil,
                Times(Crop, 0.85f + 0.4f * (Noise(float(X) / 40, float(Y) / 18, Seed + 1) - 0.3f)),
                Lerp(0.75f, Crown, Smooth(0, 0.15f, Close)));
            const std::size_t I = std::size_t(Y * Width + X);
            Blend(P.C, X, Y, Lit(P, Local, Shade, 0.8f * (1 - Close) * (1 - Close)),
                  Cover(Area, X, Y));
            Covered[I] = Cover(Area, X, Y);
            P.C.Flow[I] = std::atan2(Depth, float(X) - VanishX + 0.01f);
        }
    }
    Repaint(P.C, &Covered, {{3.2f, 4, -1, 0.07f}, {1.7f, 4, 0.12f, 0.05f}});
}

// Breakers along a shore line; the sea lies above it.
void PaintSurf(Scene& P, const Line& Shore, float Breadth)
{
    const Rgb White = Lit(P, Hex(0xf6fbff), 0.9f, 0.1f), Wet = Lit(P, Hex(0x98907c), 0.35f, 0.2f);
    const Line Way = Curve(Shore, 24);
    const auto NearAt = [&](float Y) {
        return Clamp((Y - P.Horizon) / (float(Height) - P.Horizon));
    };
    for (int Row = 3; Row >= 0; --Row) {
        const int Count = int(Way.size()) * (Row == 0 ? 5 : 3);
        for (int I = 0; I < Count; ++I) {
            const float T = Any(P.C) * float(Way.size() - 2);
            const Point A = Way[std::size_t(T)], B = Way[std::size_t(T) + 1];
            const float Near = NearAt(A.Y), Share = T - std::floor(T);
            const float Gap = Noise(T / 9, float(Row) * 3.7f, P.Seed + 5);
            if (Row > 0 && Gap < 0.40f) continue;
            // each breaker wanders a little off the shore and frays behind its crest
            const float Out = float(Row) * Breadth * (0.3f + Near) *
                              (0.6f + 0.5f * Noise(T / 14, float(Row), P.Seed + 6));
            const float Fray = std::fabs(AnyBell(P.C)) * (1.5f + Breadth * 0.35f * (0.2f + Near));
            const float X = Lerp(A.X, B.X, Share), Y = Lerp(A.Y, B.Y, Share) - Out - Fray;
            const float Long = (4 + 18 * Near) * Any(P.C, 0.4f, 1.2f),
                        Thick = (0.8f + 2.4f * Near) * Any(P.C, 0.4f, 1.1f);
            const Rgb Colour = Mix(White, Hex(P.L->CloudDark), 0.35f * Any(P.C));
            if (Row == 0)
                Dab(P.C, X, Y + Fray * 1.6f + 3 * Near, Long * 1.4f, Thick,
                    std::atan2(B.Y - A.Y, B.X - A.X), Wet, 0.18f);
            Dab(P.C, X, Y, Long, Thick, std::atan2(B.Y - A.Y, B.X - A.X) + 0.15f * AnyBell(P.C),
                Colour, (Row == 0 ? 0.8f : 0.55f) * Any(P.C, 0.5f, 1), true);
        }
    }
}

void PaintFall(Scene& P, float X, float Top, float Foot, float Breadth, float Far)
{
    const Rgb White = Lit(P, Hex(0xf4faff), 0.95f, Far), Blue = Lit(P, Hex(0x9cc0d8), 0.45f, Far);
    const Rgb Gap = Lit(P, Hex(0x586870), 0.3f, Far);
    const int Count = int(Breadth * 4) + 14;
    for (int I = 0; I < Count; ++I) {
        const float U = Any(P.C, -0.5f, 0.5f),
                    Start = Top + std::fabs(U) * 4 +
                            (Any(P.C) < 0.6f ? 0 : Any(P.C) * (Foot - Top) * 0.7f);
        const float End = std::min(Foot, Start + (Foot - Top) * Any(P.C, 0.3f, 1.0f));
        Line Way;
        const float Spread = 1 + 0.25f * Any(P.C);
        for (int K = 0; K <= 6; ++K) {
            const float T = float(K) / 6, Y = Lerp(Start, End, T), S = (Y - Top) / (Foot - Top);
            Way.push_back(
                {X + U * Breadth * Lerp(1, Spread * 1.25f, S) + AnyBell(P.C) * Breadth * 0.02f, Y});
        }
        const Rgb Colour = I < Count / 5 ? Gap : Mix(Blue, White, Any(P.C));
        Stroke(P.C, Way, Any(P.C, 0.5f, 1.6f) * (0.5f + Breadth / 50), 0.6f + Breadth / 60, Colour,
               0.75f);
    }
    for (int I = 0; I < int(Breadth * 0.8f) + 8; ++I) // spray
        SoftDab(P.C, X + AnyBell(P.C) * Breadth * 0.9f, Foot - Any(P.C) * Breadth * 0.4f,
                Breadth * Any(P.C, 0.25f, 0.6f), Breadth * Any(P.C, 0.15f, 0.4f), White, 0.28f);
}

void Grasses(Scene& P, float X0, float X1, float Y, float Tall, int Count, Rgb Colour, float Far)
{
    const float Wind = Any(P.C, -0.5f, 0.5f);
    for (int I = 0; I < Count; ++I) {
        const float X = Any(P.C, X0, X1), Long = Tall * Any(P.C, 0.4f, 1.1f),
                    Lean = (Wind + 0.5f * AnyBell(P.C)) * Long * 0.6f;
        const float Foot = Y + Any(P.C, -0.15f, 0.3f) * Tall;
        const Rgb Local = Times(Colour, Any(P.C, 0.55f, 1.3f));
        Stroke(P.C, {{X, Foot}, {X + Lean * 0.3f, Foot - Long * 0.6f}, {X + Lean, Foot - Long}},
               0.5f + Tall / 45, 0.3f, Lit(P, Local, Any(P.C), Far), 0.9f);
    }
}

void Flowers(Scene& P, float X0, float X1, float Y0, float Y1, int Count, Rgb Colour)
{
    for (int I = 0; I < Count; ++I) {
        const float T = std::sqrt(float(I) / float(Count)), Y = Lerp(Y0, Y1, T),
                    X = Any(P.C, X0, X1);
        if (Noise(X / (20 + 60 * T), Y / (8 + 24 * T), P.Seed + 31) < 0.42f) continue;
        const float Size = 1.0f + 3.6f * T * Any(P.C, 0.6f, 1.2f);
        const Rgb Local = Mix(Times(Colour, Any(P.C, 0.75f, 1.15f)), Hex(0xfff4d0),
                              Any(P.C) < 0.15f ? 0.6f : 0.1f);
        Dab(P.C, X, Y, Size * 1.25f, Size * 0.9f, AnyBell(P.C),
            Lit(P, Local, Any(P.C, 0.5f, 1.1f), 0.5f * (1 - T)), 0.92f);
    }
}

void Rock(Scene& P, float X, float Y, float Size, float Far)
{
    const Rgb Local = RockColour(P);
    const float Side = SunSide(P, X);
    const float Squat = Any(P.C, 0.55f, 0.95f);
    Mask Covered(Width * Height, 0.0f);
    for (int PY = std::max(0, int(Y - Size * Squat - 2)); PY < std::min(Height, int(Y + 2)); ++PY) {
        for (int PX = std::max(0, int(X - Size)); PX < std::min(Width, int(X + Size)); ++PX) {
            const float U = (float(PX) - X) / Size, V = (Y - float(PY)) / (Size * Squat);
            const float Edge =
                0.82f + 0.35f * (Noise(float(PX) / (Size * 0.35f), float(PY) / (Size * 0.35f),
                                       P.Seed + std::uint32_t(X)) -
                                 0.5f);
            const float In =
                Edge - std::pow(std::fabs(U), 2.4f) - std::pow(std::max(V, 0.0f), 1.8f) * 0.95f;
            if (In <= 0) continue;
            const float Facet = Ridged(float(PX) / (Size * 0.5f) + V, float(PY) / (Size * 0.4f), 2,
                                       P.Seed + std::uint32_t(X) + 1);
            float Shade = Clamp(0.30f + 0.45f * V + 0.32f * U * Side + 0.5f * (Facet - 0.4f));
            Rgb Paint = Times(Local, 0.8f + 0.4f * Facet);
            if (P.Snow && V > 0.45f + 0.3f * (Facet - 0.5f))
                Paint = Hex(0xf4f8fc), Shade = 0.5f + 0.4f * Shade;
            Blend(P.C, PX, PY, Lit(P, Paint, Shade, Far), Clamp(In * Size * 0.6f));
            Covered[std::size_t(PY * Width + PX)] = 1;
            P.C.Flow[std::size_t(PY * Width + PX)] = 0.9f * Side + Facet;
        }
    }
    Repaint(P.C, &Covered, {{Clamp(Size / 9, 1.6f, 4), 4, -1, 0.06f}});
}

Mask Below(const Line& Edge)
{
    const Line Way = Curve(Edge, 16);
    QPainterPath Path(QPointF(Way[0].X, Height + 5));
    for (const Point& K : Way) Path.lineTo(K.X, K.Y);
    Path.lineTo(Way.back().X, Height + 5);
    return MaskOf(Path);
}

Mask Along(const Line& Middle, float From, float To)
{
    const Line Way = Curve(Middle, 12);
    QPainterPath Path;
    for (std::size_t I = 0; I < Way.size() * 2; ++I) { // down the left bank, up the right one
        const bool Left = I < Way.size();
        const std::size_t K = Left ? I : Way.size() * 2 - 1 - I;
        const float T = float(K) / float(Way.size() - 1), Half = Lerp(From, To, T * T);
        const float Wobble = Half * 0.3f * (Noise(T * 11, Left ? 1 : 5, 3) - 0.5f);
        const QPointF Q(Way[K].X + (Left ? -Half : Half) + Wobble, Way[K].Y);
        I == 0 ? Path.moveTo(Q) : Path.lineTo(Q);
    }
    return MaskOf(Path);
}

void PathWay(Scene& P, const Line& Middle, float From, float To, Rgb Colour)
{
    const Mask Area = Along(Middle, From, To);
    Mask Covered(Width * Height, 0.0f);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) {
            const float A = Area[std::size_t(Y * Width + X)];
            if (A <= 0) continue;
            const float Close = Clamp((float(Y) - P.Horizon) / (float(Height) - P.Horizon));
            const float N =
                Fbm(float(X) / (6 + 30 * Close), float(Y) / (3 + 9 * Close), 3, P.Seed + 91);
            Blend(
                P.C, X, Y,
                Lit(P, Times(Colour, 0.8f + 0.4f * N), Clamp(0.3f + 0.8f * N), 0.5f * (1 - Close)),
                A);
            Covered[std::size_t(Y * Width + X)] = A;
            P.C.Flow[std::size_t(Y * Width + X)] = 0.2f * (N - 0.5f);
        }
    Repaint(P.C, &Covered, {{3, 5, -1, 0.06f}});
}
