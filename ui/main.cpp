#include <QApplication>

#include "CloseOnSignals.h"
#include "HighDpi.h"
#include "MemoryWarmUp.h"
#include "StartUpWarmUp.h"
#include "SudokuWindow.h"
#include "ToolBarArrowStyle.h"
#include "Translations.h"

int main(int argc, char** argv) {
    const StartUpWarmUp warmUp;
    prepareApplication();
    QApplication app(argc, argv);
    ToolBarArrowStyle::install();
    const Translations translations;
    // Lets the desktop match the window to the installed entry and its icon.
    QApplication::setDesktopFileName(QStringLiteral("org.sudoku_vantu.SudokuVantu"));
    KeptGame keptGame;  // outlives the window, which hands it the game on closing
    SudokuWindow window(nullptr, &keptGame);
    const CloseOnSignals closing(&window);
    showAtStartUp(window);
    return app.exec();
}
