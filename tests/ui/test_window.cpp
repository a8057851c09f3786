// The main window: tool tips, games and moves, keys, pencil-mark options, open, save, input while animating, print.
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTemporaryDir>

#include "PrintLayout.h"
#include "WindowTestSupport.h"

namespace {

const QString kLost = "Current game will be lost.\nContinue?";
const char* const kCommands[] = {"Completed", "VeryEasy", "Easy", "Medium", "Hard", "UserEdit"};  // by level
const char* const kLabels[] = {"none", "Very Easy", "Easy", "Medium", "Hard", "user edit"};
constexpr double kPxPerMm = 30 / 25.4;  // pages are rendered at 30 dpi to look for ink

QVector<QImage> renderPages(const QString& pdf) {
    QVector<QImage> pages;
    QProcess::execute("pdftoppm", {"-r", "30", "-png", pdf, pdf});
    for (int k = 1; QFile::exists(QString("%1-%2.png").arg(pdf).arg(k)); ++k)
        pages << QImage(QString("%1-%2.png").arg(pdf).arg(k)).convertToFormat(QImage::Format_RGB32);
    return pages;
}

// Every dark pixel lies inside one of the boards (mm), and each board has at least its frame's worth of ink.
void expectInkOnlyIn(const QImage& page, const QVector<QRectF>& boards) {
    QVector<int> ink(boards.size() + 1);  // the dark pixels in each board, last those outside them all
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            const auto r = std::find_if(boards.begin(), boards.end(), [&](QRectF r) {  // in mm
                return r.adjusted(-1.5, -1.5, 1.5, 1.5).contains(QPointF(x + 0.5, y + 0.5) / kPxPerMm);
            });
            ink[r - boards.begin()] += qGray(page.pixel(x, y)) < 200;
        }
    QCOMPARE(ink.last(), 0);
    for (int k = 0; k < boards.size(); ++k) QVERIFY(ink[k] > 3 * boards[k].height() * kPxPerMm);
}

}  // namespace

class WindowTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QTemporaryDir dir;

    int solution(int i) { return window->currentBoard()->solutionValue(i); }
    int emptyCells() { const auto v = shownValues(*window); return int(std::count(v.begin(), v.end(), 0)); }
    // Keys where the keyboard is (E Esc, S Space, R Return, T Tab, <>^v arrows), c p a left, right click on i, M marks.
    void play(const QString& script, int i = -1) {
        const Qt::Key keys[] = {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return, Qt::Key_Tab,
                                Qt::Key_Left,   Qt::Key_Right, Qt::Key_Up,     Qt::Key_Down};
        for (QChar k : script) {
            if (k == 'c' || k == 'p') QTest::mouseClick(window->tileAt(i), k == 'c' ? Qt::LeftButton : Qt::RightButton);
            if (k == 'M') trigger(*window, "actionViewPencilMarks");
            const int n = QString("ESRT<>^v").indexOf(k);
            if (n >= 0) QTest::keyClick(window->focusWidget(), keys[n]);
        }
    }
    void fileCommand(const char* action, const QString& path) {  // actionSaveGame or actionOpenGame
        window->setFileNameProvider([path](SudokuWindow::FileRequest) { return path; });
        trigger(*window, action);
    }
    void saveTo(const QString& path) { fileCommand("actionSaveGame", path); }
    void choose(const char* radio, int repeat, int level, bool pdf = false, bool preview = false) {
        PrintingInfo& info = window->printingOptions();
        child<QWidget>(info, radio)->setProperty("checked", true);
        child<QWidget>(info, "repeatCount")->setProperty("value", repeat);
        child<QWidget>(info, "cmbGamesLevel")->setProperty("currentIndex", level);
        child<QWidget>(info, "chkExportToPdf")->setProperty("checked", pdf);
        child<QWidget>(info, "chkShowPrintPreview")->setProperty("checked", preview);
    }
    void printWithOptions(QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok, bool byKey = false) {
        QTimer::singleShot(50, window, [this, button] {
            child<QDialogButtonBox>(window->printingOptions(), "buttonBox")->button(button)->click();
        });
        byKey ? QTest::keyClick(window->tileAt(40), Qt::Key_P, Qt::ControlModifier) : window->printGame();
    }

private slots:
    void init() {
        window = shownWindow();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    // A closed window asks the application to quit, which would end every later event loop; one run clears that.
    void cleanup() {
        delete window;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        qApp->exec();
    }

    void toolTipPicturesAreThere() {
        for (QAction* a : window->findChildren<QAction*>())
            if (const auto m = QRegularExpression(":/Sudoku/Resources/[^\"]*").match(a->toolTip()); m.hasMatch())
                QVERIFY2(!QPixmap(m.captured()).isNull(), qPrintable(a->toolTip()));
    }

    // Each level's command asks first (declined or closed: the game stays); Make Move fills a cell, Retract empties it.
    void newGame_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("answer");  // to the question; 0: the window closes while it asks
        for (int level = eng::lvlCompleted; level <= eng::lvlUserEdit; ++level)
            QTest::newRow(kLabels[level]) << level << int(QMessageBox::Yes);
        QTest::newRow("declined") << int(eng::lvlHard) << int(QMessageBox::No);
        QTest::newRow("closed while asking") << int(eng::lvlEasy) << 0;
    }
    void newGame() {
        QFETCH(int, level);
        QFETCH(int, answer);
        const auto before = shownValues(*window);
        const int empty = firstEmpty(*window);
        QTest::mouseClick(window->tileAt(empty), Qt::LeftButton);
        MessageBoxAnswerer answerer{QMessageBox::StandardButton(answer)};
        if (!answer) answerer.timer.stop(), QTimer::singleShot(100, window, [this] { window->close(); });
        trigger(*window, QByteArray("actionNewGame") + kCommands[level]);
        const bool made = answer == QMessageBox::Yes;
        QCOMPARE(answerer.texts, answer ? QStringList{kLost} : QStringList());
        QCOMPARE(window->currentBoard()->getLevel(), made ? level : eng::lvlMedium);
        QCOMPARE(window->levelText(), QString("difficulty: ") + kLabels[made ? level : eng::lvlMedium]);
        QCOMPARE(window->caret(), made ? -1 : empty);
        if (!made) QCOMPARE(shownValues(*window), before);
        if (!answer) return;
        const int empties = emptyCells();
        trigger(*window, "actionMakeMove");
        QCOMPARE(emptyCells(), std::max(empties - 1, 0));
        trigger(*window, "actionRetractMove");
        QCOMPARE(emptyCells(), empties ? empties : 81);  // a full board goes back to the empty first position
        const QStringList full{"No more moves can be done.", "Congratulations!"};  // and the board is celebrated again
        QCOMPARE(answerer.texts.mid(1), empties ? QStringList() : full);
    }

    // The caret after clicks and keys on a User Edit board, 1 to 8 in cells 1 to 8 (cell 0: 9 alone); no value enters.
    void keyboard_data() {
        QTest::addColumn<int>("at");  // the tile clicked; -1: on a full board
        QTest::addColumn<QString>("script");
        QTest::addColumn<int>("caret");
        QTest::addColumn<int>("mode");
        QTest::newRow("right, past filled cells") << 0 << "c>" << 9 << 1;
        QTest::newRow("up from the top row") << 14 << "c^" << 76 << 1;
        QTest::newRow("the last cell") << 80 << "c>v" << 80 << 1;
        QTest::newRow("a click on the caret, a right click, pencil marks hidden") << 0 << "ccp" << -1 << 0;
        QTest::newRow("pencil caret moved") << 30 << "Mpv" << 39 << 2;
        QTest::newRow("space, pencil marks hidden") << 0 << "vSR" << 0 << 1;
        QTest::newRow("return, many candidates") << 9 << "McSR" << 9 << 2;
        QTest::newRow("escape, then back to the cell left") << 0 << "MvE<" << 0 << 1;
        QTest::newRow("space, then tab: the caret stays") << 0 << "MvST" << 0 << 2;
        QTest::newRow("no empty cell") << -1 << "MvSR<E" << -1 << 0;
    }
    void keyboard() {
        QFETCH(int, at);
        QFETCH(QString, script);
        QFETCH(int, caret);
        QFETCH(int, mode);
        MessageBoxAnswerer answerer;
        trigger(*window, at < 0 ? "actionNewGameCompleted" : "actionNewGameUserEdit");
        for (int i = 1; at >= 0 && i < 9; ++i) QVERIFY(window->currentBoard()->setValue(i, i));
        const auto before = shownValues(*window);
        play(script, at);
        QCOMPARE(window->caret(), caret);
        if (caret >= 0) QCOMPARE(int(window->tileAt(caret)->caret()), mode);
        QCOMPARE(shownValues(*window), before);
    }

    // The pencil-mark options beside the window: a double click applies one rule, Apply the chosen ones in order.
    void pencilMarkRules() {
        trigger(*window, "actionViewPencilMarks");
        trigger(*window, "actionViewPencilMarksOptions");
        PencilMarksOptions& dialog = window->pencilMarksDialog();
        QCOMPARE(dialog.frameGeometry().topLeft(), window->frameGeometry().topRight() + QPoint(1, 0));
        auto* src = child<QListWidget>(dialog, "lstSrc");
        auto* dest = child<QListWidget>(dialog, "lstDest");
        auto* apply = child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply);
        auto expect = [&](const std::list<eng::Rules>& rules, bool applied) {  // applied: the board's too
            QCOMPARE(dialog.selectedRules(), rules);
            QCOMPARE(dialog.windowTitle(), QString(applied ? "Pencil Marks Options" : "Pencil Marks Options*"));
            QCOMPARE(apply->isEnabled(), !applied);
            if (applied) QCOMPARE(window->currentBoard()->pencilMarksRulesList(), rules);
        };
        const size_t before = window->currentBoard()->historySize();
        const QPoint at = src->visualItemRect(src->item(11)).center();  // 12. Hidden Singles
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        QVERIFY(window->currentBoard()->historySize() > before);
        expect({eng::ruleSingles}, true);
        for (int row : {4, 11}) src->item(row)->setSelected(true);  // 05. Doubles, 12. Hidden Singles
        child(dialog, "btnToDst")->click();
        expect({eng::ruleSingles, eng::ruleDoubles, eng::ruleHiddenSingles}, false);
        dest->clearSelection();  // Hidden Singles up to the top and down one, the list keeping the focus
        dest->setCurrentRow(2);
        child(dialog, "btnToDst")->setFocus();
        for (const char* button : {"btnUp", "btnUp", "btnDown"}) child(dialog, button)->click();
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        apply->click();
        expect({eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}, true);
        trigger(*window, "actionExit");  // closes the options too
        QVERIFY(!dialog.isVisible());
    }

    // Files that are no saved game (text: the reader throws; version 3: it refuses) leave the game; a game saved
    // over a longer file comes back whole (retracted moves, candidates); failed saves are reported.
    void saveAndOpen() {
        const QString path = dir.filePath("game.sud"), v3 = dir.filePath("v3.sud");
        for (int k = 0; k < 2; ++k) trigger(*window, "actionMakeMove");
        window->tilePotentialsEdited(firstEmpty(*window), 9);
        trigger(*window, "actionRetractMove");
        const auto shown = shownValues(*window);
        for (auto [file, bytes] : {std::pair(path, QByteArray(200000, 'x')),
                                   std::pair(v3, QByteArray("\x08\x00\x00\x00version=\x03\x00\x00\x00", 16))}) {
            QFile f(file);
            QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
        }
        MessageBoxAnswerer answerer;
        for (const QString& file : {path, v3}) fileCommand("actionOpenGame", file);
        QCOMPARE(shownValues(*window), shown);
        saveTo(path);
        trigger(*window, "actionNewGameEasy");
        fileCommand("actionOpenGame", path);
        QCOMPARE(shownValues(*window), shown);
        saveTo(dir.filePath("again.sud"));
        auto read = [](QString p) { QFile f(p); return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray(); };
        QCOMPARE(read(dir.filePath("again.sud")), read(path));
        fileCommand("actionOpenGame", QString());
        saveTo(dir.filePath("no/such/dir/x.sud"));
        saveTo("/dev/full");  // a device is no place for a saved game
        QCOMPARE(answerer.texts,
                 (QStringList{"Failed to load game",
                              "Loaded file version is incompatible\n(expected version: 2 actual version: 3)",
                              "Failed to load game", kLost, "Failed to save game", "Failed to save game"}));
        trigger(*window, "actionMakeMove");  // the retracted move comes back first
        QCOMPARE(window->currentBoard()->undoneSize(), 0u);
    }

    // While a refusal blinks or a celebration runs keys wait, clicks and commands are ignored, closing ends it at once.
    void inputDuringAnimation_data() {
        QTest::addColumn<QString>("during");  // keys as for the keyboard test; C: a click, commands, closing
        QTest::addColumn<int>("caret");  // at the end: -1 none, 0 pencil entry on the cell typed in
        QTest::newRow("refusal, space") << "S" << 0;
        QTest::newRow("celebration, keys") << "vSREv<" << -1;
        QTest::newRow("refusal, closed") << "C" << -1;
        QTest::newRow("celebration, closed") << "C" << -1;
    }
    void inputDuringAnimation() {
        const bool completing = QString(QTest::currentDataTag()).startsWith("celebration");
        QFETCH(QString, during);
        QFETCH(int, caret);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionViewPencilMarks");
        eng::Board* board = window->currentBoard();
        for (int i; completing && (i = firstEmpty(*window)) >= 0 && firstEmpty(*window, i) >= 0;)
            QVERIFY(board->setValue(i, solution(i)));
        const int last = firstEmpty(*window);
        const size_t history = board->historySize();
        QTimer::singleShot(300, window, [&] {
            play(during);
            if (during != "C") return;
            QTest::mouseClick(window->tileAt(0), Qt::LeftButton);
            for (const char* command : {"actionRetractMove", "actionMakeMove", "actionOpenGame", "actionNewGameHard"})
                trigger(*window, command);
            window->close();
        });
        const QDeadlineTimer soon(2500);
        QTest::mouseClick(window->tileAt(last), Qt::LeftButton);
        QTest::keyClick(window->tileAt(last), Qt::Key_0 + (completing ? solution(last) : solution(last) % 9 + 1));
        QCOMPARE(window->tileAt(last)->hasValue(), completing);
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(board->historySize(), history + completing);
        QVERIFY(during != "C" || (!soon.hasExpired() && !window->isVisible() && answerer.texts.isEmpty()));
        if (during == "C") return;
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
        QCoreApplication::processEvents();
        QCOMPARE(answerer.texts, completing ? QStringList{"Congratulations!"} : QStringList());
        QCOMPARE(window->highlight(), 0);  // none left by the celebration
        QCOMPARE(window->caret(), caret < 0 ? -1 : last);
        if (caret == 0) QCOMPARE(int(window->tileAt(last)->caret()), 2);
    }

    // Ink only where the layout puts the boards, apart on the page; no event is handled while the pages are drawn.
    void layouts_data() {
        QTest::addColumn<int>("repeat");  // one a page: the current game, else new games
        QTest::newRow("one") << 3;
        QTest::newRow("two") << 1;
        QTest::newRow("two_landscape") << 1;
        QTest::newRow("four_high") << 1;
        QTest::newRow("four_twice") << 2;
    }
    void layouts() {
        QFETCH(int, repeat);
        const QString tag = QTest::currentDataTag();
        const int perPage = tag.startsWith("one") ? 1 : tag.startsWith("two") ? 2 : 4;
        const bool landscape = tag.endsWith("landscape");
        const QRectF paper = landscape ? QRectF(0, 0, 297, 210) : QRectF(0, 0, 210, 297);
        const QVector<QRectF> boards = print_layout::boardRects(perPage, paper);
        for (const QRectF& r : boards)  // on the page, apart
            QVERIFY(paper.adjusted(15, 15, -15, -15).contains(r) &&
                    std::count_if(boards.begin(), boards.end(), [&](QRectF o) { return o.intersects(r); }) == 1);
        choose(perPage == 1 ? "radCurrentGame" : perPage == 2 ? "radNewTwoGames" : "radNewFourGames", repeat, 1);
        bool fired = false;
        QTimer::singleShot(0, window, [&] { fired = true; });
        QPrinter printer(tag.endsWith("high") ? QPrinter::HighResolution : QPrinter::ScreenResolution);
        SudokuWindow::preparePrinter(printer);
        printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
        printer.setOutputFileName(dir.filePath(tag + ".pdf"));  // a PDF, by its name
        window->doPainting(&printer);
        QVERIFY(!fired);
        QCOMPARE(window->currentBoard()->getLevel(), perPage == 1 ? int(eng::lvlMedium) : int(eng::lvlVeryEasy));
        const auto pages = renderPages(printer.outputFileName());
        QCOMPARE(pages.size(), repeat);
        QCOMPARE(pages.first() == pages.last(), repeat == 1 || perPage == 1);
        QCOMPARE(pages[0].width() > pages[0].height(), landscape);
        expectInkOnlyIn(pages[0], boards);
        savePicture(pages[0], "print_" + tag);
        QTRY_VERIFY(fired);
    }

    // Ctrl+P asks for the options, then the PDF's name (cancelled: nothing; unwritable: reported), or shows a preview.
    void printCommand() {
        choose("radNewGame", 2, 2, true);
        QString path = dir.filePath("command.pdf"), answer = path;
        window->setFileNameProvider(
            [&](SudokuWindow::FileRequest r) { return r == SudokuWindow::FileRequest::Pdf ? answer : QString(); });
        printWithOptions(QDialogButtonBox::Ok, true);
        QCOMPARE(renderPages(path).size(), 2);
        QFile::remove(path);
        printWithOptions(QDialogButtonBox::Cancel);
        answer.clear();
        printWithOptions();
        QVERIFY(!QFile::exists(path));
        MessageBoxAnswerer answerer;
        answer = dir.filePath("no/such/dir/out.pdf");
        printWithOptions();
        QCOMPARE(answerer.texts, QStringList{"Failed to print."});

        choose("radNewTwoGames", 2, 3, false, true);
        int shown = 0;  // the pages the preview shows, drawn again once turned
        QTimer poll;
        connect(&poll, &QTimer::timeout, [&] {
            auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            auto* pages = preview ? preview->findChild<QPrintPreviewWidget*>() : nullptr;
            if (!pages || !pages->pageCount()) return;
            pages->setLandscapeOrientation();
            shown = pages->pageCount(), poll.stop(), preview->reject();
        });
        poll.start(20);
        printWithOptions();
        QCOMPARE(shown, 2);
    }
};

QTEST_MAIN(WindowTest)
#include "test_window.moc"
