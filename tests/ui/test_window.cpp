// The main window: start-up, game commands, caret and highlight, view options,
// open and save, and closing it in the middle of things.
#include <sys/mount.h>
#include <unistd.h>

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <cstdlib>
#include <set>

#include "WindowTestSupport.h"

using Rules = std::list<eng::Rules>;

class WindowTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QTemporaryDir dir;

    void clickThenKey(int i, Qt::Key key) {
        if (window->caret() != i) QTest::mouseClick(window->tileAt(i), Qt::LeftButton);
        QTest::keyClick(window->tileAt(i), key);
    }
    void fileCommand(const char* action, const QString& path) {  // actionSaveGame or actionOpenGame
        window->setFileNameProvider([path](SudokuWindow::FileRequest) { return path; });
        trigger(*window, action);
    }
    void saveTo(const QString& path) { fileCommand("actionSaveGame", path); }

private slots:
    void init() { window = shownWindow(); }
    // Closing the window asks the application to quit, which ends every event
    // loop started later; running the application's loop once clears that.
    void cleanup() {
        delete window;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        qApp->exec();
    }

    void userEditCaretAndMoves() {
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameUserEdit");
        QCOMPARE(window->levelText(), QString("difficulty: user edit"));
        QCOMPARE(shownValues(*window), std::vector<int>(81, 0));
        // Givens are typed in; only a value that clashes with its row, column or square is refused.
        auto type = [this](int i, Qt::Key key) {
            clickThenKey(i, key);
            return window->tileAt(i)->value();
        };
        QCOMPARE(type(10, Qt::Key_5), 5);
        QCOMPARE(type(11, Qt::Key_5), 0);  // same row
        QCOMPARE(window->caret(), 11);
        QCOMPARE(type(11, Qt::Key_6), 6);
        QCOMPARE(type(37, Qt::Key_5), 0);  // same column
        QCOMPARE(type(18, Qt::Key_5), 0);  // same square
        // Make Move searches for one value; Retract takes it back.
        const auto typed = shownValues(*window);
        trigger(*window, "actionMakeMove");
        const auto moved = shownValues(*window);
        QCOMPARE(std::count(moved.begin(), moved.end(), 0), 78);
        trigger(*window, "actionRetractMove");
        QCOMPARE(shownValues(*window), typed);

        // Where the caret ends after a click and keys: filled 10 and 11 are stepped over.
        auto walk = [this](int from, std::initializer_list<Qt::Key> keys) {
            QTest::mouseClick(window->tileAt(from), Qt::LeftButton);
            for (Qt::Key key : keys) QTest::keyClick(window->tileAt(window->caret()), key);
            return window->caret();
        };
        QCOMPARE(walk(9, {Qt::Key_Right}), 12);
        QCOMPARE(walk(5, {Qt::Key_Up}), 76);
        QCOMPARE(walk(77, {Qt::Key_Down}), 6);
        QCOMPARE(walk(80, {Qt::Key_Right, Qt::Key_Down}), 80);
        QCOMPARE(walk(0, {Qt::Key_Left, Qt::Key_Up}), 0);
        QTest::mouseClick(window->tileAt(0), Qt::LeftButton);  // on the caret: removes it
        QCOMPARE(window->caret(), -1);

        // A pencil caret needs the pencil marks shown, and keeps its mode.
        QTest::mouseClick(window->tileAt(30), Qt::RightButton);
        QCOMPARE(window->caret(), -1);
        trigger(*window, "actionViewPencilMarks");
        QTest::mouseClick(window->tileAt(30), Qt::RightButton);
        QTest::keyClick(window->tileAt(30), Qt::Key_Down);
        QCOMPARE(window->caret(), 39);
        QCOMPARE(window->tileAt(39)->caret(), Tile::PencilCaret);
        QTest::keyClick(window->tileAt(39), Qt::Key_4);
        QVERIFY(!window->currentBoard()->cell(39)->isPotential(4));
        QCOMPARE(window->tileAt(39)->findChild<QLabel*>("lbl4")->styleSheet(), Tile::stylePotentialOff);
        QTest::keyClick(window->tileAt(39), Qt::Key_4);
        QVERIFY(window->currentBoard()->cell(39)->isPotential(4));
        savePicture(*window, "window_pencil_marks");
        QCOMPARE(answerer.texts, QStringList{"Current game will be lost.\nContinue?"});
    }

    void startUpAndDeclinedNewGame() {
        const auto before = shownValues(*window);
        QVERIFY(std::count(before.begin(), before.end(), 0) < 64 && std::count(before.begin(), before.end(), 0) > 0);
        for (QAction* a : window->findChildren<QAction*>()) {  // tool-tip pictures come from the resources
            const QString tip = a->toolTip();
            const int at = tip.indexOf(":/Sudoku/Resources/");
            if (at > 0) QVERIFY2(!QPixmap(tip.mid(at, tip.indexOf('"', at) - at)).isNull(), qPrintable(tip));
        }
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
        answerer.timer.stop();  // the window closed while it asks: no new game
        QTimer::singleShot(100, window, [this] { window->close(); });
        trigger(*window, "actionNewGameEasy");
        QCOMPARE(window->levelText(), QString("difficulty: Hard"));
    }

    void completingTheBoardCelebrates() {
        MessageBoxAnswerer answerer;
        std::srand(5);
        trigger(*window, "actionNewGameVeryEasy");
        eng::Board* board = window->currentBoard();
        for (int empty, guard = 0; (empty = firstEmpty(*window)) >= 0 && guard++ < 81;) {
            if (board->historySize() % 2)
                trigger(*window, "actionMakeMove");
            else
                window->tileValueEdited(empty, board->solutionValue(empty));
        }
        QVERIFY(board->isComplete());
        QCOMPARE(window->highlight(), 0);
        trigger(*window, "actionMakeMove");  // no move left; the board stays complete
        window->cellHasNoSolution({}, 40);
        QCOMPARE(answerer.texts.mid(answerer.texts.size() - 4),
                 (QStringList{"Congratulations!", "No more moves can be done.", "Congratulations!",
                              "Cell 40 has no solution"}));
    }

    // The pencil-mark options: which rules, in which order; applying them removes candidates, shown white on red.
    void pencilMarkRules() {
        std::srand(77);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameHard");
        trigger(*window, "actionViewPencilMarks");
        trigger(*window, "actionViewPencilMarksOptions");
        PencilMarksOptions& dialog = window->pencilMarksDialog();  // beside the window
        QCOMPARE(dialog.frameGeometry().topLeft(), window->frameGeometry().topRight() + QPoint(1, 0));
        auto* src = child<QListWidget>(dialog, "lstSrc");
        auto* dest = child<QListWidget>(dialog, "lstDest");
        auto click = [&dialog](const char* button) { child(dialog, button)->click(); };
        auto expectClean = [&dialog](bool clean) {
            QCOMPARE(dialog.windowTitle(), QString(clean ? "Pencil Marks Options" : "Pencil Marks Options*"));
            QCOMPARE(child<QDialogButtonBox>(dialog, "buttonBox")->isEnabled(), !clean);
        };
        auto apply = [&] {  // the board takes the chosen rules
            child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply)->click();
            QCOMPARE(window->currentBoard()->pencilMarksRulesList(), dialog.selectedRules());
        };
        QCOMPARE(dialog.selectedRules(), Rules{eng::ruleSingles});
        expectClean(true);
        savePicture(dialog, "pencil_marks_options");

        // A double click on a rule applies it alone and moves nothing.
        const size_t before = window->currentBoard()->historySize();
        const QPoint at = src->visualItemRect(src->item(11)).center();  // 12. Hidden Singles
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(window->currentBoard()->historySize() > before);
        QCOMPARE(window->currentBoard()->pencilMarksRulesList(), Rules{eng::ruleSingles});
        int marked = 0;
        for (QLabel* label : window->findChildren<QLabel*>())
            marked += label->styleSheet() == Tile::stylePotentialRemoved;
        QVERIFY(marked > 0);
        savePicture(*window, "window_rules_applied");
        QCOMPARE(src->count(), 15);
        expectClean(true);

        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        click("btnToDst");
        expectClean(false);
        // Hidden Singles to the top; up on the first row stays, the list keeps the focus.
        dest->clearSelection();
        dest->setCurrentRow(2);
        child(dialog, "btnToDst")->setFocus();
        for (int k = 0; k < 3; ++k) click("btnUp");
        QCOMPARE(dialog.selectedRules(), (Rules{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles}));
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        apply();
        expectClean(true);
        dest->setCurrentRow(0);
        click("btnDown");
        QCOMPARE(dialog.selectedRules(), (Rules{eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}));
        expectClean(false);
        apply();
        dest->selectAll();
        click("btnToSrc");
        QVERIFY(dialog.selectedRules().empty());
        QCOMPARE(src->count(), 16);
        // Everything chosen: sixteen distinct rules reach the board.
        src->selectAll();
        click("btnToDst");
        apply();
        const Rules all = dialog.selectedRules();
        QCOMPARE(std::set<eng::Rules>(all.begin(), all.end()).size(), 16u);
        QCOMPARE(answerer.texts, QStringList{"Current game will be lost.\nContinue?"});
        trigger(*window, "actionExit");  // closes the dialog too
        QVERIFY(!dialog.isVisible());
    }

    void saveAndOpen() {
        const QString path = dir.filePath("game.sud");
        trigger(*window, "actionMakeMove");
        trigger(*window, "actionMakeMove");
        window->tilePotentialsEdited(firstEmpty(*window), 9);
        trigger(*window, "actionRetractMove");
        const auto shown = shownValues(*window);
        auto candidates = [this] {
            std::vector<bool> marks;
            for (int i = 0; i < 81 * 9; ++i)
                marks.push_back(window->currentBoard()->cell(i / 9)->isPotential(i % 9 + 1));
            return marks;
        };
        const auto marks = candidates();
        {
            QFile junk(path);  // saving over an existing file replaces all of it
            QVERIFY(junk.open(QIODevice::WriteOnly) && junk.write(QByteArray(200000, 'x')));
        }
        saveTo(path);
        QVERIFY(QFileInfo(path).size() > 1836 && QFileInfo(path).size() < 200000);

        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        fileCommand("actionOpenGame", path);
        QCOMPARE(answerer.texts.size(), 1);  // only the new-game question
        QCOMPARE(shownValues(*window), shown);
        QCOMPARE(candidates(), marks);
        QCOMPARE(window->currentBoard()->undoneSize(), 1u);
        trigger(*window, "actionMakeMove");  // the retracted move comes back first
        QCOMPARE(window->currentBoard()->undoneSize(), 0u);
    }

    void refusedFilesKeepTheGame_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("truncated") << QByteArray() << QStringList();  // a real saved game, cut off in the middle
        QTest::newRow("version 3")
            << QByteArray("\x08\x00\x00\x00version=\x03\x00\x00\x00", 16)
            << QStringList{"Loaded file version is incompatible\n(expected version: 2 actual version: 3)",
                           "Failed to load game"};
        QTest::newRow("wrong tag") << QByteArray("\x08\x00\x00\x00versioN=\x02\x00\x00\x00", 16)
                                   << QStringList{"This is not a valid .sud file", "Failed to load game"};
        QTest::newRow("missing") << QByteArray("-") << QStringList{"Failed to load game"};
    }
    void refusedFilesKeepTheGame() {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, texts);
        const auto shown = shownValues(*window);
        eng::Board* board = window->currentBoard();
        const QString path = dir.filePath("bad.sud");
        QFile::remove(path);
        saveTo(path);
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadWrite) && f.resize(bytes.isEmpty() ? f.size() / 2 : 0) && f.write(bytes) >= 0);
        f.close();
        if (bytes == "-") f.remove();
        MessageBoxAnswerer answerer;
        fileCommand("actionOpenGame", path);
        if (texts.isEmpty())  // whatever the reader says first, the open fails
            QCOMPARE(answerer.texts.last(), QString("Failed to load game"));
        else
            QCOMPARE(answerer.texts, texts);
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(shownValues(*window), shown);
        const int seen = answerer.texts.size();
        fileCommand("actionOpenGame", QString());  // cancelled: nothing
        saveTo(dir.filePath("no/such/dir/x.sud"));
        saveTo("/dev/full");  // a device is no place for a saved game
        QCOMPARE(answerer.texts.mid(seen), (QStringList{"Failed to save game", "Failed to save game"}));
        trigger(*window, "actionMakeMove");  // still playable
        QVERIFY(shownValues(*window) != shown);
    }

    void failedSaveKeepsThePreviousFile() {
        // A 64 KiB file system that fills up between two saves.
        if (geteuid() != 0) QSKIP("mounting a small tmpfs needs root");
        const QByteArray mnt = QFile::encodeName(dir.path());
        if (mount("tmpfs", mnt.constData(), "tmpfs", 0, "size=64k") != 0) QSKIP("cannot mount a tmpfs here");
        const auto unmount = qScopeGuard([&mnt] { umount2(mnt.constData(), MNT_DETACH); });
        const QString path = dir.filePath("game.sud");
        MessageBoxAnswerer answerer;
        auto contents = [&path] {
            QFile f(path);
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        };
        saveTo(path);
        const QByteArray first = contents();
        QVERIFY(first.size() > 1836);
        QFile fill(dir.filePath("fill"));
        QVERIFY(fill.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (fill.write(QByteArray(4096, 'x')) == 4096) continue;
        while (fill.write("x", 1) == 1) continue;
        trigger(*window, "actionMakeMove");  // a longer game to save
        saveTo(path);
        QCOMPARE(answerer.texts, QStringList{"Failed to save game"});
        QCOMPARE(contents(), first);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{"fill", "game.sud"}));
    }

    // Closing during a refusal blink: input meanwhile is ignored and the board untouched.
    void closeDuringRefusalAnimation() {
        eng::Board* board = window->currentBoard();
        const size_t history = board->historySize();
        const int i = firstEmpty(*window);
        QTimer::singleShot(300, window, [this, i] {
            QTest::mouseClick(window->tileAt(i == 0 ? 1 : 0), Qt::LeftButton);
            trigger(*window, "actionMakeMove");
            trigger(*window, "actionOpenGame");
            window->close();
        });
        clickThenKey(i, Qt::Key(Qt::Key_0 + board->solutionValue(i) % 9 + 1));
        QVERIFY(!window->isVisible());
        QVERIFY(!window->tileAt(i)->hasValue());
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(board->historySize(), history);
    }

    // Closing during the completion sweep: clicks and commands meanwhile are
    // ignored, no message box is left waiting.
    void closeDuringCelebration() {
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameVeryEasy");
        eng::Board* board = window->currentBoard();
        int last = -1;
        for (int i = firstEmpty(*window); i >= 0; i = firstEmpty(*window, i)) {
            if (last >= 0) QVERIFY(board->setValue(last, board->solutionValue(last)));
            last = i;
        }
        answerer.texts.clear();
        QTimer::singleShot(400, window, [this] {
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
    }
};

QTEST_MAIN(WindowTest)
#include "test_window.moc"
