// Cells, positions and the texts of the two conflict kinds.
#include <gtest/gtest.h>

#include <string>

#include "BoardSnapshot.h"
#include "Conflicts.h"

using eng::ExCellConflict;
using eng::ExTupleConflict;
using eng_priv::BoardSnapshot;
using eng_priv::Cell;

namespace {

template <typename F>
int cellConflictKind(F f) {
    try {
        f();
    } catch (ExCellConflict& e) {
        return e.kind;
    }
    return -1;
}

}  // namespace

TEST(Conflicts, Descriptions) {
    const std::string cell = "Conflict at cell index=", tuple = "Conflict: On ";
    const std::string unknown = "details: Unknown conflict type. Please report this error.";
    const std::pair<ExCellConflict, std::string> cells[] = {
        {{0, 12, 5}, cell + "12value=5details: Cannot set this value. It's in conflict"},
        {{1, 80, 3}, cell + "80value=3details: Cannot set this potential value. It's in conflict"},
        {{2, 0, 9}, cell + "0value=9details: Cannot remove an inexistent potential value."},
        {{3, 40, 0}, cell + "40value=0details: All potential values were removed from this cell. There is no solution."},
        {{4, -1, 0}, cell + "-1value=0details: Too many guesses goes in conflicts. Aborting."},
        {{7, 3, 1}, cell + "3value=1" + unknown},
        {{-1, 0, 0}, cell + "0value=0" + unknown}};
    for (auto [conflict, text] : cells) {
        EXPECT_EQ(conflict.describe(), text);
        EXPECT_EQ(conflict.describe(), text);  // describing twice keeps one copy
        EXPECT_EQ(conflict.message, text);
    }
    const std::string unknownTuple = "Conflict: Unknown conflict type on tuple. Please report this error.";
    const std::pair<ExTupleConflict, std::string> tuples[] = {
        {{1, "row", 2, {4, 7}, {1, 3, 5}},
         tuple + "row 3: cannot distribute values: 4, 7 to cells: 1st, 3rd, 5th  (too many cells, to few values)"},
        {{1, "column", 8, {1, 2, 3}, {0, 1, 2, 3, 4, 8}},
         tuple + "column 9: cannot distribute values: 1, 2, 3 to cells: 0th, 1st, 2nd, 3rd, 4th, 8th  "
                 "(too many cells, to few values)"},
        {{0, "square", 8, {6}, {0}},
         tuple + "square 9: cannot distribute values: 6 to cells: 0th  (too many values, to few cells)"},
        {{0, "column", 0, {1, 2}, {2, 4, 8}},
         tuple + "column 1: cannot distribute values: 1, 2 to cells: 2nd, 4th, 8th  (too many values, to few cells)"},
        {{0, "row", 4, {}, {}}, tuple + "row 5: cannot distribute values:  to cells:   (too many values, to few cells)"},
        {{2, "row", 0, {1}, {1}}, unknownTuple},
        {{-3, "square", 1, {}, {}}, unknownTuple}};
    for (auto [conflict, text] : tuples) {
        EXPECT_EQ(conflict.describe(), text);
        EXPECT_EQ(conflict.describe(), text);
        EXPECT_EQ(conflict.message, text);
    }
}

TEST(Cells, IndexDerivesRowColumnSquare) {
    Cell c;
    EXPECT_EQ(c.index(), -1);
    EXPECT_EQ(c.count(), 9);
    c.reset(30);
    EXPECT_EQ(c.row(), 3);
    EXPECT_EQ(c.column(), 3);
    EXPECT_EQ(c.square(), 4);
    c.reset(80);
    EXPECT_EQ(c.square(), 8);
    c.setIndex(-1);
    EXPECT_EQ(c.row(), -1);
    EXPECT_EQ(c.column(), -1);
    EXPECT_EQ(c.square(), -1);
}

TEST(Cells, OperationsAndTheirConflicts) {
    Cell c;
    c.reset(10);
    EXPECT_TRUE(c.setSinglePotential(4));
    EXPECT_TRUE(c.isModified());
    c.setModified(false);
    EXPECT_FALSE(c.setSinglePotential(4));
    EXPECT_FALSE(c.isModified());
    EXPECT_EQ(cellConflictKind([&] { c.setSinglePotential(5); }), 1);
    EXPECT_EQ(cellConflictKind([&] { c.setValue(5, 2); }), 0);
    c.setValue(4, 2);
    EXPECT_EQ(c.value(), 4);
    EXPECT_EQ(c.origin(), 2);

    Cell d;
    d.reset(11);
    d.keepOnlyPotentials({2, 5});
    EXPECT_FALSE(d.removePotential(3, false));
    EXPECT_EQ(cellConflictKind([&] { d.removePotential(3, true); }), 2);
    EXPECT_TRUE(d.removePotential(2, true));
    try {
        d.removePotential(5, true);
        FAIL();
    } catch (ExCellConflict& e) {
        EXPECT_EQ(e.kind, 3);
        EXPECT_EQ(e.cellIndex, 11);
        EXPECT_EQ(e.value, 0);
    }
    Cell e;
    EXPECT_EQ(cellConflictKind([&] { e.keepOnlyPotentials({}); }), 3);

    Cell a;
    EXPECT_TRUE(a.keepOnly(eng_priv::bitOf(2) | eng_priv::bitOf(5) | 0x400));
    EXPECT_EQ(a.mask(), 0x12u);
    EXPECT_FALSE(a.removeValues(eng_priv::bitOf(9)));
    std::vector<int> values{7};
    a.potentials(values);
    EXPECT_EQ(values, (std::vector<int>{2, 5}));
}

TEST(Snapshots, CopiesAndEmptyCells) {
    BoardSnapshot s;
    s.guess = eng_priv::Guess(4, 7);
    s.cells[4].setSinglePotential(7);
    s.cells[4].setValue(7, 3);
    auto copy = s.copy();
    EXPECT_EQ(copy->guess.index, -1);
    EXPECT_EQ(copy->guess.value, 0);
    EXPECT_EQ(copy->cells[4].value(), 7);
    EXPECT_EQ(copy->cells[4].origin(), 3);
    EXPECT_TRUE(copy->cells[4].isModified());
    EXPECT_EQ(copy->cells[40].row(), 4);
    std::vector<Cell*> empty;
    EXPECT_TRUE(copy->emptyCells(empty));
    EXPECT_EQ(empty.size(), 80u);
    BoardSnapshot full;
    for (int i = 0; i < 81; ++i) {
        const int v = (i * 3 + i / 9 + (i / 27)) % 9 + 1;
        full.cells[i].setSinglePotential(v);
        full.cells[i].setValue(v, 1);
    }
    EXPECT_FALSE(full.emptyCells(empty));
    EXPECT_TRUE(empty.empty());
}

TEST(Cells, ResetAndNarrowing) {
    Cell c;
    c.reset(0);
    EXPECT_FALSE(c.addPotential(5));  // already there
    EXPECT_FALSE(c.addPotential(10));
    EXPECT_EQ(c.row(), 0);
    EXPECT_EQ(c.column(), 0);
    EXPECT_EQ(c.square(), 0);
    EXPECT_FALSE(c.isModified());
    // Values that are not candidates are ignored; nothing changed keeps the mark clear.
    EXPECT_FALSE(c.keepOnlyPotentials({1, 2, 3, 4, 5, 6, 7, 8, 9, 12}));
    EXPECT_FALSE(c.isModified());
    EXPECT_TRUE(c.keepOnlyPotentials({4, 6, 0}));
    EXPECT_TRUE(c.isModified());
    EXPECT_EQ(c.count(), 2);
    EXPECT_FALSE(c.keepOnlyPotentials({4, 6, 9}));
    EXPECT_EQ(cellConflictKind([&] { c.keepOnlyPotentials({9}); }), 3);
    EXPECT_EQ(c.count(), 0);

    EXPECT_EQ(cellConflictKind([&] { c.setValue(0, 2); }), 0);  // 0 is never a candidate
    c.reset(45);
    EXPECT_EQ(c.count(), 9);
    EXPECT_FALSE(c.isModified());
    EXPECT_EQ(c.value(), 0);
    EXPECT_EQ(c.square(), 3);
}
