// The cell widget: what it shows in each state, its input signals and the feedback animations.
#include <QLabel>
#include <QSignalSpy>

#include "WindowTestSupport.h"

class TileTest : public QObject {
    Q_OBJECT

    Tile* tile = nullptr;

    void update(int value, int origin = 0, std::list<int> candidates = {1, 2, 3, 4, 5, 6, 7, 8, 9}, bool mark = false) {
        eng_priv::Cell cell;
        cell.reset(37);
        cell.keepOnlyPotentials(candidates);
        if (value) {
            cell.setSinglePotential(value);
            cell.setValue(value, origin);
        }
        tile->updateFromCell(cell, mark);
    }
    QLabel* label(int v) { return tile->findChild<QLabel*>(v ? QString("lbl%1").arg(v) : QString("lblValue")); }
    int shownCandidates() {
        int n = 0;
        for (int v = 1; v <= 9; ++v) n += label(v)->isVisible();
        return n;
    }

private slots:
    void init() {
        tile = new Tile();
        tile->setIndex(37);
        tile->resize(61, 61);
        tile->show();
        QVERIFY(QTest::qWaitForWindowExposed(tile));
    }
    void cleanup() { delete tile; }

    // Background, digit colour and pencil marks after a value comes, stays or goes.
    void states() {
        const int given = eng::originGiven, move = eng::originMove, player = eng::originPlayer;
        struct Case {
            const char* name;
            bool pencil;
            int before, beforeOrigin, after, afterOrigin;
            QString tileStyle, valueStyle;  // no value style: no digit shown
            int candidates;
        };
        for (const Case& c : {Case{"empty", false, 0, 0, 0, 0, Tile::styleTileNormal, {}, 0},
                              {"empty_pencil", true, 0, 0, 0, 0, Tile::styleTileNormal, {}, 9},
                              {"given", true, 0, 0, 4, given, Tile::styleTileGiven, Tile::styleValueNormal, 0},
                              {"by_move", true, 0, 0, 6, move, Tile::styleTileNormal, Tile::styleValueByMove, 0},
                              {"move_kept", false, 6, move, 6, move, Tile::styleTileNormal, Tile::styleValueNormal, 0},
                              {"by_player", false, 0, 0, 8, player, Tile::styleTileNormal, Tile::styleValueByPlayer, 0},
                              {"emptied_pencil", true, 8, player, 0, 0, Tile::styleTileNormal, {}, 9}}) {
            tile->showPencilMarks(c.pencil);
            update(c.before, c.beforeOrigin);
            update(c.after, c.afterOrigin, {1, 2, 3, 4, 5, 6, 7, 8, 9}, true);
            QVERIFY2(tile->styleSheet() == c.tileStyle, c.name);
            QVERIFY2(label(0)->isVisible() == !c.valueStyle.isEmpty(), c.name);
            QVERIFY2(c.valueStyle.isEmpty() || label(0)->styleSheet() == c.valueStyle, c.name);
            QVERIFY2(shownCandidates() == c.candidates, c.name);
            savePicture(tile->grab().toImage().scaled(122, 122), QString("tile_") + c.name);
            update(c.after, c.afterOrigin);  // an unmarked update: black
            QVERIFY2(c.valueStyle.isEmpty() || label(0)->styleSheet() == Tile::styleValueNormal, c.name);
        }
    }

    void candidateColours() {
        tile->showPencilMarks(true);
        update(0, 0, {1, 2, 3});
        for (int v = 1; v <= 9; ++v)
            QCOMPARE(label(v)->styleSheet(), v <= 3 ? Tile::stylePotentialOn : Tile::stylePotentialOff);
        update(0, 0, {1, 2}, true);  // removed with marking: white on red
        QCOMPARE(label(3)->styleSheet(), Tile::stylePotentialRemoved);
        QCOMPARE(label(4)->styleSheet(), Tile::stylePotentialOff);
        savePicture(tile->grab().toImage().scaled(122, 122), "tile_removed_marks");
        tile->resetPotentialStyles();
        QCOMPARE(label(3)->styleSheet(), Tile::stylePotentialOff);
        update(0, 0, {2}, true);
        update(0, 0, {2}, false);  // an unmarked update after a marked removal: near-white
        QCOMPARE(label(1)->styleSheet(), Tile::stylePotentialOff);
    }

    void caretAndHighlight() {
        tile->showValueCaret();
        update(0);  // updates keep the caret colour
        QCOMPARE(tile->styleSheet(), Tile::styleValueCaret);
        QCOMPARE(tile->hideCaret(), Tile::ValueCaret);
        QCOMPARE(tile->styleSheet(), Tile::styleTileNormal);
        tile->showPencilCaret();
        QCOMPARE(tile->styleSheet(), Tile::stylePencilCaret);
        QCOMPARE(tile->hideCaret(), Tile::PencilCaret);
        // A highlighted given returns to grey when the highlight ends.
        update(4, eng::originGiven);
        tile->highlightValue(4, 0);
        QCOMPARE(tile->styleSheet(), Tile::styleHighlight);
        tile->highlightValue(4, 4);  // re-applied: keeps the sheet saved before
        tile->highlightValue(0, 4);
        QCOMPARE(tile->styleSheet(), Tile::styleTileGiven);
        // Hiding the caret of a highlighted tile keeps the pink; the highlight then ends white.
        update(3, eng::originPlayer);
        tile->showValueCaret();
        tile->highlightValue(3, 0);
        QCOMPARE(tile->hideCaret(), Tile::ValueCaret);
        QCOMPARE(tile->styleSheet(), Tile::styleHighlight);
        tile->highlightValue(0, 3);
        QCOMPARE(tile->styleSheet(), Tile::styleTileNormal);
    }

    // Style, text, visibility and enabled state are assigned only when they change.
    void unchangedUpdateTouchesNothing() {
        struct Counter : QObject {
            int count = 0;
            bool eventFilter(QObject*, QEvent* e) override {
                const auto t = e->type();
                count += t == QEvent::StyleChange || t == QEvent::ShowToParent || t == QEvent::HideToParent ||
                         t == QEvent::EnabledChange;
                return false;
            }
        } counter;
        tile->installEventFilter(&counter);
        for (QWidget* w : tile->findChildren<QWidget*>()) w->installEventFilter(&counter);
        for (int k = 0; k < 4; ++k) {  // pencil marks off and on, an empty and a filled tile
            tile->showPencilMarks(k % 2);
            update(k / 2 * 6, eng::originGiven, {2, 4, 6});
            counter.count = 0;
            update(k / 2 * 6, eng::originGiven, {2, 4, 6});
            QCOMPARE(counter.count, 0);
        }
    }

    void input() {
        QSignalSpy single(tile, &Tile::singlePotentialDoubleClicked), edited(tile, &Tile::valueEdited);
        QSignalSpy moved(tile, &Tile::moveCaret);
        // A double click on a tile with a single candidate shown offers it.
        tile->showPencilMarks(true);
        update(0, 0, {6});
        QTest::mouseDClick(tile, Qt::RightButton);
        QCOMPARE(single.takeFirst(), (QVariantList{37, 6}));
        tile->showPencilMarks(false);  // not when the candidate is hidden
        QTest::mouseDClick(tile, Qt::LeftButton);
        QCOMPARE(single.count(), 0);

        QTest::keyClick(tile, Qt::Key_5);  // no caret: nothing
        QTest::keyClick(tile, Qt::Key_Left);
        tile->showValueCaret();
        QTest::keyClick(tile, Qt::Key_0);
        QTest::keyClick(tile, Qt::Key_A);
        QCOMPARE(edited.count() + moved.count(), 0);
        QTest::keyClick(tile, Qt::Key_7, Qt::KeypadModifier);
        QCOMPARE(edited.takeFirst(), (QVariantList{37, 7}));
        QCOMPARE(tile->value(), 7);
        QTest::keyClick(tile, Qt::Key_3);  // the tile has a value now
        QCOMPARE(edited.count(), 0);
        QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(tile, &repeated);  // a held arrow key keeps moving (arrows: the window's walk)
        QCOMPARE(moved.takeFirst().at(1).value<Tile::CaretDirection>(), Tile::Down);
    }

    // A refused value blinks for 800 ms, a refused candidate flashes as long; then the tile is as before.
    void animations() {
        tile->showPencilMarks(true);
        update(0, 0, {2, 4});
        tile->showValueCaret();
        QSignalSpy edited(tile, &Tile::valueEdited);
        QTest::keyClick(tile, Qt::Key_9);
        QTimer::singleShot(250, tile, [this] {  // keys and a nested animation while it runs
            QTest::keyClick(tile, Qt::Key_5);
            QTest::mouseClick(tile, Qt::LeftButton);
            tile->rejectValue();
        });
        QElapsedTimer timer;
        timer.start();
        tile->rejectValue();  // its steps on screen: the real-display test
        QVERIFY(timer.elapsed() >= 800);
        QCOMPARE(edited.count(), 1);
        QVERIFY(!tile->isAnimating());
        QVERIFY(label(0)->isHidden());
        QCOMPARE(tile->styleSheet(), Tile::styleValueCaret);
        QCOMPARE(shownCandidates(), 9);
        QCOMPARE(label(5)->styleSheet(), Tile::stylePotentialOff);

        update(0);
        tile->showPencilCaret();
        QTest::keyClick(tile, Qt::Key_4);  // hides label 4
        timer.restart();
        tile->flashPotential(4);
        QVERIFY(timer.elapsed() >= 800);
        QVERIFY(label(4)->isVisible());
        QCOMPARE(label(4)->styleSheet(), Tile::styleFlashEnd);
        // Pencil marks switched off while it flashes: the candidate ends hidden.
        QTimer::singleShot(0, tile, [this] { tile->showPencilMarks(false); });
        tile->flashPotential(4);
        QVERIFY(label(4)->isHidden());
    }

    void tileDestroyedDuringAnimation() {
        for (bool flash : {false, true}) {  // must return without touching the dead tile
            if (flash) init();
            QTimer::singleShot(250, this, [this] { delete std::exchange(tile, nullptr); });
            flash ? tile->flashPotential(2) : tile->rejectValue();
            QVERIFY(!tile);
        }
    }
};

QTEST_MAIN(TileTest)
#include "test_tile.moc"
