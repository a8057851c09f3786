#pragma once

#include <optional>

#include "SideThread.h"

// What the program starts before its application object, first thing in
// main: the heap the window is built in, mapped ahead (mapHeapAhead), and the
// font configuration, loaded on a second thread while the application object
// connects to the display: the first text the window measures would otherwise
// wait for it (about 5 ms here, far more on a desktop with many fonts). It
// waits for that thread when destroyed.
class StartUpWarmUp {
public:
    StartUpWarmUp();
    StartUpWarmUp(const StartUpWarmUp&) = delete;
    StartUpWarmUp& operator=(const StartUpWarmUp&) = delete;

private:
    std::optional<SideThread> fontLoader;
};
