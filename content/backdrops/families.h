// families.h: the kinds of texture. Each function draws one picture from a recipe, lit, but not yet
// calmed, darkened towards the corners or dithered. Each reads its keys in its first lines.
#pragma once
#include "canvas.h"
#include "recipe.h"

// plain.cpp: smooth grounds
Picture DrawFelt(const Recipe& R);

// speckle.cpp: many small grains
Picture DrawGranite(const Recipe& R);
Picture DrawSand(const Recipe& R);
Picture DrawMicro(const Recipe& R);
Picture DrawScratched(const Recipe& R);

// rock.cpp: rough surfaces
Picture DrawRock(const Recipe& R);
Picture DrawCrumbs(const Recipe& R);
Picture DrawMoon(const Recipe& R);

// marble.cpp: veins and threads
Picture DrawMarble(const Recipe& R);
Picture DrawVeins(const Recipe& R);
Picture DrawThreads(const Recipe& R);

// clouds.cpp: what has no surface
Picture DrawSky(const Recipe& R);
Picture DrawGas(const Recipe& R);
Picture DrawVelvet(const Recipe& R);
Picture DrawStars(const Recipe& R);

// cells.cpp: what is made of cells
Picture DrawLeather(const Recipe& R);
Picture DrawPaving(const Recipe& R);
Picture DrawCrystal(const Recipe& R);
Picture DrawIce(const Recipe& R);

// stretched.cpp: what runs in one direction
Picture DrawPlanks(const Recipe& R);
Picture DrawStreaks(const Recipe& R);
Picture DrawReeds(const Recipe& R);
Picture DrawSilk(const Recipe& R);

// waves.cpp: patterns of circles, spirals and mirrors
Picture DrawEcho(const Recipe& R);
Picture DrawCarved(const Recipe& R);
Picture DrawKaleidoscope(const Recipe& R);
Picture DrawEmboss(const Recipe& R);

// woven.cpp: strands over and under each other
Picture DrawWoven(const Recipe& R);

// grids.cpp: equal pieces in rows
Picture DrawFloor(const Recipe& R);
Picture DrawChocolate(const Recipe& R);
Picture DrawBricks(const Recipe& R);
Picture DrawScales(const Recipe& R);

// strewn.cpp: things that lie about
Picture DrawStraw(const Recipe& R);
Picture DrawChips(const Recipe& R);
Picture DrawGrass(const Recipe& R);
Picture DrawBeans(const Recipe& R);
Picture DrawCandy(const Recipe& R);
Picture DrawCars(const Recipe& R);

// flowers.cpp
Picture DrawFlowers(const Recipe& R);

// forest.cpp
Picture DrawForest(const Recipe& R);
