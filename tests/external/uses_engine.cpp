// A program outside the project: engine/ on the include path, libengine.a linked.
#include <cstdio>

#include "Board.h"

int main() {
    eng::Board board(nullptr);
    board.setPencilMarksRules({eng::ruleSingles, eng::ruleHiddenSingles});
    if (!board.generate(eng::lvlEasy) || !board.makeMove() || board.historySize() != 3) return 1;
    eng::ExCellConflict conflict(3, 4, 0);
    return std::puts(conflict.describe()) < 0;
}
