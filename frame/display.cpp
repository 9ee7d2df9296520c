// display.cpp: window and full screen, moving, minimising, and the ways out. Places are in twips.
#include "board/board.h"
#include "frame/frame.h"
#include "media/media.h"
#include "records/records.h"

#include <algorithm>
#include <cmath>

constexpr int MainWidth = FullWidth * TwipsPerPixel, MainHeight = FullHeight * TwipsPerPixel;
constexpr int MoveStep = 150;
constexpr const char* WindowRefused =
    "Your desktop display setting must be higher then 1024x768 to switch to Window Mode";
constexpr const char* WindowHint =
    "Press SHIFT + Arrow key to move game window to desired location";

static void GameMode()
{
    Platform.ModeSet(FullWidth, FullHeight);
}
static void DesktopMode()
{
    Platform.ModeSet(0, 0);
}

// Halves go to the even neighbour.
static float Half(int Twips)
{
    return static_cast<float>(std::nearbyint(Twips / 2.0));
}

void CentreScreen(const Element& Screen, int Width, int Height)
{
    SetPlace(Screen, Half(Width * TwipsPerPixel - static_cast<int>(Screen.Width)),
             Half(Height * TwipsPerPixel - static_cast<int>(Screen.Height)));
}

void ShowWindowModeButton()
{
    SetVisible(imgWindowMode(1), GameState.DisplayMode == 1);
    SetVisible(imgWindowMode(0), GameState.DisplayMode != 1);
}

static void GoToWindow()
{
    if (GameState.ScreenWidth <= FullWidth || GameState.ScreenHeight <= FullHeight) {
        ShowTextNote(WindowRefused);
        return;
    }
    GameState.RestoreDisplayPending = 0;
    GameState.DisplayMode = 1;
    ShowWindowModeButton();
    SetSize(frmMain, MainWidth, MainHeight);
    DesktopMode();
    Platform.Yield();
    SetSize(frmMain, MainWidth, MainHeight);
    CentreScreen(frmMain, GameState.ScreenWidth, GameState.ScreenHeight);
    ShowTextNote(WindowHint);
    SaveSettings();
}

static void GoToFullScreen()
{
    GameState.DisplayMode = 0;
    ShowWindowModeButton();
    Hide(frmMain);
    GameMode();
    Show(frmMain);
    HideTextNote();
    SetPlace(frmMain, 0, 0);
    SaveSettings();
}

void SetWindowMode(int Index)
{
    if (Index == 0)
        GoToWindow();
    else
        GoToFullScreen();
}

void MainScreen_KeyDown(std::string_view Key, bool Shift, bool Ctrl, bool Alt)
{
    if (imgWindowMode(0).Visible || !Shift || Ctrl || Alt) return;
    const float Right = static_cast<float>(GameState.ScreenWidth * TwipsPerPixel - MainWidth);
    const float Bottom = static_cast<float>(GameState.ScreenHeight * TwipsPerPixel - MainHeight);
    float Left = frmMain.Left, Top = frmMain.Top;
    if (Key == "up") Top = std::max(Top - MoveStep, 1.0F);
    if (Key == "left") Left = std::max(Left - MoveStep, 1.0F);
    if (Key == "right") Left = std::min(Left + MoveStep, Right);
    if (Key == "down") Top = std::min(Top + MoveStep, Bottom);
    SetPlace(frmMain, Left, Top);
}

void MinimizeGame()
{
    DesktopMode();
    DisableTimer(tmrPause);
    DisableTimer(tmrAgility);
    Platform.Minimize();
    GameState.RestoreDisplayPending = 1;
}

void MainScreen_Resize()
{
    if (GameState.RestoreDisplayPending != 1) return;
    GameState.RestoreDisplayPending = 0;
    if (imgWindowMode(0).Visible) GameMode();
    Platform.Yield();
    // Under a box or a screen no timer was running that could go on.
    const bool PanelUp = picBlack.Visible || picContainer.Visible;
    if (GameState.GameType == Agility && !PanelUp) SetClock(1);
}

void ShutdownDisplay()
{
    DesktopMode();
    Platform.End();
}

void CloseGame()
{
    if (GameState.GameRunning == 1)
        RecordGame(OutcomeNoPlace, "-", "-", GameState.LayoutNumber, GameState.Score);
    if (picOptions.Visible) {
        GameState.TileGroupShown = GameState.TileGroupKept;
        GameState.BackdropGroupShown = GameState.BackdropGroupKept;
    }
    SaveSettings();
    ShutdownDisplay();
}
