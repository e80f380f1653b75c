// The configuration window's switches and push buttons: all that is to be said of each, once. The
// programs that make the skins draw the window by the places and captions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "EnumArray.h"
#include "Geometry.h"
#include "SettingsRecord.h"
#include "ui/layout/StatePictures.h"

namespace quendrel {

/// The two-state buttons.
enum class Switch : std::uint8_t {
    chkMusic,
    chkRndMusic,
    chkSoundFx,
    chkToolTips,
    chkSetColor,
    chkGTimer,
    chkRndSkin,
    chkPrvSkin,
    chkMindDuel,
};

inline constexpr std::size_t kSwitches = 9;
static_assert(kSwitches == static_cast<std::size_t>(Switch::chkMindDuel) + 1);

/// The push buttons. Of two with one name the number is the index.
enum class ConfigButton : std::uint8_t {
    cmdOk,
    cmdCancel,
    cmdDefault,
    cmdSkin1,
    cmdSkin2,
    cmdBestOf1,
    cmdBestOf2,
    cmdAdd,
    cmdAddAll,
    cmdRemoveAll,
    cmdRemove,
    cmdMove1,
    cmdMove2,
    cmdListen,
};

inline constexpr std::size_t kPushButtons = 14;
static_assert(kPushButtons == static_cast<std::size_t>(ConfigButton::cmdListen) + 1);

/// What a switch and a push button have in common.
struct ConfigControl {
    std::string_view name;
    /// Drawn into the pictures; a single character stands for a drawn sign.
    std::string_view caption;
    Rect place;
    std::string_view help;
};

/// A switch, lever and caption in one.
struct SwitchDesign : ConfigControl {
    Switch which;
    /// What its pictures are named after.
    std::string_view picture;
    bool SettingsRecord::*setting;
    /// A running game locks it.
    bool lockable = false;

    constexpr StatePictures pictures() const {
        if (lockable) return layout::kLockablePictures;
        return layout::kSwitchPictures;
    }
};

struct ButtonDesign : ConfigControl {
    ConfigButton which;
    /// What a screen reader says of a button whose caption is a sign.
    std::string_view spoken = {};

    /// What its pictures are named after: its name without "cmd".
    constexpr std::string_view picture() const { return name.substr(3); }
};

// clang-format off
inline constexpr EnumArray<Switch, SwitchDesign, kSwitches> kConfigSwitches{{{
    {{"chkMusic", "Music", {230, 106, 180, 28},
      "Click here to turn the game music on/off."},
     Switch::chkMusic, "Music", &SettingsRecord::Music},
    {{"chkRndMusic", "Shuffle", {230, 136, 180, 28},
      "If this option is marked then the tunes in the playlist will be played in a random order."},
     Switch::chkRndMusic, "RndMusic", &SettingsRecord::RndMusic},
    {{"chkSoundFx", "Sound effects", {230, 76, 180, 28},
      "Click here to turn the sound effects on/off."},
     Switch::chkSoundFx, "Sound", &SettingsRecord::SoundFx},
    {{"chkToolTips", "Help bubbles", {32, 76, 180, 28},
      "This option will enable / disable the popup help bubbles."},
     Switch::chkToolTips, "ToolTips", &SettingsRecord::ToolTips},
    {{"chkSetColor", "Set own code", {32, 106, 180, 28},
      "If this option is marked then you will be asked to set your own color combination next "
      "time you start a game."},
     Switch::chkSetColor, "SetColor", &SettingsRecord::SetColor},
    {{"chkGTimer", "Game clock", {32, 136, 180, 28},
      "Clicking this option will enable / disable the timer and the possibility to get a "
      "highscore."},
     Switch::chkGTimer, "GTimer", &SettingsRecord::GTimer, true},
    {{"chkRndSkin", "Random skin", {428, 136, 180, 28},
      "If this option is marked then every time you start the game a random skin will be loaded."},
     Switch::chkRndSkin, "RndSkin", &SettingsRecord::RndSkin},
    {{"chkPrvSkin", "Preview", {428, 106, 180, 28},
      "This option will enable / disable the preview skin function."},
     Switch::chkPrvSkin, "PrvSkin", &SettingsRecord::PrvSkin},
    {{"chkMindDuel", "Mind Duel", {32, 202, 180, 28},
      "Marking this option will enable the Mind Duel. This will let you test your mind strenght "
      "against another player."},
     Switch::chkMindDuel, "MindDuel", &SettingsRecord::MindDuel, true},
}}};

inline constexpr EnumArray<ConfigButton, ButtonDesign, kPushButtons> kConfigButtons{{{
    {{"cmdOk", "Ok", {498, 428, 110, 34},
      "Press here to save all changes and return to the game."},
     ConfigButton::cmdOk},
    {{"cmdCancel", "Cancel", {378, 428, 110, 34},
      "Press here to discard all changes and return to the game."},
     ConfigButton::cmdCancel},
    {{"cmdDefault", "Default", {32, 428, 110, 34},
      "Press here to restore Brimwell® Settings."},
     ConfigButton::cmdDefault},
    {{"cmdSkin(1)", "<", {428, 76, 28, 28},
      "Clicking this button will select the previous skin in the list."},
     ConfigButton::cmdSkin1, "Previous skin"},
    {{"cmdSkin(2)", ">", {580, 76, 28, 28},
      "Clicking this button will select the next skin in the list."},
     ConfigButton::cmdSkin2, "Next skin"},
    {{"cmdBestOf(1)", "-", {512, 202, 28, 28},
      "Clicking this button will decrease the number of rounds to play."},
     ConfigButton::cmdBestOf1, "Fewer rounds"},
    {{"cmdBestOf(2)", "+", {580, 202, 28, 28},
      "Clicking this button will increase the number of rounds to play."},
     ConfigButton::cmdBestOf2, "More rounds"},
    {{"cmdAdd", "Add", {242, 264, 100, 26},
      "Click here to add selected tune to the playlist."},
     ConfigButton::cmdAdd},
    {{"cmdAddAll", "Add all", {242, 295, 100, 26},
      "Click here to add all tunes in the filelist to the playlist."},
     ConfigButton::cmdAddAll},
    {{"cmdRemoveAll", "Remove all", {242, 357, 100, 26},
      "Click here to clear the entire playlist from tunes."},
     ConfigButton::cmdRemoveAll},
    {{"cmdRemove", "Remove", {242, 326, 100, 26},
      "Click here to remove the selected tune from the playlist."},
     ConfigButton::cmdRemove},
    {{"cmdMove(1)", "^", {576, 306, 32, 32},
      "Click here to move the selected tune up in the playlist."},
     ConfigButton::cmdMove1, "Move up"},
    {{"cmdMove(2)", "v", {576, 342, 32, 32},
      "Click here to move the selected tune down in the playlist."},
     ConfigButton::cmdMove2, "Move down"},
    {{"cmdListen", "Listen", {242, 388, 100, 26},
      "Click here to listen to the current selected tune."},
     ConfigButton::cmdListen},
}}};
// clang-format on

/// Whether each design is the one that its index finds.
template <class Designs>
constexpr bool AreInOrder(const Designs& designs) {
    std::size_t index = 0;
    for (const auto& design : designs) {
        if (static_cast<std::size_t>(design.which) != index++) return false;
    }
    return true;
}
static_assert(AreInOrder(kConfigSwitches));
static_assert(AreInOrder(kConfigButtons));

}  // namespace quendrel
