// The small room with a carpet that all sounds are heard in.
#pragma once

#include "Signal.h"

namespace quendrel::sounds {

/// Adds the room's answer to a signal, `share` as strong as the signal itself.
void AddRoom(double share, Signal& signal);

}  // namespace quendrel::sounds
