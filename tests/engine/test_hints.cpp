// Hints: the hint techniques on small positions, positions without a step, and whole generated games solved by hints
// alone (each rule's own steps are checked beside its pass in the rule tests).
#include <gtest/gtest.h>

#include <set>

#include "BoardTestSupport.h"
#include "Hints.h"

using namespace eng;

namespace {

// Tokens "CELLS op DIGITS": '=' sets the value, then the candidates are what the values leave, and ':' keeps only
// DIGITS, '-' removes them, '+' adds them.
Position grid(const std::string& text) {
    Grid values{};
    testing_support::forTokens(text, [&](int i, char op, const std::list<int>& d) {
        if (op == '=') values[i] = d.front();
    });
    Position g = positionFromValues(values);
    testing_support::forTokens(text, [&](int i, char op, const std::list<int>& d) {
        unsigned bits = 0;
        for (int v : d) bits |= 1u << (v - 1);
        if (op == ':' || op == '+') g.candidates[i] = (op == '+' ? g.candidates[i] : 0) | bits;
        if (op == '-') g.candidates[i] &= ~bits;
    });
    return g;
}

// What a hint says: its step, or why there is none (a cell emptied, a digit twice or nowhere in a unit).
std::string said(const Hint& h) {
    const char* const conflicts[] = {"cell emptied", "digit twice", "digit nowhere"};
    if (h.outcome != Hint::contradiction)
        return h.outcome == Hint::found ? testing_support::describe(h.step) : std::to_string(h.outcome);
    return conflicts[h.conflict] + (' ' + std::to_string(h.unit)) + ' ' + std::to_string(h.cell) + ' ' +
           std::to_string(h.digit);
}

// A position, whether the hint places values, and what the hint says.
struct HintCase { std::string position; bool placeValue; std::string said; };
void PrintTo(const HintCase& c, std::ostream* out) { *out << '"' << c.position << '"'; }

const HintCase kHints[] = {
    {"0=1 1=2 2=3 3=4 4=5 5=6 6=7 7=8", true, "lastEmptyCell 0 9 0,1,2,3,4,5,6,7>8 8=9"},
    {"4=7 16=7 36=7 64=7", true, "hiddenSingle 18 7 0,1,2,4,9,10,11,16,18,19,36,64>20 20=7"},
    {"1=1 2=2 3=3 27=4 36=5 45=6 10=7 20=8", true, "nakedSingle -1 9 1,2,3,10,20,27,36,45>0 0=9"},
    {"80=9 40=5 4+5", false, "single 13 5 40>4"},
    {"80=9 2,9,10,11,18,19,20-5", false, "pointing 18 5 0,1>3,4,5,6,7,8"},
    {"80=9 2,3,4,5,6,7,8-5", false, "claiming 0 5 0,1>9,10,11,18,19,20"},
    {"80=9 0,1:37", false, "nakedSubset 0 3,7 0,1>2,3,4,5,6,7,8"},
    {"80=9 2,11,29,38,47,56,74-19", false, "hiddenSubset 11 1,9 20,65>20,65"},
    {"80=9 0:12 1:23 2:13", false, "nakedSubset 0 1,2,3 0,1,2>3,4,5,6,7,8"},
    {"0=1 1=2 2=3 3=4 15=9 21=9", false, "digit nowhere 0 -1 9"},
    {"0=5 4=5", false, "digit twice 0 -1 5"},
    {"80=9 40:", false, "cell emptied -1 40 0"},
    {"", true, std::to_string(Hint::empty)},
};

class Hints : public ::testing::TestWithParam<HintCase> {};

}  // namespace

TEST_P(Hints, TheSimplestStepWithItsCellsOrWhyThereIsNone) {
    EXPECT_EQ(said(findHint(grid(GetParam().position), GetParam().placeValue)), GetParam().said);
}

INSTANTIATE_TEST_SUITE_P(Positions, Hints, ::testing::ValuesIn(kHints));

// A complete grid has nothing to hint; with a digit twice it contradicts itself.
TEST(Hints, CompleteGrids) {
    Position complete;
    for (int i = 0; i < 81; ++i) complete.values[i] = (i / 9 * 3 + i / 27 + i % 9) % 9 + 1;
    EXPECT_EQ(findHint(complete, true).outcome, Hint::complete);
    complete.values[0] = complete.values[1];
    EXPECT_EQ(findHint(complete, true).outcome, Hint::contradiction);
}

// Generated games of each level, hints carried out on the board (as make move places, as the player's toggles remove)
// until it is complete: with values alone every hint places the solution's digit; with pencil marks shown every hint
// is a correct placement or removal. SUDOKU_HINT_GAMES games per level (default 1000).
TEST(Hints, SolveGeneratedGames) {
    const int games = std::getenv("SUDOKU_HINT_GAMES") ? std::atoi(std::getenv("SUDOKU_HINT_GAMES")) : 1000;
    std::set<Technique> seen;
    for (int level = lvlVeryEasy; level <= lvlHard; ++level) {
        for (int g = 0; g < games; ++g) {
            testing_support::seedRandom(static_cast<unsigned>(70000 + 1000 * level + g));
            Board board(nullptr);
            board.setPencilMarksRules(g % 2 ? std::list<Rules>{} : std::list<Rules>{ruleSingles});
            ASSERT_TRUE(board.generate(level));
            while (!board.isComplete()) {
                const Hint h = findHint(positionOf(board), g % 2 == 0);
                ASSERT_EQ(h.outcome, Hint::found) << "level " << level << " game " << g;
                seen.insert(h.step.technique);
                for (const Step& s : h.needed) seen.insert(s.technique);
                const int cell = h.step.places() ? h.step.cell : h.step.eliminations.front().first;
                const int solution = board.solutionValue(cell), other = solution % 9 + 1;
                // A wrong digit, or a removal of the solution's, is refused as a whole.
                ASSERT_FALSE(board.placeMove(cell, other) || board.removePotentials({{cell, other}, {cell, solution}}));
                ASSERT_EQ(h.step.value, h.step.places() ? solution : 0);
                ASSERT_TRUE(h.step.places() ? board.placeMove(cell, h.step.value)
                                            : g % 2 && board.removePotentials(h.step.eliminations));
            }
        }
    }
    // Rarer techniques come up only over many games.
    for (Technique t : {Technique::lastEmptyCell, Technique::hiddenSingle, Technique::nakedSingle, Technique::pointing,
                        Technique::claiming, Technique::nakedSubset, Technique::single})
        EXPECT_TRUE(seen.count(t) || games < 500) << static_cast<int>(t);
}
