#include "platform/desktop/SpareMemory.h"

#include <malloc.h>
#include <sys/mman.h>

namespace quendrel {

void HaveOneHeap() {
#ifdef __GLIBC__
    mallopt(M_ARENA_MAX, 1);
#endif
}

bool MemoryIsLeft(std::size_t megabytes) {
    const std::size_t size = megabytes << 20;
    void* const given =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return given != MAP_FAILED && ::munmap(given, size) == 0;
}

void GiveBackSpareMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace quendrel
