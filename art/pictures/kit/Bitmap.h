// Finished pictures of 24-bit pixels: how they are made of a canvas, and their file format.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "kit/Canvas.h"
#include "kit/Shapes.h"

namespace quendrel::art {

inline constexpr std::uint32_t kBlack = 0x000000;
inline constexpr std::uint32_t kWhite = 0xffffff;

class Bitmap {
public:
    explicit Bitmap(Size size, std::uint32_t fill = kBlack);

    Size Extent() const { return size_; }
    std::uint32_t& At(int x, int y) { return pixels_[Index(x, y)]; }
    std::uint32_t At(int x, int y) const { return pixels_[Index(x, y)]; }

    /// Copies the part `from` of `source` so that its top left comes to `to`.
    void Paste(const Bitmap& source, Rect from, Point to);
    void Paste(const Bitmap& source, Point to);

    /// Copies the pixels of `source` whose pixel in `mask` is black; both have the same size.
    void PasteMasked(const Bitmap& source, const Bitmap& mask, Point to);

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width) +
               static_cast<std::size_t>(x);
    }

    Size size_;
    std::vector<std::uint32_t> pixels_;
};

/// Turns the light of a canvas into pixels, 0xRRGGBB; bright highlights are compressed.
Bitmap Develop(const Canvas& canvas);

/// Black where the middle of a pixel lies within the shape, white elsewhere.
Bitmap HardMask(const Shape& shape, Size size);

/// Writes an uncompressed 24-bit Windows bitmap; throws std::runtime_error naming the file.
void WriteBmp(const std::filesystem::path& path, const Bitmap& bitmap);

}  // namespace quendrel::art
