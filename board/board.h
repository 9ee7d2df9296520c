// board.h: layouts, the deal, what lies on the board, what may be played, how a game ends.
#pragma once

#include "frame/frame.h"

constexpr int FullTime = 7500;   // AgilityTime of a new game, tenths of a second
constexpr int PairArmed = 32000; // PairMark: PAIR waits for a tile
constexpr int TileStep = 2;      // grid steps from a tile to its neighbour

// The notes of picNote.
constexpr int NoteMismatch = 0, NoteBlocked = 1, NoteNothingToUndo = 2, NoteGameOver = 3,
              NoteWaiting = 4, NotePickTile = 5, NoteOpenPairs = 6, NoteStreak = 7,
              NoteWinBonus = 8, NoteTooShort = 9, NoteNotFound = 10, NoteWordRest = 11,
              NoteTimeLeft = 12;

// --- layouts.cpp: layouts and their geometry ---

void LoadLayoutNames();    // \DATA\LY0000 into LayoutName and LayoutOffset; a bad file is fatal
void LoadLayoutGeometry(); // \DATA\LY9nnn of LayoutGroup into the tables of the list
void PlaceTileRun(I16& X, int Y, int Z, int Count); // X advances by 2 for each tile
void PlaceLayout();                                 // the whole of LayoutNumber, in placing order
void DrawRandomLayoutNumber(); // by RandomLayoutMode 1..6; other modes leave LayoutNumber alone

// --- deal.cpp: a new game ---

void NewGame();      // the reset and, unless WaitForStart is 1, the deal
void InitTiles();    // faces, pictures and blank places; TileOrder becomes the identity
void ShuffleTiles(); // 576 exchanges among the first N entries of TileOrder
void ShowDealtTiles();
void HideAllTiles();
void imgbutStart_Action(int);

// --- tags.cpp: the tile's record, FFXXYYZ ---

int TileFace(int Tile);
int TileX(int Tile);
int TileY(int Tile);
int TileZ(int Tile);
std::string TwoDigits(int Number);

// --- view.cpp: tiles, notes, digits ---

void SetTileState(int Tile, int State); // 0 normal, 1 lit, 2 marked; tile 0 is ignored
void ShowNote(int Note);                // 0..12
void ShowOpenPairCount();               // note 6 with MoveCount in the blue digits
void ShowClock(I16& Value);             // a value below 0 becomes 0
void ShowGamePanel();
void ClearHover(); // the pointer has left the tiles

// --- free_tiles.cpp: which tiles may be played ---

bool IsBlocked(int X, int Y, int Z); // looks at BoardMap only
void ScanOpenPairs();                // run after every change of the board

// --- selection.cpp: the press on a tile and the hover ---

void imgTile_MouseDown(int Tile, MouseButton, int, int);
void imgTile_MouseMove(int Tile, MouseButton, int, int);
void picBoard_MouseDown(int, MouseButton, int, int);
void picBoard_MouseMove(int, MouseButton, int, int); // of the bar and what stands on it too

// --- scoring.cpp: points, and the panel that follows the counters ---

int StreakBonus(int Face); // also moves RecentFaces on
void ScoreMatch(int Face);
void AddWinBonus();
void RefreshPanel();
void DisablePanel(int Mode); // start-up passes 1, every other caller 0
void RefreshLights();

// --- powers.cpp: UNDO, PEEK, PAIR, PUSH ---

void imgUndo_Action(int);
void imgPeek_Action(int);
void imgPair_Action(int);
void imgPush_Action(int);
void picPeek_Click(int);
void PeekStep(int Tile);
void PairStep(int Tile);
void PushStep(int Tile);
void TakeMarksAway(); // the marks of PAIR
void DropSelection(); // the hinted pair and the selected tile go back to normal

// --- mix.cpp: MIX and the dead end ---

void MixTiles();
void ShowNoMoves();
void imgNoMovesMixOK_Action(int);

// --- clock.cpp: the clock of Agility and its pause ---

void SetClock(int Mode); // 1 starts, 2 stops; only in a running game of Agility
void tmrAgility_Tick(int);
void tmrPause_Tick(int);
void imgPause_Press(int);
void imgPause_Action(int);

// --- end_of_game.cpp: won, lost, given up ---

void EndWonGame();
// Table or no table: the panels of a finished game, its history line, its won count. Name stands
// in the name box.
void CongratulateOrAskName(const std::string& Name);
// The box of a lost game; its count is on disk before the box is answered.
void ShowLostGame();
void imgCongratsOK_Action(int);
void imgNewHighOK_Action(int);
void imgNoMovesOK_Action(int);
void imgbutEnd_Action(int);
void imgEndNO_Action(int);
void imgEndYES_Action(int);
void AskToEndGame(); // the box picEnd over a running game
