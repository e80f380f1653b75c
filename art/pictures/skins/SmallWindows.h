// The pictures of the windows beside the main one.
#pragma once

#include <filesystem>

#include "skins/Craft.h"

namespace quendrel::art {

/// Writes About/, High/ and Config/ below the skin's root.
void WriteSmallWindows(const Craft& craft, const std::filesystem::path& root);

}  // namespace quendrel::art
