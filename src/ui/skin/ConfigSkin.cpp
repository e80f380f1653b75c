#include "ui/skin/ConfigSkin.h"

#include "ui/skin/SkinFiles.h"

namespace quendrel {

ConfigSkin ReadConfigSkin(const PictureReader& reader, const SkinTree& tree) {
    using enum ConfigButton;
    ConfigSkin skin;
    const auto readButtons = [&](ConfigButton first, ConfigButton last) {
        for (const ButtonDesign& button : kConfigButtons) {
            if (button.which < first || button.which > last) continue;
            skin.buttons[button.which] = ReadButton(reader, tree, ConfigButtonFiles(button));
        }
    };
    const auto readSwitch = [&](const SwitchDesign& lever) {
        skin.switches[lever.which] = ReadButton(reader, tree, ConfigSwitchFiles(lever));
    };
    // One part of the window after the other: how it ends, switches, skins, match, tunes.
    skin.background = ReadSkinPicture(reader, tree, kConfigPicture);
    readButtons(cmdOk, cmdDefault);
    for (const SwitchDesign& lever : kConfigSwitches) {
        if (lever.which != Switch::chkMindDuel) readSwitch(lever);
    }
    readButtons(cmdSkin1, cmdSkin2);
    readSwitch(kConfigSwitches[Switch::chkMindDuel]);
    readButtons(cmdBestOf1, cmdListen);
    return skin;
}

}  // namespace quendrel
