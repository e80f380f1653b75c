// A picture on the screen.
#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include <QPainter>
#include <gtest/gtest.h>

#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureImage.h"

namespace quendrel::test {
namespace {

/// The greys of a row or a column of pixels.
using Greys = std::vector<int>;

Pixel Grey(int level) { return static_cast<Pixel>(level) * 0x010101; }

/// A picture whose rows are all the same.
Picture Striped(const Greys& row, int density) {
    const int size = static_cast<int>(row.size());
    Picture picture(size, size);
    picture.SetDensity(density);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) picture.Set(x, y, Grey(row[static_cast<std::size_t>(x)]));
    }
    return picture;
}

Picture Turned(const Picture& picture) {
    Picture turned(picture.height(), picture.width());
    turned.SetDensity(picture.density());
    for (int y = 0; y < turned.height(); ++y) {
        for (int x = 0; x < turned.width(); ++x) turned.Set(x, y, picture.At(y, x));
    }
    return turned;
}

/// Every pixel has a colour of its own.
Picture Motley(int width, int height, int density) {
    std::mt19937 random(7);
    Picture picture(width, height);
    picture.SetDensity(density);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) picture.Set(x, y, random() & 0xFFFFFF);
    }
    return picture;
}

/// What a device of so many pixels a unit shows of the picture, which fills it.
QImage Shown(const Picture& picture, double scale) {
    const auto onDevice = [&](int pixels) {
        return static_cast<int>(std::lround(pixels * scale / picture.density()));
    };
    QImage device(onDevice(picture.width()), onDevice(picture.height()), QImage::Format_RGB32);
    QPainter painter(&device);
    painter.scale(scale, scale);
    PaintImage(painter, ImageOf(picture), device.rect());
    return device;
}

/// The row that a device shows of such a picture, and the column that it shows of it turned.
Greys ShownRow(const Greys& row, int density, double scale) {
    const QImage device = Shown(Striped(row, density), scale);
    const QImage turned = Shown(Turned(Striped(row, density)), scale);
    Greys shown;
    for (int at = 0; at < device.width(); ++at) {
        shown.push_back(qRed(device.pixel(at, 0)));
        for (int line = 0; line < device.height(); ++line) {
            const QRgb pixel = Grey(shown.back()) | 0xFF000000;
            EXPECT_EQ(device.pixel(at, line), pixel) << at << ", " << line;
            EXPECT_EQ(turned.pixel(line, at), pixel) << line << ", " << at << " turned";
        }
    }
    return shown;
}

TEST(PaintImage, IsOpaqueWhereWhatItPaintsOnHasOpacity) {
    for (const int density : {1, 2}) {
        QImage device(6, 6, QImage::Format_ARGB32_Premultiplied);
        device.fill(Qt::transparent);
        Picture picture(4 * density, 4 * density, 0x123456);
        picture.SetDensity(density);
        QPainter painter(&device);
        painter.scale(1.5, 1.5);
        PaintImage(painter, ImageOf(picture), QRect(0, 0, 6, 6));
        painter.end();
        for (int y = 0; y < 6; ++y) {
            for (int x = 0; x < 6; ++x) EXPECT_EQ(device.pixel(x, y), 0xFF123456) << x << ", " << y;
        }
    }
}

TEST(PaintImage, IsExactlyThePictureWhereAPixelIsAPixel) {
    for (const int density : {1, 2}) {
        const Picture picture = Motley(12, 10, density);
        const QImage device = Shown(picture, density);
        ASSERT_EQ(device.size(), QSize(12, 10));
        for (int y = 0; y < 10; ++y) {
            for (int x = 0; x < 12; ++x) {
                ASSERT_EQ(device.pixel(x, y) & 0xFFFFFF, picture.At(x, y)) << x << ", " << y;
            }
        }
    }
}

TEST(PaintImage, ShowsOfASinglePictureThePixelUnderEachCentre) {
    const Greys row{10, 20, 30, 40};
    EXPECT_EQ(ShownRow(row, 1, 1.25), (Greys{10, 20, 30, 30, 40}));
    EXPECT_EQ(ShownRow(row, 1, 1.5), (Greys{10, 20, 20, 30, 40, 40}));
    EXPECT_EQ(ShownRow(row, 1, 1.75), (Greys{10, 10, 20, 30, 30, 40, 40}));
    EXPECT_EQ(ShownRow(row, 1, 2), (Greys{10, 10, 20, 20, 30, 30, 40, 40}));
    EXPECT_EQ(ShownRow(row, 1, 2.5), (Greys{10, 10, 20, 20, 20, 30, 30, 40, 40, 40}));
    EXPECT_EQ(ShownRow(row, 1, 3), (Greys{10, 10, 10, 20, 20, 20, 30, 30, 30, 40, 40, 40}));
}

TEST(PaintImage, ADoubledPictureOfOneColorStaysThatColor) {
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.5, 3.0}) {
        const Greys shown = ShownRow(Greys(8, 77), 2, scale);
        EXPECT_EQ(shown, Greys(static_cast<std::size_t>(4 * scale), 77)) << scale;
    }
}

// At 1.5 a device pixel is mixed of the cubic 4/3 as wide. Those left of the middle have their
// centres at 1/6, 3/2 and 17/6 of the picture; of 1359 or 1378 parts,
//   at 17/6 the pixels 1 to 5 have -75, 399, 987, 93 and -45,
//   at 3/2 the pixels -1 to 4 have -7, -49, 745, 745, -49 and -7,
//   at 1/6 the pixels -2 to 2 have -45, 93, 987, 399 and -75.
TEST(PaintImage, MixesADoubledPictureByTheCubicAsWideAsAPixelOfTheDevice) {
    EXPECT_EQ(ShownRow({40, 40, 40, 40, 240, 240, 240, 240}, 2, 1.5),
              (Greys{40, 39, 47, 233, 241, 240}));
    EXPECT_EQ(ShownRow({100, 100, 100, 200, 100, 100, 100, 100}, 2, 1.5),
              (Greys{100, 96, 173, 107, 99, 100}));
}

TEST(PaintImage, TheEdgesOfADoubledPictureGoOnBeyondIt) {
    EXPECT_EQ(ShownRow({200, 100, 100, 100, 100, 100, 100, 100}, 2, 1.5),
              (Greys{176, 96, 100, 100, 100, 100}));
    EXPECT_EQ(ShownRow({100, 100, 100, 100, 100, 100, 100, 200}, 2, 1.5),
              (Greys{100, 100, 100, 100, 96, 176}));
}

TEST(PaintImage, AnEdgeInADoubledPictureRisesSteadilyBetweenTwoSmallRings) {
    Greys edge(24, 50);
    for (std::size_t i = 11; i < edge.size(); ++i) edge[i] = 200;
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.25, 2.5, 3.0}) {
        const Greys shown = ShownRow(edge, 2, scale);
        const auto lowest = std::min_element(shown.begin(), shown.end());
        const auto highest = std::max_element(shown.begin(), shown.end());
        EXPECT_LT(lowest, highest) << scale;
        EXPECT_TRUE(std::is_sorted(lowest, highest + 1)) << scale;
        // A tenth of the step.
        EXPECT_GE(*lowest, 35) << scale;
        EXPECT_LE(*highest, 215) << scale;
        EXPECT_EQ(shown.front(), 50) << scale;
        EXPECT_EQ(shown.back(), 200) << scale;
    }
}

TEST(PaintImage, ADoubledPictureAtItsHalfIsMixedOfAllItsPixels) {
    for (int at = 4; at < 12; ++at) {
        Greys row(16, 0);
        row[static_cast<std::size_t>(at)] = 250;
        const Greys shown = ShownRow(row, 2, 1);
        EXPECT_GT(*std::max_element(shown.begin(), shown.end()), 90) << at;
    }
}

/// A widget of 40 by 30 of the toolkit's pixels, in which the picture begins between two of the
/// device's.
class Pieces : public ::testing::Test {
protected:
    static constexpr QRect kWidget{0, 0, 40, 30};

    static QImage Blank(double scale) {
        QImage device(qRound(40 * scale), qRound(30 * scale), QImage::Format_ARGB32_Premultiplied);
        device.setDevicePixelRatio(scale);
        device.fill(Qt::transparent);
        return device;
    }

    static void Paint(QImage& device, const Picture& picture, const QRegion& region) {
        QPainter painter(&device);
        painter.translate(-0.4, 0.3);
        painter.scale(1.1, 1.1);
        PaintImage(painter, ImageOf(picture), region);
    }

    static void ExpectTheSame(const std::vector<QRect>& pieces) {
        for (const int density : {1, 2}) {
            const Picture picture = Motley(40 * density, 30 * density, density);
            for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
                QImage whole = Blank(scale);
                Paint(whole, picture, kWidget);
                QImage together = Blank(scale);
                for (const QRect& piece : pieces) Paint(together, picture, piece);
                EXPECT_EQ(together, whole) << density << " at " << scale;
                EXPECT_EQ(qAlpha(whole.pixel(whole.width() - 1, whole.height() - 1)), 255);
            }
        }
    }
};

TEST_F(Pieces, InLinesThePictureIsTheSameAsAtOnce) {
    std::vector<QRect> lines;
    lines.reserve(30);
    for (int y = 0; y < 30; ++y) lines.emplace_back(0, (7 * y) % 30, 40, 1);
    ExpectTheSame(lines);
}

TEST_F(Pieces, InAnyRectanglesThePictureIsTheSameAsAtOnce) {
    std::mt19937 random(3);
    const auto below = [&random](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    std::vector<QRect> rectangles{kWidget};
    for (int i = 0; i < 60; ++i) {
        const QRect piece(below(38), below(28), 1 + below(14), 1 + below(9));
        rectangles.push_back(piece.intersected(kWidget));
    }
    ExpectTheSame(rectangles);
}

}  // namespace
}  // namespace quendrel::test
