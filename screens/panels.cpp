#include "screens/screens.h"

constexpr int ScreenWidth = 1024, ScreenHeight = 768;

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
        if (&Row.Panel == &Panel) LoadPicture(Panel, "EN", Row.Number, ScreenWidth, ScreenHeight);
}

void FreePanelBackground(const Element& Panel)
{
    SetPicture(Panel, NoPicture());
}
