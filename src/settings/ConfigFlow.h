// What the configuration window does, without the window: a working copy of the settings that is
// taken over with "Ok" and thrown away with "Cancel".
#pragma once

#include <string>

#include "EnumArray.h"
#include "Global.h"
#include "settings/PlaylistEditor.h"
#include "ui/controls/MouseButton.h"
#include "ui/layout/ConfigControls.h"
#include "ui/main/MainView.h"

namespace quendrel {

class Duel;

/// The window itself: it shows the working copy. frmConfig implements it; tests have one that
/// records.
class ConfigView {
public:
    virtual ~ConfigView() = default;

    /// Puts the pictures of a skin (an index from 1) on the window. Throws FileError and then
    /// leaves the old ones in force.
    virtual void LoadConfigSkin(int skin) = 0;

    /// The same with a skin that the player looks at: it must be whole, other windows included.
    virtual void PreviewSkin(int skin) = 0;

    /// Switches the window's own balloon help on or off.
    virtual void SwitchHelp(bool on) = 0;

    /// Shows everything that the working copy holds.
    virtual void ShowAll() = 0;

    virtual void CloseWindow() = 0;
};

/// The Press functions are for a mouse button going down on a control, the Click functions for a
/// click with the left one.
class ConfigFlow {
public:
    ConfigFlow(Global& global, MainView& window, Duel& duel, SoundEffects& sounds, Music& music,
               ConfigView& view);

    /// Puts the skin in use on the window and fills the working copy from the settings.
    /// Throws FileError for a skin that lacks a picture of the window.
    void Load();

    // The working copy.
    bool IsOn(Switch which) const { return switches_[which]; }
    /// The game clock and the Mind Duel cannot be switched in the middle of a round.
    bool IsLocked(Switch which) const;
    const std::string& PlayerName(int player) const { return playerNames_[player]; }
    int BestOf() const { return bestOf_; }
    const std::string& SkinName() const;
    const PlaylistEditor& playlist() const { return playlist_; }

    // What the player does.
    void PressSwitch(MouseButton pressed);
    void ClickSwitch(Switch which);
    /// txtPlayer(player) holds another text.
    void EditPlayer(int player, const std::string& text) { playerNames_[player] = text; }
    /// cmdBestOf(1) lowers the number of rounds, cmdBestOf(2) raises it.
    void PressBestOf(int index, MouseButton pressed);
    /// cmdSkin(1) browses to the previous skin, cmdSkin(2) to the next.
    void PressSkin(int index, MouseButton pressed);
    /// The skin with this number is looked at.
    void BrowseTo(std::int16_t skin);
    /// cmdOk, cmdCancel and cmdDefault go down.
    void PressLargeButton(MouseButton pressed);
    void ClickOk();
    void ClickCancel();
    void ClickDefault();

    /// Does something to the playlist and shows the outcome.
    template <class Change>
    void EditPlaylist(const Change& change) {
        change(playlist_);
        view_.ShowAll();
    }

private:
    void SetSwitches(const SettingsRecord& settings);
    void PreviewSkin();
    void TakeOverSwitches();
    void TakeOverSkin();
    void TakeOverDuel();
    void TakeOverPlaylist();
    void FollowMusic(const SettingsRecord& before);

    Global& global_;
    MainView& window_;
    Duel& duel_;
    SoundEffects& sounds_;
    Music& music_;
    ConfigView& view_;

    EnumArray<Switch, bool, kSwitches> switches_;
    OneBased<std::string, 2> playerNames_;
    int bestOf_ = 0;
    std::int16_t previewSkinPtr_ = 1;
    /// The player has browsed the skins, or gone back to the first one.
    bool skinChosen_ = false;
    PlaylistEditor playlist_;
    /// "Ok" has to start the music again.
    bool restartMusic_ = false;
};

}  // namespace quendrel
