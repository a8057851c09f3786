// The game on a real X server (run under scripts/with-display.sh): what the
// player sees is read back from the server, not from the widgets.
#include <xcb/xcb.h>

#include <QAction>
#include <QLabel>
#include <QProcess>
#include <QScreen>
#include <QtTest>
#include <atomic>
#include <thread>

#include "SudokuWindow.h"
#include "WindowTestSupport.h"
#include "WindowTestSupport.h"

namespace {

const QRgb kGiven = 0xf5f5f5, kWhite = 0xffffff, kPink = 0xffaaff;

QImage screenOf(SudokuWindow& w) { return w.screen()->grabWindow(w.winId()).toImage(); }

// The background of a tile as the server shows it, read inside its border.
QRgb background(const QImage& shot, SudokuWindow& w, int index) {
    const QPoint p = w.tileAt(index)->mapTo(&w, QPoint(3, 3));
    return shot.pixel(p) & 0xffffff;
}

QString run(const QString& program, const QStringList& args) {
    QProcess p;
    p.start(program, args);
    p.waitForFinished(30000);
    return QString::fromLatin1(p.readAllStandardOutput());
}

// Samples a square of the screen from a thread of its own, on its own
// connection, while the GUI thread is held by an animation. Each sample is
// reduced to one letter by `classify`; equal neighbours are merged.
class ScreenSampler {
public:
    // area: relative to the top-level window of the widget given.
    ScreenSampler(QWidget* widget, QRect area, std::function<char(const QImage&)> classify)
        : window(widget->window()->winId()),
          area(area.translated(widget->mapTo(widget->window(), QPoint(0, 0)))),
          classify(std::move(classify)),
          worker([this] { loop(); }) {}
    QString stop() {
        done = true;
        worker.join();
        return runs;
    }

private:
    WId window;
    QRect area;
    std::function<char(const QImage&)> classify;
    std::atomic<bool> done{false};
    QString runs;
    std::thread worker;

    void loop() {
        xcb_connection_t* c = xcb_connect(nullptr, nullptr);
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(c)).data->root;
        // Where the window is now, as the server knows it.
        auto* at = xcb_translate_coordinates_reply(c, xcb_translate_coordinates(c, window, root, 0, 0), nullptr);
        if (at) area.translate(at->dst_x, at->dst_y);
        free(at);
        while (!done) {
            auto* reply = xcb_get_image_reply(
                c, xcb_get_image(c, XCB_IMAGE_FORMAT_Z_PIXMAP, root, area.x(), area.y(), area.width(), area.height(), ~0u),
                nullptr);
            if (reply) {
                const QImage image(xcb_get_image_data(reply), area.width(), area.height(), QImage::Format_RGB32);
                const QChar letter = QLatin1Char(classify(image));
                if (runs.isEmpty() || runs.back() != letter) runs += letter;
            }
            free(reply);
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        xcb_disconnect(c);
    }
};

template <typename Test>
int countColour(const QImage& image, Test test) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) n += test(QColor(image.pixel(x, y)));
    return n;
}

}  // namespace

class DisplayTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;

    // Every tile pink exactly when it holds the highlighted value, on screen too.
    void checkHighlight(const char* when) {
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 10000);
        for (int i = 0; i < 81; ++i) {
            const bool lit = window->highlight() != 0 && window->tileAt(i)->value() == window->highlight();
            QVERIFY2(window->tileAt(i)->isHighlighted() == lit, when);
        }
        auto wrongOnScreen = [this] {
            const QImage shot = screenOf(*window);
            int wrong = 0;
            for (int i = 0; i < 81; ++i)
                if (window->caret() != i)
                    wrong += (background(shot, *window, i) == kPink) != window->tileAt(i)->isHighlighted();
            return wrong;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(wrongOnScreen() == 0, when, 10000);
    }

private slots:
    void initTestCase() {
        QCOMPARE(QGuiApplication::platformName(), QString("xcb"));
        window = new SudokuWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void cleanupTestCase() { delete window; }

    // The very first game's givens are grey on screen.
    void greyGivensAtStartUp() {
        int given = 0, empty = 0;
        while (!window->tileAt(given)->hasValue()) ++given;
        while (window->tileAt(empty)->hasValue()) ++empty;
        savePicture(screenOf(*window), "display_start");
        QTRY_COMPARE_WITH_TIMEOUT(background(screenOf(*window), *window, given), kGiven, 10000);
        QCOMPARE(background(screenOf(*window), *window, empty), kWhite);
    }

    // Neither the window manager's maximise nor a resize request changes it.
    void fixedSize() {
        QCOMPARE(window->size(), QSize(609, 709));
        const QString id = QString::number(window->winId());
        const QString before = run("xdotool", {"getwindowgeometry", id});
        window->showMaximized();
        run("xdotool", {"windowsize", id, "900", "900"});
        // A move that the manager carries out shows it has handled the requests before it.
        const QPoint target = window->pos() + QPoint(17, 11);
        run("xdotool", {"windowmove", id, QString::number(target.x()), QString::number(target.y())});
        QString after;
        QTRY_VERIFY_WITH_TIMEOUT((after = run("xdotool", {"getwindowgeometry", id})) != before, 10000);
        QVERIFY2(after.contains("609x709"), qPrintable(after));
        QCOMPARE(window->size(), QSize(609, 709));
        window->showNormal();
    }

    // A refused value blinks visible, hidden, visible, hidden on screen, and a
    // burst of keys typed by the player meanwhile all reaches the engine.
    void blinkAndTypingDuringIt() {
        eng::Board* board = window->currentBoard();
        const int a = firstEmpty(*window), b = firstEmpty(*window, a), c = firstEmpty(*window, b);
        QTest::mouseClick(window->tileAt(a), Qt::LeftButton);
        QCOMPARE(window->caret(), a);
        window->activateWindow();
        QTRY_VERIFY_WITH_TIMEOUT(QApplication::activeWindow() == window, 10000);
        const int wrong = board->solutionValue(a) % 9 + 1;
        QStringList keys{QString::number(board->solutionValue(a)), "Right", QString::number(board->solutionValue(b)),
                         "Right", QString::number(board->solutionValue(c))};
        // Red pixels inside the tile's border: the struck-through digit is shown.
        ScreenSampler sampler(window->tileAt(a), QRect(8, 8, 44, 44), [](const QImage& image) {
            return countColour(image, [](QColor p) { return p.red() > 200 && p.green() < 80 && p.blue() < 80; }) > 20
                       ? 'V'
                       : 'h';
        });
        QTimer::singleShot(0, window, [&] { QProcess::startDetached("xdotool", QStringList{"key", "--delay", "40"} + keys); });
        QTest::keyClick(window->tileAt(a), Qt::Key_0 + wrong);
        const QString runs = sampler.stop();
        QTRY_COMPARE_WITH_TIMEOUT(board->cell(c)->value(), board->solutionValue(c), 15000);
        QVERIFY2(runs.contains("VhVh"), qPrintable(runs));
        QCOMPARE(board->cell(a)->value(), board->solutionValue(a));
        QCOMPARE(board->cell(b)->value(), board->solutionValue(b));
        savePicture(screenOf(*window), "display_after_burst");
    }

    // A refused candidate flashes red, black, red, black on screen.
    void flashSteps() {
        eng::Board* board = window->currentBoard();
        trigger(*window, "actionViewPencilMarks");
        const int a = firstEmpty(*window);
        QTest::mouseClick(window->tileAt(a), Qt::RightButton);
        QCOMPARE(window->caret(), a);
        const int v = board->solutionValue(a);
        QLabel* label = window->tileAt(a)->findChild<QLabel*>(QString("lbl%1").arg(v));
        ScreenSampler sampler(label, label->rect(), [](const QImage& image) {
            const int red = countColour(image, [](QColor p) { return p.red() > 200 && p.green() < 80 && p.blue() < 80; });
            const int black = countColour(image, [](QColor p) { return p.value() < 60; });
            return red > black ? 'R' : black > image.width() * image.height() / 2 ? 'B' : '-';
        });
        QTest::keyClick(window->tileAt(a), Qt::Key_0 + v);
        const QString runs = sampler.stop();
        QVERIFY2(runs.contains("RBRB"), qPrintable(runs));
        trigger(*window, "actionViewPencilMarks");
        QTest::mouseClick(window->tileAt(a), Qt::RightButton);
    }

    // No tile stays pink without the highlighted value: across a new game,
    // retract and make move, and the click sequence that used to leave one.
    void noStaleHighlight() {
        int filled = 0;
        while (!window->tileAt(filled)->hasValue()) ++filled;
        const int v = window->tileAt(filled)->value();
        QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QCOMPARE(window->highlight(), v);
        QList<int> held;
        for (int i = 0; i < 81; ++i)
            if (window->tileAt(i)->value() == v) held << i;
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        checkHighlight("new game");
        int nowEmpty = -1;
        for (int i : held)
            if (!window->tileAt(i)->hasValue()) nowEmpty = i;
        if (nowEmpty >= 0) {
            QTest::mouseClick(window->tileAt(nowEmpty), Qt::LeftButton);
            QTest::mouseClick(window->tileAt(firstEmpty(*window, nowEmpty) >= 0 ? firstEmpty(*window, nowEmpty) : firstEmpty(*window)),
                              Qt::LeftButton);
            checkHighlight("click after new game");
        }
        filled = 0;
        while (!window->tileAt(filled)->hasValue()) ++filled;
        if (window->highlight() != window->tileAt(filled)->value())
            QTest::mouseClick(window->tileAt(filled), Qt::LeftButton);
        QCOMPARE(window->highlight(), window->tileAt(filled)->value());
        for (int i = 0; i < 4; ++i) window->makeMove();
        checkHighlight("make move");
        savePicture(screenOf(*window), "display_highlight");
        for (int i = 0; i < 4; ++i) window->retractMove();
        checkHighlight("retract");
    }
};

QTEST_MAIN(DisplayTest)
#include "test_display.moc"
