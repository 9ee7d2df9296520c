// hand.cpp: the hand alphabet. The palm faces the viewer, the thumb is at the right.
//
// A recipe names a pose for each finger that is not folded; hands from the side are whole figures.

#include "drawing.h"
#include "kinds.h"

using Poses = QMap<QString, Points>;

static const Poses LittlePoses = {
    {"fold", {{33, 53}, {33, 66}}},
    {"up", {{33, 61}, {32, 25}}},
    {"spread", {{33, 61}, {22, 26}}},
    {"long", {{33, 53}, {33, 66}}},
    {"curl", {{33, 49}, {33, 58}}},
    {"wide", {{33, 61}, {14, 32}}},
    {"touch", {{33, 61}, {44, 50}, {58, 60}}},
};
static const Poses RingPoses = {
    {"fold", {{41, 49.5}, {41, 66}}},
    {"up", {{41, 57.5}, {41, 15}}},
    {"spread", {{41, 57.5}, {37, 14}}},
    {"long", {{41, 47.5}, {41, 72}}},
    {"curl", {{41, 45.5}, {41, 57}}},
    {"wide", {{41, 57.5}, {29, 16}}},
    {"touch", {{41, 57.5}, {50, 46}, {63, 57}}},
};
static const Poses MiddlePoses = {
    {"fold", {{50, 48}, {50, 66}}},
    {"up", {{50, 55.5}, {50, 11}}},
    {"spread", {{50, 55.5}, {52, 10}}},
    {"long", {{50, 46}, {50, 73}}},
    {"curl", {{50, 44}, {50, 57}}},
    {"wide", {{50, 55.5}, {39, 13}}},
    {"across", {{51, 57}, {60, 13}}},
    {"touch", {{50, 55.5}, {57, 43}, {68, 54}}},
    {"bent", {{50, 55.5}, {60, 38}, {72, 54}}},
};
static const Poses IndexPoses = {
    {"fold", {{59, 50}, {59, 65}}},
    {"up", {{59, 58}, {59, 17}}},
    {"spread", {{59, 58}, {67, 17}}},
    {"long", {{59, 48}, {59, 72}}},
    {"curl", {{59, 46}, {59, 57}}},
    {"wide", {{59, 58}, {70, 16}}},
    {"across", {{58, 58}, {45, 14}}},
    {"touch", {{59, 58}, {72, 42}, {82, 56}}},
    {"hook", {{59, 58}, {61, 30}, {72, 24}, {75, 34}}},
};
static const Poses ThumbPoses = {
    {"across", {{65, 80}, {60, 72}, {44, 69}}},  {"side", {{63, 84}, {70, 70}, {70, 48}}},
    {"out", {{60, 84}, {72, 76}, {93, 65}}},     {"front", {{66, 82}, {62, 70}, {40, 64}}},
    {"under", {{66, 84}, {56, 74}, {33, 72}}},   {"spread", {{60, 84}, {76, 74}, {91, 55}}},
    {"touch", {{62, 84}, {77, 75}, {82, 58}}},   {"meet", {{62, 84}, {74, 72}, {69, 56}}},
    {"between", {{63, 86}, {60, 70}, {53, 44}}}, {"three", {{66, 86}, {52, 80}, {31, 76}}},
    {"two", {{66, 86}, {54, 80}, {41, 73}}},     {"one", {{66, 82}, {58, 64}, {54, 42}}},
};

// Whole hands as strokes with a width, back to front; the first is the wrist, the second the palm.
struct HandStroke {
    Points Line;
    double Width;
};
static const QMap<QString, std::vector<HandStroke>> Figures = {
    {"c",
     {{{{34, 102}, {36, 84}}, 25},
      {{{38, 84}, {38, 84}}, 25},
      {{{38, 84}, {30, 58}, {38, 32}, {60, 22}, {74, 30}}, 16},
      {{{42, 84}, {60, 84}, {76, 72}}, 14}}},
    {"o",
     {{{{40, 102}, {40, 88}}, 25},
      {{{42, 84}, {42, 84}}, 25},
      {{{40, 86}, {26, 60}, {34, 34}, {54, 26}, {68, 38}, {70, 54}}, 15},
      {{{44, 86}, {62, 82}, {71, 60}}, 13}}},
    {"g",
     {{{{4, 73}, {16, 72}}, 25},
      {{{26, 70}, {34, 68}}, 35},
      {{{28, 84}, {44, 84}}, 10},
      {{{30, 74}, {47, 74}}, 10},
      {{{36, 54}, {94, 50}}, 11.5},
      {{{30, 66}, {56, 64}, {78, 63}}, 11}}},
    {"h",
     {{{{4, 73}, {16, 72}}, 25},
      {{{26, 70}, {34, 68}}, 35},
      {{{28, 86}, {44, 86}}, 10},
      {{{36, 62}, {94, 61}}, 11.5},
      {{{36, 51}, {96, 47}}, 11.5},
      {{{28, 72}, {46, 76}, {52, 70}}, 10.5}}},
    {"thumbup",
     {{{{8, 71}, {18, 70}}, 25},
      {{{32, 68}, {44, 68}}, 35},
      {{{40, 86}, {62, 86}}, 11},
      {{{40, 75.5}, {63, 75.5}}, 11},
      {{{40, 65}, {63, 65}}, 11},
      {{{40, 54.5}, {62, 54.5}}, 11},
      {{{30, 58}, {38, 40}, {40, 14}}, 13}}},
    {"point",
     {{{{98, 70}, {88, 70}}, 25},
      {{{74, 68}, {66, 68}}, 35},
      {{{68, 86}, {50, 86}}, 10.5},
      {{{68, 76}, {48, 76}}, 10.5},
      {{{68, 66}, {49, 66}}, 10.5},
      {{{66, 55}, {8, 52}}, 12},
      {{{76, 58}, {62, 50}, {48, 44}}, 11}}},
};

struct Hand {
    const Recipe& R;
    QColor Skin, Edge;
};

static QPainterPath LineOf(const Points& Line)
{
    return Line.size() > 2 ? Curve(Line, .8) : Polyline(Line);
}

static void DrawFinger(QPainter& G, const Hand& Own, const Points& Line, double Width)
{
    const QPainterPath Path = LineOf(Line);
    Stroke(G, Path, Own.Edge, Width + 3);
    Stroke(G, Path, Own.Skin, Width);
    Stroke(G, Path.translated(-Width * .2, -Width * .12), Alpha(Light(Own.Skin, .5), .75),
           std::max(1.6, Width * .2));
}

// Wrist and palm have one edge together.
static void DrawPalm(QPainter& G, const Hand& Own, const HandStroke& Wrist, const HandStroke& Palm)
{
    for (const HandStroke& Part : {Wrist, Palm})
        Stroke(G, LineOf(Part.Line), Own.Edge, Part.Width + 3);
    for (const HandStroke& Part : {Wrist, Palm}) Stroke(G, LineOf(Part.Line), Own.Skin, Part.Width);
    if (!Has(Own.R, "cuff")) return;
    const QPointF From = Wrist.Line.front(), To = Wrist.Line.back();
    G.setPen(QPen(Own.Edge, 33, Qt::SolidLine, Qt::FlatCap));
    G.drawLine(From, From + (To - From) * .62);
    G.setPen(QPen(Colour(Own.R, "cuff"), 30, Qt::SolidLine, Qt::FlatCap));
    G.drawLine(From, From + (To - From) * .5);
}

static void DrawPosedHand(QPainter& G, const Hand& Own)
{
    DrawPalm(G, Own, {{{46, 103}, {46, 88}}, 25}, {{{46, 84}, {46, 68}}, 36});
    const auto Finger = [&](const char* Name, const Poses& Known, double Width) {
        DrawFinger(G, Own, Named(Known, Text(Own.R, Name, "fold"), Own.R), Width);
    };
    const Points& Thumb = Named(ThumbPoses, Text(Own.R, "thumb", "front"), Own.R);
    // Fingers that are laid over the thumb are drawn after it.
    const QStringList Over = {"three", "two", "one"};
    const int ThumbUnder = static_cast<int>(Over.indexOf(Text(Own.R, "thumb"))); // -1: on top
    Finger("little", LittlePoses, 9);
    if (ThumbUnder == 0) DrawFinger(G, Own, Thumb, 11);
    Finger("ring", RingPoses, 10.4);
    if (ThumbUnder == 1) DrawFinger(G, Own, Thumb, 11);
    Finger("middle", MiddlePoses, 10.8);
    if (ThumbUnder == 2) DrawFinger(G, Own, Thumb, 11);
    Finger("index", IndexPoses, 10.6);
    if (ThumbUnder < 0) DrawFinger(G, Own, Thumb, 11.5);
}

// The path of a hand that moves, with an arrow's head.
static void DrawMovement(QPainter& G, const Hand& Own)
{
    static const QMap<QString, Points> Movements = {
        {"j", {{28, 18}, {14, 26}, {8, 46}, {14, 64}, {26, 66}}},
        {"z", {{68, 6}, {94, 6}, {70, 34}, {96, 34}}},
    };
    const Points& Way = Named(Movements, Text(Own.R, "move"), Own.R);
    const QPainterPath Path = Way.size() > 4 ? Curve(Way) : Polyline(Way);
    Stroke(G, Path, "#ffffff", 8);
    Stroke(G, Path, "#d8281c", 4.6);
    const QPointF End = Way.back(), Last = Way[Way.size() - 2];
    const double A = Degrees(std::atan2(End.y() - Last.y(), End.x() - Last.x()));
    Outline(G, Moved(Polygon({{10, 0}, {-5, 7.5}, {-5, -7.5}}), End.x(), End.y(), A), "#d8281c",
            "#ffffff", 1.6);
}

// Two hands that make a heart.
static void DrawHeart(QPainter& G, const Hand& Own)
{
    for (const double Side : {1, -1}) {
        G.save();
        if (Side < 0) {
            G.translate(100, 0);
            G.scale(-1, 1);
        }
        DrawFinger(G, Own, {{20, 112}, {16, 74}, {22, 44}, {38, 34}, {48, 46}}, 14);
        DrawFinger(G, Own, {{24, 84}, {36, 92}, {48, 95}}, 12);
        G.restore();
    }
}

static void Draw(QPainter& G, const Hand& Own)
{
    const QString Figure = Text(Own.R, "figure");
    G.translate(50, 50);
    if (Has(Own.R, "mirror")) G.scale(1, -1);
    G.rotate(Number(Own.R, "turn"));
    G.translate(-50, -50);
    if (Figure == "heart") return DrawHeart(G, Own);
    if (Figure.isEmpty()) {
        DrawPosedHand(G, Own);
    } else {
        if (!Figures.contains(Figure)) FatalError(Own.R.Place + ": no hand is called " + Figure);
        const std::vector<HandStroke>& Strokes = Figures[Figure];
        DrawPalm(G, Own, Strokes[0], Strokes[1]);
        for (std::size_t I = 2; I < Strokes.size(); ++I)
            DrawFinger(G, Own, Strokes[I].Line, Strokes[I].Width);
    }
    if (Has(Own.R, "move")) DrawMovement(G, Own);
}

void DrawHand(QPainter& P, const Recipe& R)
{
    const QColor Skin = Colour(R, "c", "#f2c49a");
    const Hand Own{R, Skin, Dark(Skin, .66)};
    DrawFrame(P, "panel", R);
    P.save();
    P.setClipPath(Rounded(3, 3, 94, 94, 11));
    const bool Tagged = Has(R, "tag");
    DrawFittedDraft(
        P, [&](QPainter& G) { Draw(G, Own); }, 1.12,
        Tagged ? QRectF(5, 5, 78, 92) : QRectF(6, 5, 88, 90));
    P.restore();
    if (!Tagged) return;
    // The letter, large enough to be read on the board.
    QPainterPath Letter = TextPath(FontFile::SansBold, Text(R, "tag"), 36);
    Letter.translate(95 - Letter.boundingRect().right(), 94 - Letter.boundingRect().bottom());
    Stroke(P, Letter, "#ffffff", 7);
    Fill(P, Letter, "#8a1c1c");
}
