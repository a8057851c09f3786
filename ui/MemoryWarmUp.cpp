#include "MemoryWarmUp.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QImage>
#include <QWidget>

#include <cstdint>
#include <cstdlib>

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

namespace {

void mapPages(const void* begin, const void* end) {
#ifdef MADV_POPULATE_WRITE
    const std::uintptr_t page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
    const std::uintptr_t first = reinterpret_cast<std::uintptr_t>(begin) & ~(page - 1);
    const std::uintptr_t last = reinterpret_cast<std::uintptr_t>(end);
    if (last > first) madvise(reinterpret_cast<void*>(first), last - first, MADV_POPULATE_WRITE);
#else
    (void)begin;
    (void)end;
#endif
}

}  // namespace

void mapHeapAhead(std::size_t bytes) {
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 33)
    // From here on the heap grows by `bytes` more than a request needs.
    mallopt(M_TOP_PAD, static_cast<int>(bytes));
    // A request just larger than the free top of the heap makes it grow now;
    // larger requests than this are served apart from the heap.
    constexpr std::size_t kLargestFromHeap = 64 * 1024;
    const std::size_t request = mallinfo2().keepcost + 64;
    if (request < kLargestFromHeap) {
        void* volatile block = std::malloc(request);  // volatile: the pair is not optimised away
        std::free(block);
    }
    // The free top of the heap ends at the program break.
    const char* end = static_cast<const char*>(sbrk(0));
    mapPages(end - mallinfo2().keepcost, end);
#else
    (void)bytes;
#endif
}

void showAtStartUp(QWidget& window) {
    window.show();
    // Only where the store is known to be made on resize; elsewhere (Wayland) it is made when first painted.
    if (QGuiApplication::platformName() != QLatin1String("xcb")) return;
    QBackingStore* store = window.backingStore();
    if (!store) return;
    // The repaint keeps a store of the window's size: made now, it is kept.
    if (store->size() != window.size()) store->resize(window.size());
    // On xcb the store paints into an image (shared with the X server or not) whose bits are the pages to map.
    QPaintDevice* device = store->paintDevice();
    if (!device || device->devType() != QInternal::Image) return;
    const auto* image = static_cast<const QImage*>(device);
    mapPages(image->constBits(), image->constBits() + image->sizeInBytes());
}
