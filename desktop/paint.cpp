#include "desktop/desktop.h"
#include "frame/frame.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

constexpr double PressedLight = .84; // a pressed button lies deeper: its dark socket shows through
constexpr int SmallestFont = 12;     // pixels of the screen; a caption shrinks no further

// An element's place on the window, rounded once, in device pixels.
static QRect PlaceOf(const ScreenView& View, double Left, double Top, double Width, double Height)
{
    return QRect(View.OffsetX + qRound(Left * View.Scale), View.OffsetY + qRound(Top * View.Scale),
                 qRound(Width * View.Scale), qRound(Height * View.Scale));
}

QFont ElementFont(const Element& E, double Scale)
{
    QFont Font(E.Font.Face == FontFace::Serif ? "DejaVu Serif" : "DejaVu Sans");
    Font.setPixelSize(std::max(1, qRound(E.Font.Size * Scale)));
    Font.setBold(E.Font.Bold);
    return Font;
}

QFont FontThatFits(QFont Font, const QString& Text, double Width, double Scale)
{
    const int Smallest = qRound(SmallestFont * Scale);
    while (Font.pixelSize() > Smallest && QFontMetrics(Font).horizontalAdvance(Text) > Width)
        Font.setPixelSize(Font.pixelSize() - 1);
    return Font;
}

// A typed name can be of any length: what has no room even in the smallest font ends in dots.
static QString TextThatFits(const QString& Text, const QFont& Font, int Width)
{
    constexpr double Overhang = 1.05; // fonts come in whole pixels
    const QFontMetrics Metrics(Font);
    if (Metrics.horizontalAdvance(Text) <= Width * Overhang) return Text;
    return Metrics.elidedText(Text, Qt::ElideRight, Width);
}

static void PaintCaption(QPainter& Painter, const ScreenView& View, const Element& E,
                         const QRect& Place)
{
    if (E.Caption.empty()) return;
    const QString Text = QString::fromStdString(E.Caption);
    const QFont Font = FontThatFits(ElementFont(E, View.Scale), Text, Place.width(), View.Scale);
    constexpr Qt::Alignment Places[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    Painter.setFont(Font);
    Painter.setPen(QColor(E.Ink.Red, E.Ink.Green, E.Ink.Blue));
    Painter.drawText(Place,
                     static_cast<int>(Places[static_cast<int>(E.Font.Place)] | Qt::AlignVCenter) |
                         Qt::TextSingleLine | Qt::TextDontClip,
                     TextThatFits(Text, Font, Place.width()));
}

static void PaintPicture(QPainter& Painter, const ScreenView& View, const Element& E,
                         const QRect& Place)
{
    const Pixels Found = FindPixels(E.Shows, View.Scale);
    if (!Found.Image) return;
    // Pictures show at their natural size, cut by the element's edge.
    const QSize Size = Found.Part.size().boundedTo(Place.size() + QSize(1, 1));
    Painter.setOpacity(&E == PressedButton() ? PressedLight : 1);
    Painter.drawImage(Place.topLeft(), *Found.Image, QRect(Found.Part.topLeft(), Size));
    Painter.setOpacity(1);
}

static void PaintElement(QPainter& Painter, const ScreenView& View, const Element& E, double Left,
                         double Top, const QRect& Clip)
{
    const QRect Place = PlaceOf(View, Left, Top, E.Width, E.Height);
    if (!Place.intersects(Clip)) return;
    switch (E.Kind) {
    case ElementKind::Picture:
        PaintPicture(Painter, View, E, Place);
        break;
    case ElementKind::Label:
        PaintCaption(Painter, View, E, Place);
        break;
    case ElementKind::Line:
        Painter.fillRect(Place, QColor(255, 255, 255, 170));
        break;
    case ElementKind::Panel: {
        PaintPicture(Painter, View, E, Place);
        if (E.Shade) Painter.fillRect(Place, QColor(0, 0, 0, E.Shade));
        for (const FilledBox& Box : E.Boxes)
            Painter.fillRect(PlaceOf(View, Left + Box.Left, Top + Box.Top, Box.Right - Box.Left + 1,
                                     Box.Bottom - Box.Top + 1),
                             QColor(Box.Ink.Red, Box.Ink.Green, Box.Ink.Blue));
        for (ElementId Id = E.Rearmost; Id != NoElement; Id = Elements[Id].Before) {
            const Element& Child = Elements[Id];
            if (Child.Visible)
                PaintElement(Painter, View, Child, Left + Child.Left, Top + Child.Top, Clip);
        }
        break;
    }
    default:
        break; // text boxes and list boxes are controls laid over the picture
    }
}

void PaintScreen(QPainter& Painter, const ScreenView& View, const QRect& Clip)
{
    const Element& Screen = *View.Screen;
    const QRect Whole =
        PlaceOf(View, 0, 0, Screen.Width / TwipsPerPixel, Screen.Height / TwipsPerPixel);
    if (!Whole.contains(Clip)) Painter.fillRect(Clip, Qt::black);
    for (ElementId Id = Screen.Rearmost; Id != NoElement; Id = Elements[Id].Before) {
        const Element& E = Elements[Id];
        if (E.Visible) PaintElement(Painter, View, E, E.Left, E.Top, Clip);
    }
}
