// The cell widget: what it shows in each state (read from its pictures), its input and its feedback animations.
#include <QtWidgets>

#include "WindowTestSupport.h"

const QRgb kGreen = 0xaaff7f, kBlue = 0x5eaeff, kPink = 0xffaaff, kBlack = 0, kDigitBlue = 0x0000ff, kPale = 0xf3f3f3;

class TileTest : public QObject {
    Q_OBJECT

    Tile* tile = nullptr;

    void update(int value, int origin = 0, std::list<int> candidates = {1, 2, 3, 4, 5, 6, 7, 8, 9}, bool mark = false) {
        eng_priv::Cell cell;
        cell.reset(37), cell.keepOnlyPotentials(candidates);
        if (value) cell.setSinglePotential(value), cell.setValue(value, origin);
        tile->updateFromCell(cell, mark);
    }
    QLabel* label(int v) { return tile->findChild<QLabel*>(v ? QString("lbl%1").arg(v) : QString("lblValue")); }
    int shownCandidates() { int n = 0; for (int v = 1; v <= 9; ++v) n += label(v)->isVisible(); return n; }
    QRgb back() { return tile->grab().toImage().pixel(3, 3) & 0xffffff; }
    // A label as shown: its background and the colour of its text (the pixel whose grey is farthest from it).
    QPair<QRgb, QRgb> look(QLabel* l) {
        const QImage image = tile->grab(QRect(l->mapTo(tile, QPoint()), l->size())).toImage();
        const int gray = qGray(image.pixel(0, 0));
        QRgb ink = image.pixel(0, 0);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (std::abs(qGray(image.pixel(x, y)) - gray) > std::abs(qGray(ink) - gray)) ink = image.pixel(x, y);
        return {image.pixel(0, 0) & 0xffffff, ink & 0xffffff};
    }

private slots:
    void init() {
        (tile = new Tile())->setIndex(37), tile->resize(61, 61), tile->show();
        QVERIFY(QTest::qWaitForWindowExposed(tile));
    }
    void cleanup() { delete tile; }

    // Background, digit colour and pencil marks after a value comes, stays or goes; an unmarked update: black.
    void states_data() {
        QTest::addColumn<int>("before");  // value * 10 + origin
        QTest::addColumn<int>("after");
        QTest::addColumn<QRgb>("background");
        QTest::addColumn<QRgb>("digit");  // 1: no digit shown
        QTest::addColumn<int>("candidates");
        QTest::newRow("empty") << 0 << 0 << kWhite << 1u << 0;
        QTest::newRow("empty_pencil") << 0 << 0 << kWhite << 1u << 9;
        QTest::newRow("given") << 0 << 40 + eng::originGiven << kGiven << kBlack << 0;
        QTest::newRow("by_move") << 0 << 60 + eng::originMove << kWhite << kDigitBlue << 0;
        QTest::newRow("move_kept") << 60 + eng::originMove << 60 + eng::originMove << kWhite << kBlack << 0;
        QTest::newRow("by_player") << 0 << 80 + eng::originPlayer << kWhite << kDigitBlue << 0;
        QTest::newRow("emptied_pencil") << 80 + eng::originPlayer << 0 << kWhite << 1u << 9;
    }
    void states() {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QRgb, digit);
        QFETCH(int, candidates);
        auto shownDigit = [this] { return label(0)->isVisible() ? look(label(0)).second : 1u; };
        tile->showPencilMarks(candidates || after);  // off: the empty tile shows none
        update(before / 10, before % 10);
        update(after / 10, after % 10, {1, 2, 3, 4, 5, 6, 7, 8, 9}, true);
        QTEST(back(), "background");
        QCOMPARE(shownDigit(), digit);
        QCOMPARE(shownCandidates(), candidates);
        update(after / 10, after % 10);  // an unmarked update: black
        QCOMPARE(shownDigit(), digit == 1 ? 1u : kBlack);
    }

    // Candidates kept black, the others near-white; removed with marking, white on red until reset or updated.
    void candidateColours() {
        tile->showPencilMarks(true);
        update(0, 0, {1, 2, 3});
        for (int v = 1; v <= 9; ++v) QCOMPARE(look(label(v)).second, v <= 3 ? kBlack : kPale);
        update(0, 0, {1, 2}, true);
        QCOMPARE(look(label(3)), qMakePair(QRgb(0xff0000), kWhite));
        QCOMPARE(look(label(4)).second, kPale);
        tile->resetPotentialStyles();
        QCOMPARE(look(label(3)), qMakePair(kWhite, kPale));
        update(0, 0, {2}, true), update(0, 0, {2});  // 1 marked, then an unmarked update
        QCOMPARE(look(label(1)), qMakePair(kWhite, kPale));
    }

    // The carets' colours, kept by updates; a highlight ends in the look before it, also after the caret left.
    void caretAndHighlight() {
        for (auto [mode, colour] : {qMakePair(Tile::ValueCaret, kGreen), qMakePair(Tile::PencilCaret, kBlue)}) {
            mode == Tile::ValueCaret ? tile->showValueCaret() : tile->showPencilCaret();
            update(0);
            QCOMPARE(back(), colour);
            QCOMPARE(tile->hideCaret(), mode);
            QCOMPARE(back(), kWhite);
        }
        update(4, eng::originGiven);
        tile->highlightValue(4, 0);
        QCOMPARE(back(), kPink);
        tile->highlightValue(4, 4);  // re-applied: keeps the look saved before
        tile->highlightValue(0, 4);
        QCOMPARE(back(), kGiven);
        update(3, eng::originPlayer);
        tile->showValueCaret();
        tile->highlightValue(3, 0);
        QCOMPARE(tile->hideCaret(), Tile::ValueCaret);
        QCOMPARE(back(), kPink);
        tile->highlightValue(0, 3);
        QCOMPARE(back(), kWhite);
    }

    // A double click offers a lone shown candidate; a digit counts only with the caret on an empty tile.
    void input() {
        QSignalSpy single(tile, &Tile::singlePotentialDoubleClicked), edited(tile, &Tile::valueEdited),
            moved(tile, &Tile::moveCaret);
        tile->showPencilMarks(true);
        update(0, 0, {6});
        QTest::mouseDClick(tile, Qt::RightButton);
        QCOMPARE(single.takeFirst(), (QVariantList{37, 6}));
        tile->showPencilMarks(false);  // not when the candidate is hidden
        QTest::mouseDClick(tile, Qt::LeftButton);
        QCOMPARE(single.count(), 0);
        tile->showValueCaret();
        QTest::keyClick(tile, Qt::Key_7, Qt::KeypadModifier);
        QCOMPARE(edited.takeFirst(), (QVariantList{37, 7}));
        QTest::keyClick(tile, Qt::Key_3);  // the tile has a value now
        QCOMPARE(edited.count(), 0);
        QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(tile, &repeated);  // a held arrow key keeps moving (arrows: the window's walk)
        QCOMPARE(moved.takeFirst().at(1).value<Tile::CaretDirection>(), Tile::Down);
    }

    // After a refused value's blink or a candidate's flash the tile is as before (the steps: the display test).
    void animations() {
        tile->showPencilMarks(true);
        update(0, 0, {2, 4});
        tile->showValueCaret();
        QTest::keyClick(tile, Qt::Key_9);
        tile->rejectValue();
        QVERIFY(label(0)->isHidden());
        QCOMPARE(back(), kGreen);
        QCOMPARE(shownCandidates(), 9);
        QCOMPARE(look(label(5)).second, kPale);
        update(0);
        tile->showPencilCaret();
        QTest::keyClick(tile, Qt::Key_4);  // hides label 4
        tile->flashPotential(4);
        QCOMPARE(look(label(4)), qMakePair(kBlue, kBlack));
        QTimer::singleShot(0, tile, [this] { tile->showPencilMarks(false); });  // marks off meanwhile: it ends hidden
        tile->flashPotential(4);
        QVERIFY(label(4)->isHidden());
    }

    // A tile deleted while it blinks or flashes: the animation returns without touching it.
    void tileDestroyedDuringAnimation() {
        for (bool flash : {false, true}) {
            if (flash) init();
            QTimer::singleShot(250, this, [this] { delete std::exchange(tile, nullptr); });
            flash ? tile->flashPotential(2) : tile->rejectValue();
            QVERIFY(!tile);
        }
    }
};

QTEST_MAIN(TileTest)
#include "test_tile.moc"
