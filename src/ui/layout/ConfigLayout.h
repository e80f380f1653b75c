// The design of the configuration window: where each control stands and how large it is, in pixels
// of the client area. The programs that make the skins draw the window by these rectangles. The
// pictures of a control are named after its `picture`; its caption is drawn into them.
#pragma once

#include <array>
#include <string_view>

#include "Geometry.h"

namespace quendrel::layout {

inline constexpr Size kConfigWindow{640, 490};

struct ConfigPlace {
    std::string_view picture;
    std::string_view caption;
    Rect place;
};

/// The two-state buttons, lever and caption in one: chkMusic, chkRndMusic, chkSoundFx,
/// chkToolTips, chkSetColor, chkGTimer, chkRndSkin, chkPrvSkin, chkMindDuel.
inline constexpr std::array<ConfigPlace, 9> kConfigSwitches{{
    {"Music", "Music", {230, 106, 180, 28}},
    {"RndMusic", "Shuffle", {230, 136, 180, 28}},
    {"Sound", "Sound effects", {230, 76, 180, 28}},
    {"ToolTips", "Help bubbles", {32, 76, 180, 28}},
    {"SetColor", "Set own code", {32, 106, 180, 28}},
    {"GTimer", "Game clock", {32, 136, 180, 28}},
    {"RndSkin", "Random skin", {428, 136, 180, 28}},
    {"PrvSkin", "Preview", {428, 106, 180, 28}},
    {"MindDuel", "Mind Duel", {32, 202, 180, 28}},
}};

/// The push buttons: cmdOk, cmdCancel, cmdDefault, cmdSkin(1) and (2), cmdBestOf(1) and (2),
/// cmdAdd, cmdAddAll, cmdRemoveAll, cmdRemove, cmdMove(1) and (2), cmdListen. A caption that is a
/// single character stands for a drawn sign.
inline constexpr std::array<ConfigPlace, 14> kConfigButtons{{
    {"Ok", "Ok", {498, 428, 110, 34}},
    {"Cancel", "Cancel", {378, 428, 110, 34}},
    {"Default", "Default", {32, 428, 110, 34}},
    {"Skin(1)", "<", {428, 76, 28, 28}},
    {"Skin(2)", ">", {580, 76, 28, 28}},
    {"BestOf(1)", "-", {512, 202, 28, 28}},
    {"BestOf(2)", "+", {580, 202, 28, 28}},
    {"Add", "Add", {242, 264, 100, 26}},
    {"AddAll", "Add all", {242, 295, 100, 26}},
    {"RemoveAll", "Remove all", {242, 357, 100, 26}},
    {"Remove", "Remove", {242, 326, 100, 26}},
    {"Move(1)", "^", {576, 306, 32, 32}},
    {"Move(2)", "v", {576, 342, 32, 32}},
    {"Listen", "Listen", {242, 388, 100, 26}},
}};

/// Where the skins draw headings, by their middles: the window's title, the groups of switches, and
/// the small ones over the boxes.
struct ConfigHeading {
    std::string_view text;
    Point middle;
};
inline constexpr ConfigHeading kConfigTitle{"Configuration", {320, 30}};
inline constexpr std::array<ConfigHeading, 3> kConfigGroups{{
    {"Game", {122, 62}},
    {"Sound", {320, 62}},
    {"Skin", {518, 62}},
}};
inline constexpr std::array<ConfigHeading, 6> kConfigHeads{{
    {"For two", {122, 188}},
    {"Player 1", {294, 188}},
    {"Player 2", {436, 188}},
    {"Best of", {560, 188}},
    {"Tunes", {132, 250}},
    {"Playlist", {459, 250}},
}};

// The wells: inlays of one even colour in which live text is shown. The text is light on a dark
// well and dark on a light one.
/// lblSkin and lblBestOf.
inline constexpr Rect kConfigSkin{460, 76, 116, 28};
inline constexpr Rect kConfigBestOf{544, 202, 32, 28};
/// txtPlayer(1) and txtPlayer(2).
inline constexpr std::array<Rect, 2> kConfigPlayers{{{230, 202, 128, 28}, {372, 202, 128, 28}}};
/// lstFileList and lstPlayList.
inline constexpr Rect kConfigFileList{32, 264, 200, 150};
inline constexpr Rect kConfigPlayList{352, 264, 214, 150};

/// All wells, for the programs that draw them.
inline constexpr std::array<Rect, 6> kConfigWells{kConfigSkin,       kConfigBestOf,
                                                  kConfigPlayers[0], kConfigPlayers[1],
                                                  kConfigFileList,   kConfigPlayList};

/// The live text, in pixels.
inline constexpr int kConfigTextPixels = 18;

}  // namespace quendrel::layout
