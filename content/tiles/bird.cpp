// bird.cpp: birds from the side, looking left, and owls from the front

#include "drawing.h"
#include "kinds.h"

// Tails of one piece, from the root.
static const QMap<QString, Points> Tails = {
    {"short", {{0, -7}, {20, -2}, {22, 8}, {2, 9}}},
    {"mid", {{0, -7}, {34, 6}, {33, 18}, {0, 9}}},
    {"long", {{0, -7}, {42, 22}, {40, 34}, {0, 8}}},
    {"fork", {{0, -6}, {44, 2}, {26, 10}, {42, 26}, {0, 8}}},
    {"up", {{0, -4}, {14, -36}, {28, -30}, {10, 10}}},
    {"vlong", {{0, -6}, {34, 34}, {40, 56}, {30, 52}, {0, 8}}},
    {"fan", {{0, -8}, {20, -30}, {36, -16}, {40, 6}, {30, 22}, {0, 10}}}};

struct Bird {
    const Recipe& R;
    QString Kind;
    QColor Tint;
    QColor BreastTint;
    QColor WingTint;
    QColor HeadTint;
    QString BeakKind;
    QColor BeakTint;
    QColor LegTint;
    QString TailKind;
    QColor TailTint;
    QColor Edge;
};

static void DrawLegs(QPainter& G, const Bird& Own, double X, double Y, double L, double Gap = 9,
                     bool Webbed = false)
{
    for (const double O : {0.0, Gap}) {
        StrokeLine(G, X + O, Y, X + O - 1, Y + L, Dark(Own.LegTint, .4), 3.6);
        StrokeLine(G, X + O, Y, X + O - 1, Y + L, Own.LegTint, 2.2);
        if (Webbed) {
            Outline(
                G,
                Polygon({{X + O + 2, Y + L - 1}, {X + O - 10, Y + L + 4}, {X + O + 3, Y + L + 4}}),
                Own.LegTint, Dark(Own.LegTint, .4), 1);
        } else {
            for (const double E : {-7, -3, 4})
                StrokeLine(G, X + O - 1, Y + L, X + O + E, Y + L + 3.5, Own.LegTint, 2.2);
        }
    }
}

static void DrawBeak(QPainter& G, const Bird& Own, double X, double Y, double Size = 1)
{
    const auto Straight = [&](const Points& Rim) { return Moved(Polygon(Rim), X, Y, 0, Size); };
    const auto Bent = [&](const Points& Rim) { return Moved(ClosedCurve(Rim, .6), X, Y, 0, Size); };
    const QColor BeakEdge = Dark(Own.BeakTint, .45);
    if (Own.BeakKind == "cone")
        Outline(G, Straight({{2, -5}, {-13, 1}, {2, 6}}), Own.BeakTint, BeakEdge, 1.2);
    if (Own.BeakKind == "thin")
        Outline(G, Straight({{2, -2.5}, {-17, 1}, {2, 3}}), Own.BeakTint, BeakEdge, 1.1);
    if (Own.BeakKind == "needle")
        Outline(G, Straight({{2, -1.8}, {-34, -2}, {2, 2}}), Own.BeakTint, BeakEdge, 1);
    if (Own.BeakKind == "hook")
        Outline(G, Bent({{3, -6}, {-9, -5}, {-13, 3}, {-11, 10}, {-7, 4}, {3, 6}}), Own.BeakTint,
                BeakEdge, 1.2);
    if (Own.BeakKind == "parrot")
        Outline(G, Bent({{4, -9}, {-8, -8}, {-14, 2}, {-10, 13}, {-5, 6}, {4, 8}}), Own.BeakTint,
                BeakEdge, 1.3);
    if (Own.BeakKind == "duck")
        Outline(G, Bent({{3, -5}, {-10, -1}, {-20, 0}, {-21, 5}, {-8, 6}, {3, 6}}), Own.BeakTint,
                BeakEdge, 1.3);
    if (Own.BeakKind == "long")
        Outline(G, Straight({{3, -4}, {-36, 3}, {3, 5}}), Own.BeakTint, BeakEdge, 1.2);
    if (Own.BeakKind == "down")
        Outline(G, Bent({{3, -5}, {-16, -2}, {-28, 10}, {-26, 11}, {-12, 4}, {3, 5}}), Own.BeakTint,
                BeakEdge, 1.2);
    if (Own.BeakKind == "toucan") {
        Outline(G, Bent({{4, -12}, {-18, -13}, {-36, -2}, {-34, 8}, {-18, 5}, {4, 10}}),
                Own.BeakTint, BeakEdge, 1.4);
        Outline(G, Bent({{-29, -7}, {-36, -2}, {-34, 8}, {-29, 4}}), "#1a1a1a", "#000", 1);
        Outline(G, Bent({{4, 3}, {-18, 1}, {-32, 4}, {-18, 6}, {4, 10}}), "#e8401c", BeakEdge, 1);
    }
    if (Own.BeakKind == "pelican") {
        Outline(G, Bent({{4, -4}, {-40, 4}, {4, 6}}), Own.BeakTint, BeakEdge, 1.2);
        Outline(G, Bent({{4, 4}, {-36, 5}, {-26, 18}, {-8, 26}, {6, 14}}), "#ffd08a", BeakEdge,
                1.3);
    }
    if (Own.BeakKind == "puffin") {
        Outline(G, Bent({{4, -10}, {-8, -9}, {-15, 1}, {-8, 9}, {4, 9}}), "#e84a1c", BeakEdge, 1.3);
        Outline(G, Bent({{4, -10}, {-3, -10}, {-3, 9}, {4, 9}}), "#3a5a7a", "#1a2a3a", 1);
        StrokeLine(G, X - 5 * Size, Y - 8 * Size, X - 5 * Size, Y + 8 * Size, "#ffd84a", 2);
    }
    if (Own.BeakKind == "flam") {
        Outline(G, Bent({{4, -6}, {-10, -4}, {-14, 8}, {-10, 16}, {-5, 8}, {4, 6}}), Own.BeakTint,
                BeakEdge, 1.2);
        Outline(G, Bent({{-12, 4}, {-14, 8}, {-10, 16}, {-6, 9}}), "#1a1a1a", "#000", 1);
    }
    if (Own.BeakKind == "horn") {
        Outline(G, Bent({{4, -5}, {-20, 2}, {-30, 14}, {-14, 10}, {4, 8}}), Own.BeakTint, BeakEdge,
                1.3);
        Outline(G, Bent({{4, -10}, {-10, -16}, {-20, -8}, {-8, -2}, {4, -3}}),
                Colour(Own.R, "bc2", "#e8641c"), BeakEdge, 1.2);
    }
}

static void DrawEye(QPainter& G, const Bird& Own, double X, double Y, double R = 3.4,
                    const QColor& Ring = {})
{
    if (Ring.isValid()) Fill(G, Circle(X, Y, R * 1.7), Ring);
    Fill(G, Circle(X, Y, R), Colour(Own.R, "ec", "#ffffff"));
    Fill(G, Circle(X, Y, R * .66), "#101010");
    Fill(G, Circle(X - R * .28, Y - R * .28, R * .24), "#fff");
}

static void DrawTail(QPainter& G, const Bird& Own, double X, double Y)
{
    const Points T = Tails.value(Own.TailKind); // the others are drawn below
    if (!T.empty()) {
        const QPainterPath Path =
            (Own.TailKind == "fork" ? Polygon(T) : ClosedCurve(T, .5)).translated(X, Y);
        Outline(G, Path, Linear(X, Y, X + 34, Y + 20, {Own.TailTint, Dark(Own.TailTint, .2)}),
                EdgeOf(Own.TailTint, .5, "#7d8088"), 1.5);
        G.save();
        G.setClipPath(Path);
        const QPointF E = T[static_cast<std::size_t>(static_cast<int>(T.size()) / 2)];
        for (const double O : {-4, 0, 4})
            StrokeLine(G, X, Y + O, X + E.x(), Y + E.y() + O * 2, Alpha(Dark(Own.TailTint, .4), .6),
                       1.2);
        G.restore();
    }
    if (Own.TailKind == "rooster") {
        for (int I = 0; const QColor Tone : {Own.TailTint, Light(Own.TailTint, .2),
                                             QColor("#1a3a6a"), QColor("#c8641c")}) {
            Outline(G,
                    ClosedCurve({{X - 2, Y + 6 - I * 3},
                                 {X + 20, Y - 28 - I * 3},
                                 {X + 38 - I * 4, Y - 22 + I * 9},
                                 {X + 34 - I * 3, Y + 6 + I * 3},
                                 {X + 26, Y - 8},
                                 {X + 10, Y + 8}},
                                .6),
                    Tone, Dark(Tone, .5), 1.3);
            ++I;
        }
    }
    if (Own.TailKind == "peacock") {
        for (int I = 0; I < 9; ++I) {
            const double A = Radians(-128 + I * 24);
            const double X2 = X + 46 * std::cos(A);
            const double Y2 = Y - 4 + 46 * std::sin(A);
            Outline(G, Polygon({{X, Y - 3}, {X2, Y2}, {X, Y + 4}}), "#1c8a4a", "#0a3a1a", 1);
            Outline(G, Circle(X2, Y2, 8.5), "#2ab86a", "#0a4a2a", 1.2);
            Outline(G, Circle(X2, Y2, 5), "#1c6ad8", "#0a2a6a", 1);
            Fill(G, Circle(X2, Y2, 2.2), "#f0c81c");
        }
    }
}

static void DrawCrest(QPainter& G, const Bird& Own, double X, double Y)
{
    const QString Crest = Text(Own.R, "crest");
    const QColor Tone = Colour(Own.R, "cc", Own.Tint);
    if (Crest == "point")
        Outline(G, Polygon({{X - 6, Y + 4}, {X + 14, Y - 14}, {X + 8, Y + 6}}), Tone,
                Dark(Tone, .5), 1.3);
    if (Crest == "fan")
        for (const double A : {-30, -6, 18, 42, 66})
            Outline(G, Moved(ClosedCurve({{0, 0}, {3, -12}, {0, -20}, {-3, -12}}), X + 2, Y + 5, A),
                    Tone, Dark(Tone, .45), 1);
    if (Crest == "hoopoe") {
        for (const double A : {-40, -16, 8, 32, 56, 78}) {
            Outline(
                G, Moved(ClosedCurve({{0, 0}, {3.4, -14}, {0, -25}, {-3.4, -14}}), X + 2, Y + 6, A),
                Tone, Dark(Tone, .45), 1);
            Fill(G, Moved(Circle(0, -22, 2.4), X + 2, Y + 6, A), "#1a1a1a");
        }
    }
    if (Crest == "comb")
        Outline(G,
                ClosedCurve({{X - 8, Y + 4},
                             {X - 9, Y - 5},
                             {X - 3, Y - 1},
                             {X + 1, Y - 9},
                             {X + 5, Y - 1},
                             {X + 11, Y - 6},
                             {X + 10, Y + 6}},
                            .7),
                "#e01c1c", "#6a0808", 1.3);
    if (Crest == "crown") {
        for (const double V : {-150, -125, -100, -75, -50, -25, 0}) {
            const double A = Radians(V);
            StrokeLine(G, X + 4, Y + 4, X + 4 + 15 * std::cos(A), Y + 4 + 15 * std::sin(A),
                       "#c8901c", 1.6);
            Outline(G, Circle(X + 4 + 15 * std::cos(A), Y + 4 + 15 * std::sin(A), 2), "#ffd84a",
                    "#7a5a10", .7);
        }
    }
    if (Crest == "dots") {
        for (const double O : {-6, 0, 6}) {
            StrokeLine(G, X + 2, Y + 3, X + 2 + O, Y - 13, "#1c4ab0", 1.4);
            Outline(G, Circle(X + 2 + O, Y - 14, 2.4), "#2ab86a", "#0a3a1a", .8);
        }
    }
}

static void DrawMarks(QPainter& G, const Bird& Own, const QPainterPath& Path, double X0, double Y0,
                      double X1, double Y1)
{
    G.save();
    G.setClipPath(Path);
    for (const auto& M : Words(Own.R, "m", "+")) {
        if (M == "breast")
            Fill(G, Ellipse(X0 + 12, Y1 - 10, (X1 - X0) * .42, (Y1 - Y0) * .46, -20),
                 Own.BreastTint);
        if (M == "streak") {
            Random Chance{5};
            for (int I = 0; I < 30; ++I) {
                const double A = Uniform(Chance, X0, X1);
                const double E = Uniform(Chance, Y0, Y1);
                StrokeLine(G, A, E, A + 1, E + 5, Colour(Own.R, "mc", "#3a2a1a"), 1.8);
            }
        }
    }
    G.restore();
}

static void DrawPerch(QPainter& G, const Bird& Own)
{
    const double Bx = Number(Own.R, "bx", 52);
    const double By = 56;
    const double Rx = 26;
    const double Ry = 19;
    const double Rot = Number(Own.R, "rot", 22);
    double HeadSize = 14.5;
    double HeadX = Number(Own.R, "hx", 31);
    double HeadY = 34;
    DrawTail(G, Own, Bx + Rx * .75, By + Ry * .35 + 6);
    DrawLegs(G, Own, Bx - 6, By + Ry - 3, Number(Own.R, "leg", 14));
    const QPainterPath Body = Ellipse(Bx, By, Rx, Ry, Rot)
                                  .united(Circle(HeadX, HeadY, HeadSize))
                                  .united(ClosedCurve({{HeadX - HeadSize * .8, HeadY + 4},
                                                       {HeadX + HeadSize * .9, HeadY - 4},
                                                       {Bx + 6, By - Ry * .7},
                                                       {Bx - Rx * .6, By + Ry * .7}},
                                                      .5));
    Outline(G, Body,
            Radial(HeadX + 4, HeadY, 70, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.8);
    DrawMarks(G, Own, Body, Bx - Rx, By - Ry, Bx + Rx, By + Ry + 6);
    if (Own.HeadTint != Own.Tint) {
        G.save();
        G.setClipPath(Body);
        Fill(G,
             Ellipse(HeadX, HeadY - (Has(Own.R, "cap") ? 4 : 0), HeadSize + 1,
                     Has(Own.R, "cap") ? HeadSize * .72 : HeadSize + 1),
             Own.HeadTint);
        G.restore();
    }
    if (Has(Own.R, "face")) {
        G.save();
        G.setClipPath(Circle(HeadX, HeadY, HeadSize));
        Fill(G, Ellipse(HeadX - 6, HeadY + 3, HeadSize * .8, HeadSize * .7), Colour(Own.R, "face"));
        G.restore();
    }
    if (Has(Own.R, "mask")) {
        G.save();
        G.setClipPath(Body);
        StrokeLine(G, HeadX - HeadSize, HeadY, HeadX + 8, HeadY - 1, Colour(Own.R, "mask"), 6.4);
        G.restore();
    }
    if (Has(Own.R, "collar")) {
        G.save();
        G.setClipPath(Body);
        Stroke(G,
               Curve({{HeadX - HeadSize + 2, HeadY + HeadSize - 2},
                      {HeadX + 2, HeadY + HeadSize + 3},
                      {HeadX + HeadSize + 6, HeadY + 4}}),
               Colour(Own.R, "collar"), 5);
        G.restore();
    }
    DrawCrest(G, Own, HeadX + 2, HeadY - HeadSize + 1);
    QPainterPath Wing = ClosedCurve({{Bx - 10, By - 10},
                                     {Bx + 10, By - 12},
                                     {Bx + Rx + 4, By + 8},
                                     {Bx + Rx + 10, By + 17},
                                     {Bx + 8, By + 12},
                                     {Bx - 8, By + 6}},
                                    .6);
    Outline(G, Wing, Linear(Bx, By - 12, Bx + 20, By + 16, {Own.WingTint, Dark(Own.WingTint, .15)}),
            EdgeOf(Own.WingTint, .5, "#7d8088"), 1.5);
    G.save();
    G.setClipPath(Wing);
    if (Has(Own.R, "wb")) StrokeLine(G, Bx - 4, By + 8, Bx + 16, By - 12, Colour(Own.R, "wb"), 4);
    for (const double O : {0, 1, 2})
        StrokeLine(G, Bx - 4, By - 2 + O * 4, Bx + Rx + 8, By + 13 + O * 2,
                   Alpha(Dark(Own.WingTint, .4), .7), 1.3);
    G.restore();
    DrawBeak(G, Own, HeadX - HeadSize + 1, HeadY + 1, Number(Own.R, "bs", 1));
    DrawEye(G, Own, HeadX - 4, HeadY - 2, 3.6, Text(Own.R, "ring"));
    if (Has(Own.R, "wattle"))
        Outline(G, Ellipse(HeadX - HeadSize + 2, HeadY + 10, 3.6, 6), "#e01c1c", "#6a0808", 1.1);
}

static void DrawOwl(QPainter& G, const Bird& Own)
{
    for (const double Side : {-1, 1})
        Outline(G,
                ClosedCurve({{50 + Side * 26, 36},
                             {50 + Side * 40, 56},
                             {50 + Side * 32, 86},
                             {50 + Side * 18, 72}}),
                Own.WingTint, Dark(Own.WingTint, .5), 1.5);
    QPainterPath Path = ClosedCurve({{50, 10},
                                     {74, 16},
                                     {80, 40},
                                     {76, 76},
                                     {62, 92},
                                     {50, 95},
                                     {38, 92},
                                     {24, 76},
                                     {20, 40},
                                     {26, 16}},
                                    .7);
    Outline(G, Path, Radial(44, 40, 60, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .15)}),
            Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    Fill(G, Ellipse(50, 78, 20, 28), Own.BreastTint);
    for (int I = 0; I < 3; ++I)
        for (int J = 0; J < 4; ++J)
            Fill(G,
                 Polygon({{40 + I * 7 + J % 2 * 3.5, 58.0 + J * 8},
                          {43 + I * 7 + J % 2 * 3.5, 63.0 + J * 8},
                          {46 + I * 7 + J % 2 * 3.5, 58.0 + J * 8}}),
                 Dark(Own.Tint, .15));
    G.restore();
    if (Has(Own.R, "ear"))
        for (const double Side : {-1, 1})
            Outline(G, Polygon({{50 + Side * 12, 16}, {50 + Side * 29, 0}, {50 + Side * 27, 24}}),
                    Own.Tint, Own.Edge, 1.4);
    if (Has(Own.R, "heart"))
        Outline(
            G,
            ClosedCurve(
                {{50, 26}, {64, 16}, {76, 28}, {72, 48}, {50, 58}, {28, 48}, {24, 28}, {36, 16}}),
            Own.BreastTint, Dark(Own.BreastTint, .3), 1.4);
    for (const double Side : {-1, 1}) {
        Outline(G, Circle(50 + Side * 13, 34, 13), Own.BreastTint, Dark(Own.BreastTint, .35), 1.3);
        Outline(G, Circle(50 + Side * 13, 34, 8), Colour(Own.R, "ec", "#ffc81c"), "#5a3a08", 1.2);
        Fill(G, Circle(50 + Side * 13, 34, 4.4), "#101010");
        Fill(G, Circle(50 + Side * 13 - 2, 32, 1.6), "#fff");
    }
    Outline(G, Polygon({{45, 40}, {55, 40}, {50, 52}}), Own.BeakTint, Dark(Own.BeakTint, .5), 1.2);
    for (const double Side : {-1, 1})
        Outline(G, Ellipse(50 + Side * 9, 94, 6, 3.4), Own.BeakTint, Dark(Own.BeakTint, .5), 1);
}

static void DrawWader(QPainter& G, const Bird& Own)
{
    DrawLegs(G, Own, 50, 64, Number(Own.R, "leg", 32), 10);
    DrawTail(G, Own, 74, 56);
    const QPainterPath Path = Text(Own.R, "neck") != "s" ? Tube({{76, 58, 4},
                                                                 {60, 56, 13},
                                                                 {46, 54, 12},
                                                                 {37, 44, 4.6},
                                                                 {33, 30, 3.4},
                                                                 {36, 16, 3.4},
                                                                 {30, 10, 6}})
                                                         : Tube({{76, 58, 4},
                                                                 {60, 56, 13},
                                                                 {46, 54, 12},
                                                                 {36, 46, 4.6},
                                                                 {42, 34, 3.4},
                                                                 {38, 20, 3.2},
                                                                 {30, 12, 6}});
    Outline(G, Path, Radial(50, 46, 50, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.7);
    DrawMarks(G, Own, Path, 40, 44, 80, 70);
    if (Own.HeadTint != Own.Tint)
        Outline(G, Ellipse(30, 12, 8.4, 7.6), Own.HeadTint, Dark(Own.HeadTint, .5), 1.4);
    if (Has(Own.R, "nc")) {
        G.save();
        G.setClipPath(Path);
        FillBox(G, 20, 20, 22, 26, Colour(Own.R, "nc"));
        G.restore();
    }
    Outline(G, ClosedCurve({{46, 48}, {66, 44}, {86, 60}, {88, 68}, {64, 66}, {50, 60}}),
            Own.WingTint, EdgeOf(Own.WingTint, .5, "#7d8088"), 1.4);
    DrawCrest(G, Own, 31, 5);
    DrawBeak(G, Own, 24, 13, Number(Own.R, "bs", .8));
    DrawEye(G, Own, 28, 10.5, 2.6);
}

static void DrawSwim(QPainter& G, const Bird& Own)
{
    DrawTail(G, Own, 82, 50);
    const QPainterPath Body = ClosedCurve(
        {{30, 52}, {44, 46}, {66, 46}, {90, 44}, {92, 54}, {80, 70}, {50, 74}, {28, 66}}, .7);
    // A swan's neck is long, a duck's short.
    const bool Long = Has(Own.R, "long");
    const QPainterPath Neck = Long ? Tube({{44, 58, 9}, {32, 50, 6.4}, {26, 34, 5}, {32, 20, 5}})
                                   : Tube({{44, 58, 9}, {32, 50, 6.4}, {30, 40, 7}, {30, 32, 8}});
    const double HeadX = 30, HeadY = Long ? 16 : 28, HeadSize = Long ? 9 : 11;
    const QPainterPath Whole = Body.united(Neck).united(Circle(HeadX, HeadY, HeadSize));
    Outline(G, Whole, Radial(50, 50, 60, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .12)}),
            Own.Edge, 1.8);
    DrawMarks(G, Own, Whole, 26, 50, 90, 76);

    if (Own.HeadTint != Own.Tint) {
        G.save();
        G.setClipPath(Whole);
        FillBox(G, 0, -10, 60, Number(Own.R, "hcut", 48), Own.HeadTint);
        G.restore();
        Stroke(G, Whole, Own.Edge, 1.8);
    }
    if (Has(Own.R, "collar")) {
        G.save();
        G.setClipPath(Whole);
        StrokeLine(G, 14, Number(Own.R, "hcut", 48) - 10, 54, Number(Own.R, "hcut", 48) - 10,
                   Colour(Own.R, "collar"), 3.4);
        G.restore();
    }
    QPainterPath Wing = ClosedCurve({{46, 50}, {66, 46}, {88, 50}, {94, 56}, {70, 66}, {52, 62}});
    Outline(G, Wing, Own.WingTint, EdgeOf(Own.WingTint, .5, "#7d8088"), 1.5);
    if (Has(Own.R, "wb")) {
        G.save();
        G.setClipPath(Wing);
        StrokeLine(G, 66, 44, 74, 68, Colour(Own.R, "wb"), 6);
        G.restore();
    }
    DrawBeak(G, Own, HeadX - HeadSize + 1, HeadY + 2, Number(Own.R, "bs", .9));
    DrawEye(G, Own, HeadX - 3, HeadY - 2, 3.2);
    DrawCrest(G, Own, HeadX, HeadY - HeadSize);
    Stroke(G, Curve({{12, 76}, {28, 72}, {44, 77}, {60, 72}, {76, 77}, {94, 73}}), "#3a9ad8", 3);
}

static void DrawStand(QPainter& G, const Bird& Own)
{
    Outline(G, ClosedCurve({{26, 34}, {14, 52}, {16, 70}, {26, 60}}), Own.Tint, Own.Edge, 1.5);
    Outline(G, ClosedCurve({{74, 34}, {86, 52}, {84, 70}, {74, 60}}), Own.Tint, Own.Edge, 1.5);
    QPainterPath Path = ClosedCurve({{50, 6},
                                     {66, 12},
                                     {70, 28},
                                     {76, 52},
                                     {72, 82},
                                     {50, 93},
                                     {28, 82},
                                     {24, 52},
                                     {30, 28},
                                     {34, 12}},
                                    .7);
    Outline(G, Path, Radial(44, 30, 66, {Light(Own.Tint, .25), Own.Tint}), Own.Edge, 1.8);
    G.save();
    G.setClipPath(Path);
    Fill(G, Ellipse(50, 66, 19, 30), Own.BreastTint);
    if (Has(Own.R, "ear")) {
        for (const double Side : {-1, 1})
            Fill(G, Ellipse(50 + Side * 16, 27, 5, 9), Colour(Own.R, "ear"));
        Fill(G, Ellipse(50, 40, 12, 6), Colour(Own.R, "ear"));
    }
    if (Has(Own.R, "face"))
        for (const double Side : {-1, 1})
            Fill(G, Ellipse(50 + Side * 7.5, 23, 9, 10), Colour(Own.R, "face"));
    G.restore();
    for (const double Side : {-1, 1}) DrawEye(G, Own, 50 + Side * 7, 21, 3.4);
    Outline(G, Polygon({{43, 28}, {57, 28}, {50, 38}}), Own.BeakTint, Dark(Own.BeakTint, .5), 1.2);
    for (const double Side : {-1, 1})
        Outline(G, Ellipse(50 + Side * 11, 93, 9, 4), Colour(Own.R, "lc", "#f0a01c"), "#6a4a08",
                1.2);
}

static void DrawFly(QPainter& G, const Bird& Own)
{
    DrawTail(G, Own, 70, 54);
    const QPainterPath Path =
        Tube({{84, 60, 2}, {66, 54, 9}, {48, 48, 11}, {34, 42, 8.4}, {26, 38, 5}});
    const QPainterPath Far =
        ClosedCurve({{50, 46}, {56, 18}, {70, 0}, {92, -8}, {78, 14}, {66, 36}}, .6);
    Outline(G, Far, Dark(Own.WingTint, .15), EdgeOf(Own.WingTint, .55, "#7d8088"), 1.5);
    Outline(G, Path, Radial(44, 40, 50, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .1)}),
            Own.Edge, 1.7);
    DrawMarks(G, Own, Path, 26, 40, 80, 64);
    if (Own.HeadTint != Own.Tint) {
        G.save();
        G.setClipPath(Path);
        FillBox(G, 0, 20, Number(Own.R, "hcut", 42), 50, Own.HeadTint);
        G.restore();
        Stroke(G, Path, Own.Edge, 1.6);
    }
    const QPainterPath Near = ClosedCurve({{58, 50},
                                           {44, 26},
                                           {22, 8},
                                           {-4, 2},
                                           {10, 16},
                                           {4, 18},
                                           {18, 28},
                                           {12, 32},
                                           {30, 40},
                                           {46, 54}},
                                          .5);
    Outline(G, Near, Linear(0, 0, 58, 54, {Dark(Own.WingTint, .2), Own.WingTint}),
            EdgeOf(Own.WingTint, .55, "#7d8088"), 1.6);
    if (Has(Own.R, "wb")) {
        G.save();
        G.setClipPath(Near);
        Fill(G, Polygon({{-10, -10}, {24, 2}, {8, 36}, {-10, 36}}), Colour(Own.R, "wb"));
        G.restore();
    }
    DrawBeak(G, Own, 26, 40, Number(Own.R, "bs", .8));
    DrawEye(G, Own, 31, 38, 3);
}

static void DrawFowl(QPainter& G, const Bird& Own)
{
    DrawLegs(G, Own, 48, 78, 15, 11);
    DrawTail(G, Own, 74, 46);
    QPainterPath Path = ClosedCurve({{24, 30},
                                     {34, 26},
                                     {44, 40},
                                     {60, 48},
                                     {78, 42},
                                     {84, 56},
                                     {74, 76},
                                     {52, 84},
                                     {34, 74},
                                     {26, 54},
                                     {22, 42}},
                                    .7);
    Outline(G, Path, Radial(46, 46, 56, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .12)}),
            Own.Edge, 1.8);
    DrawMarks(G, Own, Path, 24, 44, 82, 84);
    Outline(G, Circle(29, 26, 10.5), Own.HeadTint, EdgeOf(Own.HeadTint, .5, "#7d8088"), 1.5);
    if (Has(Own.R, "neck")) {
        G.save();
        G.setClipPath(Path);
        Fill(G, Ellipse(32, 44, 14, 20, -20), Colour(Own.R, "neck"));
        G.restore();
    }
    Outline(G, ClosedCurve({{44, 52}, {64, 50}, {78, 58}, {70, 70}, {52, 70}}), Own.WingTint,
            EdgeOf(Own.WingTint, .5, "#7d8088"), 1.5);
    DrawCrest(G, Own, 29, 16);
    DrawBeak(G, Own, 20, 27, Number(Own.R, "bs", .8));
    DrawEye(G, Own, 27, 24, 3.2);
    if (Has(Own.R, "wattle"))
        Outline(G, Ellipse(22, 38, 3.6, 7),
                Text(Own.R, "wattle") != "1" ? Colour(Own.R, "wattle") : QColor("#e01c1c"),
                "#6a0808", 1.1);
}

static constexpr FigureRow<const Bird> Figures[] = {
    {"perch", DrawPerch}, {"owl", DrawOwl}, {"wader", DrawWader}, {"swim", DrawSwim},
    {"stand", DrawStand}, {"fly", DrawFly}, {"fowl", DrawFowl},
};

static void Draw(QPainter& G, const Bird& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawBird(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k", "perch");
    const QColor Tint = Colour(R, "c", "#3a7ac8");
    const QColor BreastTint = Colour(R, "b", Light(Tint, .6));
    const QColor WingTint = Colour(R, "w", Dark(Tint, .15));
    const QColor HeadTint = Colour(R, "h", Tint);
    const QString BeakKind = Text(R, "beak", "cone");
    const QColor BeakTint = Colour(R, "bc", "#f0a81c");
    const QColor LegTint = Colour(R, "lc", "#c8822a");
    const QString TailKind = Text(R, "t", "mid");
    const QColor TailTint = Colour(R, "tc", WingTint);
    const QColor Edge = Tint.lightness() < 225 ? Dark(Tint, .55) : QColor("#7d8088");
    const Bird Own{R,        Kind,     Tint,    BreastTint, WingTint, HeadTint,
                   BeakKind, BeakTint, LegTint, TailKind,   TailTint, Edge};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.15);
}
