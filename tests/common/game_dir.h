// game_dir.h: a fresh game directory in memory for a test, with the made content behind links, and
// the program brought up to its idle main screen.
#pragma once

#include "board/board.h"
#include "frame/files.h"

#include <filesystem>
#include <string>
#include <unistd.h>

inline std::string FreshGameDirectory()
{
    const std::string Base = std::filesystem::exists("/dev/shm") ? "/dev/shm" : "/tmp";
    const std::string Folder = Base + "/pagodas-test-" + std::to_string(getpid());
    std::filesystem::remove_all(Folder);
    std::filesystem::create_directories(Folder);
    const std::filesystem::path Made = PAGODAS_GAME_DIR;
    for (const char* Part : {"DATA", "PHOT"})
        std::filesystem::create_symlink(Made / Part, std::filesystem::path(Folder) / Part);
    return Folder;
}

// The idle main screen of a first run; each time the same, with the same deals to come.
inline void BootGame()
{
    static long long Time;
    Time = 0;
    GameState = GameStateRecord();
    GameDirectory = FreshGameDirectory();
    Platform.Milliseconds = [] { return Time; };
    InitElements();
    SetAllHandlers();
    SplashLoad();
    for (; Time <= 6000; Time += 100) RunDueTimers(Time);
}

// A press at the middle of an element: whatever lies on top there takes it.
inline const Element* PressAt(const Element& E)
{
    const Point Place = ScreenPlace(E);
    const float X = Place.X + E.Width / 2, Y = Place.Y + E.Height / 2;
    SendMouseMove(X, Y);
    const Element* Taker = SendMouseDown(MouseButton::Left, X, Y);
    SendMouseUp(MouseButton::Left, X, Y);
    return Taker;
}
