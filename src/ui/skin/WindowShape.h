// The mask pictures that give the windows their outlines.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "ui/picture/Picture.h"

namespace quendrel {

/// A skin's masks cut away what is exactly white; the splash picture, which is its own mask, what
/// is exactly yellow.
inline constexpr Pixel kCutWhite = 0xFFFFFF;
inline constexpr Pixel kCutYellow = 0xFFFF00;

/// The mask of the window called "Main", "Config", "High" or "About" from the skin at `root`;
/// nothing for any other name. Throws FileError for a mask that is missing or no bitmap.
std::optional<Picture> ReadMask(const PictureReader& reader, const std::string& root,
                                std::string_view name);

}  // namespace quendrel
