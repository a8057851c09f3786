#include <QApplication>

#include "HighDpi.h"
#include "SudokuWindow.h"

int main(int argc, char** argv) {
    enableHighDpiScaling();
    QApplication app(argc, argv);
    SudokuWindow window;
    window.show();
    return app.exec();
}
