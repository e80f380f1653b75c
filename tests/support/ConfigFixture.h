// What the configuration window works with, on recording devices.
#pragma once

#include "Global.h"
#include "RecordingMachine.h"
#include "RecordingWindow.h"
#include "TemporaryFolder.h"
#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "duel/Duel.h"
#include "ui/main/CommandButtons.h"
#include "ui/main/InputBar.h"
#include "ui/main/MessagePanel.h"

namespace quendrel::test {

class ConfigFixture : public RecordingMachine {
protected:
    TemporaryFolder folder;
    RecordingWindow mainView{log};
    Global global;
    SoundEffects sounds{global, soundPlayer};
    Music music{global, mmcMidi, random, clock};
    MessagePanel panel{mainView};
    CommandButtons buttons{global, mainView};
    InputBar inputBar{mainView, clock};
    Duel duel{global, mainView, panel, buttons, inputBar, clock};
};

}  // namespace quendrel::test
