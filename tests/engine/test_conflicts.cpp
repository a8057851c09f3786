// The texts of cell conflicts (tuple texts are checked with the rules that raise them).
#include <gtest/gtest.h>

#include "Conflicts.h"

TEST(Conflicts, CellDescriptions) {
    const std::string unknown = "Unknown conflict type. Please report this error.";
    const std::pair<eng::ExCellConflict, std::string> cases[] = {
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
