// scene.h: what a painting is made of.
//
// A painting is one row of plan.tsv. A composition lays it out from back to front: sky, hills,
// water and ground, then what stands and lives there. All of them take their colours from the
// light of the scene, so that a picture keeps one mood.
#pragma once

#include "canvas.h"

#include <string>

struct Light {
    const char* Name;
    std::uint32_t Zenith, Upper, Lower, Horizon; // the sky from top to bottom
    std::uint32_t CloudLit, CloudDark;
    std::uint32_t Key, Ambient; // on the lit and on the shaded side of things
    std::uint32_t Haze;         // what the distance fades into
    float Thick;                // how fast: 0.5 clear to 2 fog
    std::uint32_t Orb;          // the sun or moon
    float OrbSize, OrbHeight;   // radius, 0 for none; height over the horizon, 0 to 1 of the sky
    float Glow;                 // strength of the shine around it
    char Kind;                  // d day, e evening or morning, n night, i ink
};

struct PlanRow {
    int Number = 0;
    std::string Composition, Light, Season, Sky, Weather, Motif, Life;
};

struct Seasons {
    const char* Name;
    std::uint32_t Grass, GrassDry, LeafDark, LeafMid, LeafLight, Ground, Blossom;
};

struct Scene {
    Canvas C;
    PlanRow Plan;
    const Light* L = nullptr;
    const Seasons* S = nullptr;
    float Horizon = 200;         // y
    float SunX = 500, SunY = 90; // of the light, seen or not
    int Variant = 0;        // how many pictures of this composition stand before it in the plan
    std::uint32_t Seed = 0; // for noise
    bool Night = false, Ink = false, Snow = false;
};

// plan.cpp: the plan and the tables it refers to; all stop with a message on a bad row
std::vector<PlanRow> ReadPlan(const std::string& Path);
const Light* FindLight(const std::string& Name);    // nullptr if there is none
const Seasons* FindSeason(const std::string& Name); // nullptr if there is none

// main.cpp
// A number between Low and High that the pictures of one composition spread evenly between them.
float Vary(Scene& P, float Low, float High, int Step = 4);

// light.cpp: colours as they look in the light of the scene
Rgb Sky(const Scene& P, float Up);                          // 0 horizon to 1 zenith
Rgb Lit(const Scene& P, Rgb Local, float Shade, float Far); // Shade 0 dark to 1 lit; Far 0 to 3
Rgb Fade(const Scene& P, Rgb Colour, float Far);
float SunSide(const Scene& P, float X); // -1 sun to the left, 1 to the right

// sky.cpp
void PaintSky(Scene& P, float Horizon); // gradient, stars, orb, clouds as planned
void PaintWeather(Scene& P);            // rain, snow, petals, fireflies as planned; goes last
void PaintMist(Scene& P, float Y, float Thickness, float Strength, float Unrest = 1);
void PaintRays(Scene& P, float Strength);              // shafts of light from the orb
void PaintCloudSea(Scene& P, float Horizon, float To); // clouds seen from above

// hills.cpp
enum class Hill { Soft, Alpine, Karst, Mesa, Dune, Cone, Cliff };
struct HillLook {
    Hill Kind = Hill::Soft;
    float Top = 150, Foot = 240; // y of the highest crest and of the foot
    float Grain = 200;           // width of a summit
    float Far = 1;
    Rgb Local{0.4f, 0.5f, 0.4f};
    float Snow = 0;                    // share of the height that is white
    float Trees = 0;                   // density of the woods on it
    float Mist = 0.5f;                 // haze at its foot
    float Centre = 360, Spread = 9999; // where the crest is highest, and how fast it falls off
};
std::vector<float> PaintHill(Scene& P, const HillLook& Look); // crest y for each x
Rgb RockColour(const Scene& P);
Rgb WoodColour(const Scene& P);

// ground.cpp: what lies flat
void PaintWater(Scene& P, const Mask* Area, float Shore, float Ripple, float Depth);
void PaintSea(Scene& P, float Horizon, float Swell, Rgb Deep);
void PaintGlitter(Scene& P, float From, float To, float Strength);
void PaintMeadow(Scene& P, const Mask* Area, float Horizon, Rgb Near, Rgb Distant, float Patches);
void PaintRows(Scene& P, const Mask* Area, float Horizon, float VanishX, float Spacing, Rgb Crop,
               Rgb Soil);
void PaintSurf(Scene& P, const Line& Shore, float Breadth);
void PaintFall(Scene& P, float X, float Top, float Foot, float Breadth, float Far);
void Grasses(Scene& P, float X0, float X1, float Y, float Tall, int Count, Rgb Colour, float Far);
void Flowers(Scene& P, float X0, float X1, float Y0, float Y1, int Count, Rgb Colour);
void Rock(Scene& P, float X, float Y, float Size, float Far);
Mask Below(const Line& Edge);                         // all that lies below a curve
Mask Along(const Line& Middle, float From, float To); // a band that widens towards us
void PathWay(Scene& P, const Line& Middle, float From, float To, Rgb Colour);

// plants.cpp: X, Y is where it leaves the ground, Tall its height
enum class Tree { Round, Cherry, Maple, Pine, Fir, Cypress, Birch, Willow, Palm, Bare, Bamboo };
void PaintTree(Scene& P, Tree Kind, float X, float Y, float Tall, float Far);
Tree SeasonTree(Scene& P);                        // one that suits the season
Tree FestiveTree(const Scene& P, Tree Otherwise); // cherry in spring, maple in autumn
void Wood(Scene& P, const std::vector<float>& Crest, float X0, float X1, float Tall, float Far,
          float Density);                        // a far wood along a line
void Overhang(Scene& P, Tree Kind, float Reach); // a near branch from the upper left corner
void Bush(Scene& P, float X, float Y, float Size, float Far);
void Reeds(Scene& P, float X0, float X1, float Y, float Tall, int Count, float Far);
void Trunk(Scene& P, float X, float Y, float Top, float Half, bool White, float Far);
void LeafMass(Scene& P, float X, float Y, float RX, float RY, float Touch, int Count, Rgb Dark,
              Rgb Middle, Rgb Light, float Far);

// buildings.cpp: X the middle, Y the ground, Tall the height
bool KnownMotif(const std::string& Name);
void PaintMotif(Scene& P, const std::string& Name, float X, float Y, float Tall, float Far);
void Cottage(Scene& P, float X, float Y, float Tall, float Far, int Kind);
void Village(Scene& P, float X0, float X1, float Y, float Tall, int Count, float Far);
void Bridge(Scene& P, float X0, float X1, float Y, float Rise, float Far, bool Stone);
void Lantern(Scene& P, float X, float Y, float Tall, float Far);
void Boat(Scene& P, const std::string& Kind, float X, float Y, float Size, float Far);
void WindowGlow(Scene& P, float X, float Y, float Size);

// life.cpp
bool KnownLife(const std::string& Name);
void PaintLife(Scene& P, float Ground); // as planned; Ground is where walkers stand

// compositions: one function each, listed in compositions.cpp
using Composition = void (*)(Scene& P);
Composition FindComposition(const std::string& Name); // nullptr if there is none
