// screens.h: everything that lies over the board. One source file a screen.
//
// At most one full-size screen and one box are up at a time. A game stays alive under every panel,
// and the clock of Agility stands still while one is up.
#pragma once

#include "frame/frame.h"

// The buttons, labels and samples of all screens; start-up calls it once.
void SetScreenHandlers();

// --- panels.cpp: what all full-size screens share ---

void ShowPanel(const Element& Panel);           // visible and in front
void LoadPanelBackground(const Element& Panel); // \DATA\ENnnnn, just before it opens
void FreePanelBackground(const Element& Panel);
void FreeHiddenBackgrounds();               // what a press loaded that was let go elsewhere
void OpenFromMenu(const Element& Panel);    // data and background stand ready
void CloseFullScreen(const Element& Panel); // back to the board; the clock goes on
void PassTo(const Element& Next, const Element& Former);  // one record screen to another
void ShowChoice(const ElementArray& Options, int Chosen); // lights element Chosen, -1 for none
std::string LayoutSetName(int List);                      // "A", "B", "C", or the pack's number
void ShowLayoutName(); // LayoutNumber's name in both lblLayoutMain
void ChangedOption();  // the sound of a change on a screen

// --- menu.cpp ---

void SetMenuHandlers();

// --- options.cpp ---

void OpenOptions();
void SetOptionsHandlers();

// --- layout_chooser.cpp ---

void OpenChooser(); // no game runs
void ShowThumbnails();
void ShowSetLabel();
void ChooseLayout(int Number);
void SetChooserHandlers();

// --- scores.cpp ---

void ShowScores();                      // builds the table of ScoresLayout and ScoresGameType
void OpenScores(const Element* Former); // from the menu, or from a record screen
// The score just earned enters its table, and the table comes up behind the end panels.
void ShowScoresOfNewHigh();
void SetScoresHandlers();

// --- history.cpp ---

void ShowHistory(); // page 1 of the current game type
void ShowHistoryPage();
void OpenHistory(const Element* Former);
void SetHistoryHandlers();

// --- profile.cpp ---

void BuildProfile();                     // of the current game type: graph, players, statistics
void OpenProfile(const Element& Former); // a record screen
void SetProfileHandlers();

// --- help.cpp ---

void SetHelpHandlers();
void imgMenuHelp_Press(int);
void imgMenuHelp_Action(int);

// --- balloons.cpp ---

void SetHelpBalloons(bool On);
