// Game → Copy Puzzle and Paste Puzzle: the clipboard round trip, the question before the game is replaced, the
// refusals that leave the board alone, and a pasted game that plays (and is labelled) like a generated one.
#include <QClipboard>
#include <QLabel>
#include <QScreen>

#include "Translations.h"
#include "WindowTestSupport.h"

namespace {

const QString kExpert = "..7.....19.2...5...6.7.3........8..3..56.24..8..9........4.6.9...3...7.51.....8..";

// Ctrl+C or Ctrl+V on the board. Shortcuts work in the active window, which a closed message box need not give back.
void keys(SudokuWindow& window, Qt::Key key) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window, 30000)) qFatal("window not active");
    QTest::keyClick(window.tileAt(40), key, Qt::ControlModifier);
}

// Pastes `text`, answering every box with `answer`; returns the boxes' texts.
QStringList paste(SudokuWindow& window, const QString& text, QMessageBox::StandardButton answer = QMessageBox::Yes) {
    QGuiApplication::clipboard()->setText(text);
    MessageBoxAnswerer answerer(answer);
    keys(window, Qt::Key_V);
    return answerer.texts;
}

}  // namespace

class PasteTest : public QObject {
    Q_OBJECT

private slots:
    void refusalsLeaveTheGame_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("message");
        QTest::newRow("letters") << "Hello" << "The clipboard holds no puzzle.";
        QTest::newRow("80 cells") << kExpert.left(80) << "The clipboard holds no puzzle.";
        QTest::newRow("conflict") << "11" + kExpert.mid(2) << "cannot be played";
        QTest::newRow("no solution") << "12345678." + QString(8, '.') + "9" + QString(63, '.') << "no solution";
        QTest::newRow("two solutions") << QString(81, '0') << "more than one solution";
        QTest::newRow("declined") << kExpert << "Current game will be lost.\nContinue?";
    }
    void refusalsLeaveTheGame() {
        QFETCH(QString, text);
        QFETCH(QString, message);
        std::unique_ptr<SudokuWindow> window(shownWindow());
        const eng::Board* board = window->currentBoard();
        const std::vector<int> before = shownValues(*window);
        const QStringList texts = paste(*window, text, QMessageBox::No);
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts[0].contains(message), qPrintable(texts[0]));
        QCOMPARE(window->currentBoard(), board);
        QVERIFY(shownValues(*window) == before);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
    }

    // The generated game copied and pasted back keeps its level; an Expert puzzle refuses a wrong digit, takes the
    // right one, and is copied as it stands.
    void pastedGamesPlayAndCopyBack() {
        std::unique_ptr<SudokuWindow> window(shownWindow());
        keys(*window, Qt::Key_C);
        const QString medium = QGuiApplication::clipboard()->text();
        QCOMPARE(paste(*window, medium).size(), 1);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
        const QString fromWeb = kExpert.left(9) + QChar(0xa0) + kExpert.mid(9);  // a no-break space
        QCOMPARE(paste(*window, fromWeb), QStringList{"Current game will be lost.\nContinue?"});
        QCOMPARE(window->labelLevel(), eng::gradeExpert);
        QCOMPARE(window->levelText(), QString("difficulty: Expert"));
        const eng::Board* game = window->currentBoard();
        const int right = game->solutionValue(0), wrong = right % 9 + 1;
        window->tileValueEdited(0, wrong);
        QCOMPARE(game->cell(0)->value(), 0);
        window->tileValueEdited(0, right);
        keys(*window, Qt::Key_C);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::number(right) + kExpert.mid(1));
    }

    // The label's new text is whole in every language, with a picture of the window (run on xcb to see the screen).
    void expertLabelFits_data() { addLanguageRows(); }
    void expertLabelFits() {
        QFETCH(QString, language);
        const Translations translations{QLocale(language)};
        std::unique_ptr<SudokuWindow> window(shownWindow());
        QCOMPARE(paste(*window, kExpert).size(), 1);
        auto* label = child<QLabel>(*window, "txtLevel");
        QCOMPARE(label->text(), QCoreApplication::translate("SudokuWindow", "difficulty: Expert"));
        QVERIFY(label->width() >= label->sizeHint().width());
        QVERIFY(window->rect().contains(QRect(label->mapTo(window.get(), QPoint()), label->size())));
        window->repaint();
        savePicture(window->screen()->grabWindow(window->winId()).toImage(), "paste_expert_" + language);
    }
};

QTEST_MAIN(PasteTest)
#include "test_paste.moc"
