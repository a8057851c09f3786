// The main window: start-up, games and moves, keys, pencil-mark options, open, save, input while animating, print.
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QSoundEffect>
#include <QTemporaryDir>
#include <set>

#include "PrintLayout.h"
#include "WindowTestSupport.h"

using Rules = std::list<eng::Rules>;

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

// Every dark pixel lies inside one of the boards (mm), and each board has its frame down its left side.
void expectInkOnlyIn(const QImage& page, const QVector<QRectF>& boards) {
    int stray = 0;
    QVector<QSet<int>> frameRows(boards.size());  // the pixel rows with ink in each board's left tenth
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            const QPointF mm((x + 0.5) / kPxPerMm, (y + 0.5) / kPxPerMm);
            const auto r = std::find_if(boards.begin(), boards.end(),
                                        [&](QRectF r) { return r.adjusted(-1.5, -1.5, 1.5, 1.5).contains(mm); });
            if (qGray(page.pixel(x, y)) >= 200) continue;
            if (r == boards.end()) ++stray;
            else if (mm.x() < r->left() + r->width() / 10) frameRows[r - boards.begin()].insert(y);
        }
    QCOMPARE(stray, 0);
    for (int k = 0; k < boards.size(); ++k) QVERIFY(frameRows[k].size() > boards[k].height() * kPxPerMm * 0.8);
}

}  // namespace

class WindowTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QTemporaryDir dir;

    int solution(int i) { return window->currentBoard()->solutionValue(i); }
    int emptyCells() {
        int n = 0;
        for (int v : shownValues(*window)) n += !v;
        return n;
    }
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
    static QByteArray contents(const QString& path) {
        QFile f(path);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    PrintingInfo& choose(const char* radio, int repeat, int level, bool pdf = false, bool preview = false) {
        PrintingInfo& info = window->printingOptions();
        child<QWidget>(info, radio)->setProperty("checked", true);
        child<QWidget>(info, "repeatCount")->setProperty("value", repeat);
        child<QWidget>(info, "cmbGamesLevel")->setProperty("currentIndex", level);
        child<QWidget>(info, "chkExportToPdf")->setProperty("checked", pdf);
        child<QWidget>(info, "chkShowPrintPreview")->setProperty("checked", preview);
        return info;
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

    // After the first frame the tiles get their forms and the refusal sound loads; tool-tip pictures are resources.
    void startUp() {
        QTRY_VERIFY_WITH_TIMEOUT(window->tileAt(80)->hasForm() && window->findChild<QSoundEffect*>(), 10000);
        for (QAction* a : window->findChildren<QAction*>()) {
            const auto picture = QRegularExpression(":/Sudoku/Resources/[^\"]*").match(a->toolTip());
            if (picture.hasMatch()) QVERIFY2(!QPixmap(picture.captured()).isNull(), qPrintable(a->toolTip()));
        }
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
        eng::Board* board = window->currentBoard();
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
        if (!made) QVERIFY(window->currentBoard() == board && shownValues(*window) == before);
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
        QTest::newRow("down from the bottom row") << 77 << "cv" << 15 << 1;
        QTest::newRow("the last cell") << 80 << "c>v" << 80 << 1;
        QTest::newRow("the first cell") << 0 << "c<^" << 0 << 1;
        QTest::newRow("a click on the caret") << 0 << "cc" << -1 << 0;
        QTest::newRow("right click, pencil marks hidden") << 30 << "p" << -1 << 0;
        QTest::newRow("pencil caret moved") << 30 << "Mpv" << 39 << 2;
        QTest::newRow("escape without caret") << 0 << "MvEE" << -1 << 0;
        QTest::newRow("space, pencil marks hidden") << 0 << "vS" << 0 << 1;
        QTest::newRow("return, pencil marks hidden") << 0 << "vR" << 0 << 1;
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

    // The pencil-mark options, beside the window: a double click applies one rule alone, removing candidates shown
    // white on red; the rules chosen reach the board in their order when applied. Closing the window closes them.
    void pencilMarkRules() {
        trigger(*window, "actionViewPencilMarks");
        trigger(*window, "actionViewPencilMarksOptions");
        PencilMarksOptions& dialog = window->pencilMarksDialog();
        QCOMPARE(dialog.frameGeometry().topLeft(), window->frameGeometry().topRight() + QPoint(1, 0));
        auto* src = child<QListWidget>(dialog, "lstSrc");
        auto* dest = child<QListWidget>(dialog, "lstDest");
        auto* apply = child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply);
        auto expect = [&](const Rules& rules, bool applied) {  // the rules chosen; applied, the board's too
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
        const QList<QLabel*> labels = window->findChildren<QLabel*>();
        QVERIFY(std::any_of(labels.begin(), labels.end(),
                            [](QLabel* l) { return l->styleSheet() == Tile::stylePotentialRemoved; }));
        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        child(dialog, "btnToDst")->click();
        expect({eng::ruleSingles, eng::ruleDoubles, eng::ruleHiddenSingles}, false);
        dest->clearSelection();  // Hidden Singles up to the top and down one, the list keeping the focus
        dest->setCurrentRow(2);
        child(dialog, "btnToDst")->setFocus();
        for (const char* button : {"btnUp", "btnUp", "btnDown"}) child(dialog, button)->click();
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        apply->click();
        expect({eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}, true);
        src->selectAll();  // everything chosen: sixteen distinct rules reach the board
        child(dialog, "btnToDst")->click();
        apply->click();
        const Rules all = window->currentBoard()->pencilMarksRulesList();
        QCOMPARE(std::set<eng::Rules>(all.begin(), all.end()).size(), 16u);
        trigger(*window, "actionExit");
        QVERIFY(!dialog.isVisible());
    }

    // A game saved over a longer file comes back whole (retracted moves, candidates); failed saves are reported.
    void saveAndOpen() {
        const QString path = dir.filePath("game.sud");
        for (int k = 0; k < 2; ++k) trigger(*window, "actionMakeMove");
        window->tilePotentialsEdited(firstEmpty(*window), 9);
        trigger(*window, "actionRetractMove");
        const auto shown = shownValues(*window);
        QFile junk(path);
        QVERIFY(junk.open(QIODevice::WriteOnly) && junk.write(QByteArray(200000, 'x')));
        junk.close();
        saveTo(path);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionNewGameEasy");
        fileCommand("actionOpenGame", path);
        QCOMPARE(shownValues(*window), shown);
        saveTo(dir.filePath("again.sud"));
        QCOMPARE(contents(dir.filePath("again.sud")), contents(path));
        fileCommand("actionOpenGame", QString());
        saveTo(dir.filePath("no/such/dir/x.sud"));
        saveTo("/dev/full");  // a device is no place for a saved game
        QCOMPARE(answerer.texts, (QStringList{kLost, "Failed to save game", "Failed to save game"}));
        trigger(*window, "actionMakeMove");  // the retracted move comes back first
        QCOMPARE(window->currentBoard()->undoneSize(), 0u);
    }

    // A file that is no saved game (the reader's refusal or its exception) or is missing leaves the game playable.
    void refusedFilesKeepTheGame_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("texts");
        QTest::newRow("text") << QByteArray("This is not a saved game") << QStringList{"Failed to load game"};
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
        const QString path = dir.filePath(QTest::currentDataTag());
        QFile f(path);
        QVERIFY(bytes == "-" || (f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size() && f.flush()));
        MessageBoxAnswerer answerer;
        fileCommand("actionOpenGame", path);
        QCOMPARE(answerer.texts, texts);
        QCOMPARE(window->currentBoard(), board);
        QCOMPARE(shownValues(*window), shown);
        trigger(*window, "actionMakeMove");  // still playable
        QVERIFY(shownValues(*window) != shown);
    }

    // Input while a refused value blinks or the completed board is celebrated: keys wait and then count; clicks and
    // commands are ignored, and closing ends it at once with the board as the entry left it and no message box.
    void inputDuringAnimation_data() {
        QTest::addColumn<bool>("completing");
        QTest::addColumn<QString>("during");  // keys as for the keyboard test; C: a click, commands, closing
        QTest::addColumn<int>("caret");       // where it ends: -1 none, 0 the cell typed in, 1 the next empty one
        QTest::addColumn<int>("mode");
        QTest::newRow("refusal, keys") << false << "SvE" << -1 << 0;
        QTest::newRow("refusal, space") << false << "S" << 0 << 2;
        QTest::newRow("refusal, right") << false << ">" << 1 << 1;
        QTest::newRow("celebration, keys") << true << "vSREv<" << -1 << 0;
        QTest::newRow("refusal, closed") << false << "C" << -1 << 0;
        QTest::newRow("celebration, closed") << true << "C" << -1 << 0;
    }
    void inputDuringAnimation() {
        QFETCH(bool, completing);
        QFETCH(QString, during);
        QFETCH(int, caret);
        QFETCH(int, mode);
        MessageBoxAnswerer answerer;
        trigger(*window, "actionViewPencilMarks");
        eng::Board* board = window->currentBoard();
        for (int i; completing && (i = firstEmpty(*window)) >= 0 && firstEmpty(*window, i) >= 0;)
            QVERIFY(board->setValue(i, solution(i)));
        const int last = firstEmpty(*window), next = firstEmpty(*window, last);
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
        if (during == "C") {
            QVERIFY(!soon.hasExpired() && !window->isVisible() && answerer.texts.isEmpty());
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
        QCoreApplication::processEvents();
        QCOMPARE(answerer.texts, completing ? QStringList{"Congratulations!"} : QStringList());
        QCOMPARE(window->highlight(), 0);  // none left by the celebration
        const int expected = caret < 0 ? -1 : caret == 0 ? last : next;
        QCOMPARE(window->caret(), expected);
        if (expected >= 0) QCOMPARE(int(window->tileAt(expected)->caret()), mode);
    }

    // Ink only where the layout puts the boards (apart, on the page), the window left on the last game printed. No
    // event is handled while the pages are drawn: a timer touching the preview between its pages would crash it.
    void layouts_data() {
        QTest::addColumn<int>("perPage");  // 1: the current game, else new games
        QTest::addColumn<int>("repeat");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<bool>("high");
        QTest::newRow("one") << 1 << 3 << false << false;
        QTest::newRow("one_high") << 1 << 1 << false << true;
        QTest::newRow("two") << 2 << 1 << false << false;
        QTest::newRow("two_landscape") << 2 << 1 << true << false;
        QTest::newRow("four_high") << 4 << 1 << false << true;
        QTest::newRow("four_twice") << 4 << 2 << false << false;
    }
    void layouts() {
        QFETCH(int, perPage);
        QFETCH(int, repeat);
        QFETCH(bool, landscape);
        QFETCH(bool, high);
        const QRectF paper = landscape ? QRectF(0, 0, 297, 210) : QRectF(0, 0, 210, 297);
        const QVector<QRectF> boards = print_layout::boardRects(perPage, paper);
        for (const QRectF& r : boards) {
            QVERIFY(paper.adjusted(15, 15, -15, -15).contains(r));
            for (const QRectF& other : boards) QVERIFY(&r == &other || !r.intersects(other));
        }
        auto expected = shownValues(*window);  // printing the current game changes nothing
        choose(perPage == 1 ? "radCurrentGame" : perPage == 2 ? "radNewTwoGames" : "radNewFourGames", repeat, 1);
        std::srand(321);
        bool fired = false;
        QTimer::singleShot(0, window, [&] { fired = true; });
        QPrinter printer(high ? QPrinter::HighResolution : QPrinter::ScreenResolution);
        SudokuWindow::preparePrinter(printer);
        printer.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
        printer.setOutputFileName(dir.filePath(QString(QTest::currentDataTag()) + ".pdf"));  // a PDF, by its name
        window->doPainting(&printer);
        QVERIFY(!fired);
        std::srand(321);  // new games leave the window on the last one printed: the same generations again
        eng::Board last(nullptr);
        last.setPencilMarksRules(window->pencilMarksDialog().selectedRules());
        for (int g = 0; perPage > 1 && g < repeat * perPage; ++g) QVERIFY(last.generate(eng::lvlVeryEasy));
        for (int i = 0; perPage > 1 && i < 81; ++i) expected[i] = last.cell(i)->value();
        QCOMPARE(shownValues(*window), expected);
        const auto pages = renderPages(printer.outputFileName());
        QCOMPARE(pages.size(), repeat);
        QCOMPARE(pages.first() == pages.last(), repeat == 1 || perPage == 1);
        QCOMPARE(pages[0].width() > pages[0].height(), landscape);
        expectInkOnlyIn(pages[0], boards);
        savePicture(pages[0], QString("print_") + QTest::currentDataTag());
        QTRY_VERIFY(fired);
    }

    // Ctrl+P asks for the options, then the PDF's name (cancelled: nothing; unwritable: reported); then the preview.
    void printCommand() {
        PrintingInfo& info = choose("radNewGame", 2, 2, true);
        const QString path = dir.filePath("command.pdf");
        QString answer = path;
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
        QVERIFY(info.whatToPrint() == 1 && info.gamesLevel() == 2);

        choose("radNewTwoGames", 2, 3, false, true);
        QString seen;  // the pages shown, the level after the first game, the pages after turning them
        QTimer poll;   // acts once the preview shows its pages
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
        printWithOptions();
        QCOMPARE(seen, QString("2, difficulty: Medium, 2"));
    }
};

QTEST_MAIN(WindowTest)
#include "test_window.moc"
