#pragma once
// Helpers for the widget tests: a shown window, finding children, answering
// message boxes, reading the board through the tiles, saving pictures.

#include <QAction>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QtTest>

#include "SudokuWindow.h"

// A named child that must be there.
template <typename T = QPushButton>
T* child(QWidget& w, const char* name) {
    T* found = w.findChild<T*>(name);
    if (!found) qFatal("missing child %s", name);
    return found;
}

inline void trigger(QWidget& w, const char* action) { child<QAction>(w, action)->trigger(); }

inline SudokuWindow* shownWindow() {
    auto* window = new SudokuWindow();
    window->show();
    if (!QTest::qWaitForWindowExposed(window, 30000)) qFatal("window not shown");
    return window;
}

// The first tile without a value after index `after`, or -1.
inline int firstEmpty(SudokuWindow& w, int after = -1) {
    for (int i = after + 1; i < 81; ++i)
        if (!w.tileAt(i)->hasValue()) return i;
    return -1;
}

inline int firstFilled(SudokuWindow& w) {
    int i = 0;
    while (!w.tileAt(i)->hasValue()) ++i;
    return i;
}

inline std::vector<int> shownValues(SudokuWindow& w) {
    std::vector<int> v;
    for (int i = 0; i < 81; ++i) v.push_back(w.tileAt(i)->value());
    return v;
}

// Answers every message box shown while it lives: records its text, presses `answer` (Ok when the box lacks it).
struct MessageBoxAnswerer : QObject {
    QStringList texts;
    QMessageBox::StandardButton answer;
    QTimer timer;
    explicit MessageBoxAnswerer(QMessageBox::StandardButton reply = QMessageBox::Yes) : answer(reply) {
        QObject::connect(&timer, &QTimer::timeout, [this] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || box->property("answered").toBool()) return;
            box->setProperty("answered", true);
            texts << box->text();
            if (QAbstractButton* b = box->button(answer) ? box->button(answer) : box->button(QMessageBox::Ok))
                b->click();
        });
        timer.start(10);
    }
};

// Saves a picture of what a test shows into $SUDOKU_TEST_OUTPUT, for a person to look at.
inline void savePicture(const QImage& image, const QString& name) {
    const QString dir = qEnvironmentVariable("SUDOKU_TEST_OUTPUT");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    image.save(dir + "/" + name + ".png");
}
inline void savePicture(QWidget& widget, const QString& name) { savePicture(widget.grab().toImage(), name); }

// One data row for each language the program is translated into; its column "language" names the catalogue.
inline void addLanguageRows() {
    QTest::addColumn<QString>("language");
    for (const char* language : {"de", "fr", "es", "it", "pt_BR", "ru", "zh_CN", "ja"})
        QTest::newRow(language) << language;
}

// Reading a picture of the screen: a tile's background inside its border (`origin`: where the window's content
// starts in the picture), and whether a refused value's red, struck-through digit shows in a tile's inside.
const QRgb kGiven = 0xf5f5f5, kWhite = 0xffffff;
inline QRgb background(const QImage& shot, SudokuWindow& w, int index, QPoint origin = QPoint()) {
    return shot.pixel(origin + w.tileAt(index)->mapTo(&w, QPoint(3, 3))) & 0xffffff;
}
inline int countPixels(const QImage& image, bool (*test)(QColor)) {
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) n += test(QColor(image.pixel(x, y)));
    return n;
}
inline bool red(QColor p) { return p.red() > 200 && p.green() < 80 && p.blue() < 80; }
inline char digitShown(const QImage& inside) { return countPixels(inside, red) > 20 ? 'V' : 'h'; }
