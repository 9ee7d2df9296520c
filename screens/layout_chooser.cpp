#include "screens/screens.h"

void OpenChooser()
{
    Show(picContainer);
    GameState.EndThenChooser = 0;
    LoadPanelBackground(picLayouts);
    ShowPanel(picLayouts);
}
