// Every text of the main window and its three dialogs fits its widget, and the
// icons have pictures for twice the size, at whatever scale the screen asks
// for (ctest runs it on Xvfb at 96, 120, 144 and 192 dpi).
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QScreen>
#include <QStyleOption>
#include <QTextDocument>

#include "AboutDialog.h"
#include "HighDpi.h"
#include "WindowTestSupport.h"

namespace {

// The room a button leaves for its text, from the style that draws it.
QRect textRoom(QAbstractButton* b) {
    QStyleOptionButton opt;
    opt.initFrom(b);
    opt.text = b->text();
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    if (qobject_cast<QCheckBox*>(b)) element = QStyle::SE_CheckBoxContents;
    if (qobject_cast<QRadioButton*>(b)) element = QStyle::SE_RadioButtonContents;
    return b->style()->subElementRect(element, &opt, b);
}

// The size a label's text needs, rich text laid out as the label lays it out.
QSize textSize(QLabel* label) {
    if (!Qt::mightBeRichText(label->text())) {  // one line of text: its ink must show
        const QFontMetrics fm = label->fontMetrics();
        if (label->wordWrap()) return fm.boundingRect(label->contentsRect(), Qt::TextWordWrap, label->text()).size();
        return {fm.horizontalAdvance(label->text()), fm.tightBoundingRect(label->text()).height()};
    }
    QTextDocument doc;
    doc.setDefaultFont(label->font());
    doc.setDocumentMargin(0);
    doc.setHtml(label->text());
    if (!label->wordWrap()) return {int(std::ceil(doc.idealWidth())), 0};
    doc.setTextWidth(label->contentsRect().width());
    return {int(std::ceil(doc.idealWidth())), int(std::ceil(doc.size().height()))};
}

// Every visible text of `top` that does not fit, as "object: text (needed > room)".
QStringList clipped(QWidget* top) {
    QStringList out;
    auto check = [&](QWidget* w, const QString& text, QSize needed, QSize room) {
        if (needed.width() > room.width() || needed.height() > room.height())
            out << QString::asprintf("%s: %s (%dx%d > %dx%d)", qPrintable(w->objectName()), qPrintable(text.left(60)),
                                     needed.width(), needed.height(), room.width(), room.height());
    };
    for (QWidget* w : top->findChildren<QWidget*>()) {
        if (!w->isVisibleTo(top)) continue;
        if (auto* l = qobject_cast<QLabel*>(w); l && !l->text().isEmpty()) {
            check(l, l->text(), textSize(l), l->contentsRect().size());
        } else if (auto* b = qobject_cast<QAbstractButton*>(w); b && !b->text().isEmpty() && b->icon().isNull()) {
            QString text = b->text();
            text.remove(QRegularExpression("&(?!&)"));
            check(b, text, {b->fontMetrics().horizontalAdvance(text), b->fontMetrics().height()}, textRoom(b).size());
        } else if (auto* g = qobject_cast<QGroupBox*>(w)) {
            check(g, g->title(), {g->fontMetrics().horizontalAdvance(g->title()), 0}, g->contentsRect().size());
        } else if (auto* list = qobject_cast<QListWidget*>(w)) {
            check(list, "items", {list->sizeHintForColumn(0), 0}, list->viewport()->size());
        }
    }
    return out;
}

// Every visible text fits, with a picture of what the screen shows, the scale in its name.
void expectTextsFit(QWidget* w, const QString& name) {
    w->repaint();
    savePicture(w->screen()->grabWindow(w->winId()).toImage(),
                QString("scale_%1_%2").arg(w->devicePixelRatioF(), 0, 'f', 2).arg(name));
    const QStringList bad = clipped(w);
    QVERIFY2(bad.isEmpty(), qPrintable(bad.join('\n')));
}

}  // namespace

class HighDpiTest : public QObject {
    Q_OBJECT

    std::unique_ptr<SudokuWindow> window{shownWindow()};

private slots:
    void mainWindowTextsFitAtEveryLevel_data() {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("level");
        QTest::newRow("completed") << "actionNewGameCompleted" << "difficulty: none";
        QTest::newRow("very easy") << "actionNewGameVeryEasy" << "difficulty: Very Easy";
        QTest::newRow("user edit") << "actionNewGameUserEdit" << "difficulty: user edit";
    }
    void mainWindowTextsFitAtEveryLevel() {
        QFETCH(QString, action);
        MessageBoxAnswerer answerer;
        trigger(*window, qPrintable(action));
        QTEST(window->levelText(), "level");
        expectTextsFit(window.get(), "window_" + action);
    }

    void dialogTextsFit() {
        PrintingInfo printing;
        PencilMarksOptions pencilMarks;
        AboutDialog about("1.0.4", window.get());
        for (QDialog* dialog : std::initializer_list<QDialog*>{&printing, &pencilMarks, &about}) {
            dialog->show();
            QVERIFY(QTest::qWaitForWindowExposed(dialog, 30000));
            expectTextsFit(dialog, dialog->objectName());
        }
    }

    // Where a pixel is more than one device pixel, toolbar icons and the
    // about picture come from the pictures drawn at twice the size.
    void iconsSharp() {
        const qreal ratio = window->devicePixelRatioF();
        if (ratio <= 1) QSKIP("the screen does not scale");
        for (QAction* action : window->findChildren<QAction*>())
            QVERIFY2(action->icon().isNull() || action->icon().availableSizes().contains(QSize(96, 96)),
                     qPrintable(action->objectName()));
        AboutDialog about("1.0.4", window.get());
        auto* picture = child<QLabel>(about, "label");
        QVERIFY(picture->pixmap(Qt::ReturnByValue).width() >= picture->width() * ratio - 1);
    }
};

int main(int argc, char** argv) {
    prepareApplication();
    QApplication app(argc, argv);
    HighDpiTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_high_dpi.moc"
