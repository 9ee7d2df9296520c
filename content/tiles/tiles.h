// tiles.h: how the faces of the tile sets are drawn.
//
// A set is a text file in sets/: its name, its body, then 36 faces, each with a label, the kind of
// drawing and a recipe of keys and values. A kind is one drawing function; the recipe tells it
// which dog, which flag, which colours. Faces are drawn in units of 0..100, whatever lies over.
#pragma once

#include "art.h"

#include <QMap>

#include <functional>

constexpr int FaceCount = 36;
constexpr int SetCount = 72;

// set_files.cpp: reading sets/NN-name.txt; a bad line is fatal and named
struct Recipe {
    QString Place;  // file and line, for errors
    QString Source; // the first word when it has no "=": an emoji, a glyph, a file
    QMap<QString, QString> Values;
};
struct Face {
    QString Label, Kind;
    Recipe Keys;
};
struct TileSet {
    QString Name;
    const BodyTint* Body = &IvoryBody;
    int Sample = 1; // the face that stands for the set on its sample sheet, from 1
    std::vector<Face> Faces;
};
TileSet ReadTileSet(int Number);
bool Has(const Recipe& R, const char* Key);
QString Text(const Recipe& R, const char* Key, const QString& Default = {});
double Number(const Recipe& R, const char* Key, double Default = 0);
int Whole(const Recipe& R, const char* Key, int Default = 0);
QColor Colour(const Recipe& R, const char* Key, const QColor& Default = {});
QStringList Words(const Recipe& R, const char* Key, const char* Between); // "a+b" with "+": a, b
std::vector<QColor> Colours(const Recipe& R, const char* Key, const char* Default = "");

// pen_and_fill.cpp: the few strokes that all drawings are made of
struct Paint { // what a shape is filled with: "#rrggbb", a colour or a gradient
    QBrush Brush;
    Paint(const char* Name) : Brush(QColor(Name)) {}
    Paint(const QColor& C) : Brush(C) {}
    Paint(const QBrush& B) : Brush(B) {}
};
void Fill(QPainter& G, const QPainterPath& Path, const Paint& With);
void Stroke(QPainter& G, const QPainterPath& Path, const QColor& With, double Width);
void StrokeLine(QPainter& G, double X1, double Y1, double X2, double Y2, const QColor& With,
                double Width);
// Filled, with an edge: of the fill's own darkened colour when none is given.
void Outline(QPainter& G, const QPainterPath& Path, const Paint& With, double Width = 1.6);
void Outline(QPainter& G, const QPainterPath& Path, const Paint& With, const QColor& Edge,
             double Width = 1.6);
QColor EdgeOf(const QColor& Fill, double T = .45, const char* OfWhite = "#8a8478");
// The shape of a picture in one colour, Width larger on all sides than the picture that is fitted
// into Room less Width.
void DrawHalo(QPainter& G, const QImage& Picture, const QColor& Tint, const QRectF& Room,
              double Width = 1.2);
using Draft = std::function<void(QPainter&)>;
inline const QRectF WholeFace(1, 1, 98, 98);
// A drawing inside 0..100 with a soft shadow beneath.
void DrawShadowed(QPainter& P, const Draft& Drawing, double Opacity = .28);
// Any drawing between -60 and 160: cropped to its ink and fitted into Into, its shorter side
// stretched by up to Stretch, with a soft shadow beneath.
void DrawFittedDraft(QPainter& P, const Draft& Drawing, double Stretch = 1, const QRectF& Into = {},
                     double MaxScale = 1.6);

// picture_kinds.cpp: a drawing of drawings/, "file.svg#name"
QImage OwnDrawing(const QString& Name);

// frames.cpp: what stands behind a face. Returns the room that is left inside.
QRectF DrawFrame(QPainter& P, const QString& Name, const Recipe& R);
const std::vector<QColor>& MetalStops(const QString& Name, const Recipe& R);

// picture_kinds.cpp: faces made of a glyph, an emoji, clip art or a flag
void DrawPictureFace(QPainter& P, const Face& F);

// kinds.cpp: every kind by its name
using DrawKind = void (*)(QPainter& P, const Recipe& R);
void DrawFace(QPainter& P, const Face& F);
