// What must hold of the pictures of any window beside the main one.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Bitmap.h"

namespace quendrel {

inline void ExpectSizes(const std::filesystem::path& folder,
                        const std::map<std::string, Size>& sizes) {
    int files = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder))
        files += entry.is_regular_file() ? 1 : 0;
    EXPECT_EQ(files, static_cast<int>(sizes.size())) << folder;
    for (const auto& [name, size] : sizes) {
        const Bitmap picture(folder / name);
        EXPECT_EQ(picture.width, size.width) << name;
        EXPECT_EQ(picture.height, size.height) << name;
    }
}

inline void ExpectMaskAndRim(const Bitmap& mask, const Bitmap& picture) {
    EXPECT_EQ(PixelsOtherThanBlackAndWhite(mask), 0);
    EXPECT_EQ(mask.At(0, 0), kWhite);
    EXPECT_EQ(mask.At(mask.width - 1, 0), kWhite);
    EXPECT_EQ(mask.At(mask.width / 2, mask.height / 2), kBlack);
    ExpectDarkRim(mask, picture);
}

/// A button's outermost pixels are the window around it, whatever its state.
inline void ExpectNoSeam(const Bitmap& window, const std::filesystem::path& file, Rect place) {
    const Bitmap picture(file);
    const Bitmap ground = window.Part(place);
    for (const int x : {0, place.width - 1})
        for (const int y : {0, place.height - 1})
            EXPECT_EQ(picture.At(x, y), ground.At(x, y)) << file << x << ", " << y;
    const Bitmap top = picture.Part({0, 0, place.width, 1});
    const Bitmap left = picture.Part({0, 0, 1, place.height});
    EXPECT_LE(LargestStep(top, ground.Part({0, 0, place.width, 1})), 24) << file;
    EXPECT_LE(LargestStep(left, ground.Part({0, 0, 1, place.height})), 24) << file;
}

/// How well letters stand out from their ground, which of the two is the lighter: `picture` holds
/// little but them, so that each makes up more than a twentieth of it.
inline double LetterContrast(const Bitmap& picture) {
    std::vector<std::uint32_t> pixels = picture.pixels;
    std::sort(pixels.begin(), pixels.end(),
              [](std::uint32_t a, std::uint32_t b) { return LuminanceOf(a) < LuminanceOf(b); });
    return Contrast(pixels[pixels.size() / 20], pixels[pixels.size() * 19 / 20]);
}

}  // namespace quendrel
