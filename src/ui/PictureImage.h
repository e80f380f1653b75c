// A picture as the toolkit draws it.
#pragma once

#include <QImage>

#include "ui/Picture.h"

namespace quendrel {

/// A view of the picture's own pixels, valid while the picture lives and keeps its size.
inline QImage ImageOf(const Picture& picture) {
    const auto* const bytes = reinterpret_cast<const uchar*>(picture.Row(0));
    const qsizetype bytesPerLine = qsizetype{picture.width()} * qsizetype{sizeof(Pixel)};
    return {bytes, picture.width(), picture.height(), bytesPerLine, QImage::Format_RGB32};
}

}  // namespace quendrel
