#pragma once
// Where the boards stand on a printed page, in millimetres.

#include <QRectF>
#include <QVector>

namespace print_layout {

// Board rectangles for one (1), two (2) or four (4) boards a page, in drawing
// order, on a page whose printable rectangle is `page` (millimetres).
QVector<QRectF> boardRects(int boardsPerPage, const QRectF& page);

}  // namespace print_layout
