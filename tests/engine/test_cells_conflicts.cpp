// Cells and the texts of cell conflicts (tuple texts are checked with the rules that raise them).
#include <gtest/gtest.h>

#include "Cell.h"
#include "Conflicts.h"

using eng::ExCellConflict;
using eng_priv::Cell;

namespace {

// The kind of the cell conflict f raises, or -1.
template <typename F>
int conflictKind(F f) {
    try {
        f();
    } catch (ExCellConflict& e) {
        return e.kind;
    }
    return -1;
}

}  // namespace

TEST(Conflicts, CellDescriptions) {
    const std::string unknown = "Unknown conflict type. Please report this error.";
    const std::pair<ExCellConflict, std::string> cases[] = {
        {{0, 12, 5}, "12value=5details: Cannot set this value. It's in conflict"},
        {{1, 80, 3}, "80value=3details: Cannot set this potential value. It's in conflict"},
        {{2, 0, 9}, "0value=9details: Cannot remove an inexistent potential value."},
        {{3, 40, 0}, "40value=0details: All potential values were removed from this cell. There is no solution."},
        {{4, -1, 0}, "-1value=0details: Too many guesses goes in conflicts. Aborting."},
        {{7, 3, 1}, "3value=1details: " + unknown},
        {{-1, 0, 0}, "0value=0details: " + unknown}};
    for (auto [conflict, text] : cases)
        for (int twice = 0; twice < 2; ++twice) EXPECT_EQ(conflict.describe(), "Conflict at cell index=" + text);
}

TEST(Cells, CandidatesMarksAndConflicts) {
    Cell c;
    c.reset(80);
    EXPECT_FALSE(c.keepOnlyPotentials({1, 2, 3, 4, 5, 6, 7, 8, 9, 12}) || c.isModified());  // nothing changed
    EXPECT_TRUE(c.setSinglePotential(4) && c.isModified());
    c.setModified(false);
    EXPECT_FALSE(c.setSinglePotential(4) || c.isModified());
    EXPECT_EQ(conflictKind([&] { c.setSinglePotential(5); }), 1);
    EXPECT_EQ(conflictKind([&] { c.setValue(0, 2); }), 0);  // 0 is never a candidate
    c.reset(45);
    EXPECT_TRUE(c.keepOnlyPotentials({2, 5, 0}) && c.mask() == 0x12u);
    EXPECT_FALSE(c.removePotential(3, false) || c.removeValues(eng_priv::bitOf(9)) || c.keepOnly(0x412));
    EXPECT_EQ(conflictKind([&] { c.removePotential(3, true); }), 2);
    EXPECT_TRUE(c.removePotential(2, true));
    EXPECT_EQ(conflictKind([&] { c.removePotential(5, true); }), 3);
}
