// Animated GIF files.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "kit/Animation.h"

namespace quendrel::art {

/// Writes both sizes of frames as endless loops, where WriteBmp would. Pixels of the niche's floor
/// become transparent; all frames share one table of colours, so that what stands still does not
/// flicker. Throws std::runtime_error naming the file.
void WriteGif(const std::filesystem::path& root, const std::string& name,
              const std::vector<Frame>& frames);

}  // namespace quendrel::art
