#pragma once
// Helpers for driving the main window in tests: answering message boxes
// automatically and reading the board through the tiles.

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <QTimer>

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
