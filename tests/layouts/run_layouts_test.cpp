#include "board/run_layouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <tuple>
#include <vector>

namespace
{

struct RunTableRow {
    int Number;
    size_t Runs;
    int FirstRow, LastRow;
    std::vector<int> TilesOnLayer;
};

const RunTableRow RunTable[] = {
    {14, 56, 2, 12, {56, 40, 28, 16, 4}},   {15, 56, 2, 12, {52, 52, 28, 12}},
    {19, 96, 2, 12, {51, 47, 31, 9, 3, 3}}, {25, 78, 2, 12, {60, 60, 24}},
    {36, 84, 2, 12, {48, 48, 34, 6, 6, 2}}, {39, 109, 2, 12, {40, 39, 39, 15, 7, 3, 1}},
    {40, 75, 1, 13, {44, 44, 46, 6, 4}},    {43, 72, 1, 13, {43, 33, 33, 33, 2}},
    {49, 92, 2, 12, {53, 39, 31, 19, 2}},   {53, 100, 1, 13, {39, 37, 35, 33}},
    {54, 99, 2, 12, {44, 42, 42, 16}},      {60, 94, 2, 12, {38, 38, 38, 30}},
};

using Place = std::tuple<int, int, int>; // z, x, y

std::vector<Place> PlacesOf(int Number)
{
    std::vector<Place> Places;
    const RunLayout* Layout = FindRunLayout(Number);
    if (!Layout) return Places;
    for (const TileRun& Run : Layout->Runs)
        for (int I = 0; I < Run.Count; ++I) Places.emplace_back(Run.Z, Run.X + 2 * I, Run.Y);
    return Places;
}

bool Touch(const Place& A, const Place& B)
{
    return std::abs(std::get<1>(A) - std::get<1>(B)) < 2 &&
           std::abs(std::get<2>(A) - std::get<2>(B)) < 2;
}

} // namespace

TEST(RunLayouts, TwelveNumbersAndNoOther)
{
    std::set<int> Held;
    for (const RunTableRow& Row : RunTable) Held.insert(Row.Number);
    for (int Number = -1; Number <= 121; ++Number) {
        const RunLayout* Found = FindRunLayout(Number);
        EXPECT_EQ(Found != nullptr, Held.count(Number) == 1) << Number;
        if (Found) {
            EXPECT_EQ(Found->Number, Number);
        }
    }
}

TEST(RunLayouts, RunsRowsColumnsAndTilesOnEachLayerAreThoseOfTheTable)
{
    for (const RunTableRow& Row : RunTable) {
        SCOPED_TRACE(Row.Number);
        ASSERT_NE(FindRunLayout(Row.Number), nullptr);
        EXPECT_EQ(FindRunLayout(Row.Number)->Runs.size(), Row.Runs);
        const std::vector<Place> Places = PlacesOf(Row.Number);
        EXPECT_EQ(Places.size(), 144u);
        std::vector<int> TilesOnLayer;
        std::set<int> Rows, Columns;
        for (const auto& [Z, X, Y] : Places) {
            ASSERT_GE(Z, 1);
            TilesOnLayer.resize(std::max<size_t>(TilesOnLayer.size(), Z));
            ++TilesOnLayer[Z - 1];
            Rows.insert(Y);
            Columns.insert(X);
        }
        EXPECT_EQ(TilesOnLayer, Row.TilesOnLayer);
        EXPECT_EQ(*Rows.begin(), Row.FirstRow);
        EXPECT_EQ(*Rows.rbegin(), Row.LastRow);
        EXPECT_EQ(*Columns.begin(), 1);
        EXPECT_EQ(*Columns.rbegin(), 23);
    }
}

TEST(RunLayouts, TilesOfALayerDoNotOverlapAndUpperOnesAreHeld)
{
    for (const RunTableRow& Row : RunTable) {
        SCOPED_TRACE(Row.Number);
        const std::vector<Place> Places = PlacesOf(Row.Number);
        EXPECT_TRUE(
            std::is_sorted(Places.begin(), Places.end(), [](const Place& A, const Place& B) {
                return std::get<0>(A) < std::get<0>(B);
            }));
        for (size_t I = 0; I < Places.size(); ++I) {
            bool Held = std::get<0>(Places[I]) == 1;
            for (size_t J = 0; J < Places.size(); ++J) {
                if (!Touch(Places[I], Places[J])) continue;
                EXPECT_FALSE(I != J && std::get<0>(Places[I]) == std::get<0>(Places[J]))
                    << "overlap of " << I << " and " << J;
                Held |= std::get<0>(Places[J]) == std::get<0>(Places[I]) - 1;
            }
            EXPECT_TRUE(Held) << "tile " << I;
        }
    }
}

// The numbers of this layout are fixed one by one, not only in sum.
TEST(RunLayouts, BridgesBeginsAndEndsAsWritten)
{
    const std::span<const TileRun> Runs = FindRunLayout(19)->Runs;
    const auto Is = [](const TileRun& Run, int X, int Y, int Z, int Count) {
        return Run.X == X && Run.Y == Y && Run.Z == Z && Run.Count == Count;
    };
    EXPECT_TRUE(Is(Runs[0], 1, 2, 1, 1));
    EXPECT_TRUE(Is(Runs[1], 8, 2, 1, 2));
    EXPECT_TRUE(Is(Runs[20], 5, 7, 1, 2));
    EXPECT_TRUE(Is(Runs[33], 1, 2, 2, 1));
    EXPECT_TRUE(Is(Runs[85], 11, 2, 4, 2));
    EXPECT_TRUE(Is(Runs[95], 12, 7, 6, 1));
}

// A wrong number on one side of a table would break it. Every layout is as wide as the board's 23
// half tiles; two are not the same from above and below.
TEST(RunLayouts, EachIsTheSameFromLeftAndRight)
{
    for (const RunTableRow& Row : RunTable) {
        SCOPED_TRACE(Row.Number);
        const std::vector<Place> Places = PlacesOf(Row.Number);
        const std::set<Place> All(Places.begin(), Places.end());
        const bool SameUpsideDown = Row.Number != 53 && Row.Number != 60;
        for (const auto& [Z, X, Y] : Places) {
            EXPECT_TRUE(All.contains({Z, 24 - X, Y})) << X << ", " << Y << " on layer " << Z;
            EXPECT_TRUE(!SameUpsideDown || All.contains({Z, X, 14 - Y}))
                << X << ", " << Y << " on layer " << Z;
        }
    }
}
