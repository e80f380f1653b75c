// Pictures, the rectangle copy and the transparent composition.
#include "ui/picture/Picture.h"

#include <random>

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
