// Questions that are put to the X server directly, because the toolkit would abort or guess.
#pragma once

#include <cstdint>
#include <string>

namespace quendrel {

/// By what the toolkit is to show the windows: as QT_QPA_PLATFORM asks for, or "xcb", which is X.
/// May be several with semicolons between, to be tried in turn, each with options after a colon.
std::string PlatformAskedFor();

/// Whether none of them is another than X.
bool OnlyXIsAskedFor();

/// True when the X server named by DISPLAY answers, or another platform may be taken. Asked before
/// the toolkit starts, which would abort.
bool DisplayReachable();

/// Whether the window manager has minimised the window with this number. The toolkit does not know:
/// it reports every window as minimised that it has asked to be. On another platform than X this is
/// always true. Asked once the toolkit has started, as is the next.
bool WindowIsMinimised(std::uintptr_t window);

/// Whether a minimised window can be told from one that is shown; Wayland says nothing of it.
bool MinimisingIsTold();

}  // namespace quendrel
