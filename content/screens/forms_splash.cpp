// forms_splash.cpp: the logo and the title of the start, and the icon of the program

#include "forms.h"

// The emblem: a tile of the board with a red sun and a pagoda before it. Small icons show fewer
// roofs, so that they stay clear.
void DrawEmblemTile(QPainter& P, const QRectF& Box, int Tiers)
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
    DrawReliefScene(P, Box.adjusted(12, Box.height() - 92, -12, -12));
    const QRectF Tile(Box.center().x() - 88, 38, 168, 168);
    P.save();
    P.translate(-5, 7);
    SoftShadow(P, Rounded(Tile.x() + 4, Tile.y() + 4, 156, 158, 16), 12, .5);
    P.restore();
    DrawEmblemTile(P, Tile, 4);
    DrawRule(P, 90, Box.width() - 90, 234);
    DrawTitle(P, QRectF(0, 244, Box.width(), 36), "A game of tile stacks", 23);
}

static void DrawTitlePicture(QPainter& P, const QRectF& Box)
{
    P.save();
    P.setClipPath(Scalloped(Box.adjusted(3, 3, -3, -3), 16));
    DrawTitleScene(P, Box);
    P.restore();
    DrawTitle(P, QRectF(38, 266, 320, 62), "Pagodas", 58, Qt::AlignLeft);
    DrawText(P, QRectF(41, 337, 320, 20), "Finesse  ·  Agility  ·  Wisdom",
             {.Size = 15,
              .Kind = Weight::Bold,
              .Place = Qt::AlignLeft | Qt::AlignVCenter,
              .Spacing = .6});
    DrawGoldLine(P, Scalloped(Box.adjusted(4, 4, -4, -4), 16), 2.6);
    P.strokePath(Scalloped(Box.adjusted(10, 10, -10, -10), 15), Line(Alpha(GoldLight, .45), .9));
}

void AddSplash(FormPictures& To)
{
    AddForm(To, "imgLogo", SplashSheet, DrawLogo);
    AddForm(To, "imgTitle", SplashSheet, DrawTitlePicture);
}

// Up to 24 px the walls of the tile would leave the picture no room: its face alone is shown.
static void DrawSmallIcon(QPainter& P, int Size)
{
    P.scale(Size / 24.0, Size / 24.0);
    const QPainterPath Face = Rounded(.5, .5, 23, 23, 4);
    P.fillPath(Face, Linear(23, 0, 1, 23, {IvoryLight, IvoryDark}));
    P.strokePath(Face, Line(JadeFoot, 1));
    P.fillPath(Circle(12, 11, 8.6), Linear(20, 3, 4, 19, {"#ef5a3c", "#c22f1e"}));
    const QPainterPath Pagoda = Fitted(PagodaPath(2), QRectF(3, 2.5, 18, 18.5));
    P.strokePath(Pagoda, Line("#fffaea", 1));
    P.fillPath(Pagoda, QColor("#12503a"));
}

void WriteIcons(const QString& Folder)
{
    for (const int Size : {16, 24, 32, 48, 64, 128, 256, 512}) {
        QImage Image = NewImage(Size, Size);
        QPainter P(&Image);
        P.setRenderHint(QPainter::Antialiasing);
        if (Size <= 24)
            DrawSmallIcon(P, Size);
        else
            DrawEmblemTile(P, QRectF(0, 0, Size, Size), Size < 64 ? 3 : 4);
        P.end();
        SavePicture(Image, Folder + QString("/ICON/%1.png").arg(Size));
    }
}
