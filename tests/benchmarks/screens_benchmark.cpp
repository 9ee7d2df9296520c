// screens_benchmark.cpp: what opening the screens and their heaviest controls cost in the rules,
// with 1200 players in the tables.
#include "records/records.h"
#include "screens/screens.h"
#include "tests/common/game_dir.h"

#include <benchmark/benchmark.h>

static void FillTables()
{
    static bool Filled = false;
    if (Filled) return;
    Filled = true;
    BootGame();
    for (int Layout = 1; Layout <= 120; ++Layout)
        for (int Place = 1; Place <= 10; ++Place) {
            ScoreEntry& Entry = GameState.ScoreTable(Finesse, Layout, Place);
            Entry.Name = "player " + std::to_string(Layout * 10 + Place);
            Entry.Score = 11000 - Place;
        }
    SaveScores();
}

// From the press on a menu's entry to the screen's last property; the way back is not counted.
static void OpenAndClose(benchmark::State& Bench, const Element& Entry, const Element& Back)
{
    FillTables();
    for (auto _ : Bench) {
        Bench.PauseTiming();
        PressAt(imgButMenu);
        StaleRectangles().clear();
        Bench.ResumeTiming();
        PressAt(Entry);
        Bench.PauseTiming();
        PressAt(Back);
        Bench.ResumeTiming();
    }
}
BENCHMARK_CAPTURE(OpenAndClose, options, imgMenuOptions, imgButOptionsCancel)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(OpenAndClose, scores, imgMenuScores, imgOKScores)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(OpenAndClose, history, imgMenuHistory, imgHisCancel)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(OpenAndClose, profile, imgMenuProfile, imgProCancel)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(OpenAndClose, help, imgMenuHelp, imgBackToGame)->Unit(benchmark::kMicrosecond);

// Ten players who hold all 1200 entries between them: graph, Master Scores, statistics.
static void GraphOfTenPlayers(benchmark::State& Bench)
{
    FillTables();
    GameState.ProfileGameType = Agility;
    for (int Layout = 1; Layout <= 120; ++Layout)
        for (int Place = 1; Place <= 10; ++Place) {
            ScoreEntry& Entry = GameState.ScoreTable(Agility, Layout, Place);
            Entry.Name = "player " + std::to_string(1 + (Layout + Place) % 10);
            Entry.Score = 100;
        }
    for (int Box = 1; Box <= 12; ++Box)
        GameState.PlayerNames(Agility, Box) = "player " + std::to_string(1 + Box % 10);
    BuildPlayerList();
    for (auto _ : Bench) {
        ShowPlayers();
        StaleRectangles().clear();
    }
    Bench.counters["boxes"] = static_cast<double>(picGraph.Boxes.size());
}
BENCHMARK(GraphOfTenPlayers)->Unit(benchmark::kMicrosecond);

// A turn to another list reads its score table from disk.
static void TurnOfTheSet(benchmark::State& Bench)
{
    FillTables();
    OpenChooser();
    for (auto _ : Bench) {
        PressAt(imgLaySetUP);
        StaleRectangles().clear();
    }
    GameState.LayoutGroup = 0;
    ChooseLayout(19);
}
BENCHMARK(TurnOfTheSet)->Unit(benchmark::kMicrosecond);
