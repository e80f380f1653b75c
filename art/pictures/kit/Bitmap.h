// Finished pictures of 24-bit pixels in both sizes: how they are made of a canvas, and their file
// format.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
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

/// A picture with one pixel a unit and, as finely as it was painted, with kFine; its places are in
/// units.
struct Picture {
    explicit Picture(Size size, std::uint32_t fill = kBlack);

    void Paste(const Picture& source, Rect from, Point to);
    void Paste(const Picture& source, Point to);
    void PasteMasked(const Picture& source, const Picture& mask, Point to);

    Bitmap single;
    Bitmap fine;
};

/// Turns the light of a canvas into pixels, 0xRRGGBB; bright highlights are compressed.
Picture Develop(const Canvas& canvas);

/// Black where the middle of a pixel lies within the shape, white elsewhere.
Picture HardMask(const Shape& shape, Size size);

/// Where the fine pictures of a folder lie, under the same names.
std::filesystem::path FineFolder(const std::filesystem::path& root);

/// Writes both sizes as uncompressed 24-bit Windows bitmaps: `name` below `root`, and below its
/// folder of fine pictures. Throws std::runtime_error naming the file.
void WriteBmp(const std::filesystem::path& root, const std::filesystem::path& name,
              const Picture& picture);

}  // namespace quendrel::art
