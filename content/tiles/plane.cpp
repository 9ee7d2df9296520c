// plane.cpp: aircraft from above, nose up, then turned

#include "drawing.h"
#include "kinds.h"

struct Plane {
    const Recipe& R;
    QColor Tint;
    QColor Tint2;
    QString Kind;
    QColor Edge;
    double Inset;
    QString WingPattern;
};

static QPainterPath Fuselage(QPainter& G, const Plane& Own, double W, double Top, double Bot,
                             double Nose = 10, double Tailw = 2.2)
{
    const QPainterPath Path = ClosedCurve({{50, Top},
                                           {50 + W * .7, Top + Nose * .6},
                                           {50 + W, Top + Nose * 1.6},
                                           {50 + W, (Top + Bot) * .55},
                                           {50 + Tailw, Bot},
                                           {50 - Tailw, Bot},
                                           {50 - W, (Top + Bot) * .55},
                                           {50 - W, Top + Nose * 1.6},
                                           {50 - W * .7, Top + Nose * .6}},
                                          .6);
    Outline(G, Path,
            Linear(50 - W, 0, 50 + W, 0,
                   {Dark(Own.Tint, .12), Light(Own.Tint, .45), Dark(Own.Tint, .15)}),
            Own.Edge, 1.6);
    return Path;
}

static void Wing(QPainter& G, const Plane& Own, const Points& Pts, const QColor& Tone,
                 const QString& Pattern = {})
{
    for (const double Side : {1, -1}) {
        const QPainterPath Path =
            Polygon(Mapped(Pts, [&](double X, double Y) { return QPointF(50 + Side * X, Y); }));
        Outline(G, Path, Linear(50, 0, 50 + Side * 48, 0, {Tone, Light(Tone, .18)}),
                Tone.lightness() < 225 ? Dark(Tone, .5) : Own.Edge, 1.5);
        if (!Pattern.isEmpty()) {
            G.save();
            G.setClipPath(Path);
            const QRectF B = Path.boundingRect();
            if (Pattern == "tip")
                FillBox(G, Side > 0 ? 50 + Side * 36 : 50 - 60, -20, 24, 140, Own.Tint2);
            if (Pattern == "stripe") FillBox(G, 50 + Side * 24 - 4, -20, 8, 140, Own.Tint2);
            if (Pattern == "rays") {
                for (int I = 0; I < 6; ++I) {
                    Fill(G,
                         Polygon({{50, 60},
                                  {50 + Side * (30 + I * 16), 0},
                                  {50 + Side * (38 + I * 16), 0}}),
                         Own.Tint2);
                }
            }
            if (Pattern == "checks") {
                for (int I = 0; I < 14; ++I) {
                    for (int J = 0; J < 14; ++J) {
                        if (!((I + J) % 2)) continue;
                        FillBox(G, I * 9 - 8, J * 9 - 8, 9, 9, Own.Tint2);
                    }
                }
            }
            if (Pattern == "star") Fill(G, Star(50 + Side * 28, B.center().y(), 8), Own.Tint2);
            if (Pattern == "round")
                for (const auto& [R, Ring] :
                     Table<double, QColor>{{9, "#1c3f9a"}, {6, "#ffffff"}, {3, "#d8281c"}})
                    Fill(G, Circle(50 + Side * 30, B.center().y(), R), Ring);
            if (Pattern == "round2")
                for (const auto& [R, Ring] :
                     Table<double, QColor>{{9, "#d8281c"}, {6, "#ffffff"}, {3, "#1c3f9a"}})
                    Fill(G, Circle(50 + Side * 28, B.center().y(), R), Ring);
            if (Pattern == "sun") Fill(G, Circle(50 + Side * 28, B.center().y(), 9), Own.Tint2);
            if (Pattern == "cross") {
                FillBox(G, 50 + Side * 28 - 9, B.center().y() - 2.5, 18, 5, Own.Tint2);
                FillBox(G, 50 + Side * 28 - 2.5, B.center().y() - 9, 5, 18, Own.Tint2);
            }
            if (Pattern == "camo") {
                Random Chance{3};
                for (int I = 0; I < 12; ++I) {
                    const double X = Uniform(Chance, 0, 100);
                    const double Y = Uniform(Chance, 0, 100);
                    Fill(G,
                         ClosedCurve({{X - 10, Y},
                                      {X, Y - 6},
                                      {X + 10, Y - 2},
                                      {X + 8, Y + 6},
                                      {X - 4, Y + 6}}),
                         Own.Tint2);
                }
            }
            G.restore();
        }
    }
}

static void Propeller(QPainter& G, const Plane&, double X, double Y, double R = 11)
{
    Fill(G, Ellipse(X, Y, R, 2.6), Alpha("#b8c4d0", .45));
    StrokeLine(G, X - R, Y, X + R, Y, "#2a2e34", 1.8);
    Outline(G, Circle(X, Y, 2.4), "#3a3f46", "#111", .8);
}

static void Engine(QPainter& G, const Plane& Own, double X, double Y, double W = 4, double H = 13)
{
    Outline(G, Rounded(X - W, Y, 2 * W, H, W * .8),
            Linear(X - W, 0, X + W, 0,
                   {Dark(Own.Tint2, .1), Light(Own.Tint2, .35), Dark(Own.Tint2, .2)}),
            Dark(Own.Tint2, .5), 1.2);
}

static void Cockpit(QPainter& G, const Plane&, double Y, double W = 4.6, double H = 10)
{
    Outline(G, Ellipse(50, Y, W, H * .5), Linear(46, 0, 54, 0, {"#16344a", "#5ab0e0", "#16344a"}),
            "#0a1620", 1);
}

static void DrawAirliner(QPainter& G, const Plane& Own)
{
    const double Sw = Number(Own.R, "sw", 22);
    Wing(G, Own, {{3, 40}, {50, 40 + Sw}, {50, 46 + Sw}, {3, 58}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Wing(G, Own, {{2, 84}, {20, 92}, {20, 96}, {2, 94}}, Colour(Own.R, "wc", Own.Tint));
    const int Count = Whole(Own.R, "n", 2);
    const std::vector<double> Engines =
        Count == 2 ? std::vector<double>{16} : std::vector<double>{14, 30};
    for (const double X : Engines)
        for (const double Side : {-1, 1}) Engine(G, Own, 50 + Side * X, 36 + X * .42 * Sw / 22);
    Fuselage(G, Own, Number(Own.R, "w", 6), -6, 98);
    Fill(G, Polygon({{47, 80}, {53, 80}, {52, 99}, {48, 99}}), Own.Tint2);
    Cockpit(G, Own, 2, 4.4, 6);
    if (Has(Own.R, "band"))
        for (const double Side : {-1, 1})
            StrokeLine(G, 50 + Side * 3.4, 14, 50 + Side * 3, 74, Own.Tint2, 2.4);
}

static void DrawFighter(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 34}, {38, 70}, {38, 78}, {3, 76}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Wing(G, Own, {{3, 82}, {20, 94}, {20, 99}, {3, 96}}, Colour(Own.R, "wc", Own.Tint));
    Fuselage(G, Own, 5.4, -10, 96, 16, 3.4);
    for (const double Side : {-1, 1}) {
        Outline(G, Polygon({{50 + Side * 6, 74}, {50 + Side * 9, 98}, {50 + Side * 6, 98}}),
                Own.Tint2, Dark(Own.Tint2, .4), 1);
    }
    Cockpit(G, Own, 18, 3.8, 16);
    Fill(G, Ellipse(50, 101, 5, 9),
         Radial(50, 100, 8, {"#fff6b0", "#ff9a1c", Alpha("#ff5a00", 0)}));
}

static void DrawDelta(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{2, 18}, {40, 84}, {40, 90}, {2, 86}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Fuselage(G, Own, 4.6, -12, 96, 18, 2.6);
    Cockpit(G, Own, 14, 3.4, 13);
    Outline(G, Polygon({{48.6, 64}, {51.4, 64}, {51, 98}, {49, 98}}), Own.Tint2,
            Dark(Own.Tint2, .4), 1);
}

static void DrawConcorde(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{2, 12}, {8, 40}, {34, 80}, {34, 88}, {2, 90}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Fuselage(G, Own, 4, -16, 102, 22, 1.6);
    Outline(G, Polygon({{49, 76}, {51, 76}, {51, 104}, {49, 104}}), Own.Tint2, Dark(Own.Tint2, .4),
            1);
}

static void DrawFlying(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{0, 16}, {54, 66}, {44, 76}, {34, 66}, {22, 78}, {10, 66}, {0, 76}}, Own.Tint,
         Own.WingPattern);
    Cockpit(G, Own, 28, 6, 9);
}

static void DrawProp(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 30}, {46, 32}, {48, 40}, {44, 46}, {3, 48}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Wing(G, Own, {{2, 82}, {18, 84}, {18, 91}, {2, 93}}, Colour(Own.R, "wc", Own.Tint));
    Fuselage(G, Own, 6, 4, 96, 8, 2);
    Fill(G, Ellipse(50, 9, 5.6, 6.4), Own.Tint2);
    Cockpit(G, Own, 42, 4.2, 12);
    Propeller(G, Own, 50, 2, 15);
}

static void DrawBiplane(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{0, 36}, {44, 36}, {46, 42}, {44, 52}, {0, 52}},
         Dark(Colour(Own.R, "wc", Own.Tint), .25));
    Fuselage(G, Own, 6.4, 6, 94, 7, 2);
    Wing(G, Own, {{2, 82}, {18, 83}, {18, 91}, {2, 92}}, Colour(Own.R, "wc", Own.Tint));
    Wing(G, Own, {{0, 24}, {48, 24}, {50, 31}, {48, 40}, {0, 40}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    for (const double Side : {-1, 1})
        for (const double X : {22, 40})
            StrokeLine(G, 50 + Side * X, 24, 50 + Side * X, 52, "#4a3a20", 1.2);
    Outline(G, Ellipse(50, 9, 6, 5), "#6a6e74", "#222", 1.2);
    Cockpit(G, Own, 54, 3.4, 7);
    Propeller(G, Own, 50, 2, 15);
}

static void DrawTriplane(QPainter& G, const Plane& Own)
{
    for (const auto& [Y, Shade] : Table<double, double>{{46, .3}, {34, .15}, {22, 0}}) {
        Wing(G, Own, {{0, Y}, {42, Y}, {43, Y + 5}, {42, Y + 12}, {0, Y + 12}},
             Dark(Own.Tint, Shade), Shade == 0 ? Own.WingPattern : QString());
    }
    Fuselage(G, Own, 6, 6, 92, 7, 2);
    Wing(G, Own, {{2, 80}, {18, 81}, {18, 90}, {2, 91}}, Own.Tint);
    Outline(G, Ellipse(50, 9, 6, 5), "#3a3e44", "#222", 1.2);
    Cockpit(G, Own, 62, 3.4, 7);
    Propeller(G, Own, 50, 2, 14);
}

static void DrawTwin(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 34}, {50, 38}, {50, 45}, {3, 52}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    for (const double Side : {-1, 1}) Engine(G, Own, 50 + Side * 20, 26, 4.4, 20);
    Wing(G, Own, {{2, 84}, {22, 86}, {22, 93}, {2, 95}}, Colour(Own.R, "wc", Own.Tint));
    Fuselage(G, Own, 6.4, -2, 98, 10, 2.2);
    Cockpit(G, Own, 14, 4.4, 8);
    for (const double Side : {-1, 1}) Propeller(G, Own, 50 + Side * 20, 25, 10);
}

static void DrawBomber(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 32}, {54, 40}, {54, 46}, {3, 54}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    for (const double X : {16, 32})
        for (const double Side : {-1, 1}) Engine(G, Own, 50 + Side * X, 28 + X * .16, 3.8, 16);
    Wing(G, Own, {{2, 84}, {24, 87}, {24, 94}, {2, 95}}, Colour(Own.R, "wc", Own.Tint));
    Fuselage(G, Own, 6, -6, 100, 10, 3);
    Cockpit(G, Own, 6, 4, 8);
    for (const double X : {16, 32})
        for (const double Side : {-1, 1}) Propeller(G, Own, 50 + Side * X, 27 + X * .16, 8.4);
}

static void DrawGlider(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{2, 34}, {56, 38}, {56, 41}, {2, 44}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    Wing(G, Own, {{1, 90}, {14, 91}, {14, 95}, {1, 96}}, Own.Tint);
    Fuselage(G, Own, 3.8, 4, 98, 12, 1);
    Cockpit(G, Own, 18, 3, 14);
}

static void DrawSea(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 30}, {50, 32}, {50, 42}, {3, 46}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    for (const double Side : {-1, 1})
        Outline(G, Ellipse(50 + Side * 20, 46, 4.4, 24), Own.Tint2, Dark(Own.Tint2, .45), 1.4);
    Wing(G, Own, {{2, 84}, {18, 86}, {18, 92}, {2, 94}}, Own.Tint);
    Fuselage(G, Own, 6.4, 4, 96, 8, 2);
    Cockpit(G, Own, 30, 4.4, 10);
    Propeller(G, Own, 50, 2, 14);
}

static void DrawVtail(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{3, 42}, {52, 38}, {52, 43}, {3, 52}}, Colour(Own.R, "wc", Own.Tint),
         Own.WingPattern);
    for (const double Side : {-1, 1}) {
        Outline(G,
                Polygon({{50 + Side * 2, 86},
                         {50 + Side * 16, 98},
                         {50 + Side * 13, 102},
                         {50 + Side * 2, 94}}),
                Own.Tint2, Dark(Own.Tint2, .4), 1.2);
    }
    Fuselage(G, Own, 5, 8, 96, 10, 2.2);
    Outline(G, Ellipse(50, 12, 4.4, 5), "#2a3038", "#000", 1);
}

static void DrawRocket(QPainter& G, const Plane& Own)
{
    for (const double Side : {-1, 1}) {
        Outline(G,
                Polygon({{50 + Side * 6, 66},
                         {50 + Side * 22, 88},
                         {50 + Side * 22, 98},
                         {50 + Side * 6, 90}}),
                Own.Tint2, Dark(Own.Tint2, .45), 1.5);
    }
    Fuselage(G, Own, 9, -12, 92, 20, 6);
    Outline(G, Circle(50, 26, 5.4), Linear(46, 0, 54, 0, {"#16344a", "#5ab0e0"}), "#223", 1.6);
    QPainterPath Path = QPainterPath(Ellipse(50, -6, 9, 16));
    G.save();
    G.setClipPath(Path);
    FillBox(G, 30, -20, 40, 18, Own.Tint2);
    G.restore();
    Fill(G, Ellipse(50, 102, 8, 14),
         Radial(50, 98, 13, {"#ffffff", "#ffd21c", Alpha("#ff5a00", 0)}));
}

static void DrawShuttle(QPainter& G, const Plane& Own)
{
    Wing(G, Own, {{5, 30}, {12, 58}, {34, 80}, {34, 90}, {5, 92}}, "#2a2e34");
    Wing(G, Own, {{5, 34}, {11, 58}, {31, 78}, {31, 84}, {5, 88}}, Own.Tint);
    Fuselage(G, Own, 8, 0, 94, 12, 7);
    Outline(G, Rounded(44, 16, 12, 52, 2), "#d8dde4", "#6a7480", 1);
    Cockpit(G, Own, 8, 4.6, 7);
    Outline(G, Polygon({{48.5, 70}, {51.5, 70}, {52, 98}, {48, 98}}), "#2a2e34", "#000", 1);
    for (const double Side : {-1, 1})
        Outline(G, Circle(50 + Side * 4.4, 95, 3.4), "#3a3e46", "#000", 1);
}

static void DrawHeli(QPainter& G, const Plane& Own)
{
    Fuselage(G, Own, 14, 14, 72, 14, 4);
    Outline(G, Rounded(47, 68, 6, 32, 2), Own.Tint, Own.Edge, 1.3);
    Cockpit(G, Own, 28, 10.5, 20);
    Outline(G, Rounded(40, 96, 20, 4, 1), Own.Tint2, Dark(Own.Tint2, .4), 1);
    for (const double Side : {-1, 1})
        Outline(G, Rounded(50 + Side * 13 - 1.5, 28, 3, 40, 1.5), "#3a3f46", "#111", .8);
    Fill(G, Circle(50, 44, 40), Alpha("#8a96a4", .16));
    for (int A = 0; A < Whole(Own.R, "n", 4); ++A) {
        G.save();
        G.translate(50, 44);
        G.rotate(1.0 * A * 360 / Whole(Own.R, "n", 4) + 20);
        Outline(G, Rounded(-2.2, 0, 4.4, 41, 1.5), "#3a3f46", "#111", .8);
        G.restore();
    }
    Outline(G, Circle(50, 44, 4), "#6a7078", "#111", 1);
}

static void DrawTandem(QPainter& G, const Plane& Own)
{
    Outline(G, Rounded(36, 2, 28, 96, 12),
            Linear(40, 0, 60, 0, {Dark(Own.Tint, .15), Light(Own.Tint, .3), Dark(Own.Tint, .2)}),
            Own.Edge, 1.6);
    Cockpit(G, Own, 14, 7, 9);
    for (const double Y : {18, 82}) {
        Fill(G, Circle(50, Y, 34), Alpha("#8a96a4", .15));
        for (int A = 0; A < 3; ++A) {
            G.save();
            G.translate(50, Y);
            G.rotate(A * 120 + (Y < 50 ? 20 : 60));
            Outline(G, Rounded(-2, 0, 4, 35, 1.5), "#3a3f46", "#111", .7);
            G.restore();
        }
    }
}

static void DrawDrone(QPainter& G, const Plane& Own)
{
    for (const double A : {45, 135, 225, 315}) {
        const double R = Radians(A);
        const double X = 50 + 36 * std::cos(R);
        const double Y = 50 + 36 * std::sin(R);
        StrokeLine(G, 50, 50, X, Y, Dark(Own.Tint, .2), 6);
        Outline(G, Circle(X, Y, 19), Alpha("#8a96a4", .3), Own.Tint2, 2);
        StrokeLine(G, X - 14, Y - 8, X + 14, Y + 8, "#2a2e34", 2.2);
        Outline(G, Circle(X, Y, 3.4), Own.Tint2, "#111", 1);
    }
    Outline(G, Rounded(36, 34, 28, 32, 8),
            Linear(36, 0, 64, 0, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge,
            1.6);
    Outline(G, Circle(50, 40, 5), "#16344a", "#000", 1);
}

static void DrawAirship(QPainter& G, const Plane& Own)
{
    Outline(G, Ellipse(50, 50, 21, 56),
            Linear(29, 0, 71, 0, {Dark(Own.Tint, .25), Light(Own.Tint, .4), Dark(Own.Tint, .25)}),
            Own.Edge, 1.8);
    for (const double F : {.66, .3})
        Stroke(G, Ellipse(50, 50, 21 * F, 56), Alpha(Dark(Own.Tint, .35), .8), 1.3);
    G.save();
    G.setClipPath(Ellipse(50, 50, 21, 56));
    FillBox(G, 20, 40, 60, 14, Own.Tint2);
    FillBox(G, 20, -10, 60, 14, Own.Tint2);
    G.restore();
    for (const double Side : {-1, 1}) {
        Outline(G,
                Polygon({{50 + Side * 8, 84},
                         {50 + Side * 26, 100},
                         {50 + Side * 26, 110},
                         {50 + Side * 4, 104}}),
                Own.Tint2, Dark(Own.Tint2, .45), 1.4);
    }
}

static void DrawBalloon(QPainter& G, const Plane& Own)
{
    QPainterPath Path = ClosedCurve(
        {{50, 2}, {74, 10}, {84, 32}, {74, 54}, {58, 72}, {42, 72}, {26, 54}, {16, 32}, {26, 10}},
        .7);
    Outline(G, Path, Own.Tint, Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    const std::vector<QColor> Cols =
        Has(Own.R, "cols") ? Colours(Own.R, "cols") : std::vector<QColor>{Own.Tint, Own.Tint2};
    for (int I = -3; I < 4; ++I) {
        const double W0 = (I - .5) * 10.5;
        const double W1 = (I + .5) * 10.5;
        Fill(G,
             ClosedCurve({{50 + W0 * .2, 0},
                          {50 + W0 * 1.05, 32},
                          {50 + W0 * .25, 74},
                          {50 + W1 * .25, 74},
                          {50 + W1 * 1.05, 32},
                          {50 + W1 * .2, 0}},
                         .8),
             Cycled(Cols, (I + 30)));
    }
    if (Has(Own.R, "zig")) {
        Fill(G,
             Polygon(Joined(
                 Joined(Joined(Joined(Points{{10, 30}}, PointRow(13,
                                                                 [&](int I) {
                                                                     return QPointF(
                                                                         14.0 + I * 6,
                                                                         double(I % 2 ? 28 : 36));
                                                                 })),
                               Points{{90, 30}, {90, 44}}),
                        PointRow(
                            13,
                            [&](int I) { return QPointF(86.0 - I * 6, double(I % 2 ? 42 : 50)); })),
                 Points{{10, 44}})),
             Colour(Own.R, "zig"));
    }
    FillBox(
        G, 0, 0, 100, 100,
        Linear(16, 0, 84, 0, {Alpha("#ffffff", .3), Alpha("#ffffff", 0), Alpha("#000000", .25)}));
    G.restore();
    Stroke(G, Path, Own.Edge, 1.6);
    StrokeLine(G, 42, 72, 44, 86, "#5a4020", 1.3);
    StrokeLine(G, 58, 72, 56, 86, "#5a4020", 1.3);
    Outline(G, Rounded(42, 85, 16, 13, 2), "#a8702a", "#4a2a0a", 1.4);
}

static void DrawWingglider(QPainter& G, const Plane& Own)
{
    Outline(G, Polygon({{50, 6}, {104, 64}, {50, 46}, {-4, 64}}), Own.Tint, Own.Edge, 1.6);
    G.save();
    G.setClipPath(Polygon({{50, 6}, {104, 64}, {50, 46}, {-4, 64}}));
    Fill(G, Polygon({{50, 6}, {76, 30}, {50, 46}, {24, 30}}), Own.Tint2);
    G.restore();
    StrokeLine(G, 50, 10, 50, 56, "#4a4a4a", 2);
    StrokeLine(G, 34, 64, 50, 40, "#4a4a4a", 2);
    StrokeLine(G, 66, 64, 50, 40, "#4a4a4a", 2);
    StrokeLine(G, 34, 64, 66, 64, "#4a4a4a", 2);
    Outline(G, Circle(50, 58, 5), "#d8a070", "#4a2a10", 1);
    Outline(G, Ellipse(50, 78, 5, 16), "#2a2a3a", "#000", 1);
}

static constexpr FigureRow<const Plane> Figures[] = {
    {"airliner", DrawAirliner}, {"fighter", DrawFighter},   {"delta", DrawDelta},
    {"concorde", DrawConcorde}, {"flying", DrawFlying},     {"prop", DrawProp},
    {"biplane", DrawBiplane},   {"triplane", DrawTriplane}, {"twin", DrawTwin},
    {"bomber", DrawBomber},     {"glider", DrawGlider},     {"sea", DrawSea},
    {"vtail", DrawVtail},       {"rocket", DrawRocket},     {"shuttle", DrawShuttle},
    {"heli", DrawHeli},         {"tandem", DrawTandem},     {"drone", DrawDrone},
    {"airship", DrawAirship},   {"balloon", DrawBalloon},   {"wingglider", DrawWingglider},
};

static void Draw(QPainter& G, const Plane& Own)
{
    G.translate(50, 50);
    G.rotate(Number(Own.R, "rot", 45));
    G.translate(-50, -50);
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawPlane(QPainter& P, const Recipe& R)
{
    const QColor Tint = Colour(R, "c", "#e8ecf0");
    const QColor Tint2 = Colour(R, "c2", "#d82a2a");
    const QString Kind = Text(R, "k", "jet");
    const QColor Edge = Tint.lightness() < 225 ? Dark(Tint, .6) : QColor("#4a5460");
    const double Inset = Number(R, "box", 2);
    const QString WingPattern = Text(R, "pat");
    const Plane Own{R, Tint, Tint2, Kind, Edge, Inset, WingPattern};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1, QRectF(Inset, Inset, 100 - 2 * Inset, 100 - 2 * Inset));
}
