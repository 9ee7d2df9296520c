// mask.cpp: masks of many peoples

#include "drawing.h"
#include "kinds.h"

// Outlines of the faces; "eye" covers the eyes only.
static const QMap<QString, Points> Faces = {{"oval",
                                             {{50, 6},
                                              {72, 14},
                                              {82, 38},
                                              {78, 66},
                                              {64, 88},
                                              {50, 95},
                                              {36, 88},
                                              {22, 66},
                                              {18, 38},
                                              {28, 14}}},
                                            {"round",
                                             {{50, 8},
                                              {76, 16},
                                              {90, 44},
                                              {84, 74},
                                              {64, 92},
                                              {50, 95},
                                              {36, 92},
                                              {16, 74},
                                              {10, 44},
                                              {24, 16}}},
                                            {"shield",
                                             {{50, 8},
                                              {78, 8},
                                              {84, 30},
                                              {76, 64},
                                              {60, 88},
                                              {50, 97},
                                              {40, 88},
                                              {24, 64},
                                              {16, 30},
                                              {22, 8}}},
                                            {"long",
                                             {{50, 2},
                                              {66, 8},
                                              {74, 32},
                                              {70, 66},
                                              {60, 92},
                                              {50, 98},
                                              {40, 92},
                                              {30, 66},
                                              {26, 32},
                                              {34, 8}}},
                                            {"square",
                                             {{50, 10},
                                              {80, 12},
                                              {86, 34},
                                              {84, 72},
                                              {72, 92},
                                              {50, 95},
                                              {28, 92},
                                              {16, 72},
                                              {14, 34},
                                              {20, 12}}},
                                            {"heart",
                                             {{50, 18},
                                              {66, 8},
                                              {84, 18},
                                              {86, 44},
                                              {70, 76},
                                              {50, 96},
                                              {30, 76},
                                              {14, 44},
                                              {16, 18},
                                              {34, 8}}},
                                            {"eye",
                                             {{50, 34},
                                              {64, 26},
                                              {88, 22},
                                              {98, 34},
                                              {90, 58},
                                              {72, 68},
                                              {56, 60},
                                              {50, 54},
                                              {44, 60},
                                              {28, 68},
                                              {10, 58},
                                              {2, 34},
                                              {12, 22},
                                              {36, 26}}}};

struct Mask {
    const Recipe& R;
    QString Shape;
    QColor Tint;
    QColor Tint2;
    QColor Tint3;
    QPainterPath Face;
    QColor Edge;
    QStringList Features;
    double EyeY;
    double EyeX;
    QString Eyes;
    QColor EyeTint;
    QString Nose;
    QColor NoseTint;
    QString Mouth;
    double MouthY;
};

static void Both(QPainter& G, const Mask&, const auto& Fn)
{
    for (const double Side : {1, -1}) {
        G.save();
        if (Side < 0) {
            G.translate(100, 0);
            G.scale(-1, 1);
        }
        Fn();
        G.restore();
    }
}

static void DrawEye(QPainter& G, const Mask& Own)
{
    const double X = 50 - Own.EyeX;
    if (Own.Eyes == "hole") {
        Outline(
            G,
            ClosedCurve(
                {{X - 11, Own.EyeY}, {X, Own.EyeY - 7}, {X + 10, Own.EyeY + 1}, {X, Own.EyeY + 5}}),
            Own.EyeTint, Dark(Own.Tint, .6), 1.4);
    }
    if (Own.Eyes == "round") {
        Outline(G, Circle(X, Own.EyeY, 9), "#ffffff", "#222", 1.4);
        Fill(G, Circle(X, Own.EyeY, 4), Own.EyeTint);
    }
    if (Own.Eyes == "slit") {
        Fill(G,
             ClosedCurve({{X - 11, Own.EyeY - 1},
                          {X, Own.EyeY - 3.4},
                          {X + 11, Own.EyeY + 1},
                          {X, Own.EyeY + 3}}),
             Own.EyeTint);
    }
    if (Own.Eyes == "angry") {
        Outline(G,
                Polygon({{X - 13, Own.EyeY - 8},
                         {X + 11, Own.EyeY + 2},
                         {X + 5, Own.EyeY + 7},
                         {X - 10, Own.EyeY + 3}}),
                "#ffffff", "#222", 1.4);
        Fill(G, Circle(X, Own.EyeY + 1, 3.4), Own.EyeTint);
    }
    if (Own.Eyes == "happy") {
        Stroke(G, Curve({{X - 10, Own.EyeY + 3}, {X, Own.EyeY - 6}, {X + 10, Own.EyeY + 3}}),
               Own.EyeTint, 4);
    }
    if (Own.Eyes == "sad") {
        Stroke(G, Curve({{X - 10, Own.EyeY + 4}, {X, Own.EyeY + 1}, {X + 10, Own.EyeY - 5}}),
               Own.EyeTint, 4);
    }
    if (Own.Eyes == "square")
        Outline(G, Rounded(X - 8, Own.EyeY - 6, 16, 12, 2), Own.EyeTint, Light(Own.Tint, .3), 1.6);
    if (Own.Eyes == "ring") {
        Outline(G, Circle(X, Own.EyeY, 12), Own.Tint2, Dark(Own.Tint2, .4), 1.3);
        Outline(G, Circle(X, Own.EyeY, 7), "#ffffff", "#222", 1.2);
        Fill(G, Circle(X, Own.EyeY, 3.4), Own.EyeTint);
    }
    if (Own.Eyes == "coffee") {
        Outline(G, Ellipse(X, Own.EyeY, 10, 6), Own.Tint2, Dark(Own.Tint2, .4), 1.3);
        StrokeLine(G, X - 8, Own.EyeY, X + 8, Own.EyeY, Own.EyeTint, 2.6);
    }
    if (Own.Eyes == "glow") {
        Outline(G, Ellipse(X, Own.EyeY, 9, 7),
                Radial(X, Own.EyeY, 10, {"#ffffff", "#ffee5a", "#ff7a1a"}), "#5a1a00", 1.3);
        Fill(G, Ellipse(X, Own.EyeY, 2, 5), "#1a0a00");
    }
    const QString Brow = Text(Own.R, "brow");
    if (!Brow.isEmpty()) {
        if (Brow == "thick") {
            Fill(G,
                 ClosedCurve({{X - 14, Own.EyeY - 9},
                              {X, Own.EyeY - 16},
                              {X + 14, Own.EyeY - 8},
                              {X, Own.EyeY - 10}}),
                 Own.Tint3);
        }
        if (Brow == "angry") {
            Fill(G,
                 Polygon({{X - 16, Own.EyeY - 18},
                          {X + 14, Own.EyeY - 6},
                          {X + 10, Own.EyeY - 1},
                          {X - 14, Own.EyeY - 11}}),
                 Own.Tint3);
        }
        if (Brow == "flame") {
            Outline(G,
                    ClosedCurve({{X + 12, Own.EyeY - 6},
                                 {X - 2, Own.EyeY - 12},
                                 {X - 16, Own.EyeY - 26},
                                 {X - 12, Own.EyeY - 14},
                                 {X - 22, Own.EyeY - 14},
                                 {X - 8, Own.EyeY - 5}},
                                .5),
                    Colour(Own.R, "bwc", "#ff7a1a"), "#7a2a00", 1);
        }
    }
}

static void DrawFeathers(QPainter& G, const Mask& Own)
{
    if (Own.Features.contains("feathers")) {
        std::vector<QColor> Cols = Colours(Own.R, "fc", "#2a8ae0,#ffd21c,#e83a2a");
        for (int I = 0; I < 9; ++I) {
            int A = -64 + I * 16;
            QPainterPath Path =
                Moved(ClosedCurve({{0, 0}, {7, -22}, {4, -42}, {0, -48}, {-4, -42}, {-7, -22}}), 50,
                      34, A);
            Outline(G, Path, Linear(50, -10, 50, 30, {Light(Cycled(Cols, I), .3), Cycled(Cols, I)}),
                    Dark(Cycled(Cols, I), .4), 1.1);
            Outline(G, Moved(Polyline({{0, 0}, {0, -42}}), 50, 34, A),
                    Linear(50, -10, 50, 30, {Light(Cycled(Cols, I), .3), Cycled(Cols, I)}),
                    Dark(Cycled(Cols, I), .4), 1);
        }
    }
    if (Own.Features.contains("sidefeathers")) {
        std::vector<QColor> Cols = Colours(Own.R, "fc", "#8a2ac8,#ff5aa8");
        for (const double Side : {-1, 1}) {
            for (int I = 0; I < 5; ++I) {
                QPainterPath Path =
                    Moved(ClosedCurve({{0, 0}, {6, -20}, {3, -36}, {0, -40}, {-3, -36}, {-6, -20}}),
                          50 + Side * 34, 34, Side * (10 + I * 18));
                Outline(G, Path, Cycled(Cols, I), Dark(Cycled(Cols, I), .4), 1);
            }
        }
    }
}

static void DrawHornsAndEars(QPainter& G, const Mask& Own)
{
    if (Own.Features.contains("horns")) {
        Both(G, Own, [&] {
            Outline(G, ClosedCurve({{30, 18}, {16, 10}, {8, -14}, {22, -4}, {42, 10}}, .7),
                    Colour(Own.R, "hc", "#f0e6c8"), "#5a4a2a", 1.5);
        });
    }
    if (Own.Features.contains("bighorns")) {
        Both(G, Own, [&] {
            Outline(G,
                    ClosedCurve(
                        {{34, 16}, {4, 14}, {-6, -18}, {10, -30}, {4, -12}, {18, 2}, {44, 8}}, .7),
                    Colour(Own.R, "hc", "#7a5a3a"), "#3a2410", 1.5);
        });
    }
    if (Own.Features.contains("ears")) {
        Both(G, Own, [&] {
            Outline(G, ClosedCurve({{20, 44}, {4, 34}, {2, 56}, {14, 68}, {22, 62}}), Own.Tint,
                    Own.Edge, 1.4);
            Outline(G, Ellipse(9, 66, 4, 5), Own.Tint2, Dark(Own.Tint2, .4), 1);
        });
    }
    if (Own.Features.contains("catears")) {
        Both(G, Own, [&] {
            Outline(G, Polygon({{18, 34}, {16, -2}, {44, 14}}), Own.Tint, Own.Edge, 1.5);
            Fill(G, Polygon({{23, 26}, {21, 9}, {36, 16}}), Colour(Own.R, "inear", "#f0b0b0"));
        });
    }
}

static void DrawMane(QPainter& G, const Mask& Own)
{
    if (Own.Features.contains("mane")) {
        for (const auto& [Rr, Tone] :
             Table<double, QColor>{{52, Dark(Own.Tint2, .2)}, {47, Own.Tint2}}) {
            Outline(G,
                    ClosedCurve(PointRow(32,
                                         [&](int I) {
                                             return QPointF(50 + (I % 2 ? Rr : Rr * .82) *
                                                                     std::cos(I * M_PI / 16),
                                                            50 + (I % 2 ? Rr : Rr * .82) *
                                                                     std::sin(I * M_PI / 16));
                                         }),
                                .4),
                    Tone, Dark(Own.Tint2, .45), 1.2);
        }
    }
    if (Own.Features.contains("rays")) {
        for (int I = 0; I < 16; ++I) {
            double A = I * 22.5;
            Outline(G, Moved(Polygon({{-6, -38}, {0, -56}, {6, -38}}), 50, 50, A), Own.Tint2,
                    Dark(Own.Tint2, .45), 1.1);
        }
    }
    if (Own.Features.contains("raffia")) {
        for (int I = 0; I < 21; ++I) {
            int A = -100 + I * 10 + 180;
            double X = 50 + 38 * std::sin(Radians(A));
            const double Y = 54 - 38 * std::cos(Radians(A));
            StrokeLine(G, 50 + .6 * (X - 50), 54 + .6 * (Y - 54), 50 + 1.42 * (X - 50),
                       54 + 1.32 * (Y - 54), Mix("#c8a050", "#7a5a20", I % 3 / 2.0), 3.4);
        }
    }
}

static void DrawHats(QPainter& G, const Mask& Own)
{
    if (Own.Features.contains("jester")) {
        for (const auto& [Side, Tone] : Table<double, QColor>{{-1, Own.Tint2}, {1, Own.Tint3}}) {
            Outline(G,
                    ClosedCurve({{50, 20},
                                 {50 + Side * 12, 0},
                                 {50 + Side * 36, -14},
                                 {50 + Side * 50, 4},
                                 {50 + Side * 38, 2},
                                 {50 + Side * 30, 26}},
                                .7),
                    Tone, Dark(Tone, .4), 1.4);
            Outline(G, Circle(50 + Side * 50, 6, 5), "#ffd84a", "#7a5a10", 1);
        }
        Outline(G, ClosedCurve({{40, 16}, {46, -14}, {50, -22}, {54, -14}, {60, 16}}), Own.Tint,
                Own.Edge, 1.4);
        Outline(G, Circle(50, -22, 5), "#ffd84a", "#7a5a10", 1);
    }
    if (Own.Features.contains("crown")) {
        Outline(G, Polygon({{22, 18}, {18, -8}, {34, 4}, {50, -14}, {66, 4}, {82, -8}, {78, 18}}),
                "#ffd02a", "#7a5a10", 1.5);
        for (const auto& [X, Y, Tone] : Table<double, double, QColor>{
                 {34, 10, "#e02a3a"}, {50, 6, "#2a6ae0"}, {66, 10, "#2ab04a"}})
            Outline(G, Circle(X, Y, 3), Tone, Dark(Tone, .4), .8);
    }
    if (Own.Features.contains("turban")) {
        Outline(G, ClosedCurve({{16, 34}, {14, 8}, {50, -14}, {86, 8}, {84, 34}, {50, 22}}),
                Own.Tint2, Dark(Own.Tint2, .4), 1.5);
        Stroke(G, Curve({{18, 22}, {50, 2}, {84, 26}}), Dark(Own.Tint2, .3), 1.6);
        Stroke(G, Curve({{16, 12}, {50, 14}, {80, 10}}), Dark(Own.Tint2, .3), 1.6);
        Outline(G, Circle(50, 12, 5), "#e02a3a", "#5a0a10", 1);
    }
    if (Own.Features.contains("topknot")) {
        Outline(G, Ellipse(50, -2, 9, 10), Own.Tint3, Dark(Own.Tint3, .4), 1.2);
        Outline(G, ClosedCurve({{26, 18}, {50, 0}, {74, 18}, {50, 24}}), Own.Tint3,
                Dark(Own.Tint3, .4), 1.2);
    }
    if (Own.Features.contains("beard")) {
        const QColor BeardTint = Colour(Own.R, "bc", "#f4f0e6");
        for (int I = 0; I < 9; ++I) {
            int X = 26 + I * 6;
            Outline(G,
                    ClosedCurve({{X - 5.0, 64},
                                 {50 + (X - 50) * .7, 118.0 - std::abs(I - 4) * 5},
                                 {X + 5.0, 64}}),
                    BeardTint, Dark(BeardTint, .3), .9);
        }
    }
}

static void DrawBehind(QPainter& G, const Mask& Own)
{
    DrawFeathers(G, Own);
    DrawHornsAndEars(G, Own);
    DrawMane(G, Own);
    DrawHats(G, Own);
}

static void DrawPaint(QPainter& G, const Mask& Own)
{
    G.save();
    G.setClipPath(Own.Face);
    for (const auto& Kind : Words(Own.R, "paint", "+")) {
        if (Kind == "half") FillBox(G, 50, -5, 60, 110, Own.Tint2);
        if (Kind == "cheeks") {
            Fill(G, Circle(28, 64, 8), Own.Tint2);
            Fill(G, Circle(72, 64, 8), Own.Tint2);
        }
        if (Kind == "brow")
            Fill(G, ClosedCurve({{0, 0}, {100, 0}, {100, 22}, {50, 34}, {0, 22}}, .4), Own.Tint2);
        if (Kind == "stripes") {
            for (const double Y : {56, 66, 76}) {
                FillBox(G, 16, Y, 20, 4, Own.Tint2);
                FillBox(G, 64, Y, 20, 4, Own.Tint2);
            }
        }
        if (Kind == "vline") FillBox(G, 45.5, -5, 9, 48, Own.Tint2);
        if (Kind == "dots")
            for (const auto& [X, Y] : Table<double, double>{{30, 26},
                                                            {40, 20},
                                                            {50, 17},
                                                            {60, 20},
                                                            {70, 26},
                                                            {26, 66},
                                                            {30, 75},
                                                            {37, 82},
                                                            {74, 66},
                                                            {70, 75},
                                                            {63, 82}})
                Fill(G, Circle(X, Y, 2.6), Own.Tint2);
        if (Kind == "bands")
            for (const double Y : {14, 40, 72}) FillBox(G, 0, Y, 100, 8, Own.Tint2);
        if (Kind == "tri") {
            for (int I = 0; I < 7; ++I) {
                Fill(G, Polygon({{14.0 + I * 11, 6}, {25.0 + I * 11, 6}, {19.5 + I * 11, 18}}),
                     Own.Tint2);
                Fill(G, Polygon({{14.0 + I * 11, 96}, {25.0 + I * 11, 96}, {19.5 + I * 11, 84}}),
                     Own.Tint2);
            }
        }
        if (Kind == "kabuki") {
            for (const double Side : {-1, 1}) {
                for (const double O : {0, 1, 2}) {
                    Stroke(G,
                           Curve({{50 + Side * 8, 34 - O * 7},
                                  {50 + Side * 24, 26 - O * 8},
                                  {50 + Side * 38, 10 - O * 4}}),
                           Own.Tint2, 5);
                }
                Stroke(G, Curve({{50 + Side * 12, 58}, {50 + Side * 28, 66}, {50 + Side * 34, 84}}),
                       Own.Tint2, 5);
                Stroke(G, Curve({{50 + Side * 18, 54}, {50 + Side * 36, 58}, {50 + Side * 44, 70}}),
                       Own.Tint2, 5);
            }
        }
        if (Kind == "diam") {
            for (const double Side : {-1, 1}) {
                Fill(G,
                     Polygon({{50 + Side * 20, 24},
                              {50 + Side * 27, 44},
                              {50 + Side * 20, 64},
                              {50 + Side * 13, 44}}),
                     Own.Tint2);
            }
        }
        if (Kind == "checks") {
            for (int R = 0; R < 9; ++R) {
                for (int I = 0; I < 9; ++I)
                    if ((R + I) % 2) FillBox(G, I * 12 - 4, R * 12 - 4, 12, 12, Own.Tint2);
            }
        }
        if (Kind == "skull") {
            Fill(G, Ellipse(32, 44, 13, 14), Own.Tint3);
            Fill(G, Ellipse(68, 44, 13, 14), Own.Tint3);
        }
        if (Kind == "forehead")
            Fill(G, Polygon({{50, 10}, {60, 22}, {50, 34}, {40, 22}}), Own.Tint2);
        if (Kind == "tear")
            Fill(G, ClosedCurve({{68, 52}, {73, 64}, {68, 70}, {63, 64}}), Own.Tint2);
        if (Kind == "swirl") {
            for (const double Side : {-1, 1}) {
                Stroke(G,
                       Curve(PointRow(15,
                                      [&](int T) {
                                          return QPointF(50 + Side * 24 +
                                                             (2 + T * .8) * std::cos(T * .7) * Side,
                                                         66 + (2 + T * .8) * std::sin(T * .7));
                                      })),
                       Own.Tint2, 3);
                Stroke(G,
                       Curve({{50 + Side * 6, 20},
                              {50 + Side * 20, 12},
                              {50 + Side * 28, 20},
                              {50 + Side * 20, 26}}),
                       Own.Tint2, 3);
            }
        }
    }
    G.restore();
    Stroke(G, Own.Face, Own.Edge, 1.8);
    if (Has(Own.R, "rim"))
        Stroke(G, Moved(Moved(Own.Face, -50, -51), 50, 51, 0, .93), Colour(Own.R, "rim"), 3.4);
}

static void DrawNose(QPainter& G, const Mask& Own)
{
    if (Own.Nose == "wedge") {
        Outline(G, Polygon({{47, 40}, {53, 40}, {59, 66}, {50, 70}, {41, 66}}), Own.NoseTint,
                Own.Edge, 1.3);
    }
    if (Own.Nose == "broad") {
        Outline(G,
                ClosedCurve({{47, 42},
                             {53, 42},
                             {56, 56},
                             {66, 64},
                             {60, 71},
                             {50, 69},
                             {40, 71},
                             {34, 64},
                             {44, 56}}),
                Own.NoseTint, Own.Edge, 1.4);
    }
    if (Own.Nose == "long") {
        Outline(G, Polygon({{47.5, 30}, {52.5, 30}, {56, 72}, {50, 76}, {44, 72}}), Own.NoseTint,
                Own.Edge, 1.3);
    }
    if (Own.Nose == "ball") {
        Outline(G, Circle(50, 60, 9.5),
                Radial(47, 56, 13, {"#ff9a8a", Colour(Own.R, "nc", "#e01c2a")}), "#6a0a10", 1.3);
    }
    if (Own.Nose == "beak") {
        Outline(G, ClosedCurve({{42, 46}, {58, 46}, {56, 66}, {50, 84}, {44, 66}}),
                Colour(Own.R, "nc", "#f0a01c"), "#5a3a00", 1.5);
        StrokeLine(G, 50, 50, 50, 78, "#5a3a00", 1.2);
    }
    if (Own.Nose == "tengu") {
        Outline(
            G, ClosedCurve({{45, 46}, {55, 46}, {58, 66}, {57, 94}, {50, 102}, {43, 94}, {42, 66}}),
            Radial(46, 60, 40, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge, 1.6);
    }
    if (Own.Nose == "cat") {
        Outline(G, Polygon({{44, 58}, {56, 58}, {50, 66}}), Colour(Own.R, "nc", "#e06a8a"),
                "#5a1a2a", 1.2);
        for (const double Side : {-1, 1})
            for (const double O : {-1, 0, 1})
                StrokeLine(G, 50 + Side * 10, 66 + O * 3, 50 + Side * 38, 60 + O * 6, "#333", 1.2);
    }
    if (Own.Nose == "skull") Fill(G, Polygon({{50, 54}, {57, 68}, {50, 65}, {43, 68}}), Own.Tint3);
    if (Own.Nose == "dot") {
        Fill(G, Circle(46, 64, 1.6), "#5a2a20");
        Fill(G, Circle(54, 64, 1.6), "#5a2a20");
    }
}

static void DrawMouth(QPainter& G, const Mask& Own)
{
    if (Own.Mouth == "line") {
        Outline(
            G,
            ClosedCurve(
                {{38, Own.MouthY}, {50, Own.MouthY - 3}, {62, Own.MouthY}, {50, Own.MouthY + 3}}),
            Colour(Own.R, "mc", "#8a1a1a"), "#2a0808", 1.2);
    }
    if (Own.Mouth == "open")
        Outline(G, Ellipse(50, Own.MouthY, 8, 9), "#2a0808", Light(Own.Tint, .2), 1.4);
    if (Own.Mouth == "teeth") {
        Outline(G, Rounded(32, Own.MouthY - 6, 36, 13, 5), "#3a0808", "#1a0404", 1.3);
        for (int I = 0; I < 6; ++I)
            Outline(G, Box(34 + I * 5.4, Own.MouthY - 5, 5, 5), "#ffffff", "#333", .7);
        for (int I = 0; I < 6; ++I)
            Outline(G, Box(34 + I * 5.4, Own.MouthY + 1, 5, 5), "#ffffff", "#333", .7);
    }
    if (Own.Mouth == "fangs") {
        Outline(G,
                ClosedCurve({{28, Own.MouthY - 5},
                             {50, Own.MouthY - 1},
                             {72, Own.MouthY - 5},
                             {66, Own.MouthY + 8},
                             {50, Own.MouthY + 11},
                             {34, Own.MouthY + 8}}),
                "#4a0a0a", "#1a0404", 1.4);
        for (const double X : {34, 42, 50, 58, 66}) {
            Outline(
                G, Polygon({{X - 3, Own.MouthY - 3}, {X + 3, Own.MouthY - 3}, {X, Own.MouthY + 6}}),
                "#fffdf0", "#444", .7);
        }
        for (const auto& [X, Side] : Table<double, double>{{33, -1}, {67, 1}}) {
            Outline(G,
                    Polygon({{X - 4, Own.MouthY + 9},
                             {X + 4, Own.MouthY + 9},
                             {X + Side * 2, Own.MouthY - 10}}),
                    "#fffdf0", "#444", .7);
        }
    }
    if (Own.Mouth == "smile") {
        Outline(G,
                ClosedCurve({{28, Own.MouthY - 8},
                             {50, Own.MouthY - 1},
                             {72, Own.MouthY - 8},
                             {62, Own.MouthY + 9},
                             {50, Own.MouthY + 12},
                             {38, Own.MouthY + 9}}),
                "#5a0a14", "#2a0408", 1.5);
        Fill(G,
             ClosedCurve({{33, Own.MouthY - 5},
                          {50, Own.MouthY + 1},
                          {67, Own.MouthY - 5},
                          {62, Own.MouthY + 1},
                          {50, Own.MouthY + 5},
                          {38, Own.MouthY + 1}}),
             "#fff");
    }
    if (Own.Mouth == "frown") {
        Outline(G,
                ClosedCurve({{30, Own.MouthY + 9},
                             {38, Own.MouthY - 4},
                             {50, Own.MouthY - 7},
                             {62, Own.MouthY - 4},
                             {70, Own.MouthY + 9},
                             {50, Own.MouthY + 1}}),
                "#2a0a14", "#1a0408", 1.5);
    }
    if (Own.Mouth == "lips") {
        Outline(G,
                ClosedCurve({{38, Own.MouthY},
                             {45, Own.MouthY - 5},
                             {50, Own.MouthY - 3},
                             {55, Own.MouthY - 5},
                             {62, Own.MouthY},
                             {50, Own.MouthY + 6}}),
                Colour(Own.R, "mc", "#d81c3a"), "#5a0814", 1);
        StrokeLine(G, 39, Own.MouthY, 61, Own.MouthY, "#5a0814", 1.2);
    }
    if (Own.Mouth == "stitch") {
        StrokeLine(G, 26, Own.MouthY, 74, Own.MouthY, Own.Tint3, 2);
        for (int X = 30; X < 74; X += 6)
            StrokeLine(G, X, Own.MouthY - 5, X, Own.MouthY + 5, Own.Tint3, 2);
    }
    if (Own.Mouth == "tongue") {
        Outline(G,
                ClosedCurve({{32, Own.MouthY - 6},
                             {50, Own.MouthY - 9},
                             {68, Own.MouthY - 6},
                             {60, Own.MouthY + 6},
                             {40, Own.MouthY + 6}}),
                "#3a0808", "#1a0404", 1.3);
        Outline(G,
                ClosedCurve({{42, Own.MouthY},
                             {58, Own.MouthY},
                             {57, Own.MouthY + 18},
                             {50, Own.MouthY + 22},
                             {43, Own.MouthY + 18}}),
                "#e83a4a", "#6a0a14", 1.2);
    }
    if (Own.Mouth == "box") {
        Outline(G, Rounded(40, Own.MouthY - 5, 20, 11, 2), "#3a1a08", Light(Own.Tint, .3), 1.5);
        for (const double X : {45, 50, 55})
            StrokeLine(G, X, Own.MouthY - 4, X, Own.MouthY + 5, "#fff", 2);
    }
}

static void DrawFinery(QPainter& G, const Mask& Own)
{
    if (Own.Features.contains("moustache")) {
        Fill(G,
             ClosedCurve(
                 {{50, 71}, {30, 70}, {18, 82}, {32, 80}, {50, 76}, {68, 80}, {82, 82}, {70, 70}}),
             Own.Tint3);
    }
    if (Own.Features.contains("goatee"))
        Fill(G, ClosedCurve({{44, 88}, {50, 116}, {56, 88}}), Own.Tint3);
    if (Own.Features.contains("stick")) {
        StrokeLine(G, 92, 52, 98, 100, "#8a6a1a", 5);
        StrokeLine(G, 92, 52, 98, 100, "#f0d06a", 3);
    }
    if (Own.Features.contains("gems")) {
        for (const auto& [X, Y, Tone] : Table<double, double, QColor>{{50, 28, "#ff3a6a"},
                                                                      {24, 24, "#3ad0ff"},
                                                                      {76, 24, "#3ad0ff"},
                                                                      {14, 40, "#ffe24a"},
                                                                      {86, 40, "#ffe24a"}}) {
            Outline(G, Polygon({{X, Y - 4}, {X + 3, Y}, {X, Y + 4}, {X - 3, Y}}), Tone,
                    Dark(Tone, .4), .8);
        }
    }
}

static void DrawFaceItself(QPainter& G, const Mask& Own)
{
    Outline(G, Own.Face, Radial(40, 28, 80, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .2)}),
            Own.Edge, 2);
    DrawPaint(G, Own);
    if (Own.Eyes != "none") Both(G, Own, [&] { DrawEye(G, Own); });
    DrawNose(G, Own);
    DrawMouth(G, Own);
    DrawFinery(G, Own);
}

static void Draw(QPainter& G, const Mask& Own)
{
    DrawBehind(G, Own);
    DrawFaceItself(G, Own);
}

void DrawMask(QPainter& P, const Recipe& R)
{
    const QString Shape = Text(R, "sh", "oval");
    const QColor Tint = Colour(R, "c", "#c83a2a");
    const QColor Tint2 = Colour(R, "c2", "#ffd84a");
    const QColor Tint3 = Colour(R, "c3", "#1a1a1a");
    const QPainterPath Face = ClosedCurve(
        Named(Faces, Shape, R), QStringList{"shield", "square"}.contains(Shape) ? .6 : .75);
    const QColor Edge = Tint.lightness() < 225 ? Dark(Tint, .6) : QColor("#7d766a");
    const QStringList Features = Words(R, "f", "+");
    const double EyeY = Number(R, "ey", 44);
    const double EyeX = Number(R, "ex", 19);
    const QString Eyes = Text(R, "eyes", "hole");
    const QColor EyeTint = Colour(R, "ec", "#16121a");
    const QString Nose = Text(R, "nose", "wedge");
    const QColor NoseTint =
        Colour(R, "nc", Tint.lightness() < 225 ? Dark(Tint, .15) : QColor("#dcd4c4"));
    const QString Mouth = Text(R, "mouth", "line");
    const double MouthY = Number(R, "my", 80);
    const Mask Own{R,    Shape, Tint, Tint2,   Tint3, Face,     Edge,  Features,
                   EyeY, EyeX,  Eyes, EyeTint, Nose,  NoseTint, Mouth, MouthY};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.12);
}
