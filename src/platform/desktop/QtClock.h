// The clock, event pump and timers on the toolkit's event dispatcher.
#pragma once

#include <chrono>

#include "platform/Clock.h"

namespace quendrel {

class QtClock : public Clock {
public:
    /// Counts from the making of the clock, so that only a program that runs for 24 days can see
    /// the count pass its signed boundary.
    std::int32_t TickCount() override;
    void PumpEvents(int atMostMs) override;
    void RequestEnd() override { endRequested_ = true; }
    std::unique_ptr<Timer> MakeTimer(int intervalMs, std::function<void()> onTick) override;

private:
    void ThrowWhatIsPending() const;

    std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    bool endRequested_ = false;
};

}  // namespace quendrel
