// The eleven sounds of the game, and how one of them is made.
#pragma once

#include <string>
#include <vector>

#include "Instrument.h"

namespace quendrel::sounds {

struct Sound {
    std::string name;
    /// In milliseconds.
    double length;
    /// The loudness of its loudest 50 ms, in dB; 0 is the loudest that a file can hold.
    double level;
    /// The strength of the room's echo, as `share` of AddRoom.
    double room;
    std::vector<Gesture> gestures;
};

const std::vector<Sound>& AllSounds();

/// Throws std::runtime_error when the sound would be louder at its peak than -3 dB.
Signal Make(const Sound& sound);

}  // namespace quendrel::sounds
