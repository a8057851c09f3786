// Naked pairs, naked triples and transitive doubles.
#include <list>

#include "Conflicts.h"
#include "RuleSolver.h"

namespace eng_priv {

namespace {

bool sameFlags(const Cell& a, const Cell& b) {
    for (int i = 0; i < 9; ++i)
        if (a.potential[i] != b.potential[i]) return false;
    return true;
}

bool emptyPair(const Cell& c) { return c.value() == 0 && c.potentialCount == 2; }

bool within(const Cell& cell, const bool values[9]) {
    for (int i = 0; i < 9; ++i)
        if (cell.potential[i] && !values[i]) return false;
    return true;
}

int cellsWithin(const Tuple& tuple, const bool values[9]) {
    int n = 0;
    for (const Cell* cell : tuple.cells) n += within(*cell, values);
    return n;
}

}  // namespace

void Tuple::splitBySubset(const bool values[9], std::list<Cell*>& inside,
                          std::list<Cell*>& outside) const {
    inside.clear();
    outside.clear();
    for (Cell* cell : cells) (within(*cell, values) ? inside : outside).push_back(cell);
}

bool removeValues(const bool values[9], const std::list<Cell*>& cells) {
    bool changed = false;
    for (Cell* cell : cells) {
        bool lost = false;
        for (int i = 0; i < 9; ++i) {
            if (values[i] && cell->potential[i]) {
                cell->potential[i] = false;
                --cell->potentialCount;
                lost = true;
            }
        }
        if (cell->potentialCount < 1) throw eng::ExCellConflict(3, cell->index(), 0);
        if (lost) {
            cell->modified = true;
            changed = true;
        }
    }
    return changed;
}

// Two empty cells with the same two candidates clear them from the rest of the
// row or column they share, and from their square.
bool RuleSolver::applyDoubles() {
    bool changed = false;
    Cell* cells = snapshot->cells;
    for (int a = 0; a < 80; ++a) {
        if (!emptyPair(cells[a])) continue;
        for (int b = a + 1; b < 81; ++b) {
            if (!emptyPair(cells[b]) || !sameFlags(cells[a], cells[b])) continue;
            Cell& ca = cells[a];
            Cell& cb = cells[b];
            int p = 0, q = 0;
            for (int v = 1; v <= 9; ++v) {
                if (!ca.potential[v - 1]) continue;
                if (p == 0) p = v; else q = v;
            }
            Tuple* line = nullptr;
            if (ca.row() == cb.row()) line = &rows[ca.row()];
            else if (ca.column() == cb.column()) line = &columns[ca.column()];
            if (line) {
                changed = line->removeFromOthers(p, &ca, &cb) || changed;
                changed = line->removeFromOthers(q, &ca, &cb) || changed;
            }
            if (ca.square() == cb.square()) {
                Tuple& sq = squares[ca.square()];
                changed = sq.removeFromOthers(p, &ca, &cb) || changed;
                changed = sq.removeFromOthers(q, &ca, &cb) || changed;
            }
        }
    }
    return changed;
}

// A cell with three candidates and the cells of its tuple confined to those
// three values: exactly three such cells clear the values from the others,
// more than three are a contradiction.
bool RuleSolver::applyTriples() {
    bool changed = false;
    std::list<Cell*> inside, outside;
    for (int k = 0; k < 9; ++k) {
        Tuple* tuples[3] = {&rows[k], &columns[k], &squares[k]};
        for (Tuple* tuple : tuples) {
            if (!tuple->anyModified()) continue;
            for (Cell* c : tuple->cells) {
                if (c->potentialCount != 3) continue;
                if (cellsWithin(*tuple, c->potential) < 3) continue;  // no group: spare the split
                tuple->splitBySubset(c->potential, inside, outside);
                if (inside.size() < 3) continue;
                if (inside.size() == 3) {
                    bool values[9];
                    for (int i = 0; i < 9; ++i) values[i] = c->potential[i];
                    changed = removeValues(values, outside) || changed;
                    continue;
                }
                std::list<int> valueList, positions;
                for (int v = 1; v <= 9; ++v)
                    if (c->potential[v - 1]) valueList.push_back(v);
                for (size_t pos = 0; pos < tuple->cells.size(); ++pos)
                    for (Cell* in : inside)
                        if (in == tuple->cells[pos]) positions.push_back(static_cast<int>(pos));
                throw eng::ExTupleConflict(1, tuple->name(), tuple->index, valueList, positions);
            }
        }
    }
    return changed;
}

// Three empty cells {x,y}, {y,z}, {x,z} linked pairwise by one value.
bool RuleSolver::applyTransitiveDoubles() {
    bool changed = false;
    Cell* cells = snapshot->cells;
    for (int a = 0; a < 81; ++a) {
        if (!emptyPair(cells[a])) continue;
        for (int b = a + 1; b < 81; ++b) {
            if (!emptyPair(cells[b]) || !cells[a].sharesExactlyOne(cells[b])) continue;
            for (int c = b + 1; c < 81; ++c) {
                Cell& ca = cells[a];
                Cell& cb = cells[b];
                Cell& cc = cells[c];
                if (!emptyPair(cc)) continue;
                if (!cb.sharesExactlyOne(cc) || sameFlags(cb, cc)) continue;
                if (!cc.sharesExactlyOne(ca)) continue;
                const int x = ca.firstCommonPotential(cc);
                const int y = ca.firstCommonPotential(cb);
                const int z = cb.firstCommonPotential(cc);
                if (x == y || y == z || x == z) continue;
                const int xyz[3] = {x, y, z};
                Tuple* line = nullptr;
                if (ca.row() == cb.row() && cb.row() == cc.row()) line = &rows[ca.row()];
                else if (ca.column() == cb.column() && cb.column() == cc.column()) line = &columns[ca.column()];
                if (line)
                    for (int v : xyz) changed = line->removeFromOthers(v, &ca, &cb, &cc) || changed;
                if (ca.square() == cb.square() && cb.square() == cc.square())
                    for (int v : xyz)
                        changed = squares[ca.square()].removeFromOthers(v, &ca, &cb, &cc) || changed;
            }
        }
    }
    return changed;
}

}  // namespace eng_priv
