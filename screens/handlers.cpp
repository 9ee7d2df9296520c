#include "screens/screens.h"

void SetScreenHandlers()
{
    SetMenuHandlers();
    SetOptionsHandlers();
    SetChooserHandlers();
    SetScoresHandlers();
    SetHistoryHandlers();
    SetProfileHandlers();
    SetHelpHandlers();
}
