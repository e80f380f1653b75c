// The pictures of the configuration window.
#include "ui/skin/ConfigSkin.h"

#include "ui/skin/SkinFiles.h"

namespace quendrel {

ConfigSkin ReadConfigSkin(PictureReader& reader, const std::string& root) {
    ConfigSkin skin;
    const std::vector<ButtonFiles> buttons = ConfigButtonFiles();
    const std::vector<ButtonFiles> switches = ConfigSwitchFiles();
    const auto readButtons = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            skin.buttons.at(i) = ReadButton(reader, root, buttons.at(i));
        }
    };
    const auto readSwitches = [&](std::size_t from, std::size_t to) {
        for (std::size_t i = from; i < to; ++i) {
            skin.switches.at(i) = ReadButton(reader, root, switches.at(i));
        }
    };
    // One part of the window after the other: how it ends, switches, skins, match, tunes.
    skin.background = ReadSkinPicture(reader, root, kConfigPicture);
    readButtons(0, 3);
    readSwitches(0, 8);
    readButtons(3, 5);
    readSwitches(8, 9);
    readButtons(5, buttons.size());
    return skin;
}

}  // namespace quendrel
