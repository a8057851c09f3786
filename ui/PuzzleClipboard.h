#pragma once
// Puzzles through the clipboard. Copy puts the board there as 81 characters
// (digits, '.' for an empty cell); Paste reads a puzzle from there, in that
// form or as a nine-line grid, refuses it unless it has exactly one solution,
// asks whether the current game may go, and hands it to the window.

#include <QObject>
#include <functional>

#include "Grid.h"

class QWidget;
namespace eng {
class Board;
}

class PuzzleClipboard : public QObject {
    Q_OBJECT

public:
    // Replaces the window's game by one on the givens with their solution;
    // `label` is what the level label shows: the grade of the givens
    // (eng::Board::grade, eng::gradeExpert included).
    using StartGame = std::function<void(const eng::Grid& givens, const eng::Grid& solution, int label)>;

    // Messages and the question are shown over `window`.
    PuzzleClipboard(QWidget* window, StartGame start);

    // True when the clipboard's puzzle became the game. With `askFirst` the
    // player confirms first that the current game may be lost.
    bool paste(bool askFirst);
    // The board's current values; nothing without a position.
    void copy(const eng::Board* board);

signals:
    // What a screen reader should say about a copy or a paste that worked.
    void announce(const QString& text);

private:
    QWidget* window;
    StartGame start;
};
