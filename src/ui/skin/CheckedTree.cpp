#include "ui/skin/CheckedTree.h"

#include <utility>

#include "platform/Errors.h"
#include "platform/Files.h"

namespace quendrel {

namespace {

/// Whether a bitmap file says that its pixels have an opacity each: 32 bits with a mask for it.
bool HasOpacity(const std::string& path) {
    constexpr std::size_t infoSizeAt = 14;
    constexpr std::size_t bitsAt = 28;
    constexpr std::size_t opacityAt = 66;
    constexpr unsigned infoWithOpacity = 56;
    const std::string bytes = ReadFile(path);
    const auto byte = [&bytes](std::size_t at) {
        return static_cast<unsigned>(static_cast<unsigned char>(bytes[at]));
    };
    if (bytes.size() < opacityAt + 4 || byte(infoSizeAt) < infoWithOpacity) return false;
    return byte(bitsAt) == 32 &&
           (byte(opacityAt) | byte(opacityAt + 1) | byte(opacityAt + 2) | byte(opacityAt + 3)) != 0;
}

}  // namespace

CheckedTree::CheckedTree(const PictureReader& reader, SkinTree tree) : tree_(std::move(tree)) {
    for (const auto& [name, size] : AllSkinFiles()) Load(reader, name, size);
}

void CheckedTree::Load(const PictureReader& reader, const std::string& name, Size size) {
    const std::string path = tree_.PathOf(name);
    if (!PathExists(path)) {
        Say(name, "is missing; it is a picture of " + std::to_string(size.width * density()) +
                      " x " + std::to_string(size.height * density()) + " pixels");
        return;
    }
    try {
        pictures_.emplace(name, ReadSkinPicture(reader, tree_, {name, size}));
        if (HasOpacity(path)) Say(name, "is transparent; save it with 24 bits a pixel");
    } catch (const FileError& error) {
        faults_.emplace_back(error.what());
    }
}

const Picture* CheckedTree::Find(std::string_view name) const {
    const auto found = pictures_.find(std::string(name));
    return found == pictures_.end() ? nullptr : &found->second;
}

void CheckedTree::Say(std::string_view name, const std::string& fault) {
    faults_.push_back(tree_.PathOf(name) + ": " + fault);
}

}  // namespace quendrel
