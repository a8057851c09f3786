// Printing: board rectangles, page counts, where the ink lands on the page,
// and the games generated for printing.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>
#include <cstdlib>

#include "PrintLayout.h"
#include "SudokuWindow.h"
#include "WindowTestSupport.h"
#include "WindowTestSupport.h"

namespace {

constexpr int kDpi = 30;  // resolution of the rendered pages checked for ink

void choose(SudokuWindow& w, const char* radio, int repeat, int level) {
    PrintingInfo& info = w.printingOptions();
    info.findChild<QRadioButton*>(radio)->setChecked(true);
    info.findChild<QSpinBox*>("repeatCount")->setValue(repeat);
    info.findChild<QComboBox*>("cmbGamesLevel")->setCurrentIndex(level);
}

// Keeps a copy of a printed file next to the test pictures, for a person to look at.
void keepFile(const QString& path, const QString& name) {
    const QString out = qEnvironmentVariable("SUDOKU_TEST_OUTPUT");
    if (out.isEmpty()) return;
    QDir().mkpath(out);
    QFile::remove(out + "/" + name);
    QFile::copy(path, out + "/" + name);
}

QString printPdf(SudokuWindow& w, const QString& path, QPageLayout::Orientation orientation = QPageLayout::Portrait,
                 QPrinter::PrinterMode mode = QPrinter::ScreenResolution) {
    QPrinter printer(mode);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    SudokuWindow::preparePrinter(printer);
    printer.setPageOrientation(orientation);
    w.doPainting(&printer);
    keepFile(path, QFileInfo(path).fileName());
    return path;
}

int pageCount(const QString& pdf) {
    QFile f(pdf);
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray bytes = f.readAll();
    return bytes.count("/Type /Page") - bytes.count("/Type /Pages");
}

// Renders the PDF's pages to images with pdftoppm; empty when it is missing.
QVector<QImage> renderPages(const QString& pdf) {
    QVector<QImage> pages;
    if (QStandardPaths::findExecutable("pdftoppm").isEmpty()) return pages;
    const QString prefix = pdf + "-page";
    QProcess::execute("pdftoppm", {"-r", QString::number(kDpi), "-png", pdf, prefix});
    for (int k = 1; k < 100; ++k) {
        QImage img(QString("%1-%2.png").arg(prefix).arg(k));
        if (img.isNull()) img = QImage(QString("%1-%2.png").arg(prefix).arg(k, 2, 10, QChar('0')));
        if (img.isNull()) break;
        pages << img.convertToFormat(QImage::Format_RGB32);
    }
    return pages;
}

bool isInk(QRgb p) { return qGray(p) < 200; }

// Every dark pixel lies inside one of the expected rectangles (mm), and each
// rectangle holds plenty of dark pixels.
void expectInkOnlyIn(const QImage& page, const QVector<QRectF>& rectsMm) {
    const double pxPerMm = kDpi / 25.4;
    QVector<int> inkInside(rectsMm.size(), 0);
    int stray = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            if (!isInk(page.pixel(x, y))) continue;
            const QPointF mm((x + 0.5) / pxPerMm, (y + 0.5) / pxPerMm);
            bool inside = false;
            for (int k = 0; k < rectsMm.size(); ++k) {
                if (rectsMm[k].adjusted(-1.5, -1.5, 1.5, 1.5).contains(mm)) {
                    inside = true;
                    ++inkInside[k];
                }
            }
            stray += !inside;
        }
    }
    QCOMPARE(stray, 0);
    for (int k = 0; k < rectsMm.size(); ++k) {
        const double area = rectsMm[k].width() * rectsMm[k].height() * pxPerMm * pxPerMm;
        QVERIFY2(inkInside[k] > area * 0.05, qPrintable(QString("board %1 has too little ink").arg(k)));
    }
    // The board's frame reaches the corners of its rectangle.
    for (const QRectF& r : rectsMm) {
        const QRect px(QPoint(int(r.left() * pxPerMm), int(r.top() * pxPerMm)),
                       QPoint(int(r.right() * pxPerMm), int(r.bottom() * pxPerMm)));
        int rowsWithInk = 0;
        for (int y = px.top(); y <= px.bottom(); ++y)
            for (int x = px.left(); x <= px.left() + px.width() / 10; ++x)
                if (isInk(page.pixel(x, y))) {
                    ++rowsWithInk;
                    break;
                }
        QVERIFY(rowsWithInk > px.height() * 0.8);
    }
}

}  // namespace

class PrintingTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QTemporaryDir dir;

private slots:
    void init() {
        window = new SudokuWindow();
        window->show();
        QVERIFY(QTest::qWaitForWindowExposed(window));
    }
    void cleanup() { delete window; }

    void boardRectangles() {
        const QRectF a4(0, 0, 210, 297);
        QCOMPARE(print_layout::boardRects(1, a4), QVector<QRectF>{QRectF(30, 50, 150, 156)});
        QCOMPARE(print_layout::boardRects(2, a4),
                 (QVector<QRectF>{QRectF(55, 34.5, 100, 104), QRectF(55, 158.5, 100, 104)}));
        QCOMPARE(print_layout::boardRects(4, a4),
                 (QVector<QRectF>{QRectF(17.5, 55.5, 80, 83), QRectF(112.5, 55.5, 80, 83),
                                  QRectF(17.5, 158.5, 80, 83), QRectF(112.5, 158.5, 80, 83)}));
        const QRectF landscape(0, 0, 297, 210);
        QCOMPARE(print_layout::boardRects(2, landscape),
                 (QVector<QRectF>{QRectF(38.5, 53, 100, 104), QRectF(158.5, 53, 100, 104)}));
    }

    void currentGameRepeated() {
        const auto board = window->currentBoard();
        choose(*window, "radCurrentGame", 3, 1);
        const QString pdf = printPdf(*window, dir.filePath("current.pdf"));
        QCOMPARE(pageCount(pdf), 3);
        QCOMPARE(window->currentBoard(), board);  // printing the current game changes nothing
        const auto pages = renderPages(pdf);
        if (pages.isEmpty()) QSKIP("pdftoppm is not installed");
        QCOMPARE(pages.size(), 3);
        QCOMPARE(pages[0], pages[2]);
        expectInkOnlyIn(pages[0], print_layout::boardRects(1, QRectF(0, 0, 210, 297)));
        savePicture(pages[0], "print_one");
    }

    void layouts() {
        struct Case {
            const char* name;
            const char* radio;
            int level;
            bool landscape, high;
            int boards;
        };
        for (const Case& c : {Case{"two", "radNewTwoGames", 0, false, false, 2},
                              Case{"two_landscape", "radNewTwoGames", 0, true, false, 2},
                              Case{"four", "radNewFourGames", 1, false, false, 4},
                              Case{"one_high", "radCurrentGame", 1, false, true, 1},
                              Case{"four_high", "radNewFourGames", 1, false, true, 4}}) {
            choose(*window, c.radio, 1, c.level);
            const QString pdf = printPdf(*window, dir.filePath(QString(c.name) + ".pdf"),
                                         c.landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                         c.high ? QPrinter::HighResolution : QPrinter::ScreenResolution);
            QCOMPARE(pageCount(pdf), 1);
            if (c.level == 0) QCOMPARE(window->levelText(), QString("difficulty: none"));
            const auto pages = renderPages(pdf);
            if (pages.isEmpty()) QSKIP("pdftoppm is not installed");
            QCOMPARE(pages[0].width() > pages[0].height(), c.landscape);
            const QRectF paper = c.landscape ? QRectF(0, 0, 297, 210) : QRectF(0, 0, 210, 297);
            expectInkOnlyIn(pages[0], print_layout::boardRects(c.boards, paper));
            savePicture(pages[0], QString("print_") + c.name);
        }
    }

    void fourPerPageTwiceEndsOnTheEighthGame() {
        choose(*window, "radNewFourGames", 2, 1);
        std::srand(321);
        const QString pdf = printPdf(*window, dir.filePath("eight.pdf"));
        QCOMPARE(pageCount(pdf), 2);
        QCOMPARE(window->levelText(), QString("difficulty: Very Easy"));
        // Replay the same eight generations from the same seed.
        std::srand(321);
        std::vector<int> eighth;
        for (int g = 0; g < 8; ++g) {
            eng::Board board(nullptr);
            board.setPencilMarksRules(window->pencilMarksDialog().selectedRules());
            QVERIFY(board.generate(eng::lvlVeryEasy));
            eighth.clear();
            for (int i = 0; i < 81; ++i) eighth.push_back(board.cell(i)->value());
        }
        for (int i = 0; i < 81; ++i) QCOMPARE(window->tileAt(i)->value(), eighth[i]);
        const auto pages = renderPages(pdf);
        if (pages.isEmpty()) QSKIP("pdftoppm is not installed");
        QVERIFY(pages[0] != pages[1]);
    }

    void printCommandExportsPdfWithoutPreview() {
        PrintingInfo& info = window->printingOptions();
        info.findChild<QCheckBox*>("chkExportToPdf")->setChecked(true);
        info.findChild<QCheckBox*>("chkShowPrintPreview")->setChecked(false);
        choose(*window, "radNewGame", 2, 2);
        const QString path = dir.filePath("command.pdf");
        QString answer = path;
        window->setFileNameProvider([&](SudokuWindow::FileRequest r) {
            return r == SudokuWindow::FileRequest::Pdf ? answer : QString();
        });
        auto acceptDialog = [&info] {
            QTimer::singleShot(50, &info, [&info] {
                info.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
            });
        };
        acceptDialog();
        window->printGame();
        QCOMPARE(pageCount(path), 2);
        QCOMPARE(window->levelText(), QString("difficulty: Easy"));
        // Cancelling the file name prints nothing.
        answer.clear();
        QFile::remove(path);
        acceptDialog();
        window->printGame();
        QVERIFY(!QFile::exists(path));
        // Cancelling the options dialog prints nothing and keeps the choices.
        QTimer::singleShot(50, &info, [&info] {
            info.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
        });
        window->printGame();
        QCOMPARE(info.whatToPrint(), 1);
        QCOMPARE(info.gamesLevel(), 2);
    }

    void previewDrawsThePages() {
        PrintingInfo& info = window->printingOptions();
        info.findChild<QCheckBox*>("chkExportToPdf")->setChecked(false);
        info.findChild<QCheckBox*>("chkShowPrintPreview")->setChecked(true);
        choose(*window, "radNewTwoGames", 2, 3);
        int pagesShown = -1, pagesAfterTurning = -1;
        QString labelAfterFirst;
        QTimer::singleShot(50, &info, [&] {
            info.findChild<QDialogButtonBox*>("buttonBox")->button(QDialogButtonBox::Ok)->click();
        });
        // Polls for the preview and acts once its pages are there.
        QElapsedTimer waited;
        waited.start();
        QTimer poll;
        connect(&poll, &QTimer::timeout, [&] {
            for (QWidget* w : QApplication::topLevelWidgets()) {
                auto* preview = qobject_cast<QPrintPreviewDialog*>(w);
                if (!preview || !preview->isVisible()) continue;
                auto* pages = preview->findChild<QPrintPreviewWidget*>();
                if (pages->pageCount() == 0 && waited.elapsed() < 60000) return;
                poll.stop();
                pagesShown = pages->pageCount();
                labelAfterFirst = window->levelText();
                pages->setLandscapeOrientation();  // asks for the pages again
                pagesAfterTurning = pages->pageCount();
                preview->reject();
            }
        });
        poll.start(20);
        window->printGame();
        QCOMPARE(pagesShown, 2);
        QCOMPARE(pagesAfterTurning, 2);
        QCOMPARE(labelAfterFirst, QString("difficulty: Medium"));
    }

    void noEventIsProcessedWhileDrawing() {
        // A timer that touched the preview in the middle of its pages would
        // crash it: it fires only once the four generated games are drawn.
        choose(*window, "radNewFourGames", 1, 1);
        bool fired = false;
        QTimer::singleShot(0, window, [&] { fired = true; });
        const QString pdf = printPdf(*window, dir.filePath("outer.pdf"));
        QVERIFY(!fired);
        QCOMPARE(pageCount(pdf), 1);
        QTRY_VERIFY(fired);
    }

    void unwritablePdfFails() {
        MessageBoxAnswerer answerer;
        choose(*window, "radCurrentGame", 1, 1);
        printPdf(*window, dir.filePath("no/such/dir/out.pdf"));
        QCOMPARE(answerer.texts, QStringList{"Failed to print."});
    }
};

QTEST_MAIN(PrintingTest)
#include "test_printing.moc"
