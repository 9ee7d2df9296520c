// colours.cpp: colours and brushes

#include "art.h"

QColor Alpha(const QColor& Colour, double Opacity)
{
    QColor Result = Colour;
    Result.setAlphaF(static_cast<float>(Opacity));
    return Result;
}

QColor Mix(const QColor& First, const QColor& Second, double T)
{
    const auto Part = [T](float A, float B) {
        return static_cast<float>(qBound(0.0, A * (1 - T) + B * T, 1.0));
    };
    return QColor::fromRgbF(
        Part(First.redF(), Second.redF()), Part(First.greenF(), Second.greenF()),
        Part(First.blueF(), Second.blueF()), Part(First.alphaF(), Second.alphaF()));
}

QColor Dark(const QColor& Colour, double T)
{
    return Mix(Colour, QColor(0, 0, 0, Colour.alpha()), T);
}

QColor Light(const QColor& Colour, double T)
{
    return Mix(Colour, QColor(255, 255, 255, Colour.alpha()), T);
}

static void SpreadStops(QGradient& Gradient, const std::vector<QColor>& Stops)
{
    const double Last = std::max<double>(1, static_cast<double>(Stops.size()) - 1);
    for (std::size_t I = 0; I < Stops.size(); ++I)
        Gradient.setColorAt(static_cast<double>(I) / Last, Stops[I]);
}

QBrush Linear(double X1, double Y1, double X2, double Y2, const std::vector<QColor>& Stops)
{
    QLinearGradient Gradient(X1, Y1, X2, Y2);
    SpreadStops(Gradient, Stops);
    return Gradient;
}

QBrush Radial(double X, double Y, double Radius, const std::vector<QColor>& Stops)
{
    QRadialGradient Gradient(X, Y, Radius);
    SpreadStops(Gradient, Stops);
    return Gradient;
}

QPen Line(const QColor& Colour, double Width)
{
    return QPen(Colour, Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}
