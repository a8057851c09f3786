// Game -> Hint in the window: the two presses (with the hint's colours on the screen), what clears a hint, pencil marks
// shown and removed by the player, what the hint says on User Edit boards and positions without a step, and Ctrl+H
// while the board is busy.
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <cstdlib>

#include "HintController.h"
#include "WindowTestSupport.h"

class HintTest : public QObject {
    Q_OBJECT
    SudokuWindow* window = nullptr;
    HintController* hints = nullptr;
    MessageBoxAnswerer answerer{QMessageBox::Yes};

    eng::Board& board() { return *window->currentBoard(); }
    QString status() { return window->statusBar()->currentMessage(); }
    std::vector<int> tiles(Tile::HintRole role) {
        std::vector<int> out;
        for (int i = 0; i < 81; ++i)
            if (window->tileAt(i)->hintRole() == role) out.push_back(i);
        return out;
    }
    void showMarks(bool show) {
        if (child<QAction>(*window, "actionViewPencilMarks")->isChecked() != show) trigger(*window, "actionViewPencilMarks");
    }
    // A new game of `action`, the values of `puzzle` entered.
    void newGame(const char* action, unsigned seed, QByteArray puzzle = {}) {
        std::srand(seed);
        trigger(*window, action);
        answerer.texts.clear();
        for (int i = 0; i < puzzle.size(); ++i)
            if (puzzle[i] >= '1' && puzzle[i] <= '9') QVERIFY(board().setValue(i, puzzle[i] - '0'));
    }

private slots:
    void initTestCase() {
        window = shownWindow();
        hints = window->findChild<HintController*>("hintController");
        QVERIFY(hints && child<QAction>(*window, "actionHint")->shortcut() == QKeySequence("Ctrl+H"));
    }
    void cleanupTestCase() { delete window; }
    void init() { showMarks(false); }

    // First press: the hint shows, spoken and in the status bar, nothing changes; second press: it is carried out,
    // a placement as make move places (the solution's digit), removals as the player's toggles.
    void twoPresses_data() {
        QTest::addColumn<bool>("marks");
        QTest::addColumn<int>("presses");  // the 15th hint of this game removes candidates when marks are shown
        QTest::newRow("values") << false << 1;
        QTest::newRow("pencil marks") << true << 15;
    }
    void twoPresses() {
        QFETCH(bool, marks);
        QFETCH(int, presses);
        newGame("actionNewGameHard", 114);
        showMarks(marks);
        QSignalSpy spoken(hints, &HintController::announce);
        window->tileLeftClicked(firstFilled(*window));  // a highlighted value beside the hint's colours
        bool removed = false;
        for (int n = 0; n < presses && !board().isComplete(); ++n) {
            const size_t history = board().historySize();
            trigger(*window, "actionHint");
            const eng::Step step = hints->current().step;
            QVERIFY(hints->isShowing() && status() == hints->text() && board().historySize() == history);
            QCOMPARE(spoken.takeLast().at(0).toString(), hints->text());
            QCOMPARE(tiles(Tile::HintTarget), step.targets());
            QCOMPARE(window->tileAt(step.targets().front())->styleSheet(), Tile::styleHintTarget);
            auto colour = [&](int i) {  // as on the screen
                return background(window->screen()->grabWindow(window->winId()).toImage(), *window, i);
            };
            QTRY_VERIFY(n || (colour(step.targets().front()) == 0xffb000 && colour(step.basis.front()) == 0xffecaa));
            trigger(*window, "actionHint");
            QVERIFY(!hints->isShowing() && tiles(Tile::HintBasis).empty() && tiles(Tile::HintTarget).empty());
            QVERIFY(status().isEmpty());
            removed = removed || !step.places();
            if (step.places())
                QVERIFY(board().cell(step.cell)->value() == board().solutionValue(step.cell) &&
                        board().cell(step.cell)->origin() == eng::originMove && board().historySize() == history + 1);
            for (auto [cell, digit] : step.eliminations) QVERIFY(!board().cell(cell)->isPotential(digit));
        }
        QCOMPARE(removed, marks);
    }

    // With pencil marks shown the hint reads the player's marks: a digit the player struck from every other cell of
    // box 1 is a hidden single there.
    void playerRemovedMarks() {
        newGame("actionNewGameHard", 78);
        showMarks(true);
        const int box[] = {0, 1, 2, 9, 10, 11, 18, 19, 20};
        int digit = 1, target = -1;  // the lowest digit box 1 lacks
        while (std::any_of(std::begin(box), std::end(box), [&](int i) { return board().cell(i)->value() == digit; }))
            ++digit;
        for (int i : box) {
            if (board().solutionValue(i) == digit) target = i;
            else if (!board().cell(i)->value() && board().cell(i)->isPotential(digit))
                window->tilePotentialsEdited(i, digit);
        }
        trigger(*window, "actionHint");
        QCOMPARE(status(), QString("Hidden single: in box 1, only row %1, column %2 can hold %3")
                               .arg(target / 9 + 1).arg(target % 9 + 1).arg(digit));
    }

    // A click, a key or another command clears the hint; the next press shows it again rather than carrying it out.
    void clearedByAnotherAction_data() {
        QTest::addColumn<int>("how");
        QTest::newRow("click") << 0;
        QTest::newRow("key") << 1;
        QTest::newRow("command") << 2;
    }
    void clearedByAnotherAction() {
        QFETCH(int, how);
        newGame("actionNewGameMedium", 79);
        trigger(*window, "actionHint");
        const size_t history = board().historySize();
        QVERIFY(hints->isShowing());
        if (how == 0) QTest::mouseClick(window->tileAt(firstFilled(*window)), Qt::LeftButton);
        if (how == 1) QTest::keyClick(window->tileAt(0), Qt::Key_Escape);
        if (how == 2) trigger(*window, "actionViewPencilMarks");
        QVERIFY(!hints->isShowing() && tiles(Tile::HintTarget).empty() && status().isEmpty());
        trigger(*window, "actionHint");
        QVERIFY(hints->isShowing() && board().historySize() == history);
    }

    // What Hint says after the hints there are: a User Edit board without a solution gets a step, carried out at the
    // next press; positions without a step get a clear message, again at the next press, and nothing changes.
    void whatTheHintSays_data() {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QByteArray>("puzzle");
        QTest::addColumn<QString>("text");
        QTest::newRow("user edit") << QByteArray("actionNewGameUserEdit") << QByteArray("12345678.")
                                   << "Last empty cell: row 1, column 9 is the only empty cell in row 1, so it holds 9";
        QTest::newRow("finished") << QByteArray("actionNewGameCompleted") << QByteArray()
                                  << "The board is complete: there is nothing left to hint.";
        QTest::newRow("empty") << QByteArray("actionNewGameUserEdit") << QByteArray()
                               << "The board is empty: enter a puzzle first, or use Make Move.";
        QTest::newRow("conflict") << QByteArray("actionNewGameUserEdit") << QByteArray("1234.....      9  ...9")
                                  << "The board contradicts itself: row 1 has no place left for 9.";
        // A published puzzle that singles, subsets and locked candidates do not solve.
        QTest::newRow("beyond the rules") << QByteArray("actionNewGameUserEdit")
            << QByteArray("61.4......3...8..6...5.6..2.4....8..5.8.2.7.3..2....1.9..3.5...4..2...8......7.91")
            << "No rule finds a next step here. Make Move can place a value.";
    }
    void whatTheHintSays() {
        QFETCH(QByteArray, action);
        QFETCH(QByteArray, puzzle);
        QFETCH(QString, text);
        newGame(action, 82, puzzle);
        for (int n = 0; n < 81 && status() != text; ++n) {
            if (hints->isShowing()) trigger(*window, "actionHint");
            trigger(*window, "actionHint");
        }
        const bool step = hints->isShowing();
        const size_t history = board().historySize();
        trigger(*window, "actionHint");
        QCOMPARE(status(), step ? QString() : text);
        QVERIFY(!hints->isShowing() && tiles(Tile::HintTarget).empty() && board().historySize() == history + step);
        QVERIFY(!step || (board().cell(8)->value() == 9 && board().cell(8)->origin() == eng::originMove));
    }

    // Ctrl+H while a refused digit blinks or the completion is celebrated does nothing; afterwards it works.
    void whileBusy_data() {
        QTest::addColumn<bool>("completing");
        QTest::newRow("blink") << false;
        QTest::newRow("celebration") << true;
    }
    void whileBusy() {
        QFETCH(bool, completing);
        newGame("actionNewGameVeryEasy", 83);
        int last = firstEmpty(*window);
        for (int i = firstEmpty(*window, last); completing && i >= 0; i = firstEmpty(*window, i)) {
            QVERIFY(board().setValue(last, board().solutionValue(last)));
            last = i;
        }
        bool pressed = false;
        const size_t history = board().historySize();
        QTimer poll;  // presses once the window is busy with the blink or the celebration
        connect(&poll, &QTimer::timeout, [&] {
            if (pressed || !window->isBusy() || (completing && !board().isComplete())) return;
            pressed = true;
            trigger(*window, "actionHint");
        });
        poll.start(5);
        const int v = board().solutionValue(last);
        QTest::mouseClick(window->tileAt(last), Qt::LeftButton);
        QTest::keyClick(window->tileAt(last), Qt::Key(Qt::Key_0 + (completing ? v : v % 9 + 1)));
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
        QVERIFY(pressed && !hints->isShowing() && board().historySize() == history + completing);
        QCOMPARE(answerer.texts, completing ? QStringList{"Congratulations!"} : QStringList());
        trigger(*window, "actionHint");
        QCOMPARE(hints->isShowing(), !completing);
    }
};

QTEST_MAIN(HintTest)
#include "test_hints.moc"
