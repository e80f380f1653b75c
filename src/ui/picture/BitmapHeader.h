// What a bitmap file says of itself in its first bytes.
#pragma once

#include <string>

#include "ui/picture/Picture.h"

namespace quendrel {

/// The size in pixels of the bitmap in the file `path` (a path of the machine). Throws FileError
/// where it is missing, unreadable, no Windows bitmap, cut short or without a pixel.
Size SizeOfBitmap(const std::string& path);

}  // namespace quendrel
