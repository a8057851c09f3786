// The pencil-mark options (the rules to apply and their order) and the about dialog.
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <set>

#include "AboutDialog.h"
#include "WindowTestSupport.h"

using Rules = std::list<eng::Rules>;

class DialogsTest : public QObject {
    Q_OBJECT

    PencilMarksOptions* dialog = nullptr;
    QListWidget *src = nullptr, *dest = nullptr;

    void click(const char* button) { child(*dialog, button)->click(); }
    void apply() { child<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Apply)->click(); }
    void expectClean(bool clean) {
        QCOMPARE(dialog->windowTitle(), QString(clean ? "Pencil Marks Options" : "Pencil Marks Options*"));
        QCOMPARE(child<QDialogButtonBox>(*dialog, "buttonBox")->isEnabled(), !clean);
    }

private slots:
    void init() {
        dialog = new PencilMarksOptions;
        src = child<QListWidget>(*dialog, "lstSrc");
        dest = child<QListWidget>(*dialog, "lstDest");
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
    }
    void cleanup() { delete dialog; }

    void movingAndOrderingRules() {
        QCOMPARE(dialog->selectedRules(), Rules{eng::ruleSingles});
        QCOMPARE(src->item(7)->text(), QString("08. Transitive Doubles"));
        expectClean(true);
        savePicture(*dialog, "pencil_marks_options");
        QSignalSpy applied(dialog, &PencilMarksOptions::applyRules);
        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        click("btnToDst");
        expectClean(false);
        // Hidden Singles to the top; up on the first row stays, the list keeps the focus.
        dest->clearSelection();
        dest->setCurrentRow(2);
        child(*dialog, "btnToDst")->setFocus();
        for (int k = 0; k < 3; ++k) click("btnUp");
        QCOMPARE(dialog->selectedRules(), (Rules{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles}));
        QCOMPARE(dialog->focusWidget(), static_cast<QWidget*>(dest));
        apply();
        QCOMPARE(applied.count(), 1);
        expectClean(true);
        dest->setCurrentRow(2);
        click("btnDown");  // down on the last row: nothing moves, still clean
        expectClean(true);
        dest->setCurrentRow(0);
        click("btnDown");
        QCOMPARE(dialog->selectedRules(), (Rules{eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}));
        expectClean(false);
        apply();
        // Reordering "Available:" does not mark the dialog modified.
        src->setCurrentRow(3);
        dialog->moveCurrentItemDown();
        QCOMPARE(src->item(4)->text(), QString("03. Singles Row + Col Only"));
        expectClean(true);
        // Without a current row nothing moves and no entry is lost.
        dest->setCurrentItem(nullptr);
        dialog->dstSelectionChanged();
        dialog->moveCurrentItemUp();
        dest->selectAll();
        click("btnToSrc");
        QVERIFY(dialog->selectedRules().empty());
        dialog->moveCurrentItemUp();
        QCOMPARE(src->count(), 16);
        // Everything chosen: sixteen distinct rules in the order of the list.
        src->selectAll();
        click("btnToDst");
        apply();
        QCOMPARE(applied.count(), 3);
        const Rules all = dialog->selectedRules();
        int row = 0;
        for (eng::Rules rule : all) QCOMPARE(int(rule), dest->item(row++)->data(Qt::UserRole).toInt());
        QCOMPARE(std::set<eng::Rules>(all.begin(), all.end()).size(), 16u);
    }

    void doubleClickAppliesOneRule() {
        QSignalSpy rule(dialog, &PencilMarksOptions::applyRule);
        QListWidgetItem* hidden = src->item(11);
        src->scrollToItem(hidden);
        const QPoint at = src->visualItemRect(hidden).center();
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        dialog->dstItemDoubleClicked(dest->item(0));
        QCOMPARE(rule.count(), 2);
        QCOMPARE(rule.at(0).at(0).value<eng::Rules>(), eng::ruleHiddenSingles);
        QCOMPARE(rule.at(1).at(0).value<eng::Rules>(), eng::ruleSingles);
        QCOMPARE(dialog->selectedRules(), Rules{eng::ruleSingles});  // applying one rule moves nothing
        expectClean(true);
    }

    void aboutAndPrintingPictures() {
        AboutDialog about("1.0.4");
        QCOMPARE(child<QLabel>(about, "lblVersion")->text(), QString("1.0.4"));
        QCOMPARE(about.windowTitle(), QString("About Sudoku Vantu"));
        QVERIFY(child<QLabel>(about, "lblCredits")->openExternalLinks());
        PrintingInfo printing;
        for (QDialog* d : {static_cast<QDialog*>(&about), static_cast<QDialog*>(&printing)}) {
            d->show();
            QVERIFY(QTest::qWaitForWindowExposed(d));
            savePicture(*d, d->objectName());
        }
    }
};

QTEST_MAIN(DialogsTest)
#include "test_dialogs.moc"
