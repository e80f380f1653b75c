#include "platform/desktop/SpareMemory.h"

#include <malloc.h>

namespace quendrel {

void GiveBackSpareMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

}  // namespace quendrel
