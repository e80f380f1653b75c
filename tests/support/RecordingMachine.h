// The machine of a test: devices that write down what they are told, in one log, under the virtual
// clock.
#pragma once

#include <functional>

#include <gtest/gtest.h>

#include "Devices.h"
#include "Log.h"
#include "VirtualClock.h"
#include "platform/Machine.h"

namespace quendrel::test {

class RecordingMachine : public ::testing::Test {
protected:
    Log log;
    VirtualClock clock{log};
    ScriptedRandom random{log};
    RecordingSoundPlayer soundPlayer{log};
    RecordingMidiDevice mmcMidi{log};
    RecordingTray tray{log};
    RecordingLinkOpener links{log};
    const Machine machine{clock, random, soundPlayer, mmcMidi, tray, std::ref(links)};
};

}  // namespace quendrel::test
