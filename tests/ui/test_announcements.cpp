// What a screen reader is told of moves and on the reading keys: each result once, as a notification that appears
// with its text, in English and German; nothing while no reader listens.
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
    int i = 0, wrong = 0, right = 0;  // a cell that refuses `wrong` with nothing clashing, and its digit
    eng::Board& board() { return *w->currentBoard(); }

    // Keys typed on cell `at`: digits, w and r, R C B N, '.' Escape, ' ' Space; p u m trigger Pencil Marks, Retract and
    // Make Move once the game is idle. Then what was said.
    QStringList play(int at, QString keys) {
        const QMap<QChar, const char*> actions{{'p', "actionViewPencilMarks"}, {'u', "actionRetractMove"},
                                               {'m', "actionMakeMove"}};
        if (w->caret() != at) w->tileLeftClicked(at);
        for (QChar k : keys.replace('w', QString::number(wrong)).replace('r', QString::number(right)))
            if (!actions.contains(k))
                QTest::keyClick(w->focusWidget(), k == '.' ? Qt::Key_Escape : Qt::Key(k.unicode()));
            else if (QTest::qWaitFor([this] { return !w->isBusy(); }, 20000))
                trigger(*w, actions[k]);
        if (!QTest::qWaitFor([this] { return !w->isBusy(); }, 20000)) return {"still busy"};
        QCoreApplication::processEvents();
        return std::exchange(spoken, {});
    }
    // The texts split by "|", with %w, %r, %c the cell ("Row 1, column 2: "), %R its row read, %e the empty cells.
    QStringList expected(QString said) {
        const std::vector<int> v = shownValues(*w);
        QStringList row;
        for (int k = i / 9 * 9; k < i / 9 * 9 + 9; ++k) row << (v[k] ? QString::number(v[k]) : "empty");
        return said.replace("%w", QString::number(wrong)).replace("%r", QString::number(right))
            .replace("%c", QString("Row %1, column %2: ").arg(i / 9 + 1).arg(i % 9 + 1))
            .replace("%R", QString("Row %1: %2").arg(i / 9 + 1).arg(row.join(", ")))
            .replace("%e", QString::number(std::count(v.begin(), v.end(), 0))).split('|', Qt::SkipEmptyParts);
    }

private slots:
    void initTestCase() { QAccessible::installUpdateHandler(record); }

    // edit: a User Edit board with 7, 4, 9 and 2 at rows 3, 3, 1, 5, columns 8, 4, 5, 5. Others: a generated game,
    // changed as named; keys on cell i (-1) or a given one.
    void announcements_data() {
        for (const char* column : {"language", "game", "keys", "said"}) QTest::addColumn<QString>(column);
        QTest::addColumn<int>("cell");
        QTest::newRow("placed") << "en" << "edit" << "5" << "Row 3, column 5: 5" << 22;
        QTest::newRow("row clash") << "en" << "edit" << "7" << "7 refused: row 3 already has 7 at column 8" << 22;
        QTest::newRow("column clash") << "en" << "edit" << "7" << "7 refused: column 8 already has 7 at row 3" << 70;
        QTest::newRow("box clash") << "en" << "edit" << "7" << "7 refused: box 3 already has 7 at row 3, column 8" << 15;
        QTest::newRow("reading keys, then without the caret")
            << "en" << "edit" << "RCBN.R"
            << "Row 3: empty, empty, empty, 4, empty, empty, empty, 7, empty|"
               "Column 5: 9, empty, empty, empty, 2, empty, empty, empty, empty|"
               "Box 2: empty, 9, empty, empty, empty, empty, 4, empty, empty|"
               "Still to place: 9 of digit 1, 8 of digit 2, 9 of digit 3, 8 of digit 4, 9 of digit 5, 9 of digit 6, "
               "8 of digit 7, 9 of digit 8, 8 of digit 9|"
               "Row 3: empty, empty, empty, 4, empty, empty, empty, 7, empty"
            << 22;
        QTest::newRow("German") << "de" << "edit" << "75B"
                                << "7 abgelehnt: Block 3 hat schon 7 in Zeile 3, Spalte 8|Zeile 2, Spalte 7: 5|"
                                   "Block 3: leer, leer, leer, 5, leer, leer, leer, 7, leer"
                                << 15;
        QTest::newRow("refused, marks toggled, placed, retracted, made again")
            << "en" << "generated" << "wp wwr prum"
            << "%w refused: not this cell's digit|candidate %w removed|candidate %w back|candidate %r refused|%c%r|"
               "%cempty|%c%r"
            << -1;
        // Bad input: each text once and in order, or nothing.
        QTest::newRow("full board") << "en" << "completed" << "R.N"
                                    << "New game, difficulty: none, 0 empty cells|%R|Every digit is placed" << -1;
        QTest::newRow("during a blink") << "en" << "blink" << "w" << "%w refused: not this cell's digit|%R" << -1;
        QTest::newRow("during the celebration")
            << "en" << "celebration" << "r" << "%c%r. The board is complete|Every digit is placed" << -1;
        QTest::newRow("opened game") << "en" << "opened" << "" << "Game opened, difficulty: Medium, %e empty cells" << -1;
        QTest::newRow("no reader") << "en" << "no reader" << "wrRN" << "" << -1;
    }
    void announcements() {
        QFETCH(QString, language);
        QFETCH(QString, game);
        QFETCH(QString, keys);
        QFETCH(QString, said);
        QFETCH(int, cell);
        Translations catalogue{QLocale(language)};
        setActive(true);
        std::unique_ptr<SudokuWindow> window(w = shownWindow());
        spoken.clear();
        MessageBoxAnswerer answerer;
        QTemporaryDir dir;
        w->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("game.sud"); });
        if (game == "edit") {
            trigger(*w, "actionNewGameUserEdit");
            for (int k : {25, 21, 4, 40}) board().setValue(k, k == 25 ? 7 : k == 21 ? 4 : k == 4 ? 9 : 2);
            spoken.clear();
        }
        if (game == "completed") trigger(*w, "actionNewGameCompleted");
        i = wrong = right = 0;
        for (int k = 80; k >= 0; --k)
            for (int v = 1; v <= 9; ++v)
                if (!board().cell(k)->value() && v != board().solutionValue(k) && board().cell(k)->isPotential(v) &&
                    board().clashingCell(k, v) < 0)
                    i = k, wrong = v, right = board().solutionValue(k);
        for (int k = 0; game == "celebration" && k < 81; ++k)
            if (k != i && !board().cell(k)->value()) board().setValue(k, board().solutionValue(k));
        if (game == "opened") trigger(*w, "actionSaveGame"), trigger(*w, "actionOpenGame");
        QTimer poll;  // R or N typed once, as soon as the blink or the celebration runs
        connect(&poll, &QTimer::timeout, [&] {
            if (w->tileAt(i)->isAnimating() || w->highlight())
                poll.stop(), QTest::keyClick(w->focusWidget(), w->highlight() ? Qt::Key_N : Qt::Key_R);
        });
        if (game == "blink" || game == "celebration") poll.start(5);
        setActive(game != "no reader");
        QCOMPARE(play(cell < 0 ? i : cell, keys), expected(said));
    }
};

QTEST_MAIN(AnnouncementsTest)
#include "test_announcements.moc"