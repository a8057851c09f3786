// A program outside the project: engine/ on the include path, libengine.a linked.
#include <cstring>

#include "Board.h"

int main() {
    eng::Board board(nullptr);
    board.setPencilMarksRules({eng::ruleSingles, eng::ruleHiddenSingles});
    if (!board.generate(eng::lvlEasy) || !board.makeMove() || board.historySize() != 3) return 1;
    eng::ExCellConflict conflict(3, 4, 0);
    const char* text = "Conflict at cell index=4value=0details: All potential values were removed from this cell. "
                       "There is no solution.";
    return std::strcmp(conflict.describe(), text) != 0 || std::strcmp(conflict.describe(), text) != 0;
}
