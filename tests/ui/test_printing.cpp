// Printing: where the boards land on the page for each layout, page counts,
// the games generated for printing, the print command and its preview.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <cstdlib>

#include "WindowTestSupport.h"

Q_DECLARE_METATYPE(QVector<QRectF>)

namespace {

constexpr double kPxPerMm = 30 / 25.4;  // pages are rendered at 30 dpi to look for ink

QVector<QImage> renderPages(const QString& pdf) {
    QVector<QImage> pages;
    QProcess::execute("pdftoppm", {"-r", "30", "-png", pdf, pdf});
    for (int k = 1; QFile::exists(QString("%1-%2.png").arg(pdf).arg(k)); ++k)
        pages << QImage(QString("%1-%2.png").arg(pdf).arg(k)).convertToFormat(QImage::Format_RGB32);
    return pages;
}

// Every dark pixel lies inside one of the boards (mm), and each board has its
// frame down its left side.
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

class PrintingTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QTemporaryDir dir;

    PrintingInfo& choose(const char* radio, int repeat, int level) {
        PrintingInfo& info = window->printingOptions();
        child<QRadioButton>(info, radio)->setChecked(true);
        child<QSpinBox>(info, "repeatCount")->setValue(repeat);
        child<QComboBox>(info, "cmbGamesLevel")->setCurrentIndex(level);
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
    void cleanup() { delete window; }

    void layouts_data() {
        QTest::addColumn<QString>("radio");
        QTest::addColumn<int>("repeat");
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<bool>("high");
        QTest::addColumn<QVector<QRectF>>("boards");
        QTest::newRow("one") << "radCurrentGame" << 3 << false << false << QVector<QRectF>{{30, 50, 150, 156}};
        QTest::newRow("one_high") << "radCurrentGame" << 1 << false << true << QVector<QRectF>{{30, 50, 150, 156}};
        QTest::newRow("two") << "radNewTwoGames" << 1 << false << false
                             << QVector<QRectF>{{55, 34.5, 100, 104}, {55, 158.5, 100, 104}};
        QTest::newRow("two_landscape") << "radNewTwoGames" << 1 << true << false
                                       << QVector<QRectF>{{38.5, 53, 100, 104}, {158.5, 53, 100, 104}};
        const QVector<QRectF> four{
            {17.5, 55.5, 80, 83}, {112.5, 55.5, 80, 83}, {17.5, 158.5, 80, 83}, {112.5, 158.5, 80, 83}};
        QTest::newRow("four") << "radNewFourGames" << 1 << false << false << four;
        QTest::newRow("four_high") << "radNewFourGames" << 1 << false << true << four;
        QTest::newRow("four_twice") << "radNewFourGames" << 2 << false << false << four;
    }
    void layouts() {
        QFETCH(QString, radio);
        QFETCH(int, repeat);
        QFETCH(bool, landscape);
        QFETCH(bool, high);
        QFETCH(QVector<QRectF>, boards);
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
            for (int g = 0; g < repeat * boards.size(); ++g) {
                last.setPencilMarksRules(window->pencilMarksDialog().selectedRules());
                QVERIFY(last.generate(eng::lvlVeryEasy));
            }
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
        PrintingInfo& info = choose("radNewGame", 2, 2);
        child<QCheckBox>(info, "chkExportToPdf")->setChecked(true);
        child<QCheckBox>(info, "chkShowPrintPreview")->setChecked(false);
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
        PrintingInfo& info = choose("radNewTwoGames", 2, 3);
        child<QCheckBox>(info, "chkExportToPdf")->setChecked(false);
        child<QCheckBox>(info, "chkShowPrintPreview")->setChecked(true);
        int pagesShown = -1, pagesAfterTurning = -1;
        QString levelAfterFirst;
        acceptOptionsSoon();
        QTimer poll;  // acts once the preview shows its pages
        connect(&poll, &QTimer::timeout, [&] {
            auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            auto* pages = preview ? preview->findChild<QPrintPreviewWidget*>() : nullptr;
            if (!pages || pages->pageCount() == 0) return;
            poll.stop();
            pagesShown = pages->pageCount();
            levelAfterFirst = window->levelText();
            pages->setLandscapeOrientation();  // asks for the pages again
            pagesAfterTurning = pages->pageCount();
            preview->reject();
        });
        poll.start(20);
        window->printGame();
        QCOMPARE(pagesShown, 2);
        QCOMPARE(pagesAfterTurning, 2);
        QCOMPARE(levelAfterFirst, QString("difficulty: Medium"));
    }

    void noEventIsProcessedWhileDrawing() {
        // A timer that touched the preview in the middle of its pages would
        // crash it: it fires only once the four generated games are drawn.
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

QTEST_MAIN(PrintingTest)
#include "test_printing.moc"
