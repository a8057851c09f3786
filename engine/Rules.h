#pragma once
// The sixteen pencil-mark rules as bit flags. Any other value is accepted
// wherever a rule is accepted and does nothing.

namespace eng {

enum Rules : int {
    ruleSinglesRowOnly = 1,
    ruleSinglesColOnly = 2,
    ruleSinglesRowColOnly = 3,
    ruleSinglesSquareOnly = 4,
    ruleSingles = 7,
    ruleDoubles = 8,
    ruleTransitiveDoubles = 16,
    ruleTriples = 32,
    ruleQuads = 64,
    ruleLockedByRows = 128,
    ruleLockedByCols = 256,
    ruleLockedBySquares = 512,
    ruleHiddenSingles = 1024,
    ruleHiddenDoubles = 2048,
    ruleHiddenTriples = 4096,
    ruleHiddenQuads = 8192,
};

}  // namespace eng
