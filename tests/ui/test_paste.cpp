// Game → Copy Puzzle and Paste Puzzle: the clipboard round trip, the question before the game is replaced, the
// refusals that leave the board alone, and a pasted game that plays (and is labelled) like a generated one.
#include <QClipboard>
#include <QLabel>
#include <QScreen>

#include "Translations.h"
#include "WindowTestSupport.h"

namespace {

const QString kExpert = "..7.....19.2...5...6.7.3........8..3..56.24..8..9........4.6.9...3...7.51.....8..";

// Where the keys go: shortcuts work in the active window, which a closed message box need not give back.
QWidget* board(SudokuWindow& window) {
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window, 30000)) qFatal("window not active");
    return window.tileAt(40);
}

// Pastes `text` with Ctrl+V, answering every box with `answer`; returns the boxes' texts.
QStringList paste(SudokuWindow& window, const QString& text, QMessageBox::StandardButton answer) {
    QGuiApplication::clipboard()->setText(text);
    MessageBoxAnswerer answerer(answer);
    QTest::keyClick(board(window), Qt::Key_V, Qt::ControlModifier);
    return answerer.texts;
}

}  // namespace

class PasteTest : public QObject {
    Q_OBJECT

private slots:
    void refusalsLeaveTheGame_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("yes");
        QTest::addColumn<QString>("message");
        const QString question = "Current game will be lost.\nContinue?";
        QTest::newRow("letters") << "Hello" << true << "The clipboard holds no puzzle.";
        QTest::newRow("80 cells") << kExpert.left(80) << true << "The clipboard holds no puzzle.";
        QTest::newRow("conflict") << "11" + kExpert.mid(2) << true << "cannot be played";
        QTest::newRow("no solution") << "12345678." + QString(8, '.') + "9" + QString(63, '.') << true
                                     << "This puzzle has no solution.";
        QTest::newRow("two solutions") << QString(81, '0') << true << "more than one solution";
        QTest::newRow("declined") << kExpert << false << question;
    }
    void refusalsLeaveTheGame() {
        QFETCH(QString, text);
        QFETCH(bool, yes);
        QFETCH(QString, message);
        std::unique_ptr<SudokuWindow> window(shownWindow());
        const eng::Board* board = window->currentBoard();
        const std::vector<int> before = shownValues(*window);
        const QStringList texts = paste(*window, text, yes ? QMessageBox::Yes : QMessageBox::No);
        QCOMPARE(texts.size(), 1);
        QVERIFY2(texts[0].contains(message), qPrintable(texts[0]));
        QCOMPARE(window->currentBoard(), board);
        QVERIFY(shownValues(*window) == before);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));
    }

    // A pasted Expert puzzle: asked first, then played against its solution; copied, pasted back as it stands.
    void pastedGamePlaysAndCopiesBack() {
        std::unique_ptr<SudokuWindow> window(shownWindow());
        QGuiApplication::clipboard()->setText(QString());
        trigger(*window, "actionCopyPuzzle");  // the generated game's givens, pasted back at their own level
        const QString medium = QGuiApplication::clipboard()->text();
        QCOMPARE(paste(*window, medium, QMessageBox::Yes).size(), 1);
        QCOMPARE(window->levelText(), QString("difficulty: Medium"));

        QString grid;  // the nine-line form, with separators
        for (int r = 0; r < 9; ++r) grid += kExpert.mid(r * 9, 3) + "|" + kExpert.mid(r * 9 + 3, 3) + "|" +
                                            kExpert.mid(r * 9 + 6, 3) + (r == 2 || r == 5 ? "\n---+---+---\n" : "\n");
        QCOMPARE(paste(*window, grid, QMessageBox::Yes), QStringList{"Current game will be lost.\nContinue?"});
        QCOMPARE(window->labelLevel(), eng::gradeExpert);
        QCOMPARE(window->levelText(), QString("difficulty: Expert"));
        const eng::Board* game = window->currentBoard();
        QCOMPARE(game->cell(2)->origin(), int(eng::originGiven));
        const int right = game->solutionValue(0), wrong = right % 9 + 1;
        window->tileValueEdited(0, wrong);
        QCOMPARE(game->cell(0)->value(), 0);
        window->tileValueEdited(0, right);
        QCOMPARE(game->cell(0)->value(), right);

        QTest::keyClick(board(*window), Qt::Key_C, Qt::ControlModifier);
        const QString copied = QGuiApplication::clipboard()->text();
        QCOMPARE(copied, QString::number(right) + kExpert.mid(1));
        QCOMPARE(paste(*window, copied, QMessageBox::Yes).size(), 1);
        QCOMPARE(window->currentBoard()->cell(0)->origin(), int(eng::originGiven));
    }

    // The label's new text is whole in every language, with a picture of the window (run on xcb to see the screen).
    void expertLabelFits_data() { addLanguageRows(); }
    void expertLabelFits() {
        QFETCH(QString, language);
        const Translations translations{QLocale(language)};
        std::unique_ptr<SudokuWindow> window(shownWindow());
        QCOMPARE(paste(*window, kExpert, QMessageBox::Yes).size(), 1);
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
