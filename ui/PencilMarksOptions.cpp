#include "PencilMarksOptions.h"

#include <QPushButton>
#include <algorithm>

#include "ui_PencilMarksOptions.h"

namespace {

struct RuleEntry {
    const char* text;
    eng::Rules rule;
    const char* icon;
};

const RuleEntry kEntries[] = {
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "00. Singles Row Only"), eng::ruleSinglesRowOnly, "blue_very_easy.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "01. Singles Col Only"), eng::ruleSinglesColOnly, "blue_very_easy.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "02. Singles Square Only"),
     eng::ruleSinglesSquareOnly, "blue_very_easy.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "03. Singles Row + Col Only"),
     eng::ruleSinglesRowColOnly, "blue_very_easy.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "04. Singles"), eng::ruleSingles, "blue-easy.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "05. Doubles"), eng::ruleDoubles, "blue_normal.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "06. Triples"), eng::ruleTriples, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "07. Quads"), eng::ruleQuads, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "08. Transitive Doubles"), eng::ruleTransitiveDoubles, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "09. Locked by Rows"), eng::ruleLockedByRows, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "10. Locked by Cols"), eng::ruleLockedByCols, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "11. Locked by Squares"), eng::ruleLockedBySquares, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "12. Hidden Singles"), eng::ruleHiddenSingles, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "13. Hidden Doubles"), eng::ruleHiddenDoubles, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "14. Hidden Triples"), eng::ruleHiddenTriples, "blue_hard.png"},
    {QT_TRANSLATE_NOOP("PencilMarksOptions", "15. Hidden Quads"), eng::ruleHiddenQuads, "blue_hard.png"},
};

const char* const kTitle = QT_TRANSLATE_NOOP("PencilMarksOptions", "Pencil Marks Options");

eng::Rules ruleOf(const QListWidgetItem* item) { return static_cast<eng::Rules>(item->data(Qt::UserRole).toInt()); }

}  // namespace

PencilMarksOptions::PencilMarksOptions(QWidget* parent, const std::list<eng::Rules>& selected)
    : QDialog(parent), ui(new Ui::PencilMarksOptions) {
    qRegisterMetaType<eng::Rules>("eng::Rules");
    ui->setupUi(this);
    const auto itemOf = [this](const RuleEntry& entry) {
        auto* item = new QListWidgetItem(QIcon(QStringLiteral(":/Sudoku/Resources/") + entry.icon), tr(entry.text));
        item->setData(Qt::UserRole, static_cast<int>(entry.rule));
        return item;
    };
    for (const eng::Rules rule : selected)
        for (const RuleEntry& entry : kEntries)
            if (entry.rule == rule && ui->lstDest->findItems(tr(entry.text), Qt::MatchExactly).isEmpty())
                ui->lstDest->addItem(itemOf(entry));
    for (const RuleEntry& entry : kEntries)
        if (std::find(selected.begin(), selected.end(), entry.rule) == selected.end()) ui->lstSrc->addItem(itemOf(entry));
    setWindowTitle(tr(kTitle));
    ui->buttonBox->setEnabled(false);
    connect(ui->buttonBox->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &PencilMarksOptions::apply);
}

PencilMarksOptions::~PencilMarksOptions() { delete ui; }

std::list<eng::Rules> PencilMarksOptions::selectedRules() const {
    std::list<eng::Rules> rules;
    for (int row = 0; row < ui->lstDest->count(); ++row) rules.push_back(ruleOf(ui->lstDest->item(row)));
    return rules;
}

void PencilMarksOptions::setModified(bool modified) {
    setWindowTitle(modified ? tr(kTitle) + "*" : tr(kTitle));
    ui->buttonBox->setEnabled(modified);
}

void PencilMarksOptions::addItemToDest(QListWidgetItem* item) {
    const int row = ui->lstSrc->row(item);
    if (row < 0) return;
    ui->lstDest->addItem(ui->lstSrc->takeItem(row));
    setModified(true);
}

void PencilMarksOptions::addItemToSrc(QListWidgetItem* item) {
    const int row = ui->lstDest->row(item);
    if (row < 0) return;
    ui->lstSrc->addItem(ui->lstDest->takeItem(row));
    setModified(true);
}

void PencilMarksOptions::addSelectionToDest() {
    const auto selected = ui->lstSrc->selectedItems();
    for (QListWidgetItem* item : selected) addItemToDest(item);
    if (!selected.isEmpty()) setModified(true);
}

void PencilMarksOptions::addSelectionToSrc() {
    const auto selected = ui->lstDest->selectedItems();
    for (QListWidgetItem* item : selected) addItemToSrc(item);
    if (!selected.isEmpty()) setModified(true);
}

void PencilMarksOptions::srcItemDoubleClicked(QListWidgetItem* item) {
    if (item) emit applyRule(ruleOf(item));
}

void PencilMarksOptions::dstItemDoubleClicked(QListWidgetItem* item) {
    if (item) emit applyRule(ruleOf(item));
}

void PencilMarksOptions::srcSelectionChanged() { currentList = ui->lstSrc; }

void PencilMarksOptions::dstSelectionChanged() { currentList = ui->lstDest; }

// A list without a current row (its current entry moved to the other list)
// has nothing to move: nothing changes but the focus.
void PencilMarksOptions::moveCurrentItem(int step) {
    if (!currentList) return;
    const int row = currentList->currentRow();
    const int target = row + step;
    if (row >= 0 && target >= 0 && target < currentList->count()) {
        QListWidgetItem* item = currentList->takeItem(row);
        currentList->insertItem(target, item);
        currentList->setCurrentRow(target);
        item->setSelected(true);
        if (currentList == ui->lstDest) setModified(true);
    }
    currentList->setFocus(Qt::OtherFocusReason);
}

void PencilMarksOptions::moveCurrentItemUp() { moveCurrentItem(-1); }

void PencilMarksOptions::moveCurrentItemDown() { moveCurrentItem(+1); }

void PencilMarksOptions::apply() {
    emit applyRules();
    setModified(false);
}
