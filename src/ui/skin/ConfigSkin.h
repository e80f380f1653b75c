// The pictures of the configuration window.
#pragma once

#include <array>
#include <string>

#include "ui/layout/ConfigLayout.h"
#include "ui/skin/MainSkin.h"

namespace quendrel {

/// The buttons' and switches' pictures are in the order of the layout.
struct ConfigSkin {
    Picture background;
    std::array<ButtonPictures, layout::kConfigButtons.size()> buttons;
    std::array<ButtonPictures, layout::kConfigSwitches.size()> switches;
};

/// Reads every picture of the configuration window from the skin at `root`, whole or not at all.
/// Throws FileError for the first file that is missing, no bitmap or of another size.
ConfigSkin ReadConfigSkin(PictureReader& reader, const std::string& root);

}  // namespace quendrel
