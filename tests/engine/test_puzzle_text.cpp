// Puzzles read from text, checked by the exact solver, and started as games.
#include <gtest/gtest.h>

#include <fstream>

#include "BoardTestSupport.h"
#include "ExactSolver.h"
#include "PuzzleText.h"

using namespace eng;

namespace {

const std::string kPuzzle = "..7.....19.2...5...6.7.3........8..3..56.24..8..9........4.6.9...3...7.51.....8..";

std::vector<std::string> publishedPuzzles() {
    std::ifstream in(SUDOKU_PUZZLES);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

// Each row of a text as nine cells, rows joined by `rowBreak`; `cell` formats one value.
std::string rows(const std::string& p, const std::string& rowBreak, const std::string& (*cell)(char)) {
    std::string text;
    for (int i = 0; i < 81; ++i) text += cell(p[i]) + (i % 9 == 8 && i < 80 ? rowBreak : "");
    return text;
}
const std::string& plain(char c) { static std::string s; return s = std::string(1, c); }
const std::string& zeroSpaced(char c) { static std::string s; return s = std::string(1, c == '.' ? '0' : c) + ' '; }

std::string grid(const std::string& p) {  // the nine-line grid with '|', '-' and '+'
    std::string text;
    for (int r = 0; r < 9; ++r) {
        if (r == 3 || r == 6) text += "------+-------+------\n";
        for (int c = 0; c < 9; ++c) text += std::string(c == 3 || c == 6 ? "| " : "") + p[r * 9 + c] + ' ';
        text += '\n';
    }
    return text;
}

void expectSolution(const Grid& givens, const Grid& solution) {
    EXPECT_FALSE(ExactSolver::givensConflict(solution));
    for (int i = 0; i < 81; ++i) {
        ASSERT_TRUE(solution[i] >= 1 && solution[i] <= 9);
        if (givens[i]) {
            ASSERT_EQ(givens[i], solution[i]) << i;
        }
    }
}

}  // namespace

TEST(PuzzleText, ReadsEveryFormAndRefusesWhatIsNoUniquePuzzle) {
    Grid solved{}, g{}, s{};
    ASSERT_EQ(checkPuzzle(kPuzzle, g, solved), PuzzleCheck::unique);
    const std::string full = writePuzzle(solved);
    std::string oneTwoFree = full;  // the 1s and 2s can change places throughout
    for (char& c : oneTwoFree) c = c == '1' || c == '2' ? '.' : c;
    const struct { std::string text; PuzzleCheck expected; } cases[] = {
        {kPuzzle, PuzzleCheck::unique},
        {rows(kPuzzle, "\r\n", zeroSpaced) + "\n", PuzzleCheck::unique},
        {rows(kPuzzle, "\n", plain), PuzzleCheck::unique},
        {grid(kPuzzle), PuzzleCheck::unique},
        {"\t" + full + " ", PuzzleCheck::unique},
        {kPuzzle.substr(1), PuzzleCheck::noPuzzle},
        {kPuzzle + "1", PuzzleCheck::noPuzzle},
        {"x" + kPuzzle.substr(1), PuzzleCheck::noPuzzle},
        {"Puzzle: " + kPuzzle, PuzzleCheck::noPuzzle},
        {"", PuzzleCheck::noPuzzle},
        {"55" + kPuzzle.substr(2), PuzzleCheck::conflictingGivens},
        {kPuzzle.substr(0, 80) + "7", PuzzleCheck::conflictingGivens},  // 7 twice in column 8
        {"12345678." + std::string(8, '.') + "9" + std::string(63, '.'), PuzzleCheck::noSolution},
        {oneTwoFree, PuzzleCheck::manySolutions},
        {std::string(81, '0'), PuzzleCheck::manySolutions},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(checkPuzzle(c.text, g, s), c.expected) << c.text;
        if (c.expected == PuzzleCheck::unique) {
            EXPECT_EQ(s, solved) << c.text;
        }
    }
    ASSERT_TRUE(readPuzzle(writePuzzle(g), s));
    EXPECT_EQ(s, g);
}

// The published puzzles, some of the 17-clue puzzles (the fewest givens that can fix a solution), and the
// engine's own games: one solution each, that keeps the givens; a generated game's is its stored solution.
TEST(ExactSolver, FindsTheOneSolutionOfPublishedAndGeneratedPuzzles) {
    std::vector<std::string> puzzles = publishedPuzzles();
    ASSERT_EQ(puzzles.size(), 230u);
    for (const char* p : {"000000010400000000020000000000050407008000300001090000300400200050100000000806000",
                          "000000012000035000000600070700000300000400800100000000000120000080000040050000600",
                          "000000012003600000000007000410020000000500300700000600280000040000300500000000000",
                          "000000013000030080070000000000206000030000900000010000600500204000400700100000000"})
        puzzles.push_back(p);
    Grid g{}, s{};
    for (const std::string& p : puzzles) {
        ASSERT_TRUE(readPuzzle(p, g));
        ASSERT_EQ(ExactSolver::countSolutions(g, &s), 1) << p;
        expectSolution(g, s);
    }
    testing_support::seedRandom(77);
    for (int n = 0; n < 20; ++n) {
        Board board(nullptr);
        ASSERT_TRUE(board.generate(n % 5));
        for (int i = 0; i < 81; ++i) g[i] = board.cell(i)->origin() == originGiven ? board.cell(i)->value() : 0;
        ASSERT_EQ(ExactSolver::countSolutions(g, &s), 1);
        for (int i = 0; i < 81; ++i) ASSERT_EQ(s[i], board.solutionValue(i));
        EXPECT_EQ(Board::grade(g), n % 5) << "a generated game is graded at its level";
    }
}

TEST(GivenGame, PlaysLikeAGeneratedGameAtItsGrade) {
    Grid g{}, s{};
    ASSERT_EQ(checkPuzzle(kPuzzle, g, s), PuzzleCheck::unique);
    testing_support::Transcript observer;
    Board board(&observer);
    board.setPencilMarksRules({ruleSingles});
    Grid wrong = s;
    wrong[0] = s[1];
    EXPECT_FALSE(board.startGame(g, wrong));
    EXPECT_EQ(board.historySize(), 0u);
    ASSERT_TRUE(board.startGame(g, s));
    EXPECT_EQ(observer.take(), "cellsChanged 81\n");
    EXPECT_EQ(board.getLevel(), std::min(Board::grade(g), int(lvlHard)));
    EXPECT_EQ(board.getPhase(), phasePlaying);
    EXPECT_EQ(board.cell(2)->origin(), originGiven);
    EXPECT_FALSE(board.cell(0)->isPotential(7)) << "the player's rules narrowed the candidates";
    EXPECT_FALSE(board.setValue(0, s[0] % 9 + 1));
    EXPECT_EQ(observer.take(), "valueRefused 0 " + std::to_string(s[0] % 9 + 1) + "\n");
    EXPECT_TRUE(board.setValue(0, s[0]));
    // Saved and opened, the game still knows its solution.
    Board reopened(&observer);
    ASSERT_TRUE(testing_support::load(reopened, testing_support::saved(board)));
    EXPECT_EQ(reopened.solutionValue(80), s[80]);
    EXPECT_EQ(Board::grade(s), lvlCompleted);
}
