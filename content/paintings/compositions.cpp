// compositions.cpp: the names by which plan.tsv calls the compositions, and what they share.

#include "compositions.h"

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
