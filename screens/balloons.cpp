// balloons.cpp: the short tool tips of the main controls.
#include "screens/screens.h"

struct BalloonRow {
    ElementArray Elements;
    const char* Text;
};

// A single element as an array of one. By its number: the table stands before the elements are
// made.
static ElementArray Single(int Id)
{
    return {"", Id, 0, 1};
}

static const BalloonRow Balloons[] = {
    {lblScore, " Your Score "},
    {lblLayoutMain, " Current Layout "},
    {Single(Id_lblSkipTrack), " Skip Music Track "},
    {lblCurrentTrack, " Current Music Track "},
    {Single(Id_imgWindowMode), " Switch to Window Mode "},
    {Single(Id_imgWindowMode + 1), " Switch to Full Screen Mode "},
    {Single(Id_lblCloseGame), " Exit to Windows "},
    {Single(Id_lblMinimize), " Minimize Game "},
    {Single(Id_lblHelpBalloons), " These are Help Balloons "},
    {lblProScore, " Master Score for this player. Based on all high score entries "},
    {lblTotalPlayed, " Games Completed "},
    {lblTotalWon, " Games Won "},
};

void SetHelpBalloons(bool On)
{
    for (const BalloonRow& Row : Balloons) SetToolTip(Row.Elements, On ? Row.Text : "");
}
