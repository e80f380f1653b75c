// Reading a window's pictures from the tree that the screen asks for, as far as that can be read.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "platform/Errors.h"
#include "ui/picture/Picture.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

/// Says on standard error why a skin's second tree is not shown.
inline void SayInSingleSize(const std::string& fault) {
    ReportTrouble(fault + "; the skin is shown in its single size");
}

/// What `read`, which is given the tree, makes of a window's pictures in the second tree of the
/// skin in the folder `root`. Nothing, and the reason on standard error, where one of them or the
/// window's mask cannot be read, of which the beginnings of the files say nothing.
template <typename Read>
auto ReadSecondTree(const PictureReader& reader, const std::string& root, const SkinPicture& mask,
                    const Read& read) -> std::optional<decltype(read(SkinTree{}))> {
    const SkinTree second{root, 2};
    try {
        ReadSkinPicture(reader, second, mask);
        return read(second);
    } catch (const FileError& error) {
        SayInSingleSize(error.what());
        return std::nullopt;
    }
}

/// The same of the tree `wanted`; where that is a second one that cannot be read, of the first one.
/// So all that a window shows is of one tree. Throws FileError where the first one cannot be read.
template <typename Read>
auto ReadTree(const PictureReader& reader, const SkinTree& wanted, const SkinPicture& mask,
              const Read& read) {
    if (wanted.density > 1) {
        if (auto second = ReadSecondTree(reader, wanted.root, mask, read)) {
            return *std::move(second);
        }
    }
    return read(SkinTree{wanted.root});
}

}  // namespace quendrel
