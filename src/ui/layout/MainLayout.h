// The design of the main window: where each control stands and how large it is, in pixels of
// the client area. The board's own places are in BoardGeometry.h. The programs that make the
// skins cut the button pictures out of the console by these rectangles.
#pragma once

#include <array>

#include "Geometry.h"
#include "Modes.h"

namespace quendrel::layout {

/// The family and weight (as fonts count: 400 is regular) of all live text, and its sizes in
/// pixels, where the skin says nothing else.
inline constexpr const char* kTextFamily = "Yanone Kaffeesatz";
inline constexpr int kTextWeight = 500;
inline constexpr int kMessagePixels = 18;
inline constexpr int kClockPixels = 20;

/// cmdMnuBtn(0) to cmdMnuBtn(7): Exit, About, Config, High, Show, Clone, Start, Check.
inline constexpr std::array<Rect, ButtonNames.size()> kMenuButtons{{
    {104, 526, 82, 34},
    {18, 526, 82, 34},
    {104, 486, 82, 34},
    {18, 486, 82, 34},
    {18, 446, 82, 34},
    {104, 446, 82, 34},
    {18, 396, 82, 44},
    {104, 396, 82, 44},
}};

/// cmdModeBtn(0) to cmdModeBtn(2): Easy, Medium, Hard.
inline constexpr std::array<Rect, kModes.size()> kModeButtons{{
    {536, 17, 92, 26},
    {536, 45, 92, 26},
    {536, 73, 92, 26},
}};

/// cmdColBtn(0) to cmdColBtn(9), with lblColorBackup behind each; two a row, so that 6, 8 and 10
/// colours all make a full block.
inline constexpr std::array<Rect, kColorCount> kColorButtons{{
    {18, 220, 82, 30},
    {104, 220, 82, 30},
    {18, 254, 82, 30},
    {104, 254, 82, 30},
    {18, 288, 82, 30},
    {104, 288, 82, 30},
    {18, 322, 82, 30},
    {104, 322, 82, 30},
    {18, 356, 82, 30},
    {104, 356, 82, 30},
}};

/// cmdInput(0) to cmdInput(2), Yes, No, Ok: the size, and where each appears when it is asked for.
inline constexpr Size kInputButton{42, 24};
inline constexpr std::array<Point, AnswerNames.size()> kInputShownAt{
    {{75, 65}, {120, 65}, {100, 65}}};

/// cmdTmrBtn alone, and its left edge with the clock shown beside it.
inline constexpr Rect kClockButton{57, 186, 26, 26};
inline constexpr int kClockButtonBesideLabel = 32;
inline constexpr Rect kClockLabel{61, 186, 48, 26};
inline constexpr Rect kDuelButton{126, 186, 28, 26};
inline constexpr Rect kHideButton{158, 186, 28, 26};

/// lblDispRow(1) to lblDispRow(4).
inline constexpr std::array<Rect, 4> kMessageLines{{
    {18, 102, 170, 18},
    {18, 120, 170, 18},
    {18, 138, 170, 18},
    {18, 156, 170, 18},
}};

}  // namespace quendrel::layout
