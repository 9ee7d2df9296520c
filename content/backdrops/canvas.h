// canvas.h: pictures as numbers, and what is done to every backdrop: light, calm, finish.
#pragma once
#include <QImage>
#include <string>
#include <vector>

constexpr int Width = 1024, Height = 768;
constexpr int BoardHeight = 616; // below it the control bar covers the backdrop
constexpr float CentreX = 512, CentreY = 308;

struct Colour {
    float R, G, B; // as on the screen (not linear), 0 to 1
};
using Palette = std::vector<Colour>; // evenly spaced stops
using Field = std::vector<float>;    // Width * Height numbers, row by row
using Picture = std::vector<Colour>; // Width * Height colours, row by row

// Where a place stands in a field or picture.
inline std::size_t Pixel(float X, float Y)
{
    return static_cast<std::size_t>(Y) * Width + static_cast<std::size_t>(X);
}

// colours
Colour ColourOf(const std::string& Name); // "#rrggbb"; throws std::runtime_error
Colour Mix(Colour A, Colour B, float T);  // A at 0, B at 1
Colour Scaled(Colour C, float Factor);
Colour Shade(const Palette& P, float T); // T from 0 to 1 runs through the stops; held at the ends
float Luma(Colour C);

// A field or a picture from a function of the place (X, Y in pixels).
template <class Function> Field FieldOf(Function F)
{
    Field Result;
    Result.reserve(Width * Height);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            Result.push_back(F(static_cast<float>(X), static_cast<float>(Y)));
    return Result;
}
template <class Function> Picture PictureOf(Function F)
{
    Picture Result;
    Result.reserve(Width * Height);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X)
            Result.push_back(F(static_cast<float>(X), static_cast<float>(Y)));
    return Result;
}

// Mean over the square of 2 * Radius + 1 pixels around each pixel; at the rim over what there is.
Field Blurred(const Field& F, int Radius);

// The field stretched so that its 1st and 99th percentiles become 0 and 1.
Field Levelled(const Field& F);

// Light from the upper right, as on tiles and panels, on a relief whose heights are in pixels.
// Gloss is the strength of the highlight: 0 dull, 1 wet; Shine its sharpness.
void Light(Picture& P, const Field& Relief, float Gloss = 0, float Shine = 24);

// Darkens what lies lower than its surroundings within Radius, by Strength per pixel of depth.
void Occlude(Picture& P, const Field& Relief, int Radius, float Strength);

// Holds the contrast of every window of the size of a tile at Limit (standard deviation of the
// lightness, 0 to 1): tiles must stand out from what lies under them.
void Calm(Picture& P, float Limit);

// Darkens towards the corners, by Strength at the middle of the sides.
void Vignette(Picture& P, float Strength);

// Painting with Qt: to a picture and back.
QImage ToImage(const Picture& P); // dithered, so that slow gradients show no bands
Picture ToPicture(const QImage& Image);
