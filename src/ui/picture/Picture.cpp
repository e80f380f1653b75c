#include "ui/picture/Picture.h"

#include <algorithm>

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
    if (!Inside(target, to, size) || !Inside(sprite, spriteAt, size) ||
        !Inside(mask, maskAt, size)) {
        Picture scratch(size.width, size.height);
        BitBlt(scratch, {0, 0}, size, target, to, RasterOp::SRCCOPY);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(scratch, {0, 0}, size, mask, maskAt, RasterOp::SRCAND);
        BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
        BitBlt(target, to, size, scratch, {0, 0}, RasterOp::SRCCOPY);
        return;
    }
    for (int row = 0; row < size.height; ++row) {
        Pixel* const pixels = target.Row(to.y + row) + to.x;
        const Pixel* const shown = sprite.Row(spriteAt.y + row) + spriteAt.x;
        const Pixel* const kept = mask.Row(maskAt.y + row) + maskAt.x;
        for (int i = 0; i < size.width; ++i) {
            pixels[i] = ((pixels[i] ^ shown[i]) & kept[i]) ^ shown[i];
        }
    }
}

}  // namespace quendrel
