// Copies of our skins.
#pragma once

#include <filesystem>
#include <string>

namespace quendrel::test {

inline std::filesystem::path FirstSkin() {
    return std::filesystem::path(QUENDREL_SKIN_FOLDER) / "Atelier";
}

/// Its pictures of single size, and whatever else it has.
inline void CopySkin(const std::string& to, const std::filesystem::path& skin = FirstSkin()) {
    std::filesystem::create_directories(to);
    for (const auto& entry : std::filesystem::directory_iterator(skin)) {
        if (entry.path().filename() == "2x") continue;
        std::filesystem::copy(entry.path(), to / entry.path().filename(),
                              std::filesystem::copy_options::recursive);
    }
}

/// Those of twice the size.
inline void CopySecondTree(const std::string& to) {
    std::filesystem::copy(FirstSkin() / "2x", to + "/2x", std::filesystem::copy_options::recursive);
}

}  // namespace quendrel::test
