#pragma once
// Game -> Hint: the first press finds the simplest next deduction and shows
// it (its cells in the hint colours, its reason in the status bar, spoken);
// a second press, while it shows and nothing has changed, carries it out.
// Any other action clears it.

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

#include "Hints.h"

class QAction;
class SudokuWindow;

class HintController : public QObject {
    Q_OBJECT

public:
    // Runs a change to the board as the window's own commands do (changes
    // marked, a completed board celebrated); it does nothing while the window is busy.
    using Carrier = std::function<void(const std::function<void()>& change)>;
    HintController(SudokuWindow* window, QAction* action, Carrier carryOut);
    ~HintController() override;

    bool isShowing() const { return showing; }
    const eng::Hint& current() const { return shown; }
    QString text() const { return message; }
    // The hint in a player's words.
    static QString describe(const eng::Hint& hint);

public slots:
    void hint();
    void clear();

signals:
    // The text to speak, at every press.
    void announce(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    SudokuWindow* window;
    QAction* action;
    Carrier carryOut;
    eng::Hint shown;
    bool showing = false;
    QString message;
    // What the board and the view were when the hint was shown.
    const eng::Board* shownBoard = nullptr;
    std::vector<int> shownState;

    std::vector<int> state() const;
    void show(const eng::Hint& hint);
    void tell(const QString& text);
    void carryOutShown();
};
