// The eleven numbered sound effects.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "Global.h"

namespace quendrel {

class SoundPlayer;

/// The slots, by the sound that lies in each.
enum class SoundSlot : std::uint8_t {
    kBigClick = 0,
    kSelectColor = 1,
    kSmallClick = 2,
    kShowCode = 3,
    kStartGame = 4,
    kGotIt = 5,
    kMediumClick = 6,
    kPutColor = 7,
    kBlackMark = 8,
    kWhiteMark = 9,
    kNoGood = 10,
};

inline constexpr std::size_t kSoundSlots = 11;
static_assert(kSoundSlots == static_cast<std::size_t>(SoundSlot::kNoGood) + 1);

/// How a slot is played: once, over and over, or once and alone.
enum class SoundMode : std::uint8_t { kOnce = 0, kLooping = 1, kAlone = 2 };

/// Entry n is the file of slot n, in the sound folder.
inline constexpr std::array<std::string_view, kSoundSlots> kSoundFiles{
    "BigClick.wav",  "SelectColor.wav", "SmallClick.wav",  "ShowCode.wav",
    "StartGame.wav", "GotIt.wav",       "MediumClick.wav", "PutColor.wav",
    "Black.wav",     "White.wav",       "NoGood.wav"};

class SoundEffects {
public:
    SoundEffects(Global& global, SoundPlayer& player) : global_(global), player_(player) {}

    /// Opens the sound device, sets SoundAvailable, and loads the eleven files where there is
    /// one. Called once, at the first activation of the main window. Throws FileError for a file
    /// that is missing or damaged; no device is no error.
    void Load();

    /// Plays nothing without a device or while the player has switched the effects off. Called by
    /// every window.
    void PlaySoundFx(SoundSlot slot, SoundMode mode);

private:
    Global& global_;
    SoundPlayer& player_;
};

}  // namespace quendrel
