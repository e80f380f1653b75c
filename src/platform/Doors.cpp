// The doors of the program.
#include "platform/Doors.h"

#include <exception>
#include <utility>

namespace quendrel {

namespace {

/// There is one for the program, as there is one toolkit that calls it.
std::exception_ptr kept;

}  // namespace

void AtDoor(const std::function<void()>& deed) noexcept {
    if (kept) return;
    try {
        deed();
    } catch (...) {
        kept = std::current_exception();
    }
}

void ThrowKept() {
    if (kept) std::rethrow_exception(std::exchange(kept, nullptr));
}

}  // namespace quendrel
