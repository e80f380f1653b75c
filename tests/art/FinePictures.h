// The pictures at double size, which lie in a folder of their own under the same names.
#pragma once

#include <array>
#include <filesystem>

#include "Geometry.h"

namespace quendrel {

/// The sizes that every picture comes in, as pixels a unit of the layouts, each way.
inline constexpr std::array kPixelsAUnit{1, 2};

/// The folder that holds the pictures of `root` with so many pixels a unit.
inline std::filesystem::path InSize(const std::filesystem::path& root, int pixels) {
    return pixels == 1 ? root : root / "2x";
}

constexpr Point Times(Point at, int by) { return {at.x * by, at.y * by}; }
constexpr Size Times(Size size, int by) { return {size.width * by, size.height * by}; }
constexpr Rect Times(Rect r, int by) {
    return {r.left * by, r.top * by, r.width * by, r.height * by};
}

}  // namespace quendrel
