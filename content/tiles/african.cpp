// african.cpp: cloth, pots, stamped signs, carving and shields of Africa

#include "drawing.h"
#include "kinds.h"

struct African {
    const Recipe& R;
    QString Kind;
    std::vector<QColor> Cols;
};

// An isosceles triangle round a point; Up -1 stands on its head.
static QPainterPath Triangle(double X, double Y, double Size, double Up = 1)
{
    return Polygon(
        {{X - Size, Y + Size * .8 * Up}, {X + Size, Y + Size * .8 * Up}, {X, Y - Size * .8 * Up}});
}

static void DrawCloth(QPainter& G, const African& Own)
{
    G.save();
    QPainterPath Path = Rounded(6, 6, 88, 88, 2);
    for (int I = 0; I < 19; ++I) StrokeLine(G, 8 + I * 4.6, 90, 8 + I * 4.6, 99, Own.Cols[0], 1.6);
    for (int I = 0; I < 19; ++I) StrokeLine(G, 8 + I * 4.6, 1, 8 + I * 4.6, 8, Own.Cols[0], 1.6);
    G.setClipPath(Path);
    Fill(G, Path, Own.Cols[0]);
    QString M = Text(Own.R, "m");
    if (M == "kente") {
        for (int R = 0; R < 4; ++R) {
            for (int I = 0; I < 4; ++I) {
                int X = 6 + I * 22;
                int Y = 6 + R * 22;
                if ((R + I) % 2 == 0) {
                    for (int J = 0; J < 4; ++J)
                        FillBox(G, X, Y + J * 5.5, 22, 5.5, Cycled(Own.Cols, (J + R)));
                } else {
                    FillBox(G, X, Y, 22, 22, Cycled(Own.Cols, (I + 2)));
                    for (const double A : {1, 2}) {
                        if (std::fmod(A, 2) == 0) {
                            FillBox(G, X + A * 4.4, Y + A * 4.4, 22 - A * 8.8, 22 - A * 8.8,
                                    Cycled(Own.Cols, (I + R + 1)));
                        }
                    }
                    Fill(G,
                         Polygon({{X + 11.0, Y + 3.0},
                                  {X + 19.0, Y + 11.0},
                                  {X + 11.0, Y + 19.0},
                                  {X + 3.0, Y + 11.0}}),
                         Cycled(Own.Cols, (I + R + 1)));
                }
            }
        }
    }
    if (M == "mudzig") {
        for (int Y = 18; Y < 96; Y += 17) {
            Stroke(
                G,
                Polyline(PointRow(
                    13, [&](int I) { return QPointF(6.0 + I * 8, double(Y + (I % 2 ? 8 : -4))); })),
                Own.Cols[1], 4.4);
        }
    }
    if (M == "muddots") {
        for (int I = 0; I < 7; ++I) {
            for (int R = 0; R < 7; ++R) {
                if (!((I + R) % 2)) continue;
                Fill(G, Circle(14 + I * 12, 14 + R * 12, 3.2), Own.Cols[1]);
            }
        }
        for (const double R : {14, 28, 42}) Stroke(G, Regular(50, 50, R, 4, 0), Own.Cols[1], 3);
    }
    if (M == "mudcross") {
        for (int X = 17; X < 96; X += 22) {
            for (int Y = 17; Y < 96; Y += 22) {
                StrokeLine(G, X - 6, Y - 6, X + 6, Y + 6, Own.Cols[1], 3.6);
                StrokeLine(G, X + 6, Y - 6, X - 6, Y + 6, Own.Cols[1], 3.6);
            }
        }
        for (int X = 28; X < 90; X += 22)
            for (int Y = 28; Y < 90; Y += 22)
                Outline(G, Circle(X, Y, 2.4), Own.Cols[1], Own.Cols[1], 3.6);
    }
    if (M == "tri") {
        for (int R = 0; R < 5; ++R) {
            for (int I = 0; I < 8; ++I) {
                Fill(G, Triangle(10 + I * 12, 15 + R * 18, 7.5, (R + I) % 2 ? 1 : -1),
                     CycledFromSecond(Own.Cols, (R + I)));
            }
        }
    }
    if (M == "diam") {
        for (int R = 0; R < 6; ++R) {
            for (int I = 0; I < 5; ++I) {
                double X = 8 + I * 21 + R % 2 * 10.5;
                int Y = 12 + R * 16;
                Fill(
                    G,
                    Polygon({{X, Y - 13.0}, {X + 9, double(Y)}, {X, Y + 13.0}, {X - 9, double(Y)}}),
                    CycledFromSecond(Own.Cols, R));
                Fill(G,
                     Polygon({{X, Y - 6.0}, {X + 4, double(Y)}, {X, Y + 6.0}, {X - 4, double(Y)}}),
                     Own.Cols[0]);
            }
        }
    }
    if (M == "conc") {
        for (int I = 0;
             const auto& [X, Y] : Table<double, double>{{28, 28}, {72, 28}, {28, 72}, {72, 72}}) {
            for (int J = 0; const double R : {21, 15, 9, 4}) {
                Fill(G, Circle(X, Y, R), Cycled(Own.Cols, (J + I)));
                ++J;
            }
            ++I;
        }
    }
    if (M == "chev") {
        for (int I = 0, Y = -30; Y < 110; Y += 13, ++I) {
            Fill(G,
                 Polygon({{0, double(Y)},
                          {50, Y + 26.0},
                          {100, double(Y)},
                          {100, Y + 13.0},
                          {50, Y + 39.0},
                          {0, Y + 13.0}}),
                 Cycled(Own.Cols, I));
        }
    }
    if (M == "kuba") {
        for (int R = 0; R < 4; ++R) {
            for (int I = 0; I < 4; ++I) {
                int X = 6 + I * 22;
                int Y = 6 + R * 22;
                const bool Odd = (I + R) % 2;
                for (const double A : {Odd ? 2 : 4, Odd ? 6 : 9})
                    Stroke(G, Rounded(X + A, Y + A, 22 - 2 * A, 22 - 2 * A, 0), Own.Cols[1], 3);
            }
        }
    }
    if (M == "checkstripe") {
        for (int I = 0; I < 6; ++I) {
            FillBox(G, 6 + I * 15, 0, 15, 100, Cycled(Own.Cols, I));
            for (int Y = 10 + I % 2 * 9; Y < 100; Y += 18)
                FillBox(G, 6 + I * 15, Y, 15, 6, Cycled(Own.Cols, (I + 2)));
        }
    }
    if (M == "sun") {
        for (int I = 0; I < 24; ++I) {
            const int A = I * 15;
            Fill(G,
                 Polygon(
                     {{50, 50},
                      {50 + 80 * std::cos(Radians(A)), 50 + 80 * std::sin(Radians(A))},
                      {50 + 80 * std::cos(Radians(A + 15)), 50 + 80 * std::sin(Radians(A + 15))}}),
                 Own.Cols[static_cast<std::size_t>(I % 2 + 1)]);
        }
        for (int J = 0; const double R : {28, 20, 12}) {
            Fill(G, Circle(50, 50, R), Cycled(Own.Cols, (J * 2)));
            ++J;
        }
    }
    G.restore();
    Stroke(G, Path, Dark(Own.Cols[0], .6), 1.8);
}

static void DrawPot(QPainter& G, const African& Own)
{
    const Points S = QMap<QString, Points>{
        {"round",
         {{36, 12},
          {40, 22},
          {20, 34},
          {10, 56},
          {22, 82},
          {50, 94},
          {78, 82},
          {90, 56},
          {80, 34},
          {60, 22},
          {64, 12}}},
        {"tall",
         {{38, 4},
          {42, 14},
          {30, 28},
          {26, 52},
          {34, 80},
          {40, 96},
          {60, 96},
          {66, 80},
          {74, 52},
          {70, 28},
          {58, 14},
          {62, 4}}},
        {"gourd",
         {{42, 2},
          {44, 16},
          {34, 24},
          {32, 36},
          {18, 48},
          {12, 70},
          {26, 90},
          {50, 96},
          {74, 90},
          {88, 70},
          {82, 48},
          {68, 36},
          {66, 24},
          {56, 16},
          {58, 2}}},
        {"bowl", {{4, 34}, {14, 64}, {34, 84}, {50, 88}, {66, 84}, {86, 64}, {96, 34}}},
        {"jar",
         {{30, 8},
          {34, 18},
          {16, 32},
          {14, 60},
          {24, 88},
          {50, 94},
          {76, 88},
          {86, 60},
          {84, 32},
          {66, 18},
          {70, 8}}}}.value(Text(Own.R, "s"));
    QPainterPath Path = ClosedCurve(S, .6);
    G.save();
    G.setClipPath(Path);
    FillBox(G, 0, 0, 100, 100, Own.Cols[0]);
    for (int I = 0; const double Y : {34, 54, 72}) {
        FillBox(G, 0, Y - 7, 100, 14, Own.Cols[1]);
        const QString Motif = Text(Own.R, "m", "zig");
        if (Motif == "zig") {
            Fill(
                G,
                Polygon(Joined(
                    PointRow(19, [&](int J) { return QPointF(J * 6.0 - 3, Y + (J % 2 ? 5 : -5)); }),
                    Points{{111, Y + 9}, {-3, Y + 9}})),
                Cycled(Own.Cols, 2));
        }
        if (Motif == "dots")
            for (int J = 0; J < 10; ++J) Fill(G, Circle(5 + J * 10, Y, 3.4), Cycled(Own.Cols, 2));
        if (Motif == "tri")
            for (int J = 0; J < 10; ++J)
                Fill(G, Triangle(5 + J * 11, Y, 5, I % 2 ? 1 : -1), Cycled(Own.Cols, 2));
        if (Motif == "waves") {
            Stroke(
                G,
                Curve(PointRow(14, [&](int J) { return QPointF(J * 8.0, Y + (J % 2 ? 4 : -4)); })),
                Cycled(Own.Cols, 2), 3);
        }
        if (Motif == "diam") {
            for (int J = 0; J < 8; ++J) {
                Fill(G,
                     Polygon({{6.0 + J * 13, Y - 6},
                              {12.0 + J * 13, Y},
                              {6.0 + J * 13, Y + 6},
                              {J * 13.0, Y}}),
                     Cycled(Own.Cols, 2));
            }
        }
        ++I;
    }
    FillBox(G, 0, 0, 100, 100,
            Linear(0, 0, 100, 0,
                   {Alpha("#000000", .25), Alpha("#ffffff", .28), Alpha("#000000", 0),
                    Alpha("#000000", .4)}));
    G.restore();
    Stroke(G, Path, Dark(Own.Cols[0], .6), 1.8);
    if (Text(Own.R, "s") == "bowl") {
        Outline(G, Ellipse(50, 34, 46, 9), Dark(Own.Cols[0], .45), Dark(Own.Cols[0], .65), 1.6);
    } else {
        const double X0 = S[0].x();
        Outline(G, Ellipse(50, S[0].y(), 50 - X0, 3.4), Dark(Own.Cols[0], .5),
                Dark(Own.Cols[0], .65), 1.6);
    }
}

static void DrawAdinkra(QPainter& G, const African& Own)
{
    Outline(G, Circle(50, 50, 47),
            Radial(42, 38, 60, {Light(Own.Cols[0], .3), Own.Cols[0], Dark(Own.Cols[0], .2)}),
            Dark(Own.Cols[0], .5), 2);
    Stroke(G, Circle(50, 50, 41), Own.Cols[1], 3);
    const QColor Drawn = Own.Cols[1];
    QString Sign = Text(Own.R, "s");
    if (Sign == "gye") {
        Stroke(G, Circle(50, 50, 9), Drawn, 5);
        for (const double O : {-1, 1}) {
            for (const double Q2 : {-1, 1}) {
                Stroke(G,
                       Curve({{50 + O * 13, 50 - 13 * Q2},
                              {50 + O * 30, 50 - 20 * Q2},
                              {50 + O * 26, 50 - 4 * Q2}}),
                       Drawn, 5);
            }
        }
        StrokeLine(G, 22, 50, 40, 50, Drawn, 5);
        StrokeLine(G, 60, 50, 78, 50, Drawn, 5);
        StrokeLine(G, 50, 22, 50, 40, Drawn, 5);
        StrokeLine(G, 50, 60, 50, 78, Drawn, 5);
    }
    if (Sign == "ladder") {
        FillBox(G, 34, 20, 6, 60, Drawn);
        FillBox(G, 60, 20, 6, 60, Drawn);
        for (const double Y : {26, 38, 50, 62, 73}) FillBox(G, 34, Y, 32, 5, Drawn);
    }
    if (Sign == "heartbird") {
        Stroke(G, Curve({{50, 80}, {24, 52}, {28, 28}, {46, 34}, {44, 48}, {36, 46}}), Drawn, 6);
        Stroke(G, Curve({{50, 80}, {76, 52}, {72, 28}, {54, 34}, {56, 48}, {64, 46}}), Drawn, 6);
    }
    if (Sign == "star") Fill(G, Star(50, 50, 34, 8, .42), Drawn);
    if (Sign == "crocs") {
        for (const double O : {-1, 1}) {
            Outline(
                G,
                Curve({{50 + O * 28, 24}, {50 + O * 8, 44}, {50 - O * 8, 56}, {50 - O * 28, 76}}),
                Drawn, Drawn, 6);
        }
        Fill(G, Circle(50, 50, 11), Drawn);
        for (const double O : {-1, 1}) Fill(G, Circle(50 + O * 28, 24, 6), Drawn);
        for (const double O : {-1, 1}) Fill(G, Circle(50 + O * 28, 76, 4), Drawn);
    }
    if (Sign == "fern") {
        StrokeLine(G, 50, 80, 50, 22, Drawn, 4);
        for (const double O : {-1, 1}) {
            for (const double Y : {36, 48, 60, 72}) {
                Outline(G, Curve({{50, Y}, {50 + O * 16, Y - 4}, {50 + O * 20, Y - 12}}), Drawn,
                        Drawn, 4);
            }
        }
    }
    if (Sign == "drum")
        Fill(G, Polygon({{28, 22}, {72, 22}, {54, 50}, {72, 78}, {28, 78}, {46, 50}}), Drawn);
    if (Sign == "moonstar") {
        QPainterPath M =
            QPainterPath(Ellipse(50, 56, 30, 24)).subtracted(QPainterPath(Ellipse(50, 46, 26, 22)));
        Fill(G, M, Drawn);
        Fill(G, Star(50, 38, 14), Drawn);
    }
}

static void DrawFigure(QPainter& G, const African& Own)
{
    const QColor W = Own.Cols[0];
    const QColor L = Dark(W, .55);
    QString Sign = Text(Own.R, "s");
    if (Sign == "stool") {
        Outline(G,
                ClosedCurve({{4, 20},
                             {24, 30},
                             {50, 32},
                             {76, 30},
                             {96, 20},
                             {92, 36},
                             {70, 44},
                             {30, 44},
                             {8, 36}}),
                Linear(0, 20, 0, 44, {Light(W, .3), W}), L, 1.8);
        Outline(G, Rounded(16, 82, 68, 12, 3), W, L, 1.8);
        for (const auto& [X, O] : Table<double, double>{{24, 1}, {76, -1}}) {
            Outline(G,
                    ClosedCurve({{X, 44},
                                 {X + O * 10, 56},
                                 {X - O * 6, 70},
                                 {X + O * 4, 83},
                                 {X + O * 14, 83},
                                 {X + O * 4, 70},
                                 {X + O * 20, 56},
                                 {X + O * 10, 44}}),
                    W, L, 1.5);
        }
        Outline(G, Circle(50, 62, 9), Own.Cols[1], L, 1.5);
    }
    if (Sign == "head") {
        Outline(G,
                ClosedCurve({{36, 62},
                             {28, 44},
                             {30, 22},
                             {42, 6},
                             {62, 6},
                             {74, 20},
                             {76, 44},
                             {68, 62},
                             {64, 96},
                             {40, 96}},
                            .6),
                Linear(28, 0, 76, 0, {Light(W, .35), W, Dark(W, .2)}), L, 1.8);
        for (const double Y : {70, 76, 82, 88}) StrokeLine(G, 40, Y, 64, Y, Own.Cols[1], 4);
        Outline(G, Polygon({{52, 30}, {48, 48}, {57, 48}}), Dark(W, .15), L, 1.2);
        for (const double X : {42, 62}) Outline(G, Ellipse(X, 34, 6, 3), "#fff6e0", L, 1.2);
        Outline(G, Ellipse(52, 55, 7, 3.4), Dark(W, .3), L, 1.2);
        for (int I = 0; I < 6; ++I)
            Outline(G, Circle(36 + I * 6, 8 + std::abs(I - 2.5) * 1.6, 4.4), Dark(W, .35), L, .8);
    }
    if (Sign == "bird") {
        const QPainterPath Path = Tube({{12, 60, 2},
                                        {26, 52, 8},
                                        {46, 52, 12},
                                        {62, 44, 8},
                                        {68, 28, 5},
                                        {74, 18, 6},
                                        {82, 18, 5}});
        Outline(G, Polygon({{84, 14}, {99, 20}, {84, 22}}), "#e8b42a", "#6a4a0a", 1.2);
        Outline(G, Path, Linear(0, 30, 0, 70, {Light(W, .3), W, Dark(W, .15)}), L, 1.8);
        for (const double X : {28, 39, 50})
            Fill(G, Polygon({{X - 5, 56}, {X, 46}, {X + 5, 56}}), Own.Cols[1]);
        StrokeLine(G, 40, 62, 38, 90, L, 3.4);
        StrokeLine(G, 52, 62, 54, 90, L, 3.4);
        Outline(G, Rounded(28, 88, 38, 8, 2), Dark(W, .2), L, 1.4);
        Outline(G, Circle(76, 16, 2), "#fff", L, .8);
    }
    if (Sign == "antelope") {
        Outline(G,
                ClosedCurve({{20, 96},
                             {30, 66},
                             {24, 54},
                             {40, 44},
                             {58, 46},
                             {64, 60},
                             {74, 96},
                             {66, 96},
                             {56, 70},
                             {36, 72},
                             {28, 96}}),
                W, L, 1.6);
        const QPainterPath Path =
            Tube({{54, 52, 7}, {58, 36, 5}, {66, 26, 5}, {76, 32, 4}, {84, 40, 2.6}});
        Outline(G, Path, W, L, 1.6);
        for (const double O : {0, 5}) {
            Stroke(G, Curve({{62, 24}, {58 - O, 10}, {48 - O * 3, -6}, {54 - O * 3, -22}}), L, 5);
            Stroke(G, Curve({{62, 24}, {58 - O, 10}, {48 - O * 3, -6}, {54 - O * 3, -22}}),
                   Light(W, .2), 2.6);
        }
        Outline(G, Circle(66, 28, 1.8), "#fff", L, .8);
        for (const double X : {32, 40, 48}) StrokeLine(G, X, 50, X + 3, 64, Own.Cols[1], 2.4);
    }
    if (Sign == "drum") {
        Outline(G, Polygon({{16, 12}, {84, 12}, {66, 54}, {74, 96}, {26, 96}, {34, 54}}),
                Linear(16, 0, 84, 0, {Light(W, .3), W, Dark(W, .25)}), L, 1.8);
        Outline(G, Ellipse(50, 12, 34, 8), "#f6e6c4", L, 1.6);
        for (int I = 0; I < 6; ++I) {
            StrokeLine(G, 20 + I * 10, 16, 38 + I * 4.4, 52, Own.Cols[1], 2.2);
            StrokeLine(G, 24 + I * 10, 16, 34 + I * 4.4, 52, Own.Cols[1], 2.2);
        }
        Outline(G, Rounded(33, 50, 34, 8, 3), Own.Cols[1], Dark(Own.Cols[1], .4), 1.4);
        for (int I = 0; I < 3; ++I) Fill(G, Triangle(36 + I * 14, 84, 6, 1), Own.Cols[1]);
    }
    if (Sign == "comb") {
        Outline(
            G,
            ClosedCurve({{22, 46}, {20, 26}, {34, 10}, {50, 6}, {66, 10}, {80, 26}, {78, 46}}, .6),
            Linear(20, 0, 80, 0, {Light(W, .35), W, Dark(W, .2)}), L, 1.8);
        for (int X = 26; X < 78; X += 8) {
            Outline(G, Polygon({{X - 3.0, 44}, {X + 3.0, 44}, {X + 1.4, 98}, {X - 1.4, 98}}), W, L,
                    1.2);
        }
        Fill(G, Star(50, 28, 13, 8, .5), Own.Cols[1]);
    }
    if (Sign == "thumbpiano") {
        Outline(G, Rounded(14, 16, 72, 80, 10),
                Linear(14, 0, 86, 0, {Light(W, .35), W, Dark(W, .2)}), L, 1.8);
        Outline(G, Circle(50, 70, 13), Dark(W, .5), L, 1.6);
        for (int I = 0; I < 7; ++I) {
            Outline(G,
                    Rounded(23 + I * 8.4 - 2.6, 20, 5.2,
                            std::array<double, 7>{34, 42, 50, 56, 50, 42,
                                                  34}[static_cast<std::size_t>(I)],
                            2.4),
                    "#d8dde4", "#4a525c", 1);
        }
        Outline(G, Rounded(18, 30, 64, 5, 1), Own.Cols[1], Dark(Own.Cols[1], .5), 1.2);
    }
    if (Sign == "beads") {
        for (const double J : {0, 1, 2}) {
            for (int I = 0, A = -40; A < 222;
                 A += std::array<double, 3>{26, 19, 15}[static_cast<std::size_t>(J)], ++I) {
                Outline(G,
                        Circle(50 + (20 + J * 9) * std::cos(Radians(A)),
                               46 + (22 + J * 9) * std::sin(Radians(A)), 4.6),
                        Own.Cols[static_cast<std::size_t>(
                            std::fmod(I + J, static_cast<int>(Own.Cols.size())))],
                        Dark(Own.Cols[static_cast<std::size_t>(
                                 std::fmod(I + J, static_cast<int>(Own.Cols.size())))],
                             .5),
                        .9);
            }
        }
    }
}

static void DrawShieldp(QPainter& G, const African& Own)
{
    QPainterPath Path = QMap<QString, QPainterPath>{
        {"zulu",
         ClosedCurve(
             {{50, 2}, {72, 18}, {80, 50}, {72, 82}, {50, 98}, {28, 82}, {20, 50}, {28, 18}}, .7)},
        {"maasai",
         ClosedCurve(
             {{50, 2}, {76, 14}, {86, 50}, {76, 86}, {50, 98}, {24, 86}, {14, 50}, {24, 14}},
             .6)}}.value(Text(Own.R, "s"));
    StrokeLine(G, 50, -6, 50, 106, "#5a3a1a", 4);
    G.save();
    G.setClipPath(Path);
    FillBox(G, 0, 0, 100, 100, Own.Cols[0]);
    QString M = Text(Own.R, "m");
    if (M == "cow") {
        for (const auto& [X, Y] :
             Table<double, double>{{36, 22}, {62, 34}, {40, 56}, {64, 68}, {46, 86}, {70, 14}}) {
            Fill(
                G,
                ClosedCurve(
                    {{X - 12, Y}, {X - 2, Y - 9}, {X + 12, Y - 4}, {X + 8, Y + 8}, {X - 6, Y + 7}}),
                Own.Cols[1]);
        }
        for (int Y = 12; Y < 92; Y += 8) FillBox(G, 44, Y, 12, 3.4, Own.Cols[2]);
    }
    if (M == "maasai") {
        Fill(G, ClosedCurve({{50, 10}, {66, 50}, {50, 90}, {34, 50}}), Own.Cols[1]);
        Fill(G, Ellipse(24, 50, 14, 26), Own.Cols[2]);
        Fill(G, Ellipse(76, 50, 14, 26), Own.Cols[2]);
        Fill(G, Ellipse(50, 50, 5, 26), Own.Cols[0]);
    }
    G.restore();
    Stroke(G, Path, EdgeOf(Own.Cols[0], .65, "#4a3a20"), 2.2);
}

static constexpr FigureRow<const African> Figures[] = {
    {"cloth", DrawCloth},   {"pot", DrawPot},         {"adinkra", DrawAdinkra},
    {"figure", DrawFigure}, {"shieldp", DrawShieldp},
};

static void Draw(QPainter& G, const African& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawAfrican(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const std::vector<QColor> Cols = Colours(R, "c", "#c8321c,#f0b42a,#1c7a3a,#1a1a1a");
    const African Own{R, Kind, Cols};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.1);
}
