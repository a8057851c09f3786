// Game -> Hint in the window: two presses, what clears it, pencil marks, boards without a step, Ctrl+H while busy.
#include <QScreen>
#include <QStatusBar>

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
        for (int i = 0; i < 81; ++i) if (window->tileAt(i)->hintRole() == role) out.push_back(i);
        return out;
    }
    int colour(int i) { return background(window->screen()->grabWindow(window->winId()).toImage(), *window, i); }
    void showMarks(bool on) {
        if (auto a = child<QAction>(*window, "actionViewPencilMarks"); a->isChecked() != on) a->trigger();
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

    // The first press shows the hint (spoken, status bar), the second does it as Make Move or the player would.
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
        eng::Step step;
        for (int n = 0; n < presses && !board().isComplete(); ++n) {
            const size_t history = board().historySize();
            trigger(*window, "actionHint");
            step = hints->current().step;
            QVERIFY(hints->isShowing() && status() == hints->text() && board().historySize() == history);
            QCOMPARE(spoken.takeLast().at(0).toString(), hints->text());
            QCOMPARE(tiles(Tile::HintTarget), step.targets());
            QTRY_VERIFY(n || (colour(step.targets().front()) == 0xffb000 && colour(step.basis.front()) == 0xffecaa));
            trigger(*window, "actionHint");
            QVERIFY(!hints->isShowing() && tiles(Tile::NoHint).size() == 81 && status().isEmpty());
            if (step.places())
                QVERIFY(board().cell(step.cell)->value() == board().solutionValue(step.cell) &&
                        board().cell(step.cell)->origin() == eng::originMove && board().historySize() == history + 1);
            for (auto [cell, digit] : step.eliminations) QVERIFY(!board().cell(cell)->isPotential(digit));
        }
        QCOMPARE(step.places(), !marks);  // the last hint
    }

    // With marks shown the hint reads the player's: a digit struck from the rest of box 1 is a hidden single there.
    void playerRemovedMarks() {
        newGame("actionNewGameHard", 78);
        showMarks(true);
        const int box[] = {0, 1, 2, 9, 10, 11, 18, 19, 20};
        int digit = 1, target = -1;  // the lowest digit box 1 lacks
        while (std::any_of(box, box + 9, [&](int i) { return board().cell(i)->value() == digit; })) ++digit;
        for (int i : box)
            if (board().solutionValue(i) == digit) target = i;
            else if (board().cell(i)->isPotential(digit)) window->tilePotentialsEdited(i, digit);
        trigger(*window, "actionHint");
        QCOMPARE(status(), QString("Hidden single: in box 1, only row %1, column %2 can hold %3")
                               .arg(target / 9 + 1).arg(target % 9 + 1).arg(digit));
    }

    // A click, a key or another command clears the hint; the next press shows it again rather than carrying it out.
    void clearedByAnotherAction() {
        newGame("actionNewGameMedium", 79);
        trigger(*window, "actionHint");
        const size_t history = board().historySize();
        for (int how = 0; how < 3; ++how) {  // a click, Escape, View -> Pencil Marks
            if (how == 0) QTest::mouseClick(window->tileAt(firstFilled(*window)), Qt::LeftButton);
            if (how == 1) QTest::keyClick(window->tileAt(0), Qt::Key_Escape);
            if (how == 2) trigger(*window, "actionViewPencilMarks");
            QVERIFY(!hints->isShowing() && tiles(Tile::HintTarget).empty() && status().isEmpty());
            trigger(*window, "actionHint");
            QVERIFY(hints->isShowing() && board().historySize() == history);
        }
    }

    // After the hints: User Edit without a solution gets a step; boards without one a message, nothing changed.
    void whatTheHintSays_data() {
        for (const char* column : {"puzzle", "text"}) QTest::addColumn<QString>(column);  // User Edit or "Completed"
        QTest::newRow("user edit")
            << "12345678." << "Last empty cell: row 1, column 9 is the only empty cell in row 1, so it holds 9";
        QTest::newRow("finished") << "Completed" << "The board is complete: there is nothing left to hint.";
        QTest::newRow("empty") << "" << "The board is empty: enter a puzzle first, or use Make Move.";
        QTest::newRow("conflict")
            << "1234.....      9  ...9" << "The board contradicts itself: row 1 has no place left for 9.";
        QTest::newRow("beyond the rules")  // a published puzzle singles, subsets and locked candidates do not solve
            << "61.4......3...8..6...5.6..2.4....8..5.8.2.7.3..2....1.9..3.5...4..2...8......7.91"
            << "No rule finds a next step here. Make Move can place a value.";
    }
    void whatTheHintSays() {
        QFETCH(QString, puzzle);
        QFETCH(QString, text);
        newGame(puzzle == "Completed" ? "actionNewGameCompleted" : "actionNewGameUserEdit", 82, puzzle.toLatin1());
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
    void whileBusy() {
        for (bool completing : {false, true}) {  // a blink, then the celebration
            newGame("actionNewGameVeryEasy", 83);
            int last = firstEmpty(*window);  // all but the last cell filled for the celebration
            for (int i; completing && (i = firstEmpty(*window, last)) >= 0; last = i)
                QVERIFY(board().setValue(last, board().solutionValue(last)));
            const size_t history = board().historySize();
            QTimer poll;  // presses once the window is busy with the blink or the celebration
            connect(&poll, &QTimer::timeout, [&] {
                if (window->isBusy() && board().isComplete() == completing) poll.stop(), trigger(*window, "actionHint");
            });
            poll.start(5);
            QTest::mouseClick(window->tileAt(last), Qt::LeftButton);  // its digit, or the next (refused)
            QTest::keyClick(window->tileAt(last), Qt::Key(Qt::Key_1 + (board().solutionValue(last) - completing) % 9));
            QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
            QVERIFY(!poll.isActive() && !hints->isShowing() && board().historySize() == history + completing);
            QCOMPARE(answerer.texts, completing ? QStringList{"Congratulations!"} : QStringList());
            trigger(*window, "actionHint");
            QCOMPARE(hints->isShowing(), !completing);
        }
    }
};

QTEST_MAIN(HintTest)
#include "test_hints.moc"
