// profile.cpp: compares the players. A map of all high scores of one game type - a column a
// layout, a row a place - with the players' Master Scores and statistics around it.
#include "board/board.h"
#include "records/records.h"
#include "screens/screens.h"

#include <algorithm>

constexpr int ColumnStep = 6, RowStep = 14; // pixels of picGraph
constexpr int GraphColumns = 120, GraphRows = 10;
constexpr int GraphWidth = 720, GraphHeight = 140;
constexpr const char* ClickToPlay = "Click to play Layout";
constexpr const char* GameInProgress = "Game in progress";
constexpr int LabelGap = 12; // between the pointer's column and the read-out

static void HideReadOut()
{
    Hide(linGraph);
    Hide(lblGraphScore);
    Hide(lblGraphLayout);
    SetCaption(lblProNote, "");
}

// The tables, the graph and the statistics of ProfileGameType.
static void BuildGameType()
{
    ShowChoice(imgGameTypeProfile, GameState.ProfileGameType - 1);
    ShowChoice(imgGraphType, GameState.GraphType - 1);
    ShowSizeClass();
    BuildPlayerList();
    ShowPlayers();
}

void BuildProfile()
{
    GameState.ProfileGameType = GameState.GameType;
    CopyChosenPlayers();
    SetCaption(lblSetProfile, LayoutSetName(GameState.LayoutGroup));
    HideReadOut();
    BuildGameType();
}

void OpenProfile(const Element& Former)
{
    BuildProfile();
    PassTo(picProfile, Former);
}

static void imgGraphType_Action(int I)
{
    if (GameState.GraphType == I + 1) return;
    GameState.GraphType = I + 1;
    ShowChoice(imgGraphType, I);
    ShowPlayers();
    ChangedOption();
}

static void imgGameTypeProfile_Action(int I)
{
    if (GameState.ProfileGameType == I + 1) return;
    HideReadOut();
    SaveChosenPlayers();
    GameState.ProfileGameType = I + 1;
    ChangedOption();
    BuildGameType();
}

// --- the pointer on the graph ---

static int ColumnAt(int X)
{
    return std::clamp(X / ColumnStep + 1, 1, GraphColumns);
}
static int RowAt(int Y)
{
    return std::clamp(Y / RowStep + 1, 1, GraphRows);
}

static void ShowLines(int Column, int Row)
{
    const int Y = RowStep * Row + 1, X = ColumnStep * Column + 1;
    SetLine(linGraph(0), 0, Y, GraphWidth - 1, Y);
    SetLine(linGraph(1), 0, Y - RowStep, GraphWidth - 1, Y - RowStep);
    SetLine(linGraph(2), X, 0, X, GraphHeight - 1);
    SetLine(linGraph(3), X - ColumnStep, 0, X - ColumnStep, GraphHeight - 1);
    Show(linGraph);
}

// The read-out follows the row, on the side of the pointer that has room.
static void ShowReadOut(const ScoreEntry& Entry, int Column, int Row)
{
    SetCaption(lblGraphScore, std::to_string(Entry.Score) + "  " + Entry.Name);
    SetCaption(lblGraphLayout, GameState.LayoutName(GameState.LayoutGroup * 120 + Column));
    const float Right = picGraph.Left + static_cast<float>(ColumnStep * Column + LabelGap);
    const float Width = lblGraphScore(0).Width;
    const bool Fits = Right + Width <= picGraph.Left + GraphWidth;
    const float Left = Fits ? Right : Right - Width - 2 * LabelGap - ColumnStep;
    const float Height = lblGraphScore(0).Height;
    const float Lowest = picGraph.Top + GraphHeight - 2 * Height;
    const float Top = std::min(picGraph.Top + static_cast<float>(RowStep * (Row - 1)), Lowest);
    for (int I = 0; I < 2; ++I) {
        const float Shadow = static_cast<float>(I);
        SetPlace(lblGraphScore(I), Left + Shadow, Top + Shadow);
        SetPlace(lblGraphLayout(I), Left + Shadow, Top + Height + Shadow);
    }
    Show(lblGraphScore);
    Show(lblGraphLayout);
}

// The column last pointed at: a Click carries no place.
static int PointedColumn = 1;

static void picGraph_MouseMove(int, MouseButton, int X, int Y)
{
    const int Column = ColumnAt(X), Row = RowAt(Y);
    PointedColumn = Column;
    ShowLines(Column, Row);
    const ScoreEntry& Entry = GameState.ScoreTable(GameState.ProfileGameType, Column, Row);
    if (Entry.Name.empty()) {
        Hide(lblGraphScore);
        Hide(lblGraphLayout);
    } else {
        ShowReadOut(Entry, Column, Row);
    }
    SetCaption(lblProNote, GameState.GameRunning == 1 ? GameInProgress : ClickToPlay);
}

static void picProfile_MouseMove(int, MouseButton, int, int)
{
    HideReadOut();
}

// --- ways out ---

static void PlayLayout(int Number)
{
    if (GameState.GameRunning == 1) {
        SetCaption(lblProNote, GameInProgress);
        return;
    }
    SaveChosenPlayers();
    Hide(picProfile);
    Hide(picContainer);
    GameState.LayoutNumber = Number;
    GameState.RandomLayoutMode = 0;
    ShowLayoutName();
    FreePanelBackground(picProfile); // nothing is dealt: the game begins at imgbutStart
}

static void picGraph_Click(int)
{
    PlayLayout(PointedColumn);
}

// The layout row of the statistics; its number stands in the row's Tag.
constexpr int LowScoreRow = 9;

static void PlayLowScoreLayout(const Element& Row)
{
    if (!Row.Tag.empty()) PlayLayout(std::stoi(Row.Tag));
}

static void lblStatA_Click(int Row)
{
    if (Row == LowScoreRow) PlayLowScoreLayout(lblStatA(Row));
}

static void lblStatB_Click(int Row)
{
    if (Row == LowScoreRow) PlayLowScoreLayout(lblStatB(Row));
}

static void imgProOK_Action(int)
{
    SaveChosenPlayers();
    CloseFullScreen(picProfile);
}

static void imgProCancel_Action(int)
{
    PutChosenPlayersBack();
    CloseFullScreen(picProfile);
}

static void imgProHistory_Action(int)
{
    SaveChosenPlayers();
    OpenHistory(&picProfile);
}

static void imgProScores_Action(int)
{
    SaveChosenPlayers();
    OpenScores(&picProfile);
}

void SetProfileHandlers()
{
    SetHandlers(imgGraphType, {.Action = imgGraphType_Action});
    SetHandlers(lblGraphType, {.MouseMove = picProfile_MouseMove, .Click = imgGraphType_Action});
    SetHandlers(imgGameTypeProfile, {.Action = imgGameTypeProfile_Action});
    SetHandlers(lblGameTypeProfile, {.Click = imgGameTypeProfile_Action});
    SetHandlers(picGraph, {.MouseDown = picGraph_MouseMove, // a finger comes without a move
                           .MouseMove = picGraph_MouseMove,
                           .Click = picGraph_Click});
    SetHandlers(picProfile, {.MouseMove = picProfile_MouseMove});
    SetHandlers(lblStatA, {.Click = lblStatA_Click});
    SetHandlers(lblStatB, {.Click = lblStatB_Click});
    SetHandlers(imgProOK, {.Action = imgProOK_Action});
    SetHandlers(imgProCancel, {.Action = imgProCancel_Action});
    SetHandlers(imgProHistory, {.Action = imgProHistory_Action});
    SetHandlers(imgProScores, {.Action = imgProScores_Action});
}
