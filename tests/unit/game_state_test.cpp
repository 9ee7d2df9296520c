#include "frame/game_state.h"

#include <gtest/gtest.h>

TEST(LayoutBlock, TwelveNumbersEachAndZeroForAnyOther)
{
    EXPECT_EQ(LayoutBlock(1), 0);
    EXPECT_EQ(LayoutBlock(12), 0);
    EXPECT_EQ(LayoutBlock(13), 1);
    EXPECT_EQ(LayoutBlock(24), 1);
    EXPECT_EQ(LayoutBlock(109), 9);
    EXPECT_EQ(LayoutBlock(120), 9);
    EXPECT_EQ(LayoutBlock(0), 0);
    EXPECT_EQ(LayoutBlock(121), 0);
}

TEST(LayoutTileCount, ByBlockAndAlways216InPacks)
{
    GameState.LayoutGroup = 0;
    const int Counts[][2] = {{12, 72}, {13, 144}, {72, 144}, {73, 216}, {108, 216}, {109, 288}};
    for (const auto& [Number, Tiles] : Counts) {
        GameState.LayoutNumber = Number;
        EXPECT_EQ(LayoutTileCount(), Tiles) << Number;
    }
    GameState.LayoutGroup = 3;
    GameState.LayoutNumber = 115;
    EXPECT_EQ(LayoutTileCount(), 216);
}

TEST(LayoutIndex, ThreeThousandIsTheLast)
{
    GameState.LayoutGroup = 24;
    GameState.LayoutNumber = 120;
    EXPECT_EQ(LayoutIndex(), 3000);
    GameState.LayoutGroup = 25;
    GameState.LayoutNumber = 1;
    EXPECT_EXIT(LayoutIndex(), testing::ExitedWithCode(1), "LayoutIndex 3001 is above 3000");
    GameState.LayoutGroup = 0;
}

TEST(Whole, OverflowOfSixteenBitsIsFatal)
{
    I16 Counter = 32767;
    EXPECT_EXIT(++Counter, testing::ExitedWithCode(1), "32768 does not fit in 16 bits");
    Counter = -32768;
    EXPECT_EXIT(Counter -= 1, testing::ExitedWithCode(1), "-32769 does not fit in 16 bits");
    EXPECT_EXIT(Counter = 40000, testing::ExitedWithCode(1), "40000 does not fit");
}

TEST(Table, AnIndexOutsideIsFatalAndNamesTable)
{
    EXPECT_EQ(GameState.BoardMap(-1, -1, 0), 0);
    EXPECT_EQ(GameState.BoardMap(40, 40, 10), 0);
    EXPECT_EXIT(GameState.BoardMap(41, 0, 0) = 1, testing::ExitedWithCode(1),
                "BoardMap\\(41,0,0\\) is outside -1..40, -1..40, 0..10");
    EXPECT_EXIT(GameState.TileOrder(289) = 1, testing::ExitedWithCode(1), "TileOrder\\(289\\)");
}

TEST(RandomBetween, BothEndsArePossible)
{
    QueueRandom({0.0, 0.999999, 0.5});
    EXPECT_EQ(RandomBetween(5, 9), 5);
    EXPECT_EQ(RandomBetween(5, 9), 9);
    EXPECT_EQ(RandomBetween(5, 9), 7);
}

TEST(RandomBetween, SeedingLeavesTheQueueAlone)
{
    QueueRandom({0.25});
    Randomize();
    EXPECT_EQ(Rnd(), 0.25);
    for (int I = 0; I < 1000; ++I) {
        const double Value = Rnd();
        EXPECT_GE(Value, 0.0);
        EXPECT_LT(Value, 1.0);
    }
}

TEST(BuildTables, LettersPushAndPoints)
{
    BuildTables();
    std::string Letters;
    for (int Face = 1; Face <= 36; ++Face) Letters += GameState.FaceLetter(Face);
    EXPECT_EQ(Letters, "ABCDEFGHIJKLMNOPQRSTUVWXYZAEIOUAEIST");
    // PUSH moves every face to the letter after its own.
    for (int Face = 1; Face <= 36; ++Face) {
        const char Letter = GameState.FaceLetter(Face)[0];
        const char Next = GameState.FaceLetter(GameState.PushFace(Face))[0];
        EXPECT_EQ(Next, Letter == 'Z' ? 'A' : Letter + 1) << Face;
        EXPECT_LE(GameState.PushFace(Face), 26);
    }
    EXPECT_EQ(GameState.MasterPoints(12, 1), 45);
    EXPECT_EQ(GameState.MasterPoints(72, 10), 5);
    EXPECT_EQ(GameState.MasterPoints(73, 2), 63);
    EXPECT_EQ(GameState.MasterPoints(120, 3), 72);
    EXPECT_EQ(GameState.WordPoints(9), 15);
    EXPECT_EQ(GameState.WordPoints(2), 0);
}
