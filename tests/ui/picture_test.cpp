// Pictures, the rectangle copy and the transparent composition.
#include "ui/picture/Picture.h"

#include <random>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

#include "ui/main/Board.h"

namespace quendrel::test {
namespace {

Picture RandomPicture(std::mt19937& generator, int width, int height) {
    Picture picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.Set(x, y, static_cast<Pixel>(generator()) & 0xFFFFFF);
        }
    }
    return picture;
}

/// No pixel of a picture, which has no opacity.
constexpr Pixel kBeside = 0xFFFFFFFF;

/// A picture of two pixels a unit.
Picture Fine(const std::vector<std::vector<Pixel>>& rows) {
    Picture picture(static_cast<int>(rows.front().size()), static_cast<int>(rows.size()));
    picture.SetDensity(2);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            picture.Set(x, y, rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
        }
    }
    return picture;
}

Picture RandomFinePicture(std::mt19937& generator, int width, int height) {
    Picture picture = RandomPicture(generator, 2 * width, 2 * height);
    picture.SetDensity(2);
    return picture;
}

/// The pixel at (x, y), or what an operation takes for one that lies outside.
Pixel AtOr(const Picture& picture, int x, int y, Pixel outside) {
    const bool inside = x >= 0 && y >= 0 && x < picture.width() && y < picture.height();
    return inside ? picture.At(x, y) : outside;
}

/// Changes every pixel of the target in a rectangle of two pixels a unit to `combine` of its place
/// in the rectangle.
template <class Combine>
void ChangePixels(Picture& target, Point to, Size size, const Combine& combine) {
    for (int y = 0; y < 2 * size.height; ++y) {
        for (int x = 0; x < 2 * size.width; ++x) {
            const Point at{2 * to.x + x, 2 * to.y + y};
            if (at.x < 0 || at.y < 0 || at.x >= target.width() || at.y >= target.height()) continue;
            target.Set(at.x, at.y, combine(target.At(at.x, at.y), x, y));
        }
    }
}

TEST(BitBlt, CopiesXorsAndAnds) {
    const Picture source(1, 1, 0x0F0F0F);
    Picture target(1, 1, 0x00FFFF);
    BitBlt(target, {0, 0}, {1, 1}, source, {0, 0}, RasterOp::SRCAND);
    EXPECT_EQ(target.At(0, 0), 0x000F0FU);
    BitBlt(target, {0, 0}, {1, 1}, source, {0, 0}, RasterOp::SRCINVERT);
    EXPECT_EQ(target.At(0, 0), 0x0F0000U);
    BitBlt(target, {0, 0}, {1, 1}, source, {0, 0}, RasterOp::SRCCOPY);
    EXPECT_EQ(target.At(0, 0), 0x0F0F0FU);
}

TEST(BitBlt, ChangesNothingBesideItsPlace) {
    for (const RasterOp operation : {RasterOp::SRCCOPY, RasterOp::SRCINVERT, RasterOp::SRCAND}) {
        Picture target(3, 3, 0x123456);
        BitBlt(target, {1, 1}, {1, 1}, Picture(3, 3, 0x0F0F0F), {1, 1}, operation);
        for (int i = 0; i < 9; ++i) {
            EXPECT_EQ(target.At(i % 3, i / 3) == 0x123456, i != 4);
        }
    }
}

TEST(BitBlt, TheOperationsHaveTheirStandardCodes) {
    EXPECT_EQ(static_cast<std::uint32_t>(RasterOp::SRCCOPY), 0x00CC0020U);
    EXPECT_EQ(static_cast<std::uint32_t>(RasterOp::SRCINVERT), 0x00660046U);
    EXPECT_EQ(static_cast<std::uint32_t>(RasterOp::SRCAND), 0x008800C6U);
}

TEST(BitBlt, LeavesOutWhatLiesOutsideEitherPicture) {
    Picture source(3, 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) source.Set(x, y, static_cast<Pixel>(10 * y + x + 1));
    }
    Picture target(3, 3, 99);
    BitBlt(target, {2, -1}, {3, 3}, source, {0, 0});
    EXPECT_EQ(target.At(2, 0), 11U);
    EXPECT_EQ(target.At(2, 1), 21U);
    EXPECT_EQ(target.At(2, 2), 99U);
    EXPECT_EQ(target.At(1, 0), 99U);

    target = Picture(3, 3, 99);
    BitBlt(target, {0, 0}, {3, 3}, source, {-1, 2});
    EXPECT_EQ(target.At(0, 0), 99U);
    EXPECT_EQ(target.At(1, 0), 21U);
    EXPECT_EQ(target.At(2, 0), 22U);
    EXPECT_EQ(target.At(1, 1), 99U);
}

TEST(BitBlt, NothingInCommonChangesNothing) {
    Picture target(3, 3, 99);
    for (const Point to : {Point{3, 0}, Point{-3, 0}, Point{0, 3}, Point{0, -3}, Point{700, 700}}) {
        BitBlt(target, to, {3, 3}, Picture(3, 3, 1), {0, 0});
        BitBlt(target, {0, 0}, {3, 3}, Picture(3, 3, 1), to);
    }
    EXPECT_EQ(target, Picture(3, 3, 99));
}

TEST(BitBlt, AtTwoPixelsAUnitCopiesXorsAndAndsTheUnitsPixels) {
    const Picture source = Fine({{0x11, 0x12, 0x13, 0x14}, {0x21, 0x22, 0x23, 0x24}});
    const Picture before = Fine({{1, 2, 3, 0xF0}, {5, 6, 7, 0x0F}});
    Picture target = before;
    BitBlt(target, {1, 0}, {1, 1}, source, {0, 0});
    EXPECT_EQ(target, Fine({{1, 2, 0x11, 0x12}, {5, 6, 0x21, 0x22}}));
    target = before;
    BitBlt(target, {1, 0}, {1, 1}, source, {1, 0}, RasterOp::SRCINVERT);
    EXPECT_EQ(target, Fine({{1, 2, 0x10, 0xE4}, {5, 6, 0x24, 0x2B}}));
    target = before;
    BitBlt(target, {1, 0}, {1, 1}, source, {0, 0}, RasterOp::SRCAND);
    EXPECT_EQ(target, Fine({{1, 2, 0x01, 0x10}, {5, 6, 0x01, 0x02}}));
}

TEST(BitBlt, AtTwoPixelsAUnitEqualsTheSameDoneOnThePixels) {
    std::mt19937 generator(20261122);
    std::uniform_int_distribution<int> place(-12, 24);
    for (int i = 0; i < 300; ++i) {
        const Picture before = RandomFinePicture(generator, 20, 15);
        const Picture source = RandomFinePicture(generator, 18, 22);
        const Point to{place(generator), place(generator)};
        const Point from{place(generator), place(generator)};
        const auto expect = [&](RasterOp operation, const auto& combine) {
            Picture expected = before;
            ChangePixels(expected, to, {9, 7}, [&](Pixel old, int x, int y) {
                const Pixel pixel = AtOr(source, 2 * from.x + x, 2 * from.y + y, kBeside);
                return pixel == kBeside ? old : combine(old, pixel);
            });
            Picture target = before;
            BitBlt(target, to, {9, 7}, source, from, operation);
            ASSERT_EQ(target, expected) << "round " << i;
        };
        expect(RasterOp::SRCCOPY, [](Pixel /*old*/, Pixel pixel) { return pixel; });
        expect(RasterOp::SRCINVERT, [](Pixel old, Pixel pixel) { return old ^ pixel; });
        expect(RasterOp::SRCAND, [](Pixel old, Pixel pixel) { return old & pixel; });
    }
}

TEST(BitBlt, PicturesOfTwoDensitiesAreAnError) {
    Picture single(4, 4);
    Picture fine = Fine({{1, 2}, {3, 4}});
    EXPECT_THROW(BitBlt(single, {0, 0}, {1, 1}, fine, {0, 0}), std::logic_error);
    EXPECT_THROW(BitBlt(fine, {0, 0}, {1, 1}, single, {0, 0}), std::logic_error);
    EXPECT_EQ(single, Picture(4, 4));
    EXPECT_EQ(fine, Fine({{1, 2}, {3, 4}}));
}

/// The composition as five copies through a scratch cell.
void ComposeByFiveCopies(Picture& target, Point to, Size size, const Picture& sprite,
                         Point spriteAt, const Picture& mask, Point maskAt) {
    Picture scratch(size.width, size.height);
    BitBlt(scratch, {0, 0}, size, target, to, RasterOp::SRCCOPY);
    BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
    BitBlt(scratch, {0, 0}, size, mask, maskAt, RasterOp::SRCAND);
    BitBlt(scratch, {0, 0}, size, sprite, spriteAt, RasterOp::SRCINVERT);
    BitBlt(target, to, size, scratch, {0, 0}, RasterOp::SRCCOPY);
}

TEST(ComposeTransparent, EqualsTheFiveCopiesOnRandomPicturesAtRandomPlaces) {
    std::mt19937 generator(20261121);
    std::uniform_int_distribution<int> place(-30, 90);
    for (int i = 0; i < 2000; ++i) {
        Picture target = RandomPicture(generator, 80, 60);
        const Picture sprite = RandomPicture(generator, 70, 50);
        const Picture mask = RandomPicture(generator, 60, 70);
        const Point to{place(generator), place(generator)};
        const Point spriteAt{place(generator), place(generator)};
        const Point maskAt{place(generator), place(generator)};
        Picture expected = target;
        ComposeByFiveCopies(expected, to, {44, 27}, sprite, spriteAt, mask, maskAt);
        ComposeTransparent(target, to, {44, 27}, sprite, spriteAt, mask, maskAt);
        ASSERT_EQ(target, expected) << "round " << i;
    }
}

TEST(ComposeTransparent, AtTwoPixelsAUnitTheMaskIsThatOfEveryPixel) {
    Picture target = Fine({{1, 2, 3, 4}, {5, 6, 7, 8}});
    const Picture sprite = Fine({{0x11, 0x12, 0x13, 0x14}, {0x21, 0x22, 0x23, 0x24}});
    const Picture mask = Fine({{0xFFFFFF, 0}, {0, 0xF0}});
    ComposeTransparent(target, {0, 0}, {1, 1}, sprite, {1, 0}, mask, {0, 0});
    EXPECT_EQ(target, Fine({{1, 0x14, 3, 4}, {0x23, 0x04, 7, 8}}));
}

TEST(ComposeTransparent, AtTwoPixelsAUnitEqualsTheFormulaOnThePixels) {
    std::mt19937 generator(20261123);
    std::uniform_int_distribution<int> place(-12, 24);
    for (int i = 0; i < 1000; ++i) {
        Picture target = RandomFinePicture(generator, 25, 20);
        const Picture sprite = RandomFinePicture(generator, 22, 18);
        const Picture mask = RandomFinePicture(generator, 18, 22);
        const Point to{place(generator), place(generator)};
        const Point spriteAt{place(generator), place(generator)};
        const Point maskAt{place(generator), place(generator)};
        Picture expected = target;
        ChangePixels(expected, to, {9, 7}, [&](Pixel old, int x, int y) {
            const Pixel shown = AtOr(sprite, 2 * spriteAt.x + x, 2 * spriteAt.y + y, 0);
            const Pixel kept = AtOr(mask, 2 * maskAt.x + x, 2 * maskAt.y + y, 0xFFFFFFFF);
            return ((old ^ shown) & kept) ^ shown;
        });
        ComposeTransparent(target, to, {9, 7}, sprite, spriteAt, mask, maskAt);
        ASSERT_EQ(target, expected) << "round " << i;
    }
}

TEST(ComposeTransparent, PicturesOfTwoDensitiesAreAnError) {
    Picture single(4, 4);
    Picture fine = Fine({{1, 2}, {3, 4}});
    const Picture other = fine;
    const auto compose = [](Picture& target, const Picture& sprite, const Picture& mask) {
        ComposeTransparent(target, {0, 0}, {1, 1}, sprite, {0, 0}, mask, {0, 0});
    };
    EXPECT_THROW(compose(fine, single, other), std::logic_error);
    EXPECT_THROW(compose(fine, other, single), std::logic_error);
    EXPECT_THROW(compose(single, other, other), std::logic_error);
    EXPECT_EQ(fine, other);
}

TEST(ComposeTransparent, ShowsTheSpriteWhereTheMaskIsBlackAndTheTargetWhereItIsWhite) {
    Picture target(2, 1, 0x123456);
    const Picture sprite(2, 1, 0xABCDEF);
    Picture mask(2, 1, 0x000000);
    mask.Set(1, 0, 0xFFFFFF);
    ComposeTransparent(target, {0, 0}, {2, 1}, sprite, {0, 0}, mask, {0, 0});
    EXPECT_EQ(target.At(0, 0), 0xABCDEFU);
    EXPECT_EQ(target.At(1, 0), 0x123456U);
}

}  // namespace
}  // namespace quendrel::test
