#pragma once
// The two kinds of contradiction the engine raises. They are thrown by value,
// caught by reference inside the engine, and never shown to the player.

#include <exception>
#include <list>
#include <string>

namespace eng {

// The kinds of contradiction on a cell.
struct CellConflict {
    enum Kind : int {
        valueConflicts = 0,      // the value is not among the cell's candidates
        potentialConflicts = 1,  // the single candidate asked for is not among them
        noSuchPotential = 2,     // removing a candidate the cell does not have
        noPotentialLeft = 3,     // the cell lost its last candidate
        tooManyGuesses = 4,      // the search gave up
    };
};

// The kinds of contradiction on a row, column or square.
struct TupleConflict {
    enum Kind : int {
        tooManyValues = 0,  // n cells are the only places for more than n values
        tooManyCells = 1,   // more than three cells confined to three values
    };
};

// A contradiction on one cell.
class ExCellConflict : public std::exception {
public:
    int kind;
    int cellIndex;
    int value;
    std::string message;

    ExCellConflict(int kind, int cellIndex, int value);

    // Composes the one-line description, stores it in `message` and returns it.
    const char* describe();
};

// A contradiction on a row, column or square.
class ExTupleConflict : public std::exception {
public:
    std::string message;
    int kind;
    std::string tupleName;
    int tupleIndex;
    std::list<int> values;
    std::list<int> cells;

    ExTupleConflict(int kind, std::string tupleName, int tupleIndex, std::list<int> values,
                    std::list<int> cells);

    const char* describe();
};

}  // namespace eng
