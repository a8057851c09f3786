#pragma once
// What assistive technology sees of the board: a 9 x 9 table whose cells are
// the tiles, each named in words ("Row 3, column 5: 7, given"). The labels
// inside a tile are not read on their own.

#include <QString>

class Tile;

// Registers the accessible interfaces of the board and its tiles; call before
// the first board widget is built. Safe to call more than once.
void installBoardAccessibility();

// The words a reader speaks for a tile, built when asked for.
QString tileAccessibleName(const Tile& tile);
QString tileAccessibleDescription(const Tile& tile);
