#include "platform/desktop/ClockRandom.h"

#include <chrono>
#include <cstdint>

namespace quendrel {

void ClockRandom::SeedFromClock() {
    using std::chrono::days;
    using std::chrono::floor;
    const auto now = std::chrono::system_clock::now();
    const auto sinceMidnight =
        std::chrono::duration_cast<std::chrono::milliseconds>(now - floor<days>(now));
    generator_.seed(static_cast<std::uint32_t>(sinceMidnight.count()));
}

double ClockRandom::Next() { return static_cast<double>(generator_()) * 0x1p-32; }

}  // namespace quendrel
