// Printing: print preview, printer and PDF output of the board area, one, two
// or four boards a page.
#include <QMessageBox>
#include <QPainter>
#include <QPicture>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "PrintLayout.h"
#include "SudokuWindow.h"
#include "ui_SudokuWindow.h"

namespace {

constexpr QWidget::RenderFlags kRenderFlags = QWidget::DrawWindowBackground | QWidget::DrawChildren;

}  // namespace

void SudokuWindow::printGame() {
    if (busy) return;
    PrintingInfo& options = printingOptions();
    {
        BusyScope scope(busy);
        if (options.exec() != QDialog::Accepted) return;
    }
    QPrinter printer(options.highResolution() ? QPrinter::HighResolution : QPrinter::ScreenResolution);
    if (options.exportToPdf()) printer.setOutputFormat(QPrinter::PdfFormat);
    preparePrinter(printer);

    if (options.showPrintPreview()) {
        BusyScope scope(busy);
        QPrintPreviewDialog preview(&printer);
        connect(&preview, &QPrintPreviewDialog::paintRequested, this, &SudokuWindow::doPainting);
        preview.exec();
        return;
    }
    if (options.exportToPdf()) {
        const QString name = askFileName(FileRequest::Pdf);
        if (name.isEmpty()) return;
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(name);
        doPainting(&printer);
        return;
    }
    {
        BusyScope scope(busy);
        QPrintDialog dialog(&printer, this);
        dialog.setWindowTitle(tr("Print Document"));
        if (dialog.exec() != QDialog::Accepted) return;
    }
    doPainting(&printer);
}

void SudokuWindow::preparePrinter(QPrinter& printer) {
    printer.setFullPage(true);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageOrientation(QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
}

// Draws every page without processing a single event: the games generated for
// the pages update the tiles, which are rendered at once (see repaintNow), and
// messages wait until the pages are done. The print preview calls this from
// its own request for pages, which must not be entered again while it runs.
void SudokuWindow::doPainting(QPrinter* printer) {
    if (!printer || painting) return;
    buildTileForms();  // drawn at the printer's resolution, not as pictures
    auto drawPages = [&] {
        BusyScope scope(busy);
        painting = true;
        struct PaintingDone {
            bool& flag;
            ~PaintingDone() { flag = false; }
        } done{painting};
        const QRectF pageMm = printer->pageRect(QPrinter::Millimeter);
        const QRectF pageDevice = printer->pageRect(QPrinter::DevicePixel);
        QPainter painter;
        if (!painter.begin(printer)) return false;
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        // Qt 6 dropped the flag, which Qt 5 already ignores outside OpenGL painting.
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        painter.setRenderHint(QPainter::HighQualityAntialiasing);
        QT_WARNING_POP
#endif
        const int what = printingOptions().whatToPrint();
        const int passes = printingOptions().repeatCount();
        for (int pass = 0; pass < passes; ++pass) {
            if (pass > 0) printer->newPage();
            switch (what) {
            case 2: printTwoPerPage(pageMm, pageDevice, painter); break;
            case 3: printFourPerPage(pageMm, pageDevice, painter); break;
            default: printOnePerPage(pageMm, pageDevice, painter, printer); break;
            }
        }
        return painter.end();
    };
    if (!drawPages()) showMessage(QMessageBox::Warning, tr("Failed to print."));
}

// A game for the page, started like the level commands but without asking.
void SudokuWindow::generateForPrinting() {
    const int level = printingOptions().gamesLevel();
    newGameStep(level, true);
    setLevelLabel(level);
}

void SudokuWindow::printOnePerPage(const QRectF& pageMm, const QRectF&, QPainter& painter, QPrinter* printer) {
    QPicture picture;
    if (printingOptions().whatToPrint() == 1) generateForPrinting();
    ui->boardWidget->render(&picture, QPoint(), QRegion(), kRenderFlags);
    const QRectF target = print_layout::boardRects(1, pageMm).first();
    painter.translate(target.x() * printer->logicalDpiX() / 25.4, target.y() * printer->logicalDpiY() / 25.4);
    painter.scale(target.width() / picture.widthMM(), target.height() / picture.heightMM());
    painter.drawPicture(0, 0, picture);
    painter.resetTransform();
}

void SudokuWindow::printTwoPerPage(const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter) {
    printBoards(2, pageMm, pageDevice, painter);
}

void SudokuWindow::printFourPerPage(const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter) {
    printBoards(4, pageMm, pageDevice, painter);
}

void SudokuWindow::printBoards(int boardsPerPage, const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter) {
    const double fx = pageDevice.width() / pageMm.width();
    const double fy = pageDevice.height() / pageMm.height();
    QVector<QRectF> rects;
    for (const QRectF& mm : print_layout::boardRects(boardsPerPage, pageMm))
        rects << QRectF(QPointF(mm.left() * fx, mm.top() * fy), QPointF(mm.right() * fx, mm.bottom() * fy));
    const double sx = rects.first().width() / ui->boardWidget->width();
    const double sy = rects.first().height() / ui->boardWidget->height();
    for (const QRectF& r : rects) {
        painter.translate(r.topLeft());
        painter.scale(sx, sy);
        generateForPrinting();
        ui->boardWidget->render(&painter, QPoint(0, 0), QRegion(), kRenderFlags);
        painter.resetTransform();
    }
}
