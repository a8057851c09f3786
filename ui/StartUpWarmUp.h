#pragma once

#include <QFont>
#include <future>
#include <optional>
#include <thread>

// What the program starts before its application object, first thing in
// main: the heap the window is built in, mapped ahead (mapHeapAhead), and a
// second thread for the fonts. It loads the font configuration while the
// application object connects to the display, then, once told the
// application is ready, fills the toolkit's font database: the fonts and the
// application font's family with its fallbacks. The first text the window
// measures would otherwise wait for both (about 5 ms and 1.5 ms here, far
// more on a desktop with many fonts); only the font itself is made again on
// the GUI thread, as each thread keeps its own. It joins the thread when
// destroyed.
class StartUpWarmUp {
public:
    StartUpWarmUp();
    ~StartUpWarmUp();
    StartUpWarmUp(const StartUpWarmUp&) = delete;
    StartUpWarmUp& operator=(const StartUpWarmUp&) = delete;
    // Once the application object exists, before the window is built.
    void applicationReady();

private:
    std::promise<std::optional<QFont>> applicationFont;
    bool told = false;
    std::thread fontLoader;
};
