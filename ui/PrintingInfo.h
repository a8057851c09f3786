#pragma once
// The modal dialog that asks what to print and how. It keeps its choices for
// the next print command of the same run.

#include <QDialog>

namespace Ui {
class PrintingInfoClass;
}

class PrintingInfo : public QDialog {
    Q_OBJECT

public:
    explicit PrintingInfo(QWidget* parent = nullptr);
    ~PrintingInfo() override;

    // 0 current game, 1 one new game, 2 two new games a page, 3 four a page.
    int whatToPrint() const;
    int repeatCount() const;
    int gamesLevel() const;
    bool exportToPdf() const;
    bool showPrintPreview() const;
    bool highResolution() const;

private:
    Ui::PrintingInfoClass* ui;
};
