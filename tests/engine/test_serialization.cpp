// Saved games: primitives, the byte layout, round trips and hostile files.
#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>

#include "BoardTestSupport.h"

using namespace eng;
using eng_priv::StreamTarget;
using eng_priv::StreamValue;
using testing_support::RecordingObserver;

namespace {

std::string bytesOf(Board& board) {
    std::ostringstream out(std::ios::binary);
    EXPECT_TRUE(board.serialize(out));
    return out.str();
}

bool load(Board& board, const std::string& bytes) {
    std::istringstream in(bytes, std::ios::binary);
    return board.deserialize(in);
}

int intAt(const std::string& bytes, size_t offset) {
    uint32_t u = 0;
    for (int k = 3; k >= 0; --k) u = (u << 8) | static_cast<unsigned char>(bytes.at(offset + k));
    return static_cast<int>(u);
}

void putInt(std::string& bytes, size_t offset, int value) {
    for (int k = 0; k < 4; ++k) bytes[offset + k] = static_cast<char>((static_cast<uint32_t>(value) >> (8 * k)) & 0xFF);
}

std::string header(int version) {
    std::ostringstream out(std::ios::binary);
    eng_priv::writeValue(out, StreamValue(std::string("version=")));
    eng_priv::writeValue(out, StreamValue(version));
    return out.str();
}

// Everything the player can see of a board, position by position.
std::vector<std::vector<int>> walkBack(Board& board) {
    std::vector<std::vector<int>> positions;
    do {
        std::vector<int> state;
        for (int i = 0; i < 81; ++i) {
            const CellInfo* c = board.cell(i);
            state.push_back(c->value() * 100 + c->origin() * 10);
            for (int v = 1; v <= 9; ++v) state.push_back(c->isPotential(v));
        }
        positions.push_back(state);
    } while (board.retract());
    return positions;
}

struct SavedGames : ::testing::Test {
    RecordingObserver observer;
    Board board{&observer};
    void SetUp() override { testing_support::seedRandom(2024); }
};

}  // namespace

TEST(Primitives, EncodingsAndLimits) {
    std::ostringstream out(std::ios::binary);
    eng_priv::writeValue(out, StreamValue(2));
    eng_priv::writeValue(out, StreamValue(-1));
    eng_priv::writeValue(out, StreamValue(true));
    eng_priv::writeValue(out, StreamValue(std::string("version=")));
    EXPECT_EQ(out.str(), std::string("\x02\x00\x00\x00\xFF\xFF\xFF\xFF\x01\x08\x00\x00\x00version=", 21));

    std::istringstream in(std::string("\x07\x05\x00\x00\x00" "ab" "\x00" "cd", 10), std::ios::binary);
    bool flag = false;
    std::string text;
    StreamTarget boolTarget(&flag), stringTarget(&text);
    eng_priv::readValue(in, boolTarget);
    eng_priv::readValue(in, stringTarget);
    EXPECT_TRUE(flag);      // any nonzero byte
    EXPECT_EQ(text, "ab");  // an embedded zero ends the string

    for (int length : {1000, 1001}) {  // the longest string accepted, and one more
        std::string bytes(4, '\0');
        putInt(bytes, 0, length);
        std::istringstream longer(bytes + std::string(static_cast<size_t>(length), 'x'), std::ios::binary);
        if (length == 1000) {
            eng_priv::readValue(longer, stringTarget);
            EXPECT_EQ(text.size(), 1000u);
        } else {
            EXPECT_THROW(eng_priv::readValue(longer, stringTarget), std::runtime_error);
        }
    }
}

TEST_F(SavedGames, Layout) {
    eng_priv::Cell cell;  // a cell record is 22 bytes
    cell.reset(40);
    cell.setSinglePotential(5);
    cell.setValue(5, 1);
    std::ostringstream out(std::ios::binary);
    cell.serialize(out);
    EXPECT_EQ(out.str(), std::string("\x28\x00\x00\x00\x05\x00\x00\x00\x01\x00\x00\x00"
                                     "\x00\x00\x00\x00\x01\x00\x00\x00\x00\x01",
                                     22));

    ASSERT_TRUE(board.generate(lvlMedium));
    std::string bytes = bytesOf(board);
    ASSERT_EQ(bytes.size(), 46u + 1790u * 3);  // solution + two positions
    EXPECT_EQ(bytes.substr(0, 16), header(2));
    EXPECT_EQ(intAt(bytes, 16), board.solution().triedValueCount);
    EXPECT_EQ(intAt(bytes, 20), board.solution().guessCount);
    EXPECT_EQ(bytes.substr(24, 2), std::string("\0\1", 2));  // not forbidden, has a solution
    EXPECT_EQ(intAt(bytes, 26 + 1790), 2);  // history count after the solution
    EXPECT_EQ(intAt(bytes, bytes.size() - 12), lvlMedium);
    EXPECT_EQ(intAt(bytes, bytes.size() - 8), 3);
    EXPECT_EQ(intAt(bytes, bytes.size() - 4), board.getAttempt());

    ASSERT_TRUE(board.generate(lvlUserEdit));
    bytes = bytesOf(board);
    ASSERT_EQ(bytes.size(), 1836u);
    EXPECT_EQ(bytes.substr(24, 2), std::string("\1\0", 2));
    EXPECT_EQ(intAt(bytes, 26), 1);
}

TEST_F(SavedGames, RoundTripsAreByteIdenticalAndRetractWalksTheSamePositions) {
    for (int level : {int(lvlEasy), int(lvlUserEdit), int(lvlHard)}) {
        ASSERT_TRUE(board.generate(level));
        for (int k = 0; k < 4; ++k) board.makeMove();
        board.retract();
        board.retract();
        board.makeMove();
        board.togglePotential(board.cell(0)->value() ? 1 : 0, 9);
        const std::string saved = bytesOf(board);
        const size_t undone = board.undoneSize();

        RecordingObserver other;
        Board loaded(&other);
        ASSERT_TRUE(load(loaded, saved)) << level;
        EXPECT_EQ(other.count("cellsChanged"), 1);
        EXPECT_EQ(bytesOf(loaded), saved);
        EXPECT_EQ(loaded.undoneSize(), undone);
        EXPECT_EQ(loaded.getLevel(), level);
        EXPECT_EQ(walkBack(loaded), walkBack(board));
    }
}

TEST_F(SavedGames, RefusedFilesLeaveTheGameUntouched) {
    ASSERT_TRUE(board.generate(lvlEasy));
    board.makeMove();
    const std::string good = bytesOf(board);
    // Each file with the version the report gives: -1 for a file that is no saved game.
    std::vector<std::pair<std::string, int>> bad{{std::string("\x08\x00\x00\x00versioN=\x02\x00\x00\x00", 16), -1},
                                                 {std::string(), -1}};
    for (int version : {1, 3}) {
        bad.push_back({good, version});
        putInt(bad.back().first, 12, version);
    }
    for (size_t cut : {17u, 26u, 500u, 1816u, 3000u, static_cast<unsigned>(good.size() - 1)})
        bad.push_back({good.substr(0, cut), -1});
    const size_t history = 26 + 1790, cell7 = history + 4 + 22 * 7;
    const std::pair<size_t, int> changes[] = {
        {16, -1}, {20, -1}, {30, 0},  // search counters; a solution with an empty cell
        {history, 2000000000}, {history, -5},  // position counts
        {cell7, 8}, {cell7 + 4, 12}, {cell7 + 8, 4},  // history cell 7: index, value, origin
        {history + 4 + 1790 * 2 - 8, 81},  // guess of the newest position
        {good.size() - 12, 6}, {good.size() - 12, lvlUserEdit}};  // no level; User Edit with a solution
    for (auto [offset, value] : changes) {
        bad.push_back({good, -1});
        putInt(bad.back().first, offset, value);
    }
    bad.push_back({good, -1});
    for (int k = 0; k < 9; ++k) bad.back().first[cell7 + 12 + k] = 0;  // no candidates
    bad.push_back({good, -1});
    bad.back().first[24] = 1;  // a generated game marked forbidden

    for (size_t k = 0; k < bad.size(); ++k) {
        observer.clear();
        EXPECT_FALSE(load(board, bad[k].first)) << "file " << k;
        ASSERT_EQ(observer.calls.size(), 1u) << "file " << k;
        EXPECT_EQ(observer.calls[0].what, "loadFailed");
        EXPECT_EQ(observer.calls[0].a, 2);
        EXPECT_EQ(observer.calls[0].b, bad[k].second) << "file " << k;
        EXPECT_EQ(bytesOf(board), good) << "file " << k;
    }
    // A text file starts with a "length" far above the limit.
    EXPECT_THROW(load(board, "This is not a saved game at all"), std::runtime_error);
    EXPECT_EQ(bytesOf(board), good);
}

TEST_F(SavedGames, PhaseThreeWithoutHistoryIsRefusedOtherPhasesLoadSilently) {
    std::string empty = header(2);
    std::string rest(10 + 4 + 4 + 12, '\0');
    empty += rest;
    putInt(empty, 16 + 10 + 8, lvlCompleted);  // level
    EXPECT_TRUE(load(board, empty));             // phase 0, nothing reported
    EXPECT_TRUE(observer.calls.empty());
    EXPECT_FALSE(board.makeMove());
    EXPECT_FALSE(board.setValue(0, 1));
    putInt(empty, 16 + 10 + 12, 3);  // phase 3 without positions
    EXPECT_FALSE(load(board, empty));
}
