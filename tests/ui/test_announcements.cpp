// What a screen reader is told of moves and reading keys: once each, English and German, nothing without a reader.
// Offscreen has no screen reader, so accessibility is switched on by hand, as Qt's own tests do.
#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "Translations.h"
#include "WindowTestSupport.h"

static QStringList spoken;  // the text of every notification that appeared
static void record(QAccessibleEvent* event) {
    QAccessibleInterface* i = event->type() == QAccessible::ObjectShow ? event->accessibleInterface() : nullptr;
    if (i && i->role() == QAccessible::Notification) spoken << i->text(QAccessible::Name);
}

class AnnouncementsTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase() { QAccessible::installUpdateHandler(record); }

    // The game (UserEdit: a board with 7, 4, 9 and 2 at rows 3, 3, 1, 5, columns 8, 4, 5, 5; others a generated
    // game, changed as named), the cell the keys are typed on (none: cell i below), the keys, the texts then said.
    void announcements_data() {
        for (const char* column : {"language", "game", "cell", "keys", "said"}) QTest::addColumn<QString>(column);
        QTest::newRow("row clash, placed, reading keys, then without the caret")
            << "en" << "UserEdit" << "22" << "75RCBN.R"
            << "7 refused: row 3 already has 7 at column 8|Row 3, column 5: 5|"
               "Row 3: empty, empty, empty, 4, 5, empty, empty, 7, empty|"
               "Column 5: 9, empty, 5, empty, 2, empty, empty, empty, empty|"
               "Box 2: empty, 9, empty, empty, empty, empty, 4, 5, empty|"
               "Still to place: 9 of digit 1, 8 of digit 2, 9 of digit 3, 8 of digit 4, 8 of digit 5, 9 of digit 6, "
               "8 of digit 7, 9 of digit 8, 8 of digit 9|Row 3: empty, empty, empty, 4, 5, empty, empty, 7, empty";
        QTest::newRow("column") << "en" << "UserEdit" << "70" << "7" << "7 refused: column 8 already has 7 at row 3";
        QTest::newRow("German") << "de" << "UserEdit" << "15" << "75B" << "7 abgelehnt: Block 3 hat schon 7 in "
            "Zeile 3, Spalte 8|Zeile 2, Spalte 7: 5|Block 3: leer, leer, leer, 5, leer, leer, leer, 7, leer";
        QTest::newRow("refused, marks toggled, placed, retracted, made again")
            << "en" << "generated" << "" << "wp wwr prum"
            << "%w refused: not this cell's digit|candidate %w removed|candidate %w back|candidate %r refused|%c%r|"
               "%cempty|%c%r";
        // Bad input: each text once and in order, or nothing.
        QTest::newRow("full board") << "en" << "Completed" << "" << "R.N"
                                    << "New game, difficulty: none, 0 empty cells|%R|Every digit is placed";
        QTest::newRow("during a blink") << "en" << "blink" << "" << "w" << "%w refused: not this cell's digit|%R";
        QTest::newRow("during the celebration")
            << "en" << "celebration" << "" << "r" << "%c%r. The board is complete|Every digit is placed";
        QTest::newRow("opened") << "en" << "opened" << "" << "" << "Game opened, difficulty: Medium, %e empty cells";
        QTest::newRow("no reader") << "en" << "no reader" << "" << "wrRN" << "";
    }
    void announcements() {
        QFETCH(QString, language);
        QFETCH(QString, game);
        QFETCH(QString, keys);
        QFETCH(QString, said);
        QFETCH(QString, cell);
        Translations catalogue{QLocale(language)};
        QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(game != "no reader");
        std::unique_ptr<SudokuWindow> w(shownWindow());
        MessageBoxAnswerer answerer;
        QTemporaryDir dir;
        w->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("game.sud"); });
        if (game == "UserEdit" || game == "Completed") trigger(*w, ("actionNewGame" + game).toLatin1());
        eng::Board& board = *w->currentBoard();
        for (auto [k, v] : {std::pair{25, 7}, {21, 4}, {4, 9}, {40, 2}})
            if (game == "UserEdit") board.setValue(k, v), spoken.clear();
        int i = 0, wrong = 0, right = 0;  // a cell that refuses `wrong` with nothing clashing, and its own digit
        for (int k = 80; k >= 0; --k)
            for (int v = 1; v <= 9; ++v)
                if (!board.cell(k)->value() && v != board.solutionValue(k) && board.cell(k)->isPotential(v) &&
                    board.clashingCell(k, v) < 0) i = k, wrong = v, right = board.solutionValue(k);
        for (int k = 0; game == "celebration" && k < 81; ++k)
            if (k != i && !board.cell(k)->value()) board.setValue(k, board.solutionValue(k));
        if (game == "opened") trigger(*w, "actionSaveGame"), trigger(*w, "actionOpenGame");
        QTimer poll;  // R or N typed once, as soon as the blink or the celebration runs
        connect(&poll, &QTimer::timeout, [&] {
            if (w->tileAt(i)->isAnimating() || w->highlight())
                poll.stop(), QTest::keyClick(w->focusWidget(), w->highlight() ? Qt::Key_N : Qt::Key_R);
        });
        if (game == "blink" || game == "celebration") poll.start(5);

        // On the cell: digits, w r, R C B N, '.' Esc, ' ' Space; once idle p u m: Pencil Marks, Retract, Make Move.
        if (const int at = cell.isEmpty() ? i : cell.toInt(); w->caret() != at) w->tileLeftClicked(at);
        const auto idle = [&] { return QTest::qWaitFor([&] { return !w->isBusy(); }, 20000); };
        for (QChar k : keys.replace('w', QString::number(wrong)).replace('r', QString::number(right))) {
            const int action = QString("pum").indexOf(k);
            if (action < 0) QTest::keyClick(w->focusWidget(), k == '.' ? Qt::Key_Escape : Qt::Key(k.unicode()));
            else if (idle())
                trigger(*w, std::array{"actionViewPencilMarks", "actionRetractMove", "actionMakeMove"}[action]);
        }
        QVERIFY(idle());
        QCoreApplication::processEvents();
        // The texts said, split by "|": %w, %r, %c the cell ("Row 1, column 2: "), %R its row read, %e the empty cells.
        const std::vector<int> v = shownValues(*w);
        QStringList row;
        for (int k = i / 9 * 9; k < i / 9 * 9 + 9; ++k) row << (v[k] ? QString::number(v[k]) : "empty");
        said.replace("%w", QString::number(wrong)).replace("%r", QString::number(right))
            .replace("%c", QString("Row %1, column %2: ").arg(i / 9 + 1).arg(i % 9 + 1))
            .replace("%R", QString("Row %1: %2").arg(i / 9 + 1).arg(row.join(", ")))
            .replace("%e", QString::number(std::count(v.begin(), v.end(), 0)));
        QCOMPARE(std::exchange(spoken, {}), said.split('|', Qt::SkipEmptyParts));
        for (QWidget* c : game == "no reader" ? w->findChildren<QWidget*>() : QList<QWidget*>())  // none shown either
            QVERIFY(c->isHidden() || QAccessible::queryAccessibleInterface(c)->role() != QAccessible::Notification);
    }
};

QTEST_MAIN(AnnouncementsTest)
#include "test_announcements.moc"
