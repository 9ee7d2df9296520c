// dog.cpp: heads of dogs from the front

#include "drawing.h"
#include "kinds.h"

// The right half of each shape of head, from the crown to the chin.
static const QMap<QString, Points> Heads = {
    {"round", {{50, 14}, {72, 19}, {84, 38}, {84, 58}, {73, 77}, {50, 87}}},
    {"long", {{50, 13}, {66, 18}, {74, 36}, {69, 56}, {63, 80}, {50, 93}}},
    {"square", {{50, 16}, {72, 18}, {82, 34}, {83, 60}, {74, 80}, {50, 88}}},
    {"wedge", {{50, 17}, {70, 20}, {83, 40}, {80, 58}, {64, 76}, {50, 88}}},
    {"wide", {{50, 20}, {76, 23}, {91, 46}, {90, 68}, {72, 87}, {50, 91}}},
    {"egg", {{50, 8}, {63, 14}, {70, 36}, {72, 62}, {66, 86}, {50, 95}}},
};

struct Dog {
    const Recipe& R;
    QColor Base;
    QColor Ear;
    QColor MuzzleTint;
    QString Shape;
    QString EarKind;
    QString MuzzleKind;
    QString Hair;
    QColor Edge;
    QPainterPath Head;
    double K;
    QStringList M;
    QColor PatchTint;
    QColor NoseTint;
    QColor EyeTint;
    double EyeSize;
    double EyeX;
    double EyeY;
};

static void Both(QPainter& G, const Dog&, const QPainterPath& Path, const Paint& Inside,
                 const QColor& Edge = {}, double W = 1.6)
{
    for (const QPainterPath& Half : {Path, Mirrored(Path)}) Outline(G, Half, Inside, Edge, W);
}

static void Ears(QPainter& G, const Dog& Own, bool Front)
{
    const QString E = Own.EarKind;
    const QColor Edge = Own.Edge;
    if (QStringList{"prick", "tall", "small"}.contains(E) && !Front) {
        const Points Corners =
            QMap<QString, Points>{{"prick", {{20, 42}, {15, 6}, {22, 4}, {49, 24}}},
                                  {"tall", {{24, 40}, {18, -1}, {24, -2}, {46, 22}}},
                                  {"small", {{22, 34}, {20, 12}, {26, 11}, {43, 22}}}}
                .value(E);
        QPainterPath Path = Polygon(Corners);
        Both(G, Own, Path, Own.Ear, Edge);
        const QPointF Middle = (Corners[0] + Corners[1] + Corners[2] + Corners[3]) / 4;
        const QPainterPath Inner =
            Moved(Path.translated(-Middle), Middle.x() + 1, Middle.y() + 1, 0, .55);
        Both(G, Own, Inner, Colour(Own.R, "inear", "#e8b7a4"), Qt::transparent);
    }
    if (E == "bat" && !Front) {
        QPainterPath Path = ClosedCurve({{22, 44}, {6, 22}, {7, 2}, {20, 2}, {36, 14}, {46, 28}});
        Both(G, Own, Path, Own.Ear, Edge);
        Both(G, Own, Moved(Moved(Path, -23, -20), 24, 21, 0, .6), Colour(Own.R, "inear", "#f0b9ad"),
             Qt::transparent);
    }
    if (E == "wing" && !Front) {
        QPainterPath Path =
            ClosedCurve({{30, 34}, {14, 8}, {0, 8}, {-2, 30}, {4, 58}, {16, 66}, {28, 56}});
        Both(G, Own, Path, Own.Ear, Edge);
        Both(G, Own, Moved(Moved(Path, -15, -38), 18, 36, 0, .5), Light(Own.Ear, .3),
             Qt::transparent);
    }
    if (E == "semi" && !Front) {
        QPainterPath Path = Polygon({{22, 40}, {13, 16}, {22, 6}, {47, 24}});
        Both(G, Own, Path, Own.Ear, Edge);
        Both(G, Own, Polygon({{12, 17}, {22, 5}, {29, 20}, {16, 29}}), Dark(Own.Ear, .25), Edge);
    }
    if (E == "flop" && Front) {
        Both(G, Own,
             ClosedCurve({{35, 15}, {20, 16}, {6, 34}, {5, 58}, {15, 66}, {25, 52}, {30, 32}}),
             Own.Ear, Edge);
    }
    if (E == "long" && Front) {
        Both(G, Own,
             ClosedCurve(
                 {{33, 18}, {18, 22}, {6, 48}, {3, 80}, {12, 95}, {23, 84}, {27, 56}, {31, 34}}),
             Own.Ear, Edge);
    }
    if (E == "curl" && Front) {
        QPainterPath Path =
            ClosedCurve({{33, 18}, {16, 24}, {4, 48}, {2, 78}, {12, 92}, {22, 82}, {27, 54}});
        Both(G, Own, Path, Own.Ear, Edge);
        for (const auto& [X, Y] :
             Table<double, double>{{9, 58}, {8, 74}, {16, 84}, {18, 66}, {12, 44}})
            Both(G, Own, Circle(X, Y, 5.5), Light(Own.Ear, .12), Dark(Own.Ear, .2), 1.0);
    }
    if (E == "button" && Front)
        Both(G, Own, Polygon({{20, 30}, {32, 13}, {47, 22}, {28, 42}}), Own.Ear, Edge);
    if (E == "rose" && !Front)
        Both(G, Own, ClosedCurve({{32, 20}, {14, 18}, {6, 28}, {16, 36}, {26, 40}}), Own.Ear, Edge);
    if (E == "puff" && Front) {
        for (const auto& [X, Y, R] :
             Table<double, double, double>{{14, 40, 12}, {10, 54, 13}, {14, 68, 12}, {20, 48, 10}})
            Both(G, Own, Circle(X, Y, R), Own.Ear, EdgeOf(Own.Ear, .3, "#a9a493"), 1.2);
        for (const auto& [X, Y, R] :
             Table<double, double, double>{{14, 42, 9}, {12, 56, 10}, {15, 66, 9}})
            Both(G, Own, Circle(X, Y, R), Own.Ear, Qt::transparent);
    }
    if (E == "silk" && Front) {
        for (int I = 0; I < 6; ++I) {
            QPainterPath Path(QPointF(38 - I * 2, 14));
            Path.cubicTo(20 - I * 3, 20, 12 - I * 2, 60, 6 + I * 4.2, 96);
            Path.lineTo(13 + I * 4, 97);
            Path.cubicTo(20, 60, 26, 30, 42 - I, 16);
            Both(G, Own, Path, Mix(Own.Ear, Light(Own.Ear, .4), I % 2 * .6), Dark(Own.Ear, .25),
                 .9);
        }
    }
    if (E == "drop" && Front) {
        Both(G, Own, ClosedCurve({{34, 15}, {22, 14}, {10, 28}, {12, 44}, {22, 46}, {30, 32}}),
             Own.Ear, Edge);
    }
}

static void DrawMane(QPainter& G, const Dog& Own)
{
    if (Own.Hair == "mane") {
        const QColor ManeTint = Colour(Own.R, "mane", Own.Base);
        const QColor Edge = ManeTint.lightness() < 225 ? Dark(ManeTint, .35) : QColor("#a9a493");
        for (const auto& [Rr, Sz, Tone] : Table<double, double, QColor>{
                 {38, 12.5, Edge}, {38, 11.3, ManeTint}, {33, 11, Light(ManeTint, .12)}}) {
            for (int I = 0; I < 15; ++I) {
                double A = Radians(I * 24 - 90 + (Rr == 33 ? 8 : 0));
                Fill(G, Ellipse(50 + Rr * std::cos(A), 53 + Rr * .95 * std::sin(A), Sz, Sz * .92),
                     Tone);
            }
        }
        for (int I = 0; I < 22; ++I) {
            double A = Radians(I * 360 / 22.0);
            QPainterPath Path(QPointF(50 + 36 * std::cos(A), 53 + 34 * std::sin(A)));
            Path.quadTo(50 + 42 * std::cos(A + .12), 53 + 40 * std::sin(A + .12),
                        50 + 46 * std::cos(A), 53 + 44 * std::sin(A));
            Stroke(G, Path, EdgeOf(ManeTint, .22, "#cfcab8"), 1.1);
        }
    }
}

static void DrawPatches(QPainter& G, const Dog& Own)
{
    G.save();
    G.setClipPath(Own.Head);
    for (const auto& K : Own.M) {
        if (K == "blaze") {
            Fill(G,
                 ClosedCurve({{50, 8},
                              {55, 22},
                              {54, 40},
                              {62, 54},
                              {70, 80},
                              {50, 100},
                              {30, 80},
                              {38, 54},
                              {46, 40},
                              {45, 22}}),
                 Own.PatchTint);
        }
        if (K == "wideblaze") {
            Fill(G,
                 ClosedCurve({{50, 4},
                              {63, 16},
                              {59, 40},
                              {70, 56},
                              {80, 84},
                              {50, 104},
                              {20, 84},
                              {30, 56},
                              {41, 40},
                              {37, 16}}),
                 Own.PatchTint);
        }
        if (K == "cheeks") {
            Fill(G, Ellipse(22, 70, 22, 20), Own.PatchTint);
            Fill(G, Ellipse(78, 70, 22, 20), Own.PatchTint);
            Fill(G, Ellipse(50, 84, 30, 22), Own.PatchTint);
        }
        if (K == "husky") {
            QPainterPath Path = ClosedCurve({{50, 40},
                                             {58, 30},
                                             {70, 34},
                                             {76, 46},
                                             {90, 52},
                                             {88, 90},
                                             {12, 90},
                                             {10, 52},
                                             {24, 46},
                                             {30, 34},
                                             {42, 30}});
            Fill(G, Path, Own.PatchTint);
            Fill(G, Polygon({{46, 10}, {54, 10}, {51.5, 52}, {48.5, 52}}), Own.Base);
        }
        if (K == "eyeL") Fill(G, Ellipse(33, 44, 16, 19), Own.PatchTint);
        if (K == "eyeR") Fill(G, Ellipse(67, 44, 16, 19), Own.PatchTint);
        if (K == "capL") {
            Fill(G, ClosedCurve({{47, 0}, {46, 36}, {38, 58}, {22, 70}, {0, 70}, {0, 0}}),
                 Own.PatchTint);
        }
        if (K == "mask") {
            Fill(G,
                 ClosedCurve({{50, 44},
                              {62, 46},
                              {76, 56},
                              {82, 84},
                              {50, 100},
                              {18, 84},
                              {24, 56},
                              {38, 46}}),
                 "#2a211d");
        }
        if (K == "eyemask") {
            Fill(G, Ellipse(35, 47, 13, 12), "#2a211d");
            Fill(G, Ellipse(65, 47, 13, 12), "#2a211d");
        }
        if (K == "tan") {
            Fill(G, Ellipse(37, 35, 5, 4), "#c9772c");
            Fill(G, Ellipse(63, 35, 5, 4), "#c9772c");
            Fill(G, Ellipse(30, 70, 14, 15), "#c9772c");
            Fill(G, Ellipse(70, 70, 14, 15), "#c9772c");
        }
        if (K == "spots") {
            for (const auto& [X, Y, R] : Table<double, double, double>{{36, 24, 5},
                                                                       {60, 20, 4},
                                                                       {70, 34, 5},
                                                                       {28, 58, 4},
                                                                       {74, 62, 5.5},
                                                                       {52, 30, 3.4},
                                                                       {24, 42, 3.5},
                                                                       {62, 78, 4},
                                                                       {36, 78, 4.4},
                                                                       {46, 14, 3},
                                                                       {80, 48, 3.4}})
                Fill(G, Ellipse(X, Y, R, R * .85), "#1d1d20");
        }
        if (K == "merle") {
            for (const auto& [X, Y, R] : Table<double, double, double>{
                     {30, 30, 10}, {70, 26, 8}, {76, 58, 9}, {24, 60, 8}, {55, 22, 6}}) {
                Fill(G,
                     ClosedCurve({{X - R, Y},
                                  {X, Y - R * .8},
                                  {X + R, Y - R * .2},
                                  {X + R * .4, Y + R * .9},
                                  {X - R * .6, Y + R * .6}}),
                     "#2a2a33");
            }
        }
    }
    G.restore();
}

static void DrawMuzzle(QPainter& G, const Dog& Own)
{
    QPainterPath Muzzle;
    double NoseY = 0;
    double NoseSize = 0;
    if (Own.MuzzleKind == "mid") {
        Muzzle = ClosedCurve(
            {{50, 54}, {62, 58}, {70, 70}, {63, 82}, {50, 84}, {37, 82}, {30, 70}, {38, 58}});
        NoseY = 60;
        NoseSize = 8;
    }
    if (Own.MuzzleKind == "short") {
        Muzzle = ClosedCurve(
            {{50, 52}, {66, 55}, {76, 68}, {70, 80}, {50, 82}, {30, 80}, {24, 68}, {34, 55}});
        NoseY = 56;
        NoseSize = 8;
    }
    if (Own.MuzzleKind == "long") {
        Muzzle = ClosedCurve(
            {{50, 48}, {58, 54}, {63, 74}, {59, 89}, {50, 92}, {41, 89}, {37, 74}, {42, 54}});
        NoseY = 68;
        NoseSize = 7.5;
    }
    if (Own.MuzzleKind == "jowl") {
        Muzzle = ClosedCurve({{50, 50},
                              {66, 54},
                              {80, 70},
                              {78, 88},
                              {64, 86},
                              {50, 78},
                              {36, 86},
                              {22, 88},
                              {20, 70},
                              {34, 54}});
        NoseY = 56;
        NoseSize = 9;
    }
    if (Own.MuzzleKind == "small") {
        Muzzle = Ellipse(50, 68, 15, 12);
        NoseY = 62;
        NoseSize = 6;
    }
    if (Own.MuzzleKind == "beard") {
        const Points Pts = Joined(
            Joined(Points{{50, 52}, {64, 54}, {74, 64}, {76, 78}},
                   Mapped(Counted(0, 9),
                          [&](int I) { return QPointF(74.0 - I * 6, double(I % 2 ? 98 : 90)); })),
            Points{{24, 78}, {26, 64}, {36, 54}});
        Muzzle = ClosedCurve(Pts, .35);
        NoseY = 58;
        NoseSize = 8;
    }
    if (Own.MuzzleKind == "egg") {
        Muzzle = ClosedCurve(
            {{50, 56}, {62, 60}, {68, 76}, {60, 92}, {50, 94}, {40, 92}, {32, 76}, {38, 60}});
        NoseY = 74;
        NoseSize = 8;
    }
    if (Has(Own.R, "tongue")) {
        const QColor TongueTint =
            QMap<QString, QColor>{{"1", "#f07a86"}, {"blue", "#4a5a86"}}.value(
                Text(Own.R, "tongue"));
        Outline(G, ClosedCurve({{44, 80}, {56, 80}, {57, 92}, {50, 98}, {43, 92}}), TongueTint,
                Dark(TongueTint, .3), 1.2);
    }
    Outline(G, Muzzle, Own.MuzzleTint, EdgeOf(Own.MuzzleTint, .3, "#b5b09f"), 1.1);
    QPainterPath Path(QPointF(50, NoseY + NoseSize * 1.35));
    Path.lineTo(50, NoseY + NoseSize * 1.9);
    Stroke(G, Path, Own.MuzzleTint.lightness() > 70 ? QColor("#2a1e1c") : QColor("#8a8a90"), 1.5);
    QPainterPath Mouth;
    const double MouthY = NoseY + NoseSize * 1.9;
    Mouth.moveTo(50, MouthY);
    Mouth.quadTo(56, MouthY + 6, 63, MouthY + 1);
    Mouth.moveTo(50, MouthY);
    Mouth.quadTo(44, MouthY + 6, 37, MouthY + 1);
    Stroke(G, Mouth, Own.MuzzleTint.lightness() > 70 ? QColor("#2a1e1c") : QColor("#8a8a90"), 1.5);
    if (Own.MuzzleKind == "jowl" && Has(Own.R, "teeth")) {
        Outline(G, Polygon({{40, 80}, {44, 73}, {46, 80}}), "#fffdf0", "#777", .6);
        Outline(G, Polygon({{60, 80}, {56, 73}, {54, 80}}), "#fffdf0", "#777", .6);
    }
    Fill(G,
         ClosedCurve({{50, NoseY - NoseSize * .55},
                      {50 + NoseSize, NoseY - NoseSize * .35},
                      {50 + NoseSize * .85, NoseY + NoseSize * .45},
                      {50, NoseY + NoseSize * 1.25},
                      {50 - NoseSize * .85, NoseY + NoseSize * .45},
                      {50 - NoseSize, NoseY - NoseSize * .35}}),
         Own.NoseTint);
    Fill(G, Ellipse(50 - NoseSize * .3, NoseY - NoseSize * .1, NoseSize * .32, NoseSize * .18),
         Alpha("#ffffff", .55));
}

static void DrawEyes(QPainter& G, const Dog& Own)
{
    if (Own.Hair != "shag") {
        for (const double Side : {-1, 1}) {
            const double Cx = 50 + Side * Own.EyeX;
            if (Own.Base.lightness() < 60 || Own.M.contains("eyemask")) {
                Fill(G, Ellipse(Cx, Own.EyeY, Own.EyeSize * 1.25, Own.EyeSize * 1.15),
                     Own.Base.lightness() < 60 ? QColor("#8a6a48") : QColor("#6a4a30"));
            }
            Fill(G, Ellipse(Cx, Own.EyeY, Own.EyeSize * 1.05, Own.EyeSize), "#ffffff");
            Fill(G, Ellipse(Cx, Own.EyeY + .3, Own.EyeSize * .82, Own.EyeSize * .86), Own.EyeTint);
            Fill(G, Ellipse(Cx, Own.EyeY + .4, Own.EyeSize * .5, Own.EyeSize * .52), "#0c0807");
            Fill(G, Circle(Cx - Own.EyeSize * .3, Own.EyeY - Own.EyeSize * .3, Own.EyeSize * .26),
                 "#ffffff");
            if (Has(Own.R, "droop")) {
                FillBox(G, Cx - Own.EyeSize * 1.3, Own.EyeY - Own.EyeSize * 1.4, Own.EyeSize * 2.6,
                        Own.EyeSize * 1.1, Own.Base);
                StrokeLine(G, Cx - Own.EyeSize * 1.1, Own.EyeY - Own.EyeSize * .3,
                           Cx + Own.EyeSize * 1.1, Own.EyeY - Own.EyeSize * .3, Dark(Own.Base, .5),
                           1.3);
            }
        }
    }
}

static void DrawForehead(QPainter& G, const Dog& Own)
{
    if (Has(Own.R, "wrinkle")) {
        for (const double Y : {24, 30, 36}) {
            Stroke(G, Curve({{37, Y + 2}, {44, Y - 2}, {50, Y + 1}, {56, Y - 2}, {63, Y + 2}}),
                   Dark(Own.Base, .45), 1.7);
        }
    }
    if (Has(Own.R, "brow")) {
        const QColor Tone = Colour(Own.R, "brow");
        for (const double Side : {-1, 1}) {
            Outline(G,
                    ClosedCurve({{50 + Side * 6, 38},
                                 {50 + Side * 16, 30},
                                 {50 + Side * 29, 34},
                                 {50 + Side * 24, 42},
                                 {50 + Side * 14, 41}}),
                    Tone, Dark(Tone, .3), 1);
        }
    }
}

static void DrawHair(QPainter& G, const Dog& Own)
{
    if (Own.Hair == "top") {
        const QColor HairTint = Colour(Own.R, "hairc", Own.Base);
        const QColor Edge = HairTint.lightness() < 225 ? Dark(HairTint, .3) : QColor("#a9a493");
        for (const auto& [X, Y, R] : Table<double, double, double>{
                 {36, 20, 11}, {64, 20, 11}, {50, 11, 13}, {42, 24, 9}, {58, 24, 9}})
            Outline(G, Circle(X, Y, R), HairTint, Edge, 1.2);
        for (const auto& [X, Y, R] :
             Table<double, double, double>{{38, 20, 9}, {62, 20, 9}, {50, 13, 11}, {50, 23, 9}})
            Fill(G, Circle(X, Y, R), HairTint);
    }
    if (Own.Hair == "bangs") {
        const QColor HairTint = Colour(Own.R, "hairc", Own.Base);
        for (int I = 0; I < 9; ++I) {
            int X = 30 + I * 5;
            QPainterPath Path(QPointF(50, 10));
            Path.quadTo(X - 3, 14, X - 3 + (I - 4) * 2.2, 38 - std::abs(I - 4) * 1.2);
            Path.quadTo(X + 3, 18, 50, 10);
            Outline(G, Path, Mix(HairTint, Light(HairTint, .35), I % 2 * .6), Dark(HairTint, .35),
                    .8);
        }
    }
    if (Own.Hair == "part") {
        const QColor HairTint = Colour(Own.R, "hairc", Own.Base);
        for (int I = 0; I < 7; ++I) {
            QPainterPath Path(QPointF(50, 10));
            Path.cubicTo(34 - I * 3, 10, 14 - I, 34, 12 + I * 4, 92 - I * 6);
            Path.cubicTo(20 + I * 4, 60, 30 + I * 2, 30, 50, 10);
            for (const QPainterPath& W : {Path, Mirrored(Path)}) {
                Outline(G, W, Mix(HairTint, Light(HairTint, .4), I % 2 * .6), Dark(HairTint, .3),
                        .8);
            }
        }
    }
    if (Own.Hair == "shag") {
        const QColor HairTint = Colour(Own.R, "hairc", Own.Base);
        for (const auto& [Y0, Long, Count] : Table<double, double, int>{{16, 34, 9}, {12, 40, 7}}) {
            for (int I = 0; I < Count; ++I) {
                const double X = 18 + 64.0 * I / (Count - 1);
                QPainterPath Path(QPointF(50 + (X - 50) * .3, Y0 - 4));
                Path.cubicTo(X, Y0, X + (X - 50) * .12, Y0 + 16, X + (X - 50) * .1, Y0 + Long);
                Path.cubicTo(X - 4 + (50 - X) * .1, Y0 + 20, 50 + (X - 50) * .5, Y0 + 8,
                             50 + (X - 50) * .3, Y0 - 4);
                Outline(G, Path, Mix(HairTint, Light(HairTint, .5), I % 2 * .5), "#9a958a", .8);
            }
        }
    }
}

static void DrawFinery(QPainter& G, const Dog& Own)
{
    if (Has(Own.R, "bow")) {
        const QColor Tone = Colour(Own.R, "bow");
        Outline(G, Polygon({{50, 14}, {36, 6}, {36, 22}}), Tone, Dark(Tone, .4), 1.2);
        Outline(G, Polygon({{50, 14}, {64, 6}, {64, 22}}), Tone, Dark(Tone, .4), 1.2);
        Outline(G, Circle(50, 14, 4.5), Light(Tone, .3), Dark(Tone, .4), 1);
    }
    if (Has(Own.R, "barrel")) {
        Outline(G, Rounded(36, 86, 28, 14, 5), "#9a5a26", "#4a2a10", 1.2);
        StrokeLine(G, 42, 87, 42, 99, "#e2c25a", 2);
        StrokeLine(G, 58, 87, 58, 99, "#e2c25a", 2);
    }
    if (Has(Own.R, "collar")) {
        Outline(G, ClosedCurve({{26, 88}, {50, 95}, {74, 88}, {74, 94}, {50, 101}, {26, 94}}),
                Colour(Own.R, "collar"), Dark(Colour(Own.R, "collar"), .4), 1);
        Outline(G, Circle(50, 97, 3.4), "#f5d24a", "#8a6a10", .8);
    }
}

static void Draw(QPainter& G, const Dog& Own)
{
    QColor Edge;
    DrawMane(G, Own);
    Ears(G, Own, false);
    Outline(G, Own.Head, Radial(50, 40, 56, {Light(Own.Base, .16), Own.Base, Dark(Own.Base, .12)}),
            Own.Edge, 1.8);
    DrawPatches(G, Own);
    DrawMuzzle(G, Own);
    DrawEyes(G, Own);
    DrawForehead(G, Own);
    Ears(G, Own, true);
    DrawHair(G, Own);
    DrawFinery(G, Own);
}

void DrawDog(QPainter& P, const Recipe& R)
{
    const QColor Base = Colour(R, "base", "#d9a25c");
    const QColor Ear = Colour(R, "ear", Dark(Base, .2));
    const QColor MuzzleTint = Colour(R, "muz", Light(Base, .45));
    const QString Shape = Text(R, "head", "round");
    const QString EarKind = Text(R, "ears", "flop");
    const QString MuzzleKind = Text(R, "muzzle", "mid");
    const QString Hair = Text(R, "hair");
    QColor Edge = Base.lightness() > 70 ? Dark(Base, .55) : QColor("#000000");
    if (Base.lightness() > 225) Edge = QColor("#8d8878");
    Points Rim = Named(Heads, Shape, R);
    for (std::size_t I = Rim.size() - 1; I-- > 1;) Rim.push_back({100 - Rim[I].x(), Rim[I].y()});
    const QPainterPath Head = ClosedCurve(Rim);
    const double K = Number(R, "k", .95);
    const QStringList M = Words(R, "mark", "+");
    const QColor PatchTint = Colour(R, "patch", "#ffffff");
    const QColor NoseTint = Colour(R, "nose", "#1c1618");
    const QColor EyeTint = Colour(R, "eye", "#3a2414");
    const double EyeSize = Number(R, "er", 6);
    const double EyeX = Number(R, "ex", 16);
    const double EyeY = Number(R, "ey", 46);
    const Dog Own{R,    Base, Ear, MuzzleTint, Shape,    EarKind, MuzzleKind, Hair, Edge,
                  Head, K,    M,   PatchTint,  NoseTint, EyeTint, EyeSize,    EyeX, EyeY};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    P.save();
    P.translate(50, 50);
    P.scale(K, K);
    P.translate(-50, -50 + Number(R, "dy", 0));
    DrawShadowed(P, Drawing);
    P.restore();
}
