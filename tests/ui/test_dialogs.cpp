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
#include "TestPictures.h"

namespace {

template <typename T>
T* child(QWidget& w, const char* name) {
    T* found = w.findChild<T*>(name);
    if (!found) qFatal("missing child %s", name);
    return found;
}

QStringList texts(QListWidget* list) {
    QStringList out;
    for (int i = 0; i < list->count(); ++i) out << list->item(i)->text();
    return out;
}

}  // namespace

class DialogsTest : public QObject {
    Q_OBJECT

private slots:
    void pencilMarksOptionsStart() {
        PencilMarksOptions dialog;
        QCOMPARE(dialog.selectedRules(), std::list<eng::Rules>{eng::ruleSingles});
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));
        auto* src = child<QListWidget>(dialog, "lstSrc");
        QCOMPARE(src->count(), 15);
        QCOMPARE(src->item(0)->text(), QString("00. Singles Row Only"));
        QCOMPARE(src->item(7)->text(), QString("08. Transitive Doubles"));
        QCOMPARE(src->item(7)->data(256).toInt(), 16);
        QVERIFY(!child<QDialogButtonBox>(dialog, "buttonBox")->isEnabled());
        QCOMPARE(child<QPushButton>(dialog, "btnUp")->text(), QString::fromUtf8("\xCB\x84"));
        QCOMPARE(child<QPushButton>(dialog, "btnDown")->text(), QString::fromUtf8("\xCB\x85"));
        QVERIFY(!src->item(0)->icon().isNull());
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        savePicture(dialog, "pencil_marks_options");
    }

    void movingAndOrderingRules() {
        PencilMarksOptions dialog;
        dialog.show();
        auto* src = child<QListWidget>(dialog, "lstSrc");
        auto* dest = child<QListWidget>(dialog, "lstDest");
        QSignalSpy applied(&dialog, &PencilMarksOptions::applyRules);

        // Before any selection change, up and down do nothing at all.
        dialog.moveCurrentItemDown();
        dialog.moveCurrentItemUp();
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));

        src->item(4)->setSelected(true);   // 05. Doubles
        src->item(11)->setSelected(true);  // 12. Hidden Singles
        child<QPushButton>(dialog, "btnToDst")->click();
        QCOMPARE(texts(dest), (QStringList{"04. Singles", "05. Doubles", "12. Hidden Singles"}));
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options*"));
        QVERIFY(child<QDialogButtonBox>(dialog, "buttonBox")->isEnabled());

        // Reorder the selected list: Hidden Singles to the top.
        dest->clearSelection();
        dest->setCurrentRow(2);
        child<QPushButton>(dialog, "btnUp")->click();
        child<QPushButton>(dialog, "btnUp")->click();
        child<QPushButton>(dialog, "btnUp")->click();  // already first: stays
        QCOMPARE(dialog.selectedRules(),
                 (std::list<eng::Rules>{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles}));
        QCOMPARE(dest->currentRow(), 0);

        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply)->click();
        QCOMPARE(applied.count(), 1);
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));
        QVERIFY(!child<QDialogButtonBox>(dialog, "buttonBox")->isEnabled());

        // Up on the first row and down on the last row move nothing and leave
        // the dialog clean, but still hand the focus to the list.
        auto* toDst = child<QPushButton>(dialog, "btnToDst");
        dest->setCurrentRow(0);
        toDst->setFocus();
        child<QPushButton>(dialog, "btnUp")->click();
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        dest->setCurrentRow(2);
        toDst->setFocus();
        child<QPushButton>(dialog, "btnDown")->click();
        QCOMPARE(dialog.focusWidget(), static_cast<QWidget*>(dest));
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));
        QCOMPARE(dialog.selectedRules(),
                 (std::list<eng::Rules>{eng::ruleHiddenSingles, eng::ruleSingles, eng::ruleDoubles}));

        // Down in the middle moves the entry and marks the dialog again.
        dest->setCurrentRow(0);
        child<QPushButton>(dialog, "btnDown")->click();
        QCOMPARE(dialog.selectedRules(),
                 (std::list<eng::Rules>{eng::ruleSingles, eng::ruleHiddenSingles, eng::ruleDoubles}));
        QCOMPARE(dest->currentItem()->text(), QString("12. Hidden Singles"));
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options*"));
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply)->click();

        // Reordering "Available:" does not mark the dialog modified.
        src->setCurrentRow(3);
        dialog.moveCurrentItemDown();
        QCOMPARE(src->item(4)->text(), QString("03. Singles Row + Col Only"));
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));

        // A list without a current row has nothing to move; the buttons stay
        // safe and no entry is lost.
        dest->setCurrentItem(nullptr);
        dialog.dstSelectionChanged();
        dialog.moveCurrentItemDown();
        dialog.moveCurrentItemUp();
        QCOMPARE(dest->count(), 3);
        dest->selectAll();
        child<QPushButton>(dialog, "btnToSrc")->click();
        QVERIFY(dialog.selectedRules().empty());
        dialog.moveCurrentItemDown();
        dialog.moveCurrentItemUp();
        QCOMPARE(src->count(), 16);

        // Everything selected: sixteen distinct rules in the order of the list.
        src->selectAll();
        toDst->click();
        child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Apply)->click();
        QCOMPARE(applied.count(), 3);
        const std::list<eng::Rules> all = dialog.selectedRules();
        QCOMPARE(all.size(), 16u);
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
        QSignalSpy rule(&dialog, &PencilMarksOptions::applyRule);
        auto* src = child<QListWidget>(dialog, "lstSrc");
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QListWidgetItem* hidden = src->findItems("12. Hidden Singles", Qt::MatchExactly).first();
        src->scrollToItem(hidden);
        const QPoint at = src->visualItemRect(hidden).center();
        QTest::mouseClick(src->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(src->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(rule.count(), 1);
        QCOMPARE(rule.at(0).at(0).value<eng::Rules>(), eng::ruleHiddenSingles);
        QCOMPARE(src->count(), 15);
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));
        dialog.dstItemDoubleClicked(child<QListWidget>(dialog, "lstDest")->item(0));
        QCOMPARE(rule.at(1).at(0).value<eng::Rules>(), eng::ruleSingles);
        QCOMPARE(dialog.selectedRules(), std::list<eng::Rules>{eng::ruleSingles});
        QCOMPARE(dialog.windowTitle(), QString("Pencil Marks Options"));
    }

    void printingInfoDefaultsAndQueries() {
        PrintingInfo dialog;
        QCOMPARE(dialog.windowTitle(), QString("Printing Info"));
        QCOMPARE(dialog.whatToPrint(), 0);
        QCOMPARE(dialog.repeatCount(), 1);
        QCOMPARE(dialog.gamesLevel(), 1);
        QVERIFY(!dialog.exportToPdf());
        QVERIFY(dialog.showPrintPreview());
        QVERIFY(!dialog.highResolution());
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
        QTimer::singleShot(0, &dialog, [&dialog] {
            child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Cancel)->click();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Rejected));
        QCOMPARE(dialog.whatToPrint(), 3);
        QCOMPARE(dialog.gamesLevel(), 4);
        QTimer::singleShot(0, &dialog, [&dialog] {
            child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
        });
        QCOMPARE(dialog.exec(), int(QDialog::Accepted));

        PrintingInfo fresh;
        fresh.show();
        QVERIFY(QTest::qWaitForWindowExposed(&fresh));
        savePicture(fresh, "printing_info");
    }

    void aboutDialog() {
        AboutDialog dialog("1.0.4");
        QCOMPARE(child<QLabel>(dialog, "lblVersion")->text(), QString("1.0.4"));
        QCOMPARE(dialog.windowTitle(), QString("About Sudoku Vantu"));
        auto* credits = child<QLabel>(dialog, "lblCredits");
        QVERIFY(credits->openExternalLinks());
        QVERIFY(credits->text().contains("Credits:"));
        QVERIFY(credits->text().contains("blue-about-rose-48.png"));
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        savePicture(dialog, "about_dialog");
    }
};

QTEST_MAIN(DialogsTest)
#include "test_dialogs.moc"
