// \SCOR\Scores-A of any content, its table on the screen, and a new score in it.
#include "screens/screens.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/records/usable_state.h"

constexpr const char* File = "\\SCOR\\Scores-A";
constexpr std::size_t Size = 129600;

static void EnterScore(const std::string& Name, int Score)
{
    GameState.GameType = Finesse;
    GameState.LayoutNumber = 1; // its places begin the file
    GameState.Score = Score;
    GameState.LastName = Name;
    ScoreRankFor(Score);
    InsertScore();
}

std::vector<std::string> Seeds()
{
    std::vector<std::string> Made = {"", std::string(40, '\xff')};
    LoadScores();
    for (int I = 1; I <= 11; ++I) {
        EnterScore("player " + std::to_string(I), 1000 * (I * 7 % 11));
        SaveScores();
        Made.push_back(FileContent(File).substr(0, 190)); // ten places and a part of one
    }
    return Made;
}

static void LookAtScreens()
{
    GameState.GraphType = GameState.ProfileSizeClass(1) = 1;
    GameState.ProfileGameType = GameState.ScoresGameType = Finesse;
    GameState.ScoresLayout = 1;
    ShowScores();
    const ScoreEntry& First = GameState.ScoreTable(Finesse, 1, 1);
    for (int Box = 1; Box <= 12; ++Box) GameState.PlayerNames(Finesse, Box) = First.Name;
    BuildPlayerList();
    ShowPlayers();
}

void PlayRound(const std::string& Input)
{
    PutFile(File, Input);
    LoadScores();
    Require(UnusableScore().empty(), UnusableScore());
    Require(FileContent(File) == Input, "reading changes the file");
    LookAtScreens();
    EnterScore("ann", 12345);
    const int Rank = GameState.NewHighRank;
    Require(Rank == 0 || GameState.ScoreTable(Finesse, 1, Rank).Name == "ann", "not at its place");
    RequireLasting(File, Size, LoadScores, SaveScores);
}
