#pragma once
// Shared helpers for the engine tests: a recording observer, reproducible
// seeding, and read access to a board's internals.

#include <cstdlib>
#include <string>
#include <vector>

#include "Board.h"
#include "RuleSolver.h"

namespace eng {

// Tests reach into the board only where no public operation exposes a state.
class BoardTestAccess {
public:
    static eng_priv::MasterSolution& solution(Board& b) { return b.masterSolution; }
};

}  // namespace eng

namespace testing_support {

struct Call {
    std::string what;
    int a = 0;
    int b = 0;
};

class RecordingObserver : public eng::BoardObserver {
public:
    std::vector<Call> calls;
    std::vector<int> lastValues;  // values of the 81 cells of the last report

    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override { record("cellsChanged", cells); }
    void noMoreMoves(const std::vector<eng::CellInfo*>& cells) override { record("noMoreMoves", cells); }
    void cellHasNoSolution(const std::vector<eng::CellInfo*>& cells, int cell) override {
        record("cellHasNoSolution", cells);
        calls.back().a = cell;
    }
    void loadFailed(int expected, int actual) override { calls.push_back({"loadFailed", expected, actual}); }
    void valueRefused(int index, int value) override { calls.push_back({"valueRefused", index, value}); }
    void potentialRefused(int index, int value) override {
        calls.push_back({"potentialRefused", index, value});
    }

    int count(const std::string& what) const {
        int n = 0;
        for (const Call& c : calls) n += c.what == what;
        return n;
    }
    void clear() { calls.clear(); }

private:
    void record(const char* what, const std::vector<eng::CellInfo*>& cells) {
        calls.push_back({what, static_cast<int>(cells.size()), 0});
        lastValues.clear();
        for (const eng::CellInfo* c : cells) lastValues.push_back(c->value());
    }
};

// The first board of a process seeds rand() from the clock; construct one
// first so that a later srand() makes the games reproducible.
inline void seedRandom(unsigned seed) {
    static eng::Board first(nullptr);
    (void)first;
    std::srand(seed);
}

inline std::vector<int> values(const eng::Board& b) {
    std::vector<int> out;
    for (int i = 0; i < 81; ++i) out.push_back(b.cell(i) ? b.cell(i)->value() : -1);
    return out;
}

inline int candidateCount(const eng::CellInfo* c) {
    int n = 0;
    for (int v = 1; v <= 9; ++v) n += c->isPotential(v);
    return n;
}

inline int filledCount(const eng::Board& b) {
    int n = 0;
    for (int i = 0; i < 81; ++i) n += b.cell(i) && b.cell(i)->value() != 0;
    return n;
}

// A position holding only the board's values, for grading with a preset.
inline bool presetSolvesValues(const eng::Board& b, int preset) {
    eng_priv::BoardSnapshot s;
    for (int i = 0; i < 81; ++i) {
        const int v = b.cell(i)->value();
        if (v) {
            s.cells[i].setSinglePotential(v);
            s.cells[i].setValue(v, 1);
        }
    }
    try {
        eng_priv::RuleSolver(preset).applyAllFromValues(s);
    } catch (const std::exception&) {
        return false;
    }
    for (const auto& c : s.cells)
        if (c.count() > 1) return false;
    return true;
}

inline bool isValidCompleteGrid(const std::vector<int>& v) {
    if (v.size() != 81) return false;
    for (int k = 0; k < 9; ++k) {
        unsigned rowSeen = 0, colSeen = 0, sqSeen = 0;
        for (int j = 0; j < 9; ++j) {
            const int r = v[k * 9 + j], c = v[j * 9 + k];
            const int s = v[((k / 3) * 3 + j / 3) * 9 + (k % 3) * 3 + j % 3];
            if (r < 1 || r > 9 || c < 1 || c > 9 || s < 1 || s > 9) return false;
            rowSeen |= 1u << r;
            colSeen |= 1u << c;
            sqSeen |= 1u << s;
        }
        if (rowSeen != 0x3FE || colSeen != 0x3FE || sqSeen != 0x3FE) return false;
    }
    return true;
}

}  // namespace testing_support
