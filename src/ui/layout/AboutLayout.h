// The design of the about window: where each control stands and how large it is, in pixels of the
// client area. The programs that make the skins draw the window, and those that make the
// animations draw them, by these rectangles.
#pragma once

#include <cstdint>

#include "Geometry.h"

namespace quendrel::layout {

inline constexpr Size kAboutWindow{464, 316};

/// cmdOk.
inline constexpr Rect kAboutOk{361, 203, 70, 40};

/// The animated pictures agifEmail, agifHome and agifTorch, each as large as its place.
inline constexpr Rect kAboutEmail{160, 192, 72, 60};
inline constexpr Rect kAboutHome{263, 192, 72, 60};
inline constexpr Rect kAboutTorch{50, 68, 52, 168};

/// The colour (0xRRGGBB) of the niches' floors, on which they stand in every skin.
inline constexpr std::uint32_t kNicheFloor = 0x191512;

}  // namespace quendrel::layout
