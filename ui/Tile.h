#pragma once
// The widget that shows one of the 81 cells: a big digit, or a 3x3 grid of
// pencil marks, on a background that tells given, caret and highlight apart.

#include <QList>
#include <QMetaType>
#include <QPixmap>
#include <QString>
#include <QWidget>

#include <memory>

#include "Cell.h"

class QLabel;
class QKeyEvent;
class QMouseEvent;

namespace Ui {
class Tile;
}

class Tile : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int index READ index WRITE setIndex STORED true DESIGNABLE true)

public:
    enum CaretDirection { Left = 1, Right = 2, Up = 3, Down = 4 };
    enum CaretMode { NoCaret = 0, ValueCaret = 1, PencilCaret = 2 };
    // A hint's cells: those it rests on and those it acts on.
    enum HintRole { NoHint = 0, HintBasis = 1, HintTarget = 2 };

    static const QString styleTileNormal;
    static const QString styleTileGiven;
    static const QString styleValueCaret;
    static const QString stylePencilCaret;
    static const QString styleHighlight;
    static const QString styleRejectedValue;
    static const QString styleValueNormal;
    static const QString styleValueByMove;
    static const QString styleValueByPlayer;
    static const QString stylePotentialOn;
    static const QString stylePotentialOff;
    static const QString stylePotentialRemoved;
    static const QString styleFlashRed;
    static const QString styleFlashBlack;
    static const QString styleFlashEnd;
    static const QString styleHintBasis;
    static const QString styleHintTarget;

    explicit Tile(QWidget* parent = nullptr);
    ~Tile() override;

    // Tiles made while a FormDeferral lives build their form when first
    // needed (a call below, input, or buildForm). Until then the first
    // updateFromCell is only recorded, and drawPreviews gives the tile a
    // picture of what it will show, which it paints instead.
    class FormDeferral {
    public:
        FormDeferral() { ++deferring; }
        ~FormDeferral() { --deferring; }
        FormDeferral(const FormDeferral&) = delete;
        FormDeferral& operator=(const FormDeferral&) = delete;
    };
    bool hasForm() const { return ui != nullptr; }
    void buildForm();
    // One real tile draws each different look once; tiles with nothing
    // recorded, or at a scale where a picture would not be exact, build their
    // form instead.
    static void drawPreviews(Tile* const* tiles, int count);

    int index() const;
    void setIndex(int index);

    void updateFromCell(const eng::CellInfo& cell, bool markChanges);
    void showPencilMarks(bool show);
    void resetPotentialStyles();
    void showValueCaret();
    void showPencilCaret();
    CaretMode hideCaret();
    bool hasValue() const;
    int value() const;
    void highlightValue(int newValue, int oldValue);
    // Shows the tile in a hint's colour over whatever it showed; NoHint gives
    // that back, unless the tile has been restyled meanwhile.
    void showHint(HintRole role);
    HintRole hintRole() const { return hint; }

    // Feedback animations: 4 steps of 200 ms, processing events in between.
    void rejectValue();
    void flashPotential(int value);

    CaretMode caret() const { return caretMode; }
    bool isGiven() const { return given; }
    bool showsPencilMarks() const { return pencilMarksShown; }
    int candidates() const;  // bit v set for each candidate v
    int refusedValue() const { return refused; }  // the last refused digit, until the cell changes
    // Return with the caret on an empty cell whose single candidate is shown:
    // enters that candidate, as a typed digit would. False when it does not apply.
    bool enterSingleCandidate();
    bool isHighlighted() const { return highlighted; }
    bool isAnimating() const { return animating; }

signals:
    void leftClicked(int liniarAddress);
    void leftDoubleClicked(int liniarAddress);
    void singlePotentialDoubleClicked(int index, int value);
    void rightClicked(int liniarAddress);
    void valueEdited(int liniarAddress, int value);
    void potentialsEdited(int liniarAddress, int valueToToggle);
    void moveCaret(int liniarAddress, Tile::CaretDirection direction);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    static int deferring;
    Ui::Tile* ui = nullptr;
    QLabel* potentials[9] = {};
    QLabel* valueLabel = nullptr;
    std::unique_ptr<eng::CellInfo> recorded;  // the cell to show once the form exists
    QPixmap preview;
    int index_ = -1;
    bool pencilMarksShown = false;
    CaretMode caretMode = NoCaret;
    bool highlighted = false;
    QString savedStyleSheet;
    bool animating = false;
    QList<QWidget*> unpolished;  // hidden labels still styled for an earlier tile sheet
    bool given = false;
    HintRole hint = NoHint;
    QString sheetBeforeHint;
    int refused = 0;
    int refusedContent = 0;   // what the cell held when its value was refused
    int announcedContent = -1;  // what assistive technology was last told

    void setUpForm();
    int content() const;
    void announce();
    void announceCaret();

    void setTileSheet(const QString& sheet);
    void setShown(QWidget* widget, bool shown);
    void showValue(int v);
    void togglePotential(int v);
    int singleEnabledPotential() const;
    bool pause();
};

Q_DECLARE_METATYPE(Tile::CaretDirection)
