// game_state.h: all that the running game knows. Every rule reads and writes this one record;
// nothing keeps a copy of its own.
//
// Numbers are 16 bits unless they say otherwise, flags are 0 or 1, tables have the bounds of their
// rules. All is zero or empty when the program starts.
#pragma once

#include "frame/checked.h"

#include <map>
#include <string>
#include <vector>

constexpr int Finesse = 1, Agility = 2, Wisdom = 3; // GameType
constexpr int TileCount = 288;                      // tile elements
constexpr int FaceCount = 36;
constexpr int LastLayoutIndex = 3000;

// One place of a score table. A score of 0 is a free place.
struct ScoreEntry {
    std::string Name; // lower case
    I16 Score;
    U8 Day, Month;
    I16 Year;
};

// One recorded game.
struct HistoryRow {
    std::string Name;  // lower case; "-" when no name was asked for
    std::string Place; // place in the score table; "-" for none
    I16 LayoutIndex;
    I16 Score;
    std::string Date; // DDMMYYYY
};

struct Colour {
    std::uint8_t Red = 0, Green = 0, Blue = 0;
    friend constexpr bool operator==(const Colour&, const Colour&) = default;
};

struct GameStateRecord {
    // The game and the layout
    I16 GameType;
    I16 LayoutGroup;      // list: 0, 1, 2 built in; pack n is list n + 2
    I32 LayoutNumber;     // 1..120 inside the list; 0 none chosen
    I16 RandomLayoutMode; // 0: play LayoutNumber; 1..6: draw a number at each deal
    Table<I16, Span<0, 9>> RandomBlockChosen{"RandomBlockChosen"};
    I16 LayoutListCount;
    Table<I16, Span<0, 101>> LayoutSets{"LayoutSets"}; // list numbers from entry 1
    I16 LayoutSetCursor;

    // Per layout, by LayoutIndex
    Table<std::string, Span<0, LastLayoutIndex>> LayoutName{"LayoutName"};
    Table<std::string, Span<0, LastLayoutIndex>> LayoutOffset{"LayoutOffset"}; // XXYY, pixels
    Table<I16, Span<0, LastLayoutIndex>> LayoutWon{"LayoutWon"};
    Table<I16, Span<0, LastLayoutIndex>> LayoutLost{"LayoutLost"};

    // Geometry of the current list: triples x, y, z in placing order
    Table<I16, Span<1, 2592>> LayoutData72{"LayoutData72"};
    Table<I16, Span<1, 25920>> LayoutData144{"LayoutData144"};
    Table<I16, Span<1, 23328>> LayoutData216{"LayoutData216"};
    Table<I16, Span<1, 10368>> LayoutData288{"LayoutData288"};
    Table<std::uint8_t, Span<1, 79920>> LayoutPackData{"LayoutPackData"};

    // The deal
    Table<I16, Span<0, TileCount>> TileOrder{"TileOrder"};
    I16 PlaceCursor;
    I16 TilesLeft;
    Table<std::string, Span<0, TileCount>> StartTileTags{"StartTileTags"};
    Table<I16, Span<-1, 40>, Span<-1, 40>, Span<0, 10>> BoardMap{"BoardMap"};

    // Life cycle and display
    I16 GameRunning, WaitForStart;
    I16 DisplayMode; // 0 full screen, 1 window
    I16 StandardDpi;
    I16 ScreenWidth, ScreenHeight; // the desktop, pixels
    I16 RestoreDisplayPending;
    I32 WindowLeft, WindowTop; // twips, as read or last saved

    // Set by each new game
    I16 MixCount, UndoCount, PairCount, PeekCount, PauseCount, PushCount;
    I16 SpareCount;
    I16 Score;
    I16 AgilityTime; // tenths of a second
    I16 PauseTicks;  // seconds left of a pause
    I16 UndoDepth;
    Table<I16, Span<0, TileCount>> UndoTileA{"UndoTileA"}, UndoAX{"UndoAX"}, UndoAY{"UndoAY"},
        UndoAZ{"UndoAZ"};
    Table<I16, Span<0, TileCount>> UndoTileB{"UndoTileB"}, UndoBX{"UndoBX"}, UndoBY{"UndoBY"},
        UndoBZ{"UndoBZ"};
    Table<I16, Span<1, 4>> RecentFaces{"RecentFaces"}; // faces of the last matches, newest first

    // Selection, hover, armed powers
    I16 TileSelected, SelectedTile, SelectedFace;
    I16 HoverTile;
    I16 NoteShowing;                                 // 1 while a short-lived note stands
    I16 PairMark;                                    // 0 none, 32000 armed, else the face on show
    Table<I16, Span<0, 8>> PairMarked{"PairMarked"}; // element 0: how many
    I16 PeekMode, PushMode;
    Table<I16, Span<0, TileCount>> MixList{"MixList"};

    // The last scan
    Table<I16, Span<0, TileCount>> FreeTiles{"FreeTiles"}, FreeFaces{"FreeFaces"};
    I16 FreeCount;
    Table<I16, Span<0, TileCount>> FaceFirst{"FaceFirst"}, FaceSecond{"FaceSecond"};
    Table<I16, Span<0, TileCount>> OpenPairA{"OpenPairA"}, OpenPairB{"OpenPairB"};
    I16 MoveCount, HintCursor;

    // End of a game
    I16 ScoreRank;
    I16 EndThenChooser;
    I16 TypedEntry;       // 1: the name was confirmed by the Enter key
    std::string LastName; // lower case

    // Words
    Table<I16, Span<0, 100>> WordTiles{"WordTiles"}; // element 0: count of letters
    I16 WordScore;

    // Tables built once
    Table<std::string, Span<0, 36>> FaceLetter{"FaceLetter"};
    Table<I16, Span<0, 36>> PushFace{"PushFace"};
    Table<std::string, Span<1, 12>> MonthName{"MonthName"};
    Table<I16, Span<0, 9>> WordPoints{"WordPoints"};
    Table<std::string, Span<1, 2>> BannedWords{"BannedWords"};
    Table<I16, Span<1, 120>, Span<1, 10>> MasterPoints{"MasterPoints"};
    Table<Colour, Span<0, 10>> PlayerColour{"PlayerColour"};

    // Catalogues
    I16 TileSetCount, BackdropCount, MusicCount;
    Table<std::string, Span<0, 900>> TileSetNames{"TileSetNames"};
    Table<std::string, Span<0, 72>> BackdropNames{"BackdropNames"};
    Table<std::string, Span<0, 101>> PackFiles{"PackFiles"};

    // Choices kept by the settings
    I16 MusicOn;
    I16 SoundLevel; // 1 off, 2 on
    I16 HelpBalloons;
    I16 TileSetFixed, TileSetRotate, TileSetRandom;
    I16 BackdropFixed, BackdropRotate, BackdropRandom;
    I16 CurrentTrack;
    I16 TileGroupShown, BackdropGroupShown, TilePageCursor;
    I16 HistoryView, GraphType;
    Table<I16, Span<1, 3>> ProfileSizeClass{"ProfileSizeClass"};
    Table<std::string, Span<0, 3>, Span<0, 12>> PlayerNames{"PlayerNames"};

    // Music
    I16 MusicReady, MusicPlaying;

    // Records in memory
    Table<ScoreEntry, Span<0, 6>, Span<0, 120>, Span<0, 11>> ScoreTable{"ScoreTable"};
    Table<HistoryRow, Span<0, 3>, Span<0, 3>, Span<0, 43>> History{"History"};
    // The content of record files whose save failed, by path: the scores of a list, say, that the
    // player has left since.
    std::map<std::string, std::vector<std::uint8_t>> NotSaved;

    // Screens
    I16 ButtonDown;
    I16 ScoresLayout, ScoresGameType, NewHighRank;
    I16 HistoryGameType, HistoryPage;
    Table<I16, Span<1, 3>, Span<1, 3>> HistoryCleared{"HistoryCleared"};
    I16 ProfileGameType;
    Table<std::string, Span<0, 3>, Span<0, 12>> SavedPlayerNames{"SavedPlayerNames"};
    std::string PreviousPlayerName;
    I32 MasterScore;
    I16 ChooserGroup;

    // Options under change
    I16 OptGameType, OptMusicOn, OptSoundLevel;
    I16 OptTileSet, OptTileCycle, OptTileRandom;
    I16 OptBackdrop, OptBackdropCycle, OptBackdropRandom;
    I16 OptHelpBalloons;
    I16 TileGroupKept, BackdropGroupKept;
    I16 SampleShown;
};

extern GameStateRecord GameState;

// game_state.cpp: what is worked out from the state
int LayoutIndex();           // LayoutGroup * 120 + LayoutNumber; above 3000 is fatal
int LayoutBlock(int Number); // 0..9: twelve numbers each; any other number gives 0
int LayoutTileCount();       // tiles of the current layout: 72, 144, 216 or 288
void BuildTables();          // the tables that are filled once, at start-up

// random.cpp: the program's one source of chance
double Rnd();                         // from 0 up to but excluding 1
void Randomize();                     // seeds from the clock; leaves queued values alone
int RandomBetween(int Low, int High); // both included
// The next values that Rnd gives before the generator goes on; replaces what is left of the queue.
void QueueRandom(std::vector<double> Values);
