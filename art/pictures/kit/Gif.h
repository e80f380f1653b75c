// Animated GIF files.
#pragma once

#include <filesystem>
#include <vector>

#include "kit/Animation.h"

namespace quendrel::art {

/// Writes frames of equal size as an endless loop. Pixels of the niche's floor become transparent;
/// all frames share one table of colours, so that what stands still does not flicker. Throws
/// std::runtime_error naming the file.
void WriteGif(const std::filesystem::path& path, const std::vector<Frame>& frames);

}  // namespace quendrel::art
