#include "ToolBarArrowStyle.h"

#include <QApplication>
#include <QIconEngine>
#include <QPointer>

namespace {

// Stands for the base style's icon, which it asks for when first drawn or
// measured; with that style gone (the application's style replaced) it is empty.
class DeferredIcon final : public QIconEngine {
public:
    DeferredIcon(const QStyle* style, QStyle::StandardPixmap which) : style(style), which(which) {}
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new DeferredIcon(style, which); }

private:
    QIcon& icon() {
        if (real.isNull() && style) real = style->standardIcon(which);
        return real;
    }
    QPointer<const QStyle> style;
    QStyle::StandardPixmap which;
    QIcon real;
};

}  // namespace

// The proxy takes the application's style, -style and QT_STYLE_OVERRIDE honoured, as its own child.
void ToolBarArrowStyle::install() { QApplication::setStyle(new ToolBarArrowStyle(QApplication::style())); }

QIcon ToolBarArrowStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton || icon == SP_ToolBarVerticalExtensionButton)
        return QIcon(new DeferredIcon(baseStyle(), icon));
    return QProxyStyle::standardIcon(icon, option, widget);
}
