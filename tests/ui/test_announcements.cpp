// What a screen reader is told of moves and on the reading keys: each result once, as a notification that appears
// with its text, in English and German; nothing while no reader listens; the board's tree as before.
#include <QAccessible>
#include <QTemporaryDir>
// The offscreen platform has no screen reader; its accessibility is switched on by hand, as Qt's own tests do.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "Translations.h"
#include "WindowTestSupport.h"

namespace {
QStringList spoken;  // the text of every notification that appeared
void record(QAccessibleEvent* event) {
    QAccessibleInterface* i = event->type() == QAccessible::ObjectShow ? event->accessibleInterface() : nullptr;
    if (i && i->role() == QAccessible::Notification) spoken << i->text(QAccessible::Name);
}
void setActive(bool on) { QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on); }
}  // namespace

class AnnouncementsTest : public QObject {
    Q_OBJECT
    SudokuWindow* w = nullptr;
    eng::Board& board() { return *w->currentBoard(); }

    // Keys typed with the caret on `at` (-1: where it is): digits, R C B N, "." Escape, " " Space; then what was said.
    QStringList play(int at, const QString& keys) {
        if (at >= 0 && w->caret() != at) w->tileLeftClicked(at);
        for (QChar k : keys)
            QTest::keyClick(w->focusWidget() ? w->focusWidget() : w,
                            k == '.' ? Qt::Key_Escape : k == ' ' ? Qt::Key_Space : Qt::Key(k.unicode()));
        if (!QTest::qWaitFor([this] { return !w->isBusy(); }, 20000)) return {"still busy"};
        QCoreApplication::processEvents();
        return std::exchange(spoken, {});
    }
    QString row(int r) {
        QStringList cells;
        for (int i = r * 9; i < r * 9 + 9; ++i)
            cells << (board().cell(i)->value() ? QString::number(board().cell(i)->value()) : "empty");
        return QString("Row %1: %2").arg(r + 1).arg(cells.join(", "));
    }

private slots:
    void initTestCase() {
        QAccessible::installUpdateHandler(record);
        setActive(true);
    }
    void init() {
        w = shownWindow();
        spoken.clear();
    }
    void cleanup() {
        delete w;
        setActive(true);
    }

    // A User Edit board with 7, 4, 9 and 2 at rows 3, 3, 1, 5, columns 8, 4, 5, 5; keys typed on one cell.
    void userEdit_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<int>("cell");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("said");  // the texts, split by "|"
        QTest::newRow("placed") << "en" << 22 << "5" << "Row 3, column 5: 5";
        QTest::newRow("row clash") << "en" << 22 << "7" << "7 refused: row 3 already has 7 at column 8";
        QTest::newRow("column clash") << "en" << 70 << "7" << "7 refused: column 8 already has 7 at row 3";
        QTest::newRow("box clash") << "en" << 15 << "7" << "7 refused: box 3 already has 7 at row 3, column 8";
        QTest::newRow("reading keys, then without the caret")
            << "en" << 22 << "RCBN.R"
            << "Row 3: empty, empty, empty, 4, empty, empty, empty, 7, empty|"
               "Column 5: 9, empty, empty, empty, 2, empty, empty, empty, empty|"
               "Box 2: empty, 9, empty, empty, empty, empty, 4, empty, empty|"
               "Still to place: 9 of digit 1, 8 of digit 2, 9 of digit 3, 8 of digit 4, 9 of digit 5, 9 of digit 6, "
               "8 of digit 7, 9 of digit 8, 8 of digit 9|"
               "Row 3: empty, empty, empty, 4, empty, empty, empty, 7, empty";
        QTest::newRow("German") << "de" << 15 << "75B"
                                << "7 abgelehnt: Block 3 hat schon 7 in Zeile 3, Spalte 8|Zeile 2, Spalte 7: 5|"
                                   "Block 3: leer, leer, leer, 5, leer, leer, leer, 7, leer";
    }
    void userEdit() {
        QFETCH(QString, language);
        QFETCH(int, cell);
        QFETCH(QString, keys);
        QFETCH(QString, said);
        Translations catalogue{QLocale(language)};
        MessageBoxAnswerer answerer;
        trigger(*w, "actionNewGameUserEdit");
        for (int i : {25, 21, 4, 40}) board().setValue(i, i == 25 ? 7 : i == 21 ? 4 : i == 4 ? 9 : 2);
        spoken.clear();
        QCOMPARE(play(cell, keys), said.split('|'));
    }

    // A generated game: a digit refused with nothing clashing, candidates toggled, a digit placed, retracted, remade.
    void generatedGame() {
        int i = -1, wrong = 0, right = 0;
        for (int k = 80; k >= 0; --k)
            for (int v = 1; v <= 9; ++v)
                if (!board().cell(k)->value() && v != board().solutionValue(k) && board().cell(k)->isPotential(v) &&
                    board().clashingCell(k, v) < 0)
                    i = k, wrong = v, right = board().solutionValue(k);
        QCOMPARE(play(i, QString::number(wrong)), QStringList{QString("%1 refused: not this cell's digit").arg(wrong)});
        trigger(*w, "actionViewPencilMarks");
        const QString toggled = QString("candidate %1 removed|candidate %1 back|candidate %2 refused");
        QCOMPARE(play(i, QString(" %1%1%2 ").arg(wrong).arg(right)), toggled.arg(wrong).arg(right).split('|'));
        trigger(*w, "actionViewPencilMarks");
        const QString cell = QString("Row %1, column %2: ").arg(i / 9 + 1).arg(i % 9 + 1);
        QCOMPARE(play(i, QString::number(right)), QStringList{cell + QString::number(right)});
        trigger(*w, "actionRetractMove");
        QCOMPARE(play(-1, ""), QStringList{cell + "empty"});
        trigger(*w, "actionMakeMove");  // brings the retracted digit back
        QCOMPARE(play(-1, ""), QStringList{cell + QString::number(right)});
    }

    // Each text once and in order, or nothing, where the keys and moves meet something else.
    void badInput_data() {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"full board", "during a blink", "during the celebration", "opened game", "no reader"})
            QTest::newRow(kind) << kind;
    }
    void badInput() {
        QFETCH(QString, kind);
        MessageBoxAnswerer answerer;
        const int i = firstEmpty(*w), right = board().solutionValue(i), wrong = right % 9 + 1;
        QTemporaryDir dir;
        w->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("game.sud"); });
        QTimer poll;  // R or N typed once, as soon as the blink or the celebration runs
        connect(&poll, &QTimer::timeout, [&] {
            if (!w->tileAt(i)->isAnimating() && !w->highlight()) return;
            poll.stop();
            QTest::keyClick(w->focusWidget(), w->highlight() ? Qt::Key_N : Qt::Key_R);
        });
        if (kind.startsWith("during")) poll.start(5);
        if (kind == "full board") {
            trigger(*w, "actionNewGameCompleted");
            QCOMPARE(play(-1, "R.N"),
                     QStringList({"New game, difficulty: none, 0 empty cells", row(0), "Every digit is placed"}));
        } else if (kind == "during a blink") {
            const QStringList said = play(i, QString::number(wrong));
            QCOMPARE(said.size(), 2);
            QVERIFY(said[0].startsWith(QString("%1 refused: ").arg(wrong)));
            QCOMPARE(said[1], row(i / 9));
        } else if (kind == "during the celebration") {
            for (int k = 0; k < 81; ++k)
                if (k != i && !board().cell(k)->value()) board().setValue(k, board().solutionValue(k));
            const QString last = QString("Row %1, column %2: %3").arg(i / 9 + 1).arg(i % 9 + 1).arg(right);
            QCOMPARE(play(i, QString::number(right)),
                     QStringList({last + ". The board is complete", "Every digit is placed"}));
            QCOMPARE(answerer.texts, QStringList{"Congratulations!"});
        } else if (kind == "opened game") {
            trigger(*w, "actionSaveGame");
            trigger(*w, "actionOpenGame");
            const std::vector<int> values = shownValues(*w);
            const auto empty = std::count(values.begin(), values.end(), 0);
            QCOMPARE(play(-1, ""), QStringList{QString("Game opened, difficulty: Medium, %1 empty cells").arg(empty)});
        } else {
            setActive(false);
            QCOMPARE(play(i, QString("%1%2RN").arg(wrong).arg(right)), QStringList());
        }
    }
};

QTEST_MAIN(AnnouncementsTest)
#include "test_announcements.moc"
