// screens.h: everything that lies over the board. One source file a screen.
#pragma once

#include "frame/frame.h"

// The buttons, labels and samples of all screens; start-up calls it once.
void SetScreenHandlers();

// --- panels.cpp: what all full-size screens share ---

void ShowPanel(const Element& Panel);           // visible and in front
void LoadPanelBackground(const Element& Panel); // \DATA\ENnnnn, just before it opens
void FreePanelBackground(const Element& Panel);

// --- layout_chooser.cpp ---

void OpenChooser(); // no game runs

// --- scores.cpp ---

// The score just earned enters its table, and the table comes up behind the end panels.
void ShowScoresOfNewHigh();

// --- balloons.cpp ---

void SetHelpBalloons(bool On);
