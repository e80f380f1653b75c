// All windows of the game, with the devices of a test.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <QWidget>

#include "ConfigFixture.h"
#include "audio/Playlist.h"
#include "frmMain.h"
#include "scores/HighscoreStore.h"
#include "scores/frmHigh.h"
#include "settings/SettingsStore.h"
#include "settings/frmConfig.h"
#include "ui/picture/PictureFile.h"
#include "ui/windows/frmAbout.h"
#include "ui/windows/frmSplash.h"

namespace quendrel::test {

class AllWindows : public ConfigFixture {
protected:
    AllWindows() {
        global.Settings.GameMode = 0;
        global.Settings.PrvSkin = true;
        global.SkinFolder = std::string(QUENDREL_SKIN_FOLDER) + "\\";
        global.SkinNames = {"Atelier", "Daylight"};
        global.HighFolder = folder.path() + "\\High\\";
        global.HighscoreFile = global.HighFolder + "Easy.hsc";
        global.MusicFolder = folder.path() + "\\Music\\";
        std::filesystem::create_directories(folder.path() + "/Music");
        SetPlaylist(global, {"Canon", "Air"});
        highscores.LoadHighscores();
    }

    /// All windows of the game.
    void Open() {
        config = std::make_unique<frmConfig>(global, pictures, mainView, duel, sounds, music);
        high = std::make_unique<frmHigh>(global, pictures, sounds, highscores, mainView);
        about = std::make_unique<frmAbout>(global, pictures, sounds, std::ref(links));
        for (QWidget* const window : All()) window->show();
    }

    std::vector<QWidget*> All() { return {&main, &splash, config.get(), high.get(), about.get()}; }

    template <class Control = QWidget>
    static Control* Find(QWidget& window, const char* name) {
        auto* const found = window.findChild<Control*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return found;
    }

    const PictureReader pictures = ReadPictureFile;
    SettingsStore store{global, folder.path() + "/settings.ini"};
    HighscoreStore highscores{global};
    frmMain main{global, machine, store, pictures};
    frmSplash splash{global.View};
    std::unique_ptr<frmConfig> config;
    std::unique_ptr<frmHigh> high;
    std::unique_ptr<frmAbout> about;
};

}  // namespace quendrel::test
