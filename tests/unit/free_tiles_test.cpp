#include "tests/unit/small_board.h"

TEST(IsBlocked, OneOpenSideIsEnough)
{
    StandTiles({{.Face = 1, .X = 5}, {.Face = 2, .X = 7}});
    EXPECT_FALSE(IsBlocked(5, 2, 1));
    EXPECT_FALSE(IsBlocked(7, 2, 1));
    StandTiles({{.Face = 1, .X = 5}, {.Face = 2, .X = 7}, {.Face = 3, .X = 9}});
    EXPECT_TRUE(IsBlocked(7, 2, 1));
}

TEST(IsBlocked, ANeighbourOneStepHigherOrLowerStillBlocks)
{
    for (int Shift : {-1, 0, 1}) {
        StandTiles({{.Face = 1, .X = 5, .Y = 6},
                    {.Face = 2, .X = 7, .Y = 6 + Shift},
                    {.Face = 3, .X = 3, .Y = 6 - Shift}});
        EXPECT_TRUE(IsBlocked(5, 6, 1)) << Shift;
    }
    StandTiles(
        {{.Face = 1, .X = 5, .Y = 6}, {.Face = 2, .X = 7, .Y = 8}, {.Face = 3, .X = 3, .Y = 6}});
    EXPECT_FALSE(IsBlocked(5, 6, 1)) << "two steps lower is another row";
}

TEST(IsBlocked, AnyOverlapFromTheLayerAboveCovers)
{
    for (int DX = -2; DX <= 2; ++DX)
        for (int DY = -2; DY <= 2; ++DY) {
            StandTiles({{.Face = 1, .X = 5, .Y = 6, .Z = 1},
                        {.Face = 2, .X = 5 + DX, .Y = 6 + DY, .Z = 2}});
            EXPECT_EQ(IsBlocked(5, 6, 1), std::abs(DX) <= 1 && std::abs(DY) <= 1)
                << DX << " " << DY;
        }
    StandTiles({{.Face = 1, .X = 5, .Y = 6, .Z = 1}, {.Face = 2, .X = 5, .Y = 6, .Z = 3}});
    EXPECT_FALSE(IsBlocked(5, 6, 1)) << "two layers above does not count";
}

TEST(IsBlocked, OnlyCellsThatHoldOneCount)
{
    StandTiles({{.Face = 1, .X = 5}});
    GameState.BoardMap(3, 2, 1) = 2;
    GameState.BoardMap(7, 2, 1) = 2;
    GameState.BoardMap(5, 2, 2) = -1;
    EXPECT_FALSE(IsBlocked(5, 2, 1));
}

TEST(IsBlocked, ABadAnchorIsFatal)
{
    StandTiles({});
    EXPECT_EXIT(IsBlocked(5, 5, 10), testing::ExitedWithCode(1), "BoardMap\\(7,6,11\\)");
    EXPECT_EXIT(IsBlocked(0, 5, 1), testing::ExitedWithCode(1), "BoardMap\\(-2,4,1\\)");
    EXPECT_EXIT(IsBlocked(39, 5, 1), testing::ExitedWithCode(1), "BoardMap\\(41,6,2\\)");
    EXPECT_EXIT(IsBlocked(5, -1, 1), testing::ExitedWithCode(1), "BoardMap\\(3,-2,1\\)");
    EXPECT_EXIT(IsBlocked(5, 40, 1), testing::ExitedWithCode(1), "BoardMap\\(7,41,2\\)");
}

TEST(ScanOpenPairs, ThreeFreeTilesOfOneFaceMakeOnePair)
{
    StandTiles({{.Face = 7, .X = 1}, {.Face = 7, .X = 5}, {.Face = 7, .X = 9}});
    EXPECT_EQ(GameState.MoveCount, 1);
    EXPECT_EQ(GameState.OpenPairA(1), 1);
    EXPECT_EQ(GameState.OpenPairB(1), 2);
    EXPECT_EQ(GameState.FaceFirst(7), 3);
}

TEST(ScanOpenPairs, FourAreTwoPairsInTheOrderOfTheirNumbers)
{
    StandTiles({{.Face = 7, .X = 13},
                {.Face = 4, .X = 1},
                {.Face = 7, .X = 9},
                {.Face = 4, .X = 17},
                {.Face = 7, .X = 5},
                {.Face = 7, .X = 21}});
    EXPECT_EQ(GameState.MoveCount, 3);
    EXPECT_EQ(GameState.FreeCount, 6);
    const int Pairs[][2] = {{1, 3}, {2, 4}, {5, 6}};
    for (int N = 1; N <= 3; ++N) {
        EXPECT_EQ(GameState.OpenPairA(N), Pairs[N - 1][0]);
        EXPECT_EQ(GameState.OpenPairB(N), Pairs[N - 1][1]);
    }
    EXPECT_EQ(GameState.FreeTiles(2), 2);
    EXPECT_EQ(GameState.FreeFaces(2), 4);
}

TEST(ScanOpenPairs, AnEmptyBoardHasNone)
{
    StandTiles({});
    EXPECT_EQ(GameState.MoveCount, 0);
    EXPECT_EQ(imgBlueDigitB.Left, 82);
    EXPECT_EQ(PictureName(imgBlueDigitB.Shows), "clpBlueDigitsB(0)");
    EXPECT_FALSE(imgBlueDigitA.Visible);
}

TEST(ScanOpenPairs, WisdomScansButShowsNoCount)
{
    StandTiles({{.Face = 7, .X = 1}, {.Face = 7, .X = 5}}, Wisdom);
    EXPECT_EQ(GameState.MoveCount, 1);
    EXPECT_NE(picNote.Tag, "6");
}

TEST(ShowOpenPairCount, TensStandBesideTheUnits)
{
    StandTiles({});
    GameState.MoveCount = 10;
    ShowOpenPairCount();
    EXPECT_EQ(imgBlueDigitB.Left, 88);
    EXPECT_TRUE(imgBlueDigitA.Visible);
    EXPECT_EQ(PictureName(imgBlueDigitA.Shows), "clpBlueDigitsA(1)");
    EXPECT_EQ(PictureName(imgBlueDigitB.Shows), "clpBlueDigitsB(0)");
    EXPECT_EQ(picNote.Tag, "6");
}
