// Whether there is a display to play on, asked before the toolkit starts, which would abort.
#pragma once

namespace quendrel {

/// True when the X server named by DISPLAY answers, or the toolkit was told to use another
/// platform with QT_QPA_PLATFORM.
bool DisplayReachable();

}  // namespace quendrel
