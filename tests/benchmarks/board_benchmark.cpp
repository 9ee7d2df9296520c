// board_benchmark.cpp: what a press, a hover and a deal cost in the rules.
#include "tests/common/game_dir.h"

#include <benchmark/benchmark.h>

constexpr int LargeLayout = 115; // 288 tiles

static void StartGameOn(int Number)
{
    static const bool Booted = (BootGame(), true);
    (void)Booted;
    GameState.GameType = Finesse;
    GameState.LayoutNumber = Number;
    GameState.WaitForStart = 0;
    imgbutStart_Action(0);
}

// Reset, faces, 576 exchanges, 288 placings, showing, scan.
static void PressOfStart(benchmark::State& Bench)
{
    StartGameOn(LargeLayout);
    for (auto _ : Bench) {
        imgbutStart_Action(0);
        StaleRectangles().clear();
    }
}
BENCHMARK(PressOfStart)->Unit(benchmark::kMicrosecond);

static void ScanOfFullBoard(benchmark::State& Bench)
{
    StartGameOn(LargeLayout);
    for (auto _ : Bench) ScanOpenPairs();
}
BENCHMARK(ScanOfFullBoard)->Unit(benchmark::kMicrosecond);

static void HitTestOnFullBoard(benchmark::State& Bench)
{
    StartGameOn(LargeLayout);
    float X = 0;
    for (auto _ : Bench) {
        X = X > 900 ? 100 : X + 7;
        benchmark::DoNotOptimize(HitTest(X, 300));
    }
}
BENCHMARK(HitTestOnFullBoard)->Unit(benchmark::kMicrosecond);

static void HoverBetweenFreeTiles(benchmark::State& Bench)
{
    StartGameOn(LargeLayout);
    const int First = GameState.FreeTiles(1), Second = GameState.FreeTiles(2);
    int Tile = First;
    for (auto _ : Bench) {
        imgTile_MouseMove(Tile, MouseButton::Left, 0, 0);
        Tile = Tile == First ? Second : First;
        StaleRectangles().clear();
    }
}
BENCHMARK(HoverBetweenFreeTiles)->Unit(benchmark::kMicrosecond);

// A match with its scan and its points; the undo that puts the pair back is not counted.
static void MatchOnFullBoard(benchmark::State& Bench)
{
    StartGameOn(LargeLayout);
    for (auto _ : Bench) {
        Bench.PauseTiming();
        StaleRectangles().clear();
        GameState.UndoCount = 2;
        GameState.Score = 0;
        if (GameState.UndoDepth > 0) imgUndo_Action(0);
        const int First = GameState.OpenPairA(1), Second = GameState.OpenPairB(1);
        imgTile_MouseDown(First, MouseButton::Left, 0, 0);
        Bench.ResumeTiming();
        imgTile_MouseDown(Second, MouseButton::Left, 0, 0);
    }
}
BENCHMARK(MatchOnFullBoard)->Unit(benchmark::kMicrosecond);
