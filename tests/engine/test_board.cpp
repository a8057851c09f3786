// The board facade: placing values, pencil marks, rules, history and make move.
#include <gtest/gtest.h>

#include <algorithm>

#include "BoardTestSupport.h"

using namespace eng;
using testing_support::RecordingObserver;

namespace {

// An Easy game from a fixed seed; the player's rules clear rows only, so
// empty cells keep several candidates.
struct GeneratedGame : ::testing::Test {
    RecordingObserver observer;
    Board board{&observer};

    void SetUp() override {
        testing_support::seedRandom(1234);
        board.setPencilMarksRules({ruleSinglesRowOnly});
        ASSERT_TRUE(board.generate(lvlEasy));
        observer.clear();
    }

    int firstEmpty() const {
        for (int i = 0; i < 81; ++i)
            if (board.cell(i)->value() == 0) return i;
        return -1;
    }
};

struct UserEditGame : ::testing::Test {
    RecordingObserver observer;
    Board board{&observer};

    void SetUp() override {
        board.setPencilMarksRules({ruleSingles});
        ASSERT_TRUE(board.generate(lvlUserEdit));
        observer.clear();
    }
};

}  // namespace

TEST(BoardWithoutGame, OperationsDoNothing) {
    RecordingObserver observer;
    Board board(&observer);
    EXPECT_FALSE(board.setValue(0, 1));
    EXPECT_FALSE(board.togglePotential(0, 1));
    EXPECT_FALSE(board.makeMove());
    EXPECT_FALSE(board.retract());
    EXPECT_FALSE(board.isComplete());
    board.applyPencilMarksRule(ruleSingles);
    board.setPencilMarksRules({ruleSingles, ruleDoubles});
    EXPECT_TRUE(observer.calls.empty());
    EXPECT_EQ(board.historySize(), 0u);
    EXPECT_EQ(board.getPhase(), 0);
    Board silent(nullptr);  // a board without observer works silently
    ASSERT_TRUE(silent.generate(lvlUserEdit));
    EXPECT_TRUE(silent.setValue(0, 5));
    EXPECT_FALSE(silent.setValue(1, 5));
    EXPECT_TRUE(silent.makeMove());
    EXPECT_TRUE(silent.retract());
}

TEST_F(GeneratedGame, ValuesAreCheckedAgainstTheSolution) {
    const int i = firstEmpty();
    const int v = board.solutionValue(i);
    const int wrong = v % 9 + 1;
    EXPECT_EQ(board.cell(81), nullptr);
    EXPECT_EQ(board.cell(-1), nullptr);
    for (int refused : {wrong, 0, 10}) EXPECT_FALSE(board.setValue(i, refused));
    ASSERT_EQ(observer.calls.size(), 3u);
    EXPECT_EQ(observer.calls[0].what, "valueRefused");
    EXPECT_EQ(observer.calls[0].a, i);
    EXPECT_EQ(observer.calls[0].b, wrong);
    EXPECT_EQ(observer.count("valueRefused"), 3);
    EXPECT_EQ(board.historySize(), 2u);
    EXPECT_EQ(board.cell(i)->value(), 0);
    observer.clear();
    ASSERT_TRUE(board.setValue(i, v));
    EXPECT_EQ(board.cell(i)->value(), v);
    EXPECT_EQ(board.cell(i)->origin(), originPlayer);
    EXPECT_EQ(board.historySize(), 3u);
    ASSERT_EQ(observer.count("cellsChanged"), 1);
    EXPECT_EQ(observer.calls[0].a, 81);
    EXPECT_EQ(observer.lastValues[i], v);
}

TEST_F(GeneratedGame, ReenteringAValueMakesANewPositionWithTheNewOrigin) {
    ASSERT_TRUE(board.makeMove());
    int hinted = -1;
    for (int k = 0; k < 81; ++k)
        if (board.cell(k)->origin() == originMove) hinted = k;
    ASSERT_GE(hinted, 0);
    EXPECT_EQ(board.cell(hinted)->value(), board.solutionValue(hinted));
    const size_t before = board.historySize();
    ASSERT_TRUE(board.setValue(hinted, board.solutionValue(hinted)));
    EXPECT_EQ(board.historySize(), before + 1);
    EXPECT_EQ(board.cell(hinted)->origin(), originPlayer);
}

TEST_F(GeneratedGame, PencilMarkToggles) {
    int i = firstEmpty();
    while (testing_support::candidateCount(board.cell(i)) < 2) ++i;
    const int solution = board.solutionValue(i);
    const CellInfo* cell = board.cell(i);
    // Removing the solution's value is refused.
    if (cell->isPotential(solution)) {
        EXPECT_FALSE(board.togglePotential(i, solution));
        EXPECT_EQ(observer.calls.back().what, "potentialRefused");
        EXPECT_TRUE(board.cell(i)->isPotential(solution));
    }
    // Removing another one changes the current position in place.
    int other = 0;
    for (int v = 1; v <= 9; ++v)
        if (v != solution && board.cell(i)->isPotential(v)) other = v;
    ASSERT_NE(other, 0);
    EXPECT_TRUE(board.togglePotential(i, other));
    EXPECT_FALSE(board.cell(i)->isPotential(other));
    EXPECT_EQ(board.historySize(), 2u);
    // Adding it back never fails and never runs rules.
    EXPECT_TRUE(board.togglePotential(i, other));
    EXPECT_TRUE(board.cell(i)->isPotential(other));
    EXPECT_EQ(board.historySize(), 2u);
    EXPECT_FALSE(board.togglePotential(i, 0));
    EXPECT_FALSE(board.togglePotential(81, 1));
}

TEST_F(GeneratedGame, RetractedPositionsComeBackNewestFirstOnTopOfNewEntries) {
    const auto puzzle = testing_support::values(board);
    ASSERT_TRUE(board.retract());  // the empty first position
    EXPECT_EQ(testing_support::filledCount(board), 0);
    EXPECT_EQ(observer.count("cellsChanged"), 1);
    EXPECT_FALSE(board.retract());
    ASSERT_TRUE(board.makeMove());
    EXPECT_EQ(testing_support::values(board), puzzle);
    ASSERT_TRUE(board.makeMove());
    const auto afterFirst = testing_support::values(board);
    ASSERT_TRUE(board.makeMove());
    const auto afterSecond = testing_support::values(board);
    ASSERT_TRUE(board.retract());
    ASSERT_TRUE(board.retract());
    // A new entry, then make move twice: the retracted positions return.
    int i = firstEmpty();
    while (afterSecond[i] != 0 || afterFirst[i] != 0) ++i;
    ASSERT_TRUE(board.setValue(i, board.solutionValue(i)));
    const size_t before = board.historySize();
    ASSERT_TRUE(board.makeMove());
    EXPECT_EQ(testing_support::values(board), afterFirst);
    ASSERT_TRUE(board.makeMove());
    EXPECT_EQ(testing_support::values(board), afterSecond);
    EXPECT_EQ(board.historySize(), before + 2);
    EXPECT_EQ(board.undoneSize(), 0u);
}

TEST_F(GeneratedGame, HintsFollowTheSolutionUntilTheBoardIsComplete) {
    int moves = 0;
    while (!board.isComplete() && moves < 81) {
        ASSERT_TRUE(board.makeMove());
        ++moves;
    }
    ASSERT_TRUE(board.isComplete());
    for (int i = 0; i < 81; ++i) EXPECT_EQ(board.cell(i)->value(), board.solutionValue(i));
    observer.clear();
    EXPECT_FALSE(board.makeMove());
    ASSERT_EQ(observer.calls.size(), 1u);
    EXPECT_EQ(observer.calls[0].what, "noMoreMoves");
    EXPECT_EQ(observer.calls[0].a, 81);
}

TEST_F(GeneratedGame, PlayerRulesAreAppliedOnlyWhenTheyChangeSomething) {
    board.setPencilMarksRules({ruleSinglesRowOnly});  // the puzzle is already narrowed by it
    EXPECT_EQ(observer.count("cellsChanged"), 0);
    EXPECT_EQ(board.historySize(), 2u);
    board.applyPencilMarksRule(static_cast<Rules>(5));
    EXPECT_EQ(board.historySize(), 2u);
    // A rule that removes candidates pushes a position and reports it once;
    // the stored list is not changed by applying a single rule.
    board.applyPencilMarksRule(ruleSingles);
    EXPECT_EQ(board.historySize(), 3u);
    EXPECT_EQ(observer.count("cellsChanged"), 1);
    EXPECT_EQ(board.pencilMarksRulesList(), std::list<Rules>{ruleSinglesRowOnly});
    ASSERT_TRUE(board.retract());
    board.setPencilMarksRules({ruleSingles});
    EXPECT_EQ(board.historySize(), 3u);
    EXPECT_EQ(board.pencilMarksRulesList(), std::list<Rules>{ruleSingles});
}

TEST(BoardRules, EmptyPlayerRulesLeaveNineCandidatesInEmptyCells) {
    testing_support::seedRandom(99);
    Board board(nullptr);
    board.setPencilMarksRules({});
    ASSERT_TRUE(board.generate(lvlVeryEasy));
    for (int i = 0; i < 81; ++i) EXPECT_EQ(testing_support::candidateCount(board.cell(i)), board.cell(i)->value() ? 1 : 9) << i;
}

TEST_F(UserEditGame, OnlyContradictoryValuesAreRefusedNoRulesOnTheFirstPosition) {
    EXPECT_EQ(board.solution().solution, nullptr);
    EXPECT_FALSE(board.retract());
    board.togglePotential(0, 5);  // in place: the only position
    observer.clear();
    board.applyPencilMarksRule(ruleSingles);
    EXPECT_TRUE(observer.calls.empty());
    EXPECT_EQ(board.historySize(), 1u);
    board.togglePotential(0, 5);
    EXPECT_TRUE(board.setValue(0, 5));
    EXPECT_EQ(board.cell(0)->origin(), originPlayer);
    // Same row, same column, same square.
    for (int i : {8, 72, 10}) EXPECT_FALSE(board.setValue(i, 5));
    EXPECT_EQ(observer.count("valueRefused"), 3);
    EXPECT_TRUE(board.setValue(40, 5));
    EXPECT_EQ(board.historySize(), 3u);
}

TEST_F(UserEditGame, RemovingACandidateIsCheckedForConsistency) {
    // With only the first position the removal is made in place.
    EXPECT_TRUE(board.togglePotential(3, 4));
    EXPECT_EQ(board.historySize(), 1u);
    ASSERT_TRUE(board.setValue(0, 1));
    // Now every removal pushes a new position.
    EXPECT_TRUE(board.togglePotential(3, 7));
    EXPECT_EQ(board.historySize(), 3u);
    // Cells 20 and 21 hold the pair {5, 6}, cell 22 {5, 6, 7}: taking 7 from
    // cell 22 leaves three cells for two values, which the consistency check sees.
    auto keepOnly = [&](int cell, std::initializer_list<int> keep) {
        for (int v = 1; v <= 9; ++v)
            if (std::find(keep.begin(), keep.end(), v) == keep.end() && board.cell(cell)->isPotential(v)) {
                ASSERT_TRUE(board.togglePotential(cell, v)) << cell << " " << v;
            }
    };
    keepOnly(20, {5, 6});
    keepOnly(21, {5, 6});
    keepOnly(22, {5, 6, 7});
    size_t before = board.historySize();
    EXPECT_FALSE(board.togglePotential(22, 7));
    EXPECT_EQ(board.historySize(), before);
    EXPECT_EQ(observer.calls.back().what, "potentialRefused");
    EXPECT_TRUE(board.cell(22)->isPotential(7));
    // A removal that empties the cell in the copy is refused as well.
    keepOnly(30, {4});
    before = board.historySize();
    EXPECT_FALSE(board.togglePotential(30, 4));
    EXPECT_EQ(board.historySize(), before);
}

TEST_F(UserEditGame, LastCandidateCannotBeRemovedInPlace) {
    for (int v = 1; v <= 8; ++v) ASSERT_TRUE(board.togglePotential(0, v));
    EXPECT_FALSE(board.togglePotential(0, 9));
    EXPECT_TRUE(board.cell(0)->isPotential(9));
}

TEST_F(UserEditGame, MakeMoveSearchesAMove) {
    ASSERT_TRUE(board.setValue(0, 1));
    ASSERT_TRUE(board.setValue(40, 2));
    ASSERT_TRUE(board.makeMove());
    EXPECT_EQ(testing_support::filledCount(board), 3);
    int moved = 0;
    for (int i = 0; i < 81; ++i) moved += board.cell(i)->origin() == originMove;
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(observer.count("cellsChanged"), 3);
}

TEST_F(UserEditGame, MakeMoveCompletesAnEnteredGrid) {
    testing_support::seedRandom(31);
    Board source(nullptr);
    ASSERT_TRUE(source.generate(lvlCompleted));
    const auto grid = testing_support::values(source);
    for (int i = 0; i < 81; ++i) {
        if (i % 5 != 0) {
            ASSERT_TRUE(board.setValue(i, grid[i]));
        }
    }
    int moves = 0;
    while (!board.isComplete() && moves < 200) {
        if (!board.makeMove()) break;
        ++moves;
    }
    ASSERT_TRUE(board.isComplete());
    EXPECT_EQ(testing_support::values(board), grid);
}

TEST_F(UserEditGame, HundredAndFirstGuessIsPlacedThenTheSearchStops) {
    BoardTestAccess::solution(board).guessCount = 100;
    EXPECT_FALSE(board.makeMove());
    EXPECT_EQ(testing_support::filledCount(board), 1);
    EXPECT_EQ(observer.count("noMoreMoves"), 1);
    EXPECT_EQ(board.solution().guessCount, 101);
    // Every further make move still places its first guess and reports.
    EXPECT_FALSE(board.makeMove());
    EXPECT_EQ(testing_support::filledCount(board), 2);
    EXPECT_EQ(observer.count("noMoreMoves"), 2);
}
