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

// A power: its counter, the cover of its button and the first of its two lamps.
struct PanelPower {
    int GameType;
    I16 GameStateRecord::*Count;
    const Element& Cover;
    const ElementArray& Lamps;
    int Lamp;
};
static const PanelPower PanelPowers[] = {
    {Finesse, &GameStateRecord::MixCount, imgMixFinesseDIS, imgFinesseGreen, 0},
    {Finesse, &GameStateRecord::UndoCount, imgUndoDIS, imgFinesseGreen, 2},
    {Finesse, &GameStateRecord::PairCount, imgPairDIS, imgFinesseGreen, 4},
    {Finesse, &GameStateRecord::PeekCount, imgPeekDIS, imgFinesseGreen, 6},
    {Agility, &GameStateRecord::MixCount, imgMixAgilityDIS, imgAgilityGreen, 0},
    {Agility, &GameStateRecord::PauseCount, imgPauseDIS, imgAgilityGreen, 2},
    {Wisdom, &GameStateRecord::MixCount, imgMixWisdomDIS, imgWisdomGreen, 0},
    {Wisdom, &GameStateRecord::PushCount, imgPushDIS, imgWisdomGreen, 2},
};

TEST(Panel, EveryCoverAndLampByTypeAndCount)
{
    for (const PanelPower& Power : PanelPowers)
        for (int Count = 0; Count <= 2; ++Count) {
            StandTiles({}, Power.GameType);
            GameState.*Power.Count = Count;
            RefreshLights();
            // In Finesse the lamps go first and the cover comes with the next refresh.
            EXPECT_EQ(Power.Cover.Visible, Count == 0 && Power.GameType != Finesse)
                << Power.Cover.Name;
            RefreshPanel();
            EXPECT_EQ(Power.Cover.Visible, Count == 0) << Power.Cover.Name;
            EXPECT_EQ(Power.Lamps(Power.Lamp).Visible, Count >= 1) << Power.Cover.Name;
            EXPECT_EQ(Power.Lamps(Power.Lamp + 1).Visible, Count == 2) << Power.Cover.Name;
            for (const PanelPower& Other : PanelPowers)
                if (Other.GameType == Power.GameType && Other.Count != Power.Count) {
                    EXPECT_FALSE(Other.Cover.Visible) << Other.Cover.Name;
                    EXPECT_TRUE(Other.Lamps(Other.Lamp + 1).Visible) << Other.Cover.Name;
                }
            GameState.GameRunning = 0;
            RefreshPanel();
            EXPECT_TRUE(Power.Cover.Visible) << Power.Cover.Name;
        }
}

TEST(Panel, TheLampsOfAllTypesFollowTheRunningGame)
{
    StandTiles({}, Agility);
    for (int Running : {1, 0}) {
        GameState.GameRunning = Running;
        RefreshPanel();
        const std::string Light = Running ? "imgGreenLight(1)" : "imgGreenLight(0)";
        for (const ElementArray* Lamps : {&imgFinesseGreen, &imgAgilityGreen, &imgWisdomGreen})
            for (int Lamp = 0; Lamp < Lamps->Count; ++Lamp)
                EXPECT_EQ(PictureName((*Lamps)(Lamp).Shows), Light);
    }
    GameState.GameRunning = 1;
    RefreshPanel();
    DisablePanel(0);
    EXPECT_EQ(PictureName(imgAgilityGreen(0).Shows), "imgGreenLight(0)");
    for (const PanelPower& Power : PanelPowers)
        EXPECT_TRUE(Power.Cover.Visible) << Power.Cover.Name;
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
