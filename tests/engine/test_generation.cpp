// Game generation: every level is graded by the rules that can and cannot
// solve it, and the givens always agree with a valid stored solution.
#include <gtest/gtest.h>

#include "BoardTestSupport.h"

using namespace eng;
using testing_support::RecordingObserver;

namespace {

std::vector<int> solutionGrid(const Board& b) {
    std::vector<int> out;
    for (int i = 0; i < 81; ++i) out.push_back(b.solutionValue(i));
    return out;
}

void expectGivensAgreeWithSolution(const Board& b) {
    ASSERT_TRUE(testing_support::isValidCompleteGrid(solutionGrid(b)));
    for (int i = 0; i < 81; ++i) {
        const CellInfo* c = b.cell(i);
        if (c->value() != 0) {
            EXPECT_EQ(c->value(), b.solutionValue(i)) << "cell " << i;
            EXPECT_EQ(c->origin(), originGiven) << "cell " << i;
        }
    }
}

class GradedLevels : public ::testing::TestWithParam<int> {};

}  // namespace

TEST_P(GradedLevels, PuzzlesAreGradedAndConsistent) {
    const int level = GetParam();
    for (unsigned seed = 100; seed < 106; ++seed) {
        testing_support::seedRandom(seed);
        RecordingObserver observer;
        Board board(&observer);
        board.setPencilMarksRules({ruleSingles});
        ASSERT_TRUE(board.generate(level)) << "seed " << seed;
        EXPECT_EQ(board.getPhase(), 3);
        EXPECT_EQ(board.getLevel(), level);
        EXPECT_LE(board.getAttempt(), 14);
        EXPECT_EQ(board.historySize(), 2u);
        EXPECT_EQ(observer.count("cellsChanged"), 1);
        EXPECT_EQ(observer.calls.size(), 1u);
        expectGivensAgreeWithSolution(board);
        EXPECT_FALSE(board.isComplete());
        // Never solved by the next easier preset, always by the level's own.
        if (level >= lvlEasy) {
            EXPECT_FALSE(testing_support::presetSolvesValues(board, level - 2));
        }
        EXPECT_TRUE(testing_support::presetSolvesValues(board, level == lvlVeryEasy ? 0 : level - 1));
    }
}

INSTANTIATE_TEST_SUITE_P(Levels, GradedLevels,
                         ::testing::Values(int(lvlVeryEasy), int(lvlEasy), int(lvlMedium), int(lvlHard)));

TEST(Generation, CompletedUserEditRepeatedAndUnknownLevels) {
    testing_support::seedRandom(5);
    RecordingObserver observer;
    Board board(&observer);
    EXPECT_FALSE(board.generate(6));
    EXPECT_FALSE(board.generate(-1));
    EXPECT_EQ(board.historySize(), 0u);
    ASSERT_TRUE(board.generate(lvlCompleted));
    EXPECT_TRUE(board.isComplete());
    expectGivensAgreeWithSolution(board);
    EXPECT_EQ(testing_support::filledCount(board), 81);

    // A new game replaces the old one entirely, undone moves included.
    ASSERT_TRUE(board.generate(lvlEasy));
    ASSERT_TRUE(board.makeMove());
    ASSERT_TRUE(board.retract());
    EXPECT_EQ(board.undoneSize(), 1u);
    observer.clear();
    ASSERT_TRUE(board.generate(lvlUserEdit));  // always succeeds, empty
    EXPECT_EQ(board.undoneSize(), 0u);
    EXPECT_EQ(board.historySize(), 1u);
    EXPECT_TRUE(board.solution().forbidden);
    EXPECT_EQ(board.solutionValue(0), 0);
    EXPECT_EQ(board.getPhase(), 3);
    EXPECT_EQ(observer.count("cellsChanged"), 1);
    EXPECT_EQ(testing_support::filledCount(board), 0);
    ASSERT_TRUE(board.generate(lvlHard));
    EXPECT_FALSE(board.solution().forbidden);
    expectGivensAgreeWithSolution(board);
}
