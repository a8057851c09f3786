#pragma once
// Helpers for the rule tests: hand-built positions and running a rule list.

#include <list>
#include <string>

#include "Conflicts.h"
#include "RuleSolver.h"

namespace rule_test {

using eng_priv::BoardSnapshot;

inline void keep(BoardSnapshot& s, int cell, std::list<int> values) { s.cells[cell].keepOnlyPotentials(values); }

inline std::list<int> candidates(const BoardSnapshot& s, int cell) {
    std::list<int> out;
    for (int v = 1; v <= 9; ++v)
        if (s.cells[cell].isPotential(v)) out.push_back(v);
    return out;
}

inline void clearMarks(BoardSnapshot& s) {
    for (auto& c : s.cells) c.setModified(false);
}

inline bool run(BoardSnapshot& s, std::list<eng::Rules> rules) { return eng_priv::RuleSolver(rules).applyAll(s); }

// Runs the rules and returns the description of the conflict they raise.
inline std::string conflictText(BoardSnapshot& s, std::list<eng::Rules> rules) {
    try {
        run(s, rules);
    } catch (eng::ExCellConflict& e) {
        return e.describe();
    } catch (eng::ExTupleConflict& e) {
        return e.describe();
    }
    return "no conflict";
}

}  // namespace rule_test
