#include "PrintLayout.h"

namespace print_layout {

QVector<QRectF> boardRects(int boardsPerPage, const QRectF& page) {
    const QPointF c = page.center();
    QVector<QRectF> rects;
    switch (boardsPerPage) {
    case 1: rects << QRectF(c.x() - 75, page.top() + 50, 150, 156); break;
    case 2: {
        const double w = 100, h = 104, gap = 20;
        if (page.width() > page.height()) {
            const QRectF first(c.x() - 110, c.y() - 52, w, h);
            rects << first << first.translated(w + gap, 0);
        } else {
            const QRectF first(c.x() - 50, c.y() - 114, w, h);
            rects << first << first.translated(0, h + gap);
        }
        break;
    }
    case 4: {
        const double w = 80, h = 83, across = 15, down = 20;
        const QRectF first(c.x() - 87.5, c.y() - 93, w, h);
        rects << first << first.translated(w + across, 0) << first.translated(0, h + down)
              << first.translated(w + across, h + down);
        break;
    }
    default: break;
    }
    return rects;
}

}  // namespace print_layout
