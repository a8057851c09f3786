// Candidates as 9-bit masks, narrowed after every placement by naked and
// hidden singles; when nothing more follows, the search branches on the empty
// cell with the fewest candidates.
#include "ExactSolver.h"

#include <cstdint>

#include "RuleSolver.h"

namespace eng {

using eng_priv::bitOf;
using eng_priv::countOf;
using eng_priv::kAllValues;
using eng_priv::kTuples;
using eng_priv::lowestOf;
using eng_priv::Mask;

namespace {

// The 20 cells that share a row, column or square with each cell.
struct Peers {
    int of[81][20];
    Peers() {
        for (int i = 0; i < 81; ++i) {
            int n = 0;
            for (int p = 0; p < 81; ++p) {
                const bool peer = kTuples.of[p][0] == kTuples.of[i][0] || kTuples.of[p][1] == kTuples.of[i][1] ||
                                  kTuples.of[p][2] == kTuples.of[i][2];
                if (p != i && peer) of[i][n++] = p;
            }
        }
    }
};
const Peers kPeers;  // kTuples is constant-initialized: ready before this

struct State {
    Mask candidates[81];  // of an empty cell; 0 once it has a value
    std::uint8_t value[81];
    Mask placed[27];  // the values placed in each unit
    int empty;
};

bool assign(State& s, int cell, int v) {
    const Mask bit = bitOf(v);
    if (!(s.candidates[cell] & bit)) return false;
    s.value[cell] = std::uint8_t(v);
    s.candidates[cell] = 0;
    --s.empty;
    for (int u : kTuples.of[cell]) s.placed[u] |= bit;
    for (int p : kPeers.of[cell]) {
        if (s.value[p] || !(s.candidates[p] & bit)) continue;
        s.candidates[p] &= ~bit;
        if (!s.candidates[p]) return false;
    }
    return true;
}

// Places every naked and hidden single until none is left; false on a contradiction.
bool propagate(State& s) {
    for (bool progress = true; progress;) {
        progress = false;
        for (int i = 0; i < 81; ++i) {
            const Mask m = s.candidates[i];
            if (s.value[i] || countOf(m) != 1) continue;
            if (!assign(s, i, lowestOf(m))) return false;
            progress = true;
        }
        for (int u = 0; u < 27; ++u) {
            Mask once = 0, twice = 0;
            for (int i : kTuples.cells[u]) {
                twice |= once & s.candidates[i];
                once |= s.candidates[i];
            }
            const Mask open = kAllValues & ~s.placed[u];
            if ((once & open) != open) return false;  // a value with no place left
            for (Mask hidden = open & ~twice; hidden; hidden &= hidden - 1) {
                const Mask bit = hidden & -hidden;
                for (int i : kTuples.cells[u]) {
                    if (!(s.candidates[i] & bit)) continue;
                    if (!assign(s, i, lowestOf(bit))) return false;
                    progress = true;
                    break;
                }
            }
        }
    }
    return true;
}

struct Search {
    int limit;
    int found = 0;
    Grid* solution;

    void run(State& s) {
        if (!propagate(s)) return;
        if (s.empty == 0) {
            if (found++ == 0 && solution)
                for (int i = 0; i < 81; ++i) (*solution)[i] = s.value[i];
            return;
        }
        int best = -1, bestCount = 10;
        for (int i = 0; i < 81 && bestCount > 2; ++i) {
            const int n = s.value[i] ? 10 : countOf(s.candidates[i]);
            if (n < bestCount) best = i, bestCount = n;
        }
        for (Mask m = s.candidates[best]; m && found < limit; m &= m - 1) {
            State next = s;
            if (assign(next, best, lowestOf(m))) run(next);
        }
    }
};

}  // namespace

bool ExactSolver::givensConflict(const Grid& givens) {
    for (int v : givens)
        if (v < 0 || v > 9) return true;
    for (const auto& unit : kTuples.cells) {
        Mask seen = 0;
        for (int i : unit) {
            if (!givens[i]) continue;
            const Mask bit = bitOf(givens[i]);
            if (seen & bit) return true;
            seen |= bit;
        }
    }
    return false;
}

int ExactSolver::countSolutions(const Grid& givens, Grid* solution, int limit) {
    if (limit < 1 || givensConflict(givens)) return 0;
    State s{};
    for (Mask& m : s.candidates) m = kAllValues;
    s.empty = 81;
    for (int i = 0; i < 81; ++i)
        if (givens[i] && !assign(s, i, givens[i])) return 0;
    Search search{limit, 0, solution};
    search.run(s);
    return search.found;
}

}  // namespace eng
