#include "tests/records/records_test.h"

#include <cmath>
#include <map>
#include <random>

namespace
{

struct Players : RecordsTest {
    Players()
    {
        SetPlayerHandlers();
        GameState.ProfileGameType = Agility;
        GameState.GraphType = 1;
        for (int Index = 1; Index <= 3000; ++Index)
            GameState.LayoutName(Index) = "layout " + std::to_string(Index);
    }
    static void Put(int Layout, int Place, const std::string& Name, int Score)
    {
        GameState.ScoreTable(Agility, Layout, Place) = {Name, Score, 1, 1, 2026};
    }
    static void Choose(int Box, const std::string& Name)
    {
        SendDropDown(cboPlayerList(Box));
        SendChoice(cboPlayerList(Box), Name);
    }
    static std::string Stat(int Box, int Row)
    {
        const Element& Label = Box == 11 ? lblStatA(Row) : lblStatB(Row);
        const Element& Shadow = Box == 11 ? lblStatAShadow(Row) : lblStatBShadow(Row);
        EXPECT_EQ(Label.Caption, Shadow.Caption);
        return Label.Caption;
    }
    static std::string ShownScore(int Box)
    {
        EXPECT_EQ(lblProScore(Box).Visible, lblProScoreShadow(Box).Visible);
        if (!lblProScore(Box).Visible) return "";
        EXPECT_EQ(lblProScore(Box).Caption, lblProScoreShadow(Box).Caption);
        return lblProScore(Box).Caption;
    }
    static bool Leads(int Box)
    {
        if (lblProScore(Box).Ink == Colour{255, 255, 0}) return true;
        EXPECT_EQ(lblProScore(Box).Ink, (Colour{192, 192, 192}));
        return false;
    }
};

using Names = std::vector<std::string>;

} // namespace

// --- the list ---

TEST_F(Players, WithNoScoresEachBoxOffersNobody)
{
    BuildPlayerList();
    for (int Box = 1; Box <= 12; ++Box) {
        EXPECT_EQ(cboPlayerList(Box).Items, Names{"(NO PLAYER)"});
        EXPECT_EQ(cboPlayerList(Box).Caption, "");
    }
}

TEST_F(Players, EachNameIsOfferedOnceInTheOrderOfTheTables)
{
    Put(2, 1, "zoe", 9);
    Put(2, 2, "ann", 8);
    Put(5, 1, "zoe", 7);
    Put(120, 10, "bert", 1);
    Put(3, 4, "nought", 0);
    GameState.ScoreTable(Finesse, 1, 1) = {"other game", 5, 1, 1, 2026};
    BuildPlayerList();
    for (int Box = 1; Box <= 12; ++Box)
        EXPECT_EQ(cboPlayerList(Box).Items, (Names{"zoe", "ann", "bert", "(NO PLAYER)"}));
}

TEST_F(Players, TheStoredPlayersAreSelectedAgain)
{
    Put(1, 1, "ann", 9);
    GameState.PlayerNames(Agility, 3) = "ann";
    GameState.PlayerNames(Agility, 4) = "gone";
    GameState.PlayerNames(Agility, 12) = "(NO PLAYER)";
    GameState.PlayerNames(Finesse, 1) = "ann";
    BuildPlayerList();
    EXPECT_EQ(cboPlayerList(1).Caption, "");
    EXPECT_EQ(cboPlayerList(3).Caption, "ann");
    EXPECT_EQ(cboPlayerList(4).Caption, "");
    EXPECT_EQ(cboPlayerList(12).Caption, "(NO PLAYER)");
}

TEST_F(Players, TwelveHundredPlayersAreAllOffered)
{
    for (int I = 0; I < 1200; ++I) Put(I / 10 + 1, I % 10 + 1, "p" + std::to_string(I), 1);
    BuildPlayerList();
    EXPECT_EQ(cboPlayerList(1).Items.size(), 1201U);
    EXPECT_EQ(cboPlayerList(12).Items[1199], "p1199");
}

TEST_F(Players, ChosenNamesAreKeptCopiedAndPutBack)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    GameState.PlayerNames(Agility, 1) = "ann";
    GameState.PlayerNames(Wisdom, 7) = "carl";
    CopyChosenPlayers();
    BuildPlayerList();
    Choose(1, "bert");
    Choose(11, "ann");
    SaveChosenPlayers();
    EXPECT_EQ(GameState.PlayerNames(Agility, 1), "bert");
    EXPECT_EQ(GameState.PlayerNames(Agility, 2), "");
    EXPECT_EQ(GameState.PlayerNames(Agility, 11), "ann");
    EXPECT_EQ(GameState.PlayerNames(Wisdom, 7), "carl");
    PutChosenPlayersBack();
    EXPECT_EQ(GameState.PlayerNames(Agility, 1), "ann");
    EXPECT_EQ(GameState.PlayerNames(Agility, 11), "");
    EXPECT_EQ(GameState.PlayerNames(Wisdom, 7), "carl");
}

// --- Master Scores ---

TEST_F(Players, TenPlacesOfOneLayoutSumUpOrCountOnceByTheGraphType)
{
    for (int Place = 1; Place <= 10; ++Place) Put(19, Place, "ann", 20 - Place);
    MasterScoreFor("ann", 1);
    EXPECT_EQ(GameState.MasterScore, 75 + 45 + 40 + 35 + 30 + 25 + 20 + 15 + 10 + 5);
    GameState.GraphType = 2;
    MasterScoreFor("ann", 1);
    EXPECT_EQ(GameState.MasterScore, 75);
}

TEST_F(Players, PlacesAreWeighedByTheSizeOfTheLayout)
{
    const std::pair<int, int> SecondPlaces[] = {{1, 27},  {12, 27},  {13, 45},  {72, 45},
                                                {73, 63}, {108, 63}, {109, 81}, {120, 81}};
    for (const auto& [Layout, Points] : SecondPlaces) {
        GameState.ScoreTable.Clear();
        Put(Layout, 2, "ann", 5);
        MasterScoreFor("ann", 1);
        EXPECT_EQ(GameState.MasterScore, Points) << Layout;
    }
}

TEST_F(Players, NamesAreTakenExactly)
{
    Put(1, 1, "ann", 5);
    for (const char* Name : {"an", "annn", "Ann"}) {
        MasterScoreFor(Name, 1);
        EXPECT_EQ(GameState.MasterScore, 0);
    }
}

TEST_F(Players, AnEntryWithoutScoreAddsToTheMasterScoreAndTheEntriesOnly)
{
    Put(1, 1, "ann", 0);
    Put(2, 3, "ann", 7);
    MasterScoreFor("ann", 1);
    EXPECT_EQ(GameState.MasterScore, 45 + 24);
    ComputeStatistics("ann", 11);
    EXPECT_EQ(Stat(11, 1), "3.00");
    EXPECT_EQ(Stat(11, 2), "2");
    EXPECT_EQ(Stat(11, 3), "1");
}

// --- the boxes ---

TEST_F(Players, AChoiceShowsTheMasterScoreAndTheLeader)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    BuildPlayerList();
    ShowPlayers();
    Choose(4, "bert");
    EXPECT_EQ(ShownScore(4), "27");
    EXPECT_TRUE(Leads(4));
    Choose(2, "ann");
    EXPECT_EQ(ShownScore(2), "45");
    EXPECT_TRUE(Leads(2));
    EXPECT_FALSE(Leads(4));
    EXPECT_EQ(cboSort.Items, (Names{"00000027", "00000045"}));
    EXPECT_EQ(GameState.MasterScore, 45);
}

TEST_F(Players, TwoPlayersWithTheTopScoreBothLead)
{
    Put(1, 1, "ann", 9);
    Put(2, 1, "bert", 8);
    Put(3, 2, "carl", 8);
    GameState.PlayerNames(Agility, 1) = "ann";
    GameState.PlayerNames(Agility, 9) = "bert";
    GameState.PlayerNames(Agility, 10) = "carl";
    BuildPlayerList();
    ShowPlayers();
    EXPECT_TRUE(Leads(1));
    EXPECT_TRUE(Leads(9));
    EXPECT_FALSE(Leads(10));
    EXPECT_FALSE(Leads(2));
}

TEST_F(Players, ScoresAreOrderedAsNumbersOfAnyLength)
{
    Put(1, 10, "three", 9);                                                 // 3 points
    for (int Layout = 1; Layout <= 12; ++Layout) Put(Layout, 1, "many", 9); // 540 points
    Put(13, 1, "some", 9);                                                  // 75 points
    GameState.PlayerNames(Agility, 1) = "three";
    GameState.PlayerNames(Agility, 2) = "many";
    GameState.PlayerNames(Agility, 3) = "some";
    BuildPlayerList();
    ShowPlayers();
    EXPECT_EQ(cboSort.Items, (Names{"00000003", "00000075", "00000540"}));
    EXPECT_TRUE(Leads(2));
    EXPECT_FALSE(Leads(3));
}

TEST_F(Players, APlayerChosenElsewhereLeavesItsOldBox)
{
    Put(1, 1, "ann", 9);
    BuildPlayerList();
    ShowPlayers();
    Choose(1, "ann");
    Choose(11, "ann"); // the compared players are no matter of the graph
    Choose(10, "ann");
    EXPECT_EQ(cboPlayerList(1).Caption, "");
    EXPECT_EQ(ShownScore(1), "");
    EXPECT_EQ(ShownScore(10), "45");
    EXPECT_EQ(cboPlayerList(11).Caption, "ann");
    EXPECT_EQ(GraphColour(1, 1), 10);
}

TEST_F(Players, NobodyHidesTheScoreAndLeavesTheOrder)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    BuildPlayerList();
    Choose(1, "ann");
    Choose(2, "bert");
    Choose(1, "(NO PLAYER)");
    EXPECT_EQ(ShownScore(1), "");
    EXPECT_EQ(GraphColour(1, 1), 0);
    EXPECT_EQ(GraphColour(1, 2), 2);
    EXPECT_FALSE(Leads(2)); // the order is not worked out again
    SortPlayers();
    EXPECT_TRUE(Leads(2));
}

TEST_F(Players, TheGraphHoldsTheColoursOfTheBoxes)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    Put(1, 3, "ann", 7);
    Put(120, 10, "ann", 6);
    BuildPlayerList();
    Choose(3, "ann");
    Choose(7, "bert");
    EXPECT_EQ(GraphColour(1, 1), 3);
    EXPECT_EQ(GraphColour(1, 2), 7);
    EXPECT_EQ(GraphColour(1, 3), 3);
    EXPECT_EQ(GraphColour(120, 10), 3);
    EXPECT_EQ(GraphColour(2, 1), 0);
    GameState.GraphType = 2;
    ShowPlayers();
    EXPECT_EQ(GraphColour(1, 1), 3);
    EXPECT_EQ(GraphColour(1, 3), 0); // not the best place
    EXPECT_EQ(GraphColour(120, 10), 3);
    EXPECT_EQ(ShownScore(3), "54");
}

TEST_F(Players, TheBarsOfTheOldPlayerGoAlsoWithoutADropDown)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    Put(1, 3, "carl", 7);
    BuildPlayerList();
    Choose(1, "ann");
    Choose(2, "bert");
    EXPECT_EQ(GameState.PreviousPlayerName, "");
    SendChoice(cboPlayerList(1), "carl"); // by the wheel
    EXPECT_EQ(GraphColour(1, 1), 0);
    EXPECT_EQ(GraphColour(1, 2), 2);
    EXPECT_EQ(GraphColour(1, 3), 1);
    SendDropDown(cboPlayerList(2));
    EXPECT_EQ(GameState.PreviousPlayerName, "bert");
}

TEST_F(Players, OpeningShowsScoresAndColumnsOfTheStoredPlayers)
{
    Put(1, 1, "ann", 9);
    Put(1, 2, "bert", 8);
    GameState.PlayerNames(Agility, 5) = "bert";
    GameState.PlayerNames(Agility, 12) = "ann";
    BuildPlayerList();
    ShowPlayers();
    EXPECT_EQ(ShownScore(5), "27");
    EXPECT_EQ(ShownScore(1), "");
    EXPECT_EQ(Stat(12, 2), "1");
    EXPECT_EQ(Stat(12, 10), "bert");
    EXPECT_EQ(Stat(11, 2), "");
}

// --- statistics ---

TEST_F(Players, LayoutSeventyTwoCountsWithTheThirdSize)
{
    Put(12, 1, "ann", 9);
    Put(13, 1, "ann", 9);
    Put(71, 1, "ann", 9);
    Put(72, 1, "ann", 9);
    Put(108, 1, "ann", 9);
    Put(109, 1, "ann", 9);
    ComputeStatistics("ann", 12);
    EXPECT_EQ(Stat(12, 5), "45");
    EXPECT_EQ(Stat(12, 6), "150");
    EXPECT_EQ(Stat(12, 7), std::to_string(75 + 105));
    EXPECT_EQ(Stat(12, 8), "135");
}

TEST_F(Players, QuotientsHaveTwoDecimals)
{
    for (int Layout = 1; Layout <= 15; ++Layout) Put(Layout, Layout % 3 + 1, "ann", 9);
    ComputeStatistics("ann", 11);
    EXPECT_EQ(Stat(11, 1), "2.00");
    EXPECT_EQ(Stat(11, 4), "0.13"); // 15 / 120 = 0.125
    GameState.ScoreTable.Clear();
    Put(1, 1, "ann", 9);
    Put(2, 2, "ann", 9);
    Put(3, 2, "ann", 9);
    ComputeStatistics("ann", 11);
    EXPECT_EQ(Stat(11, 1), "1.67");
    EXPECT_EQ(Stat(11, 4), "0.03");
}

TEST_F(Players, WithoutACountedEntryTheAverageIsZero)
{
    Put(1, 4, "ann", 0);
    ComputeStatistics("ann", 11);
    EXPECT_EQ(Stat(11, 1), "0.00");
}

TEST_F(Players, NobodyEmptiesTheColumn)
{
    Put(1, 1, "ann", 9);
    BuildPlayerList();
    for (const char* Nobody : {"(NO PLAYER)", ""}) {
        Choose(11, "ann");
        Choose(12, "ann");
        EXPECT_EQ(Stat(12, 2), "1");
        Choose(12, Nobody);
        for (int Row = 1; Row <= 10; ++Row) EXPECT_EQ(Stat(12, Row), "") << Row;
        EXPECT_EQ(Stat(11, 2), "1");
    }
}

TEST_F(Players, TheClosestRivalIsTheFirstOfTheClosest)
{
    Put(1, 1, "ann", 9);   // 45
    Put(1, 3, "bert", 9);  // 24
    Put(13, 1, "carl", 9); // 75
    Put(73, 2, "dora", 9); // 63
    Put(2, 2, "emil", 9);  // 27
    BuildPlayerList();
    Choose(1, "carl");
    Choose(2, "bert");
    Choose(3, "ann");
    Choose(11, "ann");
    EXPECT_EQ(Stat(11, 10), "bert"); // 21 away, carl 30
    Choose(4, "emil");
    Choose(5, "dora");
    Choose(11, "ann");
    EXPECT_EQ(Stat(11, 10), "emil"); // 18 away, as dora
    Choose(12, "carl");
    EXPECT_EQ(Stat(12, 10), "dora");
    for (int Box = 1; Box <= 10; ++Box) Choose(Box, "(NO PLAYER)");
    Choose(12, "carl");
    EXPECT_EQ(Stat(12, 10), "");
}

TEST_F(Players, TheRivalIsLookedUpWithoutDrawing)
{
    Put(1, 1, "ann", 9);
    BuildPlayerList();
    Choose(11, "ann");
    EXPECT_EQ(GraphColour(1, 1), 0);
}

TEST_F(Players, TheLowScoreIsSearchedInTheClassOfTheGameType)
{
    GameState.LayoutGroup = 2;
    Put(12, 1, "ann", 50);
    Put(13, 1, "ann", 40);
    Put(72, 5, "ann", 30);
    Put(73, 1, "ann", 20);
    Put(108, 1, "ann", 20);
    Put(109, 1, "ann", 0);
    GameState.ProfileSizeClass(Finesse) = 4;
    const std::pair<int, const char*> Wanted[] = {
        {0, ""}, {1, "layout 252"}, {2, "layout 312"}, {3, "layout 313"}, {4, ""}};
    for (const auto& [Class, Name] : Wanted) {
        GameState.ProfileSizeClass(Agility) = Class;
        EXPECT_EQ(LowScoreLayout("ann", 11), Name) << Class;
        EXPECT_EQ(Stat(11, 9), Name);
    }
    Put(110, 1, "ann", 32000);
    EXPECT_EQ(LowScoreLayout("ann", 11), "");
    Put(110, 1, "ann", 31999);
    EXPECT_EQ(LowScoreLayout("ann", 11), "layout 350");
    EXPECT_EQ(lblStatA(9).Tag, "110");
}

TEST_F(Players, APressOnAClassSetsItAndRenewsTheLowScores)
{
    Put(1, 1, "ann", 9);
    Put(80, 1, "ann", 9);
    BuildPlayerList();
    Choose(11, "ann");
    const auto Press = [](int I) { lblOptLowScore(I).Does.Click(I); };
    Press(0);
    EXPECT_EQ(GameState.ProfileSizeClass(Agility), 1);
    EXPECT_EQ(Stat(11, 9), "layout 1");
    EXPECT_EQ(PictureName(imgOptLowScore(0).Shows), "imgOption(1)");
    Press(2);
    EXPECT_EQ(GameState.ProfileSizeClass(Agility), 3);
    EXPECT_EQ(GameState.ProfileSizeClass(Finesse), 0);
    EXPECT_EQ(Stat(11, 9), "layout 80");
    EXPECT_EQ(Stat(12, 9), "");
    EXPECT_EQ(PictureName(imgOptLowScore(0).Shows), "imgOption(0)");
    EXPECT_EQ(PictureName(imgOptLowScore(2).Shows), "imgOption(1)");
}

// Random tables against sums over a flat list of entries.
TEST_F(Players, StatisticsAgreeWithAPlainModel)
{
    std::mt19937 Chance(7);
    constexpr int Weights[] = {3, 5, 7, 9}, Factors[] = {15, 9, 8, 7, 6, 5, 4, 3, 2, 1};
    for (int Round = 0; Round < 50; ++Round) {
        GameState.ScoreTable.Clear();
        struct Sums {
            int Entries = 0, First = 0, Places = 0, Counted = 0, Master = 0, Best = 0;
            int Points[4] = {0, 0, 0, 0};
        };
        std::map<std::string, Sums> Model;
        std::map<std::pair<std::string, int>, int> BestOfLayout;
        for (int Layout = 1; Layout <= 120; ++Layout)
            for (int Place = 1; Place <= 10; ++Place) {
                if (Chance() % 3 == 0) continue;
                const std::string Name(1, static_cast<char>('a' + Chance() % 6));
                const int Score = static_cast<int>(Chance() % 50);
                Put(Layout, Place, Name, Score);
                const int Size = Layout <= 12 ? 0 : Layout <= 72 ? 1 : Layout <= 108 ? 2 : 3;
                const int Points = Weights[Size] * Factors[Place - 1];
                Sums& S = Model[Name];
                ++S.Entries;
                S.First += Place == 1;
                S.Places += Score > 0 ? Place : 0;
                S.Counted += Score > 0;
                S.Master += Points;
                S.Points[Layout == 72 ? 2 : Size] += Points;
                if (BestOfLayout.insert({{Name, Layout}, Points}).second) S.Best += Points;
            }
        for (const auto& [Name, S] : Model) {
            GameState.GraphType = 1;
            MasterScoreFor(Name, 1);
            ASSERT_EQ(GameState.MasterScore, S.Master);
            GameState.GraphType = 2;
            MasterScoreFor(Name, 1);
            ASSERT_EQ(GameState.MasterScore, S.Best);
            ComputeStatistics(Name, 12);
            ASSERT_NEAR(std::stod(Stat(12, 1)), S.Places * 1.0 / S.Counted, 0.00501);
            ASSERT_EQ(Stat(12, 2), std::to_string(S.Entries));
            ASSERT_EQ(Stat(12, 3), std::to_string(S.First));
            ASSERT_NEAR(std::stod(Stat(12, 4)), S.Entries / 120.0, 0.00501);
            for (int Size = 0; Size < 4; ++Size)
                ASSERT_EQ(Stat(12, 5 + Size), std::to_string(S.Points[Size]));
        }
    }
}
