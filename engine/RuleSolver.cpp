#include "RuleSolver.h"

#include <utility>

namespace eng_priv {

using namespace eng;

std::list<Rules> RuleSolver::preset(int index) {
    switch (index) {
    case 0: return {ruleSinglesRowColOnly};
    case 1: return {ruleSingles};
    case 2: return {ruleSingles, ruleDoubles};
    case 3:
        return {ruleSingles,       ruleHiddenSingles, ruleDoubles,      ruleHiddenDoubles,
                ruleTriples,       ruleQuads,         ruleTransitiveDoubles, ruleLockedByRows,
                ruleLockedByCols,  ruleLockedBySquares};
    case 4: return {ruleSingles, ruleDoubles, ruleTransitiveDoubles, ruleTriples};
    default: return {};
    }
}

RuleSolver::RuleSolver(int presetIndex) : ruleList(preset(presetIndex)) {}

RuleSolver::RuleSolver(std::list<Rules> rules) : ruleList(std::move(rules)) {}

// The `modified` marks are left as the rules set them: a later pass may run a
// different rule list on a copy of this position, and clearing marks here would
// let that pass skip tuples it has never examined.
bool RuleSolver::applyAll(BoardSnapshot& s) {
    snapshot = &s;
    bindTuples();
    return runPass();
}

void RuleSolver::applyAllFromValues(BoardSnapshot& s) {
    snapshot = &s;
    bindTuples();
    for (Cell& cell : s.cells) {
        const int value = cell.value();
        const int origin = cell.origin();
        cell.reset(cell.index());
        if (value != 0) {
            cell.setSinglePotential(value);
            cell.setValue(value, origin);
        }
    }
    runPass();
}

// Walks the list; every success restarts the walk at the first rule, so the
// pass ends with a full sweep in which nothing changes.
bool RuleSolver::runPass() {
    bool changed = false;
    auto it = ruleList.begin();
    while (it != ruleList.end()) {
        if (applyRule(*it)) {
            changed = true;
            it = ruleList.begin();
        } else {
            ++it;
        }
    }
    return changed;
}

void RuleSolver::bindTuples() {
    for (int k = 0; k < 9; ++k) {
        rows[k].init(k);
        columns[k].init(k);
        squares[k].init(k);
    }
    for (Cell& cell : snapshot->cells) {
        const int i = cell.index();
        if (i < 0 || i > 80) continue;
        const int r = i / 9, c = i % 9;
        rows[r].addCell(&cell);
        columns[c].addCell(&cell);
        squares[(r / 3) * 3 + c / 3].addCell(&cell);
    }
}

bool RuleSolver::applyRule(Rules rule) {
    switch (static_cast<int>(rule)) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 7: return applySingles(rule);
    case 8: return applyDoubles();
    case 16: return applyTransitiveDoubles();
    case 32:
    case 64: return applyTriples();
    case 128: return applyLockedByRows();
    case 256: return applyLockedByCols();
    case 512: return applyLockedBySquares();
    case 1024: return applyHidden(1);
    case 2048: return applyHidden(2);
    case 4096: return applyHidden(3);
    case 8192: return applyHidden(4);
    default: return false;
    }
}

// A cell with a single potential value removes it from the other cells of the
// tuples the mask selects (1 row, 2 column, 4 square), in that order.
bool RuleSolver::applySingles(int mask) {
    bool changed = false;
    for (Cell& cell : snapshot->cells) {
        if (cell.potentialCount != 1) continue;
        const int i = cell.index();
        if (i < 0 || i > 80) continue;
        const int v = cell.firstCommonPotential(cell);
        const int r = i / 9, c = i % 9;
        if (mask & 1) changed = rows[r].removeFromOthers(v, &cell) || changed;
        if (mask & 2) changed = columns[c].removeFromOthers(v, &cell) || changed;
        if (mask & 4) changed = squares[(r / 3) * 3 + c / 3].removeFromOthers(v, &cell) || changed;
    }
    return changed;
}

}  // namespace eng_priv
