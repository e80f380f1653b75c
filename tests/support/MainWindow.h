// The real main window on recording devices, under the virtual clock.
#pragma once

#include <functional>
#include <string>

#include <QAbstractButton>
#include <QApplication>
#include <gtest/gtest.h>

#include "Devices.h"
#include "Log.h"
#include "TemporaryFolder.h"
#include "VirtualClock.h"
#include "frmMain.h"
#include "settings/SettingsStore.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::test {

class MainWindowFixture : public ::testing::Test {
protected:
    MainWindowFixture() {
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier"};
    }

    void Press(const char* button) { window.findChild<QAbstractButton*>(button)->click(); }

    /// The shown window of that name.
    static QWidget* Shown(const QString& name) {
        for (QWidget* const widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name && widget->isVisible()) return widget;
        }
        return nullptr;
    }

    TemporaryFolder folder;
    Log log;
    VirtualClock clock{log};
    ScriptedRandom random{log};
    RecordingSoundPlayer soundPlayer{log};
    RecordingMidiDevice mmcMidi{log};
    RecordingTray tray{log};
    RecordingLinkOpener links{log};
    const PictureReader pictures = ReadPictureFile;
    Global global;
    SettingsStore store{global, folder.path() + "/settings.ini"};
    frmMain window{
        global, {clock, random, soundPlayer, mmcMidi, tray, std::ref(links)}, store, pictures};
};

}  // namespace quendrel::test
