// Modal synthesis: a gesture is a force over time, a mode a damped oscillation that it drives.
#include "Instrument.h"

#include <cmath>

#include "Maths.h"

namespace quendrel::sounds {

namespace {

/// Modes above this pitch (in Hz) are left out, as they would only hiss.
constexpr double kHighestPitch = 9000;

/// How far apart left and right the two halves of a mode are heard, and the first one's share of
/// the strength.
constexpr double kHalfPan = 0.3;
constexpr double kFirstHalf = 0.6;

/// How often a dragged edge catches on the grain, in milliseconds.
constexpr double kShortestGrain = 0.3;
constexpr double kLongestGrain = 2.1;

/// Adds a blow of the given impulse, which rises and falls smoothly.
void AddBlow(double start, double contact, double impulse, std::vector<double>& force) {
    const std::size_t first = SampleAt(start);
    const std::size_t length = SampleAt(contact);
    for (std::size_t i = 0; i < length && first + i < force.size(); ++i) {
        const double passed = (static_cast<double>(i) + 0.5) / static_cast<double>(length);
        force[first + i] += impulse * (1 - Turn(passed).cosine) / static_cast<double>(length);
    }
}

/// The force of a gesture: one blow, or many small ones that swell and die away.
std::vector<double> ForceOf(const Gesture& gesture, Random& random, std::size_t length) {
    std::vector<double> force(length);
    if (gesture.drag == 0) {
        AddBlow(gesture.start, gesture.contact, gesture.force, force);
        return force;
    }
    double time = 0;
    while (time < gesture.drag) {
        const double swell = (1 - Turn(time / gesture.drag).cosine) / 2;
        const double catches = 2 * random.Next() - 1;
        AddBlow(gesture.start + time, gesture.contact, gesture.force * swell * catches, force);
        time += kShortestGrain + (kLongestGrain - kShortestGrain) * random.Next();
    }
    return force;
}

/// Adds one half of a mode, driven by the force.
void Swing(const std::vector<double>& force, double pitch, double loss, double gain, double pan,
           Signal& signal) {
    const double kept = Exp(-loss / kSampleRate);
    const auto [cosine, sine] = Turn(pitch / kSampleRate);
    const double leftGain = gain * std::sqrt((1 - pan) / 2);
    const double rightGain = gain * std::sqrt((1 + pan) / 2);
    double place = 0;
    double speed = 0;
    for (std::size_t i = 0; i < force.size(); ++i) {
        const double turned = kept * (cosine * place + sine * speed);
        speed = kept * (cosine * speed - sine * place) + force[i];
        place = turned;
        // What is heard is the speed of the surface, which moves the air, and not its place.
        signal.left[i] += leftGain * speed;
        signal.right[i] += rightGain * speed;
    }
}

}  // namespace

void Play(const Gesture& gesture, Random& random, Signal& signal) {
    const Instrument& instrument = gesture.instrument;
    const std::vector<double> force = ForceOf(gesture, random, signal.length());
    for (const Mode& mode : instrument.modes) {
        const double pitch = gesture.pitch * mode.ratio;
        if (pitch > kHighestPitch) continue;
        const double loss = instrument.loss + instrument.brightLoss * pitch * pitch / 1e6;
        Swing(force, pitch * (1 - instrument.split), loss, mode.gain * kFirstHalf,
              gesture.pan - kHalfPan, signal);
        Swing(force, pitch * (1 + instrument.split), loss, mode.gain * (1 - kFirstHalf),
              gesture.pan + kHalfPan, signal);
    }
}

}  // namespace quendrel::sounds
