// Locked candidates: a value confined to the segment where a line crosses a
// square cannot stand anywhere else in the other tuple.
#include <algorithm>

#include "RuleSolver.h"

namespace eng_priv {

namespace {

constexpr int kLines[3][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}};
constexpr int kColumns[3][3] = {{0, 3, 6}, {1, 4, 7}, {2, 5, 8}};

}  // namespace

// The values that stand, in tuple t, only in the segment at positions seg, and
// in at least two of its cells. None when no cell of the segment is marked.
Mask RuleSolver::lockedValues(int t, const int (&seg)[3]) const {
    const int* tc = kTuples.cells[t];
    const Cell &a = cells[tc[seg[0]]], &b = cells[tc[seg[1]]], &c = cells[tc[seg[2]]];
    if (!a.isModified() && !b.isModified() && !c.isModified()) return 0;
    Mask outside = 0;
    for (int pos = 0; pos < 9; ++pos)
        if (pos != seg[0] && pos != seg[1] && pos != seg[2]) outside |= cells[tc[pos]].mask();
    const Mask twice = (a.mask() & b.mask()) | (a.mask() & c.mask()) | (b.mask() & c.mask());
    return twice & ~outside;
}

bool RuleSolver::removeLocked(int t, const int (&seg)[3], int target) {
    const int* tc = kTuples.cells[t];
    bool changed = false;
    for (Mask m = lockedValues(t, seg); m; m &= m - 1)
        changed = removeFromOthers(target, m & (~m + 1), tc[seg[0]], tc[seg[1]], tc[seg[2]]) || changed;
    return changed;
}

// A line is examined again only after it or a square it crosses changed.
// A value locked into a segment of a line leaves the rest of the segment's square.
bool RuleSolver::applyLockedInLines(int firstLine, Check check) {
    bool changed = false;
    for (int t = firstLine; t < firstLine + 9; ++t) {
        if (!anyModified(t)) continue;
        unsigned last = changedAt[t];
        for (const auto& seg : kLines) last = std::max(last, changedAt[kTuples.of[kTuples.cells[t][seg[0]]][2]]);
        if (last <= cleanAt[check][t]) continue;
        const unsigned before = clock;
        for (const auto& seg : kLines)
            changed = removeLocked(t, seg, kTuples.of[kTuples.cells[t][seg[0]]][2]) || changed;
        if (clock == before) cleanAt[check][t] = clock;
    }
    return changed;
}

// A value locked into a row or column segment of a square leaves the rest of
// that row or column.
bool RuleSolver::applyLockedBySquares() {
    bool changed = false;
    for (int t = kSquaresFirst; t < kTupleCount; ++t) {
        if (!anyModified(t)) continue;
        const int* tc = kTuples.cells[t];
        unsigned last = changedAt[t];
        for (int k = 0; k < 3; ++k)
            last = std::max({last, changedAt[kTuples.of[tc[k * 3]][0]], changedAt[kTuples.of[tc[k]][1]]});
        if (last <= cleanAt[checkLockedSquares][t]) continue;
        const unsigned before = clock;
        for (const auto& seg : kLines) changed = removeLocked(t, seg, kTuples.of[tc[seg[0]]][0]) || changed;
        for (const auto& seg : kColumns) changed = removeLocked(t, seg, kTuples.of[tc[seg[0]]][1]) || changed;
        if (clock == before) cleanAt[checkLockedSquares][t] = clock;
    }
    return changed;
}

}  // namespace eng_priv
