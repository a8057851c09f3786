// Fixed seeds and calls give the very same games, move for move, digested (FNV-1a 64) through every cell's value,
// origin, candidates and solution and the saved bytes: any change in the games, the order of rand() calls or a rule
// shows here.
#include <gtest/gtest.h>

#include "BoardTestSupport.h"

using namespace eng;

namespace {

struct Digest {
    uint64_t h = 1469598103934665603ull;
    void add(uint64_t x) {
        for (int i = 0; i < 8; ++i) h = (h ^ ((x >> (8 * i)) & 0xFF)) * 1099511628211ull;
    }
    void add(Board& b) {
        for (int i = 0; i < 81; ++i) {
            const CellInfo* c = b.cell(i);
            add(c ? static_cast<uint64_t>(c->value() * 16 + c->origin()) : 999);
            unsigned mask = 0;
            for (int v = 1; v <= 9 && c; ++v) mask |= c->isPotential(v) ? 1u << v : 0;
            add(mask), add(static_cast<uint64_t>(b.solutionValue(i)));
        }
        for (char ch : testing_support::saved(b)) add(static_cast<unsigned char>(ch));
        add(b.historySize() * 1000 + static_cast<uint64_t>(b.getAttempt()));
    }
};

const std::list<Rules> kPencilRules[3] = {
    {ruleSingles}, {}, {ruleSingles, ruleHiddenSingles, ruleDoubles, ruleLockedByRows, ruleLockedBySquares}};

// A hundred games of a level: a generated game, then three hints; for User Edit, entries of a valid grid on cells
// picked by the game number, then four searched moves.
uint64_t games(int level) {
    Digest d;
    for (int g = 0; g < 100; ++g) {
        testing_support::seedRandom(static_cast<unsigned>(level == lvlUserEdit ? 9000 + g : 5000 + 1000 * level + g));
        Board board(nullptr);
        board.setPencilMarksRules(kPencilRules[g % 3]);
        if (level == lvlUserEdit) {
            board.generate(lvlUserEdit);
            for (int k = 0; k < 6 + g % 10; ++k) {
                const int i = (g * 7 + k * 31) % 81, r = i / 9, c = i % 9;
                d.add(board.setValue(i, (r * 3 + r / 3 + c + g) % 9 + 1));
            }
            for (int m = 0; m < 4; ++m) d.add(board.makeMove());
        } else {
            d.add(board.generate(level)), d.add(board);
            for (int m = 0; m < 3; ++m) d.add(board.makeMove());
        }
        d.add(board);
    }
    return d.h;
}

}  // namespace

TEST(RecordedGames, SameSeedsAndCallsGiveTheRecordedGames) {
    const uint64_t expected[6] = {0x4e205658ba1ccd33ull, 0xf7c0f6df73890a8aull, 0x87f71c8ca52a25c3ull,
                                  0x9ba04296b217b4e4ull, 0x2a4f0b6469054ed5ull, 0xa0b35d542e76ced8ull};
    for (int level = lvlCompleted; level <= lvlUserEdit; ++level) {
        const uint64_t actual = games(level);
        EXPECT_EQ(actual, expected[level]) << "level " << level << ": 0x" << std::hex << actual;
    }
}
