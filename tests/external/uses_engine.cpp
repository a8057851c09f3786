// A program outside the project: engine/ on the include path, libengine.a linked.
#include <cstdio>

#include "Board.h"

namespace {

class Counter : public eng::BoardObserver {
public:
    int reports = 0;
    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override { reports += cells.size() == 81; }
    void noMoreMoves(const std::vector<eng::CellInfo*>&) override {}
    void cellHasNoSolution(const std::vector<eng::CellInfo*>&, int) override {}
    void loadFailed(int, int) override {}
    void valueRefused(int, int) override {}
    void potentialRefused(int, int) override {}
};

}  // namespace

int main() {
    Counter counter;
    eng::Board board(&counter);
    board.setPencilMarksRules({eng::ruleSingles, eng::ruleHiddenSingles});
    if (!board.generate(eng::lvlEasy) || !board.makeMove() || counter.reports != 2) return 1;
    try {
        throw eng::ExCellConflict(3, 4, 0);
    } catch (eng::ExCellConflict& e) {
        std::printf("%s\n", e.describe());
    }
    return 0;
}
