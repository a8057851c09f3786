#include "SudokuWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QSoundEffect>
#include <QThread>
#include <QTimer>
#include <sstream>

#include "AboutDialog.h"
#include "Announcer.h"
#include "ActionIcons.h"
#include "HintController.h"
#include "PuzzleClipboard.h"
#include "SideThread.h"
#include "TileAccessible.h"
#include "WholeFile.h"
#include "ui_SudokuWindow.h"

namespace {

const char* const kTitle = "Sudoku Vantu";  // notr: the program's name, the same in every language
const char* const kVersion = "1.0.4";
constexpr int kCelebrationStepMs = 300;

const char* levelLabel(int level) {
    switch (level) {
    case eng::lvlCompleted: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: none");
    case eng::lvlVeryEasy: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: Very Easy");
    case eng::lvlEasy: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: Easy");
    case eng::lvlMedium: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: Medium");
    case eng::lvlHard: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: Hard");
    case eng::gradeExpert: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: Expert");
    default: return QT_TRANSLATE_NOOP("SudokuWindow", "difficulty: user edit");
    }
}

bool isArrow(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

}  // namespace

SudokuWindow::SudokuWindow(QWidget* parent, KeptGame* keptGame)
    : QMainWindow(parent), ui(new Ui::SudokuWindowClass), keptGame(keptGame) {
    ActionIcons icons;
    // The first game, the kept one or a new one, is read or generated on a second thread while the form is built.
    KeptGame::Game first;
    SideThread firstGame([&first, rules = selectedRules(), keptGame] {
        if (keptGame) first = keptGame->take();
        if (first.restored) return;
        first.board = std::make_unique<eng::Board>(nullptr);
        first.board->setPencilMarksRules(rules);
        if (!first.board->generate(eng::lvlMedium)) first.board.reset();
    });
    installBoardAccessibility();
    {
        // The first frame shows pictures of the tiles (see setVisible); their
        // forms are built just after it is painted (see eventFilter).
        Tile::FormDeferral deferral;
        ui->setupUi(this);
    }
    // One walk over the board finds all 81 tiles; the form gives each its index.
    for (Tile* tile : ui->boardWidget->findChildren<Tile*>())
        if (tile->index() >= 0 && tile->index() < 81) tiles[tile->index()] = tile;

    qRegisterMetaType<Tile::CaretDirection>("Tile::CaretDirection");
    qRegisterMetaType<eng::Rules>("eng::Rules");

    for (Tile* tile : tiles) {
        connect(tile, &Tile::leftClicked, this, &SudokuWindow::tileLeftClicked);
        connect(tile, &Tile::leftDoubleClicked, this, &SudokuWindow::tileLeftDoubleClicked);
        connect(tile, &Tile::singlePotentialDoubleClicked, this, &SudokuWindow::tileSinglePotentialDoubleClicked);
        connect(tile, &Tile::rightClicked, this, &SudokuWindow::tileRightClicked);
        connect(tile, &Tile::valueEdited, this, &SudokuWindow::tileValueEdited);
        connect(tile, &Tile::potentialsEdited, this, &SudokuWindow::tilePotentialsEdited);
        connect(tile, &Tile::moveCaret, this, &SudokuWindow::tileMoveCaret);
    }
    announcer = new Announcer(this, tiles);
    // Game -> Hint: a hint carried out changes the board as Make Move does.
    auto* hints =
        new HintController(this, ui->actionHint, [this](const std::function<void()>& change) { playMove(change); });
    connect(hints, &HintController::announce, announcer, &Announcer::say);
    // The window is as large as its board and cannot be resized or maximised.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint);
    setFixedSize(609, 709);

    deferredTimer.setSingleShot(true);
    deferredTimer.setInterval(0);
    connect(&deferredTimer, &QTimer::timeout, this, &SudokuWindow::runDeferred);
    qApp->installEventFilter(this);
    // The board holds the keyboard from the start, so a player without a mouse
    // can begin, and a menu used from the keyboard gives the keys back to it.
    // Like the tiles, it takes no focus by Tab or click: Tab leaves the caret's keys where they are.
    ui->boardWidget->setFocus(Qt::OtherFocusReason);

    // A pasted puzzle becomes the game as a new game does, on a new board.
    puzzleClipboard = new PuzzleClipboard(this, [this](const eng::Grid& givens, const eng::Grid& solution, int label) {
        hideCaretIfAny();
        lastCaretIndex = -1;
        replaceBoard();
        board->startGame(givens, solution);
        setLevelLabel(label);
    });
    connect(puzzleClipboard, &PuzzleClipboard::announce, announcer, &Announcer::say);
    connect(ui->actionCopyPuzzle, &QAction::triggered, this, [this] { puzzleClipboard->copy(board); });
    connect(ui->actionPastePuzzle, &QAction::triggered, this, [this] {
        if (busy) return;
        BusyScope scope(busy);
        puzzleClipboard->paste(board != nullptr);
    });

    firstGame.join();
    startFirstGame(first);
    icons.apply(this);
    if (keptGame) keptGame->attach(this, first);
}

SudokuWindow::~SudokuWindow() {
    if (keptGame) keptGame->keepNow();
    qApp->removeEventFilter(this);
    hideCaretIfAny();
    delete board;
    board = nullptr;
    delete ui;
}

// The option dialogs are built when first needed; until then the pencil-mark
// rules are those the dialog starts with: its initial choice, or a kept game's.
PencilMarksOptions& SudokuWindow::pencilMarksDialog() {
    if (!pencilMarksOptions) {
        pencilMarksOptions = std::make_unique<PencilMarksOptions>(nullptr, rulesBeforeDialog);
        connect(pencilMarksOptions.get(), &PencilMarksOptions::applyRule, this, &SudokuWindow::applyPencilmarksRule);
        connect(pencilMarksOptions.get(), &PencilMarksOptions::applyRules, this, &SudokuWindow::applyPencilmarksRules);
    }
    return *pencilMarksOptions;
}

std::list<eng::Rules> SudokuWindow::selectedRules() const {
    return pencilMarksOptions ? pencilMarksOptions->selectedRules() : rulesBeforeDialog;
}

PrintingInfo& SudokuWindow::printingOptions() {
    if (!printingInfo) printingInfo = std::make_unique<PrintingInfo>(nullptr);
    return *printingInfo;
}

QString SudokuWindow::levelText() const { return ui->txtLevel->text(); }

bool SudokuWindow::pencilMarksShown() const { return ui->actionViewPencilMarks->isChecked(); }

void SudokuWindow::setVisible(bool visible) {
    QMainWindow::setVisible(visible);
    if (!visible || firstFramePictured) return;
    firstFramePictured = true;
    Tile::drawPreviews(tiles, 81);
}

void SudokuWindow::closeEvent(QCloseEvent* event) {
    closing = true;
    if (pencilMarksOptions) pencilMarksOptions->close();
    // exit() ends every running event loop at once, a message box's too, on both Qt 5 and Qt 6 (where quit() only
    // posts a request that the nested loop would wait on).
    QCoreApplication::exit(0);
    event->accept();
}

// ---------------------------------------------------------------------------
// Observer

// A tile whose value changes loses its highlight in the update; the tiles that
// now hold the highlighted value take it here, so the pink cells are always
// exactly those of highlightedValue.
void SudokuWindow::updateTiles(const std::vector<eng::CellInfo*>& cells, bool mark) {
    for (const eng::CellInfo* cell : cells) {
        const int i = cell->index();
        if (i >= 0 && i < 81) tiles[i]->updateFromCell(*cell, mark);
    }
    reapplyHighlight();
}

void SudokuWindow::reapplyHighlight() {
    if (highlightedValue == 0) return;
    for (Tile* tile : tiles)
        if (!tile->isHighlighted() && tile->value() == highlightedValue) tile->highlightValue(highlightedValue, 0);
}

// Shows a tile as the engine holds it, wiping whatever the tile showed of
// input that was not carried out.
void SudokuWindow::redrawTile(int index) {
    const eng::CellInfo* cell = board ? board->cell(index) : nullptr;
    if (cell) tiles[index]->updateFromCell(*cell, false);
    reapplyHighlight();
}

// ---------------------------------------------------------------------------
// Input that arrives while the window is busy

// Digits and arrow keys released while a command, an animation or the
// celebration runs are held back and replayed afterwards, in order, on the
// tile that has the caret then; without this a fast typist would lose them.
bool SudokuWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint && !afterFirstPaintQueued) {
        auto* tile = qobject_cast<Tile*>(watched);
        // A tile drawn on screen, not into a picture of a hidden one.
        if (tile && tile->isVisible() && tile->window() == this) {
            afterFirstPaintQueued = true;
            QTimer::singleShot(0, this, &SudokuWindow::afterFirstPaint);
        }
        return false;
    }
    if (event->type() != QEvent::KeyRelease || event == replayedKey || !mustDefer()) return false;
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget || widget->window() != this) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    bool digit = false;
    const int number = key->text().toInt(&digit, 10);
    if (!isArrow(key->key()) && !(digit && number >= 1 && number <= 9)) return false;
    defer([this, k = key->key(), m = key->modifiers(), t = key->text()] { replayKey(k, m, t); });
    return true;
}

void SudokuWindow::replayKey(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    if (caretIndex < 0) {
        if (isArrow(key)) caretFromKeyboard();
        return;
    }
    QKeyEvent event(QEvent::KeyRelease, key, modifiers, text);
    replayedKey = &event;
    QCoreApplication::sendEvent(tiles[caretIndex], &event);
    replayedKey = nullptr;
}

void SudokuWindow::defer(std::function<void()> command) {
    deferred.push_back(std::move(command));
    deferredTimer.start();
}

// Runs the held-back input once nothing else runs; until then it waits for
// the next round of event processing.
void SudokuWindow::runDeferred() {
    if (busy > 0 || replaying) {
        if (!deferred.empty() && !closing) deferredTimer.start(10);
        return;
    }
    replaying = true;
    while (!deferred.empty() && busy == 0 && !closing) {
        const std::function<void()> command = std::move(deferred.front());
        deferred.pop_front();
        command();
    }
    replaying = false;
    if (!deferred.empty() && !closing) deferredTimer.start(0);
}

void SudokuWindow::cellsChanged(const std::vector<eng::CellInfo*>& cells) {
    BusyScope scope(busy);
    updateTiles(cells, markChanges);
    if (keptGame) keptGame->changed();
    repaintNow();
}

// Lets the board be painted before the command goes on. While pages are being
// drawn no event at all is processed: a timer or a click that reached the print
// preview in the middle of its pages would ask for them again inside the paint.
// The board's layouts are brought up to date directly, so it renders as shown.
void SudokuWindow::repaintNow() {
    if (painting) {
        for (QLayout* layout : ui->boardWidget->findChildren<QLayout*>()) layout->activate();
        return;
    }
    if (isVisible()) QCoreApplication::processEvents(QEventLoop::AllEvents);
}

void SudokuWindow::noMoreMoves(const std::vector<eng::CellInfo*>& cells) {
    BusyScope scope(busy);
    updateTiles(cells, false);
    repaintNow();
    showMessage(QMessageBox::Warning, tr("No more moves can be done."));
}

void SudokuWindow::cellHasNoSolution(const std::vector<eng::CellInfo*>& cells, int cell) {
    BusyScope scope(busy);
    updateTiles(cells, false);
    repaintNow();
    showMessage(QMessageBox::Warning, tr("Cell %1 has no solution").arg(cell));
}

void SudokuWindow::loadFailed(int expectedVersion, int actualVersion) {
    BusyScope scope(busy);
    if (actualVersion == -1)
        showMessage(QMessageBox::Warning, tr("This is not a valid .sud file"));
    else
        showMessage(QMessageBox::Warning,
                    tr("Loaded file version is incompatible\n(expected version: %1 actual version: %2)")
                        .arg(expectedVersion)
                        .arg(actualVersion));
}

void SudokuWindow::valueRefused(int index, int value) {
    if (index < 0 || index > 80) return;
    BusyScope scope(busy);
    announcer->valueRefused(*board, index, value);
    playRefusalSound();
    tiles[index]->rejectValue();
}

void SudokuWindow::potentialRefused(int index, int value) {
    if (index < 0 || index > 80) return;
    BusyScope scope(busy);
    announcer->candidateRefused(value);
    playRefusalSound();
    tiles[index]->flashPotential(value);
}

// What the first frame could do without: the tiles' forms, the pencil marks of
// a kept game, and the sound, loaded now so that the first refusal is heard at once.
void SudokuWindow::afterFirstPaint() {
    buildTileForms();
    for (Tile* tile : tiles) tile->showPencilMarks(pencilMarksShown());
    prepareRefusalSound();
}

void SudokuWindow::buildTileForms() {
    for (Tile* tile : tiles) tile->buildForm();
}

void SudokuWindow::prepareRefusalSound() {
    if (sound) return;
    sound = new QSoundEffect(this);
    sound->setSource(QUrl(QStringLiteral("qrc:/Sudoku/Resources/cuckoo.wav")));
}

// Fire and forget; without an audio device nothing is heard and nothing fails.
void SudokuWindow::playRefusalSound() {
    prepareRefusalSound();
    sound->play();
}

void SudokuWindow::showMessage(int icon, const QString& text) {
    if (closing) return;
    if (painting) {  // a message box would process events: it waits for the pages
        QTimer::singleShot(0, this, [this, icon, text] { showMessage(icon, text); });
        return;
    }
    BusyScope scope(busy);
    QMessageBox box(static_cast<QMessageBox::Icon>(icon), tr(kTitle), text, QMessageBox::Ok, this);
    box.exec();
}

// ---------------------------------------------------------------------------
// Game commands

// Returns the mode the caret had, NoCaret when there was none.
Tile::CaretMode SudokuWindow::hideCaretIfAny() {
    if (caretIndex == -1) return Tile::NoCaret;
    const Tile::CaretMode mode = tiles[caretIndex]->hideCaret();
    lastCaretIndex = caretIndex;
    caretIndex = -1;
    return mode;
}

// ---------------------------------------------------------------------------
// The board's own keys, beside the mouse: with no caret an arrow brings the
// value caret back; Escape takes the caret away, Space switches its mode, and
// Return enters a single candidate. Keys on a tile with the caret reach the
// tile first, as before; what it does not use comes up to the window. Escape,
// Space and Return act on the press, so the release of a Return that chose a
// menu entry does nothing here.

void SudokuWindow::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    const bool board = key == Qt::Key_Escape || key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter ||
                       Announcer::isReadingKey(key);
    if (!board || (event->modifiers() & ~Qt::KeypadModifier)) return QMainWindow::keyPressEvent(event);
    if (mustDefer())
        defer([this, key] { boardKey(key); });
    else
        boardKey(key);
}

void SudokuWindow::keyReleaseEvent(QKeyEvent* event) {
    if (!isArrow(event->key()) || (event->modifiers() & ~Qt::KeypadModifier) || caretIndex != -1)
        return QMainWindow::keyReleaseEvent(event);
    caretFromKeyboard();
}

void SudokuWindow::boardKey(int key) {
    if (!board || busy) return;
    if (Announcer::isReadingKey(key)) return announcer->read(key, board, caretIndex >= 0 ? caretIndex : lastCaretIndex);
    if (caretIndex == -1) return;
    Tile* tile = tiles[caretIndex];
    if (key == Qt::Key_Escape) {
        hideCaretIfAny();
        ui->boardWidget->setFocus(Qt::OtherFocusReason);  // a reader is back on the board
    } else if (key == Qt::Key_Space) {
        if (tile->caret() == Tile::PencilCaret)
            tile->showValueCaret();
        else
            placePencilCaret(caretIndex);
    } else {
        tile->enterSingleCandidate();
    }
}

// The value caret goes back to the cell it last left while that is empty,
// else to the first empty cell; as a click there would put it.
void SudokuWindow::caretFromKeyboard() {
    if (!board || busy || caretIndex != -1) return;
    int i = lastCaretIndex >= 0 && !tiles[lastCaretIndex]->hasValue() ? lastCaretIndex : -1;
    for (int k = 0; i < 0 && k < 81; ++k)
        if (!tiles[k]->hasValue()) i = k;
    if (i >= 0) tileLeftClicked(i);
}

bool SudokuWindow::newGameStep(int level, bool skipConfirmation) {
    if (board && !skipConfirmation) {
        BusyScope scope(busy);
        const auto answer = QMessageBox::question(this, tr(kTitle), tr("Current game will be lost.\nContinue?"),
                                                  QMessageBox::Yes | QMessageBox::No);
        if (answer != QMessageBox::Yes) return false;
    }
    hideCaretIfAny();
    lastCaretIndex = -1;
    replaceBoard();
    bool generated = false;
    {
        BusyScope scope(busy);
        generated = board->generate(level);
    }
    if (!generated) showMessage(QMessageBox::Warning, tr("Failed to generate a valid game."));
    return true;
}

// The first game's board, made on the second thread, becomes the window's; a
// failed generation is tried again here, where it can be reported. A kept game
// brings back its rules, level label and pencil marks too.
void SudokuWindow::startFirstGame(KeptGame::Game& first) {
    if (first.restored) rulesBeforeDialog = first.chosenRules;
    setLevelLabel(first.level);
    if (!first.board) {
        newGameStep(eng::lvlMedium, true);
        return;
    }
    delete board;
    board = first.board.release();
    board->setObserver(this);
    showWholeBoard();
    ui->actionViewPencilMarks->setChecked(first.pencilMarksShown);  // the tiles show them after the first frame
}

// A new board, reporting to this window and resolving pencil marks by the chosen rules.
void SudokuWindow::replaceBoard() {
    delete board;
    board = new eng::Board(this);
    board->setPencilMarksRules(selectedRules());
}

void SudokuWindow::setLevelLabel(int level) {
    shownLevel = level;
    ui->txtLevel->setText(tr(levelLabel(level)));
    // A translated label may need more than the form's width; the board leaves room to its right.
    const int needed = ui->txtLevel->sizeHint().width();
    if (needed > ui->txtLevel->width()) ui->txtLevel->resize(needed, ui->txtLevel->height());
}

void SudokuWindow::newGameCommand(int level) {
    if (busy) return;
    if (!newGameStep(level, false)) return;
    setLevelLabel(level);
    announcer->gameStarted(board, levelText(), false);
}

void SudokuWindow::newGameCompleted() { newGameCommand(eng::lvlCompleted); }
void SudokuWindow::newGameVeryEasy() { newGameCommand(eng::lvlVeryEasy); }
void SudokuWindow::newGameEasy() { newGameCommand(eng::lvlEasy); }
void SudokuWindow::newGameMedium() { newGameCommand(eng::lvlMedium); }
void SudokuWindow::newGameHard() { newGameCommand(eng::lvlHard); }
void SudokuWindow::newGameUserEdit() { newGameCommand(eng::lvlUserEdit); }

void SudokuWindow::makeMove() {
    playMove([this] { board->makeMove(); });
}

// A change to the board made as Make Move makes one: its cells marked, spoken,
// and celebrated when it completes the board.
void SudokuWindow::playMove(const std::function<void()>& change) {
    if (!board || busy) return;
    {
        BusyScope scope(busy);
        Announcer::Watch watch(*announcer, board);
        markChanges = true;
        change();
        markChanges = false;
    }
    if (board->isComplete()) celebrate();
}

void SudokuWindow::retractMove() {
    if (!board || busy) return;
    BusyScope scope(busy);
    Announcer::Watch watch(*announcer, board);
    board->retract();
}

void SudokuWindow::setHighlight(int value) {
    for (Tile* tile : tiles) tile->highlightValue(value, highlightedValue);
    highlightedValue = value;
}

void SudokuWindow::toggleHighlight(int value) { setHighlight(value == highlightedValue ? 0 : value); }

void SudokuWindow::placePencilCaret(int index) {
    if (!pencilMarksShown() || tiles[index]->hasValue()) return;
    caretIndex = index;
    tiles[index]->showPencilCaret();
}

// What a click with either button does first: clear the change marks of the
// candidates, and take the caret away. Returns false when the click only took
// the caret from the clicked tile itself, or cannot act at all.
bool SudokuWindow::beginTileClick(int index) {
    if (!board || busy || index < 0 || index > 80) return false;
    if (pencilMarksShown())
        for (Tile* tile : tiles) tile->resetPotentialStyles();
    const bool onCaret = caretIndex == index;
    hideCaretIfAny();
    return !onCaret;
}

void SudokuWindow::tileLeftClicked(int index) {
    if (!beginTileClick(index)) return;
    if (tiles[index]->hasValue()) {
        toggleHighlight(tiles[index]->value());
        return;
    }
    setHighlight(0);
    caretIndex = index;
    tiles[index]->showValueCaret();
}

void SudokuWindow::tileRightClicked(int index) {
    if (beginTileClick(index)) placePencilCaret(index);
}

void SudokuWindow::tileLeftDoubleClicked(int) {}

void SudokuWindow::enterValue(int index, int value) {
    if (!board || index < 0 || index > 80) return;
    if (busy) return redrawTile(index);
    {
        BusyScope scope(busy);
        Announcer::Watch watch(*announcer, board, index);
        markChanges = true;
        board->setValue(index, value);
        markChanges = false;
    }
    if (highlightedValue != 0) setHighlight(value);
    if (board->isComplete()) celebrate();
}

void SudokuWindow::tileValueEdited(int liniarAddress, int value) { enterValue(liniarAddress, value); }

void SudokuWindow::tileSinglePotentialDoubleClicked(int index, int value) { enterValue(index, value); }

void SudokuWindow::tilePotentialsEdited(int liniarAddress, int valueToToggle) {
    if (!board || liniarAddress < 0 || liniarAddress > 80) return;
    if (busy) return redrawTile(liniarAddress);
    // The redrawn tiles take the highlight again in updateTiles.
    BusyScope scope(busy);
    Announcer::Watch watch(*announcer, board, liniarAddress, valueToToggle);
    board->togglePotential(liniarAddress, valueToToggle);
}

void SudokuWindow::tileMoveCaret(int index, Tile::CaretDirection direction) {
    if (!board || busy || index < 0 || index > 80) return;
    int i = index;
    do {
        const int row = i / 9, column = i % 9;
        int next = -1;
        switch (direction) {
        case Tile::Left: next = i - 1; break;
        case Tile::Right: next = i + 1; break;
        case Tile::Up:
            if (i == 0) return;
            next = row == 0 ? column + 71 : i - 9;
            break;
        case Tile::Down:
            if (i == 80) return;
            next = row == 8 ? column + 1 : i + 9;
            break;
        }
        if (next < 0 || next > 80) return;
        i = next;
    } while (tiles[i]->hasValue());

    const Tile::CaretMode mode = hideCaretIfAny();
    if (mode == Tile::ValueCaret) {
        caretIndex = i;
        tiles[i]->showValueCaret();
    } else if (mode == Tile::PencilCaret) {
        placePencilCaret(i);
    }
}

// Rules applied from the dialog while the window is busy are applied as soon
// as it is idle, so what the dialog shows as applied is applied.
void SudokuWindow::applyPencilmarksRule(eng::Rules rule) {
    if (!board) return;
    if (mustDefer()) return defer([this, rule] { applyPencilmarksRule(rule); });
    BusyScope scope(busy);
    markChanges = true;
    board->applyPencilMarksRule(rule);
    markChanges = false;
}

void SudokuWindow::applyPencilmarksRules() { setRules(selectedRules()); }

void SudokuWindow::setRules(const std::list<eng::Rules>& rules) {
    if (!board) return;
    if (mustDefer()) return defer([this, rules] { setRules(rules); });
    BusyScope scope(busy);
    markChanges = true;
    board->setPencilMarksRules(rules);
    markChanges = false;
    if (keptGame) keptGame->changed();
}

// Lights up the cells of each value in turn, then congratulates.
void SudokuWindow::celebrate() {
    BusyScope scope(busy);
    setHighlight(0);
    for (int v = 1; v <= 9 && !closing; ++v) {
        setHighlight(v);
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        QThread::msleep(kCelebrationStepMs);
    }
    setHighlight(0);
    QMessageBox box(QMessageBox::Information, tr(kTitle), tr("Congratulations!"), QMessageBox::Ok, this);
    if (!closing) box.exec();
}

void SudokuWindow::about() {
    if (busy) return;
    BusyScope scope(busy);
    AboutDialog dialog(QString::fromLatin1(kVersion), this);
    dialog.exec();
}

// ---------------------------------------------------------------------------
// View options

void SudokuWindow::viewToolbar(bool checked) { ui->mainToolBar->setVisible(checked); }

void SudokuWindow::viewStatusbar(bool checked) { ui->statusBar->setVisible(checked); }

void SudokuWindow::viewNewGameIcons(bool checked) {
    for (QAction* a : {ui->actionNewGameVeryEasy, ui->actionNewGameEasy, ui->actionNewGameMedium, ui->actionNewGameHard})
        a->setVisible(checked);
}

void SudokuWindow::viewOpenSaveIcons(bool checked) {
    ui->actionOpenGame->setVisible(checked);
    ui->actionSaveGame->setVisible(checked);
}

void SudokuWindow::viewPrintIcon(bool checked) { ui->actionPrint->setVisible(checked); }

void SudokuWindow::viewBackForwardIcons(bool checked) {
    ui->actionRetractMove->setVisible(checked);
    ui->actionMakeMove->setVisible(checked);
}

void SudokuWindow::viewAboutIcon(bool checked) { ui->actionAbout->setVisible(checked); }

void SudokuWindow::viewPencilMarks(bool checked) {
    for (Tile* tile : tiles) tile->showPencilMarks(checked);
    if (keptGame) keptGame->changed();
}

void SudokuWindow::viewPencilMarksOptions() {
    const QRect frame = frameGeometry();
    PencilMarksOptions& dialog = pencilMarksDialog();
    dialog.move(frame.right() + 1, frame.top());
    dialog.show();
}

// ---------------------------------------------------------------------------
// Open and save

QString SudokuWindow::askFileName(FileRequest request) {
    if (fileNameProvider) return fileNameProvider(request);
    BusyScope scope(busy);
    switch (request) {
    case FileRequest::Open:
        return QFileDialog::getOpenFileName(this, tr("Open File"), QString(), tr("Sudoku files (*.sud)"));
    case FileRequest::Save:
        return QFileDialog::getSaveFileName(this, tr("Save File"), QString(), tr("Sudoku files (*.sud)"));
    case FileRequest::Pdf:
        return QFileDialog::getSaveFileName(this, tr("Save File"), QString(), tr("Portable document files (*.pdf)"));
    }
    return QString();
}

// The game in play is replaced only once the chosen file has loaded, so a
// cancelled or refused open leaves the current game playable.
void SudokuWindow::openGame() {
    if (busy) return;
    hideCaretIfAny();
    const QString name = askFileName(FileRequest::Open);
    if (name.isEmpty()) return;
    QFile file(name);
    bool loaded = false;
    if (file.open(QIODevice::ReadOnly)) {
        const QByteArray bytes = file.readAll();
        std::istringstream in(std::string(bytes.constData(), static_cast<size_t>(bytes.size())), std::ios::binary);
        auto* next = new eng::Board(this);
        try {
            BusyScope scope(busy);
            loaded = next->deserialize(in);
        } catch (const std::exception&) {
            loaded = false;
        }
        if (loaded) {
            delete board;
            board = next;
            lastCaretIndex = -1;
            showWholeBoard();
            announcer->gameStarted(board, tr(levelLabel(board->getLevel())), true);
            if (keptGame) keptGame->changed();
        } else {
            delete next;
        }
    }
    if (!loaded) showMessage(QMessageBox::Information, tr("Failed to load game"));
}

// Shows every cell of the board on its tile; a board without a position shows
// empty tiles. Used after a load, whatever the loaded game reported itself.
void SudokuWindow::showWholeBoard() {
    struct EmptyCell : eng::CellInfo {
        bool isPotential(int) const override { return true; }
    };
    for (int i = 0; i < 81; ++i) {
        const eng::CellInfo* cell = board ? board->cell(i) : nullptr;
        if (cell) {
            tiles[i]->updateFromCell(*cell, false);
        } else {
            EmptyCell empty;
            empty.reset(i);
            tiles[i]->updateFromCell(empty, false);
        }
    }
    reapplyHighlight();
}

// The game is written to a temporary file beside the chosen one, which takes
// the chosen name only once every byte is out: a save that fails (a full disk)
// leaves the previous file as it was. Devices and pipes are not save targets.
void SudokuWindow::saveGame() {
    if (!board || busy) return;
    const QString name = askFileName(FileRequest::Save);
    if (name.isEmpty()) return;
    const QFileInfo target(name);
    std::ostringstream out(std::ios::binary);
    if ((!target.exists() || target.isFile()) && board->serialize(out)) {
        const std::string bytes = out.str();
        if (writeWholeFile(name, bytes.data(), static_cast<qint64>(bytes.size()))) return;
    }
    showMessage(QMessageBox::Information, tr("Failed to save game"));
}
