#pragma once
// Nine cells that must hold the digits 1-9 once each: a row, a column or a
// square. Tuples never own their cells.

#include <list>
#include <string>
#include <vector>

#include "Cell.h"

namespace eng_priv {

class Tuple {
public:
    int index;
    std::vector<Cell*> cells;

    Tuple();
    virtual ~Tuple();

    virtual void init(int index, std::string name);
    virtual void init(int index) = 0;
    virtual void addCell(Cell* cell);
    // Remove value from every cell whose index differs from the kept cells'
    // indices. Raises the kind-3 cell conflict on a cell left empty.
    virtual bool removeFromOthers(int value, Cell* keep1, Cell* keep2, Cell* keep3);
    virtual bool removeFromOthers(int value, Cell* keep1, Cell* keep2);
    virtual bool removeFromOthers(int value, Cell* keep);

    std::string name() const { return name_; }
    bool anyModified() const;

    // Used by the naked-triples rule.
    void splitBySubset(const bool values[9], std::list<Cell*>& inside,
                       std::list<Cell*>& outside) const;
    // Used by the locked rules.
    void findLockedValues(int p1, int p2, int p3, Cell*& a, Cell*& b, Cell*& c,
                          std::list<int>& values) const;
    // Used by the hidden-subset rules.
    void hiddenValues(const int* positions, int n, std::list<int>& values) const;

private:
    std::string name_;
};

class Row : public Tuple {
public:
    using Tuple::init;
    void init(int index) override;
};

class Column : public Tuple {
public:
    using Tuple::init;
    void init(int index) override;
};

class Square : public Tuple {
public:
    using Tuple::init;
    void init(int index) override;
};

// Removes the flagged values from each listed cell (naked triples).
bool removeValues(const bool values[9], const std::list<Cell*>& cells);

}  // namespace eng_priv
