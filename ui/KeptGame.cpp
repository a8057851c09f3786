#include "KeptGame.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStatusBar>
#include <algorithm>
#include <cstring>
#include <sstream>

#include "SudokuWindow.h"
#include "WholeFile.h"

namespace {

const char kTag[4] = {'K', 'E', 'P', 'T'};
constexpr qint32 kVersion = 1;
constexpr int kMaxRules = 64;
constexpr int kHashSize = 16;   // MD5
constexpr qint64 kMaxFileSize = 64 << 20;
constexpr int kGapMs = 1000;    // at most one write a second
constexpr int kBusyRetryMs = 100;

void writeRules(QDataStream& out, const std::list<eng::Rules>& rules) {
    out << static_cast<qint32>(rules.size());
    for (const eng::Rules rule : rules) out << static_cast<qint32>(rule);
}

bool readRules(QDataStream& in, std::list<eng::Rules>& rules) {
    qint32 count = -1;
    in >> count;
    if (count < 0 || count > kMaxRules) return false;
    for (qint32 i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        qint32 rule = 0;
        in >> rule;
        rules.push_back(static_cast<eng::Rules>(rule));
    }
    return in.status() == QDataStream::Ok;
}

// The file keeps its name; the damaged one's name says what it is, and when.
bool setAside(const QString& path) {
    const QFileInfo info(path);
    const QString stamp = QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-HHmmss"));
    for (int i = 0; i < 100; ++i) {
        const QString suffix = i == 0 ? QString() : QStringLiteral("-%1").arg(i);
        const QString name = info.dir().filePath(info.completeBaseName() + ".damaged-" + stamp + suffix + ".sud");
        if (!QFileInfo::exists(name)) return QFile::rename(path, name);
    }
    return false;
}

// Written beside the kept file, which takes its name only once every byte is
// on disk: two programs writing at once each replace it whole.
bool writeFile(const QString& path, const QByteArray& bytes) {
    return QDir().mkpath(QFileInfo(path).absolutePath()) && writeWholeFile(path, bytes.constData(), bytes.size());
}

}  // namespace

KeptGame::KeptGame(const QString& path) : filePath(path) {
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);  // a coarse one may fire 5 % early
    connect(&timer, &QTimer::timeout, this, &KeptGame::writeWhenIdle);
}

KeptGame::~KeptGame() {
    {
        std::lock_guard<std::mutex> lock(mutex);
        stopping = true;
    }
    wake.notify_one();
    if (writer.joinable()) writer.join();  // what was handed over is written first
}

QString KeptGame::defaultPath() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/sudoku-vantu/game-in-progress.sud");
}

// The .sud, the trailer (tag, version, the extras, the .sud's length) and the
// MD5 of everything before it, integers little-endian.
QByteArray KeptGame::encode(eng::Board& board, const Game& extras) {
    std::ostringstream sud(std::ios::binary);
    board.serialize(sud);
    return encode(sud.str(), extras);
}

QByteArray KeptGame::encode(const std::string& saved, const Game& extras) {
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData(saved.data(), static_cast<int>(saved.size()));
    out.writeRawData(kTag, sizeof kTag);
    out << kVersion << static_cast<quint8>(extras.pencilMarksShown) << static_cast<qint32>(extras.level);
    writeRules(out, extras.boardRules);
    writeRules(out, extras.chosenRules);
    out << static_cast<qint32>(saved.size());
    bytes += QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
    return bytes;
}

bool KeptGame::decode(const QByteArray& bytes, Game& game) {
    const int body = bytes.size() - kHashSize;
    if (body < 4 ||
        QCryptographicHash::hash(QByteArray::fromRawData(bytes.constData(), body), QCryptographicHash::Md5) !=
            bytes.mid(body))
        return false;
    qint32 savedSize = -1;
    QDataStream size(QByteArray::fromRawData(bytes.constData() + body - 4, 4));
    size.setByteOrder(QDataStream::LittleEndian);
    size >> savedSize;
    if (savedSize < 0 || savedSize > body - 4) return false;
    QDataStream in(QByteArray::fromRawData(bytes.constData() + savedSize, body - 4 - savedSize));
    in.setByteOrder(QDataStream::LittleEndian);
    char tag[sizeof kTag];
    qint32 version = 0, level = -1;
    quint8 pencilMarks = 0;
    if (in.readRawData(tag, sizeof tag) != sizeof tag || std::memcmp(tag, kTag, sizeof tag) != 0) return false;
    in >> version >> pencilMarks >> level;
    if (version != kVersion || level < 0 || level > eng::gradeExpert || pencilMarks > 1) return false;
    if (!readRules(in, game.boardRules) || !readRules(in, game.chosenRules) || !in.atEnd()) return false;
    game.saved.assign(bytes.constData(), static_cast<size_t>(savedSize));
    game.level = level;
    game.pencilMarksShown = pencilMarks != 0;
    return true;
}

KeptGame::Game KeptGame::take() {
    QFile file(filePath);
    if (!file.exists()) return Game();
    Game game;
    bool readable = file.open(QIODevice::ReadOnly) && file.size() <= kMaxFileSize && decode(file.readAll(), game);
    file.close();
    if (readable) {
        auto board = std::make_unique<eng::Board>(nullptr);
        board->setPencilMarksRules(game.boardRules);  // without a position: nothing is applied
        std::istringstream in(game.saved, std::ios::binary);
        try {
            readable = board->deserialize(in);
        } catch (const std::exception&) {
            readable = false;
        }
        // A finished game, or a board without one, leaves the usual start.
        if (readable) {
            if (board->getPhase() != eng::phasePlaying || board->historySize() == 0 || board->isComplete())
                return Game();
            game.restored = true;
            game.board = std::move(board);
            return game;
        }
    }
    Game fresh;
    fresh.damaged = true;
    fresh.setAside = setAside(filePath);
    return fresh;
}

void KeptGame::attach(SudokuWindow* shown, const Game& first) {
    window = shown;
    if (first.damaged)
        window->statusBar()->showMessage(first.setAside ? tr("The last game could not be read and was set aside.")
                                                        : tr("The last game could not be read."));
}

void KeptGame::changed() {
    if (!window || timer.isActive()) return;
    const qint64 since = sinceWrite.isValid() ? sinceWrite.elapsed() : kGapMs;
    timer.start(static_cast<int>(std::max<qint64>(0, kGapMs - since)));
}

// Not in the middle of a command: the board may be half way through it.
void KeptGame::writeWhenIdle() {
    if (window && window->isBusy())
        timer.start(kBusyRetryMs);
    else
        keepNow();
}

void KeptGame::keepNow() {
    timer.stop();
    eng::Board* board = window ? window->currentBoard() : nullptr;
    if (!board) return;
    Game game;
    std::ostringstream saved(std::ios::binary);
    board->serialize(saved);
    game.saved = saved.str();
    game.level = window->labelLevel();
    game.pencilMarksShown = window->pencilMarksShown();
    game.boardRules = board->pencilMarksRulesList();
    game.chosenRules = window->selectedRules();
    submit(std::move(game));
    sinceWrite.start();
    emit handedOver();
}

// Only the newest state waits: one not yet written is replaced.
void KeptGame::submit(Game game) {
    std::lock_guard<std::mutex> lock(mutex);
    pending = std::make_unique<Game>(std::move(game));
    if (!writer.joinable()) writer = std::thread(&KeptGame::writeLoop, this);
    wake.notify_one();
}

void KeptGame::writeLoop() {
    std::unique_lock<std::mutex> lock(mutex);
    for (;;) {
        wake.wait(lock, [this] { return stopping || pending; });
        if (!pending) return;
        const std::unique_ptr<Game> game = std::move(pending);
        writing = true;
        lock.unlock();
        const bool ok = writeFile(filePath, encode(game->saved, *game));
        QMetaObject::invokeMethod(this, [this, ok] { reportWrite(ok); }, Qt::QueuedConnection);
        lock.lock();
        writing = false;
        idle.notify_all();
    }
}

void KeptGame::waitForWrites() {
    std::unique_lock<std::mutex> lock(mutex);
    idle.wait(lock, [this] { return !pending && !writing; });
}

// Play goes on when the game cannot be kept; the player is told once, and
// again only after a write has succeeded in between.
void KeptGame::reportWrite(bool ok) {
    if (!ok && !failureShown && window)
        window->statusBar()->showMessage(tr("The game in progress cannot be saved for the next start."));
    failureShown = !ok;
    emit written(ok);
}
