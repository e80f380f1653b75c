// The pictures that were made, as the tests read them: bitmap files, how pictures differ, what
// masks and outlines must be.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "Contrast.h"
#include "ui/layout/BoardGeometry.h"

namespace quendrel {

inline constexpr std::uint32_t kBlack = 0x000000;
inline constexpr std::uint32_t kWhite = 0xffffff;

inline std::string BytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) throw std::runtime_error("no file " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

class Bitmap {
public:
    explicit Bitmap(Size size)
        : width(size.width),
          height(size.height),
          pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height)) {}

    explicit Bitmap(const std::filesystem::path& path) {
        const std::string bytes = BytesOf(path);
        const auto number = [&bytes](std::size_t at, int count) {
            std::uint32_t value = 0;
            for (int i = count; i-- > 0;)
                value = value << 8 | static_cast<unsigned char>(bytes.at(at + std::size_t(i)));
            return value;
        };
        if (bytes.substr(0, 2) != "BM" || number(28, 2) != 24 || number(30, 4) != 0)
            throw std::runtime_error(path.string() + " is no uncompressed 24-bit bitmap");
        width = static_cast<int>(number(18, 4));
        height = static_cast<int>(number(22, 4));
        const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
        if (bytes.size() != 54 + stride * static_cast<std::size_t>(height))
            throw std::runtime_error(path.string() + " has a wrong length");
        for (int y = height - 1; y >= 0; --y)
            for (int x = 0; x < width; ++x)
                pixels.push_back(number(number(10, 4) + static_cast<std::size_t>(y) * stride +
                                            static_cast<std::size_t>(x) * 3,
                                        3));
    }

    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
    std::uint32_t& At(int x, int y) { return pixels.at(Index(x, y)); }
    std::uint32_t At(int x, int y) const { return pixels.at(Index(x, y)); }

    Bitmap Part(Rect area) const {
        Bitmap part(*this);
        part.width = area.width;
        part.height = area.height;
        part.pixels.clear();
        for (int y = area.top; y < area.bottom(); ++y)
            for (int x = area.left; x < area.right(); ++x) part.pixels.push_back(At(x, y));
        return part;
    }

    void Paste(const Bitmap& source, Point to) {
        for (int y = 0; y < source.height; ++y)
            for (int x = 0; x < source.width; ++x) At(to.x + x, to.y + y) = source.At(x, y);
    }

    void PasteThrough(const Bitmap& mask, const Bitmap& source, Point to) {
        for (int y = 0; y < source.height; ++y)
            for (int x = 0; x < source.width; ++x)
                if (mask.At(x, y) == kBlack) At(to.x + x, to.y + y) = source.At(x, y);
    }

    bool operator==(const Bitmap&) const = default;

    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

inline int Differences(const Bitmap& a, const Bitmap& b) {
    int count = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        count += a.pixels[i] != b.pixels.at(i) ? 1 : 0;
    return count;
}

inline int LargestStep(const Bitmap& a, const Bitmap& b) {
    int largest = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        for (const int shift : {0, 8, 16})
            largest = std::max(largest, std::abs(static_cast<int>(a.pixels[i] >> shift & 255) -
                                                 static_cast<int>(b.pixels.at(i) >> shift & 255)));
    return largest;
}

inline int PixelsOtherThanBlackAndWhite(const Bitmap& mask) {
    int count = 0;
    for (const std::uint32_t pixel : mask.pixels)
        count += pixel != kBlack && pixel != kWhite ? 1 : 0;
    return count;
}

inline void ExpectKept(const Bitmap& mask, Rect place, int margin) {
    for (int y = place.top - margin; y < place.bottom() + margin; ++y)
        for (int x = place.left - margin; x < place.right() + margin; ++x)
            ASSERT_EQ(mask.At(x, y), kBlack) << x << ", " << y;
}

/// Along the edge of what `mask` keeps, `picture` is dark, so that the hard edge looks clean.
inline void ExpectDarkRim(const Bitmap& mask, const Bitmap& picture) {
    for (int y = 1; y < mask.height - 1; ++y) {
        for (int x = 1; x < mask.width - 1; ++x) {
            const bool edge = mask.At(x, y) == kBlack &&
                              (mask.At(x - 1, y) == kWhite || mask.At(x + 1, y) == kWhite ||
                               mask.At(x, y - 1) == kWhite || mask.At(x, y + 1) == kWhite);
            if (!edge) continue;
            ASSERT_LT(LuminanceOf(picture.At(x, y)), 0.03) << x << ", " << y;
        }
    }
}

}  // namespace quendrel
