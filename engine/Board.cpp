#include "Board.h"

#include <cstdlib>
#include <ctime>
#include <stdexcept>
#include <utility>

#include "RuleSolver.h"

namespace eng {

using eng_priv::BoardSnapshot;
using eng_priv::Cell;
using eng_priv::RuleSolver;

BoardObserver::~BoardObserver() = default;

namespace {

// The board runs the consistency preset to learn whether a position
// contradicts itself, and the search validates its guesses with it.
using eng_priv::presetConsistency;

bool randomSeeded = false;

bool validIndex(int index) { return index >= 0 && index <= 80; }

}  // namespace

Board::Board(BoardObserver* observer) : observer(observer) {
    if (!randomSeeded) {
        randomSeeded = true;
        std::srand(static_cast<unsigned>(std::time(nullptr)));
    }
}

Board::~Board() { clear(); }

const CellInfo* Board::cell(int index) const {
    if (history.empty() || !validIndex(index)) return nullptr;
    return &history.back()->cells[index];
}

int Board::solutionValue(int index) const {
    const BoardSnapshot* s = masterSolution.solution.get();
    if (!s || !validIndex(index)) return 0;
    return s->cells[index].value();
}

int Board::clashingCell(int index, int value) const {
    if (history.empty() || !validIndex(index) || value < 1 || value > 9) return -1;
    const BoardSnapshot& s = *history.back();
    for (int unit : eng_priv::kTuples.of[index])  // the row, the column, the square
        for (int i : eng_priv::kTuples.cells[unit])
            if (i != index && s.cells[i].value() == value) return i;
    return -1;
}

void Board::clear() {
    undone.clear();
    history.clear();
    masterSolution.reset();
    level = lvlCompleted;
    phase = phaseNone;
    attempt = 0;
}

// ---------------------------------------------------------------------------
// Rule passes and value placement

namespace {

// Runs a rule pass; a contradiction composes its description, which is then
// dropped, and the pass counts as failed.
template <typename Pass>
bool guarded(Pass pass) {
    try {
        pass();
        return true;
    } catch (ExCellConflict& conflict) {
        conflict.describe();
    } catch (ExTupleConflict& conflict) {
        conflict.describe();
    }
    return false;
}

}  // namespace

bool Board::runRules(BoardSnapshot& s, RuleSolver& solver, bool& changed) {
    return guarded([&] { changed = solver.applyAll(s); });
}

bool Board::runRulesFromValues(RuleSolver& solver, BoardSnapshot& s) {
    return guarded([&] { solver.applyAllFromValues(s); });
}

bool Board::isConsistent(const BoardSnapshot& s) {
    RuleSolver solver(presetConsistency);
    BoardSnapshot working(s);
    bool changed = false;
    return runRules(working, solver, changed);
}

bool Board::placeValue(BoardSnapshot& s, RuleSolver& solver, int index, int value, int origin) {
    bool changed = false;
    try {
        Cell& target = s.cells[index];
        changed = target.setSinglePotential(value);
        target.setValue(value, origin);
    } catch (ExCellConflict& conflict) {
        conflict.describe();
        return false;
    }
    if (!changed) return true;
    bool rulesChanged = false;
    return runRules(s, solver, rulesChanged);
}

int Board::revealPreset(int level) {
    switch (level) {
    case lvlCompleted:
    case lvlVeryEasy: return eng_priv::presetLineSingles;
    case lvlEasy: return eng_priv::presetSingles;
    case lvlMedium: return eng_priv::presetPairs;
    default: return eng_priv::presetFull;
    }
}

bool Board::placeValueAs(int index, int value, PlaceKind kind) {
    if (history.empty() || !validIndex(index)) return false;

    int origin = originPlayer;
    bool validate = false;
    int propagationPreset = -1;  // -1: the player's pencil-mark rules
    switch (kind) {
    case placeFill:
        origin = originGiven;
        propagationPreset = presetConsistency;
        break;
    case placeReveal:
        origin = originGiven;
        propagationPreset = revealPreset(level);
        break;
    case placeHint: origin = originMove; break;
    case placePlayer: origin = originPlayer; break;
    case placePlayerUserEdit:
        origin = originPlayer;
        validate = true;
        break;
    case placeSearch:
        origin = originMove;
        validate = true;
        break;
    }

    if (validate) {
        RuleSolver validator(presetConsistency);
        BoardSnapshot trial(*history.back());
        if (!placeValue(trial, validator, index, value, origin)) return false;
    }

    RuleSolver propagator = propagationPreset < 0 ? RuleSolver(pencilMarksRules) : RuleSolver(propagationPreset);
    auto next = history.back()->copy();
    if (!placeValue(*next, propagator, index, value, origin)) return false;
    next->guess = eng_priv::Guess(index, value);
    history.push_back(std::move(next));
    return true;
}

// ---------------------------------------------------------------------------
// The player's operations

bool Board::setValue(int index, int value) {
    if (history.empty() || !validIndex(index)) return false;
    bool placed = false;
    if (level != lvlUserEdit) {
        const int solutionValue = masterSolution.value(index);
        if (value != solutionValue || solutionValue == 0) {
            if (observer) observer->valueRefused(index, value);
            return false;
        }
        placed = placeValueAs(index, solutionValue, placePlayer);
    } else {
        placed = placeValueAs(index, value, placePlayerUserEdit);
    }
    if (placed) {
        reportCells();
        return true;
    }
    if (observer) observer->valueRefused(index, value);
    return false;
}

bool Board::togglePotential(int index, int value) {
    if (history.empty() || !validIndex(index) || value < 1 || value > 9) return false;
    BoardSnapshot& current = *history.back();
    Cell& cell = current.cells[index];

    if (!cell.isPotential(value)) {
        // A filled cell's value is its only candidate; nothing is added to it.
        if (cell.value() != 0) {
            if (observer) observer->potentialRefused(index, value);
            return false;
        }
        cell.addPotential(value);
        reportCells();
        return true;
    }

    auto refuse = [&]() {
        if (observer) observer->potentialRefused(index, value);
        return false;
    };

    if (level != lvlUserEdit || history.size() < 2) {
        if (level != lvlUserEdit && value == masterSolution.value(index)) return refuse();
        // A removal that would leave the cell without candidates is refused
        // and the cell keeps the value.
        const Cell before = cell;
        try {
            cell.removePotential(value, true);
        } catch (ExCellConflict& conflict) {
            conflict.describe();
            cell = before;
            return refuse();
        }
        reportCells();
        return true;
    }

    auto next = current.copy();
    try {
        next->cells[index].removePotential(value, true);
    } catch (ExCellConflict& conflict) {
        conflict.describe();
        return refuse();
    }
    if (!isConsistent(*next)) return refuse();
    RuleSolver solver(pencilMarksRules);
    bool changed = false;
    if (!runRules(*next, solver, changed)) return refuse();
    next->guess = current.guess;
    history.push_back(std::move(next));
    reportCells();
    return true;
}

bool Board::placeMove(int index, int value) {
    if (history.empty() || !validIndex(index) || history.back()->cells[index].value() != 0) return false;
    if (level != lvlUserEdit && (value == 0 || value != masterSolution.value(index))) return false;
    if (!placeValueAs(index, value, level == lvlUserEdit ? placeSearch : placeHint)) return false;
    reportCells();
    return true;
}

bool Board::removePotentials(const std::vector<std::pair<int, int>>& marks) {
    if (history.empty()) return false;
    const bool inPlace = level != lvlUserEdit || history.size() < 2;
    auto next = history.back()->copy();
    try {
        for (const auto& [index, value] : marks) {
            if (!validIndex(index) || value < 1 || value > 9 || next->cells[index].value() != 0) return false;
            if (level != lvlUserEdit && value == masterSolution.value(index)) return false;
            next->cells[index].removePotential(value, false);
        }
    } catch (ExCellConflict& conflict) {
        conflict.describe();
        return false;
    }
    if (!inPlace) {
        RuleSolver solver(pencilMarksRules);
        bool changed = false;
        if (!isConsistent(*next) || !runRules(*next, solver, changed)) return false;
    }
    next->guess = history.back()->guess;
    if (inPlace)
        history.back() = std::move(next);
    else
        history.push_back(std::move(next));
    reportCells();
    return true;
}

void Board::setPencilMarksRules(std::list<Rules> rules) {
    pencilMarksRules = std::move(rules);
    applyRulesList(pencilMarksRules);
}

void Board::applyPencilMarksRule(Rules rule) { applyRulesList({rule}); }

void Board::applyRulesList(std::list<Rules> rules) {
    if (history.size() < 2) return;
    auto next = history.back()->copy();
    RuleSolver solver(rules);
    bool changed = false;
    if (runRules(*next, solver, changed) && changed) {
        next->guess = history.back()->guess;
        history.push_back(std::move(next));
        reportCells();
    }
}

bool Board::isComplete() { return !history.empty() && history.back()->isFull(); }

void Board::cellViews(std::vector<CellInfo*>& out) {
    out.clear();
    if (history.empty()) return;
    out.reserve(81);
    for (Cell& c : history.back()->cells) out.push_back(&c);
}

void Board::reportCells() {
    if (phase != phasePlaying || !observer || history.empty()) return;
    std::vector<CellInfo*> cells;
    cellViews(cells);
    observer->cellsChanged(cells);
}

void Board::reportNoMoreMoves() {
    if (!observer) return;
    std::vector<CellInfo*> cells;
    cellViews(cells);
    observer->noMoreMoves(cells);
}

// ---------------------------------------------------------------------------
// History

bool Board::retract() {
    if (history.size() < 2) return false;
    undone.push_back(std::move(history.back()));
    history.pop_back();
    reportCells();
    return true;
}

void Board::resetToFirst() {
    if (history.empty()) {
        history.push_back(std::make_unique<BoardSnapshot>());
        return;
    }
    history.resize(1);
}

}  // namespace eng
