// classic.cpp: the tiles of old - dots, sticks, brush characters, winds and dragons

#include "kinds.h"

#include <cmath>

static const char* const Red = "#c8201c";
static const char* const Green = "#1c8a3a";
static const char* const Blue = "#1c4ab0";
static const char* const Bone = "#fffdf2";

struct Mark {
    double X, Y, Size; // radius of a dot, length of a stick
    const char* Colour;
};

static const std::vector<Mark> Dots[] = {
    {{50, 50, 44, Red}},
    {{50, 26, 21, Green}, {50, 74, 21, Blue}},
    {{24, 22, 16, Blue}, {50, 50, 16, Red}, {76, 78, 16, Green}},
    {{27, 26, 19, Blue}, {73, 26, 19, Green}, {27, 74, 19, Green}, {73, 74, 19, Blue}},
    {{24, 24, 16, Blue},
     {76, 24, 16, Green},
     {50, 50, 16, Red},
     {24, 76, 16, Green},
     {76, 76, 16, Blue}},
    {{30, 20, 14, Green},
     {70, 20, 14, Green},
     {30, 52, 14, Red},
     {70, 52, 14, Red},
     {30, 82, 14, Red},
     {70, 82, 14, Red}},
    {{22, 12, 11.5, Green},
     {50, 22, 11.5, Green},
     {78, 32, 11.5, Green},
     {30, 60, 12.5, Red},
     {70, 60, 12.5, Red},
     {30, 87, 12.5, Red},
     {70, 87, 12.5, Red}},
    {{31, 13, 12, Blue},
     {69, 13, 12, Blue},
     {31, 38, 12, Blue},
     {69, 38, 12, Blue},
     {31, 63, 12, Blue},
     {69, 63, 12, Blue},
     {31, 88, 12, Blue},
     {69, 88, 12, Blue}},
    {{18, 18, 14, Green},
     {50, 18, 14, Green},
     {82, 18, 14, Green},
     {18, 50, 14, Red},
     {50, 50, 14, Red},
     {82, 50, 14, Red},
     {18, 82, 14, Blue},
     {50, 82, 14, Blue},
     {82, 82, 14, Blue}},
};

// The stick of one is a peacock, so the table begins with two.
static const std::vector<Mark> Sticks[] = {
    {{50, 27, 42, Green}, {50, 74, 42, Blue}},
    {{50, 27, 42, Blue}, {28, 74, 42, Green}, {72, 74, 42, Green}},
    {{28, 27, 42, Green}, {72, 27, 42, Blue}, {28, 74, 42, Blue}, {72, 74, 42, Green}},
    {{22, 27, 42, Green},
     {78, 27, 42, Blue},
     {50, 50, 42, Red},
     {22, 74, 42, Blue},
     {78, 74, 42, Green}},
    {{22, 27, 42, Green},
     {50, 27, 42, Green},
     {78, 27, 42, Green},
     {22, 74, 42, Blue},
     {50, 74, 42, Blue},
     {78, 74, 42, Blue}},
    {{50, 17, 28, Red},
     {22, 50, 28, Green},
     {50, 50, 28, Green},
     {78, 50, 28, Green},
     {22, 83, 28, Blue},
     {50, 83, 28, Blue},
     {78, 83, 28, Blue}},
    {{14, 27, 42, Green},
     {38, 27, 42, Green},
     {62, 27, 42, Green},
     {86, 27, 42, Green},
     {14, 74, 42, Blue},
     {38, 74, 42, Blue},
     {62, 74, 42, Blue},
     {86, 74, 42, Blue}},
    {{20, 17, 28, Green},
     {20, 50, 28, Green},
     {20, 83, 28, Green},
     {50, 17, 28, Red},
     {50, 50, 28, Red},
     {50, 83, 28, Red},
     {80, 17, 28, Blue},
     {80, 50, 28, Blue},
     {80, 83, 28, Blue}},
};

static void DrawDot(QPainter& G, const Mark& M)
{
    const double R = M.Size;
    Outline(G, Circle(M.X, M.Y, R), M.Colour, Dark(M.Colour, .4), .8);
    Stroke(G, Circle(M.X, M.Y, R * .68), Bone, std::max(1.0, R * .16));
    for (int I = 0; I < 6; ++I) {
        const double A = I * M_PI / 3;
        Fill(G, Circle(M.X + R * .42 * std::cos(A), M.Y + R * .42 * std::sin(A), R * .13), Bone);
    }
    Fill(G, Circle(M.X, M.Y, R * .2), M.Colour);
}

static void DrawStick(QPainter& G, const Mark& M, double Width)
{
    const QColor C = M.Colour;
    const double Top = M.Y - M.Size / 2, Foot = M.Y + M.Size / 2;
    Outline(G, Rounded(M.X - Width / 2, Top, Width, M.Size, Width * .45),
            Linear(M.X - Width / 2, 0, M.X + Width / 2, 0, {Light(C, .35), C, Dark(C, .2)}),
            Dark(C, .5), 1.1);
    StrokeLine(G, M.X, Top + 3, M.X, Foot - 3, Bone, 1.6);
    for (const double Y : {Top + 1.5, M.Y, Foot - 1.5})
        Outline(G, Ellipse(M.X, Y, Width * .62, 2.2), Light(C, .1), Dark(C, .5), 1);
}

static void DrawCharacter(QPainter& G, int Value)
{
    static const char32_t Numbers[] = U"一二三四五六七八九";
    const QRectF Above = Value > 1 ? QRectF(10, -2, 80, 55) : QRectF(10, 14, 80, 20);
    Fill(G, Fitted(GlyphPath(FontFile::Brush, Numbers[Value - 1]), Above), "#1c2f8a");
    Fill(G, Fitted(GlyphPath(FontFile::Brush, U'萬'), QRectF(24, 57, 52, 42)), Red);
}

static void DrawWhiteDragon(QPainter& G)
{
    Stroke(G, Rounded(14, 6, 72, 88, 4), Blue, 5);
    Stroke(G, Rounded(22, 14, 56, 72, 2), Blue, 2);
    for (const double X : {18, 82})
        for (const double Y : {10, 90}) Fill(G, Rounded(X - 4, Y - 4, 8, 8, 1), Blue);
}

void DrawClassic(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const auto Value = static_cast<std::size_t>(Whole(R, "n", 1));
    DrawShadowed(
        P,
        [&](QPainter& G) {
            if (Kind == "dots")
                for (const Mark& M : Dots[Value - 1]) DrawDot(G, M);
            if (Kind == "bamboo" && Value == 1) DrawFitted(G, EmojiImage("🦚"), WholeFace);
            if (Kind == "bamboo" && Value > 1)
                for (const Mark& M : Sticks[Value - 2]) DrawStick(G, M, Value < 5 ? 13 : 11);
            if (Kind == "characters") DrawCharacter(G, static_cast<int>(Value));
            if (Kind == "wind" || Kind == "dragon")
                Fill(G,
                     Fitted(GlyphPath(FontFile::Brush, Text(R, "sign").toUcs4().value(0)),
                            QRectF(8, 6, 84, 88)),
                     Colour(R, "c", "#16245e"));
            if (Kind == "whitedragon") DrawWhiteDragon(G);
        },
        .15);
}
