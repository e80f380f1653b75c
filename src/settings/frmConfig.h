// The configuration window.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "EnumArray.h"
#include "settings/ConfigFlow.h"
#include "settings/SkinList.h"
#include "settings/TuneListBox.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/ConfigControls.h"
#include "ui/skin/ConfigSkin.h"
#include "ui/skin/SkinFonts.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class NameBox;

class frmConfig : public SkinnedWindow, private ConfigView {
public:
    /// Loads the configuration window of the skin SkinPtr. Throws FileError for a skin that lacks
    /// a picture of it.
    frmConfig(Global& global, PictureReader pictures, MainView& window, Duel& duel,
              SoundEffects& sounds, Music& music);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FollowDensity() override { LoadConfigSkin(NumberOfSkin(global_, shownSkin_)); }
    void LoadConfigSkin(int skin) override;
    void PreviewSkin(int skin) override;
    void SwitchHelp(bool on) override;
    void ShowAll() override;
    void CloseWindow() override { hide(); }

    ImageButton* MakeButton(const ConfigControl& design, std::string_view spoken);
    void MakeSwitches();
    void MakeButtons();
    void MakeLabels();
    void MakeNameBoxes();
    void TakeNames();
    void MakeLists();
    void SetTabs();
    /// The button does `act` when it goes down.
    void OnPress(ConfigButton which, const std::function<void(MouseButton)>& act);
    void OnClick(ConfigButton which, const std::function<void()>& act);
    /// The same for a button of the playlist, which acts on the left mouse button alone.
    void OnPlaylistPress(ConfigButton which, const std::function<void(PlaylistEditor&)>& act);
    /// Puts a skin on the window, and returns what it says of the texts.
    SkinFonts PutOn(int skin);
    void DressTexts(const TextStyle& style);

    Global& global_;
    const PictureReader pictures_;
    ConfigFlow logic_;
    ConfigSkin skin_;
    /// Its name, since numbers change when a skin is given.
    std::string shownSkin_;
    EnumArray<Switch, ImageButton*, kSwitches> switches_;
    EnumArray<ConfigButton, ImageButton*, kPushButtons> buttons_;
    MessageLabel lblSkin_;
    MessageLabel lblBestOf_;
    OneBased<NameBox*, 2> txtPlayer_;
    TuneListBox lstFileList_;
    TuneListBox lstPlayList_;
    BalloonHelp* popHelp_;
};

}  // namespace quendrel
