#pragma once
// The game in progress, kept on disk so that the next start brings it back:
// the board as a .sud (history and retracted moves included), followed by what
// a .sud does not hold: whether pencil marks are shown, the pencil-mark rules
// (the board's own and those chosen for new games) and the level label. A
// checksum closes the file. The window hands its state over after every change,
// at most once a second, and on closing; a second thread writes it atomically,
// so the last complete write stands whatever happens to the program.

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <condition_variable>
#include <list>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "Board.h"

class SudokuWindow;

class KeptGame : public QObject {
    Q_OBJECT

public:
    struct Game {
        std::string saved;  // the board as a .sud; empty when there is none
        int level = eng::lvlMedium;  // the level label's level
        bool pencilMarksShown = false;
        std::list<eng::Rules> boardRules;   // the rules the board applies
        std::list<eng::Rules> chosenRules;  // the rules new games get
        bool restored = false;  // an unfinished game that was kept
        bool setAside = false;  // a damaged kept file was renamed
        bool damaged = false;   // a damaged kept file was found
        std::unique_ptr<eng::Board> board;  // the game, read by take() or generated; it reports to no observer yet
    };

    // The kept game lives at path; by default in the user's data location.
    explicit KeptGame(const QString& path = defaultPath());
    ~KeptGame() override;
    KeptGame(const KeptGame&) = delete;
    KeptGame& operator=(const KeptGame&) = delete;

    static QString defaultPath();
    const QString& path() const { return filePath; }

    // The file's bytes for a board and its extras (game.saved is not used), and back:
    // decode returns false for anything but a complete, undamaged kept game.
    static QByteArray encode(eng::Board& board, const Game& extras);
    static QByteArray encode(const std::string& saved, const Game& extras);
    static bool decode(const QByteArray& bytes, Game& game);

    // At start-up, on any thread: the kept game when it is unfinished (restored
    // set, and its board read), else none. A file that cannot be read is renamed beside it.
    Game take();

    // From the window, once its first game is shown: reports a damaged kept
    // game, and from now on keeps the window's game.
    void attach(SudokuWindow* window, const Game& first);
    // The window's game changed: it is written within a second.
    void changed();
    // Hands the window's game to the writer at once (on closing).
    void keepNow();
    // Returns once everything handed over is written.
    void waitForWrites();

signals:
    // A state of the game was handed to the writer: a second at least after the last one, unless on closing.
    void handedOver();
    // After each write, on the thread this object lives in.
    void written(bool ok);

private:
    QString filePath;
    QPointer<SudokuWindow> window;
    QTimer timer;
    QElapsedTimer sinceWrite;
    bool failureShown = false;

    std::thread writer;
    std::mutex mutex;
    std::condition_variable wake, idle;
    std::unique_ptr<Game> pending;  // saved and extras, encoded by the writer
    bool writing = false;
    bool stopping = false;

    void writeWhenIdle();
    void submit(Game game);
    void writeLoop();
    void reportWrite(bool ok);
};
