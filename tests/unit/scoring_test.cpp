#include "tests/unit/small_board.h"

TEST(StreakBonus, RisesWithTheRunAndNeverGivesTwenty)
{
    StandTiles({});
    EXPECT_EQ(StreakBonus(7), 0);
    QueueRandom({0.0});
    EXPECT_EQ(StreakBonus(7), 1);
    QueueRandom({0.999});
    EXPECT_EQ(StreakBonus(7), 9);
    QueueRandom({6.5 / 9}); // 14 + 6
    EXPECT_EQ(StreakBonus(7), 21);
    QueueRandom({0.0});
    EXPECT_EQ(StreakBonus(7), 14) << "the fifth match stays on the top step";
    EXPECT_EQ(StreakBonus(8), 0) << "another face breaks the run";
    EXPECT_EQ(StreakBonus(7), 0);
}

TEST(ScoreMatch, ABonusShowsNoteSeven)
{
    StandTiles({});
    ScoreMatch(7);
    EXPECT_EQ(picNote.Tag, "6");
    QueueRandom({0.5});
    ScoreMatch(7);
    EXPECT_EQ(picNote.Tag, "7");
    EXPECT_EQ(lblBonus(0).Caption, "2+");
    EXPECT_EQ(lblBonus(1).Caption, "2+");
    EXPECT_TRUE(lblBonus(0).Visible);
    EXPECT_EQ(GameState.Score, 2 + 4);
}

TEST(AddWinBonus, RangesByBlockAndNoRoundNumber)
{
    struct Case {
        int Layout, Low, High;
    };
    for (const Case& C : {Case{1, 5, 78},
                          {12, 5, 78},
                          {13, 8, 16},
                          {72, 8, 16},
                          {73, 21, 39},
                          {108, 21, 39},
                          {109, 41, 79},
                          {120, 41, 79}}) {
        StandTiles({});
        GameState.LayoutNumber = C.Layout;
        QueueRandom({0.0});
        AddWinBonus();
        EXPECT_EQ(GameState.Score, C.Low) << C.Layout;
        QueueRandom({0.99999});
        AddWinBonus();
        EXPECT_EQ(GameState.Score, C.Low + C.High);
        for (int Draw = 0; Draw < 200; ++Draw) {
            const int Before = GameState.Score;
            QueueRandom({Draw / 200.0});
            AddWinBonus();
            EXPECT_NE((GameState.Score - Before) % 10, 0);
        }
        EXPECT_EQ(picNote.Tag, "8");
        EXPECT_EQ(lblBonus(0).Caption.find('+'), std::string::npos);
    }
}

TEST(RefreshPanel, CoversByCountAndByRunningGame)
{
    StandTiles({});
    EXPECT_FALSE(imgMixFinesseDIS.Visible);
    GameState.PairCount = 0;
    RefreshPanel();
    EXPECT_TRUE(imgPairDIS.Visible);
    EXPECT_FALSE(imgUndoDIS.Visible);
    EXPECT_EQ(PictureName(imgFinesseGreen(0).Shows), "imgGreenLight(1)");
    GameState.GameRunning = 0;
    RefreshPanel();
    for (const Element* Cover : {&imgMixFinesseDIS, &imgUndoDIS, &imgPairDIS, &imgPeekDIS})
        EXPECT_TRUE(Cover->Visible) << Cover->Name;
    EXPECT_EQ(PictureName(imgWisdomGreen(3).Shows), "imgGreenLight(0)");
}

TEST(RefreshPanel, WisdomCoversItsWordButtonsWithoutAGame)
{
    StandTiles({}, Wisdom);
    EXPECT_FALSE(imgAcceptWordDIS.Visible);
    GameState.GameRunning = 0;
    RefreshPanel();
    EXPECT_TRUE(imgAcceptWordDIS.Visible);
    EXPECT_TRUE(imgUndoWisdomDIS.Visible);
    EXPECT_TRUE(imgPushDIS.Visible);
}

TEST(DisablePanel, ModeOneLeavesMenuLayoutAndStart)
{
    StandTiles({});
    RefreshPanel();
    DisablePanel(1);
    EXPECT_TRUE(imgMixAgilityDIS.Visible);
    EXPECT_TRUE(imgPushDIS.Visible);
    EXPECT_FALSE(imgButMenuDIS.Visible);
    EXPECT_FALSE(imgEndDIS.Visible);
    DisablePanel(0);
    EXPECT_TRUE(imgButMenuDIS.Visible);
    EXPECT_TRUE(imgButLayoutDIS.Visible);
    EXPECT_TRUE(imgEndDIS.Visible);
    EXPECT_FALSE(imgbutStartDIS.Visible);
    EXPECT_TRUE(StandsBefore(imgEndDIS, imgbutEnd));
    RefreshPanel();
    GameState.GameRunning = 0;
    DisablePanel(0);
    EXPECT_TRUE(imgbutStartDIS.Visible);
}

TEST(RefreshLights, TwoLampsAPower)
{
    StandTiles({}, Agility);
    const bool Wanted[3][2] = {{false, false}, {true, false}, {true, true}};
    for (int Count = 0; Count <= 2; ++Count) {
        GameState.PauseCount = Count;
        RefreshLights();
        EXPECT_EQ(imgAgilityGreen(2).Visible, Wanted[Count][0]);
        EXPECT_EQ(imgAgilityGreen(3).Visible, Wanted[Count][1]);
    }
    GameState.PauseCount = 3; // any other count changes nothing
    RefreshLights();
    EXPECT_TRUE(imgAgilityGreen(3).Visible);
    GameState.PauseCount = 0;
    RefreshLights();
    EXPECT_TRUE(imgPauseDIS.Visible) << "in Agility the cover comes at once";
    StandTiles({});
    GameState.UndoCount = 0;
    RefreshLights();
    EXPECT_FALSE(imgUndoDIS.Visible) << "in Finesse the next RefreshPanel covers it";
    EXPECT_FALSE(imgFinesseGreen(2).Visible);
}

TEST(Score, AboveItsSixteenBitsIsFatal)
{
    StandTiles({});
    GameState.Score = 32766;
    EXPECT_EXIT(ScoreMatch(1), testing::ExitedWithCode(1), "32768 does not fit");
}
