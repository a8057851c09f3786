#pragma once
// The next deduction on a position, found without changing it: what a hint
// shows and carries out, and what each rule's pass would do first.

#include "Grid.h"
#include "Step.h"

namespace eng_priv {
class BoardSnapshot;
}

namespace eng {

class Board;

// A position as a hint reads it: each cell's value (0: empty) and its
// candidates, bit v-1 standing for v.
struct Position {
    Grid values{};
    unsigned candidates[81] = {};
};

// The board's current position: its values and candidates (the pencil marks).
Position positionOf(const Board& board);
// Values and the candidates they leave: what a player sees without pencil marks.
Position positionFromValues(const Grid& values);

struct Hint {
    enum Outcome { noStep, found, contradiction, complete, empty };
    enum Conflict { cellEmptied, digitTwice, digitNowhere };
    Outcome outcome = noStep;
    Step step;                 // a placement, or eliminations
    std::vector<Step> needed;  // the eliminations a placement rests on, in order
    // A contradiction: a cell left without candidates, or a unit holding a digit twice or having no place for it.
    Conflict conflict = cellEmptied;
    int cell = -1, unit = -1, digit = 0;
};

// The simplest step that makes progress: the last empty cell of a unit,
// hidden singles, naked singles, then (on the candidates) singles' removals,
// locked candidates, naked and hidden pairs, triples and quads, transitive
// doubles. With `placeValue` the candidates are recomputed from the values and
// the step is always a placement, the eliminations it needs kept in `needed`.
Hint findHint(const Position& position, bool placeValue);

// The step a rule's pass would take on the snapshot, by the pass's own
// conditions (the changed marks included); false when the rule would remove
// nothing or meet a contradiction.
bool findRuleStep(Rules rule, const eng_priv::BoardSnapshot& snapshot, Step& step);
// Removes a step's eliminations from the snapshot (the cells lose their candidates as in a pass).
void applyStep(const Step& step, eng_priv::BoardSnapshot& snapshot);

}  // namespace eng
