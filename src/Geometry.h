// Places and sizes in whole pixels, x to the right and y downwards.
#pragma once

namespace quendrel {

/// A rectangle of pixels: left, top, width, height.
struct Rect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    constexpr int right() const { return left + width; }
    constexpr int bottom() const { return top + height; }
    constexpr bool Holds(const Rect& inner) const {
        return inner.left >= left && inner.right() <= right() && inner.top >= top &&
               inner.bottom() <= bottom();
    }

    constexpr bool operator==(const Rect&) const = default;
};

struct Point {
    int x = 0;
    int y = 0;

    constexpr bool operator==(const Point&) const = default;
};

struct Size {
    int width = 0;
    int height = 0;

    constexpr bool operator==(const Size&) const = default;
};

}  // namespace quendrel
