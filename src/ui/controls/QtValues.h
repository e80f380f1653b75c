// Our texts and rectangles as the toolkit's.
#pragma once

#include <string_view>

#include <QRect>
#include <QSize>
#include <QString>

#include "Geometry.h"

namespace quendrel {

inline QString Text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline QRect ToQRect(const Rect& rect) { return {rect.left, rect.top, rect.width, rect.height}; }
inline QSize ToQSize(Size size) { return {size.width, size.height}; }

}  // namespace quendrel
