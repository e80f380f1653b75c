// The shared wait of every timed sequence.
#pragma once

#include <cstdint>

namespace quendrel {

class Clock;

/// Waits by the system's tick count. With `pumpEvents` events are handled meanwhile; without, the
/// program stands still on purpose. Zero or less returns at once.
/// Throws OverflowError if the tick count passes its signed boundary during the wait, and
/// whatever Clock::PumpEvents throws.
void Pause(Clock& clock, std::int16_t milliseconds, bool pumpEvents);

}  // namespace quendrel
