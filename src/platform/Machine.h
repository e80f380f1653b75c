// What the game asks of the machine, in one bundle of references that is made in main.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace quendrel {

class Clock;
class MidiDevice;
class Random;
class SoundPlayer;
class Tray;

/// Opens "mailto:...", "https://..." or "file:///..." with the desktop's own program for it,
/// without waiting for that. Returns 1 where the desktop has taken it, 0 where it has not.
using LinkOpener = std::function<std::int32_t(const std::string& address)>;

struct Machine {
    Clock& clock;
    Random& random;
    SoundPlayer& soundPlayer;
    MidiDevice& mmcMidi;
    Tray& tray;
    LinkOpener openLink;
};

}  // namespace quendrel
