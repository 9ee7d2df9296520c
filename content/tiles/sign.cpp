// sign.cpp: road and safety signs - a plate that tells the kind, and one bold shape on it

#include "drawing.h"
#include "kinds.h"

// The shapes of plates, round the middle of the face; Size is the distance to a corner or the rim.
static QPainterPath Triangle(double Size)
{
    return Regular(50, 61, Size, 3);
}
static QPainterPath Downward(double Size)
{
    return Regular(50, 39, Size, 3, 90);
}
static QPainterPath Disc(double Size)
{
    return Circle(50, 50, Size);
}
static QPainterPath Diamond(double Size)
{
    return Regular(50, 50, Size, 4);
}
static QPainterPath Octagon(double Size)
{
    return Regular(50, 50, Size, 8, 22.5);
}
static QPainterPath Square(double Size)
{
    return Box(50 - Size, 50 - Size, 2 * Size, 2 * Size);
}

struct PlateLayer {
    QPainterPath (*Shape)(double Size);
    double Size;
    const char* Colour;
};

struct PlateRow {
    const char* Name;
    std::vector<PlateLayer> Layers; // from the back to the front
    const char* Ink;
    QRectF Room; // where the shape on the plate goes
};

static const PlateRow Plates[] = {
    {"danger",
     {{Triangle, 51, "#16161a"}, {Triangle, 43, "#ffd21c"}},
     "#16161a",
     QRectF(25, 33, 50, 48)},
    {"warn",
     {{Triangle, 51, "#ffffff"}, {Triangle, 50, "#d0141c"}, {Triangle, 39, "#ffffff"}},
     "#16161a",
     QRectF(26, 35, 48, 44)},
    {"yellow",
     {{Triangle, 51, "#ffffff"}, {Triangle, 50, "#d0141c"}, {Triangle, 39, "#ffd21c"}},
     "#16161a",
     QRectF(26, 35, 48, 44)},
    {"hazard",
     {{Diamond, 46, "#ffffff"}, {Diamond, 45, "#d0141c"}, {Diamond, 37, "#ffffff"}},
     "#16161a",
     QRectF(23, 23, 54, 54)},
    {"giveway",
     {{Downward, 51, "#ffffff"}, {Downward, 50, "#d0141c"}, {Downward, 33, "#ffffff"}},
     "#16161a",
     QRectF()},
    {"ring",
     {{Disc, 46, "#ffffff"}, {Disc, 45, "#d0141c"}, {Disc, 33, "#ffffff"}},
     "#16161a",
     QRectF(19, 21, 62, 58)},
    {"ban",
     {{Disc, 46, "#ffffff"}, {Disc, 45, "#d0141c"}, {Disc, 33, "#ffffff"}},
     "#16161a",
     QRectF(21, 21, 58, 58)},
    {"red", {{Disc, 46, "#ffffff"}, {Disc, 44, "#d0141c"}}, "#ffffff", QRectF(17, 17, 66, 66)},
    {"blue", {{Disc, 46, "#ffffff"}, {Disc, 44, "#1c5cb4"}}, "#ffffff", QRectF(15, 15, 70, 70)},
    {"white", {{Disc, 46, "#16161a"}, {Disc, 43, "#ffffff"}}, "#16161a", QRectF(6, 6, 88, 88)},
    {"stopping", {{Disc, 46, "#d0141c"}, {Disc, 34, "#1c5cb4"}}, "#d0141c", QRectF(17, 17, 66, 66)},
    {"octagon",
     {{Octagon, 49, "#ffffff"}, {Octagon, 46, "#d0141c"}},
     "#ffffff",
     QRectF(9, 28, 82, 44)},
    {"diamond",
     {{Diamond, 46, "#16161a"}, {Diamond, 43, "#ffd21c"}},
     "#16161a",
     QRectF(24, 22, 52, 56)},
    {"works",
     {{Diamond, 46, "#16161a"}, {Diamond, 43, "#ff8a1c"}},
     "#16161a",
     QRectF(22, 24, 56, 50)},
    {"priority",
     {{Diamond, 46, "#16161a"}, {Diamond, 44, "#ffffff"}, {Diamond, 28, "#ffc81c"}},
     "#16161a",
     QRectF()},
    {"info", {{Square, 43, "#ffffff"}, {Square, 40, "#1c5cb4"}}, "#ffffff", QRectF(15, 14, 70, 72)},
    {"help", {{Square, 43, "#ffffff"}, {Square, 40, "#14803e"}}, "#ffffff", QRectF(14, 14, 72, 72)},
    {"fire", {{Square, 43, "#ffffff"}, {Square, 40, "#c8161c"}}, "#ffffff", QRectF(14, 10, 72, 66)},
    {"board",
     {{Square, 43, "#ffffff"}, {Square, 40, "#16161a"}},
     "#ffd21c",
     QRectF(12, 12, 76, 76)},
    {"none", {}, "#16161a", QRectF(1, 1, 98, 98)},
};

static void DrawPlate(QPainter& G, const PlateRow& Plate)
{
    for (const auto& [Shape, Size, Tone] : Plate.Layers) {
        const QPainterPath Path = Shape(Size);
        const QBrush Enamel = Linear(0, 0, 0, 100, {Light(QColor(Tone), .12), QColor(Tone)});
        G.setPen(QPen(Enamel, 8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)); // rounds the corners
        G.setBrush(Enamel);
        G.drawPath(Shape == Disc ? Disc(Size - 2) : Path);
    }
}

// What stands on the plate: "draw" a drawing of ours, as it is or in the plate's ink, "emoji" a
// silhouette, "glyph" a sign of Symbola, "text" a few large letters.
static QImage PictureOf(const Recipe& R, const char* InkTone)
{
    QImage Picture;
    if (Has(R, "draw"))
        Picture = OwnDrawing("signs.svg#" + Text(R, "draw"));
    else
        Picture = EmojiImage(Text(R, "emoji"));
    if (!Has(R, "own")) Picture = Tinted(Picture, InkTone);
    return Has(R, "turn") ? Picture.transformed(QTransform().rotate(Number(R, "turn"))) : Picture;
}

static void DrawMeaning(QPainter& G, const Recipe& R, const PlateRow& Plate)
{
    if (Has(R, "draw") || Has(R, "emoji")) DrawFitted(G, PictureOf(R, Plate.Ink), Plate.Room);
    if (!Has(R, "glyph") && !Has(R, "text")) return;
    QPainterPath Path = Has(R, "text")
                            ? TextPath(FontFile::SansBold, Text(R, "text"), 100)
                            : GlyphPath(FontFile::Symbola, Text(R, "glyph").toUcs4().value(0));
    if (Has(R, "solid")) Path = Silhouette(Path);
    // Letters become as high as their plate allows.
    if (Has(R, "text")) {
        const QRectF Size = Path.boundingRect();
        Path = Moved(
            Path, 0, 0, 0, 1,
            std::min(1.5, Size.width() / Size.height() * Plate.Room.height() / Plate.Room.width()));
    }
    Outline(G, Fitted(Path, Plate.Room), Plate.Ink, Plate.Ink, Has(R, "text") ? .5 : 1.4);
}

void DrawSign(QPainter& P, const Recipe& R)
{
    for (const PlateRow& Plate : Plates)
        if (Text(R, "plate") == Plate.Name) {
            const bool Banned = Text(R, "plate") == "ban"; // the bar comes over the shape
            DrawShadowed(P, [&](QPainter& G) {
                DrawPlate(G, Plate);
                DrawMeaning(G, R, Plate);
                if (Banned) StrokeLine(G, 24, 24, 76, 76, "#d0141c", 8.5);
                // Flames tell the plates against fire from the others without colour.
                if (Text(R, "plate") == "fire")
                    DrawFitted(G, OwnDrawing("signs.svg#flames"), QRectF(7, 76, 86, 17));
            });
            return;
        }
    FatalError(R.Place + ": no sign has the plate " + Quoted(Text(R, "plate")));
}
