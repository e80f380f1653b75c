// Applies to the game what the player has changed in the configuration window.
#pragma once

#include <cstdint>

#include "ui/picture/Picture.h"

namespace quendrel {

struct Game;

/// Shows the settings of clock and duel on the main window's buttons, and loads the skin SkinPtr
/// where it is another than `oldSkin`; where the new one is damaged, `oldSkin` stays.
void FollowSettings(Game& game, const PictureReader& pictures, std::int16_t oldSkin);

}  // namespace quendrel
