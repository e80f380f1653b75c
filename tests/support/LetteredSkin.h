// A skin with fonts of its own.
#pragma once

#include <filesystem>
#include <string>

#include <QImage>

#include "TemporaryFolder.h"

namespace quendrel::test {

/// Makes the skin `name` in the folder: the pictures of our first one, with this Fonts.ini.
inline void MakeLetteredSkin(const TemporaryFolder& folder, const std::string& name,
                             const std::string& fonts) {
    namespace fs = std::filesystem;
    const fs::path skin = fs::path(folder.path()) / name;
    fs::create_directory(skin);
    for (const char* const part : {"Game", "Config", "High", "About"}) {
        fs::create_directory_symlink(fs::path(QUENDREL_SKIN_FOLDER) / "Atelier" / part,
                                     skin / part);
    }
    folder.Write(name + "/Fonts.ini", fonts);
}

inline bool HasPixel(const QImage& picture, QRgb color) {
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == (color | 0xFF000000U)) return true;
        }
    }
    return false;
}

}  // namespace quendrel::test
