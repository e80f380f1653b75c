#include "ui/skin/WindowShape.h"

#include "ui/skin/MainSkin.h"
#include "ui/skin/SkinFiles.h"

namespace quendrel {

OutlineMasks ReadMasks(const PictureReader& reader, const Global& global, int skin,
                       const SkinPicture& mask) {
    OutlineMasks masks;
    masks.single = ReadSkinPicture(reader, {SkinRoot(global, skin)}, mask);
    const SkinTree larger = TreeOf(global, skin, 2);
    if (larger.density == 2) masks.doubled = ReadSkinPicture(reader, larger, mask);
    return masks;
}

}  // namespace quendrel
