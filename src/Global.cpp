#include "Global.h"

namespace quendrel {

namespace {

std::string TwoDigits(int number) {
    const std::string digits = std::to_string(number);
    return digits.size() == 1 ? "0" + digits : digits;
}

}  // namespace

std::string FormatGameTime(int seconds) {
    if (seconds >= 3600) return "--:--";
    return TwoDigits(seconds / 60 % 60) + ":" + TwoDigits(seconds % 60);
}

}  // namespace quendrel
