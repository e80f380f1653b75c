// A picture as the toolkit draws it, and back.
#pragma once

#include <algorithm>
#include <new>

#include <QImage>
#include <QPainter>

#include "ui/picture/Picture.h"

namespace quendrel {

/// A view of the picture's own pixels, valid while the picture lives and keeps its size. The
/// picture's density is the image's device pixel ratio.
inline QImage ImageOf(const Picture& picture) {
    const auto* const bytes = reinterpret_cast<const uchar*>(picture.Row(0));
    const qsizetype bytesPerLine = qsizetype{picture.width()} * qsizetype{sizeof(Pixel)};
    QImage image(bytes, picture.width(), picture.height(), bytesPerLine, QImage::Format_RGB32);
    image.setDevicePixelRatio(picture.density());
    return image;
}

/// The image. Throws std::bad_alloc where it is empty, as the toolkit leaves one for which there is
/// no memory.
inline QImage Whole(QImage image) {
    if (image.isNull()) throw std::bad_alloc();
    return image;
}

/// The image on a ground of one colour. Throws std::bad_alloc where there is no memory for it, or
/// was none for the image.
inline QImage OnGround(const QImage& image, QRgb ground) {
    QImage shown = Whole({image.size(), QImage::Format_RGB32});
    shown.fill(ground);
    QPainter(&shown).drawImage(0, 0, image);
    return shown;
}

/// The colours of an image, without their opacity.
inline Picture PictureOf(const QImage& image) {
    constexpr Pixel colorBits = 0x00FFFFFF;
    const QImage rgb = Whole(image.convertToFormat(QImage::Format_RGB32));
    Picture picture(rgb.width(), rgb.height());
    for (int y = 0; y < rgb.height(); ++y) {
        const auto* const line = reinterpret_cast<const Pixel*>(rgb.constScanLine(y));
        std::transform(line, line + rgb.width(), picture.Row(y),
                       [](Pixel pixel) { return pixel & colorBits; });
    }
    return picture;
}

}  // namespace quendrel
