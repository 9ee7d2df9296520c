// \Settings.dat: a flat stream of fields without header or version. The place of a field is its
// only name.
#include "frame/elements.h"
#include "records/fields.h"
#include "records/records.h"

#include <algorithm>

constexpr const char* SettingsFile = "\\Settings.dat";
constexpr int NamesOffset = 76, NameWidth = 12, NamesPerType = 12;
constexpr int SettingsSize = NamesOffset + 3 * NamesPerType * NameWidth;
static_assert(SettingsSize == 508);

constexpr int BuiltInLists = 3, LastList = 24;
constexpr int SetsPerGroup = 24, BuiltInTileSets = 72, LastTileSet = (LastList + 1) * SetsPerGroup;
constexpr int LastBackdrop = 72, LastTrack = 30;
constexpr int DefaultLayout = 19; // "Bridges" in list 0

static void WalkDisplay(RecordFile& File)
{
    Field16(File, 0, GameState.DisplayMode, Flag);
    Field32(File, 2, GameState.WindowLeft);
    Field32(File, 6, GameState.WindowTop);
}

static void WalkSettings(RecordFile& File)
{
    WalkDisplay(File);
    Field16(File, 10, GameState.GameType, {Finesse, Wisdom});
    Field16(File, 12, GameState.MusicOn, Flag);
    Field16(File, 14, GameState.SoundLevel, {1, 2});
    Field16(File, 16, GameState.HelpBalloons, Flag);
    Field16(File, 18, GameState.TileSetFixed, {1, LastTileSet});
    Field16(File, 20, GameState.TileSetRotate, {1, LastTileSet});
    Field16(File, 22, GameState.TileSetRandom, Flag);
    Field16(File, 24, GameState.BackdropFixed, {1, LastBackdrop});
    Field16(File, 26, GameState.BackdropRotate, {1, LastBackdrop});
    Field16(File, 28, GameState.BackdropRandom, Flag);
    Field16(File, 30, GameState.CurrentTrack, {1, LastTrack});
    Field16(File, 32, GameState.TileGroupShown, {0, LastList});
    Field16(File, 34, GameState.BackdropGroupShown, {0, 1});
    Field16(File, 36, GameState.LayoutGroup, {0, LastList});
    Field16(File, 38, GameState.TilePageCursor, {1, 100});
    Field16(File, 40, GameState.LayoutSetCursor, {1, 100});
    Field32(File, 42, GameState.LayoutNumber, {1, 120});
    Field16(File, 46, GameState.RandomLayoutMode, {0, 6});
    // The mark of block 0 is not filed: it starts each run as 0.
    for (int Block = 1; Block <= 9; ++Block)
        Field16(File, 48 + 2 * (Block - 1), GameState.RandomBlockChosen(Block), Flag);
    Field16(File, 66, GameState.HistoryView, {1, 3});
    Field16(File, 68, GameState.GraphType, {1, 2});
    for (int Type = 1; Type <= 3; ++Type)
        Field16(File, 70 + 2 * (Type - 1), GameState.ProfileSizeClass(Type), {1, 4});
    for (int Type = 1; Type <= 3; ++Type)
        for (int Place = 1; Place <= NamesPerType; ++Place)
            FieldText(File, NamesOffset + ((Type - 1) * NamesPerType + Place - 1) * NameWidth,
                      GameState.PlayerNames(Type, Place), NameWidth);
}

// The first place of a list in LayoutSets, 0 for none.
static int PlaceInLayoutSets(int List)
{
    for (int I = 1; I <= 100; ++I)
        if (GameState.LayoutSets(I) == List) return I;
    return 0;
}

// A file of a content pack that was taken away since the last run.
static bool IsGone(int List, const char* Prefix, int Number)
{
    return List >= BuiltInLists && PlaceInLayoutSets(List) == 0 &&
           !FileExists(DataFile(Prefix, Number));
}

// Loading a file that went with its content pack would be fatal at every start. What was chosen
// from the pack goes back to the first list, and a cycle that stands past the last set begins
// again. As long as the file is there the choice stands, whatever the scan has found.
static void LeaveMissingPacks()
{
    if (GameState.LayoutListCount == 0) return; // no scan yet: nothing is known to be missing
    if (IsGone(GameState.LayoutGroup, "LY", 9000 + GameState.LayoutGroup)) {
        GameState.LayoutGroup = 0;
        GameState.LayoutSetCursor = 1;
    }
    if (IsGone((GameState.TileSetFixed - 1) / SetsPerGroup, "TS", GameState.TileSetFixed))
        GameState.TileSetFixed = 0;
    if (GameState.TileSetRotate > std::max<int>(GameState.TileSetCount, BuiltInTileSets) &&
        !FileExists(DataFile("TS", GameState.TileSetRotate)))
        GameState.TileSetRotate = 1;
}

void LoadDisplaySettings()
{
    RecordFile File = ReadRecordFile(SettingsFile, SettingsSize);
    WalkDisplay(File);
}

void LoadSettings()
{
    RecordFile File = ReadRecordFile(SettingsFile, SettingsSize);
    WalkSettings(File);
    if (GameState.SoundLevel == 0) GameState.SoundLevel = 2;
    if (GameState.TilePageCursor == 0) GameState.TilePageCursor = 1;
    if (GameState.LayoutSetCursor == 0) GameState.LayoutSetCursor = 1;
    // No match leaves a cursor as it stood.
    if (const int Place = PlaceInLayoutSets(GameState.TileGroupShown))
        GameState.TilePageCursor = Place;
    if (const int Place = PlaceInLayoutSets(GameState.LayoutGroup))
        GameState.LayoutSetCursor = Place;
    LeaveMissingPacks();
}

void RepairSettings()
{
    if (GameState.GameType == 0) GameState.GameType = Finesse;
    if (GameState.TileSetFixed == 0 && GameState.TileSetRotate == 0 && GameState.TileSetRandom == 0)
        GameState.TileSetFixed = 1;
    if (GameState.BackdropFixed == 0 && GameState.BackdropRotate == 0 &&
        GameState.BackdropRandom == 0)
        GameState.BackdropFixed = 1;
    if (GameState.LayoutNumber == 0 && GameState.RandomLayoutMode == 0)
        GameState.LayoutNumber = DefaultLayout;
    if (GameState.HistoryView == 0) GameState.HistoryView = 1;
    if (GameState.GraphType == 0) GameState.GraphType = 1;
    if (GameState.ProfileSizeClass(1) == 0 && GameState.ProfileSizeClass(2) == 0 &&
        GameState.ProfileSizeClass(3) == 0)
        GameState.ProfileSizeClass(1) = 1;
}

void SaveSettings()
{
    GameState.WindowLeft = static_cast<int>(frmMain.Left);
    GameState.WindowTop = static_cast<int>(frmMain.Top);
    RecordFile File = NewRecordFile(SettingsSize);
    WalkSettings(File);
    SaveRecordFile(SettingsFile, File, "settings", true);
}
