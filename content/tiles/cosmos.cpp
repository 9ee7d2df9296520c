// cosmos.cpp: stars, planets, nebulae and craft, each on a square of night sky

#include "drawing.h"
#include "kinds.h"

struct Cosmos {
    const Recipe& R;
    QColor Tint;
    Random Chance;
};

static void DrawGlow(QPainter& G, double X, double Y, double Radius, const QColor& Tint)
{
    Fill(G, Circle(X, Y, Radius),
         Radial(X, Y, Radius,
                {QColor("#ffffff"), Alpha(Tint, .8), Alpha(Tint, .25), Alpha(Tint, 0)}));
}

// An uneven blot, for continents and lava.
static QPainterPath Blot(double X, double Y, double Size)
{
    return ClosedCurve({{X - Size, Y},
                        {X - Size * .2, Y - Size * .8},
                        {X + Size, Y - Size * .2},
                        {X + Size * .5, Y + Size * .7},
                        {X - Size * .5, Y + Size * .5}});
}

static QPointF Somewhere(Random& R, double Radius)
{
    const double A = Uniform(R, 0, 2 * M_PI), Far = Uniform(R, 0, Radius);
    return {50 + Far * std::cos(A), 50 + Far * std::sin(A)};
}

// Half of a tilted ring: the far half is drawn before the ball, the near one after it.
static void DrawRing(QPainter& G, const QColor& Tint, double Radius, bool Near)
{
    G.save();
    G.translate(50, 50);
    G.rotate(-20);
    Stroke(G, Arc(-Radius * 1.75, -Radius * .5, Radius * 3.5, Radius, Near ? 180 : 0, 180),
           Alpha(Tint, .95), Radius * .22);
    G.restore();
}

static void DrawBall(QPainter& G, Cosmos& Own, double Radius)
{
    const QPainterPath Ball = Circle(50, 50, Radius);
    G.save();
    G.setClipPath(Ball, Qt::IntersectClip);
    Fill(G, Ball, Own.Tint);
    const std::vector<QColor> Bands = Colours(Own.R, "bands");
    const double High = Bands.empty() ? 0 : 2 * Radius / static_cast<double>(Bands.size());
    for (std::size_t I = 0; I < Bands.size(); ++I) {
        const double Y = 50 - Radius + High * static_cast<double>(I);
        Fill(G,
             ClosedCurve({{46 - Radius, Y},
                          {50 - Radius * .3, Y + Radius * .05},
                          {50 + Radius * .3, Y - Radius * .05},
                          {54 + Radius, Y},
                          {54 + Radius, Y + High + 1},
                          {46 - Radius, Y + High + 1}},
                         .6),
             Bands[I]);
    }
    if (Has(Own.R, "spots"))
        for (int I = 0; I < 8; ++I) {
            const QPointF At = Somewhere(Own.Chance, Radius * .8);
            Fill(G, Blot(At.x(), At.y(), Uniform(Own.Chance, .12, .32) * Radius),
                 Colour(Own.R, "spots"));
        }
    if (Has(Own.R, "craters"))
        for (int I = 0; I < 9; ++I) {
            const QPointF At = Somewhere(Own.Chance, Radius * .85);
            const double Size = Uniform(Own.Chance, .08, .2) * Radius;
            Fill(G, Circle(At.x(), At.y(), Size), Dark(Own.Tint, .25));
            Fill(G, Circle(At.x() + Size * .2, At.y() + Size * .2, Size * .75),
                 Light(Own.Tint, .2));
        }
    if (Has(Own.R, "cap")) {
        Fill(G, Ellipse(50, 50 - Radius, Radius * .6, Radius * .28), Colour(Own.R, "cap"));
        Fill(G, Ellipse(50, 50 + Radius, Radius * .45, Radius * .2), Colour(Own.R, "cap"));
    }
    Fill(G, Ball,
         Radial(50 - Radius * .35, 50 - Radius * .35, Radius * 1.5,
                {Alpha("#ffffff", .35), Alpha("#000000", 0), Alpha("#000000", .75)}));
    G.restore();
}

static void DrawPlanet(QPainter& G, Cosmos& Own)
{
    const double Radius = Number(Own.R, "r", 36);
    if (Has(Own.R, "ring")) DrawRing(G, Colour(Own.R, "ring"), Radius, false);
    DrawBall(G, Own, Radius);
    if (Has(Own.R, "ring")) DrawRing(G, Colour(Own.R, "ring"), Radius, true);
}

static void DrawCrescent(QPainter& G, Cosmos& Own)
{
    Fill(G, Circle(50, 50, 38), Radial(50, 50, 38, {Alpha("#cfe0ff", .3), Alpha("#cfe0ff", 0)}));
    const QPainterPath Moon = Circle(50, 50, 34).subtracted(Ellipse(64, 45, 30, 32));
    Fill(G, Moon, Linear(16, 20, 60, 80, {"#fffbe6", "#d8d4c8", "#a8a498"}));
    G.save();
    G.setClipPath(Moon, Qt::IntersectClip);
    for (int I = 0; I < 10; ++I) {
        const QPointF At = Somewhere(Own.Chance, 32);
        Fill(G, Circle(At.x() - 8, At.y(), Uniform(Own.Chance, 2, 4.5)), Alpha("#8a8678", .55));
    }
    G.restore();
}

static void DrawSun(QPainter& G, Cosmos& Own)
{
    DrawGlow(G, 50, 50, 46, Own.Tint);
    Fill(G, Circle(50, 50, 23), Radial(46, 46, 26, {"#ffffff", Light(Own.Tint, .4), Own.Tint}));
}

static void DrawSpiral(QPainter& G, Cosmos& Own)
{
    constexpr int Arms = 2, Stars = 240;
    G.translate(50, 50);
    G.rotate(-28);
    G.scale(1.06, .8);
    for (int Arm = 0; Arm < Arms; ++Arm)
        for (int I = 0; I < Stars; ++I) {
            const double T = static_cast<double>(I) / Stars;
            const double A = Arm * 2 * M_PI / Arms + T * 5.4, Far = 6 + 40 * T;
            const double X = Far * std::cos(A) + Gauss(Own.Chance, 0, 2.6);
            const double Y = Far * std::sin(A) + Gauss(Own.Chance, 0, 2.6);
            const QColor Shine = Mix("#7ab0ff", "#ffffff", Uniform(Own.Chance) * .7);
            Fill(G, Circle(X, Y, 2.3 * (1.2 - T)), Alpha(Shine, .85 * (1 - T * .5)));
        }
    Fill(G, Circle(0, 0, 20), Radial(0, 0, 20, {"#ffffff", "#ffe8a0", Alpha("#ffc860", 0)}));
}

static void DrawEdgeOn(QPainter& G, Cosmos&)
{
    G.translate(50, 50);
    G.rotate(24);
    Fill(G, Ellipse(0, 0, 50, 11),
         Linear(-46, 0, 46, 0,
                {Alpha("#ffb0d0", 0), "#ffb0d0", "#fff6e0", "#ffb0d0", Alpha("#ffb0d0", 0)}));
    Fill(G, Ellipse(0, 0, 21, 17), Radial(0, 0, 21, {"#ffffff", "#ffd890", Alpha("#ffb060", 0)}));
    StrokeLine(G, -42, 0, 42, 0, "#2a0a1a", 3);
}

static void DrawNebula(QPainter& G, Cosmos& Own)
{
    const std::vector<QColor> Gases = Colours(Own.R, "c");
    for (int I = 0; I < 46; ++I) {
        const double A = Uniform(Own.Chance, 0, 2 * M_PI);
        const double Far = std::abs(Gauss(Own.Chance, 0, 18));
        const double X = 50 + Far * std::cos(A) * 1.3, Y = 50 + Far * std::sin(A);
        const double Size = Uniform(Own.Chance, 9, 20);
        const QColor Gas = Cycled(Gases, I);
        Fill(G, Circle(X, Y, Size), Radial(X, Y, Size, {Alpha(Gas, .34), Alpha(Gas, 0)}));
    }
    for (int I = 0; I < 5; ++I) {
        const double X = Uniform(Own.Chance, 20, 80), Y = Uniform(Own.Chance, 20, 80);
        DrawGlow(G, X, Y, 5, "#ffffff");
    }
}

static void DrawRingNebula(QPainter& G, Cosmos&)
{
    Fill(G, Ellipse(50, 50, 40, 32),
         Radial(50, 50, 40,
                {Alpha("#2a6aff", 0), Alpha("#2a6aff", .15), Alpha("#3ad0ff", .95),
                 Alpha("#ffd23a", .9), Alpha("#ff4a2a", .7), Alpha("#ff2a2a", 0)}));
    DrawGlow(G, 50, 50, 6, "#ffffff");
}

static void DrawBlackHole(QPainter& G, Cosmos&)
{
    Fill(G, Ellipse(50, 50, 44, 40),
         Radial(50, 50, 46,
                {Alpha("#ff9a1c", 0), Alpha("#ff9a1c", 0), Alpha("#ffb03a", .9),
                 Alpha("#ff5a1c", .5), Alpha("#ff5a1c", 0)}));
    Outline(G, Circle(50, 50, 21.5), "#000000", "#ffe8a0", 2.4);
    G.translate(50, 50);
    G.rotate(-16);
    Fill(G, Ellipse(0, 0, 47, 4.4),
         Linear(-46, 0, 46, 0,
                {Alpha("#ff7a1c", 0), "#ffb03a", "#fff6d0", "#ffb03a", Alpha("#ff7a1c", 0)}));
}

static void DrawComet(QPainter& G, Cosmos&)
{
    for (int I = 0; I < 26; ++I) {
        const double T = I / 26.0;
        Fill(G, Ellipse(30 + T * 60, 70 - T * 56, 9 + 5 * T, 9 - 3 * T),
             Alpha("#8ad0ff", .34 * (1 - T)));
    }
    DrawGlow(G, 30, 70, 16, "#8ad0ff");
}

static void DrawMeteors(QPainter& G, Cosmos&)
{
    for (const auto& [X, Y] :
         Table<double, double>{{20, 48}, {44, 78}, {62, 40}, {16, 86}, {70, 74}}) {
        StrokeLine(G, X, Y, X + 9, Y - 9, Alpha("#ffe8b0", .95), 2.6);
        StrokeLine(G, X + 9, Y - 9, X + 26, Y - 26, Alpha("#ffb060", .6), 1.6);
        DrawGlow(G, X, Y, 5, "#ffe8b0");
    }
}

static void DrawEclipse(QPainter& G, Cosmos&)
{
    DrawGlow(G, 50, 50, 46, "#fff0c0");
    Outline(G, Circle(50, 50, 24.5), "#05060e", "#fffbe8", 1.6);
    DrawGlow(G, 67, 33, 8, "#ffffff");
}

static void DrawNova(QPainter& G, Cosmos&)
{
    for (int I = 0; I < 16; ++I) {
        const double A = I * M_PI / 8, Long = I % 2 ? 28 : 46;
        StrokeLine(G, 50, 50, 50 + Long * std::cos(A), 50 + Long * std::sin(A),
                   Alpha(I % 2 ? "#ff6a3a" : "#ffd86a", .85), I % 2 ? 2 : 3);
    }
    DrawGlow(G, 50, 50, 26, "#ffb03a");
}

static void DrawBinary(QPainter& G, Cosmos&)
{
    Stroke(G, Ellipse(51, 48, 34, 16), Alpha("#ffffff", .5), 1.2);
    DrawGlow(G, 34, 58, 24, "#ff8a3a");
    DrawGlow(G, 68, 38, 18, "#6ab8ff");
}

static void DrawConstellation(QPainter& G, Cosmos& Own)
{
    static const QMap<QString, Points> Figures = {
        {"dipper",
         {{14, 30}, {30, 34}, {42, 42}, {54, 50}, {58, 68}, {82, 70}, {84, 50}, {54, 50}}},
        {"orion",
         {{30, 16},
          {68, 20},
          {56, 48},
          {50, 50},
          {44, 52},
          {30, 82},
          {70, 80},
          {56, 48},
          {30, 16},
          {44, 52}}},
    };
    const Points& Stars = Named(Figures, Text(Own.R, "n"), Own.R);
    Stroke(G, Polyline(Stars), Alpha("#9ac0ff", .8), 1.6);
    for (const QPointF& Star1 : Stars) DrawGlow(G, Star1.x(), Star1.y(), 7.5, "#bcd8ff");
}

static void DrawAsteroids(QPainter& G, Cosmos& Own)
{
    for (const auto& [X, Y, Size, Tone] :
         Table<double, double, double, QColor>{{34, 40, 19, "#8a7a6a"},
                                               {70, 66, 15, "#6a6a72"},
                                               {74, 24, 8, "#9a8a72"},
                                               {22, 78, 9, "#7a6e62"}}) {
        Points Rim;
        for (int I = 0; I < 8; ++I) {
            const double Far = Size * Uniform(Own.Chance, .75, 1.1), A = I * M_PI / 4;
            Rim.push_back({X + Far * std::cos(A), Y + Far * std::sin(A)});
        }
        Outline(G, ClosedCurve(Rim, .6),
                Radial(X - Size * .4, Y - Size * .4, Size * 1.6,
                       {Light(Tone, .4), Tone, Dark(Tone, .5)}),
                Dark(Tone, .6), 1);
        for (const auto& [Dx, Dy] : Table<double, double>{{-.2, -.2}, {.3, .2}, {-.3, .4}})
            Fill(G, Circle(X + Size * Dx, Y + Size * Dy, Size * .16), Alpha(Dark(Tone, .4), .8));
    }
}

static void DrawObject(QPainter& G, Cosmos& Own)
{
    const double Inset = Number(Own.R, "pad", 14);
    DrawFitted(G, EmojiImage(Text(Own.R, "cp")),
               QRectF(Inset, Inset, 100 - 2 * Inset, 100 - 2 * Inset));
}

static void DrawCraft(QPainter& G, Cosmos& Own)
{
    Recipe Craft = Own.R;
    Craft.Values["k"] = Text(Own.R, "pk");
    Craft.Values["box"] = "14";
    DrawPlane(G, Craft);
}

static constexpr FigureRow<Cosmos> Figures[] = {
    {"star1", DrawSun},       {"planet", DrawPlanet},       {"crescent", DrawCrescent},
    {"spiral", DrawSpiral},   {"edge", DrawEdgeOn},         {"nebula", DrawNebula},
    {"ring", DrawRingNebula}, {"blackhole", DrawBlackHole}, {"comet", DrawComet},
    {"meteors", DrawMeteors}, {"eclipse", DrawEclipse},     {"nova", DrawNova},
    {"binary", DrawBinary},   {"const", DrawConstellation}, {"asteroids", DrawAsteroids},
    {"emoji", DrawObject},    {"plane", DrawCraft},
};

void DrawCosmos(QPainter& P, const Recipe& R)
{
    Recipe Sky = R;
    Sky.Values.remove("bg");
    DrawFrame(P, "sky", Sky);
    const std::vector<QColor> Tints = Colours(R, "c", "#ffffff");
    Cosmos Own{R, Tints.front(), Random{static_cast<std::uint64_t>(Whole(R, "seed", 5))}};
    P.save();
    P.setClipPath(Rounded(2, 2, 96, 96, 11));
    DrawFigure(P, Own, Figures, Text(R, "k"), R);
    P.restore();
}
