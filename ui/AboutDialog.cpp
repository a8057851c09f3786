#include "AboutDialog.h"

#include "ui_AboutDialog.h"

AboutDialog::AboutDialog(QString version, QWidget* parent) : QDialog(parent), ui(new Ui::AboutDialog) {
    ui->setupUi(this);
    ui->lblVersion->setText(version);
}

AboutDialog::~AboutDialog() { delete ui; }
