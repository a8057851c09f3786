#pragma once
// The modal "About" box: title, version, a picture and the credits.

#include <QDialog>
#include <QString>

namespace Ui {
class AboutDialog;
}

class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QString version, QWidget* parent = nullptr);
    ~AboutDialog() override;

private:
    Ui::AboutDialog* ui;
};
