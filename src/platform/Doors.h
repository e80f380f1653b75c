// The doors of the program: wherever the toolkit calls us. Nothing may be thrown into its frames,
// which are built without the tables for it.
#pragma once

#include <functional>

namespace quendrel {

/// Does what the toolkit has called us for. What it throws is kept until ThrowKept, and all doors
/// are shut meanwhile: nothing is done on top of what has failed.
void AtDoor(const std::function<void()>& deed) noexcept;

/// Throws what has been kept, if there is something. Called by the event pump.
void ThrowKept();

}  // namespace quendrel
