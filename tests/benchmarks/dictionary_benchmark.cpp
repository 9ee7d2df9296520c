// The dictionary's check on disk, from a warm page cache, beside two ways to hold the same words:
// a hash set in memory and an indexed table of SQLite. Those are here for comparison only.
#include "frame/files.h"
#include "words/words.h"

#include <benchmark/benchmark.h>
#ifdef PAGODAS_HAS_SQLITE
#include <sqlite3.h>
#endif

#include <algorithm>
#include <iostream>
#include <random>
#include <unordered_set>

// Every word of the made dictionary, shuffled, and before every second one a non-word near it.
static const std::vector<std::string>& Queries()
{
    static const std::vector<std::string> All = [] {
        GameDirectory = PAGODAS_GAME_DIR;
        std::int16_t Code = OpenFile;
        DictionaryCommand(HostPath("\\DATA\\AS0001"), Code);
        std::vector<std::string> Words;
        for (int Block = 1; Code == -1 && Block < DictionaryState.BlockCount; ++Block) {
            int Ordinal = 1;
            std::string Word = WordAt(Block, Ordinal);
            if (Word.empty() || Word[0] < 'A' || Word[0] > 'Z') break; // the sound index
            if (!Words.empty() && Word < Words.back()) break;
            for (; !Word.empty(); Word = WordAt(Block, ++Ordinal)) Words.push_back(Word);
        }
        std::mt19937 Random(1);
        std::shuffle(Words.begin(), Words.end(), Random);
        for (std::size_t I = 0; I < Words.size(); I += 2) Words[I].back() = 'Q';
        return Words;
    }();
    return All;
}

static void DictionaryCheck(benchmark::State& State)
{
    const auto& Words = Queries();
    if (Words.empty()) return State.SkipWithError("no dictionary in " PAGODAS_GAME_DIR);
    std::size_t I = 0;
    const std::uint32_t Before = DictionaryState.BlocksRead;
    for (auto _ : State) {
        std::int16_t Code = CheckWord;
        DictionaryCommand(Words[I], Code);
        benchmark::DoNotOptimize(Code);
        if (++I == Words.size()) I = 0;
    }
    State.SetItemsProcessed(State.iterations());
    State.counters["reads"] =
        benchmark::Counter(DictionaryState.BlocksRead - Before, benchmark::Counter::kAvgIterations);
}
BENCHMARK(DictionaryCheck);

static void ReferenceHashSet(benchmark::State& State)
{
    const auto& Words = Queries();
    const std::unordered_set<std::string> Set(Words.begin(), Words.end());
    std::size_t I = 0;
    for (auto _ : State) {
        benchmark::DoNotOptimize(Set.contains(Words[I]));
        if (++I == Words.size()) I = 0;
    }
    State.SetItemsProcessed(State.iterations());
}
BENCHMARK(ReferenceHashSet);

#ifdef PAGODAS_HAS_SQLITE
static void ReferenceSqlite(benchmark::State& State)
{
    const auto& Words = Queries();
    sqlite3* Base = nullptr;
    sqlite3_open("", &Base); // a file of its own, gone with the handle
    sqlite3_exec(Base, "CREATE TABLE Words (Word TEXT PRIMARY KEY) WITHOUT ROWID; BEGIN", nullptr,
                 nullptr, nullptr);
    sqlite3_stmt* Insert = nullptr;
    sqlite3_prepare_v2(Base, "INSERT OR IGNORE INTO Words VALUES (?)", -1, &Insert, nullptr);
    for (const std::string& Word : Words) {
        sqlite3_bind_text(Insert, 1, Word.data(), static_cast<int>(Word.size()), SQLITE_STATIC);
        sqlite3_step(Insert);
        sqlite3_reset(Insert);
    }
    sqlite3_finalize(Insert);
    sqlite3_exec(Base, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_stmt* Select = nullptr;
    sqlite3_prepare_v2(Base, "SELECT 1 FROM Words WHERE Word = ?", -1, &Select, nullptr);
    std::size_t I = 0;
    for (auto _ : State) {
        sqlite3_bind_text(Select, 1, Words[I].data(), static_cast<int>(Words[I].size()),
                          SQLITE_STATIC);
        benchmark::DoNotOptimize(sqlite3_step(Select));
        sqlite3_reset(Select);
        if (++I == Words.size()) I = 0;
    }
    State.SetItemsProcessed(State.iterations());
    sqlite3_finalize(Select);
    sqlite3_close(Base);
}
BENCHMARK(ReferenceSqlite);
#endif
