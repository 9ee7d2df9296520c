// frame.h: start-up, display mode, shutdown, text notes and the image button.
#pragma once

#include "frame/elements.h"

#include <string_view>

// --- startup.cpp: from the first instant to the idle main screen ---

// The desktop as the front end measured it before start-up: pixels and dots per inch.
extern int DesktopWidth, DesktopHeight, DesktopDots;
void SplashLoad(); // shows frmSplash; its timers do the rest
void tmrLogo_Tick(int);
void tmrTitle_Tick(int);
void StartGame(); // behind the title: fills frmMain

// --- handlers.cpp: which procedure an event of which element runs ---

void SetAllHandlers();

// --- display.cpp: window and full screen, minimising, the ways out ---

void SetWindowMode(int Index); // a click on imgWindowMode(Index)
void ShowWindowModeButton();   // the one that leads to the other mode
// In the middle of a desktop of so many pixels.
void CentreScreen(const Element& Screen, int Width, int Height);
void MainScreen_KeyDown(std::string_view Key, bool Shift, bool Ctrl, bool Alt);
void MinimizeGame();
void MainScreen_Resize(); // the desktop brings the minimised screen back
void ShutdownDisplay();   // the program ends in it
void CloseGame();         // records a running game as given up, saves, shuts down

// --- text_note.cpp: the one-line message over the board ---

void ShowTextNote(std::string_view Text);
void HideTextNote();

// --- buttons.cpp: the image button ---

// Left button: the picture moves 1 pixel right and down, ButtonDown becomes 1, Press runs.
void ImageButtonDown(const Element& Button, MouseButton Mouse);
// Left button while ButtonDown is 1: the picture moves back, the latch is cleared, Action runs.
void ImageButtonUp(const Element& Button, MouseButton Mouse);
// Puts the moved picture back and clears the latch, for a button that does its work on the press.
void ReleaseButton();
const Element* PressedButton(); // whose picture is moved; nullptr for none
