#pragma once
// Saves pictures of what the tests show into $SUDOKU_TEST_OUTPUT, for a person
// to look at; does nothing when the variable is not set.

#include <QDir>
#include <QImage>
#include <QString>
#include <QWidget>

inline void savePicture(const QImage& image, const QString& name) {
    const QString dir = qEnvironmentVariable("SUDOKU_TEST_OUTPUT");
    if (dir.isEmpty()) return;
    QDir().mkpath(dir);
    image.save(dir + "/" + name + ".png");
}

inline void savePicture(QWidget& widget, const QString& name) { savePicture(widget.grab().toImage(), name); }
