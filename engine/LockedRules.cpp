// Placeholder until the locked rules land.
#include "RuleSolver.h"
namespace eng_priv {
bool RuleSolver::applyLockedByRows() { return false; }
bool RuleSolver::applyLockedByCols() { return false; }
bool RuleSolver::applyLockedBySquares() { return false; }
void Tuple::findLockedValues(int, int, int, Cell*&, Cell*&, Cell*&, std::list<int>& values) const { values.clear(); }
}  // namespace eng_priv
