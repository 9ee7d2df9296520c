// canvas.cpp: colours, chance, noise and brushes.

#include "canvas.h"

#include <algorithm>
#include <cmath>

Rgb Saturate(Rgb Colour, float Factor)
{
    const float Grey = Brightness(Colour);
    return Mix({Grey, Grey, Grey}, Colour, Factor);
}

QColor ToQColor(Rgb Colour, float Alpha)
{
    return QColor::fromRgbF(Clamp(Colour.R), Clamp(Colour.G), Clamp(Colour.B), Clamp(Alpha));
}

static std::uint64_t Scramble(std::uint64_t Value) // splitmix64
{
    Value = (Value ^ (Value >> 30)) * 0xbf58476d1ce4e5b9u;
    Value = (Value ^ (Value >> 27)) * 0x94d049bb133111ebu;
    return Value ^ (Value >> 31);
}

float Any(Canvas& C, float Low, float High)
{
    C.Chance += 0x9e3779b97f4a7c15u;
    return Low + (High - Low) * float(Scramble(C.Chance) >> 40) / 16777216.0f;
}

int AnyOf(Canvas& C, int Count)
{
    return std::min(int(Any(C) * float(Count)), Count - 1);
}

float AnyBell(Canvas& C)
{
    return (Any(C) + Any(C) + Any(C)) * 2 / 3 - 1;
}

static float Corner(int X, int Y, std::uint32_t Seed)
{
    std::uint32_t H =
        std::uint32_t(X) * 0x8da6b343u ^ std::uint32_t(Y) * 0xd8163841u ^ Seed * 0xcb1ab31fu;
    H = (H ^ (H >> 15)) * 0x2c1b3c6du;
    H = (H ^ (H >> 12)) * 0x297a2d39u;
    return float((H ^ (H >> 15)) >> 8) / 16777216.0f;
}

float Noise(float X, float Y, std::uint32_t Seed)
{
    // std::floor is a call of the library, and this is the innermost loop of nearly every brush
    const int IX = int(X) - (X < float(int(X))), IY = int(Y) - (Y < float(int(Y)));
    float U = X - float(IX), V = Y - float(IY);
    U = U * U * (3 - 2 * U);
    V = V * V * (3 - 2 * V);
    const float Top = Lerp(Corner(IX, IY, Seed), Corner(IX + 1, IY, Seed), U);
    const float Low = Lerp(Corner(IX, IY + 1, Seed), Corner(IX + 1, IY + 1, Seed), U);
    return Lerp(Top, Low, V);
}

float Fbm(float X, float Y, int Octaves, std::uint32_t Seed)
{
    float Sum = 0, Weight = 0.5f, Total = 0;
    for (int I = 0; I < Octaves; ++I) {
        Sum += Weight * Noise(X, Y, Seed + std::uint32_t(I) * 101);
        Total += Weight;
        // turned a little from octave to octave, so that the grid does not show
        const float Turned = 1.62f * X + 1.18f * Y;
        Y = 1.62f * Y - 1.18f * X + 5.3f;
        X = Turned;
        Weight *= 0.5f;
    }
    return Sum / Total;
}

float Ridged(float X, float Y, int Octaves, std::uint32_t Seed)
{
    float Sum = 0, Weight = 0.5f, Total = 0;
    for (int I = 0; I < Octaves; ++I) {
        const float Crest = 1 - std::fabs(2 * Noise(X, Y, Seed + std::uint32_t(I) * 57) - 1);
        Sum += Weight * Crest * Crest;
        Total += Weight;
        const float Turned = 1.7f * X + 1.1f * Y;
        Y = 1.7f * Y - 1.1f * X + 3.1f;
        X = Turned;
        Weight *= 0.5f;
    }
    return Sum / Total;
}

Canvas BlankCanvas(std::uint64_t Seed)
{
    Canvas C;
    C.Px.assign(Width * Height, Rgb{});
    C.Flow.assign(Width * Height, 0.0f);
    C.Relief.assign(Width * Height, 0.5f);
    C.Chance = Scramble(Seed * 0x9e3779b97f4a7c15u + 1);
    return C;
}

Rgb& At(Canvas& C, int X, int Y)
{
    return C.Px[std::size_t(std::clamp(Y, 0, Height - 1) * Width + std::clamp(X, 0, Width - 1))];
}

void Blend(Canvas& C, int X, int Y, Rgb Colour, float Alpha)
{
    if (X < 0 || Y < 0 || X >= Width || Y >= Height || Alpha <= 0) return;
    Rgb& Px = C.Px[std::size_t(Y * Width + X)];
    Px = Mix(Px, Colour, std::min(Alpha, 1.0f));
}

void Dab(Canvas& C, float X, float Y, float Length, float Breadth, float Angle, Rgb Colour,
         float Alpha, bool Pointed)
{
    const float A = std::max(Length / 2, 0.35f), B = std::max(Breadth / 2, 0.35f);
    const float Cos = std::cos(Angle), Sin = std::sin(Angle), Reach = std::max(A, B) + 1;
    const int X0 = std::max(0, int(X - Reach)), X1 = std::min(Width - 1, int(X + Reach + 1));
    const int Y0 = std::max(0, int(Y - Reach)), Y1 = std::min(Height - 1, int(Y + Reach + 1));
    for (int PY = Y0; PY <= Y1; ++PY) {
        for (int PX = X0; PX <= X1; ++PX) {
            const float DX = float(PX) + 0.5f - X, DY = float(PY) + 0.5f - Y;
            const float U = std::fabs(DX * Cos + DY * Sin) / A;
            const float Side = std::fabs(DY * Cos - DX * Sin);
            if (U > 1 + 0.6f / A) continue;
            const float Rest = Pointed ? std::max(0.0f, 1 - U * U)
                                       : std::sqrt(std::max(0.0f, 1 - std::min(U * U, 1.0f)));
            const float Cover = Clamp(B * Rest - Side + 0.5f) * Clamp((1 - U) * A + 0.5f);
            if (Cover > 0) Blend(C, PX, PY, Colour, Alpha * Cover);
        }
    }
}

void SoftDab(Canvas& C, float X, float Y, float RadiusX, float RadiusY, Rgb Colour, float Alpha)
{
    const int X0 = std::max(0, int(X - RadiusX)), X1 = std::min(Width - 1, int(X + RadiusX + 1));
    const int Y0 = std::max(0, int(Y - RadiusY)), Y1 = std::min(Height - 1, int(Y + RadiusY + 1));
    for (int PY = Y0; PY <= Y1; ++PY) {
        for (int PX = X0; PX <= X1; ++PX) {
            const float U = (float(PX) + 0.5f - X) / RadiusX, V = (float(PY) + 0.5f - Y) / RadiusY;
            const float Rest = 1 - U * U - V * V;
            if (Rest > 0) Blend(C, PX, PY, Colour, Alpha * Rest * Rest);
        }
    }
}

Line Curve(const Line& Knots, int Steps)
{
    if (Knots.size() < 3) return Knots;
    Line Way;
    const auto Knot = [&](int I) {
        return Knots[std::size_t(std::clamp(I, 0, int(Knots.size()) - 1))];
    };
    for (int I = 0; I + 1 < int(Knots.size()); ++I) {
        const Point A = Knot(I - 1), B = Knot(I), D = Knot(I + 1), E = Knot(I + 2);
        for (int S = 0; S < Steps; ++S) {
            const float T = float(S) / float(Steps), T2 = T * T, T3 = T2 * T;
            const auto Spline = [&](float P0, float P1, float P2, float P3) {
                return 0.5f * (2 * P1 + (P2 - P0) * T + (2 * P0 - 5 * P1 + 4 * P2 - P3) * T2 +
                               (3 * P1 - P0 - 3 * P2 + P3) * T3);
            };
            Way.push_back({Spline(A.X, B.X, D.X, E.X), Spline(A.Y, B.Y, D.Y, E.Y)});
        }
    }
    Way.push_back(Knots.back());
    return Way;
}

// The stroke is first collected here, so that its own segments do not darken each other.
struct WetPixel {
    float Cover = 0, Side = 0, Along = 0;
};
static std::vector<WetPixel> Wet(Width* Height);

void Stroke(Canvas& C, const Line& Way, float From, float To, Rgb Colour, float Alpha)
{
    if (Way.size() < 2) return;
    const float Reach = std::max({From, To, 0.3f}) + 0.5f; // beyond it nothing is covered
    const bool Bristled = std::max(From, To) > 2;
    int X0 = Width, X1 = -1, Y0 = Height, Y1 = -1;
    float Run = 0;
    for (std::size_t I = 0; I + 1 < Way.size(); ++I) {
        const Point A = Way[I], B = Way[I + 1];
        const float DX = B.X - A.X, DY = B.Y - A.Y, Length2 = DX * DX + DY * DY;
        if (Length2 < 1e-6f) continue;
        const float Length = std::sqrt(Length2), Wide = Reach * Length;
        const int SX0 = std::max(0, int(std::min(A.X, B.X) - Reach)),
                  SX1 = std::min(Width - 1, int(std::max(A.X, B.X) + Reach)),
                  SY0 = std::max(0, int(std::min(A.Y, B.Y) - Reach)),
                  SY1 = std::min(Height - 1, int(std::max(A.Y, B.Y) + Reach));
        X0 = std::min(X0, SX0), X1 = std::max(X1, SX1);
        Y0 = std::min(Y0, SY0), Y1 = std::max(Y1, SY1);
        for (int Y = SY0; Y <= SY1; ++Y) {
            const float PY = float(Y) + 0.5f - A.Y;
            float Left = float(SX0) - A.X, Right = float(SX1) - A.X;
            const auto Narrow = [&](float Over, float From0, float To0) { // From0 < PX * Over < To0
                if (std::fabs(Over) < 0.01f) return;
                Left = std::max(Left, std::min(From0 / Over, To0 / Over) - 1);
                Right = std::min(Right, std::max(From0 / Over, To0 / Over) + 1);
            };
            Narrow(DY, PY * DX - Wide, PY * DX + Wide);
            Narrow(DX, -Wide - PY * DY, Length2 + Wide - PY * DY);
            for (int X = std::max(SX0, int(Left + A.X)); X <= std::min(SX1, int(Right + A.X));
                 ++X) {
                const float PX = float(X) + 0.5f - A.X;
                const float T = Clamp((PX * DX + PY * DY) / Length2);
                const float EX = PX - DX * T, EY = PY - DY * T, Far2 = EX * EX + EY * EY;
                if (Far2 >= Reach * Reach) continue;
                const float Share = (float(I) + T) / float(Way.size() - 1);
                const float Half = std::max(Lerp(From, To, Share), 0.3f);
                const float Cover = Clamp(Half - std::sqrt(Far2) + 0.5f);
                WetPixel& W = Wet[std::size_t(Y * Width + X)];
                if (Cover <= W.Cover) continue;
                W.Cover = Cover;
                if (!Bristled) continue;
                W.Side = (PY * DX - PX * DY) / Length;
                W.Along = Run + T * Length;
            }
        }
        Run += Length;
    }
    const std::uint32_t Seed = std::uint32_t(C.Chance >> 20);
    for (int Y = Y0; Y <= Y1; ++Y) {
        for (int X = X0; X <= X1; ++X) {
            const std::size_t I = std::size_t(Y * Width + X);
            WetPixel& W = Wet[I];
            if (W.Cover <= 0) continue;
            float Bristle = 0.5f;
            if (Bristled) Bristle = Noise(W.Side * 0.6f + 40, W.Along * 0.04f, Seed);
            const float A = Alpha * W.Cover * Clamp(0.55f + 0.9f * Bristle);
            C.Px[I] = Mix(C.Px[I], Times(Colour, 0.96f + 0.08f * Bristle), A);
            C.Relief[I] = Lerp(C.Relief[I], Bristle, A);
            W = {};
        }
    }
}

static float Distance(Rgb A, Rgb B)
{
    return std::fabs(A.R - B.R) + std::fabs(A.G - B.G) + std::fabs(A.B - B.B);
}

void Repaint(Canvas& C, const Mask* Area, const std::vector<BrushPass>& Passes)
{
    const std::vector<Rgb> Motif = C.Px;
    const auto MotifAt = [&](float X, float Y) {
        return Motif[std::size_t(std::clamp(int(Y), 0, Height - 1) * Width +
                                 std::clamp(int(X), 0, Width - 1))];
    };
    for (const BrushPass& Pass : Passes) {
        const float R = Pass.Radius, Step = std::max(R * 1.5f, 1.7f);
        struct Start {
            float X, Y;
        };
        std::vector<Start> Starts;
        for (float Y = 0; Y < float(Height); Y += Step) {
            for (float X = 0; X < float(Width); X += Step) {
                const Start S{X + Any(C, -0.6f, 0.6f) * Step, Y + Any(C, -0.6f, 0.6f) * Step};
                const std::size_t I = std::size_t(std::clamp(int(S.Y), 0, Height - 1) * Width +
                                                  std::clamp(int(S.X), 0, Width - 1));
                if (Area && (*Area)[I] < 0.5f) continue;
                if (Pass.Missing >= 0 && Distance(C.Px[I], Motif[I]) < Pass.Missing) continue;
                Starts.push_back(S);
            }
        }
        for (std::size_t I = Starts.size(); I > 1; --I)
            std::swap(Starts[I - 1], Starts[std::size_t(AnyOf(C, int(I)))]);
        for (const Start& S : Starts) {
            Rgb Colour = MotifAt(S.X, S.Y);
            if (R > 3) { // a broad brush takes up the mean of what it covers
                const float Q = R * 0.5f;
                Colour = Times(Plus(Plus(MotifAt(S.X - Q, S.Y), MotifAt(S.X + Q, S.Y)),
                                    Plus(MotifAt(S.X, S.Y - Q), MotifAt(S.X, S.Y + Q))),
                               0.25f);
            }
            Line Way{{S.X, S.Y}};
            float X = S.X, Y = S.Y, LastX = 0, LastY = 0;
            const int Steps = std::max(2, int(Pass.Length * Any(C, 0.6f, 1.1f)));
            for (int K = 0; K < Steps; ++K) {
                const int PX = std::clamp(int(X), 0, Width - 1),
                          PY = std::clamp(int(Y), 0, Height - 1);
                if (K > 1) {
                    const Rgb Here = MotifAt(X, Y);
                    if (Distance(Here, Colour) >
                        0.05f + Distance(Here, C.Px[std::size_t(PY * Width + PX)]))
                        break;
                }
                const float G = std::max(1.5f, R * 0.5f);
                const float GX = Brightness(MotifAt(X + G, Y)) - Brightness(MotifAt(X - G, Y));
                const float GY = Brightness(MotifAt(X, Y + G)) - Brightness(MotifAt(X, Y - G));
                float Angle = C.Flow[std::size_t(PY * Width + PX)];
                // along an edge, not across it
                if (GX * GX + GY * GY > 0.012f) Angle = std::atan2(GX, -GY);
                float DX = std::cos(Angle), DY = std::sin(Angle);
                if (DX * LastX + DY * LastY < 0) DX = -DX, DY = -DY;
                DX = 0.6f * DX + 0.4f * LastX, DY = 0.6f * DY + 0.4f * LastY;
                const float Norm = std::sqrt(DX * DX + DY * DY) + 1e-6f;
                LastX = DX / Norm, LastY = DY / Norm;
                X += LastX * R, Y += LastY * R;
                Way.push_back({X, Y});
            }
            const float Value = 1 + Pass.Unrest * AnyBell(C),
                        Warm = Pass.Unrest * AnyBell(C) * 0.5f;
            Colour = {Colour.R * Value * (1 + Warm), Colour.G * Value,
                      Colour.B * Value * (1 - Warm)};
            Stroke(C, Way, R, R * 0.45f, Colour, 0.9f);
        }
    }
}

void Draw(Canvas& C, const std::function<void(QPainter&)>& Drawing, float Alpha)
{
    static QImage Sheet(Width, Height, QImage::Format_ARGB32_Premultiplied);
    Sheet.fill(0);
    QPainter Painter(&Sheet);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.setPen(Qt::NoPen);
    Drawing(Painter);
    Painter.end();
    for (int Y = 0; Y < Height; ++Y) {
        const QRgb* Row = reinterpret_cast<const QRgb*>(Sheet.constScanLine(Y));
        for (int X = 0; X < Width; ++X) {
            const QRgb Q = Row[X];
            if (qAlpha(Q) == 0) continue;
            Rgb& Px = C.Px[std::size_t(Y * Width + X)];
            const float Rest = 1 - Alpha * float(qAlpha(Q)) / 255;
            Px = {Px.R * Rest + Alpha * float(qRed(Q)) / 255,
                  Px.G * Rest + Alpha * float(qGreen(Q)) / 255,
                  Px.B * Rest + Alpha * float(qBlue(Q)) / 255};
        }
    }
}

Mask MaskOf(const QPainterPath& Path)
{
    QImage Sheet(Width, Height, QImage::Format_Grayscale8);
    Sheet.fill(0);
    QPainter Painter(&Sheet);
    Painter.setRenderHint(QPainter::Antialiasing);
    Painter.fillPath(Path, Qt::white);
    Painter.end();
    Mask M(Width * Height);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            M[std::size_t(Y * Width + X)] = float(Sheet.constScanLine(Y)[X]) / 255;
    return M;
}

// Draws the darkest and lightest values of the picture apart, most of the way to black and white.
static void SpreadValues(Canvas& C, float Darkest, float Lightest)
{
    std::vector<int> Count(512);
    for (const Rgb& Px : C.Px) ++Count[std::size_t(Clamp(Brightness(Px)) * 511)];
    const auto ValueAt = [&](float Share) {
        int Rest = int(Share * Width * Height), I = 0;
        while (I < 511 && (Rest -= Count[std::size_t(I)]) > 0) ++I;
        return float(I) / 511;
    };
    const float Low = ValueAt(0.008f), High = std::max(ValueAt(0.992f), Low + 0.2f);
    const float NewLow = Lerp(Low, std::min(Low, Darkest), 0.8f),
                NewHigh = Lerp(High, Lightest, 0.7f);
    const float Middle = ValueAt(0.5f);
    // a picture must not get darker or lighter as a whole by it
    const float Scale = std::min((NewHigh - NewLow) / (High - Low), 1.9f);
    for (Rgb& Px : C.Px) {
        const float Value = Brightness(Px);
        float New = NewLow + (Value - Low) * Scale;
        New += 0.10f * (Value - Middle) * (1 - std::fabs(2 * Clamp(Value) - 1));
        const float Gain = Clamp(std::max(New, 0.0f) / std::max(Value, 0.01f), 0, 3);
        Px = Saturate(Times(Px, Gain), 1.08f);
    }
}

QImage Finish(Canvas& C, const Varnish& Look)
{
    SpreadValues(C, Look.Darkest, Look.Lightest);
    const bool Mirrored = Look.Mirrored;
    const float Grain = Look.Grain, Relief = Look.Relief, Corners = Look.Corners;
    QImage Image(Width, Height, QImage::Format_RGB32);
    const std::uint32_t Seed = std::uint32_t(C.Chance >> 32);
    for (int Y = 0; Y < Height; ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Image.scanLine(Y));
        for (int X = 0; X < Width; ++X) {
            const int From = Mirrored ? Width - 1 - X : X;
            const int Before = std::clamp(From + (Mirrored ? 1 : -1), 0, Width - 1);
            const std::size_t I = std::size_t(Y * Width + From);
            const std::size_t UpperLeft = std::size_t(std::max(Y - 1, 0) * Width + Before);
            const float U = float(X) / Width * 2 - 1, V = float(Y) / Height * 2 - 1;
            // the threads of the canvas, and finer unrest between them
            const float Weave = (Noise(float(X) * 0.45f, float(Y) * 0.16f, Seed) +
                                 Noise(float(X) * 0.16f, float(Y) * 0.45f, Seed + 1) - 1);
            const float Factor = (1 - Corners * Clamp((U * U + V * V) * 0.5f)) *
                                 (1 + Relief * (C.Relief[I] - C.Relief[UpperLeft])) *
                                 (1 + Grain * Weave);
            const Rgb Px = Times(C.Px[I], Factor);
            const auto Byte = [](float Value) { return int(Clamp(Value) * 255 + 0.5f); };
            Row[X] = qRgb(Byte(Px.R), Byte(Px.G), Byte(Px.B));
        }
    }
    return Image;
}
