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

// The consistency preset: the board runs it to learn whether a position
// contradicts itself, and the search validates its guesses with it.
constexpr int kConsistencyPreset = 4;

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
    const BoardSnapshot* s = masterSolution.solution;
    if (!s || !validIndex(index)) return 0;
    return s->cells[index].value();
}

void Board::clear() {
    while (!undone.empty()) {
        delete undone.back();
        undone.pop_back();
    }
    while (!history.empty()) {
        delete history.back();
        history.pop_back();
    }
    masterSolution.reset();
    level = 0;
    phase = 0;
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
    RuleSolver solver(kConsistencyPreset);
    BoardSnapshot* working = s.copy();
    bool changed = false;
    const bool result = runRules(*working, solver, changed);
    delete working;
    return result;
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

int Board::revealPreset() const {
    switch (level) {
    case lvlCompleted:
    case lvlVeryEasy: return 0;
    case lvlEasy: return 1;
    case lvlMedium: return 2;
    default: return 3;
    }
}

bool Board::placeValueAs(int index, int value, PlaceKind kind) {
    if (history.empty() || !validIndex(index)) return false;

    int origin = originPlayer;
    bool validate = false;
    std::list<Rules> propagation = pencilMarksRules;
    switch (kind) {
    case placeFill:
        origin = originGiven;
        propagation = RuleSolver::preset(kConsistencyPreset);
        break;
    case placeReveal:
        origin = originGiven;
        propagation = RuleSolver::preset(revealPreset());
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
        RuleSolver validator(kConsistencyPreset);
        BoardSnapshot* trial = history.back()->copy();
        const bool ok = placeValue(*trial, validator, index, value, origin);
        delete trial;
        if (!ok) return false;
    }

    RuleSolver propagator(std::move(propagation));
    BoardSnapshot* next = history.back()->copy();
    if (!placeValue(*next, propagator, index, value, origin)) {
        delete next;
        return false;
    }
    next->guess = eng_priv::Guess(index, value);
    history.push_back(next);
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

    BoardSnapshot* next = current.copy();
    try {
        next->cells[index].removePotential(value, true);
    } catch (ExCellConflict& conflict) {
        conflict.describe();
        delete next;
        return refuse();
    }
    if (!isConsistent(*next)) {
        delete next;
        return refuse();
    }
    RuleSolver solver(pencilMarksRules);
    bool changed = false;
    if (!runRules(*next, solver, changed)) {
        delete next;
        return refuse();
    }
    next->guess = current.guess;
    history.push_back(next);
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
    BoardSnapshot* next = history.back()->copy();
    RuleSolver solver(std::move(rules));
    bool changed = false;
    if (runRules(*next, solver, changed) && changed) {
        next->guess = history.back()->guess;
        history.push_back(next);
        reportCells();
    } else {
        delete next;
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
    if (phase != 3 || !observer || history.empty()) return;
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
    undone.push_back(history.back());
    history.pop_back();
    reportCells();
    return true;
}

void Board::resetToFirst() {
    if (history.empty()) {
        history.push_back(new BoardSnapshot());
        return;
    }
    while (history.size() > 1) {
        delete history.back();
        history.pop_back();
    }
}

}  // namespace eng
