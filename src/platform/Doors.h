// A door is a place where the toolkit calls our code. No exception may pass through the toolkit's
// own frames, which are built without unwind tables: it is kept here, and thrown again by the event
// pump.
#pragma once

#include <functional>

namespace quendrel {

/// Calls `deed`. What it throws is kept until ThrowKept; until then every other call does nothing,
/// so that the program does not go on after a failure.
void AtDoor(const std::function<void()>& deed) noexcept;

/// Throws the exception that was kept, if there is one. Called by the event pump.
void ThrowKept();

}  // namespace quendrel
