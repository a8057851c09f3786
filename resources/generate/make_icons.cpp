// Draws the program's icons. Build and run with resources/generate/generate.sh.
// Every icon of the resource file is drawn at 48 px and at 96 px (name@2x.png),
// which the toolkit picks on screens that scale by more than one; the
// application icon is drawn for the hicolor theme at 48, 128 and 256 px.
#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <functional>

namespace {

const QColor kBlueDark(22, 78, 160);
const QColor kBlue(52, 120, 214);
const QColor kBlueLight(170, 205, 245);

// Every drawing works on a 48 x 48 canvas; it is scaled to the size asked for.
void draw(const QString& path, int size, const std::function<void(QPainter&)>& picture) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 48.0, size / 48.0);
    picture(p);
    p.end();
    QDir().mkpath(QFileInfo(path).path());
    if (!image.save(path)) qFatal("cannot write %s", qPrintable(path));
}

// A resource icon: name.png at 48 px and name@2x.png at 96 px.
void save(const QString& dir, const QString& name, const std::function<void(QPainter&)>& picture) {
    draw(dir + "/" + name + ".png", 48, picture);
    draw(dir + "/" + name + "@2x.png", 96, picture);
}

// The rounded blue tile behind the level icons and the application icon.
void blueTile(QPainter& p, const QRectF& rect, qreal radius) {
    QLinearGradient g(0, 0, 0, 48);
    g.setColorAt(0, kBlue.lighter(120));
    g.setColorAt(1, kBlueDark);
    p.setPen(QPen(kBlueDark.darker(130), 1.5));
    p.setBrush(g);
    p.drawRoundedRect(rect, radius, radius);
}

// A blue board with a 3x3 grid; `filled` of its nine cells carry a digit dot.
void levelIcon(QPainter& p, int filled) {
    blueTile(p, QRectF(3, 3, 42, 42), 7);
    p.setBrush(Qt::white);
    p.setPen(Qt::NoPen);
    static const int order[9] = {4, 0, 8, 2, 6, 1, 7, 3, 5};
    for (int k = 0; k < 9; ++k) {
        const int cell = order[k];
        const QRectF r(8 + (cell % 3) * 11.3, 8 + (cell / 3) * 11.3, 9.4, 9.4);
        p.setBrush(k < filled ? QColor(Qt::white) : QColor(255, 255, 255, 70));
        p.drawRoundedRect(r, 2, 2);
        if (k < filled) {
            p.setBrush(kBlueDark);
            p.drawEllipse(r.center(), 2.2, 2.2);
        }
    }
}

void arrow(QPainter& p, bool forward, const QColor& color) {
    QPainterPath path;
    path.moveTo(6, 19);
    path.lineTo(26, 19);
    path.lineTo(26, 9);
    path.lineTo(43, 24);
    path.lineTo(26, 39);
    path.lineTo(26, 29);
    path.lineTo(6, 29);
    path.closeSubpath();
    if (!forward) {
        p.translate(48, 0);
        p.scale(-1, 1);
    }
    QLinearGradient g(0, 9, 0, 39);
    g.setColorAt(0, color.lighter(140));
    g.setColorAt(1, color.darker(120));
    p.setPen(QPen(color.darker(160), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.setBrush(g);
    p.drawPath(path);
}

void folder(QPainter& p) {
    p.setPen(QPen(QColor(150, 100, 20), 1.5));
    p.setBrush(QColor(240, 190, 80));
    QPainterPath back;
    back.moveTo(4, 12);
    back.lineTo(17, 12);
    back.lineTo(21, 16);
    back.lineTo(42, 16);
    back.lineTo(42, 40);
    back.lineTo(4, 40);
    back.closeSubpath();
    p.drawPath(back);
    p.setBrush(QColor(252, 215, 120));
    QPainterPath front;
    front.moveTo(4, 40);
    front.lineTo(10, 22);
    front.lineTo(46, 22);
    front.lineTo(42, 40);
    front.closeSubpath();
    p.drawPath(front);
}

void disk(QPainter& p) {
    p.setPen(QPen(QColor(20, 40, 90), 1.5));
    p.setBrush(QColor(45, 85, 170));
    QPainterPath body;
    body.moveTo(5, 5);
    body.lineTo(37, 5);
    body.lineTo(43, 11);
    body.lineTo(43, 43);
    body.lineTo(5, 43);
    body.closeSubpath();
    p.drawPath(body);
    p.setBrush(QColor(220, 225, 235));
    p.drawRect(QRectF(12, 5, 22, 13));
    p.setBrush(QColor(45, 85, 170));
    p.drawRect(QRectF(27, 8, 4, 7));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(10, 25, 28, 18), 2, 2);
    p.setPen(QPen(QColor(150, 160, 180), 1.2));
    for (int y : {30, 34, 38}) p.drawLine(QPointF(14, y), QPointF(34, y));
}

void printer(QPainter& p) {
    p.setPen(QPen(QColor(70, 70, 70), 1.5));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(13, 4, 22, 16));
    p.setBrush(QColor(150, 150, 155));
    p.drawRoundedRect(QRectF(4, 17, 40, 18), 4, 4);
    p.setBrush(QColor(90, 200, 90));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(38, 22), 2, 2);
    p.setPen(QPen(QColor(70, 70, 70), 1.5));
    p.setBrush(Qt::white);
    p.drawRect(QRectF(12, 29, 24, 15));
    p.setPen(QPen(kBlue, 1.2));
    for (int y : {33, 37, 41}) p.drawLine(QPointF(16, y), QPointF(32, y));
}

void about(QPainter& p) {
    QRadialGradient g(QPointF(18, 16), 30);
    g.setColorAt(0, kBlue.lighter(150));
    g.setColorAt(1, kBlueDark);
    p.setPen(QPen(kBlueDark.darker(140), 1.5));
    p.setBrush(g);
    p.drawEllipse(QRectF(3, 3, 42, 42));
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(QPointF(24, 14), 3.5, 3.5);
    p.drawRoundedRect(QRectF(20.5, 20, 7, 18), 2, 2);
}

// A small board for the about box, in a cool or a rose palette.
void aboutPicture(QPainter& p, const QColor& light, const QColor& dark) {
    p.setPen(QPen(dark, 2));
    p.setBrush(light);
    p.drawRoundedRect(QRectF(2, 2, 44, 44), 6, 6);
    p.setPen(QPen(dark.lighter(130), 0.8));
    for (int k = 1; k < 9; ++k) {
        if (k % 3 == 0) continue;
        p.drawLine(QPointF(5 + k * 4.2, 5), QPointF(5 + k * 4.2, 43));
        p.drawLine(QPointF(5, 5 + k * 4.2), QPointF(43, 5 + k * 4.2));
    }
    p.setPen(QPen(dark, 1.8));
    for (int k : {3, 6}) {
        p.drawLine(QPointF(5 + k * 4.2, 5), QPointF(5 + k * 4.2, 43));
        p.drawLine(QPointF(5, 5 + k * 4.2), QPointF(43, 5 + k * 4.2));
    }
    QFont font("DejaVu Sans");
    font.setPixelSize(11);
    font.setBold(true);
    p.setFont(font);
    p.drawText(QRectF(5, 5, 12.6, 12.6), Qt::AlignCenter, "7");
    p.drawText(QRectF(17.6, 17.6, 12.6, 12.6), Qt::AlignCenter, "3");
    p.drawText(QRectF(30.2, 30.2, 12.6, 12.6), Qt::AlignCenter, "9");
}

// The application icon: one square of the board with a few digits, on the
// blue tile of the level icons.
void appIcon(QPainter& p) {
    blueTile(p, QRectF(2, 2, 44, 44), 8);
    const QRectF board(7, 7, 34, 34);
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawRoundedRect(board, 3, 3);
    const qreal cell = board.width() / 3;
    p.setPen(QPen(kBlueLight.darker(115), 1.2));
    for (int k = 1; k < 3; ++k) {
        p.drawLine(QPointF(board.left() + k * cell, board.top() + 1.5), QPointF(board.left() + k * cell, board.bottom() - 1.5));
        p.drawLine(QPointF(board.left() + 1.5, board.top() + k * cell), QPointF(board.right() - 1.5, board.top() + k * cell));
    }
    QFont font("DejaVu Sans");
    font.setPixelSize(9);
    font.setBold(true);
    p.setFont(font);
    const std::pair<int, const char*> digits[] = {{0, "5"}, {2, "3"}, {4, "7"}, {6, "9"}, {7, "1"}};
    for (const auto& [at, digit] : digits) {
        p.setPen(at == 4 ? kBlue : kBlueDark);
        p.drawText(QRectF(board.left() + (at % 3) * cell, board.top() + (at / 3) * cell, cell, cell), Qt::AlignCenter, digit);
    }
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QString dir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    save(dir, "blue_resolved", [](QPainter& p) { levelIcon(p, 9); });
    save(dir, "blue_very_easy", [](QPainter& p) { levelIcon(p, 7); });
    save(dir, "blue-easy", [](QPainter& p) { levelIcon(p, 5); });
    save(dir, "blue_normal", [](QPainter& p) { levelIcon(p, 3); });
    save(dir, "blue_hard", [](QPainter& p) { levelIcon(p, 1); });
    save(dir, "blue_empty", [](QPainter& p) { levelIcon(p, 0); });
    save(dir, "open_game", folder);
    save(dir, "save_game", disk);
    save(dir, "printer", printer);
    save(dir, "about", about);
    save(dir, "make_move", [](QPainter& p) { arrow(p, true, QColor(60, 170, 70)); });
    save(dir, "retract_move", [](QPainter& p) { arrow(p, false, QColor(225, 120, 40)); });
    save(dir, "blue_make_move", [](QPainter& p) { arrow(p, true, kBlue); });
    save(dir, "blue_retract_move", [](QPainter& p) { arrow(p, false, kBlue); });
    save(dir, "blue-about-cool-48", [](QPainter& p) { aboutPicture(p, kBlueLight, kBlueDark); });
    save(dir, "blue-about-rose-48", [](QPainter& p) { aboutPicture(p, QColor(250, 205, 220), QColor(170, 40, 90)); });
    for (int size : {48, 128, 256})
        draw(QString("%1/hicolor/%2x%2/apps/org.sudoku_vantu.SudokuVantu.png").arg(dir).arg(size), size, appIcon);
    return 0;
}
