#include "ui/picture/PaintImage.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include <QPainter>

namespace quendrel {

namespace {

/// For each of `count` device pixels from `first` on, the image's pixel under its centre.
std::vector<int> Under(int first, int count, qreal origin, qreal scale, int size) {
    std::vector<int> under(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<int>(std::floor((first + i + 0.5 - origin) / scale));
        under[static_cast<std::size_t>(i)] = std::clamp(at, 0, size - 1);
    }
    return under;
}

/// What the device shows of the image within a rectangle of device pixels.
QImage Scaled(const QImage& image, const QRect& device, const QTransform& toDevice) {
    const auto columns =
        Under(device.x(), device.width(), toDevice.dx(), toDevice.m11(), image.width());
    const auto rows =
        Under(device.y(), device.height(), toDevice.dy(), toDevice.m22(), image.height());
    constexpr QRgb opaque = 0xFF000000;
    QImage scaled(device.size(), QImage::Format_RGB32);
    for (int y = 0; y < device.height(); ++y) {
        const int row = rows[static_cast<std::size_t>(y)];
        const auto* const from = reinterpret_cast<const QRgb*>(image.constScanLine(row));
        auto* const to = reinterpret_cast<QRgb*>(scaled.scanLine(y));
        std::transform(columns.begin(), columns.end(), to,
                       [from](int x) { return from[x] | opaque; });
    }
    return scaled;
}

}  // namespace

void PaintImage(QPainter& painter, const QImage& image, const QRegion& region) {
    const QTransform toDevice = painter.deviceTransform();
    painter.save();
    painter.setTransform(toDevice.inverted(), true);
    for (const QRect& part : region) {
        // One pixel more on each side, since the toolkit may round the clip of a part either way.
        const QRect device = toDevice.mapRect(QRectF(part)).toAlignedRect().adjusted(-1, -1, 1, 1);
        painter.drawImage(device.topLeft(), Scaled(image, device, toDevice));
    }
    painter.restore();
}

}  // namespace quendrel
