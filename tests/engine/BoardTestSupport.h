#pragma once
// Shared helpers for the engine tests: an observer that writes down every report, saving and loading, seeding.
#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Board.h"
#include "PlayInvariants.h"

namespace testing_support {

// One line per report. Cell lists are written as their size, or with `detailed` as each cell's value, origin and
// candidates.
struct Transcript : eng::BoardObserver {
    bool detailed = false;
    std::string text, problem;  // problem: a cell list that was not the 81 cells in index order

    void cells(const char* what, const std::vector<eng::CellInfo*>& cells) {
        text += std::string(what) + ' ' + std::to_string(cells.size());
        for (size_t i = 0; i < cells.size() && detailed; ++i) {
            text += ' ' + std::to_string(cells[i]->value()) + std::to_string(cells[i]->origin());
            for (int v = 1; v <= 9; ++v) text += cells[i]->isPotential(v) ? char('0' + v) : '.';
        }
        if (problem.empty()) problem = play_invariants::cellReport(cells);
        text += '\n';
    }
    void note(const char* what, int a, int b) {
        text += std::string(what) + ' ' + std::to_string(a) + ' ' + std::to_string(b) + '\n';
    }
    void cellsChanged(const std::vector<eng::CellInfo*>& c) override { cells("cellsChanged", c); }
    void noMoreMoves(const std::vector<eng::CellInfo*>& c) override { cells("noMoreMoves", c); }
    void cellHasNoSolution(const std::vector<eng::CellInfo*>& c, int cell) override {
        cells("cellHasNoSolution", c), note("cell", cell, 0);
    }
    void loadFailed(int expected, int actual) override { note("loadFailed", expected, actual); }
    void valueRefused(int index, int value) override { note("valueRefused", index, value); }
    void potentialRefused(int index, int value) override { note("potentialRefused", index, value); }
    std::string take() { return std::exchange(text, std::string()); }  // the reports since the last call
};

using play_invariants::saved;

inline bool load(eng::Board& b, const std::string& bytes) {
    std::istringstream in(bytes, std::ios::binary);
    return b.deserialize(in);
}

// The first board of a process seeds rand() from the clock: construct one before srand().
inline void seedRandom(unsigned seed) {
    static eng::Board first(nullptr);
    std::srand(seed);
}

inline std::vector<int> values(const eng::Board& b) {
    std::vector<int> out;
    for (int i = 0; i < 81; ++i) out.push_back(b.cell(i) ? b.cell(i)->value() : -1);
    return out;
}

}  // namespace testing_support
