// compositions.h: how the paintings are laid out. Each function paints one whole scene.
#pragma once

#include "scene.h"

// compositions.cpp: what they share
Rgb GroundColour(const Scene& P);
// Count ranges one before the other, each nearer one lower and darker, the last at Foot.
void Ranges(Scene& P, Hill Kind, int Count, float Tall, float Foot, float Snow, float Trees);

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
