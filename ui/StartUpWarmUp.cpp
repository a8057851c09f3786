#include "StartUpWarmUp.h"

#include <fontconfig/fontconfig.h>

#include "MemoryWarmUp.h"

namespace {

// What the heap grows to from main to the first painted window, and a little more.
constexpr std::size_t kStartUpHeap = 2 * 1024 * 1024;

}  // namespace

// The toolkit asks fontconfig for the same configuration and finds it loaded.
StartUpWarmUp::StartUpWarmUp() {
    mapHeapAhead(kStartUpHeap);
    fontLoader.emplace([] { FcInit(); });
}
