// pen_and_fill.cpp: the few strokes that all drawings are made of

#include "tiles.h"

#include <algorithm>
#include <cmath>

constexpr double Finer = 4; // drafts are drawn this much finer than their units

void Fill(QPainter& G, const QPainterPath& Path, const Paint& With)
{
    G.setPen(Qt::NoPen);
    G.setBrush(With.Brush);
    G.drawPath(Path);
}

void Stroke(QPainter& G, const QPainterPath& Path, const QColor& With, double Width)
{
    G.setPen(Line(With, Width));
    G.setBrush(Qt::NoBrush);
    G.drawPath(Path);
}

void StrokeLine(QPainter& G, double X1, double Y1, double X2, double Y2, const QColor& With,
                double Width)
{
    G.setPen(Line(With, Width));
    G.drawLine(QPointF(X1, Y1), QPointF(X2, Y2));
}

void Outline(QPainter& G, const QPainterPath& Path, const Paint& With, const QColor& Edge,
             double Width)
{
    if (!Edge.isValid()) return Outline(G, Path, With, Width);
    G.setPen(Line(Edge, Width));
    G.setBrush(With.Brush);
    G.drawPath(Path);
}

void Outline(QPainter& G, const QPainterPath& Path, const Paint& With, double Width)
{
    const bool Plain = With.Brush.style() == Qt::SolidPattern;
    Outline(G, Path, With, Dark(Plain ? With.Brush.color() : QColor("#444444"), .45), Width);
}

QColor EdgeOf(const QColor& Fill, double T, const char* OfWhite)
{
    return Fill.lightness() < 225 ? Dark(Fill, T) : QColor(OfWhite);
}

// A box blur of the alpha, twice: near enough to a soft shadow.
static QImage SoftShadow(const QImage& Image, int Radius, double Opacity)
{
    const int W = Image.width(), H = Image.height();
    std::vector<double> A(static_cast<std::size_t>(W * H));
    const auto At = [&](int X, int Y) -> double& { return A[static_cast<std::size_t>(Y * W + X)]; };
    for (int Y = 0; Y < H; ++Y) {
        const QRgb* Row = reinterpret_cast<const QRgb*>(Image.constScanLine(Y));
        for (int X = 0; X < W; ++X) At(X, Y) = qAlpha(Row[X]);
    }
    const auto Blur = [&](int Length, const auto& Cell) {
        std::vector<double> In(static_cast<std::size_t>(Length));
        for (int I = 0; I < Length; ++I) In[static_cast<std::size_t>(I)] = Cell(I);
        double Sum = 0;
        for (int I = -Radius; I < Length + Radius; ++I) {
            if (I + Radius < Length && I + Radius >= 0)
                Sum += In[static_cast<std::size_t>(I + Radius)];
            if (I - Radius - 1 >= 0) Sum -= In[static_cast<std::size_t>(I - Radius - 1)];
            if (I >= 0 && I < Length) Cell(I) = Sum / (2 * Radius + 1);
        }
    };
    for (int X = 0; X < W; ++X) Blur(H, [&](int I) -> double& { return At(X, I); });
    for (int Y = 0; Y < H; ++Y) Blur(W, [&](int I) -> double& { return At(I, Y); });
    QImage Shadow = NewImage(W, H);
    for (int Y = 0; Y < H; ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Shadow.scanLine(Y));
        for (int X = 0; X < W; ++X)
            Row[X] = qRgba(0, 0, 0, static_cast<int>(std::clamp(At(X, Y) * Opacity, 0.0, 255.0)));
    }
    return Shadow;
}

void DrawShadowed(QPainter& P, const Draft& Drawing, double Opacity)
{
    const QTransform T = P.combinedTransform();
    const double Scale = std::hypot(T.m11(), T.m12());
    const int Size = static_cast<int>(100 * Scale) + 8;
    QImage Layer = NewImage(Size, Size);
    QPainter G(&Layer);
    G.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    G.scale(Scale, Scale);
    Drawing(G);
    G.end();
    const QImage Shadow = SoftShadow(Layer, std::max(1, static_cast<int>(1.5 * Scale)), Opacity);
    // The light comes from the upper right, also on a face that is turned about.
    P.drawImage(QRectF(T.m11() < 0 ? 1.2 : -1.2, 2, Size / Scale, Size / Scale), Shadow);
    P.drawImage(QRectF(0, 0, Size / Scale, Size / Scale), Layer);
}

void DrawFittedDraft(QPainter& P, const Draft& Drawing, double Stretch, const QRectF& Into,
                     double MaxScale)
{
    constexpr int Margin = 60;
    const QRectF Room = Into.isEmpty() ? QRectF(2, 2, 96, 96) : Into;
    const int Size = static_cast<int>((100 + 2 * Margin) * Finer);
    QImage Canvas = NewImage(Size, Size);
    QPainter G(&Canvas);
    G.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    G.scale(Finer, Finer);
    G.translate(Margin, Margin);
    Drawing(G);
    G.end();
    const QImage Cut = CropToInk(Canvas);

    const double Scale =
        std::min({Room.width() / Cut.width(), Room.height() / Cut.height(), MaxScale / Finer});
    double W = Cut.width() * Scale, H = Cut.height() * Scale;
    if (H < Room.height()) H = std::min(Room.height(), H * Stretch);
    if (W < Room.width()) W = std::min(Room.width(), W * Stretch);
    const QRectF Place(Room.center().x() - W / 2, Room.center().y() - H / 2, W, H);
    const QImage Shape = Scaled(Cut, static_cast<int>(W * Finer), static_cast<int>(H * Finer));
    DrawShadowed(P, [&](QPainter& S) { DrawFitted(S, Shape, Place); });
}

void DrawHalo(QPainter& G, const QImage& Picture, const QColor& Tint, const QRectF& Room,
              double Width)
{
    // What shines through, like steam or spray, has no edge.
    QImage Shape = Tinted(Picture, Tint);
    for (int Y = 0; Y < Shape.height(); ++Y) {
        QRgb* Row = reinterpret_cast<QRgb*>(Shape.scanLine(Y));
        std::replace_if(
            Row, Row + Shape.width(), [](QRgb C) { return qAlpha(C) < 200; }, 0);
    }
    const QRectF Inner = Room.adjusted(Width, Width, -Width, -Width);
    for (int I = 0; I < 12; ++I)
        DrawFitted(
            G, Shape,
            Inner.translated(Width * std::cos(I * M_PI / 6), Width * std::sin(I * M_PI / 6)));
}
