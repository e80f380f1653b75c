// The record of settings.
#pragma once

#include <cstdint>
#include <string>

#include "OneBased.h"

namespace quendrel {

/// Every choice of the player and the state of a running match, as stored between runs.
struct SettingsRecord {
    std::uint8_t GameMode = 2;
    bool SoundFx = true;
    bool Music = true;
    bool RndMusic = false;
    bool ToolTips = true;
    bool SetColor = false;
    bool GTimer = false;
    bool RndSkin = false;
    bool PrvSkin = false;
    std::int16_t SkinPtr = 1;
    bool MindDuel = false;
    OneBased<std::string, 2> PlayerNames{{"Player 1", "Player 2"}};
    std::uint8_t BestOf = 5;
    std::uint8_t Round = 0;
    std::uint8_t PlrTrn = 1;
    OneBased<std::uint8_t, 2> PlrPos;

    /// Not stored: true from the start of a round until it has ended.
    bool GameInProgress = false;
};

}  // namespace quendrel
