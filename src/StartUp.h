// The order in which the program starts.
#pragma once

#include <functional>
#include <string>

#include "ui/picture/Picture.h"

namespace quendrel {

class SettingsStore;
struct Game;
struct Global;

/// The folders of the program in `programFolder`, a path of the machine without a slash at its
/// end.
void SetFolders(Global& global, const std::string& programFolder);

/// Fills the main window before it is shown: skins, settings, mode, buttons, outline, pictures,
/// board and welcome text. Throws FileError for a file that cannot be read, ConversionError or
/// std::out_of_range for a stored setting that cannot be used, and std::runtime_error where no skin
/// is whole.
void LoadMainWindow(Global& global, Game& game, SettingsStore& store,
                    const PictureReader& pictures);

/// What happens once the main window is shown: the sounds are loaded, the splash is closed, the
/// music begins, and the idle animation is asked for.
void ActivateFirst(Game& game, const std::function<void()>& closeSplash);

}  // namespace quendrel
