#pragma once
// Puzzles as text, the way newspapers' sites, forums and other programs
// publish them: 81 cells in reading order, a digit for a given and '0' or '.'
// for an empty cell. Blanks and line breaks are ignored, and so are the '|',
// '-' and '+' that draw the common nine-line grids.

#include <string>

#include "Grid.h"

namespace eng {

// What reading a puzzle from text found.
enum class PuzzleCheck {
    unique,             // one solution: a puzzle to play
    noPuzzle,           // not 81 cells, or characters that are no cell
    conflictingGivens,  // a row, column or square holds a value twice
    noSolution,
    manySolutions,
};

// Reads the 81 cells of a text; false when it holds no puzzle.
bool readPuzzle(const std::string& text, Grid& cells);
// The 81 cells as one line: digits, '.' for an empty cell.
std::string writePuzzle(const Grid& cells);
// Reads a puzzle and checks that it has exactly one solution, given in `solution`.
PuzzleCheck checkPuzzle(const std::string& text, Grid& givens, Grid& solution);

}  // namespace eng
