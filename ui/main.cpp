#include <QApplication>

#include "FontWarmUp.h"
#include "HighDpi.h"
#include "MemoryWarmUp.h"
#include "SudokuWindow.h"
#include "Translations.h"

int main(int argc, char** argv) {
    mapHeapAhead(kStartUpHeap);
    const FontWarmUp fonts;
    prepareApplication();
    QApplication app(argc, argv);
    const Translations translations;
    // Lets the desktop match the window to the installed entry and its icon.
    QApplication::setDesktopFileName(QStringLiteral("org.sudoku_vantu.SudokuVantu"));
    SudokuWindow window;
    showAtStartUp(window);
    return app.exec();
}
