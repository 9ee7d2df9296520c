// The players: names in the score tables of the current layout list, their Master Scores and
// statistics, and the twelve boxes of the profile that choose among them.
#include "frame/elements.h"
#include "records/records.h"

#include <algorithm>
#include <cstdlib>
#include <set>

constexpr const char* NoPlayer = "(NO PLAYER)";
constexpr int Boxes = 12, GraphBoxes = 10; // boxes 1 to 10 are drawn, 11 and 12 are compared
constexpr int BoxA = 11, BoxB = 12;
constexpr int NotDrawn = -1; // as a colour
constexpr int Layouts = 120, Places = 10;
constexpr int StatisticsRows = 10, LowScoreRow = 9;
constexpr Colour LeaderInk = {255, 255, 0}, OtherInk = {192, 192, 192};

Table<I16, Span<1, Layouts>, Span<1, Places>> GraphColour{"GraphColour"};

static const ScoreEntry& Entry(int Layout, int Place)
{
    return GameState.ScoreTable(GameState.ProfileGameType, Layout, Place);
}

static bool IsPlayer(const std::string& Name)
{
    return !Name.empty() && Name != NoPlayer;
}

static const std::string& NameIn(int Box)
{
    return cboPlayerList(Box).Caption;
}

// --- the list of names ---

void BuildPlayerList()
{
    std::vector<std::string> Names;
    std::set<std::string> Known;
    for (int Layout = 1; Layout <= Layouts; ++Layout)
        for (int Place = 1; Place <= Places; ++Place) {
            const std::string& Name = Entry(Layout, Place).Name;
            // A nameless entry stands only in a damaged file and is nobody's.
            if (Entry(Layout, Place).Score > 0 && !Name.empty() && Known.insert(Name).second)
                Names.push_back(Name);
        }
    Names.push_back(NoPlayer);
    for (int Box = 1; Box <= Boxes; ++Box) {
        SetItems(cboPlayerList(Box), Names);
        SelectItem(cboPlayerList(Box), GameState.PlayerNames(GameState.ProfileGameType, Box));
    }
}

void SaveChosenPlayers()
{
    for (int Box = 1; Box <= Boxes; ++Box)
        GameState.PlayerNames(GameState.ProfileGameType, Box) = NameIn(Box);
}

void CopyChosenPlayers()
{
    GameState.SavedPlayerNames.Cells = GameState.PlayerNames.Cells;
}

void PutChosenPlayersBack()
{
    GameState.PlayerNames.Cells = GameState.SavedPlayerNames.Cells;
}

// --- the Master Score and the graph ---

// A block of 4 by 12 pixels on a grid of 6 by 14.
static void PutGraphOnPanel()
{
    std::vector<FilledBox> Blocks;
    for (int Layout = 1; Layout <= Layouts; ++Layout)
        for (int Place = 1; Place <= Places; ++Place)
            if (const int Colour = GraphColour(Layout, Place); Colour != 0)
                Blocks.push_back({6 * Layout - 4, 14 * Place - 12, 6 * Layout - 1, 14 * Place - 1,
                                  GameState.PlayerColour(Colour)});
    SetBoxes(picGraph, std::move(Blocks));
}

void MasterScoreFor(const std::string& Name, int Colour)
{
    GameState.MasterScore = 0;
    for (int Layout = 1; Layout <= Layouts; ++Layout)
        for (int Place = 1; Place <= Places; ++Place) {
            if (Entry(Layout, Place).Name != Name) continue;
            GameState.MasterScore += GameState.MasterPoints(Layout, Place);
            if (Colour != NotDrawn) GraphColour(Layout, Place) = Colour;
            if (GameState.GraphType == 2) break; // only the best place of each layout
        }
    if (Colour != NotDrawn) PutGraphOnPanel();
}

static void DrawGraph()
{
    GraphColour.Clear();
    for (int Box = 1; Box <= GraphBoxes; ++Box)
        if (IsPlayer(NameIn(Box))) MasterScoreFor(NameIn(Box), Box);
    PutGraphOnPanel();
}

static void HideMasterScore(int Box)
{
    Hide(lblProScore(Box));
    Hide(lblProScoreShadow(Box));
}

static void ShowMasterScore(int Box)
{
    HideMasterScore(Box);
    if (!IsPlayer(NameIn(Box))) return;
    MasterScoreFor(NameIn(Box), Box);
    if (GameState.MasterScore <= 0) return;
    for (const Element* Label : {&lblProScore(Box), &lblProScoreShadow(Box)}) {
        SetCaption(*Label, std::to_string(GameState.MasterScore));
        Show(*Label);
    }
}

void SortPlayers()
{
    std::vector<std::string> Keys;
    for (int Box = 1; Box <= GraphBoxes; ++Box) {
        if (!lblProScore(Box).Visible) continue;
        const std::string Key = "0000000" + lblProScore(Box).Caption;
        if (std::atoi(Key.c_str()) > 0) Keys.push_back(Key.substr(Key.size() - 8));
    }
    std::sort(Keys.begin(), Keys.end());
    SetItems(cboSort, Keys);
    const int Best = Keys.empty() ? 0 : std::atoi(Keys.back().c_str());
    for (int Box = 1; Box <= GraphBoxes; ++Box) {
        const bool Leads = lblProScore(Box).Visible && std::stoi(lblProScore(Box).Caption) == Best;
        SetInk(lblProScore(Box), Leads ? LeaderInk : OtherInk);
    }
}

// --- statistics ---

static void SetStatistic(int Box, int Row, const std::string& Text)
{
    SetCaption(Box == BoxA ? lblStatA(Row) : lblStatB(Row), Text);
    SetCaption(Box == BoxA ? lblStatAShadow(Row) : lblStatBShadow(Row), Text);
}

// A quotient as "0.00", halves rounded up; "0.00" over nothing.
static std::string TwoDecimals(int Sum, int Count)
{
    const int Hundredths = Count == 0 ? 0 : (200 * Sum + Count) / (2 * Count);
    const std::string Digits = std::to_string(100 + Hundredths % 100);
    return std::to_string(Hundredths / 100) + "." + Digits.substr(1);
}

// The first of the visible boxes whose Master Score is closest to this player's.
static std::string ClosestRival(const std::string& Name)
{
    MasterScoreFor(Name, NotDrawn);
    std::string Rival;
    int Best = 100000000;
    for (int Box = 1; Box <= GraphBoxes; ++Box) {
        if (!lblProScore(Box).Visible || NameIn(Box) == Name) continue;
        const int Difference =
            std::abs(std::stoi(lblProScore(Box).Caption) - GameState.MasterScore);
        if (Difference >= Best) continue;
        Best = Difference;
        Rival = NameIn(Box);
    }
    return Rival;
}

// The layouts of each class that the profile can look for a low score in.
struct SizeClassRow {
    int FirstLayout, LastLayout;
};
constexpr SizeClassRow SizeClasses[] = {{1, 12}, {13, 72}, {73, 108}, {109, 120}};

std::string LowScoreLayout(const std::string& Name, int Box)
{
    const int Class = GameState.ProfileSizeClass(GameState.ProfileGameType);
    int Low = 32000, LowLayout = 0;
    for (int Layout = 1; Layout <= Layouts && Class != 0; ++Layout) {
        const SizeClassRow& Row = SizeClasses[Class - 1];
        if (Layout < Row.FirstLayout || Layout > Row.LastLayout) continue;
        for (int Place = 1; Place <= Places; ++Place) {
            const ScoreEntry& E = Entry(Layout, Place);
            if (E.Name != Name || E.Score < 1 || E.Score >= Low) continue;
            Low = E.Score;
            LowLayout = Layout;
        }
    }
    const std::string Result =
        LowLayout == 0 ? "" : GameState.LayoutName(GameState.LayoutGroup * 120 + LowLayout);
    SetStatistic(Box, LowScoreRow, Result);
    // A click on the row chooses the layout.
    SetTag(Box == BoxA ? lblStatA(LowScoreRow) : lblStatB(LowScoreRow),
           LowLayout == 0 ? "" : std::to_string(LowLayout));
    return Result;
}

void ComputeStatistics(const std::string& Name, int Box)
{
    if (!IsPlayer(Name)) {
        for (int Row = 1; Row <= StatisticsRows; ++Row) SetStatistic(Box, Row, "");
        SetTag(Box == BoxA ? lblStatA(LowScoreRow) : lblStatB(LowScoreRow), "");
        return;
    }
    // One off from the sizes of the layouts: layout 72 counts with the third sum. Wanted.
    constexpr int SizeBounds[] = {13, 72, 109, 121};
    int Entries = 0, FirstPlaces = 0, SumOfPlaces = 0, CountedPlaces = 0;
    int PointsBySize[] = {0, 0, 0, 0};
    for (int Layout = 1; Layout <= Layouts; ++Layout)
        for (int Place = 1; Place <= Places; ++Place) {
            if (Entry(Layout, Place).Name != Name) continue;
            ++Entries;
            if (Place == 1) ++FirstPlaces;
            if (Entry(Layout, Place).Score > 0) {
                SumOfPlaces += Place;
                ++CountedPlaces;
            }
            int Size = 0;
            while (Layout >= SizeBounds[Size]) ++Size;
            PointsBySize[Size] += GameState.MasterPoints(Layout, Place);
        }
    SetStatistic(Box, 1, TwoDecimals(SumOfPlaces, CountedPlaces));
    SetStatistic(Box, 2, std::to_string(Entries));
    SetStatistic(Box, 3, std::to_string(FirstPlaces));
    SetStatistic(Box, 4, TwoDecimals(Entries, Layouts));
    for (int Size = 0; Size < 4; ++Size)
        SetStatistic(Box, 5 + Size, std::to_string(PointsBySize[Size]));
    LowScoreLayout(Name, Box);
    SetStatistic(Box, 10, ClosestRival(Name));
}

// --- the whole profile, and its choices ---

void ShowPlayers()
{
    DrawGraph();
    for (int Box = 1; Box <= GraphBoxes; ++Box) ShowMasterScore(Box);
    SortPlayers();
    for (int Box : {BoxA, BoxB}) ComputeStatistics(NameIn(Box), Box);
}

void ShowSizeClass()
{
    for (int I = 0; I <= 3; ++I) {
        const bool On = GameState.ProfileSizeClass(GameState.ProfileGameType) == I + 1;
        SetPicture(imgOptLowScore(I), StockPicture(imgOption(On ? 1 : 0)));
    }
}

static void lblOptLowScore_Click(int Index)
{
    GameState.ProfileSizeClass(GameState.ProfileGameType) = Index + 1;
    ShowSizeClass();
    for (int Box : {BoxA, BoxB})
        if (IsPlayer(NameIn(Box))) LowScoreLayout(NameIn(Box), Box);
}

static void cboPlayerList_DropDown(int Box)
{
    GameState.PreviousPlayerName = NameIn(Box);
}

static void ChangePlayer(int Box)
{
    const std::string Name = NameIn(Box);
    for (int Other = 1; Other <= GraphBoxes; ++Other) {
        if (Other == Box || NameIn(Other) != Name) continue;
        SelectItem(cboPlayerList(Other), "");
        HideMasterScore(Other);
    }
    // The whole graph, not just the bars of PreviousPlayerName: a choice by the wheel or by a key
    // comes without a DropDown, and then that is the name of another time.
    DrawGraph();
    ShowMasterScore(Box);
    if (IsPlayer(Name)) SortPlayers();
}

static void cboPlayerList_Click(int Box)
{
    if (Box <= GraphBoxes)
        ChangePlayer(Box);
    else
        ComputeStatistics(NameIn(Box), Box);
}

void SetPlayerHandlers()
{
    SetHandlers(cboPlayerList, {.Click = cboPlayerList_Click, .DropDown = cboPlayerList_DropDown});
    SetHandlers(lblOptLowScore, {.Click = lblOptLowScore_Click});
    SetHandlers(imgOptLowScore, {.Action = lblOptLowScore_Click});
}
