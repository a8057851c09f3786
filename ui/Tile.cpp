#include "Tile.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QPointer>
#include <QStyle>
#include <QTimer>

#include "ui_Tile.h"

// The tile's style sheet is stored without Qt's own re-polish (see setTileSheet).
#include <private/qwidget_p.h>
#include <cmath>
#include <utility>
#include <vector>

const QString Tile::styleTileNormal = QStringLiteral("background-color: white;");
const QString Tile::styleTileGiven = QStringLiteral("background-color: rgb(245, 245, 245);");
const QString Tile::styleValueCaret = QStringLiteral("background-color: rgb(170, 255, 127);");
const QString Tile::stylePencilCaret = QStringLiteral("background-color: rgb(94, 174, 255);");
const QString Tile::styleHighlight = QStringLiteral("background-color: rgb(255,170,255); color : black;");
const QString Tile::styleRejectedValue = QStringLiteral(
    "background-color: rgb(170, 255, 127); text-decoration: line-through; font: 75 24pt \"MS Shell Dlg 2\"; "
    "color: rgb(255, 0, 0);");
const QString Tile::styleValueNormal = QStringLiteral("QLabel { background-color: transparent; color : black; }");
const QString Tile::styleValueByMove = QStringLiteral("QLabel { background-color: transparent; color : blue; }");
const QString Tile::styleValueByPlayer = QStringLiteral("QLabel { background-color: transparent; color : blue; }");
const QString Tile::stylePotentialOn = QStringLiteral("QLabel { background-color: transparent; color : black; }");
const QString Tile::stylePotentialOff =
    QStringLiteral("QLabel { background-color: transparent; color : rgb(243, 243, 243); }");
const QString Tile::stylePotentialRemoved = QStringLiteral("QLabel { background-color: red;  color : white; }");
const QString Tile::styleFlashRed = QStringLiteral("background-color: red; color: black;");
const QString Tile::styleFlashBlack = QStringLiteral("background-color: black; color: white;");
const QString Tile::styleFlashEnd = QStringLiteral("background-color: transparent; color: black;");
const QString Tile::styleHintBasis = QStringLiteral("background-color: rgb(255, 236, 170);");
const QString Tile::styleHintTarget = QStringLiteral("background-color: rgb(255, 176, 0); color: black;");

namespace {

constexpr int kAnimationSteps = 4;
constexpr int kAnimationStepMs = 200;

QPalette candidatePalette() {
    QPalette palette;
    const QColor black(0, 0, 0), white(255, 255, 255), grey(218, 218, 218);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor text = group == QPalette::Disabled ? grey : black;
        palette.setColor(group, QPalette::WindowText, text);
        palette.setColor(group, QPalette::Text, text);
        palette.setColor(group, QPalette::ButtonText, text);
        palette.setColor(group, QPalette::Button, white);
        palette.setColor(group, QPalette::Base, white);
        palette.setColor(group, QPalette::Window, white);
        palette.setColor(group, QPalette::Dark, grey);
    }
    return palette;
}

// Every assignment below re-polishes the widget and its children, so the
// display is only touched where it differs from what the widget already has.
void setSheet(QWidget* widget, const QString& sheet) {
    if (widget->styleSheet() != sheet) widget->setStyleSheet(sheet);
}

// What Qt does to each widget when a style sheet above it changes.
void polishOnce(QWidget* widget) {
    widget->style()->polish(widget);
    QEvent change(QEvent::StyleChange);
    QCoreApplication::sendEvent(widget, &change);
}

bool isEnabledHere(const QWidget* widget) { return !widget->testAttribute(Qt::WA_Disabled); }

// Whether a picture of a tile is the tile pixel for pixel at this scale: only
// where a logical pixel is a whole number of device pixels, and on Qt 6 only
// unscaled (at twice the size it draws the corner of a lone tile's frame
// unlike the same frame on the board).
bool picturesExact(qreal ratio) {
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return ratio == 1;
#else
    return ratio == std::floor(ratio);
#endif
}

// What updateFromCell was given while the tile had no form yet.
class RecordedCell final : public eng::CellInfo {
public:
    explicit RecordedCell(const eng::CellInfo& cell) : RecordedCell(cell, cell.value()) {}
    // The cell as it would be holding `value`.
    RecordedCell(const eng::CellInfo& cell, int value) {
        index_ = cell.index();
        value_ = value;
        origin_ = cell.origin();
        for (int v = 1; v <= 9; ++v)
            if (cell.isPotential(v)) mask |= 1u << v;
    }
    bool isPotential(int v) const override { return v >= 1 && v <= 9 && (mask >> v & 1u); }

private:
    unsigned mask = 0;
};

}  // namespace

int Tile::deferring = 0;

Tile::Tile(QWidget* parent) : QWidget(parent) {
    if (!deferring) setUpForm();
}

void Tile::setUpForm() {
    ui = new Ui::Tile;
    ui->setupUi(this);
    QLabel* labels[9] = {ui->lbl1, ui->lbl2, ui->lbl3, ui->lbl4, ui->lbl5,
                         ui->lbl6, ui->lbl7, ui->lbl8, ui->lbl9};
    // The candidates take their palette from the grid that holds them: one
    // palette to resolve instead of nine whenever the tile is restyled.
    ui->layoutWidget->setPalette(candidatePalette());
    for (int i = 0; i < 9; ++i) potentials[i] = labels[i];
    valueLabel = ui->lblValue;
    pencilMarksShown = true;
    showPencilMarks(false);
    valueLabel->hide();
}

// A tile placed on the board before its form keeps its place and size policy;
// children added to a shown widget wait to be shown.
void Tile::buildForm() {
    if (ui) return;
    const QRect place = geometry();
    const QSizePolicy policy = sizePolicy();
    // The polish skipped while the picture stood is done once the form exists.
    QWidgetPrivate::get(this)->polished = nullptr;
    setUpForm();
    setGeometry(place);
    setSizePolicy(policy);
    ensurePolished();
    if (isVisible()) ui->frame->show();
    preview = QPixmap();
    if (const std::unique_ptr<eng::CellInfo> cell = std::move(recorded)) updateFromCell(*cell, false);
}

// Where a picture would not be exact the tiles build their forms now. Each
// background is drawn once, as an empty tile; a digit's look is that picture
// with the digit drawn over it as the value label draws its text (the label is
// the topmost child and paints no background of its own).
void Tile::drawPreviews(Tile* const* tiles, int count) {
    std::unique_ptr<Tile> model;
    QHash<int, QPixmap> looks;
    // The white looks first, then the grey ones: the model changes its sheet once.
    for (const bool givens : {false, true})
    for (int i = 0; i < count; ++i) {
        Tile* tile = tiles[i];
        if (tile->ui) continue;
        if (!tile->recorded || !picturesExact(tile->devicePixelRatioF())) {
            tile->buildForm();
            continue;
        }
        const eng::CellInfo& cell = *tile->recorded;
        if ((cell.origin() == eng::originGiven) != givens) continue;
        const int background = givens ? 16 : 0;
        auto found = looks.constFind(cell.value() | background);
        if (found == looks.constEnd()) {
            if (!model) {
                // Beside the tiles, so the same style sheets reach it; never shown.
                model = std::make_unique<Tile>(tile->parentWidget());
                if (!model->ui) model->setUpForm();
                model->hide();
                model->resize(tile->size());
            }
            auto empty = looks.constFind(background);
            if (empty == looks.constEnd()) {
                model->updateFromCell(RecordedCell(cell, 0), false);
                empty = looks.insert(background, model->grab());
            }
            QPixmap picture = *empty;
            if (cell.value()) {
                model->updateFromCell(cell, false);
                setSheet(model->valueLabel, styleValueNormal);  // the sheet a shown tile gives its digit
                const QLabel& label = *model->valueLabel;
                label.ensurePolished();
                QPainter painter(&picture);
                painter.setFont(label.font());
                painter.setPen(label.palette().color(label.foregroundRole()));
                painter.drawText(label.contentsRect().translated(label.mapTo(model.get(), QPoint())),
                                 label.alignment() | Qt::TextForceLeftToRight, label.text());
            }
            found = looks.insert(cell.value() | background, picture);
        }
        tile->preview = *found;
    }
}

Tile::~Tile() { delete ui; }

// A new sheet on a polished widget makes Qt polish every widget below it twice,
// hidden ones too: some 3 M instructions a tile, and a new game restyles about
// 40 tiles, 22-29 ms a new game that way against 6-9 ms with this (ui_bench,
// new game shown). The tile's sheet is stored here without that, through
// QWidget's private "polished" mark: the program's only use of Qt's private
// API. The tile and its shown children are then polished once, parents first,
// as Qt would, and the hidden labels when they are next shown (setShown). Qt 5
// re-polishes when the tile is marked polished, Qt 6 also when any child is:
// the marks of all of them are cleared for the one call.
void Tile::setTileSheet(const QString& sheet) {
    if (styleSheet() == sheet) return;
    const QList<QWidget*> children = findChildren<QWidget*>();
    std::vector<const QMetaObject*> marks;
    for (QWidget* w : children) marks.push_back(std::exchange(QWidgetPrivate::get(w)->polished, nullptr));
    QWidgetPrivate* d = QWidgetPrivate::get(this);
    const QMetaObject* polishedAs = std::exchange(d->polished, nullptr);
    setStyleSheet(sheet);
    d->polished = polishedAs;
    for (int i = 0; i < children.size(); ++i) QWidgetPrivate::get(children[i])->polished = marks[i];
    if (!polishedAs) return;  // the first polish reads the sheet
    polishOnce(this);
    for (QWidget* child : children) {
        if (!child->isHidden())
            polishOnce(child);
        else if (!unpolished.contains(child))
            unpolished.append(child);
    }
}

void Tile::setShown(QWidget* widget, bool shown) {
    if (widget->isHidden() != shown) return;
    if (shown && unpolished.removeOne(widget)) polishOnce(widget);
    widget->setVisible(shown);
}

int Tile::index() const { return index_; }

void Tile::setIndex(int index) { index_ = index; }

void Tile::updateFromCell(const eng::CellInfo& cell, bool markChanges) {
    given = cell.origin() == eng::originGiven;
    if (!ui) {
        // Only the first plain update waits for the form; its preview shows it.
        if (markChanges || !preview.isNull()) {
            buildForm();
        } else {
            recorded = std::make_unique<RecordedCell>(cell);
            announce();
            return;
        }
    }
    const QString* base = cell.origin() == eng::originGiven ? &styleTileGiven
                          : caretMode == NoCaret                 ? &styleTileNormal
                                                                 : nullptr;
    if (!highlighted) {
        // Before the tile is first polished, its children are styled already
        // and a new sheet would not reach them: the given grey is applied on a
        // polished tile. The normal sheet looks like the form's white, and
        // reaches the screen with the next restyle.
        if (base == &styleTileGiven && !testAttribute(Qt::WA_WState_Polished)) {
            setTileSheet(styleTileGiven);
            // Asking the style about the tile makes its first polish read the
            // sheet afresh: the tile and its children are polished once, grey.
            style()->styleHint(QStyle::SH_EtchDisabledText, nullptr, this);
            ensurePolished();
        } else if (base) {
            setTileSheet(*base);
        }
    } else if (cell.value() == value()) {
        // Still the highlighted value: stays pink, and ends on its new base.
        if (base) savedStyleSheet = *base;
    } else {
        // The value went away: so does the highlight, or the tile would turn
        // pink again with no highlighted value on it.
        highlighted = false;
        setTileSheet(base ? *base : savedStyleSheet);
    }

    const bool filled = cell.value() != 0;
    const QString previous = valueLabel->text();
    const QString text = QString::number(cell.value());
    if (text != previous) valueLabel->setText(text);
    setShown(valueLabel, filled);
    if (valueLabel->isVisible()) {
        const bool changed = text != previous;
        const QString* style = &styleValueNormal;
        if (changed && markChanges && cell.origin() == eng::originMove) style = &styleValueByMove;
        if (changed && markChanges && cell.origin() == eng::originPlayer) style = &styleValueByPlayer;
        setSheet(valueLabel, *style);
    }

    for (int v = 1; v <= 9; ++v) {
        QLabel* label = potentials[v - 1];
        setShown(label, !filled && pencilMarksShown);
        const bool wasEnabled = isEnabledHere(label);
        const bool enabled = cell.isPotential(v);
        if (enabled != wasEnabled) label->setEnabled(enabled);
        if (!label->isVisible()) continue;
        if (enabled)
            setSheet(label, stylePotentialOn);
        else if (wasEnabled && markChanges)
            setSheet(label, stylePotentialRemoved);
        else
            setSheet(label, stylePotentialOff);
    }
    announce();
}

void Tile::showPencilMarks(bool show) {
    buildForm();
    if (pencilMarksShown == show) return;
    pencilMarksShown = show;
    if (valueLabel->text() != QLatin1String("0")) return;
    for (QLabel* label : potentials) setShown(label, show);
    resetPotentialStyles();
    announce();
}

void Tile::resetPotentialStyles() {
    buildForm();
    for (QLabel* label : potentials) setSheet(label, isEnabledHere(label) ? stylePotentialOn : stylePotentialOff);
}

void Tile::showValueCaret() {
    buildForm();
    setTileSheet(styleValueCaret);
    caretMode = ValueCaret;
    setFocus(Qt::OtherFocusReason);
    announceCaret();
}

void Tile::showPencilCaret() {
    buildForm();
    setTileSheet(stylePencilCaret);
    caretMode = PencilCaret;
    setFocus(Qt::OtherFocusReason);
    announceCaret();
}

Tile::CaretMode Tile::hideCaret() {
    buildForm();
    const CaretMode previous = caretMode;
    if (highlighted) {
        // The highlight survives the caret and ends on a white tile.
        savedStyleSheet = styleTileNormal;
        setTileSheet(styleHighlight);
    } else {
        setTileSheet(styleTileNormal);
    }
    caretMode = NoCaret;
    if (previous != NoCaret) announceCaret();
    return previous;
}

bool Tile::hasValue() const {
    if (!ui) return recorded && recorded->value() != 0;
    return valueLabel->text() != QLatin1String("0");
}

int Tile::value() const {
    if (!ui) return recorded ? recorded->value() : 0;
    return valueLabel->text().toInt(nullptr, 10);
}

void Tile::highlightValue(int newValue, int oldValue) {
    buildForm();
    // Re-applying the highlight to a tile that shows it: updates keep a
    // highlighted tile pink, so there is nothing to undo and redo.
    if (newValue != 0 && newValue == oldValue && highlighted && value() == newValue &&
        styleSheet() == styleHighlight)
        return;
    if (oldValue != 0 && value() == oldValue && highlighted) {
        setTileSheet(savedStyleSheet);
        highlighted = false;
    }
    if (newValue != 0 && value() == newValue) {
        if (!highlighted) savedStyleSheet = styleSheet();
        setTileSheet(styleHighlight);
        highlighted = true;
    }
}

void Tile::showHint(HintRole role) {
    buildForm();
    if (role == hint) return;
    const QString* sheet = role == HintBasis ? &styleHintBasis : role == HintTarget ? &styleHintTarget : nullptr;
    const bool restyled = hint != NoHint && styleSheet() != (hint == HintBasis ? styleHintBasis : styleHintTarget);
    if (hint == NoHint) sheetBeforeHint = styleSheet();
    hint = role;
    if (sheet)
        setTileSheet(*sheet);
    else if (!restyled)
        setTileSheet(sheetBeforeHint);
}

// Lets the window repaint, paints this tile at once and waits one step: a
// change made just before is not always painted by the event processing alone
// on a real display, and the player must see every step. The step is waited out
// in an event loop, not asleep: a Wayland client whose thread sleeps answers no
// frame callback, so its next frame may be held back or dropped (a blink step
// missing from the screen), and its requests wait unsent. Returns false when
// the tile went away meanwhile, so the animation stops touching it.
bool Tile::pause() {
    QPointer<Tile> self(this);
    QCoreApplication::processEvents(QEventLoop::AllEvents);
    if (!self) return false;
    repaint();
    QGuiApplication::sync();  // hands the painted step to the display server
    QEventLoop step;
    QTimer::singleShot(kAnimationStepMs, &step, &QEventLoop::quit);
    step.exec();
    return self;
}

// Re-entry: the animations process events, so clicks, keys and even another
// animation call can reach this tile before they end. Mouse and key input on an
// animating tile is dropped (the window holds keys back until it is idle), and
// a nested animation call returns at once, so the labels have one owner until
// the final state is set. If the tile is destroyed meanwhile, pause() notices
// and the animation stops without touching it again.
void Tile::rejectValue() {
    buildForm();
    if (animating) return;
    animating = true;
    const int digit = value();
    setTileSheet(styleRejectedValue);
    for (int step = 0; step < kAnimationSteps; ++step) {
        if (!pause()) return;
        setShown(valueLabel, valueLabel->isHidden());
    }
    setTileSheet(styleValueCaret);
    valueLabel->setText(QStringLiteral("0"));
    setShown(valueLabel, false);
    for (QLabel* label : potentials) setShown(label, pencilMarksShown);
    animating = false;
    refused = digit;
    refusedContent = content();
    announce();
    announceCaret();  // the description says so too
}

// Ends with the candidate shown only if pencil marks are still switched on:
// the player may have switched them off while it flashed.
void Tile::flashPotential(int value) {
    buildForm();
    if (animating || value < 1 || value > 9) return;
    animating = true;
    QLabel* label = potentials[value - 1];
    setShown(label, true);
    for (int step = 0; step < kAnimationSteps; ++step) {
        setSheet(label, step % 2 == 0 ? styleFlashRed : styleFlashBlack);
        if (!pause()) return;
    }
    setShown(label, pencilMarksShown && !hasValue());
    setSheet(label, styleFlashEnd);
    animating = false;
}

// A tile showing its picture has nothing the style sheet could change: its
// polish waits for the form (buildForm), which keeps 81 style-sheet walks out
// of the first frame.
bool Tile::event(QEvent* event) {
    if (!ui && event->type() == QEvent::Polish) return true;
    return QWidget::event(event);
}

void Tile::paintEvent(QPaintEvent* event) {
    if (ui || preview.isNull()) {
        QWidget::paintEvent(event);
        return;
    }
    QPainter painter(this);
    if (preview.devicePixelRatio() != devicePixelRatioF()) painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(rect(), preview);
}

void Tile::mouseReleaseEvent(QMouseEvent* event) {
    buildForm();
    if (animating) return;
    if (event->button() == Qt::LeftButton)
        emit leftClicked(index_);
    else if (event->button() == Qt::RightButton)
        emit rightClicked(index_);
}

void Tile::mouseDoubleClickEvent(QMouseEvent* event) {
    buildForm();
    if (animating) return;
    if (event->button() == Qt::LeftButton) emit leftDoubleClicked(index_);
    if (!hasValue() && pencilMarksShown) {
        const int k = singleEnabledPotential();
        if (k >= 0) emit singlePotentialDoubleClicked(index_, k + 1);
    }
}

void Tile::keyReleaseEvent(QKeyEvent* event) {
    buildForm();
    if (caretMode == NoCaret || animating) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    switch (event->key()) {
    case Qt::Key_Left: emit moveCaret(index_, Left); return;
    case Qt::Key_Up: emit moveCaret(index_, Up); return;
    case Qt::Key_Right: emit moveCaret(index_, Right); return;
    case Qt::Key_Down: emit moveCaret(index_, Down); return;
    default: break;
    }
    if (hasValue()) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    bool ok = false;
    const int digit = event->text().toInt(&ok, 10);
    if (!ok || digit < 1 || digit > 9) {
        QWidget::keyReleaseEvent(event);
        return;
    }
    if (caretMode == ValueCaret) {
        showValue(digit);
        emit valueEdited(index_, digit);
    } else {
        togglePotential(digit);
        emit potentialsEdited(index_, digit);
    }
}

void Tile::showValue(int v) {
    valueLabel->setText(QString::number(v));
    setShown(valueLabel, true);
    for (QLabel* label : potentials) setShown(label, false);
    announce();
}

bool Tile::enterSingleCandidate() {
    buildForm();
    if (caretMode == NoCaret || animating || hasValue() || !pencilMarksShown) return false;
    const int k = singleEnabledPotential();
    if (k < 0) return false;
    showValue(k + 1);
    emit valueEdited(index_, k + 1);
    return true;
}

int Tile::candidates() const {
    int mask = 0;
    for (int v = 1; v <= 9; ++v)
        if (ui ? isEnabledHere(potentials[v - 1]) : !recorded || recorded->isPotential(v)) mask |= 1 << v;
    return mask;
}

// What a reader says of the cell, as one number: its value, whether it is a
// given, and the candidates while they are shown.
int Tile::content() const {
    if (hasValue()) return value() | (given ? 16 : 0);
    return pencilMarksShown ? 32 | candidates() << 6 : 0;
}

// A reader hears the new name of a cell whose content changed, and only then;
// nothing is built while no assistive technology listens. A refusal is part of
// the name until the cell holds something else.
void Tile::announce() {
    if (refused && content() != refusedContent) refused = 0;
    if (!QAccessible::isActive()) return;
    const int now = content();
    const int key = now | refused << 16;
    if (key == announcedContent) return;
    announcedContent = key;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

void Tile::announceCaret() {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&event);
}

void Tile::togglePotential(int v) {
    QLabel* label = potentials[v - 1];
    setShown(label, label->isHidden());
}

int Tile::singleEnabledPotential() const {
    int found = -1;
    for (int k = 0; k < 9; ++k) {
        if (!potentials[k]->isEnabled()) continue;
        if (found >= 0) return -1;
        found = k;
    }
    return found;
}
