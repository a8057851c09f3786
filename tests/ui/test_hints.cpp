// Game -> Hint in the window: the two presses, what clears a hint, pencil marks shown and removed by the player,
// User Edit boards, positions without a step, and Ctrl+H while the board is busy.
#include <QScreen>
#include <QSignalSpy>
#include <QStatusBar>
#include <cstdlib>

#include "HintController.h"
#include "WindowTestSupport.h"

namespace {

// A published puzzle that singles, subsets and locked candidates do not solve.
const char* const kBeyondRules = "61.4......3...8..6...5.6..2.4....8..5.8.2.7.3..2....1.9..3.5...4..2...8......7.91";

std::vector<int> hintTiles(SudokuWindow& w, Tile::HintRole role) {
    std::vector<int> out;
    for (int i = 0; i < 81; ++i)
        if (w.tileAt(i)->hintRole() == role) out.push_back(i);
    return out;
}

}  // namespace

class HintTest : public QObject {
    Q_OBJECT
    SudokuWindow* window = nullptr;
    HintController* hints = nullptr;
    MessageBoxAnswerer* answerer = nullptr;

    eng::Board& board() { return *window->currentBoard(); }
    QString status() { return window->statusBar()->currentMessage(); }
    void showMarks(bool show) {
        if (child<QAction>(*window, "actionViewPencilMarks")->isChecked() != show) trigger(*window, "actionViewPencilMarks");
    }
    void newGame(const char* action, unsigned seed) {
        std::srand(seed);
        trigger(*window, action);
        answerer->texts.clear();
    }
    void enter(QByteArray puzzle) {
        puzzle = puzzle.leftJustified(81, '.');
        for (int i = 0; i < 81; ++i)
            if (puzzle[i] >= '1' && puzzle[i] <= '9') QVERIFY(board().setValue(i, puzzle[i] - '0'));
    }
    // A press that must leave the board as it was and say `text`.
    void pressWithoutStep(const QString& text) {
        const size_t history = board().historySize();
        trigger(*window, "actionHint");
        QCOMPARE(status(), text);
        QVERIFY(!hints->isShowing());
        QVERIFY(hintTiles(*window, Tile::HintTarget).empty());
        QCOMPARE(board().historySize(), history);
    }

private slots:
    void initTestCase() {
        answerer = new MessageBoxAnswerer(QMessageBox::Yes);
        window = shownWindow();
        hints = window->findChild<HintController*>("hintController");
        QVERIFY(hints);
        QCOMPARE(child<QAction>(*window, "actionHint")->shortcut(), QKeySequence("Ctrl+H"));
    }
    void cleanupTestCase() {
        delete window;
        delete answerer;
    }
    void init() { showMarks(false); }

    // First press: the hint shows, spoken and in the status bar, nothing changes; second press: it is carried out,
    // a placement as make move places (the solution's digit), removals as the player's toggles.
    void twoPresses_data() {
        QTest::addColumn<bool>("marks");
        QTest::addColumn<int>("presses");  // hints carried out, so that removals come up with marks shown
        QTest::newRow("values") << false << 1;
        QTest::newRow("pencil marks") << true << 15;  // the 15th hint of this game removes candidates
    }
    void twoPresses() {
        QFETCH(bool, marks);
        QFETCH(int, presses);
        newGame("actionNewGameHard", 114);
        showMarks(marks);
        QSignalSpy spoken(hints, &HintController::announce);
        bool removed = false;
        for (int n = 0; n < presses && !board().isComplete(); ++n) {
            const size_t history = board().historySize();
            trigger(*window, "actionHint");
            QVERIFY(hints->isShowing());
            const eng::Step step = hints->current().step;
            QCOMPARE(status(), hints->text());
            QCOMPARE(spoken.takeLast().at(0).toString(), hints->text());
            QCOMPARE(hintTiles(*window, Tile::HintTarget), step.targets());
            QCOMPARE(window->tileAt(step.targets().front())->styleSheet(), Tile::styleHintTarget);
            QCOMPARE(board().historySize(), history);
            trigger(*window, "actionHint");
            QVERIFY(!hints->isShowing());
            QVERIFY(hintTiles(*window, Tile::HintBasis).empty() && hintTiles(*window, Tile::HintTarget).empty());
            QVERIFY(status().isEmpty());
            if (step.places()) {
                QCOMPARE(board().cell(step.cell)->value(), board().solutionValue(step.cell));
                QCOMPARE(board().cell(step.cell)->origin(), int(eng::originMove));
                QCOMPARE(board().historySize(), history + 1);
            } else {
                QVERIFY(marks);
                removed = true;
                for (auto [cell, digit] : step.eliminations) QVERIFY(!board().cell(cell)->isPotential(digit));
            }
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
        QCOMPARE(hints->current().step.technique, eng::Technique::hiddenSingle);
        QCOMPARE(hints->current().step.cell, target);
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
        QVERIFY(!hints->isShowing());
        QVERIFY(hintTiles(*window, Tile::HintTarget).empty());
        QVERIFY(status().isEmpty());
        trigger(*window, "actionHint");
        QVERIFY(hints->isShowing());
        QCOMPARE(board().historySize(), history);
    }

    // User Edit without a solution: the hint explains and places; a position beyond the rules gets no hint, and
    // names Make Move.
    void userEdit() {
        newGame("actionNewGameUserEdit", 80);
        enter("12345678.");
        trigger(*window, "actionHint");
        QCOMPARE(status(), QString("Last empty cell: row 1, column 9 is the only empty cell in row 1, so it holds 9"));
        trigger(*window, "actionHint");
        QCOMPARE(board().cell(8)->value(), 9);
        QCOMPARE(board().cell(8)->origin(), int(eng::originMove));
        newGame("actionNewGameUserEdit", 81);
        enter(kBeyondRules);
        for (int n = 0; n < 81 && status() != HintController::tr("No rule finds a next step here. Make Move can place a value."); ++n) {
            trigger(*window, "actionHint");
            if (hints->isShowing()) trigger(*window, "actionHint");
        }
        QVERIFY(!board().isComplete());
        pressWithoutStep("No rule finds a next step here. Make Move can place a value.");
    }

    // Bad positions: each gets a clear message and nothing changes.
    void positionsWithoutAStep_data() {
        QTest::addColumn<QByteArray>("action");
        QTest::addColumn<QByteArray>("puzzle");
        QTest::addColumn<QString>("text");
        QTest::newRow("finished") << QByteArray("actionNewGameCompleted") << QByteArray()
                                  << "The board is complete: there is nothing left to hint.";
        QTest::newRow("empty") << QByteArray("actionNewGameUserEdit") << QByteArray()
                               << "The board is empty: enter a puzzle first, or use Make Move.";
        QTest::newRow("conflict") << QByteArray("actionNewGameUserEdit")
                                  << QByteArray("1234.....      9  ...9")
                                  << "The board contradicts itself: row 1 has no place left for 9.";
    }
    void positionsWithoutAStep() {
        QFETCH(QByteArray, action);
        QFETCH(QByteArray, puzzle);
        QFETCH(QString, text);
        newGame(action, 82);
        enter(puzzle);
        pressWithoutStep(text);
        pressWithoutStep(text);
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
        poll.stop();
        QVERIFY(pressed);
        QVERIFY(!hints->isShowing());
        QCOMPARE(board().historySize(), history + completing);
        QCOMPARE(answerer->texts, completing ? QStringList{"Congratulations!"} : QStringList());
        trigger(*window, "actionHint");
        QCOMPARE(hints->isShowing(), !completing);
        if (completing) QCOMPARE(status(), QString("The board is complete: there is nothing left to hint."));
    }

    // The hint's two colours reach the screen, beside a highlighted value.
    void coloursOnScreen() {
        newGame("actionNewGameEasy", 84);
        window->tileLeftClicked(firstFilled(*window));  // a highlight to tell apart
        trigger(*window, "actionHint");
        QVERIFY(hints->isShowing());
        const QRgb basis = QColor(255, 236, 170).rgb() & 0xffffff, target = QColor(255, 176, 0).rgb() & 0xffffff;
        QImage shot;
        auto shown = [&] {
            shot = window->screen()->grabWindow(window->winId()).toImage();
            bool right = true;
            for (int i : hints->current().step.targets()) right = right && background(shot, *window, i) == target;
            for (int i : hintTiles(*window, Tile::HintBasis)) right = right && background(shot, *window, i) == basis;
            return right;
        };
        QTRY_VERIFY_WITH_TIMEOUT(shown(), 10000);
        savePicture(shot, "hint");
    }
};

QTEST_MAIN(HintTest)
#include "test_hints.moc"
