// tree.cpp: trees and plants with a trunk

#include "drawing.h"
#include "kinds.h"

struct Tree {
    const Recipe& R;
    QString Kind;
    QColor Tint;
    QColor Bark;
    QColor Accent;
    Random Chance;
};

static void Trunk(QPainter& G, Tree& Own, double W = 6, double Top = 50, double Base = 94,
                  double Flare = 1.7)
{
    const QPainterPath Path = ClosedCurve({{50 - W * .5, Top},
                                           {50 - W * .5, (Top + Base) / 2},
                                           {50 - W * Flare * .8, Base},
                                           {50, Base - 1.5},
                                           {50 + W * Flare * .8, Base},
                                           {50 + W * .5, (Top + Base) / 2},
                                           {50 + W * .5, Top}},
                                          .6);
    Outline(G, Path,
            Linear(50 - W, 0, 50 + W, 0, {Light(Own.Bark, .2), Own.Bark, Dark(Own.Bark, .25)}),
            Dark(Own.Bark, .5), 1.3);
    if (Own.Kind == "birch") {
        for (int Y = static_cast<int>(Top); Y < static_cast<int>(Base) - 4; Y += 7) {
            const double X = 50 + ((Y * 7) % 3 - 1) * W * .25;
            StrokeLine(G, X - W * .28, Y, X + W * .22, Y, "#2a2a2a", 1.6);
        }
    }
}

static void Blobs(QPainter& G, Tree& Own, const std::vector<SpinePoint>& Balls)
{
    const QColor Tone = Own.Tint;
    const QColor Dk = Dark(Tone, .42);
    for (const auto& [X, Y, R] : Balls) Fill(G, Circle(X, Y, R + 1.3), Dk);
    for (const auto& [X, Y, R] : Balls) {
        Fill(G, Circle(X, Y, R),
             Radial(X - R * .4, Y - R * .5, R * 1.7, {Light(Tone, .34), Tone, Dark(Tone, .22)}));
    }
    for (const auto& [X, Y, R] : Balls) {
        for (int I = 0; I < 5; ++I) {
            const double A = Uniform(Own.Chance, 0, 6.28);
            const double Path = Uniform(Own.Chance, 0, R * .7);
            Fill(G, Ellipse(X + Path * std::cos(A) - 1, Y + Path * std::sin(A) - 2, 2.2, 1.5),
                 Alpha(Uniform(Own.Chance) < .6 ? Light(Tone, .45) : Dark(Tone, .25), .6));
        }
    }
}

static void Fruits(QPainter& G, Tree&, const Points& Pts, const QColor& Tone, double R = 3)
{
    for (const auto& [X, Y] : Pts) {
        Outline(G, Circle(X, Y, R), Radial(X - 1, Y - 1, R * 1.5, {Light(Tone, .5), Tone}),
                Dark(Tone, .4), .7);
    }
}

static void DrawRound(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 8);
    Blobs(G, Own,
          {{32, 46, 17},
           {68, 46, 17},
           {50, 52, 18},
           {38, 28, 17},
           {62, 28, 17},
           {50, 18, 15},
           {50, 36, 20}});
    if (Own.Accent.isValid()) {
        Fruits(G, Own,
               {{34, 36}, {50, 26}, {64, 38}, {42, 50}, {58, 54}, {28, 48}, {72, 50}, {56, 16}},
               Own.Accent, Number(Own.R, "fr", 3.4));
    }
}

static void DrawOval(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 7, 60);
    Blobs(G, Own,
          {{40, 62, 13},
           {60, 62, 13},
           {38, 46, 14},
           {62, 46, 14},
           {40, 28, 13},
           {60, 28, 13},
           {50, 14, 12},
           {50, 38, 17},
           {50, 54, 15}});
    if (Own.Accent.isValid())
        Fruits(G, Own, {{42, 30}, {56, 22}, {60, 44}, {42, 56}, {52, 40}}, Own.Accent);
}

static void DrawColumn(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 5, 80);
    QPainterPath Path = ClosedCurve(
        {{50, -2}, {59, 18}, {62, 50}, {60, 80}, {50, 90}, {40, 80}, {38, 50}, {41, 18}});
    Outline(G, Path, Linear(36, 0, 64, 0, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .3)}),
            Dark(Own.Tint, .5), 1.5);
    for (int I = 0; I < 5; ++I) {
        Outline(G, Curve({{44.0 + I * 3, 88}, {42.0 + I * 4, 50}, {47 + I * 1.6, 12}}),
                Linear(36, 0, 64, 0, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .3)}),
                Alpha(Dark(Own.Tint, .3), .6), 1.2);
    }
}

static void DrawPine(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 7, 82);
    const int Count = Whole(Own.R, "n", 4);
    for (int I = 0; I < Count; ++I) {
        double T = Count > 1 ? 1.0 * I / (Count - 1) : 0;
        double Y = 84 - I * (1.0 * 72 / Count);
        double W = 36 - 24 * T;
        const double H = 1.0 * 72 / Count + 14;
        Points Pts = Joined(Points{{50, Y - H}}, Mapped(Counted(6, -7, -1), [&](int J) {
                                return QPointF(50 + W * (1 - std::abs(J) / 7 * 0) * (J / 6.0),
                                               Y - (std::fmod(std::abs(J), 2) ? 3 : 0) +
                                                   (std::abs(J) < 6 ? 0 : -1));
                            }));
        Outline(G, Polygon(Pts),
                Linear(14, 0, 86, 0, {Light(Own.Tint, .24), Own.Tint, Dark(Own.Tint, .28)}),
                Dark(Own.Tint, .5), 1.4);
        if (Has(Own.R, "snow")) {
            Fill(G,
                 Polygon({{50, Y - H},
                          {50 + W * .45, Y - H * .55},
                          {50 + W * .25, Y - H * .62},
                          {50 + W * .08, Y - H * .42},
                          {50 - W * .1, Y - H * .62},
                          {50 - W * .26, Y - H * .46},
                          {50 - W * .45, Y - H * .55}}),
                 "#ffffff");
        }
    }
    if (Own.Accent.isValid()) {
        Fruits(G, Own, {{42, 76}, {58, 72}, {48, 60}, {56, 50}, {44, 44}, {52, 32}, {50, 22}},
               Own.Accent, 3.4);
    }
    if (Has(Own.R, "lights")) {
        for (int I = 0; const auto& [X, Y] : Table<double, double>{{36, 80},
                                                                   {48, 74},
                                                                   {62, 80},
                                                                   {42, 62},
                                                                   {56, 60},
                                                                   {48, 48},
                                                                   {58, 44},
                                                                   {46, 34},
                                                                   {52, 26}}) {
            Fruits(G, Own, {{X, Y}},
                   std::array<QColor, 4>{"#ff3a3a", "#ffd21c", "#3aa0ff",
                                         "#ff7ae0"}[static_cast<std::size_t>(I % 4)],
                   3.2);
            ++I;
        }
        Outline(G, Star(50, 4, 9), "#ffd84a", "#a87a10", 1.2);
    }
}

static void DrawPalm(QPainter& G, Tree& Own)
{
    const QPainterPath Path = Tube({{44, 96, 4.4}, {48, 74, 3.6}, {54, 52, 3.2}, {58, 34, 2.8}});
    Outline(G, Path, Linear(40, 0, 64, 0, {Light(Own.Bark, .3), Own.Bark, Dark(Own.Bark, .2)}),
            Dark(Own.Bark, .5), 1.3);
    for (int I = 0; I < 7; ++I) {
        StrokeLine(G, 44 + I * 1.8 - 3, 90 - I * 8, 44 + I * 1.8 + 4, 89 - I * 8,
                   Dark(Own.Bark, .3), 1.2);
    }
    for (const double A : {-150, -115, -75, -40, 0, -180, 18}) {
        double R = Radians(A);
        double X2 = 58 + 36 * std::cos(R);
        double Y2 = 30 + 24 * std::sin(R) + 12;
        const double Mx = 58 + 22 * std::cos(R);
        const double My = 26 + 24 * std::sin(R) - 4;
        QPainterPath Frond(QPointF(58, 32));
        Frond.quadTo(Mx, My - 6, X2, Y2);
        Frond.quadTo(Mx, My + 7, 58, 32);
        Outline(G, Frond, Linear(0, 0, 0, 60, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .15)}),
                Dark(Own.Tint, .5), 1.2);
    }
    if (Own.Accent.isValid()) Fruits(G, Own, {{54, 36}, {61, 38}, {58, 42}}, Own.Accent, 4);
}

static void DrawWillow(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 8, 40);
    for (int I = 0; I < 15; ++I) {
        const double X = 14 + I * 5.1;
        double T = std::abs(X - 50) / 36;
        QPainterPath Path;
        Path.moveTo(50 + (X - 50) * .35, 26 - 6 * (1 - T));
        Path.cubicTo(X, 14 + 10 * T, X + (X - 50) * .16, 50, X + (X - 50) * .12,
                     88 - 14 * T - I % 3 * 5);
        Path.cubicTo(X - 4, 60, X - 5, 30, 50 + (X - 50) * .35 - 3, 30);
        Outline(G, Path, Mix(Own.Tint, Light(Own.Tint, .4), I % 3 * .35), Dark(Own.Tint, .4), .9);
    }
    Blobs(G, Own, {{38, 22, 12}, {62, 22, 12}, {50, 17, 14}});
}

static void DrawUmbrella(QPainter& G, Tree& Own)
{
    for (const QPointF& E : Points{{26, 40}, {42, 38}, {58, 38}, {76, 40}})
        Stroke(G, Curve({{50, 94}, {50, 66}, E}), Own.Bark, 4);
    Trunk(G, Own, 6, 62);
    Blobs(G, Own,
          {{18, 36, 9},
           {32, 31, 11},
           {48, 28, 12},
           {64, 31, 11},
           {80, 36, 9},
           {40, 37, 9},
           {58, 37, 9}});
}

static void DrawBaobab(QPainter& G, Tree& Own)
{
    QPainterPath Path = ClosedCurve(
        {{38, 32}, {34, 56}, {30, 82}, {24, 96}, {50, 92}, {76, 96}, {70, 82}, {66, 56}, {62, 32}},
        .6);
    Outline(G, Path, Linear(24, 0, 76, 0, {Light(Own.Bark, .3), Own.Bark, Dark(Own.Bark, .25)}),
            Dark(Own.Bark, .5), 1.5);
    for (const QPointF& E : Points{{16, 22}, {32, 12}, {50, 8}, {68, 12}, {84, 22}}) {
        Outline(G, Curve({{50, 36}, {(50 + E.x()) / 2, 28}, E}),
                Linear(24, 0, 76, 0, {Light(Own.Bark, .3), Own.Bark, Dark(Own.Bark, .25)}),
                Own.Bark, 5);
    }
    Blobs(G, Own, {{14, 20, 8.5}, {31, 10, 8.5}, {50, 6, 9}, {69, 10, 8.5}, {86, 20, 8.5}});
}

static void DrawBranch(QPainter& G, Tree& Own, double X, double Y, double A, double L, double W,
                       int Forks)
{
    const double X2 = X + L * std::cos(A);
    const double Y2 = Y + L * std::sin(A);
    StrokeLine(G, X, Y, X2, Y2, Own.Bark, W);
    if (Has(Own.R, "snow") && W < 4)
        StrokeLine(G, X, Y - W * .5, X2, Y2 - W * .5, "#ffffff", std::max<double>(1, W * .5));
    if (Forks) {
        for (const double Da : {-.55, .02, .5}) {
            DrawBranch(G, Own, X2, Y2, A + Da + Uniform(Own.Chance, -.12, .12), L * .72, W * .62,
                       Forks - 1);
        }
    }
}

static void DrawBare(QPainter& G, Tree& Own)
{
    DrawBranch(G, Own, 50, 96, -M_PI / 2, 30, 8, 4);
}

static void DrawBirch(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 7, 20);
    Blobs(G, Own,
          {{34, 54, 12}, {66, 52, 12}, {36, 34, 13}, {64, 32, 13}, {50, 16, 13}, {50, 44, 10}});
}

static void DrawCactus(QPainter& G, Tree& Own)
{
    QPainterPath Path = QPainterPath(Rounded(42, 8, 17, 88, 8.5));
    Path = Path.united(Rounded(18, 34, 12, 30, 6))
               .united(Rounded(18, 54, 30, 11, 5.5))
               .united(Rounded(71, 24, 12, 30, 6))
               .united(Rounded(54, 44, 29, 11, 5.5));
    Outline(G, Path, Linear(18, 0, 84, 0, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .25)}),
            Dark(Own.Tint, .5), 1.6);
    for (int Y = 14; Y < 92; Y += 7)
        for (const double X : {46, 51, 56})
            Fill(G, Circle(X, Y + std::fmod(X, 2) * 3, .6), Alpha("#ffffff", .75));
    if (Own.Accent.isValid()) Fruits(G, Own, {{50, 6}, {24, 32}, {77, 22}}, Own.Accent, 5);
}

static void DrawBonsai(QPainter& G, Tree& Own)
{
    Outline(G, Polygon({{22, 82}, {78, 82}, {72, 97}, {28, 97}}), "#b0482a", "#4a1a0a", 1.5);
    Outline(G, Rounded(19, 78, 62, 7, 2), "#c8603a", "#4a1a0a", 1.4);
    const QPainterPath Path =
        Tube({{46, 80, 5.4}, {40, 68, 4.8}, {52, 56, 4}, {60, 44, 3.4}, {50, 32, 2.6}});
    Outline(G, Path, Own.Bark, Dark(Own.Bark, .5), 1.3);
    StrokeLine(G, 44, 64, 26, 56, Own.Bark, 3);
    Blobs(G, Own, {{20, 54, 9}, {32, 52, 9}, {26, 48, 8}});
    Blobs(G, Own, {{70, 42, 10}, {82, 44, 8}, {76, 36, 8}});
    Blobs(G, Own, {{40, 24, 10}, {52, 20, 11}, {64, 25, 9}, {50, 28, 9}});
}

static void DrawCedar(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 8, 20);
    for (const auto& [Y, W] :
         Table<double, double>{{78, 44}, {60, 40}, {42, 32}, {26, 22}, {12, 12}}) {
        Outline(G,
                ClosedCurve({{50 - W, Y},
                             {50 - W * .6, Y - 9},
                             {50, Y - 12},
                             {50 + W * .6, Y - 9},
                             {50 + W, Y},
                             {50 + W * .5, Y + 3},
                             {50, Y + 1},
                             {50 - W * .5, Y + 3}}),
                Linear(0, Y - 12, 0, Y + 4, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .2)}),
                Dark(Own.Tint, .5), 1.4);
    }
}

static void DrawJoshua(QPainter& G, Tree& Own)
{
    for (const Points& Pts : std::vector<Points>{{{50, 96}, {50, 70}, {34, 50}, {26, 30}},
                                                 {{50, 72}, {64, 54}, {72, 28}},
                                                 {{38, 54}, {48, 36}, {50, 18}}}) {
        Stroke(G, Curve(Pts), Dark(Own.Bark, .4), 9);
        Stroke(G, Curve(Pts), Own.Bark, 7);
    }
    for (const auto& [X, Y] : Table<double, double>{{26, 28}, {72, 26}, {50, 16}}) {
        for (int I = 0; I < 14; ++I) {
            const double A = I * 2 * M_PI / 14;
            StrokeLine(G, X, Y, X + 13 * std::cos(A), Y + 13 * std::sin(A),
                       I % 2 ? Own.Tint : Dark(Own.Tint, .25), 2.4);
        }
    }
}

static void DrawBamboo(QPainter& G, Tree& Own)
{
    for (const auto& [X, H] : Table<double, double>{{34, 4}, {50, -2}, {66, 8}}) {
        for (int I = 0; I < 7; ++I) {
            double Y = 96 - I * 13.6;
            if (Y < H + 6) break;
            Outline(
                G, Rounded(X - 3.4, Y - 13, 6.8, 13, 2),
                Linear(X - 4, 0, X + 4, 0, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .2)}),
                Dark(Own.Tint, .5), 1);
        }
        for (const auto& [Y, Side] : Table<double, double>{{70, 1}, {48, -1}, {28, 1}}) {
            for (const double A : {-20, 14}) {
                Outline(G, Ellipse(X + Side * 13, Y - 6 + A * .2, 11, 3, Side * (A - 14)),
                        Light(Own.Tint, .12), Dark(Own.Tint, .45), .8);
            }
        }
    }
}

static void DrawBanana(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 9, 40);
    for (const double A : {-160, -125, -90, -55, -20}) {
        double R = Radians(A);
        Outline(G, Ellipse(50 + 24 * std::cos(R), 40 + 24 * std::sin(R), 26, 8, A),
                Linear(0, 0, 0, 60, {Light(Own.Tint, .3), Own.Tint}), Dark(Own.Tint, .45), 1.3);
        StrokeLine(G, 50, 40, 50 + 46 * std::cos(R), 40 + 46 * std::sin(R), Dark(Own.Tint, .3),
                   1.2);
    }
    for (int I = 0; I < 4; ++I) {
        Outline(
            G,
            ClosedCurve(
                {{52.0 + I * 4, 44}, {56.0 + I * 4, 56}, {64.0 + I * 3, 62}, {60.0 + I * 4, 52}}),
            "#ffd83a", "#8a6a10", .9);
    }
}

static void DrawMangrove(QPainter& G, Tree& Own)
{
    Fill(G, Ellipse(50, 94, 42, 6), "#5ab0e0");
    for (const double X : {22, 34, 44, 56, 66, 78})
        Stroke(G, Curve({{50, 58}, {(50 + X) / 2, 64}, {X, 92}}), Own.Bark, 3.4);
    Trunk(G, Own, 7, 40, 64, 1);
    Blobs(G, Own,
          {{28, 42, 13}, {72, 42, 13}, {40, 28, 14}, {60, 28, 14}, {50, 42, 14}, {50, 18, 11}});
}

static void DrawMonkey(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 6, 20);
    for (int I = 0; const double Y : {84, 72, 60, 48, 36, 24, 14}) {
        double W = 38 - I * 4.6;
        for (const double Side : {-1, 1}) {
            QPainterPath Path =
                Curve({{50, Y}, {50 + Side * W * .5, Y + 4}, {50 + Side * W, Y - 4}});
            Stroke(G, Path, Dark(Own.Tint, .4), 6);
            Stroke(G, Path, I % 2 ? Own.Tint : Light(Own.Tint, .15), 4.2);
        }
        ++I;
    }
}

static void DrawStump(QPainter& G, Tree& Own)
{
    Outline(G, Polygon({{26, 56}, {74, 56}, {80, 92}, {88, 96}, {12, 96}, {20, 92}}),
            Linear(20, 0, 80, 0, {Light(Own.Bark, .2), Own.Bark, Dark(Own.Bark, .25)}),
            Dark(Own.Bark, .5), 1.5);
    Outline(G, Ellipse(50, 56, 25, 10), "#e8c890", Dark(Own.Bark, .4), 1.5);
    for (const double F : {.7, .45, .2}) Stroke(G, Ellipse(50, 56, 25 * F, 10 * F), "#a87a40", 1.4);
    Stroke(G, Curve({{66, 60}, {72, 40}, {70, 24}}), "#4aa03a", 3);
    Outline(G, Ellipse(60, 28, 11, 5, 20), "#5ac04a", "#1e6a1a", 1);
    Outline(G, Ellipse(80, 24, 11, 5, -24), "#5ac04a", "#1e6a1a", 1);
}

static void DrawDragon(QPainter& G, Tree& Own)
{
    Trunk(G, Own, 9, 54);
    for (const double X : {16, 30, 43, 57, 70, 84})
        Stroke(G, Curve({{50, 62}, {50 + (X - 50) * .5, 46}, {X, 32}}), Own.Bark, 4.4);
    Points Pts =
        Joined(Joined(Points{{4, 32}},
                      PointRow(13,
                               [&](int I) {
                                   return QPointF(8.0 + I * 7, 16 - 10 * std::sin(I / 12.0 * M_PI) +
                                                                   (I % 2 ? 4 : 0));
                               })),
               Points{{96, 32}, {80, 36}, {64, 34}, {50, 37}, {36, 34}, {20, 36}});
    Outline(G, ClosedCurve(Pts, .6),
            Linear(0, 8, 0, 40, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .2)}),
            Dark(Own.Tint, .4), 1.3);
}

static constexpr FigureRow<Tree> Figures[] = {
    {"round", DrawRound},       {"oval", DrawOval},         {"column", DrawColumn},
    {"pine", DrawPine},         {"palm", DrawPalm},         {"willow", DrawWillow},
    {"umbrella", DrawUmbrella}, {"baobab", DrawBaobab},     {"bare", DrawBare},
    {"birch", DrawBirch},       {"cactus", DrawCactus},     {"bonsai", DrawBonsai},
    {"cedar", DrawCedar},       {"joshua", DrawJoshua},     {"bamboo", DrawBamboo},
    {"banana", DrawBanana},     {"mangrove", DrawMangrove}, {"monkey", DrawMonkey},
    {"stump", DrawStump},       {"dragon", DrawDragon},
};

static void Draw(QPainter& G, Tree& Own)
{
    if (Text(Own.R, "ground", "1") != "0")
        Fill(G, Ellipse(50, 95, 34, 5), Alpha(Colour(Own.R, "gc", "#9ac46a"), .9));
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawTree(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const QColor Tint = Colour(R, "c", "#4aa03a");
    const QColor Bark = Colour(R, "trunk", "#7a4a26");
    const QColor Accent = Colour(R, "acc");
    Random Chance{static_cast<std::uint64_t>(Whole(R, "seed", 1))};
    Tree Own{R, Kind, Tint, Bark, Accent, Chance};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.1);
}
