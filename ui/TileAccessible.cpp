#include "TileAccessible.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QPointer>
#include <QStringList>
#include <QVector>

#include "Announcer.h"
#include "Tile.h"

namespace {

const char* const kBoardName = "boardWidget";

QString refusal(const QString& text, int digit) {
    //: %1 is a cell's name or its caret mode, %2 the digit the game refused there
    return QCoreApplication::translate("Tile", "%1; %2 refused").arg(text).arg(digit);
}

QWidget* boardOf(const Tile* tile) {
    for (QWidget* w = tile->parentWidget(); w; w = w->parentWidget())
        if (w->objectName() == QLatin1String(kBoardName)) return w;
    return nullptr;
}

// The board: 81 cells in reading order, then its other children (the level label).
class BoardAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit BoardAccessible(QWidget* board) : QAccessibleWidget(board, QAccessible::Table) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this)
                                                   : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) return QCoreApplication::translate("Tile", "Sudoku board");
        if (t == QAccessible::Description) return Announcer::readingKeysHelp();
        return QAccessibleWidget::text(t);
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.focusable = true;  // given the focus at start and by Escape, though not by Tab
        return s;
    }

    int childCount() const override { return 81 + others().size(); }
    QAccessibleInterface* child(int index) const override {
        if (index >= 0 && index < 81) return cell(index);
        const QList<QWidget*> rest = others();
        return index >= 81 && index - 81 < rest.size() ? QAccessible::queryAccessibleInterface(rest[index - 81])
                                                       : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        if (!child) return -1;
        if (auto* tile = qobject_cast<Tile*>(child->object()))
            return tileAt(tile->index()) == tile ? tile->index() : -1;
        const int k = others().indexOf(qobject_cast<QWidget*>(child->object()));
        return k < 0 ? -1 : 81 + k;
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i) {
            QAccessibleInterface* c = child(i);
            if (c && c->rect().contains(x, y)) return c;
        }
        return nullptr;
    }

    // QAccessibleTableInterface
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override {
        return row >= 0 && row < 9 && column >= 0 && column < 9 ? cell(row * 9 + column) : nullptr;
    }
    int selectedCellCount() const override { return selectedCells().size(); }
    QList<QAccessibleInterface*> selectedCells() const override {
        QList<QAccessibleInterface*> cells;
        for (int i = 0; i < 81; ++i)
            if (Tile* t = tileAt(i))
                if (t->caret() != Tile::NoCaret) cells << cell(i);
        return cells;
    }
    QString columnDescription(int) const override { return QString(); }
    QString rowDescription(int) const override { return QString(); }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    int columnCount() const override { return 9; }
    int rowCount() const override { return 9; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    // Found again whenever one is missing, so tiles may come and go.
    mutable QVector<QPointer<Tile>> tiles;

    Tile* tileAt(int index) const {
        if (index < 0 || index > 80) return nullptr;
        if (tiles.size() != 81 || !tiles[index]) {
            tiles = QVector<QPointer<Tile>>(81);
            for (Tile* t : widget()->findChildren<Tile*>())
                if (t->index() >= 0 && t->index() < 81) tiles[t->index()] = t;
        }
        return tiles[index];
    }
    QAccessibleInterface* cell(int index) const {
        Tile* t = tileAt(index);
        return t ? QAccessible::queryAccessibleInterface(t) : nullptr;
    }
    // The board's children that are not the frames holding the tiles.
    QList<QWidget*> others() const {
        QList<QWidget*> list;
        for (QWidget* w : widget()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            if (!w->isHidden() && !w->findChild<Tile*>()) list << w;
        return list;
    }
};

// One tile: a leaf cell of the board's table.
class TileAccessible : public QAccessibleWidget, public QAccessibleTableCellInterface {
public:
    explicit TileAccessible(Tile* tile) : QAccessibleWidget(tile, QAccessible::Cell) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this)
                                                       : QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text t) const override {
        if (t == QAccessible::Name) return tileAccessibleName(*tile());
        if (t == QAccessible::Description) return tileAccessibleDescription(*tile());
        return QString();
    }
    QAccessible::State state() const override {
        QAccessible::State s = QAccessibleWidget::state();
        s.focusable = true;
        s.selectable = true;
        s.selected = tile()->caret() != Tile::NoCaret;
        s.readOnly = tile()->isGiven();
        return s;
    }
    QAccessibleInterface* parent() const override {
        if (QWidget* board = boardOf(tile())) return QAccessible::queryAccessibleInterface(board);
        return QAccessibleWidget::parent();
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }

    // QAccessibleTableCellInterface
    bool isSelected() const override { return tile()->caret() != Tile::NoCaret; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override { return tile()->index() % 9; }
    int rowIndex() const override { return tile()->index() / 9; }
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override {
        QWidget* board = boardOf(tile());
        return board ? QAccessible::queryAccessibleInterface(board) : nullptr;
    }

private:
    Tile* tile() const { return static_cast<Tile*>(widget()); }
};

// A label inside a tile: present for the toolkit's bookkeeping, silent and
// unseen for a reader (the tile speaks for it).
class SilentAccessible : public QAccessibleWidget {
public:
    explicit SilentAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::NoRole) {}
    QString text(QAccessible::Text) const override { return QString(); }
    QAccessible::State state() const override {
        QAccessible::State s;
        s.invisible = true;
        return s;
    }
};

// The labels inside the tiles change their enabled state and visibility with
// every move, dozens at once. A reader told of them all falls behind and drops
// what follows (Orca ignores events while more than 100 wait), the spoken
// result of the move included; silent as they are, their events stay here.
QAccessible::UpdateHandler passedOn = nullptr;
void passOn(QAccessibleEvent* event) {
    for (QObject* o = event->object() ? event->object()->parent() : nullptr; o; o = o->parent())
        if (qobject_cast<Tile*>(o)) return;
    if (passedOn) return passedOn(event);
    QAccessible::installUpdateHandler(nullptr);  // the platform's own route
    QAccessible::updateAccessibility(event);
    QAccessible::installUpdateHandler(passOn);
}

QAccessibleInterface* boardFactory(const QString& key, QObject* object) {
    if (key == QLatin1String("Tile")) return new TileAccessible(static_cast<Tile*>(object));
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) return nullptr;
    if (key == QLatin1String("QWidget") && widget->objectName() == QLatin1String(kBoardName))
        return new BoardAccessible(widget);
    if (key == QLatin1String("QLabel") || key == QLatin1String("QWidget"))
        for (QWidget* w = widget->parentWidget(); w; w = w->parentWidget())
            if (qobject_cast<Tile*>(w)) return new SilentAccessible(widget);
    return nullptr;
}

}  // namespace

void installBoardAccessibility() {
    static bool installed = false;
    if (installed) return;
    installed = true;
    QAccessible::installFactory(boardFactory);
    passedOn = QAccessible::installUpdateHandler(passOn);
}

// The words go through translation in the context "Tile"; %1 is the row and
// %2 the column (1 to 9), so that a translation may order them as it needs.
QString tileAccessibleName(const Tile& tile) {
    const int row = tile.index() / 9 + 1, column = tile.index() % 9 + 1;
    QString name;
    if (tile.hasValue() && tile.isGiven()) {
        //: %3 is the cell's digit, a given of the puzzle
        name =
            QCoreApplication::translate("Tile", "Row %1, column %2: %3, given").arg(row).arg(column).arg(tile.value());
    } else if (tile.hasValue()) {
        //: %3 is the digit the player (or Make Move) placed
        name = QCoreApplication::translate("Tile", "Row %1, column %2: %3").arg(row).arg(column).arg(tile.value());
    } else if (tile.showsPencilMarks()) {
        QStringList candidates;
        for (int v = 1; v <= 9; ++v)
            if (tile.candidates() & (1 << v)) candidates << QString::number(v);
        //: %3 lists the digits still possible in the cell, such as "2 4 9"
        name = QCoreApplication::translate("Tile", "Row %1, column %2: empty, candidates %3")
                   .arg(row)
                   .arg(column)
                   .arg(candidates.join(' '));
    } else {
        name = QCoreApplication::translate("Tile", "Row %1, column %2: empty").arg(row).arg(column);
    }
    return tile.refusedValue() ? refusal(name, tile.refusedValue()) : name;
}

QString tileAccessibleDescription(const Tile& tile) {
    QString mode;
    if (tile.caret() == Tile::ValueCaret) mode = QCoreApplication::translate("Tile", "Caret: value entry");
    if (tile.caret() == Tile::PencilCaret) mode = QCoreApplication::translate("Tile", "Caret: pencil marks");
    return mode.isEmpty() || !tile.refusedValue() ? mode : refusal(mode, tile.refusedValue());
}
