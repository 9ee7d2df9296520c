// shoe.cpp: shoes from the side, toe to the left

#include "drawing.h"
#include "kinds.h"

struct Shoe {
    const Recipe& R;
    QColor Tint;
    QColor Tint2;
    QColor SoleTint;
    double Heel;
    QColor Edge;
};

static void Lace(QPainter& G, const Shoe&, const std::vector<SpinePoint>& Laces,
                 const QColor& Tone = "#ffffff")
{
    for (const auto& [X, Y, Slant] : Laces) {
        StrokeLine(G, X - 5, Y + Slant, X + 5, Y - Slant,
                   Tone.lightness() > 150 ? Dark(Tone, .45) : QColor("#000"), 3.4);
        StrokeLine(G, X - 5, Y + Slant, X + 5, Y - Slant, Tone, 2.2);
    }
}

static void Sole(QPainter& G, const Shoe& Own, double Y = 80, double T = 8, double X0 = 4,
                 double X1 = 94, const QColor& Other = {}, bool Tread = false)
{
    const QColor Tone = Other.isValid() ? Other : Own.SoleTint;
    const QPainterPath Path = Rounded(X0, Y, X1 - X0, T, T * .45);
    Outline(G, Path, Linear(0, Y, 0, Y + T, {Light(Tone, .25), Tone, Dark(Tone, .15)}),
            EdgeOf(Tone, .5, "#8a8478"), 1.5);
    if (Tread)
        for (int X = static_cast<int>(X0) + 6; X < static_cast<int>(X1) - 2; X += 8)
            StrokeLine(G, X, Y + T - 2, X, Y + T + 1.5, Dark(Tone, .5), 2);
}

static void DrawSneaker(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{6, 80},
                                     {6, 68},
                                     {18, 60},
                                     {36, 54},
                                     {48, 40},
                                     {54, 30},
                                     {62, 36},
                                     {78, 32},
                                     {90, 34},
                                     {93, 50},
                                     {94, 80}},
                                    .6);
    Outline(G, Path, Linear(0, 30, 0, 80, {Light(Own.Tint, .2), Own.Tint, Dark(Own.Tint, .12)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    if (Has(Own.R, "stripe")) {
        for (int I = 0; I < 3; ++I) {
            Fill(G,
                 Polygon({{48.0 + I * 9, 80},
                          {58.0 + I * 9, 42},
                          {63.0 + I * 9, 42},
                          {53.0 + I * 9, 80}}),
                 Own.Tint2);
        }
    }
    if (Has(Own.R, "swoosh"))
        Fill(G, ClosedCurve({{28, 70}, {52, 72}, {88, 50}, {54, 80}, {34, 80}}), Own.Tint2);
    Fill(G, ClosedCurve({{84, 30}, {100, 30}, {100, 84}, {88, 84}, {86, 56}}), Dark(Own.Tint, .2));
    G.restore();
    Lace(G, Own, {{38, 56, 2}, {44, 49, 3}, {49, 42, 3.4}}, Colour(Own.R, "lc", "#ffffff"));
    Stroke(G, Path, Own.Edge, 1.8);
    Sole(G, Own, 78, 10);
}

static void DrawHitop(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{6, 80},
                                     {7, 68},
                                     {22, 60},
                                     {38, 52},
                                     {46, 34},
                                     {48, 12},
                                     {60, 8},
                                     {78, 9},
                                     {84, 14},
                                     {86, 44},
                                     {92, 60},
                                     {93, 80}},
                                    .5);
    Outline(G, Path, Linear(0, 10, 0, 80, {Light(Own.Tint, .2), Own.Tint, Dark(Own.Tint, .12)}),
            Own.Edge, 1.8);
    Outline(G, Circle(68, 34, 10), Own.Tint2, Dark(Own.Tint2, .4), 1.3);
    Fill(G, Star(68, 34, 7), "#1c3f9a");
    Lace(G, Own, {{34, 56, 2}, {42, 47, 3}, {46, 38, 3.4}, {48, 29, 3}, {49, 20, 3}}, "#ffffff");
    G.save();
    G.setClipPath(Path);
    Outline(G, Ellipse(8, 82, 20, 18), Own.SoleTint, "#8a8478", 1.3);
    G.restore();
    Sole(G, Own, 78, 10);
    StrokeLine(G, 6, 82, 92, 82, Own.Tint2, 2);
}

static void DrawPump(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{2, 84},
                                     {4, 76},
                                     {20, 70},
                                     {40, 66},
                                     {58, 56},
                                     {76, 40},
                                     {92, 36},
                                     {97, 44},
                                     {92, 56},
                                     {78, 66},
                                     {60, 80},
                                     {40, 86},
                                     {14, 87}},
                                    .6);
    Outline(G, Polygon({{84, 50}, {97, 44}, {95, 70}, {91, 90}, {86, 90}, {86, 66}}),
            Dark(Own.Tint, .15), Own.Edge, 1.5);
    Outline(G, Path, Linear(0, 36, 0, 86, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    Fill(G,
         ClosedCurve(
             {{28, 69}, {48, 62}, {66, 50}, {82, 40}, {90, 40}, {76, 52}, {58, 64}, {40, 70}}),
         Dark(Own.Tint, .45));
    if (Has(Own.R, "bow")) {
        Outline(G, Polygon({{24, 68}, {12, 60}, {14, 76}}), Own.Tint2, Dark(Own.Tint2, .4), 1.1);
        Outline(G, Polygon({{24, 68}, {36, 60}, {36, 74}}), Own.Tint2, Dark(Own.Tint2, .4), 1.1);
        Outline(G, Circle(24, 68, 3), Light(Own.Tint2, .3), Dark(Own.Tint2, .4), 1);
    }
    if (Has(Own.R, "strap")) {
        Stroke(G, Curve({{66, 52}, {70, 34}, {88, 32}}), Own.Edge, 5);
        Stroke(G, Curve({{66, 52}, {70, 34}, {88, 32}}), Own.Tint, 3.4);
        Outline(G, Circle(72, 35, 2.6), "#f0c84a", "#6a4a0a", .8);
    }
    if (Has(Own.R, "dots"))
        for (const auto& [X, Y] : Table<double, double>{
                 {12, 79}, {22, 77}, {32, 80}, {42, 76}, {54, 74}, {62, 66}, {72, 60}})
            Fill(G, Circle(X, Y, 2.2), Own.Tint2);
}

static void DrawFlip(QPainter& G, const Shoe& Own)
{
    G.save();
    G.translate(50, 52);
    G.rotate(-16);
    G.translate(-50, -50);
    Outline(G,
            ClosedCurve({{4, 50},
                         {14, 34},
                         {40, 34},
                         {62, 40},
                         {84, 36},
                         {97, 50},
                         {84, 64},
                         {62, 60},
                         {40, 66},
                         {14, 66}}),
            Linear(0, 34, 0, 66, {Light(Own.SoleTint, .25), Own.SoleTint}), Dark(Own.SoleTint, .45),
            1.8);
    if (Has(Own.R, "stripes"))
        for (int I = 0; I < 6; ++I) StrokeLine(G, 36 + I * 10, 38, 36 + I * 10, 62, Own.Tint2, 3);
    for (const Points& Pts :
         std::vector<Points>{{{20, 50}, {40, 40}, {62, 38}}, {{20, 50}, {40, 60}, {62, 62}}}) {
        Stroke(G, Curve(Pts), Own.Edge, 6.4);
        Stroke(G, Curve(Pts), Own.Tint, 4.6);
    }
    Outline(G, Circle(20, 50, 3.4), Own.Tint, Own.Edge, 1);
    G.restore();
}

static void DrawClog(QPainter& G, const Shoe& Own)
{
    Outline(G,
            ClosedCurve({{2, 70},
                         {0, 58},
                         {6, 54},
                         {16, 62},
                         {34, 54},
                         {50, 44},
                         {60, 44},
                         {64, 56},
                         {94, 52},
                         {97, 62},
                         {96, 88},
                         {82, 88},
                         {80, 82},
                         {34, 86},
                         {12, 84}},
                        .5),
            Linear(0, 44, 0, 88, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .15)}), Own.Edge,
            1.8);
    Outline(G, ClosedCurve({{52, 46}, {64, 46}, {66, 58}, {92, 54}, {88, 62}, {66, 66}, {54, 60}}),
            Dark(Own.Tint, .45), Own.Edge, 1.2);
    if (Has(Own.R, "flower")) {
        for (int A = 0; A < 5; ++A) {
            Outline(G, Circle(30 + 5 * std::cos(A * 1.256), 68 + 5 * std::sin(A * 1.256), 4),
                    Own.Tint2, Dark(Own.Tint2, .4), .8);
        }
        Outline(G, Circle(30, 68, 3), "#ffd21c", "#8a6a10", .8);
    }
}

static void DrawLoafer(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve(
        {{4, 80}, {6, 68}, {22, 60}, {42, 52}, {56, 46}, {76, 48}, {92, 44}, {95, 58}, {94, 80}},
        .6);
    Outline(G, Path, Linear(0, 44, 0, 80, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    Outline(G, ClosedCurve({{22, 62}, {40, 54}, {54, 50}, {58, 62}, {44, 68}, {28, 70}}),
            Light(Own.Tint, .16), Own.Edge, 1.3);
    Outline(G, Polygon({{36, 52}, {48, 48}, {54, 66}, {42, 70}}), Own.Tint2, Dark(Own.Tint2, .4),
            1.2);
    Sole(G, Own, 79, 6, 4, 94, Colour(Own.R, "so", "#4a2a12"));
    Outline(G, Rounded(72, 84, 22, 8, 1.5), Colour(Own.R, "so", "#4a2a12"), "#1a0a04", 1.3);
}

static void DrawBrogue(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{2, 80},
                                     {4, 70},
                                     {20, 62},
                                     {40, 54},
                                     {54, 42},
                                     {66, 38},
                                     {78, 40},
                                     {92, 36},
                                     {95, 56},
                                     {94, 80}},
                                    .6);
    Outline(G, Path, Linear(0, 36, 0, 80, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    Outline(G, ClosedCurve({{0, 90}, {0, 60}, {20, 58}, {26, 70}, {34, 64}, {36, 90}}), Own.Tint2,
            Dark(Own.Tint2, .4), 1.3);
    Outline(G, ClosedCurve({{76, 90}, {74, 62}, {84, 50}, {100, 40}, {100, 90}}), Own.Tint2,
            Dark(Own.Tint2, .4), 1.3);
    G.restore();
    Lace(G, Own, {{46, 56, 2}, {52, 50, 3}, {58, 45, 3}}, Colour(Own.R, "lc", "#2a1a0a"));
    Sole(G, Own, 79, 5, 2, 94, "#3a2410");
    Outline(G, Rounded(72, 83, 22, 9, 1.5), "#3a2410", "#140a04", 1.3);
}

static void DrawBoot(QPainter& G, const Shoe& Own)
{
    const double T = Number(Own.R, "top", 6);
    QPainterPath Path = ClosedCurve({{4, 82},
                                     {6, 70},
                                     {22, 62},
                                     {44, 58},
                                     {50, 46},
                                     {50, T + 4},
                                     {54, T},
                                     {86, T},
                                     {88, T + 6},
                                     {88, 50},
                                     {94, 64},
                                     {94, 82}},
                                    .35);
    Outline(G, Path, Linear(40, 0, 92, 0, {Light(Own.Tint, .22), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    if (Has(Own.R, "cuff")) FillBox(G, 40, T - 4, 60, 16, Colour(Own.R, "cuff"));
    if (Has(Own.R, "toe")) Fill(G, Ellipse(6, 84, 24, 20), Colour(Own.R, "toe"));
    if (Has(Own.R, "west")) {
        Stroke(G, Curve({{52, 22}, {60, 34}, {69, 18}, {78, 34}, {88, 22}}), Own.Tint2, 2.2);
        Stroke(G, Curve({{56, 46}, {69, 30}, {82, 46}}), Own.Tint2, 2.2);
        Stroke(G, Curve({{12, 72}, {24, 66}, {36, 70}, {24, 76}, {14, 76}}), Own.Tint2, 2.2);
    }
    if (Has(Own.R, "zip")) StrokeLine(G, 80, T + 6, 80, 76, "#d8d8d8", 2.4);
    if (Has(Own.R, "pat")) {
        Random Chance{3};
        for (int I = 0; I < 34; ++I)
            Fill(G, Circle(Uniform(Chance, 10, 90), Uniform(Chance, T, 80), 3.4), Own.Tint2);
    }
    G.restore();
    if (Has(Own.R, "fur")) {
        for (int I = 0; I < 6; ++I) {
            Outline(G, Circle(50 + I * 7, T + 3 + I % 2 * 2, 6), Colour(Own.R, "fur"),
                    Dark(Colour(Own.R, "fur"), .25), 1);
        }
    }
    if (Has(Own.R, "laces")) {
        Lace(G, Own, {{50, 24, 2}, {50, 33, 2}, {50, 42, 2}, {48, 51, 2.6}, {40, 58, 3}},
             Text(Own.R, "laces"));
    }
    if (Has(Own.R, "buckle")) {
        StrokeLine(G, 49, 50, 92, 54, Dark(Own.Tint, .4), 5);
        Outline(G, Rounded(62, 46, 10, 10, 2), "#f0c84a", "#6a4a0a", 1.4);
    }
    Stroke(G, Path, Own.Edge, 1.8);
    if (Own.Heel) {
        Outline(G, Polygon({{74, 84}, {94, 84}, {91, 98}, {80, 98}}),
                Colour(Own.R, "so", "#3a2410"), "#140a04", 1.4);
        Outline(G, Polygon({{4, 80}, {72, 80}, {72, 86}, {10, 88}}), Colour(Own.R, "so", "#3a2410"),
                "#140a04", 1.3);
    } else {
        Sole(G, Own, 80, 9, 3, 95, Colour(Own.R, "so", "#3a2410"), Has(Own.R, "tread"));
    }
}

static void DrawSkate(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{8, 72},
                                     {10, 60},
                                     {26, 52},
                                     {44, 48},
                                     {50, 36},
                                     {50, 8},
                                     {86, 6},
                                     {88, 40},
                                     {92, 56},
                                     {92, 72}},
                                    .35);
    Outline(G, Path, Linear(40, 0, 92, 0, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.8);
    Lace(G, Own, {{50, 16, 2}, {50, 25, 2}, {50, 34, 2}, {46, 43, 2.6}},
         Colour(Own.R, "lc", "#888888"));
    if (Text(Own.R, "w") == "ice") {
        Outline(G, Polygon({{20, 72}, {30, 72}, {28, 84}, {24, 84}}), "#8a96a4", "#3a4450", 1);
        Outline(G, Polygon({{70, 72}, {84, 72}, {80, 84}, {74, 84}}), "#8a96a4", "#3a4450", 1);
        Outline(G, ClosedCurve({{2, 82}, {8, 90}, {96, 90}, {96, 84}, {20, 84}}, .3),
                Linear(0, 82, 0, 92, {"#ffffff", "#9aa8b8"}), "#3a4450", 1.4);
    }
    if (Text(Own.R, "w") == "roll") {
        Outline(G, Rounded(10, 72, 82, 6, 2), "#5a6470", "#222", 1.2);
        for (const double X : {22, 78}) {
            Outline(G, Circle(X, 86, 9), Own.Tint2, Dark(Own.Tint2, .5), 1.5);
            Outline(G, Circle(X, 86, 3.4), "#f0f0f0", "#555", 1);
        }
    }
    if (Text(Own.R, "w") == "inline") {
        Outline(G, Polygon({{10, 72}, {92, 72}, {84, 84}, {18, 84}}), "#3a4048", "#111", 1.2);
        for (const double X : {17, 39, 61, 83}) {
            Outline(G, Circle(X, 88, 8), Own.Tint2, Dark(Own.Tint2, .5), 1.4);
            Outline(G, Circle(X, 88, 3), "#f0f0f0", "#555", 1);
        }
    }
    if (Text(Own.R, "w") == "ski") {
        Outline(G, Rounded(14, 70, 70, 8, 2), "#5a6470", "#222", 1.2);
        Outline(G, ClosedCurve({{-14, 78}, {-6, 86}, {104, 86}, {108, 82}, {0, 80}, {-10, 74}}, .3),
                Own.Tint2, Dark(Own.Tint2, .5), 1.5);
    }
}

static void DrawSlipper(QPainter& G, const Shoe& Own)
{
    Sole(G, Own, 80, 8, 4, 94, Own.SoleTint);
    QPainterPath Path = ClosedCurve({{4, 82}, {6, 62}, {22, 50}, {44, 48}, {54, 56}, {58, 82}}, .6);
    Outline(G, Path, Linear(0, 48, 0, 82, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.8);
    if (Has(Own.R, "bunny")) {
        for (const auto& [X, A] : Table<double, double>{{22, -16}, {32, 10}}) {
            Outline(G, Ellipse(X, 36, 5, 15, A), Own.Tint, Own.Edge, 1.4);
            Fill(G, Ellipse(X, 37, 2.4, 10, A), "#ffb0c0");
        }
        Fill(G, Circle(14, 66, 2.4), "#1a1a1a");
        Outline(G, Circle(6, 72, 3), "#ff8aa0", "#8a3a4a", .8);
    }
    if (Has(Own.R, "plaid")) {
        G.save();
        G.setClipPath(Path);
        for (const double X : {16, 32, 48}) StrokeLine(G, X, 40, X, 90, Alpha(Own.Tint2, .8), 3);
        for (const double Y : {58, 72}) StrokeLine(G, 0, Y, 70, Y, Alpha(Own.Tint2, .8), 3);
        G.restore();
    }
}

static void DrawBallet(QPainter& G, const Shoe& Own)
{
    Outline(G,
            ClosedCurve({{2, 80},
                         {6, 70},
                         {26, 70},
                         {46, 78},
                         {66, 76},
                         {84, 66},
                         {96, 66},
                         {97, 78},
                         {88, 88},
                         {40, 90},
                         {10, 88}}),
            Linear(0, 66, 0, 90, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .1)}), Own.Edge,
            1.7);
    Fill(G, ClosedCurve({{28, 72}, {46, 80}, {66, 78}, {84, 68}, {92, 70}, {78, 80}, {48, 84}}),
         Dark(Own.Tint, .35));
    for (const Points& Pts : std::vector<Points>{{{74, 72}, {66, 50}, {84, 34}, {64, 16}},
                                                 {{88, 68}, {92, 48}, {66, 36}, {84, 12}}}) {
        Stroke(G, Curve(Pts), Own.Edge, 4.4);
        Stroke(G, Curve(Pts), Own.Tint, 3);
    }
}

static void DrawGeta(QPainter& G, const Shoe& Own)
{
    Outline(G, Polygon({{0, 66}, {98, 66}, {100, 76}, {2, 76}}), "#c8904a", "#5a3410", 1.6);
    Outline(G, Rounded(20, 76, 11, 20, 1), "#a8702a", "#4a2a0a", 1.4);
    Outline(G, Rounded(68, 76, 11, 20, 1), "#a8702a", "#4a2a0a", 1.4);
    for (const Points& Pts :
         std::vector<Points>{{{22, 64}, {44, 46}, {74, 64}}, {{22, 64}, {36, 54}, {60, 66}}}) {
        Stroke(G, Curve(Pts), Own.Edge, 7.4);
        Stroke(G, Curve(Pts), Own.Tint, 5.4);
    }
}

static void DrawMoc(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{4, 84},
                                     {4, 70},
                                     {20, 60},
                                     {40, 54},
                                     {54, 42},
                                     {70, 44},
                                     {90, 42},
                                     {95, 60},
                                     {94, 84},
                                     {50, 88}},
                                    .6);
    Outline(G, Path, Linear(0, 42, 0, 86, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    Outline(G, ClosedCurve({{12, 66}, {34, 56}, {46, 60}, {36, 70}, {18, 72}}), Light(Own.Tint, .3),
            Own.Edge, 1.3);
    for (int I = 0; I < 7; ++I)
        StrokeLine(G, 14 + I * 5, 64 - I * 1.6, 15 + I * 5, 70 - I * 1.4, Own.Tint2, 2);
    for (int I = 0; I < 6; ++I)
        StrokeLine(G, 48 + I * 8, 44, 46 + I * 8, 54, Dark(Own.Tint, .4), 2);
    for (int I = 0; const QColor Tone : {QColor("#e83a2a"), QColor("#2a8ae0"), QColor("#ffd21c")}) {
        Fill(G, Circle(22 + I * 6, 66, 2), Tone);
        ++I;
    }
}

static void DrawElf(QPainter& G, const Shoe& Own)
{
    QPainterPath Path = ClosedCurve({{24, 82},
                                     {10, 80},
                                     {-2, 68},
                                     {-4, 50},
                                     {8, 40},
                                     {16, 48},
                                     {8, 54},
                                     {10, 64},
                                     {28, 64},
                                     {44, 54},
                                     {50, 36},
                                     {88, 34},
                                     {92, 60},
                                     {92, 82}},
                                    .6);
    Outline(G, Path, Linear(0, 34, 0, 84, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    Outline(G, Polygon({{46, 36}, {52, 54}, {60, 38}, {68, 56}, {76, 38}, {84, 54}, {92, 36}}),
            Own.Tint2, Dark(Own.Tint2, .4), 1.4);
    Outline(G, Circle(12, 44, 7), "#ffd23a", "#7a5a10", 1.4);
    Sole(G, Own, 80, 6, 12, 93, "#3a2410");
}

static void DrawFin(QPainter& G, const Shoe& Own)
{
    Outline(G, Polygon({{2, 62}, {10, 92}, {56, 84}, {58, 70}}), Own.Tint, Own.Edge, 1.7);
    for (int I = 0; I < 4; ++I) StrokeLine(G, 8, 66 + I * 7, 54, 74 + I * 3, Own.Tint2, 2.6);
    Outline(G, ClosedCurve({{50, 86}, {50, 66}, {66, 54}, {90, 56}, {96, 84}}, .5),
            Dark(Own.Tint, .2), Own.Edge, 1.7);
    Outline(G, ClosedCurve({{62, 60}, {74, 40}, {92, 44}, {94, 60}}, .5), "#2a2e34", "#000", 1.4);
}

// An emoji with the dark edge that all shoes have.
static void DrawEmoji(QPainter& G, const Shoe& Own)
{
    const QImage Picture = EmojiImage(Text(Own.R, "cp"));
    DrawHalo(G, Picture, Own.Edge, QRectF(2, 2, 96, 96), 1.6);
    DrawFitted(G, Picture, QRectF(3.6, 3.6, 92.8, 92.8));
}

struct ShoeRow {
    const char* Name;
    void (*Draw)(QPainter& G, const Shoe& Own);
    double Tilt; // low shoes stand on their toes, so that they fill the tile
};

static constexpr ShoeRow Shoes[] = {
    {"sneaker", DrawSneaker, -24}, {"hitop", DrawHitop, -8},  {"pump", DrawPump, -14},
    {"flip", DrawFlip, -22},       {"clog", DrawClog, -24},   {"loafer", DrawLoafer, -26},
    {"brogue", DrawBrogue, -24},   {"boot", DrawBoot, -8},    {"skate", DrawSkate, -8},
    {"slipper", DrawSlipper, -20}, {"ballet", DrawBallet, 0}, {"geta", DrawGeta, -24},
    {"moc", DrawMoc, -24},         {"elf", DrawElf, -12},     {"fin", DrawFin, -24},
    {"emoji", DrawEmoji, 0},
};

void DrawShoe(QPainter& P, const Recipe& R)
{
    const QColor Tint = Colour(R, "c", "#6a2a14");
    const Shoe Own{R,
                   Tint,
                   Colour(R, "c2", "#ffffff"),
                   Colour(R, "so", "#ffffff"),
                   Number(R, "heel", 0),
                   Tint.lightness() < 225 ? Dark(Tint, .5) : QColor("#8a8478")};
    for (const ShoeRow& Row : Shoes)
        if (Text(R, "k") == Row.Name)
            return DrawFittedDraft(
                P,
                [&](QPainter& G) {
                    G.translate(50, 50);
                    G.rotate(Row.Tilt);
                    G.translate(-50, -50);
                    Row.Draw(G, Own);
                },
                1.25);
    FatalError(R.Place + ": no shoe is like " + Quoted(Text(R, "k")));
}
