// canvas.h: the canvas of a painting, its colours, chance, noise and brushes.
//
// Everything is measured in pixels of the finished picture, x to the right and y down. Colours are
// 0 to 1 a channel and may leave that range until the picture is saved.
#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstdint>
#include <functional>
#include <vector>

constexpr int Width = 720;
constexpr int Height = 420;
constexpr float Pi = 3.14159265f;

struct Rgb {
    float R = 0, G = 0, B = 0;
};
struct Point {
    float X = 0, Y = 0;
};
using Line = std::vector<Point>;
using Mask = std::vector<float>; // Width * Height values, 0 outside to 1 inside

struct Canvas {
    std::vector<Rgb> Px;       // the paint
    std::vector<float> Flow;   // the way strokes run here, an angle
    std::vector<float> Relief; // thickness of the paint, 0 to 1
    std::uint64_t Chance = 1;  // state of the chance of this painting
};

// colours
constexpr Rgb Hex(std::uint32_t Code)
{
    return {float(Code >> 16 & 255) / 255, float(Code >> 8 & 255) / 255, float(Code & 255) / 255};
}
constexpr Rgb Mix(Rgb A, Rgb B, float Share) // Share 0 is A, 1 is B
{
    return {A.R + (B.R - A.R) * Share, A.G + (B.G - A.G) * Share, A.B + (B.B - A.B) * Share};
}
constexpr Rgb Times(Rgb A, Rgb B)
{
    return {A.R * B.R, A.G * B.G, A.B * B.B};
}
constexpr Rgb Times(Rgb A, float Factor)
{
    return {A.R * Factor, A.G * Factor, A.B * Factor};
}
constexpr Rgb Plus(Rgb A, Rgb B)
{
    return {A.R + B.R, A.G + B.G, A.B + B.B};
}
constexpr float Brightness(Rgb Colour)
{
    return 0.3f * Colour.R + 0.59f * Colour.G + 0.11f * Colour.B;
}
Rgb Saturate(Rgb Colour, float Factor); // 0 grey, 1 unchanged
QColor ToQColor(Rgb Colour, float Alpha = 1);

// numbers
constexpr float Clamp(float Value, float Low = 0, float High = 1)
{
    return std::min(std::max(Value, Low), High);
}
constexpr float Smooth(float From, float To, float Value) // 0 up to From, 1 from To on
{
    const float T = Clamp((Value - From) / (To - From));
    return T * T * (3 - 2 * T);
}
constexpr float Lerp(float A, float B, float Share)
{
    return A + (B - A) * Share;
}

// chance: the same seed gives the same run of numbers
float Any(Canvas& C, float Low = 0, float High = 1);
int AnyOf(Canvas& C, int Count); // 0 to Count - 1
float AnyBell(Canvas& C);        // about -1 to 1, mostly near 0

// noise: smooth chance in the plane, 0 to 1, grain of about one unit
float Noise(float X, float Y, std::uint32_t Seed);
float Fbm(float X, float Y, int Octaves, std::uint32_t Seed);
float Ridged(float X, float Y, int Octaves, std::uint32_t Seed); // sharp crests at 1

// brushes
Canvas BlankCanvas(std::uint64_t Seed);
Rgb& At(Canvas& C, int X, int Y); // clamped to the canvas
void Blend(Canvas& C, int X, int Y, Rgb Colour, float Alpha);
// A single touch: an ellipse, or a leaf with two points when Pointed.
void Dab(Canvas& C, float X, float Y, float Length, float Breadth, float Angle, Rgb Colour,
         float Alpha = 1, bool Pointed = false);
void SoftDab(Canvas& C, float X, float Y, float RadiusX, float RadiusY, Rgb Colour, float Alpha);
// A drawn brush with bristles; From and To are half breadths at its ends.
void Stroke(Canvas& C, const Line& Way, float From, float To, Rgb Colour, float Alpha = 1);
Line Curve(const Line& Knots, int Steps = 8); // Catmull-Rom spline through the knots

// Repaints what stands on the canvas with many overlapping strokes along Flow, first with broad
// brushes, then with finer ones where the broad ones lost too much. Only where Area is set.
struct BrushPass {
    float Radius;  // half breadth
    float Length;  // longest stroke, in radii
    float Missing; // repaint where the paint is further than this from the motif; below 0: all
    float Unrest;  // how much colours differ from stroke to stroke
};
void Repaint(Canvas& C, const Mask* Area, const std::vector<BrushPass>& Passes);

// Exact shapes: drawn with Qt on an empty sheet and laid over the canvas.
void Draw(Canvas& C, const std::function<void(QPainter&)>& Drawing, float Alpha = 1);
Mask MaskOf(const QPainterPath& Path);

struct Varnish {
    bool Mirrored = false;
    float Darkest = 0.05f, Lightest = 0.96f; // the values to reach for
    float Grain = 0.035f, Relief = 0.055f, Corners = 0.14f;
};
// Values, grain, relief of the paint and darkened corners; then the finished image.
QImage Finish(Canvas& C, const Varnish& Look);
