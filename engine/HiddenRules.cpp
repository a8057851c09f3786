// Hidden subsets: n values that can only go into the same n cells of a tuple
// leave those cells nothing else.
#include <list>

#include "Conflicts.h"
#include "RuleSolver.h"

namespace eng_priv {

namespace {

// The n-position subsets of a tuple as 9-bit masks, in lexicographic order of
// their positions.
struct Subsets {
    unsigned masks[5][126];
    int size[5];
};

constexpr Subsets makeSubsets() {
    Subsets s{};
    for (int n = 1; n <= 4; ++n) {
        int pos[4] = {};
        for (int k = 0; k < n; ++k) pos[k] = k;
        while (true) {
            unsigned m = 0;
            for (int k = 0; k < n; ++k) m |= 1u << pos[k];
            s.masks[n][s.size[n]++] = m;
            int k = n - 1;
            while (k >= 0 && pos[k] == 9 - n + k) --k;
            if (k < 0) break;
            ++pos[k];
            for (int j = k + 1; j < n; ++j) pos[j] = pos[j - 1] + 1;
        }
    }
    return s;
}

constexpr Subsets kSubsets = makeSubsets();

const char* const kTupleNames[3] = {"row", "column", "square"};

}  // namespace

// The values that stand in at least one and at most n cells of a tuple, all
// of them empty with two or more candidates: the only values a subset of n
// cells can hide. Counts are kept per value as bit slices.
Mask RuleSolver::hideableValues(int n, int t) {
    Counts& c = counts[t];
    if (c.at != changedAt[t]) {
        c.at = changedAt[t];
        for (Mask& m : c.atLeast) m = 0;
        c.settled = 0;
        for (int i : kTuples.cells[t]) {
            const Cell& cell = cells[i];
            const Mask m = cell.mask();
            if (cell.value() != 0 || countOf(m) == 1) {
                c.settled |= m;
                continue;
            }
            for (int k = 5; k > 1; --k) c.atLeast[k] |= c.atLeast[k - 1] & m;
            c.atLeast[1] |= m;
        }
    }
    return c.atLeast[1] & ~c.atLeast[n + 1] & ~c.settled;
}

bool RuleSolver::applyHidden(int n) {
    const Check check = static_cast<Check>(checkHidden + n - 1);
    bool changed = false;
    for (int k = 0; k < 9; ++k) {
        for (int t : {k, kColumnsFirst + k, kSquaresFirst + k}) {
            if (!anyModified(t) || isClean(check, t)) continue;
            if (countOf(hideableValues(n, t)) < n) {
                cleanAt[check][t] = clock;
                continue;
            }
            const unsigned before = clock;
            changed = hiddenIn(n, t) || changed;
            if (clock == before) cleanAt[check][t] = clock;
        }
    }
    return changed;
}

// Tries the position subsets in order. Only empty cells with two or more
// candidates can be chosen, so a value that stands in a settled cell, or in
// more than n cells, is never hidden; with fewer than n other values no subset
// can be.
const RuleSolver::Survey& RuleSolver::survey(int t) {
    Survey& s = surveys[t];
    if (s.at == changedAt[t]) return s;
    const int* tc = kTuples.cells[t];
    s.at = changedAt[t];
    s.open = 0;
    for (unsigned& w : s.where) w = 0;
    for (int pos = 0; pos < 9; ++pos) {
        const Cell& cell = cells[tc[pos]];
        if (cell.value() == 0 && cell.count() != 1) s.open |= 1u << pos;
        for (Mask m = cell.mask(); m; m &= m - 1) s.where[__builtin_ctz(m)] |= 1u << pos;
    }
    return s;
}

bool RuleSolver::hiddenIn(int n, int t) {
    const int* tc = kTuples.cells[t];
    const Survey* s = &survey(t);
    Mask hideable = 0;
    auto findHideable = [&] {
        hideable = 0;
        for (int v = 0; v < 9; ++v) {
            const unsigned w = s->where[v];
            if (w && !(w & ~s->open) && countOf(w) <= n) hideable |= 1u << v;
        }
    };
    findHideable();
    bool changed = false;
    for (int k = 0; k < kSubsets.size[n]; ++k) {
        if (countOf(hideable) < n) break;
        const unsigned chosen = kSubsets.masks[n][k];
        if (chosen & ~s->open) continue;
        Mask values = 0;
        for (Mask m = hideable; m; m &= m - 1) {
            const int v = __builtin_ctz(m);
            if (!(s->where[v] & ~chosen)) values |= 1u << v;
        }
        if (countOf(values) < n) continue;
        if (countOf(values) > n) {
            std::list<int> valueList, positions;
            for (int v = 1; v <= 9; ++v)
                if (values & bitOf(v)) valueList.push_back(v);
            for (int pos = 0; pos < 9; ++pos)
                if (chosen & (1u << pos)) positions.push_back(pos);
            throw eng::ExTupleConflict(eng::TupleConflict::tooManyValues, kTupleNames[t / 9], t % 9,
                                       valueList, positions);
        }
        const unsigned before = clock;
        for (int pos = 0; pos < 9; ++pos)
            if (chosen & (1u << pos)) changed = keepOnly(tc[pos], values) || changed;
        if (clock != before) {
            s = &survey(t);
            findHideable();
        }
    }
    return changed;
}

}  // namespace eng_priv
