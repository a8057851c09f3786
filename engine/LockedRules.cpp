// Locked candidates: a value confined to the segment where a line crosses a
// square cannot stand anywhere else in the other tuple.
#include <algorithm>

#include "RuleSolver.h"

namespace eng_priv {

namespace {

constexpr int kLines[3][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}};
constexpr int kColumns[3][3] = {{0, 3, 6}, {1, 4, 7}, {2, 5, 8}};

}  // namespace

// For each of the three segments segs[k] of tuple t: the values that stand
// in t only in that segment, and in at least two of its cells. None for a
// segment with no marked cell. The removals these lead to lie outside t, so
// all three are found before any is applied.
void RuleSolver::lockedValues(int t, const int (&segs)[3][3], Mask (&out)[3]) const {
    const int* tc = kTuples.cells[t];
    Mask all[3], twice[3];
    bool marked[3];
    for (int k = 0; k < 3; ++k) {
        const Cell &a = cells[tc[segs[k][0]]], &b = cells[tc[segs[k][1]]], &c = cells[tc[segs[k][2]]];
        all[k] = a.mask() | b.mask() | c.mask();
        twice[k] = (a.mask() & b.mask()) | (a.mask() & c.mask()) | (b.mask() & c.mask());
        marked[k] = a.isModified() || b.isModified() || c.isModified();
    }
    for (int k = 0; k < 3; ++k)
        out[k] = marked[k] ? twice[k] & ~(all[(k + 1) % 3] | all[(k + 2) % 3]) : 0;
}

bool RuleSolver::removeLocked(int t, const int (&segs)[3][3], int kind) {
    const int* tc = kTuples.cells[t];
    Mask locked[3];
    lockedValues(t, segs, locked);
    bool changed = false;
    for (int k = 0; k < 3; ++k) {
        const int* seg = segs[k];
        const int target = kTuples.of[tc[seg[0]]][kind];
        for (Mask m = locked[k]; m; m &= m - 1)
            changed = removeFromOthers(target, m & (~m + 1), tc[seg[0]], tc[seg[1]], tc[seg[2]]) || changed;
    }
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
        changed = removeLocked(t, kLines, 2) || changed;
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
        changed = removeLocked(t, kLines, 0) || changed;
        changed = removeLocked(t, kColumns, 1) || changed;
        if (clock == before) cleanAt[checkLockedSquares][t] = clock;
    }
    return changed;
}

}  // namespace eng_priv
