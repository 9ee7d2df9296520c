// dino.cpp: dinosaurs from the side as tubes along a spine, and fossils

#include "drawing.h"
#include "kinds.h"

using Bones = std::vector<SpinePoint>;

struct Limb {
    Bones Spine;
    bool Far; // on the side away from the viewer
};

// How a kind of dinosaur is built: all lists are points with half widths.
struct BodyPlan {
    Bones Spine; // from the tail to the snout
    std::vector<Limb> Legs;
    Bones Arm;
    QPointF Eye;
    Points Jaw; // the line of the mouth, from the snout
};

static const QMap<QString, BodyPlan> BodyPlans = {
    {"rex",
     {{{17.3, 50, 0.7},
       {23.9, 54, 3},
       {31.6, 54, 7},
       {42, 52, 13.3},
       {54, 45, 12.8},
       {64, 36, 9.3},
       {70, 27, 8.7},
       {78, 22, 9.9},
       {90, 24, 7.5},
       {97, 26, 5.2}},
      {{{{44, 56, 11.2}, {50, 68, 6.9}, {44, 80, 3.8}, {47, 92, 3.2}, {55, 93, 2.8}}, false},
       {{{52, 56, 10}, {60, 66, 6.2}, {55, 79, 3.5}, {58, 90, 3}, {66, 91, 2.5}}, true}},
      {{63, 46, 3.2}, {68, 53, 2.2}, {73, 51, 1.6}},
      {79, 19},
      {{97, 28}, {86, 28}, {78, 27}}}},
    {"raptor",
     {{{16.2, 34, 0.8},
       {26.1, 42, 2.6},
       {34.9, 48, 5.9},
       {48, 50, 11.1},
       {60, 46, 9.8},
       {68, 37, 6},
       {74, 27, 5.7},
       {81, 22, 7},
       {90, 24, 4.9},
       {96, 26, 3.1}},
      {{{{49, 54, 8.8}, {56, 66, 5}, {49, 78, 2.8}, {52, 91, 2.5}, {60, 92, 2}}, false},
       {{{55, 54, 7.5}, {65, 64, 4.5}, {60, 76, 2.5}, {66, 88, 2.2}, {73, 89, 1.9}}, true}},
      {{64, 48, 3.2}, {71, 56, 2.2}, {79, 53, 1.6}},
      {81, 20},
      {{96, 27.5}, {88, 27}, {82, 26}}}},
    {"ornith",
     {{{16.2, 44, 0.7},
       {26.1, 48, 2.4},
       {36, 50, 6},
       {50, 50, 12},
       {62, 47, 9.6},
       {70, 36, 4.1},
       {74, 22, 3.4},
       {77, 12, 4.1},
       {84, 11, 4.1},
       {93, 14, 1.9}},
      {{{{52, 55, 9.4}, {58, 68, 5}, {51, 80, 2.8}, {54, 93, 2.4}, {61, 94, 1.9}}, false},
       {{{58, 55, 7.5}, {67, 66, 4.2}, {62, 79, 2.5}, {67, 90, 2.1}, {74, 91, 1.8}}, true}},
      {{65, 50, 3}, {71, 58, 2}, {77, 60, 1.5}},
      {79, 10},
      {{93, 15}, {86, 14}}}},
    {"sauropod",
     {{{15, 78, 0.6},
       {21.6, 70, 2.2},
       {28.8, 60, 5},
       {38, 56, 12.4},
       {54, 54, 14.6},
       {66, 50, 9.7},
       {75, 38, 5.4},
       {81, 24, 4.3},
       {85, 13, 3.9},
       {91, 10, 4.1},
       {98, 13, 2.8}},
      {{{{36, 60, 8.1}, {36, 76, 6.2}, {36, 91, 5.8}}, false},
       {{{62, 60, 7.5}, {63, 76, 5.8}, {63, 91, 5.2}}, false},
       {{{45, 60, 7.5}, {46, 75, 5.8}, {46, 88, 5.2}}, true},
       {{{70, 56, 6.2}, {72, 73, 5}, {72, 88, 4.8}}, true}},
      {},
      {91, 8.6},
      {{98, 14}, {92, 13}}}},
    {"diplo",
     {{{17, 36, 0.6},
       {22, 44, 1.5},
       {28, 52, 4.1},
       {35, 54, 11.6},
       {50, 54, 14.6},
       {63, 50, 10.4},
       {74, 42, 5.6},
       {84, 34, 4.1},
       {91, 28, 3.7},
       {96, 28, 3.7},
       {101, 31, 2.4}},
      {{{{33, 58, 7.5}, {33, 74, 5.8}, {33, 90, 5.2}}, false},
       {{{59, 58, 7}, {60, 74, 5.5}, {60, 90, 5}}, false},
       {{{42, 58, 7}, {43, 73, 5.5}, {43, 87, 5}}, true},
       {{{67, 55, 6.2}, {69, 72, 5}, {69, 87, 4.5}}, true}},
      {},
      {95, 26},
      {{101, 32}, {96, 31}}}},
    {"quad",
     {{{12.2, 66, 0.6},
       {20.6, 62, 3.2},
       {30.4, 55, 8.6},
       {44, 50, 14.6},
       {58, 52, 13},
       {70, 58, 8.6},
       {80, 62, 7},
       {90, 66, 5.2},
       {96, 69, 3.2}},
      {{{{32, 58, 8.8}, {31, 74, 6}, {31, 90, 5.5}}, false},
       {{{62, 62, 7.2}, {62, 76, 5.5}, {62, 90, 5}}, false},
       {{{41, 58, 7.5}, {42, 74, 5.5}, {42, 87, 5}}, true},
       {{{70, 62, 6.2}, {71, 76, 5}, {71, 87, 4.5}}, true}},
      {},
      {86, 60},
      {{96, 71}, {88, 69}}}},
    {"ceratop",
     {{{10.5, 60, 0.6},
       {18, 58, 3.7},
       {28.5, 52, 10.1},
       {42, 50, 14.8},
       {56, 50, 13.2},
       {68, 50, 10.6},
       {78, 54, 10.6},
       {88, 60, 7.4},
       {95, 66, 3.6}},
      {{{{30, 58, 8.8}, {29, 74, 6.5}, {29, 91, 6}}, false},
       {{{58, 60, 7.5}, {57, 76, 6}, {57, 91, 5.5}}, false},
       {{{39, 58, 7.5}, {40, 74, 5.8}, {40, 87, 5.5}}, true},
       {{{66, 60, 6.8}, {67, 76, 5.2}, {67, 87, 5}}, true}},
      {},
      {79, 51},
      {{93, 69}, {86, 66}, {80, 64}}}},
    {"hadro",
     {{{16.8, 60, 0.7},
       {23.9, 56, 3.4},
       {31.6, 52, 8},
       {42, 50, 14.2},
       {55, 47, 13.1},
       {65, 38, 8},
       {70, 27, 5.7},
       {76, 20, 6.8},
       {86, 22, 5},
       {95, 26, 3.9}},
      {{{{42, 54, 11.2}, {48, 68, 6.5}, {42, 80, 4}, {46, 92, 3.5}, {54, 93, 2.8}}, false},
       {{{50, 55, 9.4}, {58, 66, 5.8}, {53, 79, 3.8}, {58, 90, 3}, {65, 91, 2.5}}, true}},
      {{61, 50, 5}, {66, 62, 3.2}, {69, 72, 2.8}},
      {78, 19},
      {{95, 28}, {86, 27}}}},
    {"pachy",
     {{{17.3, 44, 0.7},
       {25, 50, 3.6},
       {32.7, 52, 7.8},
       {43, 50, 12.6},
       {55, 46, 11.4},
       {63, 38, 7.2},
       {69, 30, 7.8},
       {77, 28, 9.6},
       {86, 33, 6.5},
       {91, 36, 3.6}},
      {{{{44, 54, 10}, {50, 67, 6.2}, {44, 79, 3.8}, {48, 92, 3.2}, {56, 93, 2.6}}, false},
       {{{52, 54, 8.8}, {60, 65, 5.5}, {55, 78, 3.5}, {60, 90, 2.8}, {67, 91, 2.4}}, true}},
      {{60, 48, 3.2}, {65, 57, 2.4}, {70, 59, 1.8}},
      {80, 28},
      {{91, 37.5}, {84, 37}}}},
    {"dimetro",
     {{{10.8, 82, 0.7},
       {19.2, 80, 2.8},
       {29, 75, 6.9},
       {44, 71, 10.3},
       {60, 70, 9.7},
       {72, 68, 8.5},
       {84, 68, 8},
       {97, 72, 4.6}},
      {{{{30, 78, 5.8}, {26, 88, 4.2}, {30, 96, 3.8}}, false},
       {{{64, 77, 5.5}, {62, 88, 4}, {66, 96, 3.5}}, false},
       {{{40, 77, 5}, {42, 88, 3.8}, {46, 94, 3.2}}, true},
       {{{72, 76, 5}, {76, 87, 3.8}, {80, 93, 3.2}}, true}},
      {},
      {84, 64},
      {{97, 74}, {86, 74}}}},
};

struct Dino {
    const Recipe& R;
    QColor Tint;
    QColor Tint2;
    QColor StripeTint;
    QColor Accent;
    QString Kind;
    QColor Edge;
};

// The plans are slender; at the size of a tile more flesh reads better.
static Bones Stout(const Bones& List)
{
    return Mapped(List, [](double X, double Y, double W) { return SpinePoint{X, Y, W * 1.14}; });
}

static void DrawLimb(QPainter& G, const Dino& Own, const Bones& Pts, bool Far)
{
    const QPainterPath Path = Tube(Stout(Pts));
    const QColor Tone = Far ? Dark(Own.Tint, .24) : Own.Tint;
    Outline(G, Path, Tone, Own.Edge, 1.9);
}

static void DrawSail(QPainter& G, const Dino& Own, const Bones& Spine)
{
    Points Rim, Root;
    for (std::size_t I = 0; I < 24; ++I) {
        const auto [X, Y, W] = Spine[I + 10];
        const double Bow = std::pow(std::sin(M_PI * static_cast<double>(I) / 23), .7);
        Rim.push_back({X, Y - W * .5 - 27 * Bow});
        Root.push_back({X, Y});
    }
    Outline(G, ClosedCurve(Joined(Rim, Reversed(Root)), .6),
            Linear(0, 10, 0, 50, {Own.Accent, Light(Own.Accent, .35)}), Dark(Own.Accent, .45), 1.7);
    for (std::size_t I = 2; I < 23; I += 3)
        StrokeLine(G, Rim[I].x(), Rim[I].y(), Root[I].x(), Root[I].y(), Dark(Own.Accent, .35), 1.3);
}

// Plates, sails, horns: those behind the body first, those before it after it.
static void DrawFeatures(QPainter& G, const Dino& Own, const Bones& Spine, bool Front)
{
    for (const QString& Feature : Words(Own.R, "f", "+")) {
        if (Feature == "sail" && !Front) DrawSail(G, Own, Spine);
        if (Feature == "spines" && !Front) {
            for (int I = 6; I < static_cast<int>(Spine.size()) - 14; I += 3) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                double H = Number(Own.R, "sh", 9);
                Outline(G,
                        Polygon({{X - 2.6, Y - W * .8}, {X - 1, Y - W - H}, {X + 2.6, Y - W * .8}}),
                        Own.Accent, Dark(Own.Accent, .45), 1);
            }
        }
        if (Feature == "neckspines" && !Front) {
            for (int I = 28; I < 52; I += 3) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                Outline(G,
                        Polygon({{X - 1.6, Y - W * .4},
                                 {X - 10 + I * .04, Y - W - 15},
                                 {X + 2, Y - W * .6}}),
                        Own.Accent, Dark(Own.Accent, .4), 1);
            }
        }
        if (Feature == "plates" && !Front) {
            for (int I = 7; I < static_cast<int>(Spine.size()) - 13; I += 4) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                double H = 7 + 9 * std::sin(M_PI * (I - 6) / (static_cast<int>(Spine.size()) - 18));
                Outline(G,
                        Polygon({{X - H * .34, Y - W * .75},
                                 {X - H * .42, Y - W - H * .5},
                                 {X, Y - W - H},
                                 {X + H * .42, Y - W - H * .5},
                                 {X + H * .34, Y - W * .75}}),
                        Own.Accent, Dark(Own.Accent, .45), 1.2);
            }
        }
        if (Feature == "thago" && Front) {
            for (int K = 0; const auto& [X, Y] : Table<double, double>{{15, 64}, {19, 63}}) {
                Outline(G, Polygon({{X - 1.5, Y}, {X - 6 + K, Y - 13}, {X + 2, Y - 1}}), "#f4ecd6",
                        "#7a6a48", 1);
                ++K;
            }
        }
        if (Feature == "club" && Front)
            Outline(G, Ellipse(12, 65, 8, 6.4), Dark(Own.Tint, .12), Own.Edge, 1.5);
        if (Feature == "armour" && Front) {
            for (int I = 10; I < static_cast<int>(Spine.size()) - 10; I += 3) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                for (const double K : {-.75, -.35, .05}) {
                    Outline(G, Ellipse(X, Y + W * K, 2.1, 1.7), Own.Accent, Dark(Own.Accent, .45),
                            .9);
                }
            }
            for (int I = 10; I < static_cast<int>(Spine.size()) - 12; I += 6) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                Outline(
                    G,
                    Polygon({{X - 3, Y + W * .2}, {X - 7, Y + W * .2 + 1}, {X + 2, Y + W * .55}}),
                    "#f0e6cc", "#7a6a48", .9);
            }
        }
        if (Feature == "sidespikes" && Front) {
            for (int I = 12; I < static_cast<int>(Spine.size()) - 12; I += 5) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                Outline(G, Polygon({{X - 2, Y - W * .5}, {X - 5, Y - W - 9}, {X + 3, Y - W * .6}}),
                        "#f4ecd6", "#7a6a48", 1);
            }
        }
        if (Feature == "frill" && !Front) {
            Outline(G, ClosedCurve({{76, 62}, {62, 58}, {58, 40}, {64, 26}, {76, 30}, {84, 44}}),
                    Own.Accent, Dark(Own.Accent, .5), 1.6);
        }
        if (Feature == "frillspikes" && !Front) {
            for (const double A : {-150, -125, -100, -75}) {
                double X = 70 + 17 * std::cos(Radians(A));
                double Y = 45 + 19 * std::sin(Radians(A));
                Outline(G,
                        Polygon({{X - 3, Y + 2},
                                 {X + 17 * std::cos(Radians(A)), Y + 19 * std::sin(Radians(A))},
                                 {X + 3, Y + 1}}),
                        "#f4ecd6", "#7a6a48", 1);
            }
        }
        if (Feature == "browhorns" && Front) {
            Outline(G, Polygon({{76, 46}, {92, 30}, {82, 48}}), "#f8f1dc", "#6a5a38", 1.2);
            Outline(G, Polygon({{72, 45}, {84, 26}, {77, 45}}), "#f8f1dc", "#6a5a38", 1.2);
        }
        if (Feature == "nosehorn" && Front)
            Outline(G, Polygon({{88, 54}, {96, 40}, {94, 58}}), "#f8f1dc", "#6a5a38", 1.2);
        if (Feature == "bignose" && Front)
            Outline(G, Polygon({{85, 53}, {94, 30}, {94, 57}}), "#f8f1dc", "#6a5a38", 1.2);
        if (Feature == "beak" && Front) {
            Outline(G, ClosedCurve({{91, 60}, {98, 64}, {97, 72}, {92, 68}}), "#6a5a40", "#2a2010",
                    1.1);
        }
        if (Feature == "horns2" && Front) {
            Outline(G, Polygon({{75, 16}, {76, 6}, {81, 15}}), "#f4ecd6", "#6a5a38", 1.2);
            Outline(G, Polygon({{81, 15}, {84, 6}, {86, 16}}), "#f4ecd6", "#6a5a38", 1.2);
        }
        if (Feature == "crest2" && !Front) {
            Outline(G, ClosedCurve({{74, 18}, {72, 6}, {82, 4}, {92, 12}, {92, 22}}), Own.Accent,
                    Dark(Own.Accent, .45), 1.4);
        }
        if (Feature == "tubecrest" && !Front) {
            const QPainterPath Path =
                Tube({{88, 20, 3}, {78, 14, 4.4}, {66, 8, 4}, {54, 4, 3.2}, {48, 4, 2}});
            Outline(G, Path, Own.Accent, Dark(Own.Accent, .5), 1.5);
        }
        if (Feature == "helmet" && !Front) {
            Outline(G, ClosedCurve({{70, 20}, {70, 8}, {78, 2}, {87, 7}, {90, 19}}), Own.Accent,
                    Dark(Own.Accent, .5), 1.5);
        }
        if (Feature == "hatchet" && !Front) {
            Outline(G, Polygon({{74, 17}, {66, 4}, {78, 6}, {84, 3}, {86, 18}}), Own.Accent,
                    Dark(Own.Accent, .5), 1.4);
        }
        if (Feature == "dome" && Front) {
            Outline(G, ClosedCurve({{66, 27}, {69, 15}, {79, 13}, {87, 22}, {86, 29}, {76, 24}}),
                    Own.Accent, Dark(Own.Accent, .45), 1.5);
            for (const auto& [X, Y] : Table<double, double>{{66, 25}, {65, 29}, {67, 33}})
                Outline(G, Polygon({{X, Y}, {X - 4, Y - 1}, {X, Y + 2}}), "#f4ecd6", "#7a6a48", .7);
        }
        if (Feature == "thumb" && Front)
            Outline(G, Polygon({{67, 71}, {73, 66}, {70, 73}}), "#f4ecd6", "#6a5a38", 1);
        if (Feature == "claws" && Front) {
            for (int K = 0; K < 3; ++K) {
                Outline(G,
                        ClosedCurve({{72.0 + K * 2, 54.0 + K * 2},
                                     {86, 58.0 + K * 4},
                                     {92.0 - K, 70.0 + K * 3},
                                     {84, 62.0 + K * 4}}),
                        "#f4ecd6", "#6a5a38", .9);
            }
        }
        if (Feature == "featherarm" && Front) {
            for (int K = 0; K < 6; ++K) {
                Outline(G,
                        ClosedCurve({{65 + K * 1.6, 48.0 + K},
                                     {66 + K * 2.4, 60 + K * 1.2},
                                     {70 + K * 2.6, 64 + K * .4},
                                     {69.0 + K * 2, 52}}),
                        Mix(Own.Accent, "#ffffff", .2 * (K % 2)), Dark(Own.Accent, .4), .8);
            }
        }
        if (Feature == "feathertail" && !Front) {
            for (int K = 0; K < 8; ++K) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(1 + K)];
                Outline(G, Ellipse(X, Y, 7, 2.4, 25 + K % 2 * 60),
                        Mix(Own.Accent, "#ffffff", .25 * (K % 2)), Dark(Own.Accent, .4), .8);
            }
        }
        if (Feature == "headfeather" && !Front) {
            for (const double A : {-160, -140, -120}) {
                double X = 76;
                double Y = 19;
                Outline(
                    G,
                    Ellipse(X + 6 * std::cos(Radians(A)), Y + 6 * std::sin(Radians(A)), 8, 2.2, A),
                    Own.Accent, Dark(Own.Accent, .4), .8);
            }
        }
        if (Feature == "fuzz" && !Front) {
            for (int I = 3; I < static_cast<int>(Spine.size()) - 4; ++I) {
                const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
                StrokeLine(G, X, Y - W * .8, X - 3, Y - W - 3.2, Dark(Own.Tint, .25), 1.4);
            }
        }
    }
}

static void DrawPattern(QPainter& G, const Dino& Own, const Bones& Spine)
{
    const QString Pattern = Text(Own.R, "pat");
    const std::size_t Last = Spine.size();
    Random Chance{3};
    for (std::size_t I = 4; I + 8 < Last; ++I) {
        const auto [X, Y, W] = Spine[I];
        if (Pattern == "stripes" && I >= 8 && I % 4 == 0)
            StrokeLine(G, X - 1, Y - W * 1.1, X + 2, Y + W * .15, Own.StripeTint, 3);
        if (Pattern == "bands" && I % 6 == 4)
            StrokeLine(G, X, Y - W * 1.3, X + 1, Y + W * 1.3, Own.StripeTint, 4.5);
        if (Pattern == "spots" && I % 2 == 0) {
            const double Aside = Uniform(Chance, -2, 2), High = Uniform(Chance, 0, .75);
            Fill(G, Circle(X + Aside, Y - W * High, std::max(1.4, W * .19)), Own.StripeTint);
        }
    }
}

static void DrawJaw(QPainter& G, const Dino& Own, const BodyPlan& Plan)
{
    Stroke(G, Curve(Plan.Jaw), Own.Edge, 1.7);
    if (!Has(Own.R, "teeth")) return;
    const double Y = Plan.Jaw[0].y() - .2;
    for (const double X : {94, 90, 86, 82})
        Outline(G, Polygon({{X - 1.8, Y}, {X + 1.8, Y}, {X, Y + 4}}), "#ffffff", "#333333", .5);
}

static void DrawBody(QPainter& G, const Dino& Own, const BodyPlan& Plan)
{
    for (const Limb& Leg : Plan.Legs)
        if (Leg.Far) DrawLimb(G, Own, Leg.Spine, true);
    Bones Spine;
    const QPainterPath Path = Tube(Stout(Plan.Spine), &Spine);
    DrawFeatures(G, Own, Spine, false);
    Outline(G, Path,
            Linear(0, 10, 0, 80, {Light(Own.Tint, .18), Own.Tint, Mix(Own.Tint, Own.Tint2, .25)}),
            Own.Edge, 2);
    G.save();
    G.setClipPath(Path);
    const Points Upper =
        Mapped(Spine, [](double X, double Y, double W) { return QPointF(X, Y + W * .45); });
    const Points Lower =
        Mapped(Spine, [](double X, double Y, double W) { return QPointF(X, Y + W * 1.6); });
    Fill(G, ClosedCurve(Joined(Upper, Reversed(Lower)), .6), Alpha(Own.Tint2, .9)); // the belly
    DrawPattern(G, Own, Spine);
    G.restore();
    Stroke(G, Path, Own.Edge, 2.1);
    for (const Limb& Leg : Plan.Legs) {
        if (Leg.Far) continue;
        DrawLimb(G, Own, Leg.Spine, false);
        const auto [X, Y, W] = Leg.Spine[0];
        Fill(G, Ellipse(X, Y - 1, W * .86, W * .9), Own.Tint); // no edge where the thigh begins
    }
    if (!Plan.Arm.empty()) {
        const double Size = Number(Own.R, "arm", 1);
        DrawLimb(G, Own,
                 Mapped(Plan.Arm,
                        [&](double X, double Y, double W) {
                            return SpinePoint{X, Y, W * Size};
                        }),
                 false);
    }
    DrawFeatures(G, Own, Spine, true);
    DrawJaw(G, Own, Plan);
    Fill(G, Circle(Plan.Eye.x(), Plan.Eye.y(), 3.6), "#ffe86a");
    Fill(G, Circle(Plan.Eye.x() + .4, Plan.Eye.y(), 2), "#101010");
}

static void DrawPtero(QPainter& G, const Dino& Own)
{
    const QPainterPath W1 = ClosedCurve(
        {{52, 44}, {40, 22}, {14, 6}, {-4, 14}, {10, 24}, {20, 38}, {30, 42}, {40, 54}}, .5);
    const QPainterPath W2 = ClosedCurve(
        {{56, 44}, {70, 26}, {92, 18}, {108, 30}, {94, 34}, {84, 46}, {72, 48}, {62, 56}}, .5);
    for (const QPainterPath& W : {W1, W2}) {
        Outline(G, W, Linear(0, 0, 0, 60, {Own.Accent, Light(Own.Accent, .35)}),
                Dark(Own.Accent, .5), 1.6);
    }
    for (const QPointF& E : Points{{10, 24}, {20, 38}, {30, 42}})
        StrokeLine(G, 42, 30, E.x(), E.y(), Dark(Own.Accent, .4), 1);
    for (const QPointF& E : Points{{94, 34}, {84, 46}, {72, 48}})
        StrokeLine(G, 66, 34, E.x(), E.y(), Dark(Own.Accent, .4), 1);
    if (Has(Own.R, "tail")) {
        const QPainterPath Path = Tube({{20, 86, .6}, {34, 72, 1.2}, {48, 56, 3}});
        Outline(G, Path, Own.Tint, Own.Edge, 1.2);
        Outline(G, Polygon({{20, 80}, {27, 86}, {17, 94}, {12, 87}}), Own.Accent,
                Dark(Own.Accent, .4), 1.2);
    }
    const QPainterPath Path =
        Tube({{40, 66, 2}, {48, 54, 6.5}, {56, 42, 6}, {62, 32, 4}, {68, 27, 4.6}});
    Outline(G, Path, Own.Tint, Own.Edge, 1.6);
    for (const Bones& Pts : std::vector<Bones>{{{44, 62, 2.2}, {38, 72, 1.6}, {36, 80, 1.2}},
                                               {{49, 62, 2.2}, {46, 73, 1.6}, {46, 82, 1.2}}})
        DrawLimb(G, Own, Pts, 0);
    Outline(G, Polygon({{66, 24}, {98, 36}, {68, 33}}), Light(Own.Tint, .3), Own.Edge, 1.4);
    if (Has(Own.R, "crest")) {
        Outline(G, Polygon({{70, 24}, {66, 29}, {46, 10}}), Colour(Own.R, "crest"),
                Dark(Colour(Own.R, "crest"), .5), 1.4);
    }
    Outline(G, Ellipse(68, 28, 5, 4.6), Own.Tint, Own.Edge, 1.4);
    Fill(G, Circle(69, 27, 1.9), "#ffe86a");
    Fill(G, Circle(69.3, 27, 1), "#111");
}

static void DrawPlesio(QPainter& G, const Dino& Own)
{
    for (const auto& [Far, Pts] :
         Table<double, std::vector<SpinePoint>>{{1, {{44, 56, 4}, {50, 72, 5}, {58, 82, 2}}},
                                                {1, {{24, 54, 3.6}, {24, 70, 4.4}, {18, 82, 2}}}})
        DrawLimb(G, Own, Pts, Far);
    Bones Spine;
    const QPainterPath Path = Tube({{-2, 46, .8},
                                    {10, 50, 4},
                                    {24, 50, 9},
                                    {40, 52, 12},
                                    {54, 48, 8},
                                    {66, 38, 4.2},
                                    {76, 26, 3.4},
                                    {84, 18, 3.4},
                                    {92, 18, 3.8},
                                    {101, 22, 2}},
                                   &Spine);
    Outline(G, Path, Linear(0, 30, 0, 64, {Dark(Own.Tint, .1), Own.Tint, Own.Tint2}), Own.Edge,
            1.7);
    for (const Bones& Pts : std::vector<Bones>{{{34, 58, 4.4}, {36, 76, 5.4}, {44, 90, 2}},
                                               {{16, 54, 3.6}, {10, 70, 4.6}, {2, 80, 2}}})
        DrawLimb(G, Own, Pts, 0);
    Fill(G, Circle(93, 16.5, 2.2), "#ffe86a");
    Fill(G, Circle(93.3, 16.5, 1.2), "#111");
}

static void DrawMosa(QPainter& G, const Dino& Own)
{
    Outline(G, ClosedCurve({{4, 40}, {-6, 28}, {2, 34}, {8, 44}, {4, 58}, {-4, 66}, {0, 52}}),
            Own.Accent, Dark(Own.Accent, .4), 1.4);
    Bones Spine;
    const QPainterPath Path = Tube({{2, 48, 2.4},
                                    {16, 50, 4},
                                    {32, 54, 8},
                                    {48, 54, 10.5},
                                    {62, 48, 9},
                                    {74, 42, 8},
                                    {88, 42, 6},
                                    {101, 46, 2.6}},
                                   &Spine);
    for (const Bones& Pts : std::vector<Bones>{{{60, 58, 3.4}, {66, 70, 4.6}, {72, 80, 2}},
                                               {{34, 60, 3}, {36, 70, 4}, {40, 78, 1.8}}})
        DrawLimb(G, Own, Pts, 1);
    Outline(G, Path, Linear(0, 30, 0, 66, {Dark(Own.Tint, .1), Own.Tint, Own.Tint2}), Own.Edge,
            1.7);
    for (int I = 4; I < static_cast<int>(Spine.size()) - 14; I += 3) {
        const auto [X, Y, W] = Spine[static_cast<std::size_t>(I)];
        StrokeLine(G, X, Y - W, X + 2, Y - W * .1, Own.StripeTint, 2.6);
    }
    for (int I = 0; I < 6; ++I) {
        Outline(G, Polygon({{76.0 + I * 4, 46}, {79.0 + I * 4, 46}, {77.5 + I * 4, 50}}), "#ffffff",
                "#333", .5);
    }
    StrokeLine(G, 74, 47, 101, 48, Own.Edge, 1.4);
    Fill(G, Circle(78, 38, 2.4), "#ffe86a");
    Fill(G, Circle(78.4, 38, 1.3), "#111");
}

static void DrawIchthyo(QPainter& G, const Dino& Own)
{
    Outline(G, Polygon({{8, 50}, {-8, 26}, {2, 48}, {-6, 76}, {10, 56}}), Own.Accent,
            Dark(Own.Accent, .4), 1.4);
    Outline(G, Polygon({{44, 40}, {50, 22}, {58, 40}}), Own.Accent, Dark(Own.Accent, .4), 1.4);
    Bones Spine;
    const QPainterPath Path = Tube({{4, 51, 2.4},
                                    {18, 51, 6},
                                    {36, 51, 12},
                                    {52, 52, 13},
                                    {66, 53, 9.5},
                                    {76, 54, 5},
                                    {88, 56, 2.2},
                                    {102, 57, 1.2}},
                                   &Spine);
    Outline(G, Path, Linear(0, 36, 0, 66, {Dark(Own.Tint, .15), Own.Tint, Own.Tint2, Own.Tint2}),
            Own.Edge, 1.7);
    DrawLimb(G, Own, {{54, 60, 4}, {60, 74, 5}, {68, 82, 2}}, 0);
    DrawLimb(G, Own, {{26, 58, 3}, {28, 68, 3.6}, {32, 74, 1.6}}, 0);
    StrokeLine(G, 74, 57, 101, 58, Own.Edge, 1.3);
    Fill(G, Circle(68, 49, 4), "#fff2a0");
    Fill(G, Circle(68.6, 49, 2.4), "#111");
}

static void DrawDimetro(QPainter& G, const Dino& Own)
{
    const Points Sail = PointRow(15, [](int I) {
        return QPointF(18 + I * 4.2, 70 - 50 * std::sin(M_PI * std::pow(I / 14.0, .85)));
    });
    Outline(G, ClosedCurve(Joined(Sail, Points{{70, 68}, {44, 68}, {22, 76}}), .6),
            Linear(0, 20, 0, 72, {Own.Accent, Light(Own.Accent, .4)}), Dark(Own.Accent, .5), 1.8);
    for (std::size_t I = 1; I < 14; ++I)
        StrokeLine(G, Sail[I].x(), Sail[I].y(), 24 + static_cast<double>(I) * 3.4, 70,
                   Dark(Own.Accent, .4), 1.3);
    DrawBody(G, Own, BodyPlans["dimetro"]);
}

static void DrawEgg(QPainter& G, const Dino& Own)
{
    Outline(G, Ellipse(50, 78, 44, 16), "#8a6436", "#4a3418", 1.6);
    Random Chance{1};
    for (int I = 0; I < 26; ++I) {
        double X = Uniform(Chance, 10, 90);
        StrokeLine(G, X, 74 + Uniform(Chance, -2, 14), X + Uniform(Chance, -14, 14),
                   78 + Uniform(Chance, -6, 12), "#c79a58", 1.8);
    }
    for (const auto& [X, Y, R] :
         Table<double, double, double>{{30, 60, -14}, {70, 60, 14}, {50, 54, 0}}) {
        Outline(G, Ellipse(X, Y, 17, 23, R),
                Radial(X - 5, Y - 8, 30, {Light(Own.Tint, .5), Own.Tint, Dark(Own.Tint, .15)}),
                Dark(Own.Tint, .5), 1.6);
        for (int K = 0; K < 8; ++K) {
            double A = K * 2.4;
            Fill(G,
                 Circle(X + 10 * std::cos(A) * (.4 + .09 * K),
                        Y + 16 * std::sin(A) * (.4 + .08 * K), 1.8),
                 Alpha(Own.StripeTint, .8));
        }
    }
}

static void DrawHatch(QPainter& G, const Dino& Own)
{
    Outline(G, ClosedCurve({{38, 60}, {34, 34}, {44, 20}, {58, 20}, {68, 32}, {62, 46}, {64, 62}}),
            Own.Tint, Own.Edge, 1.8);
    Outline(G, ClosedCurve({{54, 34}, {72, 34}, {78, 42}, {70, 48}, {54, 46}}), Own.Tint, Own.Edge,
            1.6);
    Fill(G, Circle(56, 32, 5), "#ffffff");
    Fill(G, Circle(57.5, 32, 3), "#111");
    Stroke(G, Curve({{58, 44}, {68, 45}, {76, 42}}), Own.Edge, 1.4);
    for (int I = 0; I < 4; ++I) {
        Outline(G,
                Polygon({{36.0 + I * 2, 50.0 - I * 10},
                         {28.0 + I * 3, 44.0 - I * 10},
                         {38.0 + I * 3, 42.0 - I * 9}}),
                Own.Accent, Dark(Own.Accent, .4), 1);
    }
    const QPainterPath E = QPainterPath(Ellipse(50, 68, 34, 30));
    const QPainterPath Zig = Polygon({{0, 58},
                                      {16, 58},
                                      {24, 68},
                                      {33, 56},
                                      {42, 67},
                                      {51, 55},
                                      {60, 67},
                                      {68, 56},
                                      {77, 67},
                                      {84, 57},
                                      {100, 57},
                                      {100, 110},
                                      {0, 110}});
    Outline(G, E.intersected(Zig), Radial(40, 66, 44, {"#fffdf0", "#efe2bd", "#cdb888"}), "#7a6a40",
            1.8);
    for (const auto& [X, Y, R] : Table<double, double, double>{
             {34, 76, 4}, {52, 84, 5}, {66, 74, 4}, {46, 72, 2.6}, {60, 90, 3}})
        Fill(G, Circle(X, Y, R), "#8fb86a");
}

static void DrawSkull(QPainter& G, const Dino&)
{
    QColor B = "#f2e6c8";
    QColor L = "#6a5630";
    Outline(G,
            ClosedCurve({{10, 44},
                         {14, 28},
                         {34, 16},
                         {60, 18},
                         {86, 30},
                         {96, 44},
                         {92, 56},
                         {70, 58},
                         {46, 58},
                         {34, 66},
                         {20, 62}}),
            Linear(0, 10, 0, 70, {"#fffaf0", B, "#d6c18e"}), L, 1.8);
    for (const auto& [X, Y, Rx, Ry] : Table<double, double, double, double>{
             {34, 34, 8, 7}, {56, 36, 7, 6}, {82, 38, 4.5, 3.6}, {18, 46, 4.5, 8}})
        Outline(G, Ellipse(X, Y, Rx, Ry), "#4a3818", L, 1.2);
    Outline(G,
            ClosedCurve(
                {{20, 64}, {40, 74}, {70, 72}, {94, 66}, {92, 76}, {66, 84}, {34, 84}, {16, 74}}),
            Linear(0, 60, 0, 90, {B, "#cdb67e"}), L, 1.8);
    for (int I = 0; I < 9; ++I) {
        Outline(G, Polygon({{46 + I * 5.3, 57}, {50.4 + I * 5.3, 57}, {48.4 + I * 5.3, 67}}),
                "#ffffff", L, .9);
    }
    for (int I = 0; I < 8; ++I) {
        Outline(G, Polygon({{44 + I * 5.6, 74}, {48 + I * 5.6, 73.5}, {46 + I * 5.6, 66}}),
                "#ffffff", L, .9);
    }
}

static void DrawPrint(QPainter& G, const Dino&)
{
    Outline(G, Ellipse(50, 50, 47, 47), Linear(0, 0, 0, 100, {"#e3c79a", "#c79f66"}), "#7a5a2c",
            1.8);
    QPainterPath Path = ClosedCurve({{50, 88},
                                     {40, 80},
                                     {40, 68},
                                     {28, 52},
                                     {22, 34},
                                     {30, 34},
                                     {38, 48},
                                     {44, 52},
                                     {44, 34},
                                     {50, 14},
                                     {56, 34},
                                     {56, 52},
                                     {62, 48},
                                     {70, 34},
                                     {78, 34},
                                     {72, 52},
                                     {60, 68},
                                     {60, 80}},
                                    .5);
    Fill(G, Path, "#6a4a22");
    Fill(G, Moved(Moved(Path, -50, -50), 51.5, 52, 0, .9), "#8a6634");
}

static QPointF OnSpiral(double T)
{
    const double Far = 44 * std::exp(-.165 * T);
    return {50 + Far * std::cos(T), 50 + Far * std::sin(T) * .97};
}

static void DrawAmmonite(QPainter& G, const Dino& Own)
{
    Outline(G, Ellipse(50, 50, 46, 45),
            Radial(42, 40, 60, {Light(Own.Tint, .4), Own.Tint, Dark(Own.Tint, .3)}), Own.Edge, 2);
    for (int I = 0; I < 88; ++I) { // the ribs, from each turn to the next
        const QPointF Outer = OnSpiral(I * .16), Inner = OnSpiral(I * .16 + 2 * M_PI);
        const QPointF End = Inner * .94 + Outer * .06;
        StrokeLine(G, Outer.x(), Outer.y(), End.x(), End.y(), Dark(Own.Tint, .45), 1.3);
    }
    Stroke(G, Curve(PointRow(110, [](int I) { return OnSpiral(I * .2); })), Dark(Own.Tint, .6),
           2.4);
}

static void DrawTrilobite(QPainter& G, const Dino& Own)
{
    Outline(G, Ellipse(50, 52, 36, 45),
            Linear(0, 0, 0, 100, {Light(Own.Tint, .25), Own.Tint, Dark(Own.Tint, .2)}), Own.Edge,
            1.8);
    Outline(G,
            ClosedCurve(
                {{14, 42}, {16, 18}, {50, 4}, {84, 18}, {86, 42}, {70, 34}, {50, 38}, {30, 34}}),
            Linear(0, 0, 0, 40, {Light(Own.Tint, .3), Own.Tint}), Own.Edge, 1.6);
    for (int I = 0; I < 10; ++I) {
        int Y = 44 + I * 5;
        double W = 35 - I * 2.6;
        Outline(G,
                Curve({{50 - W, Y + 5.0},
                       {50 - 10, double(Y)},
                       {50, Y + 2.0},
                       {50 + 10, double(Y)},
                       {50 + W, Y + 5.0}}),
                Linear(0, 0, 0, 40, {Light(Own.Tint, .3), Own.Tint}), Own.Edge, 1.6);
    }
    Outline(G, Curve({{40, 38}, {41, 94}}), Linear(0, 0, 0, 40, {Light(Own.Tint, .3), Own.Tint}),
            Own.Edge, 1.6);
    Outline(G, Curve({{60, 38}, {59, 94}}), Linear(0, 0, 0, 40, {Light(Own.Tint, .3), Own.Tint}),
            Own.Edge, 1.6);
    for (const double X : {30, 70}) Outline(G, Ellipse(X, 24, 6, 5), "#2a2010", Own.Edge, 1);
}

static void DrawAmber(QPainter& G, const Dino&)
{
    Outline(
        G,
        ClosedCurve({{18, 30}, {40, 8}, {72, 12}, {90, 40}, {84, 76}, {54, 94}, {22, 82}, {8, 56}}),
        Radial(40, 36, 62, {"#fff2a8", "#ffb52a", "#c8640a"}), "#7a3a06", 1.8);
    for (const double Side : {-1, 1}) {
        for (const double K : {-1, 0, 1}) {
            Outline(G,
                    Curve({{50, 52 + K * 5},
                           {50 + Side * 14, 48 + K * 10},
                           {50 + Side * 20, 58 + K * 12}}),
                    Radial(40, 36, 62, {"#fff2a8", "#ffb52a", "#c8640a"}), "#3a1a06", 2);
        }
    }
    Outline(G, Ellipse(40, 40, 14, 5, 35), Alpha("#ffffff", .6), "#3a1a06", 1);
    Outline(G, Ellipse(60, 40, 14, 5, -35), Alpha("#ffffff", .6), "#3a1a06", 1);
    Outline(G, Ellipse(50, 60, 4, 13), "#3a1a06", "#3a1a06", 1);
    Outline(G, Circle(50, 46, 4.4), "#3a1a06", "#3a1a06", 1);
    StrokeLine(G, 50, 42, 50, 30, "#3a1a06", 1.6);
    Fill(G, ClosedCurve({{24, 32}, {40, 16}, {50, 16}, {34, 30}, {26, 44}}), Alpha("#ffffff", .55));
}

static constexpr FigureRow<const Dino> Figures[] = {
    {"ptero", DrawPtero},       {"plesio", DrawPlesio},       {"mosa", DrawMosa},
    {"ichthyo", DrawIchthyo},   {"dimetro", DrawDimetro},     {"egg", DrawEgg},
    {"hatch", DrawHatch},       {"skull", DrawSkull},         {"print", DrawPrint},
    {"ammonite", DrawAmmonite}, {"trilobite", DrawTrilobite}, {"amber", DrawAmber},

};

static void Draw(QPainter& G, const Dino& Own)
{
    if (BodyPlans.contains(Own.Kind) && Own.Kind != "dimetro")
        return DrawBody(G, Own, BodyPlans[Own.Kind]);
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawDino(QPainter& P, const Recipe& R)
{
    const QColor Tint = Colour(R, "c", "#5a9a3a");
    const QColor Tint2 = Colour(R, "c2", Light(Tint, .5));
    const QColor StripeTint = Colour(R, "stripe", Dark(Tint, .35));
    const QColor Accent = Colour(R, "acc", "#e0802a");
    const QString Kind = Text(R, "plan");
    const QColor Edge = Dark(Tint, .6);
    const Dino Own{R, Tint, Tint2, StripeTint, Accent, Kind, Edge};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing, 1.25);
}
