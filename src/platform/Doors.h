// A door is a place where the toolkit calls our code. No exception may pass through the toolkit's
// own frames, which are built without unwind tables: it is kept here, and thrown again by the event
// pump.
#pragma once

namespace quendrel {

/// Whether an exception is kept.
bool DoorsAreShut() noexcept;

/// Keeps the exception that is being handled.
void KeepThrown() noexcept;

/// Calls `deed`. What it throws is kept until ThrowKept; until then every other call does nothing,
/// so that the program does not go on after a failure. Takes the deed as it is: to make a
/// std::function of it might throw.
template <typename Deed>
void AtDoor(const Deed& deed) noexcept {
    if (DoorsAreShut()) return;
    try {
        deed();
    } catch (...) {
        KeepThrown();
    }
}

/// Throws the exception that was kept, if there is one. Called by the event pump.
void ThrowKept();

}  // namespace quendrel
