#include "board/board.h"
#include "records/fields.h"
#include "records/records.h"
#include "screens/screens.h"

static void CountWonGame()
{
    Platform.Yield();
    ++GameState.LayoutWon(LayoutIndex());
    SaveWonLost();
}

void ShowLostGame()
{
    Show(picNoMoves);
    Platform.Yield();
    ++GameState.LayoutLost(LayoutIndex());
    SaveWonLost();
}

static void RecordWithoutPlace()
{
    RecordGame(2, "-", "-", GameState.LayoutNumber, GameState.Score);
}

void CongratulateOrAskName(const std::string& Name)
{
    ScoreRankFor(GameState.Score);
    Show(picBlack);
    SetText(txtName, Name);
    if (GameState.ScoreRank < 1) {
        HideAllTiles();
        DisablePanel(0);
        ShowCongratulations();
        Platform.Yield();
        RecordWithoutPlace();
    } else {
        ShowNewHigh();
    }
    CountWonGame();
}

void EndWonGame()
{
    if (GameState.GameType == Agility) {
        SetClock(2);
        GameState.Score = GameState.AgilityTime;
        ShowNote(NoteTimeLeft);
    }
    GameState.GameRunning = 0;
    DisablePanel(0);
    if (GameState.GameType == Finesse) AddWinBonus();
    CongratulateOrAskName(LowerCase(GameState.LastName));
}

void imgCongratsOK_Action(int)
{
    Hide(picGameWon);
    Hide(picBlack);
    ShowNote(NoteWaiting);
    GameState.WaitForStart = 1;
    NewGame();
    RefreshPanel();
}

void imgNewHighOK_Action(int)
{
    const std::string Name = TypedName();
    if (Name.empty()) return; // the panel stays up
    GameState.LastName = Name;
    RecordGame(3, Name, std::to_string(GameState.ScoreRank), GameState.LayoutNumber,
               GameState.Score);
    ShowScoresOfNewHigh();
    Hide(picGameWon);
    Hide(picBlack);
    Show(picContainer);
    Platform.Yield();
    SaveScores();
    HideAllTiles();
    ShowNote(NoteWaiting);
    GameState.WaitForStart = 1;
    NewGame();
}

void imgNoMovesOK_Action(int)
{
    ShowNote(NoteGameOver);
    ScoreRankFor(GameState.Score);
    SetText(txtName, GameState.LastName);
    Hide(picNoMoves);
    if (GameState.ScoreRank < 1) {
        Hide(imgEndDIS);
        Hide(picBlack);
        RecordWithoutPlace(); // the board stays under note 3 until imgbutEnd clears it
        return;
    }
    ShowNewHigh();
}

void AskToEndGame()
{
    SetClock(2);
    DisablePanel(0);
    Show(picBlack);
    Show(picEnd);
}

void imgbutEnd_Action(int)
{
    if (GameState.GameRunning == 1) {
        AskToEndGame();
        return;
    }
    DisablePanel(0);
    RefreshPanel();
    HideAllTiles();
    GameState.WaitForStart = 1;
    NewGame();
    ShowNote(NoteWaiting);
}

void imgEndNO_Action(int)
{
    RefreshPanel();
    Hide(picEnd);
    Hide(picBlack);
    GameState.EndThenChooser = 0;
    SetClock(1);
}

void imgEndYES_Action(int)
{
    Hide(picEnd);
    Hide(picBlack);
    Show(picBoard);
    RefreshPanel();
    HideAllTiles();
    Platform.Yield();
    RecordWithoutPlace();
    GameState.GameRunning = 0;
    GameState.WaitForStart = 1;
    NewGame();
    if (GameState.EndThenChooser == 1) OpenChooser();
    ShowNote(NoteWaiting);
}
