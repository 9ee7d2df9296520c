// sunset.cpp: evenings - a sky, a low sun, a strip of land or sea, and black shapes before them

#include "drawing.h"
#include "kinds.h"

// Five colours from the top down to the horizon.
static const QMap<QString, std::vector<QColor>> Skies = {
    {"gold", {"#2a1a4a", "#7a2a5a", "#e0582a", "#ffb03a", "#ffe88a"}},
    {"rose", {"#3a3a7a", "#8a5a9a", "#f08aa0", "#ffc0a8", "#fff0d0"}},
    {"red", {"#1a0a1a", "#5a0a1a", "#b81c1c", "#ff5a1c", "#ffc83a"}},
    {"violet", {"#0e0a3a", "#3a1a7a", "#7a3aa8", "#e06ab0", "#ffc0c8"}},
    {"teal", {"#0a2a4a", "#1a5a7a", "#4aa0a0", "#f0c88a", "#fff2c0"}},
    {"amber", {"#4a2a0a", "#a0581a", "#f0982a", "#ffd06a", "#fff8d0"}},
    {"blue", {"#061230", "#123a7a", "#3a7ac0", "#f0a88a", "#ffe0b0"}},
    {"green", {"#0a2a2a", "#2a5a4a", "#8aa85a", "#f0d86a", "#fffbd0"}},
    {"storm", {"#1a1e2a", "#3a4456", "#6a6a7a", "#e08a5a", "#ffd29a"}},
};

static const char* const Night = "#140a18"; // all that stands before the light

struct Sunset {
    const Recipe& R;
    std::vector<QColor> Sky;
    double Horizon;
    double SunX, SunY, SunSize;
    QColor SunTint;
    Random Chance;
};

static void DrawSky(QPainter& G, Sunset& Own)
{
    FillBox(G, 0, 0, 100, 100, Linear(0, 0, 0, Own.Horizon, Own.Sky));
    const QColor Sun = Own.SunTint;
    Fill(G, Circle(Own.SunX, Own.SunY, Own.SunSize * 3.2),
         Radial(Own.SunX, Own.SunY, Own.SunSize * 3.2,
                {Alpha(Sun, .85), Alpha(Sun, .25), Alpha(Sun, 0)}));
    Fill(G, Circle(Own.SunX, Own.SunY, Own.SunSize),
         Radial(Own.SunX, Own.SunY, Own.SunSize, {"#ffffff", Sun, Light(Sun, .1)}));
    if (!Has(Own.R, "bars")) return;
    for (int I = 0; I < 5; ++I) { // bars of cloud
        const double Y = 8 + I * Own.Horizon / 7 + Uniform(Own.Chance, -2, 2);
        const double X = Uniform(Own.Chance, -10, 60);
        Fill(G,
             ClosedCurve({{X, Y},
                          {X + 18, Y - 3},
                          {X + 44, Y - 1},
                          {X + 60, Y + 1},
                          {X + 34, Y + 3},
                          {X + 12, Y + 2}}),
             Alpha(Own.Sky[1], .45));
    }
}

static void DrawSea(QPainter& G, Sunset& Own)
{
    const double H = Own.Horizon;
    FillBox(G, 0, H, 100, 100,
            Linear(0, H, 0, 100, {Mix(Own.Sky[3], Own.Sky[1], .35), Own.Sky[1], Own.Sky[0]}));
    for (int I = 0; I < 9; ++I) { // glints under the sun
        const double W = Own.SunSize * (1.1 - .06 * I) + Uniform(Own.Chance, -3, 3);
        const double X = Own.SunX - W + Uniform(Own.Chance, -3, 3);
        FillBox(G, X, H + 2 + I * 4, 2 * W, 1.5, Alpha(Own.SunTint, .75 - .06 * I));
    }
}

// Three ranges, each nearer one darker: round hills, or peaks.
static void DrawRanges(QPainter& G, Sunset& Own, int Tops, bool Peaks)
{
    for (int Range = 0;
         const auto& [Height, Near] : Table<double, double>{{18, .45}, {10, .75}, {3, 1}}) {
        Points Rim = {{0, 100}};
        for (int I = 0; I <= Tops; ++I) {
            const double X = 100.0 * I / Tops;
            const double Y = Own.Horizon - Height * Uniform(Own.Chance, .4, 1.4) + Range * 6;
            Rim.push_back({X, Y});
            if (Peaks && I < Tops) Rim.push_back({X + 50.0 / Tops, Y + Height * .9 + 3});
        }
        Rim.push_back({100, 100});
        Fill(G, Peaks ? Polygon(Rim) : ClosedCurve(Rim, .7), Mix(Own.Sky[2], Night, Near));
        ++Range;
    }
}

static void DrawHills(QPainter& G, Sunset& Own)
{
    DrawRanges(G, Own, 7, false);
}

static void DrawMountains(QPainter& G, Sunset& Own)
{
    DrawRanges(G, Own, 5, true);
}

static void DrawDunes(QPainter& G, Sunset& Own)
{
    for (const auto& [Drop, Near] : Table<double, double>{{0, .5}, {12, .75}, {22, .95}}) {
        const double Y = Own.Horizon + Drop, Shift = Uniform(Own.Chance, -20, 20);
        Fill(G,
             ClosedCurve({{-10, Y + 8},
                          {30 + Shift, Y - 6},
                          {60 + Shift, Y + 4},
                          {110, Y - 8},
                          {110, 110},
                          {-10, 110}},
                         .7),
             Mix(Own.Sky[3], Night, Near));
    }
}

static void DrawPlain(QPainter& G, Sunset& Own)
{
    FillBox(G, 0, Own.Horizon, 100, 100, Night);
}

static void DrawField(QPainter& G, Sunset& Own)
{
    const double H = Own.Horizon;
    FillBox(G, 0, H, 100, 100, Linear(0, H, 0, 100, {Mix(Own.Sky[3], Night, .5), Night}));
    for (int Row = -8; Row <= 8; ++Row)
        StrokeLine(G, 50 + Row * 2, H, 50 + Row * 16, 100, Alpha(Night, .7), 1.2);
}

static void DrawCity(QPainter& G, Sunset& Own)
{
    for (int I = 0; I < 13; ++I) {
        const double X = I * 8 - 2, Height = Choice(Own.Chance, {12, 18, 26, 34, 22});
        const double Top = Own.Horizon + 14 - Height;
        FillBox(G, X, Top, 8.4, 100, Night);
        for (int J = 0; J < 8; ++J)
            if (Uniform(Own.Chance) < .6)
                FillBox(G, X + 2 + J % 2 * 3, Top + 4 + J / 2 * 5, 1.3, 1.8, Alpha("#ffe08a", .9));
    }
}

static void DrawPines(QPainter& G, Sunset& Own)
{
    FillBox(G, 0, Own.Horizon + 10, 100, 100, Night);
    for (int I = 0; I < 12; ++I) {
        const double X = I * 9 + Uniform(Own.Chance, -3, 3), H = Uniform(Own.Chance, 18, 40);
        const double Top = Own.Horizon + 12 - H;
        for (int Tier = 0; Tier < 3; ++Tier) {
            const double Half = 4 + Tier * 2.4, Foot = Top + (Tier + 1.4) * H * .3;
            Fill(G, Polygon({{X, Top + Tier * H * .25}, {X - Half, Foot}, {X + Half, Foot}}),
                 Night);
        }
    }
}

static void DrawReeds(QPainter& G, Sunset& Own)
{
    const double H = Own.Horizon;
    FillBox(G, 0, H, 100, 100, Linear(0, H, 0, 100, {Mix(Own.Sky[3], Own.Sky[1], .4), Own.Sky[0]}));
    for (int I = 0; I < 16; ++I) {
        const double X = I * 7 + Uniform(Own.Chance, -3, 3), Tall = Uniform(Own.Chance, 28, 62);
        const double Lean = Uniform(Own.Chance, -4, 8);
        Stroke(G, Curve({{X, 102}, {X + 2, 102 - Tall * .6}, {X + Lean, 102 - Tall}}), Night, 1.6);
        Fill(G, Ellipse(X + 2, 102 - Tall, 2.4, 6.6), Night);
    }
}

static constexpr FigureRow<Sunset> Grounds[] = {
    {"sea", DrawSea},     {"hills", DrawHills}, {"mount", DrawMountains},
    {"dunes", DrawDunes}, {"plain", DrawPlain}, {"field", DrawField},
    {"city", DrawCity},   {"pines", DrawPines}, {"reeds", DrawReeds},
};

// "emoji/x/foot/size", joined by "+": the shapes stand on their foot.
static void DrawSilhouettes(QPainter& G, Sunset& Own)
{
    for (const QString& Word : Words(Own.R, "sil", "+")) {
        const QStringList Parts = Word.split('/');
        if (Parts.size() < 4) FatalError(Own.R.Place + ": a silhouette is emoji/x/foot/size");
        const QImage Shape = Tinted(EmojiImage(Parts[0]), Night);
        const double X = Parts[1].toDouble(), Foot = Parts[2].toDouble();
        const double K = Parts[3].toDouble() / std::max(Shape.width(), Shape.height());
        const double W = Shape.width() * K, H = Shape.height() * K;
        DrawFitted(G, Shape, QRectF(X - W / 2, Foot - H, W, H));
    }
}

static void DrawFlock(QPainter& G, Sunset& Own)
{
    for (int I = 0; I < Whole(Own.R, "birds"); ++I) {
        const double X = 20 + I * 17 + Uniform(Own.Chance, -6, 6);
        const double Y = 16 + Uniform(Own.Chance, 0, 26);
        Stroke(G, Curve({{X - 6, Y - 1}, {X - 2, Y - 4}, {X, Y}, {X + 2, Y - 4}, {X + 6, Y - 1}}),
               Night, 1.8);
    }
}

void DrawSunset(QPainter& P, const Recipe& R)
{
    if (!Skies.contains(Text(R, "sky")))
        FatalError(R.Place + ": no sky is called " + Quoted(Text(R, "sky")));
    const double Horizon = Number(R, "hz", 66);
    Sunset Own{R,
               Skies[Text(R, "sky")],
               Horizon,
               Number(R, "sx", 50),
               Number(R, "sy", Horizon - 4),
               Number(R, "sr", 15),
               Colour(R, "sun", "#fff6c0"),
               Random{static_cast<std::uint64_t>(Whole(R, "seed", 1))}};
    const QPainterPath Window = Rounded(2, 2, 96, 96, 9);
    P.save();
    P.setClipPath(Window);
    DrawSky(P, Own);
    DrawFigure(P, Own, Grounds, Text(R, "g", "sea"), R);
    DrawSilhouettes(P, Own);
    DrawFlock(P, Own);
    P.restore();
    Stroke(P, Window, "#3a2410", 1.6);
}
