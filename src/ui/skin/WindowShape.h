// The mask pictures that give the windows their outlines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/picture/Picture.h"

namespace quendrel {

struct Global;
struct SkinTree;

/// What is exactly white in a mask is cut away.
inline constexpr Pixel kCutWhite = 0xFFFFFF;

/// The masks of a window.
struct OutlineMasks {
    Picture single;
    /// The same with two pixels a unit; empty where the skin has none.
    Picture doubled;
};

/// The masks of a window of the skin with the index `skin` (from 1). Throws FileError for a single
/// mask that is missing, no bitmap or of another size.
OutlineMasks ReadMasks(const PictureReader& reader, const Global& global, int skin,
                       std::string_view name);

/// The mask of the window called "Main", "Config", "High" or "About" from a skin; nothing for any
/// other name. Throws FileError for a mask that is missing or no bitmap.
std::optional<Picture> ReadMask(const PictureReader& reader, const SkinTree& tree,
                                std::string_view name);

}  // namespace quendrel
