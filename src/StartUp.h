// The order in which the program starts.
#pragma once

#include <functional>
#include <string>

namespace quendrel {

class PictureReader;
class SettingsStore;
struct Game;
struct Global;

/// The folders of the program in `programFolder`, a path of the machine without a slash at its
/// end.
void SetFolders(Global& global, const std::string& programFolder);

/// Fills the main window before it is shown: skins, settings, mode, buttons, outline, pictures,
/// board and welcome text. Throws what a bad setting throws, or a skin folder in which no skin is
/// whole.
void LoadMainWindow(Global& global, Game& game, SettingsStore& store, PictureReader& pictures);

/// The first activation of the main window: sounds, the splash goes, music, the idle board is
/// asked for.
void ActivateFirst(Game& game, const std::function<void()>& closeSplash);

}  // namespace quendrel
