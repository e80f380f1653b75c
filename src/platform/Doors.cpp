#include "platform/Doors.h"

#include <exception>
#include <utility>

namespace quendrel {

namespace {

/// The exception that is kept. One for the program: all doors are on one thread.
std::exception_ptr kept;

}  // namespace

bool DoorsAreShut() noexcept { return kept != nullptr; }

void KeepThrown() noexcept { kept = std::current_exception(); }

void ThrowKept() {
    if (kept) std::rethrow_exception(std::exchange(kept, nullptr));
}

}  // namespace quendrel
