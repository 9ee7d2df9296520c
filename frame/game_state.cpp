#include "frame/game_state.h"

GameStateRecord GameState;

int LayoutIndex()
{
    const int Index = GameState.LayoutGroup * 120 + GameState.LayoutNumber;
    if (Index > LastLayoutIndex)
        FatalError("LayoutIndex " + std::to_string(Index) + " is above " +
                   std::to_string(LastLayoutIndex));
    return Index;
}

int LayoutBlock(int Number)
{
    return Number >= 1 && Number <= 120 ? (Number - 1) / 12 : 0;
}

// Tiles of the layouts of each block. All layouts of packs have 216.
constexpr int BlockTiles[10] = {72, 144, 144, 144, 144, 144, 216, 216, 216, 288};
constexpr int PackTiles = 216;

int LayoutTileCount()
{
    if (GameState.LayoutGroup > 2) return PackTiles;
    return BlockTiles[LayoutBlock(GameState.LayoutNumber)];
}

// The faces after "Z" repeat the letters that words need most.
constexpr const char* FurtherLetters = "AEIOUAEIST";
// PUSH goes to the next letter; the further faces leave for the plain alphabet.
constexpr int PushOfFurtherFaces[11] = {1, 2, 6, 10, 16, 22, 2, 6, 10, 20, 21}; // faces 26..36
constexpr const char* Months[12] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                    "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr int PointsOfLength[10] = {0, 0, 0, 2, 3, 5, 7, 9, 12, 15};
// A table place is worth the weight of the layout's size times the factor of the place.
constexpr int PlaceFactor[10] = {15, 9, 8, 7, 6, 5, 4, 3, 2, 1};
constexpr Colour Colours[11] = {{77, 77, 77},   {240, 0, 0},     {0, 240, 0},    {240, 0, 240},
                                {240, 240, 0},  {0, 240, 240},   {255, 115, 0},  {66, 114, 235},
                                {169, 105, 86}, {255, 255, 255}, {160, 160, 160}};

static int SizeWeight(int Layout)
{
    return Layout <= 12 ? 3 : Layout <= 72 ? 5 : Layout <= 108 ? 7 : 9;
}

void BuildTables()
{
    for (int Face = 1; Face <= 26; ++Face)
        GameState.FaceLetter(Face) = std::string(1, static_cast<char>('A' + Face - 1));
    for (int Face = 27; Face <= 36; ++Face)
        GameState.FaceLetter(Face) = std::string(1, FurtherLetters[Face - 27]);
    for (int Face = 1; Face <= 25; ++Face) GameState.PushFace(Face) = Face + 1;
    for (int Face = 26; Face <= 36; ++Face)
        GameState.PushFace(Face) = PushOfFurtherFaces[Face - 26];
    for (int Month = 1; Month <= 12; ++Month) GameState.MonthName(Month) = Months[Month - 1];
    for (int Length = 0; Length <= 9; ++Length)
        GameState.WordPoints(Length) = PointsOfLength[Length];
    GameState.BannedWords(1) = std::string(1, static_cast<char>(70)) + "UCK";
    GameState.BannedWords(2) = std::string(1, static_cast<char>(83)) + "HIT";
    for (int Layout = 1; Layout <= 120; ++Layout)
        for (int Place = 1; Place <= 10; ++Place)
            GameState.MasterPoints(Layout, Place) = SizeWeight(Layout) * PlaceFactor[Place - 1];
    for (int Element = 0; Element <= 10; ++Element)
        GameState.PlayerColour(Element) = Colours[Element];
}
