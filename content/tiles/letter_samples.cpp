// letter_samples.cpp: letters and numbers as toys

#include "drawing.h"
#include "kinds.h"

struct LetterSample {
    const Recipe& R;
    QColor Tint;
    QPainterPath Path;
};

static void Draw(QPainter& G, const LetterSample& Own)
{
    if (Text(Own.R, "style") == "disc") {
        Outline(G, Circle(50, 50, 48),
                Radial(38, 34, 70, {Light(Own.Tint, .35), Own.Tint, Dark(Own.Tint, .25)}),
                Dark(Own.Tint, .5), 2);
        Stroke(G, Circle(50, 50, 42.5), "#ffffff", 2.4);
        const QPainterPath Z = Fitted(Own.Path, QRectF(26, 20, 48, 60));
        if (Has(Own.R, "ink")) return Fill(G, Z, Colour(Own.R, "ink"));
        Fill(G, Z.translated(1.6, 1.8), Dark(Own.Tint, .5));
        Fill(G, Z, "#ffffff");
        return;
    }
    for (int I = 0; I < 6; ++I)
        Stroke(G, Own.Path.translated(I * .9, I * .9), Dark(Own.Tint, .55), 9);
    Outline(G, Own.Path, "#ffffff", "#ffffff", 5);
    Outline(G, Own.Path,
            Linear(0, 10, 0, 90, {Light(Own.Tint, .45), Own.Tint, Dark(Own.Tint, .12)}),
            Dark(Own.Tint, .4), 1.6);
}

void DrawLetterSample(QPainter& P, const Recipe& R)
{
    const QString Ch = Text(R, "ch");
    const QColor Tint = Colour(R, "c", "#d8281c");
    QPainterPath Path = TextPath(FontFile::SansBold, Ch, 100);
    const QRectF B = Path.boundingRect();
    Path =
        B.width() > 30 ? Fitted(Path, QRectF(13, 9, 72, 80)) : Fitted(Path, QRectF(30, 9, 40, 80));
    const LetterSample Own{R, Tint, Path};
    const auto Drawing = [&](QPainter& G) { Draw(G, Own); };
    DrawFittedDraft(P, Drawing);
}
