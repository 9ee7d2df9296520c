// balloons.cpp: the short tool tips of the main controls.
#include "screens/screens.h"

struct BalloonRow {
    ElementArray Elements;
    const char* Text;
};

// A single element as an array of one.
static ElementArray Single(const Element& E)
{
    return {E.Name, E.Id, 0, 1};
}

static const BalloonRow Balloons[] = {
    {lblScore, " Your Score "},
    {lblLayoutMain, " Current Layout "},
    {Single(lblSkipTrack), " Skip Music Track "},
    {lblCurrentTrack, " Current Music Track "},
    {Single(imgWindowMode(0)), " Switch to Window Mode "},
    {Single(imgWindowMode(1)), " Switch to Full Screen Mode "},
    {Single(lblCloseGame), " Exit to Windows "},
    {Single(lblMinimize), " Minimize Game "},
    {Single(lblHelpBalloons), " These are Help Balloons "},
    {lblProScore, " Master Score for this player. Based on all high score entries "},
    {lblTotalPlayed, " Games Completed "},
    {lblTotalWon, " Games Won "},
};

void SetHelpBalloons(bool On)
{
    for (const BalloonRow& Row : Balloons) SetToolTip(Row.Elements, On ? Row.Text : "");
}
