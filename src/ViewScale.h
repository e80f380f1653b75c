// How large the player wants the game: the pixels of the screen that a unit of the windows takes.
#pragma once

#include <optional>
#include <string_view>

namespace quendrel {

struct ViewScale {
    /// The player's choice, which is kept between runs; nothing where the desktop says.
    std::optional<double> chosen;
    /// The choice for this run alone, which goes before the other.
    std::optional<double> ofRun;
};

/// What can be chosen: from the least to the most, in these steps.
inline constexpr double kLeastScale = 1;
inline constexpr double kMostScale = 3;
inline constexpr double kScaleStep = 0.25;

/// A scale as a player writes it, "1.5"; nothing for what is no number from the least to the most.
std::optional<double> ScaleOf(std::string_view text);

}  // namespace quendrel
