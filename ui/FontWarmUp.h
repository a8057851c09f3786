#pragma once

#include <thread>

// Loads the font configuration on a second thread while the application
// object connects to the display: the first text the window measures would
// otherwise wait for it (about 5 ms here, far more on a desktop with many
// fonts). Create it before the application object; it joins when destroyed.
class FontWarmUp {
public:
    FontWarmUp();
    ~FontWarmUp();
    FontWarmUp(const FontWarmUp&) = delete;
    FontWarmUp& operator=(const FontWarmUp&) = delete;

private:
    std::thread loader;
};
