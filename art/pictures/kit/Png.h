// PNG files.
#pragma once

#include <filesystem>

#include "kit/Bitmap.h"

namespace quendrel::art {

/// Writes the picture; with a `coverage` as large, whose grey levels run from clear (0) to opaque
/// (255), it becomes the picture's alpha. Throws std::runtime_error naming the file.
void WritePng(const std::filesystem::path& path, const Bitmap& picture,
              const Bitmap* coverage = nullptr);

/// Writes a picture of greys, a byte a pixel. Throws as the other.
void WriteGrayPng(const std::filesystem::path& path, const Bitmap& picture);

}  // namespace quendrel::art
