#include "frame/files.h"
#include "frame/frame.h"
#include "tests/common/game_dir.h"

#include <gtest/gtest.h>

#include <set>

static void Fresh()
{
    GameState = GameStateRecord();
    InitElements();
    Show(frmMain);
    StaleRectangles().clear();
}

TEST(Elements, EveryArrayHasItsIndexes)
{
    Fresh();
    struct Case {
        const ElementArray& Array;
        int First, Count;
    };
    const Case Cases[] = {{imgTile, 0, 289},       {picGamePanel, 1, 3},   {cboPlayerList, 1, 12},
                          {lblProScore, 1, 10},    {lblStatA, 1, 10},      {lblScrRank, 1, 10},
                          {imgHelpBut, 1, 5},      {picBevel, 0, 14},      {lblHisName, 0, 14},
                          {imgFinesseGreen, 0, 8}, {lblLayoutName, 0, 24}, {imgButGroups, 0, 10}};
    for (const Case& C : Cases) {
        EXPECT_EQ(C.Array.First, C.First) << C.Array.Name;
        EXPECT_EQ(C.Array.Count, C.Count) << C.Array.Name;
        EXPECT_EQ(C.Array(C.First).Index, C.First);
        EXPECT_EQ(FindElement(C.Array.Name, C.First + C.Count), nullptr);
    }
    EXPECT_EXIT(imgTile(289), testing::ExitedWithCode(1), "imgTile\\(289\\) is outside 0..288");
}

TEST(Elements, NamesAreUniqueAndEveryPanelIsAPanelOrAScreen)
{
    Fresh();
    std::set<std::string> Names;
    for (const Element& E : Elements) {
        EXPECT_TRUE(Names.insert(ElementText(E)).second) << ElementText(E);
        if (E.Kind == ElementKind::Screen) continue;
        const ElementKind Holder = Elements[E.Panel].Kind;
        EXPECT_TRUE(Holder == ElementKind::Panel || Holder == ElementKind::Screen)
            << ElementText(E);
    }
}

TEST(Elements, APictureOnAHiddenElementShowsWhenItIsShown)
{
    Fresh();
    SetPicture(imgTile(5), CellPicture(clpTileSet, 40));
    EXPECT_TRUE(StaleRectangles().empty());
    Show(imgTile(5));
    EXPECT_EQ(StaleRectangles().size(), 1U);
    EXPECT_EQ(PictureName(imgTile(5).Shows), "clpTileSet(40)");
}

TEST(Elements, APropertyThatDoesNotChangeMarksNothing)
{
    Fresh();
    Show(imgTile(5));
    SetPicture(imgTile(5), CellPicture(clpTileSet, 3));
    SetPlace(imgTile(5), 10, 20);
    SetCaption(lblWord, "A");
    BringToFront(imgTile(5));
    StaleRectangles().clear();
    Show(imgTile(5));
    SetPicture(imgTile(5), CellPicture(clpTileSet, 3));
    SetPlace(imgTile(5), 10, 20);
    SetCaption(lblWord, "A");
    BringToFront(imgTile(5));
    EXPECT_TRUE(StaleRectangles().empty());
}

TEST(Elements, AMoveMarksTheOldPlaceAndTheNew)
{
    Fresh();
    Show(imgTile(5));
    StaleRectangles().clear();
    SetPlace(imgTile(5), 300, 200);
    ASSERT_EQ(StaleRectangles().size(), 2U);
    EXPECT_EQ(StaleRectangles()[0].Left, 0);
    EXPECT_EQ(StaleRectangles()[1].Left, 300);
    EXPECT_EQ(StaleRectangles()[1].Width, 60);
}

TEST(Elements, NothingInAHiddenPanelIsStale)
{
    Fresh();
    Show(imgMenuHelp);
    SetCaption(lblxpack_Installed, "1, 3");
    EXPECT_TRUE(StaleRectangles().empty());
}

TEST(Stacking, HidingAndShowingKeepsThePlace)
{
    Fresh();
    BringToFront(imgTile(7));
    BringToFront(imgTile(3));
    EXPECT_TRUE(StandsBefore(imgTile(3), imgTile(7)));
    Show(imgTile(7));
    Hide(imgTile(7));
    Show(imgTile(7));
    EXPECT_TRUE(StandsBefore(imgTile(3), imgTile(7)));
    SendToBack(imgTile(3));
    EXPECT_TRUE(StandsBefore(imgTile(7), imgTile(3)));
    EXPECT_TRUE(StandsBefore(imgTile(3), picBoard)) << "a panel lies behind what it holds";
    EXPECT_FALSE(StandsBefore(picBoard, imgTile(3)));
}

TEST(Stacking, TilesStayUnderAllThatIsDrawnOverThem)
{
    Fresh();
    BringToFront(imgTile(7));
    for (const Element* Over : {&picNote, &picPeek, &picBlack, &picMenu, &imgNote, &picContainer})
        EXPECT_TRUE(StandsBefore(*Over, imgTile(7))) << Over->Name;
}

TEST(Stacking, TheWindowControlsStayInFrontOfAScreenThatComesUp)
{
    Fresh();
    Show(picOptions);
    BringToFront(picOptions);
    EXPECT_TRUE(StandsBefore(lblCloseGame, picOptions));
    EXPECT_TRUE(StandsBefore(picOptions, picContainer));
    const Point Close = ScreenPlace(lblCloseGame);
    EXPECT_EQ(HitTest(Close.X + 3, Close.Y + 3), &lblCloseGame);
}

TEST(HitTest, TheTopmostVisibleElementTakesThePoint)
{
    Fresh();
    SetPlace(imgTile(1), 300, 200);
    SetPlace(imgTile(2), 320, 210);
    Show(imgTile(1));
    BringToFront(imgTile(1));
    BringToFront(imgTile(2));
    EXPECT_EQ(HitTest(330, 220), &imgTile(1));
    Show(imgTile(2));
    EXPECT_EQ(HitTest(330, 220), &imgTile(2));
    EXPECT_EQ(HitTest(305, 205), &imgTile(1));
    // The first pixels of its left and upper edge are its own, those behind the others are not.
    const float Right = 300 + imgTile(1).Width, Bottom = 200 + imgTile(1).Height;
    for (const auto [X, Y] : {Point{300, 200}, Point{Right - 1, 200}, Point{300, Bottom - 1}})
        EXPECT_EQ(HitTest(X, Y), &imgTile(1)) << X << ", " << Y;
    for (const auto [X, Y] :
         {Point{299, 200}, Point{300, 199}, Point{Right, 200}, Point{300, Bottom}})
        EXPECT_EQ(HitTest(X, Y), &picBoard) << X << ", " << Y;
    EXPECT_EQ(HitTest(10, 300), &picBoard);
    Show(picBlack);
    EXPECT_EQ(HitTest(330, 220), &picBlack);
    EXPECT_EQ(HitTest(2000, 10), nullptr);
    Hide(frmMain);
    EXPECT_EQ(HitTest(330, 220), nullptr);
}

TEST(Timers, ATimerTicksAtItsIntervalAndNotWhenDisabled)
{
    Fresh();
    static long long Now;
    static int Ticks;
    Now = 0;
    Ticks = 0;
    Platform.Milliseconds = [] { return Now; };
    SetHandlers(tmrAgility, {.Tick = [](int) { ++Ticks; }});
    EnableTimer(tmrAgility);
    RunDueTimers(99);
    EXPECT_EQ(Ticks, 0);
    Now = 100;
    RunDueTimers(Now);
    EXPECT_EQ(Ticks, 1);
    EXPECT_EQ(NextTimer()->Due, 200);
    DisableTimer(tmrAgility);
    Now = 1000;
    RunDueTimers(Now);
    EXPECT_EQ(Ticks, 1);
    EXPECT_EQ(NextTimer(), nullptr);
}

TEST(Timers, ATimerThatIsEnabledAgainStartsAWholeInterval)
{
    Fresh();
    static long long Now;
    Now = 0;
    Platform.Milliseconds = [] { return Now; };
    EnableTimer(tmrPause);
    Now = 600;
    EnableTimer(tmrPause);
    EXPECT_EQ(tmrPause.Due, 1600);
}

TEST(ImageButton, APressReleasedOverAnotherButtonFiresThatOne)
{
    Fresh();
    static int Fired;
    Fired = 0;
    SetHandlers(imgMixFinesse, {.Action = [](int) { Fired += 1; }});
    SetHandlers(imgUndo, {.Action = [](int) { Fired += 10; }});
    const float Left = imgMixFinesse.Left;
    ImageButtonDown(imgMixFinesse, MouseButton::Left);
    EXPECT_EQ(imgMixFinesse.Left, Left + 1);
    EXPECT_EQ(GameState.ButtonDown, 1);
    ImageButtonUp(imgUndo, MouseButton::Right);
    EXPECT_EQ(Fired, 0);
    ImageButtonUp(imgUndo, MouseButton::Left);
    EXPECT_EQ(Fired, 10);
    EXPECT_EQ(imgMixFinesse.Left, Left);
    EXPECT_EQ(GameState.ButtonDown, 0);
    ImageButtonUp(imgUndo, MouseButton::Left);
    EXPECT_EQ(Fired, 10) << "without a press nothing fires";
}

TEST(PictureFile, HeadersAreReadAndCutFilesRefused)
{
    GameDirectory = PAGODAS_GAME_DIR;
    EXPECT_EQ(PictureFileTrouble("\\DATA\\TS0001", 720, 540), "");
    EXPECT_EQ(PictureFileTrouble("\\DATA\\TS0001", 0, 0), "");
    EXPECT_EQ(PictureFileTrouble("\\DATA\\TS0001", 1, 2),
              "is 720 by 540 pixels and should be 1 by 2");
    EXPECT_EQ(PictureFileTrouble("\\DATA\\TS8888", 0, 0), "is missing or cannot be read");
    EXPECT_EQ(PictureFileTrouble("\\DATA\\LY0000", 0, 0), "is no picture (PNG, JPEG or BMP)");
}

TEST(PictureFile, AMarkerOfAJpegMayHaveFillBytesBeforeIt)
{
    GameDirectory = FreshGameDirectory();
    const Bytes Small = {0xFF, 0xD8, 0xFF, 0xFF, 0xFF, 0xC0, 0, 11,   8,   0,
                         60,   0,    60,   1,    1,    0x11, 0, 0xFF, 0xD9};
    std::string Why;
    ASSERT_TRUE(WriteWholeFile("\\small.jpg", Small, Why)) << Why;
    EXPECT_EQ(PictureFileTrouble("\\small.jpg", 60, 60), "");
    std::filesystem::remove_all(GameDirectory);
}
