#include "AboutDialog.h"

#include <QIcon>

#include "ui_AboutDialog.h"

AboutDialog::AboutDialog(QString version, QWidget* parent) : QDialog(parent), ui(new Ui::AboutDialog) {
    ui->setupUi(this);
    // The picture again through an icon, which takes about@2x.png where the
    // screen scales, so that it stays sharp there.
    ui->label->setPixmap(QIcon(QStringLiteral(":/Sudoku/Resources/about.png")).pixmap(ui->label->width()));
    ui->lblVersion->setText(version);
}

AboutDialog::~AboutDialog() { delete ui; }
