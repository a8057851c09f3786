// The game in progress outlives the program: killed or ended and restarted, a damaged file, a finished game, a
// read-only folder.
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QStatusBar>
#include <sstream>

#include "WindowTestSupport.h"

static QByteArray read(const QString& path) { QFile f(path); return f.open(QIODevice::ReadOnly) ? f.readAll() : ""; }

struct Kept {  // what a kept file holds: the extras, and the board
    KeptGame::Game game;
    eng::Board board{nullptr};
    explicit Kept(const QString& path) {
        if (KeptGame::decode(read(path), game)) board.deserialize(std::istringstream(game.saved).seekg(0));
    }
};

static void write(const QString& path, const QByteArray& bytes) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

class TestKeptGame : public QObject {
    Q_OBJECT
    QTemporaryDir home;
    QString path = home.path() + "/sudoku-vantu/game-in-progress.sud";

private slots:
    // The real program, on xcb: a digit typed, SIGKILL, a start again and Retract Move.
    void killedGameComesBack() {
        const KeptGame::Game extras{
            {}, eng::lvlHard, true, {eng::ruleSingles, eng::ruleDoubles}, {eng::ruleDoubles}, false, false, false, {}};
        eng::Board seed(nullptr);
        seed.setPencilMarksRules(extras.boardRules);
        QVERIFY(seed.generate(eng::lvlHard) && seed.makeMove());
        write(path, KeptGame::encode(seed, extras));
        int cell = 0;
        while (seed.cell(cell)->value()) ++cell;
        qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
        QProcess game;
        for (const QStringList& keys : {QStringList{"Right", QString::number(seed.solutionValue(cell))},
                                        QStringList{"alt+g", "r"}}) {
            game.start(SUDOKU_GAME, QStringList());
            // Again while a window of that name that the program is still making vanishes under xdotool (BadWindow).
            QTRY_COMPARE_WITH_TIMEOUT(QProcess::execute("xdotool", {"search", "--sync", "--name", "^Sudoku Vantu$",
                                                                    "windowactivate", "--sync"}), 0, 20000);
            QCOMPARE(QProcess::execute("xdotool", QStringList{"key", "--clearmodifiers"} + keys), 0);
            const bool retracted = keys[0] == "alt+g";
            QTRY_VERIFY_WITH_TIMEOUT(Kept(path).board.undoneSize() == retracted &&
                                         Kept(path).board.historySize() == seed.historySize() + !retracted, 20000);
            game.kill();
            QVERIFY(game.waitForFinished());
            const Kept back(path);
            QCOMPARE(back.board.cell(cell)->value(), retracted ? 0 : seed.solutionValue(cell));
            QVERIFY(back.game.pencilMarksShown && back.game.level == extras.level &&
                    back.game.chosenRules == extras.chosenRules && back.game.boardRules == extras.boardRules);
        }
    }

    // Asked to end (SIGTERM, as a session ending does), the program closes as its window's close does: the game is kept.
    void endedGameIsKept() {
        QFile::remove(path);
        qputenv("XDG_DATA_HOME", home.path().toLocal8Bit());
        QProcess game;
        game.start(SUDOKU_GAME, QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(QProcess::execute("xdotool", {"search", "--sync", "--name", "^Sudoku Vantu$"}), 0, 20000);
        QVERIFY(!QFile::exists(path));
        game.terminate();
        QVERIFY(game.waitForFinished(20000) && game.exitStatus() == QProcess::NormalExit && game.exitCode() == 0);
        QCOMPARE(Kept(path).game.level, int(eng::lvlMedium));
    }

    void damagedOrFinishedGame_data() {
        QTest::addColumn<QByteArray>("bytes");
        eng::Board board(nullptr);
        board.generate(eng::lvlMedium);
        const QByteArray good = KeptGame::encode(board, {});
        board.generate(eng::lvlCompleted);
        QTest::newRow("finished") << KeptGame::encode(board, {});
        QTest::newRow("not a kept game") << QByteArray("81 digits?");
        QTest::newRow("cut short") << good.left(good.size() - 20);
        QTest::newRow("a byte changed") << QByteArray(good).replace(100, 1, "\x7f");
    }

    // The usual Medium start; a damaged file is renamed, whole, and the status bar says so.
    void damagedOrFinishedGame() {
        QFETCH(QByteArray, bytes);
        const bool damaged = QByteArray(QTest::currentDataTag()) != "finished";
        QTemporaryDir dir;
        write(dir.filePath("game.sud"), bytes);
        KeptGame keptGame(dir.filePath("game.sud"));
        SudokuWindow w(nullptr, &keptGame);
        QVERIFY(w.levelText() == "difficulty: Medium" && w.currentBoard()->getLevel() == eng::lvlMedium);
        const QStringList aside = QDir(dir.path()).entryList({"game.damaged-*.sud"});
        QVERIFY(w.statusBar()->currentMessage().isEmpty() != damaged && aside.size() == int(damaged));
        QCOMPARE(read(dir.filePath(damaged ? aside.value(0) : "game.sud")), bytes);
    }

    // Play goes on; the status bar says once that the game cannot be kept. One write a second at most.
    void readOnlyFolder() {
        QTemporaryDir dir;
        const QByteArray folder = dir.path().toLocal8Bit();  // mounted read-only, else mode 0500 (chmod() <= 0)
        const bool mounted = mount("tmpfs", folder, "tmpfs", MS_RDONLY, "size=64k") == 0 || chmod(folder, 0500) > 0;
        const auto restore = qScopeGuard([&] { mounted ? umount2(folder, MNT_DETACH) : chmod(folder, 0700); });
        if (access(folder, W_OK) == 0) QSKIP("no read-only folder can be made here");
        QElapsedTimer clock;
        clock.start();
        QList<qint64> failed, handed;  // failed writes; when each state was handed to the writer (outlive the window)
        KeptGame kept(dir.filePath("sudoku-vantu/game.sud"));
        SudokuWindow w(nullptr, &kept);
        QSignalSpy messages(w.statusBar(), &QStatusBar::messageChanged);
        connect(&kept, &KeptGame::written, [&](bool ok) { failed << (ok ? -1 : 0); });
        connect(&kept, &KeptGame::handedOver, [&] { handed << clock.nsecsElapsed() / 1000; });
        const size_t moves = w.currentBoard()->historySize();
        for (int writes = 1; writes <= 2; ++writes) {
            w.makeMove(), w.makeMove();
            QTRY_VERIFY_WITH_TIMEOUT(failed.size() == writes, 10000);
        }
        QVERIFY(failed == QList<qint64>({0, 0}) && handed.size() == 2 && handed[1] - handed[0] >= 999000);  // µs
        QVERIFY(messages.count() == 1 && w.currentBoard()->historySize() == moves + 4);
    }
};

QTEST_MAIN(TestKeptGame)
#include "test_kept_game.moc"
