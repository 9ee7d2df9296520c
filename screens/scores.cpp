// scores.cpp: the score table of one layout and game type.
#include "board/board.h"
#include "records/records.h"
#include "screens/screens.h"

constexpr int LayoutsOfGroup = 12;
constexpr Colour RowInk = {0, 0, 0}, NewRowInk = {255, 255, 0};

static int ShownGroup()
{
    return (GameState.ScoresLayout - 1) / LayoutsOfGroup;
}

static std::string NameInList(int Number)
{
    return GameState.LayoutName(GameState.LayoutGroup * 120 + Number);
}

static void ShowGroups()
{
    for (int I = 0; I < imgButGrpScr.Count; ++I)
        SetPicture(imgButGrpScr(I),
                   CellPicture(I == ShownGroup() ? clpButGroupOn : clpButGroupOff, I));
    for (int I = 0; I < LayoutsOfGroup; ++I) {
        const int Number = ShownGroup() * LayoutsOfGroup + I + 1;
        SetCaption(lblLayoutName(I), NameInList(Number));
        SetCaption(lblLayoutName(I + LayoutsOfGroup), NameInList(Number));
        SetPicture(imgScrLayout(I),
                   StockPicture(imgButScores(Number == GameState.ScoresLayout ? 1 : 0)));
    }
}

static void ShowRow(int Rank)
{
    const ScoreEntry& Entry =
        GameState.ScoreTable(GameState.ScoresGameType, GameState.ScoresLayout, Rank);
    const bool Empty = Entry.Score == 0;
    const auto Text = [&](int Number) { return Empty ? std::string() : std::to_string(Number); };
    SetVisible(lblScrRank(Rank), !Empty);
    SetCaption(lblScrRank(Rank), std::to_string(Rank));
    SetCaption(lblScrName(Rank), Empty ? "" : Entry.Name);
    SetCaption(lblScrScore(Rank), Text(Entry.Score));
    SetCaption(lblScrDay(Rank), Text(Entry.Day));
    SetCaption(lblScrMonth(Rank), Empty ? "" : MonthText(Entry.Month));
    SetCaption(lblScrYear(Rank), Text(Entry.Year));
    for (const ElementArray* Column :
         {&lblScrRank, &lblScrName, &lblScrScore, &lblScrDay, &lblScrMonth, &lblScrYear})
        SetInk((*Column)(Rank), Rank == GameState.NewHighRank ? NewRowInk : RowInk);
}

static void UnderlayNewRow()
{
    constexpr float Rise = 6; // of the strip above its row
    const int Rank = GameState.NewHighRank;
    if (Rank >= 1) SetPlace(picNewRow, picNewRow.Left, lblScrRank(Rank).Top - Rise);
    SetVisible(picNewRow, Rank >= 1);
}

void ShowScores()
{
    ShowGroups();
    SetCaption(lblScrTitle, NameInList(GameState.ScoresLayout));
    SetCaption(lblScoreSet, LayoutSetName(GameState.LayoutGroup));
    SetVisible(imgButPlayThisDIS, GameState.GameRunning == 1);
    ShowChoice(imgGameTypeScores, GameState.ScoresGameType - 1);
    for (int Rank = 1; Rank <= 10; ++Rank) ShowRow(Rank);
    UnderlayNewRow();
    GameState.NewHighRank = 0;
}

void OpenScores(const Element* Former)
{
    // With a random rule and no layout drawn yet, the table of the first layout shows.
    GameState.ScoresLayout = std::max(1, static_cast<int>(GameState.LayoutNumber));
    GameState.ScoresGameType = GameState.GameType;
    GameState.NewHighRank = 0;
    ShowScores();
    if (Former)
        PassTo(picScores, *Former);
    else
        OpenFromMenu(picScores);
}

void ShowScoresOfNewHigh()
{
    GameState.ScoresLayout = static_cast<int>(GameState.LayoutNumber);
    GameState.ScoresGameType = GameState.GameType;
    InsertScore();
    ShowScores();
    LoadPanelBackground(picScores);
    ShowPanel(picScores);
}

static void ShowLayoutScores(int Number)
{
    GameState.ScoresLayout = Number;
    GameState.NewHighRank = 0;
    ShowScores();
}

static void imgButGrpScr_Action(int Group)
{
    ShowLayoutScores(Group * LayoutsOfGroup + 1);
}

static void imgScrLayout_Action(int Place)
{
    ShowLayoutScores(ShownGroup() * LayoutsOfGroup + Place % LayoutsOfGroup + 1);
}

static void imgGameTypeScores_Action(int Type)
{
    if (GameState.ScoresGameType == Type + 1) return;
    GameState.ScoresGameType = Type + 1;
    GameState.NewHighRank = 0;
    ShowScores();
    ChangedOption();
}

static void imgButPlayThis_Action(int)
{
    Hide(picScores);
    Hide(picContainer);
    GameState.LayoutNumber = static_cast<int>(GameState.ScoresLayout);
    GameState.RandomLayoutMode = 0;
    ShowLayoutName();
    FreePanelBackground(picScores);
    SetClock(1);
}

static void imgOKScores_Action(int)
{
    CloseFullScreen(picScores);
}
static void imgButHistoryScores_Action(int)
{
    OpenHistory(&picScores);
}
static void imgButProfileScores_Action(int)
{
    OpenProfile(picScores);
}

void SetScoresHandlers()
{
    SetHandlers(imgButGrpScr, {.Action = imgButGrpScr_Action});
    SetHandlers(imgScrLayout, {.Action = imgScrLayout_Action});
    SetHandlers(lblLayoutName, {.Click = imgScrLayout_Action});
    SetHandlers(imgGameTypeScores, {.Action = imgGameTypeScores_Action});
    SetHandlers(lblGameTypeScores, {.Click = imgGameTypeScores_Action});
    SetHandlers(imgButPlayThis, {.Action = imgButPlayThis_Action});
    SetHandlers(imgOKScores, {.Action = imgOKScores_Action});
    SetHandlers(imgButHistoryScores, {.Action = imgButHistoryScores_Action});
    SetHandlers(imgButProfileScores, {.Action = imgButProfileScores_Action});
}
