// Puzzles read from text, checked by the exact solver, and started as games.
#include <gtest/gtest.h>

#include <fstream>

#include "BoardTestSupport.h"
#include "ExactSolver.h"
#include "PuzzleText.h"

using namespace eng;

namespace {

const std::string kPuzzle = "..7.....19.2...5...6.7.3........8..3..56.24..8..9........4.6.9...3...7.51.....8..";

// The puzzle in nine lines, `empty` for an empty cell, `gap` after each cell; `bars` draws the squares' borders.
std::string lines(char empty, const std::string& gap, bool bars) {
    std::string t;
    for (int i = 0; i < 81; ++i) {
        t += (kPuzzle[i] == '.' ? empty : kPuzzle[i]) + gap;
        if (bars && i % 3 == 2 && i % 9 != 8) t += "| ";
        if (i % 9 == 8) t += bars && (i == 26 || i == 53) ? "\r\n------+-------+------\r\n" : "\r\n";
    }
    return t;
}

}  // namespace

TEST(PuzzleText, ReadsEveryFormAndRefusesWhatIsNoUniquePuzzle) {
    Grid solved{}, g{}, s{};
    ASSERT_EQ(checkPuzzle(kPuzzle, g, solved), PuzzleCheck::unique);
    EXPECT_EQ(writePuzzle(g), kPuzzle);  // as Copy Puzzle writes it
    std::string oneTwoFree = writePuzzle(solved);  // its 1s and 2s can change places throughout
    for (char& c : oneTwoFree) c = c == '1' || c == '2' ? '.' : c;
    using P = PuzzleCheck;
    const std::pair<std::string, P> cases[] = {  // 80 and 82 characters, letters, empty: no puzzle
        {kPuzzle, P::unique}, {lines('0', " ", false), P::unique}, {lines('.', "", true), P::unique},
        {"\t" + writePuzzle(solved) + "\n", P::unique}, {kPuzzle.substr(1), P::noPuzzle}, {kPuzzle + "1", P::noPuzzle},
        {"x" + kPuzzle.substr(1), P::noPuzzle}, {"", P::noPuzzle}, {"55" + kPuzzle.substr(2), P::conflictingGivens},
        {"12345678." + std::string(8, '.') + "9" + std::string(63, '.'), P::noSolution}, {oneTwoFree, P::manySolutions}};
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(checkPuzzle(text, g, s), expected) << text;
        EXPECT_TRUE(expected != P::unique || s == solved) << text;
    }
}

// The published hard puzzles, some 17-clue ones (the fewest givens that can fix a solution) and the engine's own
// games have one solution each, which keeps the givens; a generated game's is its stored one, its grade its level.
TEST(ExactSolver, FindsTheOneSolutionOfPublishedAndGeneratedPuzzles) {
    std::ifstream in(SUDOKU_PUZZLES);
    std::vector<std::string> puzzles{"000000010400000000020000000000050407008000300001090000300400200050100000000806000",
                                     "000000012000035000000600070700000300000400800100000000000120000080000040050000600",
                                     "000000013000030080070000000000206000030000900000010000600500204000400700100000000"};
    for (std::string line; std::getline(in, line);) puzzles.push_back(line);
    ASSERT_EQ(puzzles.size(), 233u);
    Grid g{}, s{};
    for (const std::string& p : puzzles) {
        ASSERT_TRUE(readPuzzle(p, g));
        ASSERT_EQ(ExactSolver::countSolutions(g, &s), 1) << p;
        ASSERT_FALSE(ExactSolver::givensConflict(s));
        for (int i = 0; i < 81; ++i) ASSERT_TRUE(s[i] >= 1 && (!g[i] || g[i] == s[i])) << p;
    }
    testing_support::seedRandom(77);
    for (int n = 0; n < 20; ++n) {
        Board board(nullptr);
        ASSERT_TRUE(board.generate(n % 5));
        for (int i = 0; i < 81; ++i) g[i] = board.cell(i)->origin() == originGiven ? board.cell(i)->value() : 0;
        ASSERT_EQ(ExactSolver::countSolutions(g, &s), 1);
        for (int i = 0; i < 81; ++i) ASSERT_EQ(s[i], board.solutionValue(i));
        EXPECT_EQ(Board::grade(g), n % 5);
    }
}

TEST(GivenGame, PlaysLikeAGeneratedGameAndIsSaved) {
    Grid g{}, s{};
    ASSERT_EQ(checkPuzzle(kPuzzle, g, s), PuzzleCheck::unique);
    testing_support::Transcript observer;
    Board board(&observer), reopened(&observer);
    board.setPencilMarksRules({ruleSingles});
    Grid wrong = s;
    std::swap(wrong[0], wrong[1]);
    EXPECT_FALSE(board.startGame(g, wrong));
    ASSERT_TRUE(board.startGame(g, s));
    EXPECT_EQ(observer.take(), "cellsChanged 81\n");
    EXPECT_TRUE(Board::grade(g) == gradeExpert && board.getLevel() == lvlHard && board.cell(2)->origin() == originGiven);
    EXPECT_FALSE(board.cell(0)->isPotential(7) || board.setValue(0, s[1]));  // the player's rules ran; a wrong digit
    EXPECT_EQ(observer.take(), "valueRefused 0 " + std::to_string(s[1]) + "\n");
    ASSERT_TRUE(testing_support::load(reopened, testing_support::saved(board)));
    EXPECT_TRUE(reopened.setValue(0, s[0]));
}
