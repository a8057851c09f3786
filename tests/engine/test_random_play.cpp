// Random play at every level: each position keeps a game's invariants and survives a save and load byte for byte,
// and the loaded board answers the next operation as the original does. SUDOKU_RANDOM_PLAY_SESSIONS: sessions.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>

#include "BoardTestSupport.h"

namespace {

using eng::Board;
using namespace testing_support;

// What every position of a game keeps besides the shared checks; empty when all holds.
std::string brokenInvariant(const Board& b) {
    if (b.historySize() == 0) return "";
    const bool generated = b.getLevel() != eng::lvlUserEdit;
    int values[81], solution[81];
    for (int i = 0; i < 81; ++i) {
        const eng::CellInfo& c = *b.cell(i);
        values[i] = c.value();
        solution[i] = b.solutionValue(i);
        int candidates = 0;
        for (int p = 1; p <= 9; ++p) candidates += c.isPotential(p);
        const std::string at = "cell " + std::to_string(i) + ": ";
        if (values[i] ? !c.isPotential(values[i]) || candidates != 1 : candidates == 0)
            return at + "empty without a candidate, or its value not its only candidate";
        if (generated && (solution[i] == 0 || (values[i] != 0 && values[i] != solution[i])))
            return at + "differs from the solution";
    }
    const std::string solutionBroken = generated ? play_invariants::repeatedDigit(solution) : "";
    return solutionBroken.empty() ? play_invariants::repeatedDigit(values) : "solution: " + solutionBroken;
}

#ifdef NDEBUG
constexpr int kSessions = 240;
#else
constexpr int kSessions = 24;  // sanitizer builds: a short run
#endif

// One of the sixteen rules, or now and then a value that is none; a list of up to four.
eng::Rules randomRule(std::mt19937& rng) {
    static const int values[] = {1, 2, 3, 4, 7, 8, 16, 32, 64, 128, 256, 512, 1024, 2048, 4096, 8192,
                                 0, 3 | 8 | 1024, 1 << 20, -1};
    return static_cast<eng::Rules>(values[rng() % 20]);
}
std::list<eng::Rules> randomRules(std::mt19937& rng) {
    std::list<eng::Rules> rules(rng() % 5);
    for (eng::Rules& rule : rules) rule = randomRule(rng);
    return rules;
}

}  // namespace

TEST(RandomPlay, EveryStepKeepsTheGameConsistentAndSavable) {
    seedRandom(0);  // the seeds below win over the clock
    std::mt19937 rng(20261123);
    const char* n = std::getenv("SUDOKU_RANDOM_PLAY_SESSIONS");
    const int sessions = n ? std::atoi(n) : kSessions;
    long steps = 0;
    for (int session = 0; session < sessions; ++session) {
        const int level = session % 6;
        Transcript t, twinTranscript;
        t.detailed = twinTranscript.detailed = true;
        std::list<eng::Rules> rules = randomRules(rng);
        auto fresh = [&rules](Transcript* to) {  // given the rules before a load, which stores them without running
            auto b = std::make_unique<Board>(to);
            b->setPencilMarksRules(rules);
            return b;
        };
        auto board = fresh(&t);
        std::srand(unsigned(session) + 1);
        ASSERT_TRUE(board->generate(level)) << "session " << session;
        for (int step = 0, length = 10 + int(rng() % 40); step <= length; ++step, ++steps) {
            const std::string where = "session " + std::to_string(session) + " step " + std::to_string(step) + ": ";
            ASSERT_EQ(t.problem + brokenInvariant(*board), "") << where;
            auto twin = fresh(&twinTranscript);  // saved and opened again: the same bytes and cells
            ASSERT_EQ(play_invariants::reopened(*board, *twin), "") << where;
            if (step == length) break;

            // The next operation, on the board and on its loaded twin: 0 set value, 1 toggle candidate, 2 make move,
            // 3 retract, 4 set rules, 5 apply rule, 6 is complete; 7 saved and opened as the window does, no rules yet.
            const int index = int(rng() % 81), kind = int(rng() % 100);
            int value = 1 + int(rng() % 9);
            if (rng() % 40 == 0) value = rng() % 2 ? 0 : 10;
            if (kind < 30 && level != eng::lvlUserEdit && rng() % 3) value = board->solutionValue(index);
            const eng::Rules rule = randomRule(rng);
            const std::list<eng::Rules> nextRules = randomRules(rng);
            static const int upTo[] = {30, 60, 72, 84, 89, 94, 97};
            const int op = int(std::upper_bound(std::begin(upTo), std::end(upTo), kind) - std::begin(upTo));
            if (op == 7) {
                rules.clear();
                board = fresh(&t);
                ASSERT_TRUE(load(*board, saved(*twin))) << where;
                continue;
            }
            const unsigned seed = unsigned(rng());
            auto run = [&](Board& b) {
                std::srand(seed);
                switch (op) {
                case 0: return b.setValue(index, value);
                case 1: return b.togglePotential(index, value);
                case 2: return b.makeMove();
                case 3: return b.retract();
                case 4: b.setPencilMarksRules(nextRules); break;
                case 5: b.applyPencilMarksRule(rule); break;
                }
                return b.isComplete();
            };
            t.take(), twinTranscript.take();
            const bool result = run(*board), twinResult = run(*twin);
            if (op == 4) rules = nextRules;
            const std::string call = where + "op " + std::to_string(op) + " at " + std::to_string(index * 100 + value);
            ASSERT_EQ(twinResult, result) << call;
            ASSERT_EQ(twinTranscript.text, t.text) << call;
            ASSERT_EQ(saved(*twin), saved(*board)) << call;
        }
    }
    std::cout << "random play: " << sessions << " sessions, " << steps << " steps\n";
}
