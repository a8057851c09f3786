#include "HintController.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "SudokuWindow.h"

using eng::Hint;
using eng::Step;
using eng::Technique;

namespace {

QString list(const QStringList& items, const QString& separator) {
    if (items.size() < 2) return items.join(QString());
    return HintController::tr("%1 and %2").arg(items.mid(0, items.size() - 1).join(separator), items.last());
}

QString digits(const std::vector<int>& values) {
    QStringList items;
    for (int v : values) items << QString::number(v);
    return list(items, HintController::tr(", "));
}

QString unitName(int unit) {
    const int n = unit % 9 + 1;
    if (unit < 9) return HintController::tr("row %1").arg(n);
    if (unit < 18) return HintController::tr("column %1").arg(n);
    return HintController::tr("box %1").arg(n);
}

QString cellName(int cell) { return HintController::tr("row %1, column %2").arg(cell / 9 + 1).arg(cell % 9 + 1); }

// Cells of one row or column are named by that line once, and not at all within it.
QString cells(const std::vector<int>& indices, int within = -1) {
    if (indices.size() == 1) return cellName(indices.front());
    bool oneRow = true, oneColumn = true;
    QStringList rows, columns, names;
    for (int i : indices) {
        oneRow = oneRow && i / 9 == indices.front() / 9;
        oneColumn = oneColumn && i % 9 == indices.front() % 9;
        rows << QString::number(i / 9 + 1);
        columns << QString::number(i % 9 + 1);
        names << cellName(i);
    }
    const QString comma = HintController::tr(", ");
    if (oneRow && within == indices.front() / 9) return HintController::tr("columns %1").arg(list(columns, comma));
    if (oneColumn && within == 9 + indices.front() % 9) return HintController::tr("rows %1").arg(list(rows, comma));
    if (oneRow) return HintController::tr("row %1, columns %2").arg(indices.front() / 9 + 1).arg(list(columns, comma));
    if (oneColumn) return HintController::tr("column %1, rows %2").arg(indices.front() % 9 + 1).arg(list(rows, comma));
    return list(names, HintController::tr("; "));
}

QString techniqueName(const Step& s) {
    switch (s.technique) {
    case Technique::lastEmptyCell: return HintController::tr("Last empty cell");
    case Technique::hiddenSingle: return HintController::tr("Hidden single");
    case Technique::nakedSingle: return HintController::tr("Naked single");
    case Technique::single: return HintController::tr("Single");
    case Technique::pointing:
    case Technique::claiming: return HintController::tr("Locked candidates");
    case Technique::transitiveDoubles: return HintController::tr("Naked triple");
    case Technique::nakedSubset:
        return s.digits.size() == 2   ? HintController::tr("Naked pair")
               : s.digits.size() == 3 ? HintController::tr("Naked triple")
                                      : HintController::tr("Naked quad");
    case Technique::hiddenSubset:
        return s.digits.size() == 2   ? HintController::tr("Hidden pair")
               : s.digits.size() == 3 ? HintController::tr("Hidden triple")
                                      : HintController::tr("Hidden quad");
    case Technique::none: break;
    }
    return QString();
}

// What an elimination rests on, without its consequence.
QString premise(const Step& s) {
    switch (s.technique) {
    case Technique::single: return HintController::tr("%1 holds %2").arg(cellName(s.basis.front())).arg(s.digits.front());
    case Technique::pointing:
    case Technique::claiming:
        return HintController::tr("%1 in %2 lies in %3").arg(s.digits.front()).arg(unitName(s.unit), unitName(s.otherUnit));
    case Technique::hiddenSubset:
        return HintController::tr("in %1, %2 can only go in %3").arg(unitName(s.unit), digits(s.digits), cells(s.basis, s.unit));
    default:
        return HintController::tr("in %1, %2 can only hold %3").arg(unitName(s.unit), cells(s.basis, s.unit), digits(s.digits));
    }
}

QString titled(const Step& s, const QString& text) { return HintController::tr("%1: %2").arg(techniqueName(s), text); }

QString stepText(const Step& s, const std::vector<Step>& needed) {
    const QString digit = QString::number(s.value);
    if (needed.empty()) {
        switch (s.technique) {
        case Technique::lastEmptyCell:
            return titled(s, HintController::tr("%1 is the only empty cell in %2, so it holds %3")
                                 .arg(cellName(s.cell), unitName(s.unit), digit));
        case Technique::hiddenSingle:
            return titled(s, HintController::tr("in %1, only %2 can hold %3").arg(unitName(s.unit), cellName(s.cell), digit));
        case Technique::nakedSingle:
            return titled(s, HintController::tr("%1 can only hold %2").arg(cellName(s.cell), digit));
        default: break;
        }
        std::vector<int> targets = s.targets();
        const QString consequence = s.technique == Technique::hiddenSubset
                                        ? HintController::tr("so these cells keep only %1").arg(digits(s.digits))
                                        : HintController::tr("so %1 is removed from %2").arg(digits(s.digits), cells(targets));
        return titled(s, HintController::tr("%1, %2").arg(premise(s), consequence));
    }
    QStringList reasons;
    for (const Step& n : needed) reasons << titled(n, premise(n));
    const QString consequence =
        s.technique == Technique::hiddenSingle
            ? HintController::tr("so %1 is the only place left for %2 in %3").arg(cellName(s.cell), digit, unitName(s.unit))
            : HintController::tr("so %1 can only hold %2").arg(cellName(s.cell), digit);
    return HintController::tr("%1, %2").arg(reasons.join(HintController::tr("; ")), consequence);
}

}  // namespace

HintController::HintController(SudokuWindow* window, QAction* action, Carrier carryOut)
    : QObject(window), window(window), action(action), carryOut(std::move(carryOut)) {
    setObjectName(QStringLiteral("hintController"));
    connect(action, &QAction::triggered, this, &HintController::hint);
    // Every other command clears the hint.
    for (QAction* other : window->findChildren<QAction*>())
        if (other != action && !other->menu()) connect(other, &QAction::triggered, this, &HintController::clear);
    qApp->installEventFilter(this);
}

HintController::~HintController() { qApp->removeEventFilter(this); }

QString HintController::describe(const Hint& hint) {
    switch (hint.outcome) {
    case Hint::found: return stepText(hint.step, hint.needed);
    case Hint::complete: return tr("The board is complete: there is nothing left to hint.");
    case Hint::empty: return tr("The board is empty: enter a puzzle first, or use Make Move.");
    case Hint::noStep: return tr("No rule finds a next step here. Make Move can place a value.");
    case Hint::contradiction: break;
    }
    switch (hint.conflict) {
    case Hint::digitTwice: return tr("The board contradicts itself: %1 holds %2 twice.").arg(unitName(hint.unit)).arg(hint.digit);
    case Hint::digitNowhere:
        return tr("The board contradicts itself: %1 has no place left for %2.").arg(unitName(hint.unit)).arg(hint.digit);
    case Hint::cellEmptied: break;
    }
    return tr("The board contradicts itself: %1 has no candidate left.").arg(cellName(hint.cell));
}

// Whether pencil marks show, the board's history and every cell.
std::vector<int> HintController::state() const {
    const eng::Board* board = window->currentBoard();
    std::vector<int> out{window->pencilMarksShown(), board != nullptr};
    if (!board) return out;
    out.push_back(static_cast<int>(board->historySize()));
    out.push_back(static_cast<int>(board->undoneSize()));
    const eng::Position grid = eng::positionOf(*board);
    for (int i = 0; i < 81; ++i) out.push_back(grid.values[i] * 1024 + static_cast<int>(grid.candidates[i]));
    return out;
}

void HintController::hint() {
    if (window->isBusy()) return;  // a blink, the celebration or a message box: the board is not to be touched
    if (showing && window->currentBoard() == shownBoard && state() == shownState) return carryOutShown();
    clear();
    const eng::Board* board = window->currentBoard();
    if (!board || board->getPhase() != eng::phasePlaying) return tell(tr("The board is empty: enter a puzzle first, or use Make Move."));
    const bool placeValue = !window->pencilMarksShown();
    Hint found = eng::findHint(eng::positionOf(*board), placeValue);
    // Never a wrong digit: a placement must be the stored solution's.
    const int solution = found.outcome == Hint::found && found.step.places() ? board->solutionValue(found.step.cell) : 0;
    if (solution != 0 && solution != found.step.value) found = Hint{};
    if (found.outcome != Hint::found) return tell(describe(found));
    show(found);
}

void HintController::show(const Hint& hint) {
    shown = hint;
    showing = true;
    shownBoard = window->currentBoard();
    shownState = state();
    std::vector<int> basis = hint.step.basis;
    for (const Step& s : hint.needed) basis.insert(basis.end(), s.basis.begin(), s.basis.end());
    for (int i : basis) window->tileAt(i)->showHint(Tile::HintBasis);
    for (int i : hint.step.targets()) window->tileAt(i)->showHint(Tile::HintTarget);
    tell(describe(hint));
}

void HintController::tell(const QString& text) {
    message = text;
    window->statusBar()->showMessage(text);
    window->statusBar()->setToolTip(text);  // the whole of a reason too long for the bar
    emit announce(text);
}

// The hint's tiles and its words go; so do the words of a press that found no step.
void HintController::clear() {
    if (showing)
        for (int i = 0; i < 81; ++i) window->tileAt(i)->showHint(Tile::NoHint);
    showing = false;
    if (!message.isEmpty() && window->statusBar()->currentMessage() == message) window->statusBar()->clearMessage();
    if (!message.isEmpty()) window->statusBar()->setToolTip(QString());
    message.clear();
}

void HintController::carryOutShown() {
    const Hint hint = shown;
    clear();
    eng::Board* board = window->currentBoard();
    bool done = false;
    carryOut([&] {
        done = hint.step.places() ? board->placeMove(hint.step.cell, hint.step.value)
                                  : board->removePotentials(hint.step.eliminations);
    });
    if (!done) tell(tr("The hint could not be carried out."));
}

// A click or a key anywhere but in the menus, other than the hint's own
// shortcut, is another action.
bool HintController::eventFilter(QObject* watched, QEvent* event) {
    if (message.isEmpty() || (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::KeyPress))
        return false;
    if (qobject_cast<QMenu*>(watched) || qobject_cast<QMenuBar*>(watched)) return false;
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const int k = key->key();
        if (k == Qt::Key_Control || k == Qt::Key_Shift || k == Qt::Key_Alt || k == Qt::Key_Meta) return false;
        if (k == Qt::Key_H && (key->modifiers() & Qt::ControlModifier)) return false;
    }
    clear();
    return false;
}
