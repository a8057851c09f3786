#pragma once
// A whole board as 81 values in cell-index order, 0 for an empty cell.

#include <array>

namespace eng {

using Grid = std::array<int, 81>;

}  // namespace eng
