#include "desktop/desktop.h"

#include <algorithm>
#include <cmath>

ScreenView FitScreen(const Element& Screen, const QWidget& Window, bool FullScreen)
{
    ScreenView View;
    View.Screen = &Screen;
    View.Ratio = Window.devicePixelRatioF();
    View.Scale = View.Ratio;
    if (!FullScreen) return View;
    // The 1024 by 768 picture fills the display as large as it fits; the splash keeps its share.
    const double Width = Window.width() * View.Ratio, Height = Window.height() * View.Ratio;
    View.Scale =
        std::min(Width * TwipsPerPixel / frmMain.Width, Height * TwipsPerPixel / frmMain.Height);
    View.OffsetX = static_cast<int>((Width - Screen.Width / TwipsPerPixel * View.Scale) / 2);
    View.OffsetY = static_cast<int>((Height - Screen.Height / TwipsPerPixel * View.Scale) / 2);
    return View;
}

QRect DeviceRect(const ScreenView& View, const Rectangle& R)
{
    const int Left = static_cast<int>(std::floor(R.Left * View.Scale));
    const int Top = static_cast<int>(std::floor(R.Top * View.Scale));
    const int Right = static_cast<int>(std::ceil((R.Left + R.Width) * View.Scale)) + 1;
    const int Bottom = static_cast<int>(std::ceil((R.Top + R.Height) * View.Scale)) + 1;
    return QRect(View.OffsetX + Left, View.OffsetY + Top, Right - Left, Bottom - Top);
}

QPointF ScreenPoint(const ScreenView& View, const QPointF& Logical)
{
    return QPointF((Logical.x() * View.Ratio - View.OffsetX) / View.Scale,
                   (Logical.y() * View.Ratio - View.OffsetY) / View.Scale);
}
