#include "PuzzleClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>

#include "Board.h"
#include "PuzzleText.h"

namespace {

const char* refusal(eng::PuzzleCheck check) {
    switch (check) {
    case eng::PuzzleCheck::noPuzzle:
        return QT_TRANSLATE_NOOP("PuzzleClipboard",
                                 "The clipboard holds no puzzle.\nA puzzle is 81 cells: a digit for a given, "
                                 "0 or . for an empty cell.");
    case eng::PuzzleCheck::conflictingGivens:
        return QT_TRANSLATE_NOOP("PuzzleClipboard",
                                 "This puzzle cannot be played:\na row, column or square holds a digit twice.");
    case eng::PuzzleCheck::noSolution: return QT_TRANSLATE_NOOP("PuzzleClipboard", "This puzzle has no solution.");
    default: return QT_TRANSLATE_NOOP("PuzzleClipboard", "This puzzle has more than one solution.");
    }
}

}  // namespace

PuzzleClipboard::PuzzleClipboard(QWidget* window, StartGame start)
    : QObject(window), window(window), start(std::move(start)) {}

bool PuzzleClipboard::paste(bool askFirst) {
    const QString title = QStringLiteral("Sudoku Vantu");  // notr: the program's name
    // Web pages put no-break and other spaces between cells: all count as blanks.
    QString text = QGuiApplication::clipboard()->text();
    for (QChar& c : text)
        if (c.isSpace()) c = ' ';
    eng::Grid givens{}, solution{};
    const eng::PuzzleCheck check = eng::checkPuzzle(text.toStdString(), givens, solution);
    if (check != eng::PuzzleCheck::unique) {
        QMessageBox::warning(window, title, tr(refusal(check)));
        return false;
    }
    // The same question as before a new game.
    if (askFirst && QMessageBox::question(window, title,
                                          QCoreApplication::translate("SudokuWindow",
                                                                      "Current game will be lost.\nContinue?"),
                                          QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
        return false;
    start(givens, solution, eng::Board::grade(givens));
    emit announce(tr("Puzzle pasted."));
    return true;
}

void PuzzleClipboard::copy(const eng::Board* board) {
    if (!board || !board->cell(0)) return;
    eng::Grid values{};
    for (int i = 0; i < 81; ++i) values[i] = board->cell(i)->value();
    QGuiApplication::clipboard()->setText(QString::fromStdString(eng::writePuzzle(values)));
    emit announce(tr("Puzzle copied."));
}
