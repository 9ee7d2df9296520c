// shapes.cpp: paths

#include "art.h"

#include <QTransform>

#include <cmath>

QPainterPath Polyline(const Points& P)
{
    QPainterPath Path(P.front());
    for (std::size_t I = 1; I < P.size(); ++I) Path.lineTo(P[I]);
    return Path;
}

QPainterPath Polygon(const Points& P)
{
    QPainterPath Path = Polyline(P);
    Path.closeSubpath();
    return Path;
}

// One stretch of a Catmull-Rom curve, from B to C with its neighbours A and D.
static void CurveStretch(QPainterPath& Path, QPointF A, QPointF B, QPointF C, QPointF D,
                         double Tension)
{
    const double T = Tension / 3;
    Path.cubicTo(B + (C - A) * T, C - (D - B) * T, C);
}

QPainterPath ClosedCurve(const Points& P, double Tension)
{
    QPainterPath Path(P.front());
    const std::size_t N = P.size();
    for (std::size_t I = 0; I < N; ++I)
        CurveStretch(Path, P[(I + N - 1) % N], P[I], P[(I + 1) % N], P[(I + 2) % N], Tension);
    Path.closeSubpath();
    return Path;
}

QPainterPath Curve(const Points& P, double Tension)
{
    QPainterPath Path(P.front());
    const std::size_t Last = P.size() - 1;
    for (std::size_t I = 0; I < Last; ++I)
        CurveStretch(Path, P[I ? I - 1 : 0], P[I], P[I + 1], P[std::min(I + 2, Last)], Tension);
    return Path;
}

QPainterPath Ellipse(double X, double Y, double RadiusX, double RadiusY, double Turn)
{
    QPainterPath Path;
    Path.addEllipse(QPointF(0, 0), RadiusX, RadiusY);
    return Moved(Path, X, Y, Turn);
}

QPainterPath Circle(double X, double Y, double Radius)
{
    return Ellipse(X, Y, Radius, Radius);
}

QPainterPath Rounded(double X, double Y, double W, double H, double Radius)
{
    QPainterPath Path;
    Path.addRoundedRect(QRectF(X, Y, W, H), Radius, Radius);
    return Path;
}

static QPointF OnCircle(double X, double Y, double Radius, double Degrees)
{
    const double A = Degrees * M_PI / 180;
    return {X + Radius * std::cos(A), Y + Radius * std::sin(A)};
}

QPainterPath Star(double X, double Y, double Radius, int Count, double Inner, double Turn)
{
    Points P;
    for (int I = 0; I < 2 * Count; ++I)
        P.push_back(OnCircle(X, Y, I % 2 ? Radius * Inner : Radius, Turn + I * 180.0 / Count));
    return Polygon(P);
}

QPainterPath Regular(double X, double Y, double Radius, int Corners, double Turn)
{
    Points P;
    for (int I = 0; I < Corners; ++I)
        P.push_back(OnCircle(X, Y, Radius, Turn + I * 360.0 / Corners));
    return Polygon(P);
}

QPainterPath Moved(const QPainterPath& P, double Dx, double Dy, double Turn, double ScaleX,
                   double ScaleY)
{
    QTransform T;
    T.translate(Dx, Dy);
    T.rotate(Turn);
    T.scale(ScaleX, ScaleY == 0 ? ScaleX : ScaleY);
    return T.map(P);
}

QPainterPath Mirrored(const QPainterPath& P, double AxisX)
{
    return Moved(P, 2 * AxisX, 0, 0, -1, 1);
}

QPainterPath Fitted(const QPainterPath& P, const QRectF& Into)
{
    const QRectF Box = P.boundingRect();
    if (Box.isEmpty()) return P;
    const double K = std::min(Into.width() / Box.width(), Into.height() / Box.height());
    QTransform T;
    T.translate(Into.center().x(), Into.center().y());
    T.scale(K, K);
    T.translate(-Box.center().x(), -Box.center().y());
    return T.map(P);
}

QPainterPath Silhouette(const QPainterPath& P)
{
    QPainterPath Whole;
    Whole.setFillRule(Qt::WindingFill);
    for (const QPolygonF& Contour : P.toSubpathPolygons()) {
        QPainterPath One;
        One.addPolygon(Contour);
        One.closeSubpath();
        Whole = Whole.united(One);
    }
    return Whole;
}

static double CatmullRom(double A, double B, double C, double D, double T)
{
    return .5 * (2 * B + (C - A) * T + (2 * A - 5 * B + 4 * C - D) * T * T +
                 (3 * B - A - 3 * C + D) * T * T * T);
}

QPainterPath Tube(const std::vector<SpinePoint>& Bones, std::vector<SpinePoint>* Spine)
{
    constexpr int Steps = 6; // from bone to bone
    std::vector<SpinePoint> Dense;
    const std::size_t Last = Bones.size() - 1;
    for (std::size_t I = 0; I < Last; ++I) {
        const SpinePoint &A = Bones[I ? I - 1 : 0], &B = Bones[I], &C = Bones[I + 1],
                         &D = Bones[std::min(I + 2, Last)];
        for (int S = 0; S < Steps; ++S) {
            const double T = static_cast<double>(S) / Steps;
            Dense.push_back({CatmullRom(A.X, B.X, C.X, D.X, T), CatmullRom(A.Y, B.Y, C.Y, D.Y, T),
                             CatmullRom(A.HalfWidth, B.HalfWidth, C.HalfWidth, D.HalfWidth, T)});
        }
    }
    Dense.push_back(Bones.back());

    Points Outline, Back;
    for (std::size_t I = 0; I < Dense.size(); ++I) {
        const SpinePoint &Before = Dense[I ? I - 1 : 0],
                         &After = Dense[std::min(I + 1, Dense.size() - 1)];
        const double Dx = After.X - Before.X, Dy = After.Y - Before.Y;
        const double Length = std::max(std::hypot(Dx, Dy), 1e-6);
        const double Half = std::max(Dense[I].HalfWidth, .3);
        const QPointF Side(-Dy / Length * Half, Dx / Length * Half);
        const QPointF Centre(Dense[I].X, Dense[I].Y);
        Outline.push_back(Centre + Side);
        Back.push_back(Centre - Side);
    }
    Outline.insert(Outline.end(), Back.rbegin(), Back.rend());
    if (Spine) *Spine = Dense;
    QPainterPath Path = ClosedCurve(Outline, .8);
    Path.setFillRule(Qt::WindingFill);
    return Path;
}
