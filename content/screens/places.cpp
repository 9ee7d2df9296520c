// places.cpp: where the elements stand

#include "places.h"

#include "frame/elements.h"

#include <map>

static Place PlaceFrom(const Element& E)
{
    Place P;
    P.Name = QString::fromStdString(ElementText(E));
    P.Base = E.Name;
    if (E.Panel != NoElement) P.Panel = QString::fromStdString(ElementText(Elements[E.Panel]));
    P.Box = QRectF(E.Left, E.Top, E.Width, E.Height);
    P.Drawn = E.Shows.Kind == PictureKind::Form;
    P.Columns = E.Columns;
    P.Rows = E.Rows;
    P.FontSize = E.Font.Size;
    return P;
}

const std::vector<Place>& AllPlaces()
{
    static std::vector<Place> Places;
    if (Places.empty()) {
        InitElements();
        for (const Element& E : Elements) Places.push_back(PlaceFrom(E));
    }
    return Places;
}

const Place& PlaceOf(const QString& Name)
{
    static std::map<QString, const Place*> ByName;
    if (ByName.empty())
        for (const Place& P : AllPlaces()) ByName[P.Name] = &P;
    const auto Found = ByName.find(Name);
    if (Found == ByName.end()) FatalError("no element is named " + Name.toStdString());
    return *Found->second;
}

QRectF SpanOf(const QString& Base)
{
    QRectF Span;
    for (const Place& P : AllPlaces())
        if (P.Base == Base) Span = Span.united(P.Box);
    if (Span.isEmpty()) FatalError("no element is named " + Base.toStdString());
    return Span;
}

std::vector<Place> PlacesOn(const QString& Panel)
{
    std::vector<Place> Found;
    for (const Place& P : AllPlaces())
        if (P.Panel == Panel) Found.push_back(P);
    return Found;
}

QColor PlayerInk(int Box)
{
    BuildTables();
    const Colour C = GameState.PlayerColour(Box);
    return QColor(C.Red, C.Green, C.Blue);
}
