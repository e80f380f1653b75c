// The design of the highscore window: where each control stands and how large it is, in pixels of
// the client area, and how its live text looks. Entries count from 1 to 10, the best on top. The
// programs that make the skins draw the window by these rectangles.
#pragma once

#include <cstdint>

#include "Geometry.h"

namespace quendrel::layout {

inline constexpr Size kHighWindow{460, 448};

inline constexpr int kHighEntries = 10;
inline constexpr int kHighRowTop = 154;
inline constexpr int kHighRowPitch = 22;

/// The rank's place; the skins' pictures carry the number.
constexpr Rect HighRank(int entry) {
    return {40, kHighRowTop + kHighRowPitch * (entry - 1), 44, kHighRowPitch};
}

/// lblHighName(entry), its text at the left; txtEnterName covers it while a name is entered.
constexpr Rect HighName(int entry) {
    return {96, kHighRowTop + kHighRowPitch * (entry - 1), 192, kHighRowPitch};
}

/// lblHighRow(entry), its text in the middle.
constexpr Rect HighRow(int entry) {
    return {298, kHighRowTop + kHighRowPitch * (entry - 1), 50, kHighRowPitch};
}

/// lblHighTime(entry), its text in the middle.
constexpr Rect HighTime(int entry) {
    return {356, kHighRowTop + kHighRowPitch * (entry - 1), 62, kHighRowPitch};
}

/// cmdMode, cmdDefault and cmdOk.
inline constexpr Rect kHighMode{150, 96, 160, 28};
inline constexpr Rect kHighDefault{52, 384, 92, 34};
inline constexpr Rect kHighOk{316, 384, 92, 34};

/// The live text: its size in pixels and its colour as 0xRRGGBB, where the skin says nothing else.
inline constexpr int kHighTextPixels = 18;
inline constexpr std::uint32_t kHighTextColor = 0xEBE6DA;

/// txtEnterName's ground and ink.
inline constexpr std::uint32_t kNameEntryGround = 0xF2E6C8;
inline constexpr std::uint32_t kNameEntryInk = 0x1C120A;

}  // namespace quendrel::layout
