// The configuration window.
#pragma once

#include <array>

#include "settings/ConfigFlow.h"
#include "settings/TuneListBox.h"
#include "ui/controls/ImageButton.h"
#include "ui/controls/MessageLabel.h"
#include "ui/controls/MouseButton.h"
#include "ui/skin/ConfigSkin.h"
#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class BalloonHelp;
class NameBox;

class frmConfig : public SkinnedWindow, private ConfigView {
public:
    /// Loads the configuration window of the skin SkinPtr. Throws FileError for a skin that lacks
    /// a picture of it.
    frmConfig(Global& global, PictureReader& pictures, MainView& window, Duel& duel,
              SoundEffects& sounds, Music& music);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void LoadConfigSkin(int skin) override;
    void PreviewSkin(int skin) override;
    void SwitchHelp(bool on) override;
    void ShowAll() override;
    void CloseWindow() override { hide(); }

    void MakeSwitches();
    void MakeButtons();
    void MakeLabels();
    void MakeNameBoxes();
    void MakeLists();
    void OrderTabs();
    /// The button called `name`, which does `act` when it goes down.
    void OnPress(const char* name, const std::function<void(MouseButton)>& act);
    void OnClick(const char* name, const std::function<void()>& act);
    /// The same for a button of the playlist, which acts on the left mouse button alone.
    void OnPlaylistPress(const char* name, const std::function<void(PlaylistEditor&)>& act);
    ImageButton& ButtonCalled(const char* name);
    void ColorTexts();

    Global& global_;
    PictureReader& pictures_;
    ConfigFlow logic_;
    ConfigSkin skin_;
    std::array<ImageButton*, kSwitchControls.size()> switches_{};
    std::array<ImageButton*, kButtonControls.size()> buttons_{};
    MessageLabel lblSkin_;
    MessageLabel lblBestOf_;
    OneBased<NameBox*, 2> txtPlayer_;
    TuneListBox lstFileList_;
    TuneListBox lstPlayList_;
    BalloonHelp* popHelp_;
};

}  // namespace quendrel
