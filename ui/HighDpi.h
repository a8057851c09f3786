#pragma once

#include <QApplication>

// Lays the program out in device-independent pixels that follow the screen's
// DPI (Xft.dpi on X11) or QT_SCALE_FACTOR, and loads the icons' name@2x.png
// pictures where a pixel is larger than one device pixel. Must run before the
// application object is created.
//
// The factor is passed through unrounded: rounding 120 dpi (1.25) down to 1
// would leave the layout at its size while the fonts grow to 120 dpi and no
// longer fit; with the exact factor the fonts keep their 96-dpi size relative
// to the layout.
inline void enableHighDpiScaling() {
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)  // always on in Qt 6
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

// The window paints with the raster engine only: nothing in it draws with
// OpenGL, and without this the first window on X11 loads and probes the GLX
// driver, which alone took longer than building the whole window. Must run
// before the application object is created.
inline void useRasterWindowsOnly() { QApplication::setAttribute(Qt::AA_ForceRasterWidgets); }

// The menus stay in the window, which is made exactly as large as its board
// and menu. Asking whether the desktop shows menus of its own is a session-bus
// call on the way to the first frame.
inline void keepMenusInWindow() { QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar); }

// Everything the program sets before its application object exists.
inline void prepareApplication() {
    enableHighDpiScaling();
    useRasterWindowsOnly();
    keepMenusInWindow();
}
