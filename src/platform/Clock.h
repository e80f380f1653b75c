// The system's tick count, the event pump and the timers. Everything that waits uses this, so that
// a test can put its own time in place.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "platform/Timer.h"

namespace quendrel {

/// How long a wait without an end may sleep at a time, in milliseconds; an event wakes it at once.
constexpr int kLongestSleep = 1000;

class Clock {
public:
    virtual ~Clock() = default;

    /// Milliseconds of the system's tick counter; wraps around as a signed 32-bit number.
    virtual std::int32_t TickCount() = 0;

    /// Delivers the pending events (clicks, repaints, timers). When nothing is pending, lets the
    /// window system wait for the next event, at most `atMostMs` milliseconds (0 or more).
    /// Throws what was thrown at a door (AtDoor); throws ProgramEnded once the end was requested.
    virtual void PumpEvents(int atMostMs) = 0;

    /// From now on every PumpEvents throws ProgramEnded.
    virtual void RequestEnd() = 0;

    /// A timer that is off and calls `onTick` every `intervalMs` milliseconds while on, from
    /// within PumpEvents.
    virtual std::unique_ptr<Timer> MakeTimer(int intervalMs, std::function<void()> onTick) = 0;
};

}  // namespace quendrel
