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

class Cell : public eng::CellInfo, public Serializable {
public:
    bool potential[9];  // potential[v-1]: v is still possible
    int potentialCount;
    bool modified;

    Cell();

    bool isPotential(int value) const override;
    void reset(int index) override;

    // Raise eng::ExCellConflict on contradictions (kinds 0-3).
    void setValue(int value, int origin);
    bool setSinglePotential(int value);
    bool removePotential(int value, bool mustExist);
    bool keepOnlyPotentials(std::list<int> values);
    void potentials(std::vector<int>& out) const;
    bool sharesExactlyOne(const Cell& other) const;
    int firstCommonPotential(const Cell& other) const;

    // Adds a potential value back (the player's pencil mark); no rules run.
    // Returns false when it was already there.
    bool addPotential(int value);

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;
};

}  // namespace eng_priv
