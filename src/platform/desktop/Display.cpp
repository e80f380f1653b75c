// Whether there is a display to play on.
#include "platform/desktop/Display.h"

#include <cstdlib>
#include <string_view>

#include <X11/Xlib.h>

namespace quendrel {

bool DisplayReachable() {
    const char* const platform = std::getenv("QT_QPA_PLATFORM");
    if (platform != nullptr && !std::string_view(platform).starts_with("xcb")) return true;
    ::Display* const display = XOpenDisplay(nullptr);
    if (display != nullptr) XCloseDisplay(display);
    return display != nullptr;
}

}  // namespace quendrel
