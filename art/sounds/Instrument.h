// Things that sound when they are struck. A thing is described by its modes of vibration and by how
// fast its material damps them; a gesture strikes it once or drags along it.
#pragma once

#include <vector>

#include "Signal.h"

namespace quendrel::sounds {

/// A mode of vibration: its pitch as a multiple of the lowest mode's, and its strength.
struct Mode {
    double ratio;
    double gain;
};

struct Instrument {
    std::vector<Mode> modes;
    /// What every mode loses, in nepers per second.
    double loss;
    /// The loss in addition, times the square of the pitch in kHz: high modes die away sooner.
    double brightLoss;
    /// Real things are not quite symmetric, so each mode sounds as two: this share of its pitch
    /// higher and lower.
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
