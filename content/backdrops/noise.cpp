#include "noise.h"

#include <algorithm>
#include <cmath>

std::uint32_t Hash(int X, int Y, std::uint32_t Seed)
{
    std::uint32_t H = static_cast<std::uint32_t>(X) * 0x9E3779B1U ^
                      static_cast<std::uint32_t>(Y) * 0x85EBCA77U ^ Seed * 0xC2B2AE3DU;
    H ^= H >> 15;
    H *= 0x2C1B3C6DU;
    H ^= H >> 12;
    H *= 0x297A2D39U;
    H ^= H >> 15;
    return H;
}

float HashUnit(int X, int Y, std::uint32_t Seed)
{
    return static_cast<float>(Hash(X, Y, Seed) >> 8) * (1.0F / 16777216.0F);
}

// The slope that a lattice point gives to its surroundings, one of 16 directions.
static float Slope(int X, int Y, std::uint32_t Seed, float DX, float DY)
{
    static constexpr float Direction[16][2] = {
        {1, 0},  {0.924F, 0.383F},   {0.707F, 0.707F},   {0.383F, 0.924F},
        {0, 1},  {-0.383F, 0.924F},  {-0.707F, 0.707F},  {-0.924F, 0.383F},
        {-1, 0}, {-0.924F, -0.383F}, {-0.707F, -0.707F}, {-0.383F, -0.924F},
        {0, -1}, {0.383F, -0.924F},  {0.707F, -0.707F},  {0.924F, -0.383F},
    };
    const float* D = Direction[Hash(X, Y, Seed) & 15];
    return D[0] * DX + D[1] * DY;
}

float Noise(float X, float Y, std::uint32_t Seed)
{
    const float FloorX = std::floor(X), FloorY = std::floor(Y);
    const int IX = static_cast<int>(FloorX), IY = static_cast<int>(FloorY);
    const float FX = X - FloorX, FY = Y - FloorY;
    const float U = FX * FX * FX * (FX * (FX * 6 - 15) + 10);
    const float V = FY * FY * FY * (FY * (FY * 6 - 15) + 10);
    const float A = Slope(IX, IY, Seed, FX, FY), B = Slope(IX + 1, IY, Seed, FX - 1, FY);
    const float C = Slope(IX, IY + 1, Seed, FX, FY - 1);
    const float D = Slope(IX + 1, IY + 1, Seed, FX - 1, FY - 1);
    const float Top = A + (B - A) * U, Bottom = C + (D - C) * U;
    return (Top + (Bottom - Top) * V) * 1.5F;
}

float Fractal(float X, float Y, float Scale, int Octaves, std::uint32_t Seed, float Gain)
{
    float Sum = 0, Strength = 1, Total = 0;
    X /= Scale;
    Y /= Scale;
    for (int I = 0; I < Octaves; ++I) {
        Sum += Noise(X, Y, Seed + static_cast<std::uint32_t>(I) * 101U) * Strength;
        Total += Strength;
        Strength *= Gain;
        // Each octave is turned, or the lattices would add up to visible rows and columns.
        const float Turned = (X * 0.8F - Y * 0.6F) * 2.03F + 17.3F;
        Y = (X * 0.6F + Y * 0.8F) * 2.03F + 5.7F;
        X = Turned;
    }
    return Sum / Total * 1.3F;
}

float Ridges(float X, float Y, float Scale, int Octaves, std::uint32_t Seed, float Gain)
{
    float Sum = 0, Strength = 1, Total = 0;
    X /= Scale;
    Y /= Scale;
    for (int I = 0; I < Octaves; ++I) {
        const float N = std::abs(Noise(X, Y, Seed + static_cast<std::uint32_t>(I) * 101U));
        Sum += std::max(0.0F, 1 - 1.4F * N) * Strength;
        Total += Strength;
        Strength *= Gain;
        const float Turned = (X * 0.8F - Y * 0.6F) * 2.03F + 17.3F;
        Y = (X * 0.6F + Y * 0.8F) * 2.03F + 5.7F;
        X = Turned;
    }
    return Sum / Total;
}

Place Warp(float X, float Y, float Scale, float Push, std::uint32_t Seed, int Octaves)
{
    return {X + Push * Fractal(X, Y, Scale, Octaves, Seed + 7001U),
            Y + Push * Fractal(X, Y, Scale, Octaves, Seed + 9001U)};
}

Cell CellAt(float X, float Y, float Scale, std::uint32_t Seed, float Jitter)
{
    const float CX = X / Scale, CY = Y / Scale;
    const int IX = static_cast<int>(std::floor(CX)), IY = static_cast<int>(std::floor(CY));
    Cell Found{9, 9, 9, 0, 0, 0};
    float NextX = 0, NextY = 0;
    for (int DY = -2; DY <= 2; ++DY) {
        for (int DX = -2; DX <= 2; ++DX) {
            if (std::abs(DX) + std::abs(DY) == 4) continue;
            const std::uint32_t Id = Hash(IX + DX, IY + DY, Seed);
            const float JX = static_cast<float>(Id & 0xFFFF) / 65536.0F - 0.5F;
            const float JY = static_cast<float>(Id >> 16) / 65536.0F - 0.5F;
            const float PX = static_cast<float>(IX + DX) + 0.5F + Jitter * JX;
            const float PY = static_cast<float>(IY + DY) + 0.5F + Jitter * JY;
            const float Square = (PX - CX) * (PX - CX) + (PY - CY) * (PY - CY);
            if (Square < Found.Near) {
                Found.Next = Found.Near;
                NextX = Found.X;
                NextY = Found.Y;
                Found.Near = Square;
                Found.X = PX;
                Found.Y = PY;
                Found.Id = Id;
            } else if (Square < Found.Next) {
                Found.Next = Square;
                NextX = PX;
                NextY = PY;
            }
        }
    }
    const float Apart =
        std::hypot(NextX - Found.X, NextY - Found.Y) + 1e-6F; // between the two points
    Found.Border = (Found.Next - Found.Near) / (2 * Apart);
    Found.Near = std::sqrt(Found.Near);
    Found.Next = std::sqrt(Found.Next);
    Found.X *= Scale;
    Found.Y *= Scale;
    return Found;
}

float CellUnit(const Cell& C, std::uint32_t Draw)
{
    return HashUnit(static_cast<int>(C.Id & 0xFFFF), static_cast<int>(C.Id >> 16), Draw);
}

float Throw(Dice& D, float Low, float High)
{
    return Low + (High - Low) * HashUnit(D.Thrown++, 77, D.Seed);
}

int ThrowInt(Dice& D, int Count)
{
    return std::min(Count - 1, static_cast<int>(Throw(D, 0, static_cast<float>(Count))));
}

float Step(float Low, float High, float Value)
{
    const float T = std::clamp((Value - Low) / (High - Low), 0.0F, 1.0F);
    return T * T * (3 - 2 * T);
}
