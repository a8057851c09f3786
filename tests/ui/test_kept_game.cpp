// The game in progress outlives the program: killed and started again, or kept
// in a damaged file, a finished game, a read-only folder, two windows at once.
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QStatusBar>
#include <QTemporaryDir>
#include <sstream>

#include "WindowTestSupport.h"

namespace {

KeptGame::Game kept(const QString& path) {
    QFile file(path);
    KeptGame::Game game;
    if (file.open(QIODevice::ReadOnly)) KeptGame::decode(file.readAll(), game);
    return game;
}

std::unique_ptr<eng::Board> boardOf(const KeptGame::Game& game) {
    auto board = std::make_unique<eng::Board>(nullptr);
    std::istringstream in(game.saved, std::ios::binary);
    board->deserialize(in);
    return board;
}

void keep(const QString& path, eng::Board& board, const KeptGame::Game& extras) {
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(KeptGame::encode(board, extras)) > 0);
}

void xdotool(const QStringList& keys) {
    QProcess::execute("xdotool", {"search", "--sync", "--name", "^Sudoku Vantu$", "windowactivate", "--sync"});
    QCOMPARE(QProcess::execute("xdotool", QStringList{"key", "--clearmodifiers"} + keys), 0);
}

}  // namespace

class TestKeptGame : public QObject {
    Q_OBJECT
    QTemporaryDir home;
    QString path = home.path() + "/sudoku-vantu/game-in-progress.sud";

private slots:
    // The real program, on xcb: a digit typed, SIGKILL, a start again and Retract Move.
    void killedGameComesBack() {
        eng::Board seed(nullptr);
        seed.setPencilMarksRules({eng::ruleSingles, eng::ruleDoubles});
        QVERIFY(seed.generate(eng::lvlHard) && seed.makeMove());
        KeptGame::Game extras;
        extras.level = eng::lvlHard;
        extras.pencilMarksShown = true;
        extras.boardRules = seed.pencilMarksRulesList();
        extras.chosenRules = {eng::ruleDoubles, eng::ruleSingles};
        keep(path, seed, extras);
        int cell = 0;
        while (seed.cell(cell)->value()) ++cell;
        const size_t moves = seed.historySize();
        QProcess game;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_DATA_HOME", home.path());
        game.setProcessEnvironment(env);
        for (const QStringList& keys : {QStringList{"Right", QString::number(seed.solutionValue(cell))},
                                        QStringList{"alt+g", "r"}}) {
            game.start(SUDOKU_GAME, QStringList());
            xdotool(keys);
            QTRY_VERIFY_WITH_TIMEOUT(boardOf(kept(path))->undoneSize() == (keys[0] == "alt+g") &&
                                         boardOf(kept(path))->historySize() == moves + (keys[0] == "Right"),
                                     20000);
            game.kill();
            QVERIFY(game.waitForFinished());
            const KeptGame::Game back = kept(path);
            QCOMPARE(boardOf(back)->cell(cell)->value(), keys[0] == "Right" ? seed.solutionValue(cell) : 0);
            QVERIFY(back.pencilMarksShown && back.level == extras.level && back.chosenRules == extras.chosenRules &&
                    back.boardRules == extras.boardRules);
        }
    }

    void damagedOrFinishedGame_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("damaged");
        eng::Board board(nullptr);
        board.generate(eng::lvlMedium);
        const QByteArray good = KeptGame::encode(board, {});
        board.generate(eng::lvlCompleted);
        QTest::newRow("finished") << KeptGame::encode(board, {}) << false;
        QTest::newRow("not a kept game") << QByteArray("81 digits?") << true;
        QTest::newRow("cut short") << good.left(good.size() - 20) << true;
        QTest::newRow("a byte changed") << QByteArray(good).replace(100, 1, "\x7f") << true;
    }

    // The usual Medium start; a damaged file is renamed, whole, and the status bar says so.
    void damagedOrFinishedGame() {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, damaged);
        QTemporaryDir dir;
        QFile file(dir.filePath("game.sud"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        file.close();
        KeptGame keptGame(file.fileName());
        SudokuWindow w(nullptr, &keptGame);
        QCOMPARE(w.levelText(), QString("difficulty: Medium"));
        QCOMPARE(w.currentBoard()->getLevel(), int(eng::lvlMedium));
        QCOMPARE(w.statusBar()->currentMessage().isEmpty(), !damaged);
        const QStringList aside = QDir(dir.path()).entryList({"game.damaged-*.sud"});
        QCOMPARE(aside.size(), int(damaged));
        QFile kept(dir.filePath(damaged ? aside.value(0) : "game.sud"));
        QVERIFY(kept.open(QIODevice::ReadOnly) && kept.readAll() == bytes);
    }

    // Play goes on; the status bar says once that the game cannot be kept.
    void readOnlyFolder() {
        QTemporaryDir dir;
        const QByteArray folder = dir.path().toLocal8Bit();
        const bool mounted = mount("tmpfs", folder.constData(), "tmpfs", MS_RDONLY, "size=64k") == 0;
        const auto restore = qScopeGuard([&] { mounted ? umount2(folder.constData(), MNT_DETACH) : chmod(folder.constData(), 0700); });
        if (!mounted) chmod(folder.constData(), 0500);
        if (access(folder.constData(), W_OK) == 0) QSKIP("no read-only folder can be made here");
        KeptGame keptGame(dir.filePath("sudoku-vantu/game.sud"));
        SudokuWindow w(nullptr, &keptGame);
        QSignalSpy writes(&keptGame, &KeptGame::written), messages(w.statusBar(), &QStatusBar::messageChanged);
        const size_t moves = w.currentBoard()->historySize();
        for (int move = 1; move <= 2; ++move) {
            w.makeMove();
            QTRY_COMPARE_WITH_TIMEOUT(writes.count(), move, 10000);
            QVERIFY(!writes.last().at(0).toBool());
        }
        QCOMPARE(messages.count(), 1);
        QCOMPARE(w.currentBoard()->historySize(), moves + 2);
    }

    // Two windows keep games at once: the file is always whole, the last write stands.
    void twoWindows() {
        QTemporaryDir dir;
        KeptGame first(dir.filePath("game.sud")), second(first.path());
        SudokuWindow a(nullptr, &first), b(nullptr, &second);
        a.makeMove();
        for (int i = 0; i < 20; ++i) {
            first.keepNow();
            second.keepNow();
            QVERIFY(!QFile::exists(first.path()) || !kept(first.path()).saved.empty());
        }
        first.waitForWrites();
        second.waitForWrites();
        for (KeptGame* last : {&first, &second, &first}) {
            last->keepNow();
            last->waitForWrites();
            QCOMPARE(boardOf(kept(first.path()))->historySize(), (last == &first ? a : b).currentBoard()->historySize());
        }
    }
};

QTEST_MAIN(TestKeptGame)
#include "test_kept_game.moc"
