// Saved games: the binary primitives and the .sud reader and writer.
//
// Layout: the tag "version=" as a length-prefixed string, the version 2, the
// master solution, the history and the retracted positions as counted lists of
// 1790-byte snapshots, then level, phase and attempt. Integers are 4 bytes,
// least significant first; booleans are 1 byte.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <vector>

#include "Board.h"
#include "MasterSolution.h"

namespace eng_priv {

Serializable::~Serializable() = default;
bool Serializable::readHeader(std::istream&, std::string) { return true; }
void Serializable::writeHeader(std::ostream&, std::string) {}
bool Serializable::readFooter(std::istream&, std::string) { return true; }
void Serializable::writeFooter(std::ostream&, std::string) {}

namespace {

constexpr int kMaxStringLength = 1000;

void writeInt(std::ostream& out, int value) {
    const auto u = static_cast<uint32_t>(value);
    const char bytes[4] = {static_cast<char>(u & 0xFF), static_cast<char>((u >> 8) & 0xFF),
                           static_cast<char>((u >> 16) & 0xFF), static_cast<char>((u >> 24) & 0xFF)};
    out.write(bytes, 4);
}

// Reads 4 bytes into the record's buffer; at the end of the data the buffer
// keeps what it held and the stream reports the failure.
void readInt(std::istream& in, StreamTarget& target) {
    unsigned char bytes[4];
    if (in.read(reinterpret_cast<char*>(bytes), 4)) {
        const uint32_t u = bytes[0] | (bytes[1] << 8) | (bytes[2] << 16) | (static_cast<uint32_t>(bytes[3]) << 24);
        target.intBuffer = static_cast<int>(u);
    }
}

}  // namespace

std::ostream& writeValue(std::ostream& out, StreamValue value) {
    switch (value.kind) {
    case kindInt: writeInt(out, value.intValue); break;
    case kindBool: out.put(value.boolValue ? 1 : 0); break;
    case kindString:
        writeInt(out, static_cast<int>(value.stringValue.size()));
        out.write(value.stringValue.data(), static_cast<std::streamsize>(value.stringValue.size()));
        break;
    }
    return out;
}

std::istream& readValue(std::istream& in, StreamTarget& target) {
    switch (target.kind) {
    case kindInt:
        readInt(in, target);
        *static_cast<int*>(target.target) = target.intBuffer;
        break;
    case kindBool: {
        char byte = 0;
        if (in.get(byte)) target.byteBuffer[0] = static_cast<unsigned char>(byte);
        *static_cast<bool*>(target.target) = target.byteBuffer[0] != 0;
        break;
    }
    case kindString: {
        readInt(in, target);
        const int n = target.intBuffer;
        if (n > kMaxStringLength) throw std::runtime_error("string too long in .sum file");
        std::fill(std::begin(target.byteBuffer), std::end(target.byteBuffer), 0);
        if (n > 0) in.read(reinterpret_cast<char*>(target.byteBuffer), n);
        std::string text;
        for (int i = 0; i < n && target.byteBuffer[i] != 0; ++i) text.push_back(static_cast<char>(target.byteBuffer[i]));
        *static_cast<std::string*>(target.target) = text;
        break;
    }
    }
    return in;
}

namespace {

int readInt(std::istream& in) {
    int value = 0;
    StreamTarget target(&value);
    readValue(in, target);
    return value;
}

bool readBool(std::istream& in) {
    bool value = false;
    StreamTarget target(&value);
    readValue(in, target);
    return value;
}

}  // namespace

// Cell record, 22 bytes: index, value, origin, nine candidate flags, modified.
bool Cell::serialize(std::ostream& out) {
    writeHeader(out, "Cell");
    writeValue(out, StreamValue(index_));
    writeValue(out, StreamValue(value_));
    writeValue(out, StreamValue(origin_));
    for (int v = 1; v <= 9; ++v) writeValue(out, StreamValue((mask_ & bitOf(v)) != 0));
    writeValue(out, StreamValue(modified_));
    writeFooter(out, "Cell");
    return true;
}

// A cell is accepted only when it could have come from a game: an index on the
// board, a value 0-9 among its own candidates, a known origin and at least one
// candidate. The row, column, square and count are derived, not read.
bool Cell::deserialize(std::istream& in) {
    if (!readHeader(in, "Cell")) return false;
    const int index = readInt(in);
    const int value = readInt(in);
    const int origin = readInt(in);
    setIndex(index);
    value_ = value;
    origin_ = origin;
    mask_ = 0;
    for (int v = 1; v <= 9; ++v)
        if (readBool(in)) mask_ |= bitOf(v);
    modified_ = readBool(in);
    if (!in || index < -1 || index > 80 || value < 0 || value > 9 || origin < 0 || origin > 3 ||
        mask_ == 0 || (value != 0 && !(mask_ & bitOf(value))))
        return false;
    return readFooter(in, "Cell");
}

bool Guess::serialize(std::ostream& out) {
    writeHeader(out, "Guess");
    writeValue(out, StreamValue(index));
    writeValue(out, StreamValue(value));
    writeFooter(out, "Guess");
    return true;
}

bool Guess::deserialize(std::istream& in) {
    if (!readHeader(in, "Guess")) return false;
    index = readInt(in);
    value = readInt(in);
    const bool none = index == -1 && value == 0;
    const bool placed = index >= 0 && index <= 80 && value >= 1 && value <= 9;
    if (!in || !(none || placed)) return false;
    return readFooter(in, "Guess");
}

bool BoardSnapshot::serialize(std::ostream& out) {
    writeHeader(out, "BoardSnapshot");
    for (Cell& cell : cells) cell.serialize(out);
    guess.serialize(out);
    writeFooter(out, "BoardSnapshot");
    return true;
}

bool BoardSnapshot::deserialize(std::istream& in) {
    if (!readHeader(in, "BoardSnapshot")) return false;
    for (int i = 0; i < 81; ++i)
        if (!cells[i].deserialize(in) || cells[i].index() != i) return false;
    if (!guess.deserialize(in)) return false;
    return readFooter(in, "BoardSnapshot");
}

bool MasterSolution::serialize(std::ostream& out) {
    writeHeader(out, "MasterSolution");
    writeValue(out, StreamValue(triedValueCount));
    writeValue(out, StreamValue(guessCount));
    writeValue(out, StreamValue(forbidden));
    writeValue(out, StreamValue(solution != nullptr));
    if (solution) solution->serialize(out);
    writeFooter(out, "MasterSolution");
    return true;
}

// A stored solution must be a whole grid.
bool MasterSolution::deserialize(std::istream& in) {
    if (!readHeader(in, "MasterSolution")) return false;
    triedValueCount = readInt(in);
    guessCount = readInt(in);
    forbidden = readBool(in);
    const bool hasSolution = readBool(in);
    solution.reset();
    if (!in || triedValueCount < 0 || guessCount < 0) return false;
    if (hasSolution) {
        solution = std::make_unique<BoardSnapshot>();
        if (!solution->deserialize(in) || !solution->isFull()) return false;
    }
    return readFooter(in, "MasterSolution");
}

}  // namespace eng_priv

namespace eng {

using eng_priv::BoardSnapshot;

namespace {

constexpr int kFormatVersion = 2;
const char* const kFormatTag = "version=";
// No game comes near this many positions; a larger count is a corrupt file.
constexpr int kMaxSnapshots = 100000;

using SnapshotList = std::vector<std::unique_ptr<BoardSnapshot>>;

void writeSnapshots(std::ostream& out, const std::deque<std::unique_ptr<BoardSnapshot>>& list) {
    eng_priv::writeValue(out, eng_priv::StreamValue(static_cast<int>(list.size())));
    for (const auto& s : list) s->serialize(out);
}

// Reads one snapshot at a time, so a huge count in a short file fails at the
// end of the data instead of allocating for the count.
bool readSnapshots(std::istream& in, SnapshotList& out) {
    const int count = eng_priv::readInt(in);
    if (!in || count < 0 || count > kMaxSnapshots) return false;
    for (int i = 0; i < count; ++i) {
        auto s = std::make_unique<BoardSnapshot>();
        if (!s->deserialize(in)) return false;
        out.push_back(std::move(s));
    }
    return true;
}

}  // namespace

bool Board::serialize(std::ostream& out) {
    writeHeader(out, "Board");
    eng_priv::writeValue(out, eng_priv::StreamValue(std::string(kFormatTag)));
    eng_priv::writeValue(out, eng_priv::StreamValue(kFormatVersion));
    masterSolution.serialize(out);
    writeSnapshots(out, history);
    writeSnapshots(out, undone);
    eng_priv::writeValue(out, eng_priv::StreamValue(level));
    eng_priv::writeValue(out, eng_priv::StreamValue(phase));
    eng_priv::writeValue(out, eng_priv::StreamValue(attempt));
    writeFooter(out, "Board");
    return true;
}

// The whole file is read into temporaries and checked before anything of the
// board changes, so a refused file leaves the game as it was. A file that
// carries the right tag and version but does not hold a playable game (data
// ending early, counts or numbers out of range, states the operations cannot
// work on) is reported like a file that is not a saved game at all:
// loadFailed(2, -1).
bool Board::deserialize(std::istream& in) {
    if (!readHeader(in, "Board")) return false;
    std::string tag;
    {
        eng_priv::StreamTarget target(&tag);
        eng_priv::readValue(in, target);
    }
    const int version = eng_priv::readInt(in);
    if (!in || tag != kFormatTag) {
        if (observer) observer->loadFailed(kFormatVersion, -1);
        return false;
    }
    if (version != kFormatVersion) {
        if (observer) observer->loadFailed(kFormatVersion, version);
        return false;
    }

    eng_priv::MasterSolution loadedSolution;
    SnapshotList loadedHistory, loadedUndone;
    bool ok = loadedSolution.deserialize(in) && readSnapshots(in, loadedHistory) &&
              readSnapshots(in, loadedUndone);
    const int loadedLevel = ok ? eng_priv::readInt(in) : 0;
    const int loadedPhase = ok ? eng_priv::readInt(in) : 0;
    const int loadedAttempt = ok ? eng_priv::readInt(in) : 0;
    ok = ok && in && readFooter(in, "Board");
    ok = ok && loadedLevel >= lvlCompleted && loadedLevel <= lvlUserEdit;
    ok = ok && loadedPhase >= phaseNone && loadedPhase <= phasePlaying && loadedAttempt >= 0 && loadedAttempt <= 14;
    // A User Edit game has no solution and forbids reading one; a generated
    // game being played has its solution.
    ok = ok && loadedSolution.forbidden == (loadedLevel == lvlUserEdit);
    ok = ok && !(loadedSolution.forbidden && loadedSolution.solution);
    ok = ok && !(loadedPhase == phasePlaying && loadedLevel != lvlUserEdit && !loadedSolution.solution);
    ok = ok && !(loadedPhase == phasePlaying && loadedHistory.empty());
    ok = ok && !(loadedHistory.empty() && !loadedUndone.empty());
    if (!ok) {
        if (observer) observer->loadFailed(kFormatVersion, -1);
        return false;
    }

    clear();
    masterSolution.triedValueCount = loadedSolution.triedValueCount;
    masterSolution.guessCount = loadedSolution.guessCount;
    masterSolution.forbidden = loadedSolution.forbidden;
    masterSolution.solution = std::move(loadedSolution.solution);
    for (auto& s : loadedHistory) history.push_back(std::move(s));
    for (auto& s : loadedUndone) undone.push_back(std::move(s));
    level = loadedLevel;
    phase = loadedPhase;
    attempt = loadedAttempt;
    reportCells();
    return true;
}

}  // namespace eng
