#pragma once
// A cell of a position: its value, the origin of that value and its potential
// values (the player's pencil marks).

#include <list>
#include <vector>

#include "Serializable.h"

namespace eng {

// Origins of a value.
enum Origin : int { originNone = 0, originGiven = 1, originPlayer = 2, originMove = 3 };

// The read-only view of one cell that leaves the engine.
class CellInfo {
public:
    virtual ~CellInfo();

    int index() const { return index_; }
    int row() const { return row_; }
    int column() const { return column_; }
    int square() const { return square_; }
    int value() const { return value_; }
    int origin() const { return origin_; }

    virtual bool isPotential(int value) const = 0;
    // Sets the index (deriving row, column and square), value 0 and origin 0.
    virtual void reset(int index);
    virtual void setIndex(int index);

protected:
    int index_ = -1;
    int row_ = -1;
    int column_ = -1;
    int square_ = -1;
    int value_ = 0;
    int origin_ = 0;
};

}  // namespace eng

namespace eng_priv {

// Candidate sets: bit v-1 stands for value v.
using Mask = unsigned;
constexpr Mask kAllValues = 0x1FF;
constexpr Mask bitOf(int value) { return 1u << (value - 1); }
// The number of values in a set (any 9-bit set: of values or of positions).
struct CountTable {
    unsigned char counts[512];
    constexpr CountTable() : counts() {
        for (int m = 1; m < 512; ++m) counts[m] = static_cast<unsigned char>(counts[m >> 1] + (m & 1));
    }
};
inline constexpr CountTable kCounts{};
inline int countOf(Mask m) { return kCounts.counts[m & 0x1FF]; }
// The lowest value of a non-empty set.
inline int lowestOf(Mask m) { return __builtin_ctz(m) + 1; }

// A cell of a position. Its candidates are a private mask changed only through
// the operations below, which raise eng::ExCellConflict on a contradiction and
// set the `modified` mark whenever a candidate goes.
class Cell : public eng::CellInfo, public Serializable {
public:
    Cell();

    bool isPotential(int value) const override;
    void reset(int index) override;

    Mask mask() const { return mask_; }
    int count() const { return countOf(mask_); }
    bool isModified() const { return modified_; }
    // Only hand-built positions set the mark directly.
    void setModified(bool modified) { modified_ = modified; }

    void setValue(int value, int origin);
    bool setSinglePotential(int value);
    bool removePotential(int value, bool mustExist);
    // Removes the values of `values`; true when any went.
    bool removeValues(Mask values);
    // Keeps only the values of `values`; true when any other went.
    bool keepOnly(Mask values);
    bool keepOnlyPotentials(std::list<int> values);
    void potentials(std::vector<int>& out) const;

    // Adds a potential value back (the player's pencil mark); no rules run.
    // Returns false when it was already there.
    bool addPotential(int value);

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;

private:
    Mask mask_ = kAllValues;
    bool modified_ = false;
};

}  // namespace eng_priv
