#include "tests/unit/small_board.h"

static const std::vector<SmallTile> Board = {
    {.Face = 7, .X = 1},           {.Face = 7, .X = 30},          {.Face = 9, .X = 1, .Y = 6},
    {.Face = 9, .X = 30, .Y = 6},  {.Face = 7, .X = 12, .Y = 10}, {.Face = 3, .X = 10, .Y = 10},
    {.Face = 3, .X = 14, .Y = 10}, {.Face = 7, .X = 20, .Y = 10}};

static void Match(int First, int Second)
{
    PressTile(First);
    PressTile(Second);
}

TEST(Undo, WithNothingToUndoSpendsNothing)
{
    StandTiles(Board);
    imgUndo_Action(0);
    EXPECT_EQ(picNote.Tag, "2");
    EXPECT_EQ(GameState.NoteShowing, 1);
    EXPECT_EQ(GameState.UndoCount, 2);
    EXPECT_TRUE(Asked.empty());
}

TEST(Undo, TwoTakeBackTheLastTwoPairsAndKeepThePoints)
{
    StandTiles(Board);
    Match(1, 2);
    Match(3, 4);
    EXPECT_EQ(GameState.Score, 4);
    imgUndo_Action(0);
    EXPECT_TRUE(imgTile(3).Visible);
    EXPECT_TRUE(imgTile(4).Visible);
    EXPECT_FALSE(imgTile(1).Visible);
    EXPECT_EQ(GameState.BoardMap(30, 6, 1), 1);
    imgUndo_Action(0);
    EXPECT_TRUE(imgTile(1).Visible);
    EXPECT_EQ(GameState.TilesLeft, 8);
    EXPECT_EQ(GameState.UndoDepth, 0);
    EXPECT_EQ(GameState.Score, 4);
    EXPECT_EQ(GameState.UndoCount, 0);
    EXPECT_TRUE(imgUndoDIS.Visible);
    Match(1, 2);
    imgUndo_Action(0);
    EXPECT_FALSE(imgTile(1).Visible) << "a third is not to be had";
}

TEST(Undo, BreaksAStreakAndTheSelection)
{
    StandTiles(Board);
    Match(1, 2);
    PressTile(3);
    imgUndo_Action(0);
    EXPECT_EQ(GameState.RecentFaces(1), 0);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(StateOf(3), 0);
}

TEST(Undo, ATileReturnsToItsOldPlaceInTheStack)
{
    StandTiles(Board);
    ASSERT_TRUE(StandsBefore(imgTile(5), imgTile(1)));
    Match(1, 2);
    imgUndo_Action(0);
    EXPECT_TRUE(StandsBefore(imgTile(5), imgTile(1)));
    EXPECT_TRUE(StandsBefore(imgTile(2), imgTile(1)));
}

TEST(Peek, ShowsABlockedTileAndSpendsOne)
{
    StandTiles(Board);
    imgPeek_Action(0);
    EXPECT_EQ(picNote.Tag, "5");
    EXPECT_TRUE(imgPeekDIS.Visible);
    EXPECT_EQ(GameState.PeekCount, 2);
    PressTile(5);
    EXPECT_EQ(GameState.PeekCount, 1);
    EXPECT_TRUE(picPeek.Visible);
    EXPECT_EQ(PictureName(imgPeekTile.Shows), "clpTileSet(6)");
    EXPECT_EQ(imgPeekTile.Tag, "5");
    EXPECT_EQ(GameState.PeekMode, 0);
    EXPECT_FALSE(imgPeekDIS.Visible);
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0004");
}

TEST(Peek, TheSelectedTileStaysSelected)
{
    StandTiles(Board);
    PressTile(1);
    imgPeek_Action(0);
    PressTile(1);
    EXPECT_EQ(GameState.TileSelected, 1);
    EXPECT_EQ(imgPeekTile.Tag, "1");
}

TEST(Peek, OnlyAMatchOfThePeekedTileClosesIt)
{
    StandTiles(Board);
    imgPeek_Action(0);
    PressTile(1);
    Match(3, 4);
    EXPECT_TRUE(picPeek.Visible);
    imgUndo_Action(0);
    EXPECT_TRUE(picPeek.Visible);
    Match(2, 1);
    EXPECT_FALSE(picPeek.Visible);
}

TEST(Peek, AClickClosesIt)
{
    StandTiles(Board);
    imgPeek_Action(0);
    PressTile(1);
    imgPeekTile.Does.Click(-1);
    EXPECT_FALSE(picPeek.Visible);
}

TEST(Pair, MarksAllTilesOfTheFaceBlockedOrNot)
{
    StandTiles(Board);
    PressTile(3);
    imgPair_Action(0);
    EXPECT_EQ(GameState.PairMark, PairArmed);
    HoverTile(1);
    EXPECT_EQ(StateOf(1), 0) << "no hover while a power waits";
    PressTile(5);
    EXPECT_EQ(GameState.PairMark, 7);
    EXPECT_EQ(GameState.PairMarked(0), 4);
    for (int Tile : {1, 2, 5, 8}) EXPECT_EQ(StateOf(Tile), 2);
    EXPECT_EQ(StateOf(3), 0);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(GameState.PairCount, 1);
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0004");
    PressTile(1); // the marks go first, then the press counts
    EXPECT_EQ(GameState.PairMark, 0);
    EXPECT_EQ(StateOf(2), 0);
    EXPECT_EQ(StateOf(1), 1);
    EXPECT_EQ(GameState.TileSelected, 1);
}

TEST(Pair, AFaceWithOneTileLeftMarksThatOne)
{
    StandTiles({{.Face = 4, .X = 3}, {.Face = 5, .X = 9}});
    imgPair_Action(0);
    PressTile(1);
    EXPECT_EQ(GameState.PairMarked(0), 1);
    EXPECT_EQ(GameState.PairMarked(1), 1);
}

TEST(Pair, MarksGoBeforeUndoPeekPairAndMixAct)
{
    for (IndexHandler Power : {imgPeek_Action, imgPair_Action}) {
        StandTiles(Board);
        imgPair_Action(0);
        PressTile(1);
        Power(0);
        EXPECT_EQ(StateOf(2), 0);
    }
    StandTiles(Board);
    Match(3, 4);
    imgPair_Action(0);
    PressTile(1);
    imgUndo_Action(0);
    EXPECT_EQ(GameState.PairMark, 0);
    StandTiles(Board);
    imgPair_Action(0);
    PressTile(1);
    MixTiles();
    EXPECT_EQ(GameState.PairMark, 0);
    for (int Tile = 1; Tile <= 8; ++Tile) EXPECT_EQ(StateOf(Tile), 0) << Tile;
}

TEST(Push, MovesTheLetterOn)
{
    StandTiles({{.Face = 26, .X = 1}, {.Face = 36, .X = 9}}, Wisdom);
    imgPush_Action(0);
    EXPECT_EQ(picNote.Tag, "5");
    PressTile(1);
    EXPECT_EQ(TileFace(1), 1); // Z goes to A
    EXPECT_EQ(imgTile(1).Tag.substr(2), "01021");
    EXPECT_EQ(PictureName(imgTile(1).Shows), "clpTileSet(0)");
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0006");
    imgPush_Action(0);
    PressTile(2);
    EXPECT_EQ(TileFace(2), 21);
    EXPECT_EQ(GameState.PushCount, 0);
    EXPECT_TRUE(imgPushDIS.Visible);
    EXPECT_EQ(GameState.PushMode, 0);
    EXPECT_EQ(picNote.Tag, "5") << "the note stays until the next one";
}

TEST(Powers, WithACountOfNothingDoNothing)
{
    StandTiles(Board);
    GameState.PeekCount = GameState.PairCount = GameState.PushCount = GameState.UndoCount = 0;
    imgPeek_Action(0);
    imgPair_Action(0);
    imgPush_Action(0);
    imgUndo_Action(0);
    EXPECT_EQ(GameState.PeekMode + GameState.PairMark + GameState.PushMode, 0);
    EXPECT_EQ(picNote.Tag, "6");
}
