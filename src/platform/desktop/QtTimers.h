// Timers on the toolkit's event loop.
#pragma once

#include "platform/Timer.h"

namespace quendrel {

class QtTimers : public Timers {
public:
    std::unique_ptr<Timer> MakeTimer(int intervalMs, std::function<void()> onTick) override;
};

}  // namespace quendrel
