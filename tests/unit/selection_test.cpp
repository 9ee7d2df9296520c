#include "tests/unit/small_board.h"

// Tiles 1 and 2 are a pair, 3 and 4 another; 5 stands between 6 and 7 and is blocked.
static void StandPairs(int GameType = Finesse)
{
    StandTiles({{.Face = 7, .X = 1},
                {.Face = 7, .X = 30},
                {.Face = 9, .X = 1, .Y = 6},
                {.Face = 9, .X = 30, .Y = 6},
                {.Face = 7, .X = 12, .Y = 10},
                {.Face = 3, .X = 10, .Y = 10},
                {.Face = 3, .X = 14, .Y = 10}},
               GameType);
}

TEST(Selection, AFreeTileIsSelectedWithoutASound)
{
    StandPairs();
    PressTile(1);
    EXPECT_EQ(GameState.TileSelected, 1);
    EXPECT_EQ(GameState.SelectedTile, 1);
    EXPECT_EQ(GameState.SelectedFace, 7);
    EXPECT_EQ(StateOf(1), 1);
    EXPECT_TRUE(Asked.empty());
}

TEST(Selection, ASecondPressOnTheSameTileTakesItBack)
{
    StandPairs();
    PressTile(1);
    PressTile(1);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(StateOf(1), 0);
}

TEST(Selection, ABlockedTileShowsNoteOneAndLeavesTheSelection)
{
    StandPairs();
    PressTile(1);
    PressTile(5);
    EXPECT_EQ(picNote.Tag, "1");
    EXPECT_EQ(GameState.NoteShowing, 1);
    EXPECT_EQ(GameState.TileSelected, 1);
    EXPECT_EQ(StateOf(1), 1);
    PressTile(2); // the note goes, the match counts
    EXPECT_FALSE(imgTile(1).Visible);
    EXPECT_EQ(GameState.NoteShowing, 0);
}

TEST(Selection, MismatchKeepsTheFirstTile)
{
    StandPairs();
    PressTile(1);
    PressTile(3);
    EXPECT_EQ(picNote.Tag, "0");
    EXPECT_EQ(GameState.SelectedTile, 1);
    EXPECT_EQ(StateOf(1), 1);
    EXPECT_EQ(StateOf(3), 0);
    PressTile(2); // the third press matches the first
    EXPECT_FALSE(imgTile(1).Visible);
    EXPECT_FALSE(imgTile(2).Visible);
}

TEST(Selection, AMatchClearsCellsCountsAndStacks)
{
    StandPairs();
    PressTile(1);
    PressTile(2);
    EXPECT_EQ(GameState.TilesLeft, 5);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(GameState.BoardMap(1, 2, 1), 0);
    EXPECT_EQ(GameState.BoardMap(30, 2, 1), 0);
    EXPECT_EQ(GameState.UndoDepth, 1);
    EXPECT_EQ(GameState.UndoTileA(1), 2); // pressed second
    EXPECT_EQ(GameState.UndoAX(1), 30);
    EXPECT_EQ(GameState.UndoTileB(1), 1);
    EXPECT_EQ(GameState.UndoBX(1), 1);
    EXPECT_EQ(GameState.Score, 2);
    EXPECT_EQ(lblScore(0).Caption, "2");
    EXPECT_EQ(lblScore(1).Caption, "2");
    EXPECT_EQ(Asked, std::vector<std::string>{"\\DATA\\FX0002"});
    EXPECT_EQ(picNote.Tag, "6");
}

TEST(Selection, UnderNoteThreeNothingReacts)
{
    StandPairs();
    ShowNote(NoteGameOver);
    PressTile(1);
    HoverTile(1);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(StateOf(1), 0);
}

TEST(Selection, APauseOfAgilityHoldsPressAndHover)
{
    StandPairs(Agility);
    imgPause_Action(0);
    PressTile(1);
    HoverTile(1);
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(StateOf(1), 0);
    DisableTimer(tmrPause);
    PressTile(1);
    EXPECT_EQ(GameState.TileSelected, 1);
}

TEST(Hover, FromOneFreeTileToAnother)
{
    StandPairs();
    HoverTile(1);
    EXPECT_EQ(StateOf(1), 1);
    HoverTile(3);
    EXPECT_EQ(StateOf(1), 0);
    EXPECT_EQ(StateOf(3), 1);
    EXPECT_EQ(GameState.HoverTile, 3);
}

TEST(Hover, ABlockedTileDimsTheFormerOneAndKeepsHoverTile)
{
    StandPairs();
    HoverTile(1);
    HoverTile(5);
    EXPECT_EQ(StateOf(1), 0);
    EXPECT_EQ(StateOf(5), 0);
    EXPECT_EQ(GameState.HoverTile, 1);
}

TEST(Hover, TheSelectedTileStaysLit)
{
    StandPairs();
    HoverTile(1);
    PressTile(1); // lit already: the picture does not change
    EXPECT_EQ(StateOf(1), 1);
    HoverTile(3);
    EXPECT_EQ(StateOf(1), 1);
    HoverTile(1);
    EXPECT_EQ(StateOf(3), 0);
    picBoard_MouseMove(0, MouseButton::Left, 0, 0);
    EXPECT_EQ(StateOf(1), 1);
}

TEST(Hover, TheBoardAndTheBarClearIt)
{
    StandPairs();
    HoverTile(1);
    picBoard_MouseMove(0, MouseButton::Left, 0, 0);
    EXPECT_EQ(StateOf(1), 0);
    HoverTile(1);
    SendMouseMove(700, 760); // the bar
    EXPECT_EQ(StateOf(1), 0);
    EXPECT_EQ(GameState.HoverTile, 1);
}

TEST(Hover, APanelOverTheBoardClearsIt)
{
    StandPairs();
    imgPeek_Action(0);
    PressTile(3);
    HoverTile(1);
    ASSERT_EQ(StateOf(1), 1);
    const Point Box = ScreenPlace(picPeek);
    EXPECT_EQ(SendMouseMove(Box.X + 2, Box.Y + 2), &picPeek);
    EXPECT_EQ(StateOf(1), 0);
    HoverTile(1);
    Show(picBlack);
    Show(picMenu);
    EXPECT_EQ(SendMouseMove(360, 60), &picMenu);
    EXPECT_EQ(StateOf(1), 0);
}

TEST(Hover, MarkedTilesStayMarkedWhereverThePointerGoes)
{
    StandPairs();
    HoverTile(1);
    imgPair_Action(0);
    picBoard_MouseMove(0, MouseButton::Left, 0, 0);
    EXPECT_EQ(StateOf(1), 1) << "an armed PAIR holds the hover";
    PressTile(1);
    EXPECT_EQ(StateOf(1), 2);
    HoverTile(3);
    picBoard_MouseMove(0, MouseButton::Left, 0, 0);
    EXPECT_EQ(StateOf(1), 2);
    EXPECT_EQ(StateOf(3), 0);
    EXPECT_EQ(GameState.HoverTile, 1);
}

TEST(PressOnBoard, BringsTheCountBackUnlessAPowerWaits)
{
    StandPairs();
    PressTile(5);
    EXPECT_EQ(picNote.Tag, "1");
    picBoard_MouseDown(0, MouseButton::Right, 0, 0);
    EXPECT_EQ(picNote.Tag, "6");
    imgPeek_Action(0);
    picBoard_MouseDown(0, MouseButton::Left, 0, 0);
    EXPECT_EQ(picNote.Tag, "5");
    EXPECT_EQ(GameState.PeekMode, 1);
}

TEST(PressOnBoard, DismissesTheTextNote)
{
    StandPairs();
    ShowTextNote("a message");
    picBoard_MouseDown(0, MouseButton::Left, 0, 0);
    EXPECT_FALSE(imgNote.Visible);
    ShowTextNote("another");
    PressTile(1);
    EXPECT_FALSE(lblNote(0).Visible);
}

TEST(Hover, PaintsTheTwoTilesThatChangeAndNothingElse)
{
    StandTiles({{7, 2}, {8, 8}});
    HoverTile(1);
    StaleRectangles().clear();
    HoverTile(2);
    ASSERT_EQ(StaleRectangles().size(), 2U);
    const int Changed[] = {2, 1}; // lit, then put back
    for (int I = 0; I < 2; ++I) {
        const Element& Tile = imgTile(Changed[I]);
        const Rectangle& Stale = StaleRectangles()[static_cast<std::size_t>(I)];
        EXPECT_EQ(Stale.Left, ScreenPlace(Tile).X);
        EXPECT_EQ(Stale.Top, ScreenPlace(Tile).Y);
        EXPECT_EQ(Stale.Width, Tile.Width);
        EXPECT_EQ(Stale.Height, Tile.Height);
    }
    StaleRectangles().clear();
    HoverTile(2); // the pointer moves on inside the tile
    EXPECT_TRUE(StaleRectangles().empty());
}
