// Placeholder until the hidden-subset rules land.
#include "RuleSolver.h"
namespace eng_priv {
bool RuleSolver::applyHidden(int) { return false; }
bool RuleSolver::searchHidden(int, const Tuple&, int[9], int) { return false; }
void Tuple::hiddenValues(const int*, int, std::list<int>& values) const { values.clear(); }
}  // namespace eng_priv
