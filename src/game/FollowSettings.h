// What becomes of the game when the player has been to the configuration window.
#pragma once

#include <cstdint>

namespace quendrel {

class PictureReader;
struct Game;

/// Shows on the console what Settings has of clock and duel, and puts the skin SkinPtr on where it
/// is another than `oldSkin`, which comes back where that one is damaged.
void FollowSettings(Game& game, PictureReader& pictures, std::int16_t oldSkin);

}  // namespace quendrel
