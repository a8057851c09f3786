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

using eng::CellConflict;

namespace {
bool inRange(int value) { return value >= 1 && value <= 9; }
}  // namespace

Cell::Cell() = default;

bool Cell::isPotential(int value) const { return inRange(value) && (mask_ & bitOf(value)); }

void Cell::reset(int index) {
    eng::CellInfo::reset(index);
    mask_ = kAllValues;
    modified_ = false;
}

void Cell::setValue(int value, int origin) {
    if (!isPotential(value)) throw eng::ExCellConflict(CellConflict::valueConflicts, index_, value);
    value_ = value;
    origin_ = origin;
}

bool Cell::setSinglePotential(int value) {
    if (!isPotential(value)) throw eng::ExCellConflict(CellConflict::potentialConflicts, index_, value);
    const bool changed = mask_ != bitOf(value);
    mask_ = bitOf(value);
    modified_ = modified_ || changed;
    return changed;
}

bool Cell::removePotential(int value, bool mustExist) {
    if (!isPotential(value)) {
        if (mustExist) throw eng::ExCellConflict(CellConflict::noSuchPotential, index_, value);
        return false;
    }
    return removeValues(bitOf(value));
}

bool Cell::removeValues(Mask values) {
    const Mask lost = mask_ & values;
    if (!lost) return false;
    mask_ &= ~values;
    modified_ = true;
    if (!mask_) throw eng::ExCellConflict(CellConflict::noPotentialLeft, index_, 0);
    return true;
}

bool Cell::keepOnly(Mask values) { return removeValues(~values & kAllValues); }

bool Cell::keepOnlyPotentials(std::list<int> values) {
    Mask keep = 0;
    for (int v : values)
        if (inRange(v)) keep |= bitOf(v);
    return keepOnly(keep);
}

void Cell::potentials(std::vector<int>& out) const {
    out.clear();
    for (int v = 1; v <= 9; ++v)
        if (mask_ & bitOf(v)) out.push_back(v);
}

bool Cell::addPotential(int value) {
    if (!inRange(value) || (mask_ & bitOf(value))) return false;
    mask_ |= bitOf(value);
    modified_ = true;
    return true;
}

}  // namespace eng_priv
