// Saved games: hostile files (round trips are checked by random play, the layout by the recorded games).
#include <gtest/gtest.h>

#include <climits>
#include <stdexcept>
#include <tuple>

#include "BoardTestSupport.h"

using namespace eng;
using testing_support::load;
using testing_support::saved;

namespace {

std::string withInt(std::string bytes, size_t offset, int value) {
    for (int k = 0; k < 4; ++k) bytes[offset + k] = char(uint32_t(value) >> (8 * k));
    return bytes;
}

}  // namespace

TEST(SavedGames, RefusedFilesLeaveTheGameUntouched) {
    testing_support::seedRandom(2024);
    testing_support::Transcript observer;
    Board board(&observer);
    ASSERT_TRUE(board.generate(lvlEasy));
    board.makeMove();
    const std::string good = saved(board);
    const size_t history = 26 + 1790, cell7 = history + 4 + 22 * 7;
    // Each file with the version the report gives: -1 for a file that is no saved game.
    std::vector<std::pair<std::string, int>> bad{{std::string("\x08\0\0\0versioN=\x02\0\0\0", 16), -1},
                                                 {std::string(), -1}, {withInt(good, 12, 1), 1}, {withInt(good, 12, 3), 3}};
    for (size_t cut : {17u, 26u, 500u, 1816u, 3000u, static_cast<unsigned>(good.size() - 1)})
        bad.push_back({good.substr(0, cut), -1});
    const std::pair<size_t, int> changes[] = {
        {16, -1}, {20, -1}, {30, 0},                  // search counters; a solution with an empty cell
        {history, 2000000000}, {history, -5},         // position counts
        {cell7, 8}, {cell7 + 4, 12}, {cell7 + 8, 4},  // history cell 7: index, value, origin
        {history + 4 + 1790 * 2 - 8, 81},             // guess of the newest position
        {good.size() - 12, 6}, {good.size() - 12, lvlUserEdit}};  // no level; User Edit with a solution
    for (auto [offset, value] : changes) bad.push_back({withInt(good, offset, value), -1});
    bad.push_back({good.substr(0, cell7 + 12) + std::string(9, '\0') + good.substr(cell7 + 21), -1});  // no candidates
    bad.push_back({good.substr(0, 24) + '\1' + good.substr(25), -1});  // a generated game marked forbidden
    observer.take();
    for (size_t k = 0; k < bad.size(); ++k) {
        EXPECT_FALSE(load(board, bad[k].first)) << "file " << k;
        EXPECT_EQ(observer.take(), "loadFailed 2 " + std::to_string(bad[k].second) + "\n") << "file " << k;
        EXPECT_EQ(saved(board), good) << "file " << k;
    }
    // A text file starts with a "length" far above the limit.
    EXPECT_THROW(load(board, "This is not a saved game at all"), std::runtime_error);
    EXPECT_EQ(saved(board), good);
    // Phase three needs positions; the other phases load silently without them.
    const std::string empty = std::string("\x08\0\0\0version=\x02\0\0\0", 16) + std::string(30, '\0');
    EXPECT_TRUE(load(board, empty) && observer.text.empty());  // level 0, phase 0, nothing reported
    EXPECT_FALSE(board.makeMove() || board.setValue(0, 1));
    EXPECT_FALSE(load(board, withInt(empty, 38, 3)));  // phase 3 without positions
}

// Every int of a saved game that meets arithmetic, set to the values at the edges of its range and of int itself.
// A game that loads must then survive a run of play; the sanitizer build turns any overflow into a failure.
class ExtremeInts : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(ExtremeInts, RefusedOrPlayable) {
    static const std::string good = [] {  // User Edit, three positions, one retracted; history at 26
        testing_support::seedRandom(77);
        Board board(nullptr);
        board.generate(lvlUserEdit);
        board.setValue(0, 5), board.setValue(40, 3), board.makeMove(), board.retract();
        return saved(board);
    }();
    const auto [offset, value] = GetParam();
    const int undone = 26 + 4 + 1790 * 3, cell40 = 30 + 1790 * 2 + 22 * 40;
    const int where = offset == 1 ? undone : offset == 2 ? cell40 : offset == 3 ? undone - 8 : offset;
    const std::string file = withInt(good, where >= 0 ? where : int(good.size()) + where, value);
    testing_support::Transcript t;
    Board board(&t);
    if (!load(board, file)) {
        EXPECT_EQ(t.take(), "loadFailed 2 -1\n");
        return;
    }
    for (int move = 0; move < 3; ++move) {
        const size_t before = board.historySize();
        t.take();
        const bool moved = board.makeMove();
        // Past 100 guesses every make move still places its first guess, then reports that there is no move (the
        // first one brings back the retracted position).
        EXPECT_TRUE(offset != 20 || value < 100 || move == 0 || (!moved && board.historySize() == before + 1 &&
                    t.text.substr(t.text.rfind('\n', t.text.size() - 2) + 1) == "noMoreMoves 81\n")) << t.text;
    }
    board.retract(), board.togglePotential(80, 9), board.setValue(79, 1), board.applyPencilMarksRule(ruleSingles);
    EXPECT_EQ(t.problem, "");
    const std::string bytes = saved(board);
    Board twin(nullptr);
    ASSERT_TRUE(load(twin, bytes));
    EXPECT_EQ(saved(twin), bytes);
    EXPECT_TRUE(offset != 16 || value != INT_MAX || bytes.substr(16, 4) == withInt(good, 16, INT_MAX).substr(16, 4));
}

// Offsets 1, 2 and 3 stand for the undone count, cell 40's index and the newest position's guess index; negative
// offsets count from the end (level, phase, attempt).
INSTANTIATE_TEST_SUITE_P(SavedGames, ExtremeInts,
                         testing::Combine(testing::Values(16, 20, 26, 1, 2, 3, -12, -8, -4),
                                          testing::Values(INT_MIN, -1, 0, 80, 81, 100, 101, INT_MAX)));
