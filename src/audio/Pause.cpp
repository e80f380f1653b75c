#include "audio/Pause.h"

#include "platform/Clock.h"
#include "platform/Errors.h"

namespace quendrel {

namespace {

std::int32_t TicksSince(Clock& clock, std::int32_t start) {
    std::int32_t elapsed = 0;
    if (__builtin_sub_overflow(clock.TickCount(), start, &elapsed)) {
        throw OverflowError("the system's tick count overflowed during a wait");
    }
    return elapsed;
}

}  // namespace

void Pause(Clock& clock, std::int16_t milliseconds, bool pumpEvents) {
    const std::int32_t start = clock.TickCount();
    std::int32_t elapsed = TicksSince(clock, start);
    while (elapsed < milliseconds) {
        if (pumpEvents) clock.PumpEvents(milliseconds - elapsed);
        elapsed = TicksSince(clock, start);
    }
}

}  // namespace quendrel
