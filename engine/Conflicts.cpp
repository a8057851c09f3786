#include "Conflicts.h"

#include <sstream>
#include <utility>

namespace eng {

namespace {

const char* cellConflictText(int kind) {
    switch (kind) {
    case CellConflict::valueConflicts: return "Cannot set this value. It's in conflict";
    case CellConflict::potentialConflicts: return "Cannot set this potential value. It's in conflict";
    case CellConflict::noSuchPotential: return "Cannot remove an inexistent potential value.";
    case CellConflict::noPotentialLeft:
        return "All potential values were removed from this cell. There is no solution.";
    case CellConflict::tooManyGuesses: return "Too many guesses goes in conflicts. Aborting.";
    default: return "Unknown conflict type. Please report this error.";
    }
}

const char* ordinalSuffix(int n) {
    switch (n) {
    case 1: return "st";
    case 2: return "nd";
    case 3: return "rd";
    default: return "th";
    }
}

void join(std::ostream& out, const std::list<int>& numbers, bool asOrdinals) {
    bool first = true;
    for (int n : numbers) {
        if (!first) out << ", ";
        first = false;
        out << n;
        if (asOrdinals) out << ordinalSuffix(n);
    }
}

}  // namespace

ExCellConflict::ExCellConflict(int kind, int cellIndex, int value)
    : kind(kind), cellIndex(cellIndex), value(value) {}

const char* ExCellConflict::describe() {
    std::ostringstream out;
    out << "Conflict at cell index=" << cellIndex << "value=" << value << "details: "
        << cellConflictText(kind);
    message = out.str();
    return message.c_str();
}

ExTupleConflict::ExTupleConflict(int kind, std::string tupleName, int tupleIndex,
                                 std::list<int> values, std::list<int> cells)
    : kind(kind),
      tupleName(std::move(tupleName)),
      tupleIndex(tupleIndex),
      values(std::move(values)),
      cells(std::move(cells)) {}

const char* ExTupleConflict::describe() {
    std::ostringstream out;
    out << "Conflict: ";
    if (kind != TupleConflict::tooManyValues && kind != TupleConflict::tooManyCells) {
        out << "Unknown conflict type on tuple. Please report this error.";
    } else {
        out << "On " << tupleName << " " << tupleIndex + 1 << ": cannot distribute values: ";
        join(out, values, false);
        out << " to cells: ";
        join(out, cells, true);
        out << (kind == TupleConflict::tooManyValues ? "  (too many values, to few cells)" : "  (too many cells, to few values)");
    }
    message = out.str();
    return message.c_str();
}

}  // namespace eng
