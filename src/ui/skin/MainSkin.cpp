#include "ui/skin/MainSkin.h"

#include <optional>
#include <span>
#include <stdexcept>
#include <utility>

#include "Global.h"
#include "platform/Errors.h"
#include "ui/layout/BoardSheets.h"
#include "ui/skin/ShownTree.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

void MakeBoardOfMode(Picture& board, const Picture& easyBoard, const Picture& modeSheet, int mode) {
    board = easyBoard;
    const auto paste = [&](std::span<const ModePiece> pieces) {
        for (const auto& [at, sheet] : pieces) {
            BitBlt(board, {at.left, at.top}, {at.width, at.height}, modeSheet, sheet);
        }
    };
    if (mode >= 1) paste(kMediumPieces);
    if (mode >= 2) paste(kHardPieces);
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

SkinTree TreeOf(const Global& global, int skin, int density) {
    const std::string root = SkinRoot(global, skin);
    const bool doubled = density > 1 && HasSecondTree(root) && FaultOfSecondTree(root).empty();
    return {root, doubled ? 2 : 1};
}

MainSkin ReadMainSkin(const PictureReader& reader, const SkinTree& tree) {
    const auto read = [&](const SkinPicture& file) { return ReadSkinPicture(reader, tree, file); };
    MainSkin skin;
    skin.board.picColors = read(kPegStrip);
    skin.board.picColorAnim = read(kCoverSheet);
    skin.board.picNumbers = read(kNumberStrip);
    skin.board.picDots = read(kMarkStrip);
    skin.board.picModes = read(kModeSheet);
    skin.board.easyBoard = read(kBoardPicture);
    for (const auto& [control, button] : MainButtonFiles()) {
        skin.buttons.emplace(control, ReadButton(reader, tree, button));
    }
    return skin;
}

std::optional<MainSkin> ReadSecondMainSkin(const PictureReader& reader, const std::string& root) {
    return ReadSecondTree(reader, root, kBoardMask, [&reader](const SkinTree& second) {
        return ReadMainSkin(reader, second);
    });
}

namespace {

/// The main window's pictures of the first tree, every other file of which is read too.
MainSkin ReadFirstTree(const PictureReader& reader, const std::string& root) {
    const SkinTree tree{root};
    MainSkin read = ReadMainSkin(reader, tree);
    for (const auto& [name, size] : AllSkinFiles()) {
        const bool isRead = name.starts_with("\\Game\\") && name != kBoardMask.name;
        if (!isRead) ReadSkinPicture(reader, tree, {name, size});
    }
    return read;
}

/// The main window's pictures of the second tree; nothing, and the reason on standard error, where
/// it is not whole.
std::optional<MainSkin> ReadDoubled(const PictureReader& reader, const std::string& root) {
    const std::string fault = FaultOfSecondTree(root);
    if (fault.empty()) return ReadSecondMainSkin(reader, root);
    SayInSingleSize(fault);
    return std::nullopt;
}

}  // namespace

void ReportFaultOfSecondTree(const std::string& root) {
    if (!HasSecondTree(root)) return;
    const std::string fault = FaultOfSecondTree(root);
    if (!fault.empty()) SayInSingleSize(fault);
}

MainSkin ReadWholeSkin(const PictureReader& reader, const Global& global, int skin, int density) {
    const std::string root = SkinRoot(global, skin);
    try {
        MainSkin first = ReadFirstTree(reader, root);
        if (density == 1 || !HasSecondTree(root)) return first;
        return ReadDoubled(reader, root).value_or(std::move(first));
    } catch (const FileError& error) {
        const std::string& name = global.SkinNames.at(static_cast<std::size_t>(skin - 1));
        throw FileError("The skin \"" + name + "\" is damaged", error.what());
    }
}

}  // namespace quendrel
