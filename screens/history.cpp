// history.cpp: the latest games of one game type and view, in three pages of fourteen.
#include "board/board.h"
#include "records/records.h"
#include "screens/screens.h"

#include <cstdlib>

constexpr int RowsOfPage = 14, Pages = 3;

static void ShowRow(int Row, const HistoryRow& Game, bool Cleared)
{
    const std::string Date = Game.Date.size() < 4 ? std::string(8, ' ') : Game.Date;
    const std::string Year = Date.substr(Date.size() - 4);
    const bool Shown = !Cleared && std::atoi(Year.c_str()) > 0;
    for (const ElementArray* Column : {&lblHisName, &lblHisRank, &lblHisLayout, &lblHisScore,
                                       &lblHisYear, &lblHisMonth, &lblHisDay})
        SetVisible((*Column)(Row), Shown);
    if (!Shown) return;
    SetCaption(lblHisName(Row), Game.Name);
    SetCaption(lblHisRank(Row), Game.Place);
    SetCaption(lblHisLayout(Row), GameState.LayoutName(Game.LayoutIndex));
    SetCaption(lblHisScore(Row), std::to_string(Game.Score));
    SetCaption(lblHisYear(Row), Year);
    SetCaption(lblHisMonth(Row), MonthText(std::atoi(Date.substr(2, 2).c_str())));
    SetCaption(lblHisDay(Row), std::to_string(std::atoi(Date.substr(0, 2).c_str())));
}

void ShowHistoryPage()
{
    const int Type = GameState.HistoryGameType, List = GameState.HistoryView;
    const bool Cleared = GameState.HistoryCleared(Type, List) != 0;
    for (int Row = 0; Row < RowsOfPage; ++Row)
        ShowRow(Row, GameState.History(Type, List, GameState.HistoryPage * RowsOfPage - 13 + Row),
                Cleared);
    ShowChoice(imgGameTypeHistory, Type - 1);
    ShowChoice(imgHisView, List - 1);
    ShowChoice(imgHisPage, GameState.HistoryPage - 1);
}

void ShowHistory()
{
    GameState.HistoryPage = 1;
    GameState.HistoryGameType = GameState.GameType;
    ShowHistoryPage();
}

void OpenHistory(const Element* Former)
{
    ShowHistory();
    if (Former)
        PassTo(picHistory, *Former);
    else
        OpenFromMenu(picHistory);
}

static void TurnTo(int Page)
{
    GameState.HistoryPage = Page;
    ShowHistoryPage();
    ChangedOption();
}

static void imgHisPage_Action(int I)
{
    if (GameState.HistoryPage != I + 1) TurnTo(I + 1);
}

static void lblPage_Click(int)
{
    TurnTo(GameState.HistoryPage % Pages + 1);
}

static void imgHisView_Action(int I)
{
    if (GameState.HistoryView == I + 1) return;
    GameState.HistoryView = I + 1;
    TurnTo(1);
}

static void imgGameTypeHistory_Action(int I)
{
    if (GameState.HistoryGameType == I + 1) return;
    GameState.HistoryGameType = I + 1;
    TurnTo(1);
}

static void imgHisClearThis_Action(int)
{
    GameState.HistoryCleared(GameState.HistoryGameType, GameState.HistoryView) = 1;
    ShowHistoryPage();
}

static void EmptyList(int Type, int List)
{
    for (int Row = 0; Row <= 43; ++Row) GameState.History(Type, List, Row) = HistoryRow();
    GameState.HistoryCleared(Type, List) = 0;
}

static void imgHisOK_Action(int)
{
    CloseFullScreen(picHistory);
    bool AnyMarked = false;
    for (int Type = Finesse; Type <= Wisdom; ++Type)
        for (int List = 1; List <= 3; ++List) {
            if (GameState.HistoryCleared(Type, List) == 0) continue;
            EmptyList(Type, List);
            AnyMarked = true;
        }
    if (AnyMarked) SaveHistory();
}

// The marks stay: a later OK of this run still clears those lists.
static void imgHisCancel_Action(int)
{
    CloseFullScreen(picHistory);
}
static void imgHisScores_Action(int)
{
    OpenScores(&picHistory);
}
static void imgHisProfile_Action(int)
{
    OpenProfile(picHistory);
}

void SetHistoryHandlers()
{
    SetHandlers(imgHisPage, {.Action = imgHisPage_Action});
    SetHandlers(lblPage, {.Click = lblPage_Click});
    SetHandlers(imgHisView, {.Action = imgHisView_Action});
    SetHandlers(lblHisView, {.Click = imgHisView_Action});
    SetHandlers(imgGameTypeHistory, {.Action = imgGameTypeHistory_Action});
    SetHandlers(lblGameTypeHistory, {.Click = imgGameTypeHistory_Action});
    SetHandlers(imgHisClearThis, {.Action = imgHisClearThis_Action});
    SetHandlers(imgHisOK, {.Action = imgHisOK_Action});
    SetHandlers(imgHisCancel, {.Action = imgHisCancel_Action});
    SetHandlers(imgHisScores, {.Action = imgHisScores_Action});
    SetHandlers(imgHisProfile, {.Action = imgHisProfile_Action});
}
