#pragma once
// What must hold after every step of play, checked by the random-play test and the play fuzzer alike. Each check
// returns what is broken, or an empty text when all holds.
#include <sstream>
#include <string>
#include <vector>

#include "Board.h"

namespace play_invariants {

// A report about cells carries the 81 cells in index order.
inline std::string cellReport(const std::vector<eng::CellInfo*>& cells) {
    for (size_t i = 0; i < cells.size(); ++i)
        if (!cells[i] || cells[i]->index() != static_cast<int>(i)) return "a cell report out of index order";
    return cells.size() == 81 ? "" : "a cell report with " + std::to_string(cells.size()) + " cells";
}

// A value outside 0-9, or a digit standing twice in a row, column or square.
inline std::string repeatedDigit(const int (&values)[81]) {
    int seen[27] = {};  // rows, columns, squares: a bit for each digit placed
    for (int i = 0; i < 81; ++i) {
        const int v = values[i];
        if (v < 0 || v > 9) return "a value outside 0-9 in cell " + std::to_string(i);
        for (int unit : {i / 9, 9 + i % 9, 18 + i / 27 * 3 + i % 9 / 3}) {
            if (v && (seen[unit] & (1 << v))) return std::to_string(v) + " twice in unit " + std::to_string(unit);
            seen[unit] |= v ? 1 << v : 0;
        }
    }
    return "";
}
inline std::string repeatedDigit(const eng::Board& b) {
    int values[81] = {};
    for (int i = 0; i < 81 && b.cell(0); ++i) values[i] = b.cell(i)->value();
    return repeatedDigit(values);
}

inline std::string saved(eng::Board& b) {
    std::ostringstream out(std::ios::binary);
    return b.serialize(out), out.str();
}

// A saved game opened into `twin` (a fresh board) gives the same bytes and the same cells.
inline std::string reopened(eng::Board& board, eng::Board& twin) {
    const std::string bytes = saved(board);
    std::istringstream in(bytes, std::ios::binary);
    if (!twin.deserialize(in)) return "a saved game does not open";
    if (saved(twin) != bytes) return "a reopened game saves other bytes";
    for (int i = 0; i < 81; ++i) {
        const eng::CellInfo *a = board.cell(i), *b = twin.cell(i);
        bool same = !a == !b && (!a || (a->value() == b->value() && a->origin() == b->origin()));
        for (int v = 1; same && a && v <= 9; ++v) same = a->isPotential(v) == b->isPotential(v);
        if (!same) return "a reopened game has other cells";
    }
    return "";
}

}  // namespace play_invariants
