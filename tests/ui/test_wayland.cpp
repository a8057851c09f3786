// The game as a Wayland client of a headless weston (run under scripts/with-weston.sh): what the player sees is
// read from the compositor's screenshots (weston-screenshooter), not from the widgets.
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QDeadlineTimer>
#include <cstdlib>
#include <functional>

#include "HighDpi.h"
#include "WindowTestSupport.h"

namespace {

// One screenshot of the whole output, taken into a folder of its own (the tool names its file by the second).
QImage screenshot(const QString& folder) {
    QDir().mkpath(folder);
    const QString command = "cd '" + folder + "' && weston-screenshooter >/dev/null 2>&1";
    if (std::system(command.toLocal8Bit().constData()) != 0) return QImage();
    const QStringList files = QDir(folder).entryList({"*.png"});
    return files.isEmpty() ? QImage() : QImage(folder + "/" + files.first());
}

// Where the window's content lies in a screenshot: the offset at which the screenshot shows the window's own
// picture, compared on a grid of points over the board.
QPoint locate(const QImage& shot, SudokuWindow& w) {
    const QImage own = w.grab().toImage();
    QList<QPoint> points;
    for (int i = 0; i < 81; i += 4) {
        const QPoint tile = w.tileAt(i)->mapTo(&w, QPoint(0, 0));
        for (QPoint d : {QPoint(3, 3), QPoint(30, 30), QPoint(20, 40)}) points << tile + d;
    }
    for (int y = 0; y + own.height() <= shot.height(); ++y)
        for (int x = 0; x + own.width() <= shot.width(); ++x) {
            int same = 0;
            for (QPoint p : points) same += (shot.pixel(x + p.x(), y + p.y()) & 0xffffff) == (own.pixel(p) & 0xffffff);
            if (same == points.size()) return QPoint(x, y);
        }
    return QPoint(-1, -1);
}

// Calls back with the type of every event that reaches an object.
struct EventWatcher : QObject {
    std::function<void(QEvent::Type)> seen;
    EventWatcher(QObject* target, std::function<void(QEvent::Type)> f) : seen(std::move(f)) {
        target->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* e) override {
        seen(e->type());
        return false;
    }
};

}  // namespace

class WaylandTest : public QObject {
    Q_OBJECT
    SudokuWindow* window = nullptr;
    QTemporaryDir shots;
    int taken = 0;
    QPoint origin;

    QImage shoot() { return screenshot(shots.path() + "/" + QString::number(taken++)); }

private slots:
    void initTestCase() {
        QCOMPARE(QGuiApplication::platformName(), QString("wayland"));
        window = shownWindow();
    }
    void cleanupTestCase() { delete window; }

    // The board is on screen with its givens grey.
    void greyGivens() {
        QImage shot;
        QTRY_VERIFY_WITH_TIMEOUT((origin = locate(shot = shoot(), *window)) != QPoint(-1, -1), 20000);
        savePicture(shot, "wayland_start");
        QCOMPARE(background(shot, *window, firstFilled(*window), origin), kGiven);
        QCOMPARE(background(shot, *window, firstEmpty(*window), origin), kWhite);
    }

    // A refused value blinks visible, hidden, visible, hidden on screen. The animation paints each step and then
    // holds the GUI thread for 200 ms; when it toggles the digit, the screen must still show the step it painted.
    void refusedValueBlinks() {
        eng::Board* board = window->currentBoard();
        const int a = firstEmpty(*window);
        QTest::mouseClick(window->tileAt(a), Qt::LeftButton);
        QTRY_VERIFY_WITH_TIMEOUT(window->caret() == a, 10000);
        const QRect area(origin + window->tileAt(a)->mapTo(window, QPoint(8, 8)), QSize(44, 44));
        QString seen;
        EventWatcher watcher(child<QLabel>(*window->tileAt(a), "lblValue"), [&](QEvent::Type type) {
            if (type != QEvent::Hide && (type != QEvent::Show || seen.isEmpty())) return;  // from the first hide
            if (seen.size() == 4) return;
            const char expected = seen.size() % 2 ? 'h' : 'V';
            QDeadlineTimer deadline(20000);  // the compositor may not have taken the last frame yet on a busy machine
            while (digitShown(shoot().copy(area)) != expected)
                if (deadline.hasExpired()) return void(seen += '?');
            seen += expected;
        });
        QTest::keyClick(window->tileAt(a), Qt::Key_0 + board->solutionValue(a) % 9 + 1);
        QCOMPARE(seen, QString("VhVh"));
        QCOMPARE(board->cell(a)->value(), 0);
    }

    // Asked to maximise, the window keeps its size, and the compositor shows it so.
    void fixedSize() {
        QCOMPARE(window->size(), QSize(609, 709));
        QCOMPARE(window->windowHandle()->minimumSize(), window->windowHandle()->maximumSize());
        window->showMaximized();
        QImage shot;
        QTRY_VERIFY_WITH_TIMEOUT(locate(shot = shoot(), *window) != QPoint(-1, -1), 20000);
        savePicture(shot, "wayland_maximise_asked");
        QCOMPARE(window->size(), QSize(609, 709));
        window->showNormal();
    }
};

int main(int argc, char** argv) {
    prepareApplication();
    QApplication app(argc, argv);
    WaylandTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_wayland.moc"
