#pragma once

#include <cstddef>

class QWidget;

// Start-up touches a few thousand fresh memory pages, and where the system
// maps each page on its first touch through a hypervisor (a virtual machine
// with shadow page tables) every such touch costs some 10 µs: a 609×709
// backing store alone is 430 pages. Asking the kernel to map a whole range
// at once (MADV_POPULATE_WRITE, Linux 5.14 and later) costs a tenth of that
// and leaves the contents as they are, so it is safe on memory in use.
// Elsewhere, or where the kernel lacks it, these do nothing harmful.

// Grows the heap by `bytes` at once and maps those pages: called first in
// main (StartUpWarmUp), the window is built in them.
void mapHeapAhead(std::size_t bytes);

// Shows the program's first window and maps the backing store its first
// paint fills: on X11 the store is made at the window's size here instead of
// in that paint.
void showAtStartUp(QWidget& window);
