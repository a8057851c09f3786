// The main window: start-up, game commands, caret and highlight, view options,
// open and save.
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QStatusBar>
#include <QToolBar>
#include <QtTest>
#include <cstdlib>
#include <fstream>
#include <sys/mount.h>
#include <unistd.h>

#include "SudokuWindow.h"
#include "TestPictures.h"
#include "WindowTestSupport.h"

namespace {

QAction* action(SudokuWindow& w, const char* name) { return child<QAction>(w, name); }

std::vector<int> shownValues(SudokuWindow& w) {
    std::vector<int> v;
    for (int i = 0; i < 81; ++i) v.push_back(w.tileAt(i)->value());
    return v;
}

std::vector<bool> candidates(const eng::Board* board) {
    std::vector<bool> marks;
    for (int i = 0; i < 81; ++i)
        for (int v = 1; v <= 9; ++v) marks.push_back(board->cell(i)->isPotential(v));
    return marks;
}

}  // namespace

class WindowTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;

private slots:
    void init() {
        window = new SudokuWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void cleanup() {
        delete window;
        window = nullptr;
    }

    void startUp() {
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
        QVERIFY(window->currentBoard());
        QCOMPARE(window->currentBoard()->getLevel(), int(eng::lvlMedium));
        QVERIFY(!action(*window, "actionViewPencilMarks")->isChecked());
        for (const char* name : {"actionViewToolbar", "actionViewStatusbar", "actionViewNewGameIcons",
                                 "actionViewOpenSaveIcons", "actionViewPrintIcon", "actionViewBackForwardIcons",
                                 "actionViewAboutIcon"})
            QVERIFY2(action(*window, name)->isChecked(), name);
        QVERIFY(!window->findChild<QMenu*>("menuToolbarItems")->isEnabled());
        for (int i : {0, 37, 80}) QCOMPARE(window->tileAt(i)->index(), i);
        savePicture(*window, "window_start");
        int givens = 0;
        for (int i = 0; i < 81; ++i) givens += window->tileAt(i)->hasValue();
        QVERIFY(givens > 17 && givens < 81);
        QStringList names;  // the toolbar's entries in order, "-" for a separator
        for (QAction* a : child<QToolBar>(*window, "mainToolBar")->actions()) names << (a->isSeparator() ? "-" : a->objectName());
        QCOMPARE(names,
                 (QStringList{"actionNewGameVeryEasy", "actionNewGameEasy", "actionNewGameMedium", "actionNewGameHard",
                              "-", "actionOpenGame", "actionSaveGame", "-", "actionPrint", "-", "actionRetractMove",
                              "actionMakeMove", "-", "actionAbout"}));
        // Every icon and every tool-tip picture comes from the compiled-in resources.
        for (QAction* a : window->findChildren<QAction*>()) {
            if (!a->objectName().startsWith("action")) continue;
            const QString tip = a->toolTip();
            const int at = tip.indexOf(":/Sudoku/Resources/");
            if (tip.startsWith("<html>")) {
                QVERIFY2(at > 0, qPrintable(a->objectName()));
                const QString file = tip.mid(at, tip.indexOf('"', at) - at);
                QVERIFY2(!QPixmap(file).isNull(), qPrintable(file));
                QVERIFY2(!a->icon().isNull(), qPrintable(a->objectName()));
            }
        }
        QVERIFY(!action(*window, "actionNewGameUserEdit")->icon().isNull());
        QVERIFY(action(*window, "actionExit")->icon().isNull());
    }

    void caretWalk() {
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameUserEdit");
        QCOMPARE(window->levelText(), QString("difficulty: user edit"));
        eng::Board* board = window->currentBoard();
        QVERIFY(board->setValue(10, 1));
        QVERIFY(board->setValue(11, 2));
        // Click a tile, then the keys: where the caret ends.
        auto walk = [this](int from, std::initializer_list<Qt::Key> keys) {
            QTest::mouseClick(window->tileAt(from), Qt::LeftButton);
            for (Qt::Key key : keys) QTest::keyClick(window->tileAt(window->caret()), key);
            return window->caret();
        };
        QCOMPARE(walk(9, {Qt::Key_Right}), 12);  // filled 10 and 11 are stepped over
        QCOMPARE(walk(5, {Qt::Key_Up}), 76);
        QCOMPARE(walk(77, {Qt::Key_Down}), 6);
        QCOMPARE(walk(80, {Qt::Key_Right, Qt::Key_Down}), 80);
        QCOMPARE(walk(0, {Qt::Key_Left, Qt::Key_Up}), 0);
        // Clicking the caret tile removes the caret; clicking again brings it back.
        QTest::mouseClick(window->tileAt(0), Qt::LeftButton);
        QCOMPARE(window->caret(), -1);
        QTest::mouseClick(window->tileAt(0), Qt::LeftButton);
        QCOMPARE(window->caret(), 0);

        // A pencil caret needs the pencil marks shown, and keeps its mode.
        QTest::mouseClick(window->tileAt(30), Qt::RightButton);
        QCOMPARE(window->caret(), -1);
        trigger(*window, "actionViewPencilMarks");
        QTest::mouseClick(window->tileAt(30), Qt::RightButton);
        QCOMPARE(window->caret(), 30);
        QCOMPARE(window->tileAt(30)->caret(), Tile::PencilCaret);
        QTest::keyClick(window->tileAt(30), Qt::Key_Down);
        QCOMPARE(window->caret(), 39);
        QCOMPARE(window->tileAt(39)->caret(), Tile::PencilCaret);
        QTest::keyClick(window->tileAt(39), Qt::Key_4);
        QVERIFY(!board->cell(39)->isPotential(4));
        QTest::keyClick(window->tileAt(39), Qt::Key_4);
        QVERIFY(board->cell(39)->isPotential(4));
        savePicture(*window, "window_pencil_marks");
        QVERIFY(answerer.texts.contains("Current game will be lost.\nContinue?"));
    }

    void userEditFlow() {
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameUserEdit");
        QCOMPARE(window->levelText(), QString("difficulty: user edit"));
        eng::Board* board = window->currentBoard();
        QCOMPARE(board->getLevel(), int(eng::lvlUserEdit));
        QCOMPARE(firstEmpty(*window), 0);
        QCOMPARE(shownValues(*window), std::vector<int>(81, 0));

        // Givens are typed in; only a value that clashes with its row, column
        // or square is refused.
        auto type = [this](int i, Qt::Key key) {
            if (window->caret() != i) QTest::mouseClick(window->tileAt(i), Qt::LeftButton);
            QTest::keyClick(window->tileAt(i), key);
            return window->tileAt(i)->value();
        };
        QCOMPARE(type(0, Qt::Key_5), 5);
        QCOMPARE(type(1, Qt::Key_5), 0);  // same row
        QCOMPARE(window->caret(), 1);
        QCOMPARE(type(1, Qt::Key_6), 6);
        QCOMPARE(type(27, Qt::Key_5), 0);  // same column as the first 5

        // Make Move searches for a value; Retract takes it back.
        const auto typed = shownValues(*window);
        trigger(*window, "actionMakeMove");
        const auto moved = shownValues(*window);
        int added = 0;
        for (int i = 0; i < 81; ++i) added += moved[i] != typed[i];
        QCOMPARE(added, 1);
        trigger(*window, "actionRetractMove");
        QCOMPARE(shownValues(*window), typed);
        QCOMPARE(answerer.texts, QStringList{"Current game will be lost.\nContinue?"});
    }

    void observerMessages() {
        MessageBoxAnswerer answerer;
        std::vector<eng::CellInfo*> cells;
        for (int i = 0; i < 81; ++i) cells.push_back(const_cast<eng::CellInfo*>(window->currentBoard()->cell(i)));
        window->cellHasNoSolution(cells, 40);
        window->noMoreMoves(cells);
        window->loadFailed(2, 1);
        window->loadFailed(2, -1);
        QCOMPARE(answerer.texts,
                 (QStringList{"Cell 40 has no solution", "No more moves can be done.",
                              "Loaded file version is incompatible\n(expected version: 2 actual version: 1)",
                              "This is not a valid .sud file"}));
    }

    void ctrlPOpensThePrintingOptions() {
        PrintingInfo& info = window->printingOptions();
        bool shown = false;
        QTimer::singleShot(50, &info, [&] {
            shown = info.isVisible();
            info.reject();
        });
        QTest::keyClick(window->tileAt(40), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(shown);
        QVERIFY(!info.isVisible());
    }

    void highlightToggling() {
        int filled = 0;
        while (!window->tileAt(filled)->hasValue()) ++filled;
        const int v = window->tileAt(filled)->value();
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QCOMPARE(window->highlight(), v);
        for (int i = 0; i < 81; ++i) QCOMPARE(window->tileAt(i)->isHighlighted(), window->tileAt(i)->value() == v);
        savePicture(*window, "window_highlight");
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QCOMPARE(window->highlight(), 0);
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        const int empty = firstEmpty(*window);
        QTest::mouseClick(window->tileAt(empty), Qt::LeftButton);
        QCOMPARE(window->highlight(), 0);
        QCOMPARE(window->caret(), empty);
        // Entering a value moves an active highlight to it.
        window->tileAt(empty)->hideCaret();
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QTest::mouseClick(window->tileAt(empty), Qt::LeftButton);
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QCOMPARE(window->highlight(), v);
        const int right = window->currentBoard()->solutionValue(empty);
        window->tileValueEdited(empty, right);
        QCOMPARE(window->highlight(), right);
    }

    void declinedNewGameKeepsEverything() {
        const auto before = shownValues(*window);
        eng::Board* board = window->currentBoard();
        const int empty = firstEmpty(*window);
        QTest::mouseClick(window->tileAt(empty), Qt::LeftButton);
        MessageBoxAnswerer answerer(QMessageBox::No);
        trigger(*window, "actionNewGameHard");
        QCOMPARE(answerer.texts, QStringList{"Current game will be lost.\nContinue?"});
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(window->caret(), empty);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
        QCOMPARE(shownValues(*window), before);
        answerer.answer = QMessageBox::Yes;
        trigger(*window, "actionNewGameHard");
        QCOMPARE(window->levelText(), QString("difficulty: Hard"));
        QCOMPARE(window->caret(), -1);
        QCOMPARE(window->currentBoard()->getLevel(), int(eng::lvlHard));
    }

    void completingTheBoardCelebrates() {
        MessageBoxAnswerer answerer;
        std::srand(5);
        trigger(*window, "actionNewGameVeryEasy");
        eng::Board* board = window->currentBoard();
        int guard = 0;
        while (!board->isComplete() && guard++ < 81) {
            if (firstEmpty(*window) == -1) break;
            const int empty = firstEmpty(*window);
            if (board->historySize() % 2)
                trigger(*window, "actionMakeMove");
            else
                window->tileValueEdited(empty, board->solutionValue(empty));
        }
        QVERIFY(board->isComplete());
        QCOMPARE(answerer.texts.last(), QString("Congratulations!"));
        QCOMPARE(window->highlight(), 0);
        // Make move on the complete board: no move, and the board is still complete.
        trigger(*window, "actionMakeMove");
        QCOMPARE(answerer.texts.mid(answerer.texts.size() - 2),
                 (QStringList{"No more moves can be done.", "Congratulations!"}));
    }

    void viewOptions() {
        auto* toolbar = window->findChild<QToolBar*>("mainToolBar");
        trigger(*window, "actionViewToolbar");
        QVERIFY(toolbar->isHidden());
        trigger(*window, "actionViewToolbar");
        QVERIFY(toolbar->isVisible());
        trigger(*window, "actionViewStatusbar");
        QVERIFY(window->statusBar()->isHidden());
        window->viewNewGameIcons(false);
        QVERIFY(!action(*window, "actionNewGameEasy")->isVisible());
        QVERIFY(action(*window, "actionNewGameCompleted")->isVisible());
        window->viewNewGameIcons(true);
        QVERIFY(action(*window, "actionNewGameEasy")->isVisible());
        window->viewAboutIcon(false);
        QVERIFY(!action(*window, "actionAbout")->isVisible());

        // Pencil marks on all tiles.
        const int empty = firstEmpty(*window);
        auto* label = window->tileAt(empty)->findChild<QLabel*>("lbl1");
        QVERIFY(label->isHidden());
        trigger(*window, "actionViewPencilMarks");
        QVERIFY(label->isVisible());

        trigger(*window, "actionViewPencilMarksOptions");
        auto& dialog = window->pencilMarksDialog();
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.frameGeometry().left(), window->frameGeometry().right() + 1);
        QCOMPARE(dialog.frameGeometry().top(), window->frameGeometry().top());
    }

    void rulesFromTheDialog() {
        std::srand(77);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameHard");
        trigger(*window, "actionViewPencilMarks");
        eng::Board* board = window->currentBoard();
        const size_t before = board->historySize();
        window->applyPencilmarksRule(eng::ruleHiddenSingles);
        window->applyPencilmarksRule(eng::ruleLockedByRows);
        window->applyPencilmarksRule(eng::ruleDoubles);
        QVERIFY(board->historySize() > before);
        bool marked = false;  // removed candidates show white on red
        for (int i = 0; i < 81 && !marked; ++i)
            for (int v = 1; v <= 9 && !marked; ++v)
                marked = window->tileAt(i)->findChild<QLabel*>(QString("lbl%1").arg(v))->styleSheet() ==
                         Tile::stylePotentialRemoved;
        QVERIFY(marked);
        savePicture(*window, "window_rules_applied");
    }

    void saveAndOpen() {
        QTemporaryDir dir;
        const QString path = dir.filePath("game.sud");
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return path; });
        trigger(*window, "actionMakeMove");
        trigger(*window, "actionMakeMove");
        window->tilePotentialsEdited(firstEmpty(*window), 9);
        trigger(*window, "actionRetractMove");
        const auto shown = shownValues(*window);
        const auto marks = candidates(window->currentBoard());
        {
            // Saving over an existing file replaces all of it.
            QFile junk(path);
            QVERIFY(junk.open(QIODevice::WriteOnly));
            junk.write(QByteArray(200000, 'x'));
        }
        trigger(*window, "actionSaveGame");
        QVERIFY(QFileInfo(path).size() > 1836);
        QVERIFY(QFileInfo(path).size() < 200000);

        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        trigger(*window, "actionOpenGame");
        QVERIFY(answerer.texts.size() == 1);  // only the new-game question
        QCOMPARE(shownValues(*window), shown);
        eng::Board* board = window->currentBoard();
        QCOMPARE(candidates(board), marks);
        QCOMPARE(board->undoneSize(), 1u);
        trigger(*window, "actionMakeMove");  // the retracted move comes back first
        QCOMPARE(board->undoneSize(), 0u);
    }

    void refusedFilesKeepTheGame() {
        QTemporaryDir dir;
        MessageBoxAnswerer answerer;
        const auto shown = shownValues(*window);
        eng::Board* board = window->currentBoard();
        struct Case {
            QByteArray bytes;
            QStringList texts;
        };
        const QByteArray v3("\x08\x00\x00\x00version=\x03\x00\x00\x00", 16);
        const QByteArray wrongTag("\x08\x00\x00\x00versioN=\x02\x00\x00\x00", 16);
        // A real saved game, cut off in the middle.
        const QString full = dir.filePath("full.sud");
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return full; });
        trigger(*window, "actionSaveGame");
        QFile saved(full);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        const QByteArray truncated = saved.readAll().left(int(saved.size() / 2));
        QVERIFY(truncated.size() > 900);
        const std::vector<Case> cases = {
            {truncated, {}},
            {v3, {"Loaded file version is incompatible\n(expected version: 2 actual version: 3)", "Failed to load game"}},
            {wrongTag, {"This is not a valid .sud file", "Failed to load game"}},
            {QByteArray("plain text, not a game"), {"Failed to load game"}},
            // A string longer than the reader accepts: the reader throws.
            {QByteArray("\xff\xff\xff\x7fversion=", 12), {"Failed to load game"}},
        };
        for (const Case& c : cases) {
            const QString path = dir.filePath("bad.sud");
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write(c.bytes);
            f.close();
            answerer.texts.clear();
            window->setFileNameProvider([&](SudokuWindow::FileRequest) { return path; });
            trigger(*window, "actionOpenGame");
            if (c.texts.isEmpty())  // whatever the reader says first, the open fails
                QCOMPARE(answerer.texts.last(), QString("Failed to load game"));
            else
                QCOMPARE(answerer.texts, c.texts);
            QCOMPARE(window->currentBoard(), board);
            QCOMPARE(shownValues(*window), shown);
        }
        answerer.texts.clear();
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("missing.sud"); });
        trigger(*window, "actionOpenGame");
        QCOMPARE(answerer.texts, QStringList{"Failed to load game"});
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return QString(); });
        trigger(*window, "actionOpenGame");  // cancelled: nothing
        QCOMPARE(answerer.texts.size(), 1);
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("no/such/dir/x.sud"); });
        trigger(*window, "actionSaveGame");
        QCOMPARE(answerer.texts.last(), QString("Failed to save game"));
        if (QFile::exists("/dev/full")) {  // a device is no place for a saved game
            answerer.texts.clear();
            window->setFileNameProvider([&](SudokuWindow::FileRequest) { return QString("/dev/full"); });
            trigger(*window, "actionSaveGame");
            QCOMPARE(answerer.texts, QStringList{"Failed to save game"});
        }
        // The game is still playable.
        trigger(*window, "actionMakeMove");
        QVERIFY(shownValues(*window) != shown);
    }

    void failedSaveKeepsThePreviousFile() {
        // A 64 KiB file system that fills up between two saves.
        if (geteuid() != 0) QSKIP("mounting a small tmpfs needs root");
        QTemporaryDir dir;
        const QByteArray mnt = QFile::encodeName(dir.path());
        if (mount("tmpfs", mnt.constData(), "tmpfs", 0, "size=64k") != 0) QSKIP("cannot mount a tmpfs here");
        struct Unmount {
            const char* path;
            ~Unmount() { umount2(path, MNT_DETACH); }
        } unmount{mnt.constData()};
        const QString path = dir.filePath("game.sud");
        window->setFileNameProvider([&](SudokuWindow::FileRequest) { return path; });
        MessageBoxAnswerer answerer;
        auto contents = [&path] {
            QFile f(path);
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        };
        trigger(*window, "actionSaveGame");
        const QByteArray first = contents();
        QVERIFY(first.size() > 1836);
        {
            QFile fill(dir.filePath("fill"));
            QVERIFY(fill.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
            while (fill.write(QByteArray(4096, 'x')) == 4096) {}
            while (fill.write("x", 1) == 1) {}
        }
        trigger(*window, "actionMakeMove");  // a longer game to save
        trigger(*window, "actionSaveGame");
        QCOMPARE(answerer.texts, QStringList{"Failed to save game"});
        QCOMPARE(contents(), first);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{"fill", "game.sud"}));
    }

    // Last: closing the window asks the application to quit, which ends every
    // event loop that starts afterwards in this process.
    void closingClosesTheOptionsDialog() {
        trigger(*window, "actionViewPencilMarksOptions");
        QVERIFY(window->pencilMarksDialog().isVisible());
        trigger(*window, "actionExit");
        QVERIFY(!window->pencilMarksDialog().isVisible());
        QVERIFY(!window->isVisible());
    }
};

QTEST_MAIN(WindowTest)
#include "test_window.moc"
