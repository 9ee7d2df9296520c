// families.h: the kinds of texture. Each function draws one picture from a recipe, unfinished:
// light on its own relief, but not yet calmed, darkened at the corners or dithered.
#pragma once
#include "canvas.h"
#include "recipe.h"

// plain.cpp: smooth grounds
Picture DrawUnauthored(const Recipe& R); // stands in for a backdrop nobody has drawn yet
Picture DrawFelt(const Recipe& R);

// speckle.cpp: many small grains
Picture DrawGranite(const Recipe& R);
