// How light a colour, 0xRRGGBB, is, and how well two of them are told apart.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace quendrel {

struct Rgb {
    double r = 0;
    double g = 0;
    double b = 0;
};

/// The light of a level, 0 to 255; whole pictures are asked about, so all of it is worked out once.
inline double Linear(std::uint32_t level) {
    static const std::array<double, 256> linear = [] {
        std::array<double, 256> levels{};
        for (std::size_t i = 0; i < levels.size(); ++i) {
            const double v = static_cast<double>(i) / 255.0;
            levels.at(i) = v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        }
        return levels;
    }();
    return linear.at(level);
}

inline Rgb LinearOf(std::uint32_t pixel) {
    return {Linear(pixel >> 16 & 255), Linear(pixel >> 8 & 255), Linear(pixel & 255)};
}

inline double LuminanceOf(std::uint32_t pixel) {
    const Rgb c = LinearOf(pixel);
    return 0.2126 * c.r + 0.7152 * c.g + 0.0722 * c.b;
}

inline double Contrast(std::uint32_t a, std::uint32_t b) {
    const double la = LuminanceOf(a) + 0.05;
    const double lb = LuminanceOf(b) + 0.05;
    return la > lb ? la / lb : lb / la;
}

}  // namespace quendrel
