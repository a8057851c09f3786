#include "StartUpWarmUp.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include <fontconfig/fontconfig.h>

#include "MemoryWarmUp.h"

namespace {

// What the heap grows to from main to the first painted window, and a little more.
constexpr std::size_t kStartUpHeap = 2 * 1024 * 1024;

}  // namespace

// The toolkit asks fontconfig for the same configuration and finds it loaded;
// measuring a text in the application font fills the database shared by all
// threads.
StartUpWarmUp::StartUpWarmUp() {
    mapHeapAhead(kStartUpHeap);
    fontLoader = std::thread([font = applicationFont.get_future()]() mutable {
        FcInit();
        if (const std::optional<QFont> applicationFont = font.get()) QFontMetrics(*applicationFont).height();
    });
}

void StartUpWarmUp::applicationReady() {
    if (std::exchange(told, true)) return;
    applicationFont.set_value(QGuiApplication::font());
}

StartUpWarmUp::~StartUpWarmUp() {
    if (!std::exchange(told, true)) applicationFont.set_value(std::nullopt);
    fontLoader.join();
}
