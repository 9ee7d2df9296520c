// media.h: tile sets and backdrops, music, sound effects, content packs.
#pragma once

#include "frame/elements.h"

#include <string>

// --- catalogue.cpp: tile sets and backdrops ---

void FillCatalogueNames();                       // the built-in names of tile sets and backdrops
void LoadTileSet(const Element& E, int Number);  // \DATA\TSnnnn; 0 is the letter tiles
void LoadBackdrop(const Element& E, int Number); // \DATA\BDnnnn
void LoadNamedTileSet(int Number);               // into clpTileSet
void LoadNamedBackdrop(int Number);              // into picBoard
void ChooseTileSet(); // at every new game, by the choices of the settings
void ChooseBackdrop();

// --- music.cpp: the rotation of tracks ---

void SetTrack(int Track); // hands \DATA\MSnnnn to the player
void StartMusic();        // CurrentTrack, not the next one
void StopMusic();
void NextTrack();
void ShowTrackLabel();
void ActiveMP31_StateChange(int State); // 3: the track came to its end
void lblSkipTrack_Click(int);

// --- sounds.cpp: effects ---

// Plays the effect of the word, in any case, or the file of that name below \DATA\. The word is
// overwritten with the file's name. With sounds off nothing is touched.
void PlaySound(std::string& Word);
inline void PlaySound(const char* Word)
{
    std::string Name = Word;
    PlaySound(Name);
}

// --- packs.cpp: content packs ---

void ScanContentPacks(); // finds \DATA\XPnnnn and takes in their names; a bad one is fatal
void imgExpansionPacks_Press(int);
void imgExpansionPacks_Action(int);
void HidePackLabels();
