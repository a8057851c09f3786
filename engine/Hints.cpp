#include "Hints.h"

#include <algorithm>

#include "Board.h"
#include "RuleSolver.h"

namespace eng {

using eng_priv::bitOf;
using eng_priv::countOf;
using eng_priv::kAllValues;
using eng_priv::kTuples;
using eng_priv::lowestOf;
using eng_priv::Mask;

std::vector<int> Step::targets() const {
    std::vector<int> out;
    if (places()) out.push_back(cell);
    for (const auto& e : eliminations) out.push_back(e.first);
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return out;
}

namespace {

// A position and the pass's changed marks; a hint treats every cell as changed.
struct Pos {
    int value[81];
    Mask mask[81];
    bool modified[81];
};

std::vector<int> digitsOf(Mask m) {
    std::vector<int> out;
    for (int v = 1; v <= 9; ++v)
        if (m & bitOf(v)) out.push_back(v);
    return out;
}

const int (&cellsOf(int unit))[9] { return kTuples.cells[unit]; }
int rowOf(int cell) { return kTuples.of[cell][0]; }
int columnOf(int cell) { return kTuples.of[cell][1]; }
int boxOf(int cell) { return kTuples.of[cell][2]; }
bool sees(int a, int b) {
    return a != b && (rowOf(a) == rowOf(b) || columnOf(a) == columnOf(b) || boxOf(a) == boxOf(b));
}

bool anyModified(const Pos& p, int unit) {
    for (int i : cellsOf(unit))
        if (p.modified[i]) return true;
    return false;
}

void eliminate(Step& s, const Pos& p, int cell, Mask values) {
    for (int v : digitsOf(p.mask[cell] & values)) s.eliminations.push_back({cell, v});
}

// Sorts the step's lists; true when it removes anything.
bool finish(Step& s, Technique technique, Rules rule, int unit, Mask digits, std::vector<int> basis) {
    std::sort(s.eliminations.begin(), s.eliminations.end());
    s.eliminations.erase(std::unique(s.eliminations.begin(), s.eliminations.end()), s.eliminations.end());
    if (s.eliminations.empty() && !s.places()) return false;
    std::sort(basis.begin(), basis.end());
    basis.erase(std::unique(basis.begin(), basis.end()), basis.end());
    s.technique = technique;
    s.rule = rule;
    s.unit = unit;
    s.digits = digitsOf(digits);
    s.basis = std::move(basis);
    return true;
}

// ---------------------------------------------------------------------------
// The rules as their passes take them

bool singlesStep(const Pos& p, int kinds, Rules rule, Step& out) {
    for (int i = 0; i < 81; ++i) {
        if (countOf(p.mask[i]) != 1) continue;
        for (int kind = 0; kind < 3; ++kind) {
            if (!(kinds & (1 << kind))) continue;
            const int unit = kTuples.of[i][kind];
            Step s;
            for (int j : cellsOf(unit))
                if (j != i) eliminate(s, p, j, p.mask[i]);
            if (finish(s, Technique::single, rule, unit, p.mask[i], {i})) return out = s, true;
        }
    }
    return false;
}

bool isPair(const Pos& p, int i) { return p.value[i] == 0 && countOf(p.mask[i]) == 2; }

bool pairsStep(const Pos& p, Step& out) {
    for (int a = 0; a < 80; ++a) {
        if (!isPair(p, a)) continue;
        for (int b = a + 1; b < 81; ++b) {
            if (!isPair(p, b) || p.mask[b] != p.mask[a]) continue;
            Step s;
            int unit = rowOf(a) == rowOf(b) ? rowOf(a) : columnOf(a) == columnOf(b) ? columnOf(a) : -1;
            for (int u : {unit, boxOf(a) == boxOf(b) ? boxOf(a) : -1}) {
                if (u < 0) continue;
                if (unit < 0) unit = u;
                for (int j : cellsOf(u))
                    if (j != a && j != b) eliminate(s, p, j, p.mask[a]);
            }
            if (finish(s, Technique::nakedSubset, ruleDoubles, unit, p.mask[a], {a, b})) return out = s, true;
        }
    }
    return false;
}

// A cell with three candidates and two more cells within them; more than
// three such cells is a contradiction, which ends the search.
bool triplesStep(const Pos& p, bool gate, Step& out) {
    for (int k = 0; k < 9; ++k) {
        for (int unit : {k, eng_priv::kColumnsFirst + k, eng_priv::kSquaresFirst + k}) {
            if (gate && !anyModified(p, unit)) continue;
            for (int c : cellsOf(unit)) {
                const Mask set = p.mask[c];
                if (countOf(set) != 3) continue;
                std::vector<int> inside;
                for (int j : cellsOf(unit))
                    if (!(p.mask[j] & ~set)) inside.push_back(j);
                if (inside.size() > 3) return false;
                if (inside.size() < 3) continue;
                Step s;
                for (int j : cellsOf(unit))
                    if (std::find(inside.begin(), inside.end(), j) == inside.end()) eliminate(s, p, j, set);
                if (finish(s, Technique::nakedSubset, ruleTriples, unit, set, inside)) return out = s, true;
            }
        }
    }
    return false;
}

bool transitiveStep(const Pos& p, Step& out) {
    auto shareOne = [&](int a, int b) { return countOf(p.mask[a] & p.mask[b]) == 1; };
    for (int a = 0; a < 81; ++a) {
        if (!isPair(p, a)) continue;
        for (int b = a + 1; b < 81; ++b) {
            if (!isPair(p, b) || !shareOne(a, b)) continue;
            for (int c = b + 1; c < 81; ++c) {
                if (!isPair(p, c) || !shareOne(b, c) || p.mask[b] == p.mask[c] || !shareOne(c, a)) continue;
                const Mask x = p.mask[a] & p.mask[c], y = p.mask[a] & p.mask[b], z = p.mask[b] & p.mask[c];
                if (x == y || y == z || x == z) continue;
                Step s;
                int unit = rowOf(a) == rowOf(b) && rowOf(b) == rowOf(c)                ? rowOf(a)
                           : columnOf(a) == columnOf(b) && columnOf(b) == columnOf(c) ? columnOf(a)
                                                                                       : -1;
                const int box = boxOf(a) == boxOf(b) && boxOf(b) == boxOf(c) ? boxOf(a) : -1;
                for (int u : {unit, box}) {
                    if (u < 0) continue;
                    if (unit < 0) unit = u;
                    for (int j : cellsOf(u))
                        if (j != a && j != b && j != c) eliminate(s, p, j, x | y | z);
                }
                if (finish(s, Technique::transitiveDoubles, ruleTransitiveDoubles, unit, x | y | z, {a, b, c}))
                    return out = s, true;
            }
        }
    }
    return false;
}

// Values of a unit locked into the three cells at the given positions: in two
// or more of them and in none of the unit's other cells.
Mask lockedValues(const Pos& p, int unit, const int (&at)[3]) {
    Mask inside1 = 0, inside2 = 0, outside = 0;
    for (int pos = 0; pos < 9; ++pos) {
        const Mask m = p.mask[cellsOf(unit)[pos]];
        if (pos == at[0] || pos == at[1] || pos == at[2]) {
            inside2 |= inside1 & m;
            inside1 |= m;
        } else {
            outside |= m;
        }
    }
    return inside2 & ~outside;
}

// The locked rules: lines (rows or columns) lock values into their boxes, or
// boxes into their lines.
bool lockedStep(const Pos& p, Rules rule, Step& out) {
    static const int kSegments[3][3] = {{0, 1, 2}, {3, 4, 5}, {6, 7, 8}};
    static const int kBoxColumns[3][3] = {{0, 3, 6}, {1, 4, 7}, {2, 5, 8}};
    const bool fromBoxes = rule == ruleLockedBySquares;
    const int first = rule == ruleLockedByRows ? 0 : rule == ruleLockedByCols ? eng_priv::kColumnsFirst
                                                                              : eng_priv::kSquaresFirst;
    for (int unit = first; unit < first + 9; ++unit) {
        if (!anyModified(p, unit)) continue;
        for (int kind = 0; kind < (fromBoxes ? 2 : 1); ++kind) {
            for (const auto& at : kind == 0 ? kSegments : kBoxColumns) {
                const int a = cellsOf(unit)[at[0]], b = cellsOf(unit)[at[1]], c = cellsOf(unit)[at[2]];
                if (!p.modified[a] && !p.modified[b] && !p.modified[c]) continue;
                const int other = fromBoxes ? kTuples.of[a][kind] : boxOf(a);
                for (int v : digitsOf(lockedValues(p, unit, at))) {
                    Step s;
                    for (int j : cellsOf(other))
                        if (j != a && j != b && j != c) eliminate(s, p, j, bitOf(v));
                    std::vector<int> basis;
                    for (int j : {a, b, c})
                        if (p.mask[j] & bitOf(v)) basis.push_back(j);
                    if (finish(s, fromBoxes ? Technique::pointing : Technique::claiming, rule, unit, bitOf(v), basis)) {
                        out = s;
                        out.otherUnit = other;
                        return true;
                    }
                }
            }
        }
    }
    return false;
}

// Hidden subsets of n values: n cells (empty, two or more candidates) holding
// n values that no other cell of the unit holds keep only those values.
bool hiddenStep(const Pos& p, int n, Rules rule, bool gate, Step& out) {
    for (int k = 0; k < 9; ++k) {
        for (int unit : {k, eng_priv::kColumnsFirst + k, eng_priv::kSquaresFirst + k}) {
            if (gate && !anyModified(p, unit)) continue;
            for (unsigned chosen = 0; chosen < 512; ++chosen) {
                if (countOf(chosen) != n) continue;
                Mask in = 0, outside = 0;
                bool usable = true;
                std::vector<int> cells;
                for (int pos = 0; pos < 9; ++pos) {
                    const int i = cellsOf(unit)[pos];
                    if (!(chosen & (1u << pos))) {
                        outside |= p.mask[i];
                        continue;
                    }
                    usable = usable && p.value[i] == 0 && countOf(p.mask[i]) > 1;
                    in |= p.mask[i];
                    cells.push_back(i);
                }
                const Mask hidden = in & ~outside;
                if (!usable || countOf(hidden) < n) continue;
                if (countOf(hidden) > n) return false;
                Step s;
                for (int i : cells) eliminate(s, p, i, ~hidden & kAllValues);
                if (finish(s, Technique::hiddenSubset, rule, unit, hidden, cells)) return out = s, true;
            }
        }
    }
    return false;
}

bool ruleStepOn(Rules rule, const Pos& p, Step& out) {
    switch (rule) {
    case ruleSinglesRowOnly:
    case ruleSinglesColOnly:
    case ruleSinglesRowColOnly:
    case ruleSinglesSquareOnly:
    case ruleSingles: return singlesStep(p, rule, rule, out);
    case ruleDoubles: return pairsStep(p, out);
    case ruleTransitiveDoubles: return transitiveStep(p, out);
    case ruleTriples:
    case ruleQuads:
        if (!triplesStep(p, true, out)) return false;
        out.rule = rule;
        return true;
    case ruleLockedByRows:
    case ruleLockedByCols:
    case ruleLockedBySquares: return lockedStep(p, rule, out);
    case ruleHiddenSingles: return hiddenStep(p, 1, rule, true, out);
    case ruleHiddenDoubles: return hiddenStep(p, 2, rule, true, out);
    case ruleHiddenTriples: return hiddenStep(p, 3, rule, true, out);
    case ruleHiddenQuads: return hiddenStep(p, 4, rule, true, out);
    }
    return false;
}

// ---------------------------------------------------------------------------
// A hint's techniques, on the empty cells' candidates

Mask placedIn(const Pos& p, int unit) {
    Mask placed = 0;
    for (int i : cellsOf(unit))
        if (p.value[i]) placed |= bitOf(p.value[i]);
    return placed;
}

// Where a digit can still go in a unit: the positions of empty cells with it.
unsigned placesOf(const Pos& p, int unit, int digit) {
    unsigned where = 0;
    for (int pos = 0; pos < 9; ++pos) {
        const int i = cellsOf(unit)[pos];
        if (!p.value[i] && (p.mask[i] & bitOf(digit))) where |= 1u << pos;
    }
    return where;
}

bool findContradiction(const Pos& p, Hint& h) {
    h.outcome = Hint::contradiction;
    for (int unit = 0; unit < eng_priv::kTupleCount; ++unit) {
        Mask seen = 0, open = 0;
        for (int i : cellsOf(unit)) {
            if (!p.value[i]) {
                open |= p.mask[i];
                continue;
            }
            const Mask v = bitOf(p.value[i]);
            if (seen & v) return h.conflict = Hint::digitTwice, h.unit = unit, h.digit = p.value[i], true;
            seen |= v;
        }
        const Mask missing = kAllValues & ~seen & ~open;
        if (missing) return h.conflict = Hint::digitNowhere, h.unit = unit, h.digit = lowestOf(missing), true;
    }
    for (int i = 0; i < 81; ++i)
        if (!p.value[i] && !p.mask[i]) return h.conflict = Hint::cellEmptied, h.cell = i, true;
    h.outcome = Hint::noStep;
    return false;
}

Step placement(Technique technique, int unit, int cell, int digit, std::vector<int> basis) {
    Step s;
    s.cell = cell;
    s.value = digit;
    finish(s, technique, static_cast<Rules>(0), unit, bitOf(digit), std::move(basis));
    return s;
}

// Units in the order a player scans them for singles: boxes, rows, columns.
int scanUnit(int k) { return k < 9 ? eng_priv::kSquaresFirst + k : k - 9; }

bool lastEmptyCell(const Pos& p, Step& out) {
    for (int k = 0; k < eng_priv::kTupleCount; ++k) {
        const int unit = scanUnit(k);
        int empty = -1, count = 0;
        std::vector<int> basis;
        for (int i : cellsOf(unit)) {
            if (p.value[i]) {
                basis.push_back(i);
            } else {
                empty = i;
                ++count;
            }
        }
        const Mask missing = kAllValues & ~placedIn(p, unit);
        if (count == 1 && countOf(missing) == 1 && (p.mask[empty] & missing))
            return out = placement(Technique::lastEmptyCell, unit, empty, lowestOf(missing), basis), true;
    }
    return false;
}

bool hiddenSingle(const Pos& p, Step& out) {
    for (int k = 0; k < eng_priv::kTupleCount; ++k) {
        const int unit = scanUnit(k);
        for (int d : digitsOf(kAllValues & ~placedIn(p, unit))) {
            const unsigned where = placesOf(p, unit, d);
            if (countOf(where) != 1) continue;
            const int cell = cellsOf(unit)[__builtin_ctz(where)];
            // The other empty cells of the unit, and the placed digits that shut them out.
            std::vector<int> basis;
            for (int i : cellsOf(unit)) {
                if (i == cell || p.value[i]) continue;
                basis.push_back(i);
                for (int j = 0; j < 81; ++j)
                    if (p.value[j] == d && sees(i, j)) basis.push_back(j);
            }
            return out = placement(Technique::hiddenSingle, unit, cell, d, basis), true;
        }
    }
    return false;
}

bool nakedSingle(const Pos& p, Step& out) {
    for (int i = 0; i < 81; ++i) {
        if (p.value[i] || countOf(p.mask[i]) != 1) continue;
        // One placed neighbour for each digit the cell cannot hold.
        std::vector<int> basis;
        Mask shown = p.mask[i];
        for (int j = 0; j < 81; ++j) {
            if (!p.value[j] || !sees(i, j) || (shown & bitOf(p.value[j]))) continue;
            shown |= bitOf(p.value[j]);
            basis.push_back(j);
        }
        return out = placement(Technique::nakedSingle, -1, i, lowestOf(p.mask[i]), basis), true;
    }
    return false;
}

// Placed values still pencilled into their neighbours.
bool placedValueStep(const Pos& p, Step& out) {
    for (int i = 0; i < 81; ++i) {
        if (!p.value[i]) continue;
        for (int unit : kTuples.of[i]) {
            Step s;
            for (int j : cellsOf(unit))
                if (j != i && !p.value[j]) eliminate(s, p, j, bitOf(p.value[i]));
            if (finish(s, Technique::single, static_cast<Rules>(0), unit, bitOf(p.value[i]), {i}))
                return out = s, true;
        }
    }
    return false;
}

// A digit's places in `unit` all inside `other`: it leaves the rest of `other`.
bool lockedInto(const Pos& p, int unit, int other, int digit, Technique technique, Step& out) {
    Step s;
    std::vector<int> basis;
    for (int i : cellsOf(unit))
        if (!p.value[i] && (p.mask[i] & bitOf(digit))) basis.push_back(i);
    for (int j : cellsOf(other))
        if (!p.value[j] && std::find(basis.begin(), basis.end(), j) == basis.end()) eliminate(s, p, j, bitOf(digit));
    if (!finish(s, technique, static_cast<Rules>(0), unit, bitOf(digit), basis)) return false;
    out = s;
    out.otherUnit = other;
    return true;
}

bool pointingOrClaiming(const Pos& p, bool pointing, Step& out) {
    for (int unit = pointing ? eng_priv::kSquaresFirst : 0; unit < (pointing ? eng_priv::kTupleCount : 18); ++unit) {
        for (int d : digitsOf(kAllValues & ~placedIn(p, unit))) {
            const unsigned where = placesOf(p, unit, d);
            if (countOf(where) < 2) continue;
            const int first = cellsOf(unit)[__builtin_ctz(where)];
            for (int kind = 0; kind < 3; ++kind) {
                const int other = kTuples.of[first][kind];
                if (other == unit || (pointing == (kind == 2))) continue;
                bool inside = true;
                for (int pos = 0; pos < 9; ++pos)
                    if ((where & (1u << pos)) && kTuples.of[cellsOf(unit)[pos]][kind] != other) inside = false;
                if (inside && lockedInto(p, unit, other, d, pointing ? Technique::pointing : Technique::claiming, out))
                    return true;
            }
        }
    }
    return false;
}

// n empty cells of a unit within n digits.
bool nakedSubset(const Pos& p, int n, Step& out) {
    for (int unit = 0; unit < eng_priv::kTupleCount; ++unit) {
        unsigned open = 0;  // positions that may take part: empty, two or more candidates
        for (int pos = 0; pos < 9; ++pos) {
            const int i = cellsOf(unit)[pos];
            if (!p.value[i] && countOf(p.mask[i]) > 1 && countOf(p.mask[i]) <= n) open |= 1u << pos;
        }
        if (countOf(open) < n) continue;
        for (unsigned chosen = 0; chosen < 512; ++chosen) {
            if ((chosen & ~open) || countOf(chosen) != n) continue;
            Mask digits = 0;
            for (unsigned rest = chosen; rest; rest &= rest - 1) digits |= p.mask[cellsOf(unit)[__builtin_ctz(rest)]];
            if (countOf(digits) != n) continue;
            Step s;
            std::vector<int> cells;
            for (int pos = 0; pos < 9; ++pos) {
                const int j = cellsOf(unit)[pos];
                if (chosen & (1u << pos))
                    cells.push_back(j);
                else if (!p.value[j])
                    eliminate(s, p, j, digits);
            }
            if (finish(s, Technique::nakedSubset, static_cast<Rules>(0), unit, digits, cells)) return out = s, true;
        }
    }
    return false;
}

// n digits of a unit confined to n of its empty cells.
bool hiddenSubset(const Pos& p, int n, Step& out) {
    for (int unit = 0; unit < eng_priv::kTupleCount; ++unit) {
        const Mask open = kAllValues & ~placedIn(p, unit);
        if (countOf(open) <= n) continue;
        unsigned where[9];
        for (int d = 1; d <= 9; ++d) where[d - 1] = placesOf(p, unit, d);
        for (Mask digits = 0; digits < 512; ++digits) {
            if ((digits & ~open) || countOf(digits) != n) continue;
            unsigned cellsAt = 0;
            for (Mask rest = digits; rest; rest &= rest - 1) cellsAt |= where[__builtin_ctz(rest)];
            if (countOf(cellsAt) != n) continue;
            Step s;
            std::vector<int> cells;
            for (int pos = 0; pos < 9; ++pos) {
                if (!(cellsAt & (1u << pos))) continue;
                cells.push_back(cellsOf(unit)[pos]);
                eliminate(s, p, cells.back(), ~digits & kAllValues);
            }
            if (finish(s, Technique::hiddenSubset, static_cast<Rules>(0), unit, digits, cells)) return out = s, true;
        }
    }
    return false;
}

bool placementStep(const Pos& p, Step& out) { return lastEmptyCell(p, out) || hiddenSingle(p, out) || nakedSingle(p, out); }

bool eliminationStep(const Pos& p, Step& out) {
    if (placedValueStep(p, out) || pointingOrClaiming(p, true, out) || pointingOrClaiming(p, false, out)) return true;
    for (int n = 2; n <= 4; ++n)
        if (nakedSubset(p, n, out) || hiddenSubset(p, n, out)) return true;
    return transitiveStep(p, out);
}

// The candidates (cell, digit bit) whose removal a step's pattern rests on,
// added to `on`: what had to go for the pattern to hold.
void dependencies(const Step& s, Mask (&on)[81]) {
    Mask digits = 0;
    for (int d : s.digits) digits |= bitOf(d);
    const auto inBasis = [&](int i) { return std::find(s.basis.begin(), s.basis.end(), i) != s.basis.end(); };
    switch (s.technique) {
    case Technique::hiddenSingle:
        for (int i : cellsOf(s.unit))
            if (i != s.cell) on[i] |= digits;
        break;
    case Technique::nakedSingle: on[s.cell] |= ~digits & kAllValues; break;
    case Technique::pointing:
    case Technique::claiming:
    case Technique::hiddenSubset:
        for (int i : cellsOf(s.unit))
            if (!inBasis(i)) on[i] |= digits;
        break;
    case Technique::nakedSubset:
    case Technique::transitiveDoubles:
        for (int i : s.basis) on[i] |= ~digits & kAllValues;
        break;
    default: break;
    }
}

// Keeps the eliminations the placement rests on, directly or through the steps that need them.
void keepNeeded(const Step& placement, std::vector<Step>& steps) {
    Mask on[81] = {};
    dependencies(placement, on);
    std::vector<Step> kept;
    for (auto s = steps.rbegin(); s != steps.rend(); ++s) {
        const bool needed = std::any_of(s->eliminations.begin(), s->eliminations.end(),
                                        [&](const std::pair<int, int>& e) { return on[e.first] & bitOf(e.second); });
        if (!needed) continue;
        dependencies(*s, on);
        kept.insert(kept.begin(), *s);
    }
    steps = std::move(kept);
}

void apply(const Step& s, Pos& p) {
    for (const auto& e : s.eliminations) p.mask[e.first] &= ~bitOf(e.second);
}

}  // namespace

Position positionOf(const Board& board) {
    Position g;
    for (int i = 0; i < 81; ++i) {
        const CellInfo* c = board.cell(i);
        if (!c) continue;
        g.values[i] = c->value();
        for (int v = 1; v <= 9; ++v)
            if (c->isPotential(v)) g.candidates[i] |= bitOf(v);
    }
    return g;
}

Position positionFromValues(const Grid& values) {
    Position p;
    for (int i = 0; i < 81; ++i) {
        p.values[i] = values[i] >= 1 && values[i] <= 9 ? values[i] : 0;
        p.candidates[i] = p.values[i] ? bitOf(p.values[i]) : kAllValues;
    }
    for (int i = 0; i < 81; ++i)
        for (int j = 0; j < 81 && !p.values[i]; ++j)
            if (p.values[j] && sees(i, j)) p.candidates[i] &= ~bitOf(p.values[j]);
    return p;
}

Hint findHint(const Position& position, bool placeValue) {
    const Position grid = placeValue ? positionFromValues(position.values) : position;
    Pos p;
    int filled = 0;
    for (int i = 0; i < 81; ++i) {
        p.value[i] = grid.values[i] >= 1 && grid.values[i] <= 9 ? grid.values[i] : 0;
        p.mask[i] = p.value[i] ? bitOf(p.value[i]) : grid.candidates[i] & kAllValues;
        p.modified[i] = true;
        filled += p.value[i] != 0;
    }
    Hint h;
    if (filled == 81 || filled == 0) {
        if (!filled || !findContradiction(p, h)) h.outcome = filled ? Hint::complete : Hint::empty;
        return h;
    }
    if (findContradiction(p, h)) return h;
    if (placementStep(p, h.step)) return h.outcome = Hint::found, h;
    // Without pencil marks, eliminations are made on a copy until a value can be placed.
    for (Step s; eliminationStep(p, s);) {
        if (!placeValue) return h.step = s, h.outcome = Hint::found, h;
        apply(s, p);
        h.needed.push_back(s);
        if (findContradiction(p, h)) return h;
        if (hiddenSingle(p, h.step) || nakedSingle(p, h.step)) {
            keepNeeded(h.step, h.needed);
            return h.outcome = Hint::found, h;
        }
    }
    h.needed.clear();
    return h;
}

bool findRuleStep(Rules rule, const eng_priv::BoardSnapshot& snapshot, Step& step) {
    Pos p;
    for (int i = 0; i < 81; ++i) {
        p.value[i] = snapshot.cells[i].value();
        p.mask[i] = snapshot.cells[i].mask();
        p.modified[i] = snapshot.cells[i].isModified();
    }
    return ruleStepOn(rule, p, step);
}

void applyStep(const Step& step, eng_priv::BoardSnapshot& snapshot) {
    for (const auto& e : step.eliminations) snapshot.cells[e.first].removeValues(bitOf(e.second));
}

}  // namespace eng
