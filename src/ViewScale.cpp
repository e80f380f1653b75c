#include "ViewScale.h"

#include <charconv>

#include "platform/Text.h"

namespace quendrel {

std::optional<double> ScaleOf(std::string_view text) {
    const std::string_view number = Trimmed(text);
    if (number.find_first_not_of("0123456789.") != std::string_view::npos) return std::nullopt;
    double scale = 0;
    const char* const whole = number.data() + number.size();
    const auto [end, error] = std::from_chars(number.data(), whole, scale);
    const bool inRange = scale >= kLeastScale && scale <= kMostScale;
    if (error != std::errc{} || end != whole || !inRange) return std::nullopt;
    return scale;
}

}  // namespace quendrel
