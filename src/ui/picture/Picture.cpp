#include "ui/picture/Picture.h"

#include <algorithm>
#include <stdexcept>

namespace quendrel {

namespace {

/// One direction of a clipped copy: where it starts in target and source, and how long it is.
struct Span {
    int to;
    int from;
    int length;
};

Span Clip(int to, int from, int length, int targetLength, int sourceLength) {
    const int skip = std::max({0, -to, -from});
    const int end = std::min({length, targetLength - to, sourceLength - from});
    return {to + skip, from + skip, end - skip};
}

void CombineRow(Pixel* target, const Pixel* source, int count, RasterOp operation) {
    switch (operation) {
        case RasterOp::SRCCOPY:
            std::copy_n(source, count, target);
            break;
        case RasterOp::SRCINVERT:
            for (int i = 0; i < count; ++i) target[i] ^= source[i];
            break;
        case RasterOp::SRCAND:
            for (int i = 0; i < count; ++i) target[i] &= source[i];
            break;
    }
}

void RequireSameDensity(const Picture& a, const Picture& b) {
    if (a.density() != b.density()) throw std::logic_error("pictures of two densities");
}

Point InPixels(Point units, int density) { return {units.x * density, units.y * density}; }

Size InPixels(Size units, int density) { return {units.width * density, units.height * density}; }

/// All in pixels.
bool Inside(const Picture& picture, Point at, Size size) {
    return at.x >= 0 && at.y >= 0 && at.x + size.width <= picture.width() &&
           at.y + size.height <= picture.height();
}

}  // namespace

Picture::Picture(int width, int height, Pixel fill)
    : width_(width),
      height_(height),
      pixels_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill) {}

void BitBlt(Picture& target, Point to, Size size, const Picture& source, Point from,
            RasterOp operation) {
    RequireSameDensity(target, source);
    to = InPixels(to, target.density());
    from = InPixels(from, target.density());
    size = InPixels(size, target.density());
    const Span x = Clip(to.x, from.x, size.width, target.width(), source.width());
    const Span y = Clip(to.y, from.y, size.height, target.height(), source.height());
    if (x.length <= 0) return;
    for (int row = 0; row < y.length; ++row) {
        CombineRow(target.Row(y.to + row) + x.to, source.Row(y.from + row) + x.from, x.length,
                   operation);
    }
}

void ComposeTransparent(Picture& target, Point to, Size size, const Picture& sprite, Point spriteAt,
                        const Picture& mask, Point maskAt) {
    RequireSameDensity(target, sprite);
    RequireSameDensity(target, mask);
    const int density = target.density();
    const Point on = InPixels(to, density);
    const Point shownAt = InPixels(spriteAt, density);
    const Point keptAt = InPixels(maskAt, density);
    const Size pixels = InPixels(size, density);
    if (!Inside(target, on, pixels) || !Inside(sprite, shownAt, pixels) ||
        !Inside(mask, keptAt, pixels)) {
        Picture scratch(pixels.width, pixels.height);
        scratch.SetDensity(density);
        BitBlt(scratch, {0, 0}, size, target, to, RasterOp::SRCCOPY);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(scratch, {0, 0}, size, mask, maskAt, RasterOp::SRCAND);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(target, to, size, scratch, {0, 0}, RasterOp::SRCCOPY);
        return;
    }
    for (int row = 0; row < pixels.height; ++row) {
        Pixel* const line = target.Row(on.y + row) + on.x;
        const Pixel* const shown = sprite.Row(shownAt.y + row) + shownAt.x;
        const Pixel* const keeps = mask.Row(keptAt.y + row) + keptAt.x;
        for (int i = 0; i < pixels.width; ++i) {
            line[i] = ((line[i] ^ shown[i]) & keeps[i]) ^ shown[i];
        }
    }
}

}  // namespace quendrel
