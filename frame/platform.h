// platform.h: what the rules ask of the front end. The desktop answers with a window and a sound
// card, the console with its log and its virtual clock, the tests with nothing at all.
//
// Files are named as the game names them, by a path below the game directory: "\DATA\BD0001".
#pragma once

#include <string>

struct DateTime {
    int Year, Month, Day, Hour, Minute, Second;
};

struct PlatformCalls {
    // Sound. A file that is missing or cannot be played is silence.
    void (*PlaySoundFile)(const std::string& File);
    void (*MusicStop)();
    void (*MusicSetFile)(const std::string& File);
    void (*MusicPlay)();

    // Window and display. 0 by 0 is the desktop's own mode; places are in twips, 15 to the pixel.
    void (*ModeSet)(int Width, int Height);
    void (*WindowPlace)(int Left, int Top);
    void (*Minimize)();
    void (*OpenAddress)(const std::string& Address);

    // Clock. Milliseconds run on steadily and serve the timers.
    DateTime (*Now)();
    long long (*Milliseconds)();

    // Lets waiting input, timers and painting run, then returns.
    void (*Yield)();

    // Tells the player; the program ends with status 1 when it returns.
    void (*ReportFatal)(const std::string& Text);
    // One short sentence to the player about a save that failed; the game plays on.
    void (*ReportTrouble)(const std::string& Text);
    // Asks for the end of the program; returns.
    void (*End)();
};

// Every call does nothing until a front end fills it in before start-up.
extern PlatformCalls Platform;

// Tells what was wrong and with which file or index, and ends the program with status 1.
[[noreturn]] void FatalError(const std::string& Text);
