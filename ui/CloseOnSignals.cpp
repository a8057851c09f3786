#include "CloseOnSignals.h"

#include <QSocketNotifier>
#include <QWidget>

#include <cerrno>
#include <csignal>
#include <iterator>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr int kSignals[] = {SIGTERM, SIGHUP, SIGINT};
struct sigaction before[std::size(kSignals)];
int signalPipe[2] = {-1, -1};

void onSignal(int) {
    const int saved = errno;
    const char byte = 1;
    [[maybe_unused]] const ssize_t written = write(signalPipe[1], &byte, 1);  // a full pipe has one waiting already
    errno = saved;
}

}  // namespace

CloseOnSignals::CloseOnSignals(QWidget* window) : window(window) {
    if (signalPipe[0] < 0 && pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char bytes[16];
        while (read(signalPipe[0], bytes, sizeof bytes) > 0) {
        }
        if (this->window) this->window->close();
    });
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    // A signal ignored when the program started (SIGHUP under nohup) stays ignored.
    for (size_t i = 0; i < std::size(kSignals); ++i)
        if (sigaction(kSignals[i], nullptr, &before[i]) == 0 && before[i].sa_handler != SIG_IGN)
            sigaction(kSignals[i], &action, nullptr);
}

// The signals act again as they did before.
CloseOnSignals::~CloseOnSignals() {
    if (!notifier) return;
    for (size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &before[i], nullptr);
}
