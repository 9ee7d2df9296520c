// sea.cpp: sea creatures that no emoji shows

#include "drawing.h"
#include "kinds.h"

struct Sea {
    const Recipe& R;
    QString Kind;
    QColor Tint;
    QColor Edge;
};

static void Eye(QPainter& G, const Sea&, double X, double Y, double R = 4)
{
    Fill(G, Circle(X, Y, R), "#fff");
    Fill(G, Circle(X, Y, R * .6), "#111");
    Fill(G, Circle(X - R * .25, Y - R * .25, R * .22), "#fff");
}

static void DrawStarfish(QPainter& G, const Sea& Own)
{
    Points Pts;
    for (int I = 0; I < 10; ++I) {
        double A = Radians(-90 + I * 36);
        const int R = I % 2 == 0 ? 48 : 20;
        Pts.push_back({50 + R * std::cos(A), 52 + R * std::sin(A)});
    }
    Outline(G, ClosedCurve(Pts, .55),
            Radial(42, 42, 56, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .15)}), Own.Edge, 2);
    for (int I = 0; I < 5; ++I) {
        double A = Radians(-90 + I * 72);
        for (const double R : {10, 19, 28, 36}) {
            Fill(G, Circle(50 + R * std::cos(A), 52 + R * std::sin(A), 3.2 - R * .045),
                 Light(Own.Tint, .6));
        }
    }
}

static void DrawSeahorse(QPainter& G, const Sea& Own)
{
    const QPainterPath Path = Tube({{58, 92, 1.6},
                                    {48, 96, 2.4},
                                    {40, 88, 3},
                                    {46, 78, 4.4},
                                    {56, 66, 7.4},
                                    {60, 50, 11},
                                    {54, 36, 8.6},
                                    {50, 24, 8.4},
                                    {42, 18, 7.4},
                                    {32, 22, 4.6},
                                    {18, 28, 3}});
    Outline(G, ClosedCurve({{66, 58}, {84, 48}, {84, 64}, {70, 68}}), Light(Own.Tint, .3), Own.Edge,
            1.4);
    Outline(G, Path, Linear(30, 0, 74, 0, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    for (const auto& [X, Y] : Table<double, double>{{54, 12}, {60, 18}, {64, 28}, {68, 38}}) {
        Outline(G, Polygon({{X, Y}, {X + 7, Y - 4}, {X + 3, Y + 6}}), Light(Own.Tint, .2), Own.Edge,
                1.1);
    }
    for (const auto& [X, Y] :
         Table<double, double>{{58, 42}, {60, 48}, {60, 54}, {58, 60}, {54, 67}})
        StrokeLine(G, X - 7, Y, X + 7, Y + 2, Dark(Own.Tint, .25), 1.6);
    Eye(G, Own, 41, 17, 4);
}

static void DrawRay(QPainter& G, const Sea& Own)
{
    Outline(G,
            ClosedCurve({{50, 10},
                         {64, 24},
                         {98, 44},
                         {74, 60},
                         {60, 74},
                         {50, 78},
                         {40, 74},
                         {26, 60},
                         {2, 44},
                         {36, 24}},
                        .6),
            Radial(50, 36, 52, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge, 1.8);
    const QPainterPath Path = Tube({{50, 74, 3}, {52, 86, 1.8}, {46, 98, .8}});
    Outline(G, Path, Own.Tint, Own.Edge, 1.2);
    for (const auto& [X, Y] : Table<double, double>{
             {34, 44}, {66, 44}, {24, 46}, {76, 46}, {40, 58}, {60, 58}, {50, 64}, {50, 50}})
        Fill(G, Circle(X, Y, 2.6), Alpha(Light(Own.Tint, .5), .8));
    Eye(G, Own, 42, 26, 3.4);
    Eye(G, Own, 58, 26, 3.4);
}

static void DrawUrchin(QPainter& G, const Sea& Own)
{
    for (int I = 0; I < 26; ++I) {
        double A = I * 2 * M_PI / 26;
        StrokeLine(G, 50 + 18 * std::cos(A), 50 + 18 * std::sin(A),
                   50 + (I % 2 ? 47 : 39) * std::cos(A), 50 + (I % 2 ? 47 : 39) * std::sin(A),
                   I % 2 ? Dark(Own.Tint, .2) : Own.Tint, 3.2);
    }
    Outline(G, Circle(50, 50, 26),
            Radial(42, 42, 34, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .25)}), Own.Edge,
            1.8);
    for (const double X : {42, 58}) Eye(G, Own, X, 48, 5);
    Stroke(G, Curve({{43, 60}, {50, 64}, {57, 60}}), "#fff", 1.8);
}

static void DrawNautilus(QPainter& G, const Sea& Own)
{
    Outline(
        G,
        ClosedCurve({{20, 58}, {4, 64}, {2, 76}, {10, 70}, {8, 84}, {16, 76}, {18, 90}, {26, 76}}),
        "#f6d8b0", "#7a5a3a", 1.4);
    Outline(
        G,
        ClosedCurve(
            {{18, 70}, {14, 48}, {26, 22}, {56, 10}, {86, 28}, {92, 58}, {74, 86}, {44, 88}}, .8),
        "#fff4e0", "#7a5a3a", 1.8);
    G.save();
    G.setClipPath(ClosedCurve(
        {{18, 70}, {14, 48}, {26, 22}, {56, 10}, {86, 28}, {92, 58}, {74, 86}, {44, 88}}, .8));
    for (int I = 0; I < 8; ++I) {
        double A = I * .62 - 2.6;
        Outline(G,
                Curve({{56 + 6 * std::cos(A), 54 + 6 * std::sin(A)},
                       {56 + 28 * std::cos(A + .35), 54 + 28 * std::sin(A + .35)},
                       {56 + 50 * std::cos(A + .1), 54 + 50 * std::sin(A + .1)}}),
                "#fff4e0", Own.Tint, 6.5);
    }
    G.restore();
    Stroke(
        G,
        ClosedCurve(
            {{18, 70}, {14, 48}, {26, 22}, {56, 10}, {86, 28}, {92, 58}, {74, 86}, {44, 88}}, .8),
        "#7a5a3a", 1.8);
    Stroke(G,
           Curve(PointRow(14,
                          [&](int T) {
                              return QPointF(56 + (3 + T * 1.5) * std::cos(T * .5),
                                             54 + (3 + T * 1.5) * std::sin(T * .5));
                          })),
           "#7a5a3a", 1.8);
    Eye(G, Own, 22, 62, 4.4);
}

static void DrawScallop(QPainter& G, const Sea& Own)
{
    Outline(G, Polygon({{38, 84}, {62, 84}, {66, 96}, {34, 96}}), Light(Own.Tint, .1), Own.Edge,
            1.6);
    Points Pts = Joined(Points{{50, 88}}, PointRow(11, [&](int I) {
                            return QPointF(
                                50 + (I % 2 == 0 ? 46 : 42) * std::cos(Radians(200 - I * -14 - 0)),
                                52 + (I % 2 == 0 ? 46 : 42) * std::sin(Radians(200 + I * 14)));
                        }));
    QPainterPath Path = ClosedCurve(
        Joined(Points{{50, 90}},
               PointRow(11,
                        [&](int I) {
                            return QPointF(
                                50 + 46 * std::cos(Radians(195 + I * 15)) * (I % 2 ? 1 : .95),
                                50 + 46 * std::sin(Radians(195 + I * 15)) * (I % 2 ? 1 : .95));
                        })),
        .5);
    Outline(G, Path, Radial(50, 90, 88, {Light(Own.Tint, .6), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.8);
    for (int I = 0; I < 9; ++I) {
        StrokeLine(G, 50, 88, 50 + 42 * std::cos(Radians(202 + I * 17)),
                   50 + 42 * std::sin(Radians(202 + I * 17)), Dark(Own.Tint, .25), 1.8);
    }
}

static void DrawWeed(QPainter& G, const Sea& Own)
{
    for (const auto& [X, Side, Tone] : Table<double, double, QColor>{
             {30, 1, Own.Tint}, {50, -1, Light(Own.Tint, .2)}, {70, 1, Dark(Own.Tint, .15)}}) {
        const QPainterPath Path = Tube({{X, 98, 4},
                                        {X + 7 * Side, 78, 5.4},
                                        {X - 7 * Side, 58, 5.4},
                                        {X + 7 * Side, 38, 4.6},
                                        {X - 5 * Side, 20, 3},
                                        {X + 2 * Side, 6, 1}});
        Outline(G, Path, Tone, Dark(Tone, .5), 1.5);
    }
    Outline(G, Ellipse(50, 98, 40, 6), "#e8cf9a", "#a8823a", 1.2);
}

static void DrawEel(QPainter& G, const Sea& Own)
{
    const QPainterPath Path = Tube({{8, 84, 1.4},
                                    {26, 90, 5},
                                    {44, 82, 7},
                                    {52, 66, 7.6},
                                    {42, 52, 7.6},
                                    {38, 38, 7.8},
                                    {52, 26, 8.4},
                                    {70, 22, 9},
                                    {88, 26, 6.4}});
    Outline(G, Path, Linear(0, 10, 0, 98, {Light(Own.Tint, .2), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    Random Chance{2};
    for (const auto& [X, Y] : Table<double, double>{{26, 90},
                                                    {34, 87},
                                                    {44, 82},
                                                    {50, 74},
                                                    {51, 64},
                                                    {45, 56},
                                                    {40, 48},
                                                    {38, 40},
                                                    {42, 32},
                                                    {50, 26},
                                                    {60, 23},
                                                    {68, 26}}) {
        Fill(G, Circle(X + Uniform(Chance, -3, 3), Y + Uniform(Chance, -3, 3), 2.1), "#ffe24a");
    }
    Eye(G, Own, 78, 19, 4);
    StrokeLine(G, 80, 29, 94, 28, Own.Edge, 1.8);
}

static void DrawHermit(QPainter& G, const Sea& Own)
{
    for (int I = 0; I < 3; ++I) {
        Stroke(G, Curve({{34, 70}, {20.0 - I * 4, 72.0 + I * 5}, {16.0 - I * 2, 90}}), "#c8482a",
               4.4);
    }
    Outline(G, ClosedCurve({{30, 58}, {14, 52}, {4, 60}, {12, 66}, {6, 74}, {20, 76}, {34, 72}}),
            "#e8603a", "#6a1a0a", 1.5);
    Outline(G,
            ClosedCurve({{30, 76},
                         {34, 44},
                         {52, 22},
                         {74, 8},
                         {84, 14},
                         {94, 44},
                         {90, 72},
                         {66, 90},
                         {44, 90}},
                        .7),
            Linear(30, 10, 94, 90, {Light(Own.Tint, .5), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge,
            1.8);
    for (const auto& [A, B, E] : Table<QPointF, QPointF, QPointF>{{{46, 30}, {66, 34}, {88, 26}},
                                                                  {{38, 46}, {64, 54}, {94, 46}},
                                                                  {{34, 64}, {60, 74}, {91, 66}}})
        Stroke(G, Curve({A, B, E}), Dark(Own.Tint, .3), 2.2);
    for (const double X : {28, 36}) {
        StrokeLine(G, X, 60, X - 3, 46, "#6a1a0a", 1.6);
        Eye(G, Own, X - 3, 44, 4);
    }
}

static void DrawBranch(QPainter& G, const Sea& Own, double X, double Y, double A, double L,
                       double W, int Forks)
{
    const double X2 = X + L * std::cos(A);
    const double Y2 = Y + L * std::sin(A);
    StrokeLine(G, X, Y, X2, Y2, Own.Tint, W);
    if (Forks)
        for (const double Da : {-.5, .05, .5})
            DrawBranch(G, Own, X2, Y2, A + Da, L * .76, W * .72, Forks - 1);
}

static void DrawCoralfan(QPainter& G, const Sea& Own)
{
    DrawBranch(G, Own, 50, 98, -M_PI / 2, 24, 8, 4);
}

static constexpr FigureRow<const Sea> Figures[] = {
    {"starfish", DrawStarfish}, {"seahorse", DrawSeahorse}, {"ray", DrawRay},
    {"urchin", DrawUrchin},     {"nautilus", DrawNautilus}, {"scallop", DrawScallop},
    {"weed", DrawWeed},         {"eel", DrawEel},           {"hermit", DrawHermit},
    {"coralfan", DrawCoralfan},
};

static void Draw(QPainter& G, const Sea& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawSea(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const QColor Tint = Colour(R, "c", "#ff7a3a");
    const QColor Edge = Dark(Tint, .5);
    const Sea Own{R, Kind, Tint, Edge};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.1);
}
