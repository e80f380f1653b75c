// The pictures of the configuration window.
#pragma once

#include <string>

#include "EnumArray.h"
#include "ui/layout/ConfigControls.h"
#include "ui/skin/MainSkin.h"

namespace quendrel {

struct SkinTree;

struct ConfigSkin {
    Picture background;
    EnumArray<ConfigButton, ButtonPictures, kPushButtons> buttons;
    EnumArray<Switch, ButtonPictures, kSwitches> switches;
};

/// Reads every picture of the configuration window from a skin, whole or not at all. Throws
/// FileError for the first file that is missing, no bitmap or of another size.
ConfigSkin ReadConfigSkin(const PictureReader& reader, const SkinTree& tree);

}  // namespace quendrel
