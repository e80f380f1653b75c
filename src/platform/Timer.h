// A repeating timer, made by the clock, which calls it on the program's one thread.
#pragma once

namespace quendrel {

/// Ticks every interval while it is on. Switching it on starts a fresh interval.
class Timer {
public:
    virtual ~Timer() = default;

    virtual void SwitchOn() = 0;
    virtual void SwitchOff() = 0;
    virtual bool IsOn() const = 0;
};

}  // namespace quendrel
