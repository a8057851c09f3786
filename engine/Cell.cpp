#include "Cell.h"

#include "Conflicts.h"

namespace eng {

CellInfo::~CellInfo() = default;

void CellInfo::reset(int index) {
    setIndex(index);
    value_ = 0;
    origin_ = 0;
}

void CellInfo::setIndex(int index) {
    index_ = index;
    if (index < 0) {
        row_ = column_ = square_ = -1;
        return;
    }
    row_ = index / 9;
    column_ = index % 9;
    square_ = (row_ / 3) * 3 + column_ / 3;
}

}  // namespace eng

namespace eng_priv {

namespace {
bool inRange(int value) { return value >= 1 && value <= 9; }
}  // namespace

Cell::Cell() : potentialCount(9), modified(false) {
    for (bool& p : potential) p = true;
}

bool Cell::isPotential(int value) const { return inRange(value) && potential[value - 1]; }

void Cell::reset(int index) {
    eng::CellInfo::reset(index);
    for (bool& p : potential) p = true;
    potentialCount = 9;
    modified = false;
}

void Cell::setValue(int value, int origin) {
    if (!isPotential(value)) throw eng::ExCellConflict(0, index_, value);
    value_ = value;
    origin_ = origin;
}

bool Cell::setSinglePotential(int value) {
    if (!isPotential(value)) throw eng::ExCellConflict(1, index_, value);
    const bool changed = potentialCount >= 2;
    for (int v = 1; v <= 9; ++v) potential[v - 1] = (v == value);
    potentialCount = 1;
    modified = modified || changed;
    return changed;
}

bool Cell::removePotential(int value, bool mustExist) {
    if (!isPotential(value)) {
        if (mustExist) throw eng::ExCellConflict(2, index_, value);
        return false;
    }
    potential[value - 1] = false;
    --potentialCount;
    if (potentialCount < 1) throw eng::ExCellConflict(3, index_, 0);
    modified = true;
    return true;
}

bool Cell::keepOnlyPotentials(std::list<int> values) {
    bool keep[9] = {};
    for (int v : values)
        if (inRange(v)) keep[v - 1] = true;
    bool changed = false;
    for (int i = 0; i < 9; ++i) {
        if (potential[i] && !keep[i]) {
            potential[i] = false;
            --potentialCount;
            changed = true;
        }
    }
    modified = modified || changed;
    if (potentialCount < 1) throw eng::ExCellConflict(3, index_, 0);
    return changed;
}

void Cell::potentials(std::vector<int>& out) const {
    out.clear();
    for (int v = 1; v <= 9; ++v)
        if (potential[v - 1]) out.push_back(v);
}

bool Cell::sharesExactlyOne(const Cell& other) const {
    int common = 0;
    for (int i = 0; i < 9; ++i)
        if (potential[i] && other.potential[i]) ++common;
    return common == 1;
}

int Cell::firstCommonPotential(const Cell& other) const {
    for (int i = 0; i < 9; ++i)
        if (potential[i] && other.potential[i]) return i + 1;
    return 0;
}

bool Cell::addPotential(int value) {
    if (!inRange(value) || potential[value - 1]) return false;
    potential[value - 1] = true;
    ++potentialCount;
    modified = true;
    return true;
}

}  // namespace eng_priv
