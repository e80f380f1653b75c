// Things that ring when they are touched. A thing is known by the modes it swings in and by how
// fast its material swallows them; a gesture strikes it once or drags along it.
#pragma once

#include <vector>

#include "Signal.h"

namespace quendrel::sounds {

/// One way of swinging: its pitch as a multiple of the lowest mode's, and its share.
struct Mode {
    double ratio;
    double gain;
};

struct Instrument {
    std::vector<Mode> modes;
    /// What every mode loses, in nepers per second.
    double loss;
    /// What it loses besides for the square of its pitch in kHz: the brighter, the shorter.
    double brightLoss;
    /// No thing is quite round, so each mode is two: this share apart to either side.
    double split;
};

struct Gesture {
    const Instrument& instrument;
    /// When it begins, in milliseconds.
    double start;
    /// The pitch of the lowest mode in Hz.
    double pitch;
    double force;
    /// How long a blow stays in contact, in milliseconds: the softer, the longer and the darker.
    double contact;
    /// From -1, far left, to 1, far right.
    double pan = 0;
    /// How long it drags along the thing, in milliseconds; 0 is one blow.
    double drag = 0;
};

/// Adds what is heard of a gesture to the signal.
void Play(const Gesture& gesture, Random& random, Signal& signal);

}  // namespace quendrel::sounds
