// Plays a game from a script of bytes: every operation a player (or the window) can call on a board, in any order,
// with any arguments, saving and reopening in between. After each step it checks what must always hold; a
// violation aborts, so libFuzzer keeps the script.
//
// Script: one byte chooses the operation, the bytes after it are its arguments. At most kMaxSteps operations and
// kMaxGames generated games a script, so that no script runs long.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <list>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "Board.h"
#include "PlayInvariants.h"

namespace {

constexpr int kMaxSteps = 200;
constexpr int kMaxGames = 2;

// Aborts on a broken check.
void check(const std::string& broken) {
    if (broken.empty()) return;
    std::fprintf(stderr, "broken: %s\n", broken.c_str());
    std::abort();
}

// Every report about cells carries the 81 cells in index order.
class CheckingObserver : public eng::BoardObserver {
public:
    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override { check(play_invariants::cellReport(cells)); }
    void noMoreMoves(const std::vector<eng::CellInfo*>& cells) override { check(play_invariants::cellReport(cells)); }
    void cellHasNoSolution(const std::vector<eng::CellInfo*>& cells, int) override {
        check(play_invariants::cellReport(cells));
    }
    void loadFailed(int, int) override {}
    void valueRefused(int, int) override {}
    void potentialRefused(int, int) override {}
};

class Script {
public:
    Script(const uint8_t* data, size_t size) : data(data), size(size) {}
    bool done() const { return pos >= size; }
    int byte() { return pos < size ? data[pos++] : 0; }
    int int32() {
        uint32_t u = 0;
        for (int k = 0; k < 4; ++k) u |= static_cast<uint32_t>(byte()) << (8 * k);
        return static_cast<int>(u);
    }
    // Mostly one of the sixteen rules, sometimes any int (which a rule list accepts and ignores).
    eng::Rules rule() {
        static const int known[] = {1, 2, 3, 4, 7, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096, 8192};
        const int b = byte();
        return static_cast<eng::Rules>(b < 240 ? known[b % 16] : int32());
    }
    // An index or a value: mostly in range, sometimes just outside, sometimes any int.
    int number(int count) {
        const int b = byte();
        if (b < 200) return b % count;
        if (b < 250) return b % 2 ? -1 : count + (b % 3);
        return int32();
    }

private:
    const uint8_t* data;
    size_t size;
    size_t pos = 0;
};

// Saved and opened in a new board: the same bytes and the same cells. The new board replaces the old one, with
// the rule list the old one had, as the window does after it opens a game.
void roundTrip(std::unique_ptr<eng::Board>& board, eng::BoardObserver* observer) {
    auto twin = std::make_unique<eng::Board>(observer);
    check(play_invariants::reopened(*board, *twin));
    twin->setPencilMarksRules(board->pencilMarksRulesList());
    board = std::move(twin);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static eng::Board first(nullptr);  // the first board seeds rand() from the clock; the script's seeds win
    std::srand(1);
    CheckingObserver observer;
    auto board = std::make_unique<eng::Board>(&observer);
    Script script(data, size);
    int games = 0;
    for (int step = 0; step < kMaxSteps && !script.done(); ++step) {
        switch (script.byte() % 10) {
        case 0: {
            const int level = script.number(6);
            std::srand(static_cast<unsigned>(script.byte() | script.byte() << 8));
            if (games++ < kMaxGames) board->generate(level);
            break;
        }
        case 1: {
            const int index = script.number(81);
            board->setValue(index, script.number(10));
            break;
        }
        case 2: {
            const int index = script.number(81);
            board->togglePotential(index, script.number(10));
            break;
        }
        case 3: board->makeMove(); break;
        case 4: board->retract(); break;
        case 5: board->applyPencilMarksRule(script.rule()); break;
        case 6: {
            std::list<eng::Rules> rules;
            for (int n = script.byte() % 20; n > 0; --n) rules.push_back(script.rule());
            board->setPencilMarksRules(rules);
            break;
        }
        case 7: board->isComplete(); break;
        default: roundTrip(board, &observer); break;
        }
        check(play_invariants::repeatedDigit(*board));  // no digit twice in a row, column or square
    }
    roundTrip(board, &observer);
    return 0;
}
