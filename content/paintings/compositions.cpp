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

std::vector<float> PaintHillWhere(Scene& P, const HillLook& Look, const Share& Seen)
{
    const std::vector<Rgb> Before = P.C.Px;
    const std::vector<float> Crest = PaintHill(P, Look);
    for (int Y = 0; Y < Height; ++Y)
        for (int X = 0; X < Width; ++X) {
            const std::size_t I = std::size_t(Y * Width + X);
            P.C.Px[I] = Mix(Before[I], P.C.Px[I], Seen(float(X), float(Y), Crest[std::size_t(X)]));
        }
    return Crest;
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

static bool LampsAreLit(const Scene& P)
{
    return P.Night || P.L->Kind == 'e' || P.Plan.Weather == "rain";
}

void PaperLamp(Scene& P, float X, float Y, float Size, Rgb Paper, float Far)
{
    if (!LampsAreLit(P)) {
        Dab(P.C, X, Y, Size * 1.45f, Size * 1.05f, Pi / 2, Lit(P, Paper, 0.7f, Far), 1);
        return;
    }
    SoftDab(P.C, X, Y, Size * 3.2f, Size * 3.2f, Mix(Paper, Hex(0xffc060), 0.5f), 0.5f);
    Dab(P.C, X, Y, Size * 1.45f, Size * 1.05f, Pi / 2, Paper, 1);
    Dab(P.C, X, Y, Size * 0.8f, Size * 0.6f, Pi / 2, Mix(Paper, Hex(0xfff0b0), 0.7f), 0.9f);
}

void PaintFacade(Scene& P, const Wall& W, std::uint32_t Kind, float Far, float Vanish)
{
    static constexpr Rgb Walls[] = {{0.86f, 0.78f, 0.64f},
                                    {0.55f, 0.36f, 0.24f},
                                    {0.90f, 0.86f, 0.78f},
                                    {0.62f, 0.28f, 0.20f},
                                    {0.45f, 0.42f, 0.38f}};
    const Rgb Local = Walls[(Kind + P.Seed) % 5];
    const float Tall = W.Tall, Side = float(W.Side);
    const bool Lights = LampsAreLit(P);
    const auto Between = [&](float T, float Up) { return W.Spot(Lerp(W.Off, W.Near, T), Up); };
    const auto Panel = [&](float T0, float T1, float Low, float High) {
        return QPolygonF(
            {Between(T0, Low), Between(T0, High), Between(T1, High), Between(T1, Low)});
    };
    Draw(P.C, [&](QPainter& Q) {
        const float Shade = 0.42f + 0.25f * Side * (P.SunX > Vanish ? -1.0f : 1.0f);
        Q.setBrush(ToQColor(Lit(P, Local, Shade, Far)));
        Q.drawPolygon(Panel(0, 1, 0, Tall));
        Q.setBrush(ToQColor(Lit(P, Times(Local, 0.7f), Shade - 0.1f, Far))); // a plinth of stone
        Q.drawPolygon(Panel(0, 1, -2, Tall * 0.07f));
        for (int Floor = 0; Floor < 2; ++Floor)
            for (int K = 0; K < 3; ++K) { // shop fronts below, shutters above
                const float T0 = 0.08f + 0.31f * float(K), T1 = T0 + 0.24f,
                            Low = Floor ? Tall * 0.55f : Tall * 0.08f,
                            High = Floor ? Tall * 0.82f : Tall * 0.40f;
                const bool On = Lights && (std::uint32_t(K + Floor) + Kind + P.Seed) % 3;
                Q.setBrush(ToQColor(
                    On ? Fade(P, Mix(Hex(0xffb848), Hex(0xffe8a8), 0.3f * float(K)), Far * 0.6f)
                       : Lit(P, Hex(0x4c3c34), 0.3f, Far)));
                Q.drawPolygon(Panel(T0, T1, Low, High));
                Q.setPen(QPen(ToQColor(Lit(P, Hex(0x3c2c24), 0.3f, Far)), 0.7 + 1.4 * W.Near));
                for (int Bar = 1; Bar < 4; ++Bar)
                    Q.drawLine(Between(Lerp(T0, T1, float(Bar) / 4), Low),
                               Between(Lerp(T0, T1, float(Bar) / 4), High));
                Q.drawLine(Between(T0, (Low + High) / 2), Between(T1, (Low + High) / 2));
                Q.setPen(Qt::NoPen);
            }
        const Rgb Tile = P.Snow ? Hex(0xeaf0f8) : Kind % 3 ? Hex(0x464c54) : Hex(0x74483c);
        for (const float Up : {0.46f, 1.0f}) { // eaves reach over the street
            const float Reach = Up > 0.9f ? 30 : 38;
            const auto Eave = [&](float D) {
                const QPointF K = W.Spot(D, Tall * Up - 10);
                return QPointF(K.x() - Side * Reach * D, K.y() + 16 * D);
            };
            Q.setBrush(ToQColor(Lit(P, Tile, 0.6f, Far)));
            Q.drawPolygon(QPolygonF({W.Spot(W.Off, Tall * Up + 24), Eave(W.Off), Eave(W.Near),
                                     W.Spot(W.Near, Tall * Up + 24)}));
            Q.setPen(QPen(ToQColor(Lit(P, Times(Tile, 0.75f), 0.4f, Far)), 0.5 + W.Near));
            for (int K = 1; K < 12; ++K) { // courses of tiles
                const float D = Lerp(W.Off, W.Near, float(K) / 12);
                Q.drawLine(W.Spot(D, Tall * Up + 24), Eave(D));
            }
            Q.setPen(QPen(ToQColor(Lit(P, Times(Tile, 0.5f), 0.2f, Far)), 0.8 + 3 * W.Near));
            Q.drawLine(Eave(W.Off), Eave(W.Near));
            Q.setPen(Qt::NoPen);
        }
    });
    static constexpr std::uint32_t Papers[] = {0xe83828, 0xffb040, 0xf8e0b0};
    const QPointF Door = Between(0.2f, Tall * 0.36f);
    if (W.Near > 0.08f)
        PaperLamp(P, float(Door.x()) - Side * 30 * W.Near, float(Door.y()), 3 + 20 * W.Near,
                  Hex(Papers[(P.Seed + Kind) % 3]), Far);
}
