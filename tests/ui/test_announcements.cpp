// What a screen reader is told of each move and on the reading keys: every result once, as a notification that
// appears with its text, in English and in German; nothing when no reader listens; the board's tree unchanged.
#include <QAccessible>
#include <QRegularExpression>
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
    if (event->type() != QAccessible::ObjectShow) return;
    QAccessibleInterface* i = event->accessibleInterface();
    if (i && i->role() == QAccessible::Notification) spoken << i->text(QAccessible::Name);
}

void setActive(bool on) { QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on); }

}  // namespace

class AnnouncementsTest : public QObject {
    Q_OBJECT

    SudokuWindow* window = nullptr;
    QString language;
    eng::Board* board() { return window->currentBoard(); }
    int solution(int i) { return board()->solutionValue(i); }
    QString t(const char* english, const char* german) { return language == "de" ? german : english; }
    QString cellText(int i, int value) {
        return (value ? t("Row %1, column %2: %3", "Zeile %1, Spalte %2: %3")
                      : t("Row %1, column %2: empty%3", "Zeile %1, Spalte %2: leer%3"))
            .arg(i / 9 + 1)
            .arg(i % 9 + 1)
            .arg(value ? QString::number(value) : QString());
    }
    void press(int key) {
        QWidget* to = window->focusWidget();
        QTest::keyClick(to ? to : window, Qt::Key(key));
    }
    void type(int cell, int digit) {
        if (window->caret() != cell) window->tileLeftClicked(cell);
        press(Qt::Key_0 + digit);
    }
    // Exactly these texts were said since the last call, each once.
    void expect(const QStringList& texts) {
        QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
        QCoreApplication::processEvents();
        const QStringList said = spoken;
        spoken.clear();
        QCOMPARE(said, texts);
    }
    // Runs `action` once, as soon as `now` holds (polled while a blink or the celebration runs).
    void when(std::function<bool()> now, std::function<void()> action) {
        auto* poll = new QTimer(window);
        connect(poll, &QTimer::timeout, [=] {
            if (!now()) return;
            poll->stop();
            action();
        });
        poll->start(5);
    }
    bool inPeers(int i, int value) {
        for (int k = 0; k < 81; ++k)
            if (board()->cell(k)->value() == value &&
                (k / 9 == i / 9 || k % 9 == i % 9 || (k / 27 == i / 27 && k % 9 / 3 == i % 9 / 3)))
                return true;
        return false;
    }
    QString listed(std::vector<int> cells) {
        QStringList values;
        for (int k : cells) values << (board()->cell(k)->value() ? QString::number(board()->cell(k)->value()) : "empty");
        return values.join(", ");
    }
    // All but `last` filled with the solution, by the engine alone (nothing said).
    void fillAllBut(int last) {
        for (int i = 0; i < 81; ++i)
            if (i != last && !board()->cell(i)->value()) board()->setValue(i, solution(i));
    }

private slots:
    void initTestCase() {
        QAccessible::installUpdateHandler(record);
        setActive(true);
        QVERIFY(QAccessible::isActive());
    }
    void init() {
        language = "en";
        window = shownWindow();
        spoken.clear();
    }
    void cleanup() {
        delete window;
        setActive(true);
    }

    // A generated game, then a User Edit game with digits where the clashes are known.
    void moves_data() {
        QTest::addColumn<QString>("lang");
        QTest::newRow("English") << "en";
        QTest::newRow("German") << "de";
    }
    void moves() {
        QFETCH(QString, lang);
        language = lang;
        Translations catalogue{QLocale(lang)};
        MessageBoxAnswerer answerer;
        // An empty cell, a candidate there that is not its digit, and nothing in its row, column or box that clashes.
        int i = -1, wrong = 0;
        for (int k = firstEmpty(*window); k >= 0 && !wrong; k = firstEmpty(*window, k))
            for (int v = 1; v <= 9 && !wrong; ++v)
                if (v != solution(k) && board()->cell(k)->isPotential(v) && !inPeers(k, v)) i = k, wrong = v;
        QVERIFY(wrong);
        type(i, wrong);
        expect({t("%1 refused: not this cell's digit", "%1 abgelehnt: nicht die Ziffer dieses Felds").arg(wrong)});
        trigger(*window, "actionViewPencilMarks");
        press(Qt::Key_Space);  // pencil caret
        press(Qt::Key_0 + wrong);
        press(Qt::Key_0 + wrong);
        press(Qt::Key_0 + solution(i));
        expect({t("candidate %1 removed", "Kandidat %1 entfernt").arg(wrong),
                t("candidate %1 back", "Kandidat %1 wieder da").arg(wrong),
                t("candidate %1 refused", "Kandidat %1 abgelehnt").arg(solution(i))});
        press(Qt::Key_Space);  // value caret
        trigger(*window, "actionViewPencilMarks");
        type(i, solution(i));
        expect({cellText(i, solution(i))});
        const std::vector<int> before = shownValues(*window);
        trigger(*window, "actionMakeMove");
        int moved = 0;
        while (moved < 80 && shownValues(*window)[moved] == before[moved]) ++moved;
        expect({cellText(moved, solution(moved))});
        trigger(*window, "actionRetractMove");
        expect({cellText(moved, 0)});

        trigger(*window, "actionNewGameUserEdit");
        expect({t("New game, %1, 81 empty cells", "Neues Spiel, %1, 81 leere Felder")
                    .arg(t("difficulty: user edit", "Stufe: eigenes"))});
        for (const auto& given : {std::pair<int, int>{25, 7}, {21, 4}, {4, 9}, {40, 2}}) {
            type(given.first, given.second);
            expect({cellText(given.first, given.second)});
        }
        type(22, 7);
        type(70, 7);
        type(15, 7);
        expect({t("7 refused: row 3 already has 7 at column 8", "7 abgelehnt: Zeile 3 hat schon 7 in Spalte 8"),
                t("7 refused: column 8 already has 7 at row 3", "7 abgelehnt: Spalte 8 hat schon 7 in Zeile 3"),
                t("7 refused: box 3 already has 7 at row 3, column 8",
                  "7 abgelehnt: Block 3 hat schon 7 in Zeile 3, Spalte 8")});
        window->tileLeftClicked(22);
        for (int key : {Qt::Key_R, Qt::Key_C, Qt::Key_B, Qt::Key_N, Qt::Key_Escape, Qt::Key_R}) press(key);
        const QString row = t("Row 3: empty, empty, empty, 4, empty, empty, empty, 7, empty",
                              "Zeile 3: leer, leer, leer, 4, leer, leer, leer, 7, leer");
        expect({row,
                t("Column 5: 9, empty, empty, empty, 2, empty, empty, empty, empty",
                  "Spalte 5: 9, leer, leer, leer, 2, leer, leer, leer, leer"),
                t("Box 2: empty, 9, empty, empty, empty, empty, 4, empty, empty",
                  "Block 2: leer, 9, leer, leer, leer, leer, 4, leer, leer"),
                t("Still to place: 9 of digit 1, 8 of digit 2, 9 of digit 3, 8 of digit 4, 9 of digit 5, 9 of digit 6, "
                  "8 of digit 7, 9 of digit 8, 8 of digit 9",
                  "Noch zu setzen: 9-mal die 1, 8-mal die 2, 9-mal die 3, 8-mal die 4, 9-mal die 5, 9-mal die 6, "
                  "8-mal die 7, 9-mal die 8, 8-mal die 9"),
                row});

        // The tree as before: 81 cells in a 9 x 9 table, named in words, and no bare digit anywhere.
        QAccessibleInterface* table = QAccessible::queryAccessibleInterface(child<QWidget>(*window, "boardWidget"));
        QCOMPARE(table->tableInterface()->rowCount() * table->tableInterface()->columnCount(), 81);
        QCOMPARE(table->childCount(), 82);
        QStringList names, bare;
        std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* node) {
            const QString name = node->text(QAccessible::Name);
            if (node->role() == QAccessible::Cell && name.startsWith(t("Row ", "Zeile "))) names << name;
            if (QRegularExpression("^\\d$").match(name).hasMatch()) bare << name;
            for (int k = 0; k < node->childCount(); ++k) walk(node->child(k));
        };
        walk(QAccessible::queryAccessibleInterface(window));
        QCOMPARE(names.size(), 81);
        QCOMPARE(bare, QStringList());
    }

    // Reading keys and moves where they meet something else: each text still said once, in order, or nothing.
    void badInput_data() {
        QTest::addColumn<QString>("kind");
        for (const char* kind : {"full board", "during a blink", "during the celebration", "opened game", "no reader"})
            QTest::newRow(kind) << kind;
    }
    void badInput() {
        QFETCH(QString, kind);
        MessageBoxAnswerer answerer;
        const int i = firstEmpty(*window);
        if (kind == "full board") {
            trigger(*window, "actionNewGameCompleted");
            for (int key : {Qt::Key_B, Qt::Key_Down, Qt::Key_R, Qt::Key_N}) press(key);
            expect({"New game, difficulty: none, 0 empty cells", "Box 1: " + listed({0, 1, 2, 9, 10, 11, 18, 19, 20}),
                    "Row 1: " + listed({0, 1, 2, 3, 4, 5, 6, 7, 8}), "Every digit is placed"});
        } else if (kind == "during a blink") {
            const int wrong = solution(i) % 9 + 1;
            when([&] { return window->tileAt(i)->isAnimating(); }, [&] { press(Qt::Key_R); });
            type(i, wrong);
            QTRY_VERIFY_WITH_TIMEOUT(!window->isBusy(), 20000);
            QCOMPARE(spoken.size(), 2);
            QVERIFY(spoken[0].startsWith(QString("%1 refused: ").arg(wrong)));
            const int r = i / 9 * 9;
            QCOMPARE(spoken[1], QString("Row %1: ").arg(i / 9 + 1) + listed({r, r + 1, r + 2, r + 3, r + 4, r + 5, r + 6, r + 7, r + 8}));
        } else if (kind == "during the celebration") {
            fillAllBut(i);
            when([&] { return window->highlight() != 0; }, [&] { press(Qt::Key_N); });
            type(i, solution(i));
            expect({cellText(i, solution(i)) + ". The board is complete", "Every digit is placed"});
            QCOMPARE(answerer.texts, QStringList{"Congratulations!"});
        } else if (kind == "opened game") {
            QTemporaryDir dir;
            window->setFileNameProvider([&](SudokuWindow::FileRequest) { return dir.filePath("game.sud"); });
            trigger(*window, "actionSaveGame");
            trigger(*window, "actionOpenGame");
            int empty = 0;
            for (int k = 0; k < 81; ++k) empty += !board()->cell(k)->value();
            expect({QString("Game opened, difficulty: Medium, %1 empty cells").arg(empty)});
        } else {
            setActive(false);
            type(i, solution(i) % 9 + 1);
            type(i, solution(i));
            for (int key : {Qt::Key_R, Qt::Key_N}) press(key);
            trigger(*window, "actionMakeMove");
            trigger(*window, "actionRetractMove");
            expect({});
        }
    }
};

QTEST_MAIN(AnnouncementsTest)
#include "test_announcements.moc"
