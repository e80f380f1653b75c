// Memory that is in nobody's use.
#pragma once

namespace quendrel {

/// Gives back to the system what the program has let go of and the C library keeps in reserve.
/// Called where much was read that is not kept.
void GiveBackSpareMemory();

}  // namespace quendrel
