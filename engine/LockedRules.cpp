// Locked candidates: a value confined to the segment where a line crosses a
// square cannot stand anywhere else in the other tuple.
#include "RuleSolver.h"

namespace eng_priv {

void Tuple::findLockedValues(int p1, int p2, int p3, Cell*& a, Cell*& b, Cell*& c,
                             std::list<int>& values) const {
    a = cells[p1];
    b = cells[p2];
    c = cells[p3];
    values.clear();
    if (!a->modified && !b->modified && !c->modified) return;
    for (int v = 1; v <= 9; ++v) {
        int insideCount = 0, outsideCount = 0;
        for (int pos = 0; pos < static_cast<int>(cells.size()); ++pos) {
            if (!cells[pos]->potential[v - 1]) continue;
            if (pos == p1 || pos == p2 || pos == p3) ++insideCount;
            else ++outsideCount;
        }
        if (outsideCount == 0 && insideCount >= 2) values.push_back(v);
    }
}

namespace {

constexpr int kLines[3][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}};
constexpr int kColumns[3][3] = {{0, 3, 6}, {1, 4, 7}, {2, 5, 8}};

// A value locked into a segment of a line leaves the rest of the segment's square.
template <typename Line>
bool lockedInLines(Line (&lines)[9], Square (&squares)[9]) {
    bool changed = false;
    std::list<int> values;
    Cell *a, *b, *c;
    for (Line& line : lines) {
        if (line.cells.size() != 9 || !line.anyModified()) continue;
        for (const auto& seg : kLines) {
            line.findLockedValues(seg[0], seg[1], seg[2], a, b, c, values);
            for (int v : values) changed = squares[a->square()].removeFromOthers(v, a, b, c) || changed;
        }
    }
    return changed;
}

}  // namespace

bool RuleSolver::applyLockedByRows() { return lockedInLines(rows, squares); }

bool RuleSolver::applyLockedByCols() { return lockedInLines(columns, squares); }

bool RuleSolver::applyLockedBySquares() {
    bool changed = false;
    std::list<int> values;
    Cell *a, *b, *c;
    for (Square& square : squares) {
        if (square.cells.size() != 9 || !square.anyModified()) continue;
        for (const auto& seg : kLines) {
            square.findLockedValues(seg[0], seg[1], seg[2], a, b, c, values);
            for (int v : values) changed = rows[a->row()].removeFromOthers(v, a, b, c) || changed;
        }
        for (const auto& seg : kColumns) {
            square.findLockedValues(seg[0], seg[1], seg[2], a, b, c, values);
            for (int v : values) changed = columns[a->column()].removeFromOthers(v, a, b, c) || changed;
        }
    }
    return changed;
}

}  // namespace eng_priv
