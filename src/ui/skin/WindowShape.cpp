#include "ui/skin/WindowShape.h"

#include "platform/Errors.h"
#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

OutlineMasks ReadMasks(const PictureReader& reader, const Global& global, int skin,
                       const SkinPicture& mask) {
    OutlineMasks masks;
    masks.single = ReadSkinPicture(reader, {SkinRoot(global, skin)}, mask);
    const SkinTree larger = TreeOf(global, skin, 2);
    if (larger.density == 1) return masks;
    try {
        masks.doubled = ReadSkinPicture(reader, larger, mask);
    } catch (const FileError&) {
        // Where the screen asks for the second tree, the reading of the pictures says so.
        return masks;
    }
    return masks;
}

}  // namespace quendrel
