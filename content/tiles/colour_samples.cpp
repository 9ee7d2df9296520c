// colour_samples.cpp: one colour as a splash of paint, a tube, a crayon or a gem

#include "drawing.h"
#include "kinds.h"

struct ColourSample {
    const Recipe& R;
    QColor Tint;
    QString Kind;
    QColor Edge;
};

// Each colour also has a sign of its own, for eyes that tell colours badly.
static void DrawMark(QPainter& G, const ColourSample& Own, double X, double Y, double Size)
{
    const QMap<QString, QPainterPath> Marks = {
        {"circle", Circle(0, 0, .9)},
        {"triangle", Regular(0, .2, 1.15, 3)},
        {"star", Star(0, 0, 1.2)},
        {"square", Box(-.85, -.85, 1.7, 1.7)},
        {"diamond", Polygon({{0, -1.2}, {.8, 0}, {0, 1.2}, {-.8, 0}})},
        {"cross", Star(0, 0, 1.2, 4, .35)},
        {"heart",
         ClosedCurve({{0, -.45}, {.6, -.95}, {1.05, -.35}, {0, 1.05}, {-1.05, -.35}, {-.6, -.95}},
                     .6)},
        {"moon", Circle(0, 0, 1).subtracted(Circle(.55, -.25, .85))},
        {"bars", Box(-1, -.85, 2, .65).united(Box(-1, .2, 2, .65))},
    };
    const QString Name = Text(Own.R, "mark");
    if (!Marks.contains(Name)) FatalError(Own.R.Place + ": no mark is called " + Quoted(Name));
    Outline(G, Moved(Marks[Name], X, Y, 0, Size), "#ffffff", Dark(Own.Tint, .55), 1.6);
}

static void DrawSplat(QPainter& G, const ColourSample& Own)
{
    Points Pts;
    Random Chance{static_cast<std::uint64_t>(Whole(Own.R, "seed", 1))};
    for (int I = 0; I < 22; ++I) {
        const double A = I * 2 * M_PI / 22;
        const double R = (I % 2 == 0 ? 44 : 27) * Uniform(Chance, .82, 1.08);
        Pts.push_back({50 + R * std::cos(A), 50 + R * std::sin(A)});
    }
    QPainterPath Path = ClosedCurve(Pts, .8);
    Outline(G, Path, Radial(40, 36, 60, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .12)}),
            Own.Edge, 1.8);
    DrawMark(G, Own, 50, 50, 18);
}

static void DrawTube(QPainter& G, const ColourSample& Own)
{
    G.translate(50, 50);
    G.rotate(-38);
    G.translate(-50, -50);
    Outline(G, Polygon({{24, 4}, {76, 4}, {69, 70}, {31, 70}}),
            Linear(30, 0, 70, 0, {"#c8d0d8", "#ffffff", "#aab4be"}), "#5a6470", 1.6);
    Outline(G, Rounded(22, 0, 56, 7, 2), "#b8c0c8", "#5a6470", 1.3);
    Outline(G, Polygon({{25.5, 16}, {74.5, 16}, {70, 62}, {30, 62}}), Own.Tint, Own.Edge, 1.3);
    DrawMark(G, Own, 50, 39, 15);
    Outline(G, Rounded(42, 70, 16, 8, 1), "#3a3f46", "#111", 1.2);
    QPainterPath Path = ClosedCurve({{46, 78},
                                     {54, 78},
                                     {60, 90},
                                     {52, 100},
                                     {60, 108},
                                     {46, 112},
                                     {36, 104},
                                     {46, 96},
                                     {42, 88}});
    Outline(G, Path, Linear(40, 0, 60, 0, {Light(Own.Tint, .3), Own.Tint}), Own.Edge, 1.4);
}

static void DrawCrayon(QPainter& G, const ColourSample& Own)
{
    G.translate(50, 50);
    G.rotate(45);
    G.translate(-50, -50);
    Outline(G, Polygon({{35, 20}, {44, -6}, {56, -6}, {65, 20}}),
            Linear(38, 0, 62, 0, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge,
            1.6);
    Outline(G, Rounded(33, 18, 34, 84, 3),
            Linear(36, 0, 64, 0, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .25)}), Own.Edge,
            1.6);
    for (const double Y : {30, 36, 86, 92}) {
        StrokeLine(G, 34, Y, 66, Y,
                   Own.Tint.lightness() > 60 ? QColor("#1a1a1a") : QColor("#ffffff"), 2.4);
    }
    DrawMark(G, Own, 50, 61, 13);
}

static void DrawGem(QPainter& G, const ColourSample& Own)
{
    const Points T = {{20, 30}, {34, 14}, {66, 14}, {80, 30}, {50, 90}};
    Outline(G, Polygon(T),
            Linear(20, 14, 80, 90, {Light(Own.Tint, .5), Own.Tint, Dark(Own.Tint, .3)}), Own.Edge,
            1.8);
    for (const auto& [Pts, F] :
         Table<Points, double>{{{{20, 30}, {34, 14}, {38, 30}}, .35},
                               {{{34, 14}, {66, 14}, {62, 30}, {38, 30}}, .6},
                               {{{66, 14}, {80, 30}, {62, 30}}, .2},
                               {{{20, 30}, {38, 30}, {50, 90}}, -.05},
                               {{{38, 30}, {62, 30}, {50, 90}}, .25},
                               {{{62, 30}, {80, 30}, {50, 90}}, -.25}})
        Outline(G, Polygon(Pts), F > 0 ? Light(Own.Tint, F) : Dark(Own.Tint, -F), Own.Edge, 1.1);
    Fill(G, Polygon({{42, 18}, {50, 18}, {44, 26}, {40, 26}}), Alpha("#ffffff", .7));
    DrawMark(G, Own, 50, 45, 14);
}

static constexpr FigureRow<const ColourSample> Figures[] = {
    {"splat", DrawSplat},
    {"tube", DrawTube},
    {"crayon", DrawCrayon},
    {"gem", DrawGem},
};

static void Draw(QPainter& G, const ColourSample& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawColourSample(QPainter& P, const Recipe& R)
{
    const QColor Tint = Colour(R, "c");
    const QString Kind = Text(R, "k");
    const QColor Edge = Dark(Tint, .5);
    const ColourSample Own{R, Tint, Kind, Edge};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing);
}
