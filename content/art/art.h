// art.h: the drawing tools that the makers of pictures share.
//
// Everything draws with QPainter into images with alpha. The same calls give the same pixels on
// every run: chance comes from Random with a fixed seed, never from a clock or an address.
#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <initializer_list>
#include <vector>

// palette: the colours of the whole game. Panels, buttons, tiles and pictures are of one hand.
inline constexpr const char* PanelLight = "#1f4a3a"; // deep jade, top of a panel
inline constexpr const char* PanelDark = "#12301f";  // deep jade, foot of a panel
inline constexpr const char* GoldLight = "#fff0b0";
inline constexpr const char* Gold = "#c89a2c";
inline constexpr const char* GoldDark = "#6a4a10";
inline constexpr const char* IvoryText = "#fff6dc"; // text on jade, over a dark shadow of 1 px
inline constexpr const char* TextShadow = "#0a1a12";
inline constexpr const char* IvoryLight = "#fffdf3"; // the tile's face, upper right
inline constexpr const char* IvoryDark = "#eee3c6";  // the tile's face, lower left
inline constexpr const char* JadeEdge = "#3f8f63";   // the jade half of a tile, left wall
inline constexpr const char* JadeFoot = "#27694a";   // the same, bottom wall
inline constexpr const char* Outline1 = "#5b4a28";   // dark brown edge round ivory
inline constexpr const char* TileRim = "#2a2010";    // the line round a whole tile
inline constexpr const char* LitFrame = "#ff9d00";   // a lit tile or button
inline constexpr const char* MarkFrame = "#1467d6";  // a marked tile
inline constexpr const char* VowelRed = "#b8281c";   // vowels of the letter tiles
inline constexpr const char* Ink = "#2a2018";        // dark text on ivory
inline constexpr const char* LampGreen = "#37d67a";
inline constexpr const char* DigitAmber = "#ffb02a";
inline constexpr const char* DigitBlue = "#1c4ab0";

// colours.cpp: colours and brushes. T runs from 0 (the first colour) to 1 (the second).
QColor Alpha(const QColor& Colour, double Opacity);
QColor Mix(const QColor& First, const QColor& Second, double T);
QColor Dark(const QColor& Colour, double T = .35); // towards black
QColor Light(const QColor& Colour, double T = .4); // towards white
// Stops are evenly spread from the first point, or the centre, outwards.
QBrush Linear(double X1, double Y1, double X2, double Y2, const std::vector<QColor>& Stops);
QBrush Radial(double X, double Y, double Radius, const std::vector<QColor>& Stops);
QPen Line(const QColor& Colour, double Width); // round caps and joins

// random.cpp: chance that is the same everywhere (splitmix64), and noise made of it
struct Random {
    std::uint64_t State = 1;
};
double Uniform(Random& R, double Low = 0, double High = 1);
double Gauss(Random& R, double Mean, double Deviation);
int Pick(Random& R, int Count);                                           // 0 .. Count - 1
double ValueNoise(double X, double Y, std::uint32_t Seed);                // 0 .. 1, period 1
double FractalNoise(double X, double Y, std::uint32_t Seed, int Octaves); // 0 .. 1

// shapes.cpp: paths. Angles are in degrees, clockwise from the right, as QPainter has them.
using Points = std::vector<QPointF>;
QPainterPath Polygon(const Points& P);
QPainterPath Polyline(const Points& P);
// Catmull-Rom curves through all points; Tension 0 gives straight lines, 1 wide bows.
QPainterPath ClosedCurve(const Points& P, double Tension = .5);
QPainterPath Curve(const Points& P, double Tension = .5);
QPainterPath Ellipse(double X, double Y, double RadiusX, double RadiusY, double Turn = 0);
QPainterPath Circle(double X, double Y, double Radius);
QPainterPath Rounded(double X, double Y, double W, double H, double Radius);
QPainterPath Star(double X, double Y, double Radius, int Count = 5, double Inner = .4,
                  double Turn = -90);
QPainterPath Regular(double X, double Y, double Radius, int Corners, double Turn = -90);
// Scales, turns and then moves.
QPainterPath Moved(const QPainterPath& P, double Dx, double Dy, double Turn = 0, double ScaleX = 1,
                   double ScaleY = 0);                           // ScaleY 0: as ScaleX
QPainterPath Mirrored(const QPainterPath& P, double AxisX = 50); // left becomes right
QPainterPath Fitted(const QPainterPath& P, const QRectF& Into);  // as large as fits, centred
QPainterPath Silhouette(const QPainterPath& P);                  // every contour filled
// A body along a spine of points with half widths. Spine holds it densely after the call.
struct SpinePoint {
    double X, Y, HalfWidth;
};
QPainterPath Tube(const std::vector<SpinePoint>& Bones, std::vector<SpinePoint>* Spine = nullptr);

// images.cpp: images are ARGB32 premultiplied
QImage NewImage(int Width, int Height); // transparent
QRect InkBox(const QImage& Image);      // what is not transparent; empty when nothing is
QImage CropToInk(const QImage& Image);
QImage Tinted(const QImage& Image, const QColor& Colour); // keeps alpha only
// Maps light and dark onto Stops, so that any picture becomes a relief of one metal.
QImage Relief(const QImage& Image, const std::vector<QColor>& Stops);
QImage Scaled(const QImage& Image, int Width, int Height);             // smooth, also far down
void DrawFitted(QPainter& P, const QImage& Image, const QRectF& Into); // keeps its shape
// Writes the format whatever the file's name; makes missing folders. Ends the program on failure.
void SavePicture(const QImage& Image, const QString& Path, const char* Format = "PNG",
                 int Quality = -1);

// sources.cpp: fonts and pictures of installed packages. A missing file, glyph or emoji is fatal.
// A font is loaded from its file, so that nothing depends on the machine's font settings.
enum class FontFile { Sans, SansBold, Serif, SerifBold, Emoji, Symbola, Maya, Aegyptus, Brush };
QFont LoadFont(FontFile Which, double PixelSize);
QPainterPath GlyphPath(FontFile Which, char32_t CodePoint);                   // 400 px to the em
QPainterPath TextPath(FontFile Which, const QString& Text, double PixelSize); // base line at 0, 0
QImage EmojiImage(const QString& Text); // cropped, native size of about 128 px
// PNG or SVG, cropped; SVG at 360 px. "file.svg#name" is one drawing of many.
QImage PictureFile(const QString& Path);
void FatalError(const QString& Text); // to standard error, ends with status 1

// tile_body.cpp: the body of a tile in units of 60 by 60, as it stands on the board. The face lies
// at the right and top; the walls run 7 to the left and down, where the layer beneath begins.
enum TileState { TileNormal, TileLit, TileMarked };
struct BodyTint {
    const char* Name;
    const char *FaceLight, *FaceDark; // upper right, lower left
    const char *WallLeft, *WallFoot;  // the half next to the face
    const char *EdgeLeft, *EdgeFoot;  // the outer half
};
extern const BodyTint IvoryBody, JadeBody, SlateBody, WoodBody, SandBody;
const BodyTint* FindBodyTint(const QString& Name); // null when there is none of that name
constexpr int TileSize = 60;
constexpr int LayerShift = 7;
inline const QRectF TileArt(10.6, 3.6, 45.8, 45.8); // where the picture goes
void DrawTileBody(QPainter& P, TileState State, const BodyTint& Tint = IvoryBody);
