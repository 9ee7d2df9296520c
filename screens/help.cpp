// help.cpp: the help pages and their buttons.
#include "board/board.h"
#include "media/media.h"
#include "screens/screens.h"

constexpr int CreditPage = 4;
constexpr const char* CreditsPage = "\\DATA\\credits.html";

static void LoadPage(int Page)
{
    LoadPicture(picHelp, "HP", Page, FullWidth, FullHeight);
    SetVisible(lblCreditMusic, Page == CreditPage);
    SetVisible(lblCreditMaker, Page == CreditPage);
}

// The first page's button stands pressed while the help opens; a press on any button frees it.
static bool FirstPagePressed = false;

static void MoveFirstPageButton(bool Pressed)
{
    if (Pressed == FirstPagePressed) return;
    const float Step = Pressed ? 1.0F : -1.0F;
    SetPlace(imgHelpBut(1), imgHelpBut(1).Left + Step, imgHelpBut(1).Top + Step);
    FirstPagePressed = Pressed;
}

static void PrepareHelp()
{
    LoadPage(1);
    MoveFirstPageButton(true);
}

void imgMenuHelp_Press(int)
{
    HidePackLabels();
    PrepareHelp();
}

void imgMenuHelp_Action(int)
{
    if (picHelp.Shows == NoPicture()) PrepareHelp(); // the press began on another button
    OpenFromMenu(picHelp);
}

// The page changes at the press: no action is left for the release.
static void imgHelpBut_Press(int Page)
{
    MoveFirstPageButton(false);
    LoadPage(Page);
}

static void imgBackToGame_Action(int)
{
    MoveFirstPageButton(false);
    CloseFullScreen(picHelp);
}

static void OpenCredits(int)
{
    Platform.OpenAddress(CreditsPage);
}

void SetHelpHandlers()
{
    FirstPagePressed = false;
    SetHandlers(imgHelpBut, {.Press = imgHelpBut_Press});
    SetHandlers(imgBackToGame, {.Action = imgBackToGame_Action});
    SetHandlers(lblCreditMusic, {.Click = OpenCredits});
    SetHandlers(lblCreditMaker, {.Click = OpenCredits});
}
