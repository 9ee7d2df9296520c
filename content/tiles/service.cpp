// service.cpp: things of the fire brigade and the police

#include "drawing.h"
#include "kinds.h"

struct Service {
    const Recipe& R;
    QString Kind;
};

static void DrawHydrant(QPainter& G, const Service&)
{
    QColor Tint = "#e02a1c";
    const QColor L = "#6a0a08";
    Outline(G, Rounded(26, 86, 48, 10, 2), Tint, L, 1.8);
    Outline(G, Rounded(33, 30, 34, 58, 3),
            Linear(33, 0, 67, 0, {Light(Tint, .35), Tint, Dark(Tint, .25)}), L, 1.8);
    Outline(G, ClosedCurve({{30, 32}, {34, 14}, {50, 6}, {66, 14}, {70, 32}}, .6),
            Linear(30, 0, 70, 0, {Light(Tint, .35), Tint, Dark(Tint, .25)}), L, 1.8);
    Outline(G, Rounded(45, 0, 10, 8, 2), "#ffd21c", "#7a5a0a", 1.4);
    Outline(G, Rounded(27, 28, 46, 8, 2), Tint, L, 1.6);
    for (const double X : {20, 68})
        Outline(G, Rounded(X, 44, 12, 18, 3), "#ffd21c", "#7a5a0a", 1.6);
    Outline(G, Circle(50, 54, 12), "#ffd21c", "#7a5a0a", 1.8);
    Outline(G, Circle(50, 54, 5), "#c89a10", "#7a5a0a", 1.2);
}

static void DrawFhelmet(QPainter& G, const Service& Own)
{
    QColor Tint = Colour(Own.R, "c", "#e02a1c");
    Outline(G,
            ClosedCurve({{2, 80},
                         {16, 70},
                         {20, 40},
                         {36, 18},
                         {64, 18},
                         {80, 40},
                         {84, 70},
                         {98, 80},
                         {70, 86},
                         {30, 86}},
                        .6),
            Linear(0, 10, 0, 90, {Light(Tint, .35), Tint, Dark(Tint, .2)}), Dark(Tint, .6), 2);
    for (const double O : {-14, 0, 14}) {
        Outline(G, Curve({{50, 18}, {50 + O, 44}, {50 + O * 1.3, 72}}),
                Linear(0, 10, 0, 90, {Light(Tint, .35), Tint, Dark(Tint, .2)}), Dark(Tint, .6), 2);
    }
    Outline(G, Polygon({{36, 36}, {50, 28}, {64, 36}, {62, 62}, {50, 74}, {38, 62}}), "#ffd23a",
            "#7a5a0a", 1.8);
    Fill(G, Star(50, 50, 15), QColor("#8a1a0a"));
}

static void DrawCap(QPainter& G, const Service& Own)
{
    QColor Tint = Colour(Own.R, "c", "#1c2f6a");
    Outline(G,
            ClosedCurve({{4, 44}, {22, 24}, {50, 16}, {78, 24}, {96, 44}, {86, 56}, {14, 56}}, .7),
            Linear(0, 16, 0, 56, {Light(Tint, .25), Tint}), Dark(Tint, .5), 1.8);
    Outline(G, Polygon({{16, 52}, {84, 52}, {82, 70}, {18, 70}}), Dark(Tint, .3), Dark(Tint, .6),
            1.6);
    if (Has(Own.R, "check"))
        for (int I = 0; I < 8; ++I) FillBox(G, 18 + I * 8, 58 + I % 2 * 5, 8, 5, "#ffffff");
    Outline(G, ClosedCurve({{14, 70}, {50, 66}, {86, 70}, {80, 84}, {50, 90}, {20, 84}}), "#1a1a1e",
            "#000", 1.6);
    Outline(G, Star(50, 40, 13, 8, .6), "#e8ecf0", "#4a525c", 1.2);
}

static void DrawBobby(QPainter& G, const Service&)
{
    Outline(G,
            ClosedCurve({{18, 78}, {22, 46}, {34, 14}, {50, 4}, {66, 14}, {78, 46}, {82, 78}}, .6),
            Linear(18, 0, 82, 0, {"#3a4a8a", "#1c2654", "#101838"}), "#080c20", 2);
    Outline(G, ClosedCurve({{8, 82}, {50, 72}, {92, 82}, {50, 92}}), "#1c2654", "#080c20", 1.8);
    Outline(G, Star(50, 46, 17, 8, .62), "#e8ecf0", "#4a525c", 1.4);
    Outline(G, Circle(50, 46, 6), "#1c4ab0", "#0a1a4a", 1);
    Outline(G, Circle(50, 4, 5), "#c8d0d8", "#4a525c", 1.2);
}

static void DrawBadge(QPainter& G, const Service& Own)
{
    QColor Tint = Colour(Own.R, "c", "#f0c02a");
    if (Text(Own.R, "s") == "star") {
        Outline(G, Star(50, 52, 48, Whole(Own.R, "n", 6), .55),
                Linear(0, 0, 100, 100, {Light(Tint, .6), Tint, Dark(Tint, .3)}), Dark(Tint, .6), 2);
        for (int I = 0; I < Whole(Own.R, "n", 6); ++I) {
            Outline(G,
                    Circle(50 + 48 * std::cos(Radians(-90 + 1.0 * I * 360 / Whole(Own.R, "n", 6))),
                           52 + 48 * std::sin(Radians(-90 + 1.0 * I * 360 / Whole(Own.R, "n", 6))),
                           5),
                    Tint, Dark(Tint, .6), 1.4);
        }
        Outline(G, Circle(50, 52, 19), Colour(Own.R, "c2", "#1c4ab0"), Dark(Tint, .6), 1.8);
        Outline(G, Star(50, 52, 12), "#ffffff", "#666", .8);
    }
    if (Text(Own.R, "s") == "shield") {
        Outline(G,
                ClosedCurve({{50, 2},
                             {64, 10},
                             {84, 10},
                             {90, 40},
                             {80, 74},
                             {50, 98},
                             {20, 74},
                             {10, 40},
                             {16, 10},
                             {36, 10}},
                            .5),
                Linear(0, 0, 100, 100, {Light(Tint, .6), Tint, Dark(Tint, .3)}), Dark(Tint, .6), 2);
        Outline(G, Circle(50, 48, 22), Colour(Own.R, "c2", "#1c4ab0"), Dark(Tint, .6), 1.8);
        Outline(G, Star(50, 48, 15, 5), "#ffd23a", "#6a4a0a", 1);
    }
    if (Text(Own.R, "s") == "cross") {
        QPainterPath Path;
        for (int A = 0; A < 4; ++A) {
            Path.addPath(Moved(
                ClosedCurve({{0, 0}, {-16, -26}, {-26, -44}, {0, -50}, {26, -44}, {16, -26}}, .6),
                50, 50, A * 90));
        }
        Path.setFillRule(Qt::WindingFill);
        Outline(G, Path.simplified(),
                Linear(0, 0, 100, 100, {Light(Tint, .5), Tint, Dark(Tint, .25)}), Dark(Tint, .6),
                2);
        Outline(G, Circle(50, 50, 21), "#ffd23a", "#6a4a0a", 1.8);
        DrawFitted(G, EmojiImage("🔥"), QRectF(35, 35, 30, 30));
    }
}

static void DrawCuffs(QPainter& G, const Service&)
{
    for (const auto& [X, Y] : Table<double, double>{{28, 56}, {72, 56}}) {
        Stroke(G, Circle(X, Y, 20), "#3a4450", 12);
        Stroke(G, Circle(X, Y, 20), "#c8d2dc", 8);
        Outline(G, Rounded(X - 8, Y - 30, 16, 14, 3), "#d8e0e8", "#3a4450", 1.6);
    }
    for (int I = 0; const double X : {40, 50, 60}) {
        Stroke(G, Ellipse(X, 22 + I % 2 * -4, 6, 4), "#3a4450", 5);
        Stroke(G, Ellipse(X, 22 + I % 2 * -4, 6, 4), "#c8d2dc", 3);
        ++I;
    }
}

static void DrawWhistle(QPainter& G, const Service&)
{
    Outline(G,
            ClosedCurve({{40, 26},
                         {98, 26},
                         {98, 46},
                         {76, 48},
                         {74, 66},
                         {54, 84},
                         {28, 78},
                         {16, 56},
                         {26, 34}},
                        .5),
            Linear(0, 20, 0, 90, {"#ffffff", "#c8d2dc", "#7a8896"}), "#2a323c", 2);
    Outline(G, Circle(45, 56, 15), "#5a6674", "#1a222c", 1.6);
    Outline(G, Circle(45, 56, 8), "#a8702a", "#4a2a0a", 1.2);
    Outline(G, Polygon({{58, 26}, {74, 26}, {66, 40}}), "#2a323c", "#000", 1);
    Stroke(G, Circle(18, 32, 10), "#d8281c", 4);
}

static void DrawRadio(QPainter& G, const Service&)
{
    Outline(G, Rounded(58, -8, 8, 40, 3), "#2a2e34", "#000", 1.6);
    Outline(G, Rounded(28, 22, 44, 74, 7), Linear(28, 0, 72, 0, {"#4a525c", "#2a2e34", "#16181c"}),
            "#000", 2);
    Outline(G, Rounded(35, 30, 30, 18, 2), "#8ae06a", "#1a3a0a", 1.6);
    for (const double Y : {56, 62, 68, 74}) StrokeLine(G, 36, Y, 64, Y, "#0a0a0a", 2);
    for (const auto& [X, Tone] :
         Table<double, QColor>{{38, "#e02a1c"}, {50, "#ffd21c"}, {62, "#2ab04a"}})
        Outline(G, Circle(X, 86, 4), Tone, "#111", 1);
    Outline(G, Rounded(34, 14, 10, 9, 2), "#5a6674", "#000", 1.3);
}

static void DrawHose(QPainter& G, const Service&)
{
    for (const double R : {40, 30, 20}) {
        Stroke(G, Circle(44, 54, R), "#6a0a08", 10);
        Stroke(G, Circle(44, 54, R), "#e8382a", 7);
    }
    StrokeLine(G, 84, 54, 88, 88, "#6a0a08", 10);
    StrokeLine(G, 84, 54, 88, 88, "#e8382a", 7);
    Outline(G, Polygon({{82, 84}, {96, 84}, {93, 104}, {87, 104}}), "#f0c02a", "#6a4a0a", 1.6);
    Outline(G, Circle(44, 54, 11), "#c8d2dc", "#3a4450", 1.8);
}

static void DrawCone(QPainter& G, const Service&)
{
    Outline(G, Rounded(8, 84, 84, 12, 3), "#ff7a1c", "#7a2a06", 1.8);
    QPainterPath Path = Polygon({{42, 6}, {58, 6}, {80, 86}, {20, 86}});
    Outline(G, Path, Linear(20, 0, 80, 0, {"#ffa050", "#ff6a0a", "#c84a06"}), "#7a2a06", 1.8);
    G.save();
    G.setClipPath(Path);
    FillBox(G, 0, 26, 100, 14, "#ffffff");
    FillBox(G, 0, 54, 100, 14, "#ffffff");
    G.restore();
    Stroke(G, Path, "#7a2a06", 1.8);
}

static void DrawBaton(QPainter& G, const Service&)
{
    G.translate(50, 50);
    G.rotate(40);
    G.translate(-50, -50);
    Outline(G, Rounded(43, -10, 14, 120, 6),
            Linear(43, 0, 57, 0, {"#5a6068", "#2a2e34", "#101214"}), "#000", 1.8);
    Outline(G, Rounded(26, 64, 22, 12, 5), "#2a2e34", "#000", 1.6);
    for (int Y = 82; Y < 108; Y += 5) StrokeLine(G, 44, Y, 56, Y, "#0a0a0a", 1.6);
}

static void DrawBoat(QPainter& G, const Service&)
{
    Outline(G, Polygon({{2, 62}, {98, 62}, {84, 86}, {16, 86}}), "#e02a1c", "#6a0a08", 1.8);
    Outline(G, Rounded(26, 40, 44, 22, 2), "#ffffff", "#4a525c", 1.6);
    for (const double X : {32, 44, 56})
        Outline(G, Rounded(X, 45, 9, 9, 1), "#5ab0e0", "#1a3a5a", 1.2);
    Outline(G, Rounded(38, 26, 18, 14, 2), "#e02a1c", "#6a0a08", 1.4);
    Stroke(G, Curve({{74, 56}, {86, 26}, {104, 18}}), "#4ab8ff", 4);
    Stroke(G, Curve({{22, 56}, {12, 28}, {-6, 20}}), "#4ab8ff", 4);
    Stroke(G, Curve({{-2, 90}, {14, 84}, {30, 90}, {46, 84}, {62, 90}, {78, 84}, {100, 90}}),
           "#1c7ad8", 4);
}

static void DrawTape(QPainter& G, const Service&)
{
    for (const auto& [Y, A] : Table<double, double>{{26, -10}, {60, 8}}) {
        G.save();
        G.translate(50, Y);
        G.rotate(A);
        Outline(G, Rounded(-54, -11, 108, 22, 0), "#ffd21c", "#7a5a0a", 1.6);
        for (int X = -50; X < 56; X += 22) {
            Fill(G, Polygon({{double(X), -11}, {X + 10.0, -11}, {X + 2.0, 11}, {X - 8.0, 11}}),
                 "#1a1a1a");
        }
        G.restore();
    }
}

static void DrawFinger(QPainter& G, const Service&)
{
    Outline(G, Rounded(10, 4, 80, 92, 6), "#fffdf6", "#6a6a60", 1.8);
    for (int I = 0; const double R : {6, 12, 18, 24, 30}) {
        Stroke(G,
               Arc(50 - R, 52 - R * 1.25, 2 * R, 2.5 * R, 20 + (I * 7) % 20, 300 - (I * 13) % 60),
               "#2a3a6a", 3);
        ++I;
    }
}

static void DrawLens(QPainter& G, const Service&)
{
    Outline(G, Moved(Rounded(-6, 0, 12, 46, 5), 66, 66, -45), "#8a4a1c", "#3a1a06", 1.8);
    Outline(G, Circle(42, 42, 36), "#c8d2dc", "#3a4450", 2);
    Outline(G, Circle(42, 42, 28), Radial(34, 32, 40, {"#ffffff", "#bfe6ff", "#7ab8e0"}), "#3a4450",
            1.6);
    for (const auto& [X, Y, R] : Table<double, double, double>{{36, 48, -20}, {50, 36, -20}})
        Fill(G, Ellipse(X, Y, 6, 9, R), "#8a5a3a");
}

static void DrawLadder(QPainter& G, const Service&)
{
    G.translate(50, 50);
    G.rotate(18);
    G.translate(-50, -50);
    for (const double X : {26, 66})
        Outline(G, Rounded(X, -4, 8, 108, 3), "#c8d2dc", "#3a4450", 1.6);
    for (int Y = 8; Y < 98; Y += 15)
        Outline(G, Rounded(30, Y, 40, 6, 2), "#e02a1c", "#6a0a08", 1.3);
}

static void DrawBell(QPainter& G, const Service&)
{
    Outline(G,
            ClosedCurve({{14, 78},
                         {22, 66},
                         {24, 40},
                         {36, 18},
                         {50, 12},
                         {64, 18},
                         {76, 40},
                         {78, 66},
                         {86, 78}},
                        .6),
            Linear(14, 0, 86, 0, {"#fff0a8", "#e0ae2a", "#8a6210"}), "#5a3e08", 2);
    Outline(G, Rounded(10, 76, 80, 9, 4), "#e0ae2a", "#5a3e08", 1.8);
    Outline(G, Circle(50, 90, 8), "#b8860b", "#5a3e08", 1.6);
    Outline(G, Rounded(20, -4, 60, 8, 2), "#8a4a1c", "#3a1a06", 1.6);
    Outline(G, Rounded(46, 2, 8, 12, 2), "#8a6210", "#5a3e08", 1.2);
}

static constexpr FigureRow<const Service> Figures[] = {
    {"hydrant", DrawHydrant}, {"fhelmet", DrawFhelmet}, {"cap", DrawCap},
    {"bobby", DrawBobby},     {"badge", DrawBadge},     {"cuffs", DrawCuffs},
    {"whistle", DrawWhistle}, {"radio", DrawRadio},     {"hose", DrawHose},
    {"cone", DrawCone},       {"baton", DrawBaton},     {"boat", DrawBoat},
    {"tape", DrawTape},       {"finger", DrawFinger},   {"lens", DrawLens},
    {"ladder", DrawLadder},   {"bell", DrawBell},
};

static void Draw(QPainter& G, const Service& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawService(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const Service Own{R, Kind};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.12);
}
