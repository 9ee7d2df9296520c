// monument.cpp: famous kinds of buildings from the front

#include "drawing.h"
#include "kinds.h"

struct Monument {
    const Recipe& R;
    QString Kind;
    QColor Tint;
    QColor Edge;
    QColor RoofTint;
};

static void Block(QPainter& G, const Monument& Own, double X, double Y, double W, double H,
                  const QColor& Other = {}, double Width = 1.6)
{
    const QColor Tone = Other.isValid() ? Other : Own.Tint;
    Outline(G, Rounded(X, Y, W, H, .5),
            Linear(X, Y, X + W, Y, {Light(Tone, .25), Tone, Dark(Tone, .14)}), Dark(Tone, .55),
            Width);
}

static void Poly(QPainter& G, const QColor& Tone, const Points& Pts, double Width = 1.6)
{
    Outline(G, Polygon(Pts), Linear(0, 0, 100, 100, {Light(Tone, .2), Dark(Tone, .1)}),
            Dark(Tone, .55), Width);
}

static void Arch(QPainter& G, double X, double Y, double W, double H,
                 const QColor& Tone = "#4a3420")
{
    QPainterPath Path;
    Path.moveTo(X, Y + H);
    Path.lineTo(X, Y + W / 2);
    Path.arcTo(QRectF(X, Y, W, W), 180, -180);
    Path.lineTo(X + W, Y + H);
    Path.closeSubpath();
    Outline(G, Path, Tone, Dark(Tone, .4), 1);
}

static void Dome(QPainter& G, double X, double Y, double W, double H, const QColor& Tone,
                 bool Fin = true)
{
    Outline(G,
            ClosedCurve({{X, Y},
                         {X - W * .06, Y - H * .45},
                         {X + W * .25, Y - H * .85},
                         {X + W * .5, Y - H * 1.05},
                         {X + W * .75, Y - H * .85},
                         {X + W * 1.06, Y - H * .45},
                         {X + W, Y}},
                        .7),
            Linear(X, 0, X + W, 0, {Light(Tone, .35), Tone, Dark(Tone, .2)}), Dark(Tone, .55), 1.5);
    if (Fin) StrokeLine(G, X + W / 2, Y - H * 1.05, X + W / 2, Y - H * 1.05 - 7, "#c89a1c", 2);
}

static void Onion(QPainter& G, double X, double Y, double W, double H, const QColor& Tone,
                  const QColor& Stripe = {})
{
    const QPainterPath Path = ClosedCurve({{X + W * .12, Y},
                                           {X - W * .1, Y - H * .3},
                                           {X + W * .2, Y - H * .62},
                                           {X + W * .5, Y - H * 1.1},
                                           {X + W * .8, Y - H * .62},
                                           {X + W * 1.1, Y - H * .3},
                                           {X + W * .88, Y}},
                                          .7);
    Outline(G, Path, Linear(X, 0, X + W, 0, {Light(Tone, .3), Tone, Dark(Tone, .2)}),
            Dark(Tone, .55), 1.4);
    if (Stripe.isValid()) {
        G.save();
        G.setClipPath(Path);
        for (int I = 0; I < 16; ++I)
            StrokeLine(G, X - W + I * 5, Y, X - W + I * 5 + H * .6, Y - H, Stripe, 2.6);
        G.restore();
        Stroke(G, Path, Dark(Tone, .55), 1.4);
    }
    StrokeLine(G, X + W / 2, Y - H * 1.1, X + W / 2, Y - H * 1.1 - 6, "#d8a81c", 1.8);
}

static void Battlement(QPainter& G, const Monument& Own, double X, double Y, double W, int Count,
                       double H = 6, const QColor& Tone = {})
{
    for (int I = 0; I < Count; ++I) {
        Block(G, Own, X + W * (2 * I) / (2 * Count - 1), Y - H, W / (2 * Count - 1), H + 1, Tone,
              1.2);
    }
}

static void Roof(QPainter& G, double X, double Y, double W, double H, const QColor& Tone,
                 double Over = 4)
{
    Poly(G, Tone, {{X - Over, Y}, {X + W / 2, Y - H}, {X + W + Over, Y}});
}

static void Cone(QPainter& G, double X, double Y, double W, double H, const QColor& Tone)
{
    Outline(G, Polygon({{X - 2, Y}, {X + W / 2, Y - H}, {X + W + 2, Y}}),
            Linear(X, 0, X + W, 0, {Light(Tone, .3), Tone, Dark(Tone, .2)}), Dark(Tone, .55), 1.5);
}

static void Ground(QPainter& G, const QColor& Tone = "#9ac06a")
{
    Fill(G, Ellipse(50, 95, 50, 6), Tone);
}

static void DrawPyramid(QPainter& G, const Monument& Own)
{
    Ground(G, "#e8cf8a");
    Poly(G, Own.Tint, {{2, 94}, {46, 14}, {62, 94}});
    Poly(G, Dark(Own.Tint, .22), {{46, 14}, {98, 94}, {62, 94}});
    Poly(G, Own.Tint, {{60, 94}, {80, 62}, {88, 94}});
    Poly(G, Dark(Own.Tint, .22), {{80, 62}, {104, 94}, {88, 94}});
    for (const double T : {.25, .4, .55, .7, .85})
        StrokeLine(G, 46 - 44 * T, 14 + 80 * T, 46 + 16 * T, 14 + 80 * T, Alpha(Own.Edge, .35), 1);
}

static void DrawSphinx(QPainter& G, const Monument& Own)
{
    Ground(G, "#e8cf8a");
    Poly(G, Own.Tint, {{34, 92}, {38, 58}, {60, 54}, {92, 60}, {98, 92}});
    Outline(G, ClosedCurve({{30, 50}, {28, 18}, {44, 8}, {58, 20}, {60, 54}, {44, 60}}), Own.Tint,
            Own.Edge, 1.7);
    Poly(G, "#2a6ab0",
         {{26, 48}, {28, 22}, {44, 6}, {60, 22}, {64, 50}, {54, 46}, {52, 26}, {38, 26}, {36, 46}});
    Outline(G, Ellipse(44, 32, 8, 10), Light(Own.Tint, .15), Own.Edge, 1.4);
    for (const double O : {-3.4, 3.4}) Fill(G, Circle(44 + O, 30, 1.4), "#222");
    Block(G, Own, 4, 82, 44, 11);
    for (const double Y : {30, 36, 42}) StrokeLine(G, 30, Y, 36, Y, "#e8b83a", 2);
}

static void DrawTemple(QPainter& G, const Monument& Own)
{
    Block(G, Own, 4, 88, 92, 7);
    Block(G, Own, 10, 81, 80, 7);
    for (const double X : {14.0, 29.0, 45.5, 62.0, 77.0}) {
        Block(G, Own, X, 40, 9, 42);
        StrokeLine(G, X + 3, 42, X + 3, 80, Own.Edge, 1);
        StrokeLine(G, X + 6, 42, X + 6, 80, Own.Edge, 1);
    }
    Block(G, Own, 10, 32, 80, 8);
    Poly(G, Own.Tint, {{6, 32}, {50, 8}, {94, 32}});
}

static void DrawColosseum(QPainter& G, const Monument& Own)
{
    QPainterPath Path = ClosedCurve(
        {{4, 92}, {4, 30}, {14, 22}, {50, 18}, {70, 22}, {72, 40}, {96, 50}, {96, 92}}, .25);
    Outline(G, Path, Linear(0, 0, 100, 0, {Light(Own.Tint, .2), Own.Tint, Dark(Own.Tint, .2)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    for (int J = 0; const double Y : {30, 50, 70}) {
        for (int X = 8; X < 96; X += 12) {
            if (!(!(J == 0 && X > 66))) continue;
            Arch(G, X, Y, 7.4, 11);
        }
        ++J;
    }
    G.restore();
    for (const auto& [Y, X2] : Table<double, double>{{46, 74}, {66, 96}, {86, 96}})
        StrokeLine(G, 4, Y, X2, Y, Own.Edge, 1.4);
}

static void DrawStonehenge(QPainter& G, const Monument& Own)
{
    Ground(G);
    for (const auto& [X, Y, W, H] : Table<double, double, double, double>{
             {8, 42, 11, 50}, {30, 42, 11, 50}, {56, 36, 12, 56}, {82, 36, 12, 56}})
        Block(G, Own, X, Y, W, H, "#9aa0a6");
    Block(G, Own, 4, 32, 42, 11, "#b0b6bc");
    Block(G, Own, 52, 25, 46, 12, "#b0b6bc");
    Block(G, Own, 44, 68, 9, 26, "#8a9096");
}

static void DrawEiffel(QPainter& G, const Monument& Own)
{
    for (const double Side : {-1, 1}) {
        Outline(G,
                ClosedCurve({{50 + Side * 6, 14},
                             {50 + Side * 9, 46},
                             {50 + Side * 20, 70},
                             {50 + Side * 38, 96},
                             {50 + Side * 26, 96},
                             {50 + Side * 12, 76},
                             {50 + Side * 3, 50}},
                            .4),
                Own.Tint, Own.Edge, 1.5);
    }
    Block(G, Own, 33, 64, 34, 5);
    Block(G, Own, 39, 44, 22, 5);
    Poly(G, Own.Tint, {{47, 44}, {49, -4}, {51, -4}, {53, 44}});
    for (const double Y : {18, 28}) {
        StrokeLine(G, 44, Y, 56, Y + 8, Own.Edge, 1.2);
        StrokeLine(G, 56, Y, 44, Y + 8, Own.Edge, 1.2);
    }
    Stroke(G, Arc(30, 74, 40, 40, 0, 180), Own.Edge, 2);
}

static void DrawBigben(QPainter& G, const Monument& Own)
{
    Block(G, Own, 34, 34, 32, 62, "#d8b878");
    Block(G, Own, 30, 20, 40, 26, "#e8cc90");
    Outline(G, Circle(50, 33, 11), "#fffef4", "#5a4420", 1.8);
    StrokeLine(G, 50, 33, 50, 25, "#222", 2);
    StrokeLine(G, 50, 33, 56, 36, "#222", 2);
    Cone(G, 32, 20, 36, 26, "#3a5a4a");
    for (const double X : {40, 46, 54, 60}) StrokeLine(G, X, 50, X, 94, "#8a6a3a", 1.4);
    StrokeLine(G, 50, -6, 50, -12, "#d8a81c", 2);
}

static void DrawPisa(QPainter& G, const Monument& Own)
{
    G.save();
    G.translate(50, 96);
    G.rotate(9);
    G.translate(-50, -96);
    for (int I = 0; I < 7; ++I) {
        int Y = 84 - I * 12;
        Block(G, Own, 30, Y, 40, 12, "#f4ecd8");
        for (int J = 0; J < 5; ++J) Arch(G, 32.5 + J * 7.4, Y + 3, 5, 8, "#a8906a");
    }
    Block(G, Own, 35, 1, 30, 11, "#f4ecd8");
    Arch(G, 47, 3, 6, 8, "#8a7048");
    G.restore();
    Ground(G);
}

static void DrawTaj(QPainter& G, const Monument& Own)
{
    Block(G, Own, 0, 86, 100, 9, "#f0ead8");
    for (const double X : {3, 91}) {
        Block(G, Own, X, 26, 6, 61, "#fbf8ee");
        Dome(G, X, 26, 6, 6, "#f4f0e2");
    }
    Block(G, Own, 18, 52, 64, 35, "#fdfbf4");
    Block(G, Own, 36, 44, 28, 43, "#fffef8");
    Dome(G, 35, 44, 30, 34, "#fbf8ee");
    for (const double X : {20, 67}) Dome(G, X, 52, 13, 13, "#fbf8ee");
    Arch(G, 42, 54, 16, 33, "#8aa0b8");
    for (const double X : {23, 69}) Arch(G, X, 60, 8, 12, "#a8b8c8");
}

static void DrawBasil(QPainter& G, const Monument& Own)
{
    Block(G, Own, 14, 62, 72, 32, "#c8482a");
    for (const auto& [X, Y, W, H, Tone, Pp] : Table<double, double, double, double, QColor, QColor>{
             {8, 56, 16, 22, "#2a8ad8", "#ffffff"},
             {76, 56, 16, 22, "#2ab06a", "#ffe24a"},
             {26, 44, 15, 22, "#e8b82a", "#c8281c"},
             {59, 44, 15, 22, "#8a4ac8", "#ffd84a"}}) {
        Block(G, Own, X, Y, W, 94 - Y, "#d86a3a");
        Onion(G, X, Y, W, H, Tone, Pp);
    }
    Block(G, Own, 42, 36, 16, 58, "#e8d8b8");
    Cone(G, 41, 38, 18, 24, "#c8482a");
    Onion(G, 44, 16, 12, 15, "#f0c81c");
    for (const double X : {22.0, 45.5, 68.0}) Arch(G, X, 74, 9, 20, "#5a2a14");
}

static void DrawPagoda(QPainter& G, const Monument& Own)
{
    for (int I = 0; I < 5; ++I) {
        int Y = 80 - I * 17;
        const int W = 62 - I * 9;
        const double X = 50 - W / 2.0;
        Block(G, Own, X + 8, Y - 2, W - 16, 14, "#c8381c");
        Outline(G,
                ClosedCurve({{X - 8, Y - 2.0},
                             {X + 4, Y - 6.0},
                             {50, Y - 13.0},
                             {X + W - 4, Y - 6.0},
                             {X + W + 8, Y - 2.0},
                             {X + W - 4, Y - 1.0},
                             {50, Y - 4.0},
                             {X + 4, Y - 1.0}},
                            .4),
                Linear(0, Y - 13, 0, Y, {"#4a6a7a", "#2a4452"}), "#12222a", 1.4);
    }
    Block(G, Own, 14, 90, 72, 5, "#b8b0a0");
    StrokeLine(G, 50, 0, 50, -14, "#d8a81c", 2.6);
    Arch(G, 45, 80, 10, 11, "#3a1408");
}

static void DrawZiggurat(QPainter& G, const Monument& Own)
{
    for (int I = 0; I < 4; ++I) {
        Block(G, Own, 4 + I * 11, 78 - I * 18, 92 - I * 22, 18,
              I % 2 == 0 ? QColor("#c8925a") : QColor("#d8a870"));
    }
    Poly(G, "#a8743a", {{42, 96}, {46, 26}, {54, 26}, {58, 96}});
    Arch(G, 45, 14, 10, 12, "#4a2a10");
}

static void DrawMaya(QPainter& G, const Monument& Own)
{
    for (int I = 0; I < 5; ++I) Block(G, Own, 4 + I * 7, 82 - I * 13, 92 - I * 14, 13, "#b8b09a");
    Poly(G, "#d8d0b8", {{38, 96}, {44, 30}, {56, 30}, {62, 96}});
    for (int T = 0; T < 6; ++T)
        StrokeLine(G, 38 + T * 1.1, 96 - T * 11, 62 - T * 1.1, 96 - T * 11, "#6a6450", 1.2);
    Block(G, Own, 38, 14, 24, 17, "#a8a088");
    Arch(G, 46, 20, 8, 11, "#2a2618");
    Block(G, Own, 36, 9, 28, 6, "#c8c0a8");
}

static void DrawObelisk(QPainter& G, const Monument& Own)
{
    Ground(G, "#e8cf8a");
    Poly(G, Own.Tint, {{40, 84}, {44, 10}, {50, -4}, {56, 10}, {60, 84}});
    Block(G, Own, 32, 84, 36, 10);
    for (int Y = 20; Y < 80; Y += 9) StrokeLine(G, 47, Y, 53, Y + (Y % 2 ? 3 : -3), Own.Edge, 1.6);
    for (const double Y : {25, 43, 61})
        Outline(G, Circle(50, Y, 2), 0 ? QColor(Qt::transparent) : Dark(Own.Tint, .3), Own.Edge, 1);
}

static void DrawAqueduct(QPainter& G, const Monument& Own)
{
    Block(G, Own, 0, 12, 100, 9, "#d8b888");
    for (int I = 0; I < 6; ++I) Arch(G, 2 + I * 16.4, 24, 12, 18, "#7ab0d8");
    QPainterPath Path;
    Block(G, Own, 0, 44, 100, 7, "#d8b888");
    for (const double X : {-2.0, 14.2, 30.6, 47.0, 63.4, 79.8, 96.0})
        Block(G, Own, X, 21, 4.6, 24, "#c8a472");
    for (const double X : {-4, 21, 46, 71, 96}) Block(G, Own, X, 51, 9, 43, "#c8a472");
    for (int I = 0; I < 4; ++I) Arch(G, 5 + I * 25, 54, 16, 40, "#8ac0e0");
}

static void DrawTriumph(QPainter& G, const Monument& Own)
{
    Block(G, Own, 6, 20, 88, 74, "#e0d4b8");
    Block(G, Own, 2, 12, 96, 10, "#ece2ca");
    Block(G, Own, 8, 2, 84, 11, "#e0d4b8");
    Arch(G, 36, 34, 28, 60, "#8ac0e0");
    for (const double X : {14, 73}) Arch(G, X, 56, 13, 38, "#8ac0e0");
    for (const double X : {20, 80}) Outline(G, Circle(X, 42, 6), "#c8b890", "#7a6a48", 1.2);
    for (int I = 0; I < 8; ++I) StrokeLine(G, 20 + I * 8, 5, 20 + I * 8, 10, "#8a7a54", 1.4);
}

static void DrawWindmill(QPainter& G, const Monument& Own)
{
    Poly(G, "#f0e8d8", {{34, 94}, {40, 40}, {60, 40}, {66, 94}});
    Outline(G, ClosedCurve({{38, 42}, {42, 26}, {58, 26}, {62, 42}}), "#8a3a22", "#3a1408", 1.5);
    Block(G, Own, 45, 78, 10, 16, "#6a3a1a");
    for (const double Y : {50, 64}) Block(G, Own, 47, Y, 6, 7, "#5ab0e0");
    G.save();
    G.translate(50, 36);
    for (int I = 0; I < 4; ++I) {
        G.rotate(90);
        Block(G, Own, -1.5, -46, 3, 46, "#6a4a2a", 1);
        Block(G, Own, 1.5, -44, 10, 32, "#fbf6ea", 1.2);
        for (const double Y : {-36, -28, -20}) StrokeLine(G, 1.5, Y, 11.5, Y, "#a89a7a", 1);
    }
    G.rotate(20);
    G.restore();
    Outline(G, Circle(50, 36, 4), "#3a2a1a", "#000", 1);
}

static void DrawLighthouse(QPainter& G, const Monument& Own)
{
    Outline(G, ClosedCurve({{10, 98}, {20, 84}, {50, 80}, {82, 84}, {92, 98}}), "#8a8478",
            "#4a463e", 1.5);
    QPainterPath Path = Polygon({{36, 86}, {41, 26}, {59, 26}, {64, 86}});
    Outline(G, Path, "#ffffff", "#5a5a5a", 1.6);
    G.save();
    G.setClipPath(Path);
    for (const double Y : {30, 54, 78}) FillBox(G, 20, Y, 60, 12, "#d8281c");
    G.restore();
    Block(G, Own, 36, 20, 28, 6, "#3a3f46");
    Block(G, Own, 42, 6, 16, 14, "#ffe88a");
    Outline(G, ClosedCurve({{39, 8}, {50, -6}, {61, 8}}), "#d8281c", "#5a0a0a", 1.5);
    Poly(G, "#fff4a0", {{40, 10}, {6, 0}, {6, 22}}, .1);
    Poly(G, "#fff4a0", {{60, 10}, {94, 0}, {94, 22}}, .1);
}

static void DrawTimber(QPainter& G, const Monument& Own)
{
    Block(G, Own, 14, 44, 72, 50, "#fbf4e2");
    Roof(G, 14, 46, 72, 38, "#a8482a", 6);
    for (const auto& [A, B] : Table<QPointF, QPointF>{{{16, 46}, {16, 94}},
                                                      {{84, 46}, {84, 94}},
                                                      {{16, 68}, {84, 68}},
                                                      {{38, 46}, {38, 94}},
                                                      {{62, 46}, {62, 94}},
                                                      {{16, 94}, {38, 68}},
                                                      {{84, 94}, {62, 68}},
                                                      {{16, 46}, {84, 46}}})
        StrokeLine(G, A.x(), A.y(), B.x(), B.y(), "#5a3416", 4.4);
    Block(G, Own, 44, 74, 12, 20, "#5a3416");
    for (const double X : {22, 45, 68}) Block(G, Own, X, 52, 10, 11, "#8ac8e8");
    Block(G, Own, 66, 8, 9, 18, "#a86a4a");
}

static void DrawCabin(QPainter& G, const Monument& Own)
{
    Ground(G);
    for (int I = 0; I < 5; ++I) {
        Outline(G, Rounded(12, 54 + I * 8, 76, 8, 4),
                Linear(0, 54 + I * 8, 0, 62 + I * 8, {"#c8864a", "#8a5226"}), "#4a2a10", 1.3);
    }
    Roof(G, 12, 56, 76, 34, "#6a4a2a", 8);
    Block(G, Own, 42, 68, 16, 27, "#5a3416");
    for (const double X : {20, 67}) Block(G, Own, X, 66, 13, 12, "#ffe08a");
    Block(G, Own, 70, 14, 10, 26, "#8a8a8a");
}

static void DrawIgloo(QPainter& G, const Monument&)
{
    Outline(G, ClosedCurve({{4, 92}, {8, 58}, {28, 34}, {54, 28}, {80, 40}, {94, 64}, {96, 92}}),
            Linear(0, 28, 0, 92, {"#ffffff", "#bfe2f6"}), "#4a7a9a", 1.8);
    for (const double Y : {50, 66, 80})
        Stroke(G, Curve({{6, Y + 4}, {50, Y}, {94, Y + 4}}), "#7ab0d0", 1.6);
    for (const auto& [X, Y] :
         Table<double, double>{{26, 52}, {52, 36}, {74, 52}, {38, 66}, {86, 66}, {16, 66}})
        StrokeLine(G, X, Y, X, Y + 14, "#7ab0d0", 1.6);
    Outline(G, ClosedCurve({{30, 92}, {30, 70}, {44, 58}, {58, 70}, {58, 92}}), "#dff2fc",
            "#4a7a9a", 1.8);
    Arch(G, 36, 68, 16, 24, "#1a3a5a");
}

static void DrawTipi(QPainter& G, const Monument&)
{
    for (const double X : {38, 46, 56, 64}) StrokeLine(G, 50, 18, X, -2, "#6a4a2a", 2.6);
    Poly(G, "#f4e4c0", {{50, 12}, {92, 94}, {8, 94}});
    Poly(G, "#c8481c", {{50, 12}, {58, 28}, {42, 28}}, 1);
    QPainterPath Path = Polygon({{50, 12}, {92, 94}, {8, 94}});
    G.save();
    G.setClipPath(Path);
    Stroke(G,
           Polyline(
               PointRow(14, [&](int I) { return QPointF(I * 8.0, double(84 - (I % 2 ? 8 : 0))); })),
           "#1c7a8a", 4);
    StrokeLine(G, 0, 64, 100, 64, "#c8481c", 3);
    G.restore();
    Poly(G, "#5a3416", {{50, 50}, {60, 94}, {40, 94}});
    Outline(G, Circle(30, 74, 5), "#e8b82a", "#6a4a0a", 1);
    Outline(G, Circle(70, 74, 5), "#e8b82a", "#6a4a0a", 1);
}

static void DrawYurt(QPainter& G, const Monument& Own)
{
    Block(G, Own, 8, 56, 84, 38, "#f4ecd8");
    Poly(G, "#e8dcc0", {{2, 58}, {38, 30}, {62, 30}, {98, 58}});
    Block(G, Own, 40, 24, 20, 8, "#8a5226");
    Block(G, Own, 40, 66, 20, 28, "#c8481c");
    StrokeLine(G, 9, 62, 91, 62, "#1c6ab0", 4);
    Stroke(G,
           Polyline(PointRow(
               6, [&](int I) { return QPointF(10.0 + I * 6, double(88 - (I % 2 ? 6 : 0))); })),
           "#c8481c", 2);
    Stroke(G,
           Polyline(PointRow(
               6, [&](int I) { return QPointF(62.0 + I * 6, double(88 - (I % 2 ? 6 : 0))); })),
           "#c8481c", 2);
}

static void DrawWall(QPainter& G, const Monument& Own)
{
    Outline(G, ClosedCurve({{-4, 98}, {10, 70}, {40, 62}, {60, 74}, {104, 60}, {104, 98}}),
            "#6aa84a", "#2a5a1a", 1.4);
    Poly(G, "#c8b088", {{-4, 80}, {30, 58}, {30, 74}, {-4, 98}});
    Poly(G, "#b89c70", {{64, 62}, {104, 40}, {104, 60}, {64, 78}});
    Block(G, Own, 28, 34, 38, 44, "#d8c298");
    Battlement(G, Own, 26, 34, 42, 4, 8, "#d8c298");
    for (const double X : {34, 51}) Arch(G, X, 44, 8, 12);
    Arch(G, 42, 62, 10, 16);
    for (int I = 0; I < 4; ++I) Block(G, Own, -4 + I * 10, 80 - I * 6.6 - 7, 5, 7, "#c8b088", 1);
    for (int I = 0; I < 4; ++I) Block(G, Own, 70 + I * 9, 57 - I * 5 - 6, 5, 7, "#b89c70", 1);
}

static void DrawBridge(QPainter& G, const Monument& Own)
{
    FillBox(G, 0, 80, 100, 16, "#5ab0e0");
    for (const double X : {20, 72}) Block(G, Own, X, 8, 8, 84, "#d8482a");
    for (const double X : {20, 72})
        for (const double Y : {20, 38}) Block(G, Own, X - 2, Y, 12, 4, "#d8482a");
    Stroke(G, Curve({{-4, 50}, {24, 10}}), "#a82a14", 2.6);
    Stroke(G, Curve({{24, 10}, {50, 58}, {76, 10}}, .9), "#a82a14", 2.6);
    Stroke(G, Curve({{76, 10}, {104, 50}}), "#a82a14", 2.6);
    for (int X = 32; X < 70; X += 6) {
        StrokeLine(G, X, 64, X, 64 - std::abs(X - 50) * std::abs(X - 50) * .055 - 6, "#a82a14",
                   1.2);
    }
    Block(G, Own, -4, 63, 108, 6, "#d8482a");
}

static void DrawMosque(QPainter& G, const Monument& Own)
{
    Block(G, Own, 20, 58, 60, 36, "#e8e0cc");
    Dome(G, 26, 58, 48, 36, "#2a9a9a");
    for (const double X : {4, 88}) {
        Block(G, Own, X, 18, 8, 76, "#f0e8d4");
        Cone(G, X, 18, 8, 18, "#2a9a9a");
        Block(G, Own, X - 2, 34, 12, 4, "#d8ccb0");
    }
    Arch(G, 42, 66, 16, 28, "#1c4a5a");
    for (const double X : {27, 65}) Arch(G, X, 70, 8, 14, "#1c4a5a");
}

static void DrawCastle(QPainter& G, const Monument& Own)
{
    for (const double X : {4, 78}) {
        Block(G, Own, X, 30, 18, 64, "#a8aeb6");
        Battlement(G, Own, X - 2, 30, 22, 3, 7, "#a8aeb6");
    }
    Block(G, Own, 22, 50, 56, 44, "#b8bec6");
    Battlement(G, Own, 22, 50, 56, 6, 7, "#b8bec6");
    Block(G, Own, 38, 18, 24, 40, "#98a0aa");
    Battlement(G, Own, 36, 18, 28, 4, 7, "#98a0aa");
    Arch(G, 40, 66, 20, 28, "#4a2e14");
    for (const double X : {11, 85}) Block(G, Own, X, 44, 4, 10, "#2a2e34");
    Block(G, Own, 48, 28, 4, 10, "#2a2e34");
    StrokeLine(G, 50, 12, 50, -10, "#5a3a1a", 2);
    Poly(G, "#d8281c", {{50, -10}, {68, -4}, {50, 3}});
}

static void DrawAngkor(QPainter& G, const Monument& Own)
{
    Block(G, Own, 0, 84, 100, 11, "#a89878");
    Block(G, Own, 8, 74, 84, 11, "#b8a888");
    for (const auto& [X, Y, W, H] : Table<double, double, double, double>{{10, 58, 16, 24},
                                                                          {74, 58, 16, 24},
                                                                          {26, 48, 16, 28},
                                                                          {58, 48, 16, 28},
                                                                          {40, 40, 20, 42}}) {
        Block(G, Own, X, Y, W, 75 - Y, "#988868");
        Outline(G,
                ClosedCurve({{X - 1, Y},
                             {X + W * .1, Y - H * .5},
                             {X + W / 2, Y - H},
                             {X + W * .9, Y - H * .5},
                             {X + W + 1, Y}},
                            .6),
                Linear(X, 0, X + W, 0, {"#c8b890", "#8a7a5a"}), "#4a3e28", 1.5);
        for (const double T : {.2, .4, .6})
            StrokeLine(G, X + 1, Y - H * T, X + W - 1, Y - H * T, "#4a3e28", 1.5);
    }
    Arch(G, 45, 58, 10, 17, "#3a2e1a");
}

static void DrawStave(QPainter& G, const Monument& Own)
{
    Block(G, Own, 22, 64, 56, 30, "#6a4020");
    Roof(G, 16, 66, 68, 22, "#4a2a14", 4);
    Block(G, Own, 32, 38, 36, 12, "#6a4020");
    Roof(G, 28, 42, 44, 20, "#4a2a14", 2);
    Block(G, Own, 42, 18, 16, 10, "#6a4020");
    Cone(G, 40, 20, 20, 32, "#4a2a14");
    Arch(G, 43, 74, 14, 20, "#2a1408");
    for (const double X : {28, 34, 64, 70}) StrokeLine(G, X, 68, X, 92, "#8a5a30", 1.4);
    for (const auto& [X, Side, O] :
         Table<double, double, double>{{12, -1, 22}, {88, 1, 22}, {26, -1, -2}, {74, 1, -2}})
        Poly(G, "#4a2a14", {{X, 44 + O}, {X + Side * 10, 36 + O}, {X + Side * 2, 40 + O}}, 1);
}

static void DrawTrulli(QPainter& G, const Monument& Own)
{
    for (const auto& [X, W, H] :
         Table<double, double, double>{{4, 36, 38}, {60, 36, 38}, {30, 42, 50}}) {
        Block(G, Own, X, 58, W, 36, "#fbf8f0");
        Cone(G, X, 60, W, H, "#9aa0a6");
        for (const double T : {.2, .4, .6, .8})
            StrokeLine(G, X + W * .5 * T, 60 - H * T, X + W - W * .5 * T, 60 - H * T, "#6a7076", 1);
        Outline(G, Circle(X + W / 2, 60 - H - 2, 3), "#ffffff", "#6a7076", 1);
    }
    Arch(G, 43, 70, 16, 24, "#6a3a1a");
    for (const double X : {14, 78}) Block(G, Own, X, 72, 8, 9, "#8ac8e8");
}

static void DrawOpera(QPainter& G, const Monument& Own)
{
    FillBox(G, 0, 86, 100, 12, "#4aa8e0");
    Block(G, Own, 2, 76, 96, 12, "#c8b8a0");
    for (const auto& [X, W, H] :
         Table<double, double, double>{{56, 42, 40}, {34, 40, 54}, {10, 40, 64}, {0, 26, 34}}) {
        Outline(G,
                ClosedCurve({{X, 78},
                             {X + W * .1, 78 - H * .7},
                             {X + W * .55, 78 - H},
                             {X + W * .75, 78 - H * .5},
                             {X + W, 78}},
                            .6),
                Linear(X, 78 - H, X + W, 78, {"#ffffff", "#d8dee4"}), "#6a7480", 1.5);
    }
}

static void DrawMoai(QPainter& G, const Monument& Own)
{
    Ground(G);
    Outline(G,
            ClosedCurve(
                {{30, 94}, {26, 60}, {28, 20}, {40, 4}, {62, 4}, {72, 20}, {72, 60}, {70, 94}}, .4),
            Linear(26, 0, 74, 0, {"#a8aaa4", "#8a8c86", "#5e605a"}), "#30322e", 1.8);
    Poly(G, "#6a6c66", {{30, 28}, {70, 28}, {66, 36}, {34, 36}});
    Poly(G, "#9a9c96", {{45, 34}, {55, 34}, {60, 62}, {40, 62}});
    Block(G, Own, 38, 70, 24, 5, "#4a4c46");
    for (const double X : {37, 63}) Fill(G, Ellipse(X, 39, 4.4, 3), "#30322e");
}

static void DrawChurch(QPainter& G, const Monument& Own)
{
    Block(G, Own, 30, 50, 52, 44, "#f0e6d0");
    Roof(G, 30, 52, 52, 24, "#a8482a", 4);
    Block(G, Own, 12, 34, 26, 60, "#e8dcc0");
    Cone(G, 12, 36, 26, 44, "#4a5a7a");
    Outline(G, Circle(25, 46, 6), "#8ac0e0", "#4a4030", 1.3);
    Arch(G, 19, 74, 12, 20, "#5a3416");
    for (const double X : {46, 58, 70}) Arch(G, X, 62, 8, 18, "#5ab0e0");
    StrokeLine(G, 25, -8, 25, -20, "#c89a1c", 2.4);
    StrokeLine(G, 21, -16, 29, -16, "#c89a1c", 2.4);
}

static void DrawLiberty(QPainter& G, const Monument& Own)
{
    Block(G, Own, 30, 72, 40, 22, "#c8b490");
    Block(G, Own, 36, 62, 28, 11, "#d8c4a0");
    Outline(G, ClosedCurve({{38, 64}, {40, 34}, {46, 24}, {56, 24}, {60, 36}, {64, 64}}, .4),
            Linear(36, 0, 64, 0, {"#8ad0b8", "#5aa890", "#3a8870"}), "#1e4a3c", 1.6);
    Outline(G, Ellipse(51, 17, 7, 8), "#7ac4aa", "#1e4a3c", 1.4);
    for (const double V : {-160, -130, -100, -80, -50, -20}) {
        const double A = Radians(V);
        StrokeLine(G, 51 + 7 * std::cos(A), 12 + 6 * std::sin(A), 51 + 15 * std::cos(A),
                   12 + 14 * std::sin(A), "#3a8870", 2);
    }
    StrokeLine(G, 45, 30, 34, 0, "#1e4a3c", 7);
    StrokeLine(G, 45, 30, 34, 0, "#6ab89e", 5);
    Outline(G, ClosedCurve({{30, -2}, {34, -18}, {38, -2}}), "#ffd02a", "#a86a0a", 1.4);
    Block(G, Own, 58, 36, 9, 13, "#8ad0b8");
}

static void DrawTorii(QPainter& G, const Monument& Own)
{
    for (const double X : {18, 74}) Block(G, Own, X, 26, 8, 68, "#d8381c");
    Outline(
        G,
        ClosedCurve({{0, 14}, {10, 18}, {50, 21}, {90, 18}, {100, 14}, {98, 26}, {50, 29}, {2, 26}},
                    .4),
        "#c82a14", "#5a0a04", 1.6);
    Outline(
        G,
        ClosedCurve({{-2, 9}, {10, 13}, {50, 16}, {90, 13}, {102, 9}, {100, 15}, {50, 21}, {0, 15}},
                    .4),
        "#2a2a2e", "#000", 1.4);
    Block(G, Own, 10, 40, 80, 7, "#d8381c");
    Block(G, Own, 45, 28, 10, 13, "#2a2a2e");
}

static void DrawRoundtower(QPainter& G, const Monument& Own)
{
    Block(G, Own, 34, 26, 32, 68, "#a8a498");
    for (int Y = 34; Y < 92; Y += 9) StrokeLine(G, 35, Y, 65, Y, "#7a766a", 1.2);
    for (int Y = 34; Y < 86; Y += 9)
        StrokeLine(G, 42 + Y % 18 * .9, Y, 42 + Y % 18 * .9, Y + 9, "#7a766a", 1.2);
    Cone(G, 32, 28, 36, 36, "#5a6a5a");
    Arch(G, 45, 50, 10, 16, "#2a261c");
    Block(G, Own, 47, 36, 6, 8, "#2a261c");
    Ground(G);
}

static constexpr FigureRow<const Monument> Figures[] = {
    {"pyramid", DrawPyramid},
    {"sphinx", DrawSphinx},
    {"temple", DrawTemple},
    {"colosseum", DrawColosseum},
    {"stonehenge", DrawStonehenge},
    {"eiffel", DrawEiffel},
    {"bigben", DrawBigben},
    {"pisa", DrawPisa},
    {"taj", DrawTaj},
    {"basil", DrawBasil},
    {"pagoda", DrawPagoda},
    {"ziggurat", DrawZiggurat},
    {"maya", DrawMaya},
    {"obelisk", DrawObelisk},
    {"aqueduct", DrawAqueduct},
    {"triumph", DrawTriumph},
    {"windmill", DrawWindmill},
    {"lighthouse", DrawLighthouse},
    {"timber", DrawTimber},
    {"cabin", DrawCabin},
    {"igloo", DrawIgloo},
    {"tipi", DrawTipi},
    {"yurt", DrawYurt},
    {"wall", DrawWall},
    {"bridge", DrawBridge},
    {"mosque", DrawMosque},
    {"castle", DrawCastle},
    {"angkor", DrawAngkor},
    {"stave", DrawStave},
    {"trulli", DrawTrulli},
    {"opera", DrawOpera},
    {"moai", DrawMoai},
    {"church", DrawChurch},
    {"liberty", DrawLiberty},
    {"torii", DrawTorii},
    {"roundtower", DrawRoundtower},
};

static void Draw(QPainter& G, const Monument& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawMonument(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const QColor Tint = Colour(R, "c", "#e8d2a0");
    const QColor Edge = Dark(Tint, .55);
    const QColor RoofTint = "#b8482a";
    const Monument Own{R, Kind, Tint, Edge, RoofTint};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.12);
}
