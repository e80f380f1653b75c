// Silences ALSA and FluidSynth, two libraries that SDL uses: they write messages on standard error
// that are of no use to the player.
#pragma once

namespace quendrel {

/// ALSA, which reports a missing sound device.
void SilenceSoundLibrary();

/// FluidSynth, which reports every damaged tune.
void SilenceSynthesiser();

}  // namespace quendrel
