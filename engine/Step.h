#pragma once
// One deduction, as a rule's pass takes it and as a hint explains it.

#include <utility>
#include <vector>

#include "Rules.h"

namespace eng {

enum class Technique : int {
    none,
    lastEmptyCell,      // the one empty cell of a unit takes the digit the unit lacks
    hiddenSingle,       // a digit with one place left in a unit
    nakedSingle,        // a cell with one digit left
    single,             // a cell's value (or only candidate) leaves the other cells of a unit
    pointing,           // a digit of a box confined to one row or column leaves the rest of that line
    claiming,           // a digit of a row or column confined to one box leaves the rest of the box
    nakedSubset,        // n cells of a unit holding only n digits: the digits leave the unit's other cells
    hiddenSubset,       // n digits of a unit confined to n cells: those cells drop their other digits
    transitiveDoubles,  // three pairs {x,y}, {y,z}, {x,z} in one unit: x, y and z leave its other cells
};

// Units are numbered as the rule solver's tuples: rows 0-8, columns 9-17, boxes 18-26.
struct Step {
    Technique technique = Technique::none;
    Rules rule = static_cast<Rules>(0);  // the rule whose pass takes this step; 0 when none does
    int unit = -1;
    int otherUnit = -1;        // locked candidates: the unit the digit leaves
    std::vector<int> digits;   // ascending
    std::vector<int> basis;    // the cells the step rests on, ascending
    int cell = -1;             // a placement: the cell and its value
    int value = 0;
    std::vector<std::pair<int, int>> eliminations;  // (cell, digit), ascending

    bool places() const { return value != 0; }
    // The cells the step acts on, ascending.
    std::vector<int> targets() const;
};

}  // namespace eng
