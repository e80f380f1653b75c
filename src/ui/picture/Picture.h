// Pictures in memory, the one rectangle copy that all drawing is made of, and the reading of
// picture files. Places and sizes are in units of the layout; a picture has one pixel a unit each
// way, or two.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Geometry.h"

namespace quendrel {

/// A colour or pixel as 0x00RRGGBB.
using Pixel = std::uint32_t;

/// A width x height array of pixels, top row first, no padding.
class Picture {
public:
    Picture() = default;
    Picture(int width, int height, Pixel fill = 0);

    /// In pixels.
    int width() const { return width_; }
    int height() const { return height_; }
    Size size() const { return {width_, height_}; }

    /// How many pixels a unit takes each way: 1, but 2 where it has been said.
    int density() const { return density_; }
    void SetDensity(int density) { density_ = density; }

    /// The size in units.
    Size extent() const { return {width_ / density_, height_ / density_}; }

    /// The pixel at (x, y), which must lie inside.
    Pixel At(int x, int y) const { return pixels_[Index(x, y)]; }
    void Set(int x, int y, Pixel pixel) { pixels_[Index(x, y)] = pixel; }

    /// The `width` pixels of row y, 0 to height - 1.
    Pixel* Row(int y) { return pixels_.data() + Index(0, y); }
    const Pixel* Row(int y) const { return pixels_.data() + Index(0, y); }

    bool operator==(const Picture&) const = default;

private:
    std::size_t Index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
               static_cast<std::size_t>(x);
    }

    int width_ = 0;
    int height_ = 0;
    int density_ = 1;
    std::vector<Pixel> pixels_;
};

/// The raster operations, by their standard codes.
enum class RasterOp : std::uint32_t {
    SRCCOPY = 0x00CC0020,    // target = source
    SRCINVERT = 0x00660046,  // target = target xor source
    SRCAND = 0x008800C6,     // target = target and source
};

/// Combines the rectangle of `source` whose top left is `from` with that of `target` at `to`, all
/// in units. What lies outside either picture is left out silently. The pictures must not be the
/// same, and have the same density; std::logic_error otherwise.
void BitBlt(Picture& target, Point to, Size size, const Picture& source, Point from,
            RasterOp operation = RasterOp::SRCCOPY);

/// Reads the picture in the file `path` (a path of the machine). Throws FileError when it is
/// missing, unreadable or no bitmap.
using PictureReader = std::function<Picture(const std::string& path)>;

/// Lays the cell of `sprite` at `spriteAt` over `target` at `to` where the cell of `mask` at
/// `maskAt` is black, and leaves the target where it is white:
/// ((target xor sprite) and mask) xor sprite, pixel by pixel. Units and density as in BitBlt.
void ComposeTransparent(Picture& target, Point to, Size size, const Picture& sprite, Point spriteAt,
                        const Picture& mask, Point maskAt);

}  // namespace quendrel
