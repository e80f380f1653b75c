// A skin in which every cell has a colour of its own, so that a drawn pixel tells which picture
// it came from.
#pragma once

#include <string>

#include "ui/picture/Picture.h"
#include "ui/skin/MainSkin.h"

namespace quendrel::test {

/// The high byte of a pixel says the picture, the rest which cell of it.
enum Origin : Pixel {
    kPegs = 0x010000,
    kAnimation = 0x020000,
    kNumbers = 0x030000,
    kDots = 0x040000,
    kEasyBoard = 0x050000,
    kModeSheet = 0x060000,
};

inline void FillCell(Picture& picture, Point at, Size size, Pixel pixel) {
    for (int y = at.y; y < at.y + size.height; ++y) {
        for (int x = at.x; x < at.x + size.width; ++x) picture.Set(x, y, pixel);
    }
}

/// A strip of `cells` cells in a row, cell n filled with `origin` + n.
inline Picture Strip(int cells, Size size, Pixel origin) {
    Picture strip(cells * size.width, size.height);
    for (int n = 0; n < cells; ++n) {
        FillCell(strip, {n * size.width, 0}, size, origin + static_cast<Pixel>(n));
    }
    return strip;
}

inline BoardSkin PaintTestSkin() {
    BoardSkin skin;
    skin.picColors = Strip(12, {44, 27}, kPegs);
    FillCell(skin.picColors, {484, 0}, {44, 27}, 0);
    skin.picColorAnim = Picture(440, 297);
    for (int color = 0; color <= 10; ++color) {
        for (int frame = 1; frame <= 10; ++frame) {
            const auto cell = static_cast<Pixel>(frame << 8 | color);
            FillCell(skin.picColorAnim, {44 * (frame - 1), 27 * color}, {44, 27},
                     kAnimation + cell);
        }
    }
    skin.picNumbers = Strip(16, {19, 16}, kNumbers);
    skin.picDots = Strip(4, {11, 11}, kDots);
    FillCell(skin.picDots, {33, 0}, {11, 11}, 0);
    skin.picModes = Picture(305, 479, kModeSheet);
    skin.easyBoard = Picture(655, 605, kEasyBoard);
    return skin;
}

inline BoardSkin TestSkin() {
    static const BoardSkin skin = PaintTestSkin();
    return skin;
}

/// The picture at twice the size. The highest byte tells the pixels of a cell apart, but for a
/// mask's black.
inline Picture Doubled(const Picture& single) {
    Picture doubled(2 * single.width(), 2 * single.height());
    for (int y = 0; y < doubled.height(); ++y) {
        for (int x = 0; x < doubled.width(); ++x) {
            const Pixel pixel = single.At(x / 2, y / 2);
            const auto grain = static_cast<Pixel>((7 * x + 13 * y) & 0xFF);
            doubled.Set(x, y, pixel == 0 ? 0 : pixel | grain << 24);
        }
    }
    return doubled;
}

/// The test skin with two pixels a unit.
inline BoardSkin DoubledTestSkin() {
    BoardSkin skin = TestSkin();
    for (Picture BoardSkin::*const picture :
         {&BoardSkin::picColors, &BoardSkin::picColorAnim, &BoardSkin::picNumbers,
          &BoardSkin::picDots, &BoardSkin::picModes, &BoardSkin::easyBoard}) {
        skin.*picture = Doubled(skin.*picture);
        (skin.*picture).SetDensity(2);
    }
    return skin;
}

/// What a pixel of the test skin shows.
inline std::string Describe(Pixel pixel) {
    const Pixel cell = pixel & 0xFFFF;
    switch (pixel & 0xFF0000) {
        case kPegs:
            return cell == 0 ? "no peg" : "peg " + std::to_string(cell);
        case kAnimation:
            return "color " + std::to_string(cell & 0xFF) + " frame " + std::to_string(cell >> 8);
        case kNumbers:
            return "number " + std::to_string(cell);
        case kDots:
            return "mark " + std::to_string(cell);
        default:
            return "board";
    }
}

}  // namespace quendrel::test
