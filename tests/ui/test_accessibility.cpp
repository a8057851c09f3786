// What a screen reader gets of the board: a 9 x 9 table of cells named in words, the caret described, change events.
#include <QAccessible>
// The offscreen platform has no screen reader; its accessibility is switched on by hand, as Qt's own tests do.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "WindowTestSupport.h"

// The accessibility events of the board and its tiles, as "tile index:kind".
static QStringList events;
static void record(QAccessibleEvent* event) {
    static const QMap<int, QString> kinds{
        {QAccessible::NameChanged, "name"}, {QAccessible::DescriptionChanged, "mode"}, {QAccessible::Focus, "focus"}};
    const QString kind = kinds.value(event->type());
    auto* tile = qobject_cast<Tile*>(event->object());
    if (!kind.isEmpty() && tile) events << QString("%1:%2").arg(tile->index()).arg(kind);
    if (!kind.isEmpty() && event->object()->objectName() == "boardWidget") events << "board:" + kind;
}

static QString cellName(int i) { return QString("Row %1, column %2: ").arg(i / 9 + 1).arg(i % 9 + 1); }

class AccessibilityTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QAccessibleInterface* cell(int i) { return QAccessible::queryAccessibleInterface(window->tileAt(i)); }
    QString name(int i) { return cell(i)->text(QAccessible::Name); }
    QString description(int i) { return cell(i)->text(QAccessible::Description); }
    int solution(int i) { return window->currentBoard()->solutionValue(i); }
    void press(int key) { QTest::keyClick(window->focusWidget(), Qt::Key(key)); }

private slots:
    void initTestCase() {
        QAccessible::installUpdateHandler(record);
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    }
    void init() {
        window = shownWindow();
        QApplication::setActiveWindow(window);
        QVERIFY(QTest::qWaitForWindowActive(window));
    }
    void cleanup() { delete window; }

    // A 9 x 9 table of leaf cells at their row and column.
    void tableShape() {
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(child<QWidget>(*window, "boardWidget"));
        QCOMPARE(table->role(), QAccessible::Table);
        QCOMPARE(table->text(QAccessible::Name), QString("Sudoku board"));
        QAccessibleTableInterface* t = table->tableInterface();
        QCOMPARE(QSize(t->columnCount(), t->rowCount()), QSize(9, 9));
        QCOMPARE(table->childCount(), 82);  // the cells and the level label
        QCOMPARE(table->child(81)->text(QAccessible::Name), QString("difficulty: Medium"));
        for (int i = 0; i < 81; ++i) {
            QAccessibleInterface* c = t->cellAt(i / 9, i % 9);
            QVERIFY2(c->object() == window->tileAt(i) && table->child(i) == c && table->indexOfChild(c) == i &&
                         c->role() == QAccessible::Cell && c->childCount() == 0 && c->parent() == table &&
                         c->tableCellInterface()->rowIndex() * 9 + c->tableCellInterface()->columnIndex() == i &&
                         table->childAt(c->rect().center().x(), c->rect().center().y()) == c,
                     qPrintable(QString::number(i)));
        }
    }

    // Names of given, empty (with candidates shown), placed and refused cells; only changed tiles are announced.
    void namesAndEvents_data() {
        QTest::addColumn<bool>("pencil");
        QTest::newRow("pencil marks hidden") << false;
        QTest::newRow("pencil marks shown") << true;
    }
    void namesAndEvents() {
        QFETCH(bool, pencil);
        if (pencil) trigger(*window, "actionViewPencilMarks");
        const int g = firstFilled(*window), i = firstEmpty(*window), j = firstEmpty(*window, i);
        QCOMPARE(name(g), cellName(g) + QString("%1, given").arg(solution(g)));
        QString candidates;
        for (int v = 1; v <= 9; ++v)
            if (window->currentBoard()->cell(i)->isPotential(v)) candidates += QString(" %1").arg(v);
        QCOMPARE(name(i), cellName(i) + "empty" + (pencil ? ", candidates" + candidates : ""));
        press(Qt::Key_Down);  // the caret onto the first empty cell
        QStringList before, changed;
        for (int k = 0; k < 81; ++k) before << name(k);
        events.clear();
        press(Qt::Key_0 + solution(i));
        QCOMPARE(name(i), cellName(i) + QString::number(solution(i)));
        for (int k = 0; k < 81; ++k)
            if (name(k) != before[k]) changed << QString("%1:name").arg(k);
        events.sort(), changed.sort();
        QCOMPARE(events, changed);  // once each: the digit shows at once, and the engine's answer changes nothing
        if (!pencil) QCOMPARE(changed.size(), 1);  // shown, the candidates that the value takes from its peers go too
        events.clear();
        press(Qt::Key_Right);
        QCOMPARE(events.join(' '), QString("%1:mode %2:focus %2:mode").arg(i).arg(j));
        QVERIFY(cell(j)->state().focused && cell(j)->state().selected);
        QCOMPARE(description(j), QString("Caret: value entry"));
        QVERIFY(description(i).isEmpty());
        const QString empty = name(j), wrong = QString::number(solution(j) % 9 + 1);
        press(Qt::Key_0 + solution(j) % 9 + 1);  // in words in the description too, which readers speak for the caret
        QCOMPARE(name(j), empty + "; " + wrong + " refused");
        QCOMPARE(description(j), "Caret: value entry; " + wrong + " refused");
    }
};

QTEST_MAIN(AccessibilityTest)
#include "test_accessibility.moc"
