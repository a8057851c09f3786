#pragma once
// Runs an ordered list of pencil-mark rules over one position until a full
// sweep of the list changes nothing.

#include <list>
#include <vector>

#include "BoardSnapshot.h"
#include "Rules.h"

namespace eng_priv {

// The rule presets the engine grades and checks positions with.
enum Preset : int {
    presetLineSingles = 0,  // singles in rows and columns
    presetSingles = 1,
    presetPairs = 2,        // singles and naked pairs
    presetFull = 3,         // every rule family
    presetConsistency = 4,  // singles, pairs, transitive pairs and triples
};

// The 27 tuples of a position, each nine cells that hold 1-9 once: rows 0-8,
// columns 9-17, squares 18-26. A tuple lists its cells in index order.
constexpr int kTupleCount = 27;
constexpr int kColumnsFirst = 9;
constexpr int kSquaresFirst = 18;

struct TupleTable {
    int cells[kTupleCount][9];
    int of[81][3];  // a cell's row, column and square tuples
    unsigned long long bits[kTupleCount][2];  // a tuple's cells as a set of indices
};
extern const TupleTable kTuples;

class RuleSolver {
public:
    // Builds a solver from a preset; any other index gives an empty list.
    explicit RuleSolver(int preset);
    explicit RuleSolver(const std::list<eng::Rules>& rules);

    // One pass over the snapshot's current potential values; true when any
    // potential value was removed. Throws eng::ExCellConflict or
    // eng::ExTupleConflict on a contradiction.
    bool applyAll(BoardSnapshot& snapshot);
    // Recomputes every cell's potential values from the values, then runs the pass.
    void applyAllFromValues(BoardSnapshot& snapshot);

    const std::vector<eng::Rules>& rules() const { return ruleList; }

    static std::list<eng::Rules> preset(int index);

private:
    // What a rule examines a tuple for; a tuple examined without result is
    // clean for that check until one of its cells (or, for the locked rules,
    // of the tuples crossing it) loses a candidate.
    enum Check {
        checkSingles,
        checkPairs,
        checkTransitive,
        checkTriples,
        checkLockedRows,
        checkLockedCols,
        checkLockedSquares,
        checkHidden,  // + n - 1 for hidden subsets of n values
        checkCount = checkHidden + 4,
    };

    std::vector<eng::Rules> ruleList;
    Cell* cells = nullptr;
    unsigned clock = 0;
    unsigned changedAt[kTupleCount];
    unsigned touched = 0;  // tuples changed since the singles rule last looked, one bit each
    unsigned cleanAt[checkCount][kTupleCount];
    unsigned long long pairCells[2];  // empty cells with two candidates, by index
    // Where each value stands in a tuple, and which positions the hidden
    // rules may choose, as of the tuple's change stamp `at`.
    struct Survey {
        unsigned at;
        unsigned where[9];
        unsigned open;
    } surveys[kTupleCount];
    // Per tuple, as of its change stamp `at`: atLeast[k], the values in k or
    // more open cells (empty, two or more candidates), and the values of the
    // other cells.
    struct Counts {
        unsigned at;
        Mask atLeast[6];
        Mask settled;
    } counts[kTupleCount];

    void begin(BoardSnapshot& snapshot);
    bool runPass();
    bool applyRule(eng::Rules rule);

    // Every removal goes through these, which keep the change stamps.
    bool remove(int cell, Mask values) {
        if (!(cells[cell].mask() & values)) return false;
        return removeNow(cell, values);
    }
    bool removeNow(int cell, Mask values);
    bool keepOnly(int cell, Mask values);
    void noteChange(int cell);
    bool removeFromOthers(int tuple, Mask value, int keep1, int keep2 = -1, int keep3 = -1);

    bool isPair(int cell) const;
    int nextPair(int from) const { return nextIn(pairCells, from); }
    static int nextIn(const unsigned long long (&set)[2], int from);
    bool anyModified(int tuple) const;
    bool isClean(Check check, int tuple) const { return changedAt[tuple] <= cleanAt[check][tuple]; }
    void markCleanIfUnchanged(Check check, unsigned since, int kinds = 7);

    bool applySingles(int mask);
    bool applyDoubles();
    bool applyTriples();
    bool applyTransitiveDoubles();
    bool applyLockedInLines(int firstLine, Check check);
    bool applyLockedBySquares();
    void lockedValues(int tuple, const int (&segments)[3][3], Mask (&out)[3]) const;
    // `kind` names the tuples the removals go to: 0 rows, 1 columns, 2 squares.
    bool removeLocked(int tuple, const int (&segments)[3][3], int kind);
    bool applyHidden(int n);
    bool hiddenIn(int n, int tuple);
    Mask hideableValues(int n, int tuple);
    const Survey& survey(int tuple);
};

}  // namespace eng_priv
