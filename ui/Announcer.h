#pragma once
// Tells a screen reader the result of every move, without taking the focus:
// a placed or refused digit, a toggled candidate, Make Move and Retract Move,
// a new or opened game and a completed board. On the board's keys R, C, B and
// N it reads a row, a column, a box, or how many of each digit are left.
//
// What is said is shown by a notification object that appears with its text
// (readers speak a notification that becomes showing); where the toolkit has
// announcement events, one is sent too. Nothing is built or sent while no
// assistive technology listens. The widget itself is a transparent 1 x 1
// child of the window, beneath the others: nothing of it can be seen.

#include <QString>
#include <QWidget>

class Tile;
namespace eng {
class Board;
}

class Announcer : public QWidget {
    Q_OBJECT

public:
    // `tiles` are the board's 81 tiles, read for the names of changed cells.
    Announcer(QWidget* window, Tile* const* tiles);

    // Made just before an engine call, says what the call changed once it
    // ends: the content of `index` (all changed cells when -1), or whether
    // `candidate` went from that cell or came back; then whether the board is
    // complete. A refusal says nothing here: the refusal itself is told.
    class Watch {
    public:
        Watch(Announcer& announcer, eng::Board* board, int index = -1, int candidate = 0);
        ~Watch();
        Watch(const Watch&) = delete;
        Watch& operator=(const Watch&) = delete;

    private:
        Announcer& announcer;
        eng::Board* board;
        int index, candidate;
        bool watching = false;
        int values[81] = {}, marks[81] = {};
    };

    // Why the engine refused `value` in cell `index`: the cell that already
    // holds it in the row, column or box, else no clash.
    void valueRefused(const eng::Board& board, int index, int value);
    void candidateRefused(int value);
    void gameStarted(eng::Board* board, const QString& level, bool opened);

    // The reading keys, the same in every language.
    static bool isReadingKey(int key);
    // R, C, B: the row, column or box of `index` (-1: of the first cell); N: what is left to place.
    void read(int key, const eng::Board* board, int index);
    // The keys, in words, for the board's description.
    static QString readingKeysHelp();

public slots:
    // Speaks `text` once (nothing while no reader listens).
    void say(const QString& text);

private:
    Tile* const* tiles;
    // Turn about: each text has its own object, so a reader that asks for the
    // text a little late still gets the text that appeared.
    QWidget* speakers[3] = {};
    int current = -1;

    QString changed(const int* values, const int* marks, const eng::Board& board, int index) const;
};
