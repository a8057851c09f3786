// The rule families on hand-built positions, and the pass that runs them.
#include <gtest/gtest.h>

#include <string>

#include "RuleTestSupport.h"

using namespace eng;
using eng_priv::BoardSnapshot;
using eng_priv::RuleSolver;
using namespace rule_test;

namespace {

// Leaves value out of every cell of row r except the listed ones.
void onlyIn(BoardSnapshot& s, int value, std::initializer_list<int> cellsWithIt, int row) {
    for (int c = 0; c < 9; ++c) {
        const int i = row * 9 + c;
        bool listed = false;
        for (int k : cellsWithIt) listed = listed || k == i;
        if (!listed) s.cells[i].removePotential(value, false);
    }
}

// A rule finds nothing on a position whose cells are not marked as changed.
bool runsOnlyWhenMarked(BoardSnapshot s, std::list<Rules> rules) {
    clearMarks(s);
    return !run(s, rules);
}

}  // namespace

TEST(Singles, MaskSelectsTheTuplesCleared) {
    for (int mask : {1, 3, 7}) {
        BoardSnapshot s;
        keep(s, 0, {5});
        EXPECT_TRUE(run(s, {static_cast<Rules>(mask)}));
        EXPECT_FALSE(s.cells[1].isPotential(5));                    // row
        EXPECT_EQ(s.cells[9].isPotential(5), (mask & 2) == 0);      // column
        EXPECT_EQ(s.cells[10].isPotential(5), (mask & 4) == 0);     // square only
        EXPECT_TRUE(s.cells[0].isPotential(5));
    }
    BoardSnapshot s;
    EXPECT_FALSE(run(s, {ruleSingles}));
    // A filled cell that still has nine candidates is no single.
    s.cells[0].setValue(5, 1);
    EXPECT_FALSE(run(s, {ruleSingles}));
}

TEST(Singles, TwoEqualSinglesInARowConflict) {
    BoardSnapshot s;
    keep(s, 3, {4});
    keep(s, 6, {4});
    EXPECT_EQ(conflictText(s, {ruleSinglesRowOnly}),
              "Conflict at cell index=6value=0details: All potential values were removed from this "
              "cell. There is no solution.");
}

TEST(RulePass, ListSemantics) {
    BoardSnapshot s;
    EXPECT_FALSE(run(s, {}));
    keep(s, 0, {5});
    BoardSnapshot unknown = s;
    EXPECT_FALSE(run(unknown, {static_cast<Rules>(5), static_cast<Rules>(0)}));
    // An unknown value does not stop the rules after it.
    EXPECT_TRUE(run(unknown, {static_cast<Rules>(5), ruleSinglesRowOnly}));
    EXPECT_FALSE(unknown.cells[8].isPotential(5));

    // A later success makes the first rule run again: the column clear leaves
    // cell 9 with {6}, whose row is cleared only by the first rule's rerun.
    BoardSnapshot chain;
    keep(chain, 0, {5});
    keep(chain, 9, {5, 6});
    BoardSnapshot twice = chain, once = chain;
    EXPECT_TRUE(run(chain, {ruleSinglesRowOnly, ruleSinglesColOnly}));
    EXPECT_FALSE(chain.cells[10].isPotential(6));
    run(twice, {ruleSingles, ruleSingles});
    run(once, {ruleSingles});
    for (int i = 0; i < 81; ++i) EXPECT_EQ(candidates(twice, i), candidates(once, i));
}

TEST(RulePass, PresetsAndFromValues) {
    EXPECT_EQ(RuleSolver::preset(0), std::list<Rules>{ruleSinglesRowColOnly});
    EXPECT_EQ(RuleSolver::preset(4),
              (std::list<Rules>{ruleSingles, ruleDoubles, ruleTransitiveDoubles, ruleTriples}));
    EXPECT_EQ(RuleSolver::preset(3).size(), 10u);
    EXPECT_TRUE(RuleSolver::preset(5).empty());
    BoardSnapshot s;
    keep(s, 40, {1, 2});  // forgotten: candidates are recomputed from values
    s.cells[0].setSinglePotential(3);
    s.cells[0].setValue(3, 2);
    RuleSolver(1).applyAllFromValues(s);
    EXPECT_EQ(candidates(s, 40).size(), 9u);
    EXPECT_EQ(s.cells[0].origin(), 2);
    EXPECT_FALSE(s.cells[8].isPotential(3));
}

TEST(NakedPairs, ClearRowAndSquare) {
    BoardSnapshot s;
    keep(s, 0, {3, 7});
    keep(s, 1, {3, 7});
    keep(s, 5, {3, 7, 9});
    EXPECT_TRUE(run(s, {ruleDoubles}));
    EXPECT_EQ(candidates(s, 5), std::list<int>{9});
    EXPECT_FALSE(s.cells[19].isPotential(3));  // square 0
    EXPECT_TRUE(s.cells[9 * 4].isPotential(3));
    EXPECT_EQ(candidates(s, 0), (std::list<int>{3, 7}));

    BoardSnapshot apart;
    keep(apart, 0, {3, 7});
    keep(apart, 40, {3, 7});
    EXPECT_FALSE(run(apart, {ruleDoubles}));
}

TEST(NakedTriples, ClearTheRestOfTheTupleWhenMarked) {
    BoardSnapshot s;
    keep(s, 0, {1, 2, 3});
    keep(s, 1, {1, 2});
    keep(s, 2, {2, 3});
    EXPECT_TRUE(runsOnlyWhenMarked(s, {ruleTriples}));
    BoardSnapshot quads = s;
    EXPECT_TRUE(run(s, {ruleTriples}));
    EXPECT_TRUE(run(quads, {ruleQuads}));
    for (int c = 3; c < 9; ++c) {
        EXPECT_EQ(candidates(s, c), (std::list<int>{4, 5, 6, 7, 8, 9}));
        EXPECT_EQ(candidates(quads, c), candidates(s, c));
    }
}

TEST(NakedTriples, FourCellsInThreeValuesConflict) {
    BoardSnapshot s;
    keep(s, 0, {4, 5, 6});
    keep(s, 2, {4, 5});
    keep(s, 4, {5, 6});
    keep(s, 7, {4, 6});
    EXPECT_EQ(conflictText(s, {ruleTriples}),
              "Conflict: On row 1: cannot distribute values: 4, 5, 6 to cells: 0th, 2nd, 4th, 7th  "
              "(too many cells, to few values)");
}

TEST(TransitiveDoubles, LinkedPairsClearTheirRow) {
    BoardSnapshot s;
    keep(s, 0, {1, 2});
    keep(s, 4, {2, 3});
    keep(s, 8, {1, 3});
    EXPECT_FALSE(run(s, {ruleTriples}));
    EXPECT_TRUE(run(s, {ruleTransitiveDoubles}));
    for (int c : {1, 2, 3, 5, 6, 7}) EXPECT_EQ(candidates(s, c), (std::list<int>{4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(candidates(s, 4), (std::list<int>{2, 3}));

    BoardSnapshot spread;
    keep(spread, 0, {1, 2});
    keep(spread, 40, {2, 3});
    keep(spread, 80, {1, 3});
    EXPECT_FALSE(run(spread, {ruleTransitiveDoubles}));
}

TEST(Locked, RowsColumnsAndSquares) {
    BoardSnapshot s;
    onlyIn(s, 5, {0, 2}, 0);
    EXPECT_TRUE(runsOnlyWhenMarked(s, {ruleLockedByRows}));
    EXPECT_TRUE(run(s, {ruleLockedByRows}));
    for (int i : {9, 10, 11, 18, 19, 20}) EXPECT_FALSE(s.cells[i].isPotential(5)) << i;
    EXPECT_TRUE(s.cells[27].isPotential(5));

    BoardSnapshot single;
    onlyIn(single, 5, {0}, 0);
    EXPECT_FALSE(run(single, {ruleLockedByRows}));

    // Square 0 where 7 stands only in cells 0 and 9 (its left column).
    BoardSnapshot sq;
    for (int i : {1, 2, 10, 11, 18, 19, 20}) sq.cells[i].removePotential(7, true);
    EXPECT_TRUE(run(sq, {ruleLockedBySquares}));
    for (int i : {27, 36, 45, 54, 63, 72}) EXPECT_FALSE(sq.cells[i].isPotential(7)) << i;
    EXPECT_TRUE(sq.cells[18 + 9].isPotential(8));

    // Column 4 where 2 stands only in cells 4 and 13: the rest of square 1 loses it.
    BoardSnapshot col;
    for (int r = 2; r < 9; ++r) col.cells[r * 9 + 4].removePotential(2, true);
    EXPECT_TRUE(run(col, {ruleLockedByCols}));
    for (int i : {3, 5, 12, 14, 21, 22, 23}) EXPECT_FALSE(col.cells[i].isPotential(2)) << i;
}

TEST(Hidden, SinglesDoublesAndConflicts) {
    BoardSnapshot s;
    onlyIn(s, 6, {4}, 0);
    keep(s, 4, {2, 6, 8});
    EXPECT_TRUE(run(s, {ruleHiddenSingles}));
    EXPECT_EQ(candidates(s, 4), std::list<int>{6});
    EXPECT_TRUE(s.cells[3].isPotential(2));

    BoardSnapshot filled;
    onlyIn(filled, 6, {4}, 0);
    keep(filled, 4, {6});
    filled.cells[4].setValue(6, 1);
    EXPECT_FALSE(run(filled, {ruleHiddenSingles}));

    BoardSnapshot conflict;
    onlyIn(conflict, 3, {4}, 0);
    onlyIn(conflict, 6, {4}, 0);
    EXPECT_EQ(conflictText(conflict, {ruleHiddenSingles}),
              "Conflict: On row 1: cannot distribute values: 3, 6 to cells: 4th  (too many values, "
              "to few cells)");

    // Column 2 where 1 and 9 occur only at positions 2 and 7.
    BoardSnapshot pair;
    for (int r = 0; r < 9; ++r) {
        if (r == 2 || r == 7) continue;
        pair.cells[r * 9 + 2].removePotential(1, true);
        pair.cells[r * 9 + 2].removePotential(9, true);
    }
    EXPECT_TRUE(runsOnlyWhenMarked(pair, {ruleHiddenDoubles}));
    EXPECT_TRUE(run(pair, {ruleHiddenDoubles}));
    EXPECT_EQ(candidates(pair, 2 * 9 + 2), (std::list<int>{1, 9}));
    EXPECT_EQ(candidates(pair, 7 * 9 + 2), (std::list<int>{1, 9}));

    BoardSnapshot fresh;
    EXPECT_FALSE(run(fresh, {ruleHiddenQuads, ruleHiddenTriples}));
}
