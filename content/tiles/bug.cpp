// bug.cpp: insects and spiders from above, head up

#include "drawing.h"
#include "kinds.h"

struct Bug {
    const Recipe& R;
    QString Kind;
    QColor Tint;
    QColor Tint2;
    QColor HeadTint;
    QColor LegTint;
    QColor Edge;
    double LegWidth;
};

static void Legs(QPainter& G, const Bug& Own, const std::vector<double>& Ys = {40, 52, 64},
                 double X0 = 14, double Reach = 36, double Sw = 1)
{
    for (int I = 0; const auto& Y : Ys) {
        const double Dy = std::array<double, 3>{-14, 0, 16}[static_cast<std::size_t>(I)] * Sw;
        for (const double Side : {-1, 1}) {
            Stroke(G,
                   Curve({{50 + Side * X0, Y},
                          {50 + Side * (X0 + Reach * .5), Y + Dy * .35 - 4},
                          {50 + Side * (X0 + Reach * .72), Y + Dy + 2},
                          {50 + Side * (X0 + Reach * .95), Y + Dy * 1.5 + 6}},
                         .7),
                   Own.LegTint, Own.LegWidth);
        }
        ++I;
    }
}

static void Antennae(QPainter& G, const Bug& Own, const QString& Kind, double Y = 22)
{
    for (const double Side : {-1, 1}) {
        if (Kind == "short") {
            Stroke(G,
                   Curve({{50 + Side * 4, Y}, {50 + Side * 11, Y - 8}, {50 + Side * 17, Y - 12}}),
                   Own.LegTint, Own.LegWidth * .75);
        }
        if (Kind == "club") {
            Stroke(G,
                   Curve({{50 + Side * 4, Y}, {50 + Side * 10, Y - 8}, {50 + Side * 15, Y - 13}}),
                   Own.LegTint, Own.LegWidth * .75);
            Outline(G, Circle(50 + Side * 16, Y - 14, 3), Own.LegTint, Own.LegTint,
                    Own.LegWidth * .75);
        }
        if (Kind == "long") {
            Stroke(G,
                   Curve({{50 + Side * 4, Y},
                          {50 + Side * 14, Y - 18},
                          {50 + Side * 34, Y - 14},
                          {50 + Side * 46, Y + 8},
                          {50 + Side * 42, Y + 26}}),
                   Own.LegTint, Own.LegWidth * .75);
        }
        if (Kind == "fan") {
            StrokeLine(G, 50 + Side * 4, Y, 50 + Side * 14, Y - 8, Own.LegTint, Own.LegWidth * .75);
            for (const double A : {0, 1, 2, 3}) {
                StrokeLine(G, 50 + Side * 14, Y - 8, 50 + Side * (17 + A * 3.4), Y - 16 + A * 3.6,
                           Own.LegTint, Own.LegWidth * .75);
            }
        }
        if (Kind == "curl") {
            Stroke(G,
                   Curve({{50 + Side * 3, Y},
                          {50 + Side * 8, Y - 14},
                          {50 + Side * 18, Y - 18},
                          {50 + Side * 20, Y - 10}}),
                   Own.LegTint, Own.LegWidth * .75);
        }
        if (Kind == "elbow") {
            Stroke(
                G,
                Curve({{50 + Side * 3, Y}, {50 + Side * 12, Y - 6}, {50 + Side * 16, Y - 18}}, .3),
                Own.LegTint, Own.LegWidth * .75);
        }
    }
}

// Dots on the wing cases: lower numbers are larger dots.
static void DrawDots(QPainter& G, const Bug& Own, int Count, double Top, double W)
{
    // how far to the side, of the half width; how far below the top
    static const QMap<int, Points> Places = {
        {2, {{.5, 24}}},
        {4, {{.5, 16}, {.5, 38}}},
        {7, {{0, 8}, {.55, 18}, {.42, 34}, {.6, 48}}},
        {12, {{.25, 12}, {.7, 16}, {.45, 26}, {.25, 38}, {.68, 36}, {.4, 50}}},
    };
    for (const QPointF& Place : Places.value(Count ? Count : 7))
        for (const double Side : {-1, 1})
            Fill(G, Circle(50 + Side * Place.x() * W, Top + Place.y(), Count < 8 ? 5.2 : 3.4),
                 Own.Tint2);
}

static void Shell(QPainter& G, const Bug& Own, double Top, double Bot, double W)
{
    const QPainterPath Path = ClosedCurve({{50, Top},
                                           {50 + W * .7, Top + 3},
                                           {50 + W, Top + (Bot - Top) * .4},
                                           {50 + W * .86, Top + (Bot - Top) * .78},
                                           {50, Bot},
                                           {50 - W * .86, Top + (Bot - Top) * .78},
                                           {50 - W, Top + (Bot - Top) * .4},
                                           {50 - W * .7, Top + 3}},
                                          .75);
    Outline(G, Path,
            Radial(50 - W * .35, Top + (Bot - Top) * .28, (Bot - Top) * .75,
                   {Light(Own.Tint, .5), Own.Tint, Dark(Own.Tint, .25)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    const QString Pattern = Text(Own.R, "pat");
    if (Pattern.startsWith("dots")) DrawDots(G, Own, Pattern.mid(4).toInt(), Top, W);
    if (Pattern == "stripesv") {
        for (const double Side : {-1, 1}) {
            for (const double U : {.18, .46, .74}) {
                Outline(G,
                        Curve({{50 + Side * W * U * .8, Top},
                               {50 + Side * W * U * 1.15, (Top + Bot) / 2},
                               {50 + Side * W * U * .6, Bot}}),
                        Own.Tint2, Own.Tint2, 3.2);
            }
        }
    }
    if (Pattern == "bands") {
        for (int I = 0; I < 3; ++I) {
            Fill(G,
                 ClosedCurve({{0, Top + 12 + I * 17},
                              {50, Top + 16 + I * 17},
                              {100, Top + 12 + I * 17},
                              {100, Top + 20 + I * 17},
                              {50, Top + 24 + I * 17},
                              {0, Top + 20 + I * 17}},
                             .5),
                 Own.Tint2);
        }
    }
    if (Pattern == "cross") {
        FillBox(G, 0, Top + 18, 100, 9, Own.Tint2);
        FillBox(G, 0, Top + 40, 100, 9, Own.Tint2);
    }
    if (Pattern == "shine") {
        FillBox(G, 0, 0, 100, 100,
                Linear(20, 0, 80, 100,
                       {Alpha("#ff50a0", .7), Alpha("#ffe040", .6), Alpha("#30e080", .7),
                        Alpha("#3080ff", .7)}));
    }
    if (Pattern == "tri") {
        Fill(G, Polygon({{50 - W * .75, Top}, {50 + W * .75, Top}, {50, Top + (Bot - Top) * .42}}),
             Own.Tint2);
    }
    if (Pattern == "edge") Stroke(G, Path, Own.Tint2, 7);
    if (Pattern == "grooves") {
        for (int I = -4; I < 5; ++I) {
            Outline(G,
                    Curve({{50 + I * W * .2, Top},
                           {50 + I * W * .25, (Top + Bot) / 2},
                           {50 + I * W * .14, Bot}}),
                    Own.Tint2, Alpha(Own.Tint2, .55), 1.3);
        }
    }
    G.restore();
    if (!Has(Own.R, "noline")) StrokeLine(G, 50, Top + 1, 50, Bot, Own.Edge, 2);
    Stroke(G, Path, Own.Edge, 1.6);
    Fill(G, Ellipse(50 - W * .42, Top + (Bot - Top) * .26, W * .16, (Bot - Top) * .15, 12),
         Alpha("#ffffff", .35));
}

static void Head(QPainter& G, const Bug& Own, double Y, double R, double Rx = {})
{
    Outline(G, Ellipse(50, Y, Rx || R, R),
            Radial(48, Y - 2, R * 1.3, {Light(Own.HeadTint, .35), Own.HeadTint}),
            Dark(Own.HeadTint, .5), 1.3);
}

static void Wings(QPainter& G, const Bug& Own,
                  const Table<double, double, double, double, double>& Pairs, double Clarity = .75)
{
    for (const auto& [X, Y, Rx, Ry, A] : Pairs) {
        for (const double Side : {1, -1}) {
            G.save();
            if (Side < 0) {
                G.translate(100, 0);
                G.scale(-1, 1);
            }
            const QColor WingTint = Colour(Own.R, "wc", "#cfe6f2");
            const QColor Thin = Alpha(WingTint, Clarity);
            const QPainterPath Path = Ellipse(X, Y, Rx, Ry, A);
            Outline(G, Path, Thin, Colour(Own.R, "wl", "#5a7080"), 1.2);
            const double T = Radians(A);
            for (const double O : {-.45, 0.0, .45}) {
                StrokeLine(G, 50, Y + (50 - X) * -.02,
                           X + Rx * .85 * std::cos(T) - Ry * O * std::sin(T),
                           Y + Rx * .85 * std::sin(T) + Ry * O * std::cos(T),
                           Alpha(Colour(Own.R, "wl", "#5a7080"), .6), .8);
            }
            if (Has(Own.R, "wspot")) {
                Fill(G, Circle(X + Rx * .72 * std::cos(T), Y + Rx * .72 * std::sin(T), 3.2),
                     Colour(Own.R, "wspot"));
            }
            G.restore();
        }
    }
}

static void Abdomen(QPainter& G, const Bug& Own, double Y0, double Y1, double W, int Bands = 5)
{
    const QPainterPath Path = ClosedCurve({{50, Y0},
                                           {50 + W * .8, Y0 + 4},
                                           {50 + W, Y0 + (Y1 - Y0) * .42},
                                           {50 + W * .6, Y0 + (Y1 - Y0) * .8},
                                           {50, Y1},
                                           {50 - W * .6, Y0 + (Y1 - Y0) * .8},
                                           {50 - W, Y0 + (Y1 - Y0) * .42},
                                           {50 - W * .8, Y0 + 4}},
                                          .75);
    Outline(G, Path,
            Linear(50 - W, 0, 50 + W, 0,
                   {Dark(Own.Tint, .15), Light(Own.Tint, .25), Dark(Own.Tint, .2)}),
            Own.Edge, 1.6);
    G.save();
    G.setClipPath(Path);
    for (int I = 0; I < Bands; ++I) {
        const double Yy = Y0 + (I + .75) * (Y1 - Y0) / Bands;
        Stroke(G, Curve({{50 - W, Yy - 2}, {50, Yy + 1.5}, {50 + W, Yy - 2}}), Own.Tint2,
               (Y1 - Y0) / (2 * Bands));
    }
    G.restore();
    Stroke(G, Path, Own.Edge, 1.4);
}

static void DrawBeetle(QPainter& G, const Bug& Own)
{
    Legs(G, Own);
    Antennae(G, Own, Text(Own.R, "ant", "short"), 20);
    if (Has(Own.R, "mand")) {
        for (const double Side : {-1, 1}) {
            Outline(G,
                    ClosedCurve({{50 + Side * 3, 20},
                                 {50 + Side * 18, 10},
                                 {50 + Side * 17, -8},
                                 {50 + Side * 8, -16},
                                 {50 + Side * 12, -4},
                                 {50 + Side * 6, -1},
                                 {50 + Side * 9, 8}},
                                .6),
                    Colour(Own.R, "mand"), Dark(Colour(Own.R, "mand"), .5), 1.2);
        }
    }
    if (Has(Own.R, "horn")) {
        Outline(
            G,
            ClosedCurve({{46, 24}, {48, 2}, {44, -10}, {50, -6}, {56, -10}, {52, 2}, {54, 24}}, .6),
            Colour(Own.R, "horn"), Dark(Colour(Own.R, "horn"), .5), 1.2);
    }
    if (Has(Own.R, "horn2")) {
        Outline(G, ClosedCurve({{45, 30}, {47, 6}, {50, -16}, {53, 6}, {55, 30}}, .6),
                Colour(Own.R, "horn2"), Dark(Colour(Own.R, "horn2"), .5), 1.2);
    }
    Head(G, Own, 22, 8);
    const double Pw = Number(Own.R, "pw", 19);
    Shell(G, Own, Number(Own.R, "top", 38), Number(Own.R, "bot", 92), Number(Own.R, "w", 25));
    const QColor Pc = Colour(Own.R, "pc", Own.HeadTint);
    Outline(G,
            ClosedCurve({{50, 24},
                         {50 + Pw * .8, 27},
                         {50 + Pw, 36},
                         {50 + Pw * .8, 44},
                         {50, 46},
                         {50 - Pw * .8, 44},
                         {50 - Pw, 36},
                         {50 - Pw * .8, 27}}),
            Radial(44, 30, 24, {Light(Pc, .4), Pc, Dark(Pc, .2)}), Dark(Pc, .5), 1.5);
    if (Has(Own.R, "pspot"))
        for (const double Side : {-1, 1})
            Fill(G, Ellipse(50 + Side * Pw * .62, 34, 4, 4.6), Colour(Own.R, "pspot"));
    if (Has(Own.R, "snout")) {
        Outline(G, ClosedCurve({{46, 24}, {47, 8}, {50, 2}, {53, 8}, {54, 24}}), Pc, Dark(Pc, .5),
                1.2);
    }
    if (Has(Own.R, "glow")) {
        Fill(G, Ellipse(50, 88, 26, 16),
             Radial(50, 86, 26, {"#ffffc0", "#e8ff4a", Alpha("#e8ff4a", 0)}));
    }
}

static void DrawWasp(QPainter& G, const Bug& Own)
{
    Wings(G, Own, {{76, 44, 28, 8, -24}, {72, 60, 20, 6, 16}});
    Legs(G, Own, {40, 46, 54}, 9, 30);
    Antennae(G, Own, "elbow", 18);
    Abdomen(G, Own, 54, 98, Number(Own.R, "aw", 13));
    Outline(G, Ellipse(50, 44, 11, 11), Colour(Own.R, "tc", Own.Tint), Own.Edge, 1.5);
    Head(G, Own, 24, 9, 10);
    for (const double Side : {-1, 1})
        Outline(G, Ellipse(50 + Side * 7, 23, 3.4, 5), "#3a1a10", "#1a0a06", .8);
    if (Has(Own.R, "fur")) {
        for (int I = 0; I < 26; ++I) {
            double A = I * M_PI / 13;
            StrokeLine(G, 50 + 8 * std::cos(A), 44 + 8 * std::sin(A), 50 + 13 * std::cos(A),
                       44 + 13 * std::sin(A), Light(Colour(Own.R, "fur"), .2), 1.5);
        }
    }
}

static void DrawFly(QPainter& G, const Bug& Own)
{
    Wings(G, Own, {{72, 64, 28, 10, 42}}, .6);
    Legs(G, Own, {40, 46, 54}, 11, 30);
    Abdomen(G, Own, 50, 88, 17, 4);
    Outline(G, Ellipse(50, 44, 14, 12), Colour(Own.R, "tc", Own.HeadTint), Own.Edge, 1.5);
    Head(G, Own, 26, 9, 13);
    for (const double Side : {-1, 1}) {
        Outline(G, Ellipse(50 + Side * 9, 24, 7, 8.4), Colour(Own.R, "eye", "#c0281e"), "#400",
                1.2);
    }
}

static void DrawDragon(QPainter& G, const Bug& Own)
{
    Wings(G, Own, {{79, 36, 32, 7.4, -8}, {78, 50, 30, 8, 12}}, .7);
    const QPainterPath Path = Tube({{50, 96, 1.6}, {50, 84, 3.4}, {50, 60, 3.2}, {50, 46, 5.4}});
    Outline(G, Path,
            Linear(45, 0, 55, 0, {Dark(Own.Tint, .2), Light(Own.Tint, .3), Dark(Own.Tint, .2)}),
            Own.Edge, 1.2);
    for (int I = 0; I < 6; ++I) StrokeLine(G, 47, 60 + I * 6, 53, 60 + I * 6, Own.Tint2, 2);
    Outline(G, Ellipse(50, 38, 8, 12), Own.Tint, Own.Edge, 1.4);
    Head(G, Own, 22, 6, 9);
    for (const double Side : {-1, 1}) {
        Outline(G, Ellipse(50 + Side * 6.4, 20, 6, 6.4), Colour(Own.R, "eye", Light(Own.Tint, .3)),
                Own.Edge, 1.2);
    }
}

static void DrawAnt(QPainter& G, const Bug& Own)
{
    Legs(G, Own, {42, 48, 54}, 7, 40);
    Antennae(G, Own, "elbow", 18);
    Outline(G, Ellipse(50, 78, 15, 19),
            Radial(44, 70, 26, {Light(Own.Tint, .5), Own.Tint, Dark(Own.Tint, .3)}), Own.Edge, 1.6);
    Outline(G, Ellipse(50, 58, 4, 4.5), Own.Tint, Own.Edge, 1.2);
    Outline(G, Ellipse(50, 47, 8, 10), Radial(47, 44, 13, {Light(Own.Tint, .4), Own.Tint}),
            Own.Edge, 1.4);
    Outline(G, Ellipse(50, 26, 11, 10.5), Radial(46, 22, 15, {Light(Own.Tint, .45), Own.Tint}),
            Own.Edge, 1.5);
    for (const double Side : {-1, 1}) {
        Outline(G, Circle(50 + Side * 7.5, 24, 2.2), "#101010", "#000", .6);
        StrokeLine(G, 50 + Side * 3, 16, 50 + Side * 5, 10, Own.Edge, 2);
    }
}

static void DrawSpider(QPainter& G, const Bug& Own)
{
    for (const double Side : {-1, 1}) {
        for (const auto& [A, B, Cx, Cy] : Table<double, double, double, double>{
                 {34, 10, 46, 2}, {42, 26, 50, 30}, {42, 44, 50, 62}, {34, 58, 42, 92}}) {
            Stroke(G,
                   Curve({{50 + Side * 8, 44}, {50 + Side * A * .7, B}, {50 + Side * Cx, Cy}}, .9),
                   Own.LegTint, Number(Own.R, "lw", 3));
        }
    }
    if (Has(Own.R, "hair")) {
        for (const double Side : {-1, 1}) {
            for (const auto& [A, B] :
                 Table<double, double>{{24, 20}, {30, 32}, {30, 48}, {26, 60}}) {
                for (const double O : {-3, 0, 3}) {
                    StrokeLine(G, 50 + Side * A + O, B, 50 + Side * A + O * 2, B - 5,
                               Colour(Own.R, "hair"), 1.2);
                }
            }
        }
    }
    const double Aw = Number(Own.R, "aw", 20);
    Outline(G, Ellipse(50, 70, Aw, 22),
            Radial(44, 60, 32, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .3)}), Own.Edge, 1.6);
    const QString M = Text(Own.R, "mark");
    if (M == "hour") {
        Fill(G, Polygon({{44, 60}, {56, 60}, {50, 70}}), Own.Tint2);
        Fill(G, Polygon({{44, 80}, {56, 80}, {50, 70}}), Own.Tint2);
    }
    if (M == "cross")
        for (const auto& [X, Y] : Table<double, double>{
                 {50, 58}, {50, 66}, {50, 74}, {50, 82}, {42, 64}, {58, 64}, {36, 68}, {64, 68}})
            Fill(G, Circle(X, Y, 2.6), Own.Tint2);
    if (M == "bands") {
        G.save();
        G.setClipPath(Ellipse(50, 70, Aw, 22));
        for (int I = 0; I < 4; ++I) StrokeLine(G, 20, 56 + I * 10, 80, 56 + I * 10, Own.Tint2, 4.4);
        G.restore();
    }
    Outline(G, Ellipse(50, 42, 13, 12), Radial(46, 38, 18, {Light(Own.HeadTint, .4), Own.HeadTint}),
            Dark(Own.HeadTint, .5), 1.5);
    for (const auto& [X, Y] :
         Table<double, double>{{45, 34}, {55, 34}, {48.4, 31.5}, {51.6, 31.5}}) {
        Fill(G, Circle(X, Y, 1.7),
             Own.HeadTint.lightness() < 120 ? QColor("#ffffff") : QColor("#111"));
    }
}

static void DrawScorpion(QPainter& G, const Bug& Own)
{
    for (const double Side : {-1, 1}) {
        for (const auto& [Y, E] : Table<double, double>{{46, 40}, {52, 54}, {58, 66}, {64, 80}}) {
            Stroke(G, Curve({{50 + Side * 10, Y}, {50 + Side * 26, Y - 3}, {50 + Side * 36, E}}),
                   Own.LegTint, 2.6);
        }
        Stroke(G, Curve({{50 + Side * 8, 38}, {50 + Side * 24, 34}, {50 + Side * 28, 20}}),
               Own.Tint, 5);
        Outline(G,
                ClosedCurve({{50 + Side * 24, 22},
                             {50 + Side * 20, 6},
                             {50 + Side * 27, -4},
                             {50 + Side * 28, 8},
                             {50 + Side * 33, -2},
                             {50 + Side * 37, 10},
                             {50 + Side * 32, 22}}),
                Own.Tint, Own.Edge, 1.3);
    }
    const QPainterPath Path = Tube({{60, 20, 1.4},
                                    {72, 30, 3},
                                    {82, 44, 4},
                                    {84, 60, 4.4},
                                    {74, 76, 5},
                                    {60, 84, 6.4},
                                    {52, 72, 9}});
    Outline(G, Path, Linear(30, 0, 90, 0, {Dark(Own.Tint, .1), Light(Own.Tint, .2)}), Own.Edge,
            1.4);
    Outline(G, ClosedCurve({{64, 16}, {52, 12}, {46, 24}, {56, 20}, {64, 26}}), Dark(Own.Tint, .25),
            Own.Edge, 1.2);
    Outline(G, ClosedCurve({{50, 32}, {62, 38}, {63, 58}, {56, 76}, {44, 76}, {37, 58}, {38, 38}}),
            Linear(36, 0, 64, 0, {Dark(Own.Tint, .15), Light(Own.Tint, .25), Dark(Own.Tint, .15)}),
            Own.Edge, 1.6);
    for (int I = 0; I < 5; ++I) {
        Outline(
            G, Curve({{38, 46.0 + I * 6}, {50, 49.0 + I * 6}, {62, 46.0 + I * 6}}),
            Linear(36, 0, 64, 0, {Dark(Own.Tint, .15), Light(Own.Tint, .25), Dark(Own.Tint, .15)}),
            Dark(Own.Tint, .4), 1.4);
    }
}

static void DrawCater(QPainter& G, const Bug& Own)
{
    Points Pts = {{12, 80}, {26, 70}, {38, 76}, {50, 64}, {60, 50}, {74, 46}, {82, 32}};
    for (int I = 0; const auto& [X, Y] : Pts) {
        Outline(G, Circle(X, Y, 11.5),
                Radial(X - 3, Y - 4, 15,
                       {Light(Own.Tint, .45), I % 2 == 0 ? Own.Tint : Colour(Own.R, "cb", Own.Tint),
                        Dark(Own.Tint, .15)}),
                Own.Edge, 1.5);
        Fill(G, Circle(X, Y - 1, 3.4), Own.Tint2);
        StrokeLine(G, X - 3, Y + 11, X - 4, Y + 15, Own.Edge, 2.4);
        StrokeLine(G, X + 3, Y + 11, X + 3, Y + 15, Own.Edge, 2.4);
        ++I;
    }
    Outline(G, Circle(86, 24, 12.5),
            Radial(82, 20, 16,
                   {Light(Colour(Own.R, "fc", Own.Tint), .4), Colour(Own.R, "fc", Own.Tint)}),
            Own.Edge, 1.6);
    StrokeLine(G, 82, 13, 77, 3, Own.Edge, 1.8);
    StrokeLine(G, 91, 13, 96, 3, Own.Edge, 1.8);
    Fill(G, Circle(83, 22, 3.4), "#fff");
    Fill(G, Circle(91, 22, 3.4), "#fff");
    Fill(G, Circle(84, 22, 1.8), "#111");
    Fill(G, Circle(92, 22, 1.8), "#111");
    Stroke(G, Curve({{82, 29}, {87, 32}, {92, 29}}), "#5a1a10", 1.4);
}

static void DrawCenti(QPainter& G, const Bug& Own)
{
    Points Pts = Mapped(Mapped(Counted(0, 14), [&](int I) { return I / 13.0; }), [&](double T) {
        return QPointF(50 + 30 * std::sin(T * 1.35 * M_PI), 8 + T * 84);
    });
    for (int I = 0; const auto& [X, Y] : Pts) {
        StrokeLine(G, X - 15, Y + 3, X, Y, Colour(Own.R, "lc", "#e08a2a"), 2.2);
        StrokeLine(G, X, Y, X + 15, Y + 3, Colour(Own.R, "lc", "#e08a2a"), 2.2);
        ++I;
    }
    for (std::size_t I = Pts.size(); I-- > 0;) {
        const double X = Pts[I].x(), Y = Pts[I].y();
        Outline(G, Ellipse(X, Y, I ? 7.6 : 9, I ? 6.4 : 8),
                Radial(X - 2, Y - 2, 9, {Light(Own.Tint, .4), Own.Tint}), Own.Edge, 1.3);
    }
    const double X = Pts[0].x(), Y = Pts[0].y();
    StrokeLine(G, X - 4, Y - 6, X - 14, Y - 16, Own.LegTint, 1.8);
    StrokeLine(G, X + 4, Y - 6, X + 14, Y - 16, Own.LegTint, 1.8);
    Fill(G, Circle(X - 3, Y - 2, 2), "#fff");
    Fill(G, Circle(X + 3, Y - 2, 2), "#fff");
}

static void DrawMantis(QPainter& G, const Bug& Own)
{
    for (const double Side : {-1, 1}) {
        Stroke(G, Curve({{50 + Side * 4, 56}, {50 + Side * 26, 50}, {50 + Side * 34, 70}}),
               Dark(Own.Tint, .2), 2.6);
        Stroke(G, Curve({{50 + Side * 4, 60}, {50 + Side * 24, 70}, {50 + Side * 30, 94}}),
               Dark(Own.Tint, .2), 2.6);
        Stroke(G, Curve({{50 + Side * 5, 34}, {50 + Side * 24, 24}, {50 + Side * 14, 6}}, .4),
               Own.Tint, 6);
        Stroke(G, Curve({{50 + Side * 14, 6}, {50 + Side * 20, 16}, {50 + Side * 17, 26}}),
               Dark(Own.Tint, .3), 2.6);
    }
    Outline(G, ClosedCurve({{50, 50}, {61, 58}, {58, 84}, {50, 99}, {42, 84}, {39, 58}}),
            Linear(38, 0, 62, 0, {Dark(Own.Tint, .15), Light(Own.Tint, .3), Dark(Own.Tint, .15)}),
            Own.Edge, 1.6);
    StrokeLine(G, 50, 52, 50, 98, Own.Edge, 1.4);
    Outline(G, ClosedCurve({{50, 24}, {55, 32}, {54, 50}, {50, 56}, {46, 50}, {45, 32}}), Own.Tint,
            Own.Edge, 1.5);
    Outline(G, Polygon({{37, 12}, {63, 12}, {50, 28}}), Light(Own.Tint, .15), Own.Edge, 1.5);
    for (const double Side : {-1, 1}) {
        Outline(G, Ellipse(50 + Side * 12, 13, 4.4, 5.4), "#f6e27a", "#6a5a10", 1);
        StrokeLine(G, 50 + Side * 4, 12, 50 + Side * 12, -6, Own.Edge, 1.3);
    }
}

static void DrawHopper(QPainter& G, const Bug& Own)
{
    for (const double Side : {-1, 1}) {
        Stroke(G, Curve({{50 + Side * 6, 36}, {50 + Side * 22, 30}, {50 + Side * 28, 18}}),
               Own.LegTint, 2.4);
        Stroke(G, Curve({{50 + Side * 7, 46}, {50 + Side * 26, 48}, {50 + Side * 34, 42}}),
               Own.LegTint, 2.4);
        Outline(G,
                ClosedCurve({{50 + Side * 7, 54},
                             {50 + Side * 16, 48},
                             {50 + Side * 34, 26},
                             {50 + Side * 38, 30},
                             {50 + Side * 22, 58},
                             {50 + Side * 10, 62}}),
                Own.Tint, Own.Edge, 1.4);
        Stroke(G, Curve({{50 + Side * 36, 28}, {50 + Side * 34, 62}, {50 + Side * 40, 92}}),
               Own.LegTint, 2.6);
    }
    Antennae(G, Own, "short", 14);
    Outline(G,
            ClosedCurve(
                {{50, 14}, {58, 22}, {60, 44}, {57, 76}, {50, 98}, {43, 76}, {40, 44}, {42, 22}}),
            Linear(38, 0, 62, 0, {Dark(Own.Tint, .2), Light(Own.Tint, .3), Dark(Own.Tint, .2)}),
            Own.Edge, 1.6);
    Outline(G, ClosedCurve({{50, 26}, {60, 30}, {61, 44}, {50, 50}, {39, 44}, {40, 30}}), Own.Tint2,
            Dark(Own.Tint2, .5), 1.3);
    StrokeLine(G, 50, 50, 50, 96, Own.Edge, 1.2);
    for (const double Side : {-1, 1})
        Outline(G, Ellipse(50 + Side * 7, 20, 3.4, 4.4), "#2a1a10", "#000", .8);
}

static void DrawWoodlouse(QPainter& G, const Bug& Own)
{
    for (int I = 0; I < 7; ++I) {
        for (const double Side : {-1, 1}) {
            StrokeLine(G, 50 + Side * 20, 28 + I * 9, 50 + Side * 33, 24 + I * 10, Own.LegTint,
                       1.8);
        }
    }
    Antennae(G, Own, "curl", 16);
    Outline(G, Ellipse(50, 52, 25, 44),
            Linear(24, 0, 76, 0, {Dark(Own.Tint, .3), Light(Own.Tint, .35), Dark(Own.Tint, .3)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Ellipse(50, 52, 25, 44));
    for (int I = 0; I < 9; ++I) {
        Stroke(G, Curve({{24, 22.0 + I * 9}, {50, 17.0 + I * 9}, {76, 22.0 + I * 9}}),
               Dark(Own.Tint, .5), 2);
    }
    G.restore();
}

static constexpr FigureRow<const Bug> Figures[] = {
    {"beetle", DrawBeetle},     {"wasp", DrawWasp},     {"fly", DrawFly},
    {"dragon", DrawDragon},     {"ant", DrawAnt},       {"spider", DrawSpider},
    {"scorpion", DrawScorpion}, {"cater", DrawCater},   {"centi", DrawCenti},
    {"mantis", DrawMantis},     {"hopper", DrawHopper}, {"woodlouse", DrawWoodlouse},
};

static void Draw(QPainter& G, const Bug& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawBug(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const QColor Tint = Colour(R, "c", "#b03020");
    const QColor Tint2 = Colour(R, "c2", "#1a1a1a");
    const QColor HeadTint = Colour(R, "hc", "#1e1a18");
    const QColor LegTint = Colour(R, "lc", HeadTint);
    const QColor Edge = Dark(Tint, .55);
    const double LegWidth = Number(R, "lw", 2.4);
    const Bug Own{R, Kind, Tint, Tint2, HeadTint, LegTint, Edge, LegWidth};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.15);
}
