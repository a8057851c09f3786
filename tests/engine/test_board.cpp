// The board facade: generated levels, placing values, pencil marks, rules, history and make move.
#include <gtest/gtest.h>

#include <algorithm>

#include "BoardTestSupport.h"

using namespace eng;
using testing_support::values;

namespace {

int candidateCount(const CellInfo* c) {
    int n = 0;
    for (int v = 1; v <= 9; ++v) n += c->isPotential(v);
    return n;
}

int filledCount(const Board& b) { const auto v = values(b); return 81 - int(std::count(v.begin(), v.end(), 0)); }

struct Game : ::testing::Test {
    testing_support::Transcript observer;
    Board board{&observer};
    bool start(int level, std::list<Rules> rules = {}) {  // reports the new game's 81 cells
        board.setPencilMarksRules(rules);
        observer.take();
        return board.generate(level) && observer.take() == "cellsChanged 81\n";
    }
};

}  // namespace

TEST_F(Game, LevelsStartAGameAndReplaceTheLastOne) {
    testing_support::seedRandom(5);
    // Without a game every operation does nothing.
    EXPECT_FALSE(board.setValue(0, 1) || board.togglePotential(0, 1) || board.makeMove() || board.retract() ||
                 board.isComplete());
    board.applyPencilMarksRule(ruleSingles);
    EXPECT_TRUE(observer.text.empty() && board.historySize() == 0 && board.getPhase() == 0);
    for (int level : {lvlVeryEasy, lvlEasy, lvlMedium, lvlHard}) {
        ASSERT_TRUE(start(level, level == lvlVeryEasy ? std::list<Rules>{} : std::list<Rules>{ruleSingles}));
        EXPECT_EQ(board.getPhase() * 10 + board.getLevel(), 30 + level);
        EXPECT_LE(board.getAttempt(), 14);
        for (int i = 0; i < 81; ++i) {  // without player rules empty cells keep nine candidates
            EXPECT_EQ(board.cell(i)->origin(), board.cell(i)->value() ? originGiven : 0);
            EXPECT_TRUE(level != lvlVeryEasy || candidateCount(board.cell(i)) == (board.cell(i)->value() ? 1 : 9)) << i;
        }
    }
    EXPECT_FALSE(board.generate(6) || board.generate(-1) || board.getLevel() != lvlHard);  // the game stays
    EXPECT_TRUE(board.generate(lvlCompleted) && board.isComplete() && filledCount(board) == 81);
    // A new game replaces the old one entirely, undone moves included; User Edit always succeeds, empty.
    ASSERT_TRUE(board.generate(lvlEasy) && board.makeMove() && board.retract() && board.undoneSize() == 1);
    ASSERT_TRUE(start(lvlUserEdit));
    EXPECT_TRUE(board.undoneSize() == 0 && board.historySize() == 1 && board.getPhase() == 3 && filledCount(board) == 0);
    EXPECT_TRUE(board.solution().forbidden && board.solutionValue(0) == 0);
    EXPECT_TRUE(board.setValue(0, 1) && board.retract() && board.historySize() == 1 && board.undoneSize() == 1);
    EXPECT_TRUE(board.generate(lvlHard) && !board.solution().forbidden);
}

TEST_F(Game, ValuesAndPencilMarksAreCheckedAgainstTheSolution) {
    testing_support::seedRandom(1234);
    ASSERT_TRUE(start(lvlEasy, {ruleSinglesRowOnly}));  // rows only: empty cells keep several candidates
    int i = 0;
    while (board.cell(i)->value() || candidateCount(board.cell(i)) < 3) ++i;
    const int v = board.solutionValue(i), wrong = v % 9 + 1;
    EXPECT_TRUE(board.cell(81) == nullptr && board.cell(-1) == nullptr);
    for (int refused : {wrong, 0, 10}) EXPECT_FALSE(board.setValue(i, refused));
    EXPECT_FALSE(board.togglePotential(i, v) || board.togglePotential(i, 0) || board.togglePotential(81, 1));
    const std::string at = " " + std::to_string(i) + " ";
    EXPECT_EQ(observer.take(), "valueRefused" + at + std::to_string(wrong) + "\nvalueRefused" + at + "0\nvalueRefused" +
                                   at + "10\npotentialRefused" + at + std::to_string(v) + "\n");
    // Another candidate goes and comes back in place, without running rules.
    int other = 1;
    while (other == v || !board.cell(i)->isPotential(other)) ++other;
    EXPECT_TRUE(board.togglePotential(i, other) && !board.cell(i)->isPotential(other) && board.togglePotential(i, other));
    EXPECT_TRUE(board.cell(i)->isPotential(other) && board.cell(i)->isPotential(v) && board.historySize() == 2);
    ASSERT_TRUE(board.setValue(i, v) && board.cell(i)->value() == v && board.cell(i)->origin() == originPlayer);
    EXPECT_EQ(observer.take(), "cellsChanged 81\ncellsChanged 81\ncellsChanged 81\n");  // two toggles, one value
    // Entering a hinted value again makes a new position with the player as origin.
    ASSERT_TRUE(board.makeMove());
    int hinted = 0;
    while (board.cell(hinted)->origin() != originMove) ++hinted;
    ASSERT_TRUE(board.setValue(hinted, board.solutionValue(hinted)));
    EXPECT_TRUE(board.historySize() == 5 && board.cell(hinted)->origin() == originPlayer);
}

// What a refused digit clashes with: the same digit in the row first, then the column, then the box (the cell
// itself never); else none.
TEST_F(Game, ClashingCellNamesTheDigitInTheWay) {
    ASSERT_TRUE(start(lvlUserEdit) && board.setValue(8, 7) && board.setValue(27, 4) && board.setValue(10, 2));
    EXPECT_EQ(std::vector<int>({board.clashingCell(0, 7), board.clashingCell(54, 4), board.clashingCell(20, 2),
                                board.clashingCell(0, 3), board.clashingCell(8, 7), board.clashingCell(5, 0),
                                board.clashingCell(-9, 4)}),
              std::vector<int>({8, 27, 10, -1, -1, -1, -1}));
}

TEST_F(Game, MakeMoveSearchesAMoveAndCompletesAnEnteredGrid) {
    testing_support::seedRandom(31);
    ASSERT_TRUE(start(lvlCompleted));
    const auto grid = values(board);
    // After a hundred guesses every make move places its first guess, reports and stops.
    std::string bytes = (start(lvlUserEdit, {ruleSingles}), testing_support::saved(board));
    bytes[20] = 100;  // the guess count
    ASSERT_TRUE(testing_support::load(board, bytes));
    observer.take();
    EXPECT_FALSE(board.makeMove() || board.makeMove() || filledCount(board) != 2 || board.solution().guessCount != 102);
    EXPECT_EQ(observer.take(), "noMoreMoves 81\nnoMoreMoves 81\n");
    ASSERT_TRUE(start(lvlUserEdit));
    // On the first position candidates go in place, and a cell keeps its last one.
    for (int v = 1; v <= 9; ++v) ASSERT_TRUE(v == grid[80] || board.togglePotential(80, v));
    EXPECT_FALSE(board.togglePotential(80, grid[80]) || board.retract());
    for (int i = 0; i < 81; ++i) ASSERT_TRUE(i % 5 == 0 || board.setValue(i, grid[i]));
    for (int moves = 0; !board.isComplete() && moves < 200; ++moves) ASSERT_TRUE(board.makeMove());
    EXPECT_TRUE(values(board) == grid && !board.makeMove());  // nothing left to search
}
