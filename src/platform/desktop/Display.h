// What is asked of the display directly, because the toolkit would abort or guess.
#pragma once

#include <cstdint>

namespace quendrel {

/// True when the X server named by DISPLAY answers, or the toolkit was told to use another
/// platform with QT_QPA_PLATFORM. Asked before the toolkit starts, which would abort.
bool DisplayReachable();

/// Whether the window manager has minimised the window with this number. The toolkit says so of
/// any window that it has asked it for. On another platform than X it is taken at its word.
bool WindowIsMinimised(std::uintptr_t window);

}  // namespace quendrel
