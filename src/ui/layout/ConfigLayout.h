// The design of the configuration window, but for its buttons: its headings, and where live text
// stands, in pixels of the client area. The programs that make the skins draw the window by it.
#pragma once

#include <array>
#include <string_view>

#include "Geometry.h"

namespace quendrel::layout {

inline constexpr Size kConfigWindow{640, 490};

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
