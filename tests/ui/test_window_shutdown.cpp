// Closing the window while the completion celebration runs: the sweep stops,
// no message box is left waiting, and the window is destroyed cleanly.
#include <QAction>
#include <QElapsedTimer>
#include <QtTest>

#include "SudokuWindow.h"
#include "WindowTestSupport.h"

class ShutdownTest : public QObject {
    Q_OBJECT

private slots:
    void closeDuringCelebration() {
        auto* window = new SudokuWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
        MessageBoxAnswerer answerer;
        window->findChild<QAction*>("actionNewGameVeryEasy")->trigger();
        eng::Board* board = window->currentBoard();
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
            window->findChild<QAction*>("actionRetractMove")->trigger();
            window->findChild<QAction*>("actionNewGameHard")->trigger();
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
