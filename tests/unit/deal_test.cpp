#include "tests/common/game_dir.h"
#include "tests/unit/small_board.h"

#include <algorithm>
#include <map>

// The exchanges of a shuffle take two values each; with these every place changes with itself.
static void QueueIdentityShuffle()
{
    QueueRandom(std::vector<double>(2 * 576, 0.0));
}

TEST(Deal, SeventyTwoTilesHoldEveryFaceTwice)
{
    BootGame();
    GameState.LayoutNumber = 12;
    imgbutStart_Action(0);
    std::map<int, int> Faces;
    for (int Tile = 1; Tile <= 72; ++Tile) {
        EXPECT_TRUE(imgTile(Tile).Visible) << Tile;
        EXPECT_EQ(GameState.StartTileTags(Tile), imgTile(Tile).Tag);
        ++Faces[TileFace(Tile)];
    }
    EXPECT_EQ(Faces.size(), 36U);
    for (const auto& [Face, Count] : Faces) EXPECT_EQ(Count, 2) << Face;
    for (int Tile = 73; Tile <= 288; ++Tile) EXPECT_FALSE(imgTile(Tile).Visible) << Tile;
}

TEST(Deal, ABoardWithoutAnOpenPairIsDealtAndOpensNoBox)
{
    BootGame();
    GameState.LayoutNumber = 1;
    GameState.LayoutGroup = 1;
    // Eight stacks of nine: on top lie the tiles 65 to 72, whose faces 29 to 36 all differ.
    for (int Tile = 0; Tile < 72; ++Tile) {
        GameState.LayoutData72(3 * Tile + 1) = 1 + 4 * (Tile % 8);
        GameState.LayoutData72(3 * Tile + 2) = 10;
        GameState.LayoutData72(3 * Tile + 3) = 1 + Tile / 8;
    }
    QueueIdentityShuffle();
    imgbutStart_Action(0);
    EXPECT_EQ(GameState.MoveCount, 0);
    EXPECT_EQ(GameState.FreeCount, 8);
    EXPECT_EQ(GameState.FreeFaces(1), 29);
    EXPECT_EQ(GameState.TilesLeft, 72);
    EXPECT_FALSE(picNoMovesMix.Visible);
    EXPECT_FALSE(picNoMoves.Visible);
    EXPECT_EQ(picNote.Tag, "6");
    EXPECT_EQ(PictureName(imgBlueDigitB.Shows), "clpBlueDigitsB(0)");
}

TEST(ShuffleTiles, TakesTheCountOfTheLayout)
{
    InitElements();
    struct Case {
        int Group, Number, Tiles;
    };
    for (const Case& C : {Case{0, 1, 72}, Case{2, 13, 144}, Case{1, 108, 216}, Case{0, 109, 288},
                          Case{3, 115, 216}, Case{24, 1, 216}}) {
        GameState.LayoutGroup = C.Group;
        GameState.LayoutNumber = C.Number;
        InitTiles();
        std::vector<double> Values(2 * 576, 0.0);
        Values[1] = 0.999999; // place 1 with the last one, then place 1 with itself
        QueueRandom(Values);
        ShuffleTiles();
        EXPECT_EQ(GameState.TileOrder(1), C.Tiles) << C.Group << " " << C.Number;
        EXPECT_EQ(GameState.TileOrder(C.Tiles), 1);
    }
}

TEST(PlaceTileRun, APackTakesNoOffset)
{
    StandTiles({});
    GameState.LayoutGroup = 3;
    GameState.LayoutNumber = 7;
    GameState.LayoutOffset(LayoutIndex()) = "1234";
    GameState.PlaceCursor = 1;
    I16 X = 1;
    PlaceTileRun(X, 0, 1, 1);
    EXPECT_FLOAT_EQ(imgTile(1).Left, 56.49F); // 56 + 30.49 - 30
    EXPECT_FLOAT_EQ(imgTile(1).Top, -7.0F);   // 23 - 30
    GameState.LayoutGroup = 0;
    GameState.LayoutOffset(LayoutIndex()) = "1234";
    PlaceTileRun(X, 0, 1, 1);
    EXPECT_FLOAT_EQ(imgTile(2).Left, 178.47F); // 105 + 12 + 30.49 * 3 - 30
    EXPECT_FLOAT_EQ(imgTile(2).Top, 89.0F);    // 85 + 34 - 30
}

TEST(NewGame, ClearsWhatAGameOfAgilityLeft)
{
    BootGame();
    GameState.GameType = Agility;
    imgbutStart_Action(0);
    GameState.AgilityTime = 17;
    imgPause_Action(0);
    ASSERT_TRUE(imgPauseBar.Visible);
    imgbutEnd_Action(0);
    EXPECT_FALSE(tmrPause.Enabled);
    imgEndYES_Action(0);
    EXPECT_FALSE(imgPauseBar.Visible);
    EXPECT_EQ(GameState.AgilityTime, 7500);
    EXPECT_EQ(PictureName(imgLED(0).Shows), "clpDigits(8)");
    EXPECT_FALSE(tmrPause.Enabled);
    EXPECT_FALSE(tmrAgility.Enabled);
}

// --- whole games ---

// Thirty-six pairs that all lie free, in the order of their faces.
static void StandSeventyTwo(int GameType)
{
    std::vector<SmallTile> Tiles;
    for (int Tile = 0; Tile < 72; ++Tile)
        Tiles.push_back({.Face = Tile / 2 + 1, .X = 1 + 4 * (Tile % 9), .Y = 4 * (Tile / 9)});
    StandTiles(Tiles, GameType);
    GameDirectory = FreshGameDirectory();
    GameState.LayoutNumber = 12;
}

TEST(WonGame, FinesseWithoutAStreakIsTwoAPairAndTheBonus)
{
    StandSeventyTwo(Finesse);
    QueueRandom({0.9999}); // the only draw: 5 to 78
    for (int Tile = 1; Tile <= 72; ++Tile) {
        PressTile(Tile);
        if (Tile < 72) {
            EXPECT_EQ(GameState.Score, Tile / 2 * 2);
        }
    }
    EXPECT_EQ(GameState.TilesLeft, 0);
    EXPECT_EQ(GameState.Score, 72 + 78);
    EXPECT_EQ(lblScore(1).Caption, "150");
    EXPECT_EQ(lblBonus(0).Caption, "78");
    EXPECT_EQ(picNote.Tag, "8");
    EXPECT_EQ(GameState.UndoDepth, 36);
    EXPECT_EQ(GameState.LayoutWon(12), 1);
}

TEST(WonGame, AgilityWithNoTimeLeftScoresNothing)
{
    StandSeventyTwo(Agility);
    GameState.AgilityTime = 0;
    tmrAgility_Tick(0);
    for (int Tile = 1; Tile <= 72; ++Tile) {
        EXPECT_EQ(GameState.Score, 0);
        PressTile(Tile);
    }
    EXPECT_EQ(GameState.Score, 0);
    EXPECT_EQ(picNote.Tag, "12");
    EXPECT_EQ(GameState.ScoreRank, 0);
    EXPECT_TRUE(picCongrats.Visible);
    EXPECT_EQ(GameState.LayoutWon(12), 1);
}
