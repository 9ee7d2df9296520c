// sino.cpp: seals, coins and trigrams

#include "drawing.h"
#include "kinds.h"

struct Sino {
    const Recipe& R;
    QString Kind;
    QColor Tint;
};

static void DrawTrigram(QPainter& G, const Sino& Own)
{
    Outline(G, Regular(50, 50, 48, 8, -67.5),
            Radial(42, 38, 60, {Light(Own.Tint, .3), Own.Tint, Dark(Own.Tint, .15)}),
            Dark(Own.Tint, .5), 2);
    Stroke(G, Regular(50, 50, 42, 8, -67.5), "#ffe8a0", 2);
    for (int I = 0; const QChar B : Text(Own.R, "b")) {
        const int Y = 26 + I * 18;
        if (B == '1') {
            FillBox(G, 24, Y, 52, 11, "#fff6d0");
        } else {
            FillBox(G, 24, Y, 22, 11, "#fff6d0");
            FillBox(G, 54, Y, 22, 11, "#fff6d0");
        }
        ++I;
    }
}

static void DrawCoin(QPainter& G, const Sino& Own)
{
    Outline(G, Circle(50, 50, 47), Radial(38, 34, 70, {"#fff0a8", "#e0ae2a", "#8a6210"}), "#5a3e08",
            2);
    Stroke(G, Circle(50, 50, 41), "#8a6210", 3);
    Outline(G, Rounded(37, 37, 26, 26, 1), "#f6eed6", "#6a4a0a", 2.4);
    const QList<uint> Signs = Text(Own.R, "t").toUcs4(); // above, below, right, left
    if (Signs.size() != 4) FatalError(Own.R.Place + ": a coin has four signs");
    const Points Places = {{50, 21}, {50, 79}, {79, 50}, {21, 50}};
    for (std::size_t I = 0; I < 4; ++I)
        Fill(G,
             Fitted(GlyphPath(FontFile::Brush, Signs[static_cast<int>(I)]),
                    QRectF(Places[I].x() - 10, Places[I].y() - 10, 20, 20)),
             "#5a3e08");
}

static void DrawSeal(QPainter& G, const Sino& Own)
{
    DrawFrame(G, "seal", Own.R);
    QPainterPath Path = Fitted(GlyphPath(FontFile::Brush, Text(Own.R, "cp").toUcs4().value(0)),
                               QRectF(15, 15, 70, 70));
    Outline(G, Path, "#fff6e0", "#fff6e0", 1.5);
    Stroke(G, Rounded(9, 9, 82, 82, 3), "#fff6e0", 2);
}

static void DrawDiamondred(QPainter& G, const Sino& Own)
{
    Outline(G, Polygon({{50, 0}, {100, 50}, {50, 100}, {0, 50}}),
            Linear(0, 0, 100, 100, {"#e83a2a", "#b81414"}), "#6a0a0a", 1.6);
    Stroke(G, Polygon({{50, 8}, {92, 50}, {50, 92}, {8, 50}}), "#ffd84a", 2.4);
    QPainterPath Path = Fitted(GlyphPath(FontFile::Brush, Text(Own.R, "cp").toUcs4().value(0)),
                               QRectF(24, 24, 52, 52));
    Outline(G, Path, "#ffe27a", "#ffe27a", 1.2);
}

static constexpr FigureRow<const Sino> Figures[] = {
    {"trigram", DrawTrigram},
    {"coin", DrawCoin},
    {"seal", DrawSeal},
    {"diamondred", DrawDiamondred},
};

static void Draw(QPainter& G, const Sino& Own)
{
    DrawFigure(G, Own, Figures, Own.Kind, Own.R);
}

void DrawSino(QPainter& P, const Recipe& R)
{
    const QString Kind = Text(R, "k");
    const QColor Tint = Colour(R, "c", "#c8201c");
    const Sino Own{R, Kind, Tint};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing);
}
