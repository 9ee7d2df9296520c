// drawing.h: small tools for the drawings by recipe.
//
// Each such drawing has a struct with what its recipe says - own colours, own pattern - which all
// its parts get as Own. Where a recipe chooses among figures, these are functions in a table.
#pragma once

#include "tiles.h"

#include <QMap>

#include <array>
#include <cmath>
#include <string>
#include <tuple>

// Rows of numbers, points and colours for a loop: Table<double, QColor>{{9, "#ffffff"}, ...}
template <class... Columns> using Table = std::vector<std::tuple<Columns...>>;

inline double Radians(double Degrees)
{
    return Degrees * M_PI / 180;
}

inline double Degrees(double Radians)
{
    return Radians * 180 / M_PI;
}

inline QPainterPath Box(double X, double Y, double W, double H)
{
    QPainterPath Path;
    Path.addRect(QRectF(X, Y, W, H));
    return Path;
}

inline void FillBox(QPainter& G, double X, double Y, double W, double H, const Paint& With)
{
    Fill(G, Box(X, Y, W, H), With);
}

inline QPainterPath EllipseIn(double X, double Y, double W, double H)
{
    return Ellipse(X + W / 2, Y + H / 2, W / 2, H / 2);
}

// A part of the ellipse in the box, from Start over Span degrees, counter-clockwise.
inline QPainterPath Arc(double X, double Y, double W, double H, double Start, double Span)
{
    QPainterPath Path;
    Path.arcMoveTo(QRectF(X, Y, W, H), Start);
    Path.arcTo(QRectF(X, Y, W, H), Start, Span);
    return Path;
}

inline std::vector<int> Counted(int From, int Below, int Step = 1)
{
    std::vector<int> List;
    for (int I = From; Step > 0 ? I < Below : I > Below; I += Step) List.push_back(I);
    return List;
}

// One point, number or bone of each member of a list.
template <class Make> auto Mapped(const Points& List, Make MakeOne)
{
    std::vector<decltype(MakeOne(0.0, 0.0))> Result;
    for (const QPointF& P : List) Result.push_back(MakeOne(P.x(), P.y()));
    return Result;
}

template <class Make> auto Mapped(const std::vector<SpinePoint>& List, Make MakeOne)
{
    std::vector<decltype(MakeOne(0.0, 0.0, 0.0))> Result;
    for (const auto& [X, Y, HalfWidth] : List) Result.push_back(MakeOne(X, Y, HalfWidth));
    return Result;
}

template <class Number, class Make> auto Mapped(const std::vector<Number>& List, Make MakeOne)
{
    std::vector<decltype(MakeOne(List[0]))> Result;
    for (const Number One : List) Result.push_back(MakeOne(One));
    return Result;
}

template <class Make> Points PointRow(int Count, Make MakeOne)
{
    return Mapped(Counted(0, Count), MakeOne);
}

template <class List> List Reversed(const List& Given)
{
    return List(Given.rbegin(), Given.rend());
}

template <class List> List Joined(List First, const List& Second)
{
    First.insert(First.end(), Second.begin(), Second.end());
    return First;
}

// The list again and again; the second form leaves out its first member.
inline QColor Cycled(const std::vector<QColor>& List, int I)
{
    const int Count = static_cast<int>(List.size());
    return List[static_cast<std::size_t>((I % Count + Count) % Count)];
}

inline QColor CycledFromSecond(const std::vector<QColor>& List, int I)
{
    return List[1 + static_cast<std::size_t>(I) % (List.size() - 1)];
}

inline double Choice(Random& R, const std::vector<double>& From)
{
    return From[static_cast<std::size_t>(Pick(R, static_cast<int>(From.size())))];
}

inline QString Quoted(const QString& Text)
{
    return "\"" + Text + "\"";
}

inline const Points& Named(const QMap<QString, Points>& Outlines, const QString& Name,
                           const Recipe& R)
{
    const auto Found = Outlines.constFind(Name);
    if (Found == Outlines.constEnd())
        FatalError(R.Place + ": no outline is called " + Quoted(Name));
    return *Found;
}

// The figures that a recipe can choose from.
template <class Drawing> struct FigureRow {
    const char* Name;
    void (*Draw)(QPainter& G, Drawing& Own);
};

template <class Drawing, std::size_t N>
void DrawFigure(QPainter& G, Drawing& Own, const FigureRow<Drawing> (&Figures)[N],
                const QString& Name, const Recipe& R)
{
    for (const FigureRow<Drawing>& Row : Figures)
        if (Name == Row.Name) return Row.Draw(G, Own);
    FatalError(R.Place + ": there is no figure " + Quoted(Name));
}
