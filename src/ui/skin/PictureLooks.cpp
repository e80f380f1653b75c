#include "ui/skin/PictureLooks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace quendrel {

std::array<int, 3> Channels(Pixel pixel) {
    return {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
            static_cast<int>(pixel & 0xFF)};
}

int Brightest(Pixel pixel) {
    const std::array<int, 3> channels = Channels(pixel);
    return *std::max_element(channels.begin(), channels.end());
}

int Step(Pixel a, Pixel b) {
    int largest = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        largest = std::max(largest, std::abs(Channels(a).at(i) - Channels(b).at(i)));
    }
    return largest;
}

std::string Hex(Pixel pixel) {
    std::array<char, 8> text{};
    static_cast<void>(
        std::snprintf(text.data(), text.size(), "#%06X", static_cast<unsigned>(pixel)));
    return text.data();
}

std::string Written(Point at) { return std::to_string(at.x) + ", " + std::to_string(at.y); }

std::string Written(const Rect& place) {
    return "the place " + Written(Point{place.left, place.top}) + " (" +
           std::to_string(place.width) + " x " + std::to_string(place.height) + ")";
}

bool HasBlack(const Picture& picture, const Rect& place) {
    Point at;
    return FindPoint(
        place, [&picture](Point p) { return PixelAt(picture, p) == kBlackPixel; }, at);
}

}  // namespace quendrel
