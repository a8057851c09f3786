#include "RuleSolver.h"

#include <algorithm>
#include <cstring>

namespace eng_priv {

using namespace eng;

namespace {

constexpr TupleTable makeTuples() {
    TupleTable t{};
    for (int i = 0; i < 81; ++i) {
        const int r = i / 9, c = i % 9, s = (r / 3) * 3 + c / 3;
        t.cells[r][c] = i;
        t.cells[kColumnsFirst + c][r] = i;
        t.cells[kSquaresFirst + s][(r % 3) * 3 + c % 3] = i;
        t.of[i][0] = r;
        t.of[i][1] = kColumnsFirst + c;
        t.of[i][2] = kSquaresFirst + s;
        for (int tuple : t.of[i]) t.bits[tuple][i >> 6] |= 1ull << (i & 63);
    }
    return t;
}

const Rules kPresets[5][10] = {
    {ruleSinglesRowColOnly},
    {ruleSingles},
    {ruleSingles, ruleDoubles},
    {ruleSingles, ruleHiddenSingles, ruleDoubles, ruleHiddenDoubles, ruleTriples, ruleQuads,
     ruleTransitiveDoubles, ruleLockedByRows, ruleLockedByCols, ruleLockedBySquares},
    {ruleSingles, ruleDoubles, ruleTransitiveDoubles, ruleTriples},
};
const int kPresetSizes[5] = {1, 1, 2, 10, 4};

}  // namespace

constexpr TupleTable kTuplesValue = makeTuples();
const TupleTable kTuples = kTuplesValue;

std::list<Rules> RuleSolver::preset(int index) {
    if (index < presetLineSingles || index > presetConsistency) return {};
    return std::list<Rules>(kPresets[index], kPresets[index] + kPresetSizes[index]);
}

RuleSolver::RuleSolver(int presetIndex) {
    if (presetIndex >= presetLineSingles && presetIndex <= presetConsistency)
        ruleList.assign(kPresets[presetIndex], kPresets[presetIndex] + kPresetSizes[presetIndex]);
}

RuleSolver::RuleSolver(const std::list<Rules>& rules) : ruleList(rules.begin(), rules.end()) {}

// The `modified` marks are left as the rules set them: a later pass may run a
// different rule list on a copy of this position, and clearing marks here would
// let that pass skip tuples it has never examined.
bool RuleSolver::applyAll(BoardSnapshot& s) {
    begin(s);
    return runPass();
}

void RuleSolver::applyAllFromValues(BoardSnapshot& s) {
    for (Cell& cell : s.cells) {
        const int value = cell.value();
        const int origin = cell.origin();
        cell.reset(cell.index());
        if (value != 0) {
            cell.setSinglePotential(value);
            cell.setValue(value, origin);
        }
    }
    begin(s);
    runPass();
}

// Nothing is clean when a pass starts: the position may have changed since
// any earlier pass.
void RuleSolver::begin(BoardSnapshot& s) {
    cells = s.cells;
    clock = 1;
    std::fill(std::begin(changedAt), std::end(changedAt), 1u);
    std::memset(cleanAt, 0, sizeof cleanAt);
    for (Survey& s : surveys) s.at = 0;
    for (Counts& c : counts) c.at = 0;
    pairCells[0] = pairCells[1] = 0;
    touched = 0;
    for (int i = 0; i < 81; ++i)
        if (isPair(i)) pairCells[i >> 6] |= 1ull << (i & 63);
}

// Walks the list; every success restarts the walk at the first rule, so the
// pass ends with a full sweep in which nothing changes.
bool RuleSolver::runPass() {
    bool changed = false;
    size_t k = 0;
    while (k < ruleList.size()) {
        if (applyRule(ruleList[k])) {
            changed = true;
            k = 0;
        } else {
            ++k;
        }
    }
    return changed;
}

bool RuleSolver::applyRule(Rules rule) {
    switch (rule) {
    case ruleSinglesRowOnly:
    case ruleSinglesColOnly:
    case ruleSinglesRowColOnly:
    case ruleSinglesSquareOnly:
    case ruleSingles: return applySingles(rule);
    case ruleDoubles: return applyDoubles();
    case ruleTransitiveDoubles: return applyTransitiveDoubles();
    case ruleTriples:
    case ruleQuads: return applyTriples();
    case ruleLockedByRows: return applyLockedInLines(0, checkLockedRows);
    case ruleLockedByCols: return applyLockedInLines(kColumnsFirst, checkLockedCols);
    case ruleLockedBySquares: return applyLockedBySquares();
    case ruleHiddenSingles: return applyHidden(1);
    case ruleHiddenDoubles: return applyHidden(2);
    case ruleHiddenTriples: return applyHidden(3);
    case ruleHiddenQuads: return applyHidden(4);
    }
    return false;
}

bool RuleSolver::removeNow(int cell, Mask values) {
    noteChange(cell);
    cells[cell].removeValues(values);
    if (isPair(cell)) pairCells[cell >> 6] |= 1ull << (cell & 63);
    return true;
}

bool RuleSolver::keepOnly(int cell, Mask values) { return remove(cell, ~values & kAllValues); }

// Called just before a cell loses candidates; the caller sets the cell's pair
// bit again once the removal is done (a contradiction ends the pass anyway).
void RuleSolver::noteChange(int cell) {
    ++clock;
    for (int t : kTuples.of[cell]) {
        changedAt[t] = clock;
        touched |= 1u << t;
    }
    pairCells[cell >> 6] &= ~(1ull << (cell & 63));
}

bool RuleSolver::removeFromOthers(int tuple, Mask value, int keep1, int keep2, int keep3) {
    bool changed = false;
    for (int i : kTuples.cells[tuple])
        if (i != keep1 && i != keep2 && i != keep3) changed = remove(i, value) || changed;
    return changed;
}

bool RuleSolver::isPair(int cell) const { return cells[cell].value() == 0 && cells[cell].count() == 2; }

// The first index from `from` on in the set, 81 when there is none.
int RuleSolver::nextIn(const unsigned long long (&set)[2], int from) {
    if (from > 80) return 81;
    for (int word = from >> 6; word < 2; ++word) {
        unsigned long long bits = set[word];
        if (word == from >> 6) bits &= ~0ull << (from & 63);
        if (bits) return word * 64 + __builtin_ctzll(bits);
    }
    return 81;
}

bool RuleSolver::anyModified(int tuple) const {
    for (int i : kTuples.cells[tuple])
        if (cells[i].isModified()) return true;
    return false;
}

// A tuple none of whose cells changed since `since` was examined, all through
// the rule's run, in one state in which the rule found nothing to remove.
// `kinds` selects rows (1), columns (2) and squares (4).
void RuleSolver::markCleanIfUnchanged(Check check, unsigned since, int kinds) {
    for (int t = 0; t < kTupleCount; ++t)
        if ((kinds & (1 << (t / 9))) && changedAt[t] <= since) cleanAt[check][t] = clock;
}

// A cell with a single potential value removes it from the other cells of the
// tuples the mask selects (1 row, 2 column, 4 square), in that order.
// A tuple in which no single's value stands in another cell is clean as it
// is. Only cells of the other tuples are visited; that set grows with every
// tuple a removal touches, so the visits keep the order of a full scan.
bool RuleSolver::applySingles(int mask) {
    const unsigned start = clock;
    unsigned seen = clock;
    unsigned long long dirty[2] = {};
    unsigned selected = 0;
    for (int kind = 0; kind < 3; ++kind)
        if (mask & (1 << kind)) selected |= 0x1FFu << (9 * kind);
    touched = 0;
    unsigned checkedAt[kTupleCount] = {};  // when a tuple was last found to have work
    // Marks the tuple clean when no single's value stands in another of its cells.
    auto hasWork = [&](int t) {
        if (checkedAt[t] >= changedAt[t]) return true;
        Mask once = 0, twice = 0, singles = 0;
        for (int i : kTuples.cells[t]) {
            const Mask m = cells[i].mask();
            twice |= once & m;
            once |= m;
            if (countOf(m) == 1) singles |= m;
        }
        if (singles & twice) {
            checkedAt[t] = clock;
            return true;
        }
        cleanAt[checkSingles][t] = clock;
        return false;
    };
    for (unsigned tuples = selected; tuples; tuples &= tuples - 1) {
        const int t = __builtin_ctz(tuples);
        if (isClean(checkSingles, t) || !hasWork(t)) continue;
        dirty[0] |= kTuples.bits[t][0];
        dirty[1] |= kTuples.bits[t][1];
    }
    bool changed = false;
    for (int i = nextIn(dirty, 0); i < 81; i = nextIn(dirty, i + 1)) {
        const Mask m = cells[i].mask();
        if (countOf(m) != 1) continue;
        for (int kind = 0; kind < 3; ++kind) {
            const int t = kTuples.of[i][kind];
            if (!(mask & (1 << kind)) || isClean(checkSingles, t) || !hasWork(t)) continue;
            changed = removeFromOthers(t, m, i) || changed;
        }
        if (clock != seen) {
            for (unsigned t = touched & selected; t; t &= t - 1) {
                dirty[0] |= kTuples.bits[__builtin_ctz(t)][0];
                dirty[1] |= kTuples.bits[__builtin_ctz(t)][1];
            }
            touched = 0;
            seen = clock;
        }
    }
    markCleanIfUnchanged(checkSingles, start, mask);
    return changed;
}

}  // namespace eng_priv
