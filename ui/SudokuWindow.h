#pragma once
// The main window: owns the board, shows it on 81 tiles, and turns menu
// commands and tile signals into engine calls. It is the board's observer.

#include <QMainWindow>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>

#include "Board.h"
#include "KeptGame.h"
#include "PencilMarksOptions.h"
#include "PrintingInfo.h"
#include "Tile.h"

class Announcer;
class PuzzleClipboard;
class QPainter;
class QPrinter;
class QSoundEffect;

namespace Ui {
class SudokuWindowClass;
}

class SudokuWindow : public QMainWindow, public eng::BoardObserver {
    Q_OBJECT

public:
    // With a keptGame, the window starts with the game it keeps and keeps every change.
    explicit SudokuWindow(QWidget* parent = nullptr, KeptGame* keptGame = nullptr);
    ~SudokuWindow() override;

    // eng::BoardObserver
    void cellsChanged(const std::vector<eng::CellInfo*>& cells) override;
    void noMoreMoves(const std::vector<eng::CellInfo*>& cells) override;
    void cellHasNoSolution(const std::vector<eng::CellInfo*>& cells, int cell) override;
    void loadFailed(int expectedVersion, int actualVersion) override;
    void valueRefused(int index, int value) override;
    void potentialRefused(int index, int value) override;

    // Which file the open, save and PDF commands use. By default the
    // toolkit's file dialogs ask the player; tests put their own answer here.
    enum class FileRequest { Open, Save, Pdf };
    using FileNameProvider = std::function<QString(FileRequest)>;
    void setFileNameProvider(FileNameProvider provider) { fileNameProvider = std::move(provider); }

    // Read access for tests and tools.
    eng::Board* currentBoard() const { return board; }
    Tile* tileAt(int index) const { return index >= 0 && index < 81 ? tiles[index] : nullptr; }
    int caret() const { return caretIndex; }
    int highlight() const { return highlightedValue; }
    PrintingInfo& printingOptions();
    PencilMarksOptions& pencilMarksDialog();
    QString levelText() const;
    // The level label's state: a level 0-5, or eng::gradeExpert.
    void setLevelLabel(int level);
    int labelLevel() const { return shownLevel; }
    bool pencilMarksShown() const;
    // The pencil-mark rules new games get.
    std::list<eng::Rules> selectedRules() const;
    // A4 portrait, full page, no margins: how every print starts.
    static void preparePrinter(QPrinter& printer);
    // Also while input held back meanwhile is still to be carried out.
    bool isBusy() const { return busy > 0 || !deferred.empty(); }

public slots:
    // The first time: the request to show the window goes out before the
    // tiles' pictures for the first frame are drawn, so the window manager
    // maps the window meanwhile.
    void setVisible(bool visible) override;

    void tileLeftClicked(int index);
    void tileLeftDoubleClicked(int index);
    void tileSinglePotentialDoubleClicked(int index, int value);
    void tileRightClicked(int index);
    void tileValueEdited(int liniarAddress, int value);
    void tilePotentialsEdited(int liniarAddress, int valueToToggle);
    void tileMoveCaret(int, Tile::CaretDirection direction);
    void openGame();
    void saveGame();
    void printGame();
    void retractMove();
    void makeMove();
    void about();
    void newGameCompleted();
    void newGameVeryEasy();
    void newGameEasy();
    void newGameMedium();
    void newGameHard();
    void newGameUserEdit();
    void viewToolbar(bool checked);
    void viewStatusbar(bool checked);
    void viewNewGameIcons(bool checked);
    void viewOpenSaveIcons(bool checked);
    void viewPrintIcon(bool checked);
    void viewBackForwardIcons(bool checked);
    void viewAboutIcon(bool checked);
    void viewPencilMarks(bool checked);
    void viewPencilMarksOptions();
    void applyPencilmarksRule(eng::Rules rule);
    void applyPencilmarksRules();
    void doPainting(QPrinter* printer);

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    Ui::SudokuWindowClass* ui;
    Tile* tiles[81];
    eng::Board* board = nullptr;
    // Built when first asked for: most runs never print.
    std::unique_ptr<PrintingInfo> printingInfo;
    std::unique_ptr<PencilMarksOptions> pencilMarksOptions;
    int caretIndex = -1;
    int lastCaretIndex = -1;  // the cell the caret last left, for the keyboard
    bool markChanges = false;
    int highlightedValue = 0;

    // More than zero while an engine call, an animation, a message box or the
    // celebration runs. Input that arrives meanwhile (delivered while events
    // are processed) is ignored, so no command acts on a board or a tile that
    // the running one is still using.
    int busy = 0;
    bool closing = false;
    // True while doPainting draws pages; a request for pages that arrives
    // meanwhile is ignored.
    bool painting = false;
    QSoundEffect* sound = nullptr;
    Announcer* announcer = nullptr;  // what a screen reader is told of each move
    bool firstFramePictured = false;
    bool afterFirstPaintQueued = false;
    // Keystrokes and rule applications that arrived while the window was busy,
    // carried out in order as soon as it is idle again.
    std::deque<std::function<void()>> deferred;
    QTimer deferredTimer;
    bool replaying = false;
    const QEvent* replayedKey = nullptr;
    FileNameProvider fileNameProvider;
    PuzzleClipboard* puzzleClipboard = nullptr;
    KeptGame* keptGame = nullptr;
    std::list<eng::Rules> rulesBeforeDialog = PencilMarksOptions::initialRules();
    int shownLevel = eng::lvlMedium;

    class BusyScope {
    public:
        explicit BusyScope(int& counter) : counter(counter) { ++counter; }
        ~BusyScope() { --counter; }
        BusyScope(const BusyScope&) = delete;
        BusyScope& operator=(const BusyScope&) = delete;

    private:
        int& counter;
    };

    bool newGameStep(int level, bool skipConfirmation);
    void startFirstGame(KeptGame::Game& first);
    void replaceBoard();
    void newGameCommand(int level);
    void playMove(const std::function<void()>& change);
    void setHighlight(int value);
    void toggleHighlight(int value);
    void placePencilCaret(int index);
    void celebrate();
    void enterValue(int index, int value);
    bool beginTileClick(int index);
    Tile::CaretMode hideCaretIfAny();
    void boardKey(int key);
    void caretFromKeyboard();
    void updateTiles(const std::vector<eng::CellInfo*>& cells, bool mark);
    void repaintNow();
    void afterFirstPaint();
    void buildTileForms();
    void prepareRefusalSound();
    void showWholeBoard();
    void playRefusalSound();
    void showMessage(int icon, const QString& text);
    QString askFileName(FileRequest request);
    void defer(std::function<void()> command);
    bool mustDefer() const { return busy > 0 || (!deferred.empty() && !replaying); }
    void runDeferred();
    void replayKey(int key, Qt::KeyboardModifiers modifiers, const QString& text);
    void reapplyHighlight();
    void redrawTile(int index);
    void setRules(const std::list<eng::Rules>& rules);

    void printOnePerPage(const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter, QPrinter* printer);
    void printTwoPerPage(const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter);
    void printFourPerPage(const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter);
    void printBoards(int boardsPerPage, const QRectF& pageMm, const QRectF& pageDevice, QPainter& painter);
    void generateForPrinting();
};
