// tile_body.cpp: the body of a tile

#include "art.h"

const BodyTint IvoryBody = {"ivory",   "#fffdf3", "#eee3c6", "#d8c8a0",
                            "#b9a678", "#3f8f63", "#27694a"};
const BodyTint JadeBody = {"jade",    "#eefaf0", "#bfe0c8", "#8fc0a0",
                           "#6fa584", "#2f7a56", "#1c5238"};
const BodyTint SlateBody = {"slate",   "#f1f4f8", "#c9d1dc", "#a3adbb",
                            "#838e9e", "#4a5a72", "#333f54"};
const BodyTint WoodBody = {"wood",    "#fbe9c6", "#e0b87c", "#c4935a",
                           "#a2743f", "#5a3016", "#3a1c0a"};
const BodyTint SandBody = {"sand",    "#fdf3d8", "#ead0a0", "#d3b27c",
                           "#b6925a", "#7c4020", "#552a14"};

const BodyTint* FindBodyTint(const QString& Name)
{
    for (const BodyTint* Tint : {&IvoryBody, &JadeBody, &SlateBody, &WoodBody, &SandBody})
        if (Name == Tint->Name) return Tint;
    return nullptr;
}

// Lit and marked tiles look the same in every set, so that a player learns them once.
static BodyTint TintOfState(TileState State, const BodyTint& Tint)
{
    if (State == TileLit)
        return {"lit", "#fffbd0", "#ffd95a", "#e6c25c", "#c99c33", Tint.EdgeLeft, Tint.EdgeFoot};
    if (State == TileMarked)
        return {"marked", "#e6f6ff", "#8fc9f7", "#8fb6da", "#6a94bd", "#2f6fb0", "#1e4f86"};
    return Tint;
}

// The walls between two depths, 0 at the face and 7 where the layer beneath begins.
static void DrawWalls(QPainter& P, double Near, double Far, const QColor& Left, const QColor& Foot)
{
    P.fillPath(
        Polygon({{7 - Near, Near}, {7 - Far, Far}, {7 - Far, 53 + Far}, {7 - Near, 53 + Near}}),
        Linear(0, 0, 0, 60, {Light(Left, .18), Left, Dark(Left, .12)}));
    P.fillPath(Polygon({{7 - Near, 53 + Near},
                        {7 - Far, 53 + Far},
                        {60 - Far, 53 + Far},
                        {60 - Near, 53 + Near}}),
               Linear(0, 0, 60, 0, {Dark(Foot, .1), Foot}));
}

// Light on the top and right edges, shade on the left and bottom ones.
static void DrawBevel(QPainter& P)
{
    QPainterPath Bright(QPointF(10, 1.5));
    Bright.lineTo(54.6, 1.5);
    Bright.quadTo(58.5, 1.5, 58.5, 5.4);
    Bright.lineTo(58.5, 49);
    P.strokePath(Bright, Line(Alpha("#ffffff", .95), 1.1));
    QPainterPath Shade(QPointF(8.5, 4));
    Shade.lineTo(8.5, 47.6);
    Shade.quadTo(8.5, 51.5, 12.4, 51.5);
    Shade.lineTo(57, 51.5);
    P.strokePath(Shade, Line(Alpha("#8d7a4c", .45), 1.1));
}

// A bright frame for lit and a dark one with corners for marked: they differ also in grey.
static void DrawStateFrame(QPainter& P, TileState State)
{
    if (State == TileNormal) return;
    const QColor Frame = State == TileLit ? LitFrame : MarkFrame;
    P.strokePath(Rounded(9.2, 2.2, 48.6, 48.6, 4), Line(Alpha(Frame, .95), 1.8));
    P.strokePath(Rounded(10.6, 3.6, 45.8, 45.8, 3.2), Line(Alpha("#ffffff", .6), .7));
    if (State != TileMarked) return;
    for (const double X : {9.2, 57.8})
        for (const double Y : {2.2, 50.8}) {
            const double Dx = X < 30 ? 6.5 : -6.5, Dy = Y < 30 ? 6.5 : -6.5;
            P.fillPath(Polygon({{X, Y}, {X + Dx, Y}, {X, Y + Dy}}), QColor(MarkFrame));
        }
}

void DrawTileBody(QPainter& P, TileState State, const BodyTint& Tint)
{
    const BodyTint T = TintOfState(State, Tint);
    P.save();
    P.setRenderHint(QPainter::Antialiasing);

    // The whole body is the face, moved down-left through all depths.
    const QPainterPath Base = Rounded(7, 0, 53, 53, 5.5);
    QPainterPath Whole;
    Whole.setFillRule(Qt::WindingFill);
    for (int Step = 0; Step < 12; ++Step)
        Whole = Whole.united(Base.translated(-.6 * Step, .6 * Step));
    P.setClipPath(Whole);
    DrawWalls(P, 0, 7, T.WallLeft, T.WallFoot);
    DrawWalls(P, 3.6, 7.2, T.EdgeLeft, T.EdgeFoot);
    P.setPen(Line(Alpha("#20180a", .25), .5)); // the seam of the two halves
    P.drawLine(QPointF(3.4, 3.6), QPointF(3.4, 56.6));
    P.drawLine(QPointF(3.4, 56.6), QPointF(56.4, 56.6));
    P.setClipping(false);
    P.strokePath(Whole, Line(Alpha(TileRim, .8), .9));

    const QPainterPath Face = Rounded(7.4, .4, 52.2, 52.2, 5.2);
    P.fillPath(Face,
               Linear(60, 0, 7, 53, {T.FaceLight, Mix(T.FaceLight, T.FaceDark, .45), T.FaceDark}));
    P.strokePath(Face, Line(Alpha(Outline1, .8), .8));
    DrawBevel(P);
    DrawStateFrame(P, State);
    P.restore();
}
