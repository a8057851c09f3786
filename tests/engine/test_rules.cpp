// The rule families on hand-built positions: which tuples they clear, which
// cells they skip, the order in which they meet contradictions, and how the
// pass chains them together.
#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <list>
#include <string>

#include "Conflicts.h"
#include "RuleSolver.h"

using namespace eng;
using eng_priv::BoardSnapshot;
using eng_priv::RuleSolver;

namespace {

void keep(BoardSnapshot& s, int cell, std::list<int> values) { s.cells[cell].keepOnlyPotentials(values); }

// An empty position where the listed cells keep only the listed candidates.
BoardSnapshot position(std::initializer_list<std::pair<int, std::list<int>>> kept) {
    BoardSnapshot s;
    for (const auto& [cell, values] : kept) keep(s, cell, values);
    return s;
}

std::list<int> candidates(const BoardSnapshot& s, int cell) {
    std::list<int> out;
    for (int v = 1; v <= 9; ++v)
        if (s.cells[cell].isPotential(v)) out.push_back(v);
    return out;
}

void clearMarks(BoardSnapshot& s) {
    for (auto& c : s.cells) c.setModified(false);
}

bool run(BoardSnapshot& s, std::list<Rules> rules) { return RuleSolver(rules).applyAll(s); }

// Runs the rules and returns the description of the conflict they raise.
std::string conflictText(BoardSnapshot& s, std::list<Rules> rules) {
    try {
        run(s, rules);
    } catch (ExCellConflict& e) {
        return e.describe();
    } catch (ExTupleConflict& e) {
        return e.describe();
    }
    return "no conflict";
}

// Leaves value out of every cell of row r except the listed ones, without marks.
void onlyIn(BoardSnapshot& s, int value, std::initializer_list<int> cellsWithIt, int row) {
    for (int i = row * 9; i < row * 9 + 9; ++i)
        if (std::find(cellsWithIt.begin(), cellsWithIt.end(), i) == cellsWithIt.end()) s.cells[i].removePotential(value, false);
}

// Whether every listed cell has (or, given false, lacks) candidate v.
bool allHave(const BoardSnapshot& s, int v, std::initializer_list<int> cells, bool has = true) {
    for (int i : cells)
        if (s.cells[i].isPotential(v) != has) return false;
    return true;
}

// A rule finds nothing on a position whose cells are not marked as changed.
bool runsOnlyWhenMarked(BoardSnapshot s, std::list<Rules> rules) {
    clearMarks(s);
    return !run(s, rules);
}

// Places v in a cell the way the board does: narrowed to v, then set.
void place(BoardSnapshot& s, int cell, int v) {
    s.cells[cell].setSinglePotential(v);
    s.cells[cell].setValue(v, 2);
}

void removeFrom(BoardSnapshot& s, int value, std::initializer_list<int> cells) {
    for (int i : cells) s.cells[i].removePotential(value, true);
}

const std::string kEmptied = "details: All potential values were removed from this cell. There is no solution.";

std::string emptied(int cell) { return "Conflict at cell index=" + std::to_string(cell) + "value=0" + kEmptied; }

int countCandidates(const BoardSnapshot& s) {
    int n = 0;
    for (const auto& c : s.cells) n += c.count();
    return n;
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
    BoardSnapshot s = position({{3, {4}}, {6, {4}}});
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
    BoardSnapshot chain = position({{0, {5}}, {9, {5, 6}}});
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
    BoardSnapshot s = position({{0, {3, 7}}, {1, {3, 7}}, {5, {3, 7, 9}}});
    EXPECT_TRUE(run(s, {ruleDoubles}));
    EXPECT_EQ(candidates(s, 5), std::list<int>{9});
    EXPECT_FALSE(s.cells[19].isPotential(3));  // square 0
    EXPECT_TRUE(s.cells[9 * 4].isPotential(3));
    EXPECT_EQ(candidates(s, 0), (std::list<int>{3, 7}));

    BoardSnapshot apart = position({{0, {3, 7}}, {40, {3, 7}}});
    EXPECT_FALSE(run(apart, {ruleDoubles}));
}

TEST(NakedTriples, ClearTheRestOfTheTupleWhenMarked) {
    BoardSnapshot s = position({{0, {1, 2, 3}}, {1, {1, 2}}, {2, {2, 3}}});
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
    BoardSnapshot s = position({{0, {4, 5, 6}}, {2, {4, 5}}, {4, {5, 6}}, {7, {4, 6}}});
    EXPECT_EQ(conflictText(s, {ruleTriples}),
              "Conflict: On row 1: cannot distribute values: 4, 5, 6 to cells: 0th, 2nd, 4th, 7th  "
              "(too many cells, to few values)");
}

TEST(TransitiveDoubles, LinkedPairsClearTheirRow) {
    BoardSnapshot s = position({{0, {1, 2}}, {4, {2, 3}}, {8, {1, 3}}});
    EXPECT_FALSE(run(s, {ruleTriples}));
    EXPECT_TRUE(run(s, {ruleTransitiveDoubles}));
    for (int c : {1, 2, 3, 5, 6, 7}) EXPECT_EQ(candidates(s, c), (std::list<int>{4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(candidates(s, 4), (std::list<int>{2, 3}));

    BoardSnapshot spread = position({{0, {1, 2}}, {40, {2, 3}}, {80, {1, 3}}});
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

TEST(RuleSingles, ColumnAndSquareMasksAlone) {
    BoardSnapshot col;
    keep(col, 40, {2});
    EXPECT_TRUE(run(col, {ruleSinglesColOnly}));
    EXPECT_TRUE(allHave(col, 2, {4, 76}, false));
    EXPECT_TRUE(col.cells[39].isPotential(2));  // row and square keep it
    EXPECT_TRUE(col.cells[30].isPotential(2));

    BoardSnapshot sq;
    keep(sq, 40, {2});
    EXPECT_TRUE(run(sq, {ruleSinglesSquareOnly}));
    for (int i : {30, 31, 32, 39, 41, 48, 49, 50}) EXPECT_FALSE(sq.cells[i].isPotential(2)) << i;
    EXPECT_TRUE(allHave(sq, 2, {36, 4}));
    EXPECT_EQ(countCandidates(sq), 81 * 9 - 8 - 8);
}

TEST(RuleSingles, PlacedValueAgainstEmptySingleConflicts) {
    BoardSnapshot s;
    place(s, 0, 4);
    keep(s, 60, {4});  // column 6, row 6: no tuple shared with cell 0
    keep(s, 72, {4});  // column 0, shared with cell 0
    EXPECT_EQ(conflictText(s, {ruleSinglesRowOnly}), "no conflict");
    EXPECT_EQ(conflictText(s, {ruleSinglesColOnly}), emptied(72));
}

TEST(RuleNakedPairs, ColumnPairsAndTheirSquare) {
    // Same column, different squares: only the column is cleared.
    BoardSnapshot s = position({{0, {3, 7}}, {27, {3, 7}}});
    EXPECT_TRUE(run(s, {ruleDoubles}));
    for (int r : {1, 2, 4, 5, 6, 7, 8}) EXPECT_EQ(candidates(s, r * 9), (std::list<int>{1, 2, 4, 5, 6, 8, 9}));
    EXPECT_TRUE(s.cells[1].isPotential(3));
    EXPECT_TRUE(s.cells[10].isPotential(7));

    // Same column and square: both are cleared, the row is not.
    BoardSnapshot both = position({{0, {3, 7}}, {9, {3, 7}}});
    EXPECT_TRUE(run(both, {ruleDoubles}));
    EXPECT_FALSE(both.cells[72].isPotential(3));
    EXPECT_FALSE(both.cells[20].isPotential(7));
    EXPECT_TRUE(both.cells[3].isPotential(7));

    // Only the square is shared: the second value is removed even though the
    // first one was already gone.
    BoardSnapshot square = position({{0, {3, 7}}, {10, {3, 7}}, {20, {1, 7}}});
    EXPECT_TRUE(run(square, {ruleDoubles}));
    EXPECT_EQ(candidates(square, 20), std::list<int>{1});
    EXPECT_TRUE(square.cells[1 + 27].isPotential(3));
    EXPECT_TRUE(square.cells[9 + 3].isPotential(7));
}

TEST(RuleNakedPairs, FilledCellsAreNoPairsAndThreeEqualPairsConflict) {
    BoardSnapshot filled;
    keep(filled, 0, {3, 7});
    filled.cells[0].setValue(3, 1);
    keep(filled, 1, {3, 7});
    EXPECT_FALSE(run(filled, {ruleDoubles}));

    BoardSnapshot three;
    for (int i : {0, 1, 2}) keep(three, i, {3, 7});
    EXPECT_EQ(conflictText(three, {ruleDoubles}), emptied(2));
}

TEST(RuleNakedTriples, GroupsWithFilledCellsColumnsAndSquares) {
    // A filled cell whose only candidate lies in the three values belongs to the group.
    BoardSnapshot s;
    keep(s, 0, {1, 2, 3});
    place(s, 1, 1);
    keep(s, 2, {2, 3});
    EXPECT_TRUE(run(s, {ruleTriples}));
    for (int c = 3; c < 9; ++c) EXPECT_EQ(candidates(s, c), (std::list<int>{4, 5, 6, 7, 8, 9})) << c;
    EXPECT_TRUE(s.cells[27].isPotential(2));  // outside the row and square 0 nothing changes
    EXPECT_FALSE(s.cells[19].isPotential(2)); // square 0 holds the same group

    // Two cells in the three values are no group.
    BoardSnapshot two = position({{0, {1, 2, 3}}, {5, {2, 3}}});
    EXPECT_FALSE(run(two, {ruleTriples}));

    // In a square, the conflict names the square and the positions within it.
    BoardSnapshot sq = position({{30, {4, 5, 6}}, {32, {4, 5}}, {40, {6}}, {50, {5, 6}}});
    EXPECT_EQ(conflictText(sq, {ruleTriples}),
              "Conflict: On square 5: cannot distribute values: 4, 5, 6 to cells: 0th, 2nd, 4th, 8th  "
              "(too many cells, to few values)");

    // Column 0 comes before row 1 in the scan, though row 1 holds the lower cells.
    BoardSnapshot order = position({{9, {1, 2, 3}}, {10, {1, 2}}, {11, {2, 3}}, {12, {1, 3}}, {0, {7, 8, 9}},
                              {27, {7, 8}}, {54, {8, 9}}, {72, {7, 9}}});
    EXPECT_EQ(conflictText(order, {ruleTriples}),
              "Conflict: On column 1: cannot distribute values: 7, 8, 9 to cells: 0th, 3rd, 6th, 8th  "
              "(too many cells, to few values)");

    // Column 0 also comes before square 0.
    BoardSnapshot columnFirst = position({{0, {7, 8, 9}}, {27, {7, 8}}, {54, {8, 9}}, {72, {7, 9}}, {10, {7, 8}},
                              {11, {8, 9}}, {19, {7, 9}}});
    EXPECT_EQ(conflictText(columnFirst, {ruleTriples}),
              "Conflict: On column 1: cannot distribute values: 7, 8, 9 to cells: 0th, 3rd, 6th, 8th  "
              "(too many cells, to few values)");
}

TEST(RuleNakedTriples, OnlyMarkedTuplesAreSearched) {
    BoardSnapshot s = position({{0, {1, 2, 3}}, {1, {1, 2}}, {2, {2, 3}}});
    clearMarks(s);
    s.cells[8].setModified(true);  // a mark anywhere in the row is enough
    EXPECT_TRUE(run(s, {ruleTriples}));
    EXPECT_FALSE(s.cells[4].isPotential(2));
    EXPECT_TRUE(s.cells[9].isPotential(2));  // square 0 had no mark
}

TEST(RuleTransitiveDoubles, ColumnSquareAndUnlinkedPairs) {
    // Cells 0, 9 and 18 share column 0 and square 0: both are cleared.
    BoardSnapshot s = position({{0, {1, 2}}, {9, {2, 3}}, {18, {1, 3}}});
    EXPECT_TRUE(run(s, {ruleTransitiveDoubles}));
    for (int i : {27, 72, 1, 11, 20}) EXPECT_EQ(candidates(s, i), (std::list<int>{4, 5, 6, 7, 8, 9})) << i;
    EXPECT_TRUE(s.cells[3].isPotential(1));

    // Three pairs joined by the same value are no chain.
    BoardSnapshot star = position({{0, {1, 2}}, {1, {1, 3}}, {2, {1, 4}}});
    EXPECT_FALSE(run(star, {ruleTransitiveDoubles}));

    // Marks play no part.
    BoardSnapshot unmarked = position({{0, {1, 2}}, {4, {2, 3}}, {8, {1, 3}}});
    clearMarks(unmarked);
    EXPECT_TRUE(run(unmarked, {ruleTransitiveDoubles}));
    EXPECT_FALSE(unmarked.cells[5].isPotential(3));

    // A filled cell does not link.
    BoardSnapshot filled = position({{0, {1, 2}}, {4, {2, 3}}, {8, {1, 3}}});
    filled.cells[8].setValue(1, 1);
    EXPECT_FALSE(run(filled, {ruleTransitiveDoubles}));

    // A chain whose removal empties a cell.
    BoardSnapshot conflict = position({{0, {1, 2}}, {1, {2, 3}}, {2, {1, 3}}, {6, {1, 3}}});
    EXPECT_EQ(conflictText(conflict, {ruleTransitiveDoubles}), emptied(6));
}

TEST(RuleLocked, SegmentsNeedAMarkAndPlacedValuesCountOutside) {
    // The row is marked but the segment is not: nothing happens.
    BoardSnapshot s;
    removeFrom(s, 5, {1, 3, 4, 5, 6, 7, 8});
    BoardSnapshot segmentUnmarked = s;
    for (int i : {0, 1, 2}) segmentUnmarked.cells[i].setModified(false);
    EXPECT_FALSE(run(segmentUnmarked, {ruleLockedByRows}));

    // A 5 placed in the row (its only candidate 5) counts outside the segment.
    BoardSnapshot placed;
    removeFrom(placed, 5, {1, 3, 4, 6, 7, 8});
    place(placed, 5, 5);
    EXPECT_FALSE(run(placed, {ruleLockedByRows}));

    // Middle segment of row 4 (cells 39-41), 8 in cells 39 and 41: square 4 loses it.
    BoardSnapshot mid;
    removeFrom(mid, 8, {36, 37, 38, 40, 42, 43, 44});
    EXPECT_TRUE(run(mid, {ruleLockedByRows}));
    for (int i : {30, 31, 32, 48, 49, 50}) EXPECT_FALSE(mid.cells[i].isPotential(8)) << i;
    EXPECT_TRUE(allHave(mid, 8, {39, 41, 33}));
}

TEST(RuleLocked, SquaresClearTheirRowsAndColumns) {
    // Square 4 with 8 only in its middle line (cells 39, 40): the rest of row 4 loses it.
    BoardSnapshot line;
    removeFrom(line, 8, {30, 31, 32, 41, 48, 49, 50});
    EXPECT_TRUE(run(line, {ruleLockedBySquares}));
    for (int i : {36, 37, 38, 42, 43, 44}) EXPECT_FALSE(line.cells[i].isPotential(8)) << i;
    EXPECT_TRUE(line.cells[4].isPotential(8));

    // Square 8 with 3 only in its right column (cells 62, 80): column 8 loses it above.
    BoardSnapshot col;
    removeFrom(col, 3, {60, 61, 69, 70, 71, 78, 79});
    EXPECT_TRUE(run(col, {ruleLockedBySquares}));
    for (int r = 0; r < 6; ++r) EXPECT_FALSE(col.cells[r * 9 + 8].isPotential(3)) << r;
    EXPECT_TRUE(allHave(col, 3, {59, 71 - 9}));
}

TEST(RuleHidden, SquaresTriplesAndQuads) {
    // Square 4: 9 only in cell 40 (its position 4).
    BoardSnapshot sq;
    removeFrom(sq, 9, {30, 31, 32, 39, 41, 48, 49, 50});
    EXPECT_TRUE(run(sq, {ruleHiddenSingles}));
    EXPECT_EQ(candidates(sq, 40), std::list<int>{9});
    EXPECT_TRUE(sq.cells[4].isPotential(9));  // the value is not placed or spread

    // Row 8: 1, 2, 3 only in cells 72, 76, 80, which lose everything else.
    BoardSnapshot triple;
    for (int v : {1, 2, 3}) removeFrom(triple, v, {73, 74, 75, 77, 78, 79});
    triple.cells[76].removePotential(3, true);
    EXPECT_TRUE(run(triple, {ruleHiddenTriples}));
    EXPECT_EQ(candidates(triple, 72), (std::list<int>{1, 2, 3}));
    EXPECT_EQ(candidates(triple, 76), (std::list<int>{1, 2}));
    EXPECT_EQ(candidates(triple, 80), (std::list<int>{1, 2, 3}));
    EXPECT_EQ(candidates(triple, 73), (std::list<int>{4, 5, 6, 7, 8, 9}));

    // Row 7: 1 to 4 only in cells 63, 65, 67, 69, which keep nothing else.
    BoardSnapshot quad;
    for (int v : {1, 2, 3, 4}) removeFrom(quad, v, {64, 66, 68, 70, 71});
    EXPECT_TRUE(run(quad, {ruleHiddenQuads}));
    for (int i : {63, 65, 67, 69}) EXPECT_EQ(candidates(quad, i), (std::list<int>{1, 2, 3, 4})) << i;

    // Quads: fewer than four open cells in a marked row find nothing.
    BoardSnapshot few;
    for (int c = 0; c < 6; ++c) place(few, c, c + 1);
    for (int c = 6; c < 9; ++c) keep(few, c, {7, 8, 9});
    EXPECT_FALSE(run(few, {ruleHiddenQuads}));
}

TEST(RuleHidden, ConflictsAndTheirOrder) {
    // 1 and 9 only in cell 0: the pair (0, 1) leaves cell 1 with nothing.
    BoardSnapshot pair;
    for (int v : {1, 9}) removeFrom(pair, v, {1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(conflictText(pair, {ruleHiddenDoubles}), emptied(1));

    // Column 0 is searched before row 1: both hold a cell with two hidden values.
    BoardSnapshot order;
    for (int v : {3, 9}) removeFrom(order, v, {0, 18, 27, 36, 45, 54, 63, 72});
    for (int v : {4, 5}) removeFrom(order, v, {9, 10, 11, 12, 13, 14, 15, 16});
    EXPECT_EQ(conflictText(order, {ruleHiddenSingles}),
              "Conflict: On column 1: cannot distribute values: 3, 9 to cells: 1st  (too many values, to few "
              "cells)");
    // Row 0 is searched before column 0.
    for (int v : {4, 5}) removeFrom(order, v, {0, 1, 2, 3, 4, 6, 7, 8});
    EXPECT_EQ(conflictText(order, {ruleHiddenSingles}),
              "Conflict: On row 1: cannot distribute values: 4, 5 to cells: 5th  (too many values, to few "
              "cells)");
}

TEST(RuleHidden, FilledCellsAreNeverChosen) {
    // Cell 4 holds 6 but still shows all nine candidates: it is not narrowed.
    BoardSnapshot s;
    removeFrom(s, 6, {0, 1, 2, 3, 5, 6, 7, 8});
    s.cells[4].setValue(6, 2);
    EXPECT_FALSE(run(s, {ruleHiddenSingles}));
    EXPECT_EQ(s.cells[4].count(), 9);
}

TEST(RulePassChains, FamiliesFeedEachOther) {
    // A hidden single narrows cell 4 to 6; the singles rule then clears 6
    // from its neighbours, which the hidden rule alone never does.
    BoardSnapshot s;
    removeFrom(s, 6, {0, 1, 2, 3, 5, 6, 7, 8});
    BoardSnapshot alone = s;
    EXPECT_TRUE(run(alone, {ruleHiddenSingles}));
    EXPECT_TRUE(alone.cells[13].isPotential(6));
    EXPECT_TRUE(run(s, {ruleSingles, ruleHiddenSingles}));
    EXPECT_EQ(candidates(s, 4), std::list<int>{6});
    EXPECT_TRUE(allHave(s, 6, {13, 76}, false));

    // A second pass over the result finds nothing more.
    EXPECT_FALSE(run(s, {ruleSingles, ruleHiddenSingles}));

    // A conflict met by a later rule keeps the removals made before it: the
    // row clears 5 from cell 8, leaving {7}, whose column rule empties cell 17.
    BoardSnapshot late = position({{0, {5}}, {8, {5, 7}}, {17, {7}}});
    try {
        run(late, {ruleSinglesRowOnly, ruleSinglesColOnly});
        FAIL() << "expected a conflict";
    } catch (ExCellConflict& e) {
        EXPECT_EQ(e.kind, 3);
        EXPECT_EQ(e.cellIndex, 17);
    }
    EXPECT_TRUE(allHave(late, 5, {1, 9}, false));
}
