#include "ViewScale.h"

#include <charconv>

namespace quendrel {

std::optional<double> ScaleOf(std::string_view text) {
    if (text.find_first_not_of("0123456789.") != std::string_view::npos) return std::nullopt;
    double scale = 0;
    const char* const whole = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), whole, scale);
    const bool inRange = scale >= kLeastScale && scale <= kMostScale;
    if (error != std::errc{} || end != whole || !inRange) return std::nullopt;
    return scale;
}

}  // namespace quendrel
