// forms_splash.cpp: the logo and the title of the start, and the icon of the program

#include "forms.h"

#include <cmath>

// The emblem: a tile of the board with a red sun and a pagoda before it. Small icons show fewer
// roofs, so that they stay clear.
static void DrawEmblemTile(QPainter& P, const QRectF& Box, int Tiers)
{
    P.save();
    P.translate(Box.topLeft());
    P.scale(Box.width() / TileSize, Box.height() / TileSize);
    P.fillRect(QRectF(5, 46, 9, 9), QColor("#c5b288")); // behind the face's round corner
    DrawTileBody(P, TileNormal);
    const QPointF Middle = TileArt.center();
    P.fillPath(Circle(Middle.x(), Middle.y() - 2.5, 18),
               Linear(Middle.x() + 14, Middle.y() - 16, Middle.x() - 14, Middle.y() + 14,
                      {"#ef5a3c", "#c22f1e", "#9c1f14"}));
    const QRectF Where = TileArt.adjusted(3.2, 1.6, -3.2, -1.2);
    const QPainterPath Pagoda = Fitted(PagodaPath(Tiers), Where);
    P.strokePath(Pagoda, Line("#fffaea", 1.3));
    P.fillPath(Pagoda, Linear(Where.right(), Where.top(), Where.left(), Where.bottom(),
                              {"#2c8560", "#185a40", "#0e3a28"}));
    P.restore();
}

static void DrawLogo(QPainter& P, const QRectF& Box)
{
    DrawPanel(P, Box.adjusted(2, 2, -2, -2), 16);
    const QRectF Tile(Box.center().x() - 88, 38, 168, 168);
    P.save();
    P.translate(-5, 7);
    SoftShadow(P, Rounded(Tile.x() + 4, Tile.y() + 4, 156, 158, 16), 12, .5);
    P.restore();
    DrawEmblemTile(P, Tile, 4);
    DrawRule(P, 90, Box.width() - 90, 234);
    DrawTitle(P, QRectF(0, 244, Box.width(), 36), "A game of tile stacks", 23);
}

// The outline of a range of hills: its height at X, from noise of its own.
static double Ridge(double X, double Base, double High, double Wide, std::uint32_t Seed)
{
    return Base - High * (FractalNoise(X / Wide + 7, Seed * 1.7, Seed, 5) - .35);
}

static void DrawHills(QPainter& P, double Base, double High, double Wide, std::uint32_t Seed,
                      const QColor& Top, const QColor& Foot)
{
    QPainterPath Range(QPointF(-10, 400));
    for (double X = -10; X <= 650; X += 1.5) Range.lineTo(X, Ridge(X, Base, High, Wide, Seed));
    Range.lineTo(650, 400);
    Range.closeSubpath();
    P.fillPath(Range, Linear(0, Base - High * .5, 0, Base + 62, {Top, Foot}));
}

static void DrawMist(QPainter& P, double Y, double Height, double Strength, std::uint32_t Seed)
{
    Random R{Seed};
    for (int I = 0; I < 26; ++I) {
        const double X = Uniform(R, -60, 700), Dy = Gauss(R, 0, Height * .35);
        const double Rx = Uniform(R, 70, 190), Ry = Uniform(R, .12, .3) * Height;
        P.save();
        P.translate(X, Y + Dy);
        P.scale(1, Ry / Rx);
        P.fillPath(Circle(0, 0, Rx),
                   Radial(0, 0, Rx,
                          {Alpha("#ffe9c4", Strength), Alpha("#ffe9c4", Strength * .5),
                           Alpha("#ffe9c4", 0)}));
        P.restore();
    }
}

static void DrawCrane(QPainter& P, double X, double Y, double Size)
{
    QPainterPath Wings(QPointF(X - Size, Y - Size * .35));
    Wings.cubicTo(X - Size * .5, Y - Size * .5, X - Size * .15, Y - Size * .2, X, Y);
    Wings.cubicTo(X + Size * .2, Y - Size * .4, X + Size * .6, Y - Size * .65, X + Size,
                  Y - Size * .5);
    Wings.cubicTo(X + Size * .6, Y - Size * .45, X + Size * .3, Y - Size * .1, X + Size * .05,
                  Y + Size * .12);
    Wings.cubicTo(X - Size * .2, Y - Size * .02, X - Size * .5, Y - Size * .3, X - Size,
                  Y - Size * .35);
    P.fillPath(Wings, QColor("#2b1a1e"));
}

static void DrawPine(QPainter& P, double X, double Foot, double High, double Lean)
{
    QPainterPath Trunk(QPointF(X, Foot));
    Trunk.cubicTo(X + Lean * .2, Foot - High * .4, X - Lean * .3, Foot - High * .6, X + Lean,
                  Foot - High);
    P.strokePath(Trunk, Line("#0a1912", High * .05));
    Random R{static_cast<std::uint64_t>(X * 7 + High)};
    for (int I = 0; I < 5; ++I) {
        const double At = .45 + I * .14, Side = I % 2 ? 1 : -1;
        const double Cx = X + Lean * At * At + Side * High * (.2 - I * .028), Cy = Foot - High * At;
        for (int K = 0; K < 9; ++K)
            P.fillPath(Ellipse(Cx + Gauss(R, 0, High * .1), Cy + Gauss(R, 0, High * .018),
                               High * .12, High * .035, Uniform(R, -6, 6)),
                       QColor(K % 3 ? "#0c2118" : "#14301f"));
    }
}

static void DrawTitlePicture(QPainter& P, const QRectF& Box)
{
    P.save();
    P.setClipPath(Scalloped(Box.adjusted(3, 3, -3, -3), 16));
    P.fillRect(Box, Linear(0, 0, 0, 300, {"#0e2b33", "#1f4f56", "#7a6a5a", "#d98a4a", "#f6c878"}));
    const QPointF Sun(432, 196);
    P.fillPath(Circle(Sun.x(), Sun.y(), 230),
               Radial(Sun.x(), Sun.y(), 230,
                      {Alpha("#ffe2a0", .85), Alpha("#ffb860", .4), Alpha("#ff9a40", 0)}));
    P.fillPath(Circle(Sun.x(), Sun.y(), 62),
               Radial(Sun.x() + 12, Sun.y() - 14, 80, {"#fff8dc", "#ffe09a", "#ff9c50"}));
    Random R{12};
    for (int I = 0; I < 70; ++I) { // long thin clouds
        const double X = Uniform(R, -40, 680), Y = 30 + 150 * Uniform(R) * Uniform(R) + 14;
        P.fillPath(Ellipse(X, Y, Uniform(R, 30, 120), Uniform(R, .8, 3.2)),
                   Alpha(I % 2 ? "#ffd9a0" : "#16323a", .1));
    }
    DrawHills(P, 224, 150, 170, 41, "#9a6a5a", "#e8b078");
    DrawMist(P, 250, 30, .1, 5);
    DrawHills(P, 262, 130, 120, 52, "#5c5650", "#c99a6a");
    DrawMist(P, 286, 34, .09, 6);
    DrawHills(P, 304, 110, 150, 63, "#2c4a42", "#8a8462");
    DrawMist(P, 322, 30, .08, 8);
    // The pagoda on its hill, before the sun.
    DrawHills(P, 352, 60, 220, 77, "#153326", "#1d4636");
    const QPainterPath Pagoda = Moved(PagodaPath(5), 366, 88, 0, 1.3, 2.32);
    P.fillPath(Pagoda, Linear(430, 90, 430, 320, {"#3a1c1c", "#241a1a", "#10241b"}));
    P.strokePath(Pagoda, Line(Alpha("#ffcf80", .3), .8));
    QPainterPath Mound(QPointF(200, 390));
    Mound.cubicTo(290, 350, 330, 318, 400, 317);
    Mound.cubicTo(480, 315, 520, 326, 580, 345);
    Mound.cubicTo(620, 356, 640, 360, 660, 366);
    Mound.lineTo(660, 390);
    P.fillPath(Mound, Linear(0, 315, 0, 372, {"#16382a", "#0c2418"}));
    DrawHills(P, 368, 56, 130, 91, "#0e271c", "#0a1d14");
    DrawPine(P, 560, 350, 108, -20);
    DrawPine(P, 604, 356, 76, 14);
    DrawPine(P, 330, 352, 50, 12);
    DrawPine(P, 44, 372, 64, 18);
    DrawHills(P, 388, 34, 90, 99, "#0a1d14", "#06140d");
    DrawCrane(P, 236, 84, 13);
    DrawCrane(P, 268, 70, 10);
    DrawCrane(P, 208, 66, 8);
    DrawCrane(P, 556, 100, 9);
    P.fillRect(Box, Linear(0, 0, 0, 384,
                           {Alpha("#04100a", .35), Alpha("#04100a", 0), Alpha("#04100a", .25)}));
    P.restore();
    DrawEmblemTile(P, QRectF(52, 196, 74, 74), 4);
    P.save();
    SoftShadow(P, Rounded(44, 290, 290, 40, 20), 26, .34, 0, 0);
    P.restore();
    DrawTitle(P, QRectF(40, 268, 360, 80), "Pagodas", 66, Qt::AlignLeft);
    DrawGoldLine(P, Scalloped(Box.adjusted(4, 4, -4, -4), 16), 2.6);
    P.strokePath(Scalloped(Box.adjusted(10, 10, -10, -10), 15), Line(Alpha(GoldLight, .45), .9));
}

void AddSplash(FormPictures& To)
{
    AddForm(To, "imgLogo", SplashSheet, DrawLogo);
    AddForm(To, "imgTitle", SplashSheet, DrawTitlePicture);
}

void WriteIcons(const QString& Folder)
{
    for (const int Size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        QImage Image = NewImage(Size, Size);
        QPainter P(&Image);
        P.setRenderHint(QPainter::Antialiasing);
        DrawEmblemTile(P, QRectF(0, 0, Size, Size), Size < 32 ? 2 : Size < 64 ? 3 : 4);
        P.end();
        SavePng(Image, Folder + QString("/ICON/%1.png").arg(Size));
    }
}
