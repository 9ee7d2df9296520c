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

static bool IsPictureKind(const QString& Kind)
{
    static const QStringList Names = {"emoji", "drawing", "flag", "symbola", "maya", "aegyptus"};
    return Names.contains(Kind);
}

static DrawKind KindOf(const Face& F)
{
    for (const KindRow& Kind : Kinds)
        if (F.Kind == Kind.Name) return Kind.Draw;
    FatalError(F.Keys.Place + ": no kind of face is called " + F.Kind);
    return nullptr;
}

void DrawFace(QPainter& P, const Face& F)
{
    P.save();
    if (Has(F.Keys, "flip")) { // right becomes left
        P.translate(100, 0);
        P.scale(-1, 1);
    }
    if (IsPictureKind(F.Kind))
        DrawPictureFace(P, F);
    else
        KindOf(F)(P, F.Keys);
    P.restore();
}
