// The record of settings.
#pragma once

#include <cstdint>
#include <string>

#include "OneBased.h"

namespace quendrel {

/// Every choice of the player and the state of a running match, as stored between runs.
struct SettingsRecord {
    /// An index of kModes.
    std::uint8_t GameMode = 2;
    bool SoundFx = true;
    bool Music = true;
    bool RndMusic = false;
    bool ToolTips = true;
    bool SetColor = false;
    bool GTimer = false;
    bool RndSkin = false;
    bool PrvSkin = false;
    /// The place of the skin in use in the list of skins, from 1.
    std::int16_t SkinPtr = 1;
    bool MindDuel = false;
    OneBased<std::string, 2> PlayerNames{{"Player 1", "Player 2"}};
    /// The rounds of a match; the player chooses 1 to 10.
    std::uint8_t BestOf = 5;
    /// How many rounds of the match have had their second turn begun.
    std::uint8_t Round = 0;
    /// The player on turn, 1 or 2.
    std::uint8_t PlrTrn = 1;
    /// The guesses of each player in the match.
    OneBased<std::uint8_t, 2> PlrPos;

    /// Not stored: true from the start of a round until it has ended.
    bool GameInProgress = false;
};

}  // namespace quendrel
