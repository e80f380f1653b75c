// Writes a signal as a wave file.
#pragma once

#include <filesystem>

#include "Signal.h"

namespace quendrel::sounds {

/// Stereo, 44100 Hz, 16 bits a sample. Throws std::runtime_error when it cannot be written.
void WriteWave(const Signal& signal, const std::filesystem::path& path);

}  // namespace quendrel::sounds
