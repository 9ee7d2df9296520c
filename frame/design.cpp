// design.cpp: what the table of the screens cannot tell: the places of arrays that stand in more
// than one column, and the captions that no rule writes
#include "frame/elements.h"

struct ColumnRow {
    const char* Name;
    int First, Count; // elements of the array
    float Left, Top, StepY;
    bool Shadow; // dark, behind the elements before them
};

constexpr ColumnRow Columns[] = {
    {"lblLayoutName", 12, 12, 83, 142, 44, true}, // of the names 0 to 11
    {"cboPlayerList", 11, 1, 616, 300, 0, false}, // over the two columns of statistics
    {"cboPlayerList", 12, 1, 806, 300, 0, false},
};
constexpr Colour ColumnShadow = {10, 14, 10};

struct CaptionRow {
    const char* Name;
    int Index; // -1: an element without index
    const char* Text;
};

constexpr CaptionRow Captions[] = {
    {"lblSkipTrack", -1, "»"},
    {"lblxpack_Title", -1, "Content packs installed:"},
    {"lblXpack_Notice", -1, "Let go to read about content packs"},
    // options
    {"lblGameType", 0, "Finesse"},
    {"lblGameType", 1, "Agility"},
    {"lblGameType", 2, "Wisdom"},
    {"lblOptTileSet", 0, "Fixed"},
    {"lblOptTileSet", 1, "Cycle"},
    {"lblOptTileSet", 2, "Random"},
    {"lblOptBackground", 0, "Fixed"},
    {"lblOptBackground", 1, "Cycle"},
    {"lblOptBackground", 2, "Random"},
    {"lblOptTileGroup", -1, "Group"},
    {"lblOptBackGroup", -1, "Group"},
    {"lblTS_PageL", -1, "‹"},
    {"lblTS_PageR", -1, "›"},
    {"lblOptMusic", -1, "Music"},
    {"lblOptSoundFX", -1, "Sound effects"},
    {"lblHelpBalloons", -1, "Help balloons"},
    // layout chooser: the rules for a random layout
    {"lblOptRandom", 0, "All layouts"},
    {"lblOptRandom", 1, "72 tiles: layouts 1 to 12"},
    {"lblOptRandom", 2, "144 tiles: layouts 13 to 72"},
    {"lblOptRandom", 3, "216 tiles: layouts 73 to 108"},
    {"lblOptRandom", 4, "288 tiles: layouts 109 to 120"},
    {"lblOptRandom", 5, "The groups that I mark"},
    // score tables, history, profile
    {"lblGameTypeScores", 0, "Finesse"},
    {"lblGameTypeScores", 1, "Agility"},
    {"lblGameTypeScores", 2, "Wisdom"},
    {"lblGameTypeHistory", 0, "Finesse"},
    {"lblGameTypeHistory", 1, "Agility"},
    {"lblGameTypeHistory", 2, "Wisdom"},
    {"lblHisView", 0, "All games"},
    {"lblHisView", 1, "No place"},
    {"lblHisView", 2, "High scores"},
    {"lblPage", -1, "Page"},
    {"lblGameTypeProfile", 0, "Finesse"},
    {"lblGameTypeProfile", 1, "Agility"},
    {"lblGameTypeProfile", 2, "Wisdom"},
    {"lblGraphType", 0, "All entries"},
    {"lblGraphType", 1, "Best only"},
    {"lblOptLowScore", 0, "72 tiles"},
    {"lblOptLowScore", 1, "144 tiles"},
    {"lblOptLowScore", 2, "216 tiles"},
    {"lblOptLowScore", 3, "288 tiles"},
    // help
    {"lblCreditMusic", -1, "Credits: music and sounds"},
    {"lblCreditMaker", -1, "Credits: pictures, words"},
};

void SetDesignPlaces()
{
    for (const ColumnRow& Row : Columns)
        for (int I = 0; I < Row.Count; ++I) {
            const Element* E = FindElement(Row.Name, Row.First + I);
            if (!E) FatalError(std::string("no element ") + Row.Name + " for a place");
            SetPlace(*E, Row.Left, Row.Top + static_cast<float>(I) * Row.StepY);
            if (!Row.Shadow) continue;
            SetInk(*E, ColumnShadow);
            SendToBack(*E);
        }
    // The note's text stands on a plate and has no shadow: both elements are one text.
    SetPlace(lblNote(1), lblNote(0).Left, lblNote(0).Top);
    SetInk(lblNote(1), lblNote(0).Ink);
}

void SetDesignCaptions()
{
    for (const CaptionRow& Row : Captions) {
        const Element* E = FindElement(Row.Name, Row.Index);
        if (!E) FatalError(std::string("no element ") + Row.Name + " for a caption");
        SetCaption(*E, Row.Text);
    }
    // A word grows letter by letter: no press may wait for the heap.
    Elements[lblWord.Id].Caption.reserve(GameState.WordTiles.Last[0]);
}
