// Libraries beneath SDL that would write on standard error what is none of the player's worries.
#pragma once

namespace quendrel {

/// The system's sound library complains where there is no sound device.
void SilenceSoundLibrary();

/// The synthesiser complains of every damaged tune.
void SilenceSynthesiser();

}  // namespace quendrel
