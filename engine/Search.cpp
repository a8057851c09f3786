// Make move: re-applying retracted positions, revealing the stored solution,
// and the randomised depth-first search with its limits.
#include <climits>
#include <cstdlib>
#include <stdexcept>

#include "Board.h"
#include "RuleSolver.h"

namespace eng {

using eng_priv::BoardSnapshot;
using eng_priv::Cell;

namespace {

constexpr int kMaxSearchSteps = 81;
constexpr int kMaxGuesses = 100;

// for i = 1 .. n-1: swap element i with element rand() % (i + 1).
template <typename T>
void shuffle(std::vector<T>& items) {
    for (size_t i = 1; i < items.size(); ++i) {
        const size_t j = static_cast<size_t>(std::rand()) % (i + 1);
        std::swap(items[i], items[j]);
    }
}

}  // namespace

void Board::captureSolution() {
    if (masterSolution.forbidden) throw std::runtime_error(eng_priv::kForbiddenSolutionError);
    masterSolution.solution = history.back()->copy();
}

bool Board::makeMove() {
    if (history.empty()) return false;
    if (!undone.empty()) {
        history.push_back(std::move(undone.back()));
        undone.pop_back();
        reportCells();
        return true;
    }
    bool moved = false;
    if (!history.back()->isFull()) {
        moved = masterSolution.solution ? revealOne(placeHint) : search(placeSearch);
    }
    if (moved) {
        reportCells();
        return true;
    }
    reportNoMoreMoves();
    return false;
}

bool Board::revealOne(PlaceKind kind) {
    std::vector<Cell*> cells;
    if (!history.back()->emptyCells(cells)) return false;
    Cell* chosen = chooseCell(cells, phase);
    return placeValueAs(chosen->index(), masterSolution.value(chosen->index()), kind);
}

Cell* Board::chooseCell(const std::vector<Cell*>& cells, int phaseNow) {
    if (cells.empty()) return nullptr;
    std::vector<Cell*> order(cells);
    shuffle(order);

    if (phaseNow == phaseFilling) {
        // Fewest choices first.
        for (int count = 1; count <= 3; ++count)
            for (Cell* c : order)
                if (c->count() == count) return c;
        return order.front();
    }

    // Most choices: the first with nine, else the last with eight ... five.
    for (Cell* c : order)
        if (c->count() == 9) return c;
    for (int count = 8; count >= 5; --count) {
        Cell* last = nullptr;
        for (Cell* c : order)
            if (c->count() == count) last = c;
        if (last) return last;
    }
    // Otherwise score each cell by the candidates of the listed cells that
    // share its row, its column and its square.
    Cell* best = nullptr;
    int bestScore = -1;
    for (Cell* c : order) {
        if (c->count() < 2) continue;
        int score = 0;
        for (const Cell* other : order) {
            if (other->row() == c->row()) score += other->count();
            if (other->column() == c->column()) score += other->count();
            if (other->square() == c->square()) score += other->count();
        }
        if (score > bestScore) {
            bestScore = score;
            best = c;
        }
    }
    return best ? best : order.front();
}

bool Board::search(PlaceKind kind) {
    try {
        for (int step = 0; step < kMaxSearchSteps; ++step) {
            if (guessOne(kind)) return true;
            // A search that cannot take back another guess has no move; the
            // caller reports it.
            if (!retractGuess()) return false;
        }
    } catch (ExCellConflict& conflict) {
        if (conflict.kind != CellConflict::tooManyGuesses) throw;
        conflict.describe();
    }
    return false;
}

bool Board::guessOne(PlaceKind kind) {
    std::vector<Cell*> cells;
    if (!history.back()->emptyCells(cells)) return false;
    Cell* chosen = chooseCell(cells, phase);
    const bool placed = tryValues(chosen, kind);
    // Both counters may come from a saved game at any value up to INT_MAX: they stop there instead of wrapping.
    if (masterSolution.guessCount < INT_MAX) ++masterSolution.guessCount;
    if (masterSolution.guessCount > kMaxGuesses) throw ExCellConflict(CellConflict::tooManyGuesses, -1, 0);
    return placed;
}

bool Board::tryValues(Cell* cell, PlaceKind kind) {
    std::vector<int> values;
    cell->potentials(values);
    shuffle(values);
    const int index = cell->index();  // the cell lives in a position that may be copied
    for (int value : values) {
        if (masterSolution.triedValueCount < INT_MAX) ++masterSolution.triedValueCount;
        if (placeValueAs(index, value, kind)) return true;
    }
    return false;
}

// Takes back the newest position and removes its guessed value from that cell
// in the position below; a cell left without candidates takes back one more.
// Returns false instead of going below the first position, or when the guess
// cannot be taken back in the position below (a position that names no cell,
// or a retracted position re-applied on top of another line of play).
bool Board::retractGuess() {
    while (true) {
        if (history.size() < 2) return false;
        const eng_priv::Guess guess = history.back()->guess;
        if (guess.index < 0 || guess.index > 80) return false;
        history.pop_back();
        Cell& cell = history.back()->cells[guess.index];
        const Cell before = cell;
        try {
            cell.removePotential(guess.value, true);
            return true;
        } catch (ExCellConflict& conflict) {
            conflict.describe();
            cell = before;  // this position is taken back next, or kept intact
            if (conflict.kind != CellConflict::noPotentialLeft) return false;
        }
    }
}

}  // namespace eng
