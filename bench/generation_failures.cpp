// Generates N games per level (default 1000) and prints how many attempts to
// generate returned false, with the time taken.
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "Board.h"

int main(int argc, char** argv) {
    const int games = argc > 1 ? std::atoi(argv[1]) : 1000;
    eng::Board first(nullptr);  // seeds rand() once; reseeded below
    static const char* names[] = {"Completed", "Very Easy", "Easy", "Medium", "Hard"};
    for (int level = eng::lvlCompleted; level <= eng::lvlHard; ++level) {
        std::srand(1000u + static_cast<unsigned>(level));
        int failed = 0;
        const auto start = std::chrono::steady_clock::now();
        for (int g = 0; g < games; ++g) {
            eng::Board board(nullptr);
            board.setPencilMarksRules({eng::ruleSingles});
            failed += !board.generate(level);
        }
        const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        std::printf("%-10s %d games, %d returned false, %.2f s (%.2f ms/game)\n", names[level], games,
                    failed, seconds, 1000.0 * seconds / games);
    }
    return 0;
}
