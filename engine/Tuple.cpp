#include "Tuple.h"

#include <utility>

#include "Conflicts.h"

namespace eng_priv {

Tuple::Tuple() : index(-1), name_("<unnamed>") {}

Tuple::~Tuple() = default;

void Tuple::init(int index, std::string name) {
    this->index = index;
    name_ = std::move(name);
    cells.clear();
}

void Tuple::addCell(Cell* cell) { cells.push_back(cell); }

bool Tuple::removeFromOthers(int value, Cell* keep1, Cell* keep2, Cell* keep3) {
    const int k1 = keep1 ? keep1->index() : -2;
    const int k2 = keep2 ? keep2->index() : -2;
    const int k3 = keep3 ? keep3->index() : -2;
    bool changed = false;
    for (Cell* cell : cells) {
        const int i = cell->index();
        if (i == k1 || i == k2 || i == k3) continue;
        if (!cell->isPotential(value)) continue;
        cell->potential[value - 1] = false;
        --cell->potentialCount;
        if (cell->potentialCount < 1) throw eng::ExCellConflict(3, i, 0);
        cell->modified = true;
        changed = true;
    }
    return changed;
}

bool Tuple::removeFromOthers(int value, Cell* keep1, Cell* keep2) {
    return removeFromOthers(value, keep1, keep2, nullptr);
}

bool Tuple::removeFromOthers(int value, Cell* keep) {
    return removeFromOthers(value, keep, nullptr, nullptr);
}

bool Tuple::anyModified() const {
    for (const Cell* cell : cells)
        if (cell->modified) return true;
    return false;
}

void Row::init(int index) { Tuple::init(index, "row"); }
void Column::init(int index) { Tuple::init(index, "column"); }
void Square::init(int index) { Tuple::init(index, "square"); }

}  // namespace eng_priv
