// The real main window on recording devices, under the virtual clock.
#pragma once

#include <string>
#include <utility>

#include <QAbstractButton>
#include <QApplication>

#include "RecordingMachine.h"
#include "TemporaryFolder.h"
#include "frmMain.h"
#include "settings/SettingsStore.h"
#include "ui/picture/PictureFile.h"

namespace quendrel::test {

class MainWindowFixture : public RecordingMachine {
protected:
    explicit MainWindowFixture(PictureReader reader = ReadPictureFile)
        : pictures(std::move(reader)) {
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
    const PictureReader pictures;
    Global global;
    SettingsStore store{global, folder.path() + "/settings.ini"};
    frmMain window{global, machine, store, pictures};
};

}  // namespace quendrel::test
