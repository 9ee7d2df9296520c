#include "frame/elements.h"

#include <algorithm>
#include <numeric>

static std::vector<Rectangle> Stale;

// A deal changes hundreds of elements; past this many the painter gets one rectangle around all.
constexpr std::size_t MostRectangles = 64;

std::vector<Rectangle>& StaleRectangles()
{
    return Stale;
}

static Rectangle Around(const Rectangle& A, const Rectangle& B)
{
    const float Left = std::min(A.Left, B.Left), Top = std::min(A.Top, B.Top);
    return {Left, Top, std::max(A.Left + A.Width, B.Left + B.Width) - Left,
            std::max(A.Top + A.Height, B.Top + B.Height) - Top};
}

void MarkStale(const Element& E)
{
    if (!IsShown(E)) return;
    if (E.Kind == ElementKind::Screen) {
        Stale.assign(1, {0, 0, E.Width / TwipsPerPixel, E.Height / TwipsPerPixel});
        return;
    }
    const Point Place = ScreenPlace(E);
    const Rectangle Changed{Place.X, Place.Y, E.Width, E.Height};
    if (!Stale.empty()) {
        const Rectangle& Last = Stale.back();
        if (Last.Left == Changed.Left && Last.Top == Changed.Top && Last.Width == Changed.Width &&
            Last.Height == Changed.Height)
            return;
    }
    if (Stale.size() < MostRectangles)
        Stale.push_back(Changed);
    else
        Stale.assign(
            1, Around(std::accumulate(Stale.begin() + 1, Stale.end(), Stale[0], Around), Changed));
}
