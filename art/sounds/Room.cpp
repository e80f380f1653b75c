// A feedback delay network: eight echoes feed one another, weaker and duller each time.
#include "Room.h"

#include <array>
#include <numbers>
#include <numeric>

#include "Maths.h"

namespace quendrel::sounds {

namespace {

/// The paths between the walls, in samples; with no common divisor, so that no pitch is favoured.
constexpr std::array<std::size_t, 8> kPaths{211, 293, 389, 467, 563, 677, 787, 887};

/// After this many seconds an echo has lost 60 dB.
constexpr double kReverberation = 0.28;

/// How much of each reflection's brightness the walls keep.
constexpr double kBrightness = 0.55;

/// One delay line: the samples on their way, and the filter of the wall at its end.
class Path {
public:
    explicit Path(std::size_t length)
        : inside_(length),
          kept_(Exp(-3 * std::numbers::ln10 * static_cast<double>(length) /
                    (kReverberation * kSampleRate))) {}

    double Leave() {
        wall_ += kBrightness * (inside_[now_] - wall_);
        return kept_ * wall_;
    }

    void Enter(double sample) {
        inside_[now_] = sample;
        now_ = (now_ + 1) % inside_.size();
    }

private:
    std::vector<double> inside_;
    std::size_t now_ = 0;
    double kept_;
    double wall_ = 0;
};

}  // namespace

void AddRoom(double share, Signal& signal) {
    std::vector<Path> paths(kPaths.begin(), kPaths.end());
    std::array<double, kPaths.size()> leaving{};
    for (std::size_t i = 0; i < signal.length(); ++i) {
        for (std::size_t k = 0; k < paths.size(); ++k) leaving[k] = paths[k].Leave();
        // Each path gets twice the mean of all, less its own: a reflection that keeps the energy.
        const double mean = std::accumulate(leaving.begin(), leaving.end(), 0.0) / 4;
        double left = 0;
        double right = 0;
        for (std::size_t k = 0; k < paths.size(); ++k) {
            const bool onLeft = k % 2 == 0;
            paths[k].Enter((onLeft ? signal.left[i] : signal.right[i]) + mean - leaving[k]);
            // Half of them with the sign changed, so that they do not add up to a tone.
            (onLeft ? left : right) += k % 4 < 2 ? leaving[k] : -leaving[k];
        }
        signal.left[i] += share * left;
        signal.right[i] += share * right;
    }
}

}  // namespace quendrel::sounds
