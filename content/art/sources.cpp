// sources.cpp: fonts and pictures of installed packages

#include "art.h"

#include <QFile>
#include <QFontDatabase>
#include <QRawFont>
#include <QSvgRenderer>
#include <QTransform>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>

void FatalError(const QString& Text)
{
    std::fprintf(stderr, "%s\n", qPrintable(Text));
    std::_Exit(1); // a painter may be at work: nothing is torn down under it
}

static QString FontPath(FontFile Which)
{
    static const char* const Names[] = {
        "dejavu/DejaVuSans.ttf",
        "dejavu/DejaVuSans-Bold.ttf",
        "dejavu/DejaVuSerif.ttf",
        "dejavu/DejaVuSerif-Bold.ttf",
        "noto/NotoColorEmoji.ttf",
        "ancient-scripts/Symbola_hint.ttf",
        "ancient-scripts/Maya_hint.ttf",
        "ancient-scripts/AegyptusR_hint.ttf",
        "kouzan-mouhitsu/kouzan-mouhitsu.ttf",
    };
    const QString Path =
        QString("/usr/share/fonts/truetype/") + Names[static_cast<std::size_t>(Which)];
    if (!QFile::exists(Path)) FatalError("font file " + Path + " is missing");
    return Path;
}

QFont LoadFont(FontFile Which, double PixelSize)
{
    static std::map<FontFile, QString> Families;
    QString& Family = Families[Which];
    if (Family.isEmpty()) {
        const int Id = QFontDatabase::addApplicationFont(FontPath(Which));
        if (Id < 0) FatalError("cannot read font file " + FontPath(Which));
        Family = QFontDatabase::applicationFontFamilies(Id).constFirst();
    }
    QFont Font(Family);
    Font.setPixelSize(static_cast<int>(std::lround(PixelSize)));
    Font.setBold(Which == FontFile::SansBold || Which == FontFile::SerifBold);
    Font.setHintingPreference(QFont::PreferNoHinting);
    return Font;
}

static QRawFont& RawFont(FontFile Which, double PixelSize)
{
    static std::map<std::pair<FontFile, double>, QRawFont> Fonts;
    QRawFont& Font = Fonts[{Which, PixelSize}];
    if (!Font.isValid()) {
        Font = QRawFont(FontPath(Which), PixelSize, QFont::PreferNoHinting);
        if (!Font.isValid()) FatalError("cannot read font file " + FontPath(Which));
    }
    return Font;
}

QPainterPath GlyphPath(FontFile Which, char32_t CodePoint)
{
    QRawFont& Font = RawFont(Which, 400);
    const QList<quint32> Glyphs = Font.glyphIndexesForString(QString::fromUcs4(&CodePoint, 1));
    const QPainterPath Path =
        Glyphs.isEmpty() || Glyphs[0] == 0 ? QPainterPath() : Font.pathForGlyph(Glyphs[0]);
    // Some fonts map a character to an empty glyph, so the outline is asked, not the map.
    if (Path.isEmpty())
        FatalError(FontPath(Which) + " has no glyph U+" +
                   QString::number(static_cast<uint>(CodePoint), 16).toUpper());
    return Path;
}

QPainterPath TextPath(FontFile Which, const QString& Text, double PixelSize)
{
    QRawFont& Font = RawFont(Which, PixelSize);
    const QList<quint32> Glyphs = Font.glyphIndexesForString(Text);
    const QList<QPointF> Steps = Font.advancesForGlyphIndexes(Glyphs);
    QPainterPath Path;
    double X = 0;
    for (qsizetype I = 0; I < Glyphs.size(); ++I) {
        if (Glyphs[I] == 0) FatalError(FontPath(Which) + " cannot write \"" + Text + "\"");
        Path.addPath(Font.pathForGlyph(Glyphs[I]).translated(X, 0));
        X += Steps[I].x();
    }
    return Path;
}

QImage EmojiImage(const QString& Text)
{
    static std::map<QString, QImage> Made;
    // The variation selector would send the whole emoji to another font.
    const QString Plain = QString(Text).remove(QChar(0xfe0f));
    QImage& Image = Made[Plain];
    if (!Image.isNull()) return Image;
    QFont Font = LoadFont(FontFile::Emoji, 128); // the font's own bitmap size
    QImage Canvas = NewImage(420, 220);
    QPainter P(&Canvas);
    P.setFont(Font);
    P.drawText(QPointF(40, 160), Plain);
    P.end();
    Image = CropToInk(Canvas);
    if (InkBox(Canvas).isEmpty() || Image.width() > 150)
        FatalError("the emoji font has no single picture for \"" + Plain + "\"");
    return Image;
}

// A clip-art reader that skips what it cannot parse would leave holes in a face unnoticed.
static void SvgMessage(QtMsgType, const QMessageLogContext&, const QString& Text)
{
    if (Text.contains("Could not parse") || Text.contains("Could not resolve"))
        FatalError("SVG reader: " + Text);
    std::fprintf(stderr, "%s\n", qPrintable(Text));
}

static QImage SvgPicture(const QString& Path, const QString& Id)
{
    constexpr double Wanted = 360;
    const QtMessageHandler Before = qInstallMessageHandler(SvgMessage);
    QSvgRenderer Renderer(Path);
    if (!Renderer.isValid()) FatalError("cannot read " + Path);
    if (!Id.isEmpty() && !Renderer.elementExists(Id)) FatalError(Path + " has no drawing " + Id);
    const QRectF View = Id.isEmpty() ? Renderer.viewBoxF() : Renderer.boundsOnElement(Id);
    const QSizeF Size = View.isEmpty() ? QSizeF(Renderer.defaultSize()) : View.size();
    const double Longer = std::max(Size.width(), Size.height());
    const auto Render = [&](double Scale) {
        // A single drawing gets room for its strokes, which its bounds may leave out.
        const QRectF Place(QPointF(), Size * Scale);
        const double Room = Id.isEmpty() ? 0 : .15 * std::max(Place.width(), Place.height());
        const QRectF Page = Place.translated(Room, Room);
        QImage Image = NewImage(static_cast<int>(std::lround(Page.right() + Room)),
                                static_cast<int>(std::lround(Page.bottom() + Room)));
        QPainter P(&Image);
        P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        if (Id.isEmpty())
            Renderer.render(&P, Page);
        else
            Renderer.render(&P, Id, Page);
        return Image;
    };
    // Clip art often fills a corner of its page: find the ink, then draw it at the wanted size.
    QImage Image = Render(Wanted / Longer);
    const QRect Box = InkBox(Image);
    if (Box.isEmpty()) FatalError(Path + " shows nothing");
    const double Ink1 = std::max(Box.width(), Box.height());
    if (Ink1 < .8 * Wanted)
        Image = Render(std::min(Wanted / Longer * Wanted / Ink1, 3000 / Longer));
    qInstallMessageHandler(Before);
    return CropToInk(Image);
}

QImage PictureFile(const QString& Path)
{
    static std::map<QString, QImage> Made;
    QImage& Image = Made[Path];
    if (!Image.isNull()) return Image;
    const QString File = Path.section('#', 0, 0), Id = Path.section('#', 1);
    if (!QFile::exists(File)) FatalError("picture " + File + " is missing");
    if (File.endsWith(".svg") || File.endsWith(".svgz")) return Image = SvgPicture(File, Id);
    QImage Source(Path);
    if (Source.isNull()) FatalError("cannot read " + Path);
    return Image = CropToInk(Source.convertToFormat(QImage::Format_ARGB32_Premultiplied));
}
