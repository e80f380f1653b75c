// The mask pictures that give the windows their outlines.
#pragma once

#include "ui/picture/Picture.h"

namespace quendrel {

struct Global;
struct SkinPicture;

/// What is exactly white in a mask is cut away.
inline constexpr Pixel kCutWhite = 0xFFFFFF;

/// The masks of a window.
struct OutlineMasks {
    Picture single;
    /// The same with two pixels a unit; empty where the skin has none that can be read.
    Picture doubled;
};

/// The masks of the window whose mask is `mask`, of the skin with the index `skin` (from 1). Throws
/// FileError for a single mask that is missing, no bitmap or of another size.
OutlineMasks ReadMasks(const PictureReader& reader, const Global& global, int skin,
                       const SkinPicture& mask);

}  // namespace quendrel
