// The outline of a window in the device's pixels: cut hard, and with an edge that is evened out.
#include "ui/picture/Outline.h"

#include <algorithm>
#include <string>
#include <vector>

#include <QPainter>
#include <gtest/gtest.h>

namespace quendrel::test {
namespace {

constexpr Pixel kCut = 0xFFFFFF;

using Drawing = std::vector<std::string>;

/// A mask that keeps '#', and '+' in a colour that is nearly the one that is cut.
Picture MaskFrom(const Drawing& drawing) {
    Picture mask(static_cast<int>(drawing[0].size()), static_cast<int>(drawing.size()), kCut);
    for (int y = 0; y < mask.height(); ++y) {
        for (int x = 0; x < mask.width(); ++x) {
            const char kind = drawing[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (kind == '#') mask.Set(x, y, 0x000000);
            if (kind == '+') mask.Set(x, y, 0xFEFFFF);
        }
    }
    return mask;
}

/// A region within `size` as '#' and '.'.
Drawing Drawn(const QRegion& region, QSize size) {
    Drawing drawing(static_cast<std::size_t>(size.height()));
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            drawing[static_cast<std::size_t>(y)] += region.contains(QPoint(x, y)) ? '#' : '.';
        }
    }
    return drawing;
}

Drawing DrawnHard(const Drawing& mask, QSize device) {
    const Outline outline = HardOutline(MaskFrom(mask), kCut, device);
    EXPECT_TRUE(outline.edge.isEmpty());
    EXPECT_TRUE(outline.coverage.isNull());
    return Drawn(outline.kept, device);
}

int Coverage(const Outline& outline, int x, int y) { return outline.coverage.constScanLine(y)[x]; }

/// A mask of which each row keeps some more pixels, from the left, than the one before.
Picture Slope(int width, int height, int perRow) {
    Picture mask(width, height, kCut);
    for (int y = 0; y < height; ++y) std::fill_n(mask.Row(y), std::min(width, y * perRow), 0);
    return mask;
}

/// Whether regions and coverage say the same of every pixel.
void ExpectToAgree(const Outline& outline, QSize device) {
    ASSERT_EQ(outline.coverage.size(), device);
    for (int y = 0; y < device.height(); ++y) {
        for (int x = 0; x < device.width(); ++x) {
            const int coverage = Coverage(outline, x, y);
            ASSERT_EQ(outline.kept.contains(QPoint(x, y)), coverage > 0) << x << ", " << y;
            ASSERT_EQ(outline.edge.contains(QPoint(x, y)), coverage > 0 && coverage < 255)
                << x << ", " << y;
        }
    }
}

TEST(HardOutline, IsTheMaskWhereAPixelIsAPixel) {
    const Drawing mask{
        ".##.#", "#####", "..+..", "#...#", ".....",
    };
    const Drawing kept{
        ".##.#", "#####", "..#..", "#...#", ".....",
    };
    EXPECT_EQ(DrawnHard(mask, QSize(5, 5)), kept);
}

TEST(HardOutline, ShowsTheMasksPixelUnderEachCentre) {
    const Drawing mask{
        ".#.#",
        "##..",
    };
    // The centres of six in the place of four lie in the pixels 0, 1, 1, 2, 3 and 3; of three in
    // the place of two in 0, 1 and 1.
    const Drawing oneAndAHalf{
        ".##.##",
        "###...",
        "###...",
    };
    const Drawing twice{
        "..##..##",
        "..##..##",
        "####....",
        "####....",
    };
    EXPECT_EQ(DrawnHard(mask, QSize(6, 3)), oneAndAHalf);
    EXPECT_EQ(DrawnHard(mask, QSize(8, 4)), twice);
}

TEST(HardOutline, LeavesOutPixelsOfTheMaskThatNoCentreLiesIn) {
    // The centres of three in the place of five lie in the pixels 0, 2 and 4.
    EXPECT_TRUE(HardOutline(MaskFrom({".#.#."}), kCut, QSize(3, 1)).kept.isEmpty());
    EXPECT_EQ(DrawnHard({"#.#.."}, QSize(3, 1)), Drawing{"##."});
}

TEST(SmoothOutline, KeepsAWholeMaskWholeUpToItsBorder) {
    for (const QSize device : {QSize(10, 10), QSize(20, 20), QSize(13, 13), QSize(5, 5)}) {
        const Outline outline = SmoothOutline(Picture(10, 10), kCut, device);
        EXPECT_EQ(outline.kept, QRegion(0, 0, device.width(), device.height()));
        EXPECT_TRUE(outline.edge.isEmpty());
    }
}

TEST(SmoothOutline, LeavesNothingOfAMaskThatIsCutAway) {
    EXPECT_TRUE(SmoothOutline(Picture(10, 10, kCut), kCut, QSize(15, 15)).kept.isEmpty());
}

TEST(SmoothOutline, LeavesAStraightSideBetweenDevicePixelsSharp) {
    Picture mask(40, 12, kCut);
    for (int y = 0; y < 12; ++y) std::fill_n(mask.Row(y) + 16, 24, 0);
    for (const auto& [device, side] : {std::pair{QSize(40, 12), 16}, std::pair{QSize(80, 24), 32},
                                       std::pair{QSize(20, 6), 8}, std::pair{QSize(50, 15), 20}}) {
        const Outline outline = SmoothOutline(mask, kCut, device);
        EXPECT_EQ(outline.kept, QRegion(side, 0, device.width() - side, device.height()));
        EXPECT_TRUE(outline.edge.isEmpty());
    }
}

TEST(SmoothOutline, HalvesAPixelThatAStraightSideRunsThrough) {
    Picture mask(40, 12, kCut);
    for (int y = 0; y < 12; ++y) std::fill_n(mask.Row(y), 21, 0);
    const Outline outline = SmoothOutline(mask, kCut, QSize(20, 6));
    for (int y = 0; y < 6; ++y) {
        EXPECT_EQ(Coverage(outline, 9, y), 255);
        EXPECT_NEAR(Coverage(outline, 10, y), 128, 1);
        EXPECT_EQ(Coverage(outline, 11, y), 0);
    }
}

TEST(SmoothOutline, RisesSteadilyAcrossAnEdge) {
    for (const QSize device : {QSize(60, 30), QSize(120, 60), QSize(75, 38), QSize(30, 15)}) {
        const Outline outline = SmoothOutline(Slope(60, 30, 3), kCut, device);
        for (int y = 0; y < device.height(); ++y) {
            for (int x = 1; x < device.width(); ++x) {
                ASSERT_LE(Coverage(outline, x, y), Coverage(outline, x - 1, y));
            }
        }
        for (int x = 0; x < device.width(); ++x) {
            for (int y = 1; y < device.height(); ++y) {
                ASSERT_GE(Coverage(outline, x, y), Coverage(outline, x, y - 1));
            }
        }
    }
}

TEST(SmoothOutline, EvensOutTheStepsOfASlope) {
    // Across a slope that is three times as wide as high, the coverage falls over three pixels.
    const Outline outline = SmoothOutline(Slope(60, 20, 3), kCut, QSize(60, 20));
    for (int y = 3; y < 17; ++y) {
        int partly = 0;
        for (int x = 0; x < 60; ++x) {
            const int coverage = Coverage(outline, x, y);
            if (coverage > 0 && coverage < 255) ++partly;
        }
        EXPECT_GE(partly, 2) << y;
        EXPECT_LE(partly, 4) << y;
    }
}

TEST(SmoothOutline, NamesThePixelsOfItsEdge) {
    for (const QSize device : {QSize(60, 30), QSize(105, 53), QSize(30, 15)}) {
        const Outline outline = SmoothOutline(Slope(60, 30, 3), kCut, device);
        EXPECT_FALSE(outline.edge.isEmpty());
        ExpectToAgree(outline, device);
    }
}

/// A window's picture at a scale, painted red with what is outside the outline taken away.
QImage PaintedWithin(const Outline& outline, qreal scale, const QRegion& region) {
    QImage image(outline.coverage.size(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::red);
    QPainter painter(&image);
    ClearOutside(painter, outline, region);
    return image;
}

TEST(ClearOutside, LeavesOfEachPixelAsMuchAsIsCovered) {
    for (const qreal scale : {1.0, 1.25, 2.0}) {
        const QSize device(qRound(60 * scale), qRound(20 * scale));
        const Outline outline = SmoothOutline(Slope(60, 20, 3), kCut, device);
        // Of a region in pieces, a device pixel that two of them touch counts once.
        QRegion pieces;
        for (int y = 0; y < 20; ++y) pieces += QRect(y % 2, y, 60, 1);
        const QImage image = PaintedWithin(outline, scale, pieces);
        for (const QRect& rect : outline.edge) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                ASSERT_EQ(qAlpha(image.pixel(x, rect.top())), Coverage(outline, x, rect.top()))
                    << x << ", " << rect.top() << " at " << scale;
            }
        }
    }
}

TEST(ClearOutside, ChangesNothingFarFromItsPart) {
    const Outline outline = SmoothOutline(Slope(60, 20, 3), kCut, QSize(120, 40));
    const QImage image = PaintedWithin(outline, 2, QRect(0, 0, 60, 10));
    for (int y = 21; y < 40; ++y) {
        for (int x = 0; x < 120; ++x) ASSERT_EQ(qAlpha(image.pixel(x, y)), 255) << x << ", " << y;
    }
}

}  // namespace
}  // namespace quendrel::test
