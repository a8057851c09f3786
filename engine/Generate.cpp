// Game generation: fill a random solution, reveal it until the level's preset
// can deduce the rest, and reject puzzles that the next easier preset solves.
#include "Board.h"
#include "RuleSolver.h"

namespace eng {

using eng_priv::BoardSnapshot;
using eng_priv::Cell;
using eng_priv::RuleSolver;

namespace {

constexpr int kCycles = 4;
constexpr int kAttemptsPerCycle = 15;
constexpr int kTrialsPerSolution = 30;

bool everyCellSettled(const BoardSnapshot& s) {
    for (const Cell& c : s.cells)
        if (c.count() > 1) return false;
    return true;
}

}  // namespace

bool Board::generate(int newLevel) {
    if (newLevel == lvlUserEdit) {
        clear();
        history.push_back(std::make_unique<BoardSnapshot>());
        masterSolution.forbidden = true;
        attempt = 0;
        level = lvlUserEdit;
        phase = phasePlaying;
        reportCells();
        return true;
    }
    if (newLevel < lvlCompleted || newLevel > lvlHard) return false;

    for (int cycle = 0; cycle < kCycles; ++cycle) {
        for (int attemptNo = 0; attemptNo < kAttemptsPerCycle; ++attemptNo) {
            clear();
            history.push_back(std::make_unique<BoardSnapshot>());
            attempt = attemptNo;
            level = newLevel;
            phase = phaseFilling;
            if (!fill()) continue;
            captureSolution();
            for (int trial = 0; trial < kTrialsPerSolution; ++trial) {
                resetToFirst();
                phase = phaseRevealing;
                revealUntilReady();
                if (!isTooEasy()) {
                    finishGame();
                    phase = phasePlaying;
                    reportCells();
                    return true;
                }
            }
            break;  // this solution gave no puzzle of the level: next cycle
        }
    }
    return false;
}

bool Board::fill() {
    while (!history.back()->isFull()) {
        if (!search(placeFill)) return false;
    }
    return true;
}

void Board::revealUntilReady() {
    while (true) {
        const BoardSnapshot& current = *history.back();
        const bool ready = level == lvlCompleted ? current.isFull() : everyCellSettled(current);
        if (ready || !revealOne(placeReveal)) return;
    }
}

bool Board::solves(int preset, const BoardSnapshot& s) {
    BoardSnapshot working(s);
    RuleSolver solver(preset);
    return runRulesFromValues(solver, working) && everyCellSettled(working);
}

bool Board::isTooEasy() {
    switch (level) {
    case lvlCompleted: return false;
    case lvlVeryEasy: return history.back()->isFull();
    // Too easy when the next easier level's preset solves it.
    default: return solves(revealPreset(level - 1), *history.back());
    }
}

void Board::finishGame() {
    auto puzzle = history.back()->copy();
    RuleSolver solver(pencilMarksRules);
    if (!runRulesFromValues(solver, *puzzle)) return;
    resetToFirst();
    history.push_back(std::move(puzzle));
}

}  // namespace eng
