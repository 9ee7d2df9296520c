#include "media/media.h"

constexpr int TileSheetWidth = 720, TileSheetHeight = 540;

constexpr const char* BuiltInTileSets[] = {"Classic",
                                           "Marine Life",
                                           "Nature",
                                           "World Flags",
                                           "Astrology",
                                           "Space",
                                           "Egyptian",
                                           "MediEval Fantasy",
                                           "Meso Deco",
                                           "Asia",
                                           "Communication",
                                           "Traffic Signs",
                                           "Buildings",
                                           "Bugs",
                                           "Music",
                                           "Alchemy",
                                           "Chinese Zodiac",
                                           "Africa",
                                           "Colors",
                                           "Food",
                                           "Alphanumeric",
                                           "Tools",
                                           "Crests",
                                           "Warning Signs",
                                           "Dogs",
                                           "Fashion",
                                           "School",
                                           "Sports",
                                           "Fish",
                                           "Home",
                                           "Japan",
                                           "Dinosaur",
                                           "Birds",
                                           "Circus",
                                           "Wild Animals",
                                           "Christmas",
                                           "Military Crests 1",
                                           "Military Crests 2",
                                           "Military Crests 3",
                                           "Military Crests 4",
                                           "Military Crests 5",
                                           "Country Flags (A-C)",
                                           "Country Flags (C-G)",
                                           "Country Flags (G-L)",
                                           "Country Flags (L-N)",
                                           "Country Flags (N-S)",
                                           "Country Flags (S-Z)",
                                           "Computers",
                                           "Butterflies",
                                           "Weather",
                                           "African Art",
                                           "Science",
                                           "Flowers",
                                           "China",
                                           "Aircraft",
                                           "Shields",
                                           "Portraits",
                                           "Buildings Historical",
                                           "Country",
                                           "Fire and Police",
                                           "Cartoon Stamps",
                                           "Faith",
                                           "Easter Eggs",
                                           "Footwear",
                                           "Business Equipment",
                                           "Leisure Games",
                                           "Masks",
                                           "Scenery",
                                           "Sign Language",
                                           "Sunsets",
                                           "Trees",
                                           "Vehicles"};

// Shown with their number behind: "Brown Granite (1)".
constexpr const char* BuiltInBackdrops[] = {"Brown Granite",  "Sand",
                                            "Earth",          "Sky",
                                            "Floor",          "Stars",
                                            "Rusty",          "Floral Purple",
                                            "Blue Ice",       "Floral Dark",
                                            "Blue Echo",      "Cars",
                                            "Leather",        "Ash",
                                            "Orange Granite", "Orange Marble",
                                            "Floral Large",   "Clay",
                                            "Kaleidoscope",   "Jelly Beans",
                                            "Yellow Stone",   "Gray Planks",
                                            "Black Granite",  "Ruby Stone",
                                            "Floral Textile", "Violet Marble",
                                            "Floral Small",   "Blue Marble",
                                            "Straw",          "Black",
                                            "Floral Brown",   "Weave",
                                            "Gray Marble",    "Pressboard",
                                            "Blue Crystal",   "Orange Stone",
                                            "Rock Leather",   "Micro Pink",
                                            "Alien",          "Rose Silk",
                                            "Dust Rock",      "Brown Fabric",
                                            "Blue Velvet",    "Black Slate",
                                            "Purple Carved",  "Blue Gas",
                                            "Star Candy",     "Murky Glass",
                                            "Melted Forest",  "Rock Clouds",
                                            "Dream Threads",  "Forest Flats",
                                            "Orange Power",   "Purple Streaks",
                                            "Frozen Blue",    "Dry Stick",
                                            "Dark Pebble",    "Marine Skin",
                                            "Old Clay",       "Soft Rock",
                                            "Scratched Rock", "Moon Rock",
                                            "Ancient Silk",   "Rock Emboss",
                                            "Moldy Wall",     "Hot Flower",
                                            "Dry Flower",     "Red Roses",
                                            "Forever Forest", "Chocolate Bed",
                                            "Neon Grass",     "Warm Wall"};

static_assert(std::size(BuiltInTileSets) == 72 && std::size(BuiltInBackdrops) == 72);

void FillCatalogueNames()
{
    int Place = 0;
    for (const char* Name : BuiltInTileSets) GameState.TileSetNames(Place++) = Name;
    Place = 0;
    for (const char* Name : BuiltInBackdrops) {
        GameState.BackdropNames(Place) = std::string(Name) + " (" + std::to_string(Place + 1) + ")";
        ++Place;
    }
}

void LoadTileSet(const Element& E, int Number)
{
    LoadPicture(E, "TS", Number, TileSheetWidth, TileSheetHeight);
}

void LoadBackdrop(const Element& E, int Number)
{
    LoadPicture(E, "BD", Number, FullWidth, FullHeight);
}

void LoadNamedTileSet(int Number)
{
    LoadTileSet(clpTileSet, Number);
}

void LoadNamedBackdrop(int Number)
{
    LoadBackdrop(picBoard, Number);
}

void ChooseTileSet()
{
    if (GameState.GameType == Wisdom) return; // the letter tiles stay
    if (GameState.TileSetRotate > 0) {
        LoadNamedTileSet(GameState.TileSetRotate);
        ++GameState.TileSetRotate;
        if (GameState.TileSetRotate > GameState.TileSetCount) GameState.TileSetRotate = 1;
    }
    if (GameState.TileSetRandom > 0) LoadNamedTileSet(RandomBetween(1, GameState.TileSetCount));
}

void ChooseBackdrop()
{
    if (GameState.BackdropRotate > 0) {
        LoadNamedBackdrop(GameState.BackdropRotate);
        ++GameState.BackdropRotate;
        if (GameState.BackdropRotate > GameState.BackdropCount) GameState.BackdropRotate = 1;
    }
    if (GameState.BackdropRandom > 0) LoadNamedBackdrop(RandomBetween(1, GameState.BackdropCount));
}
