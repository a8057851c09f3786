#pragma once
// Runs an ordered list of pencil-mark rules over one position until a full
// sweep of the list changes nothing.

#include <list>

#include "BoardSnapshot.h"
#include "Rules.h"
#include "Tuple.h"

namespace eng_priv {

class RuleSolver {
public:
    // Builds a solver from rule preset 0-4; any other index gives an empty list.
    explicit RuleSolver(int preset);
    explicit RuleSolver(std::list<eng::Rules> rules);

    // One pass over the snapshot's current potential values; true when any
    // potential value was removed. Throws eng::ExCellConflict or
    // eng::ExTupleConflict on a contradiction.
    bool applyAll(BoardSnapshot& snapshot);
    // Recomputes every cell's potential values from the values, then runs the pass.
    void applyAllFromValues(BoardSnapshot& snapshot);

    const std::list<eng::Rules>& rules() const { return ruleList; }

    static std::list<eng::Rules> preset(int index);

private:
    BoardSnapshot* snapshot = nullptr;
    std::list<eng::Rules> ruleList;
    Row rows[9];
    Column columns[9];
    Square squares[9];

    bool runPass();
    void bindTuples();
    bool applyRule(eng::Rules rule);

    bool applySingles(int mask);
    bool applyDoubles();
    bool applyTriples();
    bool applyTransitiveDoubles();
    bool applyLockedByRows();
    bool applyLockedByCols();
    bool applyLockedBySquares();
    bool applyHidden(int n);
    bool searchHidden(int n, const Tuple& tuple, int positions[9], int depth);
};

}  // namespace eng_priv
