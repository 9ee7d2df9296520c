#include "board/board.h"
#include "media/media.h"

constexpr int PauseSeconds = 10;
constexpr float BarStep = 5; // pixels a second

static bool ClockRules()
{
    return GameState.GameRunning == 1 && GameState.GameType == Agility;
}

void SetClock(int Mode)
{
    if (!ClockRules()) return;
    if (Mode == 1) {
        // A pause that a box interrupted goes on where it stood; the bar is the record of it.
        EnableTimer(imgPauseBar.Visible ? tmrPause : tmrAgility);
    } else if (Mode == 2) {
        DisableTimer(tmrAgility);
        DisableTimer(tmrPause);
    }
}

void tmrAgility_Tick(int)
{
    // Time running out ends nothing: the clock stays at 0 and the game goes on.
    GameState.AgilityTime -= 1;
    ShowClock(GameState.AgilityTime);
}

void imgPause_Press(int)
{
    PlaySound("PAUSE");
}

void imgPause_Action(int)
{
    if (GameState.PauseCount == 0) return;
    --GameState.PauseCount;
    RefreshLights();
    DisableTimer(tmrAgility);
    GameState.PauseTicks = PauseSeconds;
    EnableTimer(tmrPause);
    SetPlace(imgPauseBar, imgPauseBar.Left, 0);
    Show(imgPauseBar);
}

void tmrPause_Tick(int)
{
    GameState.PauseTicks -= 1;
    SetPlace(imgPauseBar, imgPauseBar.Left, imgPauseBar.Top + BarStep);
    if (GameState.PauseTicks >= 1) {
        PlaySound("TIC");
        return;
    }
    DisableTimer(tmrPause);
    EnableTimer(tmrAgility);
    Hide(imgPauseBar);
    PlaySound("UNPAUSE");
}
