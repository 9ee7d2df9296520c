// noise.h: the random ground that every texture is made of. All of it is a pure function of place
// and seed, so that the same recipe gives the same picture on every machine.
#pragma once
#include <cstdint>

// Mixes a lattice point and a seed into 32 well-spread bits.
std::uint32_t Hash(int X, int Y, std::uint32_t Seed);

// The same as a number from 0 up to, not including, 1.
float HashUnit(int X, int Y, std::uint32_t Seed);

// Smooth noise with one bump per unit of length, about -1 to 1.
float Noise(float X, float Y, std::uint32_t Seed);

// Octaves of Noise, each half as large and Gain times as strong; about -1 to 1. Scale is the size
// of the largest bumps in pixels.
float Fractal(float X, float Y, float Scale, int Octaves, std::uint32_t Seed, float Gain = 0.5F);

// Sharp crests where the noise passes through 0, 0 to 1; 1 on the crest.
float Ridges(float X, float Y, float Scale, int Octaves, std::uint32_t Seed, float Gain = 0.5F);

struct Place {
    float X, Y;
};

// A place pushed about by noise of the given scale, by up to Push pixels.
Place Warp(float X, float Y, float Scale, float Push, std::uint32_t Seed, int Octaves = 3);

// The irregular cells around one point per Scale by Scale pixels.
struct Cell {
    float Near, Next; // distances to the closest and second closest point, in cell sizes
    float Border;     // distance to the straight border with the next cell, in cell sizes
    float X, Y;       // the closest point, in pixels
    std::uint32_t Id; // random bits that name the cell
};
Cell CellAt(float X, float Y, float Scale, std::uint32_t Seed, float Jitter = 1);

// A number from 0 up to 1 out of a cell's name; Draw tells several such numbers apart.
float CellUnit(const Cell& C, std::uint32_t Draw);

// A queue of random numbers for things that are strewn.
struct Dice {
    std::uint32_t Seed;
    int Thrown = 0;
};
float Throw(Dice& D, float Low, float High);
int ThrowInt(Dice& D, int Count); // 0 to Count - 1

// 0 below Low, 1 above High, smooth between.
float Step(float Low, float High, float Value);
