#include "board/board.h"
#include "media/media.h"
#include "screens/screens.h"

// The picture of each full-size screen.
struct BackgroundRow {
    const Element& Panel;
    int Number;
};
static const BackgroundRow Backgrounds[] = {
    {picOptions, 1}, {picHistory, 2}, {picScores, 3}, {picProfile, 4}, {picLayouts, 5}};

void ShowPanel(const Element& Panel)
{
    Show(Panel);
    BringToFront(Panel);
}

void LoadPanelBackground(const Element& Panel)
{
    for (const BackgroundRow& Row : Backgrounds)
        if (&Row.Panel == &Panel) LoadPicture(Panel, "EN", Row.Number, FullWidth, FullHeight);
}

void FreePanelBackground(const Element& Panel)
{
    SetPicture(Panel, NoPicture());
}

void FreeHiddenBackgrounds()
{
    for (const BackgroundRow& Row : Backgrounds)
        if (!Row.Panel.Visible) FreePanelBackground(Row.Panel);
    if (!picHelp.Visible) FreePanelBackground(picHelp);
}

void OpenFromMenu(const Element& Panel)
{
    LoadPanelBackground(Panel);
    ShowPanel(Panel);
    Hide(picMenu);
    Hide(picBlack);
    RefreshPanel();
    Show(picContainer);
    FreeHiddenBackgrounds();
}

void CloseFullScreen(const Element& Panel)
{
    Hide(Panel);
    Hide(picContainer);
    Platform.Yield();
    FreePanelBackground(Panel);
    SetClock(1);
}

void PassTo(const Element& Next, const Element& Former)
{
    // The new one first, so that the board never shows between them.
    LoadPanelBackground(Next);
    ShowPanel(Next);
    Hide(Former);
    FreePanelBackground(Former);
}

void ShowChoice(const ElementArray& Options, int Chosen)
{
    for (int I = Options.First; I < Options.First + Options.Count; ++I)
        SetPicture(Options(I), StockPicture(imgOption(I == Chosen ? 1 : 0)));
}

std::string LayoutSetName(int List)
{
    if (List <= 2) return std::string(1, static_cast<char>('A' + List));
    return std::to_string(List - 2);
}

void ShowLayoutName()
{
    SetCaption(lblLayoutMain, GameState.LayoutName(LayoutIndex()));
}

void ChangedOption()
{
    PlaySound("OPTION");
}
