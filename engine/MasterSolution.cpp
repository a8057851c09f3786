#include "MasterSolution.h"

#include <stdexcept>

namespace eng_priv {

const char* const kForbiddenSolutionError =
    "This is bug: Access to master solution is forbidden. Most likely this is a lvlUserEdit game.";

int MasterSolution::value(int index) const {
    if (forbidden) throw std::runtime_error(kForbiddenSolutionError);
    if (!solution || index < 0 || index > 80) return 0;
    return solution->cells[index].value();
}

void MasterSolution::reset() {
    triedValueCount = 0;
    guessCount = 0;
    forbidden = false;
    solution.reset();
}

}  // namespace eng_priv
