#pragma once
// One complete position of a game and the move that produced it.

#include <memory>
#include <vector>

#include "Cell.h"

namespace eng_priv {

class Guess : public Serializable {
public:
    int index = -1;
    int value = 0;

    Guess() = default;
    Guess(int index, int value) : index(index), value(value) {}

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;
};

class BoardSnapshot : public Serializable {
public:
    Cell cells[81];
    Guess guess;

    BoardSnapshot();

    // A copy of the whole position whose guess is (-1, 0).
    std::unique_ptr<BoardSnapshot> copy() const;
    // Fills out with the empty cells in index order; true when there are any.
    bool emptyCells(std::vector<Cell*>& out);
    bool isFull() const;

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;
};

}  // namespace eng_priv
