// The game as Xvfb+openbox or a headless weston shows it; texts fitting and sharp icons also at 120, 144, 192 dpi.
#include <QtWidgets>

#include "AboutDialog.h"
#include "HighDpi.h"
#include "MemoryWarmUp.h"
#include "ToolBarArrowStyle.h"
#include "Translations.h"
#include "WindowTestSupport.h"

namespace {

// What the X server shows of `area` of a window (all of it by default).
QImage screenOf(QWidget& w, QRect area = QRect(0, 0, -1, -1)) {
    return w.screen()->grabWindow(w.winId(), area.x(), area.y(), area.width(), area.height()).toImage().convertToFormat(
        QImage::Format_RGB32);
}

// Where the window's content lies in a screenshot (a grid of points over the board, then all but 1% of the pixels).
QPoint locate(const QImage& shot, SudokuWindow& w) {
    const QImage own = w.grab().toImage();
    const int width = own.width(), size = width * own.height();
    auto same = [&](QPoint at, QPoint p) { return (shot.pixel(at + p) & 0xffffff) == (own.pixel(p) & 0xffffff); };
    auto fits = [&](QPoint at) {
        for (int i = 0; i < 81; i += 4)
            for (QPoint d : {QPoint(3, 3), QPoint(30, 30), QPoint(20, 40)})
                if (!same(at, w.tileAt(i)->mapTo(&w, d))) return false;
        int differ = 0;
        for (int i = 0; i < size; ++i) differ += !same(at, {i % width, i / width});
        return differ < size / 100;
    };
    for (int y = 0; y + own.height() <= shot.height(); ++y)
        for (int x = 0; x + own.width() <= shot.width(); ++x)
            if (fits({x, y})) return {x, y};
    return QPoint(-1, -1);
}

// At each change of the state, wait for the screen to show the next step of `expected` ('.': unread; '?': never).
struct StepWatcher : QObject {
    std::function<QString()> state; std::function<char()> read;
    QString expected, seen, last;
    StepWatcher(QWidget* target, std::function<QString()> s, std::function<char()> r, QString steps)
        : state(std::move(s)), read(std::move(r)), expected(std::move(steps)), last(state()) {
        target->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent*) override {
        if (seen.size() == expected.size() || state() == last) return false;
        last = state();
        const char step = expected[seen.size()].toLatin1();
        QDeadlineTimer deadline(20000);  // a busy server may not have taken the last frame yet
        while (step != '.' && read() != step && !deadline.hasExpired()) {}
        seen += step == '.' || read() == step ? step : '?';
        return false;
    }
};

// The size a label's text needs, rich text laid out as the label lays it out; one line of plain text: its ink.
QSize textSize(QLabel* label) {
    const QFontMetrics fm = label->fontMetrics();
    const QString text = label->text();
    if (!Qt::mightBeRichText(text))
        return label->wordWrap() ? fm.boundingRect(label->contentsRect(), Qt::TextWordWrap, text).size()
                                 : QSize(fm.horizontalAdvance(text), fm.tightBoundingRect(text).height());
    QTextDocument doc;
    doc.setDefaultFont(label->font()), doc.setDocumentMargin(0), doc.setHtml(text);
    if (label->wordWrap()) doc.setTextWidth(label->contentsRect().width());
    return {int(std::ceil(doc.idealWidth())), label->wordWrap() ? int(std::ceil(doc.size().height())) : 0};
}

// No visible text of `top` cut (a button's: in the room its style leaves); a picture named with the scale.
void expectTextsFit(QWidget* top, const QString& name) {
    top->repaint();
    savePicture(screenOf(*top), QString("scale_%1_%2").arg(top->devicePixelRatioF(), 0, 'f', 2).arg(name));
    QStringList out;
    auto check = [&](QWidget* w, const QString& text, QSize needed, QSize room) {
        if (room.expandedTo(needed) != room)
            out << QString("%1: %2 (%3 wide)").arg(w->objectName(), text.left(60)).arg(needed.width());
    };
    for (QWidget* w : top->findChildren<QWidget*>()) {
        if (!w->isVisibleTo(top)) continue;
        if (auto* l = qobject_cast<QLabel*>(w); l && !l->text().isEmpty())
            check(l, l->text(), textSize(l), l->contentsRect().size());
        else if (auto* g = qobject_cast<QGroupBox*>(w))
            check(g, g->title(), {g->fontMetrics().horizontalAdvance(g->title()), 0}, g->contentsRect().size());
        else if (auto* list = qobject_cast<QListWidget*>(w))
            check(list, "items", {list->sizeHintForColumn(0), 0}, list->viewport()->size());
        else if (auto* b = qobject_cast<QAbstractButton*>(w); b && !b->text().isEmpty() && b->icon().isNull()) {
            QStyleOptionButton opt;
            opt.initFrom(b), opt.text = b->text();
            const auto room = qobject_cast<QCheckBox*>(b)      ? QStyle::SE_CheckBoxContents
                              : qobject_cast<QRadioButton*>(b) ? QStyle::SE_RadioButtonContents
                                                               : QStyle::SE_PushButtonContents;
            const QString text = QString(b->text()).remove(QRegularExpression("&(?!&)"));
            check(b, text, {b->fontMetrics().horizontalAdvance(text), b->fontMetrics().height()},
                  b->style()->subElementRect(room, &opt, b).size());
        }
    }
    QVERIFY2(out.isEmpty(), qPrintable(out.join('\n')));
}

}  // namespace

class DisplayTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    bool wayland = false;
    QTemporaryDir shots;
    QPoint origin;  // Wayland: where the window's content starts in a screenshot

    // A screenshot of the whole Wayland output, into a folder of its own (the tool names its file by the second).
    QImage screenshot() {
        const QString folder = shots.filePath(QString::number(QDir(shots.path()).count()));
        QDir().mkpath(folder);
        if (std::system(qPrintable("cd '" + folder + "' && weston-screenshooter >/dev/null 2>&1"))) return QImage();
        return QImage(folder + "/" + QDir(folder).entryList({"*.png"}).value(0));
    }
    // What the display shows of `area` of a widget of the window.
    QImage shown(QWidget* w, QRect area) {
        const QRect at(w->mapTo(window, area.topLeft()), area.size());
        return wayland ? screenshot().copy(at.translated(origin)) : screenOf(*window, at);
    }
    QImage windowShown() { return shown(window, window->rect()); }

    // The highlight is `expected` (-1: any); a tile but the caret is pink on screen just when it holds the value.
    void checkHighlight(const char* when, int expected = -1) {
        QVERIFY2(expected < 0 || window->highlight() == expected, when);
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 10000);
        auto wrong = [this, v = window->highlight()] {
            const QImage shot = windowShown();
            int n = 0;
            for (int i = 0; i < 81; ++i)
                n += i != window->caret() &&
                     (background(shot, *window, i) == 0xffaaff) != (v && window->tileAt(i)->value() == v);
            return n;
        };
        QTRY_VERIFY2_WITH_TIMEOUT(wrong() == 0, when, 10000);
    }
    void click(int tile, Qt::MouseButton button = Qt::LeftButton) { QTest::mouseClick(window->tileAt(tile), button); }

private slots:
    void initTestCase() {
        QVERIFY((wayland = QGuiApplication::platformName() == "wayland") || QGuiApplication::platformName() == "xcb");
        window = shownWindow();
        if (wayland) QTRY_VERIFY_WITH_TIMEOUT((origin = locate(screenshot(), *window)) != QPoint(-1, -1), 20000);
    }
    void cleanupTestCase() { delete window; }

    // On the way to the first frame no picture was read through the image-format plugins: none is loaded. The tool
    // bar's arrow for buttons that do not fit, read only once drawn, is still the style's own.
    void noImagePluginForTheFirstFrame() {
        QFile maps("/proc/self/maps");
        QVERIFY(maps.open(QIODevice::ReadOnly));
        QVERIFY(!maps.readAll().contains("/imageformats/"));
        const auto* style = qobject_cast<const QProxyStyle*>(QApplication::style());
        QVERIFY(style);
        for (const auto arrow : {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton})
            QCOMPARE(style->standardIcon(arrow).pixmap(16, 16).toImage(),
                     style->baseStyle()->standardIcon(arrow).pixmap(16, 16).toImage());
    }

    // The very first game's givens are grey on screen.
    void greyGivensAtStartUp() {
        QTRY_COMPARE_WITH_TIMEOUT(background(windowShown(), *window, firstFilled(*window)), kGiven, 10000);
        QCOMPARE(background(windowShown(), *window, firstEmpty(*window)), kWhite);
        savePicture(windowShown(), QGuiApplication::platformName() + "_start");
    }

    // The first frame's tile pictures (as shown on screen, which at 192 dpi cuts the board's bottom) and the forms
    // built after look the same; scaled, where a picture would not be copied pixel for pixel, the forms come at once.
    void firstFrameMatchesBuiltTiles() {
        SudokuWindow fresh;
        showAtStartUp(fresh);
        const qreal ratio = fresh.devicePixelRatioF();
        QVERIFY(ratio != 1 || !fresh.tileAt(0)->hasForm());
        if (fresh.tileAt(0)->hasForm()) return;
        auto* board = child<QWidget>(fresh, "boardWidget");
        const QImage first = board->grab().toImage().convertToFormat(QImage::Format_RGB32);
        QVERIFY(QTest::qWaitForWindowExposed(&fresh, 30000));
        QTRY_VERIFY_WITH_TIMEOUT(fresh.tileAt(0)->hasForm() && fresh.tileAt(80)->hasForm(), 10000);
        QCOMPARE(board->grab().toImage().convertToFormat(QImage::Format_RGB32), first);
        const QPoint at = board->mapToGlobal(QPoint(0, 0));
        const QRect area = (QRect(at, board->size()) & fresh.screen()->geometry()).translated(-at);
        QTRY_COMPARE_WITH_TIMEOUT(screenOf(fresh, QRect(board->mapTo(&fresh, area.topLeft()), area.size())),
                                  first.copy(QRect(area.topLeft() * ratio, area.size() * ratio)), 10000);
    }

    // A refused value blinks visible, hidden, visible, hidden on screen.
    void refusedValueBlinks() {
        const int a = firstEmpty(*window);
        click(a);
        QTRY_VERIFY_WITH_TIMEOUT(window->caret() == a, 10000);
        auto* label = child<QLabel>(*window->tileAt(a), "lblValue");
        StepWatcher watcher(label, [label] { return QString(label->isHidden() ? "h" : "v"); },
                            [&] { return digitShown(shown(window->tileAt(a), QRect(8, 8, 44, 44))); }, ".VhVh");
        QTest::keyClick(window->tileAt(a), Qt::Key_0 + window->currentBoard()->solutionValue(a) % 9 + 1);
        QCOMPARE(watcher.seen, QString(".VhVh"));
        QVERIFY(!window->tileAt(a)->hasValue());
    }

    // A refused candidate flashes red, black, red, black on screen.
    void refusedCandidateFlashes() {
        trigger(*window, "actionViewPencilMarks");
        const int a = firstEmpty(*window, window->caret() == firstEmpty(*window) ? window->caret() : -1);
        const int v = window->currentBoard()->solutionValue(a);
        click(a, Qt::RightButton);  // not on the caret, which a click would remove
        QTRY_VERIFY_WITH_TIMEOUT(window->caret() == a, 10000);
        QLabel* label = window->tileAt(a)->findChild<QLabel*>(QString("lbl%1").arg(v));
        auto step = [&] {
            const QImage image = shown(label, label->rect().adjusted(2, 2, -2, -2));
            const int r = countPixels(image, red), k = countPixels(image, [](QColor p) { return p.value() < 60; });
            return r > k ? 'R' : k > image.width() * image.height() / 2 ? 'B' : '-';
        };
        StepWatcher watcher(label, [label] { return label->styleSheet(); }, step, ".RBRB");
        QTest::keyClick(window->tileAt(a), Qt::Key_0 + v);
        QCOMPARE(watcher.seen, QString(".RBRB"));
        trigger(*window, "actionViewPencilMarks");
        click(a, Qt::RightButton);
    }

    // No tile stays pink without the highlighted value: after clicks, a new game, moves, retractions, a value entered.
    void noStaleHighlight() {
        const int given = firstFilled(*window), v = window->tileAt(given)->value();
        click(given);
        checkHighlight("click", v);
        click(given);
        checkHighlight("a second click ends it", 0);
        click(given);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        checkHighlight("new game");
        if (window->highlight() != window->tileAt(firstFilled(*window))->value()) click(firstFilled(*window));
        QVERIFY(window->highlight() != 0);
        for (int i = 0; i < 4; ++i) window->makeMove();
        checkHighlight("make move");
        for (int i = 0; i < 4; ++i) window->retractMove();
        checkHighlight("retract");
        const int empty = firstEmpty(*window), right = window->currentBoard()->solutionValue(empty);
        window->tileValueEdited(empty, right);
        checkHighlight("the highlight moves to the value entered", right);
    }

    // In every language nothing of the window at every level, its menus, toolbar, status bar and dialogs is cut.
    void textsFit_data() { addLanguageRows(), QTest::newRow("en") << "en"; }
    void textsFit() {
        QFETCH(QString, language);
        const Translations translations{QLocale(language)};
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") != "Cancel", language != "en");  // Qt's too
        std::unique_ptr<SudokuWindow> w(shownWindow());
        MessageBoxAnswerer answerer;
        for (QAction* level : child<QMenu>(*w, "menu_New_Game")->actions())
            if (!level->isSeparator()) level->trigger(), expectTextsFit(w.get(), language + "_" + level->objectName());
        auto* bar = child<QMenuBar>(*w, "menuBar");
        for (QAction* menu : bar->actions()) QVERIFY(bar->rect().contains(bar->actionGeometry(menu)));
        for (QMenu* menu : w->findChildren<QMenu*>()) {
            menu->popup(w->mapToGlobal(QPoint(20, 40)));
            QVERIFY(QTest::qWaitForWindowExposed(menu, 30000));
            QVERIFY2(menu->width() >= menu->sizeHint().width(), qPrintable(menu->objectName()));
            savePicture(screenOf(*menu), language + "_" + menu->objectName());
            menu->hide();
        }
        auto* tools = child<QToolBar>(*w, "mainToolBar");
        for (QAction* a : tools->actions())
            QVERIFY2(a->isSeparator() || tools->widgetForAction(a)->isVisible(), qPrintable(a->objectName()));
        const QStatusBar* status = w->statusBar();
        for (QAction* a : w->findChildren<QAction*>())
            QVERIFY2(status->fontMetrics().horizontalAdvance(a->statusTip()) < status->contentsRect().width(),
                     qPrintable(a->statusTip()));
        AboutDialog about("1.0.4", w.get());
        for (QDialog* d : std::initializer_list<QDialog*>{&w->printingOptions(), &w->pencilMarksDialog(), &about}) {
            d->show();
            QVERIFY(QTest::qWaitForWindowExposed(d, 30000));
            expectTextsFit(d, language + "_" + d->objectName());
        }
    }

    // Every tool bar button has its picture; when scaled, it and the about picture have one drawn at twice the size.
    void iconsSharp() {
        const qreal ratio = window->devicePixelRatioF();
        for (QAction* action : window->findChild<QToolBar*>()->actions()) {
            const QList<QSize> sizes = action->icon().availableSizes();
            QVERIFY2(action->isSeparator() || (sizes.contains({48, 48}) && (ratio <= 1 || sizes.contains({96, 96}))),
                     qPrintable(action->objectName()));
        }
        AboutDialog about("1.0.4", window);
        auto* picture = child<QLabel>(about, "label");
        QVERIFY(ratio <= 1 || picture->pixmap(Qt::ReturnByValue).width() >= picture->width() * ratio - 1);
    }

    // Asked to maximise or resize, the window keeps its size on screen. Last: on Wayland it ends Qt 5's connection.
    void fixedSize() {
        const QSize size = window->size();
        window->showMaximized();
        if (wayland) {
            QCOMPARE(window->windowHandle()->minimumSize(), window->windowHandle()->maximumSize());
            QTRY_VERIFY_WITH_TIMEOUT(locate(screenshot(), *window) != QPoint(-1, -1), 20000);
        } else {  // a move that the manager carries out shows it has handled the resizing asked before it
            const QPoint before = window->pos();
            const QString id = QString::number(window->winId());
            QProcess::execute("xdotool", {"windowsize", id, "900", "900", "windowmove", id,
                                          QString::number(before.x() + 17), QString::number(before.y() + 11)});
            QTRY_VERIFY_WITH_TIMEOUT(window->pos() != before, 10000);
            QCOMPARE(screenOf(*window).size(), size);  // the size the X server has
        }
        QCOMPARE(window->size(), size);
        window->showNormal();
    }
};

int main(int argc, char** argv) {
    prepareApplication();
    QApplication app(argc, argv);
    ToolBarArrowStyle::install();
    DisplayTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_display.moc"
