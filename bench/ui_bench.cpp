// How long the window takes to show what the player asked for, measured on the
// real widgets: a move, a retraction, a value entry (slot call to return, the
// repaint included), a click, a hint shown, a new game at each level (from the engine's
// report of the finished game to the return of the command), and start-up
// (main to the first painted board, in a fresh process each time, with and
// without a kept game), and keeping the game in progress.
// Run it on the platform to measure: QT_QPA_PLATFORM=offscreen, or under
// scripts/with-display.sh for xcb.
#include <benchmark/benchmark.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMainWindow>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <vector>

#include "CloseOnSignals.h"
#include "HighDpi.h"
#include "HintController.h"
#include "KeptGame.h"
#include "MemoryWarmUp.h"
#include "StartUpWarmUp.h"
#include "ToolBarArrowStyle.h"
#include "SudokuWindow.h"
#include "Translations.h"

namespace {

double percentile(std::vector<double> samples, double p) {
    if (samples.empty()) return 0;
    std::sort(samples.begin(), samples.end());
    const size_t i = std::min(samples.size() - 1, static_cast<size_t>(p * (samples.size() - 1) + 0.5));
    return samples[i];
}

void report(benchmark::State& state, const std::vector<double>& millis) {
    state.counters["median_ms"] = percentile(millis, 0.5);
    state.counters["p99_ms"] = percentile(millis, 0.99);
    state.counters["reader"] = QAccessible::isActive();  // 1: a screen reader listens, and is told of each move
}

double msSince(const QElapsedTimer& timer) { return timer.nsecsElapsed() / 1e6; }

// Remembers when the engine last reported the cells.
class TimedWindow : public SudokuWindow {
public:
    QElapsedTimer lastReport;
    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override {
        lastReport.start();
        SudokuWindow::cellsChanged(cells);
    }
};

TimedWindow& window() {
    static TimedWindow* w = [] {
        auto* created = new TimedWindow;
        created->show();
        if (!QTest::qWaitForWindowExposed(created)) std::fprintf(stderr, "window not exposed\n");
        return created;
    }();
    QCoreApplication::processEvents();
    return *w;
}

int firstEmpty(SudokuWindow& w) {
    for (int i = 0; i < 81; ++i)
        if (!w.tileAt(i)->hasValue()) return i;
    return -1;
}

// Make Move, then Retract Move: each command timed on its own.
void BM_MakeMove(benchmark::State& state) {
    TimedWindow& w = window();
    std::vector<double> make, retract;
    for (auto _ : state) {
        QElapsedTimer t;
        t.start();
        w.makeMove();
        make.push_back(msSince(t));
        t.start();
        w.retractMove();
        retract.push_back(msSince(t));
    }
    report(state, make);
    state.counters["retract_median_ms"] = percentile(retract, 0.5);
    state.counters["retract_p99_ms"] = percentile(retract, 0.99);
}
BENCHMARK(BM_MakeMove)->Iterations(200)->Unit(benchmark::kMillisecond);

// The right value typed into the first empty cell, then taken back untimed.
void BM_ValueEntry(benchmark::State& state) {
    TimedWindow& w = window();
    std::vector<double> millis;
    for (auto _ : state) {
        const int i = firstEmpty(w);
        const int v = w.currentBoard()->solutionValue(i);
        QElapsedTimer t;
        t.start();
        w.tileValueEdited(i, v);
        millis.push_back(msSince(t));
        w.retractMove();
    }
    report(state, millis);
}
BENCHMARK(BM_ValueEntry)->Iterations(200)->Unit(benchmark::kMillisecond);

// A left click on an empty cell (the value caret comes) and one on a given
// (its value is highlighted): until the click is handled, and until the
// repaint that follows it is done.
void BM_Click(benchmark::State& state) {
    TimedWindow& w = window();
    int given = 0;
    while (!w.tileAt(given)->isGiven()) ++given;
    std::vector<double> handled, painted;
    for (auto _ : state) {
        for (int i : {firstEmpty(w), given}) {
            QElapsedTimer t;
            t.start();
            QTest::mouseClick(w.tileAt(i), Qt::LeftButton);
            handled.push_back(msSince(t));
            QCoreApplication::processEvents();
            painted.push_back(msSince(t));
        }
    }
    report(state, handled);
    state.counters["painted_median_ms"] = percentile(painted, 0.5);
    state.counters["painted_p99_ms"] = percentile(painted, 0.99);
}
BENCHMARK(BM_Click)->Iterations(100)->Unit(benchmark::kMillisecond);

// Game -> Hint, first press: the hint found, its tiles restyled and its words
// shown, until the command returns and until the repaint is done. Cleared
// untimed between presses.
void BM_HintShown(benchmark::State& state) {
    TimedWindow& w = window();
    QAction* hint = w.findChild<QAction*>("actionHint");
    HintController* hints = w.findChild<HintController*>("hintController");
    std::vector<double> handled, painted;
    for (auto _ : state) {
        QElapsedTimer t;
        t.start();
        hint->trigger();
        handled.push_back(msSince(t));
        QCoreApplication::processEvents();
        painted.push_back(msSince(t));
        hints->clear();
        QCoreApplication::processEvents();
    }
    report(state, handled);
    state.counters["painted_median_ms"] = percentile(painted, 0.5);
    state.counters["painted_p99_ms"] = percentile(painted, 0.99);
}
BENCHMARK(BM_HintShown)->Iterations(100)->Unit(benchmark::kMillisecond);

// A new game at each level on the window's board, with pencil marks hidden and
// shown: the time from the engine's report of the finished game until the board
// is shown and the call returns.
void BM_NewGameShown(benchmark::State& state) {
    TimedWindow& w = window();
    QAction* pencilMarks = w.findChild<QAction*>("actionViewPencilMarks");
    pencilMarks->setChecked(state.range(1) != 0);
    std::vector<double> millis;
    for (auto _ : state) {
        w.currentBoard()->generate(static_cast<int>(state.range(0)));
        millis.push_back(msSince(w.lastReport));
    }
    pencilMarks->setChecked(false);
    report(state, millis);
}
BENCHMARK(BM_NewGameShown)->ArgsProduct({{0, 1, 2, 3, 4}, {0, 1}})->ArgNames({"level", "pencil"})->Iterations(25)->Unit(benchmark::kMillisecond);

// Keeping the game in progress, from a window whose game has a history of
// range(0) positions (a Hard game played to its end has about 60): the time on
// the GUI thread (the board encoded and handed to the writer), wall clock and
// the thread's CPU time, and the time until the writer has it on disk.
void BM_KeepGame(benchmark::State& state) {
    TimedWindow& w = window();
    eng::Board& board = *w.currentBoard();
    board.generate(eng::lvlHard);
    while (board.historySize() < static_cast<size_t>(state.range(0)) && firstEmpty(w) != -1) board.makeMove();
    state.counters["history"] = static_cast<double>(board.historySize());
    QTemporaryDir dir;
    KeptGame kept(dir.filePath("game.sud"));
    kept.attach(&w, {});
    std::vector<double> gui, cpu, written;
    const auto cpuMs = [] {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return now.tv_sec * 1e3 + now.tv_nsec / 1e6;
    };
    for (auto _ : state) {
        QElapsedTimer t;
        t.start();
        const double cpuStart = cpuMs();
        kept.keepNow();
        cpu.push_back(cpuMs() - cpuStart);
        gui.push_back(msSince(t));
        kept.waitForWrites();
        written.push_back(msSince(t));
    }
    report(state, gui);
    state.counters["cpu_median_ms"] = percentile(cpu, 0.5);
    state.counters["cpu_p99_ms"] = percentile(cpu, 0.99);
    state.counters["written_median_ms"] = percentile(written, 0.5);
    state.counters["written_p99_ms"] = percentile(written, 0.99);
}
BENCHMARK(BM_KeepGame)->Arg(1)->Arg(100)->Iterations(100)->Unit(benchmark::kMillisecond);

// One fresh process, with a data folder of its own holding `kept` as the kept
// game (none when empty): it prints the milliseconds from its main to the first
// painted board (--startup-child), or to the first painted bare main window
// with one label (--bare-child), the toolkit's own floor, or to that window at
// the board's size (--bare-sized-child), whose first paint fills as many pixels
// as the board's.
double startUpMs(const char* role, const QByteArray& kept = QByteArray()) {
    QTemporaryDir data;
    if (!kept.isEmpty()) {
        QDir().mkpath(data.filePath("sudoku-vantu"));
        QFile file(data.filePath("sudoku-vantu/game-in-progress.sud"));
        if (!file.open(QIODevice::WriteOnly) || file.write(kept) != kept.size()) std::fprintf(stderr, "not kept\n");
    }
    QProcess child;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    child.setProcessEnvironment(env);
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);  // SUDOKU_BENCH_STEPS=1: the steps
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(role)});
    child.waitForFinished(60000);
    return QString::fromLatin1(child.readAllStandardOutput()).trimmed().toDouble();
}

// The board (arg 0), the bare window (arg 1) or the bare window at the board's size (arg 2).
void BM_StartUp(benchmark::State& state) {
    std::vector<double> millis;
    const char* const roles[] = {"--startup-child", "--bare-child", "--bare-sized-child"};
    for (auto _ : state) millis.push_back(startUpMs(roles[state.range(0)]));
    report(state, millis);
}
BENCHMARK(BM_StartUp)->DenseRange(0, 2)->ArgName("bare")->Iterations(20)->Unit(benchmark::kMillisecond);

// A game in progress as the program keeps it: Medium, 30 moves made.
QByteArray keptGameFile(bool pencilMarks) {
    eng::Board board(nullptr);
    board.generate(eng::lvlMedium);
    for (int i = 0; i < 30; ++i) board.makeMove();
    KeptGame::Game extras;
    extras.pencilMarksShown = pencilMarks;
    extras.boardRules = extras.chosenRules = {eng::ruleSingles};
    return KeptGame::encode(board, extras);
}

// Start-ups taken in turn, so that the machine's load reaches all alike: the
// board without a kept game (median_ms), with one (kept_median_ms), with one
// that shows pencil marks (marks_median_ms), and the bare window (bare_median_ms).
void BM_StartUpKept(benchmark::State& state) {
    const QByteArray kept = keptGameFile(false), marks = keptGameFile(true);
    std::vector<double> fresh, restored, shown, bare;
    for (auto _ : state) {
        fresh.push_back(startUpMs("--startup-child"));
        restored.push_back(startUpMs("--startup-child", kept));
        shown.push_back(startUpMs("--startup-child", marks));
        bare.push_back(startUpMs("--bare-child"));
    }
    report(state, fresh);
    for (auto [name, millis] : {std::pair{"kept", &restored}, {"marks", &shown}, {"bare", &bare}}) {
        state.counters[std::string(name) + "_median_ms"] = percentile(*millis, 0.5);
        state.counters[std::string(name) + "_p99_ms"] = percentile(*millis, 0.99);
    }
    state.counters["kept_ratio"] = percentile(restored, 0.5) / percentile(bare, 0.5);
}
BENCHMARK(BM_StartUpKept)->Iterations(25)->Unit(benchmark::kMillisecond);

class PaintWatch : public QObject {
public:
    bool painted = false;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted = true;
        return false;
    }
};

// Starts the way the program does, up to the shown window.
int startUpChild(int argc, char** argv) {
    QElapsedTimer t;
    t.start();
    const StartUpWarmUp warmUp;
    prepareApplication();
    QApplication app(argc, argv);
    ToolBarArrowStyle::install();
    const double appMs = msSince(t);
    const Translations translations;
    const double translationsMs = msSince(t);
    KeptGame keptGame;
    SudokuWindow w(nullptr, &keptGame);
    const CloseOnSignals closing(&w);
    const double windowMs = msSince(t);
    PaintWatch watch;
    w.tileAt(80)->installEventFilter(&watch);
    showAtStartUp(w);
    const double shownMs = msSince(t);
    while (!watch.painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%.3f\n", msSince(t));
    if (qEnvironmentVariableIsSet("SUDOKU_BENCH_STEPS"))
        std::fprintf(stderr, "application %.1f ms, translations %.1f ms, window built %.1f ms, shown %.1f ms, painted %.1f ms\n", appMs,
                     translationsMs, windowMs, shownMs, msSince(t));
    return 0;
}

// A bare main window with one label, set up as the program sets up its own.
int bareChild(int argc, char** argv, bool boardSized) {
    QElapsedTimer t;
    t.start();
    prepareApplication();
    QApplication app(argc, argv);
    const double appMs = msSince(t);
    QMainWindow w;
    auto* label = new QLabel(QStringLiteral("Sudoku Vantu"));
    w.setCentralWidget(label);
    if (boardSized) w.setFixedSize(609, 709);
    PaintWatch watch;
    label->installEventFilter(&watch);
    w.show();
    const double shownMs = msSince(t);
    while (!watch.painted) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    std::printf("%.3f\n", msSince(t));
    if (qEnvironmentVariableIsSet("SUDOKU_BENCH_STEPS"))
        std::fprintf(stderr, "bare application %.1f ms, shown %.1f ms, painted %.1f ms\n", appMs, shownMs,
                     msSince(t));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1 && std::strcmp(argv[1], "--startup-child") == 0) return startUpChild(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--bare-child") == 0) return bareChild(argc, argv, false);
    if (argc > 1 && std::strcmp(argv[1], "--bare-sized-child") == 0) return bareChild(argc, argv, true);
    prepareApplication();
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
