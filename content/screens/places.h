// places.h: where the elements stand, as the makers of the pictures see it. All comes from the one
// table that the program is made from, so a frame that is painted here meets its label there.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <vector>

struct Place {
    QString Name;              // "imgTile(5)", "picNote"
    QString Base;              // the same without the index
    QString Panel;             // name of the panel or screen that holds it
    QRectF Box;                // pixels inside the panel
    bool Drawn;                // has a picture of its own design
    int Columns = 1, Rows = 1; // picture store: cells
    int FontSize = 0;
};

const std::vector<Place>& AllPlaces();
const Place& PlaceOf(const QString& Name); // an unknown name is fatal
inline QRectF BoxOf(const QString& Name)
{
    return PlaceOf(Name).Box;
}
// The rectangle round all elements of an array, inside their panel.
QRectF SpanOf(const QString& Base);
std::vector<Place> PlacesOn(const QString& Panel);

QColor PlayerInk(int Box); // the colour of player 1..10 in the graph; 0 is the graph's ground
