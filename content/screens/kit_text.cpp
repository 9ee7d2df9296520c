// kit_text.cpp: text as outlines, so that it looks the same on every machine

#include "kit.h"

#include <QFontMetricsF>
#include <QStringList>

#include <cmath>
#include <map>
#include <optional>

static FontFile FontOf(Weight Kind)
{
    switch (Kind) {
    case Weight::Bold:
        return FontFile::SansBold;
    case Weight::Serif:
        return FontFile::SerifBold;
    default:
        return FontFile::Sans;
    }
}

// A letter at 64 px, with the step to the next one.
struct Letter {
    QPainterPath Path;
    double Advance = 0;
};

static const Letter& LetterOf(FontFile Font, QChar Code)
{
    static std::map<std::pair<FontFile, QChar>, Letter> Letters;
    const auto [At, New] = Letters.try_emplace({Font, Code});
    if (New) {
        if (Code != ' ') At->second.Path = TextPath(Font, QString(Code), 64);
        At->second.Advance = QFontMetricsF(LoadFont(Font, 64)).horizontalAdvance(Code);
    }
    return At->second;
}

struct SetText {
    QPainterPath Path; // base line at 0, 0
    double Width = 0;
};

static SetText Typeset(const QString& Text, const TextStyle& Style)
{
    SetText Result;
    const double Scale = Style.Size / 64;
    for (const QChar& Code : Text) {
        const Letter& L = LetterOf(FontOf(Style.Kind), Code);
        Result.Path.addPath(Moved(L.Path, Result.Width, 0, 0, Scale));
        Result.Width += L.Advance * Scale + Style.Spacing;
    }
    Result.Path.setFillRule(Qt::WindingFill);
    Result.Width -= Style.Spacing;
    return Result;
}

double TextWidth(const QString& Text, const TextStyle& Style)
{
    return Text.isEmpty() ? 0 : Typeset(Text, Style).Width;
}

static double Linear1(double Value)
{
    return Value <= .03928 ? Value / 12.92 : std::pow((Value + .055) / 1.055, 2.4);
}

static double Luminance(const QColor& C)
{
    return .2126 * Linear1(C.redF()) + .7152 * Linear1(C.greenF()) + .0722 * Linear1(C.blueF());
}

double Contrast(const QColor& A, const QColor& B)
{
    const double La = Luminance(A), Lb = Luminance(B);
    return (std::max(La, Lb) + .05) / (std::min(La, Lb) + .05);
}

// The mean colour of what has been painted so far at a place of the picture; nothing where the
// picture is mostly clear.
static std::optional<QColor> GroundAt(const QPainter& P, const QRectF& Where)
{
    const auto* Image = dynamic_cast<const QImage*>(P.device());
    if (!Image) return std::nullopt;
    const QRect Box = P.transform().mapRect(Where).toAlignedRect().intersected(Image->rect());
    double Red = 0, Green = 0, Blue = 0, Solid = 0;
    for (int Y = Box.top(); Y <= Box.bottom(); ++Y) {
        const QRgb* Row = reinterpret_cast<const QRgb*>(Image->constScanLine(Y));
        for (int X = Box.left(); X <= Box.right(); ++X) { // premultiplied: clear pixels add nothing
            Red += qRed(Row[X]);
            Green += qGreen(Row[X]);
            Blue += qBlue(Row[X]);
            Solid += qAlpha(Row[X]) / 255.0;
        }
    }
    if (Solid < .9 * Box.width() * Box.height()) return std::nullopt;
    return QColor(int(Red / Solid), int(Green / Solid), int(Blue / Solid));
}

constexpr double LeastContrast = 4.5, SmallestText = 12;

static void CheckLegible(const QPainter& P, const QRectF& Where, const QString& Text,
                         const TextStyle& Style)
{
    if (Style.Size < SmallestText)
        FatalError("the text \"" + Text + "\" is only " + QString::number(Style.Size) + " px high");
    const std::optional<QColor> Ground = GroundAt(P, Where);
    if (Ground && Contrast(Style.Colour, *Ground) < LeastContrast)
        FatalError("the text \"" + Text + "\" has a contrast of only " +
                   QString::number(Contrast(Style.Colour, *Ground)) + " on " + Ground->name());
}

void DrawText(QPainter& P, const QRectF& Box, const QString& Text, const TextStyle& Style)
{
    if (Text.isEmpty()) return;
    const SetText Set = Typeset(Text, Style);
    if (Set.Width > Box.width() + .5)
        FatalError("the text \"" + Text + "\" takes " + QString::number(Set.Width) +
                   " px, its place has " + QString::number(Box.width()));
    double X = Box.left(), Y = Box.center().y() + Style.Size * .36;
    if (Style.Place & Qt::AlignHCenter) X = Box.center().x() - Set.Width / 2;
    if (Style.Place & Qt::AlignRight) X = Box.right() - Set.Width;
    if (Style.Place & Qt::AlignTop) Y = Box.top() + Style.Size * .95;
    CheckLegible(P, QRectF(X, Y - Style.Size * .75, Set.Width, Style.Size * .8), Text, Style);
    if (Style.Shadow) P.fillPath(Set.Path.translated(X - .8, Y + 1), Alpha(TextShadow, .85));
    P.fillPath(Set.Path.translated(X, Y), Style.Colour);
}

static QStringList BreakLines(const QString& Text, double Width, const TextStyle& Style)
{
    QStringList Lines;
    for (const QString& Part : Text.split('\n')) {
        QString LineText;
        for (const QString& Word : Part.split(' ')) {
            const QString Longer = LineText.isEmpty() ? Word : LineText + ' ' + Word;
            if (!LineText.isEmpty() && TextWidth(Longer, Style) > Width) {
                Lines += LineText;
                LineText = Word;
            } else {
                LineText = Longer;
            }
        }
        Lines += LineText;
    }
    return Lines;
}

double DrawParagraph(QPainter& P, const QRectF& Box, const QString& Text, const TextStyle& Style,
                     double LineStep)
{
    const QStringList Lines = BreakLines(Text, Box.width(), Style);
    const double Step = Style.Size * LineStep, Height = Step * static_cast<double>(Lines.size());
    if (Height > Box.height() + 1)
        FatalError("the text \"" + Text.left(40) + "...\" takes " + QString::number(Height) +
                   " px of height, its place has " + QString::number(Box.height()));
    double Y = Box.top();
    if (Style.Place & Qt::AlignVCenter) Y += (Box.height() - Height) / 2;
    TextStyle OneLine = Style;
    OneLine.Place = (Style.Place & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
    for (const QString& Text1 : Lines) {
        DrawText(P, QRectF(Box.left(), Y, Box.width(), Step), Text1, OneLine);
        Y += Step;
    }
    return Height;
}

void DrawTitle(QPainter& P, const QRectF& Box, const QString& Text, double Size,
               Qt::Alignment Place)
{
    const TextStyle Style{
        .Size = Size, .Kind = Weight::Serif, .Place = Place, .Spacing = Size * .03};
    const SetText Set = Typeset(Text, Style);
    if (Set.Width > Box.width() + .5) FatalError("the title \"" + Text + "\" is too wide");
    double X = Box.left(), Y = Box.center().y() + Size * .36;
    if (Place & Qt::AlignHCenter) X = Box.center().x() - Set.Width / 2;
    if (Place & Qt::AlignRight) X = Box.right() - Set.Width;
    CheckLegible(P, QRectF(X, Y - Size * .75, Set.Width, Size * .8), Text,
                 {.Size = Size, .Colour = "#e8c260"});
    const QPainterPath Path = Set.Path.translated(X, Y);
    P.fillPath(Path.translated(-Size * .05, Size * .07), Alpha("#04100a", .8));
    P.strokePath(Path, Line(Alpha("#2a1a04", .9), Size * .05));
    P.fillPath(Path, Linear(X, Y - Size * .8, X, Y + Size * .1,
                            {"#fff6cf", "#f3d478", "#d9a93c", "#f0cf72"}));
}
