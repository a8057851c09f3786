// Hints: each rule reports the step its pass takes, the hint techniques on small positions, bad positions, and whole
// generated games solved by hints alone.
#include <gtest/gtest.h>

#include <chrono>
#include <set>
#include <sstream>

#include "BoardTestSupport.h"
#include "Hints.h"
#include "RuleSolver.h"

using namespace eng;
using eng_priv::BoardSnapshot;

namespace {

// Tokens "CELLS op DIGITS": ':' keeps only DIGITS, '-' removes them, '+' adds them, '=' sets the value (a hint
// position's candidates are first what its values leave); "clean" clears every changed mark.
template <typename F>
void forTokens(const std::string& text, F f) {
    std::istringstream in(text);
    for (std::string token; in >> token;) {
        if (token == "clean") continue;
        const size_t at = token.find_first_of(":-+=");
        std::istringstream cells(token.substr(0, at));
        for (std::string cell; std::getline(cells, cell, ',');)
            for (char d : token.substr(at + 1)) f(std::stoi(cell), token[at], d - '0');
    }
}

Position grid(const std::string& text) {
    Grid values{};
    forTokens(text, [&](int i, char op, int d) {
        if (op == '=') values[i] = d;
    });
    Position g = positionFromValues(values);
    for (char pass : {'1', '2'})
        forTokens(text, [&](int i, char op, int d) {
            if (pass == '1') g.candidates[i] &= op == ':' ? 0 : op == '-' ? ~(1u << (d - 1)) : ~0u;
            if (pass == '2' && (op == ':' || op == '+')) g.candidates[i] |= 1u << (d - 1);
        });
    return g;
}

// The same position for a rule's pass: every cell that lost a candidate carries the changed mark, unless "clean".
BoardSnapshot ruleSnapshot(const std::string& text) {
    const Position p = grid(text);
    BoardSnapshot s;
    for (int i = 0; i < 81; ++i) {
        s.cells[i].keepOnly(p.candidates[i]);
        if (text.find("clean") != std::string::npos) s.cells[i].setModified(false);
    }
    return s;
}

std::string join(const std::vector<int>& v) {
    std::string out;
    for (int x : v) out += (out.empty() ? "" : ",") + std::to_string(x);
    return out;
}

// A rule, a position from the rule tests, the step's technique, unit, basis and targets.
struct RuleStepCase { Rules rule; std::string position; Technique technique; int unit; std::string basis, targets; };
void PrintTo(const RuleStepCase& c, std::ostream* out) { *out << c.rule << " \"" << c.position << '"'; }

const RuleStepCase kRuleSteps[] = {
    {ruleSinglesRowOnly, "0:5", Technique::single, 0, "0", "1,2,3,4,5,6,7,8"},
    {ruleSinglesColOnly, "40:2", Technique::single, 13, "40", "4,13,22,31,49,58,67,76"},
    {ruleSinglesSquareOnly, "40:2", Technique::single, 22, "40", "30,31,32,39,41,48,49,50"},
    {ruleSinglesRowColOnly, "60,72:4", Technique::single, 6, "60", "54,55,56,57,58,59,61,62"},
    {ruleSingles, "0:5 9:56", Technique::single, 0, "0", "1,2,3,4,5,6,7,8"},
    {ruleDoubles, "0,1:37 5:379", Technique::nakedSubset, 0, "0,1", "2,3,4,5,6,7,8,9,10,11,18,19,20"},
    {ruleDoubles, "0,27:37", Technique::nakedSubset, 9, "0,27", "9,18,36,45,54,63,72"},
    {ruleTriples, "0:123 1:12 2:23", Technique::nakedSubset, 0, "0,1,2", "3,4,5,6,7,8"},
    {ruleQuads, "0:123 1:12 2:23", Technique::nakedSubset, 0, "0,1,2", "3,4,5,6,7,8"},
    {ruleQuads, "0:123 1:12 2:23 clean", Technique::none, -1, "", ""},
    {ruleTransitiveDoubles, "0:12 4:23 8:13", Technique::transitiveDoubles, 0, "0,4,8", "1,2,3,5,6,7"},
    {ruleTransitiveDoubles, "0:12 9:23 18:13", Technique::transitiveDoubles, 9, "0,9,18",
     "1,2,10,11,19,20,27,36,45,54,63,72"},
    {ruleLockedByRows, "1,3,4,5,6,7,8-5", Technique::claiming, 0, "0,2", "9,10,11,18,19,20"},
    {ruleLockedByCols, "22,31,40,49,58,67,76-2", Technique::claiming, 13, "4,13", "3,5,12,14,21,23"},
    {ruleLockedBySquares, "1,2,10,11,18,19,20-7", Technique::pointing, 18, "0,9", "27,36,45,54,63,72"},
    {ruleLockedBySquares, "60,61,69,70,71,78,79-3", Technique::pointing, 26, "62,80", "8,17,26,35,44,53"},
    {ruleHiddenSingles, "0,1,2,3,5,6,7,8-6 4:268", Technique::hiddenSubset, 0, "4", "4"},
    {ruleHiddenSingles, "0,1,2,3,5,6,7,8-6 clean", Technique::none, -1, "", ""},
    {ruleHiddenDoubles, "2,11,29,38,47,56,74-19", Technique::hiddenSubset, 11, "20,65", "20,65"},
    {ruleHiddenTriples, "73,74,75,77,78,79-123 76-3", Technique::hiddenSubset, 8, "72,76,80", "72,76,80"},
    {ruleHiddenQuads, "64,66,68,70,71-1234", Technique::hiddenSubset, 7, "63,65,67,69", "63,65,67,69"},
};

class RuleSteps : public ::testing::TestWithParam<RuleStepCase> {};

}  // namespace

// The step is reported without changing the position; taking the rule's steps until none is left gives what the
// rule's own pass gives.
TEST_P(RuleSteps, ReportedStepsAddUpToThePass) {
    const RuleStepCase& c = GetParam();
    BoardSnapshot s = ruleSnapshot(c.position), pass = s;
    Step step;
    const bool found = findRuleStep(c.rule, s, step);
    EXPECT_EQ(found, c.technique != Technique::none);
    EXPECT_EQ(step.technique, c.technique);
    EXPECT_EQ(step.unit, c.unit);
    EXPECT_EQ(join(step.basis), c.basis);
    EXPECT_EQ(join(step.targets()), c.targets);
    for (int i = 0; i < 81; ++i) ASSERT_EQ(s.cells[i].mask(), ruleSnapshot(c.position).cells[i].mask());
    eng_priv::RuleSolver(std::list<Rules>{c.rule}).applyAll(pass);
    for (int n = 0; n < 200 && findRuleStep(c.rule, s, step); ++n) applyStep(step, s);
    for (int i = 0; i < 81; ++i) EXPECT_EQ(s.cells[i].mask(), pass.cells[i].mask()) << "cell " << i;
}

INSTANTIATE_TEST_SUITE_P(Positions, RuleSteps, ::testing::ValuesIn(kRuleSteps));

namespace {

// A position, whether the hint places values, and the hint: technique, unit, digits, basis, targets, placement.
struct HintCase { std::string position; bool placeValue; Technique technique; int unit; std::string digits, basis, targets;
                  int cell, value; };
void PrintTo(const HintCase& c, std::ostream* out) { *out << '"' << c.position << '"'; }

const std::string kNakedSingle = "1=1 2=2 3=3 27=4 36=5 45=6 10=7 20=8";
const HintCase kHints[] = {
    {"0=1 1=2 2=3 3=4 4=5 5=6 6=7 7=8", true, Technique::lastEmptyCell, 0, "9", "0,1,2,3,4,5,6,7", "8", 8, 9},
    {"4=7 16=7 36=7 64=7", true, Technique::hiddenSingle, 18, "7", "0,1,2,4,9,10,11,16,18,19,36,64", "20", 20, 7},
    {kNakedSingle, true, Technique::nakedSingle, -1, "9", "1,2,3,10,20,27,36,45", "0", 0, 9},
    {"80=9 40=5 4+5", false, Technique::single, 13, "5", "40", "4", -1, 0},
    {"80=9 2,9,10,11,18,19,20-5", false, Technique::pointing, 18, "5", "0,1", "3,4,5,6,7,8", -1, 0},
    {"80=9 2,3,4,5,6,7,8-5", false, Technique::claiming, 0, "5", "0,1", "9,10,11,18,19,20", -1, 0},
    {"80=9 0,1:37", false, Technique::nakedSubset, 0, "3,7", "0,1", "2,3,4,5,6,7,8", -1, 0},
    {"80=9 2,11,29,38,47,56,74-19", false, Technique::hiddenSubset, 11, "1,9", "20,65", "20,65", -1, 0},
    {"80=9 0:12 1:23 2:13", false, Technique::nakedSubset, 0, "1,2,3", "0,1,2", "3,4,5,6,7,8", -1, 0},
};

class Hints : public ::testing::TestWithParam<HintCase> {};

}  // namespace

TEST_P(Hints, TheSimplestStepWithItsCells) {
    const HintCase& c = GetParam();
    const Hint h = findHint(grid(c.position), c.placeValue);
    ASSERT_EQ(h.outcome, Hint::found);
    EXPECT_EQ(h.step.technique, c.technique);
    EXPECT_EQ(h.step.unit, c.unit);
    EXPECT_EQ(join(h.step.digits), c.digits);
    EXPECT_EQ(join(h.step.basis), c.basis);
    EXPECT_EQ(join(h.step.targets()), c.targets);
    EXPECT_EQ(h.step.cell, c.cell);
    EXPECT_EQ(h.step.value, c.value);
}

INSTANTIATE_TEST_SUITE_P(Positions, Hints, ::testing::ValuesIn(kHints));

// Positions a hint cannot work on say why: complete, empty, a digit twice or nowhere in a unit, a cell emptied.
TEST(Hints, PositionsWithoutAStep) {
    Position complete;
    for (int i = 0; i < 81; ++i) complete.values[i] = (i / 9 * 3 + i / 27 + i % 9) % 9 + 1;
    EXPECT_EQ(findHint(complete, true).outcome, Hint::complete);
    EXPECT_EQ(findHint(Position(), true).outcome, Hint::empty);
    const struct { std::string position; Hint::Conflict conflict; int unit, cell, digit; } cases[] = {
        {"0=1 1=2 2=3 3=4 15=9 21=9", Hint::digitNowhere, 0, -1, 9},
        {"0=5 4=5", Hint::digitTwice, 0, -1, 5},
        {"80=9 40-123456789", Hint::cellEmptied, -1, 40, 0},
    };
    for (const auto& c : cases) {
        const Hint h = findHint(grid(c.position), false);
        EXPECT_EQ(h.outcome, Hint::contradiction) << c.position;
        EXPECT_EQ(std::make_tuple(h.conflict, h.unit, h.cell, h.digit), std::make_tuple(c.conflict, c.unit, c.cell, c.digit));
    }
    complete.values[0] = complete.values[1];
    EXPECT_EQ(findHint(complete, true).outcome, Hint::contradiction);
}

// Generated games of each level, hints carried out on the board (as make move places, as the player's toggles remove)
// until it is complete: with values alone every hint places the solution's digit; with pencil marks shown every hint
// is a correct placement or removal. SUDOKU_HINT_GAMES games per level (default 1000).
TEST(Hints, SolveGeneratedGames) {
    const char* env = std::getenv("SUDOKU_HINT_GAMES");
    const int games = env ? std::atoi(env) : 1000;
    std::set<Technique> seen;
    const auto start = std::chrono::steady_clock::now();
    int hints = 0;
    for (int level = lvlVeryEasy; level <= lvlHard; ++level) {
        for (int g = 0; g < games; ++g) {
            testing_support::seedRandom(static_cast<unsigned>(70000 + 1000 * level + g));
            Board board(nullptr);
            board.setPencilMarksRules(g % 2 ? std::list<Rules>{} : std::list<Rules>{ruleSingles});
            ASSERT_TRUE(board.generate(level));
            const bool placeValue = g % 2 == 0;
            while (!board.isComplete()) {
                const Hint h = findHint(positionOf(board), placeValue);
                ++hints;
                ASSERT_EQ(h.outcome, Hint::found) << "level " << level << " game " << g;
                seen.insert(h.step.technique);
                for (const Step& s : h.needed) seen.insert(s.technique);
                const int cell = h.step.places() ? h.step.cell : h.step.eliminations.front().first;
                const int solution = board.solutionValue(cell), other = solution % 9 + 1;
                // A wrong digit, or a removal of the solution's, is refused as a whole.
                ASSERT_FALSE(board.placeMove(cell, other) || board.removePotentials({{cell, other}, {cell, solution}}));
                if (h.step.places()) {
                    ASSERT_EQ(h.step.value, solution);
                    ASSERT_TRUE(board.placeMove(h.step.cell, h.step.value));
                } else {
                    ASSERT_FALSE(placeValue);
                    ASSERT_TRUE(board.removePotentials(h.step.eliminations));
                }
            }
        }
    }
    const double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    std::printf("%d games per level, %d hints, %.0f ms\n", games, hints, ms);
    // Rarer techniques come up only over many games.
    for (Technique t : {Technique::lastEmptyCell, Technique::hiddenSingle, Technique::nakedSingle, Technique::pointing,
                        Technique::claiming, Technique::nakedSubset, Technique::single})
        EXPECT_TRUE(seen.count(t) || games < 500) << static_cast<int>(t);
}
