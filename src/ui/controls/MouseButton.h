// Which button of the mouse went down.
#pragma once

#include <cstdint>

namespace quendrel {

enum class MouseButton : std::uint8_t { kLeft, kRight, kOther };

}  // namespace quendrel
