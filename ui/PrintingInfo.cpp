#include "PrintingInfo.h"

#include "Board.h"
#include "ui_PrintingInfo.h"

PrintingInfo::PrintingInfo(QWidget* parent) : QDialog(parent), ui(new Ui::PrintingInfoClass) {
    ui->setupUi(this);
    const std::pair<const char*, int> levels[] = {
        {QT_TRANSLATE_NOOP("PrintingInfoClass", "Completed"), eng::lvlCompleted},
        {QT_TRANSLATE_NOOP("PrintingInfoClass", "Very Easy"), eng::lvlVeryEasy},
        {QT_TRANSLATE_NOOP("PrintingInfoClass", "Easy"), eng::lvlEasy},
        {QT_TRANSLATE_NOOP("PrintingInfoClass", "Medium"), eng::lvlMedium},
        {QT_TRANSLATE_NOOP("PrintingInfoClass", "Hard"), eng::lvlHard}};
    for (const auto& level : levels)
        ui->cmbGamesLevel->addItem(QCoreApplication::translate("PrintingInfoClass", level.first), level.second);
    ui->cmbGamesLevel->setCurrentIndex(1);
}

PrintingInfo::~PrintingInfo() { delete ui; }

int PrintingInfo::whatToPrint() const {
    if (ui->radCurrentGame->isChecked()) return 0;
    if (ui->radNewGame->isChecked()) return 1;
    if (ui->radNewTwoGames->isChecked()) return 2;
    if (ui->radNewFourGames->isChecked()) return 3;
    return 0;
}

int PrintingInfo::repeatCount() const { return ui->repeatCount->value(); }

int PrintingInfo::gamesLevel() const { return ui->cmbGamesLevel->currentData().toInt(); }

bool PrintingInfo::exportToPdf() const { return ui->chkExportToPdf->isChecked(); }

bool PrintingInfo::showPrintPreview() const { return ui->chkShowPrintPreview->isChecked(); }

bool PrintingInfo::highResolution() const { return ui->chkHighResolution->isChecked(); }
