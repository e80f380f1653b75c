// The files of a skin's second tree, as far as their headers go.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "Geometry.h"
#include "SkinFileList.h"
#include "TemporaryFolder.h"

namespace quendrel::test {

/// The beginning of a bitmap file that says that it is `length` bytes long.
inline std::string BitmapStart(Size size, std::uint32_t length = 26) {
    std::string bytes(26, '\0');
    const auto put = [&bytes](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i) {
            bytes[at + i] = static_cast<char>(value >> 8 * i & 0xFF);
        }
    };
    bytes[0] = 'B';
    bytes[1] = 'M';
    put(2, length);
    put(18, static_cast<std::uint32_t>(size.width));
    put(22, static_cast<std::uint32_t>(size.height));
    return bytes;
}

/// Writes every file of the second tree of the skin called `skin`.
inline void WriteSecondTree(const TemporaryFolder& folder, const std::string& skin) {
    for (const File& file : AllFiles()) {
        const std::string path = skin + "/2x/" + file.name;
        std::filesystem::create_directories(
            std::filesystem::path(folder.path() + "/" + path).parent_path());
        folder.Write(path, BitmapStart({2 * file.size.width, 2 * file.size.height}));
    }
}

}  // namespace quendrel::test
