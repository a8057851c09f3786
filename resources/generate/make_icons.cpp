// Draws the program's icons. Build and run with resources/generate/generate.sh.
#include <QColor>
#include <QDir>
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

void save(const QString& dir, const QString& name, int size, const std::function<void(QPainter&)>& draw) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.scale(size / 48.0, size / 48.0);
    draw(p);
    p.end();
    image.save(dir + "/" + name);
}

// A blue board with a 3x3 grid; `filled` of its nine cells carry a digit dot.
void levelIcon(QPainter& p, int filled) {
    QLinearGradient g(0, 0, 0, 48);
    g.setColorAt(0, kBlue.lighter(120));
    g.setColorAt(1, kBlueDark);
    p.setPen(QPen(kBlueDark.darker(130), 1.5));
    p.setBrush(g);
    p.drawRoundedRect(QRectF(3, 3, 42, 42), 7, 7);
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

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    const QString dir = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QDir::currentPath();
    save(dir, "blue_resolved.png", 48, [](QPainter& p) { levelIcon(p, 9); });
    save(dir, "blue_very_easy.png", 48, [](QPainter& p) { levelIcon(p, 7); });
    save(dir, "blue-easy.png", 48, [](QPainter& p) { levelIcon(p, 5); });
    save(dir, "blue_normal.png", 48, [](QPainter& p) { levelIcon(p, 3); });
    save(dir, "blue_hard.png", 48, [](QPainter& p) { levelIcon(p, 1); });
    save(dir, "blue_empty.png", 48, [](QPainter& p) { levelIcon(p, 0); });
    save(dir, "open_game.png", 48, folder);
    save(dir, "save_game.png", 48, disk);
    save(dir, "printer.png", 48, printer);
    save(dir, "about.png", 48, about);
    save(dir, "make_move.png", 48, [](QPainter& p) { arrow(p, true, QColor(60, 170, 70)); });
    save(dir, "retract_move.png", 48, [](QPainter& p) { arrow(p, false, QColor(225, 120, 40)); });
    save(dir, "blue_make_move.png", 48, [](QPainter& p) { arrow(p, true, kBlue); });
    save(dir, "blue_retract_move.png", 48, [](QPainter& p) { arrow(p, false, kBlue); });
    save(dir, "blue-about-cool-48.png", 48,
         [](QPainter& p) { aboutPicture(p, kBlueLight, kBlueDark); });
    save(dir, "blue-about-rose-48.png", 48,
         [](QPainter& p) { aboutPicture(p, QColor(250, 205, 220), QColor(170, 40, 90)); });
    return 0;
}
