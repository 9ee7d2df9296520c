// picture_kinds.cpp: faces made of a glyph, an emoji, a drawing or a flag

#include "tiles.h"

#include <QTransform>

#include <cmath>

static const char* const FlagFolder = "/usr/share/iso-flags-png-320x240/";
static const char* const RoundFlagFolder = "/usr/share/iso-flags-svg/";
static const char* const DrawingsFolder = SETS_DIR "/../drawings/";

QImage OwnDrawing(const QString& Name)
{
    return PictureFile(DrawingsFolder + Name);
}

// The glyph: "♈", or "U+E001", or two joined by "+".
static QPainterPath ReadGlyphs(FontFile Font, const Recipe& R)
{
    if (!R.Source.startsWith("U+")) {
        if (R.Source.isEmpty()) FatalError(R.Place + ": which glyph?");
        return GlyphPath(Font, R.Source.toUcs4().constFirst());
    }
    QPainterPath Path;
    double X = 0;
    for (const QString& Code : R.Source.mid(2).split('-')) {
        const QPainterPath One = GlyphPath(Font, Code.toUInt(nullptr, 16));
        Path.addPath(One.translated(X - One.boundingRect().left(), 0));
        X += One.boundingRect().width() + 30;
    }
    return Path;
}

static void DrawGlyphFace(QPainter& P, FontFile Font, const Recipe& R, const QRectF& Room)
{
    const QPainterPath Path = Fitted(ReadGlyphs(Font, R), Room);
    const std::vector<QColor> Inks = Colours(R, "ink", "#222222");
    const Paint With =
        Inks.size() == 1 ? Paint(Inks[0]) : Paint(Linear(0, Room.top(), 0, Room.bottom(), Inks));
    DrawShadowed(
        P,
        [&](QPainter& G) {
            if (Has(R, "fill")) Fill(G, Silhouette(Path), Colour(R, "fill", "#ffffff"));
            if (Has(R, "bold"))
                Outline(G, Path, With, Inks[0], Number(R, "bold"));
            else
                Fill(G, Path, With);
        },
        Has(R, "frame") ? .35 : .2);
}

static QImage SourceImage(const Face& F)
{
    const QString& Source = F.Keys.Source;
    if (Source.isEmpty()) FatalError(F.Keys.Place + ": which picture?");
    if (F.Kind == "emoji") return EmojiImage(Source);
    if (F.Kind == "drawing") return OwnDrawing(Source);
    return PictureFile((Source.endsWith(".svg") ? RoundFlagFolder : FlagFolder) + Source);
}

static void DrawRoundFlag(QPainter& P, const QImage& Flag)
{
    const QPainterPath Round = Circle(50, 50, 47);
    DrawShadowed(P, [&](QPainter& G) { Fill(G, Round, "#888888"); });
    P.save();
    P.setClipPath(Round);
    DrawFitted(P, Flag, QRectF(0, 0, 100, 100));
    Fill(P, Round,
         Linear(0, 0, 0, 100,
                {Alpha("#ffffff", .45), Alpha("#ffffff", .05), Alpha("#000000", 0),
                 Alpha("#000000", .22)}));
    P.restore();
    Stroke(P, Round, "#b9933f", 3.2);
    Stroke(P, Circle(50, 50, 47.6), "#fff3c4", 1);
}

// The flag in the wind: columns are shifted by a sine and shaded by its slope.
static QImage Waving(const QImage& Flag)
{
    // A little higher than most flags, so that they fill a tile.
    constexpr int Width = 400, Height = 336;
    const QImage Flat = Scaled(Flag, Width, Height).convertToFormat(QImage::Format_ARGB32);
    const int Swing = static_cast<int>(Height * .05);
    QImage Wave(Width, Height + 2 * Swing, QImage::Format_ARGB32);
    Wave.fill(Qt::transparent);
    for (int X = 0; X < Width; ++X) {
        const double Phase = 2 * M_PI * X / Width * 1.15 - .5;
        const int Shift = static_cast<int>(std::lround(Swing + Swing * std::sin(Phase)));
        const double Shade = 1 + .16 * std::cos(Phase);
        const auto Lit = [Shade](int Value) {
            return std::clamp(static_cast<int>(Value * Shade + (Shade > 1 ? 12 : 0)), 0, 255);
        };
        for (int Y = 0; Y < Height; ++Y) {
            const QRgb C = Flat.pixel(X, Y);
            Wave.setPixel(X, Y + Shift,
                          qRgba(Lit(qRed(C)), Lit(qGreen(C)), Lit(qBlue(C)), qAlpha(C)));
        }
    }
    return Wave.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

static void DrawFlagFace(QPainter& P, const Face& F)
{
    const QImage Flag = SourceImage(F);
    if (Has(F.Keys, "round"))
        DrawRoundFlag(P, Flag);
    else
        DrawShadowed(
            P, [&](QPainter& G) { DrawFitted(G, Waving(Flag), QRectF(1, 4, 98, 92)); }, .4);
}

static QImage Prepared(QImage Image, const Recipe& R)
{
    if (Has(R, "cropb")) {
        const int Kept = static_cast<int>(Image.height() * (1 - Number(R, "cropb")));
        Image = CropToInk(Image.copy(0, 0, Image.width(), Kept));
    }
    if (Has(R, "metal")) Image = Relief(Image, MetalStops(Text(R, "metal"), R));
    if (Has(R, "rot"))
        Image = CropToInk(
            Image.transformed(QTransform().rotate(Number(R, "rot")), Qt::SmoothTransformation));
    return Image;
}

void DrawPictureFace(QPainter& P, const Face& F)
{
    const Recipe& R = F.Keys;
    if (F.Kind == "flag") return DrawFlagFace(P, F);
    QRectF Room = WholeFace;
    if (Has(R, "frame")) Room = DrawFrame(P, Text(R, "frame"), R);
    const double Pad = Number(R, "pad");
    Room.adjust(Pad, Pad, -Pad, -Pad);
    if (F.Kind == "symbola") return DrawGlyphFace(P, FontFile::Symbola, R, Room);
    if (F.Kind == "maya") return DrawGlyphFace(P, FontFile::Maya, R, Room);
    if (F.Kind == "aegyptus") return DrawGlyphFace(P, FontFile::Aegyptus, R, Room);

    const QImage Image = Prepared(SourceImage(F), R);
    const bool OnBody = !Has(R, "frame"); // pale pictures need an edge on the pale tile
    P.save();
    if (Text(R, "frame") == "portrait") P.setClipPath(Ellipse(50, 50, 42, 43));
    DrawShadowed(P, [&](QPainter& G) {
        if (OnBody) DrawHalo(G, Image, "#54503c", Room);
        DrawFitted(G, Image, OnBody ? Room.adjusted(1.2, 1.2, -1.2, -1.2) : Room);
    });
    P.restore();
}
