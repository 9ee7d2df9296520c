// layout_chooser.cpp: picks the next layout, or a rule for picking it at random.
#include "board/board.h"
#include "records/records.h"
#include "screens/screens.h"

#include <cmath>

constexpr int LayoutsOfGroup = 12, Groups = 10;
constexpr int ChosenGroupsMode = 6;

// The groups that each random mode marks; mode 6 marks those that the player chose.
struct MarkRow {
    int FirstGroup, LastGroup;
};
constexpr MarkRow ModeMarks[] = {{0, 9}, {0, 0}, {1, 5}, {6, 8}, {9, 9}}; // modes 1 to 5

static void MarkGroup(int Group, bool Marked)
{
    SetPicture(imgButGroups(Group), CellPicture(Marked ? clpButGroupOn : clpButGroupOff, Group));
}

static void MarkOnly(int Group)
{
    for (int I = 0; I < Groups; ++I) MarkGroup(I, I == Group);
}

static void LightChoose(bool Choose)
{
    SetPicture(imgButChooseLayout, StockPicture(imgChooseLayout(Choose ? 1 : 0)));
    SetPicture(imgButRandomLayout, StockPicture(imgRandomLayout(Choose ? 0 : 1)));
}

static void ShowChosenGroups()
{
    for (int I = 0; I < Groups; ++I) {
        const bool Marked = GameState.RandomBlockChosen(I) == 1;
        MarkGroup(I, Marked);
        SetTag(imgButGroups(I), Marked ? "1" : "0");
    }
}

static void MarkMode()
{
    const int Mode = GameState.RandomLayoutMode;
    ShowChoice(imgOptRandomLayout, Mode - 1);
    for (int I = 0; I < Groups; ++I)
        MarkGroup(I, Mode < ChosenGroupsMode && I >= ModeMarks[Mode - 1].FirstGroup &&
                         I <= ModeMarks[Mode - 1].LastGroup);
    if (Mode == ChosenGroupsMode) ShowChosenGroups();
}

static int WonPercent(int Won, int Lost)
{
    if (Won < 1) return 0;
    // Halves go to the even neighbour.
    return static_cast<int>(std::nearbyint(100.0 / (static_cast<double>(Won + Lost) / Won)));
}

void ShowThumbnails()
{
    LoadPicture(picThumbs, "LY", GameState.LayoutGroup * 10 + GameState.ChooserGroup + 1, 0, 0);
    for (int P = 0; P < LayoutsOfGroup; ++P) {
        const int Index =
            GameState.LayoutGroup * 120 + GameState.ChooserGroup * LayoutsOfGroup + P + 1;
        const int Won = GameState.LayoutWon(Index), Lost = GameState.LayoutLost(Index);
        SetCaption(lblTotalPlayed(P), std::to_string(Won + Lost));
        SetCaption(lblTotalWon(P), std::to_string(WonPercent(Won, Lost)) + "%");
        const bool Pack = GameState.LayoutGroup >= 3;
        if (Pack) {
            // The label lies over the thumbnail: the name is its tool tip.
            SetToolTip(lblThumbs(P), GameState.LayoutName(Index));
            SetCaption(Layout_Name(P), GameState.LayoutName(Index));
            SetCaption(Layout_Name_S(P), GameState.LayoutName(Index));
        } else {
            SetToolTip(lblThumbs(P), "");
        }
        SetVisible(Layout_Name(P), Pack);
        SetVisible(Layout_Name_S(P), Pack);
    }
}

void ShowSetLabel()
{
    SetCaption(lblSet, LayoutSetName(GameState.LayoutGroup));
    // The random page lies beneath the thumbnails, whose sheet has holes.
    const bool Random = GameState.RandomLayoutMode > 0;
    SetVisible(imgRandomCover, Random);
    for (int I = 0; I < imgOptRandomLayout.Count; ++I) {
        SetVisible(imgOptRandomLayout(I), Random);
        SetVisible(lblOptRandom(I), Random);
    }
    SetVisible(imgRandomOk, Random);
}

void OpenChooser()
{
    Show(picContainer);
    GameState.EndThenChooser = 0;
    LoadPanelBackground(picLayouts);
    const int Number = GameState.LayoutNumber;
    GameState.ChooserGroup = Number >= 1 ? (Number - 1) / LayoutsOfGroup : 0;
    if (GameState.RandomLayoutMode == 0) {
        MarkOnly(GameState.ChooserGroup);
        LightChoose(true);
        Show(picThumbs);
    } else {
        MarkMode();
        LightChoose(false);
        Hide(picThumbs);
    }
    ShowThumbnails();
    ShowSetLabel();
    BringToFront(picThumbs);
    Hide(imgThumbFrame);
    ShowPanel(picLayouts);
}

static void ShowGroup(int Group)
{
    GameState.RandomLayoutMode = 0;
    GameState.ChooserGroup = Group;
    LightChoose(true);
    MarkOnly(Group);
    Show(picThumbs);
    ShowThumbnails();
    ShowSetLabel();
}

static void ToggleGroup(int Group)
{
    const bool Marked = imgButGroups(Group).Tag != "1";
    SetTag(imgButGroups(Group), Marked ? "1" : "0");
    MarkGroup(Group, Marked);
    GameState.RandomBlockChosen(Group) = Marked ? 1 : 0;
}

static void imgButGroups_Action(int Group)
{
    if (GameState.RandomLayoutMode == ChosenGroupsMode)
        ToggleGroup(Group);
    else
        ShowGroup(Group);
}

static void imgButChooseLayout_Action(int)
{
    ShowGroup(0);
    for (int I = 0; I < Groups; ++I) SetTag(imgButGroups(I), "");
}

static void imgButRandomLayout_Action(int)
{
    GameState.RandomLayoutMode = 1;
    MarkMode();
    LightChoose(false);
    Hide(picThumbs);
    ShowSetLabel();
}

static void imgOptRandomLayout_Action(int I)
{
    GameState.RandomLayoutMode = I + 1;
    MarkMode();
    ChangedOption();
}

static void CloseChooser()
{
    Hide(picLayouts);
    Hide(picContainer);
    FreePanelBackground(picLayouts);
    FreePanelBackground(picThumbs);
}

void ChooseLayout(int Number)
{
    GameState.LayoutNumber = Number;
    ShowLayoutName();
    CloseChooser();
    Platform.Yield();
    LoadLayoutGeometry(); // nothing is dealt: the game begins at imgbutStart
}

static void lblThumbs_Click(int Place)
{
    ChooseLayout(GameState.ChooserGroup * LayoutsOfGroup + Place + 1);
}

static bool AnyGroupMarked()
{
    for (int I = 0; I < Groups; ++I)
        if (imgButGroups(I).Tag == "1") return true;
    return false;
}

static void imgRandomOk_Action(int)
{
    SetCaption(lblLayoutMain, "RANDOM");
    CloseChooser();
    // A rule that could pick nothing becomes the rule that picks any.
    if (GameState.RandomLayoutMode == ChosenGroupsMode && !AnyGroupMarked())
        GameState.RandomLayoutMode = 1;
    LoadLayoutGeometry();
}

static void TurnSet(int Step)
{
    const int Sets = GameState.LayoutListCount;
    GameState.LayoutSetCursor = (GameState.LayoutSetCursor - 1 + Step + Sets) % Sets + 1;
    GameState.LayoutGroup = GameState.LayoutSets(GameState.LayoutSetCursor);
    ShowSetLabel();
    ShowThumbnails();
    Platform.Yield();
    LoadScores();
    MarkOnly(GameState.ChooserGroup);
}

static void imgLaySetUP_Action(int)
{
    TurnSet(1);
}
static void imgLaySetDN_Action(int)
{
    TurnSet(-1);
}

constexpr float FrameMargin = 4;

static void lblThumbs_MouseMove(int Place, MouseButton, int, int)
{
    SetPlace(imgThumbFrame, lblThumbs(Place).Left - FrameMargin,
             lblThumbs(Place).Top - FrameMargin);
    Show(imgThumbFrame);
}

static void HideFrameOnMove(int, MouseButton, int, int)
{
    Hide(imgThumbFrame);
}

void SetChooserHandlers()
{
    SetHandlers(imgButGroups, {.Action = imgButGroups_Action});
    SetHandlers(imgButChooseLayout, {.Action = imgButChooseLayout_Action});
    SetHandlers(imgButRandomLayout, {.Action = imgButRandomLayout_Action});
    SetHandlers(imgOptRandomLayout, {.Action = imgOptRandomLayout_Action});
    SetHandlers(lblOptRandom, {.Click = imgOptRandomLayout_Action});
    SetHandlers(imgRandomOk, {.Action = imgRandomOk_Action});
    SetHandlers(imgLaySetUP, {.Action = imgLaySetUP_Action});
    SetHandlers(imgLaySetDN, {.Action = imgLaySetDN_Action});
    SetHandlers(lblThumbs, {.MouseMove = lblThumbs_MouseMove, .Click = lblThumbs_Click});
    SetHandlers(picLayouts, {.MouseMove = HideFrameOnMove});
    SetHandlers(picThumbs, {.MouseMove = HideFrameOnMove});
}
