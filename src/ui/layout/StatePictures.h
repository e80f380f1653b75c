// Which pictures a button of a skin has: one for each of its states that can be seen. Used by the
// reading of the skins and by the programs that make them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quendrel {

enum class ButtonState : std::uint8_t { kUp, kDisabled, kDown, kOver };
inline constexpr std::size_t kButtonStates = 4;

/// One of a button's pictures, and the ending of its file's name.
struct StatePicture {
    ButtonState state;
    std::string_view ending;
};

/// A button's pictures, in the order in which they are read.
using StatePictures = std::span<const StatePicture>;

namespace layout {

inline constexpr StatePicture kUp{ButtonState::kUp, "_Up.bmp"};
inline constexpr StatePicture kDisabled{ButtonState::kDisabled, "_Disabled.bmp"};
inline constexpr StatePicture kDown{ButtonState::kDown, "_Down.bmp"};
inline constexpr StatePicture kOver{ButtonState::kOver, "_Over.bmp"};
/// A switch shows its Up picture when it is off and its Down picture when it is on.
inline constexpr StatePicture kOff{ButtonState::kUp, "_Off.bmp"};
inline constexpr StatePicture kOn{ButtonState::kDown, "_On.bmp"};

// The main window.
inline constexpr std::array kAllStates{kUp, kDisabled, kDown, kOver};
inline constexpr StatePictures kMenuPictures = kAllStates;
inline constexpr StatePictures kColorPictures = kAllStates;
inline constexpr StatePictures kAnswerPictures = kAllStates;
inline constexpr StatePictures kDuelPictures = kAllStates;
inline constexpr std::array kModePictures{kUp, kDisabled, kDown};
inline constexpr std::array kClockPictures{kUp, kDisabled};
inline constexpr std::array kHidePictures{kUp, kDown, kOver};

// The other windows.
inline constexpr std::array kEnabledStates{kUp, kOver, kDown};
inline constexpr StatePictures kAboutOkPictures = kEnabledStates;
inline constexpr StatePictures kHighOkPictures = kEnabledStates;
inline constexpr std::array kHighDefaultPictures{kUp, kDisabled, kOver, kDown};
inline constexpr StatePictures kConfigButtonPictures = kEnabledStates;
inline constexpr std::array kSwitchPictures{kOff, kOn};
/// Of a switch that a running game locks.
inline constexpr std::array kLockablePictures{kOff, kOn, kDisabled};

}  // namespace layout

}  // namespace quendrel
