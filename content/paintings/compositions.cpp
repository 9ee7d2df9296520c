// compositions.cpp: the names by which plan.tsv calls the compositions, and what they share.

#include "compositions.h"

#include <cmath>

struct CompositionRow {
    const char* Name;
    Composition Paint;
};

constexpr CompositionRow Compositions[] = {
    {"lake", PaintLake},
    {"sea", PaintOpenSea},
    {"coast", PaintCoast},
    {"harbour", PaintHarbour},
    {"river", PaintRiver},
    {"falls", PaintFalls},
    {"lagoon", PaintLagoon},
    {"stillness", PaintStillness},
    {"marsh", PaintMarsh},
    {"pond", PaintPond},
    {"ice", PaintIce},
    {"fjord", PaintFjord},
    {"afloat", PaintAfloat},
    {"islets", PaintIslets},
    {"cloudpeaks", PaintCloudPeaks},
    {"pillars", PaintPillars},
    {"cone", PaintCone},
    {"alps", PaintAlps},
    {"crown", PaintCrown},
    {"gorge", PaintGorge},
    {"wall", PaintWall},
    {"cliffside", PaintCliffside},
    {"terraces", PaintTerraces},
    {"canyon", PaintCanyon},
    {"dunes", PaintDunes},
    {"volcano", PaintVolcano},
    {"widesky", PaintWideSky},
    {"onetree", PaintOneTree},
    {"fields", PaintFields},
    {"hollow", PaintHollow},
    {"forest", PaintForest},
    {"birches", PaintBirches},
    {"grove", PaintGrove},
    {"avenue", PaintAvenue},
    {"stairs", PaintStairs},
    {"branch", PaintBranch},
    {"moongate", PaintMoonGate},
    {"street", PaintStreet},
    {"oasis", PaintOasis},
    {"steppe", PaintSteppe},
    {"lakeview", PaintLakeView},
    {"mirror", PaintMirror},
    {"stacks", PaintStacks},
    {"bay", PaintBay},
    {"quay", PaintQuay},
    {"brook", PaintBrook},
    {"cascade", PaintCascade},
    {"horseshoe", PaintHorseshoe},
    {"atoll", PaintAtoll},
    {"jetty", PaintJetty},
    {"rivertown", PaintRiverTown},
    {"floes", PaintFloes},
    {"highview", PaintHighView},
    {"stonegarden", PaintStoneGarden},
    {"lotus", PaintLotus},
    {"summit", PaintSummit},
    {"spires", PaintSpires},
    {"fogvalleys", PaintFogValleys},
    {"slope", PaintSlope},
    {"tarn", PaintTarn},
    {"buttes", PaintButtes},
    {"chasm", PaintChasm},
    {"greatdune", PaintGreatDune},
    {"viaduct", PaintViaduct},
    {"sundisc", PaintSunDisc},
    {"perch", PaintPerch},
    {"teahills", PaintTeaHills},
    {"patchwork", PaintPatchwork},
    {"clearing", PaintClearing},
    {"poplars", PaintPoplars},
    {"culms", PaintCulms},
    {"blossomhill", PaintBlossomHill},
    {"veranda", PaintVeranda},
    {"alley", PaintAlley},
    {"greatbridge", PaintGreatBridge},
    {"camp", PaintCamp},
    {"rooftops", PaintRooftops},
    {"gateframe", PaintGateFrame},
    {"frostfield", PaintFrostField},
};

Composition FindComposition(const std::string& Name)
{
    for (const CompositionRow& Row : Compositions)
        if (Name == Row.Name) return Row.Paint;
    return nullptr;
}

Rgb GroundColour(const Scene& P)
{
    return Hex(P.S->Grass);
}

void Ranges(Scene& P, Hill Kind, int Count, float Tall, float Foot, float Snow, float Trees)
{
    float Hand = Any(P.C) < 0.5f ? 1.0f : -1.0f;
    for (int I = 0; I < Count; ++I) {
        const float T = Count == 1 ? 0 : float(I) / float(Count - 1);
        HillLook Look;
        Look.Kind = I + 1 < Count || Count == 1 ? Kind : Hill::Soft;
        Look.Foot = Foot + 4 * T;
        Look.Top = Look.Foot - Tall * (1.35f - 0.80f * T) * Any(P.C, 0.85f, 1.15f);
        Look.Grain = Any(P.C, 110, 280) * (1 - 0.3f * T);
        Look.Far = 1.55f - 1.15f * T;
        Look.Local = Mix(RockColour(P), WoodColour(P), 0.25f + 0.7f * T);
        Look.Snow = T < 0.6f ? Snow : Snow * 0.4f;
        Look.Trees = T > 0.4f ? Trees : 0;
        Look.Mist = 0.75f - 0.40f * T;
        // the ranges come in from left and right in turn, so that their crests cross
        Look.Centre = 360 + Hand * Any(P.C, 60, 330);
        Look.Spread = Any(P.C, 230, 460) + 160 * (1 - T);
        Hand = -Hand;
        PaintHill(P, Look);
    }
}

void PaintSkyWithoutOrb(Scene& P, float Horizon)
{
    const Light* const Own = P.L;
    Light Plain = *Own;
    Plain.OrbSize = 0;
    P.L = &Plain;
    PaintSky(P, Horizon);
    P.L = Own;
}

// A rock cut out along Path, lit from the side of the sun.
void CutRock(Scene& P, const QPainterPath& Path, float X, float Half, Rgb Local, float Far,
             float HazeFrom, float HazeTo)
{
    const Mask Area = MaskOf(Path);
    for (int Y = 0; Y < Height; ++Y)
        for (int PX = 0; PX < Width; ++PX) {
            const std::size_t I = std::size_t(Y * Width + PX);
            if (Area[I] <= 0) continue;
            const float R = Ridged(float(PX) / 34, float(Y) / 80, 3, P.Seed + std::uint32_t(X)),
                        Layer = Noise(float(PX) / 120, float(Y) / 5, P.Seed + 3) - 0.5f;
            const float Side = SunSide(P, X) * (float(PX) - X) / Half;
            Rgb Colour = Lit(P, Times(Local, 0.82f + 0.35f * R + 0.30f * Layer),
                             Clamp(0.45f + 0.38f * Side + 0.5f * (R - 0.45f)), Far);
            Colour = Mix(Colour, Hex(P.L->Haze), 0.8f * Smooth(HazeFrom, HazeTo, float(Y)));
            Blend(P.C, PX, Y, Colour, Area[I]);
            P.C.Flow[I] = Pi / 2 + 0.8f * (R - 0.5f);
        }
    Repaint(P.C, &Area, {{Clamp(Half / 10, 2.2f, 5), 5, -1, 0.05f}, {1.7f, 4, 0.09f, 0.04f}});
}

void StoneSteps(Scene& P, const Line& Middle, float From, float To, int Count, Rgb Local)
{
    const Line Way = Curve(Middle, 24);
    const auto Spot = [&](float T) { return Way[std::size_t(Clamp(T) * float(Way.size() - 1))]; };
    for (int I = 0; I < Count; ++I) {
        const float T = std::pow(float(I) / float(Count), 1.3f),
                    Next = std::pow(float(I + 1) / float(Count), 1.3f), Far = 0.6f * (1 - T);
        const Point A = Spot(T), B = Spot(Next);
        const float Half = Lerp(From, To, T), Deep = std::max(B.Y - A.Y, 1.5f);
        const int Stones = 4 + AnyOf(P.C, 4);
        for (int K = 0; K < Stones; ++K) { // slab beside slab, each worn in its own way
            const float X0 = A.X + Half * (2 * float(K) / float(Stones) - 1) + Any(P.C, 0, 2) * T,
                        X1 = A.X + Half * (2 * float(K + 1) / float(Stones) - 1),
                        Sag = AnyBell(P.C);
            const Rgb Slab = Times(Local, Any(P.C, 0.82f, 1.12f));
            Stroke(P.C, {{X0, A.Y + Deep * 0.72f}, {X1, A.Y + Deep * 0.72f}}, Deep * 0.36f,
                   Deep * 0.36f, Lit(P, Times(Slab, 0.55f), 0.18f, Far), 1);
            Stroke(
                P.C,
                {{X0, A.Y + Deep * 0.2f},
                 {(X0 + X1) / 2, A.Y + Deep * 0.2f + Sag * 0.6f},
                 {X1, A.Y + Deep * 0.2f}},
                Deep * 0.33f, Deep * 0.33f,
                Lit(P, P.Snow ? Mix(Slab, Hex(0xf4f8ff), 0.85f) : Slab, Any(P.C, 0.6f, 0.9f), Far),
                1);
        }
        for (int K = 0; K < 6; ++K) { // moss or drifts creep in from the sides
            const float U = (K % 2 ? 1.0f : -1.0f) * (1 - 0.45f * Any(P.C) * Any(P.C));
            Dab(P.C, A.X + U * Half, A.Y + Deep * Any(P.C), 3 + 18 * T, 1.2f + 4 * T, 0,
                Lit(P, P.Snow ? Hex(0xf4f8ff) : Hex(0x64803c), 0.5f, Far), 0.6f);
        }
    }
}
