// title.cpp: the scene of the title - a pagoda by a lake at sunset, behind a cherry branch.
//
// Painted from the back to the front in pixels of 640 by 384. The sun stands at the upper right, so
// everything is lit from there.

#include "forms.h"

#include <cmath>

static const QPointF Sun(506, 142);
constexpr double Shore = 268; // where the lake begins

static void SoftSpot(QPainter& P, double X, double Y, double Rx, double Ry, const QColor& Colour,
                     double Strength)
{
    P.save();
    P.translate(X, Y);
    P.scale(1, Ry / Rx);
    P.fillPath(Circle(0, 0, Rx),
               Radial(0, 0, Rx,
                      {Alpha(Colour, Strength), Alpha(Colour, Strength * .55), Alpha(Colour, 0)}));
    P.restore();
}

static void DrawSky(QPainter& P)
{
    P.fillRect(
        QRectF(0, 0, 640, Shore + 4),
        Linear(0, 0, 0, Shore, {"#0d2f42", "#1f5663", "#5f8580", "#c9a36c", "#f0b766", "#fbdc9a"}));
    SoftSpot(P, Sun.x(), Sun.y(), 330, 250, "#ffdf9a", .55);
    SoftSpot(P, Sun.x(), Sun.y(), 150, 140, "#fff0c0", .75);
    P.fillPath(Circle(Sun.x(), Sun.y(), 46),
               Radial(Sun.x() + 10, Sun.y() - 12, 62, {"#fffdf0", "#fff1c4", "#ffd27c"}));
}

// A bank of cloud: soft spots, dark above and lit from the sun below.
static void DrawCloud(QPainter& P, double X, double Y, double Width, double Height,
                      std::uint64_t Seed)
{
    Random R{Seed};
    for (int I = 0; I < 46; ++I) {
        const double T = Gauss(R, 0, .36), Dy = Gauss(R, 0, .3) * (1 - .6 * std::abs(T));
        const double Near = std::exp(-std::abs(X + T * Width - Sun.x()) / 220);
        const double Lit = std::clamp(.35 + Dy * .6 + Near * .5, 0.0, 1.0);
        SoftSpot(P, X + T * Width, Y + Dy * Height, Uniform(R, 16, 52), Uniform(R, 2.2, 6),
                 Mix("#48606c", "#ffe6b4", Lit), .3);
    }
}

// The height of a range of hills at X, from noise of its own.
static double RangeAt(double X, double Foot, double High, double Wide, std::uint32_t Seed)
{
    return Foot - High * (FractalNoise(X / Wide + 7, Seed * 1.7, Seed, 5) - .3);
}

static void DrawRange(QPainter& P, double Foot, double High, double Wide, std::uint32_t Seed,
                      const QColor& Crest, const QColor& Low, bool Wooded = false)
{
    Random R{Seed};
    QPainterPath Range(QPointF(-10, Foot + 80));
    for (double X = -10; X <= 650; X += 1.5) {
        const double Y = RangeAt(X, Foot, High, Wide, Seed);
        const double Tree = Wooded ? Uniform(R, 0, 5.5) : 0;
        Range.lineTo(X, Y);
        if (Tree > 2) {
            Range.lineTo(X + .7, Y - Tree);
            Range.lineTo(X + 1.4, Y);
        }
    }
    Range.lineTo(650, Foot + 80);
    Range.closeSubpath();
    P.fillPath(Range, Linear(0, Foot - High * .6, 0, Foot + 6, {Crest, Mix(Crest, Low, .4), Low}));
}

static void DrawMist(QPainter& P, double Y, double Height, double Strength, std::uint64_t Seed)
{
    Random R{Seed};
    for (int I = 0; I < 30; ++I)
        SoftSpot(P, Uniform(R, -60, 700), Y + Gauss(R, 0, Height * .3), Uniform(R, 70, 190),
                 Uniform(R, .12, .34) * Height, "#ffe9c4", Strength);
}

static void DrawLake(QPainter& P)
{
    P.fillRect(QRectF(0, Shore, 640, 384 - Shore),
               Linear(0, Shore, 0, 384, {"#e8b670", "#a78a62", "#3f6a68", "#17474c", "#0b2c33"}));
    Random R{77};
    for (int I = 0; I < 520; ++I) { // ripples; under the sun they shine
        const double T = std::sqrt(Uniform(R)), Y = Shore + 3 + T * 112;
        const double X = Uniform(R, -20, 660), Width = (4 + 22 * T) * Uniform(R, .5, 1.5);
        const double Near = std::exp(-std::pow((X - Sun.x()) / (26 + 60 * T), 2));
        P.fillPath(Ellipse(X, Y, Width, .35 + .75 * T),
                   Near > Uniform(R) * .9 ? Alpha("#fff2c4", .5 * (1 - .35 * T))
                                          : Alpha(I % 3 ? "#0b2c33" : "#d8b684", .16));
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
    P.fillPath(Wings, QColor("#233a42"));
}

// --- the pagoda ---

// One roof with its upturned eaves: Y is the line of the eaves, the ridge lies High above.
static QPainterPath RoofPath(double X, double Y, double Half, double High)
{
    const double Top = Half * .4;
    QPainterPath Path(QPointF(X - Top, Y - High));
    Path.cubicTo(X - Top - 2, Y - High * .45, X - Half * .72, Y - High * .1, X - Half,
                 Y - High * .34);
    Path.quadTo(X - Half * .88, Y + 2, X - Half * .6, Y + 3);
    Path.lineTo(X + Half * .6, Y + 3);
    Path.quadTo(X + Half * .88, Y + 2, X + Half, Y - High * .34);
    Path.cubicTo(X + Half * .72, Y - High * .1, X + Top + 2, Y - High * .45, X + Top, Y - High);
    Path.closeSubpath();
    return Path;
}

static void DrawRoof(QPainter& P, double X, double Y, double Half, double High)
{
    const QPainterPath Roof = RoofPath(X, Y, Half, High);
    P.fillPath(Roof, Linear(X + Half, Y - High, X - Half, Y + 3,
                            {"#7fb59a", "#3f7d66", "#1e5244", "#123a31", "#0c2a25"}));
    P.save();
    P.setClipPath(Roof, Qt::IntersectClip);
    for (int I = -9; I <= 9; ++I) { // rows of roof tiles
        QPainterPath Row(QPointF(X + I * Half * .045, Y - High));
        Row.quadTo(X + I * Half * .06, Y - High * .35, X + I * Half * .12, Y + 3);
        P.strokePath(Row, Line(Alpha(I > 2 ? "#c9ecd2" : "#04140f", .3), .8));
    }
    P.restore();
    QPainterPath Eaves(QPointF(X - Half, Y - High * .34));
    Eaves.quadTo(X - Half * .88, Y + 2, X - Half * .6, Y + 3);
    Eaves.lineTo(X + Half * .6, Y + 3);
    Eaves.quadTo(X + Half * .88, Y + 2, X + Half, Y - High * .34);
    QPen Gilt = Line(Gold, 1.5);
    Gilt.setBrush(Linear(X + Half, 0, X - Half, 0, {"#fff0b0", "#e0a93a", "#6a4410"}));
    P.strokePath(Eaves, Gilt);
    P.strokePath(Roof, Line(Alpha("#041410", .55), .6));
}

static void DrawWall(QPainter& P, double X, double Top, double Foot, double Half, int Windows)
{
    const QRectF Wall(X - Half, Top, 2 * Half, Foot - Top);
    P.fillRect(Wall, Linear(Wall.right(), 0, Wall.left(), 0,
                            {"#c9623e", "#8f3626", "#5c211c", "#341415"}));
    P.fillRect(QRectF(Wall.x(), Top, Wall.width(), 4), Alpha("#0a0808", .55)); // the roof's shade
    const double Step = Wall.width() / Windows, Width = Step * .46;
    for (int I = 0; I < Windows; ++I) {
        const QRectF Window(Wall.x() + Step * (I + .5) - Width / 2, Top + 4.5, Width,
                            Wall.height() - 8);
        SoftSpot(P, Window.center().x(), Window.center().y(), Width * 1.3, Width * 1.2, "#ffb850",
                 .5);
        P.fillRect(Window, Linear(0, Window.top(), 0, Window.bottom(), {"#ffedb0", "#ffb84e"}));
        P.fillRect(QRectF(Window.center().x() - .4, Window.top(), .8, Window.height()),
                   QColor("#4a1d14"));
    }
    P.fillRect(QRectF(Wall.x() - 3, Foot - 3, Wall.width() + 6, 1.4), QColor("#e0a93a")); // railing
    for (double Post = Wall.x() - 3; Post <= Wall.right() + 2; Post += 3.2)
        P.fillRect(QRectF(Post, Foot - 3, .8, 3), QColor("#7a4a18"));
}

static void DrawPagoda(QPainter& P, double X, double Foot)
{
    struct Tier {
        double Eaves, Half, High;
        int Windows;
    };
    const Tier Tiers[] = {{-176, 32, 19, 1},
                          {-142, 41, 20, 3},
                          {-106, 50, 21, 3},
                          {-67, 60, 23, 5},
                          {-25, 71, 25, 5}};
    const QColor Stones[] = {"#b7a98a", "#8d8168"};
    for (int I = 0; I < 2; ++I) { // the stone steps
        const QRectF Slab(X - 50 - 9 * I, Foot - 9 + 5 * I, 100 + 18 * I, 5);
        P.fillRect(Slab, Linear(Slab.right(), 0, Slab.left(), 0,
                                {Light(Stones[I], .35), Stones[I], Dark(Stones[I], .6)}));
    }
    for (int I = 4; I >= 0; --I) {
        const double Eaves = Foot + Tiers[I].Eaves;
        const double Below = I == 4 ? Foot - 8 : Foot + Tiers[I + 1].Eaves - Tiers[I + 1].High + 1;
        DrawWall(P, X, Eaves + 2, Below, Tiers[I].Half * .56, Tiers[I].Windows);
    }
    for (const Tier& One : Tiers) DrawRoof(P, X, Foot + One.Eaves, One.Half, One.High);
    const double Top = Foot - 194;
    P.fillRect(QRectF(X - .9, Top - 44, 1.8, 46), QColor("#c8902a"));
    for (int I = 0; I < 6; ++I)
        P.fillPath(Ellipse(X, Top - 6 - I * 5, 5 - I * .55, 1.3),
                   Linear(X + 5, 0, X - 5, 0, {"#fff0b0", "#c8902a", "#5a3a0c"}));
    P.fillPath(Circle(X, Top - 44, 2.2), QColor("#ffe9a0"));
}

static void DrawHeadland(QPainter& P)
{
    QPainterPath Land(QPointF(300, 296));
    Land.cubicTo(345, 288, 385, 279, 425, 274);
    Land.cubicTo(500, 266, 580, 262, 660, 246);
    Land.lineTo(660, 306);
    Land.cubicTo(560, 306, 420, 302, 300, 296);
    P.fillPath(Land, Linear(560, 250, 400, 306, {"#57805a", "#24553f", "#0f3328", "#082019"}));
    Random R{9};
    for (int I = 0; I < 260; ++I) { // grass along the rise
        const double X = Uniform(R, 330, 645), T = (X - 300) / 360;
        const double Y = 291 - 26 * T + Uniform(R, -4, 12);
        P.strokePath(Polyline({{X, Y}, {X + Uniform(R, -2, 2.5), Y - Uniform(R, 2, 5)}}),
                     Line(Alpha(I % 4 ? "#0a2a1e" : "#9cc47a", .5), .7));
    }
}

// A pine with flat cushions of needles, lit at their upper right.
static void DrawPine(QPainter& P, double X, double Foot, double High, double Lean)
{
    QPainterPath Trunk(QPointF(X, Foot));
    Trunk.cubicTo(X + Lean * .2, Foot - High * .4, X - Lean * .3, Foot - High * .6, X + Lean,
                  Foot - High);
    P.strokePath(Trunk, Line("#20160f", High * .05));
    Random R{static_cast<std::uint64_t>(X * 7 + High)};
    for (int I = 0; I < 6; ++I) {
        const double At = .42 + I * .115, Side = I % 2 ? 1 : -1;
        const double Cx = X + Lean * At * At + Side * High * (.22 - I * .03), Cy = Foot - High * At;
        P.strokePath(Polyline({{X + Lean * At * At, Cy + High * .05}, {Cx, Cy}}),
                     Line("#20160f", High * .02));
        for (int K = 0; K < 34; ++K) {
            const double Dx = Gauss(R, 0, High * .085), Dy = Gauss(R, 0, High * .018);
            const double Lit = std::clamp(.3 + Dx / High * 2.2 - Dy / High * 9, 0.0, 1.0);
            P.fillPath(Ellipse(Cx + Dx, Cy + Dy, High * .05, High * .02, Uniform(R, -20, 20)),
                       Mix("#0a231a", "#5d8a58", Lit));
        }
    }
}

static void DrawReflection(QPainter& P, const QImage& Above)
{
    // The headland mirrored at its foot, squeezed and broken by the ripples.
    constexpr double Foot = 297, Squeeze = .42;
    P.save();
    P.setOpacity(.42);
    for (double Y = Foot; Y < 384; Y += .75) {
        const double From = Foot - (Y - Foot) / Squeeze;
        if (From < 0) break;
        const double Sway = std::sin(Y * 1.7) * (Y - Foot) * .035;
        P.drawImage(QRectF(Sway, Y, 640, .8), Above,
                    QRectF(0, From * Sharpness, 640 * Sharpness, .8 / Squeeze * Sharpness));
    }
    P.restore();
}

// --- the branch before it all ---

static void DrawBlossom(QPainter& P, double X, double Y, double Size, double Turn, double Shade)
{
    for (int I = 0; I < 5; ++I) {
        const double Angle = (Turn + 72 * I) * 3.14159265 / 180;
        const double Cx = X + std::cos(Angle) * Size * .52, Cy = Y + std::sin(Angle) * Size * .52;
        P.fillPath(Ellipse(Cx, Cy, Size * .5, Size * .4, Turn + 72 * I),
                   Mix(Mix("#fff4f2", "#f7b7c4", Shade), "#c9657f",
                       std::clamp((Cy - Cx + X - Y) / Size * .25, 0.0, 1.0)));
    }
    P.fillPath(Circle(X, Y, Size * .2), QColor("#d2486a"));
    P.fillPath(Circle(X + Size * .05, Y - Size * .05, Size * .09), QColor("#ffe9a0"));
}

static void DrawBranch(QPainter& P)
{
    const std::vector<Points> Twigs = {
        {{-10, 26}, {40, 34}, {92, 30}, {150, 44}, {205, 40}, {252, 54}},
        {{92, 30}, {120, 20}, {160, 12}, {196, 14}},
        {{40, 34}, {62, 58}, {92, 74}, {110, 96}},
        {{150, 44}, {172, 62}, {188, 84}},
        {{-10, 60}, {18, 74}, {40, 98}, {50, 126}},
        {{205, 40}, {232, 32}, {262, 34}},
    };
    double Width = 7;
    for (const Points& Twig : Twigs) {
        for (std::size_t I = 1; I < Twig.size(); ++I) {
            const double Thin = Width * (1 - .72 * (double(I) - 1) / (double(Twig.size()) - 1));
            P.strokePath(Polyline({Twig[I - 1], Twig[I]}), Line("#21130f", Thin));
            P.strokePath(Polyline({Twig[I - 1] + QPointF(Thin * .2, -Thin * .3),
                                   Twig[I] + QPointF(Thin * .2, -Thin * .3)}),
                         Line(Alpha("#b8764a", .55), Thin * .22));
        }
        Width = 3.4;
    }
    Random R{21};
    for (int Pass = 0; Pass < 2; ++Pass)
        for (const Points& Twig : Twigs)
            for (std::size_t I = 1; I < Twig.size(); ++I)
                for (int K = 0; K < 5; ++K) {
                    const double T = Uniform(R);
                    const QPointF At = Twig[I - 1] * (1 - T) + Twig[I] * T;
                    DrawBlossom(P, At.x() + Gauss(R, 0, 6), At.y() + Gauss(R, 0, 5) + 2,
                                Uniform(R, 4.2, 7.4), Uniform(R, 0, 72),
                                Pass == 0 ? Uniform(R, .6, 1) : Uniform(R, 0, .6));
                }
    for (int I = 0; I < 26; ++I) { // petals that fall
        const double X = Uniform(R, 30, 420), Y = Uniform(R, 60, 330);
        P.fillPath(Ellipse(X, Y, Uniform(R, 1.6, 3), Uniform(R, .8, 1.5), Uniform(R, 0, 180)),
                   Alpha(Mix("#fff0f0", "#f09ab0", Uniform(R)), .85));
    }
}

static void DrawScenery(QPainter& P)
{
    DrawSky(P);
    DrawCloud(P, 170, 118, 190, 26, 4);
    DrawCloud(P, 560, 72, 150, 20, 5);
    DrawCloud(P, 380, 84, 170, 16, 6);
    DrawCloud(P, 90, 170, 150, 16, 7);
    DrawCloud(P, 600, 190, 120, 14, 8);
    DrawRange(P, 258, 190, 170, 41, "#8c9a94", "#f2c98c");
    DrawMist(P, 250, 26, .12, 5);
    DrawRange(P, 266, 110, 120, 52, "#557c78", "#d8b684");
    DrawMist(P, 262, 18, .12, 6);
    DrawRange(P, Shore + 2, 48, 96, 63, "#2c5f57", "#8fa07a", true);
    DrawMist(P, Shore, 12, .16, 8);
}

void DrawTitleScene(QPainter& P, const QRectF& Box)
{
    DrawScenery(P);
    DrawLake(P);
    QImage Land = NewPicture(Box.width(), Box.height());
    QPainter Q;
    BeginDrawing(Q, Land);
    DrawPine(Q, 606, 268, 92, -16);
    DrawHeadland(Q);
    DrawPagoda(Q, 462, 279);
    DrawPine(Q, 566, 284, 118, 14);
    DrawPine(Q, 372, 289, 44, -8);
    Q.end();
    DrawReflection(P, Land);
    P.drawImage(QRectF(0, 0, 640, 384), Land);
    DrawMist(P, 300, 12, .06, 12);
    DrawCrane(P, 300, 132, 11);
    DrawCrane(P, 328, 120, 8);
    DrawCrane(P, 282, 114, 7);
    DrawBranch(P);
    // The lower left darkens under the name of the game.
    P.fillRect(Box, Linear(60, 384, 140, 196,
                           {Alpha("#03161b", .92), Alpha("#03161b", .8), Alpha("#03161b", 0)}));
    P.fillRect(Box, Linear(0, 0, 0, 384,
                           {Alpha("#04100a", .3), Alpha("#04100a", 0), Alpha("#04100a", 0),
                            Alpha("#04100a", .3)}));
}
