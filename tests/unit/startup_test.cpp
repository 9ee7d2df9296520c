#include "tests/common/game_dir.h"

#include <gtest/gtest.h>

// A yield that lets more time pass than the title needs: its timer ticks inside StartGame.
TEST(Yield, TheTitleThatTicksInsideStartGameWaitsForItsEnd)
{
    static long long Now;
    static bool TitleTicked, ShownTooEarly;
    Now = 0;
    TitleTicked = ShownTooEarly = false;
    GameState = GameStateRecord();
    GameDirectory = FreshGameDirectory();
    InitElements();
    SetAllHandlers();
    Platform.Milliseconds = [] { return Now; };
    const auto FormerYield = Platform.Yield;
    Platform.Yield = [] {
        Now += 5000;
        RunDueTimers(Now);
        const bool Loading = GameState.MusicCount == 0 && imgTitle.Visible; // its first yield
        if (!Loading) return;
        TitleTicked = !tmrTitle.Enabled;
        ShownTooEarly = frmMain.Visible;
    };
    SplashLoad();
    for (int Second = 0; Second < 10; ++Second, Now += 1000) RunDueTimers(Now);
    Platform.Yield = FormerYield;
    EXPECT_TRUE(TitleTicked);
    EXPECT_FALSE(ShownTooEarly);
    EXPECT_TRUE(frmMain.Visible);
    EXPECT_FALSE(frmSplash.Visible);
    EXPECT_EQ(lblLayoutMain(0).Caption, "Bridges");
}
