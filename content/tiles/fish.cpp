// fish.cpp: fish from the side, looking left

#include "drawing.h"
#include "kinds.h"

// Tail fins, from the root.
static const QMap<QString, Points> Tails = {
    {"fork", {{0, -4}, {20, -24}, {13, 0}, {20, 24}, {0, 4}}},
    {"moon", {{0, -3}, {10, -12}, {20, -30}, {15, 0}, {20, 30}, {10, 12}, {0, 3}}},
    {"fan", {{0, -5}, {12, -18}, {22, -17}, {25, 0}, {22, 17}, {12, 18}, {0, 5}}},
    {"round", {{0, -6}, {10, -14}, {18, -10}, {20, 0}, {18, 10}, {10, 14}, {0, 6}}},
    {"veil",
     {{0, -5}, {12, -24}, {26, -34}, {22, -10}, {27, 4}, {24, 22}, {28, 40}, {12, 26}, {0, 5}}},
    {"lyre", {{0, -5}, {10, -20}, {28, -30}, {16, -8}, {16, 8}, {28, 30}, {10, 20}, {0, 5}}},
    {"square", {{0, -5}, {18, -16}, {18, 16}, {0, 5}}},
    {"shark", {{0, -3}, {10, -14}, {22, -34}, {16, -4}, {18, 14}, {6, 6}, {0, 3}}},
    {"none", {}}};

struct Fish {
    const Recipe& R;
    QColor Tint1;
    QColor Tint2;
    QColor Tint3;
    QString Shape;
    double Height;
    double TailX;
    double Cy;
    QPainterPath Body;
    QColor Edge;
    QString TailKind;
    double TailSize;
    QColor TailTint;
    Points Tail;
    double Top;
    double Foot;
    QString Dorsal;
    QString Anal;
    QColor BellyTint;
    double HeadX;
    QColor PecTint;
    double EyeSize;
    double EyeY;
    Points Pts;
};

static void Finray(QPainter& G, const Fish&, const QPainterPath& Path, const QColor& Tone)
{
    Outline(G, Path, Linear(0, 20, 0, 90, {Light(Tone, .25), Tone}), Dark(Tone, .4), 1.3);
    G.save();
    G.setClipPath(Path);
    const QRectF B = Path.boundingRect();
    constexpr int Rays = 5;
    for (int I = 0; I < Rays; ++I) {
        const double T = (I + 1.0) / (Rays + 1);
        StrokeLine(G, B.left() + B.width() * T * .8, B.bottom(),
                   B.left() + B.width() * (T * .8 + .25), B.top(), Alpha(Dark(Tone, .35), .55), 1);
    }
    G.restore();
}

static void Fin(QPainter& G, const Fish& Own, const QString& Kind, bool Up)
{
    const int Side = Up ? -1 : 1;
    const double Y0 = Own.Cy + Side * Own.Height * .4;
    const QColor Tone = Up ? Colour(Own.R, "dorsalc", Own.Tint3) : Own.Tint3;
    QPainterPath Path;
    if (Kind == "low") {
        Path = ClosedCurve({{34, Y0 + Side * 1},
                            {40, Y0 + Side * 13},
                            {54, Y0 + Side * 11},
                            {66, Y0 - Side * 3},
                            {60, Own.Cy + Side * Own.Height * .22}});
    } else if (Kind == "spiky") {
        Path = Polygon({{26, Y0},
                        {30, Y0 + Side * 16},
                        {34, Y0 + Side * 7},
                        {38, Y0 + Side * 19},
                        {43, Y0 + Side * 8},
                        {47, Y0 + Side * 17},
                        {52, Y0 + Side * 7},
                        {56, Y0 + Side * 13},
                        {64, Own.Cy + Side * Own.Height * .24},
                        {44, Y0 - Side * 4}});
    } else if (Kind == "sail") {
        Path = ClosedCurve({{22, Y0},
                            {28, Y0 + Side * 24},
                            {44, Y0 + Side * 26},
                            {60, Y0 + Side * 18},
                            {70, Own.Cy + Side * Own.Height * .18},
                            {46, Y0 - Side * 5}});
    } else if (Kind == "long") {
        Path = ClosedCurve({{18, Own.Cy + Side * Own.Height * .3},
                            {26, Y0 + Side * 11},
                            {46, Y0 + Side * 12},
                            {66, Own.Cy + Side * (Own.Height * .24 + 11)},
                            {74, Own.Cy + Side * Own.Height * .1},
                            {46, Y0 - Side * 5}});
    } else if (Kind == "angel") {
        Path = ClosedCurve({{34, Y0},
                            {46, Y0 + Side * 20},
                            {64, Y0 + Side * 30},
                            {62, Y0 + Side * 12},
                            {66, Own.Cy + Side * Own.Height * .2},
                            {48, Y0 - Side * 6}});
    } else if (Kind == "trig") {
        Path = ClosedCurve({{44, Y0 + Side * 2},
                            {54, Y0 + Side * 20},
                            {68, Y0 + Side * 10},
                            {72, Own.Cy + Side * Own.Height * .14},
                            {56, Y0 - Side * 4}});
    } else if (Kind == "shark") {
        Path = Up ? Polygon({{38, Y0 + Side * 3}, {50, Y0 + Side * 24}, {54, Y0 - Side * 2}})
                  : Polygon({{34, Y0 - 2}, {40, Y0 + Side * 16}, {48, Y0 - Side * 2}});
    } else if (Kind == "spines") {
        for (int I = 0; I < 8; ++I) {
            const int X = 22 + I * 6;
            StrokeLine(G, X, Own.Cy + Side * Own.Height * .3, X + 4,
                       Y0 + Side * (22 - std::abs(I - 3) * 2), Tone, 2.2);
            StrokeLine(G, X + 1, Own.Cy + Side * Own.Height * .3, X + 2, Y0 + Side * 8,
                       Alpha(Light(Tone, .4), .8), 5);
        }
        return;
    } else {
        return;
    }
    Finray(G, Own, Path, Tone);
}

static void DrawTailFin(QPainter& G, const Fish& Own)
{
    if (!Own.Tail.empty()) {
        const Points Rim = Mapped(Own.Tail, [&](double X, double Y) {
            return QPointF(Own.TailX - 3 + X * Own.TailSize, Own.Cy + Y * Own.TailSize);
        });
        const QPainterPath Path = Own.TailKind == "square" ? Polygon(Rim) : ClosedCurve(Rim, .6);
        Outline(G, Path,
                Linear(Own.TailX, 0, Own.TailX + 24, 0, {Own.TailTint, Light(Own.TailTint, .3)}),
                Dark(Own.TailTint, .45), 1.4);
        G.save();
        G.setClipPath(Path);
        for (const double A : {-40, -22, -8, 8, 22, 40}) {
            StrokeLine(G, Own.TailX - 3, Own.Cy, Own.TailX + 30,
                       Own.Cy + 36 * std::sin(Radians(A)) * 1.4, Alpha(Dark(Own.TailTint, .4), .5),
                       1);
        }
        if (Has(Own.R, "tailspot")) {
            Random Chance{2};
            for (int I = 0; I < 9; ++I) {
                Fill(G,
                     Circle(Own.TailX + 4 + Uniform(Chance, 0, 22) * Own.TailSize,
                            Own.Cy + Uniform(Chance, -20, 20) * Own.TailSize, 2.6),
                     Colour(Own.R, "tailspot"));
            }
        }
        G.restore();
    }
}

static void DrawSpikesAndBill(QPainter& G, const Fish& Own)
{
    if (Has(Own.R, "spikes")) {
        for (int I = 0; I < 16; ++I) {
            const double A = Radians(I * 22.5);
            StrokeLine(G, 42 + 26 * std::cos(A), Own.Cy + Own.Height * .42 * std::sin(A),
                       42 + 35 * std::cos(A), Own.Cy + (Own.Height * .5 + 7) * std::sin(A),
                       Dark(Own.Tint1, .3), 2);
        }
    }
    if (Has(Own.R, "bill")) {
        Outline(G, Polygon({{-2, Own.Cy - 1}, {16, Own.Cy - 5}, {16, Own.Cy + 4}}),
                Light(Own.Tint1, .2), Own.Edge, 1.2);
    }
    Outline(G, Own.Body,
            Linear(0, Own.Top, 0, Own.Foot,
                   {Dark(Own.Tint1, .12), Own.Tint1, Own.Tint1, Own.BellyTint}),
            Own.Edge, 1.8);
}

static void DrawPattern(QPainter& G, const Fish& Own)
{
    G.save();
    G.setClipPath(Own.Body);
    for (const QString& Word : Words(Own.R, "pat", "+")) {
        // A pattern may bring a number: "bands:3".
        const QString Kind = Word.section(':', 0, 0);
        const int Given = Word.section(':', 1).toInt();

        if (Kind == "bands") {
            const int Count = Given ? Given : 3;
            for (int I = 0; I < Count; ++I) {
                double X = Count > 1 ? 24 + I * (52 / std::max<double>(Count - 1, 1)) : 44;
                const double W = Number(Own.R, "bw", 7);
                QPainterPath Path = ClosedCurve({{X - W / 2, 0},
                                                 {X + W * .2, Own.Cy},
                                                 {X - W / 2, 100},
                                                 {X + W / 2, 100},
                                                 {X + W * 1.2, Own.Cy},
                                                 {X + W / 2, 0}},
                                                .5);
                if (Has(Own.R, "edge"))
                    Outline(G, Path, Own.Tint2, Colour(Own.R, "edge"), 2.2);
                else
                    Fill(G, Path, Own.Tint2);
            }
        }
        if (Kind == "stripes") {
            const int Count = Given ? Given : 4;
            for (int I = 0; I < Count; ++I) {
                double Y = Own.Cy - Own.Height * .36 +
                           Own.Height * .72 * I / std::max<double>(Count - 1, 1);
                Stroke(G,
                       Curve({{14, Own.Cy + (Y - Own.Cy) * .6},
                              {40, Y},
                              {80, Own.Cy + (Y - Own.Cy) * .4}}),
                       Own.Tint2, Number(Own.R, "sw", 2.6));
            }
        }
        if (Kind == "spots") {
            Random Chance{static_cast<std::uint64_t>(Given ? Given : 3)};
            const double R = Number(Own.R, "sr", 3);
            for (int I = 0; I < static_cast<int>(Number(Own.R, "sn", 22)); ++I) {
                Fill(G,
                     Circle(Uniform(Chance, 16, 74),
                            Own.Cy + Uniform(Chance, -.46, .46) * Own.Height,
                            R * Uniform(Chance, .6, 1.1)),
                     Own.Tint2);
            }
        }
        if (Kind == "patches") {
            for (const auto& [X, Y, R] : Table<double, double, double>{{24, Own.Cy - 10, 9},
                                                                       {46, Own.Cy - 8, 12},
                                                                       {66, Own.Cy + 2, 8},
                                                                       {36, Own.Cy + 12, 6}}) {
                Fill(G,
                     ClosedCurve({{X - R, Y},
                                  {X - R * .2, Y - R * .8},
                                  {X + R, Y - R * .3},
                                  {X + R * .6, Y + R * .7},
                                  {X - R * .4, Y + R * .6}}),
                     Own.Tint2);
            }
        }
        if (Kind == "half") {
            Fill(G, ClosedCurve({{46, 0}, {50, Own.Cy}, {44, 100}, {100, 100}, {100, 0}}, .4),
                 Own.Tint2);
        }
        if (Kind == "eyeband") StrokeLine(G, 20, Own.Cy - 30, 22, Own.Cy + 34, "#1a1a1a", 6);
        if (Kind == "line") {
            Stroke(G, Curve({{10, Own.Cy - 2}, {40, Own.Cy - 4}, {78, Own.Cy}}), Own.Tint2,
                   Number(Own.R, "sw", 5));
        }
        if (Kind == "scales") {
            for (int R = 0; R < 7; ++R) {
                for (int I = 0; I < 8; ++I) {
                    double X = 30 + I * 7 + R % 2 * 3.5;
                    double Y = Own.Cy - 24 + R * 8;
                    Stroke(G, Arc(X - 5, Y - 5, 10, 10, 90, 180), Alpha(Own.Tint2, .8), 1.3);
                }
            }
        }
        if (Kind == "squiggle") {
            for (int I = 0; I < 5; ++I) {
                double Y = Own.Cy - 20 + I * 10;
                Stroke(G,
                       Curve({{26, Y},
                              {34, Y - 5},
                              {42, Y + 4},
                              {50, Y - 5},
                              {58, Y + 4},
                              {66, Y - 4},
                              {74, Y}}),
                       Own.Tint2, 3);
            }
        }
        if (Kind == "tangmark") {
            Stroke(G,
                   Curve({{22, Own.Cy - 10},
                          {40, Own.Cy - 16},
                          {72, Own.Cy - 3},
                          {58, Own.Cy + 8},
                          {46, Own.Cy + 2},
                          {40, Own.Cy - 8}}),
                   Own.Tint2, 6);
        }
        if (Kind == "spot1") {
            Fill(G, Circle(62, Own.Cy - 10, 6.5), Own.Tint2);
            Stroke(G, Circle(62, Own.Cy - 10, 7.5), "#ffffff", 1.4);
        }
        if (Kind == "bellyc") {
            Fill(G,
                 ClosedCurve({{0, 100},
                              {0, Own.Cy + 5},
                              {30, Own.Cy + Own.Height * .12},
                              {80, Own.Cy + 3},
                              {100, 100}},
                             .4),
                 Own.Tint2);
        }
    }
    Fill(G, Ellipse(38, Own.Cy - Own.Height * .3, 20, Own.Height * .09), Alpha("#ffffff", .28));
    G.restore();
}

static void DrawMouth(QPainter& G, const Fish& Own)
{
    if (Has(Own.R, "whisk")) {
        for (const QPointF& E : Points{{0, 72}, {6, 80}, {16, 82}}) {
            Stroke(G, Curve({{12, Own.Cy + 4}, {8 + E.x() * .4, 64}, {E.x(), E.y()}}),
                   Dark(Own.Tint1, .3), 1.8);
        }
    }
    if (Has(Own.R, "teeth")) {
        for (int I = 0; I < 4; ++I) {
            Outline(G,
                    Polygon({{9.0 + I * 4, Own.Cy + 8 + I},
                             {11.0 + I * 4, Own.Cy + 15 + I},
                             {13.0 + I * 4, Own.Cy + 8 + I}}),
                    "#ffffff", "#333", .8);
        }
        StrokeLine(G, 8, Own.Cy + 7, 27, Own.Cy + 12, "#222", 1.6);
    } else {
        Stroke(G,
               Curve({{Own.Pts[0].x() + 1, Own.Cy + 4},
                      {Own.Pts[0].x() + 5, Own.Cy + 6},
                      {Own.Pts[0].x() + 9, Own.Cy + 5}}),
               Dark(Own.Tint1, .6), 1.8);
    }
    if (Has(Own.R, "lure")) {
        Stroke(G, Curve({{34, Own.Cy - Own.Height * .45}, {26, 8}, {10, 14}, {8, 22}}),
               Dark(Own.Tint1, .1), 2);
        Fill(G, Circle(8, 24, 9), Radial(8, 24, 9, {"#ffffff", "#fff27a", Alpha("#ffe000", 0)}));
    }
}

static void Draw(QPainter& G, const Fish& Own)
{
    DrawTailFin(G, Own);
    Fin(G, Own, Own.Dorsal, true);
    Fin(G, Own, Own.Anal, false);
    DrawSpikesAndBill(G, Own);
    DrawPattern(G, Own);
    Stroke(G, Own.Body, Own.Edge, 1.4);
    Stroke(G,
           Curve({{Own.HeadX + 11, Own.Cy - Own.Height * .2},
                  {Own.HeadX + 14, Own.Cy},
                  {Own.HeadX + 11, Own.Cy + Own.Height * .2}}),
           Alpha(Own.Edge, .8), 1.5);
    Outline(G,
            ClosedCurve({{Own.HeadX + 16, Own.Cy + 4},
                         {Own.HeadX + 30, Own.Cy + 2},
                         {Own.HeadX + 32, Own.Cy + 13},
                         {Own.HeadX + 20, Own.Cy + 11}}),
            Light(Own.PecTint, .15), Dark(Own.PecTint, .4), 1.2);
    DrawMouth(G, Own);
    Fill(G, Circle(Own.HeadX, Own.EyeY, Own.EyeSize), "#ffffff");
    Fill(G, Circle(Own.HeadX - .4, Own.EyeY, Own.EyeSize * .62), "#10151c");
    Fill(G, Circle(Own.HeadX - 1.3, Own.EyeY - 1.3, Own.EyeSize * .24), "#ffffff");
}

// From the snout over the back and home below.
static Points BodyRim(const QString& Shape, double Height, double TailX, double Cy)
{
    if (Shape == "box") {
        return {{10, Cy - 4},
                {16, Cy - Height * .42},
                {40, Cy - Height * .5},
                {64, Cy - Height * .42},
                {TailX, Cy - 6},
                {TailX, Cy + 6},
                {64, Cy + Height * .42},
                {40, Cy + Height * .5},
                {16, Cy + Height * .42},
                {10, Cy + 4}};
    }
    if (Shape == "torpedo") {
        return {{5, Cy},
                {22, Cy - Height * .36},
                {42, Cy - Height * .5},
                {62, Cy - Height * .3},
                {TailX, Cy - 3},
                {TailX, Cy + 3},
                {62, Cy + Height * .3},
                {42, Cy + Height * .46},
                {22, Cy + Height * .3}};
    }
    if (Shape == "puffer") {
        return {{10, Cy - 3},
                {22, Cy - Height * .4},
                {42, Cy - Height * .5},
                {60, Cy - Height * .36},
                {TailX, Cy - 5},
                {TailX, Cy + 5},
                {60, Cy + Height * .36},
                {42, Cy + Height * .5},
                {22, Cy + Height * .4},
                {10, Cy + 4}};
    }
    if (Shape == "blunt") {
        return {{8, Cy + 4},
                {9, Cy - Height * .4},
                {22, Cy - Height * .52},
                {44, Cy - Height * .4},
                {TailX, Cy - 3},
                {TailX, Cy + 3},
                {48, Cy + Height * .4},
                {22, Cy + Height * .46},
                {10, Cy + 10}};
    }
    return {{8, Cy + 1},
            {19, Cy - Height * .36},
            {38, Cy - Height * .5},
            {60, Cy - Height * .3},
            {TailX, Cy - Height * .1 - 1},
            {TailX, Cy + Height * .1 + 1},
            {60, Cy + Height * .32},
            {38, Cy + Height * .5},
            {19, Cy + Height * .36}};
}

void DrawFish(QPainter& P, const Recipe& R)
{
    const QColor Tint1 = Colour(R, "c1", "#ff7a1a");
    const QColor Tint2 = Colour(R, "c2", "#ffffff");
    const QColor Tint3 = Colour(R, "c3", Tint1);
    const QString Shape = Text(R, "body", "oval");
    static const QMap<QString, double> Heights = {
        {"oval", 46},  {"disc", 64},   {"long", 26}, {"torpedo", 32}, {"box", 48},
        {"angel", 54}, {"puffer", 58}, {"slim", 17}, {"deep", 56},    {"blunt", 34}};
    const double Height = Number(R, "h", Heights.value(Shape, 44));
    const double TailX = Number(R, "tx", 76);
    const double Cy = 53;
    Points Pts = BodyRim(Shape, Height, TailX, Cy);
    if (Has(R, "bill")) Pts[0] = {12, Cy};
    const QPainterPath Body = ClosedCurve(Pts);
    QColor Edge = Dark(Tint1, .5);
    if (Tint1.lightness() > 210) Edge = QColor("#7d8790");
    const QString TailKind = Text(R, "tail", "fork");
    const double TailSize = Number(R, "ts", 1);
    const QColor TailTint = Colour(R, "tailc", Tint3);
    const Points Tail = Named(Tails, TailKind, R);
    const double Top = Cy - Height * .5;
    const double Foot = Cy + Height * .5;
    const QString Dorsal = Text(R, "dorsal", "low");
    const QString Anal = Text(
        R, "anal",
        QStringList{"angel", "sail", "long", "trig", "spines"}.contains(Dorsal) ? Dorsal : "low");
    const QColor BellyTint = Colour(R, "belly", Light(Tint1, .35));
    const double HeadX = !QStringList{"torpedo", "slim"}.contains(Shape) ? 20 : 18;
    const QColor PecTint = Colour(R, "pecc", Tint3);
    const double EyeSize = Number(R, "er", Height > 24 ? 4.6 : 3.2);
    const double EyeY = Cy - Height * .14;
    const Fish Own{R,      Tint1, Tint2,     Tint3,    Shape,    Height,  TailX, Cy,
                   Body,   Edge,  TailKind,  TailSize, TailTint, Tail,    Top,   Foot,
                   Dorsal, Anal,  BellyTint, HeadX,    PecTint,  EyeSize, EyeY,  Pts};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.22);
}
