#include "layout_files.h"

#include <QBuffer>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <algorithm>

namespace
{

constexpr int SheetColumns = 4, SheetRows = 3;
constexpr int CellWidth = 240, CellHeight = 200;
constexpr QRectF PictureRect(8, 6, 224, 150);
constexpr QRectF NameRect(8, 158, 224, 18);
constexpr int NamePixels = 13;
constexpr char FontFile[] = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";

// Small layouts are not blown up beyond this share of the board's size, or their tiles would look
// like those of another game.
constexpr double LargestScale = 0.32;
constexpr double ShadowRoom = 3; // thumbnail pixels
constexpr double Wall = 7;       // the edge of a tile's picture, board pixels

QColor Mix(const QColor& From, const QColor& To, double Share)
{
    const auto Part = [Share](int A, int B) { return static_cast<int>(A + (B - A) * Share); };
    return QColor(Part(From.red(), To.red()), Part(From.green(), To.green()),
                  Part(From.blue(), To.blue()));
}

// A tile: walls at the left and below, the face to the upper right of them, as in the tile sets.
// Upper layers are lighter, so that the relief reads where the shift is a pixel or two.
void DrawTile(QPainter& Paint, const LayoutTile& Tile, int Layers)
{
    const double Rise = Layers > 1 ? double(Tile.Z - 1) / (Layers - 1) : 1;
    const double L = Tile.Left, T = Tile.Top, Face = TilePixels - Wall;
    const QColor Dark("#27694a"), Jade("#3f8f63");
    Paint.setPen(Qt::NoPen);
    Paint.setBrush(Jade);
    const QPointF LeftWall[] = {
        {L + Wall, T}, {L, T + Wall}, {L, T + TilePixels}, {L + Wall, T + Face}};
    Paint.drawPolygon(LeftWall, 4);
    Paint.setBrush(Dark);
    const QPointF LowerWall[] = {{L, T + TilePixels},
                                 {L + Wall, T + Face},
                                 {L + TilePixels, T + Face},
                                 {L + Face, T + TilePixels}};
    Paint.drawPolygon(LowerWall, 4);

    const QRectF FaceRect(L + Wall, T, Face, Face);
    const QColor Bright = Mix(QColor("#d9cfae"), QColor("#fffdf3"), Rise);
    const QColor Shade = Mix(QColor("#b9ab84"), QColor("#eee3c6"), Rise);
    QLinearGradient Ivory(FaceRect.topRight(), FaceRect.bottomLeft());
    Ivory.setColorAt(0, Bright);
    Ivory.setColorAt(1, Shade);
    Paint.setBrush(Ivory);
    Paint.setPen(QPen(QColor("#6b5a36"), 2.6));
    Paint.drawRoundedRect(FaceRect.adjusted(1.3, 1.3, -1.3, -1.3), 6, 6);
}

// The soft ground shadow of a layer's tile on whatever lies below it.
void DrawShadow(QPainter& Paint, const LayoutTile& Tile)
{
    Paint.setPen(Qt::NoPen);
    for (int Ring = 3; Ring >= 1; --Ring) {
        Paint.setBrush(QColor(0, 0, 0, 26));
        Paint.drawRoundedRect(QRectF(Tile.Left - 2.0 * Ring, Tile.Top + 6, TilePixels, TilePixels)
                                  .adjusted(0, 0, 0, 2.5 * Ring),
                              8, 8);
    }
}

void DrawThumbnail(QPainter& Paint, const Layout& L, const QRectF& Into)
{
    QRectF Bounds;
    int Layers = 1;
    for (const LayoutTile& Tile : L.Tiles) {
        Bounds |= QRectF(Tile.Left, Tile.Top, TilePixels, TilePixels);
        Layers = std::max(Layers, Tile.Z);
    }
    const double Scale =
        std::min({(Into.width() - 2 * ShadowRoom) / Bounds.width(),
                  (Into.height() - 2 * ShadowRoom) / Bounds.height(), LargestScale});
    Paint.save();
    Paint.translate(Into.center());
    Paint.scale(Scale, Scale);
    Paint.translate(-Bounds.center());
    for (int Z = 1; Z <= Layers; ++Z) {
        for (const LayoutTile& Tile : L.Tiles)
            if (Tile.Z == Z) DrawShadow(Paint, Tile);
        for (const LayoutTile& Tile : L.Tiles)
            if (Tile.Z == Z) DrawTile(Paint, Tile, Layers);
    }
    Paint.restore();
}

// The font is taken by its file: what the system's font choice answers differs between machines.
bool LoadNameFont(QFont& Font)
{
    static const int Loaded = QFontDatabase::addApplicationFont(FontFile);
    if (Loaded < 0) return false;
    Font = QFont(QFontDatabase::applicationFontFamilies(Loaded).value(0));
    Font.setPixelSize(NamePixels);
    Font.setHintingPreference(QFont::PreferNoHinting);
    return true;
}

} // namespace

std::string ThumbnailSheetBytes(const std::vector<Layout>& Layouts, int Sheet, std::string& Fault)
{
    QFont Font;
    if (!LoadNameFont(Font)) {
        Fault = std::string(FontFile) + ": cannot be loaded (package fonts-dejavu-core)";
        return "";
    }
    QImage Picture(SheetColumns * CellWidth, SheetRows * CellHeight,
                   QImage::Format_ARGB32_Premultiplied);
    Picture.fill(Qt::transparent);
    QPainter Paint(&Picture);
    Paint.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Paint.setFont(Font);
    for (int Place = 0; Place < SheetColumns * SheetRows; ++Place) {
        const Layout& L = Layouts[Sheet * SheetColumns * SheetRows + Place];
        const QPointF Corner(Place % SheetColumns * CellWidth, Place / SheetColumns * CellHeight);
        DrawThumbnail(Paint, L, PictureRect.translated(Corner));

        const QString Name = QString::fromStdString(L.Name);
        if (QFontMetricsF(Font).horizontalAdvance(Name) > NameRect.width() - 2) {
            Fault = L.File + ":" + std::to_string(L.Line) + ": the name \"" + L.Name +
                    "\" is too wide for its thumbnail";
            return "";
        }
        Paint.setPen(QColor(20, 14, 6, 220));
        Paint.drawText(NameRect.translated(Corner + QPointF(1, 1)), Qt::AlignCenter, Name);
        Paint.setPen(QColor("#f6eed6"));
        Paint.drawText(NameRect.translated(Corner), Qt::AlignCenter, Name);
    }
    Paint.end();
    QByteArray Png;
    QBuffer Buffer(&Png);
    Buffer.open(QIODevice::WriteOnly);
    if (!Picture.save(&Buffer, "PNG")) Fault = "a thumbnail sheet cannot be written as PNG";
    return Png.toStdString();
}
