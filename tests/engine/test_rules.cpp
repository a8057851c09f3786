// The rule families on hand-built positions: what they clear and skip, which contradiction is first, how passes chain.
#include <gtest/gtest.h>

#include <algorithm>

#include "BoardTestSupport.h"
#include "Conflicts.h"
#include "Hints.h"
#include "RuleSolver.h"

using namespace eng;
using eng_priv::BoardSnapshot;
using eng_priv::RuleSolver;

namespace {

// Tokens "CELLS op DIGITS". Position: ':' keeps only DIGITS, '-' removes them, '*' places (narrowed, set), '=' sets the
// value alone, '!' '~' set and clear the changed mark, "clean" clears all. Expected: ':' exactly, '+' all, '-' none.
BoardSnapshot position(const std::string& text) {
    BoardSnapshot s;
    testing_support::forTokens(text, [&](int i, char op, const std::list<int>& d) {
        for (auto& c : s.cells) c.setModified(c.isModified() && i >= 0);
        if (op == ':') s.cells[i].keepOnlyPotentials(d);
        if (op == '!' || op == '~') s.cells[i].setModified(op == '!');
        for (int v : d) {
            if (op == '-') s.cells[i].removePotential(v, true);
            if (op == '*') s.cells[i].setSinglePotential(v);
            if (op == '*' || op == '=') s.cells[i].setValue(v, 2);
        }
    });
    return s;
}

std::string mismatches(const BoardSnapshot& s, const std::string& text) {
    std::string out;
    testing_support::forTokens(text, [&](int i, char op, const std::list<int>& d) {
        std::list<int> have;  // the candidates, or for '-' the values that are none
        for (int v = 1; v <= 9 && i >= 0; ++v)
            if (s.cells[i].isPotential(v) == (op != '-')) have.push_back(v);
        if (op == ':' ? have != d : !std::includes(have.begin(), have.end(), d.begin(), d.end()))
            out += " cell " + std::to_string(i) + op;
    });
    return out;
}

// The pass's result: "changed", "unchanged" or the contradiction it met.
std::string run(BoardSnapshot& s, const std::list<Rules>& rules) try {
    return RuleSolver(rules).applyAll(s) ? "changed" : "unchanged";
} catch (ExCellConflict& e) {
    return e.kind == 3 ? "emptied " + std::to_string(e.cellIndex) : e.describe();
} catch (ExTupleConflict& e) { return e.describe(); }

// Position, rules, cells afterwards, (one rule) its first step as a hint, the result (or changed iff cells expected).
struct RuleCase { std::string position; std::list<Rules> rules; std::string expected = "", step = "", result = ""; };
void PrintTo(const RuleCase& c, std::ostream* out) { *out << '"' << c.position << '"'; }

std::string tooMany(bool cells, const std::string& tuple, const std::string& values, const std::string& at) {
    return "Conflict: On " + tuple + ": cannot distribute values: " + values + " to cells: " + at +
           (cells ? "  (too many cells, to few values)" : "  (too many values, to few cells)");
}

const std::string kColumn1 = tooMany(true, "column 1", "7, 8, 9", "0th, 3rd, 6th, 8th");
const RuleCase kCases[] = {
    // Singles: the mask selects row, column and square.
    {"0:5", {ruleSinglesRowOnly}, "1-5 9,10,0+5", "single 0 5 0>1,2,3,4,5,6,7,8"},
    {"40:2", {ruleSinglesColOnly}, "4,76-2 39,30+2", "single 13 2 40>4,13,22,31,49,58,67,76"},
    {"40:2", {ruleSinglesSquareOnly}, "30,31,32,39,41,48,49,50-2 36,4+2", "single 22 2 40>30,31,32,39,41,48,49,50"},
    {"0*4 60,72:4", {ruleSinglesRowOnly}, "60,72:4"}, {"0*4 60,72:4", {ruleSinglesColOnly}, "", "", "emptied 72"},
    {"60,72:4", {ruleSinglesRowColOnly}, "54,62,6,0,80,73-4 40,64+4", "single 6 4 60>54,55,56,57,58,59,61,62"},
    // The list: unknown values do nothing; a later success reruns earlier rules.
    {"0:5", {static_cast<Rules>(5), ruleSinglesRowOnly}, "8-5"},
    {"0:5 9:56", {ruleSinglesRowOnly, ruleSinglesColOnly}, "10-6"},
    {"0:5 9:56", {ruleSingles}, "0:5 9:6 1,8,10-5 10,18,1-6", "single 0 5 0>1,2,3,4,5,6,7,8"},
    {"0:5 8:57 17:7", {ruleSinglesRowOnly, ruleSinglesColOnly}, "1,8,9-5", "", "emptied 17"},
    {"0,1,2,3,5,6,7,8-6", {ruleSingles, ruleHiddenSingles}, "4:6 13,76-6"},
    // Naked pairs.
    {"0,1:37 5:379", {ruleDoubles}, "5:9 19-3 36+3 0:37", "nakedSubset 0 3,7 0,1>2,3,4,5,6,7,8,9,10,11,18,19,20"},
    {"0,40:37", {ruleDoubles}}, {"0,9:37", {ruleDoubles}, "72-3 20-7 3+7"}, {"0:37 0=3 1:37", {ruleDoubles}},
    {"0,27:37", {ruleDoubles}, "9,18,36,45,54,63,72:1245689 1+3 10+7", "nakedSubset 9 3,7 0,27>9,18,36,45,54,63,72"},
    {"0,10:37 20:17", {ruleDoubles}, "20:1 28+3 12+7"}, {"0,1,2:37", {ruleDoubles}, "", "", "emptied 2"},
    // Naked triples and quads search only tuples with a changed cell.
    {"0:123 1:12 2:23 clean", {ruleTriples}}, {"0:123 1:12 2:23 clean", {ruleQuads}},
    {"0:123 1:12 2:23", {ruleTriples}, "3,4,5,6,7,8:456789", "nakedSubset 0 1,2,3 0,1,2>3,4,5,6,7,8"},
    {"0:123 1:12 2:23 clean 8!", {ruleTriples}, "4-2 9+2"},
    {"0:123 1:12 2:23", {ruleQuads}, "3,4,5,6,7,8:456789", "nakedSubset 0 1,2,3 0,1,2>3,4,5,6,7,8"},
    {"0:123 1*1 2:23", {ruleTriples}, "3,4,5,6,7,8:456789 27+2 19-2"},
    {"0:456 2:45 4:56 7:46", {ruleTriples}, "", "", tooMany(true, "row 1", "4, 5, 6", "0th, 2nd, 4th, 7th")},
    {"30:456 32:45 40:6 50:56", {ruleTriples}, "", "", tooMany(true, "square 5", "4, 5, 6", "0th, 2nd, 4th, 8th")},
    // Column 0 comes before row 1 and before square 0.
    {"9:123 10:12 11:23 12:13 0:789 27:78 54:89 72:79", {ruleTriples}, "", "", kColumn1},
    {"0:789 27:78 54:89 72:79 10:78 11:89 19:79", {ruleTriples}, "", "", kColumn1},
    // Transitive pairs: a chain of three pairs; marks play no part.
    {"0:12 4:23 8:13", {ruleTransitiveDoubles}, "1,2,3,5,6,7:456789 4:23",
     "transitiveDoubles 0 1,2,3 0,4,8>1,2,3,5,6,7"},
    {"0:12 4:23 8:13 clean", {ruleTransitiveDoubles}, "5-3"}, {"0:12 40:23 80:13", {ruleTransitiveDoubles}},
    {"0:12 9:23 18:13", {ruleTransitiveDoubles}, "27,72,1,11,20:456789 3+1",
     "transitiveDoubles 9 1,2,3 0,9,18>1,2,10,11,19,20,27,36,45,54,63,72"},
    {"0:12 1:23 2,6:13", {ruleTransitiveDoubles}, "", "", "emptied 6"},
    // Locked candidates.
    {"1,3,4,5,6,7,8-5", {ruleLockedByRows}, "9,10,11,18,19,20-5 27+5", "claiming 0 5 0,2>9,10,11,18,19,20"},
    {"36,37,38,40,42,43,44-8", {ruleLockedByRows}, "30,31,32,48,49,50-8 39,41,33+8"},
    {"22,31,40,49,58,67,76-2", {ruleLockedByCols}, "3,5,12,14,21,23-2", "claiming 13 2 4,13>3,5,12,14,21,23"},
    {"1,2,10,11,18,19,20-7", {ruleLockedBySquares}, "27,36,45,54,63,72-7", "pointing 18 7 0,9>27,36,45,54,63,72"},
    {"30,31,32,41,48,49,50-8", {ruleLockedBySquares}, "36,37,38,42,43,44-8 4+8"},
    {"60,61,69,70,71,78,79-3", {ruleLockedBySquares}, "8,17,26,35,44,53-3 59,62+3",
     "pointing 26 3 62,80>8,17,26,35,44,53"},
    // Hidden subsets.
    {"0,1,2,3,5,6,7,8-6 4:268", {ruleHiddenSingles}, "4:6 3+2 13+6", "hiddenSubset 0 6 4>4"},
    {"0,1,2,3,5,6,7,8-6 clean", {ruleHiddenSingles}}, {"30,31,32,39,41,48,49,50-9", {ruleHiddenSingles}, "40:9 4+9"},
    {"0,1,2,3,5,6,7,8-6 4=6", {ruleHiddenSingles}, "4:123456789", "", "unchanged"},
    {"0,1,2,3,5,6,7,8-36", {ruleHiddenSingles}, "", "", tooMany(false, "row 1", "3, 6", "4th")},
    {"0,18,27,36,45,54,63,72-39 9,10,11,12,13,14,15,16-45", {ruleHiddenSingles}, "", "",
     tooMany(false, "column 1", "3, 9", "1st")},
    {"0,18,27,36,45,54,63,72-39 9,10,11,12,13,14,15,16-45 0,1,2,3,4,6,7,8-45", {ruleHiddenSingles}, "", "",
     tooMany(false, "row 1", "4, 5", "5th")},
    {"2,11,29,38,47,56,74-19 clean", {ruleHiddenDoubles}},
    {"2,11,29,38,47,56,74-19", {ruleHiddenDoubles}, "20,65:19", "hiddenSubset 11 1,9 20,65>20,65"},
    {"1,2,3,4,5,6,7,8-19", {ruleHiddenDoubles}, "", "", "emptied 1"},
    {"73,74,75,77,78,79-123 76-3", {ruleHiddenTriples}, "72,80:123 76:12 73:456789",
     "hiddenSubset 8 1,2,3 72,76,80>72,76,80"},
    {"64,66,68,70,71-1234", {ruleHiddenQuads}, "63,65,67,69:1234", "hiddenSubset 7 1,2,3,4 63,65,67,69>63,65,67,69"},
};

class RuleCases : public ::testing::TestWithParam<RuleCase> {};

}  // namespace

TEST_P(RuleCases, ClearWhatTheRuleAllows) {
    const RuleCase& c = GetParam();
    BoardSnapshot s = position(c.position), steps = s;
    const std::string result = !c.result.empty() ? c.result : c.expected.empty() ? "unchanged" : "changed";
    EXPECT_EQ(run(s, c.rules), result);
    EXPECT_EQ(mismatches(s, c.expected), "");
    if (result == "changed") { EXPECT_EQ(run(s, c.rules), "unchanged"); }  // the pass is complete
    if (c.rules.size() > 1) return;
    // A step iff the pass removes a candidate (none when a unit cannot be filled); all steps add up to the pass.
    Step step;
    bool found = findRuleStep(c.rules.front(), steps, step);
    EXPECT_EQ(found, result == "changed" || result.rfind("emptied", 0) == 0);
    if (!c.step.empty()) { EXPECT_EQ(found ? testing_support::describe(step) : "no step", c.step); }
    if (result.find("changed") == std::string::npos) return;  // a contradiction: the pass stopped partway
    for (int n = 0; n < 200 && found; ++n, found = findRuleStep(c.rules.front(), steps, step)) applyStep(step, steps);
    for (int i = 0; i < 81; ++i) EXPECT_EQ(steps.cells[i].mask(), s.cells[i].mask()) << "cell " << i;
}

INSTANTIATE_TEST_SUITE_P(Positions, RuleCases, ::testing::ValuesIn(kCases));

TEST(RulePass, PresetsAndFromValues) {
    EXPECT_EQ(RuleSolver::preset(0), std::list<Rules>{ruleSinglesRowColOnly});
    EXPECT_EQ(RuleSolver::preset(4), (std::list<Rules>{ruleSingles, ruleDoubles, ruleTransitiveDoubles, ruleTriples}));
    EXPECT_TRUE(RuleSolver::preset(5).empty());
    BoardSnapshot s = position("40:12 0*3");  // candidates are recomputed from the values
    RuleSolver(1).applyAllFromValues(s);
    EXPECT_EQ(mismatches(s, "40:123456789 0:3 8-3") + std::to_string(s.cells[0].origin()), "2");
}
