#include "tests/unit/small_board.h"

#include "frame/files.h"

#include <algorithm>
#include <cstdlib>

// A dead end writes the lost game down: into a folder of the test's own.
static void UseOwnFolder()
{
    char Folder[] = "/tmp/pagodas-unit-XXXXXX";
    GameDirectory = mkdtemp(Folder);
}

TEST(Mix, MovesFacesAndKeepsPlaces)
{
    StandTiles({{.Face = 7, .X = 1},
                {.Face = 8, .X = 5},
                {.Face = 9, .X = 9},
                {.Face = 7, .X = 13},
                {.Face = 8, .X = 17},
                {.Face = 9, .X = 21}});
    std::vector<std::string> Places;
    for (int Tile = 1; Tile <= 6; ++Tile) Places.push_back(imgTile(Tile).Tag.substr(2));
    PressTile(1);
    MixTiles();
    std::vector<int> Faces;
    for (int Tile = 1; Tile <= 6; ++Tile) {
        EXPECT_EQ(imgTile(Tile).Tag.substr(2), Places[Tile - 1]);
        EXPECT_EQ(imgTile(Tile).Shows.Number, TileFace(Tile) - 1);
        Faces.push_back(TileFace(Tile));
    }
    std::sort(Faces.begin(), Faces.end());
    EXPECT_EQ(Faces, (std::vector<int>{7, 7, 8, 8, 9, 9}));
    EXPECT_EQ(GameState.TileSelected, 0);
    EXPECT_EQ(GameState.MixCount, 1);
    EXPECT_EQ(GameState.TilesLeft, 6);
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0001");
    EXPECT_FALSE(imgFinesseGreen(1).Visible);
}

TEST(Mix, EveryPlaceGetsAPartnerOtherThanItself)
{
    StandTiles({{.Face = 1, .X = 1}, {.Face = 2, .X = 5}, {.Face = 3, .X = 9}});
    // 1 draws itself, then 2; 2 draws 3; 3 draws 1.
    QueueRandom({0.0, 0.4, 0.9, 0.1});
    MixTiles();
    EXPECT_EQ(TileFace(1), 1);
    EXPECT_EQ(TileFace(2), 3);
    EXPECT_EQ(TileFace(3), 2);
}

TEST(Mix, WithACountOfNothingDoesNothing)
{
    StandTiles({{.Face = 1, .X = 1}, {.Face = 2, .X = 5}});
    GameState.MixCount = 0;
    MixTiles();
    EXPECT_EQ(TileFace(1), 1);
    EXPECT_TRUE(Asked.empty());
}

TEST(Mix, OfFewerThanTwoTilesSwapsNothing)
{
    StandTiles({{.Face = 1, .X = 1}}, Wisdom);
    MixTiles();
    EXPECT_EQ(TileFace(1), 1);
    EXPECT_EQ(GameState.MixCount, 1);
}

TEST(Mix, ClosesPeek)
{
    StandTiles({{.Face = 1, .X = 1}, {.Face = 1, .X = 5}});
    imgPeek_Action(0);
    PressTile(1);
    MixTiles();
    EXPECT_FALSE(picPeek.Visible);
}

TEST(Mix, UndoAfterItBringsAPairOfEqualFacesBack)
{
    StandTiles({{.Face = 7, .X = 1},
                {.Face = 7, .X = 5},
                {.Face = 8, .X = 9},
                {.Face = 9, .X = 13},
                {.Face = 8, .X = 17},
                {.Face = 9, .X = 21}});
    PressTile(1);
    PressTile(2);
    MixTiles();
    imgUndo_Action(0);
    EXPECT_EQ(TileFace(1), TileFace(2));
    EXPECT_EQ(GameState.TilesLeft, 6);
}

// Two tiles of one face, one on top of the other: no mix can help.
static void StandDeadEnd(int GameType = Finesse)
{
    StandTiles({{.Face = 5, .X = 1, .Y = 2, .Z = 1},
                {.Face = 5, .X = 1, .Y = 2, .Z = 2},
                {.Face = 6, .X = 20},
                {.Face = 6, .X = 30}},
               GameType);
}

TEST(NoMoves, WithAMixLeftOffersItAndThenLoses)
{
    UseOwnFolder();
    StandDeadEnd();
    PressTile(3);
    PressTile(4);
    EXPECT_TRUE(picNoMovesMix.Visible);
    EXPECT_TRUE(picBlack.Visible);
    EXPECT_EQ(GameState.GameRunning, 1);
    imgNoMovesMixOK_Action(0);
    EXPECT_FALSE(picBlack.Visible);
    EXPECT_FALSE(imgMixFinesseDIS.Visible) << "the box does not mix by itself";
    MixTiles();
    EXPECT_TRUE(picNoMovesMix.Visible) << "the same dead end follows at once";
    imgNoMovesMixOK_Action(0);
    MixTiles();
    EXPECT_TRUE(picNoMoves.Visible);
    EXPECT_EQ(GameState.GameRunning, 0);
    EXPECT_EQ(GameState.LayoutLost(19), 1);
    EXPECT_TRUE(FileExists("\\Won-Lost.dat"));
}

TEST(NoMoves, WisdomNeverOpensABox)
{
    StandDeadEnd(Wisdom);
    MixTiles();
    EXPECT_FALSE(picNoMovesMix.Visible);
    EXPECT_FALSE(picBlack.Visible);
}

TEST(NoMoves, StopsAndRestartsTheClockOfAgility)
{
    StandDeadEnd(Agility);
    SetClock(1);
    PressTile(3);
    PressTile(4);
    EXPECT_FALSE(tmrAgility.Enabled);
    imgNoMovesMixOK_Action(0);
    EXPECT_TRUE(tmrAgility.Enabled);
}

TEST(NoMoves, AMixDuringAPauseStopsItAndTheBoxLetsItGoOn)
{
    StandTiles({{.Face = 5, .X = 1, .Z = 1}, {.Face = 5, .X = 1, .Z = 2}}, Agility);
    SetClock(1);
    imgPause_Action(0);
    tmrPause_Tick(0);
    MixTiles();
    EXPECT_TRUE(picNoMovesMix.Visible);
    EXPECT_FALSE(tmrPause.Enabled);
    EXPECT_TRUE(imgPauseBar.Visible);
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0001");
    imgNoMovesMixOK_Action(0);
    EXPECT_TRUE(tmrPause.Enabled);
    EXPECT_FALSE(tmrAgility.Enabled);
    EXPECT_EQ(GameState.PauseTicks, 9);
}

TEST(NoMoves, TheLastMixSpentInADeadEndLosesAtOnce)
{
    UseOwnFolder();
    StandTiles({{.Face = 5, .X = 1, .Z = 1}, {.Face = 5, .X = 1, .Z = 2}}, Agility);
    SetClock(1);
    GameState.MixCount = 1;
    MixTiles();
    EXPECT_FALSE(picNoMovesMix.Visible);
    EXPECT_TRUE(picNoMoves.Visible);
    EXPECT_EQ(GameState.GameRunning, 0);
    EXPECT_FALSE(tmrAgility.Enabled) << "stopped while the game still ran";
    EXPECT_TRUE(imgEndDIS.Visible);
    EXPECT_FALSE(imgbutStartDIS.Visible);
}

TEST(ShowClock, BlanksLeadingDigits)
{
    const auto Cells = [](int Time) {
        I16 Value = Time;
        ShowClock(Value);
        std::vector<int> Result;
        for (int I = 0; I < 4; ++I) Result.push_back(imgLED(I).Shows.Number);
        return Result;
    };
    StandTiles({}, Agility);
    EXPECT_EQ(Cells(7500), (std::vector<int>{8, 6, 1, 1}));
    EXPECT_EQ(Cells(999), (std::vector<int>{0, 10, 10, 10}));
    EXPECT_EQ(Cells(50), (std::vector<int>{0, 0, 6, 1}));
    EXPECT_EQ(Cells(0), (std::vector<int>{0, 0, 0, 1}));
    EXPECT_EQ(Cells(-3), (std::vector<int>{0, 0, 0, 1}));
}

TEST(Clock, StaysAtNothingAndTheGameGoesOn)
{
    StandTiles({{.Face = 6, .X = 20}, {.Face = 6, .X = 30}}, Agility);
    GameState.AgilityTime = 1;
    for (int Tick = 0; Tick < 3; ++Tick) tmrAgility_Tick(0);
    EXPECT_EQ(GameState.AgilityTime, 0);
    EXPECT_EQ(GameState.GameRunning, 1);
}

TEST(Pause, TenSecondsNineTicsThenUnpause)
{
    StandTiles({}, Agility);
    SetClock(1);
    imgPause_Press(0);
    imgPause_Action(0);
    EXPECT_FALSE(tmrAgility.Enabled);
    EXPECT_TRUE(imgPauseBar.Visible);
    for (int Second = 1; Second <= 9; ++Second) tmrPause_Tick(0);
    EXPECT_EQ(std::count(Asked.begin(), Asked.end(), "\\DATA\\FX0008"), 9);
    EXPECT_TRUE(tmrPause.Enabled);
    EXPECT_EQ(imgPauseBar.Top, 45);
    tmrPause_Tick(0);
    EXPECT_EQ(imgPauseBar.Top, 50);
    EXPECT_EQ(Asked.back(), "\\DATA\\FX0010");
    EXPECT_EQ(Asked.front(), "\\DATA\\FX0003");
    EXPECT_TRUE(tmrAgility.Enabled);
    EXPECT_FALSE(tmrPause.Enabled);
    EXPECT_FALSE(imgPauseBar.Visible);
}

TEST(Pause, TwoUseUpTheirCount)
{
    StandTiles({}, Agility);
    imgPause_Action(0);
    for (int Second = 1; Second <= 4; ++Second) tmrPause_Tick(0);
    imgPause_Action(0); // during a pause: spent, and the ten seconds start anew
    EXPECT_EQ(GameState.PauseTicks, 10);
    EXPECT_EQ(imgPauseBar.Top, 0);
    EXPECT_EQ(GameState.PauseCount, 0);
    EXPECT_TRUE(imgPauseDIS.Visible);
    imgPause_Action(0);
    EXPECT_EQ(GameState.PauseTicks, 10);
}

TEST(SetClock, GoesOnWithAPauseThatABoxInterrupted)
{
    StandTiles({}, Agility);
    imgPause_Action(0);
    SetClock(2);
    EXPECT_FALSE(tmrPause.Enabled);
    SetClock(1);
    EXPECT_TRUE(tmrPause.Enabled);
    EXPECT_FALSE(tmrAgility.Enabled);
}

TEST(SetClock, OnlyInARunningGameOfAgility)
{
    StandTiles({});
    SetClock(1);
    EXPECT_FALSE(tmrAgility.Enabled);
    StandTiles({}, Agility);
    GameState.GameRunning = 0;
    SetClock(1);
    EXPECT_FALSE(tmrAgility.Enabled);
}
