#pragma once
// The non-modal dialog in which the player chooses and orders the pencil-mark
// rules the engine applies.

#include <QDialog>
#include <QMetaType>
#include <list>

#include "Rules.h"

class QListWidget;
class QListWidgetItem;

namespace Ui {
class PencilMarksOptions;
}

class PencilMarksOptions : public QDialog {
    Q_OBJECT

public:
    // The "Selected:" list starts with selected, in its order.
    explicit PencilMarksOptions(QWidget* parent = nullptr, const std::list<eng::Rules>& selected = initialRules());
    ~PencilMarksOptions() override;

    // The rules of the "Selected:" list, top to bottom.
    std::list<eng::Rules> selectedRules() const;
    // What the "Selected:" list holds when the dialog is built.
    static std::list<eng::Rules> initialRules() { return {eng::ruleSingles}; }

signals:
    void applyRule(eng::Rules rule);
    void applyRules();

public slots:
    void addSelectionToDest();
    void addSelectionToSrc();
    void srcItemDoubleClicked(QListWidgetItem* item);
    void dstItemDoubleClicked(QListWidgetItem* item);
    void addItemToDest(QListWidgetItem* item);
    void addItemToSrc(QListWidgetItem* item);
    void moveCurrentItemUp();
    void moveCurrentItemDown();
    void srcSelectionChanged();
    void dstSelectionChanged();
    void apply();

private:
    Ui::PencilMarksOptions* ui;
    QListWidget* currentList = nullptr;

    void setModified(bool modified);
    void moveCurrentItem(int step);
};

Q_DECLARE_METATYPE(eng::Rules)
