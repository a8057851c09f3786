// Game → Copy Puzzle and Paste Puzzle: the clipboard round trip, the question before the game is replaced, the
// refusals that leave the board alone (every refused form is read in the engine's tests), and a pasted game that plays
// (and is labelled) like a generated one.
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
        QVERIFY2(texts.size() == 1 && texts[0].contains(message), qPrintable(texts.join('|')));
        QVERIFY(window->currentBoard() == board && shownValues(*window) == before);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
    }

    // In every language: the generated game copied and pasted back keeps its level; an Expert puzzle refuses a wrong
    // digit, takes the right one, is copied as it stands, and its label's new text is whole (a picture of the window).
    void pastedGamesPlayAndCopyBack_data() { addLanguageRows(); }
    void pastedGamesPlayAndCopyBack() {
        QFETCH(QString, language);
        const Translations translations{QLocale(language)};
        auto level = [](const char* text) { return QCoreApplication::translate("SudokuWindow", text); };
        std::unique_ptr<SudokuWindow> window(shownWindow());
        keys(*window, Qt::Key_C);
        QCOMPARE(paste(*window, QGuiApplication::clipboard()->text()).size(), 1);
        QCOMPARE(window->levelText(), level("difficulty: Medium"));
        const QString fromWeb = kExpert.left(9) + QChar(0xa0) + kExpert.mid(9);  // a no-break space
        QCOMPARE(paste(*window, fromWeb).size(), 1);
        QVERIFY(window->labelLevel() == eng::gradeExpert && window->levelText() == level("difficulty: Expert"));
        auto* label = child<QLabel>(*window, "txtLevel");
        QVERIFY(label->width() >= label->sizeHint().width() &&
                window->rect().contains(QRect(label->mapTo(window.get(), QPoint()), label->size())));
        window->repaint();
        savePicture(window->screen()->grabWindow(window->winId()).toImage(), "paste_expert_" + language);
        const eng::Board* game = window->currentBoard();
        const int right = game->solutionValue(0), wrong = right % 9 + 1;
        window->tileValueEdited(0, wrong);
        QCOMPARE(game->cell(0)->value(), 0);
        window->tileValueEdited(0, right);
        keys(*window, Qt::Key_C);
        QCOMPARE(QGuiApplication::clipboard()->text(), QString::number(right) + kExpert.mid(1));
    }
};

QTEST_MAIN(PasteTest)
#include "test_paste.moc"
