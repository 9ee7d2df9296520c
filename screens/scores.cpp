#include "records/records.h"
#include "screens/screens.h"

void ShowScoresOfNewHigh()
{
    GameState.ScoresLayout = static_cast<int>(GameState.LayoutNumber);
    GameState.ScoresGameType = GameState.GameType;
    InsertScore();
    LoadPanelBackground(picScores);
    ShowPanel(picScores);
}
