// One line of the message panel, and the panel's palette.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace quendrel {

/// A 24-bit colour with red in the low byte.
constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

inline constexpr std::uint32_t kLightGrey = Rgb(235, 235, 235);
inline constexpr std::uint32_t kYellow = Rgb(255, 255, 0);

struct MessageLine {
    std::string text;
    std::uint32_t rgb = 0;
    /// So many bytes at the end are shown even where the text is too long for the line.
    std::size_t kept = 0;

    bool operator==(const MessageLine&) const = default;
};

inline MessageLine Grey(std::string text) { return {std::move(text), kLightGrey}; }
inline MessageLine Yellow(std::string text) { return {std::move(text), kYellow}; }

}  // namespace quendrel
