// Recorded games: fixed seeds and fixed calls must give the very same games,
// move for move. Each game is digested (FNV-1a 64) through the public
// operations: every cell's value, origin and candidates, the stored solution,
// and the saved-game bytes, which hold the history, the attempt and the
// search counters. The expected digests were taken from the engine as it was
// before its rules were rewritten on bit masks; any change in the games, in
// the order of rand() calls or in what a rule removes shows up here.
#include <gtest/gtest.h>

#include <cinttypes>
#include <cstdio>
#include <sstream>

#include "BoardTestSupport.h"

using namespace eng;

namespace {

constexpr int kGamesPerLevel = 100;

struct Digest {
    uint64_t h = 1469598103934665603ull;
    void add(uint64_t x) {
        for (int i = 0; i < 8; ++i) {
            h ^= (x >> (8 * i)) & 0xFF;
            h *= 1099511628211ull;
        }
    }
};

void digestBoard(Digest& d, Board& b) {
    for (int i = 0; i < 81; ++i) {
        const CellInfo* c = b.cell(i);
        d.add(c ? static_cast<uint64_t>(c->value() * 16 + c->origin()) : 999);
        unsigned mask = 0;
        for (int v = 1; v <= 9 && c; ++v) mask |= c->isPotential(v) ? 1u << v : 0;
        d.add(mask);
        d.add(static_cast<uint64_t>(b.solutionValue(i)));
    }
    std::ostringstream saved;
    b.serialize(saved);
    for (char ch : saved.str()) d.add(static_cast<unsigned char>(ch));
    d.add(b.historySize() * 1000 + static_cast<uint64_t>(b.getAttempt()));
}

const std::list<Rules> kPencilRules[3] = {
    {ruleSingles},
    {},
    {ruleSingles, ruleHiddenSingles, ruleDoubles, ruleLockedByRows, ruleLockedBySquares},
};

// A generated game, then three hints.
uint64_t generatedGames(int level) {
    Digest d;
    for (int g = 0; g < kGamesPerLevel; ++g) {
        testing_support::seedRandom(static_cast<unsigned>(5000 + 1000 * level + g));
        Board board(nullptr);
        board.setPencilMarksRules(kPencilRules[g % 3]);
        d.add(board.generate(level));
        digestBoard(d, board);
        for (int m = 0; m < 3; ++m) d.add(board.makeMove());
        digestBoard(d, board);
    }
    return d.h;
}

// A User Edit game: entries of a valid grid on cells picked by the game
// number, then searched moves.
uint64_t userEditSearches() {
    Digest d;
    for (int g = 0; g < kGamesPerLevel; ++g) {
        testing_support::seedRandom(static_cast<unsigned>(9000 + g));
        Board board(nullptr);
        board.setPencilMarksRules(kPencilRules[g % 3]);
        board.generate(lvlUserEdit);
        for (int k = 0; k < 6 + g % 10; ++k) {
            const int i = (g * 7 + k * 31) % 81, r = i / 9, c = i % 9;
            d.add(board.setValue(i, (r * 3 + r / 3 + c + g) % 9 + 1));
        }
        for (int m = 0; m < 4; ++m) d.add(board.makeMove());
        digestBoard(d, board);
    }
    return d.h;
}

}  // namespace

TEST(RecordedGames, SameSeedsAndCallsGiveTheRecordedGames) {
    const uint64_t expected[6] = {
        0x4e205658ba1ccd33ull, 0xf7c0f6df73890a8aull, 0x87f71c8ca52a25c3ull,
        0x9ba04296b217b4e4ull, 0x2a4f0b6469054ed5ull, 0xa0b35d542e76ced8ull,
    };
    uint64_t actual[6];
    for (int level = lvlCompleted; level <= lvlHard; ++level) actual[level] = generatedGames(level);
    actual[lvlUserEdit] = userEditSearches();
    for (int k = 0; k < 6; ++k) {
        char text[32];
        std::snprintf(text, sizeof text, "0x%016" PRIx64 "ull", actual[k]);
        EXPECT_EQ(actual[k], expected[k]) << "level " << k << ": " << text;
    }
}
