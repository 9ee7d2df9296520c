// views.h: every state of the program that a player can see, by name, painted by the painter of the
// real window. List boxes and the name box are the desktop's own and are left out.
#pragma once

#include <QImage>

#include <vector>

struct View {
    const char* Name;
    void (*BringAbout)(); // from the idle main screen of a first run
};
const std::vector<View>& AllViews();

void Enter(const View& Which);      // a fresh program, brought to that state
QImage PaintedScreen(double Ratio); // as it stands now; Ratio device pixels to a pixel
void LoadScreenFonts();             // from their files, once
