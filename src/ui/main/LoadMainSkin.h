// Putting the current skin on the main window.
#pragma once

#include <cstdint>

#include "ui/picture/Picture.h"

namespace quendrel {

class Board;
class MainView;
class RowMarker;
struct Global;
struct MainSkin;

/// Shows the pictures of a skin on the main window: when the window loads, and when the skin is
/// changed, also in the middle of a game. The window is repainted whole.
void LoadMainSkin(const Global& global, MainSkin skin, MainView& window, Board& board,
                  RowMarker& rowMarker);

/// Shows the main window as it is with the pictures of the same skin in the density that the screen
/// asks for now. Where they cannot be read, the window keeps those that it has.
void FollowDensity(const Global& global, const PictureReader& reader, MainView& window,
                   Board& board, RowMarker& rowMarker);

/// Loads the skin SkinPtr after the player has changed it from `oldSkin`. Where a picture of any of
/// its windows is damaged, the player is told and `oldSkin` is chosen again.
void ChangeSkin(Global& global, const PictureReader& reader, MainView& window, Board& board,
                RowMarker& rowMarker, std::int16_t oldSkin);

}  // namespace quendrel
