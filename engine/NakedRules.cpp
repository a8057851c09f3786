// Placeholder until the naked-subset rules land.
#include "RuleSolver.h"
namespace eng_priv {
bool RuleSolver::applyDoubles() { return false; }
bool RuleSolver::applyTriples() { return false; }
bool RuleSolver::applyTransitiveDoubles() { return false; }
void Tuple::splitBySubset(const bool[9], std::list<Cell*>&, std::list<Cell*>&) const {}
bool removeValues(const bool[9], const std::list<Cell*>&) { return false; }
}  // namespace eng_priv
