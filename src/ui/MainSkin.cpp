// The pictures of the main window.
#include "ui/MainSkin.h"

#include <stdexcept>
#include <string_view>

#include "Global.h"
#include "ui/SkinFiles.h"

namespace quendrel {

std::string SkinRoot(const Global& global) { return SkinRoot(global, global.Settings.SkinPtr); }

std::string SkinRoot(const Global& global, int skin) {
    const int count = static_cast<int>(global.SkinNames.size());
    if (skin < 1 || skin > count) {
        throw std::out_of_range("there is no skin " + std::to_string(skin) +
                                "; the number of skins is " + std::to_string(count));
    }
    return global.SkinFolder + global.SkinNames[static_cast<std::size_t>(skin - 1)];
}

MainSkin ReadMainSkin(PictureReader& reader, const std::string& root) {
    const auto read = [&](std::string_view name) { return ReadSkinPicture(reader, root, name); };
    MainSkin skin;
    skin.board.picColors = read("\\Game\\Colors.bmp");
    skin.board.picColorAnim = read("\\Game\\Coloranim.bmp");
    skin.board.picNumbers = read("\\Game\\Numbers.bmp");
    skin.board.picDots = read("\\Game\\Dots.bmp");
    skin.board.picModes = read("\\Game\\Modes.bmp");
    skin.board.easyBoard = read("\\Game\\Board.bmp");
    for (const auto& [control, button] : MainButtonFiles()) {
        skin.buttons.emplace(control, ReadButton(reader, root, button));
    }
    return skin;
}

}  // namespace quendrel
