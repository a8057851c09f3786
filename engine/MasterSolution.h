#pragma once
// The stored solution of a generated game and the search counters.

#include "BoardSnapshot.h"

namespace eng_priv {

class MasterSolution : public Serializable {
public:
    int triedValueCount = 0;
    int guessCount = 0;
    bool forbidden = false;
    std::unique_ptr<BoardSnapshot> solution;

    MasterSolution() = default;
    MasterSolution(const MasterSolution&) = delete;
    MasterSolution& operator=(const MasterSolution&) = delete;

    // The solution's value of a cell. Throws std::runtime_error when access is
    // forbidden (a User Edit game).
    int value(int index) const;
    // Counters 0, access allowed, solution deleted.
    void reset();

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;
};

extern const char* const kForbiddenSolutionError;

}  // namespace eng_priv
