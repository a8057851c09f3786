#include "PuzzleText.h"

#include "ExactSolver.h"

namespace eng {

bool readPuzzle(const std::string& text, Grid& cells) {
    int n = 0;
    for (char c : text) {
        switch (c) {
        case ' ': case '\t': case '\r': case '\n': case '|': case '-': case '+': continue;
        case '.': c = '0'; break;
        default:
            if (c < '0' || c > '9') return false;
        }
        if (n == 81) return false;
        cells[n++] = c - '0';
    }
    return n == 81;
}

std::string writePuzzle(const Grid& cells) {
    std::string text(81, '.');
    for (int i = 0; i < 81; ++i)
        if (cells[i] >= 1 && cells[i] <= 9) text[i] = char('0' + cells[i]);
    return text;
}

PuzzleCheck checkPuzzle(const std::string& text, Grid& givens, Grid& solution) {
    if (!readPuzzle(text, givens)) return PuzzleCheck::noPuzzle;
    if (ExactSolver::givensConflict(givens)) return PuzzleCheck::conflictingGivens;
    switch (ExactSolver::countSolutions(givens, &solution, 2)) {
    case 0: return PuzzleCheck::noSolution;
    case 1: return PuzzleCheck::unique;
    default: return PuzzleCheck::manySolutions;
    }
}

}  // namespace eng
