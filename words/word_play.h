// word_play.h: what the board asks of the word game.
#pragma once

// The Tag of lblWord while a refused word stands in the panel.
constexpr const char* NotAccepted = "NOTACCEPTED";

bool IsInWord(int Tile);  // in Wisdom: a letter of the word under way
void AddLetter(int Tile); // a press on a tile that no power took
void ClearWord();         // the word panel goes back to rest
void ShowWordScore();     // lblBonus: the last word's points and a blank
void DropWord();          // MIX: the tiles go back to normal, the word is forgotten

void imgAcceptWord_Action(int);
void imgUndoWisdom_Action(int);
void OpenDictionary(); // \DATA\AS0001; a missing one leaves only the common words
