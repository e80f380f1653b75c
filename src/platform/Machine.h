// What the game asks of the machine, in one bundle: made in main, handed down by reference.
#pragma once

namespace quendrel {

class Clock;
class LinkOpener;
class MidiDevice;
class Random;
class SoundPlayer;
class Timers;
class Tray;

struct Machine {
    Clock& clock;
    Timers& timers;
    Random& random;
    SoundPlayer& soundPlayer;
    MidiDevice& mmcMidi;
    Tray& tray;
    LinkOpener& links;
};

}  // namespace quendrel
