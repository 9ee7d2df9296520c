// butterfly.cpp: butterflies from above; the right half is drawn, the left mirrored

#include "drawing.h"
#include "kinds.h"

// Outlines of the right wings.
static const QMap<QString, Points> ForeWings = {
    {"round", {{51, 44}, {58, 26}, {76, 9}, {92, 10}, {96, 26}, {86, 44}, {70, 54}, {52, 55}}},
    {"point", {{51, 44}, {60, 24}, {80, 8}, {98, 4}, {93, 24}, {84, 42}, {68, 53}, {52, 55}}},
    {"hook", {{51, 44}, {62, 22}, {84, 8}, {99, 10}, {90, 20}, {92, 34}, {78, 50}, {52, 55}}},
    {"long", {{51, 44}, {64, 28}, {84, 17}, {99, 18}, {99, 30}, {84, 44}, {66, 53}, {52, 54}}},
    {"narrow", {{51, 44}, {64, 28}, {86, 18}, {99, 26}, {88, 40}, {68, 50}, {52, 53}}},
};

static const QMap<QString, Points> HindWings = {
    {"round", {{52, 50}, {70, 51}, {86, 60}, {88, 76}, {74, 88}, {60, 82}, {52, 66}}},
    {"tail",
     {{52, 50},
      {72, 51},
      {87, 62},
      {82, 76},
      {80, 88},
      {84, 99},
      {76, 98},
      {70, 86},
      {60, 84},
      {52, 66}}},
    {"scallop",
     {{52, 50},
      {72, 51},
      {86, 58},
      {84, 66},
      {88, 72},
      {81, 78},
      {80, 86},
      {72, 85},
      {66, 92},
      {59, 82},
      {52, 66}}},
    {"comet",
     {{52, 50},
      {70, 51},
      {82, 62},
      {76, 74},
      {72, 84},
      {80, 100},
      {68, 99},
      {64, 84},
      {56, 76},
      {52, 64}}},
    {"small", {{52, 51}, {68, 52}, {80, 60}, {78, 72}, {66, 80}, {56, 74}, {52, 62}}},
};

struct Butterfly {
    const Recipe& R;
    QPainterPath Fore;
    QPainterPath Hind;
    QColor Tint;
    QColor Tint2;
    QColor HindTint;
    QColor HindTint2;
    double Clarity;
    QColor Border;
    double BorderWidth;
};

// A dark rim, with a row of light dots in it.
static void DrawBorder(QPainter& G, const Butterfly& Own, const QPainterPath& Path, bool IsFore)
{
    Stroke(G, Path, Own.Border, Own.BorderWidth * 2);
    if (!Has(Own.R, "bdots")) return;
    constexpr int Dots = 13;
    const QPointF Middle = IsFore ? QPointF(66, 36) : QPointF(66, 66);
    for (int I = 0; I < Dots; ++I) {
        const double T = static_cast<double>(I) / (Dots - 1);
        const QPointF Rim = Path.pointAtPercent(IsFore ? .16 + .62 * T : .14 + .66 * T);
        const QPointF Dot = Rim + (Middle - Rim) * .09;
        Fill(G, Circle(Dot.x(), Dot.y(), 1.7), Colour(Own.R, "bdots"));
    }
}

// Each eye is "wing/iris/ring": the wing is f(ore), h(ind) or b(oth).
static void DrawEyespots(QPainter& G, const Butterfly& Own, bool IsFore)
{
    const double X = IsFore ? 82 : 74, Y = IsFore ? 24 : 68;
    const double Size = 7.2 * Number(Own.R, "es", 1);
    for (const QString& Eye : Words(Own.R, "eyes", "+")) {
        const QStringList Parts = Eye.split('/');
        if (Parts.size() != 3) FatalError(Own.R.Place + ": an eye is wing/iris/ring");
        if (Parts[0] == (IsFore ? "h" : "f")) continue;
        Fill(G, Circle(X, Y, Size * 1.3), QColor(Parts[2]));
        Fill(G, Circle(X, Y, Size), "#16121c");
        Fill(G, Circle(X, Y, Size * .62), QColor(Parts[1]));
        Fill(G, Circle(X - Size * .25, Y - Size * .25, Size * .22), Alpha("#ffffff", .9));
    }
}

static void DrawForeMarks(QPainter& G, const Butterfly& Own)
{
    if (Has(Own.R, "tip")) {
        Fill(G, ClosedCurve({{70, -6}, {84, 14}, {84, 34}, {110, 40}, {110, -10}}, .5),
             Colour(Own.R, "tip"));
    }
    if (Has(Own.R, "band")) {
        Stroke(G, Curve({{66, 10}, {76, 26}, {84, 46}}), Colour(Own.R, "band"),
               Number(Own.R, "bandw", 8));
    }
    if (Has(Own.R, "stripes")) {
        for (int I = 0; I < 4; ++I) {
            StrokeLine(G, 58 + I * 9, 0 + I * 2, 64 + I * 9, 60, Colour(Own.R, "stripes"),
                       Number(Own.R, "sw", 3.6));
        }
    }
    if (Has(Own.R, "tipdots"))
        for (const auto& [X, Y, R] :
             Table<double, double, double>{{80, 17, 3}, {88, 22, 2.6}, {84, 28, 2.4}, {90, 31, 2}})
            Fill(G, Circle(X, Y, R), Colour(Own.R, "tipdots"));
    if (Has(Own.R, "cell"))
        for (const auto& [X, Y, R] :
             Table<double, double, double>{{66, 34, 4.2}, {74, 24, 4}, {78, 40, 3.6}})
            Fill(G, Circle(X, Y, R), Colour(Own.R, "cell"));
}

static void DrawHindMarks(QPainter& G, const Butterfly& Own)
{
    if (Has(Own.R, "hband")) {
        Stroke(G, Curve({{56, 74}, {70, 66}, {86, 60}}), Colour(Own.R, "hband"),
               Number(Own.R, "bandw", 8));
    }
    if (Has(Own.R, "stripes")) {
        for (int I = 0; I < 3; ++I) {
            StrokeLine(G, 58 + I * 9, 48, 60 + I * 8, 90, Colour(Own.R, "stripes"),
                       Number(Own.R, "sw", 3.6));
        }
    }
    if (Has(Own.R, "hcell"))
        for (const auto& [X, Y, R] : Table<double, double, double>{
                 {64, 60, 3.4}, {74, 62, 3.2}, {68, 70, 3.2}, {79, 70, 3}})
            Fill(G, Circle(X, Y, R), Colour(Own.R, "hcell"));
}

static void Wing(QPainter& G, const Butterfly& Own, const QPainterPath& Path, const QColor& Inner,
                 const QColor& Outer, bool IsFore)
{
    const QColor A = Alpha(Inner, Own.Clarity);
    const QColor B = Alpha(Outer, Own.Clarity);
    Fill(G, Path, Radial(52, 50, 52, {A, A, B}));
    G.save();
    G.setClipPath(Path);
    if (Has(Own.R, "root")) {
        FillBox(G, 0, 0, 100, 100,
                Radial(52, 50, 24,
                       {Colour(Own.R, "root"), Alpha(Colour(Own.R, "root"), .8),
                        Alpha(Colour(Own.R, "root"), 0)}));
    }
    if (IsFore)
        DrawForeMarks(G, Own);
    else
        DrawHindMarks(G, Own);
    if (Has(Own.R, "patch")) {
        Fill(G, Ellipse(74, !IsFore ? 60 : 32, 22, 18),
             Radial(72, !IsFore ? 62 : 30, 24,
                    {Colour(Own.R, "patch"), Alpha(Colour(Own.R, "patch"), .85),
                     Alpha(Colour(Own.R, "patch"), 0)}));
    }
    if (Has(Own.R, "vein")) {
        if (IsFore) {
            for (const QPointF& E : Points{{80, 6}, {94, 12}, {96, 26}, {90, 40}, {78, 52}}) {
                Stroke(G, Curve({{52, 48}, {66, 36}, E}), Colour(Own.R, "vein"),
                       Number(Own.R, "vw", 1.9));
            }
        } else {
            for (const QPointF& E : Points{{88, 60}, {88, 74}, {76, 88}, {62, 84}}) {
                Stroke(G, Curve({{52, 52}, {66, 62}, E}), Colour(Own.R, "vein"),
                       Number(Own.R, "vw", 1.9));
            }
        }
    }
    if (Own.Border.isValid()) DrawBorder(G, Own, Path, IsFore);
    if (Has(Own.R, "fringe")) Stroke(G, Path, Colour(Own.R, "fringe"), 4);
    DrawEyespots(G, Own, IsFore);
    if (Has(Own.R, "lunule") && !IsFore) {
        const std::vector<QColor> Moons = Colours(Own.R, "lunule");
        Fill(G, Circle(78, 72, 3), Moons.front());
        Fill(G, Circle(72, 79, 3), Moons.front());
        Fill(G, Circle(62, 78, 3.6), Moons.back());
    }
    if (Has(Own.R, "checks")) {
        for (const auto& [X2, Y2] : Table<double, double>{{62, 32},
                                                          {74, 18},
                                                          {86, 16},
                                                          {80, 32},
                                                          {68, 46},
                                                          {92, 28},
                                                          {64, 58},
                                                          {76, 58},
                                                          {84, 68},
                                                          {70, 72},
                                                          {60, 72},
                                                          {76, 82}}) {
            Fill(G, Polygon({{X2 - 4, Y2}, {X2, Y2 - 4}, {X2 + 4, Y2}, {X2, Y2 + 4}}),
                 Colour(Own.R, "checks"));
        }
    }
    G.restore();
    Stroke(G, Path, Colour(Own.R, "line", Dark(Own.Border.isValid() || Own.Tint.isValid(), .45)),
           1.4);
}

static void Draw(QPainter& G, const Butterfly& Own)
{
    for (const double M : {0, 1}) {
        G.save();
        if (M) {
            G.translate(100, 0);
            G.scale(-1, 1);
        }
        Wing(G, Own, Own.Hind, Own.HindTint, Own.HindTint2, false);
        Wing(G, Own, Own.Fore, Own.Tint, Own.Tint2, true);
        G.restore();
    }
    const QColor BodyColour = Colour(Own.R, "body", "#2a211c");
    for (const double Side : {-1, 1}) {
        const QPainterPath Path = Curve({{50, 34}, {50 + Side * 5, 20}, {50 + Side * 11, 8}});
        Stroke(G, Path, BodyColour, 1.5);
        Outline(G, Circle(50 + Side * 11, 8, 1.8), BodyColour, BodyColour, 1.5);
    }
    Outline(G, Ellipse(50, 62, 3.4, 18), Linear(46, 0, 54, 0, {Light(BodyColour, .3), BodyColour}),
            Dark(BodyColour, .3), .8);
    Outline(G, Ellipse(50, 44, 4.6, 8), Linear(45, 0, 55, 0, {Light(BodyColour, .35), BodyColour}),
            Dark(BodyColour, .3), .8);
    Outline(G, Circle(50, 34.5, 3.6), BodyColour, Dark(BodyColour, .3), .8);
}

void DrawButterfly(QPainter& P, const Recipe& R)
{
    const QPainterPath Fore = ClosedCurve(Named(ForeWings, Text(R, "fore", "round"), R), .7);
    const QPainterPath Hind = ClosedCurve(Named(HindWings, Text(R, "hind", "round"), R), .7);
    const QColor Tint = Colour(R, "c", "#f58a1f");
    const QColor Tint2 = Colour(R, "c2", Dark(Tint, .25));
    const QColor HindTint = Colour(R, "h", Tint);
    const QColor HindTint2 = Colour(R, "h2", Dark(HindTint, .25));
    const double Clarity = Number(R, "alpha", 1);
    const QColor Border = Colour(R, "border");
    const double BorderWidth = Number(R, "bw", 7);
    const Butterfly Own{R,        Fore,      Hind,    Tint,   Tint2,
                        HindTint, HindTint2, Clarity, Border, BorderWidth};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawShadowed(P, Drawing);
}
