// menu.cpp: the menu, the question before quitting, and the buttons of the bar that open them.
#include "board/board.h"
#include "media/media.h"
#include "screens/screens.h"

static void imgButMenu_Action(int)
{
    SetClock(2);
    HidePackLabels(); // a press on the packs may have been let go on the way out
    Show(picMenu);
    Show(picBlack);
    DisablePanel(0);
}

// Back to the board from a box.
static void CloseBox(const Element& Box)
{
    Hide(Box);
    Hide(picBlack);
    RefreshPanel();
    FreeHiddenBackgrounds();
    SetClock(1);
}

static void imgCancel_Action(int)
{
    CloseBox(picMenu);
}
static void HidePackLabelsOnPress(int)
{
    HidePackLabels();
}

static void imgMenuScores_Action(int)
{
    OpenScores(nullptr);
}
static void imgMenuHistory_Action(int)
{
    OpenHistory(nullptr);
}
static void imgMenuOptions_Action(int)
{
    OpenOptions();
}

static void imgMenuHistory_Press(int)
{
    HidePackLabels();
    LoadPanelBackground(picHistory);
}

static void imgMenuProfile_Press(int)
{
    HidePackLabels();
    BuildProfile();
    LoadPanelBackground(picProfile);
}

static void imgMenuProfile_Action(int)
{
    if (picProfile.Shows == NoPicture()) BuildProfile(); // the press began on another button
    OpenFromMenu(picProfile);
}

static void imgExit_Action(int)
{
    Hide(picMenu);
    Show(picExit);
}

static void imgExitNO_Action(int)
{
    CloseBox(picExit);
}
static void imgExitYES_Press(int)
{
    StopMusic();
}

static void imgExitYES_Action(int)
{
    ShowPanel(picContainer);
    CloseGame();
}

static void imgButLayout_Press(int)
{
    if (GameState.GameRunning == 1) return;
    ReleaseButton(); // all is done on the press
    OpenChooser();
}

static void imgButLayout_Action(int)
{
    if (GameState.GameRunning != 1) return;
    GameState.EndThenChooser = 1;
    AskToEndGame();
}

struct MenuRow {
    const Element& Button;
    IndexHandler Press, Action;
};
static const MenuRow MenuButtons[] = {
    {imgCancel, HidePackLabelsOnPress, imgCancel_Action},
    {imgMenuScores, HidePackLabelsOnPress, imgMenuScores_Action},
    {imgMenuHistory, imgMenuHistory_Press, imgMenuHistory_Action},
    {imgMenuProfile, imgMenuProfile_Press, imgMenuProfile_Action},
    {imgMenuOptions, HidePackLabelsOnPress, imgMenuOptions_Action},
    {imgMenuHelp, imgMenuHelp_Press, imgMenuHelp_Action},
    {imgExpansionPacks, imgExpansionPacks_Press, imgExpansionPacks_Action},
    {imgExit, HidePackLabelsOnPress, imgExit_Action},
    {imgExitYES, imgExitYES_Press, imgExitYES_Action},
    {imgExitNO, nullptr, imgExitNO_Action},
};

void SetMenuHandlers()
{
    for (const MenuRow& Row : MenuButtons)
        SetHandlers(Row.Button, {.Press = Row.Press, .Action = Row.Action});
    SetHandlers(imgButMenu, {.MouseMove = picBoard_MouseMove, .Action = imgButMenu_Action});
    SetHandlers(imgButLayout, {.MouseMove = picBoard_MouseMove,
                               .Press = imgButLayout_Press,
                               .Action = imgButLayout_Action});
}
