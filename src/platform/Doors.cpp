#include "platform/Doors.h"

#include <exception>
#include <utility>

namespace quendrel {

namespace {

/// The exception that AtDoor keeps. One for the program: all doors are on one thread.
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
