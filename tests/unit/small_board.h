// small_board.h: a board of a few tiles in a running game, without any file.
#pragma once

#include "board/board.h"

#include <gtest/gtest.h>
#include <vector>

struct SmallTile {
    int Face, X, Y = 2, Z = 1;
};

// What the game asked of the platform, in order.
inline std::vector<std::string> Asked;

// Element i + 1 gets the i-th tile; all others are off the board.
inline void StandTiles(const std::vector<SmallTile>& Tiles, int GameType = Finesse)
{
    GameState = GameStateRecord();
    Platform.PlaySoundFile = [](const std::string& File) { Asked.push_back(File); };
    InitElements();
    SetAllHandlers();
    Show(frmMain);
    BuildTables();
    GameState.SoundLevel = 2;
    GameState.GameType = GameType;
    GameState.LayoutNumber = 19;
    ShowGamePanel();
    GameState.WaitForStart = 1;
    NewGame(); // resets the panel, deals nothing
    InitTiles();
    GameState.GameRunning = 1;
    Hide(imgbutStart);
    Show(imgbutEnd);
    int Index = 0;
    for (const SmallTile& T : Tiles) {
        ++Index;
        SetTag(imgTile(Index),
               TwoDigits(T.Face) + TwoDigits(T.X) + TwoDigits(T.Y) + std::to_string(T.Z));
        SetTileState(Index, 0);
        SetPlace(imgTile(Index), 100.0F + 30 * static_cast<float>(T.X),
                 30 * static_cast<float>(T.Y));
        Show(imgTile(Index));
        GameState.BoardMap(T.X, T.Y, T.Z) = 1;
    }
    GameState.TilesLeft = Index;
    ScanOpenPairs();
    RefreshPanel();
    RefreshLights();
    Asked.clear();
    QueueRandom({});
}

inline void PressTile(int Tile)
{
    imgTile_MouseDown(Tile, MouseButton::Left, 0, 0);
}
inline void HoverTile(int Tile)
{
    imgTile_MouseMove(Tile, MouseButton::Left, 0, 0);
}

inline int StateOf(int Tile)
{
    return imgTile(Tile).Shows.Number / FaceCount;
}
