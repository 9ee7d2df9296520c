// buildings.cpp: what people have built. Each is drawn in units of its own height, x to the right
// and y up from the ground, with a lit and a shaded side.

#include "scene.h"

#include <cmath>

struct Sketch {
    Scene& P;
    QPainter& Q;
    float X, Y, Unit, Far, Side; // Side -1 light from the left, 1 from the right
};

constexpr Rgb Plaster{0.93f, 0.89f, 0.80f}, Timber{0.46f, 0.30f, 0.20f},
    Vermilion{0.82f, 0.24f, 0.15f};
constexpr Rgb SlateTile{0.33f, 0.38f, 0.42f}, JadeTile{0.28f, 0.50f, 0.43f},
    Thatch{0.70f, 0.58f, 0.36f};
constexpr Rgb Stone{0.68f, 0.66f, 0.60f}, Gold{0.92f, 0.74f, 0.32f}, ClayTile{0.74f, 0.38f, 0.24f};

static QPointF Place(const Sketch& S, float X, float Y)
{
    return {double(S.X + X * S.Unit), double(S.Y - Y * S.Unit)};
}

static QBrush LitBrush(const Sketch& S, Rgb Local, float X0, float X1, float Shade)
{
    QLinearGradient G(Place(S, X0, 0), Place(S, X1, 0));
    const float Turn = 0.30f * S.Side;
    G.setColorAt(0, ToQColor(Lit(S.P, Local, Clamp(Shade - Turn), S.Far)));
    G.setColorAt(0.5, ToQColor(Lit(S.P, Local, Shade, S.Far)));
    G.setColorAt(1, ToQColor(Lit(S.P, Local, Clamp(Shade + Turn), S.Far)));
    return G;
}

static void Fill(const Sketch& S, const Line& Outline, Rgb Local, float Shade)
{
    QPainterPath Path;
    float X0 = 1e9f, X1 = -1e9f;
    for (std::size_t I = 0; I < Outline.size(); ++I) {
        const QPointF Q = Place(S, Outline[I].X, Outline[I].Y);
        I == 0 ? Path.moveTo(Q) : Path.lineTo(Q);
        X0 = std::min(X0, Outline[I].X), X1 = std::max(X1, Outline[I].X);
    }
    S.Q.fillPath(Path, LitBrush(S, Local, X0, X1, Shade));
}

static void Box(const Sketch& S, float X0, float Y0, float X1, float Y1, Rgb Local,
                float Shade = 0.55f)
{
    Fill(S, {{X0, Y0}, {X0, Y1}, {X1, Y1}, {X1, Y0}}, Local, Shade);
}

static void Bar(const Sketch& S, const Line& Way, float Thick, Rgb Local, float Shade = 0.5f)
{
    QPainterPath Path;
    const Line Bent = Curve(Way, 8);
    for (std::size_t I = 0; I < Bent.size(); ++I) {
        const QPointF Q = Place(S, Bent[I].X, Bent[I].Y);
        I == 0 ? Path.moveTo(Q) : Path.lineTo(Q);
    }
    S.Q.strokePath(Path,
                   QPen(ToQColor(Lit(S.P, Local, Shade, S.Far)), std::max(0.7f, Thick * S.Unit),
                        Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
}

static void Window(const Sketch& S, float X, float Y, float W, float H)
{
    const bool Lights = S.P.Night || S.P.L->Kind == 'e';
    const Rgb Glow = Fade(S.P, Hex(0xffc860), S.Far * 0.5f);
    const QColor Colour = Lights ? ToQColor(Glow) : ToQColor(Lit(S.P, Hex(0x3c3430), 0.3f, S.Far));
    S.Q.fillRect(QRectF(Place(S, X - W / 2, Y + H), QSizeF(double(W * S.Unit), double(H * S.Unit))),
                 Colour);
}

// A swung roof with raised eaves: Half the reach of the eaves, Ridge half of the ridge's length.
static void SwungRoof(const Sketch& S, float X, float Y, float Half, float Ridge, float Rise,
                      Rgb Tile)
{
    const Rgb Cover = S.P.Snow ? Mix(Tile, Hex(0xf4f8ff), 0.82f) : Tile;
    QPainterPath Path(Place(S, X - Half, Y + Rise * 0.20f));
    Path.quadTo(Place(S, X - Ridge - (Half - Ridge) * 0.42f, Y + Rise * 0.22f),
                Place(S, X - Ridge, Y + Rise));
    Path.lineTo(Place(S, X + Ridge, Y + Rise));
    Path.quadTo(Place(S, X + Ridge + (Half - Ridge) * 0.42f, Y + Rise * 0.22f),
                Place(S, X + Half, Y + Rise * 0.20f));
    Path.quadTo(Place(S, X + Half * 0.7f, Y - Rise * 0.04f), Place(S, X, Y - Rise * 0.05f));
    Path.quadTo(Place(S, X - Half * 0.7f, Y - Rise * 0.04f), Place(S, X - Half, Y + Rise * 0.20f));
    S.Q.fillPath(Path, LitBrush(S, Cover, X - Half, X + Half, 0.58f));
    const float Px = Half * S.Unit;
    if (Px > 9) { // rows of tiles, the ridge, the shaded edge
        S.Q.setClipPath(Path);
        const int Rows = int(Clamp(Px / 2.6f, 5, 26));
        for (int I = 1; I < Rows; ++I) {
            const float T = float(I) / float(Rows) * 2 - 1;
            QPainterPath Row(Place(S, X + T * Ridge, Y + Rise));
            Row.quadTo(Place(S, X + T * (Ridge + (Half - Ridge) * 0.42f), Y + Rise * 0.22f),
                       Place(S, X + T * Half, Y - Rise * 0.05f));
            S.Q.strokePath(Row,
                           QPen(ToQColor(Lit(S.P, Times(Cover, 0.7f), 0.4f, S.Far), 0.5f), 0.8));
        }
        S.Q.setClipping(false);
    }
    QPainterPath Eave(Place(S, X - Half, Y + Rise * 0.19f));
    Eave.quadTo(Place(S, X - Half * 0.7f, Y - Rise * 0.05f), Place(S, X, Y - Rise * 0.06f));
    Eave.quadTo(Place(S, X + Half * 0.7f, Y - Rise * 0.05f), Place(S, X + Half, Y + Rise * 0.19f));
    S.Q.strokePath(Eave, QPen(ToQColor(Lit(S.P, Times(Tile, 0.45f), 0.2f, S.Far)),
                              std::max(0.7f, Rise * 0.13f * S.Unit)));
    Bar(S, {{X - Ridge - 0.01f, Y + Rise}, {X + Ridge + 0.01f, Y + Rise}}, Rise * 0.14f,
        Times(Tile, 0.75f), 0.7f);
}

static void Colonnade(const Sketch& S, float X0, float X1, float Y0, float Y1, int Count, Rgb Wall,
                      Rgb Post)
{
    Box(S, X0, Y0, X1, Y1, Wall, 0.32f);
    for (int I = 0; I < Count; ++I) {
        if (I + 1 < Count)
            Window(S, Lerp(X0, X1, (float(I) + 0.5f) / float(Count - 1)), Y0 + (Y1 - Y0) * 0.15f,
                   (X1 - X0) / float(Count) * 0.5f, (Y1 - Y0) * 0.55f);
        const float X = Lerp(X0, X1, float(I) / float(Count - 1)),
                    W = (X1 - X0) / float(Count) * 0.13f;
        Box(S, X - W, Y0, X + W, Y1, Post, 0.6f);
    }
}

static void DrawPagoda(const Sketch& S)
{
    const int Tiers = S.P.Seed % 3 == 0 ? 3 : S.P.Seed % 3 == 1 ? 5 : 7;
    const Rgb Tile = S.P.Seed % 2 ? SlateTile : JadeTile,
              Wood = S.P.Seed % 5 < 3 ? Vermilion : Timber;
    Box(S, -0.24f, 0, 0.24f, 0.04f, Stone);
    const float Step = 0.76f / float(Tiers);
    for (int I = 0; I < Tiers; ++I) {
        const float Y = 0.04f + float(I) * Step, Shrink = 1 - 0.42f * float(I) / float(Tiers);
        Colonnade(S, -0.135f * Shrink, 0.135f * Shrink, Y, Y + Step * 0.62f, 4,
                  I % 2 ? Plaster : Times(Wood, 0.9f), Wood);
        SwungRoof(S, 0, Y + Step * 0.50f, 0.27f * Shrink, 0.11f * Shrink, Step * 0.48f, Tile);
    }
    Bar(S, {{0, 0.79f}, {0, 1.0f}}, 0.012f, Gold, 0.7f);
    for (int I = 0; I < 4; ++I)
        Bar(S,
            {{-0.02f + 0.003f * float(I), 0.86f + 0.028f * float(I)},
             {0.02f - 0.003f * float(I), 0.86f + 0.028f * float(I)}},
            0.009f, Gold, 0.7f);
}

static void DrawHall(const Sketch& S)
{
    const Rgb Tile = S.P.Seed % 3 == 0 ? JadeTile : S.P.Seed % 3 == 1 ? SlateTile : Gold;
    Box(S, -0.85f, 0, 0.85f, 0.10f, Stone);
    for (int I = 0; I < 4; ++I)
        Bar(S, {{-0.2f, 0.02f + 0.025f * float(I)}, {0.2f, 0.02f + 0.025f * float(I)}}, 0.008f,
            Times(Stone, 0.6f));
    Colonnade(S, -0.66f, 0.66f, 0.10f, 0.42f, 8, Times(Vermilion, 0.8f), Vermilion);
    SwungRoof(S, 0, 0.38f, 0.98f, 0.52f, 0.27f, Tile);
    Colonnade(S, -0.44f, 0.44f, 0.60f, 0.72f, 6, Plaster, Vermilion);
    SwungRoof(S, 0, 0.69f, 0.72f, 0.34f, 0.28f, Tile);
}

static void DrawTorii(const Sketch& S)
{
    Fill(S, {{-0.44f, 0}, {-0.40f, 0.88f}, {-0.33f, 0.88f}, {-0.35f, 0}}, Vermilion, 0.55f);
    Fill(S, {{0.44f, 0}, {0.40f, 0.88f}, {0.33f, 0.88f}, {0.35f, 0}}, Vermilion, 0.55f);
    Box(S, -0.47f, 0, -0.32f, 0.05f, Times(Stone, 0.6f));
    Box(S, 0.32f, 0, 0.47f, 0.05f, Times(Stone, 0.6f));
    Box(S, -0.52f, 0.64f, 0.52f, 0.70f, Vermilion, 0.5f);
    Box(S, -0.05f, 0.70f, 0.05f, 0.85f, Times(Vermilion, 0.7f), 0.4f);
    Bar(S, {{-0.60f, 0.93f}, {-0.3f, 0.875f}, {0, 0.865f}, {0.3f, 0.875f}, {0.60f, 0.93f}}, 0.07f,
        Vermilion, 0.6f);
    Bar(S, {{-0.66f, 0.995f}, {-0.3f, 0.93f}, {0, 0.915f}, {0.3f, 0.93f}, {0.66f, 0.995f}}, 0.055f,
        S.P.Snow ? Hex(0xf0f4fa) : Hex(0x30302f), 0.6f);
}

static void DrawKeep(const Sketch& S)
{
    Fill(
        S,
        {{-0.62f, 0}, {-0.50f, 0.20f}, {-0.44f, 0.32f}, {0.44f, 0.32f}, {0.50f, 0.20f}, {0.62f, 0}},
        Stone, 0.42f);
    const float Half[] = {0.40f, 0.32f, 0.23f}, Base[] = {0.32f, 0.53f, 0.72f},
                Rise[] = {0.13f, 0.12f, 0.16f};
    for (int I = 0; I < 3; ++I) {
        Box(S, -Half[I], Base[I], Half[I], Base[I] + 0.15f, Plaster, 0.62f);
        for (int K = -2; K <= 2; ++K)
            Window(S, float(K) * Half[I] * 0.36f, Base[I] + 0.05f, 0.035f, 0.05f);
        SwungRoof(S, 0, Base[I] + 0.12f, Half[I] + 0.11f, Half[I] * 0.72f, Rise[I], SlateTile);
        if (I < 2)
            SwungRoof(S, I == 0 ? 0.16f : -0.02f, Base[I] + 0.14f, 0.15f, 0.004f, 0.13f, SlateTile);
    }
    Bar(S, {{-0.15f, 1.0f}, {-0.17f, 1.04f}}, 0.02f, Gold);
    Bar(S, {{0.15f, 1.0f}, {0.17f, 1.04f}}, 0.02f, Gold);
}

static void DrawLighthouse(const Sketch& S)
{
    Fill(S, {{-0.30f, 0}, {-0.18f, 0.06f}, {0.2f, 0.06f}, {0.34f, 0}}, Times(Stone, 0.7f), 0.4f);
    Box(S, 0.08f, 0.05f, 0.30f, 0.17f, Plaster, 0.55f);
    Fill(S, {{0.05f, 0.17f}, {0.10f, 0.25f}, {0.28f, 0.25f}, {0.33f, 0.17f}}, ClayTile, 0.5f);
    Fill(S, {{-0.11f, 0.05f}, {-0.07f, 0.80f}, {0.07f, 0.80f}, {0.11f, 0.05f}}, Plaster, 0.62f);
    if (S.P.Seed % 2)
        for (int I = 0; I < 3; ++I) {
            const float Y = 0.16f + 0.22f * float(I), W = 0.107f - 0.0525f * (Y - 0.05f),
                        W2 = W - 0.0058f;
            Fill(S, {{-W, Y}, {-W2, Y + 0.11f}, {W2, Y + 0.11f}, {W, Y}}, Vermilion, 0.58f);
        }
    Box(S, -0.10f, 0.79f, 0.10f, 0.82f, Timber);
    Box(S, -0.055f, 0.82f, 0.055f, 0.92f, Hex(0x405058));
    S.Q.fillRect(QRectF(Place(S, -0.035f, 0.91f), Place(S, 0.035f, 0.83f)),
                 ToQColor(Hex(0xfff0a8)));
    Fill(S, {{-0.075f, 0.92f}, {0, 1.0f}, {0.075f, 0.92f}}, Vermilion, 0.6f);
}

static void DrawWindmill(const Sketch& S)
{
    Fill(S, {{-0.22f, 0}, {-0.13f, 0.56f}, {0.13f, 0.56f}, {0.22f, 0}},
         S.P.Seed % 2 ? Plaster : Timber, 0.6f);
    Fill(S, {{-0.16f, 0.56f}, {-0.08f, 0.68f}, {0.08f, 0.68f}, {0.16f, 0.56f}}, Thatch, 0.5f);
    Window(S, 0, 0.0f, 0.08f, 0.14f);
    Window(S, 0, 0.34f, 0.05f, 0.06f);
    const float Turn = 0.4f + 0.1f * float(S.P.Seed % 9);
    for (int I = 0; I < 4; ++I) {
        const float A = Turn + float(I) * Pi / 2, CX = std::cos(A), CY = std::sin(A);
        Bar(S, {{0, 0.60f}, {CX * 0.44f, 0.60f + CY * 0.44f}}, 0.018f, Timber, 0.4f);
        const auto Sail = [&](float Along, float Across) {
            return Point{CX * Along - CY * Across, 0.60f + CY * Along + CX * Across};
        };
        Fill(S, {Sail(0.10f, 0), Sail(0.10f, 0.09f), Sail(0.43f, 0.09f), Sail(0.43f, 0)},
             Hex(0xf0e4cc), 0.62f);
    }
}

static void DrawStupa(const Sketch& S)
{
    const Rgb White = S.P.Seed % 2 ? Hex(0xf4eee0) : Gold;
    for (int I = 0; I < 3; ++I)
        Box(S, -0.52f + 0.07f * float(I), 0.07f * float(I), 0.52f - 0.07f * float(I),
            0.07f * float(I + 1), Times(White, 0.9f), 0.5f);
    Line Dome;
    for (int I = 0; I <= 20; ++I) {
        const float A = Pi * float(I) / 20;
        Dome.push_back(
            {-std::cos(A) * 0.33f * (1 + 0.08f * std::sin(A * 2) * (A < Pi / 2 ? 1.0f : -1.0f)),
             0.21f + std::pow(std::sin(A), 0.75f) * 0.33f});
    }
    Fill(S, Dome, White, 0.62f);
    Box(S, -0.10f, 0.53f, 0.10f, 0.62f, White, 0.55f);
    Fill(S, {{-0.085f, 0.62f}, {-0.012f, 0.98f}, {0.012f, 0.98f}, {0.085f, 0.62f}}, Gold, 0.62f);
    for (int I = 0; I < 7; ++I)
        Bar(S,
            {{-0.075f + 0.01f * float(I), 0.65f + 0.045f * float(I)},
             {0.075f - 0.01f * float(I), 0.65f + 0.045f * float(I)}},
            0.008f, Times(Gold, 0.55f));
}

static void DrawDomes(const Sketch& S)
{
    const Rgb White = Hex(0xf4ecdc), Blue = S.P.Seed % 2 ? Hex(0x3c8494) : Hex(0xe8d8b8);
    const auto Dome = [&](float X, float Y, float R, float Tall) {
        Line Outline;
        for (int I = 0; I <= 24; ++I) {
            const float T = float(I) / 24 * 2 - 1, U = std::fabs(T);
            Outline.push_back(
                {X + (T < 0 ? -1.0f : 1.0f) * R * std::sin((1 - (1 - U) * (1 - U)) * Pi / 2) *
                         (U > 0.75f ? 1.0f + 0.3f * (1 - U) : 1.0f),
                 Y + Tall * std::pow(1 - U, 0.62f)});
        }
        Fill(S, Outline, Blue, 0.6f);
        Bar(S, {{X, Y + Tall}, {X, Y + Tall + R * 0.5f}}, R * 0.09f, Gold, 0.8f);
    };
    for (int I = -1; I <= 1; I += 2) {
        const float X = 0.62f * float(I);
        Fill(S, {{X - 0.035f, 0}, {X - 0.028f, 0.72f}, {X + 0.028f, 0.72f}, {X + 0.035f, 0}}, White,
             0.62f);
        Box(S, X - 0.045f, 0.50f, X + 0.045f, 0.52f, White, 0.4f);
        Dome(X, 0.72f, 0.04f, 0.08f);
    }
    Box(S, -0.46f, 0, 0.46f, 0.36f, White, 0.62f);
    for (int I = -1; I <= 1; I += 2) {
        Dome(0.30f * float(I), 0.36f, 0.10f, 0.15f);
        Window(S, 0.30f * float(I), 0.02f, 0.13f, 0.20f);
    }
    Box(S, -0.17f, 0.36f, 0.17f, 0.46f, White, 0.55f);
    Dome(0, 0.46f, 0.20f, 0.36f);
    Window(S, 0, 0.0f, 0.20f, 0.28f);
}

static void DrawRuin(const Sketch& S)
{
    const Rgb Marble = Hex(0xe8dcc4);
    Box(S, -0.72f, 0, 0.72f, 0.10f, Marble, 0.5f);
    for (int I = 0; I < 6; ++I) {
        const float X = -0.58f + 0.232f * float(I), Tall = I == 3 ? 0.46f : I == 5 ? 0.60f : 0.78f;
        Fill(S, {{X - 0.05f, 0.10f}, {X - 0.042f, Tall}, {X + 0.042f, Tall}, {X + 0.05f, 0.10f}},
             Marble, 0.58f);
        if (Tall > 0.7f) Box(S, X - 0.065f, 0.75f, X + 0.065f, 0.79f, Marble, 0.6f);
    }
    Fill(S, {{-0.68f, 0.79f}, {-0.68f, 0.90f}, {0.02f, 0.90f}, {0.06f, 0.86f}, {-0.02f, 0.79f}},
         Marble, 0.58f);
    Fill(S, {{-0.68f, 0.90f}, {-0.34f, 0.99f}, {-0.12f, 0.96f}, {-0.02f, 0.90f}}, Marble, 0.6f);
}

static void DrawMonastery(const Sketch& S)
{
    const Rgb White = Hex(0xf0e8da), Red = Hex(0x8c3c30);
    const float X[] = {-0.66f, -0.34f, 0.02f, 0.40f}, W[] = {0.20f, 0.20f, 0.24f, 0.20f},
                H[] = {0.34f, 0.58f, 0.82f, 0.48f};
    for (int I : {0, 3, 1, 2}) {
        Fill(S,
             {{X[I] - W[I] - 0.02f, 0},
              {X[I] - W[I] + 0.02f, H[I]},
              {X[I] + W[I] - 0.02f, H[I]},
              {X[I] + W[I] + 0.02f, 0}},
             I == 2 ? Red : White, 0.58f);
        Box(S, X[I] - W[I] + 0.005f, H[I] - 0.05f, X[I] + W[I] - 0.005f, H[I], Times(Red, 0.7f),
            0.5f);
        for (int R = 0; R < int(H[I] / 0.14f); ++R)
            for (int K = -1; K <= 1; ++K)
                Window(S, X[I] + float(K) * W[I] * 0.55f, 0.05f + 0.13f * float(R), 0.045f, 0.06f);
    }
    SwungRoof(S, 0.02f, 0.82f, 0.20f, 0.09f, 0.12f, Gold);
    SwungRoof(S, -0.34f, 0.58f, 0.13f, 0.05f, 0.08f, Gold);
}

static void DrawWatchtower(const Sketch& S)
{
    const Rgb Brick = Hex(0xb8a484);
    Fill(S, {{-0.30f, 0}, {-0.25f, 0.72f}, {0.25f, 0.72f}, {0.30f, 0}}, Brick, 0.55f);
    for (int I = -1; I <= 1; ++I) Window(S, 0.15f * float(I), 0.46f, 0.06f, 0.11f);
    Box(S, -0.28f, 0.70f, 0.28f, 0.75f, Brick, 0.45f);
    for (int I = -2; I <= 2; ++I)
        Box(S, 0.12f * float(I) - 0.035f, 0.75f, 0.12f * float(I) + 0.035f, 0.81f, Brick, 0.6f);
    Colonnade(S, -0.16f, 0.16f, 0.75f, 0.86f, 4, Timber, Vermilion);
    SwungRoof(S, 0, 0.85f, 0.26f, 0.10f, 0.14f, SlateTile);
}

static void DrawChapel(const Sketch& S)
{
    Box(S, -0.10f, 0, 0.52f, 0.32f, Plaster, 0.55f);
    Fill(S, {{-0.13f, 0.31f}, {-0.02f, 0.52f}, {0.46f, 0.52f}, {0.57f, 0.31f}},
         S.P.Snow ? Hex(0xeef2f8) : ClayTile, 0.55f);
    for (int I = 0; I < 3; ++I) Window(S, 0.10f + 0.16f * float(I), 0.10f, 0.05f, 0.13f);
    Box(S, -0.32f, 0, -0.08f, 0.60f, Plaster, 0.62f);
    Window(S, -0.20f, 0.42f, 0.06f, 0.10f);
    Window(S, -0.20f, 0.0f, 0.08f, 0.15f);
    Fill(S, {{-0.35f, 0.59f}, {-0.20f, 0.95f}, {-0.05f, 0.59f}},
         S.P.Snow ? Hex(0xeef2f8) : SlateTile, 0.55f);
    Bar(S, {{-0.20f, 0.94f}, {-0.20f, 1.02f}}, 0.014f, Gold);
}

static void DrawPavilion(const Sketch& S)
{
    Box(S, -0.58f, 0, 0.58f, 0.09f, Stone, 0.5f);
    const Rgb Post = S.P.Seed % 2 ? Vermilion : Timber;
    for (float X : {-0.42f, -0.16f, 0.16f, 0.42f})
        Box(S, X - 0.022f, 0.09f, X + 0.022f, 0.58f, Post, 0.55f);
    Box(S, -0.44f, 0.20f, 0.44f, 0.225f, Post, 0.5f);
    Box(S, -0.44f, 0.13f, 0.44f, 0.145f, Post, 0.5f);
    Box(S, -0.46f, 0.52f, 0.46f, 0.58f, Times(Post, 0.8f), 0.4f);
    if (S.P.Night || S.P.L->Kind == 'e') Window(S, 0, 0.34f, 0.10f, 0.14f);
    SwungRoof(S, 0, 0.54f, 0.70f, 0.05f, 0.38f, S.P.Seed % 3 ? JadeTile : SlateTile);
    Bar(S, {{0, 0.90f}, {0, 1.0f}}, 0.035f, Gold, 0.7f);
}

static void DrawTeaHouse(const Sketch& S)
{
    Box(S, -0.72f, 0.12f, 0.72f, 0.17f, Timber, 0.5f);
    for (float X : {-0.6f, -0.2f, 0.2f, 0.6f})
        Box(S, X - 0.025f, 0, X + 0.025f, 0.12f, Times(Timber, 0.7f), 0.4f);
    Box(S, -0.58f, 0.17f, 0.58f, 0.52f, Plaster, 0.58f);
    for (int I = 0; I < 4; ++I) {
        const float X = -0.42f + 0.28f * float(I);
        Window(S, X, 0.19f, 0.20f, 0.26f);
        Bar(S, {{X, 0.19f}, {X, 0.45f}}, 0.012f, Timber);
        Bar(S, {{X - 0.1f, 0.32f}, {X + 0.1f, 0.32f}}, 0.012f, Timber);
    }
    for (int I = 0; I < 5; ++I)
        Box(S, -0.59f + 0.28f * float(I), 0.17f, -0.56f + 0.28f * float(I), 0.52f, Timber, 0.5f);
    SwungRoof(S, 0, 0.50f, 0.86f, 0.36f, 0.44f, S.P.Seed % 2 ? Thatch : SlateTile);
}

static void DrawYurts(const Sketch& S)
{
    const float X[] = {-0.9f, 0.75f, 0}, Size[] = {0.7f, 0.6f, 1};
    for (int I = 0; I < 3; ++I) {
        const float R = 0.55f * Size[I], H = 0.5f * Size[I];
        Fill(S, {{X[I] - R, 0}, {X[I] - R, H}, {X[I] + R, H}, {X[I] + R, 0}}, Hex(0xe8dcc8), 0.6f);
        Box(S, X[I] - R, H * 0.55f, X[I] + R, H * 0.7f, I == 2 ? Hex(0xb04838) : Hex(0x4870a0),
            0.55f);
        Fill(S,
             {{X[I] - R * 1.06f, H},
              {X[I] - R * 0.25f, H + 0.42f * Size[I]},
              {X[I] + R * 0.25f, H + 0.42f * Size[I]},
              {X[I] + R * 1.06f, H}},
             Hex(0xf0e6d6), 0.66f);
        Window(S, X[I], 0, 0.2f * Size[I], 0.38f * Size[I]);
    }
}

struct MotifRow {
    const char* Name;
    void (*Drawing)(const Sketch& S);
    float Scale; // of the asked height, so that low and tall buildings weigh the same
};

constexpr MotifRow Motifs[] = {
    {"none", nullptr, 1},
    {"pagoda", DrawPagoda, 1.3f},
    {"hall", DrawHall, 0.72f},
    {"torii", DrawTorii, 0.8f},
    {"keep", DrawKeep, 1},
    {"lighthouse", DrawLighthouse, 1.15f},
    {"windmill", DrawWindmill, 1},
    {"stupa", DrawStupa, 0.95f},
    {"domes", DrawDomes, 0.9f},
    {"ruin", DrawRuin, 0.7f},
    {"monastery", DrawMonastery, 0.8f},
    {"watchtower", DrawWatchtower, 0.8f},
    {"chapel", DrawChapel, 0.85f},
    {"pavilion", DrawPavilion, 0.7f},
    {"teahouse", DrawTeaHouse, 0.6f},
    {"yurts", DrawYurts, 0.4f},
};

bool KnownMotif(const std::string& Name)
{
    for (const MotifRow& Row : Motifs)
        if (Name == Row.Name) return true;
    return false;
}

void WindowGlow(Scene& P, float X, float Y, float Size)
{
    if (!P.Night && P.L->Kind != 'e') return;
    const float Strong = P.Night ? 0.42f : 0.22f;
    SoftDab(P.C, X, Y, Size, Size * 0.8f, Hex(0xffb450), Strong);
}

// Small touches over a drawn thing, so that it is painted and not cut out.
static void Weather(Scene& P, float X0, float Y0, float X1, float Y1)
{
    Mask Area(Width * Height, 0.0f);
    for (int Y = std::max(0, int(Y0)); Y < std::min(Height, int(Y1)); ++Y)
        for (int X = std::max(0, int(X0)); X < std::min(Width, int(X1)); ++X) {
            const std::size_t I = std::size_t(Y * Width + X);
            Area[I] = 1;
            P.C.Flow[I] = 0.3f * (Noise(float(X) / 9, float(Y) / 9, P.Seed) - 0.5f);
        }
    const std::vector<Rgb> Exact = P.C.Px;
    Repaint(P.C, &Area, {{1.9f, 3, -1, 0.05f}, {1.0f, 3, 0.10f, 0.03f}});
    for (std::size_t I = 0; I < Exact.size(); ++I)
        if (Area[I] > 0) P.C.Px[I] = Mix(P.C.Px[I], Exact[I], 0.55f);
}

void PaintMotif(Scene& P, const std::string& Name, float X, float Y, float Tall, float Far)
{
    for (const MotifRow& Row : Motifs) {
        if (Name != Row.Name || !Row.Drawing) continue;
        const float Unit = Tall * Row.Scale;
        Draw(P.C, [&](QPainter& Q) {
            Row.Drawing({P, Q, X, Y, Unit, Far, P.SunX > X ? 1.0f : -1.0f});
        });
        if (Tall > 40) Weather(P, X - Unit, Y - Unit * 1.05f, X + Unit, Y + 1);
        WindowGlow(P, X, Y - Unit * 0.3f, Unit * 0.8f);
    }
}

// A house seen over its corner: the long side with its roof, and a gable.
void Cottage(Scene& P, float X, float Y, float Tall, float Far, int Kind)
{
    static constexpr Rgb Walls[] = {
        Plaster, {0.80f, 0.66f, 0.48f}, {0.86f, 0.80f, 0.72f}, {0.72f, 0.52f, 0.40f}};
    const float Hand = Kind % 4 < 2 ? 1.0f : -1.0f; // where the gable is
    Draw(P.C, [&](QPainter& Q) {
        const Sketch S{P, Q, X, Y, Tall, Far, P.SunX > X ? 1.0f : -1.0f};
        const float Half = 0.55f + 0.12f * float(Kind % 3);
        if (Kind % 3 == 2) {
            Box(S, -Half, 0, Half, 0.48f, Walls[Kind % 4], 0.55f);
            SwungRoof(S, 0, 0.44f, Half + 0.2f, Half * 0.6f, 0.5f, SlateTile);
        } else {
            const float Corner = Half * 0.30f, Apex = (Corner + Half) / 2;
            const float Lee = Hand * S.Side; // is the gable on the side of the light?
            const auto Turned = [&](Line Outline) {
                for (Point& K : Outline) K.X *= Hand;
                return Outline;
            };
            const Rgb Cover = P.Snow ? Hex(0xf0f4fa) : Kind % 3 ? ClayTile : Thatch;
            Fill(S, Turned({{-Half, 0}, {-Half, 0.46f}, {Corner, 0.46f}, {Corner, 0}}),
                 Walls[Kind % 4], 0.5f - 0.08f * Lee);
            Fill(S, Turned({{Corner, 0}, {Corner, 0.46f}, {Apex, 0.94f}, {Half, 0.46f}, {Half, 0}}),
                 Walls[Kind % 4], 0.5f + 0.22f * Lee);
            Fill(S,
                 Turned({{-Half - 0.10f, 0.40f},
                         {-Half + 0.12f, 1.0f},
                         {Apex + 0.02f, 1.0f},
                         {Corner - 0.05f, 0.40f}}),
                 Cover, 0.56f - 0.10f * Lee);
            Bar(S, Turned({{Apex, 0.99f}, {Half + 0.10f, 0.38f}}), 0.07f, Times(Cover, 0.8f), 0.6f);
            Bar(S, Turned({{-Half - 0.10f, 0.40f}, {Corner - 0.05f, 0.40f}}), 0.04f,
                Times(Cover, 0.5f), 0.3f);
            if (Tall > 14) Window(S, Hand * Apex, 0.22f, 0.13f, 0.20f);
        }
        if (Tall > 14)
            for (int I = -1; I <= 1; ++I)
                Window(S, -Hand * Half * 0.28f + float(I) * Half * 0.40f, I == 0 ? 0.0f : 0.14f,
                       0.15f, I == 0 ? 0.30f : 0.17f);
        else
            Window(S, 0, 0.1f, 0.3f, 0.22f);
        if (Kind % 2 && !P.Ink)
            Box(S, -Hand * Half * 0.3f, 0.85f, -Hand * Half * 0.3f + 0.12f, 1.16f, Hex(0x8c5c48),
                0.5f);
    });
    WindowGlow(P, X, Y - Tall * 0.25f, Tall * 0.9f);
}

void Village(Scene& P, float X0, float X1, float Y, float Tall, int Count, float Far)
{
    const int First = int(P.Seed % 12);
    for (int I = 0; I < Count; ++I) {
        // the golden section spreads any number of houses
        const float T = std::fmod(float(I) * 0.618f + Any(P.C, 0.1f, 0.9f) / float(Count), 1.0f);
        const float Size = Tall * Any(P.C, 0.75f, 1.25f), Row = float(I) / float(Count);
        const float X = Lerp(X0, X1, T), GroundY = Y + (Row - 0.6f) * Tall * 0.8f;
        if (Any(P.C) < 0.45f) Bush(P, X + Any(P.C, -1, 1) * Size, GroundY, Size * 0.5f, Far);
        Cottage(P, X, GroundY, Size, Far, First + I);
    }
}

void Bridge(Scene& P, float X0, float X1, float Y, float Rise, float Far, bool OfStone)
{
    const float Long = X1 - X0, Middle = (X0 + X1) / 2;
    Draw(P.C, [&](QPainter& Q) {
        const Sketch S{P, Q, Middle, Y, Long, Far, P.SunX > Middle ? 1.0f : -1.0f};
        const float R = Rise / Long;
        const Rgb Body = OfStone ? Stone : Vermilion;
        const auto Deck = [&](float T) { return R * (1 - T * T * 4) + 0.012f; };
        Line Outline;
        for (int I = 0; I <= 24; ++I) {
            const float T = float(I) / 24 - 0.5f;
            Outline.push_back({T, Deck(T)});
        }
        if (OfStone) { // round arches that mirror into full moons, the middle one the highest
            Outline.push_back({0.5f, -0.02f});
            for (const float Pier : {0.34f, 0.175f, 0.0f, -0.175f, -0.34f}) {
                const float Half = 0.072f - 0.045f * std::fabs(Pier),
                            Arch = std::max(0.02f, std::min(Deck(Pier) * 0.78f, 0.10f));
                for (int I = 0; I <= 12; ++I) {
                    const float A = Pi * float(I) / 12;
                    Outline.push_back({Pier + std::cos(A) * Half, std::sin(A) * Arch - 0.02f});
                }
            }
            Outline.push_back({-0.5f, -0.02f});
        } else {
            for (int I = 24; I >= 0; --I) {
                const float T = float(I) / 24 - 0.5f;
                Outline.push_back({T, Deck(T) - 0.032f});
            }
            for (float T : {-0.30f, -0.1f, 0.1f, 0.30f})
                Bar(S, {{T, -0.03f}, {T, Deck(T)}}, 0.014f, Times(Timber, 0.7f), 0.35f);
        }
        Fill(S, Outline, Body, 0.5f);
        Line Rail, Low;
        for (int I = 0; I <= 16; ++I) {
            const float T = float(I) / 16 - 0.5f;
            Rail.push_back({T, Deck(T) + 0.052f});
            Low.push_back({T, Deck(T) + 0.028f});
            if (I % 2 == 0)
                Bar(S, {{T, Deck(T)}, {T, Deck(T) + 0.066f}}, 0.010f,
                    OfStone ? Times(Stone, 1.1f) : Vermilion, 0.7f);
        }
        Bar(S, Rail, 0.010f, OfStone ? Times(Stone, 1.15f) : Vermilion, 0.75f);
        Bar(S, Low, 0.005f, OfStone ? Stone : Vermilion, 0.5f);
    });
    Weather(P, X0, Y - Rise * 1.7f - 10, X1, Y + 4);
}

void Lantern(Scene& P, float X, float Y, float Tall, float Far)
{
    Draw(P.C, [&](QPainter& Q) {
        const Sketch S{P, Q, X, Y, Tall, Far, P.SunX > X ? 1.0f : -1.0f};
        const Rgb Grey = Mix(Stone, Hex(0x708468), 0.3f);
        Fill(S, {{-0.24f, 0}, {-0.20f, 0.08f}, {0.20f, 0.08f}, {0.24f, 0}}, Grey, 0.5f);
        Fill(S, {{-0.09f, 0.08f}, {-0.075f, 0.48f}, {0.075f, 0.48f}, {0.09f, 0.08f}}, Grey, 0.55f);
        Fill(S, {{-0.14f, 0.46f}, {-0.21f, 0.54f}, {0.21f, 0.54f}, {0.14f, 0.46f}}, Grey, 0.5f);
        Box(S, -0.145f, 0.54f, 0.145f, 0.72f, Grey, 0.5f);
        Window(S, 0, 0.565f, 0.15f, 0.13f);
        Fill(S,
             {{-0.32f, 0.73f},
              {-0.24f, 0.77f},
              {-0.06f, 0.90f},
              {0.06f, 0.90f},
              {0.24f, 0.77f},
              {0.32f, 0.73f},
              {0, 0.70f}},
             P.Snow ? Hex(0xf0f4fa) : Grey, 0.62f);
        Fill(S, {{-0.05f, 0.90f}, {-0.06f, 0.94f}, {0, 1.0f}, {0.06f, 0.94f}, {0.05f, 0.90f}}, Grey,
             0.6f);
    });
    if (Tall > 30) Weather(P, X - Tall * 0.35f, Y - Tall, X + Tall * 0.35f, Y);
    WindowGlow(P, X, Y - Tall * 0.62f, Tall * 0.9f);
}

static void DrawHull(const Sketch& S, float Half, float Deep, float Bow, Rgb Local)
{
    QPainterPath Path(Place(S, -Half, Deep + Bow));
    Path.quadTo(Place(S, -Half * 0.5f, Deep * 0.9f), Place(S, 0, Deep * 0.9f));
    Path.quadTo(Place(S, Half * 0.6f, Deep * 0.9f), Place(S, Half, Deep + Bow * 0.8f));
    Path.quadTo(Place(S, Half * 0.8f, 0), Place(S, Half * 0.55f, -0.01f));
    Path.lineTo(Place(S, -Half * 0.6f, -0.01f));
    Path.quadTo(Place(S, -Half * 0.86f, 0.0f), Place(S, -Half, Deep + Bow));
    S.Q.fillPath(Path, LitBrush(S, Local, -Half, Half, 0.45f));
}

// Size is the length of the hull. Kinds: junk, sail, row, raft.
void Boat(Scene& P, const std::string& Kind, float X, float Y, float Size, float Far)
{
    // its reflection first: a few dark touches that lengthen downwards
    const float ReflectionDeep = Kind == "junk" || Kind == "sail" ? 0.7f : 0.28f;
    for (int I = 0; I < 26; ++I) {
        const float T = Any(P.C);
        Dab(P.C, X + AnyBell(P.C) * Size * 0.42f * (1 - 0.5f * T), Y + T * Size * ReflectionDeep,
            Size * Any(P.C, 0.15f, 0.5f) * (1 - 0.5f * T), 1.0f + Size / 60, 0,
            Lit(P,
                Kind == "junk" && T > 0.25f  ? Hex(0x9c5030)
                : Kind == "sail" && T > 0.2f ? Hex(0xd8d0c0)
                                             : Hex(0x2c2420),
                0.3f, Far),
            0.5f, true);
    }
    Draw(P.C, [&](QPainter& Q) {
        const Sketch S{P, Q, X, Y, Size, Far, P.SunX > X ? 1.0f : -1.0f};
        const auto Man = [&](float MX, float Base, float Tall) {
            Fill(S,
                 {{MX - Tall * 0.16f, Base},
                  {MX - Tall * 0.13f, Base + Tall * 0.62f},
                  {MX + Tall * 0.13f, Base + Tall * 0.62f},
                  {MX + Tall * 0.2f, Base}},
                 Hex(0x40506c), 0.5f);
            Fill(S,
                 {{MX - Tall * 0.30f, Base + Tall * 0.72f},
                  {MX, Base + Tall},
                  {MX + Tall * 0.30f, Base + Tall * 0.72f}},
                 Thatch, 0.65f);
        };
        if (Kind == "junk") {
            const Rgb Sail = P.Seed % 3 == 0   ? Hex(0xc05c34)
                             : P.Seed % 3 == 1 ? Hex(0xd8a860)
                                               : Hex(0xb8444c);
            DrawHull(S, 0.5f, 0.12f, 0.09f, Timber);
            Box(S, 0.22f, 0.10f, 0.42f, 0.22f, Timber, 0.5f);
            const float Masts[] = {-0.28f, 0.06f}, Tall[] = {0.62f, 0.95f};
            for (int I = 0; I < 2; ++I) {
                Bar(S, {{Masts[I], 0.1f}, {Masts[I] + 0.01f, Tall[I] + 0.06f}}, 0.016f,
                    Times(Timber, 0.7f));
                const float W = 0.13f + 0.12f * float(I), MX = Masts[I];
                Fill(S,
                     Curve({{MX - W * 0.75f, 0.18f},
                            {MX - W * 0.95f, 0.45f * Tall[I]},
                            {MX - W * 0.5f, Tall[I] * 0.9f},
                            {MX + W * 0.5f, Tall[I]},
                            {MX + W * 1.15f, 0.55f * Tall[I]},
                            {MX + W * 1.05f, 0.20f}},
                           6),
                     Sail, 0.58f);
                for (int K = 1; K < 6; ++K) {
                    const float T = float(K) / 6;
                    Bar(S,
                        {{MX - W * (0.95f - 0.2f * T), Lerp(0.18f, Tall[I] * 0.92f, T)},
                         {MX + W * (1.15f - 0.4f * T), Lerp(0.20f, Tall[I] * 0.98f, T)}},
                        0.009f, Times(Sail, 0.55f), 0.5f);
                }
            }
        } else if (Kind == "sail") {
            DrawHull(S, 0.42f, 0.10f, 0.06f, P.Seed % 2 ? Hex(0x2c4c68) : Timber);
            Bar(S, {{0, 0.08f}, {0, 1.12f}}, 0.014f, Timber);
            Fill(S,
                 Curve({{0.015f, 0.16f},
                        {0.02f, 0.6f},
                        {0.02f, 1.08f},
                        {0.28f, 0.55f},
                        {0.40f, 0.17f}},
                       6),
                 Hex(0xf8f0e0), 0.68f);
            Fill(S, {{-0.02f, 1.0f}, {-0.36f, 0.16f}, {-0.03f, 0.18f}},
                 P.Seed % 3 ? Hex(0xf4ecdc) : Hex(0xd05038), 0.55f);
        } else if (Kind == "raft") {
            DrawHull(S, 0.5f, 0.03f, 0.05f, Thatch);
            Man(0.08f, 0.03f, 0.36f);
            Bar(S, {{0.18f, 0.26f}, {-0.36f, 0.62f}, {-0.62f, 0.50f}}, 0.010f, Timber);
        } else {
            DrawHull(S, 0.5f, 0.09f, 0.09f, Timber);
            Man(0.18f, 0.07f, 0.30f);
            Bar(S, {{0.20f, 0.25f}, {0.52f, -0.04f}}, 0.014f, Timber);
            if (P.Seed % 2)
                Fill(S,
                     Curve({{-0.34f, 0.09f},
                            {-0.28f, 0.24f},
                            {-0.12f, 0.28f},
                            {0.04f, 0.24f},
                            {0.06f, 0.09f}},
                           5),
                     Thatch, 0.55f);
        }
    });
    if (P.Night && (Kind == "row" || Kind == "junk")) {
        SoftDab(P.C, X - Size * 0.4f, Y - Size * 0.2f, Size * 0.35f, Size * 0.3f, Hex(0xffb450),
                0.5f);
        Dab(P.C, X - Size * 0.4f, Y - Size * 0.2f, 2.6f, 3.2f, 0, Hex(0xffe8a0), 1);
    }
}
