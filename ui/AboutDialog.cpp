#include "AboutDialog.h"

#include <QIcon>
#include <cmath>

#include "ui_AboutDialog.h"

AboutDialog::AboutDialog(QString version, QWidget* parent) : QDialog(parent), ui(new Ui::AboutDialog) {
    ui->setupUi(this);
    // The picture again through an icon, which takes about@2x.png where the
    // screen scales, so that it stays sharp there.
    const QIcon picture(QStringLiteral(":/Sudoku/Resources/about.png"));
    const int side = ui->label->width();
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 picks the picture for the scale rounded to the nearest whole number, so 125 % would get the small one:
    // ask for the next whole scale, which is drawn down to the screen's.
    ui->label->setPixmap(picture.pixmap(QSize(side, side), std::ceil(devicePixelRatioF())));
#else
    ui->label->setPixmap(picture.pixmap(side));
#endif
    ui->lblVersion->setText(version);
}

AboutDialog::~AboutDialog() { delete ui; }
