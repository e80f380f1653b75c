// A sound in the making: two channels of samples around 0, where 1 is the loudest that a file can
// hold.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quendrel::sounds {

inline constexpr int kSampleRate = 44100;

/// The sample that sounds at a time, to the nearest.
constexpr std::size_t SampleAt(double milliseconds) {
    return static_cast<std::size_t>(milliseconds * kSampleRate / 1000 + 0.5);
}

struct Signal {
    explicit Signal(std::size_t length) : left(length), right(length) {}

    std::size_t length() const { return left.size(); }

    std::vector<double> left;
    std::vector<double> right;
};

/// Random numbers that are the same in every run: a linear congruence of 64 bits.
class Random {
public:
    /// The next one, from 0 up to but not including 1.
    double Next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<double>(state_ >> 11) / 9007199254740992.0;
    }

private:
    std::uint64_t state_ = 1;
};

}  // namespace quendrel::sounds
