#include "BoardSnapshot.h"

namespace eng_priv {

BoardSnapshot::BoardSnapshot() {
    for (int i = 0; i < 81; ++i) cells[i].reset(i);
}

std::unique_ptr<BoardSnapshot> BoardSnapshot::copy() const {
    auto result = std::make_unique<BoardSnapshot>(*this);
    result->guess = Guess();
    return result;
}

bool BoardSnapshot::emptyCells(std::vector<Cell*>& out) {
    out.clear();
    for (Cell& cell : cells)
        if (cell.value() == 0) out.push_back(&cell);
    return !out.empty();
}

bool BoardSnapshot::isFull() const {
    for (const Cell& cell : cells)
        if (cell.value() == 0) return false;
    return true;
}

}  // namespace eng_priv
