// Hover, press and scan are what a player does most: they take nothing from the heap.
#include "tests/common/count_allocations.h"
#include "tests/common/game_dir.h"

#include <gtest/gtest.h>

constexpr int LargeLayout = 115; // 288 tiles

static void StartGame(int GameType)
{
    BootGame();
    Platform.PlaySoundFile = [](const std::string&) {}; // other tests keep what they hear
    GameState.GameType = GameType;
    ShowGamePanel();
    GameState.LayoutNumber = LargeLayout;
    PressAt(imgbutStart);
    ASSERT_EQ(GameState.GameRunning, 1);
    ASSERT_EQ(GameState.TilesLeft, TileCount);
}

// What the heap gave while Does ran. The painter has emptied the stale rectangles before, as it
// does between two events.
template <typename Action> static std::size_t AllocationsOf(Action Does)
{
    StaleRectangles().clear();
    const std::size_t Before = Allocations;
    Does();
    return Allocations - Before;
}

static std::size_t AllocationsOfHover(int Tile)
{
    const Point Place = ScreenPlace(imgTile(Tile));
    return AllocationsOf([&] { SendMouseMove(Place.X + 30, Place.Y + 30); });
}

// Sent to the tile itself: a taller stack may hide its middle.
static std::size_t AllocationsOfPress(int Tile)
{
    return AllocationsOf([&] {
        DeliverMouseDown(imgTile(Tile), MouseButton::Left, 30, 30);
        DeliverMouseUp(imgTile(Tile), MouseButton::Left, 30, 30);
    });
}

TEST(Heap, CounterCounts)
{
    EXPECT_EQ(AllocationsOf([] { std::string(100, 'x').shrink_to_fit(); }), 1U);
}

TEST(Heap, HoverTakesNothing)
{
    for (int Type = Finesse; Type <= Wisdom; ++Type) {
        StartGame(Type);
        for (int Tile = 1; Tile <= TileCount; ++Tile) EXPECT_EQ(AllocationsOfHover(Tile), 0U);
        EXPECT_EQ(AllocationsOf([] { SendMouseMove(3, 300); }), 0U); // off the tiles
    }
}

// Selected, put back, blocked, mismatched, matched and scored, to the last open pair but one.
TEST(Heap, PressOnATileTakesNothing)
{
    for (int Type = Finesse; Type <= Agility; ++Type) {
        StartGame(Type);
        const int First = GameState.FreeTiles(1);
        for (int Tile = 1; Tile <= TileCount; ++Tile) {
            if (Tile != First && TileFace(Tile) == TileFace(First)) continue; // would match
            EXPECT_EQ(AllocationsOfPress(Tile), 0U) << Tile;
        }
        EXPECT_EQ(GameState.TilesLeft, TileCount);
        while (GameState.MoveCount > 1) {
            if (GameState.TileSelected == 1) AllocationsOfPress(GameState.SelectedTile);
            const int Left = GameState.TilesLeft, Pair = GameState.MoveCount;
            const int A = GameState.OpenPairA(Pair), B = GameState.OpenPairB(Pair);
            EXPECT_EQ(AllocationsOfPress(A), 0U);
            EXPECT_EQ(AllocationsOfPress(B), 0U);
            ASSERT_EQ(GameState.TilesLeft, Left - 2);
        }
    }
}

TEST(Heap, PressOnALetterTakesNothing)
{
    StartGame(Wisdom);
    const int Free = GameState.FreeCount;
    ASSERT_GT(Free, 15);
    for (int I = 1; I <= Free; ++I) EXPECT_EQ(AllocationsOfPress(GameState.FreeTiles(I)), 0U);
    EXPECT_EQ(static_cast<int>(lblWord.Caption.size()), Free);
}

TEST(Heap, ScanTakesNothing)
{
    for (int Type = Finesse; Type <= Wisdom; ++Type) {
        StartGame(Type);
        EXPECT_EQ(AllocationsOf([] { ScanOpenPairs(); }), 0U);
    }
}
