#include "settings/ConfigFlow.h"

#include "audio/Music.h"
#include "audio/Playlist.h"
#include "audio/SoundEffects.h"
#include "duel/Duel.h"
#include "platform/Errors.h"
#include "settings/SkinList.h"
#include "ui/layout/Control.h"

namespace quendrel {

namespace {

constexpr int kMostRounds = 10;

}  // namespace

ConfigFlow::ConfigFlow(Global& global, MainView& window, Duel& duel, SoundEffects& sounds,
                       Music& music, ConfigView& view)
    : global_(global),
      window_(window),
      duel_(duel),
      sounds_(sounds),
      music_(music),
      view_(view),
      playlist_(global, sounds, music) {}

void ConfigFlow::Load() {
    const SettingsRecord& settings = global_.Settings;
    view_.LoadConfigSkin(settings.SkinPtr);
    SetSwitches(settings);
    view_.SwitchHelp(settings.ToolTips);
    previewSkinPtr_ = settings.SkinPtr;
    playerNames_ = settings.PlayerNames;
    bestOf_ = settings.BestOf;
    playlist_.Fill();
    view_.ShowAll();
}

void ConfigFlow::SetSwitches(const SettingsRecord& settings) {
    for (const SwitchDesign& design : kConfigSwitches) {
        switches_[design.which] = settings.*design.setting;
    }
}

bool ConfigFlow::IsLocked(Switch which) const {
    return kConfigSwitches[which].lockable && global_.Settings.GameInProgress;
}

const std::string& ConfigFlow::SkinName() const { return NameOfSkin(global_, previewSkinPtr_); }

void ConfigFlow::PressSwitch(MouseButton pressed) {
    if (pressed == MouseButton::kLeft) {
        sounds_.PlaySoundFx(SoundSlot::kSmallClick, SoundMode::kOnce);
    }
}

/// The window's own help follows at once. The preview switch puts the browsed skin on whichever
/// way it went.
void ConfigFlow::ClickSwitch(Switch which) {
    switches_[which] = !IsOn(which);
    if (which == Switch::chkToolTips) view_.SwitchHelp(IsOn(which));
    view_.ShowAll();
    if (which == Switch::chkPrvSkin) PreviewSkin();
}

/// A match cannot be made shorter than the round that is played.
void ConfigFlow::PressBestOf(int index, MouseButton pressed) {
    if (pressed != MouseButton::kLeft) return;
    sounds_.PlaySoundFx(SoundSlot::kSmallClick, SoundMode::kOnce);
    if (index == 2 && bestOf_ < kMostRounds) ++bestOf_;
    if (index == 1 && bestOf_ > global_.Settings.Round + 1) --bestOf_;
    view_.ShowAll();
    window_.Announce("Rounds: " + std::to_string(bestOf_));
}

void ConfigFlow::PressSkin(int index, MouseButton pressed) {
    if (pressed != MouseButton::kLeft) return;
    sounds_.PlaySoundFx(SoundSlot::kSmallClick, SoundMode::kOnce);
    const int onto = previewSkinPtr_ + (index == 2 ? 1 : -1);
    if (onto < 1 || onto > static_cast<int>(global_.SkinNames.size())) return;
    BrowseTo(static_cast<std::int16_t>(onto));
}

void ConfigFlow::BrowseTo(std::int16_t skin) {
    previewSkinPtr_ = skin;
    skinChosen_ = true;
    view_.ShowAll();
    window_.Announce("Skin: " + SkinName());
    if (IsOn(Switch::chkPrvSkin)) PreviewSkin();
}

/// A damaged skin can be looked at by its name only.
void ConfigFlow::PreviewSkin() {
    try {
        view_.PreviewSkin(previewSkinPtr_);
    } catch (const FileError& error) {
        window_.ShowTrouble(error.what());
    }
}

void ConfigFlow::PressLargeButton(MouseButton pressed) {
    if (pressed == MouseButton::kLeft) {
        sounds_.PlaySoundFx(SoundSlot::kMediumClick, SoundMode::kOnce);
    }
}

void ConfigFlow::ClickOk() {
    const SettingsRecord before = global_.Settings;
    TakeOverSwitches();
    TakeOverSkin();
    TakeOverDuel();
    TakeOverPlaylist();
    FollowMusic(before);
    music_.EndListening();
    if (global_.Settings.Music && restartMusic_) music_.MusicCommand("Play");
    view_.CloseWindow();
}

/// The main window follows its help switch and shows its clock.
void ConfigFlow::TakeOverSwitches() {
    SettingsRecord& settings = global_.Settings;
    for (const SwitchDesign& design : kConfigSwitches) {
        settings.*design.setting = IsOn(design.which);
    }
    window_.SwitchHelp(settings.ToolTips);
    window_.SetVisible({Controls::lblGTimer}, settings.GTimer);
}

/// A skin that stood in for a damaged one is chosen where the player comes back to it. Another one
/// still has to be put on.
void ConfigFlow::TakeOverSkin() {
    if (skinChosen_) ChooseSkin(global_, previewSkinPtr_);
}

void ConfigFlow::TakeOverDuel() {
    SettingsRecord& settings = global_.Settings;
    settings.PlayerNames = playerNames_;
    settings.BestOf = static_cast<std::uint8_t>(bestOf_);
    if (settings.GameInProgress && settings.MindDuel) duel_.ShowDuelStatus();
}

void ConfigFlow::TakeOverPlaylist() {
    const std::vector<std::string>& tunes = playlist_.PlayList().items;
    if (tunes == global_.Playlist) return;
    SetPlaylist(global_, tunes);
    restartMusic_ = true;
    if (tunes.empty() && global_.PlayState == PlayStates::kPlaying) music_.MusicCommand("Stop");
}

/// A changed switch of the music stops it or has it begin again.
void ConfigFlow::FollowMusic(const SettingsRecord& before) {
    const SettingsRecord& settings = global_.Settings;
    if (settings.Music != before.Music) {
        if (!settings.Music) music_.MusicCommand("Stop");
        restartMusic_ = settings.Music;
    }
    if (settings.RndMusic != before.RndMusic && settings.Music) restartMusic_ = true;
}

void ConfigFlow::ClickCancel() {
    if (music_.EndListening() && global_.Settings.Music) music_.MusicCommand("Play");
    view_.CloseWindow();
}

/// Into the working copy only; the mode and the match stay as they are. Unlike at the first start
/// the preview is on. The window follows its help switch and wears the first skin.
void ConfigFlow::ClickDefault() {
    SettingsRecord defaults;
    defaults.PrvSkin = true;
    SetSwitches(defaults);
    playerNames_ = defaults.PlayerNames;
    bestOf_ = defaults.BestOf;
    previewSkinPtr_ = defaults.SkinPtr;
    skinChosen_ = true;
    playlist_.RestoreDefaults();
    view_.SwitchHelp(defaults.ToolTips);
    PreviewSkin();
    view_.ShowAll();
}

}  // namespace quendrel
