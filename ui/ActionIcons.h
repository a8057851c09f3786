#pragma once

#include <QImage>
#include <vector>

#include "SideThread.h"

class QWidget;

// The pictures of the window's actions, read on a second thread while the
// window is built. Create it once the application object exists; apply()
// waits for the pictures.
class ActionIcons {
public:
    ActionIcons();
    // Gives each of the window's actions that has a picture its icon.
    void apply(QWidget* window);

private:
    std::vector<QImage> pictures;
    SideThread reader;
};
