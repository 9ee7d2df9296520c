// recipe.h: the table backdrops.txt, one backdrop a line.
#pragma once
#include "canvas.h"

#include <map>
#include <set>
#include <string>
#include <vector>

struct Recipe {
    int Number = 0;
    std::string Name, Family;
    std::map<std::string, std::string> Keys;
    int Line = 0;                       // in backdrops.txt
    mutable std::set<std::string> Read; // the keys that the family has asked for
};

// All recipes of a file, in the order of their numbers from 0. Throws std::runtime_error naming the
// file and line of a bad one.
std::vector<Recipe> ReadRecipes(const std::string& Path);

// A key's value, or what stands in for a key that is not given. Throw std::runtime_error.
float Number(const Recipe& R, const std::string& Key, float Otherwise);
int Count(const Recipe& R, const std::string& Key, int Otherwise);
std::string Word(const Recipe& R, const std::string& Key, const std::string& Otherwise);
Palette Colours(const Recipe& R, const std::string& Key); // must be given
bool Has(const Recipe& R, const std::string& Key);

// Each backdrop has a seed of its own.
unsigned SeedOf(const Recipe& R);

// A key that nobody has read is a misspelt one: throws std::runtime_error.
void CheckAllKeysRead(const Recipe& R);
