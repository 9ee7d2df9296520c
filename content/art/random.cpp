// random.cpp: chance and noise that are the same on every machine

#include "art.h"

#include <cmath>

static std::uint64_t Next(Random& R)
{
    std::uint64_t Z = (R.State += 0x9e3779b97f4a7c15u);
    Z = (Z ^ (Z >> 30)) * 0xbf58476d1ce4e5b9u;
    Z = (Z ^ (Z >> 27)) * 0x94d049bb133111ebu;
    return Z ^ (Z >> 31);
}

double Uniform(Random& R, double Low, double High)
{
    return Low + (High - Low) * (static_cast<double>(Next(R) >> 11) * 0x1p-53);
}

double Gauss(Random& R, double Mean, double Deviation)
{
    // The sum of twelve is near enough to a bell, and needs no function that differs by platform.
    double Sum = -6;
    for (int I = 0; I < 12; ++I) Sum += Uniform(R);
    return Mean + Deviation * Sum;
}

int Pick(Random& R, int Count)
{
    return static_cast<int>(Next(R) % static_cast<std::uint64_t>(Count));
}

static double Lattice(int X, int Y, std::uint32_t Seed)
{
    std::uint32_t H = static_cast<std::uint32_t>(X) * 0x8da6b343u ^
                      static_cast<std::uint32_t>(Y) * 0xd8163841u ^ Seed * 0xcb1ab31fu;
    H = (H ^ (H >> 16)) * 0x7feb352du;
    H = (H ^ (H >> 15)) * 0x846ca68bu;
    return (H ^ (H >> 16)) * 0x1p-32;
}

double ValueNoise(double X, double Y, std::uint32_t Seed)
{
    const double Fx = std::floor(X), Fy = std::floor(Y);
    const int Ix = static_cast<int>(Fx), Iy = static_cast<int>(Fy);
    const auto Ease = [](double T) { return T * T * (3 - 2 * T); };
    const double Tx = Ease(X - Fx), Ty = Ease(Y - Fy);
    const double Top = std::lerp(Lattice(Ix, Iy, Seed), Lattice(Ix + 1, Iy, Seed), Tx);
    const double Foot = std::lerp(Lattice(Ix, Iy + 1, Seed), Lattice(Ix + 1, Iy + 1, Seed), Tx);
    return std::lerp(Top, Foot, Ty);
}

double FractalNoise(double X, double Y, std::uint32_t Seed, int Octaves)
{
    double Sum = 0, Weight = 1, Total = 0;
    for (int I = 0; I < Octaves; ++I) {
        Sum += Weight * ValueNoise(X, Y, Seed + static_cast<std::uint32_t>(I));
        Total += Weight;
        Weight /= 2;
        X *= 2;
        Y *= 2;
    }
    return Sum / Total;
}
