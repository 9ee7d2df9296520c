// kinds.cpp: every kind of face by its name

#include "tiles.h"

struct KindRow {
    const char* Name;
    DrawKind Draw;
};

constexpr KindRow Kinds[] = {
    {"bug", DrawBug},
    {"butterfly", DrawButterfly},
    {"classic", DrawClassic},
    {"colour", DrawColourSample},
    {"dog", DrawDog},
    {"egg", DrawEgg},
    {"fish", DrawFish},
    {"flower", DrawFlower},
    {"letter", DrawLetterSample},
    {"mask", DrawMask},
    {"plane", DrawPlane},
    {"service", DrawService},
    {"shoe", DrawShoe},
    {"tree", DrawTree},
};

constexpr const char* PictureKinds[] = {"emoji", "clipart", "flag", "symbola", "maya", "aegyptus"};

void DrawFace(QPainter& P, const Face& F)
{
    for (const char* Name : PictureKinds)
        if (F.Kind == Name) return DrawPictureFace(P, F);
    for (const KindRow& Kind : Kinds)
        if (F.Kind == Kind.Name) {
            P.save();
            Kind.Draw(P, F.Keys);
            P.restore();
            return;
        }
    // not yet drawn: a plain numbered tile
    QPainterPath Name = TextPath(FontFile::SansBold, F.Keys.Place.section(':', 1), 40);
    Fill(P, Fitted(Name, QRectF(20, 30, 60, 40)), "#8a8a80");
}
