#include "Announcer.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QStringList>

#include "Board.h"
#include "Tile.h"
#include "TileAccessible.h"

namespace {

const char* const kSpeakerName = "announcement";
const char* const kTextProperty = "announcement";

// A notification whose name is the text it appeared with.
class SpeakerAccessible : public QAccessibleWidget {
public:
    explicit SpeakerAccessible(QWidget* w) : QAccessibleWidget(w, QAccessible::Notification) {}
    QString text(QAccessible::Text t) const override {
        return t == QAccessible::Name ? widget()->property(kTextProperty).toString() : QString();
    }
};

QAccessibleInterface* speakerFactory(const QString& key, QObject* object) {
    if (key != QLatin1String("QWidget") || object->objectName() != QLatin1String(kSpeakerName)) return nullptr;
    return new SpeakerAccessible(static_cast<QWidget*>(object));
}

int candidatesOf(const eng::CellInfo& cell) {
    int mask = 0;
    for (int v = 1; v <= 9; ++v)
        if (cell.isPotential(v)) mask |= 1 << v;
    return mask;
}

// A position to read: null when there is none.
const eng::Board* playing(const eng::Board* board) { return board && board->cell(0) ? board : nullptr; }

}  // namespace

Announcer::Announcer(QWidget* window, Tile* const* tiles) : QWidget(window), tiles(tiles) {
    static bool installed = false;
    if (!installed) QAccessible::installFactory(speakerFactory);
    installed = true;
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(0, 0, 1, 1);
    lower();
    for (QWidget*& speaker : speakers) {
        speaker = new QWidget(this);
        speaker->setObjectName(QLatin1String(kSpeakerName));
        speaker->setAttribute(Qt::WA_TransparentForMouseEvents);
        speaker->setFocusPolicy(Qt::NoFocus);
        speaker->setGeometry(0, 0, 1, 1);
        speaker->hide();
    }
}

void Announcer::say(const QString& text) {
    if (!QAccessible::isActive() || text.isEmpty()) return;
    if (current >= 0) speakers[current]->hide();
    current = (current + 1) % 3;
    QWidget* speaker = speakers[current];
    speaker->setProperty(kTextProperty, text);
    speaker->show();
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(speaker, text);
    QAccessible::updateAccessibility(&event);
#endif
}

// ---------------------------------------------------------------------------
// Moves

Announcer::Watch::Watch(Announcer& announcer, eng::Board* board, int index, int candidate)
    : announcer(announcer), board(board), index(index), candidate(candidate) {
    if (!QAccessible::isActive() || !playing(board)) return;
    watching = true;
    for (int i = 0; i < 81; ++i) {
        values[i] = board->cell(i)->value();
        marks[i] = candidatesOf(*board->cell(i));
    }
}

Announcer::Watch::~Watch() {
    if (!watching || !playing(board) || !QAccessible::isActive()) return;
    if (candidate >= 1 && candidate <= 9 && index >= 0 && index < 81) {
        const bool was = marks[index] & 1 << candidate, is = board->cell(index)->isPotential(candidate);
        if (was != is)
            announcer.say(is ? Announcer::tr("candidate %1 back").arg(candidate)
                             : Announcer::tr("candidate %1 removed").arg(candidate));
        return;
    }
    QString text = announcer.changed(values, marks, *board, index);
    if (text.isEmpty()) return;
    if (board->isComplete()) text += QLatin1String(". ") + Announcer::tr("The board is complete");
    announcer.say(text);
}

// The names of the cells whose values changed (only `index`'s when given),
// else of those whose candidates did; three at most.
QString Announcer::changed(const int* values, const int* marks, const eng::Board& board, int index) const {
    QStringList names;
    for (int pass = 0; pass < 2 && names.isEmpty(); ++pass)
        for (int i = index >= 0 ? index : 0; i < (index >= 0 ? index + 1 : 81) && names.size() < 3; ++i) {
            const eng::CellInfo& cell = *board.cell(i);
            if (pass == 0 ? cell.value() != values[i] : candidatesOf(cell) != marks[i])
                names << tileAccessibleName(*tiles[i]);
        }
    return names.join(QLatin1String("; "));
}

void Announcer::valueRefused(const eng::Board& board, int index, int value) {
    if (!QAccessible::isActive()) return;
    const int other = board.clashingCell(index, value);
    if (other < 0) {
        say(board.getLevel() == eng::lvlUserEdit ? tr("%1 refused: the board would have no solution").arg(value)
                                                 : tr("%1 refused: not this cell's digit").arg(value));
        return;
    }
    const eng::CellInfo &at = *board.cell(index), &clash = *board.cell(other);
    const int row = clash.row() + 1, column = clash.column() + 1;
    if (clash.row() == at.row())
        say(tr("%1 refused: row %2 already has %1 at column %3").arg(value).arg(row).arg(column));
    else if (clash.column() == at.column())
        say(tr("%1 refused: column %2 already has %1 at row %3").arg(value).arg(column).arg(row));
    else
        //: %2 is the box (1 to 9, in reading order), %3 and %4 where in the board the clashing digit stands
        say(tr("%1 refused: box %2 already has %1 at row %3, column %4")
                .arg(value)
                .arg(at.square() + 1)
                .arg(row)
                .arg(column));
}

void Announcer::candidateRefused(int value) {
    if (QAccessible::isActive()) say(tr("candidate %1 refused").arg(value));
}

void Announcer::gameStarted(eng::Board* board, const QString& level, bool opened) {
    if (!QAccessible::isActive() || !playing(board)) return;
    int empty = 0;
    for (int i = 0; i < 81; ++i) empty += board->cell(i)->value() == 0;
    //: %1 is the level label ("difficulty: Medium"), %2 how many cells are empty
    say((opened ? tr("Game opened, %1, %2 empty cells") : tr("New game, %1, %2 empty cells")).arg(level).arg(empty));
}

// ---------------------------------------------------------------------------
// Reading keys

bool Announcer::isReadingKey(int key) {
    return key == Qt::Key_R || key == Qt::Key_C || key == Qt::Key_B || key == Qt::Key_N;
}

QString Announcer::readingKeysHelp() {
    return tr("Keys: R, C and B read the caret's row, column and box, N what is left to place");
}

void Announcer::read(int key, const eng::Board* board, int index) {
    if (!QAccessible::isActive() || !isReadingKey(key) || !playing(board)) return;
    if (key == Qt::Key_N) {
        QStringList left;
        for (int v = 1; v <= 9; ++v) {
            int placed = 0;
            for (int i = 0; i < 81; ++i) placed += board->cell(i)->value() == v;
            //: %1 how many of the digit %2 are still to be placed
            if (placed < 9) left << tr("%1 of digit %2").arg(9 - placed).arg(v);
        }
        const QString list = left.join(QLatin1String(", "));
        say(left.isEmpty() ? tr("Every digit is placed") : tr("Still to place: %1").arg(list));
        return;
    }
    const eng::CellInfo& at = *board->cell(index >= 0 && index < 81 ? index : 0);
    const int row = at.row(), column = at.column(), box = at.square();
    QStringList cells;
    for (int k = 0; k < 9; ++k) {
        const int i = key == Qt::Key_R ? row * 9 + k
                      : key == Qt::Key_C ? k * 9 + column
                                         : (box / 3 * 3 + k / 3) * 9 + box % 3 * 3 + k % 3;
        const int value = board->cell(i)->value();
        cells << (value ? QString::number(value) : tr("empty"));
    }
    const QString list = cells.join(QLatin1String(", "));
    //: %2 lists the nine cells in order, such as "7, empty, 4"
    say(key == Qt::Key_R   ? tr("Row %1: %2").arg(row + 1).arg(list)
        : key == Qt::Key_C ? tr("Column %1: %2").arg(column + 1).arg(list)
                           : tr("Box %1: %2").arg(box + 1).arg(list));
}
