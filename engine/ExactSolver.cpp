// Candidates as 9-bit masks, narrowed after every placement by naked and
// hidden singles; when nothing more follows, the search branches on the empty
// cell with the fewest candidates.
#include "ExactSolver.h"

#include <cstdint>

namespace eng {

namespace {

using Mask = std::uint16_t;
constexpr Mask kAll = 0x1FF;

struct Units {
    int cells[27][9];  // rows, columns, squares
    int of[81][3];
    int peers[81][20];
    Units() {
        for (int i = 0; i < 81; ++i) {
            const int r = i / 9, c = i % 9, s = (r / 3) * 3 + c / 3;
            cells[r][c] = i;
            cells[9 + c][r] = i;
            cells[18 + s][(r % 3) * 3 + c % 3] = i;
            of[i][0] = r, of[i][1] = 9 + c, of[i][2] = 18 + s;
        }
        for (int i = 0; i < 81; ++i) {
            int n = 0;
            for (int p = 0; p < 81; ++p) {
                if (p == i) continue;
                const bool peer = p / 9 == i / 9 || p % 9 == i % 9 || of[p][2] == of[i][2];
                if (peer) peers[i][n++] = p;
            }
        }
    }
};
const Units kUnits;

struct State {
    Mask candidates[81];  // of an empty cell; 0 once it has a value
    std::uint8_t value[81];
    Mask placed[27];  // the values placed in each unit
    int empty;
};

int countOf(Mask m) { return __builtin_popcount(m); }

bool assign(State& s, int cell, int v) {
    const Mask bit = Mask(1u << (v - 1));
    if (!(s.candidates[cell] & bit)) return false;
    s.value[cell] = std::uint8_t(v);
    s.candidates[cell] = 0;
    --s.empty;
    for (int u : kUnits.of[cell]) s.placed[u] |= bit;
    for (int p : kUnits.peers[cell]) {
        if (s.value[p] || !(s.candidates[p] & bit)) continue;
        s.candidates[p] &= Mask(~bit);
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
            if (!assign(s, i, __builtin_ctz(m) + 1)) return false;
            progress = true;
        }
        for (int u = 0; u < 27; ++u) {
            Mask once = 0, twice = 0;
            for (int i : kUnits.cells[u]) {
                twice |= once & s.candidates[i];
                once |= s.candidates[i];
            }
            const Mask open = Mask(kAll & ~s.placed[u]);
            if ((once & open) != open) return false;  // a value with no place left
            for (Mask hidden = Mask(open & ~twice); hidden; hidden &= Mask(hidden - 1)) {
                const Mask bit = Mask(hidden & -hidden);
                for (int i : kUnits.cells[u]) {
                    if (!(s.candidates[i] & bit)) continue;
                    if (!assign(s, i, __builtin_ctz(bit) + 1)) return false;
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
        for (Mask m = s.candidates[best]; m && found < limit; m &= Mask(m - 1)) {
            State next = s;
            if (assign(next, best, __builtin_ctz(m) + 1)) run(next);
        }
    }
};

}  // namespace

bool ExactSolver::givensConflict(const Grid& givens) {
    for (int v : givens)
        if (v < 0 || v > 9) return true;
    for (const auto& unit : kUnits.cells) {
        Mask seen = 0;
        for (int i : unit) {
            if (!givens[i]) continue;
            const Mask bit = Mask(1u << (givens[i] - 1));
            if (seen & bit) return true;
            seen |= bit;
        }
    }
    return false;
}

int ExactSolver::countSolutions(const Grid& givens, Grid* solution, int limit) {
    if (limit < 1 || givensConflict(givens)) return 0;
    State s{};
    for (Mask& m : s.candidates) m = kAll;
    s.empty = 81;
    for (int i = 0; i < 81; ++i)
        if (givens[i] && !assign(s, i, givens[i])) return 0;
    Search search{limit, 0, solution};
    search.run(s);
    return search.found;
}

}  // namespace eng
