// Naked pairs, naked triples and transitive doubles.
#include <list>

#include "Conflicts.h"
#include "RuleSolver.h"

namespace eng_priv {

namespace {

const char* const kTupleNames[3] = {"row", "column", "square"};

// The line two or three cells share, or -1: their row, else their column.
int sharedLine(const Cell& a, const Cell& b) {
    if (a.row() == b.row()) return a.row();
    if (a.column() == b.column()) return kColumnsFirst + a.column();
    return -1;
}

}  // namespace

// Two empty cells with the same two candidates clear them from the rest of the
// row or column they share, and from their square. The pair cells are found
// in index order from a set that follows every removal.
bool RuleSolver::applyDoubles() {
    const unsigned start = clock;
    bool changed = false;
    for (int a = nextPair(0); a < 80; a = nextPair(a + 1)) {
        const Cell& ca = cells[a];
        for (int b = nextPair(a + 1); b < 81; b = nextPair(b + 1)) {
            const Cell& cb = cells[b];
            if (ca.mask() != cb.mask()) continue;
            const Mask p = ca.mask() & (~ca.mask() + 1), q = ca.mask() & ~p;
            const int line = sharedLine(ca, cb);
            if (line >= 0 && !isClean(checkPairs, line)) {
                changed = removeFromOthers(line, p, a, b) || changed;
                changed = removeFromOthers(line, q, a, b) || changed;
            }
            const int square = kSquaresFirst + ca.square();
            if (ca.square() == cb.square() && !isClean(checkPairs, square)) {
                changed = removeFromOthers(square, p, a, b) || changed;
                changed = removeFromOthers(square, q, a, b) || changed;
            }
        }
    }
    markCleanIfUnchanged(checkPairs, start);
    return changed;
}

// A cell with three candidates and the cells of its tuple confined to those
// three values: exactly three such cells clear the values from the others,
// more than three are a contradiction.
bool RuleSolver::applyTriples() {
    bool changed = false;
    for (int k = 0; k < 9; ++k) {
        for (int t : {k, kColumnsFirst + k, kSquaresFirst + k}) {
            if (!anyModified(t) || isClean(checkTriples, t)) continue;
            const unsigned before = clock;
            const int* tc = kTuples.cells[t];
            for (int pos = 0; pos < 9; ++pos) {
                const Mask m = cells[tc[pos]].mask();
                if (countOf(m) != 3) continue;
                unsigned inside = 0;
                for (int j = 0; j < 9; ++j)
                    if (!(cells[tc[j]].mask() & ~m)) inside |= 1u << j;
                const int n = countOf(inside);
                if (n < 3) continue;
                if (n == 3) {
                    for (int j = 0; j < 9; ++j)
                        if (!(inside & (1u << j))) changed = remove(tc[j], m) || changed;
                    continue;
                }
                std::list<int> valueList, positions;
                for (int v = 1; v <= 9; ++v)
                    if (m & bitOf(v)) valueList.push_back(v);
                for (int j = 0; j < 9; ++j)
                    if (inside & (1u << j)) positions.push_back(j);
                throw eng::ExTupleConflict(eng::TupleConflict::tooManyCells, kTupleNames[t / 9], t % 9,
                                           valueList, positions);
            }
            if (clock == before) cleanAt[checkTriples][t] = clock;
        }
    }
    return changed;
}

// Three empty cells {x,y}, {y,z}, {x,z} linked pairwise by one value.
bool RuleSolver::applyTransitiveDoubles() {
    const unsigned start = clock;
    bool changed = false;
    for (int a = nextPair(0); a < 81; a = nextPair(a + 1)) {
        const Cell& ca = cells[a];
        for (int b = nextPair(a + 1); b < 81; b = nextPair(b + 1)) {
            const Cell& cb = cells[b];
            const Mask y = ca.mask() & cb.mask();
            if (countOf(y) != 1) continue;
            for (int c = nextPair(b + 1); c < 81; c = nextPair(c + 1)) {
                const Cell& cc = cells[c];
                const Mask z = cb.mask() & cc.mask(), x = cc.mask() & ca.mask();
                if (countOf(z) != 1 || cb.mask() == cc.mask() || countOf(x) != 1) continue;
                if (x == y || y == z || x == z) continue;
                const Mask xyz[3] = {x, y, z};
                int line = sharedLine(ca, cb);
                if (line >= 0 && line != sharedLine(cb, cc)) line = -1;
                if (line >= 0 && !isClean(checkTransitive, line))
                    for (Mask v : xyz) changed = removeFromOthers(line, v, a, b, c) || changed;
                const int square = kSquaresFirst + ca.square();
                if (ca.square() == cb.square() && cb.square() == cc.square() &&
                    !isClean(checkTransitive, square))
                    for (Mask v : xyz) changed = removeFromOthers(square, v, a, b, c) || changed;
            }
        }
    }
    markCleanIfUnchanged(checkTransitive, start);
    return changed;
}

}  // namespace eng_priv
