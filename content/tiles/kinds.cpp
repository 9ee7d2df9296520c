// kinds.cpp: every kind of face by its name

#include "kinds.h"

struct KindRow {
    const char* Name;
    DrawKind Draw;
};

constexpr KindRow Kinds[] = {
    {"african", DrawAfrican}, {"bird", DrawBird},
    {"bug", DrawBug},         {"butterfly", DrawButterfly},
    {"classic", DrawClassic}, {"colour", DrawColourSample},
    {"cosmos", DrawCosmos},   {"dino", DrawDino},
    {"dog", DrawDog},         {"egg", DrawEgg},
    {"fish", DrawFish},       {"flower", DrawFlower},
    {"hand", DrawHand},       {"letter", DrawLetterSample},
    {"mask", DrawMask},       {"monument", DrawMonument},
    {"plane", DrawPlane},     {"sea", DrawSea},
    {"shield", DrawShield},   {"service", DrawService},
    {"shoe", DrawShoe},       {"sign", DrawSign},
    {"sino", DrawSino},       {"sunset", DrawSunset},
    {"tree", DrawTree},
};

constexpr const char* PictureKinds[] = {"emoji",   "clipart", "drawing", "flag",
                                        "symbola", "maya",    "aegyptus"};

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
    FatalError(F.Keys.Place + ": no kind of face is called " + F.Kind);
}
