#pragma once
// The two kinds of contradiction the engine raises. They are thrown by value,
// caught by reference inside the engine, and never shown to the player.

#include <exception>
#include <list>
#include <string>

namespace eng {

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
