// flower.cpp: flowers from the front as rings of petals, and some from the side

#include "drawing.h"
#include "kinds.h"

// A petal of length L and half width W, from the origin upwards.
static QPainterPath Petal(const QString& Kind, double L, double W)
{
    // in shares of W and L, the right side from the root to the tip
    struct Shape {
        Points Right;
        double Tension;
    };
    static const QMap<QString, Shape> Shapes = {
        {"round", {{{.75, .35}, {1, .72}, {.5, .98}, {0, 1}}, .7}},
        {"point", {{{1, .45}, {.55, .8}, {0, 1}}, .6}},
        {"strap", {{{.8, .3}, {1, .8}, {0, 1}}, .6}},
        {"heart", {{{.8, .45}, {1, .85}, {.45, 1.02}, {0, .86}}, .7}},
        {"notch", {{{.7, .5}, {1, .88}, {.75, 1}, {.5, .9}, {.25, 1}, {0, .9}}, .35}},
        {"wavy", {{{.6, .3}, {1.05, .6}, {.85, .85}, {.4, .93}, {0, 1}}, .8}},
        {"spoon", {{{.4, .5}, {1, .85}, {0, 1}}, .7}},
    };
    const Shape S = Shapes.value(Kind);
    Points Rim = {{0, 0}};
    for (const QPointF& P : S.Right) Rim.push_back({P.x() * W, -P.y() * L});
    for (std::size_t I = S.Right.size() - 1; I-- > 0;)
        Rim.push_back({-S.Right[I].x() * W, -S.Right[I].y() * L});
    return ClosedCurve(Rim, S.Tension);
}

struct Flower {
    const Recipe& R;
    QString Kind;
    QColor C1;
    QColor Tint2;
    QColor Tone;
};

static void Leaf(QPainter& G, const Flower&, double X, double Y, double L, double W, double A,
                 const QColor& Tint = "#3f9a3a")
{
    const QPainterPath Path = Moved(Petal("point", L, W), X, Y, A);
    Outline(G, Path, Mix(Tint, "#ffffff", .08), Dark(Tint, .45), 1.2);
    const QPainterPath E = Moved(Polyline({{0, 0}, {0, -L * .85}}), X, Y, A);
    Stroke(G, E, Dark(Tint, .3), 1);
}

static void Stem(QPainter& G, const Flower&, double X0, double Y0, double X1, double Y1,
                 double W = 3.4, const QColor& Tint = "#4a9a3a", double B = 4)
{
    const QPainterPath Path = Curve({{X0, Y0}, {(X0 + X1) / 2 + B, (Y0 + Y1) / 2}, {X1, Y1}});
    Stroke(G, Path, Dark(Tint, .4), W + 1.4);
    Stroke(G, Path, Tint, W);
}

static void Ring(QPainter& G, const Flower& Own, double Cx, double Cy, double Count,
                 const QString& Kind, double L, double W, const QColor& C1, const QColor& Tint2,
                 double Rot = 0, const QColor& Edge = {}, double Sq = 1)
{
    for (int I = 0; I < Count; ++I) {
        const double A = Rot + I * 360 / Count;
        QPainterPath Path = Moved(Petal(Kind, L, W), 0, 0, A);
        Path = Moved(Path, Cx, Cy, 0, 1, Sq);
        Outline(G, Path, Radial(Cx, Cy, L * 1.02, {Tint2, Tint2, C1}),
                Edge.isValid() ? Edge : EdgeOf(C1, .42, "#b9ac9c"), 1.2);
        if (Has(Own.R, "vein")) {
            double Rr = Radians(A - 90);
            StrokeLine(G, Cx + L * .2 * std::cos(Rr), Cy + L * .2 * std::sin(Rr) * Sq,
                       Cx + L * .66 * std::cos(Rr), Cy + L * .66 * std::sin(Rr) * Sq,
                       Alpha(Colour(Own.R, "vein"), .7), 1.2);
        }
    }
}

static void Centre(QPainter& G, const Flower& Own, double Cx, double Cy, double R,
                   const QColor& Tint, const QString& Kind)
{
    if (Kind == "disc") {
        Outline(G, Circle(Cx, Cy, R),
                Radial(Cx - R * .3, Cy - R * .3, R * 1.4, {Light(Tint, .4), Tint, Dark(Tint, .25)}),
                Dark(Tint, .5), 1.2);
        for (int I = 0; I < static_cast<int>(R * 3); ++I) {
            double T = I * 2.4;
            const double Rr = R * .88 * std::sqrt(I / (R * 3));
            Fill(G, Circle(Cx + Rr * std::cos(T), Cy + Rr * std::sin(T), .9),
                 Alpha(Dark(Tint, .35), .7));
        }
    }
    if (Kind == "stamen") {
        for (int I = 0; I < 14; ++I) {
            double T = I * 2 * M_PI / 14;
            const double X = Cx + R * 1.25 * std::cos(T);
            const double Y = Cy + R * 1.25 * std::sin(T);
            StrokeLine(G, Cx, Cy, X, Y, Colour(Own.R, "fil", "#f6e8a0"), 1.2);
            Fill(G, Circle(X, Y, 2), Tint);
        }
        Fill(G, Circle(Cx, Cy, R * .4), Colour(Own.R, "eye2", "#d8e88a"));
    }
    if (Kind == "dots") {
        for (int I = 0; I < 5; ++I) {
            double T = Radians(I * 72 - 54);
            Fill(G, Circle(Cx + R * .55 * std::cos(T), Cy + R * .55 * std::sin(T), R * .3), Tint);
        }
        Fill(G, Circle(Cx, Cy, R * .35), Light(Tint, .4));
    }
    if (Kind == "trumpet") {
        Outline(G,
                Moved(ClosedCurve(PointRow(20,
                                           [&](int I) {
                                               return QPointF(
                                                   R * (I % 2 ? 1 : .86) * std::cos(I * M_PI / 10),
                                                   R * (I % 2 ? 1 : .86) * std::sin(I * M_PI / 10));
                                           }),
                                  .6),
                      Cx, Cy),
                Radial(Cx, Cy, R, {Dark(Tint, .4), Tint, Light(Tint, .2)}), Dark(Tint, .45), 1.3);
        Fill(G, Circle(Cx, Cy, R * .42), Dark(Tint, .45));
    }
    if (Kind == "ring") {
        Outline(G, Circle(Cx, Cy, R), Tint, Dark(Tint, .4), 1);
        Fill(G, Circle(Cx, Cy, R * .5), Colour(Own.R, "eye2", "#fff4a0"));
    }
}

static void DrawFront(QPainter& G, const Flower& Own)
{
    const int Count = Whole(Own.R, "n", 5);
    const QString PetalKind = Text(Own.R, "p", "round");
    const double L = Number(Own.R, "l", 46);
    const double W = Number(Own.R, "w", 22);
    if (Has(Own.R, "leaves"))
        for (const double A : {45, 135, 225, 315})
            Leaf(G, Own, 50 + 20 * std::sin(Radians(A)), 50 - 20 * std::cos(Radians(A)), 34, 11, A);
    Ring(G, Own, 50, 50, Count, PetalKind, L, W, Own.C1, Own.Tint2, 0);
    for (int I = 1; I < Whole(Own.R, "layers", 1); ++I) {
        const double F = 1 - I * Number(Own.R, "shrink", .24);
        Ring(G, Own, 50, 50, std::max<double>(4, Count), PetalKind, L * F, W * F,
             Has(Own.R, "fade") ? Mix(Own.C1, Own.Tint2, I * .16) : Own.C1, Own.Tint2,
             1.0 * 180 / Count * (I % 2) + Number(Own.R, "twist", 0) * I);
    }
    if (Has(Own.R, "ct") || Has(Own.R, "cc"))
        Centre(G, Own, 50, 50, Number(Own.R, "cr", 10), Own.Tone, Text(Own.R, "ct", "disc"));
}

static void DrawTulip(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 98, 50, 52);
    Leaf(G, Own, 50, 98, 46, 9, -24);
    Leaf(G, Own, 50, 98, 40, 9, 26);
    for (const QPainterPath& Path :
         {ClosedCurve({{50, 60}, {24, 50}, {26, 22}, {34, 8}, {44, 26}}),
          ClosedCurve({{50, 60}, {76, 50}, {74, 22}, {66, 8}, {56, 26}})})
        Outline(G, Path, Dark(Own.C1, .08), Dark(Own.C1, .45), 1.4);
    Outline(G, ClosedCurve({{50, 62}, {32, 50}, {34, 24}, {50, 4}, {66, 24}, {68, 50}}),
            Linear(0, 4, 0, 62, {Own.Tint2, Own.C1}), Dark(Own.C1, .45), 1.4);
    if (Has(Own.R, "streak")) {
        Outline(G, Curve({{50, 14}, {50, 34}, {50, 54}}), Linear(0, 4, 0, 62, {Own.Tint2, Own.C1}),
                Colour(Own.R, "streak"), 3);
        Outline(G, Curve({{40, 24}, {42, 38}, {46, 54}}), Linear(0, 4, 0, 62, {Own.Tint2, Own.C1}),
                Colour(Own.R, "streak"), 3);
        Outline(G, Curve({{60, 24}, {58, 38}, {54, 54}}), Linear(0, 4, 0, 62, {Own.Tint2, Own.C1}),
                Colour(Own.R, "streak"), 3);
    }
}

static void DrawRose(QPainter& G, const Flower& Own)
{
    for (const double A : {100, 180, 260})
        Leaf(G, Own, 50 + 22 * std::sin(Radians(A)), 50 - 22 * std::cos(Radians(A)), 32, 13, A);
    Outline(G, Circle(50, 50, 39), Dark(Own.C1, .15), Dark(Own.C1, .5), 1.4);
    for (const auto& [X, Y, R, A] : Table<double, double, double, double>{{34, 58, 25, -30},
                                                                          {66, 58, 25, 30},
                                                                          {50, 68, 25, 0},
                                                                          {36, 40, 24, -70},
                                                                          {64, 40, 24, 70},
                                                                          {50, 34, 23, 0}}) {
        Outline(G, Ellipse(X, Y, R, R * .82, A),
                Linear(X - R, Y - R, X + R, Y + R, {Own.Tint2, Own.C1, Dark(Own.C1, .12)}),
                Dark(Own.C1, .42), 1.3);
    }
    for (int I = 0; const double R : {23, 17, 11, 6}) {
        Outline(G, Ellipse(50 + I % 2 * 2 - 1, 49 + I % 2 * 2, R, R * .92),
                Linear(30, 30, 70, 70, {Own.Tint2, Own.C1, Dark(Own.C1, .15)}), Dark(Own.C1, .45),
                1.3);
        ++I;
    }
    Stroke(G,
           Curve({{50, 49}, {54, 46}, {56, 51}, {51, 55}, {45, 52}, {46, 44}, {54, 41}, {61, 47}}),
           Dark(Own.C1, .5), 1.6);
}

static void DrawBell(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 30, 98, 44, 14, 3, "#4a9a3a", -14);
    Leaf(G, Own, 30, 98, 42, 8, -20);
    Leaf(G, Own, 31, 96, 38, 8, 24);
    for (const auto& [X, Y, Side] :
         Table<double, double, double>{{50, 30, .8}, {66, 52, .95}, {40, 58, .9}}) {
        Stroke(G, Curve({{40, Y - 26}, {X - 2, Y - 22}, {X, Y - 12}}), "#4a9a3a", 2.2);
        const QPainterPath Path = ClosedCurve({{0, -14},
                                               {10, -10},
                                               {13, 6},
                                               {18, 16},
                                               {9, 13},
                                               {5, 18},
                                               {0, 14},
                                               {-5, 18},
                                               {-9, 13},
                                               {-18, 16},
                                               {-13, 6},
                                               {-10, -10}},
                                              .6);
        Outline(G, Moved(Path, X, Y, 0, Side), Linear(0, Y - 14, 0, Y + 18, {Own.C1, Own.Tint2}),
                Dark(Own.C1, .45), 1.3);
    }
}

static void DrawSpray(QPainter& G, const Flower& Own)
{
    const QString SprayKind = Text(Own.R, "sp", "cone");
    Stem(G, Own, 50, 98, 50, 14, 3, "#4a9a3a", 0);
    if (Has(Own.R, "leafw")) {
        Leaf(G, Own, 50, 99, 70, Number(Own.R, "leafw", 12), -22);
        Leaf(G, Own, 50, 99, 66, Number(Own.R, "leafw", 12), 24);
    }
    const Points Rows =
        QMap<QString, Points>{
            {"cone", {{14, 0}, {22, 1}, {30, 2}, {38, 2}, {46, 3}, {54, 3}, {62, 3}}},
            {"spike", {{8, 0}, {16, 1}, {24, 1}, {32, 1}, {40, 1}, {48, 1}, {56, 1}, {64, 1}}}}
            .value(SprayKind);
    for (const auto& [Y, Count] : Rows) {
        const int Side = static_cast<int>(Count), Line = static_cast<int>(Y) / 8;
        for (int J = -Side; J <= Side; ++J) {
            double X = 50 + J * (SprayKind == "cone" ? 9 : 8) + Line % 2 * 2;
            double R = SprayKind == "cone" ? 6 : 6.2;
            for (int A = 0; A < 4; ++A) {
                double T = Radians(A * 90 + 45);
                Outline(G, Circle(X + R * .5 * std::cos(T), Y + R * .5 * std::sin(T), R * .55),
                        Mix(Own.C1, Own.Tint2, ((J + Line) % 3 + 3) % 3 / 2.4), Dark(Own.C1, .35),
                        .7);
            }
            Fill(G, Circle(X, Y, 1.3), Own.Tone);
        }
    }
}

static void DrawIris(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 98, 50, 56);
    Leaf(G, Own, 48, 98, 56, 6, -14);
    Leaf(G, Own, 52, 98, 52, 6, 14);
    for (const QPainterPath& Path :
         {ClosedCurve({{50, 56}, {30, 50}, {10, 58}, {8, 76}, {24, 78}, {40, 66}}),
          Mirrored(ClosedCurve({{50, 56}, {30, 50}, {10, 58}, {8, 76}, {24, 78}, {40, 66}}))})
        Outline(G, Path, Linear(0, 50, 0, 80, {Own.C1, Dark(Own.C1, .2)}), Dark(Own.C1, .45), 1.4);
    Outline(
        G,
        ClosedCurve({{50, 54}, {34, 40}, {28, 18}, {42, 6}, {50, 16}, {58, 6}, {72, 18}, {66, 40}}),
        Linear(0, 6, 0, 56, {Own.Tint2, Own.C1}), Dark(Own.C1, .45), 1.4);
    Outline(G, ClosedCurve({{50, 50}, {38, 62}, {38, 82}, {50, 90}, {62, 82}, {62, 62}}), Own.C1,
            Dark(Own.C1, .45), 1.4);
    Outline(G, ClosedCurve({{50, 54}, {45, 66}, {50, 78}, {55, 66}}), Own.Tone, Dark(Own.Tone, .4),
            1);
}

static void DrawCalla(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 46, 99, 50, 60, 4.4);
    Leaf(G, Own, 46, 99, 60, 13, -30);
    Outline(G,
            ClosedCurve(
                {{50, 70}, {30, 50}, {24, 26}, {44, 10}, {72, 4}, {66, 22}, {74, 40}, {64, 58}}),
            Linear(20, 0, 80, 60, {"#ffffff", Own.C1, Dark(Own.C1, .12)}),
            EdgeOf(Own.C1, .35, "#8f8a72"), 1.5);
    Outline(G, ClosedCurve({{48, 58}, {40, 36}, {48, 22}, {56, 34}, {56, 54}}), Own.Tone,
            Dark(Own.Tone, .4), 1.2);
}

static void DrawLily(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 98, 50, 54);
    Ring(G, Own, 50, 46, 6, "point", 46, 14, Own.C1, Own.Tint2, 0);
    for (int I = 0; I < 6; ++I) {
        double T = Radians(I * 60 - 90);
        for (const double R : {16, 21, 26}) {
            Fill(G,
                 Circle(50 + R * std::cos(T + .12 * (std::fmod(R, 3) - 1)),
                        46 + R * std::sin(T + .12 * (std::fmod(R, 3) - 1)), 1.4),
                 "#8a1a2a");
        }
    }
    for (int I = 0; I < 6; ++I) {
        double T = Radians(I * 60 - 60);
        double X = 50 + 20 * std::cos(T);
        double Y = 46 + 20 * std::sin(T);
        StrokeLine(G, 50, 46, X, Y, "#b8c86a", 1.8);
        Outline(G, Ellipse(X, Y, 4, 2, Degrees(T) + 90), "#c8581a", "#6a2a0a", .7);
    }
}

static void DrawOrchid(QPainter& G, const Flower& Own)
{
    for (const double A : {0, 120, 240}) {
        Outline(G, Moved(Petal("point", 48, 15), 50, 50, A),
                Radial(50, 50, 48, {Own.Tint2, Own.C1}), Dark(Own.C1, .35), 1.3);
    }
    for (const double A : {68, 292}) {
        Outline(G, Moved(Petal("round", 44, 26), 50, 48, A),
                Radial(50, 50, 46, {Own.Tint2, Own.C1}), Dark(Own.C1, .35), 1.3);
    }
    Outline(G,
            ClosedCurve(
                {{50, 48}, {64, 52}, {68, 70}, {58, 84}, {50, 76}, {42, 84}, {32, 70}, {36, 52}}),
            Linear(0, 48, 0, 84,
                   {Colour(Own.R, "lip", "#c8208a"), Light(Colour(Own.R, "lip", "#c8208a"), .35)}),
            Dark(Colour(Own.R, "lip", "#c8208a"), .4), 1.4);
    Outline(G, Circle(50, 52, 5), Own.Tone, Dark(Own.Tone, .4), 1);
}

static void DrawPansy(QPainter& G, const Flower& Own)
{
    Outline(G, Ellipse(36, 34, 27, 25), Own.C1, Dark(Own.C1, .4), 1.4);
    Outline(G, Ellipse(64, 34, 27, 25), Own.C1, Dark(Own.C1, .4), 1.4);
    Outline(G, Ellipse(27, 54, 24, 22), Own.Tint2, Dark(Own.Tint2, .4), 1.4);
    Outline(G, Ellipse(73, 54, 24, 22), Own.Tint2, Dark(Own.Tint2, .4), 1.4);
    Outline(G, ClosedCurve({{50, 48}, {74, 60}, {72, 84}, {50, 94}, {28, 84}, {26, 60}}), Own.Tint2,
            Dark(Own.Tint2, .4), 1.4);
    Fill(G, Ellipse(32, 54, 12, 9), Colour(Own.R, "face", "#2a1040"));
    Fill(G, Ellipse(68, 54, 12, 9), Colour(Own.R, "face", "#2a1040"));
    Fill(G, Ellipse(50, 70, 12, 13), Colour(Own.R, "face", "#2a1040"));
    Fill(G, Circle(50, 55, 6), Own.Tone);
}

static void DrawThistle(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 98, 50, 62, 4, "#6a9a6a");
    Leaf(G, Own, 50, 90, 34, 7, -60, "#6a9a6a");
    Leaf(G, Own, 50, 86, 34, 7, 60, "#6a9a6a");
    for (int I = 0; I < 19; ++I) {
        const int A = -54 + I * 6;
        Outline(G, Moved(Petal("strap", 50, 2.6), 50, 52, A), Mix(Own.C1, Own.Tint2, I % 3 / 2.0),
                Dark(Own.C1, .35), .7);
    }
    Outline(G, Ellipse(50, 58, 20, 16), Radial(46, 52, 24, {"#a8c89a", "#6a9a6a", "#4a7a4a"}),
            "#2a4a2a", 1.5);
    for (int I = 0; I < 4; ++I) {
        for (int J = -2 + I % 2; J < 3; ++J) {
            int X = 50 + J * 8 - I % 2 * 0;
            int Y = 50 + I * 5;
            StrokeLine(G, X - 3, Y, X, Y + 3, "#2a4a2a", 1.1);
            StrokeLine(G, X, Y + 3, X + 3, Y, "#2a4a2a", 1.1);
        }
    }
}

static void DrawFuchsia(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 0, 50, 20, 2.6, "#8a9a3a", 0);
    Outline(G, Ellipse(50, 20, 5, 8), "#d0204a", "#6a0a20", 1);
    for (const double A : {-62, -28, 28, 62}) {
        Outline(G, Moved(Petal("point", 40, 8), 50, 26, A + 180), Own.C1, Dark(Own.C1, .45), 1.3);
    }
    Outline(G, ClosedCurve({{38, 36}, {62, 36}, {70, 58}, {60, 66}, {50, 60}, {40, 66}, {30, 58}}),
            Own.Tint2, Dark(Own.Tint2, .45), 1.4);
    for (const auto& [Dx, L] : Table<double, double>{{-8, 84}, {-3, 90}, {3, 96}, {8, 86}}) {
        StrokeLine(G, 50 + Dx * .6, 60, 50 + Dx, L, "#e0407a", 1.6);
        Outline(G, Circle(50 + Dx, L, 2), "#f6e27a", "#8a6a10", .6);
    }
}

static void DrawLotus(QPainter& G, const Flower& Own)
{
    Fill(G, Ellipse(50, 82, 46, 12), "#3a9a6a");
    Fill(G, Ellipse(50, 80, 42, 9), "#56b884");
    for (const double A : {-72, 72, -52, 52}) {
        Outline(G, Moved(Petal("point", 50, 13), 50, 80, A),
                Linear(0, 30, 0, 84, {Own.C1, Own.Tint2}), Dark(Own.C1, .4), 1.3);
    }
    for (const double A : {-30, 30, 0}) {
        Outline(G, Moved(Petal("point", 58, 15), 50, 82, A),
                Linear(0, 20, 0, 84, {Own.C1, Own.Tint2}), Dark(Own.C1, .4), 1.3);
    }
    Outline(G, Moved(Petal("point", 42, 12), 50, 84, -16),
            Linear(0, 30, 0, 84, {Light(Own.C1, .2), Own.Tint2}), Dark(Own.C1, .4), 1.2);
    Outline(G, Moved(Petal("point", 42, 12), 50, 84, 16),
            Linear(0, 30, 0, 84, {Light(Own.C1, .2), Own.Tint2}), Dark(Own.C1, .4), 1.2);
}

static void DrawDandelion(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 50, 98, 50, 44, 2.8, "#7aa85a");
    for (int I = 0; I < 40; ++I) {
        double T = I * 2.4;
        double R = 38 * std::sqrt((I + 6) / 46.0);
        double X = 50 + R * std::cos(T);
        double Y = 42 + R * std::sin(T);
        StrokeLine(G, 50, 42, X, Y, "#a8aeb8", .8);
        for (const double O : {-.9, -.45, 0.0, .45, .9}) {
            StrokeLine(G, X, Y, X + 4.4 * std::cos(T + O), Y + 4.4 * std::sin(T + O), "#7f8794",
                       1.1);
        }
    }
    Outline(G, Circle(50, 42, 5.4), "#a8824a", "#5a3a10", 1);
}

static void DrawBlossom(QPainter& G, const Flower& Own)
{
    Stroke(G, Curve({{0, 90}, {30, 66}, {56, 52}, {98, 14}}), "#4a2c1c", 6);
    Stroke(G, Curve({{44, 58}, {48, 34}, {40, 12}}), "#4a2c1c", 3.4);
    for (const auto& [X, Y, Side] : Table<double, double, double>{
             {34, 60, .42}, {60, 44, .46}, {82, 28, .36}, {44, 22, .36}, {20, 80, .28}}) {
        for (int I = 0; I < 5; ++I) {
            Outline(G, Moved(Petal("heart", 40 * Side, 20 * Side), X, Y, I * 72 + X),
                    Radial(X, Y, 40 * Side, {Own.Tint2, Own.C1}), Dark(Own.C1, .3), .9);
        }
        Fill(G, Circle(X, Y, 2.6), "#c8305a");
    }
}

static void DrawStrelitzia(QPainter& G, const Flower& Own)
{
    Stem(G, Own, 20, 98, 28, 62, 4.4, "#4a8a4a");
    for (const double A : {-12, 10, 32, 54})
        Outline(G, Moved(Petal("point", 54, 8), 34, 62, A), Own.C1, Dark(Own.C1, .4), 1.2);
    Outline(G, Moved(Petal("point", 52, 6), 36, 62, 44), Own.Tint2, Dark(Own.Tint2, .45), 1.2);
    Outline(G, ClosedCurve({{18, 70}, {34, 54}, {96, 58}, {40, 76}}),
            Linear(0, 54, 0, 78, {"#5aa86a", "#a83a4a"}), "#2a4a2a", 1.4);
}

static constexpr FigureRow<const Flower> Figures[] = {
    {"front", DrawFront},     {"tulip", DrawTulip},
    {"rose", DrawRose},       {"bell", DrawBell},
    {"spray", DrawSpray},     {"iris", DrawIris},
    {"calla", DrawCalla},     {"lily", DrawLily},
    {"orchid", DrawOrchid},   {"pansy", DrawPansy},
    {"thistle", DrawThistle}, {"fuchsia", DrawFuchsia},
    {"lotus", DrawLotus},     {"dandelion", DrawDandelion},
    {"blossom", DrawBlossom}, {"strelitzia", DrawStrelitzia},
};

static void Draw(QPainter& G, const Flower& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawFlower(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k", "front");
    const QColor C1 = Colour(R, "c1", "#f06a9a");
    const QColor Tint2 = Colour(R, "c2", Light(C1, .4));
    const QColor Tone = Colour(R, "cc", "#f5c52a");
    const Flower Own{R, Kind, C1, Tint2, Tone};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.1);
}
