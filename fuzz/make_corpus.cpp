// Writes real saved games into a folder, as seeds for the fuzzer.
#include <cstdlib>
#include <fstream>
#include <string>

#include "Board.h"

int main(int argc, char** argv) {
    const std::string dir = argc > 1 ? argv[1] : ".";
    eng::Board first(nullptr);
    std::srand(17);
    auto save = [&](eng::Board& b, const std::string& name) {
        std::ofstream out(dir + "/" + name + ".sud", std::ios::binary);
        b.serialize(out);
    };
    const char* names[] = {"completed", "very_easy", "easy", "medium", "hard", "user_edit"};
    for (int level = eng::lvlCompleted; level <= eng::lvlUserEdit; ++level) {
        eng::Board b(nullptr);
        b.setPencilMarksRules({eng::ruleSingles});
        b.generate(level);
        save(b, names[level]);
        if (level == eng::lvlMedium || level == eng::lvlUserEdit) {
            for (int k = 0; k < 3; ++k) b.makeMove();
            b.retract();
            b.togglePotential(0, 5);
            save(b, std::string(names[level]) + "_played");
        }
    }
    eng::Board empty(nullptr);
    save(empty, "no_game");
    return 0;
}
