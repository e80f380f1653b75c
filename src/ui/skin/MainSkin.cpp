#include "ui/skin/MainSkin.h"

#include <span>
#include <stdexcept>

#include "Global.h"
#include "platform/Errors.h"
#include "ui/layout/BoardSheets.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

Picture BoardOfMode(const Picture& easyBoard, const Picture& modeSheet, int mode) {
    Picture board = easyBoard;
    const auto paste = [&](std::span<const ModePiece> pieces) {
        for (const auto& [at, sheet] : pieces) {
            BitBlt(board, {at.left, at.top}, {at.width, at.height}, modeSheet, sheet);
        }
    };
    if (mode >= 1) paste(kMediumPieces);
    if (mode >= 2) paste(kHardPieces);
    return board;
}

std::string SkinRoot(const Global& global) { return SkinRoot(global, global.Settings.SkinPtr); }

std::string SkinRoot(const Global& global, int skin) {
    const int count = static_cast<int>(global.SkinNames.size());
    if (skin < 1 || skin > count) {
        throw std::out_of_range("there is no skin " + std::to_string(skin) +
                                "; the number of skins is " + std::to_string(count));
    }
    return global.SkinFolder + global.SkinNames[static_cast<std::size_t>(skin - 1)];
}

MainSkin ReadMainSkin(const PictureReader& reader, const std::string& root) {
    const auto read = [&](const SkinPicture& file) { return ReadSkinPicture(reader, root, file); };
    MainSkin skin;
    skin.board.picColors = read(kPegStrip);
    skin.board.picColorAnim = read(kCoverSheet);
    skin.board.picNumbers = read(kNumberStrip);
    skin.board.picDots = read(kMarkStrip);
    skin.board.picModes = read(kModeSheet);
    skin.board.easyBoard = read(kBoardPicture);
    for (const auto& [control, button] : MainButtonFiles()) {
        skin.buttons.emplace(control, ReadButton(reader, root, button));
    }
    return skin;
}

MainSkin ReadWholeSkin(const PictureReader& reader, const Global& global, int skin) {
    const std::string root = SkinRoot(global, skin);
    try {
        MainSkin read = ReadMainSkin(reader, root);
        for (const auto& [name, size] : AllSkinFiles()) {
            const bool isRead = name.starts_with("\\Game\\") && name != kBoardMask.name;
            if (!isRead) ReadSkinPicture(reader, root, {name, size});
        }
        return read;
    } catch (const FileError& error) {
        const std::string& name = global.SkinNames.at(static_cast<std::size_t>(skin - 1));
        throw FileError("The skin \"" + name + "\" is damaged", error.what());
    }
}

}  // namespace quendrel
