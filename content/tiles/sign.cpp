// sign.cpp: warning signs - five shapes with five meanings, each with one bold black or white shape

#include "drawing.h"
#include "kinds.h"

struct SignShape {
    const char* Name;
    void (*Draw)(QPainter& G);
    const char* Ink;
    QRectF Room; // where the shape on the sign goes
};

static void DrawTriangle(QPainter& G) // danger
{
    const QPainterPath Sign = Polygon({{50, 9}, {94, 87}, {6, 87}});
    Outline(G, Sign, "#16161a", "#16161a", 10);
    Stroke(G, Sign, "#ffd21c", 4.5);
    Outline(G, Polygon({{50, 16}, {88, 83.5}, {12, 83.5}}), "#ffd21c", "#16161a", 4.5);
}

static void DrawRing(QPainter& G) // forbidden; the bar comes over the shape
{
    Fill(G, Circle(50, 50, 48), "#ffffff");
    Stroke(G, Circle(50, 50, 42.5), "#d0141c", 10.5);
}

static void DrawDisc(QPainter& G) // to be worn
{
    Fill(G, Circle(50, 50, 48), "#ffffff");
    Fill(G, Circle(50, 50, 45.5), Linear(0, 4, 0, 96, {"#2a7ad8", "#1453a8"}));
}

static void DrawGreenSquare(QPainter& G) // the way to help
{
    Fill(G, Rounded(2, 2, 96, 96, 9), "#ffffff");
    Fill(G, Rounded(5, 5, 90, 90, 7), Linear(0, 4, 0, 96, {"#2aa85a", "#0f7a3c"}));
}

static void DrawRedSquare(QPainter& G) // against fire
{
    Fill(G, Rounded(2, 2, 96, 96, 9), "#ffffff");
    Fill(G, Rounded(5, 5, 90, 90, 7), Linear(0, 4, 0, 96, {"#e83a34", "#b81218"}));
    // A border of flames tells it from the green one without colour.
    for (int I = 0; I < 6; ++I)
        Fill(G,
             Moved(ClosedCurve({{0, 0}, {-6, -5}, {-3, -13}, {0, -8}, {4, -15}, {6, -5}}),
                   16 + I * 13.6, 94),
             "#ffd21c");
}

static const SignShape Shapes[] = {
    {"danger", DrawTriangle, "#16161a", QRectF(30, 36, 40, 44)},
    {"forbidden", DrawRing, "#16161a", QRectF(23, 22, 54, 56)},
    {"wear", DrawDisc, "#ffffff", QRectF(19, 18, 62, 64)},
    {"help", DrawGreenSquare, "#ffffff", QRectF(14, 14, 72, 72)},
    {"fire", DrawRedSquare, "#ffffff", QRectF(17, 9, 66, 66)},
};

// "emoji" gives a silhouette, "glyph" a letter or sign of Symbola.
static void DrawMeaning(QPainter& G, const Recipe& R, const SignShape& Shape)
{
    if (Has(R, "emoji")) {
        const QImage Picture = EmojiImage(Text(R, "emoji"));
        DrawFitted(G,
                   Has(R, "flip") ? Tinted(Picture, Shape.Ink).mirrored(true, false)
                                  : Tinted(Picture, Shape.Ink),
                   Shape.Room);
    }
    if (Has(R, "glyph")) {
        const QPainterPath Glyph =
            Fitted(GlyphPath(Has(R, "bold") ? FontFile::SansBold : FontFile::Symbola,
                             Text(R, "glyph").toUcs4().value(0)),
                   Shape.Room);
        Outline(G, Glyph, Shape.Ink, Shape.Ink, 1.6);
    }
    if (QLatin1StringView(Shape.Name) == QLatin1StringView("forbidden"))
        StrokeLine(G, 20.5, 20.5, 79.5, 79.5, "#d0141c", 9.5);
}

void DrawSign(QPainter& P, const Recipe& R)
{
    for (const SignShape& Shape : Shapes)
        if (Text(R, "shape") == Shape.Name) {
            DrawShadowed(P, [&](QPainter& G) {
                Shape.Draw(G);
                DrawMeaning(G, R, Shape);
            });
            return;
        }
    FatalError(R.Place + ": no sign has the shape " + Quoted(Text(R, "shape")));
}
