// The configuration window's buttons: their names and their help texts.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace quendrel {

/// The two-state buttons, in the order of layout::kConfigSwitches.
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

struct ConfigControl {
    std::string_view name;
    std::string_view help;
    /// What a screen reader says of a button whose caption is a sign.
    std::string_view spoken = {};
};

// clang-format off
inline constexpr std::array<ConfigControl, 9> kSwitchControls{{
    {"chkMusic",    "Click here to turn the game music on/off."},
    {"chkRndMusic", "If this option is marked then the tunes in the playlist will be played in a random order."},
    {"chkSoundFx",  "Click here to turn the sound effects on/off."},
    {"chkToolTips", "This option will enable / disable the popup help bubbles."},
    {"chkSetColor", "If this option is marked then you will be asked to set your own color combination next time you start a game."},
    {"chkGTimer",   "Clicking this option will enable / disable the timer and the possibility to get a highscore."},
    {"chkRndSkin",  "If this option is marked then every time you start the game a random skin will be loaded."},
    {"chkPrvSkin",  "This option will enable / disable the preview skin function."},
    {"chkMindDuel", "Marking this option will enable the Mind Duel. This will let you test your mind strenght against another player."},
}};

/// The push buttons, in the order of layout::kConfigButtons.
inline constexpr std::array<ConfigControl, 14> kButtonControls{{
    {"cmdOk",        "Press here to save all changes and return to the game."},
    {"cmdCancel",    "Press here to discard all changes and return to the game."},
    {"cmdDefault",   "Press here to restore Brimwell® Settings."},
    {"cmdSkin(1)",   "Clicking this button will select the previous skin in the list.", "Previous skin"},
    {"cmdSkin(2)",   "Clicking this button will select the next skin in the list.", "Next skin"},
    {"cmdBestOf(1)", "Clicking this button will decrease the number of rounds to play.", "Fewer rounds"},
    {"cmdBestOf(2)", "Clicking this button will increase the number of rounds to play.", "More rounds"},
    {"cmdAdd",       "Click here to add selected tune to the playlist."},
    {"cmdAddAll",    "Click here to add all tunes in the filelist to the playlist."},
    {"cmdRemoveAll", "Click here to clear the entire playlist from tunes."},
    {"cmdRemove",    "Click here to remove the selected tune from the playlist."},
    {"cmdMove(1)",   "Click here to move the selected tune up in the playlist.", "Move up"},
    {"cmdMove(2)",   "Click here to move the selected tune down in the playlist.", "Move down"},
    {"cmdListen",    "Click here to listen to the current selected tune."},
}};
// clang-format on

}  // namespace quendrel
