// What the checks of a skin look at: pixels, places and how they are written in words.
#pragma once

#include <array>
#include <string>

#include "Geometry.h"
#include "ui/picture/Picture.h"

namespace quendrel {

inline constexpr Pixel kBlackPixel = 0x000000;
inline constexpr Pixel kWhitePixel = 0xFFFFFF;

/// How far two pixels that should look the same may be apart in a channel.
inline constexpr int kSeen = 24;

/// Red, green and blue.
std::array<int, 3> Channels(Pixel pixel);

int Brightest(Pixel pixel);

/// The largest difference of two pixels in a channel.
int Step(Pixel a, Pixel b);

std::string Hex(Pixel pixel);
std::string Written(Point at);
std::string Written(const Rect& place);

inline Rect At(Point corner, Size size) { return {corner.x, corner.y, size.width, size.height}; }
inline Rect Whole(const Picture& picture) { return At({0, 0}, picture.size()); }
inline Point Plus(Point a, Point b) { return {a.x + b.x, a.y + b.y}; }
inline Pixel PixelAt(const Picture& picture, Point at) { return picture.At(at.x, at.y); }

/// The first point of a place, row by row, of which `test` holds.
template <class Test>
bool FindPoint(const Rect& place, const Test& test, Point& found) {
    for (int y = place.top; y < place.bottom(); ++y) {
        for (int x = place.left; x < place.right(); ++x) {
            found = {x, y};
            if (test(found)) return true;
        }
    }
    return false;
}

/// Whether a place of a mask lets anything through.
bool HasBlack(const Picture& picture, const Rect& place);

}  // namespace quendrel
