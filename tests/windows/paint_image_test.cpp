// A picture on the screen.
#include <QPainter>
#include <gtest/gtest.h>

#include "ui/picture/PaintImage.h"
#include "ui/picture/PictureImage.h"

namespace quendrel::test {
namespace {

TEST(PaintImage, IsOpaqueWhereWhatItPaintsOnHasOpacity) {
    QImage device(6, 6, QImage::Format_ARGB32_Premultiplied);
    device.fill(Qt::transparent);
    const Picture picture(4, 4, 0x123456);
    QPainter painter(&device);
    painter.scale(1.5, 1.5);
    PaintImage(painter, ImageOf(picture), QRect(0, 0, 6, 6));
    painter.end();
    for (int y = 0; y < 6; ++y) {
        for (int x = 0; x < 6; ++x) EXPECT_EQ(device.pixel(x, y), 0xFF123456) << x << ", " << y;
    }
}

}  // namespace
}  // namespace quendrel::test
