// The pictures of the windows beside the main one, composed from a look.
#pragma once

#include <filesystem>

#include "kit/Bitmap.h"
#include "skins/WindowLook.h"

namespace quendrel::art {

/// Writes About/ below the skin's root.
void WriteAboutWindow(const WindowLook& look, const std::filesystem::path& root);

/// Writes High/ below the skin's root.
void WriteHighWindow(const WindowLook& look, const std::filesystem::path& root);

/// Writes Config/ below the skin's root.
void WriteConfigWindow(const WindowLook& look, const std::filesystem::path& root);

}  // namespace quendrel::art
