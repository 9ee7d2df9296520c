// frames.cpp: what stands behind a face

#include "tiles.h"

#include <cmath>

// A square with an uneven, hand-cut edge.
static QPainterPath RoughSquare(double Inset, double Unevenness, int PointsPerSide, int Seed)
{
    Random R{static_cast<std::uint64_t>(Seed)};
    const double Far = 100 - Inset, Length = Far - Inset;
    Points P;
    for (int Side = 0; Side < 4; ++Side)
        for (int I = 0; I < PointsPerSide; ++I) {
            const double T = Length * I / PointsPerSide;
            const double J = Uniform(R, -Unevenness, Unevenness);
            if (Side == 0) P.push_back({Inset + T, Inset + J});
            if (Side == 1) P.push_back({Far + J, Inset + T});
            if (Side == 2) P.push_back({Far - T, Far + J});
            if (Side == 3) P.push_back({Inset + J, Far - T});
        }
    return ClosedCurve(P);
}

static QRectF DrawDisc(QPainter& P, const QColor& Ground, const QColor& Rim)
{
    Fill(P, Circle(50, 50, 48), Linear(10, 0, 80, 100, {Light(Rim, .5), Rim, Dark(Rim, .45)}));
    Fill(P, Circle(50, 50, 43.5), Linear(80, 100, 10, 0, {Light(Rim, .5), Dark(Rim, .35)}));
    QRadialGradient Glow(50, 50, 46, 36, 30);
    Glow.setColorAt(0, Light(Ground, .28));
    Glow.setColorAt(.5, Ground);
    Glow.setColorAt(1, Dark(Ground, .3));
    Fill(P, Circle(50, 50, 41), QBrush(Glow));
    return {20, 20, 60, 60};
}

static QRectF DrawSquare(QPainter& P, const QColor& Ground, const QColor& Rim)
{
    Outline(P, Rounded(4, 4, 92, 92, 14), Linear(0, 0, 0, 100, {Light(Rim, .35), Dark(Rim, .2)}),
            Dark(Rim, .4), 1.5);
    Fill(P, Rounded(10, 10, 80, 80, 9),
         Linear(0, 0, 0, 100, {Light(Ground, .22), Ground, Dark(Ground, .18)}));
    return {16, 16, 68, 68};
}

// A hexagon, an octagon or a diamond.
static QRectF DrawRegular(QPainter& P, int Corners, const QColor& Ground, const QColor& Rim)
{
    const double Turn = Corners == 8 ? 22.5 : -90, Radius = Corners == 8 ? 51 : 50;
    Fill(P, Regular(50, 50, Radius, Corners, Turn),
         Linear(0, 0, 70, 100, {Light(Rim, .5), Rim, Dark(Rim, .45)}));
    Fill(P, Regular(50, 50, Radius - 6.5, Corners, Turn),
         Radial(50, 50, 46, {Light(Ground, .25), Ground, Dark(Ground, .25)}));
    return Corners == 4 ? QRectF(25, 25, 50, 50) : QRectF(20, 20, 60, 60);
}

static QRectF DrawPapyrus(QPainter& P)
{
    const QPainterPath Sheet = RoughSquare(3, 1.8, 9, 7);
    Outline(P, Sheet, Radial(50, 50, 70, {"#f5e2ae", "#e6c983", "#c79f58"}), "#a07a38", 1.4);
    P.save();
    P.setClipPath(Sheet);
    for (int I = 0; I < 14; ++I) { // the crossed strips of the reed
        const QColor Fibre = Alpha("#8a6428", .10 + .05 * (I % 3));
        const double At = 5 + I * 7;
        StrokeLine(P, 0, At, 100, At + 1, Fibre, 1);
        StrokeLine(P, At, 0, At - 1, 100, Fibre, 1);
    }
    P.restore();
    return {13, 12, 74, 76};
}

static QRectF DrawStone(QPainter& P, const QColor& Ground, int Seed)
{
    Outline(P, Rounded(2, 2, 96, 96, 12),
            Linear(0, 0, 0, 100, {Light(Ground, .28), Ground, Dark(Ground, .25)}), Dark(Ground, .5),
            1.6);
    Random R{static_cast<std::uint64_t>(Seed)};
    P.save();
    P.setClipPath(Rounded(3, 3, 94, 94, 11));
    for (int I = 0; I < 60; ++I) {
        const QColor Grain = Alpha(Pick(R, 2) ? "#ffffff" : "#000000", .06);
        const double X = Uniform(R, 0, 100), Y = Uniform(R, 0, 100), Size = Uniform(R, 1, 4);
        Fill(P, Ellipse(X, Y, Size, Size * .7), Grain);
    }
    P.restore();
    return {11, 11, 78, 78};
}

static QRectF DrawNightSky(QPainter& P, const Recipe& R)
{
    Outline(P, Rounded(1.5, 1.5, 97, 97, 11),
            Linear(0, 0, 0, 100, Colours(R, "bg", "#050a24,#1b2a63")), "#8fa0d8", 1.2);
    Random Chance{static_cast<std::uint64_t>(Whole(R, "seed", 5))};
    constexpr double Sizes[] = {.6, .7, .9, 1.3};
    for (int I = 0; I < 38; ++I) {
        const QColor Shine = Alpha("#ffffff", Uniform(Chance, .35, .95));
        const double X = Uniform(Chance, 6, 94), Y = Uniform(Chance, 6, 94);
        Fill(P, Circle(X, Y, Sizes[Pick(Chance, 4)]), Shine);
    }
    return {11, 11, 78, 78};
}

static QRectF DrawStamp(QPainter& P, const QColor& Ground)
{
    QPainterPath Paper, Holes;
    Paper.addRect(QRectF(4, 4, 92, 92));
    constexpr int Teeth = 9;
    for (int I = 0; I <= Teeth; ++I) {
        const double At = 4 + 92.0 * I / Teeth;
        for (const QPointF Hole :
             {QPointF(At, 4), QPointF(At, 96), QPointF(4, At), QPointF(96, At)})
            Holes.addEllipse(Hole, 3, 3);
    }
    DrawShadowed(P, [&](QPainter& G) { Fill(G, Paper.subtracted(Holes), "#fffdf5"); });
    Outline(P, Rounded(12, 12, 76, 76, 0), Linear(0, 0, 0, 100, {Light(Ground, .45), Ground}),
            Dark(Ground, .3), 1);
    return {16, 18, 68, 66};
}

static QRectF DrawPortraitFrame(QPainter& P, const QColor& Ground)
{
    Fill(P, Ellipse(50, 50, 48, 49), Linear(10, 0, 80, 100, {"#fff0b0", "#d9a93a", "#7a5410"}));
    Fill(P, Ellipse(50, 50, 44, 45), Linear(80, 100, 10, 0, {"#fff0b0", "#8a6414"}));
    Fill(P, Ellipse(50, 50, 42, 43),
         Radial(42, 34, 66, {Light(Ground, .6), Light(Ground, .1), Dark(Ground, .2)}));
    return {12, 11, 76, 80};
}

QRectF DrawFrame(QPainter& P, const QString& Name, const Recipe& R)
{
    if (Name == "sky") return DrawNightSky(P, R);
    if (Name == "papyrus") return DrawPapyrus(P);
    const QColor Ground = Colour(R, "bg", "#7a1f1f"), Rim = Colour(R, "rim", "#d9a93a");
    if (Name == "disc") return DrawDisc(P, Ground, Rim);
    if (Name == "sq") return DrawSquare(P, Ground, Rim);
    if (Name == "hex") return DrawRegular(P, 6, Ground, Rim);
    if (Name == "octagon") return DrawRegular(P, 8, Ground, Rim);
    if (Name == "diamond") return DrawRegular(P, 4, Ground, Rim);
    if (Name == "stone") return DrawStone(P, Ground, Whole(R, "seed", 3));
    if (Name == "stamp") return DrawStamp(P, Ground);
    if (Name == "portrait") return DrawPortraitFrame(P, Ground);
    if (Name == "panel") {
        Outline(P, Rounded(2, 2, 96, 96, 12), Linear(0, 0, 0, 100, {Light(Ground, .3), Ground}),
                Dark(Ground, .25), 1.2);
        return {9, 9, 82, 82};
    }
    if (Name == "seal") {
        Fill(P, RoughSquare(4, 1.2, 8, Whole(R, "seed", 1)), Colour(R, "c", Ground));
        return {14, 14, 72, 72};
    }
    FatalError(R.Place + ": no frame is called " + Name);
    return {};
}

const std::vector<QColor>& MetalStops(const QString& Name, const Recipe& R)
{
    static const QMap<QString, std::vector<QColor>> Metals = {
        {"gold", {"#6a4506", "#c08a18", "#f0c440", "#fff4b8"}},
        {"silver", {"#3b4450", "#98a3b0", "#d8dfe6", "#ffffff"}},
        {"bronze", {"#3d2008", "#8a5222", "#c98a4b", "#ffdfae"}},
        {"steel", {"#1d2733", "#4d6379", "#93aabf", "#eef6ff"}},
        {"ivory", {"#6a5a35", "#c9b685", "#efe3bf", "#fffdf2"}},
        {"red", {"#4a0505", "#a31515", "#e04a3a", "#ffc0a0"}},
        {"blue", {"#071c4a", "#1d4fa3", "#4a8fe0", "#c4e2ff"}},
        {"green", {"#06300f", "#17702a", "#43ae52", "#c8f5c0"}},
        {"black", {"#000000", "#1a1a1a", "#444444", "#a0a0a0"}},
        {"white", {"#707880", "#c9d0d6", "#f2f4f6", "#ffffff"}},
    };
    const auto Found = Metals.constFind(Name);
    if (Found == Metals.constEnd()) FatalError(R.Place + ": no metal is called " + Name);
    return *Found;
}
