#include "ui/skin/WindowShape.h"

#include <array>

#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

namespace {

struct MaskEntry {
    std::string_view window;
    SkinPicture file;
};

constexpr std::array<MaskEntry, 4> kMasks{{
    {"Main", kBoardMask},
    {"Config", kConfigMask},
    {"High", kHighMask},
    {"About", kAboutMask},
}};

}  // namespace

std::optional<Picture> ReadMask(const PictureReader& reader, const SkinTree& tree,
                                std::string_view name) {
    for (const MaskEntry& mask : kMasks) {
        if (mask.window == name) return ReadSkinPicture(reader, tree, mask.file);
    }
    return std::nullopt;
}

OutlineMasks ReadMasks(const PictureReader& reader, const Global& global, int skin,
                       std::string_view name) {
    OutlineMasks masks;
    masks.single = ReadMask(reader, {SkinRoot(global, skin)}, name).value_or(Picture());
    const SkinTree larger = TreeOf(global, skin, 2);
    if (larger.density == 2) masks.doubled = ReadMask(reader, larger, name).value_or(Picture());
    return masks;
}

}  // namespace quendrel
