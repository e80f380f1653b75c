// What a bitmap file says of itself in its first bytes.
#pragma once

#include <cstdint>
#include <string>

#include "ui/picture/Picture.h"

namespace quendrel {

/// The size in pixels of the bitmap in the file `path` (a path of the machine). Throws FileError
/// where it is missing, unreadable, no Windows bitmap, cut short or without a pixel.
Size SizeOfBitmap(const std::string& path);

/// The same of a file of which the beginning has been read, or all, and whose length is known.
Size SizeInBitmap(const std::string& path, const std::string& start, std::uintmax_t length);

}  // namespace quendrel
