// The random generator: behind the hidden code, the idle animation, shuffled tunes, the random
// skin.
#pragma once

namespace quendrel {

class Random {
public:
    virtual ~Random() = default;

    /// Seeds the generator from the time of day.
    virtual void SeedFromClock() = 0;

    /// A uniform number in [0, 1).
    virtual double Next() = 0;

    /// A uniform whole number from 1 to `count` (1 or more), by the game's draw formula.
    int Draw(int count) { return static_cast<int>(count * Next()) + 1; }
};

}  // namespace quendrel
