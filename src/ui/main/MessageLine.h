// One line of the message panel, and the panel's palette.
#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "ui/picture/Picture.h"

namespace quendrel {

inline constexpr Pixel kLightGreyInk = 0xEBEBEB;
inline constexpr Pixel kYellowInk = 0xFFFF00;

struct MessageLine {
    std::string text;
    Pixel ink = 0;
    /// How many bytes at the end of the text are shown even where it is too long for the line.
    std::size_t kept = 0;

    bool operator==(const MessageLine&) const = default;
};

inline MessageLine Grey(std::string text) { return {std::move(text), kLightGreyInk}; }
inline MessageLine Yellow(std::string text) { return {std::move(text), kYellowInk}; }

}  // namespace quendrel
