#pragma once

#include <QObject>
#include <QPointer>

class QSocketNotifier;
class QWidget;

// SIGTERM, SIGHUP and SIGINT (a session ending, a closed terminal, Ctrl+C)
// close the window as its close button does, so that the game in progress is
// kept on the way out instead of losing what was not yet written. The handler
// only writes a byte to a pipe; the event loop reads it and closes the window.
// One at a time: a second one takes the signals over.
class CloseOnSignals : public QObject {
public:
    explicit CloseOnSignals(QWidget* window);
    ~CloseOnSignals() override;
    CloseOnSignals(const CloseOnSignals&) = delete;
    CloseOnSignals& operator=(const CloseOnSignals&) = delete;

private:
    QPointer<QWidget> window;
    QSocketNotifier* notifier = nullptr;
};
