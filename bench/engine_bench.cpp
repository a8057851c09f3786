// Engine benchmarks: generation per level, one rule pass, a searched move.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <vector>

#include <fstream>
#include <string>

#include "Board.h"
#include "Hints.h"
#include "ExactSolver.h"
#include "PuzzleText.h"
#include "RuleSolver.h"

namespace {

void seedOnce() {
    static eng::Board first(nullptr);  // the first board seeds rand() from the clock
    (void)first;
}

double percentile(std::vector<double> samples, double p) {
    if (samples.empty()) return 0;
    std::sort(samples.begin(), samples.end());
    const size_t i = std::min(samples.size() - 1, static_cast<size_t>(p * (samples.size() - 1) + 0.5));
    return samples[i];
}

double threadCpuMillis() {
    timespec t{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
    return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

// One game per iteration, each from its own seed; reports the median and the
// 99th percentile of the generation time over all seeds, as wall-clock time
// and as this thread's CPU time (which other work on the machine hardly moves).
void BM_Generate(benchmark::State& state) {
    seedOnce();
    const int level = static_cast<int>(state.range(0));
    std::vector<double> millis, cpuMillis;
    unsigned seed = 1;
    int failures = 0;
    for (auto _ : state) {
        std::srand(seed++);
        eng::Board board(nullptr);
        board.setPencilMarksRules({eng::ruleSingles});
        const auto start = std::chrono::steady_clock::now();
        const double cpuStart = threadCpuMillis();
        failures += !board.generate(level);
        cpuMillis.push_back(threadCpuMillis() - cpuStart);
        millis.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    state.counters["median_ms"] = percentile(millis, 0.5);
    state.counters["p99_ms"] = percentile(millis, 0.99);
    state.counters["cpu_median_ms"] = percentile(cpuMillis, 0.5);
    state.counters["cpu_p99_ms"] = percentile(cpuMillis, 0.99);
    state.counters["failed"] = failures;
}
BENCHMARK(BM_Generate)->DenseRange(0, 4)->Iterations(300)->Unit(benchmark::kMillisecond);

eng_priv::BoardSnapshot puzzleSnapshot(int level, unsigned seed) {
    seedOnce();
    std::srand(seed);
    eng::Board board(nullptr);
    board.generate(level);
    eng_priv::BoardSnapshot s;
    for (int i = 0; i < 81; ++i) {
        const int v = board.cell(i)->value();
        if (v) {
            s.cells[i].setSinglePotential(v);
            s.cells[i].setValue(v, 1);
        }
    }
    return s;
}

// One full preset-3 pass from the values of a fresh Hard puzzle.
void BM_Preset3Pass(benchmark::State& state) {
    const eng_priv::BoardSnapshot puzzle = puzzleSnapshot(eng::lvlHard, 77);
    for (auto _ : state) {
        eng_priv::BoardSnapshot s(puzzle);
        eng_priv::RuleSolver solver(eng_priv::presetFull);
        solver.applyAllFromValues(s);
        benchmark::DoNotOptimize(s.cells[0].mask());
    }
}
BENCHMARK(BM_Preset3Pass)->Unit(benchmark::kMicrosecond);

// "Make Move" on an empty User Edit board: a searched move.
void BM_UserEditMakeMove(benchmark::State& state) {
    seedOnce();
    std::srand(3);
    for (auto _ : state) {
        state.PauseTiming();
        auto* board = new eng::Board(nullptr);
        board->setPencilMarksRules({eng::ruleSingles});
        board->generate(eng::lvlUserEdit);
        state.ResumeTiming();
        benchmark::DoNotOptimize(board->makeMove());
        state.PauseTiming();
        delete board;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_UserEditMakeMove)->Unit(benchmark::kMicrosecond);

// The published hard puzzles, each at its start and where hints stop (no rule
// finds a step: every technique has been tried on every unit).
std::vector<eng::Position> hardPositions() {
    std::vector<eng::Position> out;
    std::ifstream in(SUDOKU_PUZZLES);
    eng::Grid g{};
    for (std::string line; std::getline(in, line);) {
        if (!eng::readPuzzle(line, g)) continue;
        out.push_back(eng::positionFromValues(g));
        for (eng::Hint h; (h = eng::findHint(eng::positionFromValues(g), true)).outcome == eng::Hint::found;)
            g[h.step.cell] = h.step.value;
        out.push_back(eng::positionFromValues(g));
    }
    return out;
}

// Hints on each hard position (every iteration takes one on each), values only (range 0: the hint places a
// value) or on the candidates the values leave (1: the pencil marks shown).
void BM_Hint(benchmark::State& state) {
    static const std::vector<eng::Position> grids = hardPositions();
    const bool placeValue = state.range(0) == 0;
    std::vector<std::vector<double>> millis(grids.size());
    std::vector<double> cpuMillis;
    for (auto _ : state) {
        for (size_t k = 0; k < grids.size(); ++k) {
            const auto start = std::chrono::steady_clock::now();
            const double cpuStart = threadCpuMillis();
            benchmark::DoNotOptimize(eng::findHint(grids[k], placeValue));
            cpuMillis.push_back(threadCpuMillis() - cpuStart);
            millis[k].push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        }
    }
    // Over every hint, and for the position whose median is the highest.
    std::vector<double> all;
    size_t hardest = 0;
    for (size_t k = 0; k < grids.size(); ++k) {
        all.insert(all.end(), millis[k].begin(), millis[k].end());
        if (percentile(millis[k], 0.5) > percentile(millis[hardest], 0.5)) hardest = k;
    }
    state.counters["median_ms"] = percentile(all, 0.5);
    state.counters["p99_ms"] = percentile(all, 0.99);
    state.counters["hardest_median_ms"] = percentile(millis[hardest], 0.5);
    state.counters["hardest_p99_ms"] = percentile(millis[hardest], 0.99);
    state.counters["cpu_p99_ms"] = percentile(cpuMillis, 0.99);
    state.counters["positions"] = static_cast<double>(grids.size());
}
BENCHMARK(BM_Hint)->Arg(0)->Arg(1)->Iterations(21)->Unit(benchmark::kMillisecond);

// Checking a pasted puzzle: the exact solver counts the solutions (up to two)
// of each published hard puzzle in turn; median and p99 over all the checks.
// The grading of the same puzzles by the level presets is timed beside it.
void BM_ExactSolverPublished(benchmark::State& state) {
    std::vector<eng::Grid> puzzles;
    std::ifstream in(SUDOKU_PUZZLES);
    eng::Grid g{};
    for (std::string line; std::getline(in, line);)
        if (eng::readPuzzle(line, g)) puzzles.push_back(g);
    const bool grading = state.range(0) == 1;
    std::vector<double> millis;
    size_t next = 0;
    int notUnique = 0;
    for (auto _ : state) {
        const eng::Grid& puzzle = puzzles[next++ % puzzles.size()];
        const auto start = std::chrono::steady_clock::now();
        if (grading)
            benchmark::DoNotOptimize(eng::Board::grade(puzzle));
        else
            notUnique += eng::ExactSolver::countSolutions(puzzle, &g, 2) != 1;
        millis.push_back(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    state.counters["puzzles"] = static_cast<double>(puzzles.size());
    state.counters["median_ms"] = percentile(millis, 0.5);
    state.counters["p99_ms"] = percentile(millis, 0.99);
    state.counters["max_ms"] = percentile(millis, 1.0);
    state.counters["not_unique"] = notUnique;
}
BENCHMARK(BM_ExactSolverPublished)->Arg(0)->Arg(1)->Iterations(2300)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
