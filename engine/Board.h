#pragma once
// The engine's facade: one game, its history of positions, its stored solution
// and the player's pencil-mark rules. Everything the player must see goes out
// through eng::BoardObserver.

#include <deque>
#include <list>
#include <memory>
#include <utility>
#include <vector>

#include "BoardSnapshot.h"
#include "Cell.h"
#include "Conflicts.h"
#include "Grid.h"
#include "MasterSolution.h"
#include "Rules.h"

namespace eng_priv {
class RuleSolver;
}

namespace eng {

enum Level : int {
    lvlCompleted = 0,
    lvlVeryEasy = 1,
    lvlEasy = 2,
    lvlMedium = 3,
    lvlHard = 4,
    lvlUserEdit = 5,
};

// A grade beyond the levels: puzzles that even the Hard preset cannot solve.
// A board holds such a game at lvlHard.
constexpr int gradeExpert = 6;

// Phases of a board: generation fills a solution, then reveals givens; a game
// is played in the last phase, the only one that reports cells.
enum Phase : int {
    phaseNone = 0,
    phaseFilling = 1,
    phaseRevealing = 2,
    phasePlaying = 3,
};

class BoardObserver {
public:
    virtual ~BoardObserver();
    virtual void cellsChanged(const std::vector<CellInfo*>& cells) = 0;
    virtual void noMoreMoves(const std::vector<CellInfo*>& cells) = 0;
    virtual void cellHasNoSolution(const std::vector<CellInfo*>& cells, int cell) = 0;
    virtual void loadFailed(int expectedVersion, int actualVersion) = 0;
    virtual void valueRefused(int index, int value) = 0;
    virtual void potentialRefused(int index, int value) = 0;
};

class Board : public eng_priv::Serializable {
public:
    explicit Board(BoardObserver* observer);
    ~Board() override;
    Board(const Board&) = delete;
    Board& operator=(const Board&) = delete;
    // For a board made where its observer must not be called (another thread).
    void setObserver(BoardObserver* reportTo) { observer = reportTo; }

    bool deserialize(std::istream& in) override;
    bool serialize(std::ostream& out) override;

    bool generate(int level);
    bool setValue(int index, int value);
    bool togglePotential(int index, int value);
    bool makeMove();
    bool retract();
    bool isComplete();
    // A hint carried out: places a value as make move places one (origin 3, one
    // history entry): the solution's digit in a generated game, in User Edit a
    // value the consistency check accepts.
    bool placeMove(int index, int value);
    // Removes pencil marks (cell, value) as the player's toggles remove them,
    // all in one change; false, with nothing changed, when any one would be refused.
    bool removePotentials(const std::vector<std::pair<int, int>>& marks);
    void setPencilMarksRules(std::list<Rules> rules);
    void applyPencilMarksRule(Rules rule);
    // Starts a game on givens whose only solution is `solution`, as generation
    // would end one: the givens with origin 1, the solution stored, so that a
    // wrong value is refused, the level the givens' grade (lvlHard for
    // gradeExpert), phase playing, the cells reported. False, and the board
    // unchanged, when the solution is no valid full grid that keeps the givens.
    bool startGame(const Grid& givens, const Grid& solution);
    // The easiest level whose reveal preset solves the givens: lvlCompleted for
    // a full grid, lvlVeryEasy to lvlHard, or gradeExpert beyond them.
    static int grade(const Grid& givens);

    // Read-only queries used by tests, tools and the user interface.
    int getLevel() const { return level; }
    int getPhase() const { return phase; }
    int getAttempt() const { return attempt; }
    size_t historySize() const { return history.size(); }
    size_t undoneSize() const { return undone.size(); }
    // The current position's cell, or null when there is no position.
    const CellInfo* cell(int index) const;
    // The stored solution's value of a cell, 0 when there is none (never throws).
    int solutionValue(int index) const;
    // A cell of the current position in the row, else the column, else the
    // square of `index` (not that cell itself) holding `value`; -1 when none does.
    int clashingCell(int index, int value) const;
    const eng_priv::MasterSolution& solution() const { return masterSolution; }
    const std::list<Rules>& pencilMarksRulesList() const { return pencilMarksRules; }

    enum PlaceKind { placeFill, placeReveal, placeHint, placePlayer, placePlayerUserEdit, placeSearch };

private:
    eng_priv::MasterSolution masterSolution;
    std::deque<std::unique_ptr<eng_priv::BoardSnapshot>> history;
    std::deque<std::unique_ptr<eng_priv::BoardSnapshot>> undone;
    int level = lvlCompleted;
    int phase = phaseNone;
    int attempt = 0;
    BoardObserver* observer = nullptr;
    std::list<Rules> pencilMarksRules;

    bool placeValue(eng_priv::BoardSnapshot& s, eng_priv::RuleSolver& solver, int index, int value,
                    int origin);
    bool placeValueAs(int index, int value, PlaceKind kind);
    bool runRules(eng_priv::BoardSnapshot& s, eng_priv::RuleSolver& solver, bool& changed);
    bool runRulesFromValues(eng_priv::RuleSolver& solver, eng_priv::BoardSnapshot& s);
    bool isConsistent(const eng_priv::BoardSnapshot& s);
    void applyRulesList(std::list<Rules> rules);
    void clear();
    void reportCells();
    void reportNoMoreMoves();
    void cellViews(std::vector<CellInfo*>& out);
    // The preset that reveals, and so grades, a level.
    static int revealPreset(int level);

    // History.
    void resetToFirst();

    // Make move and the search.
    void captureSolution();
    bool revealOne(PlaceKind kind);
    bool search(PlaceKind kind);
    bool guessOne(PlaceKind kind);
    bool tryValues(eng_priv::Cell* cell, PlaceKind kind);
    bool retractGuess();
    eng_priv::Cell* chooseCell(const std::vector<eng_priv::Cell*>& cells, int phase);

    // Generation.
    bool fill();
    void revealUntilReady();
    bool isTooEasy();
    void finishGame();
    bool solves(int preset, const eng_priv::BoardSnapshot& s);
};

}  // namespace eng
