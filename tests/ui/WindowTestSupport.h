#pragma once
// Helpers for the widget tests: finding children, answering message boxes
// automatically and reading the board through the tiles.

#include <QAction>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

#include "SudokuWindow.h"

// A named child that must be there.
template <typename T = QPushButton>
T* child(QWidget& w, const char* name) {
    T* found = w.findChild<T*>(name);
    if (!found) qFatal("missing child %s", name);
    return found;
}

inline void trigger(QWidget& w, const char* action) { child<QAction>(w, action)->trigger(); }

// The first tile without a value after index `after`, or -1.
inline int firstEmpty(SudokuWindow& w, int after = -1) {
    for (int i = after + 1; i < 81; ++i)
        if (!w.tileAt(i)->hasValue()) return i;
    return -1;
}

// Answers every message box that appears while it lives: records its text and
// presses the chosen button (Ok, or Yes/No for questions).
class MessageBoxAnswerer : public QObject {
public:
    explicit MessageBoxAnswerer(QMessageBox::StandardButton questionAnswer = QMessageBox::Yes)
        : answer(questionAnswer) {
        timer.setInterval(10);
        QObject::connect(&timer, &QTimer::timeout, [this] { poll(); });
        timer.start();
    }

    QStringList texts;
    QMessageBox::StandardButton answer;

private:
    QTimer timer;

    void poll() {
        for (QWidget* w : QApplication::topLevelWidgets()) {
            auto* box = qobject_cast<QMessageBox*>(w);
            if (!box || !box->isVisible() || box->property("answered").toBool()) continue;
            box->setProperty("answered", true);
            texts << box->text();
            QAbstractButton* button = box->button(answer);
            if (!button) button = box->button(QMessageBox::Ok);
            if (button) button->click();
        }
    }
};
