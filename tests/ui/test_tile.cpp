// The cell widget: what it shows in each state (read from its pictures), its input and its feedback animations.
#include <QtWidgets>

#include "WindowTestSupport.h"

const QRgb kGreen = 0xaaff7f, kBlue = 0x5eaeff, kPink = 0xffaaff, kBlack = 0, kDigitBlue = 0x0000ff, kNearWhite = 0xf3f3f3,
           kRed = 0xff0000;

class TileTest : public QObject {
    Q_OBJECT

    Tile* tile = nullptr;

    void update(int value, int origin = 0, std::list<int> candidates = {1, 2, 3, 4, 5, 6, 7, 8, 9}, bool mark = false) {
        eng_priv::Cell cell;
        cell.reset(37);
        cell.keepOnlyPotentials(candidates);
        if (value) cell.setSinglePotential(value), cell.setValue(value, origin);
        tile->updateFromCell(cell, mark);
    }
    QLabel* label(int v) { return tile->findChild<QLabel*>(v ? QString("lbl%1").arg(v) : QString("lblValue")); }
    int shownCandidates() { int n = 0; for (int v = 1; v <= 9; ++v) n += label(v)->isVisible(); return n; }
    QRgb back() { return tile->grab().toImage().pixel(3, 3) & 0xffffff; }
    // A label as shown: its background and the colour of its text (the pixel farthest from the background).
    QPair<QRgb, QRgb> look(QLabel* l) {
        const QImage image = tile->grab(QRect(l->mapTo(tile, QPoint()), l->size())).toImage();
        const QRgb ground = image.pixel(0, 0) & 0xffffff;
        auto distance = [&](QRgb c) { return std::abs(qRed(c) - qRed(ground)) + std::abs(qGreen(c) - qGreen(ground)) +
                                             std::abs(qBlue(c) - qBlue(ground)); };
        QRgb ink = ground;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (distance(image.pixel(x, y)) > distance(ink)) ink = image.pixel(x, y);
        return {ground, ink & 0xffffff};
    }
    QRgb ink(QLabel* l) { return look(l).second; }

private slots:
    void init() {
        tile = new Tile();
        tile->setIndex(37);
        tile->resize(61, 61);
        tile->show();
        QVERIFY(QTest::qWaitForWindowExposed(tile));
    }
    void cleanup() { delete tile; }

    // Background, digit colour and pencil marks after a value comes, stays or goes; an unmarked update turns a
    // new digit black.
    void states_data() {
        QTest::addColumn<bool>("pencil");
        QTest::addColumn<int>("before");  // value * 10 + origin
        QTest::addColumn<int>("after");
        QTest::addColumn<QRgb>("background");
        QTest::addColumn<QRgb>("digit");  // 1: no digit shown
        QTest::addColumn<int>("candidates");
        const int given = eng::originGiven, move = eng::originMove, player = eng::originPlayer;
        QTest::newRow("empty") << false << 0 << 0 << kWhite << 1u << 0;
        QTest::newRow("empty_pencil") << true << 0 << 0 << kWhite << 1u << 9;
        QTest::newRow("given") << true << 0 << 40 + given << kGiven << kBlack << 0;
        QTest::newRow("by_move") << true << 0 << 60 + move << kWhite << kDigitBlue << 0;
        QTest::newRow("move_kept") << false << 60 + move << 60 + move << kWhite << kBlack << 0;
        QTest::newRow("by_player") << false << 0 << 80 + player << kWhite << kDigitBlue << 0;
        QTest::newRow("emptied_pencil") << true << 80 + player << 0 << kWhite << 1u << 9;
    }
    void states() {
        QFETCH(bool, pencil);
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(QRgb, digit);
        auto shownDigit = [this] { return label(0)->isVisible() ? ink(label(0)) : 1u; };
        tile->showPencilMarks(pencil);
        update(before / 10, before % 10);
        update(after / 10, after % 10, {1, 2, 3, 4, 5, 6, 7, 8, 9}, true);
        QTEST(back(), "background");
        QCOMPARE(shownDigit(), digit);
        QTEST(shownCandidates(), "candidates");
        update(after / 10, after % 10);  // an unmarked update: black
        QCOMPARE(shownDigit(), digit == 1 ? 1u : kBlack);
    }

    // Candidates kept black, the others near-white; removed with marking, white on red until reset or updated.
    void candidateColours() {
        tile->showPencilMarks(true);
        update(0, 0, {1, 2, 3});
        for (int v = 1; v <= 9; ++v) QCOMPARE(ink(label(v)), v <= 3 ? kBlack : kNearWhite);
        update(0, 0, {1, 2}, true);
        QCOMPARE(look(label(3)), qMakePair(kRed, kWhite));
        QCOMPARE(ink(label(4)), kNearWhite);
        tile->resetPotentialStyles();
        QCOMPARE(look(label(3)), qMakePair(kWhite, kNearWhite));
        update(0, 0, {2}, true);
        update(0, 0, {2}, false);
        QCOMPARE(look(label(1)), qMakePair(kWhite, kNearWhite));
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
        QTest::keyClick(tile, Qt::Key_5);  // no caret: nothing
        QCOMPARE(edited.count(), 0);
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
        QCOMPARE(ink(label(5)), kNearWhite);
        update(0);
        tile->showPencilCaret();
        QTest::keyClick(tile, Qt::Key_4);  // hides label 4
        tile->flashPotential(4);
        QCOMPARE(look(label(4)), qMakePair(kBlue, kBlack));
        // Pencil marks switched off while it flashes: the candidate ends hidden.
        QTimer::singleShot(0, tile, [this] { tile->showPencilMarks(false); });
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
