// SPDX-License-Identifier: MIT
// The cost of the puzzle logic without a window, and a yardstick for it. The names of the cases say
// which grid they use. Compare only cases of one run.
#include "Yardstick.h"

#include "model/Fields.h"
#include "play/Game.h"
#include "play/Play.h"
#include "support/modTextStream.h"

#include <benchmark/benchmark.h>

namespace tessarin {
namespace {

constexpr int Empty = 0;
constexpr int HalfFull = 1;

std::string Puzzle(const std::string& name) {
    return ReadTextFile(PUZZLES + name + ".csv");
}

// Fills every second field of a solved grid of the current dimension.
void FillHalf(Fields& grid) {
    const int d = grid.Dimension();
    const int n = grid.Numbers();
    for (int k = 2; k <= grid.Count(); k += 2) {
        const int row = (k - 1) / n;
        grid.Items.Item(k)->SetValue((row * d + row / d + (k - 1) % n) % n + 1);
    }
}

void Prepare(Fields& grid, benchmark::State& state) {
    grid.Init(static_cast<int>(state.range(0)));
    if (state.range(1) == HalfFull) FillHalf(grid);
}

// A change of a lock puts the status out of date and changes nothing else that the pass works on.
void StatusPass(benchmark::State& state) {
    Game game;
    Fields& grid = *game.Fields;
    Prepare(grid, state);
    Field& first = *grid.Items.Item(1);
    for (auto _ : state) {
        first.SetLocked(!first.Locked());
        benchmark::DoNotOptimize(grid.Status());
    }
}
BENCHMARK(StatusPass)->ArgNames({"dimension", "half"})->ArgsProduct({{3, 5, 7}, {Empty, HalfFull}});

void StatusPassYardstick(benchmark::State& state) {
    Game game;
    Prepare(*game.Fields, state);
    std::array<int, 81> fields{};
    for (int k = 1; k <= 81; ++k)
        fields[static_cast<std::size_t>(k) - 1] = game.Fields->Items.Item(k)->Value();
    for (auto _ : state) {
        benchmark::DoNotOptimize(fields.data());
        benchmark::ClobberMemory();
        benchmark::DoNotOptimize(CountFlat(fields));
    }
}
BENCHMARK(StatusPassYardstick)
    ->ArgNames({"dimension", "half"})
    ->Args({3, Empty})
    ->Args({3, HalfFull});

void FreeValuesOfAField(benchmark::State& state, bool counted) {
    Game game;
    Prepare(*game.Fields, state);
    const auto field = game.Fields->Items.Item(41);
    for (auto _ : state)
        if (counted)
            benchmark::DoNotOptimize(field->Freedom());
        else
            benchmark::DoNotOptimize(field->FreeValues());
}
BENCHMARK_CAPTURE(FreeValuesOfAField, counted, true)->Args({3, HalfFull})->Args({5, HalfFull});
BENCHMARK_CAPTURE(FreeValuesOfAField, listed, false)->Args({3, HalfFull})->Args({5, HalfFull});

void SolvePuzzle(benchmark::State& state, const char* name) {
    Game game;
    const std::string text = Puzzle(name);
    for (auto _ : state) {
        state.PauseTiming();
        game.Fields->SetTextCSV(text);
        game.Play->Reset();
        game.Fields->SetIndex(1);
        state.ResumeTiming();
        game.Play->Solve();
    }
    if (!game.Fields->IsWinner()) state.SkipWithError("not solved");
}
BENCHMARK_CAPTURE(SolvePuzzle, easy, "easy-1");
BENCHMARK_CAPTURE(SolvePuzzle, hard, "hard-1");

// Times the first moves in an empty grid, which lead to no dead end in any dimension.
void SolveMoves(benchmark::State& state) {
    Game game;
    int moves = 0;
    for (auto _ : state) {
        state.PauseTiming();
        game.Fields->Init(static_cast<int>(state.range(0)));
        game.Play->Reset();
        state.ResumeTiming();
        for (moves = 0; moves < 40; ++moves)
            game.Play->GotoNextFreeField(true);
    }
    state.SetItemsProcessed(state.iterations() * moves);
}
BENCHMARK(SolveMoves)->ArgName("dimension")->Arg(3)->Arg(5)->Arg(7);

void Load(benchmark::State& state, bool csv) {
    Game game;
    Fields& grid = *game.Fields;
    grid.SetTextCSV(Puzzle("hard-1"));
    const std::string text = csv ? grid.TextCSV() : grid.TextSDK();
    for (auto _ : state)
        csv ? grid.SetTextCSV(text) : grid.SetTextSDK(text);
}
BENCHMARK_CAPTURE(Load, csv, true);
BENCHMARK_CAPTURE(Load, sdk, false);

} // namespace
} // namespace tessarin
