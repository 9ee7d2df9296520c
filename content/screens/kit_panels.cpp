// kit_panels.cpp: panels, plates and lines

#include "kit.h"

#include <cmath>
#include <map>
#include <tuple>

QImage NewPicture(double Width, double Height)
{
    return NewImage(static_cast<int>(std::lround(Width * Sharpness)),
                    static_cast<int>(std::lround(Height * Sharpness)));
}

void BeginDrawing(QPainter& P, QImage& Picture)
{
    P.begin(&Picture);
    P.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    P.scale(Sharpness, Sharpness);
}

QPainterPath Scalloped(const QRectF& Box, double Radius)
{
    const double R = Radius;
    QPainterPath Path(QPointF(Box.left() + R, Box.top()));
    Path.lineTo(Box.right() - R, Box.top());
    Path.arcTo(Box.right() - R, Box.top() - R, 2 * R, 2 * R, 180, 90);
    Path.lineTo(Box.right(), Box.bottom() - R);
    Path.arcTo(Box.right() - R, Box.bottom() - R, 2 * R, 2 * R, 90, 90);
    Path.lineTo(Box.left() + R, Box.bottom());
    Path.arcTo(Box.left() - R, Box.bottom() - R, 2 * R, 2 * R, 0, 90);
    Path.lineTo(Box.left(), Box.top() + R);
    Path.arcTo(Box.left() - R, Box.top() - R, 2 * R, 2 * R, 270, 90);
    Path.closeSubpath();
    return Path;
}

void SoftShadow(QPainter& P, const QPainterPath& Shape, double Blur, double Strength, double Dx,
                double Dy)
{
    const QPainterPath Shifted = Shape.translated(Dx, Dy);
    const int Steps = std::max(2, static_cast<int>(Blur * 2));
    const QColor Veil = Alpha("#000000", 1 - std::pow(1 - Strength, 1.0 / Steps));
    for (int I = 0; I < Steps; ++I) {
        const double Width = 2 * Blur * (I + .5) / Steps;
        QPainterPathStroker Stroker(
            QPen(Qt::black, Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        P.fillPath(Shifted.united(Stroker.createStroke(Shifted)), Veil);
    }
}

// Polished jade: light at the upper right, slow clouds, a few thin veins and a fine grain. The
// texture is worked out for the pixels of the device, so the grain stays fine at every size.
static const QImage& JadeTexture(int Width, int Height, double Scale, QPointF Origin,
                                 const QColor& Light1, const QColor& Dark1)
{
    // Every full screen stands on the same slab: it is cut once.
    static std::map<std::tuple<int, int, double, double, double, QRgb, QRgb>, QImage> Slabs;
    QImage& Image =
        Slabs[{Width, Height, Scale, Origin.x(), Origin.y(), Light1.rgb(), Dark1.rgb()}];
    if (!Image.isNull()) return Image;
    Image = QImage(Width, Height, QImage::Format_RGB32);
    Random R{7};
    for (int Y = 0; Y < Height; ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Image.scanLine(Y));
        for (int X = 0; X < Width; ++X) {
            const double Dx = (X + Origin.x()) / Scale, Dy = (Y + Origin.y()) / Scale;
            const double Fall = .3 * (1 - (X + .5) / Width) + .7 * (Y + .5) / Height;
            const double Cloud = FractalNoise(Dx / 120 + 3, Dy / 90 + 9, 11, 4) - .5;
            const double Bend = FractalNoise(Dx / 80 + 40, Dy / 80 + 17, 23, 3);
            const double Ridge =
                1 - std::abs(2 * FractalNoise(Dx / 150 + 1.6 * Bend, Dy / 60, 5, 3) - 1);
            const double Vein = std::pow(Ridge, 14) * .06;
            const double Grain = (Uniform(R) - .5) * .05;
            const QColor Base = Mix(Light1, Dark1, Fall);
            const double Gain = 1 + .42 * Cloud + Vein + Grain;
            const auto Byte = [Gain](int V, double More) {
                return static_cast<int>(std::lround(std::clamp(V * Gain + More, 0.0, 255.0)));
            };
            Row[X] = qRgb(Byte(Base.red(), Vein * 14), Byte(Base.green(), Vein * 30),
                          Byte(Base.blue(), Vein * 16));
        }
    }
    return Image;
}

void FillJade(QPainter& P, const QPainterPath& Shape, const QColor& Light1, const QColor& Dark1)
{
    const QTransform Device = P.transform();
    const QRect Box = Device.mapRect(Shape.boundingRect()).toAlignedRect();
    QBrush Brush(
        JadeTexture(Box.width(), Box.height(), Device.m11(), Box.topLeft(), Light1, Dark1));
    Brush.setTransform(QTransform::fromTranslate(Box.x(), Box.y()) * Device.inverted());
    P.fillPath(Shape, Brush);
}

void DrawGoldLine(QPainter& P, const QPainterPath& Shape, double Width)
{
    const QRectF B = Shape.boundingRect();
    P.strokePath(Shape, Line(Alpha("#1a0f02", .75), Width + 1.2));
    QPen Pen = Line(Gold, Width);
    Pen.setBrush(Linear(B.right(), B.top(), B.left(), B.bottom(),
                        {GoldLight, "#e2bc58", Gold, "#8a6420", Gold, GoldDark}));
    P.strokePath(Shape, Pen);
    P.strokePath(Shape, Line(Alpha(GoldLight, .35), Width * .3));
}

void DrawPanel(QPainter& P, const QRectF& Box, double Corner)
{
    const QPainterPath Shape = Scalloped(Box, Corner);
    FillJade(P, Shape);
    P.strokePath(Shape, Line(Alpha("#04100a", .9), 1));
    DrawGoldLine(P, Scalloped(Box.adjusted(3.5, 3.5, -3.5, -3.5), Corner));
    P.strokePath(Scalloped(Box.adjusted(8, 8, -8, -8), Corner - 1), Line(Alpha(Gold, .45), .8));
}

// A hollow catches shade from its upper right walls and light on its lower left ones.
static void ShadeHollow(QPainter& P, const QRectF& Box, double Radius, double Depth)
{
    P.save();
    P.setClipPath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), Radius), Qt::IntersectClip);
    const int Steps = static_cast<int>(Depth * 2);
    for (int I = 0; I < Steps; ++I) {
        const double In = Depth * I / Steps;
        QPainterPath Outside;
        Outside.addRect(Box.adjusted(-9, -9, 9, 9));
        Outside.addRoundedRect(Box.adjusted(-In * .3 - 2, In, -In, In * .3 + 2), Radius, Radius);
        P.fillPath(Outside, Alpha("#000000", .5 / Steps));
    }
    P.restore();
    QPainterPath Rim(QPointF(Box.left(), Box.top() + Radius));
    Rim.lineTo(Box.left(), Box.bottom() - Radius);
    Rim.quadTo(Box.left(), Box.bottom(), Box.left() + Radius, Box.bottom());
    Rim.lineTo(Box.right() - Radius, Box.bottom());
    P.strokePath(Rim, Line(Alpha("#9fd0b0", .34), 1));
}

void DrawInset(QPainter& P, const QRectF& Box, double Radius)
{
    FillJade(P, Rounded(Box.x(), Box.y(), Box.width(), Box.height(), Radius), "#173a2d", "#0e2619");
    ShadeHollow(P, Box, Radius, 4);
}

void DrawPlate(QPainter& P, const QRectF& Box, double Radius)
{
    const QPainterPath Shape = Rounded(Box.x(), Box.y(), Box.width(), Box.height(), Radius);
    P.fillPath(Shape, Linear(Box.right(), Box.top(), Box.left(), Box.bottom(),
                             {PlateDark, PlateDark, PlateLight}));
    ShadeHollow(P, Box, Radius, 3);
    DrawGoldLine(P, Shape, 1.2);
}

void DrawSocket(QPainter& P, const QRectF& Button)
{
    const QRectF Box = Button.adjusted(-2.5, -2.5, 2.5, 2.5);
    P.fillPath(Rounded(Box.x(), Box.y(), Box.width(), Box.height(), 7), QColor("#07140d"));
    ShadeHollow(P, Box, 7, 3);
}

void DrawParchment(QPainter& P, const QRectF& Box, double Radius)
{
    const QPainterPath Shape = Rounded(Box.x(), Box.y(), Box.width(), Box.height(), Radius);
    const QTransform Device = P.transform();
    const QRect Area = Device.mapRect(Box).toAlignedRect();
    QImage Paper(Area.size(), QImage::Format_RGB32);
    Random R{3};
    for (int Y = 0; Y < Paper.height(); ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Paper.scanLine(Y));
        for (int X = 0; X < Paper.width(); ++X) {
            const double Dx = X / Device.m11(), Dy = Y / Device.m11();
            const double Fibre = FractalNoise(Dx / 26, Dy / 3, 31, 3) - .5;
            const double Stain = FractalNoise(Dx / 60, Dy / 50, 37, 3) - .5;
            const double Edge = std::min(
                {Dx, Dy, Paper.width() / Device.m11() - Dx, Paper.height() / Device.m11() - Dy});
            const double Rim = std::exp(-Edge / 7) * .55;
            const QColor Base = Mix(Parchment, ParchmentDark,
                                    std::clamp(.22 + Stain * .7 + Fibre * .4 + Rim, 0.0, 1.0));
            const double Gain = 1 + (Uniform(R) - .5) * .03;
            Row[X] = qRgb(std::min(255, static_cast<int>(Base.red() * Gain)),
                          std::min(255, static_cast<int>(Base.green() * Gain)),
                          std::min(255, static_cast<int>(Base.blue() * Gain)));
        }
    }
    QBrush Brush(Paper);
    Brush.setTransform(QTransform::fromTranslate(Area.x(), Area.y()) * Device.inverted());
    P.fillPath(Shape, Brush);
    P.strokePath(Shape, Line(Alpha(Outline1, .8), 1));
}

void DrawRule(QPainter& P, double X1, double X2, double Y)
{
    const double Middle = (X1 + X2) / 2;
    P.fillRect(QRectF(X1, Y - .6, X2 - X1, 1.2),
               Linear(X1, 0, X2, 0,
                      {Alpha(Gold, 0), Alpha(Gold, .9), Alpha(GoldLight, .9), Alpha(Gold, .9),
                       Alpha(Gold, 0)}));
    const QPainterPath Lozenge =
        Polygon({{Middle - 7, Y}, {Middle, Y - 4}, {Middle + 7, Y}, {Middle, Y + 4}});
    P.fillPath(Lozenge, Linear(Middle + 7, Y - 4, Middle - 7, Y + 4, {GoldLight, Gold, GoldDark}));
    P.strokePath(Lozenge, Line(Alpha("#1a0f02", .7), .6));
}

void DrawEmblem(QPainter& P, const QRectF& Box)
{
    const QPainterPath Pagoda = Fitted(PagodaPath(3), Box);
    P.fillPath(Pagoda.translated(-1, 1.4), Alpha("#04100a", .8));
    P.fillPath(Pagoda, Linear(Box.right(), Box.top(), Box.left(), Box.bottom(),
                              {"#fff3bf", "#e9c25a", "#b88220"}));
}

// A range of hills over the whole width of the box, its crests at the upper edge.
static QPainterPath HillsIn(const QRectF& Box, double Wide, std::uint32_t Seed)
{
    QPainterPath Path(Box.bottomLeft());
    for (double X = 0; X <= Box.width(); X += 2)
        Path.lineTo(Box.left() + X,
                    Box.top() + Box.height() * FractalNoise(X / Wide + Seed, Seed * 1.7, Seed, 3));
    Path.lineTo(Box.bottomRight());
    Path.closeSubpath();
    return Path;
}

void DrawReliefScene(QPainter& P, const QRectF& Box)
{
    P.save();
    P.setClipPath(Scalloped(Box, 8), Qt::IntersectClip);
    const double H = Box.height();
    const auto Cut = [&](const QPainterPath& Shape, double Depth) {
        P.fillPath(Shape, Alpha("#04140c", Depth));
        P.strokePath(Shape, Line(Alpha("#8fc7a6", .16), .9)); // light on the lower left rim
    };
    Cut(HillsIn(Box.adjusted(0, H * .1, 0, 0), 90, 3), .16);
    Cut(Moved(PagodaPath(5), Box.right() - H * .95, Box.top() + H * .02, 0, H * .0066, H * .0078),
        .3);
    Cut(Moved(PagodaPath(3), Box.left() + H * .3, Box.top() + H * .4, 0, H * .0044, H * .005), .26);
    Cut(HillsIn(Box.adjusted(0, H * .5, 0, 0), 130, 11), .34);
    P.restore();
}
