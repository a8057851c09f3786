// Games on givens from outside the engine (a pasted puzzle), graded by the
// presets that reveal the generated levels.
#include <algorithm>
#include <memory>

#include "Board.h"
#include "ExactSolver.h"
#include "RuleSolver.h"

namespace eng {

using eng_priv::BoardSnapshot;
using eng_priv::Cell;
using eng_priv::RuleSolver;

namespace {

std::unique_ptr<BoardSnapshot> snapshotOf(const Grid& values) {
    auto s = std::make_unique<BoardSnapshot>();
    for (int i = 0; i < 81; ++i) {
        if (values[i] < 1 || values[i] > 9) continue;
        s->cells[i].setSinglePotential(values[i]);
        s->cells[i].setValue(values[i], originGiven);
    }
    return s;
}

// A preset solves a position when, from its values alone, it leaves every cell one candidate at most.
bool presetSolves(int preset, BoardSnapshot& s) {
    RuleSolver solver(preset);
    try {
        solver.applyAllFromValues(s);
    } catch (ExCellConflict& conflict) {
        conflict.describe();
        return false;
    } catch (ExTupleConflict& conflict) {
        conflict.describe();
        return false;
    }
    return std::all_of(std::begin(s.cells), std::end(s.cells), [](const Cell& c) { return c.count() <= 1; });
}

}  // namespace

int Board::grade(const Grid& givens) {
    if (std::all_of(givens.begin(), givens.end(), [](int v) { return v >= 1 && v <= 9; })) return lvlCompleted;
    for (int level = lvlVeryEasy; level <= lvlHard; ++level)
        if (presetSolves(revealPreset(level), *snapshotOf(givens))) return level;
    return gradeExpert;
}

bool Board::startGame(const Grid& givens, const Grid& solution) {
    for (int i = 0; i < 81; ++i) {
        if (solution[i] < 1 || solution[i] > 9 || (givens[i] && givens[i] != solution[i])) return false;
    }
    if (ExactSolver::givensConflict(solution)) return false;
    const int graded = grade(givens);
    clear();
    history.push_back(std::make_unique<BoardSnapshot>());
    masterSolution.solution = snapshotOf(solution);
    level = std::min(graded, int(lvlHard));
    // The givens with the player's own pencil-mark rules applied, as a generated game starts.
    auto puzzle = snapshotOf(givens);
    RuleSolver rules(pencilMarksRules);
    if (!runRulesFromValues(rules, *puzzle)) puzzle = snapshotOf(givens);
    history.push_back(std::move(puzzle));
    phase = phasePlaying;
    reportCells();
    return true;
}

}  // namespace eng
