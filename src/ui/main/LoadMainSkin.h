// Putting the current skin on the main window.
#pragma once

#include <cstdint>

namespace quendrel {

class Board;
class MainView;
class PictureReader;
class RowMarker;
struct Global;
struct MainSkin;

/// Puts the pictures of a skin on the main window: when the window loads, and again when the skin
/// is changed, also in the middle of a game. The window is repainted whole.
void LoadMainSkin(const Global& global, MainSkin skin, MainView& window, Board& board,
                  RowMarker& rowMarker);

/// The player has chosen another skin than `oldSkin`: puts it on whole. A damaged one is not put on
/// at all; the player is told, and the old one stays chosen.
void ChangeSkin(Global& global, PictureReader& reader, MainView& window, Board& board,
                RowMarker& rowMarker, std::int16_t oldSkin);

}  // namespace quendrel
