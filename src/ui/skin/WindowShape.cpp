#include "ui/skin/WindowShape.h"

#include <array>

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

std::optional<Picture> ReadMask(const PictureReader& reader, const std::string& root,
                                std::string_view name) {
    for (const MaskEntry& mask : kMasks) {
        if (mask.window == name) return ReadSkinPicture(reader, root, mask.file);
    }
    return std::nullopt;
}

}  // namespace quendrel
