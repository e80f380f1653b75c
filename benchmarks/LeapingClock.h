// A clock that skips every pause, so that only the work of a timed sequence is measured.
#pragma once

#include "platform/desktop/QtClock.h"

namespace quendrel::bench {

class LeapingClock : public QtClock {
public:
    std::int32_t TickCount() override { return now_ += kLeap; }
    void PumpEvents(int /*atMostMs*/) override {}

private:
    /// Longer than any pause of the game.
    static constexpr std::int32_t kLeap = 3000;
    std::int32_t now_ = 0;
};

}  // namespace quendrel::bench
