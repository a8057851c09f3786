// What assistive technology reads of the board, and the board played from the keyboard alone.
#include <QAccessible>
#include <QLabel>
#include <cstring>
// The offscreen platform has no screen reader; its accessibility is switched on by hand, as Qt's own tests do.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "WindowTestSupport.h"

namespace {

// The accessibility events of the board and its tiles, as "tile index:kind".
QStringList events;
void record(QAccessibleEvent* event) {
    const char* kind = event->type() == QAccessible::NameChanged          ? "name"
                       : event->type() == QAccessible::DescriptionChanged ? "mode"
                       : event->type() == QAccessible::Focus              ? "focus"
                                                                          : nullptr;
    auto* tile = qobject_cast<Tile*>(event->object());
    if (kind && tile) events << QString("%1:%2").arg(tile->index()).arg(kind);
    if (kind && event->object()->objectName() == "boardWidget") events << QString("board:%1").arg(kind);
}

QString cellName(int i) { return QString("Row %1, column %2: ").arg(i / 9 + 1).arg(i % 9 + 1); }

}  // namespace

class AccessibilityTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    eng::Board* board() { return window->currentBoard(); }
    QAccessibleInterface* cell(int i) { return QAccessible::queryAccessibleInterface(window->tileAt(i)); }
    QString name(int i) { return cell(i)->text(QAccessible::Name); }
    int solution(int i) { return board()->solutionValue(i); }

    // A key typed where the keyboard is: an open menu, else the focused widget.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* to = QApplication::activePopupWidget() ? QApplication::activePopupWidget() : window->focusWidget();
        QTest::keyClick(to ? to : window, key, modifiers);
    }
    void type(int digit) { press(Qt::Key(Qt::Key_0 + digit)); }
    void pencilMarks(bool on) {
        if (child<QAction>(*window, "actionViewPencilMarks")->isChecked() != on)
            trigger(*window, "actionViewPencilMarks");
    }

private slots:
    void initTestCase() {
        QAccessible::installUpdateHandler(record);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
        QVERIFY(QAccessible::isActive());
    }
    void init() {
        window = shownWindow();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    void cleanup() {
        delete window;
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        qApp->exec();
    }

    // A 9 x 9 table of leaf cells at their row and column; the tiles' labels are not in it.
    void tableShape() {
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(child<QWidget>(*window, "boardWidget"));
        QCOMPARE(table->role(), QAccessible::Table);
        QCOMPARE(table->text(QAccessible::Name), QString("Sudoku board"));
        QAccessibleTableInterface* t = table->tableInterface();
        QVERIFY(t);
        QCOMPARE(t->rowCount(), 9);
        QCOMPARE(t->columnCount(), 9);
        QCOMPARE(table->childCount(), 82);  // the cells and the level label
        QCOMPARE(table->child(81)->text(QAccessible::Name), QString("difficulty: Medium"));
        for (int i = 0; i < 81; ++i) {
            QAccessibleInterface* c = t->cellAt(i / 9, i % 9);
            QAccessibleTableCellInterface* at = c->tableCellInterface();
            QVERIFY2(c->object() == window->tileAt(i) && table->child(i) == c && table->indexOfChild(c) == i &&
                         c->role() == QAccessible::Cell && c->childCount() == 0 && c->parent() == table &&
                         at->rowIndex() == i / 9 && at->columnIndex() == i % 9 && at->table() == table &&
                         table->childAt(c->rect().center().x(), c->rect().center().y()) == c,
                     qPrintable(QString::number(i)));
            for (QLabel* label : window->tileAt(i)->findChildren<QLabel*>())
                QVERIFY(QAccessible::queryAccessibleInterface(label)->text(QAccessible::Name).isEmpty());
        }
    }

    // The names of a given, a player's, an empty, a pencil-marked and a refused cell.
    void names_data() {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"given", "player", "empty", "pencil", "refused"}) QTest::newRow(kind) << kind;
    }
    void names() {
        QFETCH(QString, kind);
        int i = firstEmpty(*window);
        QString expected = cellName(i) + "empty";
        if (kind == "given") {
            i = 0;
            while (!window->tileAt(i)->isGiven()) ++i;
            expected = cellName(i) + QString("%1, given").arg(solution(i));
        } else if (kind == "player" || kind == "refused") {
            press(Qt::Key_Down);
            QCOMPARE(window->caret(), i);
            type(kind == "player" ? solution(i) : solution(i) % 9 + 1);
            expected = kind == "player" ? cellName(i) + QString::number(solution(i))
                                        : QString("%1empty; %2 refused").arg(cellName(i)).arg(solution(i) % 9 + 1);
        } else if (kind == "pencil") {
            pencilMarks(true);
            QStringList candidates;
            for (int v = 1; v <= 9; ++v)
                if (board()->cell(i)->isPotential(v)) candidates << QString::number(v);
            expected += ", candidates " + candidates.join(' ');
        }
        QCOMPARE(name(i), expected);
        if (kind == "refused")  // in words in the description too, which readers speak for the focused cell
            QCOMPARE(cell(i)->text(QAccessible::Description),
                     QString("Caret: value entry; %1 refused").arg(solution(i) % 9 + 1));
    }

    // Only the tile that changes is announced; the focus and the caret's mode follow the caret.
    void events_data() {
        QTest::addColumn<bool>("pencil");
        QTest::newRow("pencil marks hidden") << false;
        QTest::newRow("pencil marks shown") << true;
    }
    void events() {
        QFETCH(bool, pencil);
        pencilMarks(pencil);
        const int i = firstEmpty(*window), j = firstEmpty(*window, i);
        press(Qt::Key_Down);
        QStringList before, changed;
        for (int k = 0; k < 81; ++k) before << name(k);
        ::events.clear();
        type(solution(i));
        QCOMPARE(name(i), cellName(i) + QString::number(solution(i)));
        for (int k = 0; k < 81; ++k)
            if (name(k) != before[k]) changed << QString("%1:name").arg(k);
        ::events.sort();
        changed.sort();
        QCOMPARE(::events, changed);  // once each: the digit shows at once, and the engine's answer changes nothing
        if (!pencil) QCOMPARE(changed.size(), 1);  // shown, the candidates that the value takes from its peers go too
        ::events.clear();
        press(Qt::Key_Right);
        QCOMPARE(window->caret(), j);
        QCOMPARE(::events,
                 (QStringList{QString("%1:mode").arg(i), QString("%1:focus").arg(j), QString("%1:mode").arg(j)}));
        QVERIFY(cell(j)->state().focused);
        QVERIFY(cell(j)->state().selected);
        QCOMPARE(cell(j)->text(QAccessible::Description), QString("Caret: value entry"));
        QVERIFY(cell(i)->text(QAccessible::Description).isEmpty());
    }

    // Keys where they cannot act change nothing; the caret comes back where it left. (Keys during a refusal's blink
    // or the celebration: the window test.)
    void badInput_data() {
        QTest::addColumn<int>("level");
        QTest::addColumn<bool>("pencil");
        QTest::addColumn<QString>("keys");    // typed on a board with the value caret on the first empty cell
        QTest::addColumn<int>("caret");       // where the caret ends: -1 none, 0 the first empty cell
        QTest::addColumn<int>("mode");
        QTest::newRow("escape without caret") << int(eng::lvlMedium) << true << "EE" << -1 << 0;
        QTest::newRow("space, pencil marks hidden") << int(eng::lvlMedium) << false << "S" << 0 << 1;
        QTest::newRow("return, pencil marks hidden") << int(eng::lvlMedium) << false << "R" << 0 << 1;
        QTest::newRow("return, many candidates") << int(eng::lvlUserEdit) << true << "SR" << 0 << 2;
        QTest::newRow("escape, then back to the cell left") << int(eng::lvlMedium) << true << "EL" << 0 << 1;
        QTest::newRow("space, then tab: the caret stays") << int(eng::lvlMedium) << true << "ST" << 0 << 2;
        QTest::newRow("no empty cell") << int(eng::lvlCompleted) << true << "DSRLE" << -1 << 0;
    }
    void badInput() {
        QFETCH(int, level);
        QFETCH(bool, pencil);
        QFETCH(QString, keys);
        QFETCH(int, caret);
        QFETCH(int, mode);
        MessageBoxAnswerer answerer;
        std::srand(7);
        const char* action[] = {"actionNewGameCompleted", "actionNewGameVeryEasy", "", "actionNewGameMedium", "",
                                "actionNewGameUserEdit"};
        trigger(*window, action[level]);
        pencilMarks(pencil);
        const int first = firstEmpty(*window);
        press(Qt::Key_Down);
        for (QChar k : keys) {
            const char* from = "ESRDLT";
            const Qt::Key key[] = {Qt::Key_Escape, Qt::Key_Space, Qt::Key_Return,
                                   Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Tab};
            if (const char* at = strchr(from, k.toLatin1())) press(key[at - from]);
        }
        const int expected = caret < 0 ? -1 : first;
        QCOMPARE(window->caret(), expected);
        if (expected >= 0) QCOMPARE(int(window->tileAt(expected)->caret()), mode);
        if (first >= 0) QVERIFY(!window->tileAt(first)->hasValue());
    }
};

QTEST_MAIN(AccessibilityTest)
#include "test_accessibility.moc"
