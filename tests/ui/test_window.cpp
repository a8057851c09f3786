// The main window: start-up, game commands, caret and highlight, view options, open and save, printing (page layouts,
// the games printed, the print command and its preview), and closing it in the middle of things.
#include <sys/mount.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QScopeGuard>
#include <QSoundEffect>
#include <QSpinBox>
#include <QTemporaryDir>
#include <cstdlib>
#include <set>
#include <vector>

#include "PrintLayout.h"
#include "WindowTestSupport.h"

using Rules = std::list<eng::Rules>;

namespace {

constexpr double kPxPerMm = 30 / 25.4;  // pages are rendered at 30 dpi to look for ink

QVector<QImage> renderPages(const QString& pdf) {
    QVector<QImage> pages;
    QProcess::execute("pdftoppm", {"-r", "30", "-png", pdf, pdf});
    for (int k = 1; QFile::exists(QString("%1-%2.png").arg(pdf).arg(k)); ++k)
        pages << QImage(QString("%1-%2.png").arg(pdf).arg(k)).convertToFormat(QImage::Format_RGB32);
    return pages;
}

// Every dark pixel lies inside one of the boards (mm), and each board has its frame down its left side.
void expectInkOnlyIn(const QImage& page, const QVector<QRectF>& boards) {
    int stray = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            const QPointF mm((x + 0.5) / kPxPerMm, (y + 0.5) / kPxPerMm);
            stray += qGray(page.pixel(x, y)) < 200 && std::none_of(boards.begin(), boards.end(), [&](QRectF r) {
                         return r.adjusted(-1.5, -1.5, 1.5, 1.5).contains(mm);
                     });
        }
    QCOMPARE(stray, 0);
    for (const QRectF& r : boards) {
        int rowsWithInk = 0;
        for (int y = int(r.top() * kPxPerMm); y <= int(r.bottom() * kPxPerMm); ++y)
            for (int x = int(r.left() * kPxPerMm); x <= int((r.left() + r.width() / 10) * kPxPerMm); ++x)
                if (qGray(page.pixel(x, y)) < 200) {
                    ++rowsWithInk;
                    break;
                }
        QVERIFY(rowsWithInk > r.height() * kPxPerMm * 0.8);
    }
}

}  // namespace

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
    static QByteArray contents(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    PrintingInfo& choose(const char* radio, int repeat, int level, bool pdf = false, bool preview = false) {
        PrintingInfo& info = window->printingOptions();
        child<QRadioButton>(info, radio)->setChecked(true);
        child<QSpinBox>(info, "repeatCount")->setValue(repeat);
        child<QComboBox>(info, "cmbGamesLevel")->setCurrentIndex(level);
        child<QCheckBox>(info, "chkExportToPdf")->setChecked(pdf);
        child<QCheckBox>(info, "chkShowPrintPreview")->setChecked(preview);
        return info;
    }
    QString printPdf(const QString& name, bool landscape = false, bool high = false) {
        QPrinter printer(high ? QPrinter::HighResolution : QPrinter::ScreenResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(dir.filePath(name));
        SudokuWindow::preparePrinter(printer);
        printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
        window->doPainting(&printer);
        return printer.outputFileName();
    }
    void acceptOptionsSoon(QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok) {
        QTimer::singleShot(50, window, [this, button] {
            child<QDialogButtonBox>(window->printingOptions(), "buttonBox")->button(button)->click();
        });
    }

private slots:
    void init() { window = shownWindow(); }
    // A closed window asks the application to quit, which would end every later event loop; one run clears that.
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
        // Once the first frame is painted the tiles get their forms and the refusal sound is loaded, before any
        // refusal needs it.
        QTRY_VERIFY_WITH_TIMEOUT(window->tileAt(0)->hasForm() && window->tileAt(80)->hasForm(), 10000);
        QTRY_VERIFY_WITH_TIMEOUT(window->findChild<QSoundEffect*>(), 10000);
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

        // A double click on a rule applies it alone and moves nothing: removed candidates show white on red.
        const size_t before = window->currentBoard()->historySize();
        const QPoint at = src->visualItemRect(src->item(11)).center();  // 12. Hidden Singles
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(window->currentBoard()->historySize() > before);
        QCOMPARE(window->currentBoard()->pencilMarksRulesList(), Rules{eng::ruleSingles});
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(),
                            [](QLabel* l) { return l->styleSheet() == Tile::stylePotentialRemoved; }));
        savePicture(*window, "window_rules_applied");
        QCOMPARE(src->count(), 15);
        expectClean(true);

        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        click("btnToDst");
        expectClean(false);
        // Hidden Singles to the top, the list keeping the focus; then back down one.
        dest->clearSelection();
        dest->setCurrentRow(2);
        child(dialog, "btnToDst")->setFocus();
        for (int k = 0; k < 2; ++k) click("btnUp");
        QCOMPARE(dialog.selectedRules(), (Rules{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles}));
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        apply();
        expectClean(true);
        click("btnDown");
        QCOMPARE(dialog.selectedRules(), (Rules{eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}));
        apply();
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
        QFile junk(path);  // saving over an existing file replaces all of it
        QVERIFY(junk.open(QIODevice::WriteOnly) && junk.write(QByteArray(200000, 'x')));
        junk.close();
        saveTo(path);
        QVERIFY(QFileInfo(path).size() > 1836 && QFileInfo(path).size() < 200000);

        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        fileCommand("actionOpenGame", path);
        QCOMPARE(answerer.texts.size(), 1);  // only the new-game question
        QCOMPARE(shownValues(*window), shown);
        saveTo(dir.filePath("again.sud"));  // all of the game came back, retracted moves and candidates too
        QCOMPARE(contents(dir.filePath("again.sud")), contents(path));
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
        const QByteArray mnt = QFile::encodeName(dir.path());
        if (mount("tmpfs", mnt.constData(), "tmpfs", 0, "size=64k") != 0) QSKIP("cannot mount a tmpfs (needs root)");
        const auto unmount = qScopeGuard([&mnt] { umount2(mnt.constData(), MNT_DETACH); });
        const QString path = dir.filePath("game.sud");
        MessageBoxAnswerer answerer;
        saveTo(path);
        const QByteArray first = contents(path);
        QVERIFY(first.size() > 1836);
        QFile fill(dir.filePath("fill"));
        QVERIFY(fill.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        while (fill.write(QByteArray(4096, 'x')) == 4096) continue;
        while (fill.write("x", 1) == 1) continue;
        trigger(*window, "actionMakeMove");  // a longer game to save
        saveTo(path);
        QCOMPARE(answerer.texts, QStringList{"Failed to save game"});
        QCOMPARE(contents(path), first);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files), (QStringList{"fill", "game.sud"}));
    }

    // Input while a refused value blinks or the completed board is celebrated: keys wait and then count; clicks and
    // commands are ignored, and closing ends it with the board as the entry left it and no message box waiting.
    void inputDuringAnimation_data() {
        QTest::addColumn<bool>("completing");
        QTest::addColumn<QString>("during");  // keys (Space, Down, Escape, Right, Return, Left); C: commands, close
        QTest::addColumn<int>("caret");       // where the caret ends: -1 none, 0 the cell typed in, 1 the next empty one
        QTest::addColumn<int>("mode");
        QTest::newRow("refusal, keys") << false << "SDE" << -1 << 0;
        QTest::newRow("refusal, space") << false << "S" << 0 << 2;
        QTest::newRow("refusal, right") << false << ">" << 1 << 1;
        QTest::newRow("celebration, keys") << true << "DSREDL" << -1 << 0;
        QTest::newRow("refusal, closed") << false << "C" << -1 << 0;
        QTest::newRow("celebration, closed") << true << "C" << -1 << 0;
    }
    void inputDuringAnimation() {
        QFETCH(bool, completing);
        QFETCH(QString, during);
        QFETCH(int, caret);
        QFETCH(int, mode);
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
        MessageBoxAnswerer answerer;
        std::srand(7);
        trigger(*window, completing ? "actionNewGameVeryEasy" : "actionNewGameMedium");
        if (!completing) trigger(*window, "actionViewPencilMarks");
        eng::Board* board = window->currentBoard();
        int last = firstEmpty(*window);
        for (int i = firstEmpty(*window, last); completing && i >= 0; i = firstEmpty(*window, i)) {
            QVERIFY(board->setValue(last, board->solutionValue(last)));
            last = i;
        }
        const int next = firstEmpty(*window, last);
        const size_t history = board->historySize();
        answerer.texts.clear();
        QTimer::singleShot(300, window, [&] {
            for (QChar k : during) {
                const int at = QString("SDE>RL").indexOf(k);
                const Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Down, Qt::Key_Escape,
                                        Qt::Key_Right, Qt::Key_Return, Qt::Key_Left};
                if (at >= 0) QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, keys[at]);
            }
            if (during != "C") return;
            QTest::mouseClick(window->tileAt(0), Qt::LeftButton);
            for (const char* command : {"actionRetractMove", "actionMakeMove", "actionOpenGame", "actionNewGameHard"})
                trigger(*window, command);
            window->close();
        });
        QElapsedTimer timer;
        timer.start();
        const int v = board->solutionValue(last);
        clickThenKey(last, Qt::Key(Qt::Key_0 + (completing ? v : v % 9 + 1)));
        QCOMPARE(window->tileAt(last)->hasValue(), completing);
        QCOMPARE(window->currentBoard(), board);
        if (during == "C") {
            QVERIFY(timer.elapsed() < 2500);
            QVERIFY(!window->isVisible());
            QCOMPARE(board->historySize(), history + completing);
            QVERIFY(answerer.texts.isEmpty());
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
        QCoreApplication::processEvents();
        const int expected = caret < 0 ? -1 : caret == 0 ? last : next;
        QCOMPARE(window->caret(), expected);
        if (expected >= 0) QCOMPARE(int(window->tileAt(expected)->caret()), mode);
    }

    // Where the layout puts the boards on the paper (A4, millimetres), and only there, is ink; the layout keeps
    // them apart and on the page.
    void layouts_data() {
        QTest::addColumn<QString>("radio");
        QTest::addColumn<int>("repeat");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<bool>("high");
        QTest::addColumn<int>("perPage");
        QTest::newRow("one") << "radCurrentGame" << 3 << false << false << 1;
        QTest::newRow("one_high") << "radCurrentGame" << 1 << false << true << 1;
        QTest::newRow("two") << "radNewTwoGames" << 1 << false << false << 2;
        QTest::newRow("two_landscape") << "radNewTwoGames" << 1 << true << false << 2;
        QTest::newRow("four_high") << "radNewFourGames" << 1 << false << true << 4;
        QTest::newRow("four_twice") << "radNewFourGames" << 2 << false << false << 4;
    }
    void layouts() {
        QFETCH(QString, radio);
        QFETCH(int, repeat);
        QFETCH(bool, landscape);
        QFETCH(bool, high);
        QFETCH(int, perPage);
        const QRectF paper = landscape ? QRectF(0, 0, 297, 210) : QRectF(0, 0, 210, 297);
        const QVector<QRectF> boards = print_layout::boardRects(perPage, paper);
        QCOMPARE(boards.size(), perPage);
        for (const QRectF& r : boards) {
            QVERIFY(paper.adjusted(15, 15, -15, -15).contains(r));
            for (const QRectF& other : boards) QVERIFY(&r == &other || !r.intersects(other));
        }
        const auto board = window->currentBoard();
        choose(qPrintable(radio), repeat, 1);
        std::srand(321);
        const QString pdf = printPdf(QString(QTest::currentDataTag()) + ".pdf", landscape, high);
        if (radio == "radCurrentGame") {  // printing the current game changes nothing
            QCOMPARE(window->currentBoard(), board);
        } else {  // the window ends on the last game printed: the same generations again
            QCOMPARE(window->levelText(), QString("difficulty: Very Easy"));
            std::srand(321);
            eng::Board last(nullptr);
            last.setPencilMarksRules(window->pencilMarksDialog().selectedRules());
            for (int g = 0; g < repeat * boards.size(); ++g) QVERIFY(last.generate(eng::lvlVeryEasy));
            for (int i = 0; i < 81; ++i) QCOMPARE(window->tileAt(i)->value(), last.cell(i)->value());
        }
        const auto pages = renderPages(pdf);
        QCOMPARE(pages.size(), repeat);
        QCOMPARE(pages.first() == pages.last(), repeat == 1 || radio == "radCurrentGame");
        QCOMPARE(pages[0].width() > pages[0].height(), landscape);
        expectInkOnlyIn(pages[0], boards);
        savePicture(pages[0], QString("print_") + QTest::currentDataTag());
    }

    // Ctrl+P asks for the options, then for the PDF's name; cancelling either prints nothing.
    void printCommandExportsPdf() {
        PrintingInfo& info = choose("radNewGame", 2, 2, true);
        const QString path = dir.filePath("command.pdf");
        QString answer = path;
        window->setFileNameProvider(
            [&](SudokuWindow::FileRequest r) { return r == SudokuWindow::FileRequest::Pdf ? answer : QString(); });
        acceptOptionsSoon();
        QTest::keyClick(window->tileAt(40), Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(renderPages(path).size(), 2);
        QCOMPARE(window->levelText(), QString("difficulty: Easy"));
        answer.clear();
        QFile::remove(path);
        acceptOptionsSoon();
        window->printGame();
        acceptOptionsSoon(QDialogButtonBox::Cancel);
        window->printGame();
        QVERIFY(!QFile::exists(path));
        QCOMPARE(info.whatToPrint(), 1);  // the choices are kept
        QCOMPARE(info.gamesLevel(), 2);
    }

    void previewDrawsThePages() {
        choose("radNewTwoGames", 2, 3, false, true);
        QString seen;  // the pages shown, the level after the first game, the pages after turning them
        acceptOptionsSoon();
        QTimer poll;  // acts once the preview shows its pages
        connect(&poll, &QTimer::timeout, [&] {
            auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            auto* pages = preview ? preview->findChild<QPrintPreviewWidget*>() : nullptr;
            if (!pages || pages->pageCount() == 0) return;
            poll.stop();
            seen = QString("%1, %2, ").arg(pages->pageCount()).arg(window->levelText());
            pages->setLandscapeOrientation();  // asks for the pages again
            seen += QString::number(pages->pageCount());
            preview->reject();
        });
        poll.start(20);
        window->printGame();
        QCOMPARE(seen, QString("2, difficulty: Medium, 2"));
    }

    void noEventIsProcessedWhileDrawing() {
        // A timer touching the preview between its pages would crash it: it fires once the four games are drawn.
        choose("radNewFourGames", 1, 1);
        bool fired = false;
        QTimer::singleShot(0, window, [&] { fired = true; });
        QCOMPARE(renderPages(printPdf("outer.pdf")).size(), 1);
        QVERIFY(!fired);
        QTRY_VERIFY(fired);
        MessageBoxAnswerer answerer;
        printPdf("no/such/dir/out.pdf");
        QCOMPARE(answerer.texts, QStringList{"Failed to print."});
    }
};

QTEST_MAIN(WindowTest)
#include "test_window.moc"
