#include "tests/records/records_test.h"

namespace
{

struct EndPanels : RecordsTest {
    EndPanels()
    {
        SetRecordHandlers();
        GameState.GameType = Finesse;
        GameState.LayoutNumber = 19;
        PutPicture("PHOT/PH0019", 720, 420);
        PutPicture("PHOT/PH0360", 720, 420);
        PutPicture("PHOT/PH0180", 720, 420);
        PutPicture("DATA/EN0003", 1024, 768);
    }
    // A game that has earned its place.
    static void AskForName(int Score)
    {
        GameState.Score = Score;
        ScoreRankFor(Score);
        ShowNewHigh();
    }
    static void PressOK() { imgNewHighOK.Does.Action(0); }
};

} // namespace

TEST_F(EndPanels, CongratulationsShowThePictureOfTheLayout)
{
    Show(picNewHigh);
    ShowCongratulations();
    EXPECT_FALSE(picNewHigh.Visible);
    EXPECT_TRUE(picCongrats.Visible);
    EXPECT_TRUE(picGameWon.Visible);
    EXPECT_EQ(PictureName(imgGameWon.Shows), "\\PHOT\\PH0019");
    GameState.LayoutGroup = 2;
    GameState.LayoutNumber = 120;
    ShowCongratulations();
    EXPECT_EQ(PictureName(imgGameWon.Shows), "\\PHOT\\PH0360");
}

TEST_F(EndPanels, InAPackCongratulationsLoadNoPictureAndANewHighDrawsOne)
{
    GameState.LayoutGroup = 3;
    ShowCongratulations();
    EXPECT_EQ(PictureName(imgGameWon.Shows), "");
    QueueRandom({0.4999});
    ShowNewHigh();
    EXPECT_EQ(PictureName(imgGameWon.Shows), "\\PHOT\\PH0180");
}

TEST_F(EndPanels, AMissingPictureIsFatalAndNamesTheFile)
{
    GameState.LayoutNumber = 20;
    EXPECT_EXIT(ShowCongratulations(), testing::ExitedWithCode(1), "PH0020");
}

TEST_F(EndPanels, ANewHighAsksForTheName)
{
    Show(picCongrats);
    Show(frmMain);
    ShowNewHigh();
    EXPECT_FALSE(picCongrats.Visible);
    EXPECT_TRUE(picNewHigh.Visible);
    EXPECT_TRUE(picGameWon.Visible);
    EXPECT_EQ(PictureName(imgGameWon.Shows), "\\PHOT\\PH0019");
    EXPECT_EQ(Focused(), &txtName);
}

TEST_F(EndPanels, BothPanelsSoundTheSameEffect)
{
    static std::vector<std::string> Played;
    Played.clear();
    Platform.PlaySoundFile = [](const std::string& File) { Played.push_back(File); };
    GameState.SoundLevel = 2;
    ShowCongratulations();
    ShowNewHigh();
    EXPECT_EQ(Played, std::vector<std::string>(2, "\\DATA\\FX0007"));
    Platform.PlaySoundFile = [](const std::string&) {};
}

TEST_F(EndPanels, TheCoverGoesByTheUntrimmedText)
{
    ShowNewHigh();
    EXPECT_TRUE(imgNewHighOKDIS.Visible);
    SendText(txtName, " ");
    EXPECT_FALSE(imgNewHighOKDIS.Visible);
    SendText(txtName, "");
    EXPECT_TRUE(imgNewHighOKDIS.Visible);
    SetText(txtName, "ann"); // a name that is offered can be confirmed at once
    EXPECT_FALSE(imgNewHighOKDIS.Visible);
    Show(imgNewHighOKDIS);
    ShowNewHigh(); // the same name once more
    EXPECT_FALSE(imgNewHighOKDIS.Visible);
}

TEST_F(EndPanels, ABlankNameLeavesThePanelUp)
{
    AskForName(50);
    for (const char* Blank : {"", "   "}) {
        SendText(txtName, Blank);
        PressOK();
        SendKeyPress(txtName, 13);
        EXPECT_TRUE(picGameWon.Visible);
        EXPECT_EQ(GameState.ScoreRank, 1);
        EXPECT_EQ(GameState.TypedEntry, 0);
        EXPECT_EQ(GameState.ScoreTable(Finesse, 19, 1).Score, 0);
        EXPECT_FALSE(std::filesystem::exists(Place("History.dat")));
    }
}

TEST_F(EndPanels, AConfirmedNameEntersScoreHistoryAndFiles)
{
    GameState.ScoreTable(Finesse, 19, 1) = {"old", 60, 1, 1, 2020};
    Show(picBlack);
    AskForName(50);
    SendText(txtName, "  Ann \u00c9 ");
    PressOK();
    EXPECT_EQ(GameState.LastName, "ann \u00e9");
    EXPECT_EQ(GameState.ScoreTable(Finesse, 19, 2).Name, "ann \u00e9");
    EXPECT_EQ(GameState.History(Finesse, 3, 1).Name, "ann \u00e9");
    EXPECT_EQ(GameState.History(Finesse, 3, 1).Place, "2");
    EXPECT_EQ(GameState.ScoreRank, 0);
    EXPECT_TRUE(picScores.Visible);
    EXPECT_TRUE(picContainer.Visible);
    EXPECT_FALSE(picGameWon.Visible);
    EXPECT_FALSE(picBlack.Visible);
    EXPECT_EQ(picNote.Tag, "4");
    EXPECT_EQ(GameState.WaitForStart, 0); // the new game has cleared it
    const std::string File = FileContent("SCOR/Scores-A");
    ASSERT_EQ(File.size(), 129600U);
    EXPECT_EQ(File.substr((18 * 10 + 1) * 18, 14),
              FileBytes().Text("ann \xe9", 12).Number(50).Bytes);
    EXPECT_EQ(FileContent("History.dat").size(), 9828U);
}

TEST_F(EndPanels, TheEnterKeyConfirmsAndOtherKeysDoNot)
{
    AskForName(50);
    SendText(txtName, "ann");
    SendKeyPress(txtName, 65);
    EXPECT_EQ(GameState.ScoreTable(Finesse, 19, 1).Score, 0);
    SendKeyPress(txtName, 13);
    EXPECT_EQ(GameState.ScoreTable(Finesse, 19, 1).Name, "ann");
    EXPECT_EQ(GameState.TypedEntry, 0); // cleared with the insertion
}
