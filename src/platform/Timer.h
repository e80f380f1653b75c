// Repeating timers on the one thread, driven by the same clock as the event pump.
#pragma once

#include <functional>
#include <memory>

namespace quendrel {

/// Ticks every interval while it is on. Switching it on starts a fresh interval.
class Timer {
public:
    virtual ~Timer() = default;

    virtual void SwitchOn() = 0;
    virtual void SwitchOff() = 0;
    virtual bool IsOn() const = 0;
};

class Timers {
public:
    virtual ~Timers() = default;

    /// A timer that is off and calls `onTick` every `intervalMs` milliseconds while on, from
    /// within Clock::PumpEvents.
    virtual std::unique_ptr<Timer> MakeTimer(int intervalMs, std::function<void()> onTick) = 0;
};

}  // namespace quendrel
