#include "screens/screens.h"

void SetScreenHandlers() {}
