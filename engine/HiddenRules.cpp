// Hidden subsets: n values that can only go into the same n cells of a tuple
// leave those cells nothing else.
#include "Conflicts.h"
#include "RuleSolver.h"

namespace eng_priv {

void Tuple::hiddenValues(const int* positions, int n, std::list<int>& values) const {
    values.clear();
    unsigned chosenMask = 0;
    for (int k = 0; k < n; ++k) chosenMask |= 1u << positions[k];
    const int size = static_cast<int>(cells.size());
    for (int v = 1; v <= 9; ++v) {
        bool inChosen = false, elsewhere = false;
        for (int pos = 0; pos < size && !elsewhere; ++pos) {
            if (!cells[pos]->potential[v - 1]) continue;
            if (chosenMask & (1u << pos)) inChosen = true;
            else elsewhere = true;
        }
        if (inChosen && !elsewhere) values.push_back(v);
    }
}

bool RuleSolver::applyHidden(int n) {
    bool changed = false;
    for (int k = 0; k < 9; ++k) {
        const Tuple* tuples[3] = {&rows[k], &columns[k], &squares[k]};
        for (const Tuple* tuple : tuples) {
            if (tuple->cells.size() != 9 || !tuple->anyModified()) continue;
            int positions[9] = {};
            changed = searchHidden(n, *tuple, positions, 0) || changed;
        }
    }
    return changed;
}

bool RuleSolver::searchHidden(int n, const Tuple& tuple, int positions[9], int depth) {
    if (depth < n) {
        const int first = depth == 0 ? 0 : positions[depth - 1] + 1;
        const int last = 9 - n + depth;
        bool changed = false;
        for (int pos = first; pos <= last; ++pos) {
            positions[depth] = pos;
            changed = searchHidden(n, tuple, positions, depth + 1) || changed;
        }
        return changed;
    }
    for (int k = 0; k < n; ++k) {
        const Cell* cell = tuple.cells[positions[k]];
        if (cell->value() != 0 || cell->potentialCount == 1) return false;
    }
    std::list<int> values;
    tuple.hiddenValues(positions, n, values);
    if (static_cast<int>(values.size()) < n) return false;
    if (static_cast<int>(values.size()) > n) {
        std::list<int> chosen(positions, positions + n);
        throw eng::ExTupleConflict(0, tuple.name(), tuple.index, values, chosen);
    }
    bool changed = false;
    for (int k = 0; k < n; ++k) changed = tuple.cells[positions[k]]->keepOnlyPotentials(values) || changed;
    return changed;
}

}  // namespace eng_priv
