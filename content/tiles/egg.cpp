// egg.cpp: painted eggs; patterns are clipped to the shell

#include "drawing.h"
#include "kinds.h"

struct Egg {
    const Recipe& R;
    std::vector<QColor> Tints;
    QPainterPath Shell;
};

static void Band(QPainter& G, const Egg&, double Y0, double Y1, const QColor& Tone,
                 double Amplitude = 0, double Waves = 6, const QString& Line = "flat")
{
    Points Pts;
    for (int I = 0; I < 41; ++I) {
        const double X = I * 2.5;
        const double Turn = I / 40.0 * Waves;
        double Rise = 0;
        if (Line == "wave") Rise = Amplitude * std::sin(Turn * 2 * M_PI);
        if (Line == "zig") Rise = Amplitude * (1 - 4 * std::abs(std::fmod(Turn, 1) - .5));
        Pts.push_back({X, Y0 + Rise});
    }
    const Points Lower =
        Reversed(Mapped(Pts, [&](double X, double Y) { return QPointF(X, Y + Y1 - Y0); }));
    Fill(G, Polygon(Joined(Pts, Lower)), Tone);
}

static void Draw(QPainter& G, const Egg& Own)
{
    Fill(G, Own.Shell, Own.Tints[0]);
    G.save();
    G.setClipPath(Own.Shell);
    const QString Pattern = Text(Own.R, "pat");
    if (Pattern == "stripes") {
        for (int I = 0, Y = 6; Y < 96; Y += 10, ++I) Band(G, Own, Y, Y + 10, Cycled(Own.Tints, I));
    } else if (Pattern == "vstripes") {
        for (int I = -5; I < 6; ++I) {
            Fill(G,
                 ClosedCurve({{50 + I * 7 - 3.5, 0},
                              {50.0 + I * 10 - 5, 60},
                              {50 + I * 7 - 3.5, 100},
                              {50 + I * 7 + 3.5, 100},
                              {50.0 + I * 10 + 5, 60},
                              {50 + I * 7 + 3.5, 0}},
                             .5),
                 Cycled(Own.Tints, I));
        }
    } else if (Pattern == "diag") {
        for (int I = -2; I < 14; ++I) {
            Fill(G,
                 Polygon({{I * 14.0 - 40, 100},
                          {I * 14.0 - 26, 100},
                          {I * 14.0 + 24, 0},
                          {I * 14.0 + 10, 0}}),
                 Cycled(Own.Tints, I));
        }
    } else if (Pattern == "zig") {
        for (int I = 0; const double Y : {14, 32, 50, 68, 86}) {
            Band(G, Own, Y, Y + 9, CycledFromSecond(Own.Tints, I), 6, 7, "zig");
            ++I;
        }
    } else if (Pattern == "wave") {
        for (int I = 0; const double Y : {12, 28, 44, 60, 76}) {
            Band(G, Own, Y, Y + 8, CycledFromSecond(Own.Tints, I), 4, 4, "wave");
            ++I;
        }
    } else if (Pattern == "dots") {
        for (int R = 0; R < 7; ++R) {
            for (int I = 0; I < 7; ++I) {
                Fill(G, Circle(8 + I * 15 + R % 2 * 7.5, 10 + R * 14, 4.6),
                     CycledFromSecond(Own.Tints, (R + I)));
            }
        }
    } else if (Pattern == "bigdots") {
        for (int I = 0; const auto& [X, Y, R] : Table<double, double, double>{{40, 24, 9},
                                                                              {64, 38, 10},
                                                                              {32, 50, 11},
                                                                              {56, 64, 12},
                                                                              {32, 80, 9},
                                                                              {76, 72, 8},
                                                                              {74, 20, 5},
                                                                              {22, 34, 5}}) {
            Fill(G, Circle(X, Y, R), CycledFromSecond(Own.Tints, I));
            ++I;
        }
    } else if (Pattern == "checks") {
        for (int R = 0; R < 10; ++R) {
            for (int I = 0; I < 10; ++I) {
                FillBox(G, I * 11 - 5, R * 10, 11, 10,
                        Own.Tints[static_cast<std::size_t>((R + I) % 2)]);
            }
        }
    } else if (Pattern == "diamonds") {
        for (int R = 0; R < 8; ++R) {
            for (int I = 0; I < 7; ++I) {
                const double X = 8 + I * 16 + R % 2 * 8;
                const double Y = 6 + R * 13;
                Fill(G, Polygon({{X, Y - 10}, {X + 7, Y}, {X, Y + 10}, {X - 7, Y}}),
                     CycledFromSecond(Own.Tints, R));
            }
        }
    } else if (Pattern == "plaid") {
        for (const double X : {28, 46, 64}) FillBox(G, X, 0, 9, 100, Alpha(Own.Tints[1], .6));
        for (const double Y : {16, 36, 56, 76}) FillBox(G, 0, Y, 100, 9, Alpha(Own.Tints[2], .6));
        for (const double X : {19, 37, 55, 73})
            StrokeLine(G, X + 4.5, 0, X + 4.5, 100, Own.Tints[3], 1.4);
        for (const double Y : {16, 36, 56, 76, 96})
            StrokeLine(G, 0, Y - 6, 100, Y - 6, Own.Tints[3], 1.4);
    } else if (Pattern == "hearts" || Pattern == "stars" || Pattern == "flowers" ||
               Pattern == "snow" || Pattern == "fish" || Pattern == "leaf") {
        const Points Pos = {{50, 20}, {32, 38}, {68, 38}, {50, 54}, {30, 68}, {70, 68}, {50, 84}};
        for (int I = 0; const auto& Spot : Pos) {
            const QColor Tone = CycledFromSecond(Own.Tints, I);
            const double X = Spot.x(), Y = Spot.y();
            if (Pattern == "hearts") {
                Fill(G, Fitted(GlyphPath(FontFile::Symbola, 0x2665), QRectF(X - 8, Y - 8, 16, 16)),
                     Tone);
            }
            if (Pattern == "stars") Fill(G, Star(X, Y, 9), Tone);
            if (Pattern == "snow") {
                Fill(G, Fitted(GlyphPath(FontFile::Symbola, 0x2744), QRectF(X - 9, Y - 9, 18, 18)),
                     Tone);
            }
            if (Pattern == "leaf") {
                Fill(G, Fitted(GlyphPath(FontFile::Symbola, 0x2618), QRectF(X - 9, Y - 9, 18, 18)),
                     Tone);
            }
            if (Pattern == "flowers") {
                for (int K = 0; K < 5; ++K) {
                    double A = Radians(K * 72 - 90);
                    Fill(G, Circle(X + 5 * std::cos(A), Y + 5 * std::sin(A), 4.2), Tone);
                }
                Fill(G, Circle(X, Y, 3), "#ffe24a");
            }
            ++I;
        }
    } else if (Pattern == "spiral") {
        Stroke(G,
               Curve(PointRow(26,
                              [&](int T) {
                                  return QPointF(50 + (3 + T * 2.1) * std::cos(T * .62),
                                                 52 + (3 + T * 2.5) * std::sin(T * .62));
                              })),
               Own.Tints[1], 7);
    } else if (Pattern == "rays") {
        for (int I = 0; I < 16; ++I) {
            double A = I * 22.5;
            Fill(G,
                 Polygon({{50, 52},
                          {50 + 90 * std::cos(Radians(A)), 52 + 90 * std::sin(Radians(A))},
                          {50 + 90 * std::cos(Radians(A + 22.5)),
                           52 + 90 * std::sin(Radians(A + 22.5))}}),
                 Own.Tints[static_cast<std::size_t>(I % 2)]);
        }
        Fill(G, Circle(50, 52, 13), Own.Tints[2]);
    } else if (Pattern == "lattice") {
        for (int I = 0; I < 12; ++I) {
            StrokeLine(G, I * 15 - 60, 0, I * 15 + 40, 100, Own.Tints[1], 3);
            StrokeLine(G, I * 15 + 40, 0, I * 15 - 60, 100, Own.Tints[1], 3);
        }
        for (int R = 0; R < 8; ++R) {
            for (int I = 0; I < 8; ++I) {
                Fill(G, Circle(I * 15 - 2.5 + (R % 2 ? 0 : 7.5) - 2.5, R * 15 + 5, 3),
                     Own.Tints[2]);
            }
        }
    } else if (Pattern == "rainbow") {
        for (int I = 0; const QColor Tone :
                        {QColor("#ff4a4a"), QColor("#ff9a2a"), QColor("#ffe02a"), QColor("#4ac84a"),
                         QColor("#3a9aff"), QColor("#6a4ae0"), QColor("#c84ad0")}) {
            Band(G, Own, 8 + I * 12, 8 + (I + 1) * 12, Tone);
            ++I;
        }
        Band(G, Own, -10, 8, "#ff4a4a");
        Band(G, Own, 92, 110, "#c84ad0");
    } else if (Pattern == "folk") {
        Band(G, Own, 0, 18, Own.Tints[1]);
        Band(G, Own, 40, 62, Own.Tints[1]);
        Band(G, Own, 82, 100, Own.Tints[1]);
        Band(G, Own, 19, 23, Own.Tints[2], 2, 9, "zig");
        Band(G, Own, 64, 68, Own.Tints[2], 2, 9, "zig");
        Band(G, Own, 34, 38, Own.Tints[2], 2, 9, "zig");
        Band(G, Own, 77, 80, Own.Tints[2], 2, 9, "zig");
        for (const double X : {22, 36, 50, 64, 78}) {
            Fill(G, Star(X, 51, 7, 6, .5), Own.Tints[3]);
            Fill(G, Circle(X, 29, 3), Own.Tints[2]);
            Fill(G, Circle(X, 72.5, 3), Own.Tints[2]);
        }
    } else if (Pattern == "scales") {
        for (int R = 0; R < 10; ++R) {
            for (int I = 0; I < 9; ++I) {
                Outline(G, Ellipse(I * 14 - 4 + R % 2 * 7, 96 - R * 10 + -0, 9, 9),
                        CycledFromSecond(Own.Tints, R), Dark(Own.Tints[0], .3), 1);
            }
        }
    } else if (Pattern == "half") {
        Band(G, Own, 50, 110, Own.Tints[1], 4, 6, "wave");
        Band(G, Own, 46, 50, Own.Tints[2], 4, 6, "wave");
    } else if (Pattern == "bow") {
        Band(G, Own, 0, 100, Own.Tints[0]);
        FillBox(G, 43, 0, 14, 100, Own.Tints[1]);
        FillBox(G, 0, 46, 100, 14, Own.Tints[1]);
        Outline(G, ClosedCurve({{50, 53}, {28, 38}, {26, 68}}), Own.Tints[2],
                Dark(Own.Tints[2], .4), 1.2);
        Outline(G, ClosedCurve({{50, 53}, {72, 38}, {74, 68}}), Own.Tints[2],
                Dark(Own.Tints[2], .4), 1.2);
        Outline(G, Circle(50, 53, 7), Light(Own.Tints[2], .2), Dark(Own.Tints[2], .4), 1.2);
    } else if (Pattern == "splash") {
        Random Chance{static_cast<std::uint64_t>(Whole(Own.R, "seed", 4))};
        for (int I = 0; I < 46; ++I) {
            const double R = Choice(Chance, {1.5, 2.2, 3, 4.6, 6});
            Fill(G,
                 Ellipse(Uniform(Chance, 16, 84), Uniform(Chance, 4, 96), R,
                         R * Uniform(Chance, .7, 1)),
                 CycledFromSecond(Own.Tints, I));
        }
    } else if (Pattern == "marble") {
        Random Chance{3};
        for (int I = 0; I < 11; ++I) {
            const double Y = 6 + I * 9;
            Stroke(G,
                   Curve({{0, Y},
                          {22, Y + Uniform(Chance, -8, 8)},
                          {44, Y + Uniform(Chance, -8, 8)},
                          {66, Y + Uniform(Chance, -8, 8)},
                          {100, Y + Uniform(Chance, -8, 8)}}),
                   CycledFromSecond(Own.Tints, I), Choice(Chance, {2, 3.4, 5}));
        }
    } else if (Pattern == "chick" || Pattern == "bunny" || Pattern == "emoji") {
        DrawFitted(G, EmojiImage(Text(Own.R, "cp")), QRectF(26, 32, 48, 46));
    } else if (Pattern == "honey") {
        for (int R = 0; R < 8; ++R) {
            for (int I = 0; I < 7; ++I) {
                Outline(G, Regular(6 + I * 15 + R % 2 * 7.5, 6 + R * 13, 8.6, 6),
                        (R + I) % 3 ? Own.Tints[0] : Own.Tints[2], Own.Tints[1], 2.4);
            }
        }
    }
    FillBox(G, 0, 0, 100, 100,
            Radial(36, 30, 70,
                   {Alpha("#ffffff", .55), Alpha("#ffffff", .0), Alpha("#000000", .0),
                    Alpha("#000000", .3)}));
    G.restore();
    Stroke(G, Own.Shell, EdgeOf(Own.Tints[0], .5, "#8a8068"), 1.6);
    Fill(G, Ellipse(36, 28, 6, 10, 24), Alpha("#ffffff", .5));
    if (Has(Own.R, "crack")) {
        Stroke(
            G,
            Polyline(
                {{18, 50}, {28, 44}, {36, 54}, {46, 44}, {54, 56}, {64, 46}, {72, 54}, {83, 48}}),
            "#5a4a30", 2);
    }
}

void DrawEgg(QPainter& P, const Recipe& R)
{
    const std::vector<QColor> Tints = Colours(R, "c");
    const QPainterPath Shell = ClosedCurve({{50, 3},
                                            {66, 12},
                                            {79, 38},
                                            {83, 62},
                                            {74, 84},
                                            {50, 96},
                                            {26, 84},
                                            {17, 62},
                                            {21, 38},
                                            {34, 12}},
                                           .75);
    const Egg Own{R, Tints, Shell};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawShadowed(P, Drawing);
}
