// Closing the window in the middle of things: during a tile's refusal blink,
// while a question is asked, and while the completion celebration runs. The
// running command ends without acting on the board, no message box is left
// waiting, and the window is destroyed cleanly.
#include <QAction>
#include <QElapsedTimer>
#include <QtTest>

#include "SudokuWindow.h"
#include "WindowTestSupport.h"

namespace {

SudokuWindow* shownWindow() {
    auto* window = new SudokuWindow();
    window->show();
    if (!QTest::qWaitForWindowExposed(window)) qFatal("window not shown");
    return window;
}


}  // namespace

class ShutdownTest : public QObject {
    Q_OBJECT

private slots:
    // Closing the window asks the application to quit, which makes every
    // event loop that starts later return at once. Running the application's
    // own loop once clears that, so each case starts afresh.
    void cleanup() {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        qApp->exec();
    }

    void closeDuringRefusalAnimation() {
        SudokuWindow* window = shownWindow();
        eng::Board* board = window->currentBoard();
        const size_t history = board->historySize();
        const int i = firstEmpty(*window);
        Tile* tile = window->tileAt(i);
        QTest::mouseClick(tile, Qt::LeftButton);
        QTimer::singleShot(300, window, [window, i] {
            // Input during the blink is ignored, then the window closes.
            QTest::mouseClick(window->tileAt(i == 0 ? 1 : 0), Qt::LeftButton);
            trigger(*window, "actionMakeMove");
            trigger(*window, "actionOpenGame");
            window->close();
        });
        QTest::keyClick(tile, Qt::Key_0 + board->solutionValue(i) % 9 + 1);
        QVERIFY(!window->isVisible());
        QVERIFY(!tile->hasValue());
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(board->historySize(), history);
        delete window;
    }

    void closeWhileAskingForANewGame() {
        SudokuWindow* window = shownWindow();
        eng::Board* board = window->currentBoard();
        QTimer::singleShot(100, window, [window] { window->close(); });
        trigger(*window, "actionNewGameHard");
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
        delete window;
    }

    void closeDuringCelebration() {
        SudokuWindow* window = shownWindow();
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameVeryEasy");
        eng::Board* board = window->currentBoard();
        QCOMPARE(board->getLevel(), int(eng::lvlVeryEasy));
        int last = -1;
        for (int i = 0; i < 81; ++i) {
            if (board->cell(i)->value() != 0) continue;
            if (last >= 0) QVERIFY(board->setValue(last, board->solutionValue(last)));
            last = i;
        }
        QVERIFY(last >= 0);
        answerer.texts.clear();
        QTimer::singleShot(400, window, [window] {
            // Clicks and commands during the sweep are ignored, then the window closes.
            QTest::mouseClick(window->tileAt(0), Qt::LeftButton);
            trigger(*window, "actionRetractMove");
            trigger(*window, "actionNewGameHard");
            window->close();
        });
        QElapsedTimer timer;
        timer.start();
        window->tileValueEdited(last, board->solutionValue(last));
        QVERIFY(timer.elapsed() < 2500);
        QVERIFY(board->isComplete());
        QCOMPARE(window->currentBoard(), board);
        QVERIFY(answerer.texts.isEmpty());
        delete window;
    }
};

QTEST_MAIN(ShutdownTest)
#include "test_window_shutdown.moc"
