// Feeds arbitrary bytes to the saved-game reader; a file it accepts must then
// survive the player's operations.
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <stdexcept>
#include <string>

#include "Board.h"

namespace {

class SilentObserver : public eng::BoardObserver {
public:
    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override { touch(cells); }
    void noMoreMoves(const std::vector<eng::CellInfo*>& cells) override { touch(cells); }
    void cellHasNoSolution(const std::vector<eng::CellInfo*>& cells, int) override { touch(cells); }
    void loadFailed(int, int) override {}
    void valueRefused(int, int) override {}
    void potentialRefused(int, int) override {}
    int sum = 0;

private:
    void touch(const std::vector<eng::CellInfo*>& cells) {
        for (const eng::CellInfo* c : cells) sum += c->value() + c->isPotential(1 + c->index() % 9);
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    SilentObserver observer;
    eng::Board board(&observer);
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size), std::ios::binary);
    try {
        if (!board.deserialize(in)) return 0;
    } catch (const std::runtime_error&) {
        return 0;  // an over-long tag string
    }
    // Exercise what the player can do on the loaded game.
    const int seed = size ? data[size - 1] : 0;
    std::ostringstream out(std::ios::binary);
    board.serialize(out);
    board.isComplete();
    board.togglePotential(seed % 81, 1 + seed % 9);
    board.setValue((seed * 7) % 81, 1 + (seed / 9) % 9);
    board.applyPencilMarksRule(eng::ruleHiddenDoubles);
    board.retract();
    board.makeMove();
    board.makeMove();
    board.setPencilMarksRules({eng::ruleSingles, eng::ruleLockedByRows, eng::ruleTriples});
    board.retract();
    return 0;
}
