// The pencil-mark options, printing options and about dialogs.
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>
#include <set>

#include "AboutDialog.h"
#include "PencilMarksOptions.h"
#include "PrintingInfo.h"
#include "WindowTestSupport.h"
#include "WindowTestSupport.h"

using Rules = std::list<eng::Rules>;

namespace {

QAbstractButton* dialogButton(QWidget& w, QDialogButtonBox::StandardButton which) {
    return child<QDialogButtonBox>(w, "buttonBox")->button(which);
}

// Shows the dialog and saves a picture of it.
void showAndSave(QDialog& dialog, const char* name) {
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    savePicture(dialog, name);
}

}  // namespace

class DialogsTest : public QObject {
    Q_OBJECT

    static void expectClean(PencilMarksOptions& d, bool clean) {
        QCOMPARE(d.windowTitle(), QString(clean ? "Pencil Marks Options" : "Pencil Marks Options*"));
        QCOMPARE(child<QDialogButtonBox>(d, "buttonBox")->isEnabled(), !clean);
    }

private slots:
    void movingAndOrderingRules() {
        PencilMarksOptions dialog;
        QCOMPARE(dialog.selectedRules(), Rules{eng::ruleSingles});
        auto* src = child<QListWidget>(dialog, "lstSrc");
        auto* dest = child<QListWidget>(dialog, "lstDest");
        QCOMPARE(src->count(), 15);
        QCOMPARE(src->item(7)->text(), QString("08. Transitive Doubles"));
        QCOMPARE(src->item(7)->data(Qt::UserRole).toInt(), 16);
        QVERIFY(!src->item(0)->icon().isNull());
        QCOMPARE(child(dialog, "btnUp")->text(), QString::fromUtf8("\xCB\x84"));
        expectClean(dialog, true);
        showAndSave(dialog, "pencil_marks_options");
        QSignalSpy applied(&dialog, &PencilMarksOptions::applyRules);

        dialog.moveCurrentItemDown();  // before any selection: nothing happens
        dialog.moveCurrentItemUp();
        expectClean(dialog, true);
        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        child(dialog, "btnToDst")->click();
        QCOMPARE(dest->count(), 3);
        expectClean(dialog, false);

        // Hidden Singles to the top; up on the first row stays.
        dest->clearSelection();
        dest->setCurrentRow(2);
        for (int k = 0; k < 3; ++k) child(dialog, "btnUp")->click();
        const Rules reordered{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles};
        QCOMPARE(dialog.selectedRules(), reordered);
        QCOMPARE(dest->currentRow(), 0);
        dialogButton(dialog, QDialogButtonBox::Apply)->click();
        QCOMPARE(applied.count(), 1);
        expectClean(dialog, true);

        // Up on the first row and down on the last move nothing, leave the dialog
        // clean, and still hand the focus to the list.
        for (auto [row, button] : {std::pair{0, "btnUp"}, std::pair{2, "btnDown"}}) {
            dest->setCurrentRow(row);
            child(dialog, "btnToDst")->setFocus();
            child(dialog, button)->click();
            QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        }
        expectClean(dialog, true);
        QCOMPARE(dialog.selectedRules(), reordered);

        dest->setCurrentRow(0);
        child(dialog, "btnDown")->click();
        QCOMPARE(dialog.selectedRules(), (Rules{eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}));
        QCOMPARE(dest->currentItem()->text(), QString("12. Hidden Singles"));
        expectClean(dialog, false);
        dialogButton(dialog, QDialogButtonBox::Apply)->click();

        // Reordering "Available:" does not mark the dialog modified.
        src->setCurrentRow(3);
        dialog.moveCurrentItemDown();
        QCOMPARE(src->item(4)->text(), QString("03. Singles Row + Col Only"));
        expectClean(dialog, true);

        // Without a current row nothing moves and no entry is lost.
        dest->setCurrentItem(nullptr);
        dialog.dstSelectionChanged();
        dialog.moveCurrentItemDown();
        dialog.moveCurrentItemUp();
        QCOMPARE(dest->count(), 3);
        dest->selectAll();
        child(dialog, "btnToSrc")->click();
        QVERIFY(dialog.selectedRules().empty());
        dialog.moveCurrentItemDown();
        dialog.moveCurrentItemUp();
        QCOMPARE(src->count(), 16);

        // Everything selected: sixteen distinct rules in the order of the list.
        src->selectAll();
        child(dialog, "btnToDst")->click();
        dialogButton(dialog, QDialogButtonBox::Apply)->click();
        QCOMPARE(applied.count(), 3);
        const Rules all = dialog.selectedRules();
        int row = 0, bits = 0;
        for (eng::Rules rule : all) {
            QCOMPARE(int(rule), dest->item(row++)->data(Qt::UserRole).toInt());
            bits |= rule;
        }
        QCOMPARE(bits, 0x3fff);
        QCOMPARE(std::set<eng::Rules>(all.begin(), all.end()).size(), 16u);
    }

    void doubleClickAppliesOneRule() {
        PencilMarksOptions dialog;
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QSignalSpy rule(&dialog, &PencilMarksOptions::applyRule);
        auto* src = child<QListWidget>(dialog, "lstSrc");
        QListWidgetItem* hidden = src->findItems("12. Hidden Singles", Qt::MatchExactly).first();
        src->scrollToItem(hidden);
        const QPoint at = src->visualItemRect(hidden).center();
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(rule.count(), 1);
        QCOMPARE(rule.at(0).at(0).value<eng::Rules>(), eng::ruleHiddenSingles);
        QCOMPARE(src->count(), 15);
        dialog.dstItemDoubleClicked(child<QListWidget>(dialog, "lstDest")->item(0));
        QCOMPARE(rule.at(1).at(0).value<eng::Rules>(), eng::ruleSingles);
        QCOMPARE(dialog.selectedRules(), Rules{eng::ruleSingles});
        expectClean(dialog, true);
    }

    void printingInfoDefaultsAndQueries() {
        PrintingInfo dialog;
        QCOMPARE(dialog.whatToPrint(), 0);
        QCOMPARE(dialog.repeatCount(), 1);
        QCOMPARE(dialog.gamesLevel(), 1);
        QVERIFY(!dialog.exportToPdf() && dialog.showPrintPreview() && !dialog.highResolution());
        auto* combo = child<QComboBox>(dialog, "cmbGamesLevel");
        QCOMPARE(combo->count(), 5);
        QCOMPARE(combo->currentText(), QString("Very Easy"));
        auto* spin = child<QSpinBox>(dialog, "repeatCount");
        spin->setValue(0);
        QCOMPARE(dialog.repeatCount(), 1);
        spin->setValue(150);
        QCOMPARE(dialog.repeatCount(), 99);
        const char* radios[] = {"radCurrentGame", "radNewGame", "radNewTwoGames", "radNewFourGames"};
        for (int k = 0; k < 4; ++k) {
            child<QRadioButton>(dialog, radios[k])->setChecked(true);
            QCOMPARE(dialog.whatToPrint(), k);
        }
        combo->setCurrentIndex(4);
        QCOMPARE(dialog.gamesLevel(), 4);
        child<QCheckBox>(dialog, "chkExportToPdf")->setChecked(true);
        child<QCheckBox>(dialog, "chkHighResolution")->setChecked(true);
        QVERIFY(dialog.exportToPdf() && dialog.highResolution());

        // Cancel keeps what was set.
        for (auto button : {QDialogButtonBox::Cancel, QDialogButtonBox::Ok}) {
            QTimer::singleShot(0, &dialog, [&dialog, button] { dialogButton(dialog, button)->click(); });
            QCOMPARE(dialog.exec(), int(button == QDialogButtonBox::Ok ? QDialog::Accepted : QDialog::Rejected));
            QCOMPARE(dialog.whatToPrint(), 3);
            QCOMPARE(dialog.gamesLevel(), 4);
        }
        PrintingInfo fresh;
        showAndSave(fresh, "printing_info");
    }

    void aboutDialog() {
        AboutDialog dialog("1.0.4");
        QCOMPARE(child<QLabel>(dialog, "lblVersion")->text(), QString("1.0.4"));
        QCOMPARE(dialog.windowTitle(), QString("About Sudoku Vantu"));
        auto* credits = child<QLabel>(dialog, "lblCredits");
        QVERIFY(credits->openExternalLinks());
        QVERIFY(credits->text().contains("blue-about-rose-48.png"));
        showAndSave(dialog, "about_dialog");
    }
};

QTEST_MAIN(DialogsTest)
#include "test_dialogs.moc"
