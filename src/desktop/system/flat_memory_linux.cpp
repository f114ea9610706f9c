#include "desktop/system/flat_memory.h"

#include <malloc.h>

namespace pawnfield {

// Large blocks go back to the system when they are freed, and all threads share two heaps.
void KeepMemoryFlat() {
#ifdef __GLIBC__
  constexpr int kLargeBlock = 1024 * 1024;
  mallopt(M_MMAP_THRESHOLD, kLargeBlock);
  mallopt(M_ARENA_MAX, 2);
#endif
}

}  // namespace pawnfield
