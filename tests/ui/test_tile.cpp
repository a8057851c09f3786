// The cell widget: display states, input signals and the feedback animations.
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

#include "WindowTestSupport.h"
#include "Tile.h"

namespace {

eng_priv::Cell cellWith(int index, int value, int origin, std::list<int> candidates = {1, 2, 3, 4, 5, 6, 7, 8, 9}) {
    eng_priv::Cell cell;
    cell.reset(index);
    cell.keepOnlyPotentials(candidates);
    if (value) {
        cell.setSinglePotential(value);
        cell.setValue(value, origin);
    }
    return cell;
}

QLabel* candidate(Tile& tile, int v) { return tile.findChild<QLabel*>(QString("lbl%1").arg(v)); }
QLabel* valueLabel(Tile& tile) { return tile.findChild<QLabel*>("lblValue"); }

int shownCandidates(Tile& tile) {
    int n = 0;
    for (int v = 1; v <= 9; ++v) n += candidate(tile, v)->isVisible();
    return n;
}

// Counts the events of the given types that reach the objects it filters.
struct EventCounter : QObject {
    std::vector<QEvent::Type> types;
    int count = 0;
    explicit EventCounter(std::initializer_list<QEvent::Type> t) : types(t) {}
    bool eventFilter(QObject*, QEvent* e) override {
        count += std::find(types.begin(), types.end(), e->type()) != types.end();
        return false;
    }
};

void saveTile(Tile& tile, const QString& name) {
    savePicture(tile.grab(QRect(0, 0, 61, 61)).scaled(122, 122).toImage(), "tile_" + name);
}

}  // namespace

class TileTest : public QObject {
    Q_OBJECT

    Tile* tile = nullptr;

private slots:
    void init() {
        tile = new Tile();
        tile->setIndex(37);
        tile->resize(61, 61);
        tile->show();
        QVERIFY(QTest::qWaitForWindowExposed(tile));
    }
    void cleanup() { delete tile; }

    void freshTile() {
        Tile fresh;
        QCOMPARE(fresh.index(), -1);
        QVERIFY(!fresh.hasValue());
        QCOMPARE(fresh.value(), 0);
        QCOMPARE(valueLabel(fresh)->text(), QString("0"));
        QVERIFY(valueLabel(fresh)->isHidden());
        for (int v = 1; v <= 9; ++v) QCOMPARE(candidate(fresh, v)->styleSheet(), Tile::stylePotentialOn);
        QCOMPARE(shownCandidates(fresh), 0);
        saveTile(fresh, "fresh");
    }

    void emptyCellAndPencilMarks() {
        tile->updateFromCell(cellWith(37, 0, 0, {1, 2, 5}), false);
        QCOMPARE(tile->styleSheet(), Tile::styleTileNormal);
        QCOMPARE(shownCandidates(*tile), 0);
        QVERIFY(valueLabel(*tile)->isHidden());
        saveTile(*tile, "empty");
        tile->showPencilMarks(true);
        QCOMPARE(shownCandidates(*tile), 9);
        for (int v = 1; v <= 9; ++v) {
            const bool on = v == 1 || v == 2 || v == 5;
            QCOMPARE(candidate(*tile, v)->isEnabled(), on);
            QCOMPARE(candidate(*tile, v)->styleSheet(), on ? Tile::stylePotentialOn : Tile::stylePotentialOff);
        }
        saveTile(*tile, "pencil_marks");
        // An update that removes candidate 5 with marking shows it white on red.
        tile->updateFromCell(cellWith(37, 0, 0, {1, 2}), true);
        QCOMPARE(candidate(*tile, 5)->styleSheet(), Tile::stylePotentialRemoved);
        QCOMPARE(candidate(*tile, 3)->styleSheet(), Tile::stylePotentialOff);
        saveTile(*tile, "removed_marks");
        tile->resetPotentialStyles();
        QCOMPARE(candidate(*tile, 5)->styleSheet(), Tile::stylePotentialOff);
        // Switching to the state in force changes nothing.
        candidate(*tile, 1)->setStyleSheet("x");
        tile->showPencilMarks(true);
        QCOMPARE(candidate(*tile, 1)->styleSheet(), QString("x"));
    }

    void valuesGivenPlayerAndMove() {
        tile->updateFromCell(cellWith(37, 4, eng::originGiven), false);
        QCOMPARE(tile->styleSheet(), Tile::styleTileGiven);
        QVERIFY(valueLabel(*tile)->isVisible());
        QCOMPARE(valueLabel(*tile)->styleSheet(), Tile::styleValueNormal);
        QVERIFY(tile->hasValue());
        QCOMPARE(tile->value(), 4);
        saveTile(*tile, "given");

        Tile other;
        other.show();
        other.showPencilMarks(true);
        other.updateFromCell(cellWith(1, 0, 0), false);
        other.updateFromCell(cellWith(1, 6, eng::originMove), true);
        QCOMPARE(other.styleSheet(), Tile::styleTileNormal);
        QCOMPARE(valueLabel(other)->styleSheet(), Tile::styleValueByMove);
        QCOMPARE(shownCandidates(other), 0);
        saveTile(other, "placed_by_move");
        other.updateFromCell(cellWith(1, 6, eng::originMove), true);  // unchanged: black again
        QCOMPARE(valueLabel(other)->styleSheet(), Tile::styleValueNormal);
        other.updateFromCell(cellWith(1, 0, 0), false);
        other.updateFromCell(cellWith(1, 8, eng::originPlayer), true);
        QCOMPARE(valueLabel(other)->styleSheet(), Tile::styleValueByPlayer);
        saveTile(other, "entered_by_player");
        other.updateFromCell(cellWith(1, 0, 0), false);
        other.updateFromCell(cellWith(1, 8, eng::originPlayer), false);
        QCOMPARE(valueLabel(other)->styleSheet(), Tile::styleValueNormal);
        saveTile(other, "filled");
    }

    void pencilMarksOnFilledTile() {
        tile->updateFromCell(cellWith(37, 8, eng::originPlayer), false);
        tile->showPencilMarks(true);  // only the flag changes
        QCOMPARE(shownCandidates(*tile), 0);
        tile->updateFromCell(cellWith(37, 0, 0, {3, 8}), false);
        QCOMPARE(shownCandidates(*tile), 9);
        QCOMPARE(candidate(*tile, 8)->styleSheet(), Tile::stylePotentialOn);
        QCOMPARE(candidate(*tile, 9)->styleSheet(), Tile::stylePotentialOff);
        // Marked removal, then an unmarked update: near-white, not red.
        tile->updateFromCell(cellWith(37, 0, 0, {8}), true);
        QCOMPARE(candidate(*tile, 3)->styleSheet(), Tile::stylePotentialRemoved);
        tile->updateFromCell(cellWith(37, 0, 0, {8}), false);
        QCOMPARE(candidate(*tile, 3)->styleSheet(), Tile::stylePotentialOff);
    }

    void caretAndHighlight() {
        tile->updateFromCell(cellWith(37, 0, 0), false);
        tile->showValueCaret();
        QCOMPARE(tile->styleSheet(), Tile::styleValueCaret);
        tile->updateFromCell(cellWith(37, 0, 0), false);
        QCOMPARE(tile->styleSheet(), Tile::styleValueCaret);  // updates keep the caret colour
        saveTile(*tile, "value_caret");
        QCOMPARE(tile->hideCaret(), Tile::ValueCaret);
        QCOMPARE(tile->styleSheet(), Tile::styleTileNormal);
        tile->showPencilCaret();
        QCOMPARE(tile->styleSheet(), Tile::stylePencilCaret);
        saveTile(*tile, "pencil_caret");
        QCOMPARE(tile->hideCaret(), Tile::PencilCaret);

        // A highlighted given returns to grey when the highlight ends.
        tile->updateFromCell(cellWith(37, 4, eng::originGiven), false);
        tile->highlightValue(0, 0);
        QCOMPARE(tile->styleSheet(), Tile::styleTileGiven);
        tile->highlightValue(4, 0);
        QCOMPARE(tile->styleSheet(), Tile::styleHighlight);
        QVERIFY(tile->isHighlighted());
        saveTile(*tile, "highlight");
        tile->highlightValue(4, 4);  // re-applied: keeps the sheet saved before
        tile->highlightValue(0, 4);
        QCOMPARE(tile->styleSheet(), Tile::styleTileGiven);
        QVERIFY(!tile->isHighlighted());

        // hideCaret on a highlighted tile keeps the pink; the highlight then ends white.
        Tile t;
        t.show();
        t.updateFromCell(cellWith(2, 3, eng::originPlayer), false);
        t.showValueCaret();
        t.highlightValue(3, 0);
        QCOMPARE(t.hideCaret(), Tile::ValueCaret);
        QCOMPARE(t.styleSheet(), Tile::styleHighlight);
        t.highlightValue(0, 3);
        QCOMPARE(t.styleSheet(), Tile::styleTileNormal);
    }

    void unchangedUpdateTouchesNothing() {
        // Style, text, visibility and enabled state are assigned only when they change.
        EventCounter counter{QEvent::StyleChange, QEvent::ShowToParent, QEvent::HideToParent, QEvent::EnabledChange};
        for (auto cell : {cellWith(37, 0, 0, {2, 4}), cellWith(37, 6, eng::originGiven)}) {
            for (bool pencil : {false, true}) {
                tile->showPencilMarks(pencil);
                tile->updateFromCell(cell, false);
                tile->resetPotentialStyles();
                tile->installEventFilter(&counter);
                for (QWidget* child : tile->findChildren<QWidget*>()) child->installEventFilter(&counter);
                counter.count = 0;
                tile->updateFromCell(cell, false);
                tile->resetPotentialStyles();
                QCOMPARE(counter.count, 0);
            }
        }
    }

    void mouseSignals() {
        QSignalSpy left(tile, &Tile::leftClicked);
        QSignalSpy right(tile, &Tile::rightClicked);
        QSignalSpy dbl(tile, &Tile::leftDoubleClicked);
        QSignalSpy single(tile, &Tile::singlePotentialDoubleClicked);
        QTest::mouseClick(tile, Qt::LeftButton);
        QTest::mouseClick(tile, Qt::RightButton);
        QTest::mouseClick(tile, Qt::MiddleButton);
        QCOMPARE(left.count(), 1);
        QCOMPARE(left.at(0).at(0).toInt(), 37);
        QCOMPARE(right.count(), 1);

        // A fresh tile has nine enabled labels: no single-candidate signal.
        QTest::mouseDClick(tile, Qt::LeftButton);
        QCOMPARE(dbl.count(), 1);
        QCOMPARE(single.count(), 0);
        tile->showPencilMarks(true);
        tile->updateFromCell(cellWith(37, 0, 0, {6}), false);
        QTest::mouseDClick(tile, Qt::RightButton);
        QCOMPARE(dbl.count(), 1);
        QCOMPARE(single.count(), 1);
        QCOMPARE(single.at(0).at(0).toInt(), 37);
        QCOMPARE(single.at(0).at(1).toInt(), 6);
        tile->showPencilMarks(false);
        QTest::mouseDClick(tile, Qt::LeftButton);
        QCOMPARE(single.count(), 1);
    }

    void keySignals() {
        QSignalSpy edited(tile, &Tile::valueEdited);
        QSignalSpy toggled(tile, &Tile::potentialsEdited);
        QSignalSpy moved(tile, &Tile::moveCaret);
        tile->updateFromCell(cellWith(37, 0, 0), false);
        QTest::keyClick(tile, Qt::Key_5);  // no caret: nothing
        QTest::keyClick(tile, Qt::Key_Left);
        QCOMPARE(edited.count() + moved.count(), 0);

        tile->showValueCaret();
        QTest::keyClick(tile, Qt::Key_0);
        QTest::keyClick(tile, Qt::Key_A);
        QCOMPARE(edited.count(), 0);
        QTest::keyClick(tile, Qt::Key_7, Qt::KeypadModifier);
        QCOMPARE(edited.count(), 1);
        QCOMPARE(edited.at(0).at(1).toInt(), 7);
        QVERIFY(valueLabel(*tile)->isVisible());
        QCOMPARE(tile->value(), 7);
        QTest::keyClick(tile, Qt::Key_3);  // the tile has a value now
        QCOMPARE(edited.count(), 1);
        for (auto key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) QTest::keyClick(tile, key);
        QCOMPARE(moved.count(), 4);
        for (auto dir : {Tile::Left, Tile::Right, Tile::Up, Tile::Down})
            QCOMPARE(moved.takeFirst().at(1).value<Tile::CaretDirection>(), dir);

        QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(tile, &repeated);
        QCOMPARE(moved.count(), 1);

        tile->updateFromCell(cellWith(37, 0, 0), false);
        tile->showPencilMarks(true);
        tile->showPencilCaret();
        QTest::keyClick(tile, Qt::Key_3);
        QCOMPARE(toggled.count(), 1);
        QCOMPARE(toggled.at(0).at(1).toInt(), 3);
        QVERIFY(candidate(*tile, 3)->isHidden());
    }

    void ignoredKeysReachTheParent() {
        QWidget parent;
        Tile* child = new Tile(&parent);
        parent.show();
        EventCounter counter{QEvent::KeyRelease};
        parent.installEventFilter(&counter);
        QTest::keyClick(child, Qt::Key_Left);  // no caret
        QCOMPARE(counter.count, 1);
        child->showValueCaret();
        QTest::keyClick(child, Qt::Key_Left);  // consumed by the tile
        QTest::keyClick(child, Qt::Key_B);     // not a digit: passed on
        QCOMPARE(counter.count, 2);
    }

    void rejectValueAnimation() {
        tile->showPencilMarks(true);
        tile->updateFromCell(cellWith(37, 0, 0, {2, 4}), false);
        tile->showValueCaret();
        QTest::keyClick(tile, Qt::Key_9);
        QElapsedTimer timer;
        timer.start();
        tile->rejectValue();  // its steps on screen: the real-display test
        QVERIFY(timer.elapsed() >= 800);
        QCOMPARE(valueLabel(*tile)->text(), QString("0"));
        QVERIFY(valueLabel(*tile)->isHidden());
        QCOMPARE(tile->styleSheet(), Tile::styleValueCaret);
        QCOMPARE(tile->caret(), Tile::ValueCaret);
        QCOMPARE(shownCandidates(*tile), 9);
        QCOMPARE(candidate(*tile, 5)->styleSheet(), Tile::stylePotentialOff);

        tile->showPencilMarks(false);
        tile->rejectValue();
        QCOMPARE(shownCandidates(*tile), 0);
        QVERIFY(valueLabel(*tile)->isHidden());
    }

    void flashPotentialAnimation() {
        tile->showPencilMarks(true);
        tile->updateFromCell(cellWith(37, 0, 0), false);
        tile->showPencilCaret();
        QTest::keyClick(tile, Qt::Key_4);  // hides label 4
        QVERIFY(candidate(*tile, 4)->isHidden());
        QElapsedTimer timer;
        timer.start();
        tile->flashPotential(4);
        QVERIFY(timer.elapsed() >= 800);
        QVERIFY(candidate(*tile, 4)->isVisible());
        QCOMPARE(candidate(*tile, 4)->styleSheet(), Tile::styleFlashEnd);
        // Pencil marks switched off while it flashes: the candidate ends hidden.
        QTimer::singleShot(0, tile, [this] { tile->showPencilMarks(false); });
        tile->flashPotential(4);
        QVERIFY(candidate(*tile, 4)->isHidden());
    }

    void inputDuringAnimationIsHarmless() {
        tile->showPencilMarks(true);
        tile->updateFromCell(cellWith(37, 0, 0), false);
        tile->showValueCaret();
        QSignalSpy edited(tile, &Tile::valueEdited);
        QTest::keyClick(tile, Qt::Key_9);
        // Keys and a nested animation arrive while the first one runs.
        QTimer::singleShot(250, tile, [this] {
            QTest::keyClick(tile, Qt::Key_5);
            QTest::mouseClick(tile, Qt::LeftButton);
            tile->rejectValue();
        });
        tile->rejectValue();
        QCOMPARE(edited.count(), 1);
        QCOMPARE(valueLabel(*tile)->text(), QString("0"));
        QVERIFY(valueLabel(*tile)->isHidden());
        QVERIFY(!tile->isAnimating());
    }

    void tileDestroyedDuringAnimation() {
        for (bool flash : {false, true}) {  // must return without touching the dead tile
            if (flash) init();
            tile->showPencilMarks(flash);
            tile->showValueCaret();
            QTest::keyClick(tile, Qt::Key_9);
            QTimer::singleShot(250, this, [this] {
                delete tile;
                tile = nullptr;
            });
            flash ? tile->flashPotential(2) : tile->rejectValue();
            QVERIFY(!tile);
        }
    }
};

QTEST_MAIN(TileTest)
#include "test_tile.moc"
