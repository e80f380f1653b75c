// How a sound is made of its gestures: played, heard in the room, faded and set to its loudness.
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "Maths.h"
#include "Room.h"
#include "Sounds.h"

namespace quendrel::sounds {

namespace {

/// The length over which loudness is measured, in milliseconds.
constexpr double kLoudnessWindow = 50;

constexpr double kPeakLimit = -3;

/// How much of the length fades out.
constexpr double kFadeShare = 0.3;

/// The energy of the loudest window, as the mean square of a sample.
double LoudestEnergy(const Signal& signal) {
    const std::size_t window = SampleAt(kLoudnessWindow);
    double energy = 0;
    double loudest = 0;
    for (std::size_t i = 0; i < signal.length(); ++i) {
        energy += signal.left[i] * signal.left[i] + signal.right[i] * signal.right[i];
        if (i >= window) {
            const double left = signal.left[i - window];
            const double right = signal.right[i - window];
            energy -= left * left + right * right;
        }
        loudest = std::max(loudest, energy);
    }
    return loudest / static_cast<double>(2 * window);
}

void Scale(double factor, Signal& signal) {
    for (double& sample : signal.left) sample *= factor;
    for (double& sample : signal.right) sample *= factor;
}

void FadeOut(Signal& signal) {
    const double fade = kFadeShare * static_cast<double>(signal.length());
    for (std::size_t i = 0; i < signal.length(); ++i) {
        const double remaining = static_cast<double>(signal.length() - 1 - i) / fade;
        if (remaining >= 1) continue;
        const double gain = remaining * remaining * (3 - 2 * remaining);
        signal.left[i] *= gain;
        signal.right[i] *= gain;
    }
}

double Peak(const Signal& signal) {
    double peak = 0;
    for (double sample : signal.left) peak = std::max(peak, std::abs(sample));
    for (double sample : signal.right) peak = std::max(peak, std::abs(sample));
    return peak;
}

}  // namespace

Signal Make(const Sound& sound) {
    Signal signal(SampleAt(sound.length));
    Random random;
    for (const Gesture& gesture : sound.gestures) Play(gesture, random, signal);
    AddRoom(sound.room, signal);
    FadeOut(signal);
    Scale(FromDecibels(sound.level) / std::sqrt(LoudestEnergy(signal)), signal);
    if (Peak(signal) >= FromDecibels(kPeakLimit)) {
        throw std::runtime_error(sound.name + " is too loud at its peak");
    }
    return signal;
}

}  // namespace quendrel::sounds
