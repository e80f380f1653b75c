// A random generator seeded from the time of day.
#pragma once

#include <random>

#include "platform/Random.h"

namespace quendrel {

class ClockRandom : public Random {
public:
    void SeedFromClock() override;
    double Next() override;

private:
    std::mt19937 generator_;
};

}  // namespace quendrel
