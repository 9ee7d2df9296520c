// checked.h: whole numbers and tables that never leave their bounds unseen.
//
// An overflow and an index outside a table are fatal in every build: a game with a wrong counter
// would write wrong records.
#pragma once

#include "frame/platform.h"

#include <array>
#include <cstdint>
#include <limits>
#include <string>

// A whole number of the width of T (8, 16 or 32 bits). Arithmetic is that of int; storing is
// checked.
template <typename T> struct Whole {
    T Value = 0;

    constexpr Whole() = default;
    constexpr Whole(long long New) : Value(Fit(New)) {}
    constexpr Whole(long New) : Value(Fit(New)) {}
    constexpr Whole(int New) : Value(Fit(New)) {}
    constexpr operator int() const { return Value; }

    constexpr Whole& operator+=(int Step)
    {
        return *this = Whole(static_cast<long long>(Value) + Step);
    }
    constexpr Whole& operator-=(int Step)
    {
        return *this = Whole(static_cast<long long>(Value) - Step);
    }
    constexpr Whole& operator++() { return *this += 1; }
    constexpr Whole& operator--() { return *this -= 1; }

    static constexpr T Fit(long long New)
    {
        if (New < std::numeric_limits<T>::min() || New > std::numeric_limits<T>::max())
            FatalError("overflow: " + std::to_string(New) + " does not fit in " +
                       std::to_string(8 * sizeof(T)) + " bits");
        return static_cast<T>(New);
    }
};

using U8 = Whole<std::uint8_t>;
using I16 = Whole<std::int16_t>;
using I32 = Whole<std::int32_t>;

// The lowest and highest index of one dimension of a table, both included.
template <int Low, int High> struct Span {
    static constexpr int First = Low, Last = High, Count = High - Low + 1;
};

// A table of one to three dimensions with bounds of its own: BoardMap(-1, 40, 0). The last index
// runs fastest. The name stands in the error of a wrong index.
template <typename T, typename... Spans> struct Table {
    static constexpr int Dimensions = sizeof...(Spans);
    static constexpr int Size = (Spans::Count * ...);
    static constexpr std::array<int, Dimensions> First = {Spans::First...};
    static constexpr std::array<int, Dimensions> Last = {Spans::Last...};

    const char* Name;
    std::array<T, Size> Cells{};

    constexpr explicit Table(const char* TableName) : Name(TableName) {}

    template <typename... Indexes> constexpr T& operator()(Indexes... Index)
    {
        return Cells[Place({static_cast<int>(Index)...})];
    }
    template <typename... Indexes> constexpr const T& operator()(Indexes... Index) const
    {
        return Cells[Place({static_cast<int>(Index)...})];
    }
    constexpr void Clear() { Cells.fill(T{}); }

    constexpr int Place(const std::array<int, Dimensions>& Index) const
    {
        constexpr std::array<int, Dimensions> Counts = {Spans::Count...};
        int Result = 0;
        for (int D = 0; D < Dimensions; ++D) {
            if (Index[D] < First[D] || Index[D] > Last[D]) WrongIndex(Index);
            Result = Result * Counts[D] + (Index[D] - First[D]);
        }
        return Result;
    }
    [[noreturn]] void WrongIndex(const std::array<int, Dimensions>& Index) const
    {
        std::string Text;
        for (int D = 0; D < Dimensions; ++D) Text += (D ? "," : "") + std::to_string(Index[D]);
        std::string Bounds;
        for (int D = 0; D < Dimensions; ++D)
            Bounds += (D ? ", " : "") + std::to_string(First[D]) + ".." + std::to_string(Last[D]);
        FatalError(std::string(Name) + "(" + Text + ") is outside " + Bounds);
    }
};
