#pragma once

#include <QProxyStyle>

// The application's own style, except that the arrow a tool bar shows when its
// buttons do not fit is read only when first drawn. The style reads it as the
// tool bar is made, and that first picture read loads every image-format
// plugin (gif, ico, jpeg, and svg with its library) to ask each whether it
// reads the PNG: all on the way to the first frame, for an arrow the window's
// tool bar, which always fits, never shows.
class ToolBarArrowStyle : public QProxyStyle {
public:
    // Wraps the style the application would use. Once the application object exists, before any widget.
    static void install();
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

private:
    using QProxyStyle::QProxyStyle;
};
