// compositions.h: how the paintings are laid out. Each function paints one whole scene.
#pragma once

#include "scene.h"

// compositions.cpp: what they share
Rgb GroundColour(const Scene& P);
// Count ranges one before the other, each nearer one lower and darker, the last at Foot.
void Ranges(Scene& P, Hill Kind, int Count, float Tall, float Foot, float Snow, float Trees);

// A hill of which only a part is seen: Seen is asked at each place, 0 hidden to 1 seen.
using Share = std::function<float(float X, float Y, float Crest)>;
std::vector<float> PaintHillWhere(Scene& P, const HillLook& Look, const Share& Seen);

// A rock cut out along Path, lit from the side of the sun; it fades into haze between two heights.
void CutRock(Scene& P, const QPainterPath& Path, float X, float Half, Rgb Local, float Far,
             float HazeFrom, float HazeTo);

// Steps of stone that come down along Middle and widen towards us.
void StoneSteps(Scene& P, const Line& Middle, float From, float To, int Count, Rgb Local);

void PaperLamp(Scene& P, float X, float Y, float Size, Rgb Paper, float Far);

// A house front along a street. Spot turns a depth into the street, 0 far to 1 near, and a height
// into a place; the front reaches from depth Off to Near on Side -1 left or 1 right.
struct Wall {
    std::function<QPointF(float Depth, float Up)> Spot;
    float Off, Near, Tall;
    int Side;
};
void PaintFacade(Scene& P, const Wall& Front, std::uint32_t Kind, float Far, float Vanish);

// The sky without its own sun or moon, for pictures that set a greater one.
void PaintSkyWithoutOrb(Scene& P, float Horizon);

// compositions_water.cpp
void PaintLake(Scene& P);      // mountains over their mirror image
void PaintOpenSea(Scene& P);   // swell, rocks, a sail
void PaintCoast(Scene& P);     // cliffs on one side, surf below
void PaintHarbour(Scene& P);   // boats at anchor before a town
void PaintRiver(Scene& P);     // a river winds towards us
void PaintFalls(Scene& P);     // a waterfall in its gorge
void PaintLagoon(Scene& P);    // beach and palms
void PaintStillness(Scene& P); // one thing alone in wide water
void PaintMarsh(Scene& P);     // low horizon, reeds, wading birds
void PaintPond(Scene& P);      // a garden pond, bridge and lilies
void PaintIce(Scene& P);       // a frozen lake
void PaintFjord(Scene& P);     // steep walls left and right
void PaintAfloat(Scene& P);    // paper lanterns on a river
void PaintIslets(Scene& P);    // pillars of rock in a bay

// compositions_hills.cpp
void PaintCloudPeaks(Scene& P); // peaks above a sea of clouds
void PaintPillars(Scene& P);    // tall pillars in mist
void PaintCone(Scene& P);       // the one great mountain
void PaintAlps(Scene& P);       // a wall of peaks over a meadow
void PaintCrown(Scene& P);      // a building crowns a hill
void PaintGorge(Scene& P);      // a bridge high over a gorge
void PaintWall(Scene& P);       // a wall runs over the ridges
void PaintCliffside(Scene& P);  // a house clings to the rock
void PaintTerraces(Scene& P);   // rice terraces hold the sky
void PaintCanyon(Scene& P);     // mesas of red stone
void PaintDunes(Scene& P);      // sand and a caravan
void PaintVolcano(Scene& P);    // the mountain that burns

// compositions_land.cpp
void PaintWideSky(Scene& P);  // a strip of land under much sky
void PaintOneTree(Scene& P);  // a great tree in a meadow
void PaintFields(Scene& P);   // rows of a crop run away from us
void PaintHollow(Scene& P);   // a village seen from above
void PaintForest(Scene& P);   // among tall trunks
void PaintBirches(Scene& P);  // white trunks close by
void PaintGrove(Scene& P);    // among bamboo
void PaintAvenue(Scene& P);   // trees left and right of a road
void PaintStairs(Scene& P);   // steps up to a gate
void PaintBranch(Scene& P);   // a branch before the moon
void PaintMoonGate(Scene& P); // a garden seen through a round door
void PaintStreet(Scene& P);   // houses and lamps
void PaintOasis(Scene& P);    // palms around a pool
void PaintSteppe(Scene& P);   // grass to the foot of the mountains

// compositions_shores.cpp
void PaintLakeView(Scene& P);    // a lake with islands, seen from a hill
void PaintMirror(Scene& P);      // one mountain and its mirror image
void PaintStacks(Scene& P);      // pillars and arches in the surf
void PaintBay(Scene& P);         // a beach swings out of the distance
void PaintQuay(Scene& P);        // great sails close by
void PaintBrook(Scene& P);       // a brook over stones
void PaintCascade(Scene& P);     // a fall from ledge to ledge
void PaintHorseshoe(Scene& P);   // a river falls over a wide rim
void PaintAtoll(Scene& P);       // a small island with palms
void PaintJetty(Scene& P);       // planks lead out onto a lake
void PaintRiverTown(Scene& P);   // lights drift through a town
void PaintFloes(Scene& P);       // ice adrift
void PaintHighView(Scene& P);    // a fjord from a ledge high above
void PaintStoneGarden(Scene& P); // raked sand and stones
void PaintLotus(Scene& P);       // leaves and flowers close by

// compositions_heights.cpp
void PaintSummit(Scene& P);     // a single summit over clouds
void PaintSpires(Scene& P);     // needles of rock
void PaintFogValleys(Scene& P); // ridge behind ridge, fog between
void PaintSlope(Scene& P);      // a slope runs down across the picture
void PaintTarn(Scene& P);       // a lake under a wall of peaks
void PaintButtes(Scene& P);     // towers of red stone
void PaintChasm(Scene& P);      // a river deep between steps of rock
void PaintGreatDune(Scene& P);  // one dune with a winding crest
void PaintViaduct(Scene& P);    // a bridge of many arches
void PaintSunDisc(Scene& P);    // a building before a huge sun or moon
void PaintPerch(Scene& P);      // a house on top of a pillar
void PaintTeaHills(Scene& P);   // round hills combed by rows of tea

// compositions_places.cpp
void PaintPatchwork(Scene& P);   // hill over hill of fields
void PaintClearing(Scene& P);    // a house among firs
void PaintPoplars(Scene& P);     // a row of trees along a river
void PaintCulms(Scene& P);       // a view between near bamboo
void PaintBlossomHill(Scene& P); // a hill of crowns in bloom
void PaintVeranda(Scene& P);     // a garden seen from a dark room
void PaintAlley(Scene& P);       // houses up a stair
void PaintGreatBridge(Scene& P); // a bridge fills the picture
void PaintCamp(Scene& P);        // tents around a fire
void PaintRooftops(Scene& P);    // over the roofs of a town
void PaintGateFrame(Scene& P);   // a view through a near gate
void PaintFrostField(Scene& P);  // a lone house in snow
