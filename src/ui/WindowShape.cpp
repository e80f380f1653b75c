// The mask pictures.
#include "ui/WindowShape.h"

#include <array>

#include "platform/Files.h"

namespace quendrel {

namespace {

struct MaskEntry {
    std::string_view window;
    std::string_view file;
};

constexpr std::array<MaskEntry, 4> kMasks{{
    {"Main", "\\Game\\Boardmask.bmp"},
    {"Config", "\\Config\\Configmask.bmp"},
    {"High", "\\High\\Highmask.bmp"},
    {"About", "\\About\\Aboutmask.bmp"},
}};

}  // namespace

std::optional<Picture> ReadMask(PictureReader& reader, const std::string& root,
                                std::string_view name) {
    for (const MaskEntry& mask : kMasks) {
        if (mask.window == name) return reader.Read(MachinePath(root + std::string(mask.file)));
    }
    return std::nullopt;
}

}  // namespace quendrel
