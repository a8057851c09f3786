#pragma once
// A complete solver for checking puzzles that come from outside the engine
// (pasted or typed): it counts solutions, stopping at a limit, and never gives
// up. Generation and make move keep their own search.

#include "Grid.h"

namespace eng {

class ExactSolver {
public:
    // The number of solutions of the givens, counted up to `limit`; the first
    // one found goes to `solution` when it is not null. Givens that break a
    // row, column or square have none.
    static int countSolutions(const Grid& givens, Grid* solution = nullptr, int limit = 2);
    // True when a value outside 0-9 is given, or a row, column or square holds a value twice.
    static bool givensConflict(const Grid& givens);
};

}  // namespace eng
